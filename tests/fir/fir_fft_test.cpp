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

struct Threads {
  int saved = kel_get_num_threads();
  explicit Threads(int n) { kel_set_num_threads(n); }
  ~Threads() { kel_set_num_threads(saved); }
};

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
  // History: the last L samples of hist-then-input, newest first.
  std::vector<Kel32f> all(hist.rbegin(), hist.rend());
  all.insert(all.end(), in.begin(), in.end());
  for (int i = 0; i < L; ++i) EXPECT_EQ(r.dly[static_cast<std::size_t>(i)], all[all.size() - 1 - static_cast<std::size_t>(i)]) << i;
  const auto ref = reference(taps, hist, in);
  const auto mag = magnitude(taps, hist, in);
  int bad = 0;
  for (std::size_t n = 0; n < in.size(); n += static_cast<std::size_t>(stride)) {
    if (!close(r.out[n], ref[n], mag[n], taps.size()) && ++bad < 5) ADD_FAILURE() << "output " << n << " L " << L;
  }
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
      Threads t(1);
      serial = run_32f(taps, hist, in, pieces, false, 37);
    }
    for (int T : {2, 3}) {
      Threads t(T);
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
    Threads t(1);
    ASSERT_EQ(kelsFIRInitAlloc_32f(&st, taps.data(), 128, hist.data()), kelStsOk);
  }
  std::vector<Kel32f> a(in.size()), b(in.size());
  {
    Threads t(3);
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
  const std::vector<Kel32f> zero(200, 0.f);
  const auto ref = reference(t2, zero, in);
  const auto mag = magnitude(t2, zero, in);
  for (std::size_t n = 0; n < in.size(); ++n) ASSERT_TRUE(close(out[n], ref[n], mag[n], 200)) << n;
}

// Every allocation of InitAlloc (FFT specification, record) failing in turn
// gives kelStsNoMemory and leaves nothing allocated (checked by the leak
// sanitizer); once no allocation fails the record is made.
TEST(FirFft, AllocationFailureReleasesEverything) {
  std::mt19937 g(15);
  const auto tf = random_taps<Kel32f>(100, g);
  std::vector<Kel32s> ti(100, 3);
  bool made_f = false, made_i = false;
  for (int k = 1; k <= 12; ++k) {
    KelsFIRState_32f* sf = nullptr;
    kels::fail_alloc_after(k);
    const KelStatus a = kelsFIRInitAlloc_32f(&sf, tf.data(), 100, nullptr);
    kels::fail_alloc_after(0);
    if (a == kelStsOk) {
      made_f = true;
      EXPECT_EQ(kelsFIRFree_32f(sf), kelStsOk);
    } else {
      EXPECT_EQ(a, kelStsNoMemory);
      EXPECT_EQ(sf, nullptr);
    }
    KelsFIRState_32s* si = nullptr;
    kels::fail_alloc_after(k);
    const KelStatus b = kelsFIRInitAlloc_32s(&si, ti.data(), 100, 0, nullptr);
    kels::fail_alloc_after(0);
    if (b == kelStsOk) {
      made_i = true;
      EXPECT_EQ(kelsFIRFree_32s(si), kelStsOk);
    } else {
      EXPECT_EQ(b, kelStsNoMemory);
      EXPECT_EQ(si, nullptr);
    }
  }
  EXPECT_TRUE(made_f);
  EXPECT_TRUE(made_i);
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
      std::vector<Kel32s> all(hist.rbegin(), hist.rend());
      all.insert(all.end(), in.begin(), in.end());
      for (int i = 0; i < L; ++i) ASSERT_EQ(dly[static_cast<std::size_t>(i)], all[all.size() - 1 - static_cast<std::size_t>(i)]);
      const auto ref = reference(taps, hist, in);
      for (int k = 0; k < n; ++k) {
        const LD exact = std::ldexp(ref[static_cast<std::size_t>(k)].real(), factor);
        const Kel32s want = expect_int<Kel32s>(exact, sf, 2);
        const std::int64_t d = static_cast<std::int64_t>(out[static_cast<std::size_t>(k)]) - want;
        ASSERT_LE(std::abs(d), 1) << "L " << L << " n " << n << " k " << k;
      }
    }
  }
}

}  // namespace
}  // namespace kels::test::fir
