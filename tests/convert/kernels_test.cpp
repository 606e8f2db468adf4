// Every conversion kernel against its scalar twin on every SIMD target, at
// lengths that cross the vector and tail boundaries and at addresses that
// are not vector aligned. Outputs are compared byte for byte.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "kernels/convert.h"
#include "support/targets.h"

namespace {

using namespace kels::kernels;
using kels::test::Guarded;

// Source values that exercise rounding ties, bounds, specials and the full
// bit range of integers.
template <class T>
T sample(std::mt19937& g, std::size_t i) {
  if constexpr (std::is_integral_v<T>) {
    if (i % 7 == 0) return i % 14 == 0 ? std::numeric_limits<T>::min() : std::numeric_limits<T>::max();
    return static_cast<T>(g());
  } else {
    static const T special[] = {T(0.5), T(-0.5), T(1.5), T(-2.5), T(32767.5), T(32768), T(-32768.5),
                                T(127.5), T(255.5), T(-128.5), T(65535.5), T(2147483648.0), T(-2147483904.0),
                                std::numeric_limits<T>::infinity(), -std::numeric_limits<T>::infinity(),
                                std::numeric_limits<T>::quiet_NaN(), std::numeric_limits<T>::denorm_min(),
                                T(-0.0), std::numeric_limits<T>::max(), -std::numeric_limits<T>::max(),
                                T(65520), T(65504), T(6.0e-8), T(3.0e-5)};
    const std::size_t ns = sizeof special / sizeof special[0];
    if (i % 3 == 0) return special[(i / 3) % ns];
    std::uniform_real_distribution<double> mant(-1.0, 1.0);
    std::uniform_int_distribution<int> ex(-30, 40);
    T v = static_cast<T>(std::ldexp(mant(g), ex(g)));
    if (i % 3 == 1) v = std::round(v * 2) / 2;  // many exact halves
    return v;
  }
}

std::uint16_t half_sample(std::mt19937& g, std::size_t i) { return static_cast<std::uint16_t>(g() + i); }

template <class S, class D, class Kernel, class Twin, class Gen>
void compare_with_twin(const std::string& what, Kernel kernel, Twin twin, Gen gen) {
  kels::test::for_each_target([&](const std::string& target) {
    std::mt19937 g(1234);
    for (int len : kels::test::sweep_lengths({512, 1024})) {
      for (std::size_t off : {std::size_t{0}, sizeof(S), 3 * sizeof(S)}) {
        const std::size_t n = static_cast<std::size_t>(len);
        Guarded<S> src(n, off);
        for (std::size_t i = 0; i < n; ++i) src[i] = gen(g, i);
        Guarded<D> out(n, sizeof(D) * (off / sizeof(S) + 1));
        std::vector<D> ref(n);
        kernel(src.data(), out.data(), n);
        twin(src.data(), ref.data(), n);
        ASSERT_TRUE(out.guards_intact()) << what << " " << target << " n=" << n;
        ASSERT_EQ(0, std::memcmp(out.data(), ref.data(), n * sizeof(D)))
            << what << " on " << target << " n=" << n << " offset=" << off;
      }
    }
  });
}

// A kernel and its scalar twin as two callables of (src, dst, n), with the
// extra arguments captured.
#define KELS_TWINS(S, D, kernel, twin, ...)                                     \
  [=](const S* s, D* d, std::size_t n) { kernel(s, d, n __VA_ARGS__); }, \
      [=](const S* s, D* d, std::size_t n) { scalar::twin(s, d, n __VA_ARGS__); }

template <class S, class D>
void widen_case() {
  compare_with_twin<S, D>("widen", KELS_TWINS(S, D, widen, widen, ), sample<S>);
}

TEST(ConvertKernels, Widen) {
  widen_case<std::int8_t, std::int16_t>();
  widen_case<std::int16_t, std::int32_t>();
  widen_case<float, double>();
}

template <class S>
void to_float_case(float factor) {
  compare_with_twin<S, float>("to_float", KELS_TWINS(S, float, to_float, to_floating, , factor), sample<S>);
}

TEST(ConvertKernels, IntegerToFloat) {
  for (float f : {1.0f, 0.125f, 0x1p-126f, 0x1p112f}) {
    to_float_case<std::int8_t>(f);
    to_float_case<std::uint8_t>(f);
    to_float_case<std::int16_t>(f);
    to_float_case<std::uint16_t>(f);
    to_float_case<std::int32_t>(f);
  }
  for (double f : {1.0, 0x1p-40, 0x1p1000}) {
    compare_with_twin<std::int16_t, double>("to_double16", KELS_TWINS(std::int16_t, double, to_double, to_floating, , f),
                                            sample<std::int16_t>);
    compare_with_twin<std::int32_t, double>("to_double32", KELS_TWINS(std::int32_t, double, to_double, to_floating, , f),
                                            sample<std::int32_t>);
  }
}

TEST(ConvertKernels, DoubleToFloatSaturating) {
  compare_with_twin<double, float>(
      "f64_to_f32_sat", KELS_TWINS(double, float, f64_to_f32_sat, f64_to_f32_sat, ), [](std::mt19937& g, std::size_t i) {
        return i % 5 == 4 ? (i % 10 == 4 ? 3.4028235e38 : -3.5e38) : sample<double>(g, i) * 1e10;
      });
}

template <class D>
void f32_to_int_case(int sf, bool nearest) {
  compare_with_twin<float, D>(
      "f32_to_int sf=" + std::to_string(sf) + (nearest ? " near" : " zero"),
      KELS_TWINS(float, D, f32_to_int, f_to_int, , sf, nearest), sample<float>);
}

TEST(ConvertKernels, FloatToInteger) {
  for (int sf : {0, 1, -3, 12, -127, 126, 127, -128}) {
    for (bool nearest : {true, false}) {
      f32_to_int_case<std::int8_t>(sf, nearest);
      f32_to_int_case<std::uint8_t>(sf, nearest);
      f32_to_int_case<std::int16_t>(sf, nearest);
      f32_to_int_case<std::uint16_t>(sf, nearest);
      f32_to_int_case<std::int32_t>(sf, nearest);
    }
  }
}

TEST(ConvertKernels, Narrow32To16Scaled) {
  for (int sf : {-15, -14, -8, -1, 0, 1, 2, 7, 15, 16, 17, 30, 31}) {
    compare_with_twin<std::int32_t, std::int16_t>(
        "s32_to_s16_scaled sf=" + std::to_string(sf),
        KELS_TWINS(std::int32_t, std::int16_t, s32_to_s16_scaled, s32_to_s16_scaled, , sf),
        [=](std::mt19937& g, std::size_t i) {
          // Exact ties for this shift, small values and the full range.
          if (i % 4 == 1 && sf > 0) return static_cast<std::int32_t>((static_cast<std::int32_t>(g() % 4001) - 2000) * (1 << (sf - 1)));
          if (i % 4 == 2) return static_cast<std::int32_t>(g() % 200001) - 100000;
          return sample<std::int32_t>(g, i);
        });
  }
}

TEST(ConvertKernels, HalfPrecision) {
  compare_with_twin<std::uint16_t, float>("f16_to_f32", KELS_TWINS(std::uint16_t, float, f16_to_f32, f16_to_f32, ),
                                          half_sample);
  for (bool nearest : {true, false}) {
    compare_with_twin<float, std::uint16_t>(
        "f32_to_f16", KELS_TWINS(float, std::uint16_t, f32_to_f16, f32_to_f16, , nearest),
        [](std::mt19937& g, std::size_t i) {
          // Bit patterns around the half range: exponents 100..145.
          const std::uint32_t e = 100 + g() % 46;
          const std::uint32_t u = ((g() & 1u) << 31) | (e << 23) | (g() & 0x7FFFFFu);
          return i % 4 == 0 ? sample<float>(g, i) : scalar::bits_float(i % 4 == 1 ? (u & ~0xFFFu) | 0x1000u : u);
        });
  }
}

TEST(ConvertKernels, Packed24) {
  kels::test::for_each_target([&](const std::string& target) {
    std::mt19937 g(24);
    for (int len : kels::test::sweep_lengths({16, 512})) {
      const std::size_t n = static_cast<std::size_t>(len);
      for (std::size_t off : {0, 1, 5}) {
        Guarded<std::uint8_t> bytes(3 * n, off);
        for (std::size_t i = 0; i < 3 * n; ++i) bytes[i] = static_cast<std::uint8_t>(g());
        for (bool is_signed : {true, false}) {
          Guarded<std::int32_t> out(n, 4 * (off % 2));
          std::vector<std::int32_t> ref(n);
          unpack24(bytes.data(), out.data(), n, is_signed);
          scalar::unpack24(bytes.data(), ref.data(), n, is_signed);
          ASSERT_EQ(0, std::memcmp(out.data(), ref.data(), 4 * n)) << target << " n=" << n;
          ASSERT_TRUE(out.guards_intact());
        }
        Guarded<std::int32_t> x(n, 4 * (off % 2));
        for (std::size_t i = 0; i < n; ++i) x[i] = sample<std::int32_t>(g, i) >> (i % 3 == 0 ? 0 : 8 + i % 9);
        for (int sf : {-15, -3, 0, 1, 8, 9, 31}) {
          for (auto [lo, hi] : {std::pair{-8388608, 8388607}, std::pair{0, 16777215}}) {
            Guarded<std::uint8_t> out(3 * n, off);
            std::vector<std::uint8_t> ref(3 * n);
            s32_to_24_scaled(x.data(), out.data(), n, sf, lo, hi);
            scalar::s32_to_24_scaled(x.data(), ref.data(), n, sf, lo, hi);
            ASSERT_EQ(0, std::memcmp(out.data(), ref.data(), 3 * n)) << target << " n=" << n << " sf=" << sf;
            ASSERT_TRUE(out.guards_intact()) << target << " n=" << n;
          }
        }
      }
    }
  });
}

// Outputs of 8 MiB and more take the streaming-store path from the first
// 64-byte aligned element on; check it at a destination that is not aligned.
TEST(ConvertKernels, LargeOutputsStreamed) {
  kels::test::for_each_target([&](const std::string& target) {
    std::mt19937 g(42);
    const std::size_t n = (std::size_t{4} << 20) + 37;  // 8 MiB of 16-bit output, 16 MiB of float
    std::vector<float> x(n);
    for (std::size_t i = 0; i < n; ++i) x[i] = sample<float>(g, i);
    Guarded<std::int16_t> out16(n, 6);
    std::vector<std::int16_t> ref16(n);
    for (bool nearest : {true, false}) {
      f32_to_int(x.data(), out16.data(), n, -3, nearest);
      scalar::f_to_int(x.data(), ref16.data(), n, -3, nearest);
      ASSERT_EQ(0, std::memcmp(out16.data(), ref16.data(), n * 2)) << target;
      ASSERT_TRUE(out16.guards_intact());
    }
    std::vector<std::int16_t> s(n);
    for (std::size_t i = 0; i < n; ++i) s[i] = static_cast<std::int16_t>(g());
    Guarded<float> outf(n, 4);
    std::vector<float> reff(n);
    for (float f : {1.0f, 0.25f}) {
      to_float(s.data(), outf.data(), n, f);
      scalar::to_floating(s.data(), reff.data(), n, f);
      ASSERT_EQ(0, std::memcmp(outf.data(), reff.data(), n * 4)) << target;
      ASSERT_TRUE(outf.guards_intact());
    }
  });
}

}  // namespace
