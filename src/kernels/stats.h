// Kernels of the statistics and search family: float reductions (sums, dot
// products, norms), extremes (min/max, first index of a value), elementwise
// max/min, range counts. Each dispatch wrapper below has a scalar twin in
// namespace scalar with the same contract, which the tests compare against
// on every SIMD target.
#ifndef KELS_KERNELS_STATS_H
#define KELS_KERNELS_STATS_H

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace kels::kernels {

// ---- Float reductions ----------------------------------------------------

// Sum of n scalars in the precision of the data, several vector
// accumulators. stride 1: out[0] is the sum; stride 2 (interleaved complex
// data, n scalars = 2 * elements): out[0] sums the even-indexed scalars,
// out[1] the odd-indexed ones.
void sum_lanes(const float* p, std::size_t n, std::size_t stride, float* out);
void sum_lanes(const double* p, std::size_t n, std::size_t stride, double* out);

// Sum and sum of squares of n floats, accumulated in double precision.
void sum_sq(const float* p, std::size_t n, double* s1, double* s2);

// Dot products accumulated in double precision (single-precision data are
// widened exactly before the multiply). rr: real x real; rc: real a times
// complex b (n elements of each), out = {re, im}; cc: complex x complex
// without conjugation.
double dot_rr(const float* a, const float* b, std::size_t n);
double dot_rr(const double* a, const double* b, std::size_t n);
void dot_rc(const float* a, const float* b, std::size_t n, double* out);
void dot_rc(const double* a, const double* b, std::size_t n, double* out);
void dot_cc(const float* a, const float* b, std::size_t n, double* out);
void dot_cc(const double* a, const double* b, std::size_t n, double* out);

// Norms of x = a (b null) or x = a - b, accumulated in double precision.
// NormKind::kInf: max |x|; kL1: sum |x|; kL2Sqr: sum x^2 (the caller takes
// the root). complex: a and b hold n interleaved pairs and |x| is the
// modulus sqrt(re^2 + im^2).
enum class NormKind { kInf, kL1, kL2Sqr };
double norm(const float* a, const float* b, std::size_t n, NormKind kind, bool complex);
double norm(const double* a, const double* b, std::size_t n, NormKind kind, bool complex);

// ---- Exact sums of 16-bit integers ----------------------------------------

// Sums of n scalars (stride 1), or of the even- and odd-indexed scalars
// separately (stride 2, interleaved complex data).
void sums_i16(const std::int16_t* p, std::size_t n, std::size_t stride, std::int64_t* out);
// Sum of squares (below 2^62 for any length that fits an int).
std::uint64_t sum_sq_i16(const std::int16_t* p, std::size_t n);
// Sum of products.
std::int64_t dot_i16(const std::int16_t* a, const std::int16_t* b, std::size_t n);

// ---- Extremes --------------------------------------------------------------

// Smallest and/or largest of n >= 1 elements (a null output is not
// computed). NaN data give unspecified results.
#define KELS_STATS_EXTREME_TYPES(X) \
  X(std::uint8_t) X(std::uint16_t) X(std::int16_t) X(std::uint32_t) X(std::int32_t) X(float) X(double)
#define KELS_DECLARE_EXTREME(T)                                                     \
  void min_max(const T* p, std::size_t n, T* mn, T* mx);                            \
  std::size_t find_first(const T* p, std::size_t n, T v);
KELS_STATS_EXTREME_TYPES(KELS_DECLARE_EXTREME)
#undef KELS_DECLARE_EXTREME

// Magnitudes as unsigned values of the same width: |-32768| = 32768.
void magnitude(const std::int16_t* p, std::uint16_t* out, std::size_t n);
void magnitude(const std::int32_t* p, std::uint32_t* out, std::size_t n);

// Largest value of the magnitude bits (sign cleared) of float data; a value
// above the largest finite float's bits marks an infinity or NaN.
std::uint32_t max_magnitude_bits(const float* p, std::size_t n);
std::uint64_t max_magnitude_bits(const double* p, std::size_t n);

// srcdst[i] = max (or min) of src[i] and srcdst[i].
void every(const std::int16_t* src, std::int16_t* srcdst, std::size_t n, bool take_max);
void every(const std::int32_t* src, std::int32_t* srcdst, std::size_t n, bool take_max);
void every(const float* src, float* srcdst, std::size_t n, bool take_max);

// Number of elements x with lo < x < hi.
std::size_t count_in_range(const std::int32_t* p, std::size_t n, std::int32_t lo, std::int32_t hi);

// ---- Extended-precision float sum (x87 long double, no SIMD) ---------------

// Blocks of eight scalars in eight interleaved lanes; lanes k and k + 4
// are added together in extended precision and accumulated into partial
// sum k (k < 4), then the scalar tail. Four partial sums plus the pair in
// flight fit the eight x87 registers without exchanges or spills, which
// keeps this faster than a plain single-precision loop. stride 2 returns
// the even- and odd-indexed sums separately (lanes k and k + 4 have the
// parity of k).
inline void sum_extended(const float* p, std::size_t n, std::size_t stride, long double* out) {
  long double s0 = 0, s1 = 0, s2 = 0, s3 = 0;
  std::size_t i = 0;
  for (; i + 8 <= n; i += 8) {
    // The x87 loop keeps few loads in flight; request the data 4 KiB ahead
    // (an address past the end is harmless to a prefetch, hence integers).
    __builtin_prefetch(reinterpret_cast<const void*>(reinterpret_cast<std::uintptr_t>(p + i) + 4096));
    s0 += static_cast<long double>(p[i]) + p[i + 4];
    s1 += static_cast<long double>(p[i + 1]) + p[i + 5];
    s2 += static_cast<long double>(p[i + 2]) + p[i + 6];
    s3 += static_cast<long double>(p[i + 3]) + p[i + 7];
  }
  long double t[2] = {0, 0};
  for (; i < n; ++i) t[i % 2] += p[i];  // blocks start at even indices
  if (stride == 1) {
    out[0] = ((s0 + s1) + (s2 + s3)) + (t[0] + t[1]);
  } else {
    out[0] = (s0 + s2) + t[0];
    out[1] = (s1 + s3) + t[1];
  }
}

// Sum and sum of squares in extended precision: two interleaved partial
// sums for each over blocks of four, then the scalar tail. A float's square
// is exact in the 64-bit significand.
inline void sum_sq_extended(const float* p, std::size_t n, long double* s1, long double* s2) {
  long double a0 = 0, a1 = 0, q0 = 0, q1 = 0;
  std::size_t i = 0;
  for (; i + 4 <= n; i += 4) {
    const long double x0 = p[i], x1 = p[i + 1], x2 = p[i + 2], x3 = p[i + 3];
    a0 += x0;
    q0 += x0 * x0;
    a1 += x1;
    q1 += x1 * x1;
    a0 += x2;
    q0 += x2 * x2;
    a1 += x3;
    q1 += x3 * x3;
  }
  for (; i < n; ++i) {
    const long double x = p[i];
    a0 += x;
    q0 += x * x;
  }
  *s1 = a0 + a1;
  *s2 = q0 + q1;
}

namespace scalar {

template <class T, class Acc>
void sum_lanes(const T* p, std::size_t n, std::size_t stride, Acc* out) {
  out[0] = 0;
  if (stride == 2) out[1] = 0;
  for (std::size_t i = 0; i < n; ++i) out[i % stride] += p[i];
}

inline void sum_sq(const float* p, std::size_t n, double* s1, double* s2) {
  double a = 0, q = 0;
  for (std::size_t i = 0; i < n; ++i) {
    const double x = p[i];
    a += x;
    q += x * x;
  }
  *s1 = a;
  *s2 = q;
}

template <class T>
double dot_rr(const T* a, const T* b, std::size_t n) {
  double s = 0;
  for (std::size_t i = 0; i < n; ++i) s += static_cast<double>(a[i]) * static_cast<double>(b[i]);
  return s;
}

template <class T>
void dot_rc(const T* a, const T* b, std::size_t n, double* out) {
  double re = 0, im = 0;
  for (std::size_t i = 0; i < n; ++i) {
    re += static_cast<double>(a[i]) * static_cast<double>(b[2 * i]);
    im += static_cast<double>(a[i]) * static_cast<double>(b[2 * i + 1]);
  }
  out[0] = re;
  out[1] = im;
}

template <class T>
void dot_cc(const T* a, const T* b, std::size_t n, double* out) {
  double re = 0, im = 0;
  for (std::size_t i = 0; i < n; ++i) {
    const double ar = a[2 * i], ai = a[2 * i + 1], br = b[2 * i], bi = b[2 * i + 1];
    re += ar * br - ai * bi;
    im += ar * bi + ai * br;
  }
  out[0] = re;
  out[1] = im;
}

template <class T>
double norm(const T* a, const T* b, std::size_t n, NormKind kind, bool complex) {
  double acc = 0;
  for (std::size_t i = 0; i < n; ++i) {
    double m2;
    if (complex) {
      const double re = static_cast<double>(a[2 * i]) - (b ? static_cast<double>(b[2 * i]) : 0.0);
      const double im = static_cast<double>(a[2 * i + 1]) - (b ? static_cast<double>(b[2 * i + 1]) : 0.0);
      m2 = re * re + im * im;
    } else {
      const double x = static_cast<double>(a[i]) - (b ? static_cast<double>(b[i]) : 0.0);
      m2 = x * x;
    }
    switch (kind) {
      case NormKind::kInf: acc = m2 > acc ? m2 : acc; break;
      case NormKind::kL1: acc += std::sqrt(m2); break;
      case NormKind::kL2Sqr: acc += m2; break;
    }
  }
  return kind == NormKind::kInf ? std::sqrt(acc) : acc;
}

inline void sums_i16(const std::int16_t* p, std::size_t n, std::size_t stride, std::int64_t* out) {
  std::int64_t s[2] = {0, 0};
  for (std::size_t i = 0; i < n; ++i) s[i % stride] += p[i];
  out[0] = s[0];
  if (stride == 2) out[1] = s[1];
}

inline std::uint64_t sum_sq_i16(const std::int16_t* p, std::size_t n) {
  std::uint64_t s = 0;
  for (std::size_t i = 0; i < n; ++i) s += static_cast<std::uint64_t>(std::int32_t{p[i]} * p[i]);
  return s;
}

inline std::int64_t dot_i16(const std::int16_t* a, const std::int16_t* b, std::size_t n) {
  std::int64_t s = 0;
  for (std::size_t i = 0; i < n; ++i) s += std::int32_t{a[i]} * b[i];
  return s;
}

template <class T>
void min_max(const T* p, std::size_t n, T* mn, T* mx) {
  T lo = p[0], hi = p[0];
  for (std::size_t i = 1; i < n; ++i) {
    if (p[i] < lo) lo = p[i];
    if (p[i] > hi) hi = p[i];
  }
  if (mn) *mn = lo;
  if (mx) *mx = hi;
}

template <class T>
std::size_t find_first(const T* p, std::size_t n, T v) {
  for (std::size_t i = 0; i < n; ++i) {
    if (p[i] == v) return i;
  }
  return n;
}

template <class S, class U>
void magnitude(const S* p, U* out, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) {
    out[i] = p[i] < 0 ? static_cast<U>(U{0} - static_cast<U>(p[i])) : static_cast<U>(p[i]);
  }
}

template <class U, class T>
U max_magnitude_bits(const T* p, std::size_t n) {
  constexpr U mask = static_cast<U>(~U{0}) >> 1;
  U m = 0;
  for (std::size_t i = 0; i < n; ++i) {
    U u;
    std::memcpy(&u, &p[i], sizeof u);
    u &= mask;
    if (u > m) m = u;
  }
  return m;
}

template <class T>
void every(const T* src, T* srcdst, std::size_t n, bool take_max) {
  for (std::size_t i = 0; i < n; ++i) {
    const bool src_wins = take_max ? src[i] > srcdst[i] : src[i] < srcdst[i];
    if (src_wins) srcdst[i] = src[i];
  }
}

inline std::size_t count_in_range(const std::int32_t* p, std::size_t n, std::int32_t lo, std::int32_t hi) {
  std::size_t c = 0;
  for (std::size_t i = 0; i < n; ++i) c += (p[i] > lo && p[i] < hi) ? 1 : 0;
  return c;
}

}  // namespace scalar
}  // namespace kels::kernels

#endif  // KELS_KERNELS_STATS_H
