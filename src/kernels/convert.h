// SIMD kernels of the conversion family and their scalar twins. The twins
// define the arithmetic exactly (independently of the processor's rounding
// mode); the vector kernels must agree with them bit for bit, and the tests
// compare both on every SIMD target.
#ifndef KELS_KERNELS_CONVERT_H
#define KELS_KERNELS_CONVERT_H

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>

namespace kels::kernels {

// ---- Widening and integer to float. dst[i] = D(src[i]) * factor; a factor
// of exactly 1 skips the multiplication. Conversions that can round
// (32s -> 32f) round in the processor's current mode.
void widen(const std::int8_t* src, std::int16_t* dst, std::size_t n);
void widen(const std::int16_t* src, std::int32_t* dst, std::size_t n);
void widen(const float* src, double* dst, std::size_t n);
void to_float(const std::int8_t* src, float* dst, std::size_t n, float factor);
void to_float(const std::uint8_t* src, float* dst, std::size_t n, float factor);
void to_float(const std::int16_t* src, float* dst, std::size_t n, float factor);
void to_float(const std::uint16_t* src, float* dst, std::size_t n, float factor);
void to_float(const std::int32_t* src, float* dst, std::size_t n, float factor);
void to_double(const std::int16_t* src, double* dst, std::size_t n, double factor);
void to_double(const std::int32_t* src, double* dst, std::size_t n, double factor);

// ---- Double to single with saturation: >= FLT_MAX -> FLT_MAX, below
// -FLT_MAX and NaN -> -FLT_MAX, others rounded in the current mode.
void f64_to_f32_sat(const double* src, float* dst, std::size_t n);

// ---- Single precision to integer: y = x * 2^-sf, NaN -> the destination's
// minimum, rounded to nearest even (nearest) or toward zero, saturated.
void f32_to_int(const float* src, std::int8_t* dst, std::size_t n, int sf, bool nearest);
void f32_to_int(const float* src, std::uint8_t* dst, std::size_t n, int sf, bool nearest);
void f32_to_int(const float* src, std::int16_t* dst, std::size_t n, int sf, bool nearest);
void f32_to_int(const float* src, std::uint16_t* dst, std::size_t n, int sf, bool nearest);
void f32_to_int(const float* src, std::int32_t* dst, std::size_t n, int sf, bool nearest);

// ---- 32s -> 16s with the integer scale rule; sf must lie in -15..31.
void s32_to_s16_scaled(const std::int32_t* src, std::int16_t* dst, std::size_t n, int sf);

// ---- Packed 24-bit integers: element i is bytes 3i..3i+2, least
// significant first. unpack24 sign-extends from bit 23 when is_signed;
// s32_to_24_scaled applies the scale rule (sf in -15..31) and saturates to
// [lo, hi] (the signed or the unsigned 24-bit range).
void unpack24(const std::uint8_t* src, std::int32_t* dst, std::size_t n, bool is_signed);
void s32_to_24_scaled(const std::int32_t* src, std::uint8_t* dst, std::size_t n, int sf, std::int32_t lo,
                      std::int32_t hi);

// ---- IEEE half precision (binary16 bit patterns).
void f16_to_f32(const std::uint16_t* src, float* dst, std::size_t n);
void f32_to_f16(const float* src, std::uint16_t* dst, std::size_t n, bool nearest);

namespace scalar {

// Round to nearest, ties to even, without relying on the rounding mode.
inline double round_half_even(double y) {
  double f = std::floor(y);
  const double d = y - f;  // exact for |y| < 2^52
  if (d > 0.5 || (d == 0.5 && std::fmod(f, 2.0) != 0.0)) f += 1.0;
  return f;
}

// The float-to-integer rule on an exactly scaled value y.
inline std::int64_t float_to_int_model(double y, bool nearest, double lo, double hi) {
  if (std::isnan(y) || y <= lo) return static_cast<std::int64_t>(lo);
  if (y >= hi) return static_cast<std::int64_t>(hi);
  return static_cast<std::int64_t>(nearest ? round_half_even(y) : std::trunc(y));
}

// x * 2^-sf exactly (for every float x and every sf that matters: the
// result is either exact, below 1 in magnitude, or beyond every bound).
inline double scaled(double x, int sf) { return std::ldexp(x, -std::clamp(sf, -4000, 4000)); }

template <class S, class D>
void f_to_int(const S* src, D* dst, std::size_t n, int sf, bool nearest,
              double lo = static_cast<double>(std::numeric_limits<D>::min()),
              double hi = static_cast<double>(std::numeric_limits<D>::max())) {
  for (std::size_t i = 0; i < n; ++i) {
    dst[i] = static_cast<D>(float_to_int_model(scaled(static_cast<double>(src[i]), sf), nearest, lo, hi));
  }
}

// Rounded right shift by s >= 1 (ties to even) of a 64-bit value, written so
// that nothing can overflow: floor quotient plus a carry decided by the
// remainder. Shifts of 64 or more leave 0 (|x| / 2^64 <= 1/2 rounds to 0).
inline std::int64_t shift_round_even_wide(std::int64_t x, int s) {
  if (s >= 64) return 0;
  const std::int64_t q = s == 63 ? (x < 0 ? -1 : 0) : (x >> s);
  const std::uint64_t mask = s == 63 ? ~(std::uint64_t{1} << 63) : (std::uint64_t{1} << s) - 1;
  const std::uint64_t rem = static_cast<std::uint64_t>(x) & mask;
  const std::uint64_t half = std::uint64_t{1} << (s - 1);
  return q + ((rem > half || (rem == half && (q & 1) != 0)) ? 1 : 0);
}

// The integer scale rule for narrowing: x * 2^-sf rounded to nearest even
// and saturated to [lo, hi] (lo <= 0 < hi).
inline std::int64_t narrow_model(std::int64_t x, int sf, std::int64_t lo, std::int64_t hi) {
  std::int64_t r;
  if (sf > 0) {
    r = shift_round_even_wide(x, sf);
  } else if (sf == 0 || x == 0) {
    r = x;
  } else {
    const int k = sf < -62 ? 62 : -sf;
    if (k >= 62) return x > 0 ? hi : lo;
    if (x > (hi >> k)) return hi;
    if (x < -((-lo) >> k)) return lo;
    r = static_cast<std::int64_t>(static_cast<std::uint64_t>(x) << k);
  }
  return r < lo ? lo : (r > hi ? hi : r);
}

template <class S, class D>
void widen(const S* src, D* dst, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) dst[i] = static_cast<D>(src[i]);
}

template <class S, class D, class F>
void to_floating(const S* src, D* dst, std::size_t n, F factor) {
  for (std::size_t i = 0; i < n; ++i) {
    const D v = static_cast<D>(src[i]);
    dst[i] = factor == F(1) ? v : v * static_cast<D>(factor);
  }
}

inline float f64_to_f32_sat_one(double x) {
  constexpr double kMax = 3.4028234663852886e38;
  if (x >= kMax) return std::numeric_limits<float>::max();
  if (!(x >= -kMax)) return -std::numeric_limits<float>::max();  // also NaN
  return static_cast<float>(x);
}

inline void f64_to_f32_sat(const double* src, float* dst, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) dst[i] = f64_to_f32_sat_one(src[i]);
}

inline void s32_to_s16_scaled(const std::int32_t* src, std::int16_t* dst, std::size_t n, int sf) {
  for (std::size_t i = 0; i < n; ++i) dst[i] = static_cast<std::int16_t>(narrow_model(src[i], sf, -32768, 32767));
}

inline std::int32_t get24(const std::uint8_t* p, bool is_signed) {
  const std::uint32_t u = p[0] | (static_cast<std::uint32_t>(p[1]) << 8) | (static_cast<std::uint32_t>(p[2]) << 16);
  return is_signed ? static_cast<std::int32_t>(u ^ 0x800000u) - 0x800000 : static_cast<std::int32_t>(u);
}

inline void put24(std::uint8_t* p, std::int64_t v) {
  const std::uint32_t u = static_cast<std::uint32_t>(v);
  p[0] = static_cast<std::uint8_t>(u);
  p[1] = static_cast<std::uint8_t>(u >> 8);
  p[2] = static_cast<std::uint8_t>(u >> 16);
}

inline void unpack24(const std::uint8_t* src, std::int32_t* dst, std::size_t n, bool is_signed) {
  for (std::size_t i = 0; i < n; ++i) dst[i] = get24(src + 3 * i, is_signed);
}

inline void s32_to_24_scaled(const std::int32_t* src, std::uint8_t* dst, std::size_t n, int sf, std::int32_t lo,
                             std::int32_t hi) {
  for (std::size_t i = 0; i < n; ++i) put24(dst + 3 * i, narrow_model(src[i], sf, lo, hi));
}

inline std::uint32_t float_bits(float f) {
  std::uint32_t u;
  std::memcpy(&u, &f, sizeof u);
  return u;
}

inline float bits_float(std::uint32_t u) {
  float f;
  std::memcpy(&f, &u, sizeof f);
  return f;
}

// binary16 -> binary32, exact. NaN payloads move to the top of the float
// mantissa (a signalling half stays signalling).
inline float f16_to_f32_one(std::uint16_t h) {
  const std::uint32_t sign = static_cast<std::uint32_t>(h & 0x8000u) << 16;
  const std::uint32_t e = (h >> 10) & 0x1Fu, m = h & 0x3FFu;
  if (e == 0x1F) return bits_float(sign | 0x7F800000u | (m << 13));
  if (e == 0) return bits_float(sign | float_bits(static_cast<float>(m) * 0x1p-24f));
  return bits_float(sign | ((e + 112) << 23) | (m << 13));
}

// binary32 -> binary16 rounded to nearest even or toward zero, as IEEE
// defines it: overflow gives infinity when rounding to nearest and the
// largest finite half (65504) when truncating; NaN stays NaN (quiet, with
// the top payload bits).
inline std::uint16_t f32_to_f16_one(float f, bool nearest) {
  const std::uint32_t u = float_bits(f);
  const std::uint32_t sign = (u >> 16) & 0x8000u;
  const std::uint32_t a = u & 0x7FFFFFFFu;
  std::uint32_t h;
  if (a > 0x7F800000u) {
    h = 0x7E00u | ((a >> 13) & 0x3FFu);
  } else if (a >= 0x47800000u) {  // 2^16 and above, infinity
    h = (a == 0x7F800000u || nearest) ? 0x7C00u : 0x7BFFu;
  } else if (a >= 0x38800000u) {  // normal half range (from 2^-14)
    h = (a - 0x38000000u) >> 13;
    const std::uint32_t low = a & 0x1FFFu;
    if (nearest && (low > 0x1000u || (low == 0x1000u && (h & 1u)))) ++h;  // may carry into 0x7C00
  } else if (a >= 0x33000000u) {  // subnormal half results (from 2^-25)
    const std::uint32_t m = (a & 0x7FFFFFu) | 0x800000u;
    const std::uint32_t shift = 126u - (a >> 23);  // 14..24
    h = m >> shift;
    const std::uint32_t low = m & ((1u << shift) - 1u), half = 1u << (shift - 1u);
    if (nearest && (low > half || (low == half && (h & 1u)))) ++h;
  } else {
    h = 0;  // below half the smallest subnormal: 0 in both modes
  }
  return static_cast<std::uint16_t>(sign | h);
}

inline void f16_to_f32(const std::uint16_t* src, float* dst, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) dst[i] = f16_to_f32_one(src[i]);
}

inline void f32_to_f16(const float* src, std::uint16_t* dst, std::size_t n, bool nearest) {
  for (std::size_t i = 0; i < n; ++i) dst[i] = f32_to_f16_one(src[i], nearest);
}

}  // namespace scalar
}  // namespace kels::kernels

#endif  // KELS_KERNELS_CONVERT_H
