include(CMakePackageConfigHelpers)

install(EXPORT VeskTargets NAMESPACE Vesk:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Vesk)
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/VeskConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/VeskConfig.cmake" INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Vesk)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/VeskConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/VeskConfig.cmake" "${PROJECT_BINARY_DIR}/VeskConfigVersion.cmake"
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Vesk)
