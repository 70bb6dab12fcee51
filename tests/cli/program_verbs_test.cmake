# Runs "lapdesk-cli run" and "lapdesk-cli invert" on the sample programs and
# on broken ones, and checks exit codes, the answer text, the written data
# file and the messages.
# Usage: cmake -DCLI=<lapdesk-cli> -DEXAMPLES=<examples folder> -DWORK=<scratch> -P program_verbs_test.cmake

file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}")

include(${CMAKE_CURRENT_LIST_DIR}/cli_checks.cmake)

# run: the answer field, globals from --let, messages and exit codes.
run_cli(0 run "${EXAMPLES}/basel-sum.Prg")
expect_contains("${out}" "Result=1.64393456668156" "run output")
run_cli(0 run --rounded --let "p=1+2j" "${EXAMPLES}/first-order.Prg")
expect_contains("${out}" "Result=0.25-0.25j" "run --let output")
run_cli(1 run "${EXAMPLES}/first-order.Prg")
expect_contains("${out}" "End of Analize Page Number=1" "run without p")
expect_contains("${err}" "Main: 1行目実行エラー" "run message")
file(WRITE "${WORK}/no-next.Prg" "For i = 1 To 3\r\nx = i\r\nEnd\r\n")
run_cli(1 run no-next.Prg)
expect_contains("${err}" "Main: 1行目解析エラー" "analysis message")
expect_contains("${err}" "Nextが無い" "analysis reason")
run_cli(2 run missing.Prg)

# invert: the program list follows the table; bad parameters are usage errors.
run_cli(0 invert "${EXAMPLES}/first-order.Prg" -N 128 -o first-order.Ldt --csv first-order.csv)
expect_contains("${err}" "データ作成成功" "invert status")
file(STRINGS "${WORK}/first-order.Ldt" lines ENCODING UTF-8)
list(LENGTH lines count)
if(count LESS 131)
  message(FATAL_ERROR "first-order.Ldt has ${count} lines, expected the table of 131 and the program")
endif()
file(READ "${WORK}/first-order.Ldt" ldt HEX)
# "変換関数作成プログラムリスト" in cp932 begins with 95CF 8AB7 (変換).
expect_contains("${ldt}" "95cf8ab7" "the program list title in cp932")
file(STRINGS "${WORK}/first-order.csv" rows)
list(GET rows 20 row)
string(REPLACE "," ";" fields "${row}")
list(GET fields 0 t)
list(GET fields 1 y)
# Row 20 is t = 19*5/128 = 0.742, where exp(-t) = 0.476.
if(NOT y MATCHES "^0\\.4[678]")
  message(FATAL_ERROR "f(${t}) = ${y}, expected about exp(-${t})")
endif()
run_cli(2 invert "${EXAMPLES}/first-order.Prg" -N 100)
run_cli(2 invert "${EXAMPLES}/first-order.Prg" -T -1)
file(WRITE "${WORK}/fails.Prg" "Return 1/0\r\nEnd\r\n")
run_cli(1 invert fails.Prg -N 128)
expect_contains("${err}" "数値計算実行時エラー" "invert failure status")
expect_contains("${err}" "k = 0 (p = 1) でプログラムが失敗しました" "invert failure point")
expect_contains("${err}" "(Main: 1行目)" "invert failure line")
# A gamma0 too large for the inversion fails with the point it overflowed at.
run_cli(1 invert "${EXAMPLES}/first-order.Prg" -g 800 -o big.Ldt)
expect_contains("${err}" "k = 228 (t = 4.45312)" "invert overflow point")
if(EXISTS "${WORK}/big.Ldt")
  message(FATAL_ERROR "a failed inversion wrote big.Ldt")
endif()
