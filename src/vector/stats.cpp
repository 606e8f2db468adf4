// Reductions: sum, mean, standard deviation, norms of a vector and of the
// difference of two vectors, dot products, sum of logarithms and sliding
// window sums.
//
// Integer data are accumulated exactly (64-bit sums; 128-bit for sums of
// 32 x 32-bit products) and scaled once at the end. Single-precision float
// sums take a hint: 1 selects the vector kernel in the data's precision,
// anything else the extended-precision (x87 long double) accumulation.
#include <cmath>
#include <cstdint>
#include <limits>

#include "frame/common.h"
#include "frame/scale.h"
#include "kernels/stats.h"
#include "kernels/stats_int.h"

namespace kels {
namespace {

using namespace kels::stats;
namespace kk = kels::kernels;

constexpr int kHintFast = 1;

// Writes the parts v[0] (and v[1] for a complex R) to *out.
template <class R, class V>
void put_parts(R* out, const V* v) {
  for (std::size_t c = 0; c < width<R>; ++c) scalars(out)[c] = static_cast<part_t<R>>(v[c]);
}

// Exact per-part sums of integer data (16-bit data in the vector kernel).
template <class T>
void int_sums(const T* src, std::size_t n, std::int64_t* out) {
  const auto* p = scalars(src);
  out[1] = 0;
  if constexpr (std::is_same_v<part_t<T>, Kel16s>) {
    kk::sums_i16(p, n * width<T>, width<T>, out);
  } else {
    std::int64_t s0 = 0, s1 = 0;
    for (std::size_t i = 0; i < n; ++i) {
      s0 += p[width<T> * i];
      if constexpr (is_complex<T>) s1 += p[2 * i + 1];
    }
    out[0] = s0;
    out[1] = s1;
  }
}

// Per-part sums of float data: the extended accumulation for single
// precision unless the fast hint is given; doubles always use the vector
// kernel in double precision.
template <class T>
void float_sums(const T* src, std::size_t n, int hint, long double* out) {
  const auto* p = scalars(src);
  const std::size_t stride = width<T>;
  if constexpr (std::is_same_v<part_t<T>, float>) {
    if (hint != kHintFast) {
      kk::sum_extended(p, n * stride, stride, out);
      return;
    }
  }
  part_t<T> s[2] = {0, 0};
  kk::sum_lanes(p, n * stride, stride, s);
  out[0] = s[0];
  out[1] = s[1];
}

// ---- Sum

template <class T, class R>
KelStatus sum_int(const T* src, int len, R* out, int sf) {
  KELS_REQUIRE_PTRS(src, out);
  KELS_REQUIRE_LEN(len);
  std::int64_t s[2];
  int_sums(src, static_cast<std::size_t>(len), s);
  // Saturating straight to 16 bits gives the same value as saturating to
  // 32 bits first and then to 16.
  for (std::size_t c = 0; c < width<R>; ++c) scalars(out)[c] = scale_wide<part_t<R>>(s[c], sf);
  return kelStsOk;
}

// Sum (kMean false) or mean of float data; the mean divides the sum in
// the precision it was accumulated in, before the one rounding.
template <bool kMean, class T>
KelStatus sum_float(const T* src, int len, T* out, int hint) {
  KELS_REQUIRE_PTRS(src, out);
  KELS_REQUIRE_LEN(len);
  long double s[2] = {0, 0};
  float_sums(src, static_cast<std::size_t>(len), hint, s);
  if (kMean) {
    for (auto& v : s) v /= static_cast<long double>(len);
  }
  put_parts(out, s);
  return kelStsOk;
}

// ---- Mean

// S * 2^-sf / n rounded to nearest (ties to even, the default rounding
// mode) and saturated. For 16-bit results a scale factor of 16 or more
// gives 0 (handled by the caller without reading the data) and one below
// -14 gives the bound of the sum's sign: the mean of 16-bit data times
// 2^15 or more is out of range for every non-zero sum of useful length.
template <class P>
P mean_scaled(std::int64_t s, std::size_t n, int sf) {
  long double q;
  if constexpr (sizeof(P) == 2) {
    if (sf < -14) return s > 0 ? std::numeric_limits<P>::max() : (s < 0 ? std::numeric_limits<P>::min() : 0);
    // |s| < 2^47 and sf >= -14, so the doubled sum stays below 2^61; the
    // doubled divisor (sf < 16) below 2^47. Both are exact long doubles.
    if (sf < 0) {
      q = static_cast<long double>(s * (std::int64_t{1} << -sf)) / static_cast<long double>(n);
    } else {
      q = static_cast<long double>(s) / static_cast<long double>(static_cast<std::int64_t>(n) << sf);
    }
  } else {
    // |mean| <= 2^31: beyond 2^-64 .. 2^64 the result is 0 or saturated.
    const int e = sf < -64 ? -64 : (sf > 64 ? 64 : sf);
    q = std::ldexp(static_cast<long double>(s), -e) / static_cast<long double>(n);
  }
  constexpr long double lo = std::numeric_limits<P>::min(), hi = std::numeric_limits<P>::max();
  if (q <= lo) return std::numeric_limits<P>::min();
  if (q >= hi) return std::numeric_limits<P>::max();
  return static_cast<P>(std::nearbyint(q));
}

template <class T>
KelStatus mean_int(const T* src, int len, T* out, int sf) {
  KELS_REQUIRE_PTRS(src, out);
  KELS_REQUIRE_LEN(len);
  using P = part_t<T>;
  if (sizeof(P) == 2 && sf >= 16) {
    const std::int64_t zero[2] = {0, 0};
    put_parts(out, zero);
    return kelStsOk;
  }
  const std::size_t n = static_cast<std::size_t>(len);
  std::int64_t s[2];
  int_sums(src, n, s);
  for (std::size_t c = 0; c < width<T>; ++c) scalars(out)[c] = mean_scaled<P>(s[c], n, sf);
  return kelStsOk;
}

// ---- Standard deviation (unbiased: divisor n - 1)

// From the exact sums: var = (n * S2 - S1^2) / (n (n - 1)); the numerator
// is formed exactly in 128 bits (it is never negative) and rounded once.
template <class R>
KelStatus stddev_int(const Kel16s* src, int len, R* out, int sf) {
  KELS_REQUIRE_PTRS(src, out);
  KELS_REQUIRE_LEN(len);
  if (len < 2) return kelStsBadLength;
  const std::size_t n = static_cast<std::size_t>(len);
  std::int64_t s1 = 0;
  kk::sums_i16(src, n, 1, &s1);
  const std::uint64_t s2 = kk::sum_sq_i16(src, n);
  const std::uint64_t a1 = static_cast<std::uint64_t>(s1 < 0 ? -s1 : s1);
  Wide num = Wide::from_u128(mul(n, s2));
  num -= Wide::from_u128(mul(a1, a1));
  const long double var = num.to_long_double() / (static_cast<long double>(n) * static_cast<long double>(n - 1));
  const int e = sf < -128 ? -128 : (sf > 128 ? 128 : sf);
  const long double sd = std::ldexp(std::sqrt(var), -e);
  constexpr long double hi = std::numeric_limits<R>::max();
  *out = sd >= hi ? std::numeric_limits<R>::max() : static_cast<R>(std::nearbyint(sd));
  return kelStsOk;
}

template <class F>
F unbiased_sd(F n, F s1, F s2) {
  const F var = (n * s2 - s1 * s1) / (n * (n - 1));
  return var < 0 ? F(0) : std::sqrt(var);
}

KelStatus stddev_32f(const Kel32f* src, int len, Kel32f* out, int hint) {
  KELS_REQUIRE_PTRS(src, out);
  KELS_REQUIRE_LEN(len);
  if (len < 2) return kelStsBadLength;
  const std::size_t n = static_cast<std::size_t>(len);
  if (hint == kHintFast) {
    double s1, s2;
    kk::sum_sq(src, n, &s1, &s2);
    *out = static_cast<float>(unbiased_sd<double>(static_cast<double>(n), s1, s2));
  } else {
    long double s1, s2;
    kk::sum_sq_extended(src, n, &s1, &s2);
    *out = static_cast<float>(unbiased_sd<long double>(static_cast<long double>(n), s1, s2));
  }
  return kelStsOk;
}

// Double data: two passes in extended precision (deviations from the mean,
// with the first-order correction for the rounding of the mean), since the
// one-pass formula would lose the low half of a double's significand to
// cancellation.
KelStatus stddev_64f(const Kel64f* src, int len, Kel64f* out) {
  KELS_REQUIRE_PTRS(src, out);
  KELS_REQUIRE_LEN(len);
  if (len < 2) return kelStsBadLength;
  const std::size_t n = static_cast<std::size_t>(len);
  long double s = 0;
  for (std::size_t i = 0; i < n; ++i) s += src[i];
  const long double mean = s / static_cast<long double>(n);
  long double d1 = 0, d2 = 0;
  for (std::size_t i = 0; i < n; ++i) {
    const long double d = src[i] - mean;
    d1 += d;
    d2 += d * d;
  }
  const long double var = (d2 - d1 * d1 / static_cast<long double>(n)) / static_cast<long double>(n - 1);
  *out = static_cast<double>(var < 0 ? 0.0L : std::sqrt(var));
  return kelStsOk;
}

// ---- Norms

enum class Norm { kInf, kL1, kL2, kL2Sqr };

// Exact norms of 16-bit data (b null) or of the difference a - b, whose
// magnitudes reach 65535. Inf: the largest magnitude; L1: the sum of
// magnitudes, in blocks of 65536 whose 32-bit sums cannot overflow
// (65536 * 65535 < 2^32); L2 and L2Sqr: the sum of squares, below 2^64.
template <Norm K>
std::uint64_t int_norm(const Kel16s* a, const Kel16s* b, std::size_t n) {
  auto mag = [&](std::size_t i) -> std::uint32_t {
    const std::int32_t d = b ? static_cast<std::int32_t>(a[i]) - b[i] : a[i];
    return static_cast<std::uint32_t>(d < 0 ? -d : d);
  };
  if constexpr (K == Norm::kInf) {
    if (b == nullptr) {
      Kel16s mn, mx;
      kk::min_max(a, n, &mn, &mx);
      const std::int32_t m = -static_cast<std::int32_t>(mn);
      return static_cast<std::uint64_t>(m > mx ? m : mx);
    }
    std::uint32_t m = 0;
    for (std::size_t i = 0; i < n; ++i) m = mag(i) > m ? mag(i) : m;
    return m;
  } else if constexpr (K == Norm::kL1) {
    constexpr std::size_t kBlock = 65536;
    std::uint64_t total = 0;
    for (std::size_t i0 = 0; i0 < n; i0 += kBlock) {
      const std::size_t end = n - i0 < kBlock ? n : i0 + kBlock;
      std::uint32_t s = 0;
      for (std::size_t i = i0; i < end; ++i) s += mag(i);
      total += s;
    }
    return total;
  } else {
    if (b == nullptr) return kk::sum_sq_i16(a, n);
    std::uint64_t total = 0;
    for (std::size_t i = 0; i < n; ++i) {
      const std::uint64_t m = mag(i);
      total += m * m;
    }
    return total;
  }
}

// Norm_Inf to 32 bits: the shifts truncate (no rounding), 32 or more gives
// 0, and a left shift (clamped at 31) saturates.
Kel32s inf_norm_scaled(std::uint64_t m, int sf) {
  if (sf >= 32) return 0;
  if (sf >= 0) return static_cast<Kel32s>(m >> sf);
  const int s = -sf > 31 ? 31 : -sf;
  const std::uint64_t v = m << s;
  return v > 2147483647u ? 2147483647 : static_cast<Kel32s>(v);
}

// L2 to 32 bits: the root of the exact sum of squares in extended
// precision, scaled in floating point and rounded in the current rounding
// mode (nearest-even by default).
Kel32s l2_norm_scaled(std::uint64_t sq, int sf) {
  const int e = sf < -128 ? -128 : (sf > 128 ? 128 : sf);
  const long double v = std::ldexp(std::sqrt(static_cast<long double>(sq)), -e);
  if (v >= 2147483647.0L) return 2147483647;
  return static_cast<Kel32s>(std::nearbyint(v));
}

template <Norm K, class TS, class TR>
KelStatus norm_family(const TS* a, const TS* b, int len, TR* out, int sf) {
  const std::size_t n = static_cast<std::size_t>(len);
  if constexpr (is_float<TS>) {
    constexpr kk::NormKind kind = K == Norm::kInf ? kk::NormKind::kInf
                                  : K == Norm::kL1 ? kk::NormKind::kL1 : kk::NormKind::kL2Sqr;
    double v = kk::norm(scalars(a), b ? scalars(b) : nullptr, n, kind, is_complex<TS>);
    if (K == Norm::kL2) v = std::sqrt(v);
    *out = static_cast<TR>(v);
  } else {
    const std::uint64_t m = int_norm<K>(a, b, n);
    if constexpr (std::is_same_v<TR, Kel32f>) {
      *out = K == Norm::kL2 ? static_cast<float>(std::sqrt(static_cast<long double>(m))) : static_cast<float>(m);
    } else if constexpr (std::is_same_v<TR, Kel64s>) {
      *out = scale_wide<Kel64s>(Wide::from_unsigned(m), sf);
    } else if constexpr (K == Norm::kInf) {
      *out = inf_norm_scaled(m, sf);
    } else if constexpr (K == Norm::kL2) {
      *out = l2_norm_scaled(m, sf);
    } else {
      *out = scale_wide<Kel32s>(Wide::from_unsigned(m), sf);
    }
  }
  return kelStsOk;
}

template <Norm K, class TS, class TR>
KelStatus norm_one(const TS* src, int len, TR* out, int sf) {
  KELS_REQUIRE_PTRS(src, out);
  KELS_REQUIRE_LEN(len);
  return norm_family<K>(src, static_cast<const TS*>(nullptr), len, out, sf);
}

template <Norm K, class TS, class TR>
KelStatus norm_diff(const TS* a, const TS* b, int len, TR* out, int sf) {
  KELS_REQUIRE_PTRS(a, b, out);
  KELS_REQUIRE_LEN(len);
  return norm_family<K>(a, b, len, out, sf);
}

// ---- Dot products (no conjugation). Float data: double accumulation in
// the vector kernels. Integer data: exact accumulation; 16-bit products in
// 64 bits, products involving 32-bit data in 128 bits. The scaled results
// clamp the scale factor to -31..31 first.

template <class A, class B, class R>
KelStatus dot_family(const A* a, const B* b, int len, R* out, int sf) {
  KELS_REQUIRE_PTRS(a, b, out);
  KELS_REQUIRE_LEN(len);
  static_assert(!is_complex<A> || is_complex<B>, "a complex first operand takes a complex second");
  const std::size_t n = static_cast<std::size_t>(len);
  const auto* pa = scalars(a);
  const auto* pb = scalars(b);
  if constexpr (is_float<A>) {
    double v[2] = {0, 0};
    if constexpr (!is_complex<B>) {
      v[0] = kk::dot_rr(pa, pb, n);
    } else if constexpr (!is_complex<A>) {
      kk::dot_rc(pa, pb, n, v);
    } else {
      kk::dot_cc(pa, pb, n, v);
    }
    put_parts(out, v);
  } else {
    constexpr bool kWide = sizeof(part_t<A>) == 4 || sizeof(part_t<B>) == 4;
    using Acc = std::conditional_t<kWide, Wide, std::int64_t>;
    Acc re = std::int64_t{0}, im = std::int64_t{0};
    if constexpr (std::is_same_v<A, Kel16s> && std::is_same_v<B, Kel16s>) {
      re = kk::dot_i16(pa, pb, n);
    } else {
      for (std::size_t i = 0; i < n; ++i) {
        const std::int64_t ar = pa[width<A> * i], br = pb[width<B> * i];
        re += ar * br;
        if constexpr (is_complex<B>) {
          const std::int64_t bi = pb[2 * i + 1];
          im += ar * bi;
          if constexpr (is_complex<A>) {
            const std::int64_t ai = pa[2 * i + 1];
            re -= ai * bi;
            im += ai * br;
          }
        }
      }
    }
    using P = part_t<R>;
    if constexpr (std::is_floating_point_v<P> || std::is_same_v<P, Kel64s>) {
      static_assert(!kWide, "16-bit data only: the 64-bit sum is exact");
      const std::int64_t v[2] = {re, im};
      put_parts(out, v);
    } else {
      const int s = sf > 31 ? 31 : (sf < -31 ? -31 : sf);
      const Acc v[2] = {re, im};
      for (std::size_t c = 0; c < width<R>; ++c) scalars(out)[c] = scale_wide<P>(Wide(v[c]), s);
    }
  }
  return kelStsOk;
}

// ---- Sum of natural logarithms. A zero element makes the sum -infinity
// (kelStsLnZeroArg); a negative or NaN element makes it the quiet NaN with
// the sign bit set (kelStsLnNegArg), as the logarithm functions do.

template <class T, class R>
KelStatus sum_ln(const T* src, int len, R* out) {
  KELS_REQUIRE_PTRS(src, out);
  KELS_REQUIRE_LEN(len);
  bool zero = false, bad = false;
  long double s = 0;
  for (std::size_t i = 0, n = static_cast<std::size_t>(len); i < n; ++i) {
    const double x = static_cast<double>(src[i]);
    if (x > 0) {
      s += std::log(x);
    } else if (x == 0) {
      zero = true;
    } else {
      bad = true;  // negative or NaN
    }
  }
  if (bad) {
    *out = -std::numeric_limits<R>::quiet_NaN();
    return kelStsLnNegArg;
  }
  if (zero) {
    *out = -std::numeric_limits<R>::infinity();
    return kelStsLnZeroArg;
  }
  *out = static_cast<R>(s);
  return kelStsOk;
}

// ---- Sliding sums: dst[i] = src[i] + ... + src[i + width - 1] for
// i < len, reading len + width - 1 source elements. Kept exact in 64 bits
// and rounded once per output.

template <class T>
KelStatus sum_window(const T* src, Kel32f* dst, int len, int win) {
  KELS_REQUIRE_PTRS(src, dst);
  KELS_REQUIRE_LEN(len);
  if (win < 1) return kelStsBadWindowWidth;
  const std::size_t n = static_cast<std::size_t>(len), w = static_cast<std::size_t>(win);
  std::int64_t s = 0;
  for (std::size_t k = 0; k < w; ++k) s += src[k];
  dst[0] = static_cast<float>(s);
  for (std::size_t i = 1; i < n; ++i) {
    s += static_cast<std::int64_t>(src[i + w - 1]) - src[i - 1];
    dst[i] = static_cast<float>(s);
  }
  return kelStsOk;
}

}  // namespace
}  // namespace kels

using namespace kels;

// ---- Member tables.

// (name suffix, source type, result type)
#define KELS_SUM_SFS_MEMBERS(X) \
  X(16s32s_Sfs, Kel16s, Kel32s) X(16sc32sc_Sfs, Kel16sc, Kel32sc) X(32s_Sfs, Kel32s, Kel32s)
#define KELS_SUM_HINT_MEMBERS(X) X(32f, Kel32f) X(32fc, Kel32fc)
#define KELS_SUM_MEMBERS(X) X(64f, Kel64f) X(64fc, Kel64fc)
#define KELS_MEAN_SFS_MEMBERS(X) X(16s_Sfs, Kel16s) X(16sc_Sfs, Kel16sc) X(32s_Sfs, Kel32s)
#define KELS_MEAN_HINT_MEMBERS(X) X(32f, Kel32f) X(32fc, Kel32fc)
#define KELS_MEAN_MEMBERS(X) X(64f, Kel64f) X(64fc, Kel64fc)
#define KELS_STDDEV_SFS_MEMBERS(X) X(16s_Sfs, Kel16s) X(16s32s_Sfs, Kel32s)

// (norm, name suffix, source type, result type): Norm_<norm>_<suffix> and
// NormDiff_<norm>_<suffix>.
#define KELS_NORM_MEMBERS(X)                                                                 \
  X(Inf, kInf, 32f, Kel32f, Kel32f) X(L1, kL1, 32f, Kel32f, Kel32f) X(L2, kL2, 32f, Kel32f, Kel32f) \
  X(Inf, kInf, 64f, Kel64f, Kel64f) X(L1, kL1, 64f, Kel64f, Kel64f) X(L2, kL2, 64f, Kel64f, Kel64f) \
  X(Inf, kInf, 16s32f, Kel16s, Kel32f) X(L1, kL1, 16s32f, Kel16s, Kel32f)                   \
  X(L2, kL2, 16s32f, Kel16s, Kel32f)                                                         \
  X(Inf, kInf, 32fc32f, Kel32fc, Kel32f)                                                     \
  X(Inf, kInf, 64fc64f, Kel64fc, Kel64f) X(L1, kL1, 64fc64f, Kel64fc, Kel64f)               \
  X(L2, kL2, 64fc64f, Kel64fc, Kel64f)                                                       \
  X(L1, kL1, 32fc64f, Kel32fc, Kel64f) X(L2, kL2, 32fc64f, Kel32fc, Kel64f)
#define KELS_NORM_SFS_MEMBERS(X)                                                             \
  X(Inf, kInf, 16s32s_Sfs, Kel16s, Kel32s) X(L1, kL1, 16s32s_Sfs, Kel16s, Kel32s)           \
  X(L2, kL2, 16s32s_Sfs, Kel16s, Kel32s) X(L1, kL1, 16s64s_Sfs, Kel16s, Kel64s)             \
  X(L2Sqr, kL2Sqr, 16s64s_Sfs, Kel16s, Kel64s)

// (name suffix, first source, second source, result)
#define KELS_DOT_MEMBERS(X)                                                                  \
  X(32f, Kel32f, Kel32f, Kel32f) X(32fc, Kel32fc, Kel32fc, Kel32fc)                          \
  X(32f32fc, Kel32f, Kel32fc, Kel32fc) X(32f64f, Kel32f, Kel32f, Kel64f)                     \
  X(32fc64fc, Kel32fc, Kel32fc, Kel64fc) X(32f32fc64fc, Kel32f, Kel32fc, Kel64fc)            \
  X(64f, Kel64f, Kel64f, Kel64f) X(64fc, Kel64fc, Kel64fc, Kel64fc)                          \
  X(64f64fc, Kel64f, Kel64fc, Kel64fc) X(16s64s, Kel16s, Kel16s, Kel64s)                     \
  X(16sc64sc, Kel16sc, Kel16sc, Kel64sc) X(16s16sc64sc, Kel16s, Kel16sc, Kel64sc)            \
  X(16s32f, Kel16s, Kel16s, Kel32f) X(16sc32fc, Kel16sc, Kel16sc, Kel32fc)                   \
  X(16s16sc32fc, Kel16s, Kel16sc, Kel32fc)
#define KELS_DOT_SFS_MEMBERS(X)                                                              \
  X(16s_Sfs, Kel16s, Kel16s, Kel16s) X(16sc_Sfs, Kel16sc, Kel16sc, Kel16sc)                  \
  X(16s16sc_Sfs, Kel16s, Kel16sc, Kel16sc) X(16s32s_Sfs, Kel16s, Kel16s, Kel32s)             \
  X(16sc32sc_Sfs, Kel16sc, Kel16sc, Kel32sc) X(16s16sc32sc_Sfs, Kel16s, Kel16sc, Kel32sc)    \
  X(16s32s32s_Sfs, Kel16s, Kel32s, Kel32s) X(32s_Sfs, Kel32s, Kel32s, Kel32s)                \
  X(32sc_Sfs, Kel32sc, Kel32sc, Kel32sc) X(32s32sc_Sfs, Kel32s, Kel32sc, Kel32sc)

#define KELS_SUMLN_MEMBERS(X) X(32f, Kel32f, Kel32f) X(64f, Kel64f, Kel64f) X(32f64f, Kel32f, Kel64f) \
  X(16s32f, Kel16s, Kel32f)
#define KELS_SUMWINDOW_MEMBERS(X) X(8u32f, Kel8u) X(16s32f, Kel16s)

#define KELS_DEFINE_SUM_SFS(sfx, T, R)                                                          \
  KELS_EXPORT KelStatus kelsSum_##sfx(const T* pSrc, int len, R* pSum, int scaleFactor) {      \
    return sum_int(pSrc, len, pSum, scaleFactor);                                               \
  }
#define KELS_DEFINE_SUM_HINT(sfx, T)                                                            \
  KELS_EXPORT KelStatus kelsSum_##sfx(const T* pSrc, int len, T* pSum, int hint) {             \
    return sum_float<false>(pSrc, len, pSum, hint);                                                    \
  }                                                                                             \
  KELS_EXPORT KelStatus kelsMean_##sfx(const T* pSrc, int len, T* pMean, int hint) {           \
    return sum_float<true>(pSrc, len, pMean, hint);                                                  \
  }
#define KELS_DEFINE_SUM(sfx, T)                                                                 \
  KELS_EXPORT KelStatus kelsSum_##sfx(const T* pSrc, int len, T* pSum) {                       \
    return sum_float<false>(pSrc, len, pSum, 0);                                                       \
  }                                                                                             \
  KELS_EXPORT KelStatus kelsMean_##sfx(const T* pSrc, int len, T* pMean) {                     \
    return sum_float<true>(pSrc, len, pMean, 0);                                                     \
  }
#define KELS_DEFINE_MEAN_SFS(sfx, T)                                                            \
  KELS_EXPORT KelStatus kelsMean_##sfx(const T* pSrc, int len, T* pMean, int scaleFactor) {    \
    return mean_int(pSrc, len, pMean, scaleFactor);                                             \
  }
#define KELS_DEFINE_STDDEV_SFS(sfx, R)                                                          \
  KELS_EXPORT KelStatus kelsStdDev_##sfx(const Kel16s* pSrc, int len, R* pStdDev, int scaleFactor) { \
    return stddev_int(pSrc, len, pStdDev, scaleFactor);                                         \
  }
#define KELS_DEFINE_NORM(norm, kind, sfx, TS, TR)                                               \
  KELS_EXPORT KelStatus kelsNorm_##norm##_##sfx(const TS* pSrc, int len, TR* pNorm) {          \
    return norm_one<Norm::kind>(pSrc, len, pNorm, 0);                                           \
  }                                                                                             \
  KELS_EXPORT KelStatus kelsNormDiff_##norm##_##sfx(const TS* pSrc1, const TS* pSrc2, int len, TR* pNorm) { \
    return norm_diff<Norm::kind>(pSrc1, pSrc2, len, pNorm, 0);                                  \
  }
#define KELS_DEFINE_NORM_SFS(norm, kind, sfx, TS, TR)                                           \
  KELS_EXPORT KelStatus kelsNorm_##norm##_##sfx(const TS* pSrc, int len, TR* pNorm, int scaleFactor) { \
    return norm_one<Norm::kind>(pSrc, len, pNorm, scaleFactor);                                 \
  }                                                                                             \
  KELS_EXPORT KelStatus kelsNormDiff_##norm##_##sfx(const TS* pSrc1, const TS* pSrc2, int len, TR* pNorm, \
                                                    int scaleFactor) {                          \
    return norm_diff<Norm::kind>(pSrc1, pSrc2, len, pNorm, scaleFactor);                        \
  }
#define KELS_DEFINE_DOT(sfx, A, B, R)                                                           \
  KELS_EXPORT KelStatus kelsDotProd_##sfx(const A* pSrc1, const B* pSrc2, int len, R* pDp) {   \
    return dot_family(pSrc1, pSrc2, len, pDp, 0);                                               \
  }
#define KELS_DEFINE_DOT_SFS(sfx, A, B, R)                                                       \
  KELS_EXPORT KelStatus kelsDotProd_##sfx(const A* pSrc1, const B* pSrc2, int len, R* pDp, int scaleFactor) { \
    return dot_family(pSrc1, pSrc2, len, pDp, scaleFactor);                                     \
  }
#define KELS_DEFINE_SUMLN(sfx, T, R)                                                            \
  KELS_EXPORT KelStatus kelsSumLn_##sfx(const T* pSrc, int len, R* pSum) { return sum_ln(pSrc, len, pSum); }
#define KELS_DEFINE_SUMWINDOW(sfx, T)                                                           \
  KELS_EXPORT KelStatus kelsSumWindow_##sfx(const T* pSrc, Kel32f* pDst, int len, int maskSize) { \
    return sum_window(pSrc, pDst, len, maskSize);                                               \
  }

KELS_FOR_MEMBERS(KELS_SUM_SFS_MEMBERS, KELS_DEFINE_SUM_SFS)
KELS_FOR_MEMBERS(KELS_SUM_HINT_MEMBERS, KELS_DEFINE_SUM_HINT)
KELS_FOR_MEMBERS(KELS_SUM_MEMBERS, KELS_DEFINE_SUM)
KELS_FOR_MEMBERS(KELS_MEAN_SFS_MEMBERS, KELS_DEFINE_MEAN_SFS)
KELS_FOR_MEMBERS(KELS_STDDEV_SFS_MEMBERS, KELS_DEFINE_STDDEV_SFS)
KELS_FOR_MEMBERS(KELS_NORM_MEMBERS, KELS_DEFINE_NORM)
KELS_FOR_MEMBERS(KELS_NORM_SFS_MEMBERS, KELS_DEFINE_NORM_SFS)
KELS_FOR_MEMBERS(KELS_DOT_MEMBERS, KELS_DEFINE_DOT)
KELS_FOR_MEMBERS(KELS_DOT_SFS_MEMBERS, KELS_DEFINE_DOT_SFS)
KELS_FOR_MEMBERS(KELS_SUMLN_MEMBERS, KELS_DEFINE_SUMLN)
KELS_FOR_MEMBERS(KELS_SUMWINDOW_MEMBERS, KELS_DEFINE_SUMWINDOW)

// The 16-bit sums go through the 32-bit ones and saturate their result.
KELS_EXPORT KelStatus kelsSum_16s_Sfs(const Kel16s* pSrc, int len, Kel16s* pSum, int scaleFactor) {
  KELS_REQUIRE_PTRS(pSrc, pSum);
  Kel32s s = 0;
  KELS_RETURN_IF_ERROR(kelsSum_16s32s_Sfs(pSrc, len, &s, scaleFactor));
  *pSum = saturate<Kel16s>(s);
  return kelStsOk;
}
KELS_EXPORT KelStatus kelsSum_16sc_Sfs(const Kel16sc* pSrc, int len, Kel16sc* pSum, int scaleFactor) {
  KELS_REQUIRE_PTRS(pSrc, pSum);
  Kel32sc s = {0, 0};
  KELS_RETURN_IF_ERROR(kelsSum_16sc32sc_Sfs(pSrc, len, &s, scaleFactor));
  *pSum = {saturate<Kel16s>(s.re), saturate<Kel16s>(s.im)};
  return kelStsOk;
}
KELS_EXPORT KelStatus kelsStdDev_32f(const Kel32f* pSrc, int len, Kel32f* pStdDev, int hint) {
  return stddev_32f(pSrc, len, pStdDev, hint);
}
KELS_EXPORT KelStatus kelsStdDev_64f(const Kel64f* pSrc, int len, Kel64f* pStdDev) {
  return stddev_64f(pSrc, len, pStdDev);
}
