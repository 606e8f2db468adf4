// Helpers of the statistics tests: deterministic data and exact rounding
// models independent of the library's own arithmetic.
#ifndef KELS_TESTS_STATS_UTIL_H
#define KELS_TESTS_STATS_UTIL_H

#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include "kels.h"

namespace kels::test {

template <class T>
std::vector<T> random_data(std::size_t n, unsigned seed, double lo = -1.0, double hi = 1.0) {
  std::mt19937 rng(seed);
  std::vector<T> v(n);
  if constexpr (std::is_floating_point_v<T>) {
    std::uniform_real_distribution<double> u(lo, hi);
    for (auto& x : v) x = static_cast<T>(u(rng));
  } else {
    std::uniform_int_distribution<std::int64_t> u(std::numeric_limits<T>::min(), std::numeric_limits<T>::max());
    for (auto& x : v) x = static_cast<T>(u(rng));
  }
  return v;
}

// num / den (den > 0) rounded to nearest, ties to even, in exact integer
// arithmetic.
inline std::int64_t div_round_even(std::int64_t num, std::int64_t den) {
  std::int64_t q = num / den, r = num % den;
  if (r < 0) {  // floor division
    q -= 1;
    r += den;
  }
  if (2 * r > den || (2 * r == den && (q & 1) != 0)) ++q;
  return q;
}

template <class T>
T saturate_to(std::int64_t v) {
  if (v < static_cast<std::int64_t>(std::numeric_limits<T>::min())) return std::numeric_limits<T>::min();
  if (v > static_cast<std::int64_t>(std::numeric_limits<T>::max())) return std::numeric_limits<T>::max();
  return static_cast<T>(v);
}

// The scale-factor rule for exact results below 2^50 in magnitude: integer
// division with ties to even for positive scale factors; for negative ones
// the product is formed exactly in long double (a power-of-two scaling)
// and saturated.
template <class T>
T scale_model(std::int64_t r, int sf) {
  if (sf > 62) return 0;
  if (sf > 0) return saturate_to<T>(div_round_even(r, std::int64_t{1} << sf));
  const long double v = std::ldexp(static_cast<long double>(r), -sf);
  if (v >= static_cast<long double>(std::numeric_limits<T>::max())) return std::numeric_limits<T>::max();
  if (v <= static_cast<long double>(std::numeric_limits<T>::min())) return std::numeric_limits<T>::min();
  return static_cast<T>(static_cast<std::int64_t>(v));
}

}  // namespace kels::test

#endif  // KELS_TESTS_STATS_UTIL_H
