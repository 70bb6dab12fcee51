# lapdesk-cli read, run end to end on a data file the test script writes.
lapdesk_add_script_test(read LAYER cli
  SCRIPT ${CMAKE_CURRENT_LIST_DIR}/read_cli_test.cmake
  DEFINITIONS
    CLI=$<TARGET_FILE:lapdesk-cli>
    WORK=${CMAKE_CURRENT_BINARY_DIR}/read_work)
