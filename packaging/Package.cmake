# What CPack needs to make the Debian package.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tessarine)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The Tessarine developers <developers@tessarine.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_DESCRIPTION
"Tessarine lists the pictures and clips of a directory with thumbnails and
technical columns and keeps a plain-text tag file beside each of them. It edits
tags in bulk, takes captions from a local Ollama server, runs chains of image
filters, crops, grabs frames of videos and looks into safetensors model files.
tessarine-batch does the same on the command line, without a screen.")
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Plugins are loaded by name, which no scan of shared libraries sees. The media back end and the X11 and Wayland
# platforms come with the libraries themselves.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-image-formats-plugins, qt6-svg-plugins")
# The texts of Qt's own dialogs in the user's language.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n")
include(CPack)
