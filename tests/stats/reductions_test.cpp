// Reductions on integer data against exact integer models, and on float
// data against long-double references: sums, means, standard deviations,
// norms, dot products, sums of logarithms and sliding sums.
#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "kels.h"
#include "stats_test_util.h"

namespace kels::test {
namespace {

constexpr int kScaleFactors[] = {-40, -31, -20, -15, -14, -3, -1, 0, 1, 2, 3, 7, 15, 16, 17, 31, 32, 40, 63, 100};
constexpr int kLengths[] = {1, 2, 3, 7, 16, 33, 100, 1000};

// Mean: exact rational rounding model of S * 2^-sf / n.
template <class P>
P mean_model(std::int64_t s, std::int64_t n, int sf) {
  if (sizeof(P) == 2 && sf >= 16) return 0;
  if (sizeof(P) == 2 && sf < -14) return s > 0 ? std::numeric_limits<P>::max() : (s < 0 ? std::numeric_limits<P>::min() : 0);
  if (sf >= 0) return saturate_to<P>(div_round_even(s, n << sf));
  return saturate_to<P>(div_round_even(s * (std::int64_t{1} << -sf), n));
}

TEST(StatsIntegerReductions, SumsAndMeansFollowTheScaleRule) {
  for (const int n : kLengths) {
    const auto a16 = random_data<Kel16s>(2 * n, 100 + n);
    const auto a32 = random_data<Kel32s>(n, 200 + n);
    std::int64_t s16 = 0, re = 0, im = 0, s32 = 0;
    for (int i = 0; i < n; ++i) {
      s16 += a16[i];
      re += a16[2 * i];
      im += a16[2 * i + 1];
      s32 += a32[i];
    }
    const auto* c16 = reinterpret_cast<const Kel16sc*>(a16.data());
    for (const int sf : kScaleFactors) {
      Kel32s r32 = 0;
      Kel16s r16 = 0;
      Kel32sc rc32{};
      Kel16sc rc16{};
      ASSERT_EQ(kelsSum_16s32s_Sfs(a16.data(), n, &r32, sf), kelStsOk);
      EXPECT_EQ(r32, scale_model<Kel32s>(s16, sf)) << n << " " << sf;
      ASSERT_EQ(kelsSum_16s_Sfs(a16.data(), n, &r16, sf), kelStsOk);
      EXPECT_EQ(r16, scale_model<Kel16s>(s16, sf)) << n << " " << sf;
      ASSERT_EQ(kelsSum_16sc32sc_Sfs(c16, n, &rc32, sf), kelStsOk);
      EXPECT_EQ(rc32.re, scale_model<Kel32s>(re, sf));
      EXPECT_EQ(rc32.im, scale_model<Kel32s>(im, sf));
      ASSERT_EQ(kelsSum_16sc_Sfs(c16, n, &rc16, sf), kelStsOk);
      EXPECT_EQ(rc16.re, scale_model<Kel16s>(re, sf));
      EXPECT_EQ(rc16.im, scale_model<Kel16s>(im, sf));
      ASSERT_EQ(kelsSum_32s_Sfs(a32.data(), n, &r32, sf), kelStsOk);
      if (std::abs(s32) < (std::int64_t{1} << 50)) {
        EXPECT_EQ(r32, scale_model<Kel32s>(s32, sf)) << n << " " << sf;
      }
      Kel16s m16 = 0;
      ASSERT_EQ(kelsMean_16s_Sfs(a16.data(), n, &m16, sf), kelStsOk);
      EXPECT_EQ(m16, mean_model<Kel16s>(s16, n, sf)) << n << " " << sf;
      Kel16sc mc{};
      ASSERT_EQ(kelsMean_16sc_Sfs(c16, n, &mc, sf), kelStsOk);
      EXPECT_EQ(mc.re, mean_model<Kel16s>(re, n, sf));
      EXPECT_EQ(mc.im, mean_model<Kel16s>(im, n, sf));
      if (sf >= -12 && sf <= 20) {
        Kel32s m32 = 0;
        ASSERT_EQ(kelsMean_32s_Sfs(a32.data(), n, &m32, sf), kelStsOk);
        EXPECT_EQ(m32, mean_model<Kel32s>(s32, n, sf)) << n << " " << sf;
      }
    }
  }
  // Ties to even, saturation, extreme scale factors: {value, count, sf, sum}.
  struct Case { Kel16s x; int n, sf; Kel32s want; };
  for (const Case c : {Case{3, 1, 1, 2}, Case{5, 1, 1, 2}, Case{-3, 1, 1, -2}, Case{-5, 1, 1, -2},
                       Case{1, 40000, 0, 40000}, Case{1, 1, -31, INT32_MAX}, Case{-1, 1, -31, INT32_MIN},
                       Case{-1, 1, -1000, INT32_MIN}, Case{-1, 1, 1000, 0}}) {
    const std::vector<Kel16s> v(c.n, c.x);
    Kel32s r = 0;
    ASSERT_EQ(kelsSum_16s32s_Sfs(v.data(), c.n, &r, c.sf), kelStsOk);
    EXPECT_EQ(r, c.want) << c.x << " x " << c.n << " sf " << c.sf;
  }
  const std::vector<Kel16s> ones(40000, 1);
  Kel16s r16 = 0;
  EXPECT_EQ(kelsSum_16s_Sfs(ones.data(), 40000, &r16, 0), kelStsOk);
  EXPECT_EQ(r16, 32767);
  // 2^16 extreme 32-bit values check the 64-bit accumulation.
  const std::vector<Kel32s> big(65536, std::numeric_limits<Kel32s>::min());
  Kel32s r32 = 0;
  kelsSum_32s_Sfs(big.data(), 65536, &r32, 16);
  EXPECT_EQ(r32, std::numeric_limits<Kel32s>::min());
  kelsSum_32s_Sfs(big.data(), 65536, &r32, 17);
  EXPECT_EQ(r32, std::numeric_limits<Kel32s>::min() / 2);
  // Mean ties ({1, 2} -> 1.5 -> 2, {2, 3} -> 2); scaleFactor 16 gives 0 for any
  // data; -15 saturates by the sign of the sum even when the scaled mean
  // would fit.
  struct MeanCase { std::vector<Kel16s> v; int sf; Kel16s want; };
  for (const MeanCase& c : {MeanCase{{1, 2}, 0, 2}, MeanCase{{2, 3}, 0, 2}, MeanCase{{-2, -3}, 0, -2}, MeanCase{{32767, 32767}, 16, 0},
                            MeanCase{{1, 0, 0, 0}, -15, 32767}, MeanCase{{-1, 0, 0, 0}, -15, -32768},
                            MeanCase{{1, -1, 0, 0}, -15, 0}, MeanCase{{1, 0, 0, 0}, -14, 4096}}) {
    Kel16s m = 0;
    ASSERT_EQ(kelsMean_16s_Sfs(c.v.data(), static_cast<int>(c.v.size()), &m, c.sf), kelStsOk);
    EXPECT_EQ(m, c.want) << c.v[0] << " sf " << c.sf;
  }
}

// StdDev of 16-bit data: checks that the result r is the correctly rounded
// value of sqrt(num / den) * 2^-sf with exact integer comparisons:
// (2r - 1)^2 den 4^sf <= 4 num <= (2r + 1)^2 den 4^sf.
void expect_rounded_root(std::int64_t r, std::int64_t num, std::int64_t den, int sf, std::int64_t max,
                         const char* what) {
  if (r == max) {
    // Saturated: the true value is at least max - 1/2.
    EXPECT_GE(4.0L * num, (2.0L * r - 1) * (2.0L * r - 1) * den * std::ldexp(1.0L, 2 * sf)) << what;
    return;
  }
  const long double scale = std::ldexp(1.0L, 2 * sf);  // exact power of two
  const long double lo = (2.0L * r - 1) * (2.0L * r - 1) * den * scale;
  const long double hi = (2.0L * r + 1) * (2.0L * r + 1) * den * scale;
  EXPECT_LE(r == 0 ? 0.0L : lo, 4.0L * num) << what << " r=" << r;
  EXPECT_GE(hi, 4.0L * num) << what << " r=" << r;
}

TEST(StatsIntegerReductions, StdDevAndL2AreCorrectlyRoundedRoots) {
  for (const int n : kLengths) {
    if (n < 2) continue;
    auto a = random_data<Kel16s>(n, 500 + n);
    std::int64_t s1 = 0, s2 = 0;
    for (int i = 0; i < n; ++i) {
      s1 += a[i];
      s2 += std::int64_t{a[i]} * a[i];
    }
    const std::int64_t num = n * s2 - s1 * s1;  // < 2^51 for n <= 1000
    const std::int64_t den = std::int64_t{n} * (n - 1);
    for (const int sf : {-2, -1, 0, 1, 2, 5, 9}) {
      Kel16s r16 = 0;
      Kel32s r32 = 0;
      ASSERT_EQ(kelsStdDev_16s_Sfs(a.data(), n, &r16, sf), kelStsOk);
      expect_rounded_root(r16, num, den, sf, 32767, "StdDev_16s");
      ASSERT_EQ(kelsStdDev_16s32s_Sfs(a.data(), n, &r32, sf), kelStsOk);
      expect_rounded_root(r32, num, den, sf, 2147483647, "StdDev_16s32s");
      ASSERT_EQ(kelsNorm_L2_16s32s_Sfs(a.data(), n, &r32, sf), kelStsOk);
      expect_rounded_root(r32, s2, 1, sf, 2147483647, "Norm_L2_16s32s");
    }
  }
  const Kel16s same[2] = {-7, -7};
  Kel16s r = 5;
  EXPECT_EQ(kelsStdDev_16s_Sfs(same, 2, &r, 0), kelStsOk);
  EXPECT_EQ(r, 0);
  // Largest spread: {-32768, 32767} has deviation 65535 / sqrt(2) = 46340.3.
  const Kel16s ext[2] = {-32768, 32767};
  Kel32s r32 = 0;
  kelsStdDev_16s32s_Sfs(ext, 2, &r32, 0);
  EXPECT_EQ(r32, 46340);
  kelsStdDev_16s_Sfs(ext, 2, &r, 0);
  EXPECT_EQ(r, 32767);
}

TEST(StatsIntegerReductions, IntegerNormsFollowTheirRules) {
  for (const int n : {1, 5, 40, 1000, 70000, 140001}) {
    const auto a = random_data<Kel16s>(n, 600 + n), b = random_data<Kel16s>(n, 700 + n);
    for (const bool diff : {false, true}) {
      std::uint64_t inf = 0, l1 = 0, l2 = 0;
      for (int i = 0; i < n; ++i) {
        const std::int64_t d = diff ? std::int64_t{a[i]} - b[i] : a[i];
        const std::uint64_t m = static_cast<std::uint64_t>(d < 0 ? -d : d);
        inf = m > inf ? m : inf;
        l1 += m;
        l2 += m * m;
      }
      auto norm = [&](auto one, auto two, auto* out, auto... sf) {
        return diff ? two(a.data(), b.data(), n, out, sf...) : one(a.data(), n, out, sf...);
      };
      Kel32f f = 0;
      ASSERT_EQ(norm(kelsNorm_Inf_16s32f, kelsNormDiff_Inf_16s32f, &f), kelStsOk);
      EXPECT_EQ(f, static_cast<float>(inf));
      ASSERT_EQ(norm(kelsNorm_L1_16s32f, kelsNormDiff_L1_16s32f, &f), kelStsOk);
      EXPECT_EQ(f, static_cast<float>(l1));
      ASSERT_EQ(norm(kelsNorm_L2_16s32f, kelsNormDiff_L2_16s32f, &f), kelStsOk);
      EXPECT_EQ(f, static_cast<float>(std::sqrt(static_cast<long double>(l2))));
      for (const int sf : kScaleFactors) {
        Kel32s r = 0;
        Kel64s r64 = 0;
        ASSERT_EQ(norm(kelsNorm_Inf_16s32s_Sfs, kelsNormDiff_Inf_16s32s_Sfs, &r, sf), kelStsOk);
        const std::uint64_t want_inf = sf >= 32 ? 0
                                       : sf >= 0 ? inf >> sf
                                                 : std::min<std::uint64_t>(inf << std::min(-sf, 31), 2147483647u);
        EXPECT_EQ(static_cast<std::uint64_t>(r), want_inf) << n << " " << sf;
        ASSERT_EQ(norm(kelsNorm_L1_16s32s_Sfs, kelsNormDiff_L1_16s32s_Sfs, &r, sf), kelStsOk);
        EXPECT_EQ(r, scale_model<Kel32s>(static_cast<std::int64_t>(l1), sf)) << n << " " << sf;
        ASSERT_EQ(norm(kelsNorm_L1_16s64s_Sfs, kelsNormDiff_L1_16s64s_Sfs, &r64, sf), kelStsOk);
        EXPECT_EQ(r64, scale_model<Kel64s>(static_cast<std::int64_t>(l1), sf));
        ASSERT_EQ(norm(kelsNorm_L2Sqr_16s64s_Sfs, kelsNormDiff_L2Sqr_16s64s_Sfs, &r64, sf), kelStsOk);
        if (l2 < (std::uint64_t{1} << 50)) {
          EXPECT_EQ(r64, scale_model<Kel64s>(static_cast<std::int64_t>(l2), sf)) << n << " " << sf;
        }
      }
    }
  }
  // Magnitude of -32768, truncation (not rounding), saturation, and the
  // scale factor clamped at -31.
  struct Case { Kel16s x; int sf; Kel32s want; };
  for (const Case c : {Case{-32768, 0, 32768}, Case{3, 1, 1}, Case{-32768, -16, INT32_MAX}, Case{3, -100, INT32_MAX}}) {
    Kel32s r = 0;
    kelsNorm_Inf_16s32s_Sfs(&c.x, 1, &r, c.sf);
    EXPECT_EQ(r, c.want) << c.x << " sf " << c.sf;
  }
  // The largest squared difference sum, beyond 2^63 in the exact domain of
  // 64-bit unsigned: 2^31 elements are impractical; 65535^2 * 2^20 checks the
  // block and 64-bit accumulation with sf = 40 exactly.
  const std::vector<Kel16s> lo(1 << 20, -32768), hi(1 << 20, 32767);
  Kel64s r64 = 0;
  kelsNormDiff_L2Sqr_16s64s_Sfs(hi.data(), lo.data(), 1 << 20, &r64, 40);
  EXPECT_EQ(r64, 4096);  // 65535^2 * 2^20 / 2^40 = 4095.875 -> 4096
  Kel32s r = 0;
  kelsNormDiff_L1_16s32s_Sfs(hi.data(), lo.data(), 1 << 20, &r, 0);
  EXPECT_EQ(r, 2147483647);  // 65535 * 2^20 saturates
  kelsNormDiff_L1_16s64s_Sfs(hi.data(), lo.data(), 1 << 20, &r64, 0);
  EXPECT_EQ(r64, Kel64s{65535} << 20);
}

// ---- Dot products of integer data.

template <class T>
std::int64_t part(const T& x, bool imag) {
  if constexpr (std::is_class_v<T>) return imag ? x.im : x.re;
  else return imag ? 0 : x;
}

// Runs a dot product member and checks each part of its result with
// expect(got, exact part, what). The exact sums stay below 2^63 for the
// data used here.
template <class A, class B, class R, class E, class... S>
void expect_dot(const char* what, KelStatus (*fn)(const A*, const B*, int, R*, S...), const A* a, const B* b, int n,
                E expect, [[maybe_unused]] int sf = 0) {
  std::int64_t re = 0, im = 0;
  for (int i = 0; i < n; ++i) {
    re += part(a[i], false) * part(b[i], false) - part(a[i], true) * part(b[i], true);
    im += part(a[i], false) * part(b[i], true) + part(a[i], true) * part(b[i], false);
  }
  R r{};
  ASSERT_EQ(fn(a, b, n, &r, S(sf)...), kelStsOk) << what;
  if constexpr (std::is_class_v<R>) {
    expect(r.re, re, what);
    expect(r.im, im, what);
  } else {
    expect(r, re, what);
  }
}

TEST(StatsIntegerReductions, DotProductsAreExactThenScaledWithClamps) {
  for (const int n : {1, 3, 17, 100, 1000}) {
    const auto s1 = random_data<Kel16s>(2 * n, 800 + n), s2 = random_data<Kel16s>(2 * n, 900 + n);
    // 32-bit data limited so that the model's 64-bit sums cannot overflow.
    auto w1 = random_data<Kel32s>(2 * n, 1000 + n), w2 = random_data<Kel32s>(2 * n, 1100 + n);
    for (auto& x : w1) x /= 4096;
    for (auto& x : w2) x /= 4096;
    const auto* c1 = reinterpret_cast<const Kel16sc*>(s1.data());
    const auto* c2 = reinterpret_cast<const Kel16sc*>(s2.data());
    const auto* wc1 = reinterpret_cast<const Kel32sc*>(w1.data());
    const auto* wc2 = reinterpret_cast<const Kel32sc*>(w2.data());
    // Unscaled results: exact 64-bit sums, or the exact sum rounded once.
    auto exact = [n](auto got, std::int64_t v, const char* what) { EXPECT_EQ(got, v) << what << " n=" << n; };
    auto rounded = [n](auto got, std::int64_t v, const char* what) {
      EXPECT_EQ(got, static_cast<decltype(got)>(static_cast<long double>(v))) << what << " n=" << n;
    };
    expect_dot("16s64s", kelsDotProd_16s64s, s1.data(), s2.data(), n, exact);
    expect_dot("16sc64sc", kelsDotProd_16sc64sc, c1, c2, n, exact);
    expect_dot("16s16sc64sc", kelsDotProd_16s16sc64sc, s1.data(), c2, n, exact);
    expect_dot("16s32f", kelsDotProd_16s32f, s1.data(), s2.data(), n, rounded);
    expect_dot("16sc32fc", kelsDotProd_16sc32fc, c1, c2, n, rounded);
    expect_dot("16s16sc32fc", kelsDotProd_16s16sc32fc, s1.data(), c2, n, rounded);
    for (const int sf : kScaleFactors) {
      // The rule with the scale factor clamped to -31..31 first; the 32-bit
      // results are checked where the model's sums are below 2^50.
      const int c = sf > 31 ? 31 : (sf < -31 ? -31 : sf);
      auto scaled = [n, sf, c](auto got, std::int64_t v, const char* what) {
        if (sizeof(got) == 2 || std::abs(v) < (std::int64_t{1} << 50)) {
          EXPECT_EQ(got, scale_model<decltype(got)>(v, c)) << what << " n=" << n << " sf=" << sf;
        }
      };
      expect_dot("16s", kelsDotProd_16s_Sfs, s1.data(), s2.data(), n, scaled, sf);
      expect_dot("16sc", kelsDotProd_16sc_Sfs, c1, c2, n, scaled, sf);
      expect_dot("16s16sc", kelsDotProd_16s16sc_Sfs, s1.data(), c2, n, scaled, sf);
      expect_dot("16s32s", kelsDotProd_16s32s_Sfs, s1.data(), s2.data(), n, scaled, sf);
      expect_dot("16sc32sc", kelsDotProd_16sc32sc_Sfs, c1, c2, n, scaled, sf);
      expect_dot("16s16sc32sc", kelsDotProd_16s16sc32sc_Sfs, s1.data(), c2, n, scaled, sf);
      expect_dot("16s32s32s", kelsDotProd_16s32s32s_Sfs, s1.data(), w2.data(), n, scaled, sf);
      expect_dot("32s", kelsDotProd_32s_Sfs, w1.data(), w2.data(), n, scaled, sf);
      expect_dot("32sc", kelsDotProd_32sc_Sfs, wc1, wc2, n, scaled, sf);
      expect_dot("32s32sc", kelsDotProd_32s32sc_Sfs, w1.data(), wc2, n, scaled, sf);
    }
  }
}

// Sums of 32 x 32-bit products beyond 64 bits: four products of 2^62 sum
// to 2^64, which a 64-bit accumulator would wrap to 0.
TEST(StatsIntegerReductions, WideDotProductsDoNotWrap) {
  const Kel32s a[4] = {INT32_MIN, INT32_MIN, INT32_MIN, INT32_MIN};
  Kel32s r = 0;
  ASSERT_EQ(kelsDotProd_32s_Sfs(a, a, 4, &r, 31), kelStsOk);
  EXPECT_EQ(r, 2147483647);  // 2^64 / 2^31 = 2^33 saturates
  ASSERT_EQ(kelsDotProd_32s_Sfs(a, a, 4, &r, 60), kelStsOk);
  EXPECT_EQ(r, 2147483647);  // the scale factor is clamped at 31
  const Kel32s b[4] = {INT32_MAX, INT32_MAX, INT32_MAX, INT32_MAX};
  ASSERT_EQ(kelsDotProd_32s_Sfs(a, b, 4, &r, 31), kelStsOk);
  EXPECT_EQ(r, -2147483647 - 1);
  // 2 * (2^31 - 1) * (-2^31) + 2 * 2^62 = 2^32: fits only after cancellation.
  const Kel32s c[4] = {INT32_MAX, INT32_MAX, INT32_MIN, INT32_MIN};
  ASSERT_EQ(kelsDotProd_32s_Sfs(a, c, 4, &r, 1), kelStsOk);
  EXPECT_EQ(r, 2147483647);  // 2^32 / 2 = 2^31 saturates
  ASSERT_EQ(kelsDotProd_32s_Sfs(a, c, 4, &r, 2), kelStsOk);
  EXPECT_EQ(r, 1 << 30);
  // Complex: (a + ia)(a + ia) = 2 i a^2 per element; re cancels exactly.
  const Kel32sc z[4] = {{INT32_MIN, INT32_MIN}, {INT32_MIN, INT32_MIN}, {INT32_MIN, INT32_MIN}, {INT32_MIN, INT32_MIN}};
  Kel32sc rc{};
  ASSERT_EQ(kelsDotProd_32sc_Sfs(z, z, 4, &rc, 31), kelStsOk);
  EXPECT_EQ(rc.re, 0);
  EXPECT_EQ(rc.im, 2147483647);
  // A negative scale factor saturates before shifting; ties to even.
  struct Case { Kel16s a, b; int sf; Kel16s want; };
  for (const Case c : {Case{1, 1, -14, 16384}, Case{1, 1, -15, 32767}, Case{1, -1, -15, -32768},
                       Case{1, -1, -1000, -32768}, Case{3, 1, 1, 2}, Case{3, -1, 1, -2}}) {
    Kel16s r16 = 0;
    kelsDotProd_16s_Sfs(&c.a, &c.b, 1, &r16, c.sf);
    EXPECT_EQ(r16, c.want) << c.a << " * " << c.b << " sf " << c.sf;
  }
}

#ifdef __SIZEOF_INT128__
// Full-range 32-bit data against a 128-bit model (64-bit hosts only).
Kel32s scale128(__int128 r, int sf) {
  const int c = sf > 31 ? 31 : (sf < -31 ? -31 : sf);
  __int128 q = r;
  if (c > 0) {
    const __int128 d = static_cast<__int128>(1) << c;
    q = r >> c;  // floor
    const __int128 rem = r - q * d;
    if (2 * rem > d || (2 * rem == d && (q & 1) != 0)) ++q;
  } else if (c < 0) {
    q = r * (static_cast<__int128>(1) << -c);
  }
  return q > INT32_MAX ? INT32_MAX : (q < INT32_MIN ? INT32_MIN : static_cast<Kel32s>(q));
}

TEST(StatsIntegerReductions, WideDotProductsMatchA128BitModel) {
  for (const int n : {1, 2, 5, 64, 1000}) {
    auto a = random_data<Kel32s>(2 * n, 1200 + n), b = random_data<Kel32s>(2 * n, 1300 + n);
    if (n == 64) {
      for (auto& x : a) x = x < 0 ? INT32_MIN : INT32_MAX;
      for (auto& x : b) x = x < 0 ? INT32_MIN : INT32_MAX;
    }
    __int128 rr = 0, cr = 0, ci = 0, mr = 0, mi = 0;
    for (int i = 0; i < n; ++i) {
      rr += static_cast<__int128>(a[i]) * b[i];
      const __int128 ar = a[2 * i], ai = a[2 * i + 1], br = b[2 * i], bi = b[2 * i + 1];
      cr += ar * br - ai * bi;
      ci += ar * bi + ai * br;
      mr += static_cast<__int128>(a[i]) * br;
      mi += static_cast<__int128>(a[i]) * bi;
    }
    const auto* ca = reinterpret_cast<const Kel32sc*>(a.data());
    const auto* cb = reinterpret_cast<const Kel32sc*>(b.data());
    for (int sf = -33; sf <= 70; ++sf) {
      Kel32s r = 0;
      Kel32sc c{};
      ASSERT_EQ(kelsDotProd_32s_Sfs(a.data(), b.data(), n, &r, sf), kelStsOk);
      EXPECT_EQ(r, scale128(rr, sf)) << n << " " << sf;
      ASSERT_EQ(kelsDotProd_32sc_Sfs(ca, cb, n, &c, sf), kelStsOk);
      EXPECT_EQ(c.re, scale128(cr, sf)) << n << " " << sf;
      EXPECT_EQ(c.im, scale128(ci, sf)) << n << " " << sf;
      ASSERT_EQ(kelsDotProd_32s32sc_Sfs(a.data(), cb, n, &c, sf), kelStsOk);
      EXPECT_EQ(c.re, scale128(mr, sf)) << n << " " << sf;
      EXPECT_EQ(c.im, scale128(mi, sf)) << n << " " << sf;
    }
  }
}
#endif

TEST(StatsIntegerReductions, SumWindowAndSumLn) {
  const auto a = random_data<Kel16s>(300, 42);
  std::vector<Kel8u> u(300);
  for (std::size_t i = 0; i < u.size(); ++i) u[i] = static_cast<Kel8u>(a[i]);
  for (const int w : {1, 2, 5, 64}) {
    const int n = 300 - w + 1;
    std::vector<Kel32f> d(n), e(n);
    ASSERT_EQ(kelsSumWindow_16s32f(a.data(), d.data(), n, w), kelStsOk);
    ASSERT_EQ(kelsSumWindow_8u32f(u.data(), e.data(), n, w), kelStsOk);
    for (int i = 0; i < n; ++i) {
      std::int64_t s = 0, t = 0;
      for (int k = 0; k < w; ++k) {
        s += a[i + k];
        t += u[i + k];
      }
      ASSERT_EQ(d[i], static_cast<float>(s)) << w << " " << i;
      ASSERT_EQ(e[i], static_cast<float>(t)) << w << " " << i;
    }
  }
  const Kel32f x[4] = {1.0f, 2.0f, 0.5f, 8.0f};
  Kel32f s = 0;
  Kel64f s64 = 0;
  ASSERT_EQ(kelsSumLn_32f(x, 4, &s), kelStsOk);
  EXPECT_FLOAT_EQ(s, std::log(8.0f));
  ASSERT_EQ(kelsSumLn_32f64f(x, 4, &s64), kelStsOk);
  EXPECT_NEAR(s64, std::log(8.0), 1e-15);
  const Kel64f y[3] = {1e300, 1e300, 1e-300};
  ASSERT_EQ(kelsSumLn_64f(y, 3, &s64), kelStsOk);  // the product would overflow
  EXPECT_NEAR(s64, 300 * std::log(10.0), 1e-12);
  const Kel16s z[3] = {3, 0, 7};
  ASSERT_EQ(kelsSumLn_16s32f(z, 3, &s), kelStsLnZeroArg);
  EXPECT_TRUE(std::isinf(s) && s < 0);
  const Kel32f neg[3] = {0.0f, -1.0f, 2.0f};
  ASSERT_EQ(kelsSumLn_32f(neg, 3, &s), kelStsLnNegArg);
  EXPECT_TRUE(std::isnan(s) && std::signbit(s));
  const Kel32f nan[2] = {1.0f, std::numeric_limits<float>::quiet_NaN()};
  EXPECT_EQ(kelsSumLn_32f(nan, 2, &s), kelStsLnNegArg);
}

}  // namespace
}  // namespace kels::test
