# Runs on the installed files of all packages: manual pages and changelogs are compressed, as Debian's policy says.
file(GLOB_RECURSE files "${CPACK_TEMPORARY_DIRECTORY}/*/*/share/man/man?/*.?"
    "${CPACK_TEMPORARY_DIRECTORY}/*/*/share/doc/*/changelog" "${CPACK_TEMPORARY_DIRECTORY}/*/*/share/doc/*/changelog.Debian")
foreach(file IN LISTS files)
    execute_process(COMMAND gzip --best --no-name --force "${file}" COMMAND_ERROR_IS_FATAL ANY)
endforeach()
