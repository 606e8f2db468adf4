// Elementwise arithmetic kernels: the scale-factor branches of the integer
// forms, the packed 16-bit kernels and the float kernels, with their scalar
// twins. The twins are the path of the types without a packed kernel and
// the reference the tests compare every SIMD target against.
#ifndef KELS_KERNELS_ARITH_H
#define KELS_KERNELS_ARITH_H

#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "frame/scale.h"

namespace kels::kernels {

// Binary operation of a kernel; the left operand is x: sub is x - y.
enum class ArithOp : int { add = 0, sub = 1, mul = 2, div = 3 };

// The branches of the scale-factor rule that compute something (the
// zero-fill above a type's limit is done by the caller without reading the
// sources):
//   sat    scaleFactor 0: saturate the exact result;
//   half   scaleFactor 1: (r + ((r >> 1) & 1)) >> 1;
//   round  scaleFactor 2..limit: round to nearest even by 2^shift;
//   lshift scaleFactor -1..-(bits-1): r * 2^shift, saturated;
//   sign   below that: every non-zero result saturates by its sign.
enum class ScaleMode : int { sat = 0, half = 1, round = 2, lshift = 3, sign = 4 };

// Packed 16-bit kernels: dst[i] = rule(x[i] op y[i]) for add, sub (x - y)
// and mul. When x_const (y_const) is set, x (y) points to one value used for
// every element. shift is the scale factor for `round` and its negation for
// `lshift`.
void scaled_s16(ArithOp op, ScaleMode mode, int shift, const std::int16_t* x, bool x_const,
                const std::int16_t* y, bool y_const, std::int16_t* dst, std::size_t n);
void scaled_u16(ArithOp op, ScaleMode mode, int shift, const std::uint16_t* x, bool x_const,
                const std::uint16_t* y, bool y_const, std::uint16_t* dst, std::size_t n);

// Float kernels: dst[i] = x[i] op y[i], plain IEEE arithmetic. Division
// returns true when some divisor y[i] was zero.
bool binary_f32(ArithOp op, const float* x, bool x_const, const float* y, bool y_const, float* dst,
                std::size_t n);
bool binary_f64(ArithOp op, const double* x, bool x_const, const double* y, bool y_const,
                double* dst, std::size_t n);
// Complex multiplication of interleaved (re, im) arrays of n elements:
// (a + bi)(c + di) = (ac - bd) + (ad + bc)i, each product rounded once.
void cmul_f32(const float* x, bool x_const, const float* y, std::size_t n, float* dst);
void cmul_f64(const double* x, bool x_const, const double* y, std::size_t n, double* dst);

namespace scalar {

// Round to nearest, ties to even, of r / 2^s for s in 1..63. Works on the
// floor quotient and the remainder, so no intermediate value can overflow
// anywhere in the int64 range.
inline std::int64_t round_shift(std::int64_t r, int s) {
  const std::int64_t q = r >> s;
  const std::uint64_t rem = static_cast<std::uint64_t>(r) & ((std::uint64_t{1} << s) - 1);
  const std::uint64_t half = std::uint64_t{1} << (s - 1);
  return q + ((rem > half || (rem == half && (q & 1) != 0)) ? 1 : 0);
}

// r * 2^s saturated to D, for s >= 1.
template <class D>
D lshift_sat(std::int64_t r, int s) {
  constexpr std::int64_t hi = static_cast<std::int64_t>(std::numeric_limits<D>::max());
  constexpr std::int64_t lo = static_cast<std::int64_t>(std::numeric_limits<D>::min());
  if (r == 0) return 0;
  if (s >= 62 || r >= (std::int64_t{1} << (62 - s)) || r <= -(std::int64_t{1} << (62 - s))) {
    return static_cast<D>(r > 0 ? hi : lo);
  }
  return saturate<D>(static_cast<std::int64_t>(static_cast<std::uint64_t>(r) << s));
}

// One scale-factor branch applied to the exact result r. A float destination
// (the mixed integer-to-float forms, which have no scale factor) receives r
// rounded once.
template <ScaleMode M, class D>
D apply_mode(std::int64_t r, int shift) {
  if constexpr (std::is_floating_point_v<D>) {
    return static_cast<D>(r);
  } else if constexpr (M == ScaleMode::sat) {
    return saturate<D>(r);
  } else if constexpr (M == ScaleMode::half) {
    return saturate<D>(round_shift(r, 1));
  } else if constexpr (M == ScaleMode::round) {
    return saturate<D>(round_shift(r, shift));
  } else if constexpr (M == ScaleMode::lshift) {
    return lshift_sat<D>(r, shift);
  } else {
    return static_cast<D>(r > 0 ? std::numeric_limits<D>::max()
                                : (r < 0 ? std::numeric_limits<D>::min() : 0));
  }
}

template <ScaleMode M, class T>
void scaled16_mode(ArithOp op, int shift, const T* x, bool xc, const T* y, bool yc, T* dst,
                   std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) {
    const std::int64_t a = x[xc ? 0 : i], b = y[yc ? 0 : i];
    const std::int64_t r = op == ArithOp::add ? a + b : (op == ArithOp::sub ? a - b : a * b);
    dst[i] = apply_mode<M, T>(r, shift);
  }
}

// Scalar twin of scaled_s16 / scaled_u16.
template <class T>
void scaled16(ArithOp op, ScaleMode mode, int shift, const T* x, bool xc, const T* y, bool yc,
              T* dst, std::size_t n) {
  switch (mode) {
    case ScaleMode::sat: scaled16_mode<ScaleMode::sat>(op, shift, x, xc, y, yc, dst, n); break;
    case ScaleMode::half: scaled16_mode<ScaleMode::half>(op, shift, x, xc, y, yc, dst, n); break;
    case ScaleMode::round: scaled16_mode<ScaleMode::round>(op, shift, x, xc, y, yc, dst, n); break;
    case ScaleMode::lshift: scaled16_mode<ScaleMode::lshift>(op, shift, x, xc, y, yc, dst, n); break;
    case ScaleMode::sign: scaled16_mode<ScaleMode::sign>(op, shift, x, xc, y, yc, dst, n); break;
  }
}

template <class T>
T float_op(ArithOp op, T a, T b) {
  switch (op) {
    case ArithOp::add: return a + b;
    case ArithOp::sub: return a - b;
    case ArithOp::mul: return a * b;
    default: return a / b;
  }
}

// Scalar twin of binary_f32 / binary_f64.
template <class T>
bool binary_float(ArithOp op, const T* x, bool xc, const T* y, bool yc, T* dst, std::size_t n) {
  bool zero = false;
  for (std::size_t i = 0; i < n; ++i) {
    const T b = y[yc ? 0 : i];
    if (op == ArithOp::div && b == T(0)) zero = true;
    dst[i] = float_op(op, x[xc ? 0 : i], b);
  }
  return zero;
}

// Scalar twin of cmul_f32 / cmul_f64. The compiler's vectoriser recognises
// this loop as a complex product and emits fused multiply-add/subtract
// (one rounding instead of two) on FMA targets even when contraction is
// off; it is kept scalar so every target rounds each product once.
#if defined(__GNUC__) && !defined(__clang__)
#define KELS_NO_VECTORIZE __attribute__((optimize("no-tree-vectorize")))
#else
#define KELS_NO_VECTORIZE
#endif
template <class T>
KELS_NO_VECTORIZE void cmul(const T* x, bool xc, const T* y, std::size_t n, T* dst) {
  for (std::size_t i = 0; i < n; ++i) {
    const T a = x[xc ? 0 : 2 * i], b = x[xc ? 1 : 2 * i + 1];
    const T c = y[2 * i], d = y[2 * i + 1];
    const T ac = a * c, bd = b * d, ad = a * d, bc = b * c;
    dst[2 * i] = ac - bd;
    dst[2 * i + 1] = ad + bc;
  }
}

}  // namespace scalar
}  // namespace kels::kernels

#endif  // KELS_KERNELS_ARITH_H
