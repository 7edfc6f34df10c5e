# One set of icons under the three paths by which the forms and windows name them.
set(icon_directory "${CMAKE_CURRENT_LIST_DIR}/icons")
set(icon_files
    ${icon_directory}/arrowDown.svg
    ${icon_directory}/arrowUp.svg
    ${icon_directory}/arrow_square_left.svg
    ${icon_directory}/arrow_square_right.svg
    ${icon_directory}/aspectRatio.svg
    ${icon_directory}/autoCenter.svg
    ${icon_directory}/autoFit.svg
    ${icon_directory}/back_undo.svg
    ${icon_directory}/delete.svg
    ${icon_directory}/edit.svg
    ${icon_directory}/editImage.svg
    ${icon_directory}/editVideo.svg
    ${icon_directory}/export.svg
    ${icon_directory}/frameGrab.svg.svg
    ${icon_directory}/framesFiles.svg
    ${icon_directory}/framesGrab.svg
    ${icon_directory}/import.svg
    ${icon_directory}/itemDelete.svg
    ${icon_directory}/itemMoveDown.svg
    ${icon_directory}/itemMoveUp.svg
    ${icon_directory}/new.svg
    ${icon_directory}/open.svg
    ${icon_directory}/pause.svg
    ${icon_directory}/play.svg
    ${icon_directory}/refresh.svg
    ${icon_directory}/remove.svg
    ${icon_directory}/resize.svg
    ${icon_directory}/save.svg
    ${icon_directory}/saveAs.svg
    ${icon_directory}/send.svg
    ${icon_directory}/tags.svg
    ${icon_directory}/toolCut.svg
    ${icon_directory}/toolPan.svg)

# tessarine_add_icons(TARGET)
function(tessarine_add_icons target)
    foreach(prefix IN ITEMS /resources/icons /icons/resources/icons /icons/resources)
        string(MAKE_C_IDENTIFIER "tessarine${prefix}" name)
        qt_add_resources(${target} ${name} PREFIX ${prefix} BASE ${icon_directory} FILES ${icon_files})
    endforeach()
endfunction()
