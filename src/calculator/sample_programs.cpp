#include "calculator/sample_programs.h"

namespace lapdesk {

const std::vector<SampleProgram>& GeneralSamples() {
    static const std::vector<SampleProgram> samples{
        {"For ループ: 1 から 100 までの和",
         "' 1 から 100 までの和\n"
         "' 結果: 5050\n"
         "s = 0\n"
         "For i = 1 To 100\n"
         "  s = s + i\n"
         "Next\n"
         "Return s\n"
         "End\n"},
        {"関数: 階乗",
         "' 関数 Fact で 10 の階乗を求める\n"
         "' 結果: 3628800\n"
         "Return Fact(10)\n"
         "End\n"
         "\n"
         "Function Fact(n)\n"
         "  f = 1\n"
         "  For i = 2 To n\n"
         "    f = f * i\n"
         "  Next\n"
         "  Return f\n"
         "End Function\n"},
        {"Do ループ: ニュートン法",
         "' ニュートン法で z^3 = 1 の複素根を求める\n"
         "' 結果: -0.5+0.866025j (6桁表示)\n"
         "z = Cpx(-1, 1)\n"
         "Do\n"
         "  d = (z^3 - 1) / (3 * z^2)\n"
         "  z = z - d\n"
         "Loop Until Abs(d) < 0.000000000001\n"
         "Return z\n"
         "End\n"},
        {"If 文: 二次方程式",
         "' a x^2 + b x + c = 0 の根の一つ（複素数も可）\n"
         "' 結果: -1+2j\n"
         "a = 1 : b = 2 : c = 5\n"
         "d = b^2 - 4 * a * c\n"
         "If Abs(d) = 0 Then\n"
         "  x = -b / (2 * a)\n"
         "Else\n"
         "  x = (-b + Sqrt(d)) / (2 * a)\n"
         "End If\n"
         "Return x\n"
         "End\n"},
        {"Select Case: 場合分け",
         "' 1 から 10 までの奇数の個数を数える\n"
         "' 結果: 5\n"
         "n = 0\n"
         "For i = 1 To 10\n"
         "  Select Case i\n"
         "  Case 1, 3, 5, 7, 9\n"
         "    n = n + 1\n"
         "  Case Else\n"
         "  End Select\n"
         "Next\n"
         "Return n\n"
         "End\n"},
        {"配列: 連立方程式",
         "' 2x + y = 3, x + 3y = 5 を Gauss で解き y を返す\n"
         "' 結果: 1.4\n"
         "Dim A(1, 1), B(1), X(1)\n"
         "A(0, 0) = 2 : A(0, 1) = 1\n"
         "A(1, 0) = 1 : A(1, 1) = 3\n"
         "B(0) = 3 : B(1) = 5\n"
         "X = Gauss(A, B)\n"
         "Return X(1)\n"
         "End\n"},
    };
    return samples;
}

const std::vector<SampleProgram>& TransformSamples() {
    static const std::vector<SampleProgram> samples{
        {"1/(p+1) → exp(-t)",
         "' F(p) = 1/(p+1)   f(t) = exp(-t)\n"
         "' p=1 のとき 結果: 0.5\n"
         "Return 1 / (p + 1)\n"
         "End\n"},
        {"1/p^2 → t",
         "' F(p) = 1/p^2   f(t) = t\n"
         "' p=1 のとき 結果: 1\n"
         "Return 1 / p^2\n"
         "End\n"},
        {"1/(p^2+1) → sin t",
         "' F(p) = 1/(p^2+1)   f(t) = sin t\n"
         "' p=1 のとき 結果: 0.5\n"
         "Return 1 / (p^2 + 1)\n"
         "End\n"},
        {"減衰振動 ω/((p+a)^2+ω^2)",
         "' F(p) = w/((p+a)^2+w^2)   f(t) = exp(-a t) sin(w t)\n"
         "' p=1 のとき 結果: 0.32\n"
         "a = 0.5 : w = 2\n"
         "Return w / ((p + a)^2 + w^2)\n"
         "End\n"},
        {"むだ時間 exp(-p)/p → 単位ステップ",
         "' F(p) = exp(-p)/p   f(t) = 1 (t > 1), 0 (t < 1)\n"
         "' p=1 のとき 結果: 0.367879\n"
         "Return Exp(-p) / p\n"
         "End\n"},
        {"関数で定義: 一次遅れ系",
         "' 伝達関数 G(p) = K/(T p + 1) のステップ応答 F(p) = G(p)/p\n"
         "' f(t) = K (1 - exp(-t/T))\n"
         "' p=1 のとき 結果: 0.5\n"
         "Return G(p) / p\n"
         "End\n"
         "\n"
         "Function G(s)\n"
         "  K = 2 : T = 3\n"
         "  Return K / (T * s + 1)\n"
         "End Function\n"},
    };
    return samples;
}

}  // namespace lapdesk
