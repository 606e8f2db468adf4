// The SIMD inner products equal their scalar twins bit for bit on every
// target, for tap counts and output counts across the vector blocks and at
// unaligned addresses.
#include <gtest/gtest.h>

#include <cstring>
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
