// The real-FFT recombination and the packed-product kernels against their
// scalar twins on every target, bit for bit: half-length spectra from 4 to
// 2048 values (the vector loop, its scalar tail and the middle element),
// in place, out of place and from an input one value off (the Pack layout),
// odd element offsets; products of 0..130 pairs, plain and conjugate, with
// the destination equal to either operand.
#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "kernels/fft_real.h"
#include "support/targets.h"

namespace kels::test {
namespace {

template <class T>
std::vector<T> uniform(std::size_t n, std::mt19937& g) {
  std::uniform_real_distribution<double> u(-1, 1);
  std::vector<T> v(n);
  for (auto& x : v) x = static_cast<T>(u(g));
  return v;
}

template <class T>
bool same_bits(const T* a, const T* b, std::size_t n) {
  return n == 0 || std::memcmp(a, b, n * sizeof(T)) == 0;
}

enum class Mode { InPlace, OutOfPlace, Shifted };

struct RecombineCase {
  std::size_t m;
  Mode mode;
  bool unscaled;  // s = 1: the kernels skip the products by s
};

template <class T>
void check_recombine() {
  std::vector<RecombineCase> cases;
  for (std::size_t m = 4; m <= 2048; m *= 2)
    for (Mode mode : {Mode::InPlace, Mode::OutOfPlace, Mode::Shifted})
      for (bool unscaled : {true, false}) cases.push_back({m, mode, unscaled});
  std::mt19937 g(11);
  for_each_target([&](const std::string& target) {
    for (const RecombineCase& c : cases) {
      const std::size_t vals = 2 * (c.m - 1);  // elements 1..m-1
      const auto data = uniform<T>(vals + 1, g);
      const auto u = uniform<T>(c.m, g);
      // Forward-like (hs = s/2, mid = -1/2) and inverse-like factors.
      const T s = c.unscaled ? T(1) : T(0.3);
      const bool fwd = c.mode != Mode::Shifted;
      const T hs = fwd ? s * T(0.5) : s, mid = fwd ? T(-0.5) : T(-1);
      // Input at an odd element offset for the shifted mode, output always
      // one value past a vector boundary.
      Guarded<T> in(vals + 1, sizeof(T)), out(vals, sizeof(T));
      std::copy(data.begin(), data.end(), in.data());
      const std::size_t shift = c.mode == Mode::Shifted ? 1 : 0;
      T* dst = c.mode == Mode::InPlace ? in.data() : out.data();
      std::vector<T> want(vals);
      kernels::scalar::real_recombine(data.data() + shift, want.data(), c.m, u.data(), mid, hs, s);
      kernels::real_recombine(in.data() + shift, dst, c.m, u.data(), mid, hs, s);
      const std::string what = target + " m " + std::to_string(c.m) + " mode " +
                               std::to_string(int(c.mode)) + " s " + std::to_string(s);
      EXPECT_TRUE(same_bits(dst, want.data(), vals)) << what;
      if (c.mode != Mode::InPlace) {
        EXPECT_TRUE(same_bits(in.data(), data.data(), vals + 1)) << what;
      }
      EXPECT_TRUE(in.guards_intact() && out.guards_intact()) << what;
    }
  });
}

TEST(FftRealKernel, RecombineMatchesTwin32f) { check_recombine<float>(); }
TEST(FftRealKernel, RecombineMatchesTwin64f) { check_recombine<double>(); }

// The twin itself: one pair and the middle element worked by hand, so the
// twin (and through it every target) computes the documented formula.
TEST(FftRealKernel, TwinFormula) {
  // m = 4: elements 1, 2, 3; pair (1, 3), middle 2.
  const double in[6] = {1, 2, 3, 4, 5, 7};  // A1 = 1+2i, A2 = 3+4i, A3 = 5+7i
  const double u[4] = {0, 0, 0.25, -0.5};   // u[1] = 0.25 - 0.5i
  double out[6];
  kernels::scalar::real_recombine(in, out, 4, u, -0.5, 0.5, 2.0);
  // sum = A1 + conj A3 = 6 - 5i, dif = A1 - conj A3 = -4 + 9i;
  // e = 0.5 sum = 3 - 2.5i, t = u (2 dif) = (0.25 - 0.5i)(-8 + 18i) = 7 + 8.5i.
  EXPECT_EQ(out[0], 10);    // e + t
  EXPECT_EQ(out[1], 6);
  EXPECT_EQ(out[4], -4);    // conj(e - t)
  EXPECT_EQ(out[5], 11);
  // Middle: e = 0.5 (A2 + conj A2) = 3, t = -0.5 * 2 (A2 - conj A2) = -8i.
  EXPECT_EQ(out[2], 3);
  EXPECT_EQ(out[3], -8);
}

template <class T>
void check_products() {
  std::mt19937 g(12);
  for_each_target([&](const std::string& target) {
    for (std::size_t n = 0; n <= 130; n += (n < 40 ? 1 : 9)) {
      for (bool conj : {false, true}) {
        const auto a = uniform<T>(2 * n, g), b = uniform<T>(2 * n, g);
        std::vector<T> want(2 * n);
        kernels::scalar::mul_packed_pairs(a.data(), b.data(), want.data(), n, conj);
        // Odd element offsets for the operands; the destination separate,
        // then equal to each operand in turn.
        Guarded<T> ga(2 * n, sizeof(T)), gb(2 * n, 3 * sizeof(T)), gd(2 * n, sizeof(T));
        std::copy(a.begin(), a.end(), ga.data());
        std::copy(b.begin(), b.end(), gb.data());
        kernels::mul_packed_pairs(ga.data(), gb.data(), gd.data(), n, conj);
        EXPECT_TRUE(same_bits(gd.data(), want.data(), 2 * n)) << target << " n " << n << " conj " << conj;
        kernels::mul_packed_pairs(ga.data(), gb.data(), gb.data(), n, conj);
        EXPECT_TRUE(same_bits(gb.data(), want.data(), 2 * n)) << target << " in place b, n " << n;
        std::copy(b.begin(), b.end(), gb.data());
        kernels::mul_packed_pairs(ga.data(), gb.data(), ga.data(), n, conj);
        EXPECT_TRUE(same_bits(ga.data(), want.data(), 2 * n)) << target << " in place a, n " << n;
        EXPECT_TRUE(ga.guards_intact() && gb.guards_intact() && gd.guards_intact()) << target << " n " << n;
      }
    }
  });
}

TEST(FftRealKernel, ProductsMatchTwin32f) { check_products<float>(); }
TEST(FftRealKernel, ProductsMatchTwin64f) { check_products<double>(); }

}  // namespace
}  // namespace kels::test
