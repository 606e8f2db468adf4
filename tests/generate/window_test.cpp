// Windows against their closed formulas (long-double references), the
// length-3 special cases, presets, Q15 forms and the order of checks.
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "kels.h"
#include "support/targets.h"

namespace {

using kels::test::Guarded;
using ld = long double;
const ld kPi = 3.141592653589793238462643383279502884L;

// ---- Reference weights.
ld cosine_weight(ld a0, ld a1, ld a2, int n, int len) {
  const ld x = 2 * kPi * n / (len - 1);
  return a0 - a1 * std::cos(x) - a2 * std::cos(2 * x);
}
// I0 by its power series (exact to extended precision for the arguments used).
ld i0_series(ld x) {
  ld term = 1, sum = 1;
  for (int k = 1; k < 500 && term > sum * 1e-22L; ++k) {
    term *= (x / (2 * k)) * (x / (2 * k));
    sum += term;
  }
  return sum;
}

// I0 by the polynomial approximations of Abramowitz and Stegun 9.8.1/9.8.2,
// which define the Kaiser weights (the series above checks their accuracy).
ld i0_poly(ld x) {
  x = std::fabs(x);
  if (x < 3.75L) {
    const ld t2 = (x / 3.75L) * (x / 3.75L);
    const ld c[] = {1, 3.5156229L, 3.0899424L, 1.2067492L, 0.2659732L, 0.0360768L, 0.0045813L};
    ld r = 0, p = 1;
    for (ld k : c) { r += k * p; p *= t2; }
    return r;
  }
  const ld u = 3.75L / x;
  const ld c[] = {0.39894228L, 0.01328592L, 0.00225319L, -0.00157565L, 0.00916281L,
                  -0.02057706L, 0.02635537L, -0.01647633L, 0.00392377L};
  ld r = 0, p = 1;
  for (ld k : c) { r += k * p; p *= u; }
  return r * std::exp(x) / std::sqrt(x);
}

enum class Win { Bartlett, Hann, Hamming, Blackman, BlackmanStd, BlackmanOpt, Kaiser };
const char* win_name(Win w) {
  static const char* names[] = {"Bartlett", "Hann", "Hamming", "Blackman", "BlackmanStd", "BlackmanOpt", "Kaiser"};
  return names[static_cast<int>(w)];
}

ld blackman_opt_alpha(int len) {
  const double c = 0.5 / std::cos(3.141592653589793 / (len - 1));
  return static_cast<float>(-(c * c));
}

// The weight of element n by the table of definitions.
ld reference_weight(Win w, int n, int len, float alpha) {
  switch (w) {
    case Win::Bartlett: {
      const ld r = 2.0L * n / (len - 1);
      return n <= (len - 1) / 2.0L ? r : 2 - r;
    }
    case Win::Hann: return cosine_weight(0.5L, 0.5L, 0, n, len);
    case Win::Hamming: return cosine_weight(0.54L, 0.46L, 0, n, len);
    case Win::Blackman: return cosine_weight((alpha + 1.0L) / 2, 0.5L, alpha / 2.0L, n, len);
    case Win::BlackmanStd: return cosine_weight((-0.16f + 1.0L) / 2, 0.5L, -0.16f / 2.0L, n, len);
    case Win::BlackmanOpt: {
      const ld a = blackman_opt_alpha(len);
      return cosine_weight((a + 1) / 2, 0.5L, a / 2, n, len);
    }
    case Win::Kaiser: {
      const ld h = (len - 1) / 2.0L;
      return i0_poly(alpha * std::sqrt(h * h - (n - h) * (n - h))) / i0_poly(alpha * h);
    }
  }
  return 0;
}

// ---- Uniform access to every member: out-of-place and in-place by window and type.
template <class T>
struct Api {
  std::function<KelStatus(const T*, T*, int, float)> out;
  std::function<KelStatus(T*, int, float)> in;
};

#define KELS_API_PLAIN(name, code, T)                                                     \
  Api<T>{[](const T* s, T* d, int n, float) { return kelsWin##name##_##code(s, d, n); },  \
         [](T* sd, int n, float) { return kelsWin##name##_##code##_I(sd, n); }}
#define KELS_API_ALPHA(name, code, T)                                                     \
  Api<T>{[](const T* s, T* d, int n, float a) { return kelsWin##name##_##code(s, d, n, a); }, \
         [](T* sd, int n, float a) { return kelsWin##name##_##code##_I(sd, n, a); }}
// The members of one type, in the order of Win, and its part type.
template <class T> struct Traits;
#define KELS_API_TABLE(code, T, P_, parts_)                                                                      \
  template <> struct Traits<T> { using P = P_; static constexpr int parts = parts_; };                           \
  template <>                                                                                                    \
  Api<T> api<T>(Win w) {                                                                                         \
    const Api<T> all[] = {KELS_API_PLAIN(Bartlett, code, T),    KELS_API_PLAIN(Hann, code, T),                  \
                          KELS_API_PLAIN(Hamming, code, T),     KELS_API_ALPHA(Blackman, code, T),              \
                          KELS_API_PLAIN(BlackmanStd, code, T), KELS_API_PLAIN(BlackmanOpt, code, T),           \
                          KELS_API_ALPHA(Kaiser, code, T)};                                                      \
    return all[static_cast<int>(w)];                                                                             \
  }
template <class T> Api<T> api(Win w);
KELS_API_TABLE(16s, Kel16s, Kel16s, 1)
KELS_API_TABLE(16sc, Kel16sc, Kel16s, 2)
KELS_API_TABLE(32f, Kel32f, Kel32f, 1)
KELS_API_TABLE(32fc, Kel32fc, Kel32f, 2)
KELS_API_TABLE(64f, Kel64f, Kel64f, 1)
KELS_API_TABLE(64fc, Kel64fc, Kel64f, 2)

// ---- Element helpers.
template <class T>
typename Traits<T>::P* parts_of(T* p) { return reinterpret_cast<typename Traits<T>::P*>(p); }

// Deterministic test signal: full range for 16-bit, [-1, 1) for floats.
template <class T>
std::vector<T> signal(int len) {
  using P = typename Traits<T>::P;
  std::vector<T> v(static_cast<std::size_t>(len));
  P* p = parts_of(v.data());
  std::uint32_t s = 12345;
  for (int i = 0; i < len * Traits<T>::parts; ++i) {
    s = s * 1664525u + 1013904223u;
    const double u = static_cast<std::int32_t>(s) * 0x1p-31;
    if constexpr (std::is_same_v<P, Kel16s>) p[i] = static_cast<Kel16s>(std::lround(u * 32767));
    else p[i] = static_cast<P>(u);
  }
  return v;
}

// |got - x w| within the rounding of the type: 16-bit results are the
// product rounded to an integer; floats allow a few units in the last place.
template <class P>
void expect_weighted(P got, P x, ld w, const std::string& where) {
  const ld exact = static_cast<ld>(x) * w;
  if constexpr (std::is_same_v<P, Kel16s>) {
    const ld clipped = std::min<ld>(32767, std::max<ld>(-32768, exact));  // weights above 1 saturate
    EXPECT_LE(std::fabs(got - clipped), 0.5L + 1e-9L) << where;
  } else {
    const ld eps = std::numeric_limits<P>::epsilon();
    EXPECT_LE(std::fabs(got - exact), 3 * eps * std::fabs(static_cast<ld>(x)) + 1e-300L) << where;
  }
}

struct Case {
  Win win;
  float alpha;
};

template <class T>
void check_against_formula(const Case& c) {
  for (int len : {3, 4, 5, 6, 7, 8, 16, 63, 127, 128, 129, 130, 131, 257, 1000, 4097}) {
    if (c.win == Win::BlackmanOpt && len < 4) continue;
    if (c.win == Win::Kaiser && std::fabs(c.alpha) * (len - 1) / 2 > 38) continue;
    const std::vector<T> src = signal<T>(len);
    Guarded<T> dst(static_cast<std::size_t>(len), alignof(T));  // off the vector alignment
    const Api<T> f = api<T>(c.win);
    ASSERT_EQ(f.out(src.data(), dst.data(), len, c.alpha), kelStsOk);
    ASSERT_TRUE(dst.guards_intact());
    const bool three = len == 3 && c.win != Win::Hamming && c.win != Win::Kaiser &&
                       !std::is_same_v<typename Traits<T>::P, Kel64f>;
    for (int n = 0; n < len; ++n) {
      const ld w = three ? (n == 1 ? 1 : 0) : reference_weight(c.win, n, len, c.alpha);
      for (int p = 0; p < Traits<T>::parts; ++p) {
        const auto x = parts_of(const_cast<T*>(src.data()))[n * Traits<T>::parts + p];
        const auto y = parts_of(dst.data())[n * Traits<T>::parts + p];
        expect_weighted(y, x, w, std::string(win_name(c.win)) + " len " + std::to_string(len) + " n " +
                                     std::to_string(n));
      }
    }
    // In place gives the same bits.
    std::vector<T> inplace = src;
    ASSERT_EQ(f.in(inplace.data(), len, c.alpha), kelStsOk);
    EXPECT_EQ(0, std::memcmp(inplace.data(), dst.data(), sizeof(T) * static_cast<std::size_t>(len)))
        << win_name(c.win) << " in place, len " << len;
  }
}

class WindowFormula : public ::testing::TestWithParam<Case> {};

TEST_P(WindowFormula, MatchesClosedFormulaOnEveryType) {
  check_against_formula<Kel16s>(GetParam());
  check_against_formula<Kel16sc>(GetParam());
  check_against_formula<Kel32f>(GetParam());
  check_against_formula<Kel32fc>(GetParam());
  check_against_formula<Kel64f>(GetParam());
  check_against_formula<Kel64fc>(GetParam());
}

INSTANTIATE_TEST_SUITE_P(All, WindowFormula,
                         ::testing::Values(Case{Win::Bartlett, 0}, Case{Win::Hann, 0}, Case{Win::Hamming, 0},
                                           Case{Win::Blackman, -0.16f}, Case{Win::Blackman, 0.3f},
                                           Case{Win::Blackman, -1.5f}, Case{Win::BlackmanStd, 0},
                                           Case{Win::BlackmanOpt, 0}, Case{Win::Kaiser, 0.5f},
                                           Case{Win::Kaiser, -0.05f}, Case{Win::Kaiser, 0.01f}),
                         [](const auto& info) {
                           return std::string(win_name(info.param.win)) + std::to_string(info.index);
                         });

// Long windows: the recurrence must not drift (restarts keep it exact).
TEST(Window, LongHannStaysAtFloatRounding) {
  const int len = 1 << 20;
  std::vector<Kel64f> one(len, 1.0), w(len);
  ASSERT_EQ(kelsWinHann_64f(one.data(), w.data(), len), kelStsOk);
  ld worst = 0;
  for (int n = 0; n < len; n += 97) worst = std::max(worst, std::fabs(w[n] - cosine_weight(0.5L, 0.5L, 0, n, len)));
  EXPECT_LT(worst, 1e-15L);
}

TEST(Window, PresetsAreBlackmanBitForBit) {
  for (int len : {4, 5, 100, 1001}) {
    const auto src = signal<Kel32fc>(len);
    std::vector<Kel32fc> a(len), b(len);
    ASSERT_EQ(kelsWinBlackmanStd_32fc(src.data(), a.data(), len), kelStsOk);
    ASSERT_EQ(kelsWinBlackman_32fc(src.data(), b.data(), len, -0.16f), kelStsOk);
    EXPECT_EQ(0, std::memcmp(a.data(), b.data(), a.size() * sizeof(Kel32fc)));
    const auto s16 = signal<Kel16s>(len);
    std::vector<Kel16s> c(len), e(len);
    ASSERT_EQ(kelsWinBlackmanOpt_16s(s16.data(), c.data(), len), kelStsOk);
    ASSERT_EQ(kelsWinBlackman_16s(s16.data(), e.data(), len, static_cast<float>(blackman_opt_alpha(len))), kelStsOk);
    EXPECT_EQ(c, e);
  }
}

TEST(Window, Q15FormsEqualTheFloatForms) {
  const int len = 333;
  const auto src = signal<Kel16sc>(len);
  for (int aq : {-5243, 0, 9000, -32768}) {
    const float a = static_cast<float>(aq) / 32768.0f;
    std::vector<Kel16sc> q(len), f(len);
    ASSERT_EQ(kelsWinBlackmanQ15_16sc(src.data(), q.data(), len, aq), kelStsOk);
    ASSERT_EQ(kelsWinBlackman_16sc(src.data(), f.data(), len, a), kelStsOk);
    EXPECT_EQ(0, std::memcmp(q.data(), f.data(), q.size() * sizeof(Kel16sc)));
    const int kq = aq / 200;  // keeps |alpha| (len-1)/2 within 38
    std::vector<Kel16sc> kq_out = src, kf_out = src;
    ASSERT_EQ(kelsWinKaiserQ15_16sc_I(kq_out.data(), len, kq), kelStsOk);
    ASSERT_EQ(kelsWinKaiser_16sc_I(kf_out.data(), len, static_cast<float>(kq) / 32768.0f), kelStsOk);
    EXPECT_EQ(0, std::memcmp(kq_out.data(), kf_out.data(), kq_out.size() * sizeof(Kel16sc)));
  }
}

// The scaled in-place form: weight * x * 2^-sf, rounded half away from zero
// and saturated.
TEST(Window, BlackmanQ15ScaledInPlace) {
  for (int len : {3, 10, 255}) {
    const auto src = signal<Kel16s>(len);
    std::vector<Kel16s> ref = src;
    ASSERT_EQ(kelsWinBlackmanQ15_16s_I(ref.data(), len, -5243), kelStsOk);
    std::vector<Kel16s> s0 = src;
    ASSERT_EQ(kelsWinBlackmanQ15_16s_ISfs(s0.data(), len, -5243, 0), kelStsOk);
    EXPECT_EQ(s0, ref);
    for (int sf : {1, 3, -1, -4, 40}) {
      std::vector<Kel16s> s = src;
      ASSERT_EQ(kelsWinBlackmanQ15_16s_ISfs(s.data(), len, -5243, sf), kelStsOk);
      const bool three = len == 3;
      for (int n = 0; n < len; ++n) {
        const ld w = three ? (n == 1 ? 1 : 0) : reference_weight(Win::Blackman, n, len, -5243 / 32768.0f);
        const ld exact = std::ldexp(src[n] * w, -sf);
        const ld clipped = std::min<ld>(32767, std::max<ld>(-32768, exact));
        EXPECT_LE(std::fabs(s[n] - clipped), 0.5L + 1e-9L) << "sf " << sf << " n " << n;
      }
    }
  }
}

TEST(Window, KaiserSpecialCases) {
  const auto src = signal<Kel64f>(50);
  std::vector<Kel64f> y(50);
  ASSERT_EQ(kelsWinKaiser_64f(src.data(), y.data(), 50, 0.0f), kelStsOk);
  EXPECT_EQ(y, src);  // alpha = 0 is the identity
  Kel32f one = 0.625f, out = 7;
  EXPECT_EQ(kelsWinKaiser_32f_I(&one, 1, 1e30f), kelStsOk);
  EXPECT_EQ(one, 0.625f);
  EXPECT_EQ(kelsWinKaiser_32f(&one, &out, 1, 3.0f), kelStsOk);
  EXPECT_EQ(out, 0.625f);
  // |alpha| (len-1)/2 = 38 is accepted, just above is refused and writes nothing.
  Guarded<Kel32f> g(77);
  std::vector<Kel32f> s77(77, 1.0f);
  EXPECT_EQ(kelsWinKaiser_32f(s77.data(), g.data(), 77, 1.0f), kelStsOk);
  Guarded<Kel32f> h(77);
  EXPECT_EQ(kelsWinKaiser_32f(s77.data(), h.data(), 77, -1.0001f), kelStsBadWinAlpha);
  EXPECT_EQ(kelsWinKaiserQ15_16s(reinterpret_cast<const Kel16s*>(s77.data()), reinterpret_cast<Kel16s*>(h.data()),
                                 77, 32769),
            kelStsBadWinAlpha);
  EXPECT_TRUE(h.untouched());
  // Kaiser agrees with a series I0 to the accuracy of the polynomial
  // approximation (below 1e-6 relative for the ratio).
  std::vector<Kel64f> ones(101, 1.0), k(101);
  ASSERT_EQ(kelsWinKaiser_64f(ones.data(), k.data(), 101, 0.7f), kelStsOk);
  for (int n = 0; n < 101; ++n) {
    const ld h = 50, series = i0_series(0.7L * std::sqrt(h * h - (n - h) * (n - h))) / i0_series(0.7L * h);
    EXPECT_NEAR(k[n], series, 1e-6 * series);  // 9.8.1 and 9.8.2 err by < 2e-7 each
  }
}

// Order of checks: pointers, then length (BlackmanOpt: length first), and a
// failing call writes nothing.
TEST(Window, CheckOrder) {
  Guarded<Kel32f> d(8);
  Kel32f s[8] = {};
  for (Win w : {Win::Bartlett, Win::Hann, Win::Hamming, Win::Blackman, Win::BlackmanStd, Win::Kaiser}) {
    const auto f = api<Kel32f>(w);
    EXPECT_EQ(f.out(nullptr, d.data(), 0, 0.1f), kelStsNullPtr) << win_name(w);
    EXPECT_EQ(f.out(s, nullptr, 8, 0.1f), kelStsNullPtr) << win_name(w);
    EXPECT_EQ(f.in(nullptr, 8, 0.1f), kelStsNullPtr) << win_name(w);
    EXPECT_EQ(f.out(s, d.data(), 0, 0.1f), kelStsBadLength) << win_name(w);
    if (w != Win::Kaiser) {
      EXPECT_EQ(f.out(s, d.data(), 1, 0.1f), kelStsBadLength) << win_name(w);
      EXPECT_EQ(f.out(s, d.data(), 2, 0.1f), kelStsBadLength) << win_name(w);
    }
  }
  const auto opt = api<Kel64fc>(Win::BlackmanOpt);
  EXPECT_EQ(opt.out(nullptr, nullptr, 3, 0), kelStsBadLength);
  EXPECT_EQ(opt.in(nullptr, 3, 0), kelStsBadLength);
  EXPECT_EQ(opt.out(nullptr, nullptr, 4, 0), kelStsNullPtr);
  EXPECT_EQ(kelsWinBlackmanQ15_16s_ISfs(nullptr, 0, 0, 0), kelStsNullPtr);
  Kel16s t[2] = {1, 2};
  EXPECT_EQ(kelsWinBlackmanQ15_16s_ISfs(t, 2, 0, 0), kelStsBadLength);
  EXPECT_EQ(t[0], 1);
  EXPECT_TRUE(d.untouched());
}

}  // namespace
