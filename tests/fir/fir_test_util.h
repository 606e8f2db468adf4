// Helpers of the FIR tests: element traits, random data, and the reference
// filter (long double for float data; exact 64-bit integer sums for integer
// data with dyadic taps, so the expected integer outputs are exact).
#ifndef KELS_TESTS_FIR_FIR_TEST_UTIL_H
#define KELS_TESTS_FIR_FIR_TEST_UTIL_H

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include "frame/scale.h"
#include "kelcore.h"
#include "kels.h"

namespace kels::test::fir {

using LD = long double;
using CLD = std::complex<long double>;

template <class T> struct elem {
  using part = T;
  static constexpr bool complex = false;
};
#define KELS_TEST_COMPLEX(C, P) \
  template <> struct elem<C> { using part = P; static constexpr bool complex = true; };
KELS_TEST_COMPLEX(Kel16sc, Kel16s)
KELS_TEST_COMPLEX(Kel32sc, Kel32s)
KELS_TEST_COMPLEX(Kel32fc, Kel32f)
KELS_TEST_COMPLEX(Kel64fc, Kel64f)
#undef KELS_TEST_COMPLEX

template <class T> using part_t = typename elem<T>::part;
template <class T> constexpr bool is_int_v = std::is_integral_v<part_t<T>>;

template <class T> CLD to_c(const T& x) {
  if constexpr (elem<T>::complex) return CLD(static_cast<LD>(x.re), static_cast<LD>(x.im));
  else return CLD(static_cast<LD>(x), 0);
}
template <class T> T make(part_t<T> re, part_t<T> im) {
  if constexpr (elem<T>::complex) return T{re, im};
  else { (void)im; return re; }
}
template <class T> bool same_bits(const T& a, const T& b) { return std::memcmp(&a, &b, sizeof(T)) == 0; }

// Random samples: floats in [-1, 1); integers over a range that makes
// saturation occur now and then.
template <class T>
std::vector<T> random_data(std::size_t n, std::mt19937& g) {
  using P = part_t<T>;
  std::vector<T> v(n);
  auto one = [&]() -> P {
    if constexpr (std::is_floating_point_v<P>) {
      return static_cast<P>(std::uniform_real_distribution<double>(-1, 1)(g));
    } else if constexpr (sizeof(P) == 2) {
      return static_cast<P>(std::uniform_int_distribution<int>(-32768, 32767)(g));
    } else {
      return static_cast<P>(std::uniform_int_distribution<std::int32_t>(-(1 << 24), 1 << 24)(g));
    }
  };
  for (auto& x : v) {
    const P re = one();
    const P im = one();
    x = make<T>(re, im);
  }
  return v;
}

// Dyadic taps k / 2^8 (|k| <= 256) for float taps; integers up to 32766 for
// integer taps (already normalised).
template <class T>
std::vector<T> random_taps(std::size_t n, std::mt19937& g) {
  using P = part_t<T>;
  std::vector<T> v(n);
  auto one = [&]() -> P {
    const int k = std::uniform_int_distribution<int>(-256, 256)(g);
    if constexpr (std::is_floating_point_v<P>) return static_cast<P>(k / 256.0);
    else return static_cast<P>(k * 127);
  };
  for (auto& x : v) {
    const P re = one();
    const P im = one();
    x = make<T>(re, im);
  }
  return v;
}

// Reference outputs of the filter over `in`, with `history` holding the
// samples before in[0] newest first: y[n] = sum_j taps[j] * x[n-j], and
// mag[n] = sum_j |taps[j]| |x[n-j]|, the scale of the rounding error.
struct Ref {
  std::vector<CLD> y;
  std::vector<LD> mag;
};
template <class Tap, class Data>
Ref reference(const std::vector<Tap>& taps, const std::vector<Data>& history, const std::vector<Data>& in) {
  Ref r{std::vector<CLD>(in.size()), std::vector<LD>(in.size())};
  for (std::size_t n = 0; n < in.size(); ++n) {
    for (std::size_t j = 0; j < taps.size(); ++j) {
      const std::ptrdiff_t idx = static_cast<std::ptrdiff_t>(n) - static_cast<std::ptrdiff_t>(j);
      const std::size_t h = static_cast<std::size_t>(-idx - 1);
      const CLD x = idx >= 0 ? to_c(in[static_cast<std::size_t>(idx)]) : (h < history.size() ? to_c(history[h]) : CLD(0));
      r.y[n] += to_c(taps[j]) * x;
      r.mag[n] += std::abs(to_c(taps[j])) * std::abs(x);
    }
  }
  return r;
}

// Expected integer output part: the exact sum (an integer multiple of
// 2^-shift_in) scaled by 2^-sf, rounded to nearest even, saturated.
template <class P>
P expect_int(LD exact, int sf, int frac_bits) {
  const LD scaled_int = std::ldexp(exact, frac_bits);  // integer by construction
  return kels::scale_rule<P>(static_cast<std::int64_t>(scaled_int), sf + frac_bits);
}

template <class Data>
Data expect_value(const CLD& exact, int sf, int frac_bits) {
  using P = part_t<Data>;
  if constexpr (is_int_v<Data>) {
    return make<Data>(expect_int<P>(exact.real(), sf, frac_bits), expect_int<P>(exact.imag(), sf, frac_bits));
  } else {
    return make<Data>(static_cast<P>(exact.real()), static_cast<P>(exact.imag()));
  }
}

// Float outputs: |y - exact| <= k * L * eps * magnitude (+ a denormal floor).
template <class Data>
bool close(const Data& y, const CLD& exact, LD mag, std::size_t L, LD k = 4) {
  using P = part_t<Data>;
  const LD eps = std::numeric_limits<P>::epsilon();
  const LD tol = k * static_cast<LD>(L + 1) * eps * mag + 1e-30L;
  return std::abs(to_c(y) - exact) <= tol;
}

// Outputs (every stride-th) against the reference: integer data exactly by
// the rule of expect_value, float data within the bound of close().
template <class Tap, class Data>
void expect_reference(const std::vector<Tap>& taps, const std::vector<Data>& history, const std::vector<Data>& in,
                      const Data* out, int sf = 0, int frac_bits = 8, LD k = 4, std::size_t stride = 1) {
  const Ref ref = reference(taps, history, in);
  for (std::size_t n = 0; n < in.size(); n += stride) {
    if constexpr (is_int_v<Data>) {
      ASSERT_TRUE(same_bits(out[n], expect_value<Data>(ref.y[n], sf, frac_bits))) << "L=" << taps.size() << " n=" << n;
    } else {
      ASSERT_TRUE(close(out[n], ref.y[n], ref.mag[n], taps.size(), k)) << "L=" << taps.size() << " n=" << n;
    }
  }
}

// History read back: the last L samples of (old history, inputs), newest first.
template <class Data>
std::vector<Data> expected_history(const std::vector<Data>& history, const std::vector<Data>& in, std::size_t L) {
  std::vector<Data> e(L);
  for (std::size_t i = 0; i < L; ++i) e[i] = i < in.size() ? in[in.size() - 1 - i] : history[i - in.size()];
  return e;
}

template <class Data>
bool same_vec(const std::vector<Data>& a, const std::vector<Data>& b) {
  return a.size() == b.size() &&
         std::equal(a.begin(), a.end(), b.begin(), [](const Data& x, const Data& y) { return same_bits(x, y); });
}

// Sets the library's thread count for a scope.
struct ThreadCount {
  int saved = kel_get_num_threads();
  explicit ThreadCount(int n) { kel_set_num_threads(n); }
  ~ThreadCount() { kel_set_num_threads(saved); }
};

}  // namespace kels::test::fir

#endif  // KELS_TESTS_FIR_FIR_TEST_UTIL_H
