# What makes the programs known to a desktop and to man.
set(id org.vesk.Sketcher)
set(packaging "${PROJECT_SOURCE_DIR}/packaging")
install(FILES "${packaging}/desktop/${id}.desktop"
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT Sketcher)
install(FILES "${packaging}/desktop/${id}.metainfo.xml"
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT Sketcher)
install(FILES "${packaging}/desktop/${id}.mime.xml" RENAME ${id}.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages COMPONENT Sketcher)

install(FILES "${packaging}/man/sketcher.1" DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT Sketcher)
install(FILES "${packaging}/man/vesk-journal.1" DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT Journal)
install(FILES "${packaging}/man/vesk-dxf.1" DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT Dxf)

set(icon "${PROJECT_SOURCE_DIR}/src/Sketcher/icons/sketcher.svg")
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES "${icon}" RENAME ${id}.svg DESTINATION ${icons}/scalable/apps COMPONENT Sketcher)
# Desktops that do not draw SVG icons take one of these.
find_program(VESK_RSVG_CONVERT rsvg-convert)
if(VESK_RSVG_CONVERT)
    set(pictures)
    foreach(size IN ITEMS 16 22 24 32 48 64 128 256)
        set(picture "${PROJECT_BINARY_DIR}/icons/${size}x${size}.png")
        add_custom_command(OUTPUT "${picture}" DEPENDS "${icon}" VERBATIM
            COMMAND "${CMAKE_COMMAND}" -E make_directory "${PROJECT_BINARY_DIR}/icons"
            COMMAND "${VESK_RSVG_CONVERT}" --width=${size} --height=${size} "--output=${picture}" "${icon}")
        list(APPEND pictures "${picture}")
        install(FILES "${picture}" RENAME ${id}.png
            DESTINATION ${icons}/${size}x${size}/apps COMPONENT Sketcher)
    endforeach()
    add_custom_target(sketcher_icons DEPENDS ${pictures})
    add_dependencies(sketcher sketcher_icons)
endif()
