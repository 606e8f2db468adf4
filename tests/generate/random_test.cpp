// Random generators bit for bit against an independent model of the
// subtract-with-borrow + congruential generator, the polar method, seed
// write-back, state continuation and the record lifecycle.
#include <cmath>
#include <cstring>
#include <vector>

#include <gtest/gtest.h>

#include "frame/malloc.h"
#include "kels.h"
#include "kernels/generate.h"
#include "support/targets.h"

namespace {

using kels::test::Guarded;
using ld = long double;

// The generator written as sequences: x[] holds every subtract-with-borrow
// word (three seeds first), g the congruential word.
class Model {
 public:
  explicit Model(std::uint32_t seed) {
    const std::uint32_t x2 = 69069u * seed + 1013904243u;
    x_ = {69069u * x2 + 1013904243u, x2, seed};  // x[-3], x[-2], x[-1]
  }
  std::int32_t next() {
    const std::size_t n = x_.size();
    const std::int64_t t = static_cast<std::int64_t>(x_[n - 2]) - x_[n - 3] + borrow_;
    const std::uint32_t w = static_cast<std::uint32_t>(t);  // modulo 2^32
    std::uint32_t xn;
    if (static_cast<std::int32_t>(w) < 0) {
      xn = w - 18u;
      borrow_ = -1;
    } else {
      xn = w;
      borrow_ = 0;
    }
    x_.push_back(xn);
    g_ = 69069u * g_ + 1013904243u;
    return static_cast<std::int32_t>(xn + g_);
  }
  std::uint32_t last_x() const { return x_.back(); }

 private:
  std::vector<std::uint32_t> x_;
  std::int64_t borrow_ = -1;
  std::uint32_t g_ = 1131199209u;
};

// Integer outputs: round half away from zero, saturate.
template <class T>
T to_int(ld v) {
  const ld r = v < 0 ? std::ceil(v - 0.5L) : std::floor(v + 0.5L);
  const ld lo = std::numeric_limits<T>::min(), hi = std::numeric_limits<T>::max();
  return static_cast<T>(r < lo ? lo : (r > hi ? hi : r));
}
template <class T>
T deliver(ld v) {
  if constexpr (std::is_floating_point_v<T>) return static_cast<T>(v);
  else return to_int<T>(v);
}

// Uniform: r * (high - low) 2^-32 + (low + high)/2 in extended precision,
// with scale and mid held in double (extended for 64f).
template <class T>
std::vector<T> uniform_model(Model& m, int len, T low, T high) {
  ld mid, scale;
  if constexpr (std::is_same_v<T, Kel64f>) {
    mid = (static_cast<ld>(low) + high) / 2;
    scale = (static_cast<ld>(high) - low) / 4294967296.0L;
  } else {
    mid = (static_cast<double>(low) + static_cast<double>(high)) / 2;
    scale = (static_cast<double>(high) - static_cast<double>(low)) / 4294967296.0;
  }
  std::vector<T> v(static_cast<std::size_t>(len));
  for (auto& e : v) e = deliver<T>(m.next() * scale + mid);
  return v;
}

// Polar method: u1 then u2 drawn, redrawn while s is 0 or >= 1; outputs
// mean + sd f u2, then mean + sd f u1, in double.
template <class T>
std::vector<T> gauss_model(Model& m, int len, double mean, double sd) {
  std::vector<T> v;
  while (static_cast<int>(v.size()) < len) {
    double u1, u2;
    ld s;
    do {
      u1 = m.next() / 2147483648.0;
      u2 = m.next() / 2147483648.0;
      s = static_cast<ld>(u1) * u1 + static_cast<ld>(u2) * u2;  // exact
    } while (s >= 1 || s == 0);
    const double sd_ = static_cast<double>(s);
    const double f = sd * std::sqrt(-2.0 * std::log(sd_) / sd_);
    v.push_back(deliver<T>(mean + f * u2));
    if (static_cast<int>(v.size()) < len) v.push_back(deliver<T>(mean + f * u1));
  }
  return v;
}

// Gauss values: the library's logarithm is its own (accurate to about an
// ulp), so values agree with the model to a few units of double precision;
// a generator fault would pair different words and miss by far more.
template <class T>
void expect_gauss_close(const std::vector<T>& got, const std::vector<T>& ref, double scale, const char* what) {
  ASSERT_EQ(got.size(), ref.size());
  for (std::size_t i = 0; i < got.size(); ++i) {
    if constexpr (std::is_floating_point_v<T>) {
      const double tol = 16 * std::numeric_limits<double>::epsilon() * scale +
                         std::numeric_limits<T>::epsilon() * std::fabs(static_cast<double>(ref[i]));
      ASSERT_NEAR(got[i], ref[i], tol) << what << " at " << i;
    } else {
      ASSERT_LE(std::abs(static_cast<int>(got[i]) - static_cast<int>(ref[i])), 1) << what << " at " << i;
    }
  }
}

template <class T>
void expect_same_bits(const std::vector<T>& a, const std::vector<T>& b, const char* what) {
  ASSERT_EQ(a.size(), b.size());
  EXPECT_EQ(0, std::memcmp(a.data(), b.data(), a.size() * sizeof(T))) << what;
}

// The first few raw words of seed 0, computed by hand from the definition,
// pin the model itself (x[0] = x[-2] - x[-3] - 1, g[0] = 69069 g[-1] + c).
TEST(Random, ModelFirstWords) {
  const std::uint32_t x2 = 1013904243u, x3 = 69069u * x2 + 1013904243u;
  std::uint32_t t = x2 - x3 - 1u;
  const std::uint32_t x0 = static_cast<std::int32_t>(t) < 0 ? t - 18u : t;
  const std::uint32_t g0 = 69069u * 1131199209u + 1013904243u;
  Model m(0);
  EXPECT_EQ(static_cast<std::uint32_t>(m.next()), x0 + g0);
}

template <class T>
void check_direct(KelStatus (*uni)(T*, int, T, T, unsigned int*), KelStatus (*gau)(T*, int, T, T, unsigned int*),
                  T low, T high, T mean, T sd) {
  for (std::uint32_t seed : {0u, 1u, 12345u, 0xFFFFFFFFu}) {
    for (int len : {1, 2, 3, 17, 1000}) {
      std::vector<T> got(static_cast<std::size_t>(len));
      unsigned int s = seed;
      ASSERT_EQ(uni(got.data(), len, low, high, &s), kelStsOk);
      Model m(seed);
      expect_same_bits(got, uniform_model<T>(m, len, low, high), "uniform");
      EXPECT_EQ(s, m.last_x());
      s = seed;
      ASSERT_EQ(gau(got.data(), len, mean, sd, &s), kelStsOk);
      Model g(seed);
      expect_gauss_close(got, gauss_model<T>(g, len, static_cast<double>(mean), static_cast<double>(sd)),
                         std::fabs(static_cast<double>(mean)) + 10 * std::fabs(static_cast<double>(sd)), "gauss");
      EXPECT_EQ(s, g.last_x());
    }
  }
}

TEST(Random, DirectFormsBitForBit) {
  check_direct<Kel32f>(kelsRandUniform_Direct_32f, kelsRandGauss_Direct_32f, -2.5f, 7.0f, 1.5f, 0.25f);
  check_direct<Kel64f>(kelsRandUniform_Direct_64f, kelsRandGauss_Direct_64f, -1e10, 3.0, -4.0, 1e3);
  check_direct<Kel16s>(kelsRandUniform_Direct_16s, kelsRandGauss_Direct_16s, -32768, 32767, 100, 20000);
}

TEST(Random, UniformRangeAndDegenerateBounds) {
  unsigned int s = 7;
  std::vector<Kel64f> v(100000);
  ASSERT_EQ(kelsRandUniform_Direct_64f(v.data(), 100000, -3.0, 5.0, &s), kelStsOk);
  ld sum = 0;
  for (double x : v) {
    ASSERT_GE(x, -3.0);
    ASSERT_LT(x, 5.0);
    sum += x;
  }
  EXPECT_NEAR(sum / v.size(), 1.0, 0.03);
  std::vector<Kel32f> c(50);
  ASSERT_EQ(kelsRandUniform_Direct_32f(c.data(), 50, 0.375f, 0.375f, &s), kelStsOk);
  for (float x : c) EXPECT_EQ(x, 0.375f);
}

TEST(Random, GaussMoments) {
  unsigned int s = 2024;
  const int n = 200000;
  std::vector<Kel64f> v(n);
  ASSERT_EQ(kelsRandGauss_Direct_64f(v.data(), n, 2.0, 3.0, &s), kelStsOk);
  ld m = 0, q = 0;
  for (double x : v) m += x;
  m /= n;
  for (double x : v) q += (x - m) * (x - m);
  EXPECT_NEAR(m, 2.0, 0.03);
  EXPECT_NEAR(std::sqrt(q / n), 3.0, 0.03);
}

// State forms: consecutive calls continue one stream; uniform calls of any
// length and Gauss calls of even length reproduce one long call.
TEST(Random, StateFormsContinueTheStream) {
  KelsRandUniState_32f* u = nullptr;
  ASSERT_EQ(kelsRandUniformInitAlloc_32f(&u, -1.0f, 1.0f, 555u), kelStsOk);
  std::vector<Kel32f> parts(200), whole(200);
  ASSERT_EQ(kelsRandUniform_32f(parts.data(), 73, u), kelStsOk);
  ASSERT_EQ(kelsRandUniform_32f(parts.data() + 73, 127, u), kelStsOk);
  unsigned int s = 555u;
  ASSERT_EQ(kelsRandUniform_Direct_32f(whole.data(), 200, -1.0f, 1.0f, &s), kelStsOk);
  expect_same_bits(parts, whole, "uniform state");
  EXPECT_EQ(kelsRandUniformFree_32f(u), kelStsOk);

  KelsRandGaussState_32f* g = nullptr;
  ASSERT_EQ(kelsRandGaussInitAlloc_32f(&g, 0.0f, 1.0f, 31u), kelStsOk);
  ASSERT_EQ(kelsRandGauss_32f(parts.data(), 100, g), kelStsOk);
  ASSERT_EQ(kelsRandGauss_32f(parts.data() + 100, 100, g), kelStsOk);
  s = 31u;
  ASSERT_EQ(kelsRandGauss_Direct_32f(whole.data(), 200, 0.0f, 1.0f, &s), kelStsOk);
  expect_same_bits(parts, whole, "gauss state");
  // An odd call drops the second value of its last pair.
  Model m(31u);
  (void)gauss_model<Kel32f>(m, 200, 0, 1);
  std::vector<Kel32f> odd(3), two(2);
  ASSERT_EQ(kelsRandGauss_32f(odd.data(), 3, g), kelStsOk);
  ASSERT_EQ(kelsRandGauss_32f(two.data(), 2, g), kelStsOk);
  const auto ref = gauss_model<Kel32f>(m, 4, 0, 1);
  const auto ref2 = gauss_model<Kel32f>(m, 2, 0, 1);
  expect_gauss_close(std::vector<Kel32f>{odd[0], odd[2]}, std::vector<Kel32f>{ref[0], ref[2]}, 10, "odd call");
  expect_gauss_close(two, ref2, 10, "after odd call");
  EXPECT_EQ(kelsRandGaussFree_32f(g), kelStsOk);
}

// 8u and 16s state forms, including the caller-memory records.
TEST(Random, IntegerStateForms) {
  KelsRandUniState_8u* u8 = nullptr;
  ASSERT_EQ(kelsRandUniformInitAlloc_8u(&u8, 10, 200, 77u), kelStsOk);
  std::vector<Kel8u> b(500);
  ASSERT_EQ(kelsRandUniform_8u(b.data(), 500, u8), kelStsOk);
  Model m(77u);
  expect_same_bits(b, uniform_model<Kel8u>(m, 500, 10, 200), "uniform 8u");
  EXPECT_EQ(kelsRandUniformFree_8u(u8), kelStsOk);

  KelsRandGaussState_8u* g8 = nullptr;
  ASSERT_EQ(kelsRandGaussInitAlloc_8u(&g8, 128, 60, 5u), kelStsOk);
  ASSERT_EQ(kelsRandGauss_8u(b.data(), 500, g8), kelStsOk);
  Model mg(5u);
  expect_gauss_close(b, gauss_model<Kel8u>(mg, 500, 128, 60), 0, "gauss 8u (saturating)");
  EXPECT_EQ(kelsRandGaussFree_8u(g8), kelStsOk);

  int size = 0;
  ASSERT_EQ(kelsRandGaussGetSize_16s(&size), kelStsOk);
  EXPECT_EQ(size, 36);  // the same on 32- and 64-bit targets
  ASSERT_EQ(kelsRandUniformGetSize_16s(&size), kelStsOk);
  EXPECT_EQ(size, 52);
  std::vector<unsigned char> block(static_cast<std::size_t>(size) + 1);
  auto* st = reinterpret_cast<KelsRandUniState_16s*>(block.data() + 1);  // any address
  ASSERT_EQ(kelsRandUniformInit_16s(st, -1000, 1000, 9u), kelStsOk);
  std::vector<Kel16s> h(300), ref(300);
  ASSERT_EQ(kelsRandUniform_16s(h.data(), 100, st), kelStsOk);
  ASSERT_EQ(kelsRandUniform_16s(h.data() + 100, 200, st), kelStsOk);
  unsigned int s = 9u;
  ASSERT_EQ(kelsRandUniform_Direct_16s(ref.data(), 300, -1000, 1000, &s), kelStsOk);
  EXPECT_EQ(h, ref);
  EXPECT_EQ(kelsRandUniformFree_16s(st), kelStsOk);  // caller memory: invalidated only
  EXPECT_EQ(kelsRandUniform_16s(h.data(), 1, st), kelStsBadContext);

  ASSERT_EQ(kelsRandGaussGetSize_16s(&size), kelStsOk);
  std::vector<unsigned char> gblock(static_cast<std::size_t>(size) + 2);
  auto* gs = reinterpret_cast<KelsRandGaussState_16s*>(gblock.data() + 2);
  ASSERT_EQ(kelsRandGaussInit_16s(gs, -5, 300, 4u), kelStsOk);
  ASSERT_EQ(kelsRandGauss_16s(h.data(), 300, gs), kelStsOk);
  s = 4u;
  ASSERT_EQ(kelsRandGauss_Direct_16s(ref.data(), 300, -5, 300, &s), kelStsOk);
  EXPECT_EQ(h, ref);
  KelsRandGaussState_16s* ga = nullptr;
  ASSERT_EQ(kelsRandGaussInitAlloc_16s(&ga, -5, 300, 4u), kelStsOk);
  ASSERT_EQ(kelsRandGauss_16s(h.data(), 300, ga), kelStsOk);
  EXPECT_EQ(h, ref);
  EXPECT_EQ(kelsRandGaussFree_16s(ga), kelStsOk);
  KelsRandUniState_16s* ua = nullptr;
  ASSERT_EQ(kelsRandUniformInitAlloc_16s(&ua, 0, 0, 1u), kelStsOk);
  ASSERT_EQ(kelsRandUniform_16s(h.data(), 10, ua), kelStsOk);
  for (int i = 0; i < 10; ++i) EXPECT_EQ(h[i], 0);
  EXPECT_EQ(kelsRandUniformFree_16s(ua), kelStsOk);
}

// The polar-method kernel: every SIMD target reproduces the scalar twin bit
// for bit, and the library's logarithm stays within an ulp or two of libm's.
TEST(Random, GaussFactorKernel) {
  std::vector<double> s;
  for (int i = 1; i < 4000; ++i) s.push_back(std::ldexp(1.0 + (i * 0.618033988749895 - std::floor(i * 0.618033988749895)), -(i % 63)) / 2);
  s.push_back(1.0);
  s.push_back(0x1p-62);
  s.push_back(std::nextafter(1.0, 0.0));
  s.push_back(1.4142135623730951 / 2);
  std::vector<double> ref(s.size());
  kels::kernels::scalar::gauss_factors(s.data(), ref.data(), s.size());
  for (std::size_t i = 0; i < s.size(); ++i) {
    const double l = kels::kernels::scalar::log_positive(s[i]), e = std::log(s[i]);
    ASSERT_LE(std::fabs(l - e), 2 * std::numeric_limits<double>::epsilon() * std::fabs(e) + 1e-300) << s[i];
  }
  kels::test::for_each_target([&](const std::string& target) {
    for (std::size_t off : {0u, 1u, 3u}) {
      std::vector<double> f(s.size() - off);
      kels::kernels::gauss_factors(s.data() + off, f.data(), f.size());
      ASSERT_EQ(0, std::memcmp(f.data(), ref.data() + off, f.size() * sizeof(double))) << target << " offset " << off;
    }
  });
}

TEST(Random, ChecksAndFailures) {
  Guarded<Kel32f> d(4);
  unsigned int s = 1;
  EXPECT_EQ(kelsRandUniform_Direct_32f(nullptr, 0, 0, 1, &s), kelStsNullPtr);
  EXPECT_EQ(kelsRandUniform_Direct_32f(d.data(), 4, 0, 1, nullptr), kelStsNullPtr);
  EXPECT_EQ(kelsRandUniform_Direct_32f(d.data(), 0, 0, 1, &s), kelStsBadLength);
  EXPECT_EQ(kelsRandGauss_Direct_32f(d.data(), -3, 0, 1, &s), kelStsBadLength);
  EXPECT_EQ(s, 1u);
  EXPECT_TRUE(d.untouched());

  KelsRandUniState_32f* u = nullptr;
  EXPECT_EQ(kelsRandUniformInitAlloc_32f(nullptr, 0, 1, 1), kelStsNullPtr);
  kels::fail_alloc_after(1);
  EXPECT_EQ(kelsRandUniformInitAlloc_32f(&u, 0, 1, 1), kelStsNoMemory);
  kels::fail_alloc_after(0);
  EXPECT_EQ(u, nullptr);
  ASSERT_EQ(kelsRandUniformInitAlloc_32f(&u, 0, 1, 1), kelStsOk);
  EXPECT_EQ(kelsRandUniform_32f(nullptr, 4, u), kelStsNullPtr);
  EXPECT_EQ(kelsRandUniform_32f(d.data(), 4, nullptr), kelStsNullPtr);
  EXPECT_EQ(kelsRandUniform_32f(d.data(), 0, u), kelStsBadLength);
  // A record of another kind is refused by every function.
  auto* foreign = reinterpret_cast<KelsRandGaussState_32f*>(u);
  EXPECT_EQ(kelsRandGauss_32f(d.data(), 4, foreign), kelStsBadContext);
  EXPECT_EQ(kelsRandGaussFree_32f(foreign), kelStsBadContext);
  EXPECT_EQ(kelsRandUniform_16s(reinterpret_cast<Kel16s*>(d.data()), 4,
                                reinterpret_cast<KelsRandUniState_16s*>(u)),
            kelStsBadContext);
  EXPECT_TRUE(d.untouched());
  EXPECT_EQ(kelsRandUniformFree_32f(u), kelStsOk);
  EXPECT_EQ(kelsRandUniformFree_32f(nullptr), kelStsNullPtr);
  EXPECT_EQ(kelsRandGaussGetSize_16s(nullptr), kelStsNullPtr);
  EXPECT_EQ(kelsRandGaussInit_16s(nullptr, 0, 1, 1), kelStsNullPtr);
}

}  // namespace
