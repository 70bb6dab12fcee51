# Runs the accuracy options of "lapdesk-cli invert" and "read": the accurate
# inversion's CSV with its status column, the FFT's error column, the summary
# and warning lines, --strict and --fast, the points left out, and the usage
# errors.
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
if(NOT header STREQUAL "t,y,error,status")
  message(FATAL_ERROR "dehoog CSV header: ${header}")
endif()
# exp(-0.01953125) = 0.98065824913953...; 11 digits must agree.
list(GET rows 1 first)
if(NOT first MATCHES "^0\\.01953125,0\\.98065824913[0-9]*,[0-9.e-]+,ok$")
  message(FATAL_ERROR "first dehoog row: ${first}")
endif()
expect_lacks("${err}" "warning:" "a plain first-order run")
expect_contains("${err}" "高精度逆変換の推定誤差: 最大 " "the accurate summary")

# The FFT reports its estimated error by default; --fast skips the band.
run_cli(0 invert "${EXAMPLES}/first-order.Prg" -N 128)
expect_contains("${err}" "減衰FFT の推定誤差: 最大 " "the FFT summary")
run_cli(0 invert "${EXAMPLES}/first-order.Prg" -N 128 --fast)
expect_lacks("${err}" "推定誤差" "--fast")

# sin 20t rings: at the defaults the FFT is off by more than 1 % of max |f|.
# A warning, exit status 0; with --strict, 3 and the table still written.
file(WRITE "${WORK}/ringing.Prg" "Return 20/(p^2+400)\r\nEnd\r\n")
run_cli(0 invert ringing.Prg)
expect_contains("${err}" "warning: 減衰FFT の推定誤差が max |f| の 1 % を超えています" "the large error")
run_cli(3 invert ringing.Prg --strict -o ringing.Ldt)
if(NOT EXISTS "${WORK}/ringing.Ldt")
  message(FATAL_ERROR "--strict must still write the result")
endif()
# The accurate inversion sums past the resonance: every point ok, no warning.
run_cli(0 invert ringing.Prg --method dehoog --strict)
expect_lacks("${out}" "not_converged" "ringing, accurate")
expect_lacks("${out}" "fft_mismatch" "ringing, accurate")

# The same into a file; -o writes the FFT's data file and is refused.
run_cli(0 invert "${EXAMPLES}/first-order.Prg" --method dehoog -N 128 --csv accurate.csv)
file(STRINGS "${WORK}/accurate.csv" lines)
list(LENGTH lines count)
if(NOT count EQUAL 128)
  message(FATAL_ERROR "accurate.csv has ${count} lines, expected 128")
endif()
run_cli(2 invert "${EXAMPLES}/first-order.Prg" --method dehoog -o accurate.Ldt)
run_cli(2 invert "${EXAMPLES}/first-order.Prg" --method talbot)

# Times off the FFT's grid: a log range over six decades, and a list in the
# order it was written. e^-t at t = 10 is 4.5399929762484854e-05.
run_cli(0 invert "${EXAMPLES}/first-order.Prg" --method dehoog --times 1e-3:1e3:7:log)
string(REGEX MATCHALL "[^\n]+" rows "${out}")
list(LENGTH rows count)
if(NOT count EQUAL 8)
  message(FATAL_ERROR "--times CSV has ${count} lines, expected the header and 7 rows")
endif()
list(GET rows 5 ten)
if(NOT ten MATCHES "^10,4\\.5399929[0-9]*e-05,[0-9.e-]+,ok$")
  message(FATAL_ERROR "--times row for t = 10: ${ten}")
endif()
file(WRITE "${WORK}/times.txt" "# t\n2\n0.5\n")
run_cli(0 invert "${EXAMPLES}/first-order.Prg" --method dehoog --times-file times.txt)
expect_contains("${out}" "t,y,error,status\n2,0.1353352832" "--times-file, first as written")
expect_contains("${out}" "\n0.5,0.6065306597" "--times-file, second as written")
file(WRITE "${WORK}/bad-times.txt" "1\n-2\n")
run_cli(2 invert "${EXAMPLES}/first-order.Prg" --method dehoog --times-file bad-times.txt)
expect_contains("${err}" "2 行目" "a bad time names its line")
# A tolerance: the FFT's N and gamma0 are chosen and said; one it cannot
# reach is said too, with the best it reached. The ends of f come with the
# summary.
run_cli(0 invert "${EXAMPLES}/first-order.Prg" --tol 1e-2 -o tol.Ldt)
expect_contains("${err}" "目標精度 0.01: N = " "a tolerance met")
expect_contains("${err}" "f(0+) = 1 (±" "the initial value")
expect_contains("${err}" "f(∞) = 0 (±" "the final value")
run_cli(0 invert "${EXAMPLES}/first-order.Prg" --tol 1e-12 -o tol.Ldt)
expect_contains("${err}" "目標精度 1e-12 に届きません: 最良は N = " "a tolerance not reached")
run_cli(2 invert "${EXAMPLES}/first-order.Prg" --tol 0)
run_cli(2 invert "${EXAMPLES}/first-order.Prg" --times 1:2:3)
expect_contains("${err}" "--method dehoog" "--times needs the accurate method")

# The FFT's band as the third column; the data file on standard output stays.
run_cli(0 invert "${EXAMPLES}/first-order.Prg" -N 128 --error --csv band.csv)
expect_contains("${out}" "変換関数作成プログラムリスト" "the result text")
file(STRINGS "${WORK}/band.csv" lines)
list(GET lines 0 header)
if(NOT header STREQUAL "t,y,error,re,im")
  message(FATAL_ERROR "--error CSV header: ${header}")
endif()

# A pole right of the sampling line: the warning, exit status unchanged. It
# speaks of the FFT; beside the accurate result it does not advise a larger
# gamma0, which would only make that one worse.
file(WRITE "${WORK}/pole.Prg" "Return 1/(p-2)\r\nEnd\r\n")
run_cli(0 invert pole.Prg -N 128)
expect_contains("${err}" "warning: F は Re s = γ0/T = 1 の上かその右に特異点" "the singularity warning")
run_cli(0 invert pole.Prg -N 128 --method dehoog)
expect_contains("${err}" "減衰FFT の f(t) は信用できません。高精度逆変換は自分の積分路で F を見" "accurate mode")
expect_lacks("${err}" "γ0 を大きく" "accurate mode")

# A program that fails on the first band's line: those points are left out
# and counted, with the band and the point named.
file(WRITE "${WORK}/partial.Prg" "If Real(p) > 20 Then\r\nx = 1/0\r\nEnd If\r\nReturn 1/(p+1)\r\nEnd\r\n")
run_cli(0 invert partial.Prg --method dehoog -N 128)
expect_contains("${err}" "warning: 高精度逆変換を適用できない 4 点を除きました (帯 1 (t = 0.0390625〜0.15625): s = " "the left-out points")
expect_contains("${err}" "0 で除算しました" "the program's reason")
string(REGEX MATCHALL "not_applicable" left "${out}")
list(LENGTH left count)
if(NOT count EQUAL 4)
  message(FATAL_ERROR "partial CSV marks ${count} rows not_applicable, expected 4")
endif()

# A program that never ends at an accurate-mode node stops with a reason.
file(WRITE "${WORK}/runaway.Prg" "If Real(p) > 20 Then\r\nDo\r\nLoop\r\nEnd If\r\nReturn 1/(p+1)\r\nEnd\r\n")
run_cli(0 invert runaway.Prg --method dehoog -N 128)
expect_contains("${err}" "文を超えても終わらない" "the runaway")

# File data has no F: no band.
run_cli(0 invert "${EXAMPLES}/first-order.Prg" -N 128 -o first-order.Ldt)
run_cli(2 read first-order.Ldt --error)
expect_contains("${err}" "--error はファイルのデータには使えません" "read --error")
