// The documented special behaviours of the arithmetic family: worked
// examples, the check order and shortcuts of the unsigned 16-bit forms, the
// constant shortcuts of kelsMulC_16s_Sfs, the division rules (zero divisors,
// the reversed 16u division's rounding, constant divisors) and IEEE results
// of float division.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "arith/harness.h"
#include "kels.h"

namespace kels::test {
namespace {

struct Add16Case {
  Kel16s a, b;
  int sf;
  Kel16s want;
};

class Add16sExamples : public ::testing::TestWithParam<Add16Case> {};

TEST_P(Add16sExamples, MatchesDocumentedValue) {
  const Add16Case c = GetParam();
  Kel16s d = 123;
  ASSERT_EQ(kelsAdd_16s_Sfs(&c.a, &c.b, &d, 1, c.sf), kelStsOk);
  EXPECT_EQ(d, c.want);
}

INSTANTIATE_TEST_SUITE_P(
    Arith, Add16sExamples,
    ::testing::Values(Add16Case{1, 2, 1, 2}, Add16Case{2, 3, 1, 2}, Add16Case{-1, -2, 1, -2}, Add16Case{2, 1, 1, 2},
                      Add16Case{4, 1, 1, 2}, Add16Case{-4, 1, 1, -2}, Add16Case{-4, -1, 1, -2},
                      Add16Case{30000, 30000, 0, 32767}, Add16Case{-30000, -30000, 0, -32768},
                      Add16Case{32767, 32767, 17, 0}, Add16Case{-32768, -32768, 17, 0},
                      Add16Case{-32768, -32768, 16, -1}, Add16Case{1, 0, -16, 32767}, Add16Case{-1, 0, -16, -32768},
                      Add16Case{5, -5, -16, 0}, Add16Case{1, 0, -15, 32767}, Add16Case{-1, 0, -15, -32768},
                      Add16Case{3, 3, 2, 2}, Add16Case{5, 5, 2, 2}, Add16Case{7, 7, 2, 4}));

// kelsAddC_16u_Sfs tests the scale factor before the pointers; each shortcut
// returns the status of the zero-fill, set or copy it delegates to.
TEST(ArithU16, AddCScaleFactorShortcutsComeFirst) {
  std::vector<Kel16u> src = {1, 2, 65535, 0};
  Guarded<Kel16u> dst(4);
  EXPECT_EQ(kelsAddC_16u_Sfs(src.data(), 7, nullptr, 4, 18), kelStsNullPtr);  // the zero-fill's
  EXPECT_EQ(kelsAddC_16u_Sfs(nullptr, 7, dst.data(), 4, 18), kelStsNullPtr);
  EXPECT_EQ(kelsAddC_16u_Sfs(src.data(), 7, dst.data(), 0, 18), kelStsBadLength);
  EXPECT_TRUE(dst.untouched());
  ASSERT_EQ(kelsAddC_16u_Sfs(src.data(), 7, dst.data(), 4, 18), kelStsOk);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(dst[i], 0);
  // sf 17 is still computed: 65535 + 65535 = 131070 -> 1.
  Kel16u big = 65535, one;
  ASSERT_EQ(kelsAddC_16u_Sfs(&big, 65535, &one, 1, 17), kelStsOk);
  EXPECT_EQ(one, 1);

  EXPECT_EQ(kelsAddC_16u_Sfs(nullptr, 7, dst.data(), 4, -16), kelStsNullPtr);
  ASSERT_EQ(kelsAddC_16u_Sfs(src.data(), 7, dst.data(), 4, -16), kelStsOk);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(dst[i], 65535);
  // With val = 0 the general rule applies: a zero element stays zero.
  ASSERT_EQ(kelsAddC_16u_Sfs(src.data(), 0, dst.data(), 4, -16), kelStsOk);
  EXPECT_EQ(dst[3], 0);
  EXPECT_EQ(dst[0], 65535);

  Guarded<Kel16u> copy(4);
  EXPECT_EQ(kelsAddC_16u_Sfs(nullptr, 0, copy.data(), 4, 0), kelStsNullPtr);  // the copy's
  ASSERT_EQ(kelsAddC_16u_Sfs(src.data(), 0, copy.data(), 4, 0), kelStsOk);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(copy[i], src[static_cast<std::size_t>(i)]);
  ASSERT_EQ(kelsAddC_16u_ISfs(0, src.data(), 4, 0), kelStsOk);  // in place: unchanged
  EXPECT_EQ(src[2], 65535);
  EXPECT_TRUE(copy.guards_intact());
}

TEST(ArithU16, VectorFormsZeroFillAboveTheirLimit) {
  std::vector<Kel16u> a = {65535, 1}, b = {65535, 3};
  Kel16u d[2] = {9, 9};
  EXPECT_EQ(kelsAdd_16u_Sfs(nullptr, b.data(), d, 2, 18), kelStsNullPtr);
  EXPECT_EQ(kelsSub_16u_Sfs(a.data(), b.data(), nullptr, 2, 17), kelStsNullPtr);
  ASSERT_EQ(kelsMul_16u_Sfs(a.data(), b.data(), d, 2, 33), kelStsOk);
  EXPECT_EQ(d[0], 0);
  ASSERT_EQ(kelsMul_16u_Sfs(a.data(), b.data(), d, 2, 32), kelStsOk);  // 0xFFFE0001 / 2^32 -> 1
  EXPECT_EQ(d[0], 1);
  EXPECT_EQ(d[1], 0);
  // Division: above 16 the fill wins even over a zero divisor.
  std::vector<Kel16u> z = {0, 0};
  ASSERT_EQ(kelsDiv_16u_Sfs(z.data(), a.data(), d, 2, 17), kelStsOk);
  EXPECT_EQ(d[0], 0);
  ASSERT_EQ(kelsDiv_16u_Sfs(z.data(), a.data(), d, 2, 16), kelStsDivByZeroWarn);
  EXPECT_EQ(d[0], 65535);
  // The constant divisor 0 is refused after the pointer and length checks.
  EXPECT_EQ(kelsDivC_16u_Sfs(nullptr, 0, d, 2, 0), kelStsNullPtr);
  EXPECT_EQ(kelsDivC_16u_Sfs(a.data(), 0, d, 0, 0), kelStsBadLength);
  EXPECT_EQ(kelsDivC_16u_Sfs(a.data(), 0, d, 2, 0), kelStsDivByZero);
  EXPECT_EQ(kelsDivC_16u_Sfs(a.data(), 0, d, 2, 17), kelStsOk);  // scale factor first
}

TEST(ArithMulC16s, ConstantShortcuts) {
  std::vector<Kel16s> s = {-32768, -3, 3, 32767, 5};
  std::vector<Kel16s> d(5, 77);
  ASSERT_EQ(kelsMulC_16s_Sfs(s.data(), 0, d.data(), 5, -20), kelStsOk);
  for (Kel16s v : d) EXPECT_EQ(v, 0);
  ASSERT_EQ(kelsMulC_16s_Sfs(s.data(), 1, d.data(), 5, 0), kelStsOk);
  EXPECT_EQ(d, s);
  ASSERT_EQ(kelsMulC_16s_Sfs(s.data(), 1, d.data(), 5, 1), kelStsOk);  // general kernel, shift 1
  EXPECT_EQ(d, (std::vector<Kel16s>{-16384, -2, 2, 16384, 2}));
  ASSERT_EQ(kelsMulC_16s_ISfs(1, s.data(), 5, 0), kelStsOk);
  EXPECT_EQ(s[0], -32768);
  EXPECT_EQ(kelsMulC_16s_Sfs(nullptr, 0, d.data(), 5, 0), kelStsNullPtr);
  EXPECT_EQ(kelsMulC_16s_Sfs(s.data(), 0, d.data(), 0, 0), kelStsBadLength);
}

// (-2^31 - 2^31 i)^2 has the imaginary part 2^63, one past the 64-bit range.
TEST(ArithComplex32, ProductAtTheRangeEdge) {
  const Kel32sc m{std::numeric_limits<Kel32s>::min(), std::numeric_limits<Kel32s>::min()};
  for (int sf : {0, 1, 2, 31, 32, 33, 61, 62, 63, 64, -1}) {
    Kel32sc d{1, 1};
    ASSERT_EQ(kelsMul_32sc_Sfs(&m, &m, &d, 1, sf), kelStsOk);
    const LC r = exact(Op::mul, as_lc(m), as_lc(m));
    EXPECT_EQ(d.re, ref_scale<Kel32s>(r.re, sf)) << sf;
    EXPECT_EQ(d.im, ref_scale<Kel32s>(r.im, sf)) << sf;
  }
}

TEST(ArithDiv16s, ZeroDivisorValuesAndWarning) {
  std::vector<Kel16s> divisor = {0, 0, 0, 2, 3};
  std::vector<Kel16s> dividend = {-5, 0, 7, 5, -32768};
  std::vector<Kel16s> d(5);
  ASSERT_EQ(kelsDiv_16s_Sfs(divisor.data(), dividend.data(), d.data(), 5, 0), kelStsDivByZeroWarn);
  EXPECT_EQ(d, (std::vector<Kel16s>{-32768, 0, 32767, 2, -10923}));
  ASSERT_EQ(kelsDiv_16s_Sfs(divisor.data() + 3, dividend.data() + 3, d.data(), 2, -1), kelStsOk);
  EXPECT_EQ(d[0], 5);  // 5 * 2 / 2
  ASSERT_EQ(kelsDiv_16s_ISfs(divisor.data(), dividend.data(), 5, 1), kelStsDivByZeroWarn);
  EXPECT_EQ(dividend[0], -32768);
  EXPECT_EQ(dividend[3], 1);  // 5 / 2 / 2 = 1.25
}

// The reversed unsigned division: q = floor(val * 65536 / x), result
// (q + 32767 + 2 * bit16(q)) >> 16.
TEST(ArithDivCRev16u, DocumentedRounding) {
  Kel16u x = 2, d = 0;
  ASSERT_EQ(kelsDivCRev_16u(&x, 3, &d, 1), kelStsOk);
  EXPECT_EQ(d, 2);
  std::vector<Kel16u> all(65536);
  for (std::size_t i = 0; i < all.size(); ++i) all[i] = static_cast<Kel16u>(i);
  std::vector<Kel16u> out(all.size());
  for (Kel16u val : {1, 2, 3, 7, 255, 1000, 32767, 32768, 65535}) {
    ASSERT_EQ(kelsDivCRev_16u(all.data(), val, out.data(), 65536), kelStsDivByZeroWarn);
    EXPECT_EQ(out[0], 65535);
    for (std::uint32_t v = 1; v < 65536; ++v) {
      const std::uint32_t q = (static_cast<std::uint32_t>(val) << 16) / v;
      const std::uint32_t want = (q + 32767 + 2 * ((q >> 16) & 1)) >> 16;
      ASSERT_EQ(out[v], want) << val << " / " << v;
      // Never further than one half plus one ulp of the fraction from the
      // exact quotient.
      ASSERT_LE(std::fabs(static_cast<double>(val) / v - out[v]), 0.5 + 1.0 / 65536) << val << " / " << v;
    }
  }
  std::vector<Kel16u> src = {0, 4, 0};
  std::vector<Kel16u> dst = {9, 9, 9};
  ASSERT_EQ(kelsDivCRev_16u(src.data(), 0, dst.data(), 3), kelStsDivByZeroWarn);
  EXPECT_EQ(dst, (std::vector<Kel16u>{0, 0, 0}));
  std::vector<Kel16u> nz = {1, 4};
  ASSERT_EQ(kelsDivCRev_16u_I(0, nz.data(), 2), kelStsOk);
  EXPECT_EQ(nz, (std::vector<Kel16u>{0, 0}));
  ASSERT_EQ(kelsDivCRev_16u_I(0, src.data(), 3), kelStsDivByZeroWarn);  // scanned before the fill
  EXPECT_EQ(kelsDivCRev_16u(nullptr, 1, dst.data(), 3), kelStsNullPtr);
  EXPECT_EQ(kelsDivCRev_16u(src.data(), 1, dst.data(), 0), kelStsBadLength);
}

template <class T, class D, class F>
void expect_refused_zero(F fn, T zero) {
  std::vector<T> s(3);
  Guarded<D> d(3);
  EXPECT_EQ(fn(s.data(), zero, d.data(), 3), kelStsDivByZero);
  EXPECT_EQ(fn(nullptr, zero, d.data(), 3), kelStsNullPtr);
  EXPECT_EQ(fn(s.data(), zero, d.data(), 0), kelStsBadLength);
  EXPECT_TRUE(d.untouched());
}

TEST(ArithDivC, ZeroConstantIsRefusedAfterTheChecks) {
  auto sfs = [](auto fn) { return [fn](auto s, auto v, auto d, int n) { return fn(s, v, d, n, 0); }; };
  expect_refused_zero<Kel8u, Kel8u>(sfs(kelsDivC_8u_Sfs), 0);
  expect_refused_zero<Kel16u, Kel16u>(sfs(kelsDivC_16u_Sfs), 0);
  expect_refused_zero<Kel16s, Kel16s>(sfs(kelsDivC_16s_Sfs), 0);
  expect_refused_zero<Kel16sc, Kel16sc>(sfs(kelsDivC_16sc_Sfs), Kel16sc{0, 0});
  expect_refused_zero<Kel32f, Kel32f>(kelsDivC_32f, 0.0f);
  expect_refused_zero<Kel32f, Kel32f>(kelsDivC_32f, -0.0f);
  expect_refused_zero<Kel32f, Kel32f>(kelsDivC_32f, std::numeric_limits<float>::quiet_NaN());
  expect_refused_zero<Kel64f, Kel64f>(kelsDivC_64f, 0.0);
  expect_refused_zero<Kel32fc, Kel32fc>(kelsDivC_32fc, Kel32fc{0, 0});
  expect_refused_zero<Kel32fc, Kel32fc>(kelsDivC_32fc, Kel32fc{1e-30f, 0});  // re^2 underflows to 0
  expect_refused_zero<Kel64fc, Kel64fc>(kelsDivC_64fc, Kel64fc{0, -0.0});
  Kel16s v = 5;
  EXPECT_EQ(kelsDivC_16s_ISfs(0, &v, 1, 0), kelStsDivByZero);
  EXPECT_EQ(v, 5);
}

TEST(ArithDivFloat, ZeroDivisorGivesWarningAndIeeeResult) {
  const float inf = std::numeric_limits<float>::infinity();
  std::vector<float> divisor(40, 2.0f), dividend(40, 1.0f), d(40);
  divisor[3] = 0.0f;
  divisor[37] = -0.0f;
  dividend[5] = 0.0f;
  divisor[5] = 0.0f;
  ASSERT_EQ(kelsDiv_32f(divisor.data(), dividend.data(), d.data(), 40), kelStsDivByZeroWarn);
  EXPECT_EQ(d[3], inf);
  EXPECT_EQ(d[37], -inf);
  EXPECT_TRUE(std::isnan(d[5]));
  EXPECT_EQ(d[0], 0.5f);
  EXPECT_EQ(d[39], 0.5f);
  divisor[3] = divisor[37] = divisor[5] = 4.0f;
  EXPECT_EQ(kelsDiv_32f(divisor.data(), dividend.data(), d.data(), 40), kelStsOk);
  // A NaN divisor is not a zero divisor.
  divisor[1] = std::numeric_limits<float>::quiet_NaN();
  EXPECT_EQ(kelsDiv_32f(divisor.data(), dividend.data(), d.data(), 40), kelStsOk);

  std::vector<float> src = {1.0f, 0.0f, -4.0f};
  std::vector<float> rev(3);
  ASSERT_EQ(kelsDivCRev_32f(src.data(), -2.0f, rev.data(), 3), kelStsDivByZeroWarn);
  EXPECT_EQ(rev[0], -2.0f);
  EXPECT_EQ(rev[1], -inf);
  EXPECT_EQ(rev[2], 0.5f);

  std::vector<Kel64fc> cd = {{0, 0}, {1, 1}}, cn = {{1, 0}, {2, 0}}, co(2);
  ASSERT_EQ(kelsDiv_64fc(cd.data(), cn.data(), co.data(), 2), kelStsDivByZeroWarn);
  EXPECT_FALSE(std::isfinite(co[0].re));
  EXPECT_EQ(co[1].re, 1.0);
  EXPECT_EQ(co[1].im, -1.0);
}

TEST(ArithMulC32f16s, NonFiniteProducts) {
  const float inf = std::numeric_limits<float>::infinity();
  std::vector<float> s = {inf, -inf, std::numeric_limits<float>::quiet_NaN(), 1.5f, 2.5f, -2.5f};
  std::vector<Kel16s> d(6);
  ASSERT_EQ(kelsMulC_32f16s_Sfs(s.data(), 1.0f, d.data(), 6, 0), kelStsOk);
  EXPECT_EQ(d, (std::vector<Kel16s>{32767, -32768, 0, 2, 2, -2}));
  ASSERT_EQ(kelsMulC_32f16s_Sfs(s.data() + 3, 3.0f, d.data(), 3, 1), kelStsOk);  // 2.25, 3.75, -3.75
  EXPECT_EQ(d[0], 2);
  EXPECT_EQ(d[1], 4);
  EXPECT_EQ(d[2], -4);
  ASSERT_EQ(kelsMulC_Low_32f16s(s.data() + 3, 1.0f, d.data(), 3), kelStsOk);
  EXPECT_EQ(d[0], 2);
}

}  // namespace
}  // namespace kels::test
