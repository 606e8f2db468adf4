// The exported conversions against independent models: integers exactly,
// float-to-integer through long double, half precision against the value
// table of all binary16 codes; argument checks for every member; the
// rounding-control contract (requested mode used, caller's mode restored).
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <algorithm>
#include <cmath>
#include <climits>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "kelcore.h"
#include "kels.h"
#include "support/targets.h"

namespace {

using kels::test::Guarded;

// ---- Argument checks: every member, null source, null destination, both
// with a bad length, bad lengths; nothing written on failure.
struct Member {
  const char* name;
  std::size_t src_bytes, dst_bytes;  // bytes per element
  std::function<KelStatus(const void*, void*, int)> call;
};

#define PLAIN(name, S, D, sb, db) \
  {#name, sb, db, [](const void* s, void* d, int n) { return kelsConvert_##name(static_cast<const S*>(s), static_cast<D*>(d), n); }},
#define SFS(name, S, D, sb, db) \
  {#name "_Sfs", sb, db, [](const void* s, void* d, int n) { return kelsConvert_##name##_Sfs(static_cast<const S*>(s), static_cast<D*>(d), n, 3); }},
#define RND_SFS(name, S, D, sb, db) \
  {#name "_Sfs", sb, db, [](const void* s, void* d, int n) { return kelsConvert_##name##_Sfs(static_cast<const S*>(s), static_cast<D*>(d), n, 1, 2); }},
#define RND(name, S, D, sb, db) \
  {#name, sb, db, [](const void* s, void* d, int n) { return kelsConvert_##name(static_cast<const S*>(s), static_cast<D*>(d), n, 1); }},

const std::vector<Member>& members() {
  static const std::vector<Member> m = {
      PLAIN(8s16s, Kel8s, Kel16s, 1, 2) PLAIN(8s32f, Kel8s, Kel32f, 1, 4) PLAIN(8u32f, Kel8u, Kel32f, 1, 4)
      PLAIN(16s32s, Kel16s, Kel32s, 2, 4) PLAIN(16s32f, Kel16s, Kel32f, 2, 4) PLAIN(16u32f, Kel16u, Kel32f, 2, 4)
      PLAIN(32s16s, Kel32s, Kel16s, 4, 2) PLAIN(32s32f, Kel32s, Kel32f, 4, 4) PLAIN(32s64f, Kel32s, Kel64f, 4, 8)
      PLAIN(32f64f, Kel32f, Kel64f, 4, 8) PLAIN(64f32f, Kel64f, Kel32f, 8, 4) PLAIN(16f32f, Kel16u, Kel32f, 2, 4)
      PLAIN(24u32u, Kel8u, Kel32u, 3, 4) PLAIN(24s32s, Kel8u, Kel32s, 3, 4) PLAIN(24u32f, Kel8u, Kel32f, 3, 4)
      PLAIN(24s32f, Kel8u, Kel32f, 3, 4)
      SFS(16s32f, Kel16s, Kel32f, 2, 4) SFS(16s64f, Kel16s, Kel64f, 2, 8) SFS(32s16s, Kel32s, Kel16s, 4, 2)
      SFS(32s32f, Kel32s, Kel32f, 4, 4) SFS(32s64f, Kel32s, Kel64f, 4, 8) SFS(64s32s, Kel64s, Kel32s, 8, 4)
      SFS(32u24u, Kel32u, Kel8u, 4, 3) SFS(32s24s, Kel32s, Kel8u, 4, 3) SFS(32f24u, Kel32f, Kel8u, 4, 3)
      SFS(32f24s, Kel32f, Kel8u, 4, 3)
      RND_SFS(32f8s, Kel32f, Kel8s, 4, 1) RND_SFS(32f8u, Kel32f, Kel8u, 4, 1) RND_SFS(32f16s, Kel32f, Kel16s, 4, 2)
      RND_SFS(32f16u, Kel32f, Kel16u, 4, 2) RND_SFS(32f32s, Kel32f, Kel32s, 4, 4)
      RND_SFS(64f32s, Kel64f, Kel32s, 8, 4) RND_SFS(16f16s, Kel16u, Kel16s, 2, 2)
      RND(32f16f, Kel32f, Kel16u, 4, 2) RND(16s16f, Kel16s, Kel16u, 2, 2)};
  return m;
}

TEST(Convert, EveryMemberChecksPointersThenLength) {
  ASSERT_EQ(35u, members().size());
  for (const Member& m : members()) {
    Guarded<Kel8u> src(8 * m.src_bytes), dst(8 * m.dst_bytes);
    std::memset(src.data(), 0, 8 * m.src_bytes);
    EXPECT_EQ(kelStsNullPtr, m.call(nullptr, dst.data(), 8)) << m.name;
    EXPECT_EQ(kelStsNullPtr, m.call(src.data(), nullptr, 8)) << m.name;
    EXPECT_EQ(kelStsNullPtr, m.call(nullptr, dst.data(), 0)) << m.name;
    EXPECT_EQ(kelStsBadLength, m.call(src.data(), dst.data(), 0)) << m.name;
    EXPECT_EQ(kelStsBadLength, m.call(src.data(), dst.data(), -5)) << m.name;
    EXPECT_TRUE(dst.untouched()) << m.name;
    EXPECT_EQ(kelStsOk, m.call(src.data(), dst.data(), 8)) << m.name;
    EXPECT_TRUE(dst.guards_intact()) << m.name;
  }
}

// ---- Models.

template <class T>
std::vector<T> integer_data(std::size_t n, unsigned seed) {
  std::mt19937 g(seed);
  std::vector<T> v(n);
  for (std::size_t i = 0; i < n; ++i) {
    switch (i % 5) {
      case 0: v[i] = std::numeric_limits<T>::min() + static_cast<T>(i % 3); break;
      case 1: v[i] = std::numeric_limits<T>::max() - static_cast<T>(i % 3); break;
      case 2: v[i] = static_cast<T>(static_cast<int>(g() % 2001) - 1000); break;
      default: v[i] = static_cast<T>(static_cast<std::uint64_t>(g()) << 32 | g());
    }
  }
  return v;
}

// x * 2^-sf rounded (nearest even or toward zero) and saturated, in long
// double, which holds every 64-bit integer and every scaled float exactly.
// Independent of the processor's rounding mode.
long double model_round(long double y, bool nearest, long double lo, long double hi) {
  if (std::isnan(y) || y <= lo) return lo;
  if (y >= hi) return hi;
  if (!nearest) return std::truncl(y);
  const long double f = std::floor(y), d = y - f;
  return (d > 0.5L || (d == 0.5L && std::fmod(f, 2.0L) != 0)) ? f + 1 : f;
}

template <class S, class D>
void check_widen(KelStatus (*fn)(const S*, D*, int)) {
  const auto src = integer_data<S>(301, 7);
  std::vector<D> dst(src.size());
  ASSERT_EQ(kelStsOk, fn(src.data(), dst.data(), static_cast<int>(src.size())));
  for (std::size_t i = 0; i < src.size(); ++i) ASSERT_EQ(static_cast<D>(src[i]), dst[i]) << i;
}

TEST(Convert, WideningIsExact) {
  check_widen(kelsConvert_8s16s);
  check_widen(kelsConvert_8s32f);
  check_widen(kelsConvert_8u32f);
  check_widen(kelsConvert_16s32s);
  check_widen(kelsConvert_16s32f);
  check_widen(kelsConvert_16u32f);
  check_widen(kelsConvert_32s64f);
  check_widen(kelsConvert_32s32f);  // rounds like the compiler's cast in the default mode
  const std::vector<float> f = {1.0f / 3, -0.0f, std::numeric_limits<float>::denorm_min(), 3.4e38f};
  std::vector<double> d(f.size());
  ASSERT_EQ(kelStsOk, kelsConvert_32f64f(f.data(), d.data(), 4));
  for (int i = 0; i < 4; ++i) EXPECT_EQ(static_cast<double>(f[i]), d[i]);
}

template <class S, class D>
void check_int_to_float_sfs(KelStatus (*fn)(const S*, D*, int, int), int lo_clamp, int hi_clamp) {
  const auto src = integer_data<S>(97, 3);
  std::vector<D> dst(src.size());
  for (int sf : {0, 1, -1, 15, -20, lo_clamp, lo_clamp - 1, hi_clamp, hi_clamp + 1, 300, -300}) {
    ASSERT_EQ(kelStsOk, fn(src.data(), dst.data(), static_cast<int>(src.size()), sf));
    const int s = std::clamp(sf, lo_clamp, hi_clamp);
    for (std::size_t i = 0; i < src.size(); ++i) {
      const D expect = static_cast<D>(std::ldexp(static_cast<long double>(static_cast<D>(src[i])), -s));
      ASSERT_EQ(expect, dst[i]) << "sf=" << sf << " x=" << src[i];
    }
  }
}

TEST(Convert, IntegerToFloatScaleClamps) {
  check_int_to_float_sfs(kelsConvert_16s32f_Sfs, -112, 126);
  check_int_to_float_sfs(kelsConvert_32s32f_Sfs, -112, 126);
  check_int_to_float_sfs(kelsConvert_16s64f_Sfs, -1023, 1022);
  check_int_to_float_sfs(kelsConvert_32s64f_Sfs, -1023, 1022);
  const Kel16s one = 1;
  Kel32f r;
  kelsConvert_16s32f_Sfs(&one, &r, 1, 300);
  EXPECT_EQ(0x1p-126f, r);
}

std::int64_t get24(const Kel8u* p, bool sign) {
  std::int64_t v = p[0] | (p[1] << 8) | (p[2] << 16);
  return sign && v >= 0x800000 ? v - 0x1000000 : v;
}

// Integer narrowing with 24-bit (packed: D is the byte) or 16/32-bit
// bounds, checked against the rounding of the exactly scaled value.
template <class S, class D>
void check_narrow(KelStatus (*fn)(const S*, D*, int, int), bool packed, long double lo, long double hi, int lo_clamp,
                  int hi_clamp) {
  auto src = integer_data<S>(203, 11);
  for (int k = 1; k < 31; ++k) src.push_back(static_cast<S>((S{1} << k) | (S{1} << (k - 1))));  // ties
  for (int k = 1; k < 31; ++k) src.push_back(static_cast<S>(-static_cast<long long>(S{1} << (k - 1)) * 3));
  std::vector<D> d(src.size() * (packed ? 3 : 1));
  for (int sf = -70; sf <= 70; ++sf) {
    ASSERT_EQ(kelStsOk, fn(src.data(), d.data(), static_cast<int>(src.size()), sf));
    const int s = std::clamp(sf, lo_clamp, hi_clamp);
    for (std::size_t i = 0; i < src.size(); ++i) {
      const long double expect = model_round(std::ldexp(static_cast<long double>(src[i]), -s), true, lo, hi);
      const std::int64_t got = packed ? get24(reinterpret_cast<const Kel8u*>(&d[3 * i]), lo < 0) : d[i];
      ASSERT_EQ(static_cast<std::int64_t>(expect), got) << "sf=" << sf << " x=" << src[i];
    }
  }
}

TEST(Convert, IntegerNarrowingRoundsEvenAndSaturates) {
  check_narrow(kelsConvert_32s16s_Sfs, false, -32768, 32767, -15, 31);
  check_narrow(kelsConvert_32s24s_Sfs, true, -8388608, 8388607, -15, 31);
  check_narrow(kelsConvert_32u24u_Sfs, true, 0, 16777215, -15, 31);
  check_narrow(kelsConvert_64s32s_Sfs, false, INT32_MIN, INT32_MAX, -100000, 100000);
  // Unscaled 32s16s saturates.
  const Kel32s x[] = {40000, -40000, 32767, -32768, 5};
  Kel16s y[5];
  ASSERT_EQ(kelStsOk, kelsConvert_32s16s(x, y, 5));
  EXPECT_EQ((std::vector<Kel16s>{32767, -32768, 32767, -32768, 5}), std::vector<Kel16s>(y, y + 5));
}

std::vector<double> float_data() {
  std::vector<double> v = {0.5, -0.5, 1.5, 2.5, -2.5, 3.5, -0.0, 0.49999997, 127.5, 128.5, -128.5, 255.5,
                           32767.5, 32766.5, -32768.5, -32767.5, 65535.5, 65534.5, 40000.0, -1e9, 1e9,
                           8388607.5, 16777215.0, -8388608.5, 2147483520.0, 2147483648.0, -2147483648.0,
                           -2147483904.0, 1e30, -1e30, 1e-30, std::numeric_limits<double>::infinity(),
                           -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN(),
                           static_cast<double>(std::numeric_limits<float>::denorm_min()),
                           static_cast<double>(std::numeric_limits<float>::max()), 0x1p127, 0x1.8p126};
  std::mt19937 g(5);
  std::uniform_real_distribution<double> u(-70000.0, 70000.0);
  for (int i = 0; i < 200; ++i) v.push_back(i % 2 ? u(g) : std::round(u(g)) + 0.5);
  return v;
}

template <class S, class D>
void check_float_to_int(KelStatus (*fn)(const S*, D*, int, int, int), long double lo, long double hi) {
  std::vector<S> src;
  for (double x : float_data()) src.push_back(static_cast<S>(x));
  std::vector<D> dst(src.size());
  for (int sf : {0, 1, -1, 3, -8, 16, 31, -31, 126, 127, 128, 200, -127, -128, -200, 1100, -1100}) {
    for (int rnd : {1, 0, 2, -1}) {
      ASSERT_EQ(kelStsOk, fn(src.data(), dst.data(), static_cast<int>(src.size()), rnd, sf));
      for (std::size_t i = 0; i < src.size(); ++i) {
        const long double y = std::ldexp(static_cast<long double>(src[i]), -sf);
        const long double expect = model_round(y, rnd == 1, lo, hi);
        ASSERT_EQ(static_cast<std::int64_t>(expect), static_cast<std::int64_t>(dst[i]))
            << "x=" << src[i] << " sf=" << sf << " rnd=" << rnd;
      }
    }
  }
}

TEST(Convert, FloatToIntegerModesAndSaturation) {
  check_float_to_int(kelsConvert_32f8s_Sfs, -128, 127);
  check_float_to_int(kelsConvert_32f8u_Sfs, 0, 255);
  check_float_to_int(kelsConvert_32f16s_Sfs, -32768, 32767);
  check_float_to_int(kelsConvert_32f16u_Sfs, 0, 65535);
  check_float_to_int(kelsConvert_32f32s_Sfs, INT32_MIN, INT32_MAX);
  check_float_to_int(kelsConvert_64f32s_Sfs, INT32_MIN, INT32_MAX);
}

TEST(Convert, FloatToPacked24RoundsToNearestEven) {
  std::vector<float> src;
  for (double x : float_data()) src.push_back(static_cast<float>(x * 256));
  std::vector<Kel8u> d(3 * src.size());
  const int n = static_cast<int>(src.size());
  for (int sf : {0, 4, -4, 8, 300, -300}) {
    ASSERT_EQ(kelStsOk, kelsConvert_32f24s_Sfs(src.data(), d.data(), n, sf));
    for (int i = 0; i < n; ++i) {
      ASSERT_EQ(model_round(std::ldexp(static_cast<long double>(src[i]), -sf), true, -8388608, 8388607),
                get24(&d[3 * i], true)) << src[i] << " sf=" << sf;
    }
    ASSERT_EQ(kelStsOk, kelsConvert_32f24u_Sfs(src.data(), d.data(), n, sf));
    for (int i = 0; i < n; ++i) {
      ASSERT_EQ(model_round(std::ldexp(static_cast<long double>(src[i]), -sf), true, 0, 16777215),
                get24(&d[3 * i], false)) << src[i] << " sf=" << sf;
    }
  }
}

TEST(Convert, Packed24Unpacks) {
  std::vector<Kel8u> bytes(3 * 300);
  std::mt19937 g(9);
  for (auto& b : bytes) b = static_cast<Kel8u>(g());
  bytes[0] = 1, bytes[1] = 2, bytes[2] = 3;
  const int n = 300;
  std::vector<Kel32u> u(n);
  std::vector<Kel32s> s(n);
  std::vector<Kel32f> fu(n), fs(n);
  ASSERT_EQ(kelStsOk, kelsConvert_24u32u(bytes.data(), u.data(), n));
  ASSERT_EQ(kelStsOk, kelsConvert_24s32s(bytes.data(), s.data(), n));
  ASSERT_EQ(kelStsOk, kelsConvert_24u32f(bytes.data(), fu.data(), n));
  ASSERT_EQ(kelStsOk, kelsConvert_24s32f(bytes.data(), fs.data(), n));
  EXPECT_EQ(197121u, u[0]);
  for (int i = 0; i < n; ++i) {
    ASSERT_EQ(get24(&bytes[3 * i], false), u[i]);
    ASSERT_EQ(get24(&bytes[3 * i], true), s[i]);
    ASSERT_EQ(static_cast<float>(u[i]), fu[i]);
    ASSERT_EQ(static_cast<float>(s[i]), fs[i]);
  }
}

TEST(Convert, DoubleToFloatSaturatesInfinityAndNaN) {
  const double inf = std::numeric_limits<double>::infinity();
  const double x[] = {inf, -inf, std::numeric_limits<double>::quiet_NaN(), 3.4028234663852886e38, 3.5e38,
                      -3.5e38, 1.0 / 3, -1e-50, 1e-40};
  Kel32f y[9];
  ASSERT_EQ(kelStsOk, kelsConvert_64f32f(x, y, 9));
  const float m = std::numeric_limits<float>::max();
  const float expect[] = {m, -m, -m, m, m, -m, static_cast<float>(1.0 / 3), -0.0f, static_cast<float>(1e-40)};
  for (int i = 0; i < 9; ++i) EXPECT_EQ(0, std::memcmp(&expect[i], &y[i], 4)) << i;
}

TEST(Convert, ExtremeScaleFactors) {
  const Kel64s big[] = {5, -5, 0};
  Kel32s r[3];
  ASSERT_EQ(kelStsOk, kelsConvert_64s32s_Sfs(big, r, 3, INT_MAX));
  EXPECT_EQ((std::vector<Kel32s>{0, 0, 0}), std::vector<Kel32s>(r, r + 3));
  ASSERT_EQ(kelStsOk, kelsConvert_64s32s_Sfs(big, r, 3, INT_MIN));
  EXPECT_EQ((std::vector<Kel32s>{INT32_MAX, INT32_MIN, 0}), std::vector<Kel32s>(r, r + 3));
  const float f[] = {1.0f, -1.0f, 0.0f};
  Kel16s s[3];
  for (int rnd : {0, 1}) {
    ASSERT_EQ(kelStsOk, kelsConvert_32f16s_Sfs(f, s, 3, rnd, INT_MIN));
    EXPECT_EQ((std::vector<Kel16s>{32767, -32768, 0}), std::vector<Kel16s>(s, s + 3));
    ASSERT_EQ(kelStsOk, kelsConvert_32f16s_Sfs(f, s, 3, rnd, INT_MAX));
    EXPECT_EQ((std::vector<Kel16s>{0, 0, 0}), std::vector<Kel16s>(s, s + 3));
  }
  const double d[] = {1.0, -1.0, 0.0};
  ASSERT_EQ(kelStsOk, kelsConvert_64f32s_Sfs(d, r, 3, 1, INT_MIN));
  EXPECT_EQ((std::vector<Kel32s>{INT32_MAX, INT32_MIN, 0}), std::vector<Kel32s>(r, r + 3));
  const Kel32s i32[] = {1, -1, 0};
  ASSERT_EQ(kelStsOk, kelsConvert_32s16s_Sfs(i32, s, 3, INT_MIN));
  EXPECT_EQ((std::vector<Kel16s>{32767, -32768, 0}), std::vector<Kel16s>(s, s + 3));
  Kel64f w[3];
  ASSERT_EQ(kelStsOk, kelsConvert_32s64f_Sfs(i32, w, 3, INT_MAX));
  EXPECT_EQ(0x1p-1022, w[0]);
}

// ---- Half precision against the values of all 65536 codes.

long double half_value(std::uint16_t h) {
  const int e = (h >> 10) & 31, m = h & 1023;
  long double v = e == 31 ? (m ? std::numeric_limits<long double>::quiet_NaN()
                               : std::numeric_limits<long double>::infinity())
                          : e == 0 ? std::ldexp(static_cast<long double>(m), -24)
                                   : std::ldexp(static_cast<long double>(1024 + m), e - 25);
  return (h & 0x8000) ? -v : v;
}

// Nearest half (ties to the even code) or the half toward zero, by search
// over the ordered positive codes; finite x only.
std::uint16_t model_half(long double x, bool nearest) {
  const std::uint16_t sign = std::signbit(x) ? 0x8000 : 0;
  const long double a = std::fabs(x);
  int lo = 0, hi = 0x7C00;  // value(lo) <= a < value(hi), 0x7C00 read as 65536
  auto val = [](int c) { return c == 0x7C00 ? 65536.0L : half_value(static_cast<std::uint16_t>(c)); };
  if (a >= 65536.0L) return static_cast<std::uint16_t>(sign | (nearest ? 0x7C00 : 0x7BFF));
  while (hi - lo > 1) {
    const int mid = (lo + hi) / 2;
    (val(mid) <= a ? lo : hi) = mid;
  }
  int c = lo;
  if (nearest && a != val(lo)) {
    const long double dl = a - val(lo), dh = val(hi) - a;
    if (dh < dl || (dh == dl && (lo & 1))) c = hi;
  }
  if (!nearest && c == 0x7C00) c = 0x7BFF;
  return static_cast<std::uint16_t>(sign | c);
}

TEST(Convert, HalfToFloatAllCodes) {
  std::vector<Kel16u> h(65536);
  for (int i = 0; i < 65536; ++i) h[i] = static_cast<Kel16u>(i);
  std::vector<Kel32f> f(65536);
  ASSERT_EQ(kelStsOk, kelsConvert_16f32f(h.data(), f.data(), 65536));
  for (int i = 0; i < 65536; ++i) {
    const long double v = half_value(static_cast<std::uint16_t>(i));
    if (std::isnan(v)) {
      ASSERT_TRUE(std::isnan(f[i])) << i;
    } else {
      ASSERT_EQ(v, static_cast<long double>(f[i])) << i;
      ASSERT_EQ(std::signbit(v), std::signbit(f[i])) << i;
    }
  }
}

TEST(Convert, FloatToHalfRoundsInTheRequestedMode) {
  // Every finite half, its float neighbours, the midpoints to the next code
  // and their neighbours, both signs; then infinities and NaN.
  std::vector<float> src;
  for (int c = 0; c < 0x7C00; ++c) {
    const float v = static_cast<float>(half_value(static_cast<std::uint16_t>(c)));
    const float next = c + 1 == 0x7C00 ? 65536.0f : static_cast<float>(half_value(static_cast<std::uint16_t>(c + 1)));
    const float mid = (v + next) / 2;
    for (float x : {v, std::nextafter(v, 1e9f), mid, std::nextafter(mid, 0.0f), std::nextafter(mid, 1e9f)}) {
      src.push_back(x);
      src.push_back(-x);
    }
  }
  for (float x : {1e-10f, 1e10f, 65520.0f, 65519.99f, std::numeric_limits<float>::max(),
                  std::numeric_limits<float>::denorm_min()}) {
    src.push_back(x);
    src.push_back(-x);
  }
  const int n = static_cast<int>(src.size());
  std::vector<Kel16u> h(n);
  for (int rnd : {1, 0}) {
    ASSERT_EQ(kelStsOk, kelsConvert_32f16f(src.data(), h.data(), n, rnd));
    for (int i = 0; i < n; ++i) ASSERT_EQ(model_half(src[i], rnd == 1), h[i]) << src[i] << " rnd=" << rnd;
  }
  const float special[] = {std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(),
                           std::numeric_limits<float>::quiet_NaN(), -std::numeric_limits<float>::quiet_NaN()};
  Kel16u hs[4];
  for (int rnd : {1, 0}) {
    ASSERT_EQ(kelStsOk, kelsConvert_32f16f(special, hs, 4, rnd));
    EXPECT_EQ(0x7C00, hs[0]);
    EXPECT_EQ(0xFC00, hs[1]);
    EXPECT_EQ(0x7E00, hs[2]);
    EXPECT_EQ(0xFE00, hs[3]);
  }
}

TEST(Convert, Int16AndHalf) {
  std::vector<Kel16s> s(65536);
  for (int i = 0; i < 65536; ++i) s[i] = static_cast<Kel16s>(i - 32768);
  std::vector<Kel16u> h(65536);
  for (int rnd : {1, 0}) {
    ASSERT_EQ(kelStsOk, kelsConvert_16s16f(s.data(), h.data(), 65536, rnd));
    for (int i = 0; i < 65536; ++i) ASSERT_EQ(model_half(s[i], rnd == 1), h[i]) << s[i];
  }
  // Half back to 16s through the float-to-integer rule, every code.
  for (int i = 0; i < 65536; ++i) h[i] = static_cast<Kel16u>(i);
  for (int sf : {0, 2, -3, 20}) {
    for (int rnd : {1, 0}) {
      ASSERT_EQ(kelStsOk, kelsConvert_16f16s_Sfs(h.data(), s.data(), 65536, rnd, sf));
      for (int i = 0; i < 65536; ++i) {
        const long double y = std::ldexp(half_value(static_cast<std::uint16_t>(i)), -sf);
        ASSERT_EQ(model_round(y, rnd == 1, -32768, 32767), s[i]) << i << " sf=" << sf;
      }
    }
  }
}

// ---- Rounding control.

class SseModeScope {
 public:
  explicit SseModeScope(unsigned rc) : saved_(_mm_getcsr()) { _mm_setcsr((saved_ & ~0x603Fu) | rc); }
  ~SseModeScope() { _mm_setcsr(saved_); }

 private:
  unsigned saved_;
};

TEST(Convert, SseRoundingIsSetForTheCallAndRestored) {
  for (unsigned caller_rc : {KEL_SSX_RC_DOWN, KEL_SSX_RC_UP, KEL_SSX_RC_NEAR, KEL_SSX_RC_ZERO}) {
    SseModeScope scope(caller_rc);
    const unsigned before = _mm_getcsr();
    std::vector<float> x(100);
    for (int i = 0; i < 100; ++i) x[i] = static_cast<float>(i % 2 ? i + 0.5 : -(i + 0.5));
    std::vector<Kel16s> y(100);
    ASSERT_EQ(kelStsOk, kelsConvert_32f16s_Sfs(x.data(), y.data(), 100, 1, 0));
    for (int i = 0; i < 100; ++i) ASSERT_EQ(static_cast<Kel16s>(model_round(x[i], true, -32768, 32767)), y[i]);
    ASSERT_EQ(kelStsOk, kelsConvert_32f16s_Sfs(x.data(), y.data(), 100, 0, 0));
    for (int i = 0; i < 100; ++i) ASSERT_EQ(static_cast<Kel16s>(std::trunc(x[i])), y[i]);
    std::vector<Kel16u> h(100);
    ASSERT_EQ(kelStsOk, kelsConvert_32f16f(x.data(), h.data(), 100, 0));
    EXPECT_EQ(before, _mm_getcsr() & ~0x20u) << "caller's rounding field and flags restored";
  }
}

TEST(Convert, CurrentModeConversionsFollowTheCaller) {
  const Kel32s x[] = {16777217, -16777217};
  Kel32f y[2];
  {
    SseModeScope up(KEL_SSX_RC_UP);
    ASSERT_EQ(kelStsOk, kelsConvert_32s32f(x, y, 2));
  }
  EXPECT_EQ(16777218.0f, y[0]);
  EXPECT_EQ(-16777216.0f, y[1]);
  {
    SseModeScope down(KEL_SSX_RC_DOWN);
    ASSERT_EQ(kelStsOk, kelsConvert_32s32f(x, y, 2));
  }
  EXPECT_EQ(16777216.0f, y[0]);
  EXPECT_EQ(-16777218.0f, y[1]);
}

TEST(Convert, X87ControlWordRestored) {
  const unsigned saved = kel_set_rcpc_fpu(KEL_FPU_RC_UP | KEL_FPU_PC_53);
  const unsigned during = kel_set_cw_fpu(saved);
  kel_set_cw_fpu(during);  // caller's mode: upward, 53-bit precision
  const double x[] = {2.5, -2.5, 3.5, -2.7, 1e300, -1e300};
  Kel32s y[6];
  ASSERT_EQ(kelStsOk, kelsConvert_64f32s_Sfs(x, y, 6, 1, 0));
  EXPECT_EQ((std::vector<Kel32s>{2, -2, 4, -3, INT32_MAX, INT32_MIN}), std::vector<Kel32s>(y, y + 6));
  ASSERT_EQ(kelStsOk, kelsConvert_64f32s_Sfs(x, y, 6, 0, 0));
  EXPECT_EQ((std::vector<Kel32s>{2, -2, 3, -2, INT32_MAX, INT32_MIN}), std::vector<Kel32s>(y, y + 6));
  EXPECT_EQ(during, kel_set_cw_fpu(saved));
}

}  // namespace
