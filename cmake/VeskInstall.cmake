include(CMakePackageConfigHelpers)

# For CMake: find_package(Vesk), then Vesk::Host, Vesk::HostUi, Vesk::Qtitan and Vesk::VeskUiQtImpl.
set(folder ${CMAKE_INSTALL_LIBDIR}/cmake/Vesk)
install(EXPORT VeskTargets NAMESPACE Vesk:: DESTINATION ${folder} COMPONENT Development)
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/VeskConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/VeskConfig.cmake" INSTALL_DESTINATION ${folder})
write_basic_package_version_file("${PROJECT_BINARY_DIR}/VeskConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/VeskConfig.cmake" "${PROJECT_BINARY_DIR}/VeskConfigVersion.cmake"
    DESTINATION ${folder} COMPONENT Development)

# vesk_install_pc(<file> DESCRIPTION <text> REQUIRES <modules> LIBRARIES <flags>): for everything else, pkg-config.
function(vesk_install_pc file)
    cmake_parse_arguments(PC "" "DESCRIPTION;REQUIRES;LIBRARIES" "" ${ARGN})
    set(folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
    # The prefix is told from where the file lies, so that the installed tree can be moved.
    file(RELATIVE_PATH PC_PREFIX "/${folder}" "/")
    string(REGEX REPLACE "/$" "" PC_PREFIX "${PC_PREFIX}")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/vesk.pc.in" "${PROJECT_BINARY_DIR}/${file}.pc" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/${file}.pc" DESTINATION ${folder} COMPONENT Development)
endfunction()

vesk_install_pc(vesk-host DESCRIPTION "Definitions, commands, actions and journals of CAD programs"
    REQUIRES eigen3 LIBRARIES -lVeskHost)
vesk_install_pc(vesk-host-ui DESCRIPTION "Windows, drawing views and dimension input of CAD programs, on Qt"
    REQUIRES "vesk-host = ${PROJECT_VERSION} Qt${QT_VERSION_MAJOR}Widgets" LIBRARIES "-lVeskHostUi -lVeskQtitan")
vesk_install_pc(vesk-ui-qt-impl DESCRIPTION "The control library, for programs that do not load it"
    REQUIRES "vesk-host-ui = ${PROJECT_VERSION}" LIBRARIES -lVeskUiQtImpl)

set(folder ${CMAKE_INSTALL_DATADIR}/doc/vesk)
install(FILES README.md CONTRIBUTING.md DESTINATION ${folder} COMPONENT Documentation)
install(DIRECTORY docs examples DESTINATION ${folder} COMPONENT Documentation PATTERN build EXCLUDE)
if(NOT VESK_PACKAGES)  # Debian packages have copyright files and changelogs of their own.
    install(FILES CHANGELOG.md LICENSE DESTINATION ${folder} COMPONENT Documentation)
    install(DIRECTORY LICENSES DESTINATION ${folder} COMPONENT Documentation)
endif()

if(VESK_BUILD_SKETCHER AND NOT WIN32)
    include(VeskDesktop)
endif()
