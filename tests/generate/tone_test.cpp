// Tone and triangle generators against their closed formulas, phase
// continuity, the Q15 records and the parameter-first check order.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "kels.h"
#include "support/targets.h"

namespace {

using kels::test::Guarded;
using ld = long double;
const ld kPi = 3.141592653589793238462643383279502884L;

// 2 pi times the fraction of f * n, exact for doubles f and n < 2^31: the
// product is split so that each part is exact in extended precision.
ld cycles_angle(double f, long n) {
  const double hi = std::ldexp(std::floor(std::ldexp(f, 30)), -30), lo = f - hi;
  ld c = static_cast<ld>(hi) * n;
  c -= std::floor(c);
  c += static_cast<ld>(lo) * n;
  return 2 * kPi * (c - std::floor(c));
}

ld wrap(ld t) { return t - 2 * kPi * std::floor(t / (2 * kPi)); }

// Triangle of magnitude m: peak at 0, trough -m at pi + h, back to m at 2pi.
ld triangle_ref(ld theta, ld m, ld h) {
  theta = wrap(theta);
  const ld a = std::min(std::max(kPi + h, 0.0L), 2 * kPi), b = 2 * kPi - a;
  if (a > 0 && theta <= a) return m * (1 - 2 * theta / a);
  return m * (2 * (theta - a) / b - 1);
}

// The tone and triangle members of one type: P is the parameter type, R
// the part type of the result.
template <class T> struct Tr;
#define KELS_GENERATORS(T, code, P_, R_, parts_)                                                                    \
  template <> struct Tr<T> { using P = P_; using R = R_; static constexpr int parts = parts_; };                    \
  KelStatus tone(T* d, int n, P_ m, P_ f, P_* p) { return kelsTone_Direct_##code(d, n, m, f, p); }                  \
  KelStatus tri(T* d, int n, P_ m, P_ f, P_ a, P_* p) { return kelsTriangle_Direct_##code(d, n, m, f, a, p); }
KELS_GENERATORS(Kel32f, 32f, Kel32f, Kel32f, 1)
KELS_GENERATORS(Kel32fc, 32fc, Kel32f, Kel32f, 2)
KELS_GENERATORS(Kel64f, 64f, Kel64f, Kel64f, 1)
KELS_GENERATORS(Kel64fc, 64fc, Kel64f, Kel64f, 2)
KELS_GENERATORS(Kel16s, 16s, Kel32f, Kel16s, 1)
KELS_GENERATORS(Kel16sc, 16sc, Kel32f, Kel16s, 2)

// Tolerance of one generated value of magnitude m: integer outputs are
// rounded (0.5), floats carry a few units of their precision.
template <class T>
ld tolerance(ld m) {
  using R = typename Tr<T>::R;
  if constexpr (std::is_integral_v<R>) return 0.5L + 1e-6L * m;
  else return 8 * std::numeric_limits<R>::epsilon() * m;
}

template <class T>
typename Tr<T>::R part(const std::vector<T>& v, int i, int p) {
  return reinterpret_cast<const typename Tr<T>::R*>(v.data())[i * Tr<T>::parts + p];
}

// The generated vector equals the formula at phase + 2 pi f n; the phase
// comes back advanced by 2 pi f len modulo 2 pi.
template <class T>
void check_tone(bool triangle) {
  using P = typename Tr<T>::P;
  for (int len : {1, 2, 3, 4, 5, 8, 127, 128, 129, 3000}) {
    for (P f : {P(0), P(0.001), P(0.1234), P(0.4999)}) {
      const P m = std::is_integral_v<typename Tr<T>::R> ? P(30000) : P(2.5);
      const P h = P(0.7);
      P phase = P(1.25);
      const ld ph0 = phase;
      std::vector<T> d(static_cast<std::size_t>(len));
      ASSERT_EQ(triangle ? tri(d.data(), len, m, f, h, &phase) : tone(d.data(), len, m, f, &phase), kelStsOk);
      for (int n = 0; n < len; ++n) {
        const ld th = ph0 + cycles_angle(f, n);
        const ld re = triangle ? triangle_ref(th, m, h) : m * std::cos(th);
        const ld im = triangle ? triangle_ref(th - kPi / 2, m, h) : m * std::sin(th);
        ASSERT_NEAR(part(d, n, 0), re, tolerance<T>(m)) << "len " << len << " f " << f << " n " << n;
        if (Tr<T>::parts == 2) {
          ASSERT_NEAR(part(d, n, 1), im, tolerance<T>(m)) << "imag, n " << n;
        }
      }
      const ld expect = wrap(ph0 + cycles_angle(f, len));
      const ld diff = std::fabs(phase - expect);
      EXPECT_LT(std::min(diff, 2 * kPi - diff), 8 * std::numeric_limits<P>::epsilon())
          << "phase after len " << len;
      if (f == 0) {
        EXPECT_EQ(phase, P(1.25));
      }
    }
  }
}

TEST(Tone, ToneAndTriangleMatchTheirShapesOnEveryType) {
  for (bool triangle : {false, true}) {
    check_tone<Kel32f>(triangle);
    check_tone<Kel32fc>(triangle);
    check_tone<Kel64f>(triangle);
    check_tone<Kel64fc>(triangle);
    check_tone<Kel16s>(triangle);
    check_tone<Kel16sc>(triangle);
  }
}

// A million samples stay at double rounding, also near frequency 0 and 0.5
// where a plain three-term recurrence loses digits.
TEST(Tone, LongVectorsStayAccurate) {
  const int len = 1 << 20;
  std::vector<Kel64fc> d(len);
  for (Kel64f f : {1e-6, 0.4999999, 0.3}) {
    Kel64f p = 0.1;
    ASSERT_EQ(kelsTone_Direct_64fc(d.data(), len, 1.0, f, &p), kelStsOk);
    ld worst = 0;
    for (int n = 0; n < len; n += 7) {
      const ld th = 0.1L + cycles_angle(f, n);
      worst = std::max({worst, std::fabs(d[n].re - std::cos(th)), std::fabs(d[n].im - std::sin(th))});
    }
    EXPECT_LT(worst, 1e-15L) << "f " << f;
    std::vector<Kel64f> t(len);
    p = 0.1;
    ASSERT_EQ(kelsTriangle_Direct_64f(t.data(), len, 1.0, f, 0.5, &p), kelStsOk);
    worst = 0;
    for (int n = 0; n < len; n += 7) worst = std::max(worst, std::fabs(t[n] - triangle_ref(0.1L + cycles_angle(f, n), 1, 0.5L)));
    EXPECT_LT(worst, 1e-14L) << "triangle, f " << f;
  }
}

TEST(Triangle, ExtremeAsymmetry) {
  // asym = +-pi is accepted (a sawtooth); the values stay within the magnitude.
  const Kel32f pi = 3.14159265358979f;
  for (Kel32f a : {pi, -pi}) {
    Kel32f p = 0.5f;
    std::vector<Kel32f> s(300);
    ASSERT_EQ(kelsTriangle_Direct_32f(s.data(), 300, 2.0f, 0.01f, a, &p), kelStsOk);
    for (Kel32f v : s) {
      ASSERT_TRUE(std::isfinite(v));
      ASSERT_LE(std::fabs(v), 2.0f + 1e-5f);
    }
  }
}

// Parameters come before the destination; nothing is written on failure.
TEST(Tone, CheckOrder) {
  Guarded<Kel32f> d(4);
  Kel32f p = 1.0f;
  const Kel32f two_pi = static_cast<Kel32f>(2 * kPi);
  EXPECT_EQ(kelsTone_Direct_32f(nullptr, 0, 0, 0.7f, nullptr), kelStsNullPtr);
  EXPECT_EQ(kelsTone_Direct_32f(nullptr, 0, 0, 0.7f, &p), kelStsToneMagn);
  EXPECT_EQ(kelsTone_Direct_32f(nullptr, 0, NAN, 0.1f, &p), kelStsToneMagn);
  EXPECT_EQ(kelsTone_Direct_32f(nullptr, 0, 1, 0.5f, &p), kelStsToneFreq);
  EXPECT_EQ(kelsTone_Direct_32f(nullptr, 0, 1, -1e-9f, &p), kelStsToneFreq);
  Kel32f bad = two_pi;
  EXPECT_EQ(kelsTone_Direct_32f(nullptr, 0, 1, 0.1f, &bad), kelStsTonePhase);
  bad = -1e-30f;
  EXPECT_EQ(kelsTone_Direct_32f(nullptr, 0, 1, 0.1f, &bad), kelStsTonePhase);
  EXPECT_EQ(kelsTone_Direct_32f(nullptr, 4, 1, 0.1f, &p), kelStsNullPtr);
  EXPECT_EQ(kelsTone_Direct_32f(d.data(), 0, 1, 0.1f, &p), kelStsBadLength);
  EXPECT_EQ(p, 1.0f);

  EXPECT_EQ(kelsTriangle_Direct_32f(nullptr, 0, 0, 0.7f, 9, nullptr), kelStsNullPtr);
  EXPECT_EQ(kelsTriangle_Direct_32f(nullptr, 0, 0, 0.7f, 9, &p), kelStsTrnglMagn);
  EXPECT_EQ(kelsTriangle_Direct_32f(nullptr, 0, 1, 0.7f, 9, &p), kelStsTrnglFreq);
  EXPECT_EQ(kelsTriangle_Direct_32f(nullptr, 0, 1, 0.1f, 3.2f, &bad), kelStsTrnglAsym);
  bad = two_pi;
  EXPECT_EQ(kelsTriangle_Direct_32f(nullptr, 0, 1, 0.1f, 0, &bad), kelStsTrnglPhase);
  EXPECT_EQ(kelsTriangle_Direct_32f(nullptr, 4, 1, 0.1f, 0, &p), kelStsNullPtr);
  EXPECT_EQ(kelsTriangle_Direct_32f(d.data(), -1, 1, 0.1f, 0, &p), kelStsBadLength);
  EXPECT_EQ(p, 1.0f);
  EXPECT_TRUE(d.untouched());

  Kel64f p64 = 2 * 3.141592653589793;
  Kel64f d64[2];
  EXPECT_EQ(kelsTone_Direct_64f(d64, 2, 1, 0.1, &p64), kelStsTonePhase);
  p64 = std::nextafter(2 * 3.141592653589793, 0.0);
  EXPECT_EQ(kelsTone_Direct_64f(d64, 1, 1, 0.1, &p64), kelStsOk);
  EXPECT_GE(p64, 0.0);
  EXPECT_LT(p64, 2 * 3.141592653589793);
}

// The returned phase is always accepted by the next call, however the
// reduction rounds.
TEST(Tone, ReturnedPhaseIsAlwaysValid) {
  Kel32f d[7];
  for (int i = 0; i < 2000; ++i) {
    Kel32f p = std::nextafter(static_cast<Kel32f>(2 * kPi), 0.0f) - static_cast<Kel32f>(i) * 1e-7f;
    const Kel32f f = static_cast<Kel32f>(i % 50) / 100.0f;
    ASSERT_EQ(kelsTone_Direct_32f(d, 7, 1, f, &p), kelStsOk);
    ASSERT_GE(p, 0.0f);
    ASSERT_LT(p, static_cast<Kel32f>(2 * kPi));
  }
}

// ---- Q15 forms: sample k is magn cos(2 pi (f/2^15) k + phase/2^15) rounded
// half away from zero.
Kel16s round_away(ld v) { return static_cast<Kel16s>(v < 0 ? std::ceil(v - 0.5L) : std::floor(v + 0.5L)); }

TEST(ToneQ15, DirectMatchesFormula) {
  for (Kel16s f : {0, 1, 1000, 16383}) {
    for (Kel32s ph : {0, 51472, 205886}) {
      std::vector<Kel16s> d(1000);
      ASSERT_EQ(kelsToneQ15_Direct_16s(d.data(), 1000, 12345, f, ph), kelStsOk);
      for (int k = 0; k < 1000; ++k) {
        const ld v = 12345 * std::cos(2 * kPi * (f / 32768.0L) * k + ph / 32768.0L);
        ASSERT_LE(std::fabs(d[k] - v), 0.5L + 1e-7L) << f << " " << ph << " " << k;
        if (std::fabs(std::fabs(v - std::trunc(v)) - 0.5L) > 1e-6L) {
          ASSERT_EQ(d[k], round_away(v));
        }
      }
    }
  }
}

TEST(TriangleQ15, DirectMatchesShape) {
  std::vector<Kel16s> d(700);
  ASSERT_EQ(kelsTriangleQ15_Direct_16s(d.data(), 700, 20000, 300, -40000, 1000), kelStsOk);
  for (int k = 0; k < 700; ++k) {
    const ld v = triangle_ref(2 * kPi * (300 / 32768.0L) * k + 1000 / 32768.0L, 20000, -40000 / 32768.0L);
    ASSERT_LE(std::fabs(d[k] - v), 0.5L + 1e-6L) << k;
  }
}

// State forms continue the stream exactly; caller memory may be unaligned.
TEST(ToneQ15, StateLifecycle) {
  int size = 0;
  ASSERT_EQ(kelsToneGetStateSizeQ15_16s(&size), kelStsOk);
  EXPECT_EQ(size, 40);
  std::vector<unsigned char> block(static_cast<std::size_t>(size) + 3);
  auto* st = reinterpret_cast<KelsToneState_16s*>(block.data() + 3);
  ASSERT_EQ(kelsToneInitQ15_16s(st, 1000, 777, 4242), kelStsOk);
  std::vector<Kel16s> whole(300), parts(300);
  ASSERT_EQ(kelsToneQ15_Direct_16s(whole.data(), 300, 1000, 777, 4242), kelStsOk);
  ASSERT_EQ(kelsToneQ15_16s(parts.data(), 100, st), kelStsOk);
  ASSERT_EQ(kelsToneQ15_16s(parts.data() + 100, 1, st), kelStsOk);
  ASSERT_EQ(kelsToneQ15_16s(parts.data() + 101, 199, st), kelStsOk);
  EXPECT_EQ(parts, whole);
  // Free on caller memory invalidates the record.
  EXPECT_EQ(kelsToneFree(st), kelStsOk);
  EXPECT_EQ(kelsToneQ15_16s(parts.data(), 1, st), kelStsBadContext);

  KelsToneState_16s* a = nullptr;
  ASSERT_EQ(kelsToneInitAllocQ15_16s(&a, 1000, 777, 4242), kelStsOk);
  ASSERT_EQ(kelsToneQ15_16s(parts.data(), 300, a), kelStsOk);
  EXPECT_EQ(parts, whole);
  KelsTriangleState_16s* t = nullptr;
  ASSERT_EQ(kelsTriangleInitAllocQ15_16s(&t, 1000, 777, 0, 4242), kelStsOk);
  EXPECT_EQ(kelsToneQ15_16s(parts.data(), 1, reinterpret_cast<KelsToneState_16s*>(t)), kelStsBadContext);
  EXPECT_EQ(kelsToneFree(reinterpret_cast<KelsToneState_16s*>(t)), kelStsBadContext);
  EXPECT_EQ(kelsTriangleFree(t), kelStsOk);
  EXPECT_EQ(kelsToneFree(a), kelStsOk);
  EXPECT_EQ(kelsToneFree(nullptr), kelStsNullPtr);
}

TEST(TriangleQ15, StateLifecycle) {
  int size = 0;
  ASSERT_EQ(kelsTriangleGetStateSizeQ15_16s(&size), kelStsOk);
  EXPECT_EQ(size, 48);  // the same on 32- and 64-bit targets
  std::vector<unsigned char> block(static_cast<std::size_t>(size) + 1);
  auto* st = reinterpret_cast<KelsTriangleState_16s*>(block.data() + 1);
  ASSERT_EQ(kelsTriangleInitQ15_16s(st, 500, 16383, 102943, 0), kelStsOk);
  std::vector<Kel16s> whole(257), parts(257);
  ASSERT_EQ(kelsTriangleQ15_Direct_16s(whole.data(), 257, 500, 16383, 102943, 0), kelStsOk);
  ASSERT_EQ(kelsTriangleQ15_16s(parts.data(), 57, st), kelStsOk);
  ASSERT_EQ(kelsTriangleQ15_16s(parts.data() + 57, 200, st), kelStsOk);
  EXPECT_EQ(parts, whole);
}

TEST(ToneQ15, CheckOrder) {
  Kel16s d[4] = {};
  EXPECT_EQ(kelsToneQ15_Direct_16s(nullptr, 0, 0, -1, -1), kelStsNullPtr);
  EXPECT_EQ(kelsToneQ15_Direct_16s(d, 0, 0, -1, -1), kelStsBadLength);
  EXPECT_EQ(kelsToneQ15_Direct_16s(d, 4, 0, -1, -1), kelStsToneMagn);
  EXPECT_EQ(kelsToneQ15_Direct_16s(d, 4, 1, 16384, -1), kelStsToneFreq);
  EXPECT_EQ(kelsToneQ15_Direct_16s(d, 4, 1, 16383, 205887), kelStsTonePhase);
  EXPECT_EQ(kelsToneQ15_Direct_16s(d, 4, 1, 16383, -1), kelStsTonePhase);
  EXPECT_EQ(kelsTriangleQ15_Direct_16s(d, 4, 0, 0, 0, 0), kelStsTrnglMagn);
  EXPECT_EQ(kelsTriangleQ15_Direct_16s(d, 4, 1, -1, 0, 0), kelStsTrnglFreq);
  EXPECT_EQ(kelsTriangleQ15_Direct_16s(d, 4, 1, 0, 102944, 0), kelStsTrnglAsym);
  EXPECT_EQ(kelsTriangleQ15_Direct_16s(d, 4, 1, 0, -102944, 0), kelStsTrnglAsym);
  EXPECT_EQ(kelsTriangleQ15_Direct_16s(d, 4, 1, 0, 0, 205887), kelStsTrnglPhase);
  for (Kel16s v : d) EXPECT_EQ(v, 0);
  EXPECT_EQ(kelsToneInitQ15_16s(nullptr, 0, 0, 0), kelStsNullPtr);
  EXPECT_EQ(kelsToneInitAllocQ15_16s(nullptr, 1, 0, 0), kelStsNullPtr);
  KelsToneState_16s* s = nullptr;
  EXPECT_EQ(kelsToneInitAllocQ15_16s(&s, 0, 0, 0), kelStsToneMagn);
  EXPECT_EQ(s, nullptr);
  EXPECT_EQ(kelsToneGetStateSizeQ15_16s(nullptr), kelStsNullPtr);
  EXPECT_EQ(kelsToneQ15_16s(d, 4, nullptr), kelStsNullPtr);
}

}  // namespace
