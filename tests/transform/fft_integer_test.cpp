// Integer complex FFT: the exact transform (long double) times the record's
// scale and 2^-scaleFactor, rounded to nearest even and saturated, for both
// layouts and both widths; a result may differ from the correctly rounded
// value only by one unit and only when the exact value lies within 1e-6 of a
// rounding boundary.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "frame/malloc.h"
#include "kels.h"
#include "reference/dft.h"
#include "support/targets.h"
#include "transform/fft_families.h"

namespace kels::test {
namespace {

using ref::cld;

// One integer family: I is the scalar type; split selects separate arrays.
#define KELS_TEST_INT_FAMILY(Name, I, C, code, fam, split_)                                       \
  struct Name {                                                                                   \
    using Int = I;                                                                                \
    using FftRecord = KelsFFTSpec_##fam;                                                               \
    static constexpr bool split = split_;                                                         \
    static KelStatus init_alloc(FftRecord** pp, int o, int f) { return kelsFFTInitAlloc_##fam(pp, o, f, 0); } \
    static KelStatus release(FftRecord* s) { return kelsFFTFree_##fam(s); }                            \
    static KelStatus init(FftRecord** pp, int o, int f, Kel8u* m, Kel8u* b) {                          \
      return kelsFFTInit_##fam(pp, o, f, 0, m, b);                                                \
    }                                                                                             \
    static KelStatus buf_size(const FftRecord* s, int* n) { return kelsFFTGetBufSize_##fam(s, n); }    \
    static KelStatus run(bool inv, const I* sr, const I* si, I* dr, I* di, const FftRecord* s, int sf, \
                         Kel8u* b) {                                                              \
      return call_##split_(inv, sr, si, dr, di, s, sf, b);                                         \
    }                                                                                             \
    static KelStatus call_false(bool inv, const I* sr, const I*, I* dr, I*, const FftRecord* s, int sf, \
                                Kel8u* b) {                                                       \
      const C* src = reinterpret_cast<const C*>(sr);                                              \
      C* dst = reinterpret_cast<C*>(dr);                                                          \
      const auto* sp = reinterpret_cast<const KelsFFTSpec_C_##code##c*>(s);                       \
      return inv ? kelsFFTInv_CToC_##code##c_Sfs(src, dst, sp, sf, b)                             \
                 : kelsFFTFwd_CToC_##code##c_Sfs(src, dst, sp, sf, b);                            \
    }                                                                                             \
    static KelStatus call_true(bool inv, const I* sr, const I* si, I* dr, I* di, const FftRecord* s,   \
                               int sf, Kel8u* b) {                                                \
      const auto* sp = reinterpret_cast<const KelsFFTSpec_C_##code*>(s);                          \
      return inv ? kelsFFTInv_CToC_##code##_Sfs(sr, si, dr, di, sp, sf, b)                        \
                 : kelsFFTFwd_CToC_##code##_Sfs(sr, si, dr, di, sp, sf, b);                       \
    }                                                                                             \
  };

// call_true (split arrays) and call_false (interleaved) exist for every
// width; run() picks the family's own layout.
KELS_TEST_INT_FAMILY(Int16sc, Kel16s, Kel16sc, 16s, C_16sc, false)
KELS_TEST_INT_FAMILY(Int16s, Kel16s, Kel16sc, 16s, C_16s, true)
KELS_TEST_INT_FAMILY(Int32sc, Kel32s, Kel32sc, 32s, C_32sc, false)
KELS_TEST_INT_FAMILY(Int32s, Kel32s, Kel32sc, 32s, C_32s, true)

template <class F>
class FftInteger : public ::testing::Test {};
using IntFamilies = ::testing::Types<Int16sc, Int16s, Int32sc, Int32s>;
TYPED_TEST_SUITE(FftInteger, IntFamilies);

template <class I>
long double round_even_sat(long double y) {
  const long double lo = std::numeric_limits<I>::min(), hi = std::numeric_limits<I>::max();
  long double f = std::floor(y);
  const long double d = y - f;
  if (d > 0.5L || (d == 0.5L && std::fmod(f, 2.0L) != 0)) f += 1;
  return f < lo ? lo : (f > hi ? hi : f);
}

template <class F>
void check(int order, int flag, int sf, bool inv, bool in_place, bool null_buf, long double amp) {
  using I = typename F::Int;
  typename F::FftRecord* record = nullptr;
  ASSERT_EQ(F::init_alloc(&record, order, flag), kelStsOk);
  const std::size_t n = std::size_t{1} << order;
  std::mt19937 gen(static_cast<unsigned>(order * 131 + sf));
  std::uniform_real_distribution<double> u(-1, 1);
  Guarded<I> a(2 * n), b(2 * n);
  std::vector<cld> x(n);
  const std::size_t s = F::split ? 1 : 2;
  I* are = a.data();
  I* aim = F::split ? a.data() + n : a.data() + 1;
  I* bre = in_place ? are : b.data();
  I* bim = in_place ? aim : (F::split ? b.data() + n : b.data() + 1);
  for (std::size_t i = 0; i < n; ++i) {
    are[s * i] = static_cast<I>(std::llround(u(gen) * amp));
    aim[s * i] = static_cast<I>(std::llround(u(gen) * amp));
    x[i] = cld(are[s * i], aim[s * i]);
  }
  std::vector<Kel8u> buf;
  if (!null_buf) {
    int size = 0;
    ASSERT_EQ(F::buf_size(record, &size), kelStsOk);
    buf.resize(static_cast<std::size_t>(size) + 3);
  }
  ASSERT_EQ(F::run(inv, are, aim, bre, bim, record, sf, null_buf ? nullptr : buf.data() + 3), kelStsOk);
  auto y = order <= 11 ? ref::dft(x, inv) : ref::fft(x, inv);
  const long double nn = static_cast<long double>(n);
  long double sc = 1;
  if ((flag == 1 && !inv) || (flag == 2 && inv)) sc = 1 / nn;
  if (flag == 4) sc = 1 / std::sqrt(nn);
  sc = std::ldexp(sc, -sf);
  int off_by_one = 0;
  for (std::size_t i = 0; i < n; ++i) {
    const long double parts[2] = {y[i].real() * sc, y[i].imag() * sc};
    const I got[2] = {bre[s * i], bim[s * i]};
    for (int c = 0; c < 2; ++c) {
      const long double want = round_even_sat<I>(parts[c]);
      const long double diff = std::fabs(static_cast<long double>(got[c]) - want);
      const long double frac = parts[c] - std::floor(parts[c]);
      if (diff != 0) {
        ++off_by_one;
        EXPECT_LE(diff, 1) << "order " << order << " sf " << sf << " i " << i;
        EXPECT_LT(std::fabs(frac - 0.5L), 1e-6L) << "order " << order << " sf " << sf << " i " << i;
      }
    }
  }
  EXPECT_LE(off_by_one, 2);
  EXPECT_TRUE(a.guards_intact() && b.guards_intact());
  F::release(record);
}

TYPED_TEST(FftInteger, MatchesRoundedExactTransform) {
  using I = typename TypeParam::Int;
  const long double full = std::numeric_limits<I>::max();
  for (int order : {0, 1, 2, 3, 4, 7, 10, 12, 13}) {
    for (int flag : {1, 2, 4, 8}) {
      const int sf = flag == 8 ? order : 0;  // keeps unscaled sums in range
      check<TypeParam>(order, flag, sf, false, false, false, full / 2);
      check<TypeParam>(order, flag, sf, true, order % 2 == 1, true, full / 2);
    }
  }
}

TYPED_TEST(FftInteger, ScaleFactorsAndSaturation) {
  using I = typename TypeParam::Int;
  const long double full = std::numeric_limits<I>::max();
  for (int sf : {-3, -1, 0, 1, 2, 5, 40}) {
    check<TypeParam>(6, 8, sf, false, false, false, full / 8);  // saturates for small sf
    check<TypeParam>(3, 4, sf, true, true, false, 100);
  }
}

TYPED_TEST(FftInteger, BadArguments) {
  using F = TypeParam;
  using I = typename F::Int;
  typename F::FftRecord* record = nullptr;
  ASSERT_EQ(F::init_alloc(&record, 6, 8), kelStsOk);
  Guarded<I> a(128), b(128);
  I* bi = b.data() + (F::split ? 64 : 1);
  EXPECT_EQ(F::run(false, a.data(), a.data() + 1, b.data(), bi, nullptr, 0, nullptr), kelStsNullPtr);
  EXPECT_EQ(F::run(false, nullptr, a.data() + 1, b.data(), bi, record, 0, nullptr), kelStsNullPtr);
  KelsFFTSpec_C_64fc* other = nullptr;
  ASSERT_EQ(kelsFFTInitAlloc_C_64fc(&other, 6, 8, 0), kelStsOk);
  EXPECT_EQ(F::run(false, nullptr, nullptr, nullptr, nullptr,
                   reinterpret_cast<const typename F::FftRecord*>(other), 0, nullptr),
            kelStsBadContext);
  kelsFFTFree_C_64fc(other);
  fail_alloc_after(1);
  EXPECT_EQ(F::run(true, a.data(), a.data() + 64, b.data(), bi, record, 0, nullptr), kelStsNoMemory);
  fail_alloc_after(0);
  EXPECT_TRUE(b.untouched());
  F::release(record);
  const ReleasedSpec<F> gone(6);
  EXPECT_EQ(F::run(false, a.data(), a.data() + 64, b.data(), bi, gone.record, 0, nullptr), kelStsBadContext);
  EXPECT_TRUE(b.untouched());
}

}  // namespace
}  // namespace kels::test
