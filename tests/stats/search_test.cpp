// Extremes and search through the exported functions, on every SIMD target:
// values and lowest indices against a plain scan, ties planted at every
// position of the first vectors and across the scalar/vector threshold and
// chunk boundaries; magnitudes of the most negative integers; orders;
// strict range counts; nearest table entries against a brute-force search.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "kels.h"
#include "stats_test_util.h"
#include "support/targets.h"

namespace kels::test {
namespace {

// Lengths around the scalar/vector switch (34) and the chunk size (4096).
std::vector<int> search_lengths() {
  auto v = sweep_lengths({34, 4096, 8192});
  v.push_back(20000);
  return v;
}

template <class T>
struct Scan {
  T min, max;
  int imin, imax;
};

// The plain definition: strictly smaller / greater replaces.
template <class T, class Key>
Scan<T> scan(const std::vector<T>& v, Key key) {
  Scan<T> s{v[0], v[0], 0, 0};
  auto kmin = key(v[0]), kmax = key(v[0]);
  for (std::size_t i = 1; i < v.size(); ++i) {
    if (key(v[i]) < kmin) {
      kmin = key(v[i]);
      s.imin = static_cast<int>(i);
    }
    if (key(v[i]) > kmax) {
      kmax = key(v[i]);
      s.imax = static_cast<int>(i);
    }
  }
  s.min = v[static_cast<std::size_t>(s.imin)];
  s.max = v[static_cast<std::size_t>(s.imax)];
  return s;
}

// The exported functions of one element type, as far as it has them.
// The exported forms of one element type; Max, Min and their index forms
// are null where the type has none.
template <class T>
struct Api {
  KelStatus (*min_max)(const T*, int, T*, T*);
  KelStatus (*min_max_indx)(const T*, int, T*, int*, T*, int*);
  KelStatus (*max)(const T*, int, T*) = nullptr;
  KelStatus (*min)(const T*, int, T*) = nullptr;
  KelStatus (*max_indx)(const T*, int, T*, int*) = nullptr;
  KelStatus (*min_indx)(const T*, int, T*, int*) = nullptr;
};
#define KELS_MINMAX(code) kelsMinMax_##code, kelsMinMaxIndx_##code
#define KELS_ALL(code) KELS_MINMAX(code), kelsMax_##code, kelsMin_##code, kelsMaxIndx_##code, kelsMinIndx_##code
inline Api<Kel8u> api_of(Kel8u) { return {KELS_MINMAX(8u)}; }
inline Api<Kel16u> api_of(Kel16u) { return {KELS_MINMAX(16u)}; }
inline Api<Kel32u> api_of(Kel32u) { return {KELS_MINMAX(32u)}; }
inline Api<Kel16s> api_of(Kel16s) { return {KELS_ALL(16s)}; }
inline Api<Kel32s> api_of(Kel32s) { return {KELS_ALL(32s)}; }
inline Api<Kel32f> api_of(Kel32f) { return {KELS_ALL(32f)}; }
inline Api<Kel64f> api_of(Kel64f) { return {KELS_ALL(64f)}; }

// Every form against the plain scan; results start from a value absent
// from the data so that a form that writes nothing fails.
template <class T>
void expect_all_forms(const std::vector<T>& v, const std::string& at) {
  const Api<T> f = api_of(T{});
  const int n = static_cast<int>(v.size());
  const auto want = scan(v, [](T x) { return x; });
  T a = 7, b = 7;
  int ia = -1, ib = -1;
  ASSERT_EQ(f.min_max(v.data(), n, &a, &b), kelStsOk);
  ASSERT_TRUE(a == want.min && b == want.max) << at;
  a = b = 7;
  ASSERT_EQ(f.min_max_indx(v.data(), n, &a, &ia, &b, &ib), kelStsOk);
  ASSERT_TRUE(a == want.min && ia == want.imin && b == want.max && ib == want.imax) << at;
  if (f.max) {
    a = b = 7;
    ASSERT_EQ(f.max(v.data(), n, &b), kelStsOk);
    ASSERT_EQ(f.min(v.data(), n, &a), kelStsOk);
    ASSERT_TRUE(a == want.min && b == want.max) << at;
    a = b = 7;
    ia = ib = -1;
    ASSERT_EQ(f.max_indx(v.data(), n, &b, &ib), kelStsOk);
    ASSERT_EQ(f.min_indx(v.data(), n, &a, &ia), kelStsOk);
    ASSERT_TRUE(a == want.min && ia == want.imin && b == want.max && ib == want.imax) << at;
  }
}

template <class T>
void check_type() {
  for_each_target([](const std::string& target) {
    for (const int n : search_lengths()) {
      auto v = random_data<T>(static_cast<std::size_t>(n), 50u + static_cast<unsigned>(n));
      // Few distinct values so that ties are everywhere.
      for (auto& x : v) x = static_cast<T>(static_cast<std::int64_t>(x) % 5);
      expect_all_forms(v, target + " n=" + std::to_string(n));
      // Extremes planted twice: at every position among the first 80
      // (every lane of the widest vector, on both sides of the threshold)
      // and at a second position later on.
      const T hi = std::numeric_limits<T>::max(), lo = std::numeric_limits<T>::lowest();
      const int first = std::min(n, 80);
      for (int i = 0; i < first; ++i) {
        auto w = v;
        const int j = std::min(n - 1, i + 1 + (n > 4096 ? 4096 : n / 2));
        w[static_cast<std::size_t>(j)] = hi;
        w[static_cast<std::size_t>(i)] = hi;
        for (const int k : {n - 1 - i, n - 2 - i}) {
          if (k >= 0 && k != i && k != j) w[static_cast<std::size_t>(k)] = lo;
        }
        expect_all_forms(w, target + " n=" + std::to_string(n) + " i=" + std::to_string(i));
      }
      // An improvement in a later chunk that equals an earlier extreme must
      // not move the index.
      if (n > 4096) {
        auto w = v;
        w[10] = hi;
        w[static_cast<std::size_t>(n - 1)] = hi;
        expect_all_forms(w, target + " chunks n=" + std::to_string(n));
      }
    }
  });
}

TEST(StatsSearch, ExtremesAndIndicesOfEveryType) {
  check_type<Kel8u>();
  check_type<Kel16u>();
  check_type<Kel16s>();
  check_type<Kel32u>();
  check_type<Kel32s>();
  check_type<Kel32f>();
  check_type<Kel64f>();
}

template <class S, class Fn>
void check_magnitudes(Fn maxabs, Fn minabs, KelStatus (*maxabs_i)(const S*, int, S*, int*),
                      KelStatus (*minabs_i)(const S*, int, S*, int*)) {
  using U = std::make_unsigned_t<S>;
  auto mag = [](S x) { return x < 0 ? static_cast<U>(U{0} - static_cast<U>(x)) : static_cast<U>(x); };
  auto sat = [](U m) { return static_cast<S>(std::min<U>(m, static_cast<U>(std::numeric_limits<S>::max()))); };
  for_each_target([&](const std::string& target) {
    for (const int n : search_lengths()) {
      auto v = random_data<S>(static_cast<std::size_t>(n), 70u + static_cast<unsigned>(n));
      for (int variant = 0; variant < 4; ++variant) {
        auto w = v;
        if (variant == 1) {
          // Magnitude 32768 (2^31) ranks above 32767 (2^31 - 1) although
          // both are reported saturated.
          w[static_cast<std::size_t>(n / 2)] = std::numeric_limits<S>::max();
          w[static_cast<std::size_t>(n - 1)] = std::numeric_limits<S>::min();
        } else if (variant == 2) {
          for (auto& x : w) x = static_cast<S>(x % 3);  // many ties, with signs
        } else if (variant == 3) {
          for (auto& x : w) x = std::numeric_limits<S>::min();
          w[static_cast<std::size_t>(n - 1)] = std::numeric_limits<S>::max();
        }
        const auto want = scan(w, mag);
        const std::string at = target + " n=" + std::to_string(n) + " v=" + std::to_string(variant);
        S r = 0;
        int i = -1;
        ASSERT_EQ(maxabs(w.data(), n, &r), kelStsOk);
        ASSERT_EQ(r, sat(mag(want.max))) << at;
        ASSERT_EQ(minabs(w.data(), n, &r), kelStsOk);
        ASSERT_EQ(r, sat(mag(want.min))) << at;
        ASSERT_EQ(maxabs_i(w.data(), n, &r, &i), kelStsOk);
        ASSERT_EQ(r, sat(mag(want.max))) << at;
        ASSERT_EQ(i, want.imax) << at;
        ASSERT_EQ(minabs_i(w.data(), n, &r, &i), kelStsOk);
        ASSERT_EQ(r, sat(mag(want.min))) << at;
        ASSERT_EQ(i, want.imin) << at;
      }
    }
  });
}

TEST(StatsSearch, MagnitudesOfSignedIntegers) {
  check_magnitudes<Kel16s>(kelsMaxAbs_16s, kelsMinAbs_16s, kelsMaxAbsIndx_16s, kelsMinAbsIndx_16s);
  check_magnitudes<Kel32s>(kelsMaxAbs_32s, kelsMinAbs_32s, kelsMaxAbsIndx_32s, kelsMinAbsIndx_32s);
}

TEST(StatsSearch, EveryTakesTheElementwiseExtreme) {
  for (const int n : sweep_lengths({64})) {
    auto check = [n](auto* src_type, auto max_fn, auto min_fn, unsigned seed) {
      using T = std::remove_pointer_t<decltype(src_type)>;
      const auto a = random_data<T>(n, seed), b = random_data<T>(n, seed + 1);
      auto hi = b, lo = b;
      ASSERT_EQ(max_fn(a.data(), hi.data(), n), kelStsOk);
      ASSERT_EQ(min_fn(a.data(), lo.data(), n), kelStsOk);
      for (int i = 0; i < n; ++i) {
        ASSERT_EQ(hi[i], std::max(a[i], b[i])) << i;
        ASSERT_EQ(lo[i], std::min(a[i], b[i])) << i;
      }
    };
    check(static_cast<Kel16s*>(nullptr), kelsMaxEvery_16s_I, kelsMinEvery_16s_I, 1);
    check(static_cast<Kel32s*>(nullptr), kelsMaxEvery_32s_I, kelsMinEvery_32s_I, 3);
    check(static_cast<Kel32f*>(nullptr), kelsMaxEvery_32f_I, kelsMinEvery_32f_I, 5);
  }
}

TEST(StatsSearch, MaxOrder) {
  struct Case {
    float x;
    int order;
  };
  for (const Case c : {Case{1.0f, 1}, Case{0.5f, 0}, Case{-1.5f, 1}, Case{2.0f, 2}, Case{1e-45f, -126},
                       Case{0.0f, -126}, Case{3.4e38f, 128}}) {
    for (const int n : {1, 5, 40}) {
      std::vector<Kel32f> v(n, 0.0f);
      v[n - 1] = c.x;
      int order = -999;
      ASSERT_EQ(kelsMaxOrder_32f(v.data(), n, &order), kelStsOk);
      EXPECT_EQ(order, c.order) << c.x << " n=" << n;
      std::vector<Kel64f> w(v.begin(), v.end());
      ASSERT_EQ(kelsMaxOrder_64f(w.data(), n, &order), kelStsOk);
      if (c.x != 0 && std::fabs(c.x) >= 1e-38f) {
        EXPECT_EQ(order, c.order) << c.x;
      }
    }
  }
  for (const float bad : {INFINITY, -INFINITY, NAN}) {
    for (const int n : {1, 40}) {
      std::vector<Kel32f> v(n, 1.0f);
      v[n / 2] = bad;
      int order = 0;
      EXPECT_EQ(kelsMaxOrder_32f(v.data(), n, &order), kelStsNotFinite);
      EXPECT_EQ(order, 129);  // the all-ones exponent field
      std::vector<Kel64f> w(v.begin(), v.end());
      EXPECT_EQ(kelsMaxOrder_64f(w.data(), n, &order), kelStsOk);
      EXPECT_EQ(order, 1025);
    }
  }
  struct ICase {
    std::int64_t x;
    int order;
  };
  for (const ICase c : {ICase{0, 0}, ICase{1, 1}, ICase{-1, 1}, ICase{2, 2}, ICase{3, 2}, ICase{-4, 3},
                        ICase{32767, 15}, ICase{-32768, 16}}) {
    for (const int n : {1, 7, 100}) {
      std::vector<Kel16s> v(n, 0);
      v[0] = static_cast<Kel16s>(c.x);
      std::vector<Kel32s> w(n, 0);
      w[n - 1] = static_cast<Kel32s>(c.x);
      int order = -1;
      ASSERT_EQ(kelsMaxOrder_16s(v.data(), n, &order), kelStsOk);
      EXPECT_EQ(order, c.order) << c.x;
      ASSERT_EQ(kelsMaxOrder_32s(w.data(), n, &order), kelStsOk);
      EXPECT_EQ(order, c.order) << c.x;
    }
  }
  const Kel32s ext[2] = {INT32_MIN, 5};
  int order = 0;
  kelsMaxOrder_32s(ext, 2, &order);
  EXPECT_EQ(order, 32);
}

TEST(StatsSearch, CountInRangeExcludesBothBounds) {
  for (const int n : sweep_lengths({64})) {
    auto v = random_data<Kel32s>(n, 9);
    for (auto& x : v) x %= 10;
    for (const auto& [lo, hi] : {std::pair{-5, 5}, std::pair{0, 1}, std::pair{-9, 9}, std::pair{3, -3},
                                 std::pair{INT32_MIN, INT32_MAX}}) {
      int want = 0;
      for (Kel32s x : v) want += x > lo && x < hi;
      int count = -1;
      ASSERT_EQ(kelsCountInRange_32s(v.data(), n, &count, lo, hi), kelStsOk);
      EXPECT_EQ(count, want) << n << " " << lo << " " << hi;
    }
  }
}

TEST(StatsSearch, NearestTableEntries) {
  for (const int tbl : {1, 2, 3, 8, 33, 1000}) {
    auto t = random_data<Kel16u>(tbl, 11 + tbl);
    std::sort(t.begin(), t.end());
    if (tbl > 8) t[3] = t[4];  // duplicates
    std::vector<Kel16u> in;
    for (Kel16u x : t) {
      for (int d = -2; d <= 2; ++d) in.push_back(static_cast<Kel16u>(x + d));
    }
    for (std::size_t k = 0; k + 1 < t.size(); ++k) in.push_back(static_cast<Kel16u>((t[k] + t[k + 1]) / 2));
    in.push_back(0);
    in.push_back(65535);
    std::vector<Kel16u> val(in.size());
    std::vector<int> idx(in.size());
    ASSERT_EQ(kelsFindNearest_16u(in.data(), val.data(), idx.data(), static_cast<int>(in.size()), t.data(), tbl),
              kelStsOk);
    for (std::size_t k = 0; k < in.size(); ++k) {
      // Brute force: the smallest distance; at equal distance the lower
      // entry; among equal entries the one the binary search lands on,
      // so compare values and distances, and the index's entry.
      int best = 0;
      for (int j = 1; j < tbl; ++j) {
        if (std::abs(in[k] - t[j]) < std::abs(in[k] - t[best])) best = j;
      }
      ASSERT_EQ(std::abs(in[k] - val[k]), std::abs(in[k] - t[best])) << k;
      ASSERT_EQ(t[static_cast<std::size_t>(idx[k])], val[k]);
      if (val[k] != t[best]) {
        ASSERT_LT(val[k], in[k]) << "equal distance: the lower entry wins";
      }
      Kel16u one = 0;
      int one_idx = -1;
      ASSERT_EQ(kelsFindNearestOne_16u(in[k], &one, &one_idx, t.data(), tbl), kelStsOk);
      ASSERT_EQ(one, val[k]);
      ASSERT_EQ(one_idx, idx[k]);
    }
  }
  const Kel16u t[4] = {10, 20, 30, 40};
  Kel16u v = 0;
  int i = -1;
  kelsFindNearestOne_16u(25, &v, &i, t, 4);
  EXPECT_EQ(v, 20);
  EXPECT_EQ(i, 1);
  kelsFindNearestOne_16u(26, &v, &i, t, 4);
  EXPECT_EQ(v, 30);
  EXPECT_EQ(i, 2);
  kelsFindNearestOne_16u(5, &v, &i, t, 4);
  EXPECT_EQ(i, 0);
  kelsFindNearestOne_16u(50, &v, &i, t, 4);
  EXPECT_EQ(i, 3);
}

}  // namespace
}  // namespace kels::test
