# Runs on the finished packages: the library cache is refreshed by the trigger that Debian has for it, not by scripts
# that call ldconfig, which is all that CPack knows.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
    set(folder "${CPACK_TEMPORARY_DIRECTORY}/repack")
    file(REMOVE_RECURSE "${folder}")
    execute_process(COMMAND dpkg-deb --raw-extract "${package}" "${folder}" COMMAND_ERROR_IS_FATAL ANY)
    if(EXISTS "${folder}/DEBIAN/postinst")
        file(REMOVE "${folder}/DEBIAN/postinst" "${folder}/DEBIAN/postrm")
        file(WRITE "${folder}/DEBIAN/triggers" "activate-noawait ldconfig\n")
        execute_process(COMMAND dpkg-deb --root-owner-group -Zxz --build "${folder}" "${package}"
            OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    endif()
endforeach()
