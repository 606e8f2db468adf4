// Overlap-save block method of the records made by InitAlloc with at least
// 64 taps: outputs against long-double references on both sides of the
// method and block-size thresholds, the history left behind, the parallel
// path against the serial one for several thread counts, taps replacement
// and allocation failure.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "fir_test_util.h"
#include "frame/malloc.h"
#include "kelcore.h"
#include "kels.h"

namespace kels::test::fir {
namespace {

// N of a record with L taps: twice the smallest power of two (>= 4) above L.
int fft_len(int L) {
  int k = 2;
  while ((1 << k) <= L) ++k;
  return 1 << (k + 1);
}

// Filters `in` in pieces of the given sizes on a fresh InitAlloc record,
// checks every output against the reference and the history after each
// piece, and returns the outputs and the final history.
struct Filtered {
  std::vector<Kel32f> out, dly;
};
Filtered run_32f(const std::vector<Kel32f>& taps, const std::vector<Kel32f>& hist, const std::vector<Kel32f>& in,
            const std::vector<int>& pieces, bool in_place = false, int stride = 1) {
  const int L = static_cast<int>(taps.size());
  KelsFIRState_32f* st = nullptr;
  EXPECT_EQ(kelsFIRInitAlloc_32f(&st, taps.data(), L, hist.data()), kelStsOk);
  Filtered r;
  r.out.assign(in.size(), 0.f);
  std::size_t pos = 0;
  for (int p : pieces) {
    const Kel32f* src = in.data() + pos;
    Kel32f* dst = r.out.data() + pos;
    if (in_place) {
      std::copy(src, src + p, dst);
      EXPECT_EQ(kelsFIR_32f_I(dst, p, st), kelStsOk);
    } else {
      EXPECT_EQ(kelsFIR_32f(src, dst, p, st), kelStsOk);
    }
    pos += static_cast<std::size_t>(p);
  }
  r.dly.assign(static_cast<std::size_t>(L), 0.f);
  EXPECT_EQ(kelsFIRGetDlyLine_32f(st, r.dly.data()), kelStsOk);
  EXPECT_EQ(kelsFIRFree_32f(st), kelStsOk);
  EXPECT_TRUE(same_vec(r.dly, expected_history(hist, in, taps.size())));
  expect_reference(taps, hist, in, r.out.data(), 0, 0, 4, static_cast<std::size_t>(stride));
  return r;
}

TEST(FirFft32f, MatchesReferenceAroundThresholds) {
  std::mt19937 g(11);
  for (int L : {63, 64, 65, 100, 255, 513}) {
    const int N = fft_len(L);
    const int S = N - L + 1;
    const auto taps = random_taps<Kel32f>(static_cast<std::size_t>(L), g);
    const auto hist = random_data<Kel32f>(static_cast<std::size_t>(L), g);
    for (int n : {511, 512, S, S + 1, N, N + S - 1, 2 * N + 5, 5 * S + 3}) {
      if (n < 1) continue;
      const auto in = random_data<Kel32f>(static_cast<std::size_t>(n) + 700, g);
      SCOPED_TRACE(testing::Message() << "L " << L << " n " << n);
      run_32f(taps, hist, in, {n, 700});
      run_32f(taps, hist, in, {n, 700}, true);
    }
  }
}

// The method is chosen per call: below 512 samples the InitAlloc record and
// a record made by Init in a caller's buffer (which never has the FFT
// method) give identical bits; from 512 on the transform's rounding shows.
TEST(FirFft32f, SelectionAt512Samples) {
  std::mt19937 g(17);
  const int L = 96;
  const auto taps = random_taps<Kel32f>(L, g);
  const auto in = random_data<Kel32f>(512, g);
  int size = 0;
  ASSERT_EQ(kelsFIRGetStateSize_32f(L, &size), kelStsOk);
  std::vector<Kel8u> buf(static_cast<std::size_t>(size));
  for (int n : {511, 512}) {
    KelsFIRState_32f *a = nullptr, *b = nullptr;
    ASSERT_EQ(kelsFIRInitAlloc_32f(&a, taps.data(), L, nullptr), kelStsOk);
    ASSERT_EQ(kelsFIRInit_32f(&b, taps.data(), L, nullptr, buf.data()), kelStsOk);
    std::vector<Kel32f> ya(512), yb(512);
    ASSERT_EQ(kelsFIR_32f(in.data(), ya.data(), n, a), kelStsOk);
    ASSERT_EQ(kelsFIR_32f(in.data(), yb.data(), n, b), kelStsOk);
    EXPECT_EQ(ya == yb, n == 511) << n;
    EXPECT_EQ(kelsFIRFree_32f(a), kelStsOk);
    EXPECT_EQ(kelsFIRFree_32f(b), kelStsOk);
  }
}

TEST(FirFft32f, ParallelPathEqualsSerialForAnyThreadCount) {
  std::mt19937 g(12);
  for (int L : {64, 300}) {
    const auto taps = random_taps<Kel32f>(static_cast<std::size_t>(L), g);
    const auto hist = random_data<Kel32f>(static_cast<std::size_t>(L), g);
    const auto in = random_data<Kel32f>(2 * 160001 + 1000, g);
    const std::vector<int> pieces{160001, 1000, 160001};
    Filtered serial;
    {
      ThreadCount t(1);
      serial = run_32f(taps, hist, in, pieces, false, 37);
    }
    for (int T : {2, 3}) {
      ThreadCount t(T);
      const Filtered par = run_32f(taps, hist, in, pieces, false, 1000);
      EXPECT_TRUE(par.out == serial.out) << "threads " << T << " L " << L;
      EXPECT_TRUE(par.dly == serial.dly) << "threads " << T << " L " << L;
    }
  }
}

// A record made with more threads than are available at the call, and the
// reverse, both stay within the buffers sized at InitAlloc.
TEST(FirFft32f, ThreadCountChangedAfterInitAlloc) {
  std::mt19937 g(13);
  const auto taps = random_taps<Kel32f>(128, g);
  const auto hist = random_data<Kel32f>(128, g);
  const auto in = random_data<Kel32f>(170000, g);
  KelsFIRState_32f* st = nullptr;
  {
    ThreadCount t(1);
    ASSERT_EQ(kelsFIRInitAlloc_32f(&st, taps.data(), 128, hist.data()), kelStsOk);
  }
  std::vector<Kel32f> a(in.size()), b(in.size());
  {
    ThreadCount t(3);
    ASSERT_EQ(kelsFIR_32f(in.data(), a.data(), 170000, st), kelStsOk);
  }
  ASSERT_EQ(kelsFIRSetDlyLine_32f(st, hist.data()), kelStsOk);
  ASSERT_EQ(kelsFIR_32f(in.data(), b.data(), 170000, st), kelStsOk);
  EXPECT_TRUE(a == b);
  EXPECT_EQ(kelsFIRFree_32f(st), kelStsOk);
}

TEST(FirFft32f, SetTapsRebuildsTransformedTaps) {
  std::mt19937 g(14);
  const auto t1 = random_taps<Kel32f>(200, g);
  const auto t2 = random_taps<Kel32f>(200, g);
  const auto in = random_data<Kel32f>(3000, g);
  KelsFIRState_32f* st = nullptr;
  ASSERT_EQ(kelsFIRInitAlloc_32f(&st, t1.data(), 200, nullptr), kelStsOk);
  ASSERT_EQ(kelsFIRSetTaps_32f(t2.data(), st), kelStsOk);
  std::vector<Kel32f> out(in.size());
  ASSERT_EQ(kelsFIR_32f(in.data(), out.data(), 3000, st), kelStsOk);
  EXPECT_EQ(kelsFIRFree_32f(st), kelStsOk);
  expect_reference(t2, std::vector<Kel32f>{}, in, out.data());
}

// Every allocation of InitAlloc (FFT specification, record) failing in turn
// gives kelStsNoMemory and leaves nothing allocated (checked by the leak
// sanitizer); once no allocation fails the record is made.
TEST(FirFft, AllocationFailureReleasesEverything) {
  std::mt19937 g(15);
  const auto tf = random_taps<Kel32f>(100, g);
  std::vector<Kel32s> ti(100, 3);
  // Each record kind made with the k-th allocation failing, k = 1, 2, ...
  auto attempts = [](auto* no_state, auto init, auto release) {
    bool made = false;
    for (int k = 1; k <= 12; ++k) {
      decltype(no_state) st = nullptr;
      kels::fail_alloc_after(k);
      const KelStatus sts = init(&st);
      kels::fail_alloc_after(0);
      if (sts == kelStsOk) {
        made = true;
        EXPECT_EQ(release(st), kelStsOk);
      } else {
        EXPECT_EQ(sts, kelStsNoMemory);
        EXPECT_EQ(st, nullptr);
      }
    }
    EXPECT_TRUE(made);
  };
  attempts(static_cast<KelsFIRState_32f*>(nullptr),
           [&](KelsFIRState_32f** st) { return kelsFIRInitAlloc_32f(st, tf.data(), 100, nullptr); }, kelsFIRFree_32f);
  attempts(static_cast<KelsFIRState_32s*>(nullptr),
           [&](KelsFIRState_32s** st) { return kelsFIRInitAlloc_32s(st, ti.data(), 100, 0, nullptr); }, kelsFIRFree_32s);
}

// The "12IF" record: double transforms of the integer data. Outputs equal
// the exact rule (sum scaled by 2^-sf, rounded to nearest even, saturated)
// except at exact ties, where the transform's rounding may move them by one.
TEST(FirFft32s, MatchesExactRuleAndDirectRecord) {
  std::mt19937 g(16);
  for (int L : {64, 150}) {
    std::vector<Kel32s> taps(static_cast<std::size_t>(L));
    for (auto& t : taps) t = std::uniform_int_distribution<int>(-300, 300)(g);
    const auto hist = random_data<Kel32s>(static_cast<std::size_t>(L), g);
    const int factor = -2, sf = 6;
    for (int n : {511, 512, fft_len(L) - L + 2, 4000}) {
      const auto in = random_data<Kel32s>(static_cast<std::size_t>(n), g);
      KelsFIRState_32s* st = nullptr;
      ASSERT_EQ(kelsFIRInitAlloc_32s(&st, taps.data(), L, factor, hist.data()), kelStsOk);
      std::vector<Kel32s> out(in.size()), dly(static_cast<std::size_t>(L));
      ASSERT_EQ(kelsFIR_32s_Sfs(in.data(), out.data(), n, st, sf), kelStsOk);
      ASSERT_EQ(kelsFIRGetDlyLine64f_32s(reinterpret_cast<KelsFIRState64f_32s*>(st), dly.data()), kelStsOk);
      EXPECT_EQ(kelsFIRFree_32s(st), kelStsOk);
      EXPECT_TRUE(same_vec(dly, expected_history(hist, in, static_cast<std::size_t>(L))));
      const auto ref = reference(taps, hist, in);
      for (int k = 0; k < n; ++k) {
        const LD exact = std::ldexp(ref.y[static_cast<std::size_t>(k)].real(), factor);
        const Kel32s want = expect_int<Kel32s>(exact, sf, 2);
        const std::int64_t d = static_cast<std::int64_t>(out[static_cast<std::size_t>(k)]) - want;
        ASSERT_LE(std::abs(d), 1) << "L " << L << " n " << n << " k " << k;
      }
    }
  }
}

}  // namespace
}  // namespace kels::test::fir
