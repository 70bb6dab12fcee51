# lapdesk-cli read, run end to end on a data file the test script writes.
add_test(NAME cli.read
  COMMAND ${CMAKE_COMMAND}
    -DCLI=$<TARGET_FILE:lapdesk-cli>
    -DWORK=${CMAKE_CURRENT_BINARY_DIR}/read_work
    -P ${CMAKE_CURRENT_LIST_DIR}/read_cli_test.cmake)
