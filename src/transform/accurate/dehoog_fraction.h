// The continued fraction of de Hoog, Knight and Stokes that sums the Fourier
// series a_0 + a_1 z + a_2 z^2 + ... from its first 2M+1 coefficients: the
// quotient-difference table gives the fraction's coefficients d_0..d_2M once,
// and the fraction, closed by its accelerated remainder, is then evaluated at
// any z and at any depth up to M.
#pragma once

#include <complex>
#include <span>
#include <vector>

namespace lapdesk {

class DeHoogFraction {
  public:
    // a holds a_0..a_2M (a_0 already halved), 2M+1 >= 3 values; of an even
    // count the last value is left out.
    explicit DeHoogFraction(std::span<const std::complex<double>> a);

    // False when the quotient-difference table broke down (a zero divisor or
    // a value that is not finite); Evaluate is then meaningless.
    bool ok() const { return ok_; }
    int Depth() const { return static_cast<int>(d_.size() / 2); }

    // The fraction cut after d_2m (1 <= m <= Depth()) with the remainder
    // that stands for the rest.
    std::complex<double> Evaluate(std::complex<double> z, int m) const;

  private:
    std::vector<std::complex<double>> d_;
    bool ok_ = true;
};

}  // namespace lapdesk
