// Vector kernel of the normal random generator and its scalar twin: the
// polar method's factor sqrt(-2 ln s / s) for a block of accepted s values.
// The logarithm is the library's own (below), evaluated with the same
// operations in every lane, so every SIMD target and the scalar path give
// the same bits.
#ifndef KELS_KERNELS_GENERATE_H
#define KELS_KERNELS_GENERATE_H

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace kels::kernels {

// f[i] = sqrt(-2 ln(s[i]) / s[i]) for 0 < s[i] <= 1 (normal numbers).
void gauss_factors(const double* s, double* f, std::size_t n);

namespace scalar {

// Natural logarithm of a positive normal double, to about one unit in the
// last place: s = 2^e m with m in (sqrt(1/2), sqrt(2)], ln m = 2 atanh(z) with
// z = (m - 1)/(m + 1), |z| < 0.1716, summed as 2z (1 + z^2/3 + ... + z^20/21)
// (the first omitted term is below 2^-55 relative), and e ln 2 added in two
// parts (the high part has few enough bits that e * ln2_hi is exact).
constexpr double kLn2Hi = 6.93147180369123816490e-01;
constexpr double kLn2Lo = 1.90821492927058770002e-10;
constexpr double kSqrt2 = 1.41421356237309514547;
// 1/(2k+1) for k = 10 down to 1.
constexpr double kAtanhCoef[10] = {1.0 / 21, 1.0 / 19, 1.0 / 17, 1.0 / 15, 1.0 / 13,
                                   1.0 / 11, 1.0 / 9,  1.0 / 7,  1.0 / 5,  1.0 / 3};

inline double log_positive(double s) {
  std::uint64_t bits;
  std::memcpy(&bits, &s, sizeof bits);
  // Exponent as a double: the biased exponent placed in the mantissa of 2^52.
  const std::uint64_t ebits = (bits >> 52) | 0x4330000000000000ull;
  double e;
  std::memcpy(&e, &ebits, sizeof e);
  e -= 4503599627371519.0;  // 2^52 + 1023
  const std::uint64_t mbits = (bits & 0x000FFFFFFFFFFFFFull) | 0x3FF0000000000000ull;
  double m;
  std::memcpy(&m, &mbits, sizeof m);
  if (m > kSqrt2) {
    m = m * 0.5;
    e = e + 1.0;
  }
  const double z = (m - 1.0) / (m + 1.0);
  const double z2 = z * z;
  double p = kAtanhCoef[0];
  for (int k = 1; k < 10; ++k) p = p * z2 + kAtanhCoef[k];
  p = p * z2 + 1.0;
  const double lm = (z + z) * p;
  return e * kLn2Hi + (e * kLn2Lo + lm);
}

inline double gauss_factor(double s) { return std::sqrt((-2.0 * log_positive(s)) / s); }

inline void gauss_factors(const double* s, double* f, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) f[i] = gauss_factor(s[i]);
}

}  // namespace scalar
}  // namespace kels::kernels

#endif  // KELS_KERNELS_GENERATE_H
