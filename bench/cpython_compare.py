#!/usr/bin/env python3
"""The CPython side of the program benchmarks, run by hand with the system's
python3 (and NumPy where installed):

  python3 bench/cpython_compare.py loop     # the 200-step loop for N = 1024
  python3 bench/cpython_compare.py series   # the 2000-term series for N = 1024,
                                            # then the inverse FFT (whole process;
                                            # a plain-Python FFT without NumPy)

The loop prints its own time; time the series as a whole process, beside
lapdesk-cli invert bench/series-2000.Prg -N 1024 -T 5 -g 5.
"""
import cmath
import math
import sys
import time


def sample_points(n, t_end=5.0, gamma0=5.0):
    gamma = gamma0 / t_end
    d_omega = 2 * math.pi / t_end
    return [complex(gamma, k * d_omega) for k in range(n // 2 + 1)]


def loop_f(p):
    s = 0
    for k in range(1, 201):
        s = s + 1 / ((p + k) * (p + k))
    return s


def series_f(p):
    s = 0
    for k in range(1, 2001):
        s = s + 1 / ((p + k) * (p + k))
    return s


def inverse_fft(spectrum):
    """Radix-2 inverse FFT in plain Python, for machines without NumPy."""
    n = len(spectrum)
    if n == 1:
        return list(spectrum)
    even = inverse_fft(spectrum[0::2])
    odd = inverse_fft(spectrum[1::2])
    out = [0j] * n
    for k in range(n // 2):
        t = cmath.exp(2j * math.pi * k / n) * odd[k]
        out[k] = (even[k] + t) / 2
        out[k + n // 2] = (even[k] - t) / 2
    return out


def invert(samples, n, t_end=5.0, gamma0=5.0):
    spectrum = [0j] * n
    scale = n / t_end
    for k, value in enumerate(samples):
        w = (math.cos(k * 2 * math.pi / n) + 1) * 0.5
        spectrum[k] = value * scale * w
        if 0 < k < n // 2:
            spectrum[n - k] = spectrum[k].conjugate()
    try:
        import numpy
        x = numpy.fft.ifft(numpy.array(spectrum)).real
    except ImportError:
        x = [v.real for v in inverse_fft(spectrum)]
    return [math.exp(k * gamma0 / n) * x[k] for k in range(n)]


def main():
    what = sys.argv[1] if len(sys.argv) > 1 else "loop"
    points = sample_points(1024)
    if what == "loop":
        best = math.inf
        for _ in range(5):
            start = time.perf_counter()
            for p in points:
                loop_f(p)
            best = min(best, time.perf_counter() - start)
        print(f"200-step loop, {len(points)} samples: {best * 1e3:.1f} ms (best of 5)")
    else:
        f = invert([series_f(p) for p in points], 1024)
        print(f[0])


if __name__ == "__main__":
    main()
