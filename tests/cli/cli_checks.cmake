# What the lapdesk-cli test scripts share: running the tool in the scratch
# folder with an expected exit status, and looking for texts in what it wrote.
# Needs CLI and WORK.

function(run_cli expected_status)
  execute_process(COMMAND "${CLI}" ${ARGN}
    WORKING_DIRECTORY "${WORK}"
    RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT status EQUAL expected_status)
    message(FATAL_ERROR "${ARGN}: exit ${status}, expected ${expected_status}\n${out}\n${err}")
  endif()
  set(out "${out}" PARENT_SCOPE)
  set(err "${err}" PARENT_SCOPE)
endfunction()

function(expect_contains text part what)
  string(FIND "${text}" "${part}" at)
  if(at EQUAL -1)
    message(FATAL_ERROR "${what} lacks \"${part}\":\n${text}")
  endif()
endfunction()

function(expect_lacks text part what)
  string(FIND "${text}" "${part}" at)
  if(NOT at EQUAL -1)
    message(FATAL_ERROR "${what} has \"${part}\":\n${text}")
  endif()
endfunction()
