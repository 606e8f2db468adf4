// Argument checks of every statistics and search member: null pointers
// before lengths (MaxOrder: the length first), StdDev's len >= 2, the
// family checks, and nothing written on failure.
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "kels.h"

namespace {

// One member called through a uniform shape: which of its pointers is null
// (-1: none), the length, and output storage that must stay untouched on
// failure.
struct Member {
  std::string name;
  int pointers;  // number of pointer arguments that must be non-null
  int min_len;   // the smallest accepted length
  std::function<KelStatus(int null_index, int len, unsigned char* out)> call;
};

// Input storage large enough for any member at the lengths used below
// (complex 64-bit elements, 8 of them, plus a sliding window).
alignas(64) unsigned char g_in[2][1024];

template <class T>
const T* in(int slot) { return reinterpret_cast<const T*>(g_in[slot]); }

// Selects pointer k of a member, or null when k is the null index.
template <class P>
P pick(P p, int k, int null_index) { return k == null_index ? nullptr : p; }

#define KELS_SRC(T, k) pick(in<T>(0), k, null_index)
#define KELS_SRC2(T, k) pick(in<T>(1), k, null_index)
#define KELS_OUT(T, k) pick(reinterpret_cast<T*>(out), k, null_index)
#define KELS_OUT2(T, k) pick(reinterpret_cast<T*>(out + 64), k, null_index)
#define KELS_OUT3(T, k) pick(reinterpret_cast<T*>(out + 128), k, null_index)
#define KELS_OUT4(T, k) pick(reinterpret_cast<T*>(out + 192), k, null_index)
#define M(name, ptrs, minlen, expr) \
  members.push_back({#name, ptrs, minlen, [](int null_index, int len, unsigned char* out) { return expr; }})

// (name, source type, result type, trailing arguments)
#define UNARY(fn, T, R, ...) M(fn, 2, 1, fn(KELS_SRC(T, 0), len, KELS_OUT(R, 1) __VA_ARGS__))
#define UNARY2(fn, T, R, ...) M(fn, 2, 2, fn(KELS_SRC(T, 0), len, KELS_OUT(R, 1) __VA_ARGS__))
#define BINARY(fn, A, B, R, ...) M(fn, 3, 1, fn(KELS_SRC(A, 0), KELS_SRC2(B, 1), len, KELS_OUT(R, 2) __VA_ARGS__))
#define NORM(sfx, T, R, ...)                                  \
  UNARY(kelsNorm_##sfx, T, R, __VA_ARGS__);                  \
  BINARY(kelsNormDiff_##sfx, T, T, R, __VA_ARGS__)

std::vector<Member> all_members() {
  std::vector<Member> members;
  UNARY(kelsSum_16s_Sfs, Kel16s, Kel16s, , 0);
  UNARY(kelsSum_16s32s_Sfs, Kel16s, Kel32s, , 0);
  UNARY(kelsSum_16sc_Sfs, Kel16sc, Kel16sc, , 0);
  UNARY(kelsSum_16sc32sc_Sfs, Kel16sc, Kel32sc, , 0);
  UNARY(kelsSum_32s_Sfs, Kel32s, Kel32s, , 0);
  UNARY(kelsSum_32f, Kel32f, Kel32f, , 0);
  UNARY(kelsSum_32fc, Kel32fc, Kel32fc, , 1);
  UNARY(kelsSum_64f, Kel64f, Kel64f);
  UNARY(kelsSum_64fc, Kel64fc, Kel64fc);
  UNARY(kelsMean_16s_Sfs, Kel16s, Kel16s, , 0);
  UNARY(kelsMean_16sc_Sfs, Kel16sc, Kel16sc, , 0);
  UNARY(kelsMean_32s_Sfs, Kel32s, Kel32s, , 0);
  UNARY(kelsMean_32f, Kel32f, Kel32f, , 2);
  UNARY(kelsMean_32fc, Kel32fc, Kel32fc, , 1);
  UNARY(kelsMean_64f, Kel64f, Kel64f);
  UNARY(kelsMean_64fc, Kel64fc, Kel64fc);
  UNARY2(kelsStdDev_16s_Sfs, Kel16s, Kel16s, , 0);
  UNARY2(kelsStdDev_16s32s_Sfs, Kel16s, Kel32s, , 0);
  UNARY2(kelsStdDev_32f, Kel32f, Kel32f, , 0);
  UNARY2(kelsStdDev_64f, Kel64f, Kel64f);
  NORM(Inf_32f, Kel32f, Kel32f);
  NORM(L1_32f, Kel32f, Kel32f);
  NORM(L2_32f, Kel32f, Kel32f);
  NORM(Inf_64f, Kel64f, Kel64f);
  NORM(L1_64f, Kel64f, Kel64f);
  NORM(L2_64f, Kel64f, Kel64f);
  NORM(Inf_16s32f, Kel16s, Kel32f);
  NORM(L1_16s32f, Kel16s, Kel32f);
  NORM(L2_16s32f, Kel16s, Kel32f);
  NORM(Inf_16s32s_Sfs, Kel16s, Kel32s, , 0);
  NORM(L1_16s32s_Sfs, Kel16s, Kel32s, , 0);
  NORM(L2_16s32s_Sfs, Kel16s, Kel32s, , 0);
  NORM(Inf_32fc32f, Kel32fc, Kel32f);
  NORM(Inf_64fc64f, Kel64fc, Kel64f);
  NORM(L1_64fc64f, Kel64fc, Kel64f);
  NORM(L2_64fc64f, Kel64fc, Kel64f);
  NORM(L1_32fc64f, Kel32fc, Kel64f);
  NORM(L2_32fc64f, Kel32fc, Kel64f);
  NORM(L1_16s64s_Sfs, Kel16s, Kel64s, , 0);
  NORM(L2Sqr_16s64s_Sfs, Kel16s, Kel64s, , 0);
  BINARY(kelsDotProd_32f, Kel32f, Kel32f, Kel32f);
  BINARY(kelsDotProd_32fc, Kel32fc, Kel32fc, Kel32fc);
  BINARY(kelsDotProd_32f32fc, Kel32f, Kel32fc, Kel32fc);
  BINARY(kelsDotProd_32f64f, Kel32f, Kel32f, Kel64f);
  BINARY(kelsDotProd_32fc64fc, Kel32fc, Kel32fc, Kel64fc);
  BINARY(kelsDotProd_32f32fc64fc, Kel32f, Kel32fc, Kel64fc);
  BINARY(kelsDotProd_64f, Kel64f, Kel64f, Kel64f);
  BINARY(kelsDotProd_64fc, Kel64fc, Kel64fc, Kel64fc);
  BINARY(kelsDotProd_64f64fc, Kel64f, Kel64fc, Kel64fc);
  BINARY(kelsDotProd_16s_Sfs, Kel16s, Kel16s, Kel16s, , 0);
  BINARY(kelsDotProd_16sc_Sfs, Kel16sc, Kel16sc, Kel16sc, , 0);
  BINARY(kelsDotProd_16s16sc_Sfs, Kel16s, Kel16sc, Kel16sc, , 0);
  BINARY(kelsDotProd_16s32s_Sfs, Kel16s, Kel16s, Kel32s, , 0);
  BINARY(kelsDotProd_16sc32sc_Sfs, Kel16sc, Kel16sc, Kel32sc, , 0);
  BINARY(kelsDotProd_16s16sc32sc_Sfs, Kel16s, Kel16sc, Kel32sc, , 0);
  BINARY(kelsDotProd_16s32s32s_Sfs, Kel16s, Kel32s, Kel32s, , 0);
  BINARY(kelsDotProd_32s_Sfs, Kel32s, Kel32s, Kel32s, , 0);
  BINARY(kelsDotProd_32sc_Sfs, Kel32sc, Kel32sc, Kel32sc, , 0);
  BINARY(kelsDotProd_32s32sc_Sfs, Kel32s, Kel32sc, Kel32sc, , 0);
  BINARY(kelsDotProd_16s64s, Kel16s, Kel16s, Kel64s);
  BINARY(kelsDotProd_16sc64sc, Kel16sc, Kel16sc, Kel64sc);
  BINARY(kelsDotProd_16s16sc64sc, Kel16s, Kel16sc, Kel64sc);
  BINARY(kelsDotProd_16s32f, Kel16s, Kel16s, Kel32f);
  BINARY(kelsDotProd_16sc32fc, Kel16sc, Kel16sc, Kel32fc);
  BINARY(kelsDotProd_16s16sc32fc, Kel16s, Kel16sc, Kel32fc);
  UNARY(kelsSumLn_32f, Kel32f, Kel32f);
  UNARY(kelsSumLn_64f, Kel64f, Kel64f);
  UNARY(kelsSumLn_32f64f, Kel32f, Kel64f);
  UNARY(kelsSumLn_16s32f, Kel16s, Kel32f);
  M(kelsSumWindow_8u32f, 2, 1, kelsSumWindow_8u32f(KELS_SRC(Kel8u, 0), KELS_OUT(Kel32f, 1), len, 3));
  M(kelsSumWindow_16s32f, 2, 1, kelsSumWindow_16s32f(KELS_SRC(Kel16s, 0), KELS_OUT(Kel32f, 1), len, 3));

#define EXTREMES(code, T)                                                                                  \
  UNARY(kelsMax_##code, T, T);                                                                             \
  UNARY(kelsMin_##code, T, T);                                                                             \
  M(kelsMinIndx_##code, 3, 1, kelsMinIndx_##code(KELS_SRC(T, 0), len, KELS_OUT(T, 1), KELS_OUT2(int, 2)))
  EXTREMES(16s, Kel16s);
  EXTREMES(32s, Kel32s);
  EXTREMES(32f, Kel32f);
  EXTREMES(64f, Kel64f);
  M(kelsMaxIndx_16s, 3, 1, kelsMaxIndx_16s(KELS_SRC(Kel16s, 0), len, KELS_OUT(Kel16s, 1), KELS_OUT2(int, 2)));
  M(kelsMaxIndx_32s, 3, 1, kelsMaxIndx_32s(KELS_SRC(Kel32s, 0), len, KELS_OUT(Kel32s, 1), KELS_OUT2(int, 2)));
  M(kelsMaxIndx_64f, 3, 1, kelsMaxIndx_64f(KELS_SRC(Kel64f, 0), len, KELS_OUT(Kel64f, 1), KELS_OUT2(int, 2)));
  // The index pointer of kelsMaxIndx_32f is optional: two required pointers.
  M(kelsMaxIndx_32f, 2, 1, kelsMaxIndx_32f(KELS_SRC(Kel32f, 0), len, KELS_OUT(Kel32f, 1), KELS_OUT2(int, 2)));
#define MINMAX(code, T)                                                                                    \
  M(kelsMinMax_##code, 3, 1, kelsMinMax_##code(KELS_SRC(T, 0), len, KELS_OUT(T, 1), KELS_OUT2(T, 2)));    \
  M(kelsMinMaxIndx_##code, 5, 1,                                                                           \
    kelsMinMaxIndx_##code(KELS_SRC(T, 0), len, KELS_OUT(T, 1), KELS_OUT2(int, 2), KELS_OUT3(T, 3),         \
                          KELS_OUT4(int, 4)))
  MINMAX(8u, Kel8u);
  MINMAX(16u, Kel16u);
  MINMAX(16s, Kel16s);
  MINMAX(32u, Kel32u);
  MINMAX(32s, Kel32s);
  MINMAX(32f, Kel32f);
  MINMAX(64f, Kel64f);
#define ABS(code, T)                                                                                        \
  UNARY(kelsMaxAbs_##code, T, T);                                                                          \
  UNARY(kelsMinAbs_##code, T, T);                                                                          \
  M(kelsMaxAbsIndx_##code, 3, 1, kelsMaxAbsIndx_##code(KELS_SRC(T, 0), len, KELS_OUT(T, 1), KELS_OUT2(int, 2))); \
  M(kelsMinAbsIndx_##code, 3, 1, kelsMinAbsIndx_##code(KELS_SRC(T, 0), len, KELS_OUT(T, 1), KELS_OUT2(int, 2)))
  ABS(16s, Kel16s);
  ABS(32s, Kel32s);
#define EVERY(code, T)                                                                                     \
  M(kelsMaxEvery_##code##_I, 2, 1, kelsMaxEvery_##code##_I(KELS_SRC(T, 0), KELS_OUT(T, 1), len));          \
  M(kelsMinEvery_##code##_I, 2, 1, kelsMinEvery_##code##_I(KELS_SRC(T, 0), KELS_OUT(T, 1), len))
  EVERY(16s, Kel16s);
  EVERY(32s, Kel32s);
  EVERY(32f, Kel32f);
  M(kelsCountInRange_32s, 2, 1, kelsCountInRange_32s(KELS_SRC(Kel32s, 0), len, KELS_OUT(int, 1), -5, 5));
  M(kelsFindNearestOne_16u, 3, 1,
    kelsFindNearestOne_16u(7, KELS_OUT(Kel16u, 0), KELS_OUT2(int, 1), KELS_SRC(Kel16u, 2), len));
  M(kelsFindNearest_16u, 4, 1,
    kelsFindNearest_16u(KELS_SRC2(Kel16u, 0), KELS_OUT(Kel16u, 1), KELS_OUT2(int, 2), len, KELS_SRC(Kel16u, 3), 4));
  return members;
}

TEST(StatsChecks, NullPointersThenLengthAndNothingWritten) {
  const auto members = all_members();
  EXPECT_EQ(members.size(), 138u);  // every member but the four MaxOrder ones
  for (auto& row : g_in[0]) row = 1;
  for (auto& row : g_in[1]) row = 2;
  for (const auto& m : members) {
    alignas(64) unsigned char out[256];
    auto untouched = [&] {
      for (unsigned char b : out) {
        if (b != 0xA5) return false;
      }
      return true;
    };
    for (int k = 0; k < m.pointers; ++k) {
      for (const int len : {8, 0, -1}) {
        std::memset(out, 0xA5, sizeof out);
        EXPECT_EQ(m.call(k, len, out), kelStsNullPtr) << m.name << " null pointer " << k << " len " << len;
        EXPECT_TRUE(untouched()) << m.name;
      }
    }
    for (int len = m.min_len - 2; len < m.min_len; ++len) {
      std::memset(out, 0xA5, sizeof out);
      EXPECT_EQ(m.call(-1, len, out), kelStsBadLength) << m.name << " len " << len;
      EXPECT_TRUE(untouched()) << m.name;
    }
    std::memset(out, 0xA5, sizeof out);
    EXPECT_GE(m.call(-1, m.min_len + 1, out), kelStsOk) << m.name;
  }
}

TEST(StatsChecks, MaxOrderTestsLengthBeforePointers) {
  int order = -99;
  EXPECT_EQ(kelsMaxOrder_16s(nullptr, 0, &order), kelStsBadLength);
  EXPECT_EQ(kelsMaxOrder_32s(nullptr, -1, nullptr), kelStsBadLength);
  EXPECT_EQ(kelsMaxOrder_32f(nullptr, 0, nullptr), kelStsBadLength);
  EXPECT_EQ(kelsMaxOrder_64f(nullptr, 0, &order), kelStsBadLength);
  const Kel16s s[1] = {1};
  EXPECT_EQ(kelsMaxOrder_16s(s, 1, nullptr), kelStsNullPtr);
  EXPECT_EQ(kelsMaxOrder_16s(nullptr, 1, &order), kelStsNullPtr);
  EXPECT_EQ(order, -99);
}

TEST(StatsChecks, FamilyChecksComeAfterPointersAndLength) {
  const Kel16s s[8] = {};
  Kel32f d[8];
  EXPECT_EQ(kelsSumWindow_16s32f(s, d, 4, 0), kelStsBadWindowWidth);
  EXPECT_EQ(kelsSumWindow_16s32f(s, d, 0, 0), kelStsBadLength);
  EXPECT_EQ(kelsSumWindow_16s32f(nullptr, d, 0, 0), kelStsNullPtr);
  // kelsMaxIndx_32f with a null index behaves as kelsMax_32f.
  const Kel32f f[3] = {1, 5, 5};
  Kel32f mx = 0;
  EXPECT_EQ(kelsMaxIndx_32f(f, 3, &mx, nullptr), kelStsOk);
  EXPECT_EQ(mx, 5.0f);
  // Every other index form requires its index pointer.
  EXPECT_EQ(kelsMinIndx_32f(f, 3, &mx, nullptr), kelStsNullPtr);
}

}  // namespace
