// Every SIMD kernel of the arithmetic family against its scalar twin, on
// every target this machine supports: all operations, all scale-factor
// branches with every shift they take, vector and constant operands on
// either side, lengths that cross the vector widths and the two-vector
// unrolling, and start addresses off the vector alignment (offsets of 2, 6
// and 10 bytes; element alignment is kept because the scalar twins read
// the data as ordinary typed arrays).
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>
#include <vector>

#include "arith/arith_model.h"
#include "kernels/arith.h"
#include "support/targets.h"

namespace kels::test {
namespace {

using kernels::ArithOp;
using kernels::ScaleMode;

struct ModeShift {
  ScaleMode mode;
  int shift;
};

// Every (branch, shift) pair the family dispatches for 16-bit data: the
// general branch up to the largest limit (32, unsigned products), the left
// shifts 1..15.
std::vector<ModeShift> all_branches() {
  std::vector<ModeShift> v = {{ScaleMode::sat, 0}, {ScaleMode::half, 1}, {ScaleMode::sign, 0}};
  for (int s = 2; s <= 32; ++s) v.push_back({ScaleMode::round, s});
  for (int s = 1; s <= 15; ++s) v.push_back({ScaleMode::lshift, s});
  return v;
}

// Largest shift of the general branch the dispatcher uses for an operation
// on signed / unsigned 16-bit data (the zero-fill limits).
int round_limit(ArithOp op, bool is_unsigned) {
  if (op == ArithOp::mul) return is_unsigned ? 32 : 30;
  if (op == ArithOp::add) return is_unsigned ? 17 : 16;
  return 16;
}

template <class T>
std::vector<T> edge_rich(std::size_t n, std::mt19937& g) {
  auto v = random_vector<T>(n, g);
  // Small values make ties of the rounding frequent at small shifts.
  for (std::size_t i = 0; i < n; i += 3) v[i] = static_cast<T>(static_cast<int>(g() % 9) - (std::is_signed_v<T> ? 4 : 0));
  return v;
}

template <class T>
void check_scaled16(void (*kernel)(ArithOp, ScaleMode, int, const T*, bool, const T*, bool, T*, std::size_t)) {
  std::mt19937 g(2024);
  const auto lengths = sweep_lengths({11, 7, 48, 96, 130});
  for_each_target([&](const std::string& target) {
    SCOPED_TRACE(target);
    for (ArithOp op : {ArithOp::add, ArithOp::sub, ArithOp::mul}) {
      for (const ModeShift b : all_branches()) {
        if (b.mode == ScaleMode::round && b.shift > round_limit(op, std::is_unsigned_v<T>)) continue;
        for (int form = 0; form < 3; ++form) {  // vector-vector, vector-constant, constant-vector
          const bool xc = form == 2, yc = form == 1;
          for (int len : lengths) {
            const std::size_t n = static_cast<std::size_t>(len);
            const std::size_t offset = 2 + 4 * (static_cast<std::size_t>(len) % 3);
            Guarded<T> x(n, offset), y(n, offset + 4);
            const auto xv = edge_rich<T>(n, g), yv = edge_rich<T>(n, g);
            std::copy(xv.begin(), xv.end(), x.data());
            std::copy(yv.begin(), yv.end(), y.data());
            Guarded<T> got(n, offset), want(n);
            kernel(op, b.mode, b.shift, x.data(), xc, y.data(), yc, got.data(), n);
            kernels::scalar::scaled16(op, b.mode, b.shift, x.data(), xc, y.data(), yc, want.data(), n);
            ASSERT_TRUE(got.guards_intact());
            ASSERT_EQ(0, std::memcmp(got.data(), want.data(), n * sizeof(T)))
                << "op " << static_cast<int>(op) << " mode " << static_cast<int>(b.mode) << " shift " << b.shift
                << " form " << form << " len " << len;
          }
        }
      }
    }
  });
}

TEST(ArithKernels, ScaledS16MatchesScalarTwin) { check_scaled16<std::int16_t>(kernels::scaled_s16); }
TEST(ArithKernels, ScaledU16MatchesScalarTwin) { check_scaled16<std::uint16_t>(kernels::scaled_u16); }

template <class T>
void check_binary_float(bool (*kernel)(ArithOp, const T*, bool, const T*, bool, T*, std::size_t)) {
  std::mt19937 g(7);
  std::uniform_real_distribution<T> u(-10, 10);
  for_each_target([&](const std::string& target) {
    SCOPED_TRACE(target);
    for (ArithOp op : {ArithOp::add, ArithOp::sub, ArithOp::mul, ArithOp::div}) {
      for (int form = 0; form < 3; ++form) {
        const bool xc = form == 2, yc = form == 1;
        for (int len : sweep_lengths({31, 33})) {
          const std::size_t n = static_cast<std::size_t>(len);
          Guarded<T> x(n, sizeof(T)), y(n, 3 * sizeof(T)), got(n, sizeof(T)), want(n);
          for (std::size_t i = 0; i < n; ++i) {
            x[i] = u(g);
            y[i] = u(g);
          }
          // A zero divisor at a position that moves through head, body and
          // tail of the vector loop.
          const bool plant = len % 2 == 1;
          if (plant) y[(n * 5) / 7] = T(0);
          const bool zg = kernel(op, x.data(), xc, y.data(), yc, got.data(), n);
          const bool zw = kernels::scalar::binary_float(op, x.data(), xc, y.data(), yc, want.data(), n);
          ASSERT_EQ(zg, zw) << "len " << len;
          ASSERT_TRUE(got.guards_intact());
          ASSERT_EQ(0, std::memcmp(got.data(), want.data(), n * sizeof(T)))
              << "op " << static_cast<int>(op) << " form " << form << " len " << len;
        }
      }
    }
  });
}

TEST(ArithKernels, BinaryF32MatchesScalarTwin) { check_binary_float<float>(kernels::binary_f32); }
TEST(ArithKernels, BinaryF64MatchesScalarTwin) { check_binary_float<double>(kernels::binary_f64); }

template <class T>
void check_cmul(void (*kernel)(const T*, bool, const T*, std::size_t, T*)) {
  std::mt19937 g(11);
  std::uniform_real_distribution<T> u(-3, 3);
  for_each_target([&](const std::string& target) {
    SCOPED_TRACE(target);
    for (bool xc : {false, true}) {
      for (int len : sweep_lengths({31})) {
        const std::size_t n = static_cast<std::size_t>(len);
        Guarded<T> x(2 * n, 8), y(2 * n, 16), got(2 * n, 8), want(2 * n);
        for (std::size_t i = 0; i < 2 * n; ++i) {
          x[i] = u(g);
          y[i] = u(g);
        }
        kernel(x.data(), xc, y.data(), n, got.data());
        kernels::scalar::cmul(x.data(), xc, y.data(), n, want.data());
        ASSERT_TRUE(got.guards_intact());
        ASSERT_EQ(0, std::memcmp(got.data(), want.data(), 2 * n * sizeof(T))) << "len " << len << " xc " << xc;
      }
    }
  });
}

TEST(ArithKernels, ComplexMulF32MatchesScalarTwin) { check_cmul<float>(kernels::cmul_f32); }
TEST(ArithKernels, ComplexMulF64MatchesScalarTwin) { check_cmul<double>(kernels::cmul_f64); }

}  // namespace
}  // namespace kels::test
