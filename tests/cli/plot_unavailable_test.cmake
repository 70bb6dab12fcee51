# The core build has no plot module: --plot is refused before any work, with
# the reason, and the usage exit status.
execute_process(COMMAND ${CLI} invert ${PROGRAM} -N 128 --plot f.png
  RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(NOT status EQUAL 2)
  message(FATAL_ERROR "--plot in the core build: exit ${status}, expected 2\n${out}\n${err}")
endif()
string(FIND "${err}" "--plot は使えません" at)
if(at EQUAL -1 OR NOT out STREQUAL "")
  message(FATAL_ERROR "--plot in the core build: no clear refusal\n${out}\n${err}")
endif()
