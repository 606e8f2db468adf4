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
    for (std::size_t L : {1, 2, 3, 5, 8, 17, 64}) {
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
  compare<float>(kernels::fir_dot_f32, kernels::scalar::fir_dot_real<float>, 1);
}
TEST(FirKernels, RealDoubleEqualsTwin) {
  compare<double>(kernels::fir_dot_f64, kernels::scalar::fir_dot_real<double>, 1);
}
TEST(FirKernels, ComplexSingleEqualsTwin) {
  compare<float>(kernels::fir_dot_c32, kernels::scalar::fir_dot_c32, 2);
}

}  // namespace
}  // namespace kels::test
