#include "transform/accurate/dehoog_fraction.h"

#include <cmath>

namespace lapdesk {

namespace {

using Cx = std::complex<double>;

bool Finite(const Cx& x) {
    return std::isfinite(x.real()) && std::isfinite(x.imag());
}

}  // namespace

// Quotient-difference table: e_0^(i) = 0, q_1^(i) = a_(i+1)/a_i, then
//   e_r^(i)     = q_r^(i+1) - q_r^(i) + e_(r-1)^(i+1)
//   q_(r+1)^(i) = q_r^(i+1) * e_r^(i+1) / e_r^(i)
// and d_0 = a_0, d_(2r-1) = -q_r^(0), d_(2r) = -e_r^(0).
DeHoogFraction::DeHoogFraction(std::span<const Cx> a) {
    // 2M+1 values make depth M; an even count leaves its last value out.
    const int m = static_cast<int>((a.size() - 1) / 2);
    const int n = 2 * m;  // highest coefficient index
    d_.assign(static_cast<std::size_t>(n) + 1, Cx{});
    d_[0] = a[0];
    std::vector<Cx> q(static_cast<std::size_t>(n));
    std::vector<Cx> e(static_cast<std::size_t>(n) + 1, Cx{});
    for (int i = 0; i < n; ++i)
        q[i] = a[i + 1] / a[i];
    for (int r = 1; r <= m; ++r) {
        d_[2 * r - 1] = -q[0];
        // e_r^(i) for i = 0..n-2r, overwriting e_(r-1).
        for (int i = 0; i <= n - 2 * r; ++i)
            e[i] = q[i + 1] - q[i] + e[i + 1];
        d_[2 * r] = -e[0];
        if (r < m) {
            for (int i = 0; i < n - 2 * r; ++i)
                q[i] = q[i + 1] * e[i + 1] / e[i];
        }
    }
    for (const Cx& d : d_) {
        if (!Finite(d)) ok_ = false;
    }
}

// Recurrences A_n = A_(n-1) + d_n z A_(n-2) (the same for B) from
// A_(-1) = 0, A_0 = d_0, B_(-1) = B_0 = 1; the last step uses the remainder
// R(z) = -h (1 - sqrt(1 + d_2m z / h^2)), h = (1 + (d_(2m-1) - d_2m) z) / 2,
// in place of d_2m z.
Cx DeHoogFraction::Evaluate(Cx z, int m) const {
    const int n = 2 * m;
    Cx a2{0.0}, a1 = d_[0];  // A_(n-2), A_(n-1)
    Cx b2{1.0}, b1{1.0};
    for (int k = 1; k < n; ++k) {
        const Cx a = a1 + d_[k] * z * a2;
        const Cx b = b1 + d_[k] * z * b2;
        a2 = a1;
        a1 = a;
        b2 = b1;
        b1 = b;
    }
    const Cx h = 0.5 * (1.0 + (d_[n - 1] - d_[n]) * z);
    const Cx remainder = -h * (1.0 - std::sqrt(1.0 + d_[n] * z / (h * h)));
    return (a1 + remainder * a2) / (b1 + remainder * b2);
}

}  // namespace lapdesk
