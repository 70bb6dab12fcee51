# lapdesk-cli --plot: invert and read write the plot as PNG and SVG without a
# display and without Qt's chatter on standard error; another suffix fails.
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})

function(run_cli expected_status)
  execute_process(COMMAND ${CLI} ${ARGN}
    RESULT_VARIABLE status OUTPUT_QUIET ERROR_VARIABLE errors)
  if(NOT status EQUAL expected_status)
    message(FATAL_ERROR "lapdesk-cli ${ARGN}: status ${status}, expected ${expected_status}\n${errors}")
  endif()
  if(errors MATCHES "QStandardPaths|propagateSizeHints|qt\\.")
    message(FATAL_ERROR "lapdesk-cli ${ARGN}: Qt messages on standard error\n${errors}")
  endif()
  set(errors "${errors}" PARENT_SCOPE)
endfunction()

run_cli(0 invert ${PROGRAM} -N 128 -o ${WORK}/f.Ldt --plot ${WORK}/f.png)
file(READ ${WORK}/f.png signature LIMIT 8 HEX)
if(NOT signature STREQUAL "89504e470d0a1a0a")
  message(FATAL_ERROR "f.png is not a PNG file: ${signature}")
endif()

run_cli(0 read ${WORK}/f.Ldt --plot ${WORK}/f.svg)
file(READ ${WORK}/f.svg svg)
if(NOT svg MATCHES "<svg" OR NOT svg MATCHES "N = 128")
  message(FATAL_ERROR "f.svg is not the plot")
endif()

run_cli(1 invert ${PROGRAM} -N 128 --plot ${WORK}/f.txt)
if(NOT errors MATCHES "\\.png or \\.svg")
  message(FATAL_ERROR "no reason given for the wrong suffix:\n${errors}")
endif()

# The accurate result over six decades: drawn over the FFT's on a log t axis
# (the SVG then has tick labels for each decade).
run_cli(0 invert ${PROGRAM} --method dehoog --times 1e-3:1e3:61:log --csv ${WORK}/a.csv
        --plot ${WORK}/a.svg)
file(READ ${WORK}/a.svg svg)
if(NOT svg MATCHES "高精度" OR NOT svg MATCHES ">0\\.001<" OR NOT svg MATCHES ">1000<")
  message(FATAL_ERROR "a.svg lacks the accurate curve or its log t axis")
endif()
