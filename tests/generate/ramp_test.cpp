// Ramp and Jaehne signals of every type against double-precision models,
// including the range mapping of the unsigned Jaehne forms.
#include <cmath>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "frame/malloc.h"
#include "kels.h"
#include "support/targets.h"

namespace {

using kels::test::Guarded;

template <class T>
T model_round(double v) {
  if constexpr (std::is_floating_point_v<T>) {
    return static_cast<T>(v);
  } else {
    if (std::isnan(v)) return 0;
    const double r = v < 0 ? std::ceil(v - 0.5) : std::floor(v + 0.5);
    const double lo = static_cast<double>(std::numeric_limits<T>::min());
    const double hi = static_cast<double>(std::numeric_limits<T>::max());
    return static_cast<T>(r < lo ? lo : (r > hi ? hi : r));
  }
}

double jaehne_sine(int n, int len) {
  const double f = 3.141592653589793 / (2.0 * len);
  return std::sin(f * n * n);
}

template <class T>
struct Funcs {
  KelStatus (*ramp)(T*, int, Kel32f, Kel32f);
  KelStatus (*jaehne)(T*, int, T);
};

template <class T>
void check_type(Funcs<T> f, T magn) {
  for (int len : {1, 2, 3, 10, 1001}) {
    for (auto [o, s] : {std::pair{0.0f, 1.0f}, {-100.5f, 0.25f}, {3e9f, -1e7f}, {1.5f, 0.5f}}) {
      Guarded<T> d(static_cast<std::size_t>(len), alignof(T));  // off the vector alignment
      ASSERT_EQ(f.ramp(d.data(), len, o, s), kelStsOk);
      ASSERT_TRUE(d.guards_intact());
      for (int n = 0; n < len; ++n) {
        ASSERT_EQ(d[n], model_round<T>(static_cast<double>(o) + static_cast<double>(s) * n))
            << "ramp len " << len << " n " << n;
      }
    }
    std::vector<T> j(static_cast<std::size_t>(len));
    ASSERT_EQ(f.jaehne(j.data(), len, magn), kelStsOk);
    if (len == 1 || std::is_signed_v<T> || std::is_floating_point_v<T>) {
      EXPECT_EQ(j[0], T(0));
    }
    if constexpr (std::is_signed_v<T> || std::is_floating_point_v<T>) {
      for (int n = 0; n < len; ++n) {
        ASSERT_EQ(j[n], model_round<T>(static_cast<double>(magn) * jaehne_sine(n, len))) << "jaehne n " << n;
      }
      EXPECT_EQ(f.jaehne(j.data(), len, static_cast<T>(-1)), kelStsBadJaehneMagn);
    } else {
      // Unsigned: the range [min, max] of the sine values maps onto 0..magn.
      std::vector<double> v(static_cast<std::size_t>(len));
      for (int n = 0; n < len; ++n) v[n] = static_cast<double>(magn) * jaehne_sine(n, len);
      const double hi = *std::max_element(v.begin(), v.end()), lo = *std::min_element(v.begin(), v.end());
      const double k = hi - lo > 0 ? static_cast<double>(magn) / (hi - lo) : 0;
      bool has_zero = false, has_magn = false;
      for (int n = 0; n < len; ++n) {
        ASSERT_EQ(j[n], static_cast<T>((v[n] - lo) * k + 0.5)) << "unsigned jaehne n " << n;
        has_zero |= j[n] == 0;
        has_magn |= j[n] == magn;
      }
      EXPECT_TRUE(has_zero);
      if (len >= 3) {
        EXPECT_TRUE(has_magn);
      }
      // The work vector's allocation failure is reported and nothing is written.
      Guarded<T> g(static_cast<std::size_t>(len));
      kels::fail_alloc_after(1);
      EXPECT_EQ(f.jaehne(g.data(), len, magn), kelStsNoMemory);
      kels::fail_alloc_after(0);
      EXPECT_TRUE(g.untouched());
    }
    std::vector<T> z(static_cast<std::size_t>(len), T(7));
    ASSERT_EQ(f.jaehne(z.data(), len, T(0)), kelStsOk);
    for (T e : z) EXPECT_EQ(e, T(0));
  }
  Guarded<T> g(3);
  EXPECT_EQ(f.ramp(nullptr, 0, 0, 1), kelStsNullPtr);
  EXPECT_EQ(f.ramp(g.data(), 0, 0, 1), kelStsBadLength);
  EXPECT_EQ(f.jaehne(nullptr, 0, static_cast<T>(-1)), kelStsNullPtr);
  EXPECT_EQ(f.jaehne(g.data(), 0, static_cast<T>(-1)), kelStsBadLength);
  EXPECT_TRUE(g.untouched());
}

TEST(RampJaehne, EveryType) {
  check_type<Kel8u>({kelsVectorRamp_8u, kelsVectorJaehne_8u}, 255);
  check_type<Kel8s>({kelsVectorRamp_8s, kelsVectorJaehne_8s}, 127);
  check_type<Kel16u>({kelsVectorRamp_16u, kelsVectorJaehne_16u}, 60000);
  check_type<Kel16s>({kelsVectorRamp_16s, kelsVectorJaehne_16s}, 32767);
  check_type<Kel32u>({kelsVectorRamp_32u, kelsVectorJaehne_32u}, 4294967295u);
  check_type<Kel32s>({kelsVectorRamp_32s, kelsVectorJaehne_32s}, 2147483647);
  check_type<Kel32f>({kelsVectorRamp_32f, kelsVectorJaehne_32f}, 1.5f);
  check_type<Kel64f>({kelsVectorRamp_64f, kelsVectorJaehne_64f}, 1e6);
}

TEST(RampJaehne, FloatMagnitudeNaNIsRefused) {
  Kel32f d[4];
  EXPECT_EQ(kelsVectorJaehne_32f(d, 4, std::numeric_limits<Kel32f>::quiet_NaN()), kelStsBadJaehneMagn);
}

}  // namespace
