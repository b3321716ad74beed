# Debian packages, one for each component that is installed; built by scripts/package.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vesk)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "Vesk maintainers <maintainers@vesk.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/packages")
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
# Lower than any revision of Debian's own, which would replace it.
set(CPACK_DEBIAN_PACKAGE_RELEASE 0vesk1)
set(CPACK_DEBIAN_PACKAGE_SOURCE vesk)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/packaging/debian/compress.cmake")
set(CPACK_POST_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/packaging/debian/repack.cmake")

set(qt5_development qtbase5-dev)
set(qt6_development qt6-base-dev)
set(soversion ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
set(packaged)

# vesk_package(<component> NAME <package> SECTION <section> SUMMARY <text> TEXT <text> [DEPENDS <packages>]
#              [RECOMMENDS <packages>] [SUGGESTS <packages>] [COMPONENTS <component>...] [COPYRIGHT <file>] [FOR_ALL])
#
# The package of a component. Those of COMPONENTS are needed in the same version, and other libraries are found by what
# the component links; DEPENDS is what else it needs. A package FOR_ALL holds nothing that depends on the architecture.
macro(vesk_package component)
    cmake_parse_arguments(DEB "FOR_ALL" "NAME;SECTION;SUMMARY;TEXT;DEPENDS;RECOMMENDS;SUGGESTS;COPYRIGHT" "COMPONENTS"
        ${ARGN})
    string(TOUPPER ${component} upper)
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${DEB_NAME})
    set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${DEB_SECTION})
    set(CPACK_DEBIAN_${upper}_DESCRIPTION "${DEB_SUMMARY}\n${DEB_TEXT}")
    set(CPACK_COMPONENT_${upper}_DEPENDS ${DEB_COMPONENTS})
    set(CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS ${DEB_DEPENDS})
    set(CPACK_DEBIAN_${upper}_PACKAGE_RECOMMENDS ${DEB_RECOMMENDS})
    set(CPACK_DEBIAN_${upper}_PACKAGE_SUGGESTS ${DEB_SUGGESTS})
    if(DEB_FOR_ALL)
        set(CPACK_DEBIAN_${upper}_PACKAGE_ARCHITECTURE all)
        set(CPACK_DEBIAN_${upper}_PACKAGE_SHLIBDEPS OFF)
    endif()
    if(NOT DEB_COPYRIGHT)
        set(DEB_COPYRIGHT copyright)
    endif()
    set(folder ${CMAKE_INSTALL_DATADIR}/doc/${DEB_NAME})
    install(FILES "${PROJECT_SOURCE_DIR}/packaging/debian/${DEB_COPYRIGHT}" RENAME copyright
        DESTINATION ${folder} COMPONENT ${component})
    install(FILES "${PROJECT_SOURCE_DIR}/packaging/debian/changelog" RENAME changelog.Debian
        DESTINATION ${folder} COMPONENT ${component})
    install(FILES "${PROJECT_SOURCE_DIR}/CHANGELOG.md" RENAME changelog
        DESTINATION ${folder} COMPONENT ${component})
    list(APPEND packaged ${component})
endmacro()

vesk_package(Host NAME libveskhost${soversion} SECTION libs
    SUMMARY "platform for CAD programs: commands, actions, journals"
    TEXT "Control definitions and their events, commands, interactive actions, a
journal that is replayed to the last bit, geometry, provisional dimensions
and debug warnings. It does not need Qt.")
# Its addresses are relocated in a way that loaders know since 2.36, which the symbols that it needs do not tell.
vesk_package(Ui NAME libveskhostui${soversion} SECTION libs COMPONENTS Host DEPENDS "libc6 (>= 2.36)"
    SUMMARY "widgets for CAD programs: controls, views, typed dimensions"
    TEXT "Main window, ribbon and drawing view on Qt, the input of dimensions with
formulas and units, and the control library, which is loaded at run time
and creates the widgets of control definitions.")
vesk_package(Development NAME libvesk-dev SECTION libdevel COMPONENTS Host Ui
    DEPENDS "libeigen3-dev, ${qt${QT_VERSION_MAJOR}_development}"
    SUGGESTS vesk-doc
    SUMMARY "widgets for CAD programs: development files"
    TEXT "Headers, package files for CMake and pkg-config, and links to the
libraries, to build programs with Vesk.")
vesk_package(Sketcher NAME vesk-sketcher SECTION graphics COMPONENTS Host Ui
    RECOMMENDS "fonts-noto-cjk | fonts-arphic-uming | fonts-wqy-zenhei, vesk-dxf"
    SUGGESTS "vesk-doc, vesk-journal"
    SUMMARY "draw exact shapes with typed dimensions"
    TEXT "Lines, rectangles, circles and arcs whose lengths, angles and radii are
typed while they are drawn, as numbers, formulas or with units, and are
exact to the last digit. Layers, snaps, printing to scale, export to SVG,
PDF and PNG. Every session is recorded and can be replayed, also after a
crash.")
vesk_package(Journal NAME vesk-journal SECTION graphics COMPONENTS Host
    SUMMARY "show, check, cut and compare journals of drawing sessions"
    TEXT "Reads the journals in which Sketcher and other programs built on Vesk
record what their users do: prints them in words, checks that they are
complete, cuts them, and finds where two of them part.")
vesk_package(Dxf NAME vesk-dxf SECTION graphics COMPONENTS Host COPYRIGHT copyright-dxf
    SUMMARY "convert drawings of Sketcher to DXF and back"
    TEXT "Reads DXF files of all versions, if they are text, and writes them without
losing a digit. Sketcher uses it to import and export DXF.")
vesk_package(Documentation NAME vesk-doc SECTION doc FOR_ALL
    SUMMARY "widgets for CAD programs: documentation"
    TEXT "Architecture, the promises of a host, file formats, typed values, and how
to use Sketcher.")

set(CPACK_COMPONENTS_ALL ${packaged})
get_cmake_property(installed COMPONENTS)
foreach(component IN LISTS installed)
    if(NOT component IN_LIST packaged)
        message(FATAL_ERROR "What is installed as ${component} is in no package.")
    endif()
endforeach()
include(CPack)
