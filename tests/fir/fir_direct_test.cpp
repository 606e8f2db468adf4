// Caller-held (_Direct) FIR filters: the four forms of every member agree,
// outputs match the reference or the exact integer rules, and the checks
// come in the documented order.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <vector>

#include "fir_test_util.h"
#include "frame/scale.h"
#include "kels.h"
#include "support/targets.h"

namespace kels::test::fir {
namespace {

// The four forms of one member; F is the taps factor argument of the
// integer-taps members (or nothing), S the name suffix and scale factor.
#define KELS_TEST_DIRECT_FORMS(P, D, S, IS, F, ...)                                                        \
  static KelStatus one(Data x, Data* y, const Tap* t, int L, int f, Data* d, int* i, int sf) {            \
    (void)f, (void)sf;                                                                                     \
    return kelsFIROne##P##_Direct_##D##S(x, y, t, L F, d, i __VA_ARGS__);                                  \
  }                                                                                                        \
  static KelStatus one_i(Data* y, const Tap* t, int L, int f, Data* d, int* i, int sf) {                   \
    (void)f, (void)sf;                                                                                     \
    return kelsFIROne##P##_Direct_##D##IS(y, t, L F, d, i __VA_ARGS__);                                    \
  }                                                                                                        \
  static KelStatus block(const Data* x, Data* y, int n, const Tap* t, int L, int f, Data* d, int* i, int sf) { \
    (void)f, (void)sf;                                                                                     \
    return kelsFIR##P##_Direct_##D##S(x, y, n, t, L F, d, i __VA_ARGS__);                                  \
  }                                                                                                        \
  static KelStatus block_i(Data* y, int n, const Tap* t, int L, int f, Data* d, int* i, int sf) {          \
    (void)f, (void)sf;                                                                                     \
    return kelsFIR##P##_Direct_##D##IS(y, n, t, L F, d, i __VA_ARGS__);                                    \
  }
#define KELS_TEST_DIRECT_FLOAT(P, D) KELS_TEST_DIRECT_FORMS(P, D, , _I, , )
#define KELS_TEST_DIRECT_SFS(P, D) KELS_TEST_DIRECT_FORMS(P, D, _Sfs, _ISfs, , , sf)
#define KELS_TEST_DIRECT_FACTOR(P, D) KELS_TEST_DIRECT_FORMS(P, D, _Sfs, _ISfs, KELS_COMMA f, , sf)
#define KELS_COMMA ,

// (name, taps prefix, data code, taps type, data type, form, exact rule of
// its own: Q15 or integer taps with wrapping sums)
#define KELS_TEST_DIRECT_MEMBERS(X)                                          \
  X(D32f, , 32f, Kel32f, Kel32f, FLOAT, false)                              \
  X(D32fc, , 32fc, Kel32fc, Kel32fc, FLOAT, false)                          \
  X(D64f, , 64f, Kel64f, Kel64f, FLOAT, false)                              \
  X(D64fc, , 64fc, Kel64fc, Kel64fc, FLOAT, false)                          \
  X(D64f32f, 64f, 32f, Kel64f, Kel32f, FLOAT, false)                        \
  X(D64fc32fc, 64fc, 32fc, Kel64fc, Kel32fc, FLOAT, false)                  \
  X(D16s, , 16s, Kel16s, Kel16s, SFS, true)                                 \
  X(D32f16s, 32f, 16s, Kel32f, Kel16s, SFS, false)                          \
  X(D32fc16sc, 32fc, 16sc, Kel32fc, Kel16sc, SFS, false)                    \
  X(D64f16s, 64f, 16s, Kel64f, Kel16s, SFS, false)                          \
  X(D64f32s, 64f, 32s, Kel64f, Kel32s, SFS, false)                          \
  X(D64fc16sc, 64fc, 16sc, Kel64fc, Kel16sc, SFS, false)                    \
  X(D64fc32sc, 64fc, 32sc, Kel64fc, Kel32sc, SFS, false)                    \
  X(D32s16s, 32s, 16s, Kel32s, Kel16s, FACTOR, true)                        \
  X(D32sc16sc, 32sc, 16sc, Kel32sc, Kel16sc, FACTOR, true)

#define KELS_TEST_DIRECT_STRUCT(Name, P, D, Tap_, Data_, Form, own_rule) \
  struct Name {                                                          \
    using Tap = Tap_;                                                    \
    using Data = Data_;                                                  \
    static constexpr bool own = own_rule;                                \
    KELS_TEST_DIRECT_##Form(P, D)                                        \
  };
KELS_TEST_DIRECT_MEMBERS(KELS_TEST_DIRECT_STRUCT)
#define KELS_TEST_DIRECT_NAME(Name, ...) Name,
using DirectMembers = ::testing::Types<KELS_TEST_DIRECT_MEMBERS(KELS_TEST_DIRECT_NAME) D32f>;

template <class A>
class FirDirect : public ::testing::Test {};
TYPED_TEST_SUITE(FirDirect, DirectMembers);

constexpr int kSf = 2;

// The four forms from identical delay lines with a non-zero start index
// agree bit for bit; the outputs match the reference (members with an exact
// rule of their own are checked against it below) and the span
// d[idx..idx+L-1] ends up holding the last L inputs, oldest first.
TYPED_TEST(FirDirect, FourFormsAgreeAndMatchTheReference) {
  using A = TypeParam;
  using Data = typename A::Data;
  std::mt19937 g(31);
  for (int L : {1, 2, 4, 5, 16, 33, 50}) {
    const auto taps = random_taps<typename A::Tap>(L, g);
    for (int n : {1, std::max(1, L - 1), L, L + 1, L + 4, 3 * L + 7}) {
      const auto x = random_data<Data>(n, g);
      const auto d0 = random_data<Data>(L, g);
      std::vector<Data> d(2 * L), hist(L);
      for (int k = 0; k < L; ++k) d[k] = d[k + L] = d0[k];
      for (int j = 0; j < L; ++j) hist[j] = d[L / 2 + L - 1 - j];  // newest first
      std::vector<Data> da = d, db = d, dc = d, dd = d;
      int ia = L / 2, ib = ia, ic = ia, id = ia;
      std::vector<Data> ya(n), yb(n), yc = x, yd = x;
      ASSERT_EQ(A::block(x.data(), ya.data(), n, taps.data(), L, 1, da.data(), &ia, kSf), kelStsOk);
      for (int i = 0; i < n; ++i) {
        ASSERT_EQ(A::one(x[i], &yb[i], taps.data(), L, 1, db.data(), &ib, kSf), kelStsOk);
        ASSERT_EQ(A::one_i(&yd[i], taps.data(), L, 1, dd.data(), &id, kSf), kelStsOk);
      }
      ASSERT_EQ(A::block_i(yc.data(), n, taps.data(), L, 1, dc.data(), &ic, kSf), kelStsOk);
      EXPECT_TRUE(same_vec(ya, yb) && same_vec(ya, yc) && same_vec(ya, yd)) << "L=" << L << " n=" << n;
      EXPECT_TRUE(same_vec(da, db) && same_vec(da, dc) && same_vec(da, dd));
      EXPECT_EQ(ia, (L / 2 + n) % L);
      EXPECT_TRUE(ia == ib && ia == ic && ia == id);
      if constexpr (!A::own) expect_reference(taps, hist, x, ya.data(), kSf);
      for (int k = 0; k < L && n >= L; ++k) ASSERT_TRUE(same_bits(da[ia + k], x[n - L + k]));
    }
  }
}

TYPED_TEST(FirDirect, ChecksInOrderWithoutWriting) {
  using A = TypeParam;
  using Tap = typename A::Tap;
  using Data = typename A::Data;
  const int L = 4;
  std::vector<Tap> taps(L);
  Guarded<Data> y(3), d(2 * L);
  std::vector<Data> x(3);
  int idx = 0, bad = L, neg = -1;
  // One sample: output and taps, then tapsLen, then delay line and index, then the index value.
  EXPECT_EQ(A::one(x[0], nullptr, taps.data(), 0, 0, nullptr, nullptr, 0), kelStsNullPtr);
  EXPECT_EQ(A::one(x[0], y.data(), nullptr, 0, 0, d.data(), &idx, 0), kelStsNullPtr);
  EXPECT_EQ(A::one(x[0], y.data(), taps.data(), 0, 0, nullptr, nullptr, 0), kelStsBadFIRLength);
  EXPECT_EQ(A::one(x[0], y.data(), taps.data(), L, 0, nullptr, &idx, 0), kelStsNullPtr);
  EXPECT_EQ(A::one(x[0], y.data(), taps.data(), L, 0, d.data(), nullptr, 0), kelStsNullPtr);
  EXPECT_EQ(A::one(x[0], y.data(), taps.data(), L, 0, d.data(), &bad, 0), kelStsBadDelayIndex);
  EXPECT_EQ(A::one(x[0], y.data(), taps.data(), L, 0, d.data(), &neg, 0), kelStsBadDelayIndex);
  EXPECT_EQ(A::one_i(nullptr, taps.data(), L, 0, d.data(), &idx, 0), kelStsNullPtr);
  EXPECT_EQ(A::one_i(y.data(), taps.data(), L, 0, d.data(), &bad, 0), kelStsBadDelayIndex);
  // Block: source and destination, numIters, taps, tapsLen, delay line and index, index value.
  EXPECT_EQ(A::block(nullptr, y.data(), 0, nullptr, 0, 0, nullptr, nullptr, 0), kelStsNullPtr);
  EXPECT_EQ(A::block(x.data(), nullptr, 3, taps.data(), L, 0, d.data(), &idx, 0), kelStsNullPtr);
  EXPECT_EQ(A::block(x.data(), y.data(), 0, nullptr, 0, 0, nullptr, nullptr, 0), kelStsBadLength);
  EXPECT_EQ(A::block(x.data(), y.data(), 3, nullptr, 0, 0, nullptr, nullptr, 0), kelStsNullPtr);
  EXPECT_EQ(A::block(x.data(), y.data(), 3, taps.data(), 0, 0, nullptr, nullptr, 0), kelStsBadFIRLength);
  EXPECT_EQ(A::block(x.data(), y.data(), 3, taps.data(), L, 0, nullptr, &idx, 0), kelStsNullPtr);
  EXPECT_EQ(A::block(x.data(), y.data(), 3, taps.data(), L, 0, d.data(), &bad, 0), kelStsBadDelayIndex);
  EXPECT_EQ(A::block_i(nullptr, 3, taps.data(), L, 0, d.data(), &idx, 0), kelStsNullPtr);
  EXPECT_EQ(A::block_i(y.data(), 0, taps.data(), L, 0, d.data(), &idx, 0), kelStsBadLength);
  EXPECT_EQ(A::block_i(y.data(), 3, taps.data(), L, 0, d.data(), &neg, 0), kelStsBadDelayIndex);
  EXPECT_TRUE(y.untouched());
  EXPECT_TRUE(d.untouched());
  EXPECT_EQ(bad, L);
  EXPECT_EQ(neg, -1);
}

// ---- The exact integer rules.

// Q15 taps: wrapping 32-bit sum, shifted by scaleFactor + 15 with rounding
// to nearest even (left for negative shifts), saturated.
Kel16s q15_model(const std::vector<Kel16s>& taps, const std::vector<Kel16s>& span, int sf) {
  std::uint32_t s = 0;
  const std::size_t L = taps.size();
  for (std::size_t k = 0; k < L; ++k) s += static_cast<std::uint32_t>(taps[L - 1 - k] * span[k]);
  return kels::scale_rule<Kel16s>(static_cast<std::int32_t>(s), sf + 15);
}

TEST(FirDirectQ15, FollowsTheQ15Rule) {
  std::mt19937 g(41);
  for (int L : {1, 2, 3, 9, 40}) {
    for (int sf : {-20, -15, -3, 0, 1, 5, 16, 17, 40}) {
      const auto taps = random_data<Kel16s>(L, g);
      const auto x = random_data<Kel16s>(3 * L, g);
      std::vector<Kel16s> d(2 * L, 0), y(x.size()), hist(L, 0);
      int idx = 0;
      ASSERT_EQ(kelsFIR_Direct_16s_Sfs(x.data(), y.data(), static_cast<int>(x.size()), taps.data(), L, d.data(), &idx, sf),
                kelStsOk);
      for (std::size_t n = 0; n < x.size(); ++n) {
        hist.erase(hist.begin());
        hist.push_back(x[n]);  // oldest first
        ASSERT_EQ(y[n], q15_model(taps, hist, sf)) << "L=" << L << " sf=" << sf << " n=" << n;
      }
    }
  }
  // Worked values: 0.5 * 3 = 1.5 -> 2, 0.5 * 5 = 2.5 -> 2, -1.5 -> -2; and
  // 3 * 32767^2 = 3221028867, which wraps to -1073938429: >> 15 saturates.
  auto one = [](std::vector<Kel16s> taps, Kel16s hist, Kel16s x) {
    const int L = static_cast<int>(taps.size());
    std::vector<Kel16s> d(2 * L, hist);
    Kel16s y = 0;
    int i = 0;
    EXPECT_EQ(kelsFIROne_Direct_16s_Sfs(x, &y, taps.data(), L, d.data(), &i, 0), kelStsOk);
    return y;
  };
  EXPECT_EQ(one({16384}, 0, 3), 2);
  EXPECT_EQ(one({16384}, 0, 5), 2);
  EXPECT_EQ(one({16384}, 0, -3), -2);
  EXPECT_EQ(one({32767, 32767, 32767}, 32767, 32767), -32768);
}

// 32-bit taps: wrapping products and sum; shift = tapsFactor - scaleFactor
// clamped to -31..31; left shifts wrap, right shifts round to nearest even.
Kel16s factor_model(std::int32_t sum, int factor, int sf) {
  const std::int64_t s64 = static_cast<std::int64_t>(factor) - sf;
  const int sh = static_cast<int>(std::max<std::int64_t>(-31, std::min<std::int64_t>(31, s64)));
  std::int64_t v = sum;
  if (sh > 0) v = static_cast<std::int32_t>(static_cast<std::uint32_t>(sum) << sh);
  if (sh < 0) v = kels::shift_round_even(sum, -sh);
  return kels::saturate<Kel16s>(v);
}

TEST(FirDirectFactor, FollowsTheShiftRule) {
  std::mt19937 g(42);
  for (int L : {1, 2, 7}) {
    for (int factor : {-40, -31, -16, -1, 0, 3, 31, 40}) {
      for (int sf : {-3, 0, 2}) {
        auto taps = random_data<Kel32s>(L, g);
        for (auto& t : taps) t *= 97;  // wide taps: products and sums wrap
        const auto x = random_data<Kel16s>(2 * L + 3, g);
        std::vector<Kel16s> d(2 * L, 0), y(x.size());
        std::vector<Kel16s> hist(L, 0);
        int idx = 0;
        ASSERT_EQ(kelsFIR32s_Direct_16s_Sfs(x.data(), y.data(), static_cast<int>(x.size()), taps.data(), L, factor,
                                            d.data(), &idx, sf),
                  kelStsOk);
        for (std::size_t n = 0; n < x.size(); ++n) {
          hist.erase(hist.begin());
          hist.push_back(x[n]);
          std::uint32_t s = 0;
          for (int k = 0; k < L; ++k) {
            s += static_cast<std::uint32_t>(taps[L - 1 - k]) * static_cast<std::uint32_t>(static_cast<std::int32_t>(hist[k]));
          }
          ASSERT_EQ(y[n], factor_model(static_cast<std::int32_t>(s), factor, sf))
              << "L=" << L << " f=" << factor << " sf=" << sf;
        }
      }
    }
  }
  // Worked values on one tap and one sample.
  auto one = [](Kel32s tap, Kel16s x, int factor, int sf) {
    Kel16s d[2] = {0, 0}, y = 0;
    int i = 0;
    EXPECT_EQ(kelsFIROne32s_Direct_16s_Sfs(x, &y, &tap, 1, factor, d, &i, sf), kelStsOk);
    return y;
  };
  EXPECT_EQ(one(1, 1, 40, 0), -32768);           // 1 << 31 wraps to INT32_MIN
  EXPECT_EQ(one(1, 2, 40, 0), 0);                // 2 << 31 wraps to 0
  EXPECT_EQ(one(1 << 20, 4096, 0, 0), 0);        // the product 2^32 wraps to 0
  EXPECT_EQ(one(1 << 15, 1 << 15 >> 1, -40, 0), 0);  // 2^29 / 2^31 = 0.25 -> 0
  EXPECT_EQ(one(3 << 14, 1 << 15 >> 1, -31, 0), 0);  // 3 * 2^28 / 2^31 = 0.375 -> 0
  EXPECT_EQ(one(3, 1 << 14, -15, 0), 2);         // 1.5 -> 2
  EXPECT_EQ(one(5, 1 << 14, -15, 0), 2);         // 2.5 -> 2
  EXPECT_EQ(one(5, 1 << 14, -16, -1), 2);        // shift -15: the same
}

// The complex integer-taps form applies the shift rule to each part of the
// wrapped complex sum.
TEST(FirDirectFactor, ComplexPartsFollowTheShiftRule) {
  auto one = [](Kel32sc tap, Kel16sc x, int factor, int sf) {
    Kel16sc d[2] = {}, y{};
    int i = 0;
    EXPECT_EQ(kelsFIROne32sc_Direct_16sc_Sfs(x, &y, &tap, 1, factor, d, &i, sf), kelStsOk);
    return y;
  };
  auto is = [](Kel16sc y, int re, int im) { return y.re == re && y.im == im; };
  EXPECT_TRUE(is(one({1, 2}, {3, 4}, 0, 0), -5, 10));                 // (1+2i)(3+4i) = -5 + 10i
  EXPECT_TRUE(is(one({1, 2}, {3, 4}, -1, 0), -2, 5));                 // -2.5 -> -2, 5
  EXPECT_TRUE(is(one({1, 2}, {3, 4}, 0, -13), -32768, 32767));        // shift 13: -40960 and 81920 saturate
  EXPECT_TRUE(is(one({1 << 20, 0}, {4096, 4096}, 0, 0), 0, 0));       // products 2^32 wrap to 0
}

TEST(FirDirect32f, SumsSingleProductsInExtendedPrecision) {
  const float big = 16777216.0f;
  const Kel32f taps[5] = {1, 1, 1, 1, 1};
  Kel32f d[10] = {}, y = 0;
  int idx = 0;
  for (float v : {big, 1.0f, -big, 1.0f, 1.0f}) ASSERT_EQ(kelsFIROne_Direct_32f(v, &y, taps, 5, d, &idx), kelStsOk);
  EXPECT_EQ(y, 3.0f);  // exact; a single-precision running sum would give 2
  Kel32f d3[6] = {}, y3 = 0;
  int i3 = 0;
  for (float v : {big, 1.0f, 1.0f}) ASSERT_EQ(kelsFIROne_Direct_32f(v, &y3, taps, 3, d3, &i3), kelStsOk);
  EXPECT_EQ(y3, big + 2);
}

// Long blocks mix pieces whose sums the double-precision kernels form
// exactly with pieces that keep the extended-precision accumulation (a tiny
// sample, a subnormal, an infinity, all-zero stretches), both in the first
// L-1 outputs (which reach into the history) and after; every output equals
// the one-sample step's bit for bit, over two consecutive blocks from a
// random history and index, with tap counts on both sides of the 2049 up to
// which the first outputs are formed from a copy.
TEST(FirDirect32f, LongBlocksEqualOneSampleSteps) {
  std::mt19937 g(44);
  std::uniform_real_distribution<float> u(0.5f, 1.0f);
  auto sample = [&] { return u(g) * ((g() & 1) ? 1.f : -1.f); };
  for (int L : {4, 40, 300, 2049, 2100}) {
    std::vector<Kel32f> taps(static_cast<std::size_t>(L));
    for (auto& t : taps) t = sample();
    const int n = 3000;
    std::vector<Kel32f> x(2 * static_cast<std::size_t>(n));
    for (auto& v : x) v = sample();
    x[10] = 1e-30f;
    x[700] = 1e-30f;
    x[1300] = 1e-40f;
    for (int i = 1500; i < 1500 + 2 * L && i < 2 * n; ++i) x[static_cast<std::size_t>(i)] = 0;
    x[2500] = std::numeric_limits<float>::infinity();
    std::vector<Kel32f> d1(2 * static_cast<std::size_t>(L));
    for (int k = 0; k < L; ++k) d1[static_cast<std::size_t>(k)] = d1[static_cast<std::size_t>(k + L)] = sample();
    std::vector<Kel32f> d2 = d1, y1(x.size()), y2(x.size());
    int i1 = L / 3, i2 = L / 3;
    for (int b = 0; b < 2; ++b) {
      ASSERT_EQ(kelsFIR_Direct_32f(x.data() + b * n, y1.data() + b * n, n, taps.data(), L, d1.data(), &i1), kelStsOk);
    }
    for (std::size_t i = 0; i < x.size(); ++i) {
      ASSERT_EQ(kelsFIROne_Direct_32f(x[i], &y2[i], taps.data(), L, d2.data(), &i2), kelStsOk);
    }
    EXPECT_TRUE(same_vec(y1, y2)) << "L=" << L;
    EXPECT_TRUE(same_vec(d1, d2));
    EXPECT_EQ(i1, i2);
  }
}

}  // namespace
}  // namespace kels::test::fir
