# Runs `lapdesk-cli calc` once and checks its standard output against a
# golden file, its exit status, and that every "Error" line has its reason
# on standard error, naming the line that failed. With ERRORS, standard
# error must be that file exactly: each reason is the one of its own line.
#
#   cmake -DCLI=<binary> -DEXPECTED=<file> -DSTATUS=<0|1>
#         [-DINPUT=<file of lines for standard input>] [-DCRLF=ON]
#         [-DARGS=<arguments after "calc", separated by "|">]
#         [-DERRORS=<file>] -P run_calc.cmake
#
# Without ARGS the lines come from INPUT on standard input; with ARGS they
# are the arguments. Output line i answers input line i.

foreach(required CLI EXPECTED STATUS)
  if(NOT DEFINED ${required})
    message(FATAL_ERROR "run_calc.cmake needs -D${required}=...")
  endif()
endforeach()

set(arguments "")
if(DEFINED ARGS)
  string(REPLACE "|" ";" arguments "${ARGS}")
endif()

set(lines "")
set(stdin_option "")
if(DEFINED INPUT)
  file(STRINGS "${INPUT}" lines ENCODING UTF-8)
  set(feed "${INPUT}")
  if(CRLF)
    # The same lines with CR LF breaks, as a file saved on Windows has them.
    set(feed "${CMAKE_CURRENT_BINARY_DIR}/calc_crlf_input.txt")
    list(JOIN lines "\r\n" joined)
    file(WRITE "${feed}" "${joined}\r\n")
  endif()
  set(stdin_option INPUT_FILE "${feed}")
else()
  foreach(argument IN LISTS arguments)
    if(NOT argument MATCHES "^--")
      list(APPEND lines "${argument}")
    endif()
  endforeach()
endif()

execute_process(
  COMMAND "${CLI}" calc ${arguments}
  ${stdin_option}
  OUTPUT_VARIABLE output
  ERROR_VARIABLE errors
  RESULT_VARIABLE status)

file(READ "${EXPECTED}" expected)
set(problems "")
if(NOT output STREQUAL expected)
  string(APPEND problems "standard output differs\n--- expected\n${expected}--- got\n${output}")
endif()
if(NOT status STREQUAL STATUS)
  string(APPEND problems "exit status ${status}, expected ${STATUS}\n")
endif()

# Every failing line is named on standard error as "<line> : <reason>".
file(STRINGS "${EXPECTED}" answers ENCODING UTF-8)
list(LENGTH answers count)
list(LENGTH lines line_count)
if(NOT count EQUAL line_count)
  string(APPEND problems "${line_count} input lines but ${count} expected answers\n")
elseif(count GREATER 0)
  math(EXPR last "${count} - 1")
  set(failures 0)
  foreach(i RANGE ${last})
    list(GET answers ${i} answer)
    list(GET lines ${i} line)
    if(answer STREQUAL "Error")
      math(EXPR failures "${failures} + 1")
      string(FIND "${errors}" "${line} : " at)
      if(at EQUAL -1)
        string(APPEND problems "no reason on standard error for line \"${line}\"\n")
      endif()
    endif()
  endforeach()
  if(failures GREATER 0 AND NOT STATUS EQUAL 1)
    string(APPEND problems "the golden file has Error lines, so the status must be 1\n")
  endif()
endif()

if(DEFINED ERRORS)
  file(READ "${ERRORS}" expected_errors)
  if(NOT errors STREQUAL expected_errors)
    string(APPEND problems "standard error differs\n--- expected\n${expected_errors}")
  endif()
endif()

if(problems)
  message(FATAL_ERROR "calc ${ARGS}\n${problems}--- standard error\n${errors}")
endif()
