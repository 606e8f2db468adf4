// Float reductions against long-double references: the accurate sums and
// standard deviation must beat naive single-precision summation on
// ill-conditioned data; every float sum, mean, norm and dot product stays
// within k * eps * n * sum|terms| of the reference.
#include <cmath>
#include <complex>
#include <cstdint>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "kels.h"
#include "stats_test_util.h"

namespace kels::test {
namespace {

constexpr float kEpsF = std::numeric_limits<float>::epsilon();
constexpr double kEpsD = std::numeric_limits<double>::epsilon();

float ulp(float x) { return std::nextafter(std::fabs(x), INFINITY) - std::fabs(x); }

// Large values of alternating sign that cancel exactly, with small
// positive values in between: each small value added to a large partial
// sum is rounded away by naive single-precision summation.
std::vector<float> ill_conditioned(std::size_t n, unsigned seed) {
  const auto small = random_data<float>(n, seed, 0.0, 1.0);
  std::vector<float> v(n);
  for (std::size_t i = 0; i < n; ++i) v[i] = i % 4 == 0 ? 3.0e7f : (i % 4 == 2 ? -3.0e7f : small[i]);
  if (n % 4 == 1) v[n - 1] = small[n - 1];  // keep the large values paired
  return v;
}

long double ref_sum(const float* p, std::size_t n, std::size_t stride = 1, std::size_t part = 0) {
  long double s = 0;
  for (std::size_t i = part; i < n * stride; i += stride) s += p[i];
  return s;
}

float naive_sum(const float* p, std::size_t n) {
  float s = 0;
  for (std::size_t i = 0; i < n; ++i) s += p[i];
  return s;
}

TEST(StatsFloat, AccurateSumBeatsNaiveSummation) {
  for (const std::size_t n : {64u, 1001u, 100000u}) {
    const auto v = ill_conditioned(n, static_cast<unsigned>(n));
    const long double ref = ref_sum(v.data(), n);
    Kel32f acc = 0, acc2 = 0, acc7 = 0, fast = 0;
    ASSERT_EQ(kelsSum_32f(v.data(), static_cast<int>(n), &acc, 0), kelStsOk);
    ASSERT_EQ(kelsSum_32f(v.data(), static_cast<int>(n), &acc2, 2), kelStsOk);
    ASSERT_EQ(kelsSum_32f(v.data(), static_cast<int>(n), &acc7, -7), kelStsOk);
    ASSERT_EQ(kelsSum_32f(v.data(), static_cast<int>(n), &fast, 1), kelStsOk);
    EXPECT_EQ(acc, acc2);  // every hint but 1 is the accurate algorithm
    EXPECT_EQ(acc, acc7);
    const long double err = std::fabs(acc - ref), naive_err = std::fabs(naive_sum(v.data(), n) - ref);
    EXPECT_LE(err, ulp(static_cast<float>(ref))) << n;
    EXPECT_GT(naive_err, 100 * err + ulp(static_cast<float>(ref))) << n;
    long double mag = 0;
    for (float x : v) mag += std::fabs(x);
    EXPECT_LE(std::fabs(fast - ref), kEpsF * n * mag) << n;

    Kel32f mean = 0;
    ASSERT_EQ(kelsMean_32f(v.data(), static_cast<int>(n), &mean, 0), kelStsOk);
    EXPECT_LE(std::fabs(mean - ref / n), ulp(static_cast<float>(ref / n)));
    ASSERT_EQ(kelsMean_32f(v.data(), static_cast<int>(n), &mean, 1), kelStsOk);
    EXPECT_LE(std::fabs(mean - ref / n), kEpsF * mag + ulp(static_cast<float>(ref / n)));
  }
}

TEST(StatsFloat, AccurateStdDevBeatsNaiveFloat) {
  for (const std::size_t n : {2u, 3u, 100u, 4097u, 100000u}) {
    // A large mean with a small spread: the one-pass formula cancels.
    auto v = random_data<float>(n, static_cast<unsigned>(n) + 17, -1.0, 1.0);
    for (auto& x : v) x += 3000.0f;
    long double mean = ref_sum(v.data(), n) / n, d2 = 0;
    for (float x : v) d2 += (x - mean) * (x - mean);
    const long double ref = std::sqrt(d2 / (n - 1));
    float ns1 = 0, ns2 = 0;
    for (float x : v) {
      ns1 += x;
      ns2 += x * x;
    }
    const float nf = static_cast<float>(n);
    const float nvar = (nf * ns2 - ns1 * ns1) / (nf * (nf - 1));
    const long double naive_err = std::fabs((nvar > 0 ? std::sqrt(nvar) : 0.0f) - ref);
    Kel32f acc = 0, acc2 = 0, fast = 0;
    ASSERT_EQ(kelsStdDev_32f(v.data(), static_cast<int>(n), &acc, 0), kelStsOk);
    ASSERT_EQ(kelsStdDev_32f(v.data(), static_cast<int>(n), &acc2, 2), kelStsOk);
    ASSERT_EQ(kelsStdDev_32f(v.data(), static_cast<int>(n), &fast, 1), kelStsOk);
    EXPECT_EQ(acc, acc2);
    const long double err = std::fabs(acc - ref);
    EXPECT_LE(err, 2 * ulp(static_cast<float>(ref))) << n;
    EXPECT_GT(naive_err, 10 * err) << n;
    EXPECT_LE(std::fabs(fast - ref), 1e-4 * ref) << n;  // double accumulation
    Kel64f d = 0;
    std::vector<double> w(v.begin(), v.end());
    for (auto& x : w) x += 1e9;  // harder still for doubles
    ASSERT_EQ(kelsStdDev_64f(w.data(), static_cast<int>(n), &d), kelStsOk);
    EXPECT_NEAR(d, static_cast<double>(ref), 1e-6 * ref) << n;
  }
  const Kel32f two[2] = {0.1f, 0.1f};
  Kel32f sd = -1;
  EXPECT_EQ(kelsStdDev_32f(two, 2, &sd, 0), kelStsOk);
  EXPECT_EQ(sd, 0.0f);
  EXPECT_EQ(kelsStdDev_32f(two, 1, &sd, 0), kelStsBadLength);
}

TEST(StatsFloat, ComplexAndDoubleSumsAndMeans) {
  for (const int n : {1, 7, 33, 1000, 65537}) {
    const auto v = random_data<float>(2 * n, 31 + n);
    const auto w = random_data<double>(2 * n, 37 + n);
    long double re = 0, im = 0, wre = 0, wim = 0, ws = 0, mag = 0, wmag = 0;
    for (int i = 0; i < n; ++i) {
      re += v[2 * i];
      im += v[2 * i + 1];
      wre += w[2 * i];
      wim += w[2 * i + 1];
      ws += w[i];
      mag += std::fabs(v[2 * i]) + std::fabs(v[2 * i + 1]);
      wmag += std::fabs(w[2 * i]) + std::fabs(w[2 * i + 1]);
    }
    const auto* c = reinterpret_cast<const Kel32fc*>(v.data());
    const auto* wc = reinterpret_cast<const Kel64fc*>(w.data());
    for (const int hint : {0, 1, 2}) {
      Kel32fc s{}, m{};
      ASSERT_EQ(kelsSum_32fc(c, n, &s, hint), kelStsOk);
      ASSERT_EQ(kelsMean_32fc(c, n, &m, hint), kelStsOk);
      const long double tol = hint == 1 ? kEpsF * n * mag + kEpsF : ulp(static_cast<float>(mag));
      EXPECT_NEAR(s.re, re, tol) << n << " hint " << hint;
      EXPECT_NEAR(s.im, im, tol) << n << " hint " << hint;
      EXPECT_NEAR(m.re, re / n, tol / n + ulp(1.0f)) << n;
      EXPECT_NEAR(m.im, im / n, tol / n + ulp(1.0f)) << n;
    }
    Kel64f s64 = 0, m64 = 0;
    Kel64fc sc{}, mc{};
    ASSERT_EQ(kelsSum_64f(w.data(), n, &s64), kelStsOk);
    ASSERT_EQ(kelsMean_64f(w.data(), n, &m64), kelStsOk);
    ASSERT_EQ(kelsSum_64fc(wc, n, &sc), kelStsOk);
    ASSERT_EQ(kelsMean_64fc(wc, n, &mc), kelStsOk);
    const double tol = 2 * kEpsD * n * wmag + kEpsD;
    EXPECT_NEAR(s64, ws, tol);
    EXPECT_NEAR(m64, ws / n, tol / n);
    EXPECT_NEAR(sc.re, wre, tol);
    EXPECT_NEAR(sc.im, wim, tol);
    EXPECT_NEAR(mc.re, wre / n, tol / n);
    EXPECT_NEAR(mc.im, wim / n, tol / n);
  }
}

// ---- Dot products and norms of float data through one table.

using CL = std::complex<long double>;

template <class T>
CL value(const T& x) {
  if constexpr (std::is_class_v<T>) return CL(x.re, x.im);
  else return CL(static_cast<long double>(x), 0);
}

template <class R>
long double eps_of() {
  if constexpr (std::is_same_v<R, Kel32f> || std::is_same_v<R, Kel32fc>) return kEpsF;
  else return kEpsD;
}

template <class A, class B, class R, class F>
void check_dot(const char* name, F fn, int n, unsigned seed) {
  using PA = std::conditional_t<std::is_same_v<A, Kel32fc>, float, std::conditional_t<std::is_same_v<A, Kel64fc>, double, A>>;
  using PB = std::conditional_t<std::is_same_v<B, Kel32fc>, float, std::conditional_t<std::is_same_v<B, Kel64fc>, double, B>>;
  const auto va = random_data<PA>(2 * n, seed), vb = random_data<PB>(2 * n, seed + 1);
  const A* a = reinterpret_cast<const A*>(va.data());
  const B* b = reinterpret_cast<const B*>(vb.data());
  CL ref = 0;
  long double mag = 0;
  for (int i = 0; i < n; ++i) {
    ref += value(a[i]) * value(b[i]);
    mag += std::abs(value(a[i])) * std::abs(value(b[i]));
  }
  R r{};
  ASSERT_EQ(fn(a, b, n, &r), kelStsOk) << name;
  const long double tol = eps_of<R>() * std::abs(ref) + 8 * kEpsD * n * mag + 1e-300L;
  EXPECT_NEAR(value(r).real(), ref.real(), tol) << name << " n=" << n;
  EXPECT_NEAR(value(r).imag(), ref.imag(), tol) << name << " n=" << n;
}

TEST(StatsFloat, DotProductsMatchLongDoubleReference) {
  for (const int n : {1, 2, 3, 15, 16, 17, 100, 1023, 4096}) {
    const unsigned s = static_cast<unsigned>(n) * 3;
    check_dot<Kel32f, Kel32f, Kel32f>("32f", kelsDotProd_32f, n, s);
    check_dot<Kel32fc, Kel32fc, Kel32fc>("32fc", kelsDotProd_32fc, n, s);
    check_dot<Kel32f, Kel32fc, Kel32fc>("32f32fc", kelsDotProd_32f32fc, n, s);
    check_dot<Kel32f, Kel32f, Kel64f>("32f64f", kelsDotProd_32f64f, n, s);
    check_dot<Kel32fc, Kel32fc, Kel64fc>("32fc64fc", kelsDotProd_32fc64fc, n, s);
    check_dot<Kel32f, Kel32fc, Kel64fc>("32f32fc64fc", kelsDotProd_32f32fc64fc, n, s);
    check_dot<Kel64f, Kel64f, Kel64f>("64f", kelsDotProd_64f, n, s);
    check_dot<Kel64fc, Kel64fc, Kel64fc>("64fc", kelsDotProd_64fc, n, s);
    check_dot<Kel64f, Kel64fc, Kel64fc>("64f64fc", kelsDotProd_64f64fc, n, s);
  }
  // No conjugation: (1 + 2i)(3 + 4i) = -5 + 10i.
  const Kel32fc a{1, 2}, b{3, 4};
  Kel32fc r{};
  kelsDotProd_32fc(&a, &b, 1, &r);
  EXPECT_EQ(r.re, -5.0f);
  EXPECT_EQ(r.im, 10.0f);
}

enum class Kind { kInf, kL1, kL2 };

template <class T, class R, class F1, class F2>
void check_norm(const char* name, Kind kind, F1 one, F2 diff, int n, unsigned seed) {
  using P = std::conditional_t<std::is_same_v<T, Kel32fc>, float, std::conditional_t<std::is_same_v<T, Kel64fc>, double, T>>;
  const auto va = random_data<P>(2 * n, seed, -3, 3), vb = random_data<P>(2 * n, seed + 1, -3, 3);
  const T* a = reinterpret_cast<const T*>(va.data());
  const T* b = reinterpret_cast<const T*>(vb.data());
  for (const bool is_diff : {false, true}) {
    long double acc = 0;
    for (int i = 0; i < n; ++i) {
      const long double m = std::abs(value(a[i]) - (is_diff ? value(b[i]) : CL(0)));
      if (kind == Kind::kInf) acc = std::max(acc, m);
      if (kind == Kind::kL1) acc += m;
      if (kind == Kind::kL2) acc += m * m;
    }
    const long double ref = kind == Kind::kL2 ? std::sqrt(acc) : acc;
    R r = 0;
    ASSERT_EQ(is_diff ? diff(a, b, n, &r) : one(a, n, &r), kelStsOk) << name;
    const long double tol = eps_of<R>() * ref + 8 * kEpsD * n * ref;
    EXPECT_NEAR(r, ref, tol) << name << " diff=" << is_diff << " n=" << n;
  }
}

TEST(StatsFloat, NormsMatchLongDoubleReference) {
  for (const int n : {1, 2, 5, 16, 33, 1000, 4099}) {
    const unsigned s = static_cast<unsigned>(n) * 5;
    check_norm<Kel32f, Kel32f>("Inf_32f", Kind::kInf, kelsNorm_Inf_32f, kelsNormDiff_Inf_32f, n, s);
    check_norm<Kel32f, Kel32f>("L1_32f", Kind::kL1, kelsNorm_L1_32f, kelsNormDiff_L1_32f, n, s);
    check_norm<Kel32f, Kel32f>("L2_32f", Kind::kL2, kelsNorm_L2_32f, kelsNormDiff_L2_32f, n, s);
    check_norm<Kel64f, Kel64f>("Inf_64f", Kind::kInf, kelsNorm_Inf_64f, kelsNormDiff_Inf_64f, n, s);
    check_norm<Kel64f, Kel64f>("L1_64f", Kind::kL1, kelsNorm_L1_64f, kelsNormDiff_L1_64f, n, s);
    check_norm<Kel64f, Kel64f>("L2_64f", Kind::kL2, kelsNorm_L2_64f, kelsNormDiff_L2_64f, n, s);
    check_norm<Kel32fc, Kel32f>("Inf_32fc32f", Kind::kInf, kelsNorm_Inf_32fc32f, kelsNormDiff_Inf_32fc32f, n, s);
    check_norm<Kel64fc, Kel64f>("Inf_64fc64f", Kind::kInf, kelsNorm_Inf_64fc64f, kelsNormDiff_Inf_64fc64f, n, s);
    check_norm<Kel64fc, Kel64f>("L1_64fc64f", Kind::kL1, kelsNorm_L1_64fc64f, kelsNormDiff_L1_64fc64f, n, s);
    check_norm<Kel64fc, Kel64f>("L2_64fc64f", Kind::kL2, kelsNorm_L2_64fc64f, kelsNormDiff_L2_64fc64f, n, s);
    check_norm<Kel32fc, Kel64f>("L1_32fc64f", Kind::kL1, kelsNorm_L1_32fc64f, kelsNormDiff_L1_32fc64f, n, s);
    check_norm<Kel32fc, Kel64f>("L2_32fc64f", Kind::kL2, kelsNorm_L2_32fc64f, kelsNormDiff_L2_32fc64f, n, s);
  }
  // Moduli: |3 + 4i| = 5.
  const Kel32fc z[2] = {{3, 4}, {0, -1}};
  Kel32f r = 0;
  Kel64f d = 0;
  kelsNorm_Inf_32fc32f(z, 2, &r);
  EXPECT_EQ(r, 5.0f);
  kelsNorm_L1_32fc64f(z, 2, &d);
  EXPECT_EQ(d, 6.0);
  kelsNorm_L2_32fc64f(z, 2, &d);
  EXPECT_EQ(d, std::sqrt(26.0));
}

}  // namespace
}  // namespace kels::test
