# Runs the accuracy options of "lapdesk-cli invert" and "read": the accurate
# inversion's CSV, the FFT's error column, the warning lines, the points left
# out, and the usage errors.
# Usage: cmake -DCLI=<lapdesk-cli> -DEXAMPLES=<examples folder> -DWORK=<scratch> -P accuracy_verbs_test.cmake

file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}")

include(${CMAKE_CURRENT_LIST_DIR}/cli_checks.cmake)

# The accurate inversion on standard output: t = n*T/N for n = 1..N-1.
run_cli(0 invert "${EXAMPLES}/first-order.Prg" --method dehoog)
string(REGEX MATCHALL "[^\n]+" rows "${out}")
list(LENGTH rows count)
if(NOT count EQUAL 256)
  message(FATAL_ERROR "dehoog CSV has ${count} lines, expected the header and 255 rows")
endif()
list(GET rows 0 header)
if(NOT header STREQUAL "t,y,error")
  message(FATAL_ERROR "dehoog CSV header: ${header}")
endif()
# exp(-0.01953125) = 0.98065824913953...; 11 digits must agree.
list(GET rows 1 first)
if(NOT first MATCHES "^0\\.01953125,0\\.98065824913[0-9]*,[0-9.e-]+$")
  message(FATAL_ERROR "first dehoog row: ${first}")
endif()
expect_lacks("${err}" "warning:" "a plain first-order run")

# The same into a file; -o writes the FFT's data file and is refused.
run_cli(0 invert "${EXAMPLES}/first-order.Prg" --method dehoog -N 128 --csv accurate.csv)
file(STRINGS "${WORK}/accurate.csv" lines)
list(LENGTH lines count)
if(NOT count EQUAL 128)
  message(FATAL_ERROR "accurate.csv has ${count} lines, expected 128")
endif()
run_cli(2 invert "${EXAMPLES}/first-order.Prg" --method dehoog -o accurate.Ldt)
run_cli(2 invert "${EXAMPLES}/first-order.Prg" --method talbot)

# The FFT's band as the third column; the data file on standard output stays.
run_cli(0 invert "${EXAMPLES}/first-order.Prg" -N 128 --error --csv band.csv)
expect_contains("${out}" "変換関数作成プログラムリスト" "the result text")
file(STRINGS "${WORK}/band.csv" lines)
list(GET lines 0 header)
if(NOT header STREQUAL "t,y,error,re,im")
  message(FATAL_ERROR "--error CSV header: ${header}")
endif()

# A pole right of the sampling line: one warning line, exit status unchanged.
file(WRITE "${WORK}/pole.Prg" "Return 1/(p-2)\r\nEnd\r\n")
run_cli(0 invert pole.Prg -N 128)
expect_contains("${err}" "warning: F は Re s = γ0/T = 1 の上かその右に特異点" "the singularity warning")

# A program that fails on the first band's line: those points are left out
# and counted, with the band and the point named.
file(WRITE "${WORK}/partial.Prg" "If Real(p) > 50 Then\r\nx = 1/0\r\nEnd If\r\nReturn 1/(p+1)\r\nEnd\r\n")
run_cli(0 invert partial.Prg --method dehoog -N 128)
expect_contains("${err}" "warning: 高精度逆変換を適用できない 4 点を除きました (帯 1 (t = 0.0390625〜0.15625): s = " "the left-out points")
expect_contains("${err}" "0 で除算しました" "the program's reason")
string(REGEX MATCHALL "[^\n]+" rows "${out}")
list(LENGTH rows count)
if(NOT count EQUAL 124)
  message(FATAL_ERROR "partial CSV has ${count} lines, expected 124")
endif()

# A program that never ends at an accurate-mode node stops with a reason.
file(WRITE "${WORK}/runaway.Prg" "If Real(p) > 50 Then\r\nDo\r\nLoop\r\nEnd If\r\nReturn 1/(p+1)\r\nEnd\r\n")
run_cli(0 invert runaway.Prg --method dehoog -N 128)
expect_contains("${err}" "文を超えても終わらない" "the runaway")

# File data has no F: no band.
run_cli(0 invert "${EXAMPLES}/first-order.Prg" -N 128 -o first-order.Ldt)
run_cli(2 read first-order.Ldt --error)
expect_contains("${err}" "--error はファイルのデータには使えません" "read --error")
