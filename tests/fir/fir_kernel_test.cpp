// The SIMD inner products equal their scalar twins bit for bit on every
// target, for tap counts and output counts across the vector blocks and at
// unaligned addresses.
#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <random>
#include <vector>

#include "kernels/fir.h"
#include "support/targets.h"

namespace kels::test {
namespace {

template <class T, class Kernel, class Twin>
void compare(Kernel kernel, Twin twin, std::size_t width) {
  std::mt19937 g(51);
  std::uniform_real_distribution<double> u(-1, 1);
  for_each_target([&](const std::string& target) {
    for (std::size_t L : {1, 2, 3, 4, 5, 6, 7, 8, 17, 64}) {
      for (int count : sweep_lengths({1000})) {
        for (std::size_t off : {std::size_t{0}, sizeof(T)}) {  // element-aligned, not vector-aligned
          const std::size_t nx = (static_cast<std::size_t>(count) + L - 1) * width;
          Guarded<T> x(nx, off), y(static_cast<std::size_t>(count) * width, off), z(static_cast<std::size_t>(count) * width);
          std::vector<T> t(L * width);
          for (auto& v : t) v = static_cast<T>(u(g));
          for (std::size_t i = 0; i < nx; ++i) x[i] = static_cast<T>(u(g));
          kernel(t.data(), L, x.data(), y.data(), static_cast<std::size_t>(count));
          twin(t.data(), L, x.data(), z.data(), static_cast<std::size_t>(count));
          ASSERT_EQ(std::memcmp(y.data(), z.data(), y.size() * sizeof(T)), 0)
              << target << " L=" << L << " count=" << count << " off=" << off;
          ASSERT_TRUE(y.guards_intact());
        }
      }
    }
  });
}

TEST(FirKernels, RealSingleEqualsTwin) {
  compare<float>(kernels::fir_dot_f32, kernels::scalar::fir_dot_f32, 1);
}
TEST(FirKernels, RealDoubleEqualsTwin) {
  compare<double>(kernels::fir_dot_f64, kernels::scalar::fir_dot_real<double>, 1);
}
TEST(FirKernels, ComplexSingleEqualsTwin) {
  compare<float>(kernels::fir_dot_c32, kernels::scalar::fir_dot_c32, 2);
}

// The double-precision sums of the caller-held single-precision form (one
// accumulator, or two split by magnitude) equal the extended-precision rule
// bit for bit whenever their admission tests pass. Taps and inputs get full
// 24-bit mantissas and exponents spread over ranges around the admission
// limits, so admitted cases sit on both sides of them.
long double extended_rule(const float* taps, std::size_t L, const float* x) {
  long double s = 0;
  for (std::size_t k = 0; k < L; ++k) s += static_cast<float>(taps[L - 1 - k] * x[k]);
  return s;
}

TEST(FirKernels, ExactDoubleSumsEqualTheExtendedRule) {
  std::mt19937 g(53);
  std::uniform_int_distribution<std::uint32_t> mant(0, (1u << 23) - 1);
  auto value = [&](int spread, int base) {
    const int e = base + static_cast<int>(g() % static_cast<std::uint32_t>(spread + 1));
    const std::uint32_t bits = (static_cast<std::uint32_t>(e + 127) << 23) | mant(g) | ((g() & 1u) << 31);
    float v;
    std::memcpy(&v, &bits, sizeof v);
    return v;
  };
  int single = 0, split = 0, refused = 0;
  for_each_target([&](const std::string& target) {
    for (int trial = 0; trial < 400; ++trial) {
      const std::size_t L = 1 + g() % 70;
      const int count = 1 + static_cast<int>(g() % 40);
      const int st = static_cast<int>(g() % 25), sx = static_cast<int>(g() % 25);
      std::vector<float> taps(L), x(L - 1 + static_cast<std::size_t>(count)), y(static_cast<std::size_t>(count));
      for (auto& v : taps) v = value(st, -4);
      for (auto& v : x) v = value(sx, -10);
      const auto tr = kernels::exponent_range(taps.data(), L);
      const auto xr = kernels::exponent_range(x.data(), x.size());
      const double ts = kernels::abs_sum(taps.data(), L);
      int cut = 0;
      if (kernels::sum_exact_in_double(tr, ts, xr)) {
        ++single;
        kernels::fir_sum_exact_f32(taps.data(), L, x.data(), y.data(), static_cast<std::size_t>(count));
      } else if (kernels::split_exact_in_double(tr, ts, xr, L, &cut)) {
        ++split;
        kernels::fir_sum_split_f32(taps.data(), L, x.data(), y.data(), static_cast<std::size_t>(count), cut);
      } else {
        ++refused;
        continue;
      }
      for (int n = 0; n < count; ++n) {
        const float want = static_cast<float>(extended_rule(taps.data(), L, x.data() + n));
        ASSERT_EQ(std::memcmp(&y[static_cast<std::size_t>(n)], &want, sizeof want), 0)
            << target << " L=" << L << " n=" << n << " spreads " << st << "," << sx << " split " << cut;
      }
    }
  });
  // Each kind covers at least a twentieth of the trials.
  const int trials = single + split + refused;
  EXPECT_GT(20 * single, trials);
  EXPECT_GT(20 * split, trials);
  EXPECT_GT(20 * refused, trials);
}

// The exact sum of two doubles rounded once to single precision, against
// extended precision where that sum is exact (exponents at most 10 apart),
// including sums that fall exactly halfway between two floats but for a
// tiny second term, which must decide the direction.
TEST(FirKernels, RoundSumToFloatRoundsOnce) {
  std::mt19937_64 g(55);
  std::uniform_real_distribution<double> u(-1, 1);
  for (int i = 0; i < 20000; ++i) {
    const double a = std::ldexp(u(g), static_cast<int>(g() % 40) - 20);
    const double b = std::ldexp(u(g), std::ilogb(a) - static_cast<int>(g() % 11));
    const float want = static_cast<float>(static_cast<long double>(a) + b);
    ASSERT_EQ(kernels::scalar::round_sum_to_float(a, b), want) << a << " + " << b;
  }
  const double mid = 1.0 + 0x1p-24;  // halfway between 1 and its float successor
  EXPECT_EQ(kernels::scalar::round_sum_to_float(mid, 0x1p-60), 1.0f + 0x1p-23f);
  EXPECT_EQ(kernels::scalar::round_sum_to_float(mid, -0x1p-60), 1.0f);
  EXPECT_EQ(kernels::scalar::round_sum_to_float(-mid, -0x1p-60), -1.0f - 0x1p-23f);
  EXPECT_EQ(kernels::scalar::round_sum_to_float(mid, 0), 1.0f);  // tie to even
}

// The SIMD exponent scan equals its twin on every target, across lengths
// and with zeros, subnormals, infinities and NaNs at any position.
TEST(FirKernels, ExponentRangeEqualsTwin) {
  std::mt19937 g(54);
  const float specials[] = {0.0f, -0.0f, 1e-40f, -3e-39f, std::numeric_limits<float>::infinity(),
                            std::numeric_limits<float>::quiet_NaN(), 0x1p-126f, 0x1p127f};
  for_each_target([&](const std::string& target) {
    for (int n : sweep_lengths({100})) {
      for (int trial = 0; trial < 4; ++trial) {
        std::vector<float> v(static_cast<std::size_t>(n));
        for (auto& x : v) x = trial == 0 ? 0.0f : std::ldexp(1.0f + static_cast<float>(g() % 1000) / 1000, static_cast<int>(g() % 40) - 20);
        if (trial >= 2 && n > 0) v[g() % static_cast<std::uint32_t>(n)] = specials[g() % 8];
        const auto a = kernels::exponent_range(v.data(), v.size());
        const auto b = kernels::scalar::exponent_range(v.data(), v.size());
        ASSERT_TRUE(a.lo == b.lo && a.hi == b.hi && a.normal == b.normal) << target << " n=" << n << " trial " << trial;
      }
    }
  });
}

TEST(FirKernels, ExactSumAdmission) {
  const float one[4] = {1, 1.5f, -1.25f, 1};
  const float tiny[2] = {1, 0x1p-30f};
  const float odd[3] = {1, 1e-40f, 1};  // a subnormal
  const float inf[2] = {1, std::numeric_limits<float>::infinity()};
  const float zero[2] = {0, -0.0f};
  const auto r1 = kernels::exponent_range(one, 4);
  EXPECT_EQ(r1.lo, 127u);
  EXPECT_EQ(r1.hi, 127u);
  EXPECT_EQ(kernels::abs_sum(one, 4), 4.75);
  EXPECT_TRUE(kernels::sum_exact_in_double(r1, 4.75, r1));
  // Products on a grid of 2^-53 (2^-30 times a 24-bit mantissa), sums up to
  // 4.75 * 2: more than 53 bits.
  EXPECT_FALSE(kernels::sum_exact_in_double(r1, 4.75, kernels::exponent_range(tiny, 2)));
  EXPECT_FALSE(kernels::exponent_range(odd, 3).normal);
  EXPECT_FALSE(kernels::exponent_range(inf, 2).normal);
  EXPECT_FALSE(kernels::sum_exact_in_double(r1, 4.75, kernels::exponent_range(zero, 2)));
  // Grid 2^-49 (inputs down to 2^-26): the sums may reach 2^4, so taps whose
  // magnitudes add up to just under 8 pass and just over 8 do not.
  const float wide[2] = {1, 0x1p-26f};
  const auto rw = kernels::exponent_range(wide, 2);
  EXPECT_TRUE(kernels::sum_exact_in_double(r1, 7.99, rw));
  EXPECT_FALSE(kernels::sum_exact_in_double(r1, 8.01, rw));
  // Two accumulators reach 64 bits: the tiny inputs above pass (grid 2^-53,
  // split at 2^-2 for four taps), inputs down to 2^-45 do not.
  int cut = 0;
  EXPECT_TRUE(kernels::split_exact_in_double(r1, 4.75, kernels::exponent_range(tiny, 2), 4, &cut));
  EXPECT_EQ(cut, -2);
  const float tinier[2] = {1, 0x1p-45f};
  EXPECT_FALSE(kernels::split_exact_in_double(r1, 4.75, kernels::exponent_range(tinier, 2), 4, &cut));
  // Products that could overflow single precision.
  const float big[1] = {0x1p63f};
  const auto rb = kernels::exponent_range(big, 1);
  EXPECT_FALSE(kernels::sum_exact_in_double(rb, 0x1p63, rb));
}

// The spectral step of overlap-save on random tables: every target equals
// the twin bit for bit, for half lengths from the smallest (all entries on
// the scalar path) to ones with many vectors of pairs.
template <class T, class Kernel, class Twin>
void compare_spectral(Kernel kernel, Twin twin) {
  std::mt19937 g(52);
  std::uniform_real_distribution<double> u(-1, 1);
  for_each_target([&](const std::string& target) {
    for (std::size_t m : {2, 4, 8, 16, 32, 64, 128, 2048}) {
      std::vector<T> tabs(4 * 2 * m), z(2 * m);
      for (auto& v : tabs) v = static_cast<T>(u(g));
      for (auto& v : z) v = static_cast<T>(u(g));
      const T* const tab[4] = {tabs.data(), tabs.data() + 2 * m, tabs.data() + 4 * m, tabs.data() + 6 * m};
      std::vector<T> a = z, b = z;
      kernel(tab, a.data(), m);
      twin(tab, b.data(), m);
      ASSERT_EQ(std::memcmp(a.data(), b.data(), a.size() * sizeof(T)), 0) << target << " m=" << m;
    }
  });
}

TEST(FirKernels, SpectralStepEqualsTwin) {
  compare_spectral<float>(kernels::fir_spectral_f32, kernels::scalar::fir_spectral_f32);
  compare_spectral<double>(kernels::fir_spectral_f64, kernels::scalar::fir_spectral_f64);
}

}  // namespace
}  // namespace kels::test
