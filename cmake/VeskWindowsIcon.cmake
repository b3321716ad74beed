find_program(VESK_RSVG_CONVERT rsvg-convert REQUIRED)  # draws an icon in a size
find_program(VESK_ICOTOOL icotool REQUIRED)            # puts its sizes into one file
enable_language(RC)

# Gives a program the icon that Windows shows for its file and its windows, drawn from an SVG file.
function(vesk_add_windows_icon program drawing)
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/icon")
    set(draw)
    set(pictures)
    foreach(size IN ITEMS 16 24 32 48 64 256)
        set(picture "${folder}/${size}.png")
        list(APPEND draw COMMAND "${VESK_RSVG_CONVERT}" --width=${size} --height=${size} "--output=${picture}"
            "${drawing}")
        list(APPEND pictures "${picture}")
    endforeach()
    list(TRANSFORM pictures REPLACE "^.*/256.png$" "--raw=\\0")  # the large one stays compressed
    file(MAKE_DIRECTORY "${folder}")
    add_custom_command(OUTPUT "${folder}/icon.ico" DEPENDS "${drawing}" VERBATIM
        ${draw} COMMAND "${VESK_ICOTOOL}" --create --output=${folder}/icon.ico ${pictures})
    # Qt takes the icon of a program's windows from the resource of this name.
    file(CONFIGURE OUTPUT "${folder}/icon.rc" CONTENT "IDI_ICON1 ICON \"icon.ico\"\n")
    set_source_files_properties("${folder}/icon.rc" PROPERTIES
        OBJECT_DEPENDS "${folder}/icon.ico" INCLUDE_DIRECTORIES "${folder}")
    # The program's own flags are not for the resource compiler.
    add_library(${program}_icon OBJECT "${folder}/icon.rc")
    target_sources(${program} PRIVATE $<TARGET_OBJECTS:${program}_icon>)
endfunction()
