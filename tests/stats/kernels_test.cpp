// Statistics kernels against their scalar twins on every SIMD target, over
// lengths that cross every vector width and at misaligned addresses.
// Integer and extreme kernels must agree exactly; float sums may differ by
// the order of summation only, which the bound below covers.
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "kernels/stats.h"
#include "stats_test_util.h"
#include "support/targets.h"

namespace kels::test {
namespace {

namespace kk = kels::kernels;

template <class T>
std::vector<T> random_vector(std::size_t n, std::mt19937& rng, double lo = -1.0, double hi = 1.0) {
  return random_data<T>(n, static_cast<unsigned>(rng()), lo, hi);
}

// Misalignments in elements of the data: aligned, one element, and an odd
// fraction of a 64-byte line.
constexpr std::size_t kOffsets[] = {0, 1, 5};

// |a - b| <= k * eps * (sum of |terms|): the error bound of any order of
// summation of n terms in precision eps is (n - 1) eps sum|terms|; the
// kernels' order is much better but differs per target.
void expect_close(double got, double want, double magnitude, std::size_t n, const std::string& what) {
  const double tol = 4.0 * std::numeric_limits<double>::epsilon() * static_cast<double>(n + 1) * magnitude + 1e-300;
  EXPECT_NEAR(got, want, tol) << what;
}

// Sums of one or two interleaved lanes; float sums carry the bound of
// their own precision per term.
template <class T>
void expect_sums_match(const T* a, std::size_t n, const std::string& at) {
  for (std::size_t stride : {1u, 2u}) {
    T s[2] = {0, 0}, t[2] = {0, 0};
    kk::sum_lanes(a, n * stride, stride, s);
    kk::scalar::sum_lanes(a, n * stride, stride, t);
    const double mag = std::is_same_v<T, float> ? 1.0 : static_cast<double>(n);
    for (std::size_t c = 0; c < stride; ++c) {
      EXPECT_NEAR(s[c], t[c], 4 * std::numeric_limits<T>::epsilon() * (n + 1) * mag) << at << " stride " << stride;
    }
  }
}

template <class T>
void expect_dots_match(const T* a, const T* b, std::size_t n, const std::string& at) {
  expect_close(kk::dot_rr(a, b, n), kk::scalar::dot_rr(a, b, n), n, n, at + " dot_rr");
  double v[2], w[2];
  kk::dot_rc(a, b, n, v);
  kk::scalar::dot_rc(a, b, n, w);
  for (int c = 0; c < 2; ++c) expect_close(v[c], w[c], n, n, at + " dot_rc");
  kk::dot_cc(a, b, n, v);
  kk::scalar::dot_cc(a, b, n, w);
  for (int c = 0; c < 2; ++c) expect_close(v[c], w[c], 2 * n, n, at + " dot_cc");
}

// Every norm kind, real and complex, of one vector and of a difference.
template <class T>
void expect_norms_match(const T* a, const T* b, std::size_t n, const std::string& at) {
  for (const auto kind : {kk::NormKind::kInf, kk::NormKind::kL1, kk::NormKind::kL2Sqr}) {
    for (const bool cplx : {false, true}) {
      for (const bool diff : {false, true}) {
        const std::string what = at + " norm kind=" + std::to_string(static_cast<int>(kind)) +
                                 " complex=" + std::to_string(cplx) + " diff=" + std::to_string(diff);
        const double g = kk::norm(a, diff ? b : nullptr, n, kind, cplx);
        const double r = kk::scalar::norm(a, diff ? b : nullptr, n, kind, cplx);
        if (kind == kk::NormKind::kInf) {
          EXPECT_EQ(g, r) << what;  // a maximum is exact
        } else {
          expect_close(g, r, 8.0 * n, n, what);
        }
      }
    }
  }
}

TEST(StatsKernels, FloatReductionsMatchTwins) {
  std::mt19937 rng(7);
  for_each_target([&](const std::string& target) {
    for (const int len : sweep_lengths({64, 128, 256})) {
      for (const std::size_t off : kOffsets) {
        const std::size_t n = static_cast<std::size_t>(len);
        auto fa = random_vector<float>(2 * n + off, rng), fb = random_vector<float>(2 * n + off, rng);
        auto da = random_vector<double>(2 * n + off, rng), db = random_vector<double>(2 * n + off, rng);
        const float* a = fa.data() + off;
        const float* b = fb.data() + off;
        const double* a64 = da.data() + off;
        const double* b64 = db.data() + off;
        const std::string at = target + " n=" + std::to_string(n) + " off=" + std::to_string(off);
        expect_sums_match(a, n, at);
        expect_sums_match(a64, n, at + " 64");
        double s1, s2, t1, t2;
        kk::sum_sq(a, n, &s1, &s2);
        kk::scalar::sum_sq(a, n, &t1, &t2);
        expect_close(s1, t1, n, n, at + " sum_sq s1");
        expect_close(s2, t2, n, n, at + " sum_sq s2");
        expect_dots_match(a, b, n, at);
        expect_dots_match(a64, b64, n, at + " 64");
        expect_norms_match(a, b, n, at);
        expect_norms_match(a64, b64, n, at + " 64");
      }
    }
  });
}

// Long vectors take the two-stream path of the norms.
TEST(StatsKernels, LongNormsMatchTwins) {
  std::mt19937 rng(13);
  for_each_target([&](const std::string& target) {
    for (const std::size_t n : {std::size_t{1} << 18, (std::size_t{1} << 18) + 37, std::size_t{300001}}) {
      const auto a = random_vector<float>(2 * n, rng), b = random_vector<float>(2 * n, rng);
      const auto c = random_vector<double>(2 * n, rng), e = random_vector<double>(2 * n, rng);
      expect_norms_match(a.data(), b.data(), n, target + " n=" + std::to_string(n));
      expect_norms_match(c.data(), e.data(), n, target + " 64 n=" + std::to_string(n));
    }
  });
}

// Long vectors take the two-stream path of min/max too; the planted
// extremes sit in either half and in the remainder.
TEST(StatsKernels, LongExtremesMatchTwins) {
  std::mt19937 rng(17);
  for_each_target([&](const std::string& target) {
    for (const std::size_t n : {std::size_t{1} << 18, std::size_t{300001}}) {
      auto v = random_vector<std::int16_t>(n, rng);
      for (auto& x : v) x = static_cast<std::int16_t>(x / 2);
      for (const std::size_t at : {std::size_t{5}, n / 2 + 3, n - 1}) {
        auto w = v;
        w[at] = 32767;
        w[(at + n / 3) % n] = -32768;
        std::int16_t mn, mx, tmn, tmx;
        kk::min_max(w.data(), n, &mn, &mx);
        kk::scalar::min_max(w.data(), n, &tmn, &tmx);
        EXPECT_EQ(mn, tmn) << target << " " << n << " " << at;
        EXPECT_EQ(mx, tmx) << target << " " << n << " " << at;
        EXPECT_EQ(mx, 32767);
        EXPECT_EQ(mn, -32768);
      }
    }
  });
}

// Exact 16-bit sums: random data and the extreme pairs that overflow a
// 32-bit pairwise sum (-32768 * -32768 twice), over lengths that cross the
// 32-bit block of the sum kernel on every target.
TEST(StatsKernels, IntegerSumsMatchTwins) {
  std::mt19937 rng(3);
  for_each_target([&](const std::string& target) {
    auto lengths = sweep_lengths({64});
    lengths.push_back(600001);
    for (const int len : lengths) {
      const std::size_t n = static_cast<std::size_t>(len);
      for (int fill = 0; fill < 3; ++fill) {
        auto a = random_vector<std::int16_t>(2 * n + 1, rng), b = random_vector<std::int16_t>(2 * n + 1, rng);
        if (fill > 0) {
          for (auto& x : a) x = -32768;
          for (auto& x : b) x = fill == 1 ? -32768 : 32767;
        }
        const std::string at = target + " n=" + std::to_string(n) + " fill=" + std::to_string(fill);
        for (const std::size_t off : {std::size_t{0}, std::size_t{1}}) {
          for (const std::size_t stride : {1u, 2u}) {
            std::int64_t g[2] = {0, 0}, w[2] = {0, 0};
            kk::sums_i16(a.data() + off, n * stride, stride, g);
            kk::scalar::sums_i16(a.data() + off, n * stride, stride, w);
            ASSERT_EQ(g[0], w[0]) << at;
            ASSERT_EQ(g[1], w[1]) << at;
          }
          ASSERT_EQ(kk::sum_sq_i16(a.data() + off, n), kk::scalar::sum_sq_i16(a.data() + off, n)) << at;
          ASSERT_EQ(kk::dot_i16(a.data() + off, b.data(), n), kk::scalar::dot_i16(a.data() + off, b.data(), n)) << at;
        }
      }
    }
  });
}

TEST(StatsKernels, ElementwiseKernelsMatchTwins) {
  std::mt19937 rng(5);
  for_each_target([&](const std::string& target) {
    for (const int len : sweep_lengths({64})) {
      const std::size_t n = static_cast<std::size_t>(len);
      auto s16 = random_vector<std::int16_t>(n, rng);
      auto s32 = random_vector<std::int32_t>(n, rng);
      s16[0] = std::numeric_limits<std::int16_t>::min();
      s32[n - 1] = std::numeric_limits<std::int32_t>::min();
      std::vector<std::uint16_t> m16(n), r16(n);
      std::vector<std::uint32_t> m32(n), r32(n);
      kk::magnitude(s16.data(), m16.data(), n);
      kk::scalar::magnitude(s16.data(), r16.data(), n);
      EXPECT_EQ(m16, r16) << target;
      EXPECT_EQ(m16[0], 32768u);
      kk::magnitude(s32.data(), m32.data(), n);
      kk::scalar::magnitude(s32.data(), r32.data(), n);
      EXPECT_EQ(m32, r32) << target;
      EXPECT_EQ(m32[n - 1], 2147483648u);

      for (const bool take_max : {false, true}) {
        auto every = [&](const auto* src, auto dst) {
          auto twin = dst;
          kk::every(src, dst.data(), n, take_max);
          kk::scalar::every(src, twin.data(), n, take_max);
          for (std::size_t i = 0; i < n; ++i) {  // NaN positions must agree too
            EXPECT_TRUE(dst[i] == twin[i] || (dst[i] != dst[i] && twin[i] != twin[i])) << target << " i=" << i;
          }
        };
        every(s16.data(), random_vector<std::int16_t>(n, rng));
        every(s32.data(), random_vector<std::int32_t>(n, rng));
        auto sf = random_vector<float>(n, rng), df = random_vector<float>(n, rng);
        sf[n / 2] = std::numeric_limits<float>::quiet_NaN();
        df[n / 3] = std::numeric_limits<float>::quiet_NaN();
        every(sf.data(), df);
      }

      auto c = random_vector<std::int32_t>(n, rng);
      for (auto& x : c) x %= 8;
      for (const auto& [lo, hi] : {std::pair{-3, 3}, std::pair{0, 1}, std::pair{-8, 8}, std::pair{5, -5}}) {
        EXPECT_EQ(kk::count_in_range(c.data(), n, lo, hi), kk::scalar::count_in_range(c.data(), n, lo, hi)) << target;
      }

      auto f = random_vector<float>(n, rng, -100, 100);
      auto d = random_vector<double>(n, rng, -100, 100);
      EXPECT_EQ(kk::max_magnitude_bits(f.data(), n), kk::scalar::max_magnitude_bits<std::uint32_t>(f.data(), n));
      EXPECT_EQ(kk::max_magnitude_bits(d.data(), n), kk::scalar::max_magnitude_bits<std::uint64_t>(d.data(), n));
      f[n - 1] = -std::numeric_limits<float>::infinity();
      EXPECT_EQ(kk::max_magnitude_bits(f.data(), n), 0x7F800000u) << target;
    }
  });
}

}  // namespace
}  // namespace kels::test
