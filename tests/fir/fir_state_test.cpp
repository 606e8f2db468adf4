// State-record FIR filters: every member against the reference, block and
// one-sample calls mixed, history exchange, in-place twins, argument checks
// and allocation failure; then the member-specific rules.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <numeric>
#include <random>
#include <vector>

#include "fir_test_util.h"
#include "frame/malloc.h"
#include "kelcore.h"
#include "kels.h"
#include "support/targets.h"

namespace kels::test::fir {
namespace {

#define KELS_TEST_FIR_COMMON(P, D, Tap_, Data_, State_)                                          \
  using Tap = Tap_;                                                                               \
  using Data = Data_;                                                                             \
  using State = State_;                                                                           \
  static KelStatus size(int L, int* s) { return kelsFIRGetStateSize##P##_##D(L, s); }             \
  static KelStatus release(State* s) { return kelsFIRFree##P##_##D(s); }                          \
  static KelStatus get_dly(const State* s, Data* d) { return kelsFIRGetDlyLine##P##_##D(s, d); }  \
  static KelStatus set_dly(State* s, const Data* d) { return kelsFIRSetDlyLine##P##_##D(s, d); }
#define KELS_TEST_FIR_PLAIN_TAPS(P, D)                                                            \
  static constexpr int frac_bits = 8;                                                             \
  static KelStatus init(State** pp, const Tap* t, int L, const Data* d, Kel8u* b) {               \
    return kelsFIRInit##P##_##D(pp, t, L, d, b);                                                  \
  }                                                                                               \
  static KelStatus init_alloc(State** pp, const Tap* t, int L, const Data* d) {                   \
    return kelsFIRInitAlloc##P##_##D(pp, t, L, d);                                                \
  }                                                                                               \
  static KelStatus get_taps(const State* s, Tap* t) { return kelsFIRGetTaps##P##_##D(s, t); }     \
  static KelStatus set_taps(const Tap* t, State* s) { return kelsFIRSetTaps##P##_##D(t, s); }
// Integer taps below 32767 are stored as given with factor 0.
#define KELS_TEST_FIR_INT_TAPS(P, D)                                                              \
  static constexpr int frac_bits = 0;                                                             \
  static KelStatus init(State** pp, const Tap* t, int L, const Data* d, Kel8u* b) {               \
    return kelsFIRInit##P##_##D(pp, t, L, 0, d, b);                                               \
  }                                                                                               \
  static KelStatus init_alloc(State** pp, const Tap* t, int L, const Data* d) {                   \
    return kelsFIRInitAlloc##P##_##D(pp, t, L, 0, d);                                             \
  }                                                                                               \
  static KelStatus get_taps(const State* s, Tap* t) {                                             \
    int f = -99;                                                                                  \
    const KelStatus st = kelsFIRGetTaps##P##_##D(s, t, &f);                                       \
    return st == kelStsOk && f != 0 ? kelStsBadContext : st;                                      \
  }                                                                                               \
  static KelStatus set_taps(const Tap* t, State* s) { return kelsFIRSetTaps##P##_##D(t, s, 0); }
#define KELS_TEST_FIR_FLOAT_FILTER(P, D)                                                          \
  static KelStatus one(Data x, Data* y, State* s, int) { return kelsFIROne##P##_##D(x, y, s); }   \
  static KelStatus block(const Data* x, Data* y, int n, State* s, int) {                          \
    return kelsFIR##P##_##D(x, y, n, s);                                                          \
  }                                                                                               \
  static KelStatus block_i(Data* x, int n, State* s, int) { return kelsFIR##P##_##D##_I(x, n, s); }
#define KELS_TEST_FIR_SFS_FILTER(P, D)                                                            \
  static KelStatus one(Data x, Data* y, State* s, int sf) { return kelsFIROne##P##_##D##_Sfs(x, y, s, sf); } \
  static KelStatus block(const Data* x, Data* y, int n, State* s, int sf) {                       \
    return kelsFIR##P##_##D##_Sfs(x, y, n, s, sf);                                                \
  }                                                                                               \
  static KelStatus block_i(Data* x, int n, State* s, int sf) {                                    \
    return kelsFIR##P##_##D##_ISfs(x, n, s, sf);                                                  \
  }

// (name, taps prefix, data code, taps type, data type, state, taps kind, filter kind)
#define KELS_TEST_FIR_MEMBERS(X)                                                                        \
  X(F32f, , 32f, Kel32f, Kel32f, KelsFIRState_32f, PLAIN, FLOAT)                                        \
  X(F32fc, , 32fc, Kel32fc, Kel32fc, KelsFIRState_32fc, PLAIN, FLOAT)                                   \
  X(F64f, , 64f, Kel64f, Kel64f, KelsFIRState_64f, PLAIN, FLOAT)                                        \
  X(F64fc, , 64fc, Kel64fc, Kel64fc, KelsFIRState_64fc, PLAIN, FLOAT)                                   \
  X(F64f32f, 64f, 32f, Kel64f, Kel32f, KelsFIRState64f_32f, PLAIN, FLOAT)                               \
  X(F64fc32fc, 64fc, 32fc, Kel64fc, Kel32fc, KelsFIRState64fc_32fc, PLAIN, FLOAT)                       \
  X(F32f16s, 32f, 16s, Kel32f, Kel16s, KelsFIRState32f_16s, PLAIN, SFS)                                 \
  X(F32fc16sc, 32fc, 16sc, Kel32fc, Kel16sc, KelsFIRState32fc_16sc, PLAIN, SFS)                         \
  X(F64f32s, 64f, 32s, Kel64f, Kel32s, KelsFIRState64f_32s, PLAIN, SFS)                                 \
  X(F64fc32sc, 64fc, 32sc, Kel64fc, Kel32sc, KelsFIRState64fc_32sc, PLAIN, SFS)                         \
  X(F64f16s, 64f, 16s, Kel64f, Kel16s, KelsFIRState64f_16s, PLAIN, SFS)                                 \
  X(F64fc16sc, 64fc, 16sc, Kel64fc, Kel16sc, KelsFIRState64fc_16sc, PLAIN, SFS)                         \
  X(F32s16s, 32s, 16s, Kel32s, Kel16s, KelsFIRState32s_16s, INT, SFS)                                   \
  X(F32sc16sc, 32sc, 16sc, Kel32sc, Kel16sc, KelsFIRState32sc_16sc, INT, SFS)

#define KELS_TEST_FIR_STRUCT(Name, P, D, Tap_, Data_, State_, TK, FK)                             \
  struct Name {                                                                                   \
    KELS_TEST_FIR_COMMON(P, D, Tap_, Data_, State_)                                               \
    KELS_TEST_FIR_##TK##_TAPS(P, D)                                                               \
    KELS_TEST_FIR_##FK##_FILTER(P, D)                                                             \
  };
KELS_TEST_FIR_MEMBERS(KELS_TEST_FIR_STRUCT)
#define KELS_TEST_FIR_NAME(Name, ...) Name,
using AllMembers = ::testing::Types<KELS_TEST_FIR_MEMBERS(KELS_TEST_FIR_NAME) F32f>;

// A record built by Init in a guarded buffer of exactly GetStateSize bytes
// at an odd address, or by InitAlloc.
template <class A>
struct Filter {
  using Tap = typename A::Tap;
  using Data = typename A::Data;
  std::vector<Tap> taps;
  std::vector<Data> history;  // newest first
  Guarded<Kel8u> buffer;
  typename A::State* state = nullptr;
  bool allocated;

  Filter(std::vector<Tap> t, std::vector<Data> h, bool alloc = false, std::size_t offset = 3)
      : taps(std::move(t)), history(std::move(h)), buffer(size_of(static_cast<int>(taps.size())), offset),
        allocated(alloc) {
    const int L = static_cast<int>(taps.size());
    const Data* hp = history.empty() ? nullptr : history.data();
    const KelStatus st = alloc ? A::init_alloc(&state, taps.data(), L, hp)
                               : A::init(&state, taps.data(), L, hp, buffer.data());
    EXPECT_EQ(st, kelStsOk);
  }
  ~Filter() { EXPECT_EQ(A::release(state), kelStsOk); }
  static std::size_t size_of(int L) {
    int s = 0;
    EXPECT_EQ(A::size(L, &s), kelStsOk);
    return static_cast<std::size_t>(s);
  }
  std::vector<Data> dly() {
    std::vector<Data> d(taps.size());
    EXPECT_EQ(A::get_dly(state, d.data()), kelStsOk);
    return d;
  }
};

template <class A>
class FirState : public ::testing::Test {};
TYPED_TEST_SUITE(FirState, AllMembers);

constexpr int kSf = 3;  // scale factor of the integer members

// Outputs against the reference, exact for integer data.
template <class A>
void expect_outputs(const std::vector<typename A::Tap>& taps, const std::vector<typename A::Data>& history,
                    const std::vector<typename A::Data>& in, const std::vector<typename A::Data>& out,
                    const char* what) {
  SCOPED_TRACE(what);
  expect_reference(taps, history, in, out.data(), kSf, A::frac_bits);
}

// Blocks that cross directLimit (L rounded up to 4, plus 1) on both sides,
// one-sample calls in between, and blocks long enough for the in-place
// twin's work-area pieces (the longest only for Init records: on InitAlloc
// records the integer members' overlap-save method may move exact ties).
std::vector<int> block_plan(int L, bool alloc) {
  const int dl = ((L + 3) & ~3) + 1;
  std::vector<int> plan{1, 2, std::max(1, dl - 1), dl, 1, dl + 1, 3, 2 * dl + 5, 1, 1, 700, std::max(1, L - 1), 1};
  if (!alloc) plan.push_back(9000);
  return plan;
}

// Each input goes to four records: mixed block and one-sample calls
// (checked against the reference), one-sample calls only, the in-place
// block form, and the block form given the same array twice. The last three
// are Init records and agree bit for bit with each other, and with the
// first when it is an Init record too (InitAlloc records may take the
// overlap-save method, whose rounding differs).
TYPED_TEST(FirState, FormsMatchTheReferenceAndEachOther) {
  using A = TypeParam;
  using Data = typename A::Data;
  std::mt19937 g(11);
  for (int L : {1, 2, 3, 4, 5, 8, 13, 40, 64, 100}) {
    for (bool alloc : {false, true}) {
      const auto taps = random_taps<typename A::Tap>(L, g);
      const auto hist = random_data<Data>(L, g);
      Filter<A> f(taps, hist, alloc), one(taps, hist), inplace(taps, hist), alias(taps, hist);
      std::vector<Data> in, out;
      for (int n : block_plan(L, alloc)) {
        const auto x = random_data<Data>(static_cast<std::size_t>(n), g);
        std::vector<Data> y(x.size()), yo(x.size()), yi = x, ya = x;
        if (n == 1) ASSERT_EQ(A::one(x[0], y.data(), f.state, kSf), kelStsOk);
        else ASSERT_EQ(A::block(x.data(), y.data(), n, f.state, kSf), kelStsOk);
        for (int i = 0; i < n; ++i) ASSERT_EQ(A::one(x[i], &yo[i], one.state, kSf), kelStsOk);
        ASSERT_EQ(A::block_i(yi.data(), n, inplace.state, kSf), kelStsOk);
        ASSERT_EQ(A::block(ya.data(), ya.data(), n, alias.state, kSf), kelStsOk);
        EXPECT_TRUE(same_vec(yo, yi) && same_vec(yo, ya) && (alloc || same_vec(y, yo))) << "L=" << L << " n=" << n;
        in.insert(in.end(), x.begin(), x.end());
        out.insert(out.end(), y.begin(), y.end());
      }
      expect_outputs<A>(taps, hist, in, out, alloc ? "InitAlloc" : "Init");
      const auto h = expected_history(hist, in, static_cast<std::size_t>(L));
      for (Filter<A>* r : {&f, &one, &inplace, &alias}) {
        EXPECT_TRUE(same_vec(r->dly(), h));
        EXPECT_TRUE(r->buffer.guards_intact());
      }
    }
  }
}

TYPED_TEST(FirState, ExchangesTapsAndHistory) {
  using A = TypeParam;
  using Tap = typename A::Tap;
  using Data = typename A::Data;
  std::mt19937 g(14);
  const int L = 11;
  Filter<A> f(random_taps<Tap>(L, g), {});
  EXPECT_TRUE(same_vec(f.dly(), std::vector<Data>(L, make<Data>(0, 0))));  // null history is zeros
  std::vector<Tap> t(L);
  ASSERT_EQ(A::get_taps(f.state, t.data()), kelStsOk);
  EXPECT_TRUE(same_vec(t, f.taps));

  const auto hist = random_data<Data>(L, g);
  ASSERT_EQ(A::set_dly(f.state, hist.data()), kelStsOk);
  EXPECT_TRUE(same_vec(f.dly(), hist));
  const auto taps2 = random_taps<Tap>(L, g);
  ASSERT_EQ(A::set_taps(taps2.data(), f.state), kelStsOk);
  ASSERT_EQ(A::get_taps(f.state, t.data()), kelStsOk);
  EXPECT_TRUE(same_vec(t, taps2));
  const auto x = random_data<Data>(30, g);
  std::vector<Data> y(x.size());
  ASSERT_EQ(A::block(x.data(), y.data(), 30, f.state, kSf), kelStsOk);
  expect_outputs<A>(taps2, hist, x, y, "after SetTaps/SetDlyLine");

  ASSERT_EQ(A::set_dly(f.state, nullptr), kelStsOk);
  EXPECT_TRUE(same_vec(f.dly(), std::vector<Data>(L, make<Data>(0, 0))));
}

TYPED_TEST(FirState, RejectsBadArgumentsWithoutWriting) {
  using A = TypeParam;
  using Tap = typename A::Tap;
  using Data = typename A::Data;
  using State = typename A::State;
  std::mt19937 g(15);
  const int L = 6;
  Filter<A> f(random_taps<Tap>(L, g), random_data<Data>(L, g));
  int size = -1;
  EXPECT_EQ(A::size(L, nullptr), kelStsNullPtr);
  EXPECT_EQ(A::size(0, nullptr), kelStsNullPtr);
  EXPECT_EQ(A::size(0, &size), kelStsBadFIRLength);
  EXPECT_EQ(size, -1);

  State* st = reinterpret_cast<State*>(&size);  // sentinel: must stay untouched
  State* const sentinel = st;
  Kel8u buf[4096];
  const Tap* tp = f.taps.data();
  EXPECT_EQ(A::init(nullptr, tp, L, nullptr, buf), kelStsNullPtr);
  EXPECT_EQ(A::init(&st, nullptr, 0, nullptr, buf), kelStsNullPtr);
  EXPECT_EQ(A::init(&st, tp, L, nullptr, nullptr), kelStsNullPtr);
  EXPECT_EQ(A::init(&st, tp, 0, nullptr, buf), kelStsBadFIRLength);
  EXPECT_EQ(A::init_alloc(&st, nullptr, L, nullptr), kelStsNullPtr);
  EXPECT_EQ(A::init_alloc(&st, tp, -1, nullptr), kelStsBadFIRLength);
  EXPECT_EQ(st, sentinel);

  // A foreign record: zeros, and a record of another member.
  alignas(16) Kel8u zeros[512] = {};
  Kel32f other_taps[2] = {1, 2};
  KelsFIRState_32f* s32 = nullptr;
  KelsFIRState_64f* s64 = nullptr;
  std::vector<Kel8u> other(64 * 1024);
  std::vector<Kel8u> other2(64 * 1024);
  ASSERT_EQ(kelsFIRInit_32f(&s32, other_taps, 2, nullptr, other.data()), kelStsOk);
  const Kel64f other_taps64[2] = {1, 2};
  ASSERT_EQ(kelsFIRInit_64f(&s64, other_taps64, 2, nullptr, other2.data()), kelStsOk);
  const bool is32f = std::is_same_v<State, KelsFIRState_32f>;
  State* foreign[2] = {reinterpret_cast<State*>(zeros),
                       is32f ? reinterpret_cast<State*>(s64) : reinterpret_cast<State*>(s32)};

  Guarded<Data> out(8), in(8, 0, 0);
  Guarded<Tap> taps_out(L);
  Guarded<Data> dly_out(L);
  EXPECT_EQ(A::block(nullptr, out.data(), 8, f.state, 0), kelStsNullPtr);
  EXPECT_EQ(A::block(in.data(), nullptr, 8, f.state, 0), kelStsNullPtr);
  EXPECT_EQ(A::block(in.data(), out.data(), 8, nullptr, 0), kelStsNullPtr);
  EXPECT_EQ(A::block(in.data(), out.data(), 0, nullptr, 0), kelStsNullPtr);
  EXPECT_EQ(A::block(in.data(), out.data(), 0, f.state, 0), kelStsBadLength);
  EXPECT_EQ(A::block_i(nullptr, 8, f.state, 0), kelStsNullPtr);
  EXPECT_EQ(A::block_i(out.data(), 0, f.state, 0), kelStsBadLength);
  EXPECT_EQ(A::one(in[0], nullptr, f.state, 0), kelStsNullPtr);
  EXPECT_EQ(A::one(in[0], out.data(), nullptr, 0), kelStsNullPtr);
  EXPECT_EQ(A::get_taps(nullptr, taps_out.data()), kelStsNullPtr);
  EXPECT_EQ(A::get_taps(f.state, nullptr), kelStsNullPtr);
  EXPECT_EQ(A::set_taps(nullptr, f.state), kelStsNullPtr);
  EXPECT_EQ(A::set_taps(f.taps.data(), nullptr), kelStsNullPtr);
  EXPECT_EQ(A::get_dly(nullptr, dly_out.data()), kelStsNullPtr);
  EXPECT_EQ(A::get_dly(f.state, nullptr), kelStsNullPtr);
  EXPECT_EQ(A::set_dly(nullptr, nullptr), kelStsNullPtr);
  EXPECT_EQ(A::release(nullptr), kelStsNullPtr);
  for (State* s : foreign) {
    EXPECT_EQ(A::block(in.data(), out.data(), 8, s, 0), kelStsBadContext);
    EXPECT_EQ(A::block_i(out.data(), 8, s, 0), kelStsBadContext);
    EXPECT_EQ(A::one(in[0], out.data(), s, 0), kelStsBadContext);
    EXPECT_EQ(A::get_taps(s, taps_out.data()), kelStsBadContext);
    EXPECT_EQ(A::set_taps(f.taps.data(), s), kelStsBadContext);
    EXPECT_EQ(A::get_dly(s, dly_out.data()), kelStsBadContext);
    EXPECT_EQ(A::set_dly(s, nullptr), kelStsBadContext);
    EXPECT_EQ(A::release(s), kelStsBadContext);
  }
  EXPECT_TRUE(out.untouched());
  EXPECT_TRUE(taps_out.untouched());
  EXPECT_TRUE(dly_out.untouched());
  EXPECT_TRUE(std::all_of(zeros, zeros + sizeof zeros, [](Kel8u b) { return b == 0; }));
  // The record itself still filters as before the failed calls.
  EXPECT_TRUE(same_vec(f.dly(), f.history));
}

TYPED_TEST(FirState, AllocationFailureLeavesNothingBehind) {
  using A = TypeParam;
  using State = typename A::State;
  std::mt19937 g(16);
  const auto taps = random_taps<typename A::Tap>(70, g);
  State* st = nullptr;
  kels::fail_alloc_after(1);
  EXPECT_EQ(A::init_alloc(&st, taps.data(), 70, nullptr), kelStsNoMemory);
  kels::fail_alloc_after(0);
  EXPECT_EQ(st, nullptr);
}

// ---- Member-specific rules.

std::int64_t r16(std::int64_t n) { return (n + 15) / 16 * 16; }

TEST(FirStateSize, FollowsTheDocumentedFormulas) {
  for (int T : {1, 2, 3, 8}) {
    ThreadCount tc(T);
    for (int L : {1, 2, 3, 4, 5, 9, 64, 1000}) {
      int s = 0;
      ASSERT_EQ(kelsFIRGetStateSize_32f(L, &s), kelStsOk);
      EXPECT_EQ(s, r16((3 * L + 4) * 4) + 5 * r16(4 * L) + 112 + (4 * T + 4092) * 4 + 16) << L << " " << T;
      ASSERT_EQ(kelsFIRGetStateSize32s_16s(L, &s), kelStsOk);
      EXPECT_EQ(s, r16((3 * L + 4) * 2) + r16(8 * L) + r16(4 * L) + 16480) << L;
      int s2 = 0;
      ASSERT_EQ(kelsFIRGetStateSize32s_16s32f(L, &s2), kelStsOk);
      EXPECT_EQ(s, s2);
    }
  }
  int s = 0;
  EXPECT_EQ(kelsFIRGetStateSize_32f(0x7fffffff, &s), kelStsBadFIRLength);
}

// A record sized at one thread count stays inside its buffer after the
// count is raised.
TEST(FirStateSize, RaisedThreadCountDoesNotOverrunTheBuffer) {
  int s = 0;
  std::vector<Kel32f> taps(33, 0.25f);
  {
    ThreadCount tc(1);
    ASSERT_EQ(kelsFIRGetStateSize_32f(33, &s), kelStsOk);
  }
  ThreadCount tc(16);
  Guarded<Kel8u> buf(static_cast<std::size_t>(s), 0);
  KelsFIRState_32f* st = nullptr;
  ASSERT_EQ(kelsFIRInit_32f(&st, taps.data(), 33, nullptr, buf.data()), kelStsOk);
  std::vector<Kel32f> x(20000, 1.0f), y(x.size());
  ASSERT_EQ(kelsFIR_32f_I(x.data(), 20000, st), kelStsOk);
  ASSERT_EQ(kelsFIR_32f(x.data(), y.data(), 20000, st), kelStsOk);
  EXPECT_TRUE(buf.guards_intact());
}

// Above 160000 samples the outputs are computed by a team of threads; every
// thread count gives the serial result bit for bit.
template <class A>
void check_parallel() {
  using Data = typename A::Data;
  std::mt19937 g(21);
  const int L = 37, n = 200003;
  const auto taps = random_taps<typename A::Tap>(L, g);
  const auto hist = random_data<Data>(L, g);
  const auto x = random_data<Data>(n, g);
  std::vector<std::vector<Data>> outs;
  for (int T : {1, 2, 3}) {
    ThreadCount tc(T);
    Filter<A> f(taps, hist, true);
    outs.emplace_back(x.size());
    ASSERT_EQ(A::block(x.data(), outs.back().data(), n, f.state, 2), kelStsOk);
    EXPECT_TRUE(same_vec(f.dly(), expected_history(hist, x, L))) << "threads " << T;
  }
  EXPECT_TRUE(same_vec(outs[0], outs[1]) && same_vec(outs[0], outs[2]));
}

TEST(FirParallel, ThreadCountDoesNotChangeTheResult) {
  check_parallel<F32f>();
  check_parallel<F32f16s>();
}

// The single-precision one-sample step: below 4 taps an extended-precision
// sum; from 4 taps four single-precision partial sums.
TEST(FirOne32f, FollowsTheDocumentedPrecision) {
  const float big = 16777216.0f;  // 2^24: adding 1 is lost in single precision
  auto run = [](std::vector<Kel32f> taps, std::vector<Kel32f> x) {
    std::vector<Kel8u> buf(70000);
    KelsFIRState_32f* s = nullptr;
    EXPECT_EQ(kelsFIRInit_32f(&s, taps.data(), static_cast<int>(taps.size()), nullptr, buf.data()), kelStsOk);
    Kel32f y = 0;
    for (Kel32f v : x) EXPECT_EQ(kelsFIROne_32f(v, &y, s), kelStsOk);
    return y;
  };
  // 3 taps: 2^24 + 1 + 1 exactly.
  EXPECT_EQ(run({1, 1, 1}, {big, 1, 1}), big + 2);
  // 5 taps, span oldest first [2^24, 1, -2^24, 1, 1]: partial sums
  // s0 = 2^24 + 1 -> 2^24, s1 = 1, s2 = -2^24, s3 = 1; (s0+s1)+(s2+s3) = 1.
  EXPECT_EQ(run({1, 1, 1, 1, 1}, {big, 1, -big, 1, 1}), 1.0f);
  // 6 taps: the two-element tail goes to s0 and s1: s0 = 2^24 - 2^24 = 0,
  // s1 = 2, s2 = s3 = 1 -> 4 (a running single-precision sum gives 1).
  EXPECT_EQ(run({1, 1, 1, 1, 1, 1}, {big, 1, 1, 1, -big, 1}), 4.0f);
}

// The multi-rate identifier is refused by the one-sample call.
TEST(FirOne32f, RefusesTheMultiRateRecord) {
  alignas(16) Kel8u rec[256] = {};
  const Kel32u id = 0x46493033u;
  std::memcpy(rec, &id, 4);
  Kel32f y = 5;
  EXPECT_EQ(kelsFIROne_32f(1.0f, &y, reinterpret_cast<KelsFIRState_32f*>(rec)), kelStsBadContext);
  EXPECT_EQ(y, 5);
}

TEST(FirState, FreeOfAnInitRecordReleasesNothing) {
  std::vector<Kel8u> buf(70000, 0);
  Kel32f taps[3] = {1, 2, 3};
  KelsFIRState_32f* s = nullptr;
  ASSERT_EQ(kelsFIRInit_32f(&s, taps, 3, nullptr, buf.data()), kelStsOk);
  EXPECT_EQ(kelsFIRFree_32f(s), kelStsOk);
  // Still usable: the caller owns the buffer.
  Kel32f y = 0;
  EXPECT_EQ(kelsFIROne_32f(1.0f, &y, s), kelStsOk);
  EXPECT_EQ(y, 1.0f);  // tap 0 times the only non-zero sample
}

// Integer taps are normalised to at most 32766 in magnitude.
TEST(FirIntTaps, NormaliseLargestTapAndFactor) {
  std::vector<Kel8u> buf(70000);
  KelsFIRState32s_16s* s = nullptr;
  const Kel32s taps[4] = {70000, -5, 3, -70001};
  ASSERT_EQ(kelsFIRInit32s_16s(&s, taps, 4, 1, nullptr, buf.data()), kelStsOk);
  Kel32s got[4];
  int factor = 0;
  ASSERT_EQ(kelsFIRGetTaps32s_16s(s, got, &factor), kelStsOk);
  EXPECT_EQ(factor, 3);
  const Kel32s want[4] = {17500, -2, 0, -17501};
  EXPECT_TRUE(std::equal(got, got + 4, want));
  // Output = sum(stored * x) * 2^3 scaled by 2^-sf.
  Kel16s y = 0;
  ASSERT_EQ(kelsFIROne32s_16s_Sfs(1, &y, s, 16), kelStsOk);  // 17500 * 8 / 65536 = 2.136 -> 2
  EXPECT_EQ(y, 2);
  ASSERT_EQ(kelsFIROne32s_16s_Sfs(-3, &y, s, 16), kelStsOk);  // (17500*-3 + -2*1) * 8 / 65536 = -6.408 -> -6
  EXPECT_EQ(y, -6);

  const Kel32s extreme[4] = {INT32_MIN, 32766, 0, 0};  // the record keeps its 4 taps
  ASSERT_EQ(kelsFIRSetTaps32s_16s(extreme, s, -4), kelStsOk);
  ASSERT_EQ(kelsFIRGetTaps32s_16s(s, got, &factor), kelStsOk);
  EXPECT_EQ(factor, 13);  // 2^31 >> 17 = 16384
  EXPECT_EQ(got[0], -16384);
  EXPECT_EQ(got[1], 32766 >> 17);

  KelsFIRState32sc_16sc* sc = nullptr;
  std::vector<Kel8u> buf2(70000);
  const Kel32sc ctaps[2] = {{10, -40000}, {3, 4}};
  ASSERT_EQ(kelsFIRInit32sc_16sc(&sc, ctaps, 2, 0, nullptr, buf2.data()), kelStsOk);
  Kel32sc cgot[2];
  ASSERT_EQ(kelsFIRGetTaps32sc_16sc(sc, cgot, &factor), kelStsOk);
  EXPECT_EQ(factor, 1);
  EXPECT_TRUE(cgot[0].re == 5 && cgot[0].im == -20000 && cgot[1].re == 1 && cgot[1].im == 2);
}

TEST(FirIntTaps, FloatTapsVariantSharesTheRecord) {
  std::vector<Kel8u> buf(70000);
  KelsFIRState32s_16s* s = nullptr;
  const Kel32f taps[3] = {0.5f, -0.25f, 0.1f};
  ASSERT_EQ(kelsFIRInit32s_16s32f(&s, taps, 3, nullptr, buf.data()), kelStsOk);
  Kel32s it[3];
  int factor = 0;
  ASSERT_EQ(kelsFIRGetTaps32s_16s(s, it, &factor), kelStsOk);
  EXPECT_EQ(factor, -15);
  EXPECT_EQ(std::vector<Kel32s>(it, it + 3), (std::vector<Kel32s>{16384, -8192, 3277}));  // 0.1 * 2^15 = 3276.8
  Kel32f ft[3];
  ASSERT_EQ(kelsFIRGetTaps32s_16s32f(s, ft), kelStsOk);
  EXPECT_EQ(std::vector<Kel32f>(ft, ft + 3), (std::vector<Kel32f>{0.5f, -0.25f, 3277.0f / 32768.0f}));
  // Filtering through either name gives the same result.
  const Kel16s x[4] = {1000, -2000, 3000, 32767};
  Kel16s y1[4], y2[4];
  ASSERT_EQ(kelsFIR32s_16s32f_Sfs(x, y1, 4, s, 0), kelStsOk);
  ASSERT_EQ(kelsFIRSetDlyLine32s_16s(s, nullptr), kelStsOk);
  ASSERT_EQ(kelsFIR32s_16s_Sfs(x, y2, 4, s, 0), kelStsOk);
  EXPECT_TRUE(std::equal(y1, y1 + 4, y2));
  // y[1] = (16384*-2000 - 8192*1000) / 32768 = -1250
  EXPECT_EQ(y1[1], -1250);
}

TEST(FirTaps32s, IntegerTapsWithFactorMatchTheDoubleRecord) {
  std::vector<Kel8u> b1(70000), b2(70000);
  KelsFIRState_32s* a = nullptr;
  KelsFIRState64f_32s* d = nullptr;
  const Kel32s itaps[3] = {3, -7, 100};
  const Kel64f dtaps[3] = {0.75, -1.75, 25};
  ASSERT_EQ(kelsFIRInit_32s(&a, itaps, 3, -2, nullptr, b1.data()), kelStsOk);
  ASSERT_EQ(kelsFIRInit64f_32s(&d, dtaps, 3, nullptr, b2.data()), kelStsOk);
  std::mt19937 g(23);
  const auto x = random_data<Kel32s>(5000, g);
  std::vector<Kel32s> y1(5000), y2(5000), y3(5000);
  ASSERT_EQ(kelsFIR_32s_Sfs(x.data(), y1.data(), 5000, a, 1), kelStsOk);
  ASSERT_EQ(kelsFIR64f_32s_Sfs(x.data(), y2.data(), 5000, d, 1), kelStsOk);
  EXPECT_EQ(y1, y2);
  Kel32s got[3];
  int factor = 0;
  ASSERT_EQ(kelsFIRGetTaps_32s(a, got, &factor), kelStsOk);
  EXPECT_EQ(factor, -2);
  EXPECT_TRUE(std::equal(got, got + 3, itaps));
  // The workers of the record, without checks, filter the same way.
  ASSERT_EQ(kelsFIRSetDlyLine64f_32s(d, nullptr), kelStsOk);
  ASSERT_EQ(kelsFIRSR64f_32s_Sfs(x.data(), y3.data(), 4000, d, 1), kelStsOk);
  for (int i = 4000; i < 4500; ++i) ASSERT_EQ(kelsFIRSROne64f_32s_Sfs(x[i], &y3[i], d, 1), kelStsOk);
  std::copy(x.begin() + 4500, x.end(), y3.begin() + 4500);
  ASSERT_EQ(kelsFIRSR64f_32s_ISfs(y3.data() + 4500, 500, d, 1), kelStsOk);
  EXPECT_EQ(y3, y2);
}

TEST(FirScale, RoundsTiesToEvenAndSaturates) {
  std::vector<Kel8u> buf(70000);
  KelsFIRState32f_16s* s = nullptr;
  const Kel32f half = 0.5f;
  ASSERT_EQ(kelsFIRInit32f_16s(&s, &half, 1, nullptr, buf.data()), kelStsOk);
  const Kel16s x[6] = {3, 5, -3, -5, 32767, -32768};
  Kel16s y[6];
  ASSERT_EQ(kelsFIR32f_16s_Sfs(x, y, 6, s, 0), kelStsOk);
  const Kel16s want[6] = {2, 2, -2, -2, 16384, -16384};
  EXPECT_TRUE(std::equal(y, y + 6, want));
  ASSERT_EQ(kelsFIR32f_16s_Sfs(x, y, 6, s, -2), kelStsOk);
  const Kel16s want2[6] = {6, 10, -6, -10, 32767, -32768};
  EXPECT_TRUE(std::equal(y, y + 6, want2));
}

}  // namespace
}  // namespace kels::test::fir
