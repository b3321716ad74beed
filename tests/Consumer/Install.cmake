# Installs the built tree into an empty prefix.
file(REMOVE_RECURSE "${PREFIX}")
execute_process(COMMAND ${CMAKE_COMMAND} --install "${VESK_BINARY_DIR}" --prefix "${PREFIX}"
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
