// FFT records: the documented size rules for every family and order, table
// placement inside the caller's memory, header contents, the argument checks
// of GetSize/Init/InitAlloc/Free/GetBufSize, and allocation failures.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "frame/malloc.h"
#include "kels.h"
#include "support/targets.h"

namespace kels::test {
namespace {

// Type-erased record operations of one family.
struct SpecOps {
  const char* name;
  std::uint32_t id;
  bool dbl, real, integer;
  std::function<KelStatus(int, int, int*, int*, int*)> get_size;
  std::function<KelStatus(void**, int, int, Kel8u*, Kel8u*)> init;
  std::function<KelStatus(void**, int, int)> init_alloc;
  std::function<KelStatus(void*)> release;
  std::function<KelStatus(const void*, int*)> buf_size;
};

#define KELS_TEST_SPEC_OPS(fam, id, dbl, real, integer)                                             \
  SpecOps{#fam, id, dbl, real, integer,                                                            \
          [](int o, int f, int* a, int* b, int* c) { return kelsFFTGetSize_##fam(o, f, 7, a, b, c); }, \
          [](void** pp, int o, int f, Kel8u* m, Kel8u* b) {                                         \
            return kelsFFTInit_##fam(reinterpret_cast<KelsFFTSpec_##fam**>(pp), o, f, 7, m, b);     \
          },                                                                                        \
          [](void** pp, int o, int f) {                                                             \
            return kelsFFTInitAlloc_##fam(reinterpret_cast<KelsFFTSpec_##fam**>(pp), o, f, 7);      \
          },                                                                                        \
          [](void* s) { return kelsFFTFree_##fam(static_cast<KelsFFTSpec_##fam*>(s)); },            \
          [](const void* s, int* n) {                                                               \
            return kelsFFTGetBufSize_##fam(static_cast<const KelsFFTSpec_##fam*>(s), n);            \
          }},

const std::vector<SpecOps>& families() {
  static const std::vector<SpecOps> all = {
      KELS_TEST_SPEC_OPS(C_16sc, 1u, true, false, true)
      KELS_TEST_SPEC_OPS(C_16s, 2u, true, false, true)
      KELS_TEST_SPEC_OPS(R_16s, 3u, true, true, true)
      KELS_TEST_SPEC_OPS(C_32fc, 4u, false, false, false)
      KELS_TEST_SPEC_OPS(C_32f, 5u, false, false, false)
      KELS_TEST_SPEC_OPS(R_32f, 6u, false, true, false)
      KELS_TEST_SPEC_OPS(C_64fc, 7u, true, false, false)
      KELS_TEST_SPEC_OPS(C_64f, 8u, true, false, false)
      KELS_TEST_SPEC_OPS(R_64f, 9u, true, true, false)
      KELS_TEST_SPEC_OPS(C_32sc, 0x4C4D5364u, true, false, true)
      KELS_TEST_SPEC_OPS(C_32s, 0x4C4D5365u, true, false, true)
      KELS_TEST_SPEC_OPS(R_32s, 0x4C4D5366u, true, true, true)
      KELS_TEST_SPEC_OPS(R_16s32s, 0x4C4D5367u, true, true, true)};
  return all;
}

// ---- The documented size rules, written out independently -------------
std::int64_t r16(std::int64_t x) { return x / 16 * 16; }

struct Model {
  std::int64_t tables, extra, work;
};

int k_single(int o) {
  static const int k[] = {0, 0, 5, 6, 7, 8, 8, 8, 10, 10, 10, 10, 8, 8};
  return o <= 24 ? k[o - 11] : 10;
}
int k_double(int o) {
  if (o <= 11) return 0;
  static const int k[] = {4, 5, 6, 7, 7, 8, 9, 9, 9, 8, 8};
  return o <= 22 ? k[o - 12] : 9;
}

Model inner(int o, bool dbl) {
  const std::int64_t e = dbl ? 16 : 8, n = std::int64_t{1} << o;
  const int leaf = dbl ? 9 : 10;
  if (o <= leaf) return {r16(e * n + 23), 0, r16(e * n + 15)};
  const int k = dbl ? k_double(o) : k_single(o);
  if (k == 0) return {r16(e * n / 2 + 15) + r16(e * (std::int64_t{1} << leaf) + 23), 0, e << leaf};
  Model m = inner(o - k, dbl);
  const std::int64_t kk = std::int64_t{1} << k;
  m.tables += r16(e * kk + 23) + e * n;
  m.extra += (dbl ? r16(8 * (kk / 4) + 23) : r16(kk + 19)) + 4 * e * kk;
  m.work = std::max(m.work, 4 * e * kk);
  return m;
}

struct Expect {
  std::int64_t record, init, work;  // work as reported (with the 16 slack)
};

Expect expected(const SpecOps& f, int o) {
  const bool dbl = f.dbl;
  if (o < 4) return {dbl ? 100 : 96, 0, 0};
  const std::int64_t n = std::int64_t{1} << o;
  auto base = [&](int order) {
    const std::int64_t m = std::int64_t{1} << order;
    return dbl ? r16(8 * (m / 4) + 23) : r16(m + 19);
  };
  Expect x{};
  std::int64_t work;
  if (f.real) {
    const int c = o - 1;
    std::int64_t cspec;
    Model m{0, 0, 0};
    if (c < 4) {
      cspec = dbl ? 100 : 96;
    } else {
      m = inner(c, dbl);
      cspec = (dbl ? 112 : 96) + m.tables + r16((n / 2) + 19);
    }
    const std::int64_t e = dbl ? 16 : 8;
    x.record = cspec + 32 * ((e * (n / 4) + 15) / 16) + 96;
    x.init = base(o) + m.extra + 16;
    work = m.work;
  } else {
    const Model m = inner(o, dbl);
    x.record = (dbl ? 112 : 96) + m.tables + r16(n + 19);
    x.init = base(o) + m.extra + 16;
    work = m.work;
  }
  // Integer families (sizes of this library's own choosing): double work plus
  // 16 bytes per point for the converted data.
  if (f.integer) work = (work + 15) / 16 * 16 + 16 * n;
  x.work = work > 0 ? work + 16 : 0;
  return x;
}

TEST(FftSpec, SizesFollowTheRules) {
  for (const SpecOps& f : families()) {
    for (int o = 0; o <= 30; ++o) {
      const Expect e = expected(f, o);
      int record = -1, init = -1, work = -1;
      const KelStatus st = f.get_size(o, 8, &record, &init, &work);
      if (e.record > INT_MAX || e.init > INT_MAX || e.work > INT_MAX) {
        EXPECT_EQ(st, kelStsNoMemory) << f.name << " order " << o;
        EXPECT_EQ(record, -1);
        continue;
      }
      ASSERT_EQ(st, kelStsOk) << f.name << " order " << o;
      EXPECT_EQ(record, e.record) << f.name << " order " << o;
      EXPECT_EQ(init, e.init) << f.name << " order " << o;
      EXPECT_EQ(work, e.work) << f.name << " order " << o;
    }
  }
}

// A few values worked by hand from the rules.
TEST(FftSpec, HandWorkedSizes) {
  int s, i, w;
  ASSERT_EQ(kelsFFTGetSize_C_32fc(10, 1, 0, &s, &i, &w), kelStsOk);
  EXPECT_EQ(s, 9344);
  EXPECT_EQ(i, 1056);
  EXPECT_EQ(w, 8208);
  ASSERT_EQ(kelsFFTGetSize_C_32fc(13, 1, 0, &s, &i, &w), kelStsOk);
  EXPECT_EQ(s, 76176);
  EXPECT_EQ(i, 9296);
  EXPECT_EQ(w, 2064);
  ASSERT_EQ(kelsFFTGetSize_C_64fc(4, 1, 0, &s, &i, &w), kelStsOk);
  EXPECT_EQ(s, 416);
  EXPECT_EQ(i, 64);
  EXPECT_EQ(w, 272);
  ASSERT_EQ(kelsFFTGetSize_C_64f(3, 1, 0, &s, &i, &w), kelStsOk);
  EXPECT_EQ(s, 100);
  EXPECT_EQ(i, 0);
  EXPECT_EQ(w, 0);
}

// Init lays header and tables inside exactly GetSize bytes at every
// misalignment, uses no more than the init-buffer size, and the header holds
// the documented fields. GetBufSize agrees with GetSize.
TEST(FftSpec, InitStaysInsideCallerMemory) {
  for (const SpecOps& f : families()) {
    for (int o : {0, 3, 4, 5, 9, 10, 11, 12, 13, 16}) {
      for (std::size_t mis : {0u, 1u, 7u, 15u}) {
        int record, init, work;
        ASSERT_EQ(f.get_size(o, 4, &record, &init, &work), kelStsOk);
        Guarded<Kel8u> mem(static_cast<std::size_t>(record), mis), buf(static_cast<std::size_t>(init), mis);
        void* rec = nullptr;
        ASSERT_EQ(f.init(&rec, o, 4, mem.data(), o < 4 ? nullptr : buf.data()), kelStsOk) << f.name << o;
        EXPECT_TRUE(mem.guards_intact()) << f.name << " order " << o;
        EXPECT_TRUE(buf.guards_intact()) << f.name << " order " << o;
        const auto* p = static_cast<const unsigned char*>(rec);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(p) % 16, 0u);
        EXPECT_LT(p - mem.data(), 16);
        std::uint32_t w[8];
        std::memcpy(w, p, sizeof w);
        EXPECT_EQ(w[0], f.id);
        EXPECT_EQ(static_cast<int>(w[1]), o);
        EXPECT_EQ(w[2], 1u);  // flag 4 scales both directions
        EXPECT_EQ(w[3], 1u);
        const long double want = 1.0L / std::sqrt(std::ldexp(1.0L, o));
        if (f.dbl) {
          double sc;
          std::memcpy(&sc, p + 16, 8);
          EXPECT_EQ(sc, static_cast<double>(want));
          EXPECT_EQ(static_cast<int>(w[6]), 7);  // hint, one word later
        } else {
          float sc;
          std::memcpy(&sc, p + 16, 4);
          EXPECT_EQ(sc, static_cast<float>(want));
          EXPECT_EQ(static_cast<int>(w[5]), 7);
        }
        int bs = -1;
        ASSERT_EQ(f.buf_size(rec, &bs), kelStsOk);
        EXPECT_EQ(bs, work);
        EXPECT_EQ(f.release(rec), kelStsOk);
        EXPECT_EQ(f.buf_size(rec, &bs), kelStsBadContext);
      }
    }
  }
}

TEST(FftSpec, ScaleValues) {
  KelsFFTSpec_C_32fc* s = nullptr;
  ASSERT_EQ(kelsFFTInitAlloc_C_32fc(&s, 7, 2, 0), kelStsOk);
  float sc;
  std::memcpy(&sc, reinterpret_cast<unsigned char*>(s) + 16, 4);
  EXPECT_EQ(sc, 1.0f / 128.0f);
  int flags[2];
  std::memcpy(flags, reinterpret_cast<unsigned char*>(s) + 8, 8);
  EXPECT_EQ(flags[0], 0);
  EXPECT_EQ(flags[1], 1);
  kelsFFTFree_C_32fc(s);
  KelsFFTSpec_C_64fc* d = nullptr;
  ASSERT_EQ(kelsFFTInitAlloc_C_64fc(&d, 5, 8, 0), kelStsOk);
  double dsc;
  std::memcpy(&dsc, reinterpret_cast<unsigned char*>(d) + 16, 8);
  EXPECT_EQ(dsc, 0.0);
  kelsFFTFree_C_64fc(d);
}

TEST(FftSpec, ArgumentChecks) {
  for (const SpecOps& f : families()) {
    int a, b, c;
    void* rec = reinterpret_cast<void*>(0x1);
    std::vector<Kel8u> mem(1 << 16), buf(1 << 16);
    for (int bad : {-1, 31}) {
      EXPECT_EQ(f.get_size(bad, 8, &a, &b, &c), kelStsBadOrder);
      EXPECT_EQ(f.get_size(bad, 8, nullptr, &b, &c), kelStsBadOrder);  // order first
      EXPECT_EQ(f.init(&rec, bad, 8, mem.data(), buf.data()), kelStsBadOrder);
      EXPECT_EQ(f.init(&rec, bad, 8, nullptr, nullptr), kelStsBadOrder);
      EXPECT_EQ(f.init_alloc(&rec, bad, 8), kelStsBadOrder);
    }
    EXPECT_EQ(f.get_size(5, 8, &a, nullptr, &c), kelStsNullPtr);
    EXPECT_EQ(f.get_size(5, 8, &a, &b, nullptr), kelStsNullPtr);
    EXPECT_EQ(f.init(nullptr, 31, 8, mem.data(), buf.data()), kelStsNullPtr);  // ppSpec first
    EXPECT_EQ(f.init(&rec, 5, 8, nullptr, buf.data()), kelStsNullPtr);
    EXPECT_EQ(f.init(&rec, 5, 8, mem.data(), nullptr), kelStsNullPtr);
    EXPECT_EQ(f.init_alloc(nullptr, 5, 8), kelStsNullPtr);
    for (int flag : {0, 3, 5, 16, -1}) {
      EXPECT_EQ(f.get_size(5, flag, &a, &b, &c), kelStsOk);
      EXPECT_EQ(f.init(&rec, 5, flag, mem.data(), buf.data()), kelStsBadFlag);
      EXPECT_EQ(f.init_alloc(&rec, 5, flag), kelStsBadFlag);
      EXPECT_EQ(f.init_alloc(&rec, 2, flag), kelStsBadFlag);
    }
    EXPECT_EQ(rec, reinterpret_cast<void*>(0x1)) << "ppSpec written on failure";
    // Orders below 4 need no init buffer.
    ASSERT_EQ(f.init(&rec, 3, 8, mem.data(), nullptr), kelStsOk);
    int bs = -1;
    EXPECT_EQ(f.buf_size(rec, &bs), kelStsOk);
    EXPECT_EQ(bs, 0);
    EXPECT_EQ(f.buf_size(nullptr, &bs), kelStsNullPtr);
    EXPECT_EQ(f.buf_size(rec, nullptr), kelStsNullPtr);
    EXPECT_EQ(f.release(nullptr), kelStsNullPtr);
    // Each family refuses every other family's record.
    for (const SpecOps& g : families()) {
      if (g.id == f.id) continue;
      EXPECT_EQ(g.release(rec), kelStsBadContext) << g.name << " took " << f.name;
      EXPECT_EQ(g.buf_size(rec, &bs), kelStsBadContext);
    }
    EXPECT_EQ(f.release(rec), kelStsOk);
  }
}

// Every allocation of InitAlloc can fail: the status is kelStsNoMemory, the
// caller's pointer is untouched and nothing leaks (checked under ASan).
TEST(FftSpec, AllocationFailures) {
  for (const SpecOps& f : families()) {
    for (int o : {2, 4, 11, 14}) {
      for (int nth = 1; nth <= 2; ++nth) {
        void* rec = reinterpret_cast<void*>(0x1);
        fail_alloc_after(nth);
        const KelStatus st = f.init_alloc(&rec, o, 1);
        fail_alloc_after(0);
        if (o < 4 && nth == 2) {  // only one allocation below order 4
          ASSERT_EQ(st, kelStsOk);
          f.release(rec);
          continue;
        }
        EXPECT_EQ(st, kelStsNoMemory) << f.name << " order " << o << " allocation " << nth;
        EXPECT_EQ(rec, reinterpret_cast<void*>(0x1));
      }
    }
  }
}

}  // namespace
}  // namespace kels::test
