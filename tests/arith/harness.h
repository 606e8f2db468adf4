// One harness for every arithmetic member: it deduces the types from the
// function's signature, runs the member over random data, edge values and
// every scale-factor branch, and compares each element with the models of
// arith_model.h. It also checks the argument checks (null pointers first,
// then the length) and that a refused call writes nothing.
#ifndef KELS_TESTS_ARITH_HARNESS_H
#define KELS_TESTS_ARITH_HARNESS_H

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <string>
#include <vector>

#include "arith/arith_model.h"
#include "support/targets.h"

namespace kels::test {

// Scale factors covering every branch of every type: 0, 1, the general
// range, each type's zero-fill limit and its neighbours, the saturating
// left shifts and beyond.
inline const std::vector<int>& all_scale_factors() {
  static const std::vector<int> v = {0,  1,  2,  3,  5,  8,  9,  10, 15, 16, 17, 18, 19, 29, 30,
                                     31, 32, 33, 34, 40, 62, 63, 64, 65, 300, -1, -2, -5, -7, -8,
                                     -9, -14, -15, -16, -17, -30, -31, -32, -33, -300};
  return v;
}

// The signed 16-bit division's single-precision method, step by step.
inline Kel16s model_div16s(Kel16s x, Kel16s y, int sf) {
  float scale = 1.0f;
  for (int k = 0; k < sf && k < 400; ++k) scale *= 0.5f;
  for (int k = 0; k < -sf && k < 400; ++k) scale *= 2.0f;
  if (y == 0) return x == 0 ? 0 : (x > 0 ? 32767 : -32768);
  const float q = static_cast<float>(x) * scale / static_cast<float>(y);
  if (std::isnan(q)) return 0;
  if (q < -32768.0f) return -32768;
  if (q > 32767.0f) return 32767;
  const float t = q + 32768.5f;
  const int tr = static_cast<int>(t);
  return static_cast<Kel16s>((static_cast<float>(tr) == t && (tr & 1) ? tr - 1 : tr) - 32768);
}

template <class P>
P sign_bound(LD v) {
  return v > 0 ? std::numeric_limits<P>::max() : (v < 0 ? std::numeric_limits<P>::min() : P(0));
}

template <class T>
bool is_zero_elem(T v) {
  if constexpr (cplx_v<T>) return v.re == 0 && v.im == 0;
  else return v == 0;
}

// Expected integer (or integer-to-float) result of x op y.
template <class D, class TX, class TY>
D model_int(Op op, TX x, TY y, int sf) {
  using P = part_of_t<D>;
  if (op != Op::div) return ref_put<D>(exact(op, as_lc(x), as_lc(y)), sf);
  // Unsigned 16-bit quotients are at most 65535: above scale factor 16 the
  // destination is zero-filled before any element (or divisor) is looked at.
  if (std::is_same_v<D, Kel16u> && sf > 16) return D{};
  if constexpr (std::is_same_v<D, Kel16s> && std::is_same_v<TX, Kel16s>) {
    return model_div16s(x, y, sf);
  } else if constexpr (cplx_v<D> && cplx_v<TX> && cplx_v<TY>) {
    const LD a = x.re, b = x.im, c = y.re, d = y.im, den = c * c + d * d;
    if (den == 0) return D{sign_bound<P>(a), sign_bound<P>(b)};
    return D{ref_div<P>(a * c + b * d, den, sf), ref_div<P>(b * c - a * d, den, sf)};
  } else if constexpr (!cplx_v<D> && !cplx_v<TX> && !cplx_v<TY>) {
    if (y == 0) return sign_bound<D>(static_cast<LD>(x));
    return ref_div<D>(static_cast<LD>(x), static_cast<LD>(y), sf);
  } else {
    ADD_FAILURE() << "no division of these types";
    return D{};
  }
}

// Float results: real operations are correctly rounded IEEE operations;
// complex ones are compared with a long-double evaluation within a bound
// proportional to the magnitudes of the partial products.
template <class D, class TX, class TY>
::testing::AssertionResult float_matches(Op op, TX x, TY y, D got) {
  if constexpr (!cplx_v<D>) {
    D want;
    switch (op) {
      case Op::add: want = static_cast<D>(x) + static_cast<D>(y); break;
      case Op::sub: want = static_cast<D>(x) - static_cast<D>(y); break;
      case Op::mul: want = static_cast<D>(x) * static_cast<D>(y); break;
      default: want = static_cast<D>(x) / static_cast<D>(y); break;
    }
    if (std::memcmp(&want, &got, sizeof want) == 0 || (std::isnan(want) && std::isnan(got)) || want == got) {
      return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "want " << want << " got " << got;
  } else {
    using P = part_of_t<D>;
    const LC a = as_lc(x), b = as_lc(y);
    if constexpr (!cplx_v<TX>) {  // real times complex: two correctly rounded products
      const D want{static_cast<P>(x * y.re), static_cast<P>(x * y.im)};
      if (same(want, got)) return ::testing::AssertionSuccess();
      return ::testing::AssertionFailure() << "real-complex product differs";
    }
    LC want;
    LD scale_re, scale_im;
    if (op == Op::div) {
      const LD den = b.re * b.re + b.im * b.im;
      if (den == 0) {  // IEEE quotient by zero: infinities or NaN
        const bool ok = !std::isfinite(got.re) || got.re == 0 || !std::isfinite(got.im);
        return ok ? ::testing::AssertionSuccess() : ::testing::AssertionFailure() << "finite quotient by 0";
      }
      want = {(a.re * b.re + a.im * b.im) / den, (a.im * b.re - a.re * b.im) / den};
      scale_re = (std::fabs(a.re * b.re) + std::fabs(a.im * b.im)) / den;
      scale_im = (std::fabs(a.im * b.re) + std::fabs(a.re * b.im)) / den;
    } else {
      want = exact(op, a, b);
      if (op == Op::mul) {
        scale_re = std::fabs(a.re * b.re) + std::fabs(a.im * b.im);
        scale_im = std::fabs(a.re * b.im) + std::fabs(a.im * b.re);
      } else {
        scale_re = std::fabs(a.re) + std::fabs(b.re);
        scale_im = std::fabs(a.im) + std::fabs(b.im);
      }
    }
    const LD eps = std::numeric_limits<P>::epsilon();
    const LD tiny = std::numeric_limits<P>::denorm_min();
    if (std::fabs(got.re - want.re) <= 4 * eps * scale_re + tiny &&
        std::fabs(got.im - want.im) <= 4 * eps * scale_im + tiny) {
      return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "complex result off: got (" << got.re << ", " << got.im
                                         << ") want (" << static_cast<double>(want.re) << ", "
                                         << static_cast<double>(want.im) << ")";
  }
}

template <class T> constexpr bool float_data_v = std::is_floating_point_v<part_of_t<T>>;

// Element check of any member: x op y (or the quotient) against the model.
template <class D, class TX, class TY>
::testing::AssertionResult element_ok(Op op, TX x, TY y, int sf, D got) {
  if constexpr (float_data_v<D> && float_data_v<TX>) {
    return float_matches<D>(op, x, y, got);
  } else {
    const D want = model_int<D>(op, x, y, sf);
    if (same(want, got)) return ::testing::AssertionSuccess();
    if constexpr (cplx_v<D>) {
      return ::testing::AssertionFailure() << "want (" << +want.re << ", " << +want.im << ") got (" << +got.re
                                           << ", " << +got.im << ")";
    } else {
      return ::testing::AssertionFailure() << "want " << +want << " got " << +got << " (x=" << +x << ", y=" << +y << ")";
    }
  }
}

// Expected status of a successful call: a zero element of a divisor vector
// draws the warning, except where the 16u scale-factor shortcut zero-fills
// without looking at the data.
template <class D, class TY>
KelStatus expected_status(Op op, bool divisor_is_vector, const TY* y, std::size_t n, int sf) {
  if (op != Op::div || !divisor_is_vector) return kelStsOk;
  if (std::is_same_v<D, Kel16u> && sf > 16) return kelStsOk;
  for (std::size_t i = 0; i < n; ++i) {
    if (is_zero_elem(y[i])) return kelStsDivByZeroWarn;
  }
  return kelStsOk;
}

template <class T>
T nonzero_constant(std::mt19937& g) {
  for (;;) {
    const T v = random_value<T>(g);
    if (!is_zero_elem(v)) {
      if constexpr (!cplx_v<T> && !std::is_floating_point_v<T>) {
        if (v == 1) continue;  // avoid the copy shortcuts in the general runs
      }
      return v;
    }
  }
}

// One form of a member, called uniformly as call(p, q, d, len, sf): p is a
// vector operand (for the in-place forms, the initial content of d), q the
// other operand (a vector, or the constant q[0]); d receives p op q when
// p_left, else q op p. Runs every scale factor (when the member has one)
// and length against the models, then the argument checks: each pointer
// argument null (also with a bad length), then bad lengths, nothing
// written on failure.
template <class D, class P, class Q, class Call>
void run_form(const std::string& name, Op op, bool p_left, bool q_const, bool in_place, bool has_sf, Call call) {
  SCOPED_TRACE(name);
  std::mt19937 g(1234);
  for (int sf : has_sf ? all_scale_factors() : std::vector<int>{0}) {
    for (int len : {1, 3, 8, 17, 64, 131}) {
      const auto n = static_cast<std::size_t>(len);
      const auto p = random_vector<P>(n, g);
      const auto q = q_const ? std::vector<Q>{nonzero_constant<Q>(g)} : random_vector<Q>(n, g);
      Guarded<D> dst(n);
      if constexpr (std::is_same_v<P, D>) {
        if (in_place) std::copy(p.begin(), p.end(), dst.data());
      }
      // The divisor (right operand) draws the zero-divisor warning when it
      // is a vector.
      const KelStatus want = !p_left ? expected_status<D>(op, true, p.data(), n, sf)
                             : q_const ? kelStsOk : expected_status<D>(op, true, q.data(), n, sf);
      ASSERT_EQ(call(p.data(), q.data(), dst.data(), len, sf), want) << "sf " << sf << " len " << len;
      ASSERT_TRUE(dst.guards_intact());
      for (std::size_t i = 0; i < n; ++i) {
        const Q& qi = q[q_const ? 0 : i];
        const auto r = p_left ? element_ok<D>(op, p[i], qi, sf, dst[i]) : element_ok<D>(op, qi, p[i], sf, dst[i]);
        ASSERT_TRUE(r) << "sf " << sf << " len " << len << " i " << i;
      }
    }
  }
  const std::vector<P> p(4, P{});
  const std::vector<Q> q(4, nonzero_constant<Q>(g));
  Guarded<D> d(4);
  if (!in_place) {
    EXPECT_EQ(call(nullptr, q.data(), d.data(), 4, 0), kelStsNullPtr);
    EXPECT_EQ(call(nullptr, q.data(), d.data(), 0, 0), kelStsNullPtr);
  }
  if (!q_const) {
    EXPECT_EQ(call(p.data(), nullptr, d.data(), 4, 0), kelStsNullPtr);
  }
  EXPECT_EQ(call(p.data(), q.data(), nullptr, 4, 0), kelStsNullPtr);
  EXPECT_EQ(call(p.data(), q.data(), d.data(), 0, 0), kelStsBadLength);
  EXPECT_EQ(call(p.data(), q.data(), d.data(), -5, 0), kelStsBadLength);
  EXPECT_TRUE(d.untouched());
}

// Front ends by signature (S: the scale factor, if the member has one).
// Sub and Div compute pSrc2 - pSrc1 and pSrcDst - pSrc; the constant forms
// val op src when rev.
inline bool swapped(Op op) { return op == Op::sub || op == Op::div; }
template <class A, class B, class D, class... S>
void check_form(const char* name, Op op, bool, KelStatus (*fn)(const A*, const B*, D*, int, S...)) {
  run_form<D, A, B>(name, op, !swapped(op), false, false, sizeof...(S) > 0,
                    [fn](const A* a, const B* b, D* d, int n, [[maybe_unused]] int sf) { return fn(a, b, d, n, S(sf)...); });
}
template <class A, class D, class... S>
void check_form(const char* name, Op op, bool, KelStatus (*fn)(const A*, D*, int, S...)) {
  run_form<D, D, A>(name, op, swapped(op), false, true, sizeof...(S) > 0,
                    [fn](const D*, const A* a, D* d, int n, [[maybe_unused]] int sf) { return fn(a, d, n, S(sf)...); });
}
template <class A, class D, class... S>
void check_form(const char* name, Op op, bool rev, KelStatus (*fn)(const A*, A, D*, int, S...)) {
  run_form<D, A, A>(name, op, !rev, true, false, sizeof...(S) > 0,
                    [fn](const A* a, const A* v, D* d, int n, [[maybe_unused]] int sf) { return fn(a, *v, d, n, S(sf)...); });
}
template <class A, class D, class... S>
void check_form(const char* name, Op op, bool rev, KelStatus (*fn)(A, D*, int, S...)) {
  run_form<D, D, A>(name, op, !rev, true, true, sizeof...(S) > 0,
                    [fn](const D*, const A* v, D* d, int n, [[maybe_unused]] int sf) { return fn(*v, d, n, S(sf)...); });
}

// A member by name: the operation from its first word, "CRev" reversed.
template <class F>
void check_member(const char* name, F fn) {
  const std::string n(name);
  const Op op = n.rfind("Add", 0) == 0   ? Op::add
                : n.rfind("Sub", 0) == 0 ? Op::sub
                : n.rfind("Mul", 0) == 0 ? Op::mul
                                         : Op::div;
  check_form(name, op, n.find("CRev") != std::string::npos, fn);
}

}  // namespace kels::test

#endif  // KELS_TESTS_ARITH_HARNESS_H
