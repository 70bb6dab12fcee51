# lapdesk-cli loads the Qt libraries only for --plot: calc, run and invert
# without it start with none of them, as the dynamic loader reports.
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})

# The loader's list of the libraries it opened, from its own trace.
function(loaded_libraries result)
  execute_process(COMMAND ${CMAKE_COMMAND} -E env LD_DEBUG=libs ${CLI} ${ARGN}
    RESULT_VARIABLE status OUTPUT_QUIET ERROR_VARIABLE trace)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "lapdesk-cli ${ARGN}: status ${status}\n${trace}")
  endif()
  string(REGEX MATCHALL "calling init: [^\n]*" opened "${trace}")
  set(${result} "${opened}" PARENT_SCOPE)
endfunction()

foreach(verb IN ITEMS "calc;1+1" "run;${EXAMPLES}/basel-sum.Prg"
                      "invert;${EXAMPLES}/first-order.Prg;-N;128;-o;${WORK}/f.Ldt")
  loaded_libraries(opened ${verb})
  if(opened MATCHES "libQt6")
    message(FATAL_ERROR "lapdesk-cli ${verb} loaded Qt:\n${opened}")
  endif()
endforeach()

loaded_libraries(opened invert ${EXAMPLES}/first-order.Prg -N 128 -o ${WORK}/f.Ldt --plot ${WORK}/f.png)
if(NOT opened MATCHES "libQt6Widgets")
  message(FATAL_ERROR "lapdesk-cli --plot drew without loading Qt?\n${opened}")
endif()
