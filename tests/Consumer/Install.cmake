# Installs the built tree into a prefix that holds nothing else.
file(REMOVE_RECURSE "${PREFIX}")
execute_process(COMMAND ${CMAKE_COMMAND} --install "${VESK_BINARY_DIR}" --prefix "${PREFIX}"
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
