// Arithmetic shared by the FIR forms: the accumulator type of each tap/data
// pair, products and sums on real and complex values, the conversion of a
// sum to the data type (rounding and saturation for integer data), and the
// data-movement calls on delay lines.
#ifndef KELS_FIR_FIR_ARITH_H
#define KELS_FIR_FIR_ARITH_H

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "fir/fir_record.h"
#include "frame/scale.h"

namespace kels::fir {

template <class T>
struct C {
  T re, im;
};
template <class T> C<T> operator+(C<T> a, C<T> b) { return {a.re + b.re, a.im + b.im}; }
// (a.re*b.re - a.im*b.im, a.re*b.im + a.im*b.re): the SIMD complex kernel
// evaluates the same expression lane by lane.
template <class T> C<T> operator*(C<T> a, C<T> b) {
  return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}

// Accumulator of a tap/data pair in the state form: exact 64-bit integers for
// the normalised integer taps; single precision when taps and data are both
// single precision; double precision otherwise. Complex when either is.
template <class Tap, class Data>
struct acc_of {
  using TP = part_t<Tap>;
  using DP = part_t<Data>;
  using S = std::conditional_t<std::is_integral_v<TP>, std::int64_t,
            std::conditional_t<std::is_same_v<TP, float> && std::is_same_v<DP, float>, float, double>>;
  using type = std::conditional_t<is_complex<Tap>::value || is_complex<Data>::value, C<S>, S>;
};
template <class Tap, class Data> using acc_t = typename acc_of<Tap, Data>::type;

// Widening of a tap or sample into an accumulator type.
template <class A, class X>
A widen(const X& x) {
  if constexpr (std::is_arithmetic_v<A>) {
    return static_cast<A>(x);
  } else {
    using S = decltype(A{}.re);
    if constexpr (is_complex<X>::value) return A{static_cast<S>(x.re), static_cast<S>(x.im)};
    else return A{static_cast<S>(x), S(0)};
  }
}

// Round to nearest even and saturate a floating value to an integer type;
// NaN gives 0.
template <class I>
I round_saturate(double v) {
  if (v != v) return 0;
  const double r = std::nearbyint(v);
  if (r >= static_cast<double>(std::numeric_limits<I>::max())) return std::numeric_limits<I>::max();
  if (r <= static_cast<double>(std::numeric_limits<I>::min())) return std::numeric_limits<I>::min();
  return static_cast<I>(r);
}

inline int clamp_shift(std::int64_t s) { return static_cast<int>(s < -2000 ? -2000 : (s > 2000 ? 2000 : s)); }

// One part of a sum converted to the data part type: floats are rounded to
// the data precision; integer data receive sum * 2^(factor - scaleFactor),
// rounded to nearest even and saturated.
template <class DP, class S>
DP convert_part(S s, int sf, int factor) {
  if constexpr (std::is_floating_point_v<DP>) {
    (void)sf; (void)factor;
    return static_cast<DP>(s);
  } else if constexpr (std::is_integral_v<S>) {
    return scale_rule<DP>(s, clamp_shift(static_cast<std::int64_t>(sf) - factor));
  } else {
    return round_saturate<DP>(std::ldexp(static_cast<double>(s), clamp_shift(static_cast<std::int64_t>(factor) - sf)));
  }
}

template <class Data, class A>
Data convert(const A& a, int sf, int factor) {
  if constexpr (is_complex<Data>::value) {
    using DP = part_t<Data>;
    return Data{convert_part<DP>(a.re, sf, factor), convert_part<DP>(a.im, sf, factor)};
  } else {
    return convert_part<Data>(a, sf, factor);
  }
}

// ---- Delay-line data movement through the exported functions.
#define KELS_FIR_MOVE_TYPES(X) \
  X(16s, Kel16s) X(16sc, Kel16sc) X(32s, Kel32s) X(32sc, Kel32sc) X(32f, Kel32f) X(32fc, Kel32fc) \
  X(64f, Kel64f) X(64fc, Kel64fc)
#define KELS_FIR_DEFINE_MOVES(code, T)                                                           \
  inline void copy_n(const T* s, T* d, int n) { if (n > 0) kelsCopy_##code(s, d, n); }          \
  inline void move_n(const T* s, T* d, int n) { if (n > 0) kelsMove_##code(s, d, n); }          \
  inline void zero_n(T* d, int n) { if (n > 0) kelsZero_##code(d, n); }
KELS_FOR_MEMBERS(KELS_FIR_MOVE_TYPES, KELS_FIR_DEFINE_MOVES)
#undef KELS_FIR_DEFINE_MOVES

}  // namespace kels::fir

#endif  // KELS_FIR_FIR_ARITH_H
