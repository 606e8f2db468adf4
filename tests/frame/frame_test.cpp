// Library frame and core library: aligned allocation layout, version record,
// status texts, thread count, rounding control and IEEE constants.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <cfenv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <set>
#include <string>

#include "frame/malloc.h"
#include "kelcore.h"
#include "kels.h"

namespace {

// The word below a block locates the raw malloc block 4..35 bytes lower.
void expect_block_layout(const void* p) {
  ASSERT_NE(p, nullptr);
  const auto addr = reinterpret_cast<std::uintptr_t>(p);
  EXPECT_EQ(addr % 32, 0u);
  std::uint32_t word;
  std::memcpy(&word, reinterpret_cast<const void*>(addr - 4), sizeof word);
  const std::uint32_t distance = static_cast<std::uint32_t>(addr) - word;
  EXPECT_GE(distance, 4u);
  EXPECT_LE(distance, 35u);
  if (sizeof(void*) == 4) {
    EXPECT_EQ(addr - distance, static_cast<std::uintptr_t>(word));
  }
}

template <class T>
void check_one_malloc(T* (*alloc)(int)) {
  EXPECT_EQ(alloc(0), nullptr);
  EXPECT_EQ(alloc(-5), nullptr);
  for (int n : {1, 2, 7, 33, 1000}) {
    T* p = alloc(n);
    expect_block_layout(p);
    std::memset(static_cast<void*>(p), 0x5A, static_cast<std::size_t>(n) * sizeof(T));  // whole block writable
    kelsFree(p);
  }
}

template <class... T>
void check_malloc(T* (*... alloc)(int)) {
  (check_one_malloc(alloc), ...);
}

TEST(Malloc, EveryTypeIsAlignedWithRawAddressBelow) {
  check_malloc(kelsMalloc_8u, kelsMalloc_16u, kelsMalloc_32u, kelsMalloc_8s, kelsMalloc_16s, kelsMalloc_32s,
               kelsMalloc_64s, kelsMalloc_32f, kelsMalloc_64f, kelsMalloc_8sc, kelsMalloc_16sc, kelsMalloc_32sc,
               kelsMalloc_64sc, kelsMalloc_32fc, kelsMalloc_64fc);
  static_assert(sizeof(Kel8sc) == 2 && sizeof(Kel16sc) == 4 && sizeof(Kel64sc) == 16, "element sizes");
}

TEST(Malloc, FreeOfNullDoesNothing) { kelsFree(nullptr); }

TEST(Malloc, SizeWrapsInThirtyTwoBits) {
  // 2^30 floats is 2^32 bytes: the 32-bit size wraps to 36 bytes, which the
  // allocator accepts; callers are expected to size their requests.
  Kel32f* p = kelsMalloc_32f(1 << 30);
  expect_block_layout(p);
  kelsFree(p);
}

TEST(Malloc, InjectedFailureReturnsNull) {
  kels::fail_alloc_after(2);
  Kel8u* a = kelsMalloc_8u(16);
  Kel8u* b = kelsMalloc_8u(16);
  Kel8u* c = kelsMalloc_8u(16);
  EXPECT_NE(a, nullptr);
  EXPECT_EQ(b, nullptr);
  EXPECT_NE(c, nullptr);
  kelsFree(a);
  kelsFree(c);
  kels::fail_alloc_after(0);
}

TEST(Version, ConstantRecord) {
  const KelLibraryVersion* v = kelsGetLibVersion();
  ASSERT_NE(v, nullptr);
  EXPECT_EQ(v, kelsGetLibVersion());
  EXPECT_EQ(v->major, 5);
  EXPECT_EQ(v->minor, 1);
  EXPECT_EQ(v->majorBuild, 133);
  EXPECT_EQ(v->build, 274);
  EXPECT_EQ(std::memcmp(v->targetCpu, "z4\0\0", 4), 0);
  EXPECT_STREQ(v->Name, "libkelsz4.so.5.1");
  EXPECT_STREQ(v->Version, "5.1.1");
  EXPECT_STREQ(v->BuildDate, "Jun 17 2006");
}

TEST(Status, EveryCodeHasItsOwnText) {
  const int codes[] = {0, 3, 4, 6, 7, 8, 9, -5, -6, -8, -9, -10, -13, -15, -16, -17, -18, -19,
                       -24, -25, -26, -27, -28, -29, -30, -31, -32, -33, -35, -38, -39, -40, -41,
                       -42, -43, -44, -45, -46, -182, -194, -195, -206, -208, -209};
  std::set<std::string> texts;
  for (int c : codes) {
    const std::string t = kelsGetStatusString(c);
    EXPECT_NE(t, "unknown status") << c;
    texts.insert(t);
  }
  // Two codes share a meaning ("delay-line index out of range"); all others differ.
  EXPECT_EQ(texts.size(), std::size(codes) - 1);
  EXPECT_STREQ(kelsGetStatusString(1), "unknown status");
  EXPECT_STREQ(kelsGetStatusString(-1000), "unknown status");
}

TEST(Core, ThreadCountSetterAndGetter) {
  const int initial = kel_get_num_threads();
  EXPECT_GE(initial, 1);
  EXPECT_EQ(kel_set_num_threads(3), initial);
  EXPECT_EQ(threads_omp_of_n_kel, 3);
  EXPECT_EQ(kel_set_num_threads(0), 3);
  EXPECT_EQ(kel_get_num_threads(), 1);
  kel_set_num_threads(initial);
}

// Converts with the SSE unit (cvtss2si), which rounds by the MXCSR field;
// the C library's nearbyint may use the x87 unit on 32-bit targets.
// The volatile read keeps the compiler from merging conversions made under
// different rounding modes.
int sse_round(float x) {
  volatile float v = x;
  return _mm_cvtss_si32(_mm_set_ss(v));
}

TEST(Core, SseRoundingFieldIsSetAndRestored) {
  const unsigned int before = kel_set_rc_ssx(KEL_SSX_RC_UP);
  const int up = sse_round(2.5f);
  const unsigned int during = kel_set_rc_ssx(KEL_SSX_RC_ZERO);
  const int zero = sse_round(-2.5f);
  const unsigned int previous = kel_set_cw_ssx(before);
  EXPECT_EQ(up, 3);
  EXPECT_EQ(zero, -2);
  EXPECT_EQ(during & KEL_SSX_RC_MASK, KEL_SSX_RC_UP);
  EXPECT_EQ(previous & KEL_SSX_RC_MASK, KEL_SSX_RC_ZERO);
  EXPECT_EQ(sse_round(2.5f), 2);  // restored: nearest even
}

TEST(Core, X87RoundingAndPrecisionFields) {
  volatile long double x = 2.5L;
  const unsigned int before = kel_set_rcpc_fpu(KEL_FPU_RC_UP | KEL_FPU_PC_64);
  const long double up = std::nearbyintl(x);
  const unsigned int during = kel_set_cw_fpu(before);
  EXPECT_EQ(up, 3.0L);
  EXPECT_EQ(during & KEL_FPU_RC_MASK, KEL_FPU_RC_UP);
  EXPECT_EQ(during & KEL_FPU_PC_MASK, KEL_FPU_PC_64);
  // Only the two fields changed.
  EXPECT_EQ(during & ~(KEL_FPU_RC_MASK | KEL_FPU_PC_MASK), before & ~(KEL_FPU_RC_MASK | KEL_FPU_PC_MASK));
  EXPECT_EQ(std::nearbyintl(x), 2.0L);
}

TEST(Core, SpecialConstants) {
  EXPECT_TRUE(std::isinf(kelConstantOfINF_32f) && kelConstantOfINF_32f > 0);
  EXPECT_TRUE(std::isinf(kelConstantOfINF_64f) && kelConstantOfINF_64f > 0);
  EXPECT_TRUE(std::isnan(kelConstantOfNAN_32f));
  EXPECT_TRUE(std::isnan(kelConstantOfNAN_64f));
  EXPECT_FALSE(std::signbit(kelConstantOfNAN_32f));
}

}  // namespace
