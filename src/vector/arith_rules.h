// Element rules of the arithmetic family: exact results of the integer
// operations (real and complex), the scale-factor branch choice, the limits
// above which a scaled result is identically zero, the division rules and
// the float element operations.
#ifndef KELS_VECTOR_ARITH_RULES_H
#define KELS_VECTOR_ARITH_RULES_H

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "frame/scale.h"
#include "kels.h"
#include "kernels/arith.h"

namespace kels::arith {

using kernels::ArithOp;
using kernels::ScaleMode;

// ---- Element types.

template <class T> struct part { using type = T; };
template <> struct part<Kel16sc> { using type = Kel16s; };
template <> struct part<Kel32sc> { using type = Kel32s; };
template <> struct part<Kel32fc> { using type = Kel32f; };
template <> struct part<Kel64fc> { using type = Kel64f; };
template <class T> using part_t = typename part<T>::type;

template <class T>
inline constexpr bool is_cplx_v = !std::is_same_v<part_t<T>, T>;
template <class T>
inline constexpr bool is_float_v = std::is_floating_point_v<part_t<T>>;

// ---- Exact integer values: int64 for real data, a pair for complex data.

struct Cx {
  std::int64_t re, im;
};

template <class T, std::enable_if_t<std::is_integral_v<T>, int> = 0>
constexpr std::int64_t wide(T v) { return static_cast<std::int64_t>(v); }
inline Cx wide(Kel16sc v) { return {v.re, v.im}; }
inline Cx wide(Kel32sc v) { return {v.re, v.im}; }

// Sums of two 32-bit-by-32-bit products reach 2^63 in one case, the
// imaginary part of (-2^31 - 2^31 i)^2. It is held as 2^63 - 1, which every
// scale-factor branch maps to the same result as 2^63 (the difference is
// below any rounding step that can occur).
inline std::int64_t add64(std::int64_t a, std::int64_t b) {
  std::int64_t r;
  if (__builtin_add_overflow(a, b, &r)) return a > 0 ? std::numeric_limits<std::int64_t>::max()
                                                     : std::numeric_limits<std::int64_t>::min();
  return r;
}
inline std::int64_t sub64(std::int64_t a, std::int64_t b) {
  std::int64_t r;
  if (__builtin_sub_overflow(a, b, &r)) return a > 0 ? std::numeric_limits<std::int64_t>::max()
                                                     : std::numeric_limits<std::int64_t>::min();
  return r;
}

inline Cx operator+(Cx a, Cx b) { return {a.re + b.re, a.im + b.im}; }
inline Cx operator-(Cx a, Cx b) { return {a.re - b.re, a.im - b.im}; }
inline Cx operator*(Cx a, Cx b) {
  return {sub64(a.re * b.re, a.im * b.im), add64(a.re * b.im, a.im * b.re)};
}
inline Cx operator*(std::int64_t a, Cx b) { return {a * b.re, a * b.im}; }

// ---- Float element operations (naive formulas; the SIMD kernels use the
// same operation order, so both give identical bits).

template <class C> C cadd(C a, C b) { return {a.re + b.re, a.im + b.im}; }
template <class C> C csub(C a, C b) { return {a.re - b.re, a.im - b.im}; }
template <class C> C cmul(C a, C b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }
// Complex quotient (ac + bd) / (c^2 + d^2) + (bc - ad) / (c^2 + d^2) i,
// evaluated in double precision (so single-precision data neither
// overflows nor underflows in the squares) and rounded once at the end.
template <class C> C cdiv(C x, C y) {
  using R = decltype(x.re);
  const double a = x.re, b = x.im, c = y.re, d = y.im;
  const double den = c * c + d * d;
  return {static_cast<R>((a * c + b * d) / den), static_cast<R>((b * c - a * d) / den)};
}
inline Kel32fc operator+(Kel32fc a, Kel32fc b) { return cadd(a, b); }
inline Kel64fc operator+(Kel64fc a, Kel64fc b) { return cadd(a, b); }
inline Kel32fc operator-(Kel32fc a, Kel32fc b) { return csub(a, b); }
inline Kel64fc operator-(Kel64fc a, Kel64fc b) { return csub(a, b); }
inline Kel32fc operator*(Kel32fc a, Kel32fc b) { return cmul(a, b); }
inline Kel64fc operator*(Kel64fc a, Kel64fc b) { return cmul(a, b); }
inline Kel32fc operator*(Kel32f a, Kel32fc b) { return {a * b.re, a * b.im}; }
inline Kel32fc operator/(Kel32fc a, Kel32fc b) { return cdiv(a, b); }
inline Kel64fc operator/(Kel64fc a, Kel64fc b) { return cdiv(a, b); }

// ---- Operations. `swapped`: the exported vector forms name the right
// operand first. `identity`: the constant that leaves data unchanged.
// `bound`: the largest magnitude of an exact result for operands in
// [xl, xh] and [yl, yh] (cplx: both operands complex).

constexpr std::uint64_t uabs(std::int64_t v) {
  return v < 0 ? std::uint64_t{0} - static_cast<std::uint64_t>(v) : static_cast<std::uint64_t>(v);
}
constexpr std::uint64_t umax(std::uint64_t a, std::uint64_t b) { return a > b ? a : b; }

struct AddOp {
  static constexpr ArithOp code = ArithOp::add;
  static constexpr bool swapped = false;
  static constexpr int identity = 0;
  template <class A, class B> static auto exact(A a, B b) { return a + b; }
  template <class A, class B> static auto fexact(A a, B b) { return a + b; }
  static constexpr std::uint64_t bound(std::int64_t xl, std::int64_t xh, std::int64_t yl, std::int64_t yh, bool) {
    return umax(uabs(xh + yh), uabs(xl + yl));
  }
};

struct SubOp {
  static constexpr ArithOp code = ArithOp::sub;
  static constexpr bool swapped = true;
  static constexpr int identity = 0;
  template <class A, class B> static auto exact(A a, B b) { return a - b; }
  template <class A, class B> static auto fexact(A a, B b) { return a - b; }
  static constexpr std::uint64_t bound(std::int64_t xl, std::int64_t xh, std::int64_t yl, std::int64_t yh, bool) {
    return umax(uabs(xh - yl), uabs(xl - yh));
  }
};

struct MulOp {
  static constexpr ArithOp code = ArithOp::mul;
  static constexpr bool swapped = false;
  static constexpr int identity = 1;
  template <class A, class B> static auto exact(A a, B b) { return a * b; }
  template <class A, class B> static auto fexact(A a, B b) { return a * b; }
  // A complex product's imaginary part adds two products of the same bound.
  static constexpr std::uint64_t bound(std::int64_t xl, std::int64_t xh, std::int64_t yl, std::int64_t yh, bool cplx) {
    const std::uint64_t m = umax(umax(uabs(xl * yl), uabs(xh * yh)), umax(uabs(xl * yh), uabs(xh * yl)));
    return cplx ? 2 * m : m;
  }
};

struct DivOp {
  static constexpr ArithOp code = ArithOp::div;
  static constexpr bool swapped = true;
  static constexpr int identity = 1;
  template <class A, class B> static auto fexact(A a, B b) { return a / b; }
};

// ---- Scale-factor branches.

constexpr int bit_width(std::uint64_t v) {
  int w = 0;
  while (v != 0) {
    ++w;
    v >>= 1;
  }
  return w;
}

// The largest scale factor that can give a non-zero result: above it every
// |r| <= 2^limit is divided by at least 2^(limit+1) and rounds to 0 (a tie
// at exactly one half goes to the even 0).
template <class Op, class TX, class TY>
constexpr int zero_limit() {
  using PX = part_t<TX>;
  using PY = part_t<TY>;
  constexpr std::uint64_t m = Op::bound(std::numeric_limits<PX>::min(), std::numeric_limits<PX>::max(),
                                        std::numeric_limits<PY>::min(), std::numeric_limits<PY>::max(),
                                        is_cplx_v<TX> && is_cplx_v<TY>);
  return bit_width(m - 1);
}

// The same limit for a quotient, whose magnitude is at most the dividend's.
template <class TX>
constexpr int quotient_limit() {
  return bit_width(static_cast<std::uint64_t>(std::numeric_limits<part_t<TX>>::max()) - 1);
}

struct Branch {
  bool zero;  // fill the destination with zeros
  ScaleMode mode;
  int shift;
};

// Below -(bits - 1) every non-zero result saturates (|r| * 2^bits exceeds
// the type's range), so the sign alone decides.
template <class P>
Branch pick_branch(int sf, int limit) {
  constexpr int low = 8 * static_cast<int>(sizeof(P)) - 1;
  if (sf > limit) return {true, ScaleMode::sat, 0};
  if (sf == 0) return {false, ScaleMode::sat, 0};
  if (sf == 1) return {false, ScaleMode::half, 1};
  if (sf > 1) return {false, ScaleMode::round, sf};
  if (sf >= -low) return {false, ScaleMode::lshift, -sf};
  return {false, ScaleMode::sign, 0};
}

template <ScaleMode M, class D>
D put(std::int64_t r, int shift) {
  return kernels::scalar::apply_mode<M, D>(r, shift);
}
template <ScaleMode M, class D>
D put(Cx r, int shift) {
  using P = part_t<D>;
  return D{kernels::scalar::apply_mode<M, P>(r.re, shift), kernels::scalar::apply_mode<M, P>(r.im, shift)};
}

// ---- Divisors.

// A constant divisor that is refused: integer 0, a real float that is
// neither below nor above 0.0 (zero or NaN), a complex value whose
// re^2 + im^2 is 0 in its own precision.
template <class T>
bool is_zero_divisor(T v) {
  if constexpr (std::is_integral_v<T>) {
    return v == 0;
  } else if constexpr (std::is_floating_point_v<T>) {
    return !(v < 0 || v > 0);
  } else if constexpr (is_float_v<T>) {
    return v.re * v.re + v.im * v.im == 0;
  } else {
    return v.re == 0 && v.im == 0;
  }
}

// A zero element of a vector divisor (it draws the warning).
template <class T>
bool zero_element(T v) {
  if constexpr (is_cplx_v<T>) {
    return v.re == 0 && v.im == 0;
  } else {
    return v == 0;
  }
}

// num / den * 2^-sf rounded to nearest, ties to even, clamped to +-2^40
// (beyond any destination). Exact for |num|, |den| < 2^33, den != 0: the
// quotient is formed from the integer division's quotient and remainder,
// extended bit-chunk by bit-chunk for negative scale factors.
inline std::int64_t div_scaled(std::int64_t num, std::int64_t den, int sf) {
  constexpr std::uint64_t cap = std::uint64_t{1} << 40;
  const bool neg = (num < 0) != (den < 0);
  const std::uint64_t a = uabs(num), b = uabs(den);
  std::uint64_t q = a / b, r = a % b;
  bool up;
  if (sf > 0) {
    if (sf >= 40) return 0;  // a / b < 2^33, far below 2^(sf - 1)
    const std::uint64_t hi = q >> sf, lo = q & ((std::uint64_t{1} << sf) - 1);
    const std::uint64_t half = std::uint64_t{1} << (sf - 1);
    up = lo > half || (lo == half && (r != 0 || (hi & 1) != 0));
    q = hi;
  } else {
    for (int left = -sf; left > 0 && q < cap;) {
      const int k = left < 20 ? left : 20;
      q = (q << k) + ((r << k) / b);
      r = (r << k) % b;
      left -= k;
    }
    up = 2 * r > b || (2 * r == b && (q & 1) != 0);
  }
  q += up ? 1 : 0;
  const std::int64_t v = static_cast<std::int64_t>(q < cap ? q : cap);
  return neg ? -v : v;
}

template <class P>
P by_sign(std::int64_t v) {
  return v > 0 ? std::numeric_limits<P>::max() : (v < 0 ? std::numeric_limits<P>::min() : P(0));
}

// Exact scaled quotient x / y. A zero divisor gives 0 for a zero dividend
// and the destination's bound of the dividend's sign otherwise (complex:
// part by part), and sets *met_zero.
template <class D, class TX, class TY>
D div_exact(TX x, TY y, int sf, bool* met_zero) {
  if constexpr (is_cplx_v<D>) {
    using P = part_t<D>;
    const std::int64_t a = x.re, b = x.im, c = y.re, d = y.im;
    const std::int64_t den = c * c + d * d;
    if (den == 0) {
      *met_zero = true;
      return D{by_sign<P>(a), by_sign<P>(b)};
    }
    return D{saturate<P>(div_scaled(a * c + b * d, den, sf)), saturate<P>(div_scaled(b * c - a * d, den, sf))};
  } else {
    if (y == 0) {
      *met_zero = true;
      return by_sign<D>(x);
    }
    return saturate<D>(div_scaled(x, y, sf));
  }
}

// 2^-sf as a float, by repeated halving or doubling of 1.0 (it reaches 0 or
// infinity for large |sf|, and stops changing there).
inline float float_scale(int sf) {
  float s = 1.0f;
  if (sf > 0) {
    for (int k = 0; k < sf && s != 0.0f; ++k) s *= 0.5f;
  } else {
    for (int k = 0; k < -sf && s != std::numeric_limits<float>::infinity(); ++k) s *= 2.0f;
  }
  return s;
}

// Signed 16-bit division in single precision: q = x * scale / y; out-of-range
// quotients saturate; otherwise q + 32768.5 is truncated, and one is taken
// off when that sum was an integer (q was a tie) and odd, which rounds ties
// to even; 32768 is then subtracted. A NaN quotient (0 times an infinite
// scale) gives 0.
inline Kel16s div16s_float(Kel16s x, Kel16s y, float scale, bool* met_zero) {
  if (y == 0) {
    *met_zero = true;
    return by_sign<Kel16s>(x);
  }
  const float q = static_cast<float>(x) * scale / static_cast<float>(y);
  if (q < -32768.0f) return -32768;
  if (q > 32767.0f) return 32767;
  if (q != q) return 0;
  const float t = q + 32768.5f;
  int i = static_cast<int>(t);
  if ((i & 1) != 0 && static_cast<float>(i) == t) --i;
  return static_cast<Kel16s>(i - 32768);
}

// Round to nearest even and saturate a double to an integer type; NaN
// gives 0.
template <class D>
D round_even_sat(double v) {
  constexpr double hi = static_cast<double>(std::numeric_limits<D>::max());
  constexpr double lo = static_cast<double>(std::numeric_limits<D>::min());
  if (v != v) return 0;
  if (v >= hi) return std::numeric_limits<D>::max();
  if (v <= lo) return std::numeric_limits<D>::min();
  double f = std::floor(v);
  const double diff = v - f;
  if (diff > 0.5 || (diff == 0.5 && std::fmod(f, 2.0) != 0.0)) f += 1.0;
  return static_cast<D>(f);
}

}  // namespace kels::arith

#endif  // KELS_VECTOR_ARITH_RULES_H
