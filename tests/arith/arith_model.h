// Reference models for the arithmetic tests. Integer results are computed
// exactly in long double (64-bit significand: every sum and product of
// 32-bit integers, and the sum of two such products, is exact), scaled by
// ldexp (exact) and rounded by the FPU's ties-to-even mode. Quotients are
// formed from an exact floor quotient and remainder.
#ifndef KELS_TESTS_ARITH_MODEL_H
#define KELS_TESTS_ARITH_MODEL_H

#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include "kels.h"

namespace kels::test {

enum class Op { add, sub, mul, div };

template <class T> struct part_of { using type = T; };
template <> struct part_of<Kel16sc> { using type = Kel16s; };
template <> struct part_of<Kel32sc> { using type = Kel32s; };
template <> struct part_of<Kel32fc> { using type = Kel32f; };
template <> struct part_of<Kel64fc> { using type = Kel64f; };
template <class T> using part_of_t = typename part_of<T>::type;
template <class T> inline constexpr bool cplx_v = !std::is_same_v<part_of_t<T>, T>;

using LD = long double;

struct LC {
  LD re, im;
};

template <class T> LC as_lc(T v) {
  if constexpr (cplx_v<T>) return {static_cast<LD>(v.re), static_cast<LD>(v.im)};
  else return {static_cast<LD>(v), 0};
}

inline LC exact(Op op, LC x, LC y) {
  switch (op) {
    case Op::add: return {x.re + y.re, x.im + y.im};
    case Op::sub: return {x.re - y.re, x.im - y.im};
    default: return {x.re * y.re - x.im * y.im, x.re * y.im + x.im * y.re};
  }
}

// v * 2^-sf rounded to nearest even and saturated to P; a float P takes v
// rounded once.
template <class P>
P ref_scale(LD v, int sf) {
  if constexpr (std::is_floating_point_v<P>) {
    return static_cast<P>(v);
  } else {
    if (sf > 20000) sf = 20000;
    if (sf < -20000) sf = -20000;
    const LD w = std::nearbyint(std::ldexp(v, -sf));
    if (w >= static_cast<LD>(std::numeric_limits<P>::max())) return std::numeric_limits<P>::max();
    if (w <= static_cast<LD>(std::numeric_limits<P>::min())) return std::numeric_limits<P>::min();
    return static_cast<P>(w);
  }
}

template <class D>
D ref_put(LC r, int sf) {
  using P = part_of_t<D>;
  if constexpr (cplx_v<D>) return D{ref_scale<P>(r.re, sf), ref_scale<P>(r.im, sf)};
  else return ref_scale<D>(r.re, sf);
}

// Exact num * 2^-sf / den rounded to nearest even, saturated to P, for
// den != 0 and |den| * 2^sf < 2^63 (larger quotients saturate).
template <class P>
P ref_div(LD num, LD den, int sf) {
  const bool neg = (num < 0) != (den < 0);
  LD n = std::fabs(num), d = std::fabs(den);
  if (sf < 0) n = std::ldexp(n, -sf);
  else d = std::ldexp(d, sf);
  if (n / d > std::ldexp(LD(1), 62)) return ref_scale<P>(neg ? -n : n, 0);  // saturates
  LD q = std::floor(n / d);
  while (q * d > n) q -= 1;
  while ((q + 1) * d <= n) q += 1;
  const LD rem2 = 2 * (n - q * d);
  if (rem2 > d || (rem2 == d && std::fmod(q, 2) != 0)) q += 1;
  return ref_scale<P>(neg ? -q : q, 0);
}

template <class T>
bool same(T a, T b) {
  if constexpr (cplx_v<T>) return a.re == b.re && a.im == b.im;
  else return a == b;
}

// Random values of T: a quarter from the type's edges (bounds, 0, +-1,
// bound halves), the rest uniform over the range.
template <class T>
T random_value(std::mt19937& g) {
  if constexpr (cplx_v<T>) {
    using P = part_of_t<T>;
    return T{random_value<P>(g), random_value<P>(g)};
  } else if constexpr (std::is_floating_point_v<T>) {
    std::uniform_real_distribution<T> u(-1000, 1000);
    return u(g);
  } else {
    using W = std::conditional_t<std::is_signed_v<T>, std::int64_t, std::uint64_t>;
    const W lo = std::numeric_limits<T>::min(), hi = std::numeric_limits<T>::max();
    if (g() % 4 == 0) {
      const W edges[] = {lo, hi, 0, 1, static_cast<W>(hi / 2), static_cast<W>(lo / 2), static_cast<W>(lo + 1),
                         std::is_signed_v<T> ? static_cast<W>(-1) : static_cast<W>(2)};
      return static_cast<T>(edges[g() % 8]);
    }
    std::uniform_int_distribution<W> u(lo, hi);
    return static_cast<T>(u(g));
  }
}

template <class T>
std::vector<T> random_vector(std::size_t n, std::mt19937& g) {
  std::vector<T> v(n);
  for (auto& e : v) e = random_value<T>(g);
  return v;
}

// Scale factors that visit every branch of the rule for data of `bits`
// bits whose results reach `limit` bits: both sides of 0, 1, the general
// range, the zero-fill limit, the saturating-shift limit and far beyond.
inline std::vector<int> branch_scale_factors(int bits, int limit) {
  return {0, 1, 2, 3, bits / 2, limit - 1, limit, limit + 1, limit + 2, 200,
          -1, -2, -(bits - 2), -(bits - 1), -bits, -bits - 1, -200};
}

}  // namespace kels::test

#endif  // KELS_TESTS_ARITH_MODEL_H
