// Real FFT: the three packed layouts against the long-double transform of
// the real signal, both directions, every flag, in place and out of place,
// small (straight-line) and large orders, argument checks.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "frame/malloc.h"
#include "transform/fft_families.h"

namespace kels::test {
namespace {

enum class Lay { Perm, Pack, Ccs };

#define KELS_TEST_REAL_FAMILY(Name, T, fam, code)                                                  \
  struct Name {                                                                                    \
    using Real = T;                                                                                \
    using FftRecord = KelsFFTSpec_##fam;                                                                \
    static KelStatus init_alloc(FftRecord** pp, int o, int f) { return kelsFFTInitAlloc_##fam(pp, o, f, 0); } \
    static KelStatus release(FftRecord* s) { return kelsFFTFree_##fam(s); }                             \
    static KelStatus init(FftRecord** pp, int o, int f, Kel8u* m, Kel8u* b) {                           \
      return kelsFFTInit_##fam(pp, o, f, 0, m, b);                                                 \
    }                                                                                              \
    static KelStatus buf_size(const FftRecord* s, int* n) { return kelsFFTGetBufSize_##fam(s, n); }     \
    static KelStatus fwd(Lay l, const T* s, T* d, const FftRecord* p, Kel8u* b) {                       \
      return l == Lay::Perm ? kelsFFTFwd_RToPerm_##code(s, d, p, b)                                \
           : l == Lay::Pack ? kelsFFTFwd_RToPack_##code(s, d, p, b)                                \
                            : kelsFFTFwd_RToCCS_##code(s, d, p, b);                                \
    }                                                                                              \
    static KelStatus inv(Lay l, const T* s, T* d, const FftRecord* p, Kel8u* b) {                       \
      return l == Lay::Perm ? kelsFFTInv_PermToR_##code(s, d, p, b)                                \
           : l == Lay::Pack ? kelsFFTInv_PackToR_##code(s, d, p, b)                                \
                            : kelsFFTInv_CCSToR_##code(s, d, p, b);                                \
    }                                                                                              \
    static KelStatus fwd_i(Lay l, T* x, const FftRecord* p, Kel8u* b) {                                 \
      return l == Lay::Perm ? kelsFFTFwd_RToPerm_##code##_I(x, p, b)                               \
           : l == Lay::Pack ? kelsFFTFwd_RToPack_##code##_I(x, p, b)                               \
                            : kelsFFTFwd_RToCCS_##code##_I(x, p, b);                               \
    }                                                                                              \
    static KelStatus inv_i(Lay l, T* x, const FftRecord* p, Kel8u* b) {                                 \
      return l == Lay::Perm ? kelsFFTInv_PermToR_##code##_I(x, p, b)                               \
           : l == Lay::Pack ? kelsFFTInv_PackToR_##code##_I(x, p, b)                               \
                            : kelsFFTInv_CCSToR_##code##_I(x, p, b);                               \
    }                                                                                              \
  };
KELS_TEST_REAL_FAMILY(Real32f, Kel32f, R_32f, 32f)
KELS_TEST_REAL_FAMILY(Real64f, Kel64f, R_64f, 64f)

template <class F>
class FftReal : public ::testing::Test {};
using RealFamilies = ::testing::Types<Real32f, Real64f>;
TYPED_TEST_SUITE(FftReal, RealFamilies);

// The packed array of the spectrum X (first N/2 + 1 values used).
std::vector<long double> pack(const std::vector<cld>& X, std::size_t n, Lay l) {
  std::vector<long double> p(l == Lay::Ccs ? (n == 1 ? 2 : n + 2) : n, 0);
  if (l == Lay::Ccs) {
    for (std::size_t k = 0; k <= n / 2; ++k) {
      p[2 * k] = X[k].real();
      p[2 * k + 1] = k == 0 || 2 * k == n ? 0 : X[k].imag();
    }
    return p;
  }
  p[0] = X[0].real();
  if (n == 1) return p;
  for (std::size_t k = 1; k < n / 2; ++k) {
    p[l == Lay::Perm ? 2 * k : 2 * k - 1] = X[k].real();
    p[l == Lay::Perm ? 2 * k + 1 : 2 * k] = X[k].imag();
  }
  p[l == Lay::Perm ? 1 : n - 1] = X[n / 2].real();
  return p;
}

long double rel_rms_real(const std::vector<long double>& a, const std::vector<long double>& b) {
  long double num = 0, den = 0;
  for (std::size_t i = 0; i < a.size(); ++i) {
    num += (a[i] - b[i]) * (a[i] - b[i]);
    den += b[i] * b[i];
  }
  return den == 0 ? std::sqrt(num) : std::sqrt(num / den);
}

template <class F>
void check(int order, int flag, Lay lay, bool in_place, bool null_buf) {
  using T = typename F::Real;
  typename F::FftRecord* record = nullptr;
  ASSERT_EQ(F::init_alloc(&record, order, flag), kelStsOk);
  const std::size_t n = std::size_t{1} << order;
  const std::size_t len = lay == Lay::Ccs ? (n == 1 ? 2 : n + 2) : n;
  std::mt19937 gen(static_cast<unsigned>(order * 7 + flag));
  std::uniform_real_distribution<double> u(-1, 1);
  std::vector<cld> xc(n);
  std::vector<long double> x(n);
  for (std::size_t i = 0; i < n; ++i) {
    x[i] = static_cast<T>(u(gen));
    xc[i] = cld(x[i], 0);
  }
  const auto X = order <= 11 ? ref::dft(xc, false) : ref::fft(xc, false);
  const long double nn = static_cast<long double>(n);
  const long double sf = flag == 1 ? 1 / nn : flag == 4 ? 1 / std::sqrt(nn) : 1;
  const long double si = flag == 2 ? 1 / nn : flag == 4 ? 1 / std::sqrt(nn) : 1;
  std::vector<Kel8u> buf;
  if (!null_buf) {
    int size = 0;
    ASSERT_EQ(F::buf_size(record, &size), kelStsOk);
    buf.resize(static_cast<std::size_t>(size) + 7);
  }
  Kel8u* b = null_buf ? nullptr : buf.data() + 7;
  // Forward.
  Guarded<T> a(len), d(len);
  for (std::size_t i = 0; i < n; ++i) a[i] = static_cast<T>(x[i]);
  const KelStatus st = in_place ? F::fwd_i(lay, a.data(), record, b) : F::fwd(lay, a.data(), d.data(), record, b);
  ASSERT_EQ(st, kelStsOk);
  T* out = in_place ? a.data() : d.data();
  auto want = pack(X, n, lay);
  for (auto& v : want) v *= sf;
  std::vector<long double> got(out, out + len);
  EXPECT_LE(rel_rms_real(got, want), fft_bound<T>(order))
      << "forward order " << order << " layout " << int(lay) << " flag " << flag;
  EXPECT_TRUE(a.guards_intact() && d.guards_intact());
  // Inverse of the exact spectrum.
  const auto spec_in = pack(X, n, lay);
  for (std::size_t i = 0; i < len; ++i) a[i] = static_cast<T>(spec_in[i]);
  const KelStatus st2 = in_place ? F::inv_i(lay, a.data(), record, b) : F::inv(lay, a.data(), d.data(), record, b);
  ASSERT_EQ(st2, kelStsOk);
  out = in_place ? a.data() : d.data();
  std::vector<long double> back(out, out + n), wantx(n);
  for (std::size_t i = 0; i < n; ++i) wantx[i] = x[i] * nn * si;
  EXPECT_LE(rel_rms_real(back, wantx), fft_bound<T>(order))
      << "inverse order " << order << " layout " << int(lay) << " flag " << flag;
  EXPECT_TRUE(a.guards_intact() && d.guards_intact());
  F::release(record);
}

TYPED_TEST(FftReal, LayoutsOrdersFlagsModes) {
  for (int order = 0; order <= 13; ++order)
    for (Lay lay : {Lay::Perm, Lay::Pack, Lay::Ccs})
      for (int flag : {1, 2, 4, 8}) check<TypeParam>(order, flag, lay, (order + flag) % 2 == 0, flag == 2);
}

// The recombination kernel of every target: orders where it is all scalar
// tail (4, 5) and where the vector loop runs, every layout, forward and
// inverse scaling, in place and out of place.
TYPED_TEST(FftReal, EveryTarget) {
  for_each_target([](const std::string&) {
    for (int order = 4; order <= 10; ++order)
      for (Lay lay : {Lay::Perm, Lay::Pack, Lay::Ccs})
        for (int flag : {1, 2}) check<TypeParam>(order, flag, lay, (order + flag) % 2 == 0, false);
  });
}

// Orders 0..5 run straight-line scalar code on every target: the results
// are the same bits everywhere, and with no work area a null buffer never
// needs an allocation (so it succeeds even when allocation would fail).
TYPED_TEST(FftReal, ShortOrdersSameOnEveryTargetWithoutAllocation) {
  using F = TypeParam;
  using T = typename F::Real;
  for (int order = 0; order <= 5; ++order) {
    for (int flag : {4, 8}) {
      typename F::FftRecord* record = nullptr;
      ASSERT_EQ(F::init_alloc(&record, order, flag), kelStsOk);
      const std::size_t n = std::size_t{1} << order;
      std::mt19937 gen(static_cast<unsigned>(order));
      std::uniform_real_distribution<double> u(-1, 1);
      std::vector<T> x(n + 2);
      for (auto& v : x) v = static_cast<T>(u(gen));
      std::vector<std::vector<T>> first;  // results of the first target
      for_each_target([&](const std::string& target) {
        std::vector<std::vector<T>> got;
        for (Lay lay : {Lay::Perm, Lay::Pack, Lay::Ccs}) {
          std::vector<T> y(n + 2, T(7)), z(n, T(7));
          fail_alloc_after(1);
          const KelStatus sf = F::fwd(lay, x.data(), y.data(), record, nullptr);
          const KelStatus si = F::inv(lay, x.data(), z.data(), record, nullptr);
          fail_alloc_after(0);
          EXPECT_EQ(sf, kelStsOk) << target << " order " << order;
          EXPECT_EQ(si, kelStsOk) << target << " order " << order;
          got.push_back(y);
          got.push_back(z);
        }
        if (first.empty()) first = got;
        for (std::size_t i = 0; i < got.size(); ++i) {
          EXPECT_EQ(std::memcmp(got[i].data(), first[i].data(), got[i].size() * sizeof(T)), 0)
              << target << " order " << order << " flag " << flag << " result " << i;
        }
      });
      F::release(record);
    }
  }
}

TYPED_TEST(FftReal, LargeOrders) {
  for (int order : {15, 18})
    for (Lay lay : {Lay::Perm, Lay::Pack, Lay::Ccs}) check<TypeParam>(order, 8, lay, order == 18, false);
}

// Forward N = 2 writes R0 = x0 + x1, R1 = x0 - x1 in every layout (CCS with
// zeros); N = 1 CCS writes x0 and 0.
TEST(FftRealSmall, DegenerateLengths) {
  KelsFFTSpec_R_32f* s1 = nullptr;
  KelsFFTSpec_R_32f* s2 = nullptr;
  ASSERT_EQ(kelsFFTInitAlloc_R_32f(&s1, 0, 8, 0), kelStsOk);
  ASSERT_EQ(kelsFFTInitAlloc_R_32f(&s2, 1, 8, 0), kelStsOk);
  const Kel32f x[2] = {3, 5};
  Kel32f y[4] = {9, 9, 9, 9};
  ASSERT_EQ(kelsFFTFwd_RToPack_32f(x, y, s2, nullptr), kelStsOk);
  EXPECT_EQ(y[0], 8);
  EXPECT_EQ(y[1], -2);
  ASSERT_EQ(kelsFFTFwd_RToCCS_32f(x, y, s2, nullptr), kelStsOk);
  EXPECT_EQ(y[0], 8);
  EXPECT_EQ(y[1], 0);
  EXPECT_EQ(y[2], -2);
  EXPECT_EQ(y[3], 0);
  Kel32f z[3] = {7, 9, 9};
  ASSERT_EQ(kelsFFTFwd_RToCCS_32f_I(z, s1, nullptr), kelStsOk);
  EXPECT_EQ(z[0], 7);
  EXPECT_EQ(z[1], 0);
  EXPECT_EQ(z[2], 9);
  kelsFFTFree_R_32f(s1);
  kelsFFTFree_R_32f(s2);
}

TYPED_TEST(FftReal, BadArguments) {
  using F = TypeParam;
  using T = typename F::Real;
  typename F::FftRecord* record = nullptr;
  ASSERT_EQ(F::init_alloc(&record, 6, 8), kelStsOk);
  Guarded<T> a(66), d(66);
  for (Lay lay : {Lay::Perm, Lay::Pack, Lay::Ccs}) {
    EXPECT_EQ(F::fwd(lay, a.data(), d.data(), nullptr, nullptr), kelStsNullPtr);
    EXPECT_EQ(F::inv(lay, nullptr, d.data(), record, nullptr), kelStsNullPtr);
    EXPECT_EQ(F::fwd(lay, a.data(), nullptr, record, nullptr), kelStsNullPtr);
    KelsFFTSpec_C_32fc* other = nullptr;
    ASSERT_EQ(kelsFFTInitAlloc_C_32fc(&other, 6, 8, 0), kelStsOk);
    EXPECT_EQ(F::fwd(lay, nullptr, nullptr, reinterpret_cast<const typename F::FftRecord*>(other), nullptr),
              kelStsBadContext);
    kelsFFTFree_C_32fc(other);
    fail_alloc_after(1);
    EXPECT_EQ(F::inv(lay, a.data(), d.data(), record, nullptr), kelStsNoMemory);
    fail_alloc_after(0);
  }
  EXPECT_TRUE(d.untouched());
  F::release(record);
  const ReleasedSpec<F> gone(6);
  EXPECT_EQ(F::fwd(Lay::Perm, a.data(), d.data(), gone.record, nullptr), kelStsBadContext);
  EXPECT_TRUE(d.untouched());
}

}  // namespace
}  // namespace kels::test

namespace kels::test {
namespace {

// Integer real transforms against the rounded exact transform: |error| <= 1
// and only where the exact value is within 1e-6 of a rounding boundary.
template <class O>
void expect_rounded(const std::vector<long double>& exact, const O* got, const std::string& what) {
  const long double lo = std::numeric_limits<O>::min(), hi = std::numeric_limits<O>::max();
  for (std::size_t i = 0; i < exact.size(); ++i) {
    long double f = std::floor(exact[i]);
    const long double frac = exact[i] - f;
    if (frac > 0.5L || (frac == 0.5L && std::fmod(f, 2.0L) != 0)) f += 1;
    f = f < lo ? lo : (f > hi ? hi : f);
    if (static_cast<long double>(got[i]) != f) {
      EXPECT_LE(std::fabs(got[i] - f), 1) << what << " i " << i;
      EXPECT_LT(std::fabs(frac - 0.5L), 1e-6L) << what << " i " << i;
    }
  }
}


template <class I, class O, class FftRecord>
void int_real_case(KelStatus (*init)(FftRecord**, int, int, int), KelStatus (*fwd)(const I*, O*, const FftRecord*, int, Kel8u*),
                   KelStatus (*inv)(const O*, I*, const FftRecord*, int, Kel8u*), KelStatus (*release)(FftRecord*),
                   Lay lay, int order, int flag, int sf_f, int sf_i) {
  FftRecord* record = nullptr;
  ASSERT_EQ(init(&record, order, flag, 0), kelStsOk);
  const std::size_t n = std::size_t{1} << order, len = lay == Lay::Ccs ? (n == 1 ? 2 : n + 2) : n;
  std::mt19937 gen(static_cast<unsigned>(order + flag));
  std::uniform_int_distribution<int> u(-20000, 20000);
  std::vector<I> x(n);
  std::vector<cld> xc(n);
  for (std::size_t i = 0; i < n; ++i) {
    x[i] = static_cast<I>(u(gen));
    xc[i] = cld(x[i], 0);
  }
  const auto X = order <= 11 ? ref::dft(xc, false) : ref::fft(xc, false);
  const long double nn = static_cast<long double>(n);
  const long double sf = flag == 1 ? 1 / nn : flag == 4 ? 1 / std::sqrt(nn) : 1;
  const long double si = flag == 2 ? 1 / nn : flag == 4 ? 1 / std::sqrt(nn) : 1;
  std::vector<O> y(len);
  ASSERT_EQ(fwd(x.data(), y.data(), record, sf_f, nullptr), kelStsOk);
  auto want = pack(X, n, lay);
  for (auto& v : want) v = std::ldexp(v * sf, -sf_f);
  expect_rounded(want, y.data(), "forward order " + std::to_string(order));
  // Inverse of the integer spectrum just produced, against its exact inverse.
  std::vector<cld> Y(n);
  std::vector<long double> yl(y.begin(), y.end());
  auto get = [&](std::size_t k) -> cld {  // X[k] for k <= n/2 from the layout
    if (k == 0) return cld(yl[0], 0);
    if (2 * k == n) return cld(lay == Lay::Ccs ? yl[n] : lay == Lay::Perm ? yl[1] : yl[n - 1], 0);
    if (lay == Lay::Pack) return cld(yl[2 * k - 1], yl[2 * k]);
    return cld(yl[2 * k], yl[2 * k + 1]);
  };
  for (std::size_t k = 0; 2 * k <= n; ++k) {
    Y[k] = get(k);
    if (k > 0 && 2 * k < n) Y[n - k] = std::conj(Y[k]);
  }
  const auto back = order <= 11 ? ref::dft(Y, true) : ref::fft(Y, true);
  std::vector<I> z(n);
  ASSERT_EQ(inv(y.data(), z.data(), record, sf_i, nullptr), kelStsOk);
  std::vector<long double> wz(n);
  for (std::size_t i = 0; i < n; ++i) wz[i] = std::ldexp(back[i].real() * si, -sf_i);
  expect_rounded(wz, z.data(), "inverse order " + std::to_string(order));
  release(record);
}

TEST(FftRealInteger, AllLayoutsAndWidths) {
  for (int order : {0, 1, 2, 3, 4, 5, 8, 11, 13}) {
    for (int flag : {1, 2, 4, 8}) {
      const int grow = flag == 8 || flag == 2 ? (order + 1) / 2 : 0;  // keeps 16-bit spectra in range
      int_real_case<Kel16s, Kel16s, KelsFFTSpec_R_16s>(kelsFFTInitAlloc_R_16s, kelsFFTFwd_RToPerm_16s_Sfs,
                                                       kelsFFTInv_PermToR_16s_Sfs, kelsFFTFree_R_16s, Lay::Perm,
                                                       order, flag, grow, 0);
      int_real_case<Kel16s, Kel16s, KelsFFTSpec_R_16s>(kelsFFTInitAlloc_R_16s, kelsFFTFwd_RToPack_16s_Sfs,
                                                       kelsFFTInv_PackToR_16s_Sfs, kelsFFTFree_R_16s, Lay::Pack,
                                                       order, flag, grow, -1);
      int_real_case<Kel32s, Kel32s, KelsFFTSpec_R_32s>(kelsFFTInitAlloc_R_32s, kelsFFTFwd_RToCCS_32s_Sfs,
                                                       kelsFFTInv_CCSToR_32s_Sfs, kelsFFTFree_R_32s, Lay::Ccs,
                                                       order, flag, 0, 1);
      int_real_case<Kel16s, Kel32s, KelsFFTSpec_R_16s32s>(
          kelsFFTInitAlloc_R_16s32s, kelsFFTFwd_RToCCS_16s32s_Sfs, kelsFFTInv_CCSToR_32s16s_Sfs,
          kelsFFTFree_R_16s32s, Lay::Ccs, order, flag, 0, 0);
    }
  }
  // In-place forms agree with the out-of-place ones.
  KelsFFTSpec_R_32s* s = nullptr;
  ASSERT_EQ(kelsFFTInitAlloc_R_32s(&s, 6, 4, 0), kelStsOk);
  std::vector<Kel32s> a(66), b(66);
  for (int i = 0; i < 64; ++i) a[i] = i * 1000 - 30000;
  ASSERT_EQ(kelsFFTFwd_RToCCS_32s_Sfs(a.data(), b.data(), s, 2, nullptr), kelStsOk);
  ASSERT_EQ(kelsFFTFwd_RToCCS_32s_ISfs(a.data(), s, 2, nullptr), kelStsOk);
  EXPECT_EQ(a, b);
  EXPECT_EQ(kelsFFTFwd_RToPerm_32s_Sfs(a.data(), b.data(), nullptr, 0, nullptr), kelStsNullPtr);
  EXPECT_EQ(kelsFFTFwd_RToPerm_32s_Sfs(nullptr, b.data(), s, 0, nullptr), kelStsNullPtr);
  EXPECT_EQ(kelsFFTInv_PackToR_16s_Sfs(nullptr, nullptr, reinterpret_cast<const KelsFFTSpec_R_16s*>(s), 0, nullptr),
            kelStsBadContext);
  kelsFFTFree_R_32s(s);
}

}  // namespace
}  // namespace kels::test
