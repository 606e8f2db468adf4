// Inner products of the FIR filters and their scalar twins.
//
// Every kernel computes count outputs y[n] = sum over k < L of t[k] * x[n+k]
// (t holds the taps reversed, so the inner product runs forward over memory
// and x[n+L-1] meets the caller's tap 0). The SIMD kernels vectorise across
// outputs, not across taps: each lane forms its output by exactly the
// sequence of operations of the scalar twin, so every target, the twin and
// any split of the outputs among threads give bit-identical results.
#ifndef KELS_KERNELS_FIR_H
#define KELS_KERNELS_FIR_H

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace kels::kernels {

// Single precision by the rule of the one-sample step (scalar::sum_f32).
void fir_dot_f32(const float* t, std::size_t L, const float* x, float* y, std::size_t count);
// Double precision: one running sum, k = 0, 1, ..., L-1.
void fir_dot_f64(const double* t, std::size_t L, const double* x, double* y, std::size_t count);
// Complex single precision, interleaved (re, im): t holds 2L floats, x
// 2(count+L-1), y 2count. Each step adds (tr*xr - ti*xi, tr*xi + ti*xr).
void fir_dot_c32(const float* t, std::size_t L, const float* x, float* y, std::size_t count);

// Caller-held single-precision form where its sums are exact in double
// precision: y[n] = the sum over k < L of fl(taps[L-1-k] * x[n+k]) (each
// product rounded to single precision), formed in double precision and
// rounded to single once; taps are in the caller's order. Equal to the
// extended-precision rule of that form whenever every partial sum is exact
// in double precision (sum_exact_in_double tells), since both then round
// the same exact value once.
void fir_sum_exact_f32(const float* taps, std::size_t L, const float* x, float* y, std::size_t count);
// The same with two accumulators, products of magnitude at least 2^g in
// the first (see split_exact_in_double); the exact total a + b is rounded to
// single precision once (through round to odd in double precision).
void fir_sum_split_f32(const float* taps, std::size_t L, const float* x, float* y, std::size_t count, int g);

// Overlap-save spectral step on the half-length complex spectrum z of a
// real block (m = N/2 interleaved complex values, m a power of two >= 2):
// z'[k] = A[k] z[k] + B[k] conj(z[(m-k) mod m]), in place. The factors come
// as four tables of m complex-sized entries (see scalar::spectral), built
// by the filter from its taps' spectrum.
void fir_spectral_f32(const float* const tab[4], float* z, std::size_t m);
void fir_spectral_f64(const double* const tab[4], double* z, std::size_t m);

// Biased exponent fields of the nonzero values of v, lowest and highest
// (255 and 0 when all are zero), and whether every value is zero or normal
// (no subnormal, infinity or NaN). Found from the smallest nonzero and the
// largest magnitude bit patterns.
struct ExponentRange {
  std::uint32_t lo, hi;
  bool normal;
};
inline ExponentRange exponent_range_of(std::uint32_t min_nonzero, std::uint32_t max_bits) {
  const bool any = min_nonzero != 0xffffffffu;
  return {any ? min_nonzero >> 23 : 255u, max_bits >> 23,
          max_bits < 0x7f800000u && (!any || min_nonzero >= 0x00800000u)};
}
// SIMD scan (the twin is scalar::exponent_range).
ExponentRange exponent_range(const float* v, std::size_t n);

// Bounds on the products fl(t[k] * x[k']) of taps in exponent range a,
// whose magnitudes add up to at most taps_abs_sum, and data in range b:
// nonzero products are at least 2^(ea+eb) (e: lowest unbiased exponent), so
// all are multiples of 2^q, q = max(ea + eb - 23, -149); the magnitudes of
// any of them add up to at most sum |t| * 2^(Eb+1) * (1 + 2^-24) (E: highest
// exponent; the margin 2^-20 used also covers the rounding of
// taps_abs_sum). ok is false for zero, subnormal, infinite or NaN extremes
// and when a product could overflow.
struct ProductBounds {
  bool ok;
  int q;
  double bound;
};
inline ProductBounds product_bounds(ExponentRange a, double taps_abs_sum, ExponentRange b) {
  if (!a.normal || !b.normal || a.lo == 255 || b.lo == 255) return {false, 0, 0};
  if (static_cast<int>(a.hi + b.hi) - 254 + 2 > 127) return {false, 0, 0};
  const int lo = static_cast<int>(a.lo + b.lo) - 254;
  return {true, lo - 23 < -149 ? -149 : lo - 23,
          std::ldexp(taps_abs_sum * (1 + 0x1p-20), static_cast<int>(b.hi) - 127 + 1)};
}

// One double accumulator: every partial sum is exact when the bound is at
// most 2^(q+53).
inline bool sum_exact_in_double(ExponentRange a, double taps_abs_sum, ExponentRange b) {
  const ProductBounds p = product_bounds(a, taps_abs_sum, b);
  return p.ok && p.bound <= std::ldexp(1.0, p.q + 53);
}

// Two double accumulators split at 2^g, g = q + 53 - ceil(log2 L), for sums
// that extended precision (64-bit significands) forms exactly, i.e. with the
// bound at most 2^(q+64), which the rule's own result then equals rounded
// once: the products below 2^g (on the grid 2^q, at most L of them) sum
// exactly; those at or above it lie on the grid 2^(g-23) and sum exactly
// when the bound is at most 2^(g+30). Writes g when all hold.
inline bool split_exact_in_double(ExponentRange a, double taps_abs_sum, ExponentRange b, std::size_t L, int* g) {
  const ProductBounds p = product_bounds(a, taps_abs_sum, b);
  if (!p.ok || p.bound > std::ldexp(1.0, p.q + 64)) return false;
  int lg = 0;
  while ((std::size_t{1} << lg) < L) ++lg;
  const int split = p.q + 53 - lg;
  if (p.bound > std::ldexp(1.0, split + 30)) return false;
  *g = split;
  return true;
}

inline double abs_sum(const float* v, std::size_t n) {
  double s = 0;
  for (std::size_t i = 0; i < n; ++i) s += std::fabs(static_cast<double>(v[i]));
  return s;
}

namespace scalar {

// Magnitude bit patterns of v: the smallest nonzero one (all ones when there
// is none) and the largest.
inline void magnitude_bits(const float* v, std::size_t n, std::uint32_t* min_nonzero, std::uint32_t* max_bits) {
  std::uint32_t lo = 0xffffffffu, hi = 0;
  for (std::size_t i = 0; i < n; ++i) {
    std::uint32_t u;
    std::memcpy(&u, v + i, sizeof u);
    u &= 0x7fffffffu;
    hi = u > hi ? u : hi;
    const std::uint32_t g = u == 0 ? 0xffffffffu : u;
    lo = g < lo ? g : lo;
  }
  *min_nonzero = lo < *min_nonzero ? lo : *min_nonzero;
  *max_bits = hi > *max_bits ? hi : *max_bits;
}

inline ExponentRange exponent_range(const float* v, std::size_t n) {
  std::uint32_t lo = 0xffffffffu, hi = 0;
  magnitude_bits(v, n, &lo, &hi);
  return exponent_range_of(lo, hi);
}

// One output of the single-precision rule: below four taps the products are
// summed in extended precision; from four taps on, four running
// single-precision partial sums (partial sum j takes the products whose
// index is j modulo 4), the 2- and 1-element tails going to the first
// partial sums, combined as (s0 + s1) + (s2 + s3).
inline float sum_f32(const float* t, std::size_t L, const float* x) {
  if (L < 4) {
    long double s = 0;
    for (std::size_t k = 0; k < L; ++k) s += static_cast<long double>(t[k]) * x[k];
    return static_cast<float>(s);
  }
  float s0 = 0, s1 = 0, s2 = 0, s3 = 0;
  std::size_t k = 0;
  for (; k + 4 <= L; k += 4) {
    s0 = s0 + t[k] * x[k];
    s1 = s1 + t[k + 1] * x[k + 1];
    s2 = s2 + t[k + 2] * x[k + 2];
    s3 = s3 + t[k + 3] * x[k + 3];
  }
  if (L - k >= 2) {
    s0 = s0 + t[k] * x[k];
    s1 = s1 + t[k + 1] * x[k + 1];
    k += 2;
  }
  if (k < L) s0 = s0 + t[k] * x[k];
  return (s0 + s1) + (s2 + s3);
}

inline void fir_dot_f32(const float* t, std::size_t L, const float* x, float* y, std::size_t count) {
  for (std::size_t n = 0; n < count; ++n) y[n] = sum_f32(t, L, x + n);
}

// a + b (each exact) rounded once to single precision: the double sum s and
// its error e (two-sum) give a + b rounded to odd (s with its last bit
// forced to 1 by one step towards e when inexact), which has enough spare
// bits for the final rounding to equal the rounding of a + b.
inline float round_sum_to_float(double a, double b) {
  const double s = a + b;
  const double bb = s - a;
  const double e = (a - (s - bb)) + (b - bb);
  std::uint64_t u;
  std::memcpy(&u, &s, sizeof u);
  if (e != 0 && (u & 1) == 0) u = (e > 0) == (s > 0) ? u + 1 : u - 1;
  double r;
  std::memcpy(&r, &u, sizeof r);
  return static_cast<float>(r);
}

inline void fir_sum_split_f32(const float* taps, std::size_t L, const float* x, float* y, std::size_t count, int g) {
  const double split = std::ldexp(1.0, g);
  for (std::size_t n = 0; n < count; ++n) {
    double a = 0, b = 0;
    for (std::size_t k = 0; k < L; ++k) {
      const double p = static_cast<double>(static_cast<float>(taps[L - 1 - k] * x[n + k]));
      if (std::fabs(p) >= split) a = a + p;
      else b = b + p;
    }
    y[n] = round_sum_to_float(a, b);
  }
}

inline void fir_sum_exact_f32(const float* taps, std::size_t L, const float* x, float* y, std::size_t count) {
  for (std::size_t n = 0; n < count; ++n) {
    double s = 0;
    for (std::size_t k = 0; k < L; ++k) s = s + static_cast<double>(static_cast<float>(taps[L - 1 - k] * x[n + k]));
    y[n] = static_cast<float>(s);
  }
}

// The spectral step, part by part: with v = z[e] and w = z[(m-e) mod m],
//   z'[e] = (T0[e] v + T1[e] swap(v)) + (T2[e] w + T3[e] swap(w)),
// swap exchanging the real and imaginary parts, products taken part by part
// (tab[i] holds T_i[e] at 2e, 2e+1). T0, T1 carry A[e] and T2, T3 carry
// B[e] with the conjugation of w folded in. Entries e and m-e are updated
// together, so the step works in place; k runs over [from, to], to <= m/2.
template <class T>
inline void spectral_part(const T* const tab[4], std::size_t e, const T* v, const T* w, T* out) {
  for (int c = 0; c < 2; ++c) {
    const T a = tab[0][2 * e + c] * v[c] + tab[1][2 * e + c] * v[1 - c];
    const T b = tab[2][2 * e + c] * w[c] + tab[3][2 * e + c] * w[1 - c];
    out[c] = a + b;
  }
}

template <class T>
inline void spectral(const T* const tab[4], T* z, std::size_t m, std::size_t from, std::size_t to) {
  for (std::size_t k = from; k <= to; ++k) {
    const std::size_t j = (m - k) % m;
    const T v[2] = {z[2 * k], z[2 * k + 1]};
    const T w[2] = {z[2 * j], z[2 * j + 1]};
    T ok[2], oj[2];
    spectral_part(tab, k, v, w, ok);
    if (j != k) {
      spectral_part(tab, j, w, v, oj);
      z[2 * j] = oj[0];
      z[2 * j + 1] = oj[1];
    }
    z[2 * k] = ok[0];
    z[2 * k + 1] = ok[1];
  }
}

inline void fir_spectral_f32(const float* const tab[4], float* z, std::size_t m) { spectral(tab, z, m, 0, m / 2); }
inline void fir_spectral_f64(const double* const tab[4], double* z, std::size_t m) {
  spectral(tab, z, m, 0, m / 2);
}

template <class T>
void fir_dot_real(const T* t, std::size_t L, const T* x, T* y, std::size_t count) {
  for (std::size_t n = 0; n < count; ++n) {
    T acc = 0;
    for (std::size_t k = 0; k < L; ++k) acc = acc + t[k] * x[n + k];
    y[n] = acc;
  }
}

inline void fir_dot_c32(const float* t, std::size_t L, const float* x, float* y, std::size_t count) {
  for (std::size_t n = 0; n < count; ++n) {
    float re = 0, im = 0;
    for (std::size_t k = 0; k < L; ++k) {
      const float tr = t[2 * k], ti = t[2 * k + 1];
      const float xr = x[2 * (n + k)], xi = x[2 * (n + k) + 1];
      re = re + (tr * xr - ti * xi);
      im = im + (tr * xi + ti * xr);
    }
    y[2 * n] = re;
    y[2 * n + 1] = im;
  }
}

}  // namespace scalar
}  // namespace kels::kernels

#endif  // KELS_KERNELS_FIR_H
