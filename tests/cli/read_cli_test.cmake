# Runs "lapdesk-cli read" on a data file with a constant spectrum, whose
# inverse is 1 at t = 0 and exactly 0 everywhere else, and checks the exit
# codes, the written data file, the CSV table and the failure status.
# Usage: cmake -DCLI=<lapdesk-cli> -DWORK=<scratch folder> -P read_cli_test.cmake

file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}")
set(crlf "\r\n")
set(input "Word Number,  Tend      ,  Ganma ${crlf}")
string(APPEND input "    128    ,  5.000E+00 ,   5.0${crlf}")
string(APPEND input "   Real Part    ,   Image Part   ,     t      ,     y${crlf}")
foreach(k RANGE 127)
  string(APPEND input "   1.0000000E+00,   0.0000000E+00,   0.000E+00,   0.000E+00${crlf}")
endforeach()
file(WRITE "${WORK}/flat.Ldt" "${input}")

include(${CMAKE_CURRENT_LIST_DIR}/cli_checks.cmake)

# Success: data file, CSV and the status texts in order.
run_cli(0 read flat.Ldt -o result.Ldt --csv result.csv)
file(STRINGS "${WORK}/result.Ldt" lines)
list(LENGTH lines count)
if(NOT count EQUAL 131)
  message(FATAL_ERROR "result.Ldt has ${count} lines, expected 131")
endif()
file(READ "${WORK}/result.Ldt" bytes HEX)
expect_contains("${bytes}" "0d0a" "result.Ldt")
list(GET lines 3 first)
expect_contains("${first}" "   1.0000000E+00,   0.0000000E+00,   0.000E+00,   1.000E+00" "line 4")
file(STRINGS "${WORK}/result.csv" csv)
list(LENGTH csv rows)
list(GET csv 0 header)
list(GET csv 1 row0)
list(GET csv 2 row1)
if(NOT rows EQUAL 129 OR NOT header STREQUAL "t,y,re,im" OR NOT row0 STREQUAL "0,1,1,0"
   OR NOT row1 STREQUAL "0.0390625,0,1,0")
  message(FATAL_ERROR "unexpected CSV: ${rows} rows, '${header}', '${row0}', '${row1}'")
endif()
expect_contains("${err}" "データ読込み成功\n逆ラプラス変換中\n逆ＦＦＴ\n逆変換終了\nデータ書込み開始\nデータ書込み成功" "stderr")

# Without -o the result text goes to standard output.
run_cli(0 read flat.Ldt)
expect_contains("${out}" "    128    ,  5.000E+00 ,   5.0\n" "stdout")

# Failures of the read: exit 1 with the failure status and a reason.
run_cli(1 read flat.Ldt --column 4)
expect_contains("${err}" "データ読込み失敗" "stderr")
expect_contains("${err}" "開始列 4 は読めません" "stderr")
run_cli(1 read missing.Ldt)
expect_contains("${err}" "データ読込み失敗" "stderr")
run_cli(1 read flat.Ldt --param-line 1)

# Usage errors: exit 2.
run_cli(2 read flat.Ldt --column 0)
run_cli(2 read flat.Ldt --data-line x)
run_cli(2 read)
