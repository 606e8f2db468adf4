// Bitwise operations and shifts: every member against plain C++ operators,
// the order of checks of the shifts (count first, delegation to copy and
// zero-fill), and every kernel against its scalar twin on every target.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "kels.h"
#include "kernels/logic.h"
#include "support/targets.h"

namespace {

using kels::test::Guarded;

template <class T>
std::vector<T> random_data(std::size_t n, unsigned seed) {
  std::mt19937 g(seed);
  std::vector<T> v(n);
  for (auto& x : v) x = static_cast<T>(g());
  return v;
}

// ---- Bitwise members: (out of place, in place, constant, constant in
// place) of And/Or/Xor and Not, for each type.
template <class T>
struct BitwiseMembers {
  using Bin = KelStatus (*)(const T*, const T*, T*, int);
  using BinI = KelStatus (*)(const T*, T*, int);
  using Con = KelStatus (*)(const T*, T, T*, int);
  using ConI = KelStatus (*)(T, T*, int);
  struct Op {
    const char* name;
    Bin bin;
    BinI bin_i;
    Con con;
    ConI con_i;
    T (*model)(T, T);
  };
};

#define KELS_TEST_OPS(T, code)                                                                                \
  std::vector<BitwiseMembers<T>::Op> {                                                                        \
    {"And", kelsAnd_##code, kelsAnd_##code##_I, kelsAndC_##code, kelsAndC_##code##_I, [](T a, T b) { return static_cast<T>(a & b); }}, \
    {"Or", kelsOr_##code, kelsOr_##code##_I, kelsOrC_##code, kelsOrC_##code##_I, [](T a, T b) { return static_cast<T>(a | b); }},      \
    {"Xor", kelsXor_##code, kelsXor_##code##_I, kelsXorC_##code, kelsXorC_##code##_I, [](T a, T b) { return static_cast<T>(a ^ b); }}  \
  }

template <class T>
void check_bitwise(const std::vector<typename BitwiseMembers<T>::Op>& ops, KelStatus (*not_fn)(const T*, T*, int),
                   KelStatus (*not_i)(T*, int)) {
  for (int len : kels::test::sweep_lengths({256})) {
    const std::size_t n = static_cast<std::size_t>(len);
    const auto a = random_data<T>(n, 1 + len), b = random_data<T>(n, 2 + len);
    const T c = static_cast<T>(0xA5C3F00Fu);
    for (const auto& op : ops) {
      Guarded<T> out(n, sizeof(T));
      ASSERT_EQ(kelStsOk, op.bin(a.data(), b.data(), out.data(), len));
      for (std::size_t i = 0; i < n; ++i) ASSERT_EQ(op.model(a[i], b[i]), out[i]) << op.name << i;
      ASSERT_EQ(kelStsOk, op.con(a.data(), c, out.data(), len));
      for (std::size_t i = 0; i < n; ++i) ASSERT_EQ(op.model(a[i], c), out[i]) << op.name << "C " << i;
      std::vector<T> io = b;
      ASSERT_EQ(kelStsOk, op.bin_i(a.data(), io.data(), len));
      for (std::size_t i = 0; i < n; ++i) ASSERT_EQ(op.model(a[i], b[i]), io[i]) << op.name << "_I " << i;
      io = b;
      ASSERT_EQ(kelStsOk, op.con_i(c, io.data(), len));
      for (std::size_t i = 0; i < n; ++i) ASSERT_EQ(op.model(b[i], c), io[i]) << op.name << "C_I " << i;
      ASSERT_TRUE(out.guards_intact());
      // Checks: pointers before the length; nothing written.
      Guarded<T> untouched(4);
      EXPECT_EQ(kelStsNullPtr, op.bin(nullptr, b.data(), untouched.data(), 0));
      EXPECT_EQ(kelStsNullPtr, op.bin(a.data(), nullptr, untouched.data(), 1));
      EXPECT_EQ(kelStsNullPtr, op.bin(a.data(), b.data(), nullptr, 1));
      EXPECT_EQ(kelStsBadLength, op.bin(a.data(), b.data(), untouched.data(), 0));
      EXPECT_EQ(kelStsNullPtr, op.bin_i(nullptr, untouched.data(), 0));
      EXPECT_EQ(kelStsBadLength, op.bin_i(a.data(), untouched.data(), -1));
      EXPECT_EQ(kelStsNullPtr, op.con(nullptr, c, untouched.data(), 0));
      EXPECT_EQ(kelStsBadLength, op.con(a.data(), c, untouched.data(), 0));
      EXPECT_EQ(kelStsNullPtr, op.con_i(c, nullptr, 0));
      EXPECT_EQ(kelStsBadLength, op.con_i(c, untouched.data(), 0));
      EXPECT_TRUE(untouched.untouched());
    }
    Guarded<T> out(n, 3 * sizeof(T));
    ASSERT_EQ(kelStsOk, not_fn(a.data(), out.data(), len));
    for (std::size_t i = 0; i < n; ++i) ASSERT_EQ(static_cast<T>(~a[i]), out[i]);
    std::vector<T> io = a;
    ASSERT_EQ(kelStsOk, not_i(io.data(), len));
    for (std::size_t i = 0; i < n; ++i) ASSERT_EQ(static_cast<T>(~a[i]), io[i]);
    EXPECT_EQ(kelStsNullPtr, not_fn(nullptr, out.data(), 0));
    EXPECT_EQ(kelStsBadLength, not_i(io.data(), 0));
    EXPECT_EQ(kelStsNullPtr, not_i(nullptr, 0));
  }
}

TEST(Logic, Bitwise8u) { check_bitwise<Kel8u>(KELS_TEST_OPS(Kel8u, 8u), kelsNot_8u, kelsNot_8u_I); }
TEST(Logic, Bitwise16u) { check_bitwise<Kel16u>(KELS_TEST_OPS(Kel16u, 16u), kelsNot_16u, kelsNot_16u_I); }
TEST(Logic, Bitwise32u) { check_bitwise<Kel32u>(KELS_TEST_OPS(Kel32u, 32u), kelsNot_32u, kelsNot_32u_I); }

// ---- Shifts.

template <class T>
struct Shift {
  const char* name;
  KelStatus (*fn)(const T*, int, T*, int);
  KelStatus (*fn_i)(int, T*, int);
  bool left;
};

// Exact model: left shifts modulo 2^w, right shifts as floor division
// (arithmetic for signed types); counts past the width zero-fill except for
// signed right shifts, which give the sign.
template <class T>
T shift_model(T x, int count, bool left) {
  constexpr int w = 8 * sizeof(T);
  if (left) return count >= w ? T(0) : static_cast<T>(static_cast<std::uint64_t>(static_cast<std::make_unsigned_t<T>>(x)) << count);
  if (count >= w) return std::is_signed_v<T> && x < 0 ? T(-1) : T(0);
  const long long d = 1LL << count, v = x;
  return static_cast<T>(v >= 0 ? v / d : -((-v + d - 1) / d));
}

template <class T>
void check_shift(const Shift<T>& s) {
  constexpr int w = 8 * sizeof(T);
  const bool sign_fill = !s.left && std::is_signed_v<T>;
  const auto src = random_data<T>(300, 77);
  for (int count = 0; count <= w + 3; ++count) {
    for (int len : {1, 7, 33, 300}) {
      Guarded<T> out(static_cast<std::size_t>(len), sizeof(T));
      ASSERT_EQ(kelStsOk, s.fn(src.data(), count, out.data(), len)) << s.name << count;
      std::vector<T> io(src.begin(), src.begin() + len);
      ASSERT_EQ(kelStsOk, s.fn_i(count, io.data(), len)) << s.name << "_I " << count;
      for (int i = 0; i < len; ++i) {
        ASSERT_EQ(shift_model(src[i], count, s.left), out[i]) << s.name << " count=" << count << " i=" << i;
        ASSERT_EQ(shift_model(src[i], count, s.left), io[i]) << s.name << "_I count=" << count;
      }
      ASSERT_TRUE(out.guards_intact());
    }
  }
  T buf[4] = {1, 2, 3, 4};
  const T one[1] = {5};
  // Count 0: the copy's own checks and status.
  EXPECT_EQ(kelStsNullPtr, s.fn(nullptr, 0, buf, 4));
  EXPECT_EQ(kelStsNullPtr, s.fn(one, 0, nullptr, 4));
  EXPECT_EQ(kelStsBadLength, s.fn(one, 0, buf, 0));
  // Too large: zero-fill (null source tested first, then the fill's checks).
  if (!sign_fill) {
    EXPECT_EQ(kelStsNullPtr, s.fn(nullptr, w, buf, 4));
    EXPECT_EQ(kelStsNullPtr, s.fn(one, w, nullptr, 4));
    EXPECT_EQ(kelStsBadLength, s.fn(one, w + 5, buf, -1));
    EXPECT_EQ(kelStsOk, s.fn(one, 1000, buf, 2));
    EXPECT_EQ(0, buf[0] | buf[1]);
    EXPECT_EQ(3, buf[2]);
    // In place: zero-fill before anything else.
    T io[3] = {7, 7, 7};
    EXPECT_EQ(kelStsOk, s.fn_i(w, io, 2));
    EXPECT_EQ(0, io[0] | io[1]);
    EXPECT_EQ(7, io[2]);
    EXPECT_EQ(kelStsNullPtr, s.fn_i(w, nullptr, 2));
    EXPECT_EQ(kelStsBadLength, s.fn_i(w + 1, io, 0));
  } else {
    EXPECT_EQ(kelStsNullPtr, s.fn(nullptr, w, buf, 4));
    EXPECT_EQ(kelStsBadLength, s.fn(one, w, buf, 0));
  }
  // Other counts: pointers, length, then the sign of the count.
  EXPECT_EQ(kelStsNullPtr, s.fn(nullptr, -1, buf, 0));
  EXPECT_EQ(kelStsNullPtr, s.fn(one, 1, nullptr, 1));
  EXPECT_EQ(kelStsBadLength, s.fn(one, -1, buf, 0));
  EXPECT_EQ(kelStsBadShift, s.fn(one, -1, buf, 1));
  EXPECT_EQ(kelStsNullPtr, s.fn_i(-1, nullptr, 0));
  EXPECT_EQ(kelStsBadLength, s.fn_i(-1, buf, 0));
  EXPECT_EQ(kelStsBadShift, s.fn_i(-1, buf, 1));
  EXPECT_EQ(kelStsNullPtr, s.fn_i(0, nullptr, 1));
  EXPECT_EQ(kelStsBadLength, s.fn_i(0, buf, 0));
  T keep[2] = {9, 10};
  EXPECT_EQ(kelStsOk, s.fn_i(0, keep, 2));
  EXPECT_EQ(9, keep[0]);
  EXPECT_EQ(10, keep[1]);
}

#define KELS_TEST_SHIFTS(T, code)                                                  \
  check_shift<T>({"LShiftC_" #code, kelsLShiftC_##code, kelsLShiftC_##code##_I, true});  \
  check_shift<T>({"RShiftC_" #code, kelsRShiftC_##code, kelsRShiftC_##code##_I, false});

TEST(Logic, Shifts) {
  KELS_TEST_SHIFTS(Kel8u, 8u)
  KELS_TEST_SHIFTS(Kel16u, 16u)
  KELS_TEST_SHIFTS(Kel16s, 16s)
  KELS_TEST_SHIFTS(Kel32s, 32s)
}

// ---- Kernels against their twins on every target.

template <class T, class Kernel, class Twin>
void compare(const std::string& what, Kernel kernel, Twin twin) {
  kels::test::for_each_target([&](const std::string& target) {
    for (int len : kels::test::sweep_lengths({512})) {
      const std::size_t n = static_cast<std::size_t>(len);
      const auto a = random_data<T>(n, 3), b = random_data<T>(n, 4);
      Guarded<T> out(n, sizeof(T));
      std::vector<T> ref(n);
      kernel(a.data(), b.data(), out.data(), n);
      twin(a.data(), b.data(), ref.data(), n);
      ASSERT_EQ(0, std::memcmp(out.data(), ref.data(), n * sizeof(T))) << what << " " << target << " n=" << n;
      ASSERT_TRUE(out.guards_intact());
    }
  });
}

template <class T>
void kernels_for() {
  namespace kk = kels::kernels;
  for (auto op : {kk::BitOp::kAnd, kk::BitOp::kOr, kk::BitOp::kXor, kk::BitOp::kNot}) {
    compare<T>("bit_op", [=](const T* a, const T* b, T* d, std::size_t n) { kk::bit_op(op, a, b, T{0}, d, n); },
               [=](const T* a, const T* b, T* d, std::size_t n) { kk::scalar::bit_op(op, a, b, T{0}, d, n); });
    compare<T>("bit_op_c", [=](const T* a, const T*, T* d, std::size_t n) { kk::bit_op(op, a, nullptr, T(0x5A), d, n); },
               [=](const T* a, const T*, T* d, std::size_t n) { kk::scalar::bit_op<T>(op, a, nullptr, T(0x5A), d, n); });
  }
  for (int c = 0; c < 8 * static_cast<int>(sizeof(T)); ++c) {
    compare<T>("shift_left", [=](const T* a, const T*, T* d, std::size_t n) { kk::shift_left(a, d, n, c); },
               [=](const T* a, const T*, T* d, std::size_t n) { kk::scalar::shift_left(a, d, n, c); });
  }
}

template <class T>
void right_kernels_for() {
  namespace kk = kels::kernels;
  for (int c = 0; c < 8 * static_cast<int>(sizeof(T)); ++c) {
    compare<T>("shift_right", [=](const T* a, const T*, T* d, std::size_t n) { kk::shift_right(a, d, n, c); },
               [=](const T* a, const T*, T* d, std::size_t n) { kk::scalar::shift_right(a, d, n, c); });
  }
}

TEST(LogicKernels, MatchTwinsOnEveryTarget) {
  kernels_for<std::uint8_t>();
  kernels_for<std::uint16_t>();
  kernels_for<std::uint32_t>();
  right_kernels_for<std::uint8_t>();
  right_kernels_for<std::uint16_t>();
  right_kernels_for<std::int16_t>();
  right_kernels_for<std::int32_t>();
}

}  // namespace
