include_guard(GLOBAL)

# The clips of the tests, made once per build tree.
set(TESSARINE_CLIPS "${PROJECT_BINARY_DIR}/tests/support/media")
add_custom_command(OUTPUT "${TESSARINE_CLIPS}/made"
    COMMAND "${PROJECT_SOURCE_DIR}/tests/support/make-clips" "${TESSARINE_CLIPS}"
    COMMAND ${CMAKE_COMMAND} -E touch "${TESSARINE_CLIPS}/made"
    DEPENDS "${PROJECT_SOURCE_DIR}/tests/support/make-clips"
    COMMENT "Making the clips of the tests"
    VERBATIM)
add_custom_target(tessarine_clips DEPENDS "${TESSARINE_CLIPS}/made")

# Lets a test find the clips: clipPath and frameNumber of support/Clips.h.
function(tessarine_use_clips name)
    target_compile_definitions(${name} PRIVATE TESSARINE_CLIPS="${TESSARINE_CLIPS}")
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    add_dependencies(${name} tessarine_clips)
endfunction()
