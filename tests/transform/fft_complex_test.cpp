// Complex FFT: accuracy against long-double references on every SIMD
// target, every order scheme (straight-line, leaf, two-level, stepped),
// layouts, directions, scale flags, in-place and buffer modes; identities at
// large orders; argument checks.
#include <gtest/gtest.h>

#include <cmath>

#include "frame/malloc.h"
#include "transform/fft_families.h"

namespace kels::test {
namespace {

template <class F>
class FftComplex : public ::testing::Test {};
using Families = ::testing::Types<Fam32fc, Fam64fc, Fam32f, Fam64f>;
TYPED_TEST_SUITE(FftComplex, Families);

long double expected_scale(int flag, int order, bool inverse) {
  const long double n = std::ldexp(1.0L, order);
  switch (flag) {
    case 1: return inverse ? 1 : 1 / n;
    case 2: return inverse ? 1 / n : 1;
    case 4: return 1 / std::sqrt(n);
    default: return 1;
  }
}

template <class F>
void check_against_reference(int order, int flag, const Mode& m, const std::string& what) {
  using T = typename F::Real;
  OwnedSpec<F> s(order, flag);
  ASSERT_EQ(s.status, kelStsOk);
  const std::size_t n = std::size_t{1} << order;
  const auto x = random_signal(n, 17u + static_cast<unsigned>(order));
  auto want = order <= 11 ? ref::dft(x, m.inverse) : ref::fft(x, m.inverse);
  const long double sc = expected_scale(flag, order, m.inverse);
  for (auto& v : want) v *= sc;
  KelStatus st;
  bool guards;
  const auto got = run<F>(s.record, x, m, &st, &guards);
  ASSERT_EQ(st, kelStsOk) << what;
  EXPECT_TRUE(guards) << what;
  EXPECT_LE(ref::rel_rms(got, want), fft_bound<T>(order))
      << F::name << " order " << order << " flag " << flag << " " << what;
}

// Every order through the stepped scheme's first levels, on every target,
// both directions with a caller buffer; the inverse of the stepped orders in
// place (the permutation then runs apart from the first pass), the forward
// transforms of odd orders into data half a line off (the passes before the
// last then run in the aligned stack area).
TYPED_TEST(FftComplex, MatchesReferenceOnEveryTarget) {
  for_each_target([&](const std::string& target) {
    for (int order = 0; order <= 14; ++order)
      for (bool inv : {false, true}) {
        Mode m;
        m.inverse = inv;
        m.in_place = inv && order >= 12;
        m.data_offset = inv ? 0 : static_cast<std::size_t>(32 * (order & 1));
        check_against_reference<TypeParam>(order, 8, m, target + (inv ? " inv" : " fwd"));
      }
  });
}

// Scale flags, in place, null buffer, misaligned caller buffers and data
// off 64-byte boundaries, across the thresholds of the schemes
// (straight-line 0..3, leaf, first large order of each precision,
// two-level, stepped).
TYPED_TEST(FftComplex, FlagsAndModes) {
  for (int order : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13}) {
    for (int flag : {1, 2, 4, 8}) {
      for (int mode = 0; mode < 4; ++mode) {
        Mode m;
        m.inverse = (mode & 1) != 0;
        m.in_place = mode >= 2;
        m.null_buffer = mode == 3;
        m.misalign = static_cast<std::size_t>(mode * 5);
        m.data_offset = static_cast<std::size_t>(16 * ((mode + flag) % 4));
        check_against_reference<TypeParam>(order, flag, m, "mode " + std::to_string(mode));
      }
    }
  }
}

// Larger orders (every scheme of both precisions up to 2^20) against the
// long-double FFT, and a forward-inverse round trip with Parseval's identity.
TYPED_TEST(FftComplex, LargeOrders) {
  using F = TypeParam;
  using T = typename F::Real;
  for (int order = 15; order <= 20; ++order) {
    Mode m;
    m.in_place = order % 2 == 0;
    m.data_offset = static_cast<std::size_t>(16 * (order % 4));
    check_against_reference<F>(order, 8, m, "large");

    OwnedSpec<F> s(order, 2);
    ASSERT_EQ(s.status, kelStsOk);
    const auto x = random_signal(std::size_t{1} << order, 99u);
    KelStatus st;
    bool guards;
    const auto y = run<F>(s.record, x, Mode{}, &st, &guards);
    ASSERT_EQ(st, kelStsOk);
    long double ex = 0, ey = 0;
    for (std::size_t i = 0; i < x.size(); ++i) {
      ex += std::norm(x[i]);
      ey += std::norm(y[i]);
    }
    EXPECT_NEAR(static_cast<double>(ey / (ex * x.size())), 1.0,
                static_cast<double>(2 * fft_bound<T>(order)));
    Mode back;
    back.inverse = true;
    back.null_buffer = true;
    const auto z = run<F>(s.record, y, back, &st, &guards);
    ASSERT_EQ(st, kelStsOk);
    EXPECT_LE(ref::rel_rms(z, x), 2 * fft_bound<T>(order)) << "round trip order " << order;
  }
}

// Flag 8 forward then inverse gives N times the input.
TYPED_TEST(FftComplex, UnscaledRoundTripIsNTimesInput) {
  using F = TypeParam;
  for (int order : {0, 3, 6, 12}) {
    OwnedSpec<F> s(order, 8);
    const auto x = random_signal(std::size_t{1} << order, 5u);
    KelStatus st;
    bool guards;
    const auto y = run<F>(s.record, x, Mode{}, &st, &guards);
    Mode back;
    back.inverse = true;
    auto z = run<F>(s.record, y, back, &st, &guards);
    for (auto& v : z) v /= static_cast<long double>(x.size());
    EXPECT_LE(ref::rel_rms(z, x), 2 * fft_bound<typename F::Real>(order));
  }
}

// Argument checks: record before data, each failure writes nothing.
TYPED_TEST(FftComplex, BadArguments) {
  using F = TypeParam;
  using T = typename F::Real;
  OwnedSpec<F> s(5, 8);
  Guarded<T> src(64), dst(64);
  for (std::size_t i = 0; i < 64; ++i) src[i] = T(1);
  T* sr = src.data();
  T* si = src.data() + (F::split ? 32 : 1);
  T* dr = dst.data();
  T* di = dst.data() + (F::split ? 32 : 1);
  EXPECT_EQ(F::fwd(sr, si, dr, di, nullptr, nullptr), kelStsNullPtr);
  EXPECT_EQ(F::inv(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr), kelStsNullPtr);
  // A record of another family: the identifier is refused before the data
  // pointers are looked at.
  KelsFFTSpec_R_32f* other = nullptr;
  ASSERT_EQ(kelsFFTInitAlloc_R_32f(&other, 5, 8, 0), kelStsOk);
  const auto* foreign = reinterpret_cast<const typename F::FftRecord*>(other);
  EXPECT_EQ(F::fwd(nullptr, nullptr, nullptr, nullptr, foreign, nullptr), kelStsBadContext);
  kelsFFTFree_R_32f(other);
  EXPECT_EQ(F::fwd(nullptr, si, dr, di, s.record, nullptr), kelStsNullPtr);
  EXPECT_EQ(F::fwd(sr, si, nullptr, di, s.record, nullptr), kelStsNullPtr);
  if (F::split) {  // the second array of the split layout
    EXPECT_EQ(F::fwd(sr, si, dr, nullptr, s.record, nullptr), kelStsNullPtr);
    EXPECT_EQ(F::inv(sr, nullptr, dr, di, s.record, nullptr), kelStsNullPtr);
  }
  EXPECT_TRUE(dst.untouched());
  // A released record.
  const ReleasedSpec<F> gone(5);
  EXPECT_EQ(F::fwd(sr, si, dr, di, gone.record, nullptr), kelStsBadContext);
  EXPECT_EQ(F::release(gone.record), kelStsBadContext);
  EXPECT_TRUE(dst.untouched());
  // Allocation failure of the per-call buffer: nothing written, no leak.
  for (int order : {5, 12, 14}) {
    OwnedSpec<F> big(order, 8);
    const std::size_t n = std::size_t{1} << order;
    Guarded<T> a(2 * n), b(2 * n);
    fail_alloc_after(1);
    const KelStatus st = F::fwd(a.data(), a.data() + (F::split ? n : 1), b.data(),
                                b.data() + (F::split ? n : 1), big.record, nullptr);
    fail_alloc_after(0);
    EXPECT_EQ(st, kelStsNoMemory);
    EXPECT_TRUE(b.untouched());
  }
}

// The straight-line 4-point forward transform follows the documented
// formula exactly: X1 = (x0 - x2) - i(x1 - x3).
TEST(FftComplexSmall, FourPointFormula) {
  KelsFFTSpec_C_32fc* s = nullptr;
  ASSERT_EQ(kelsFFTInitAlloc_C_32fc(&s, 2, 8, 0), kelStsOk);
  const Kel32fc x[4] = {{1, 2}, {3, 5}, {7, 11}, {13, 17}};
  Kel32fc y[4];
  ASSERT_EQ(kelsFFTFwd_CToC_32fc(x, y, s, nullptr), kelStsOk);
  EXPECT_EQ(y[0].re, 24);
  EXPECT_EQ(y[0].im, 35);
  // (x0-x2) = (-6,-9); (x1-x3) = (-10,-12); -i*(-10,-12) = (-12, 10)
  EXPECT_EQ(y[1].re, -18);
  EXPECT_EQ(y[1].im, 1);
  EXPECT_EQ(y[3].re, 6);
  EXPECT_EQ(y[3].im, -19);
  // N = 1 with the forward flag multiplies by scale = 1.
  KelsFFTSpec_C_32fc* one = nullptr;
  ASSERT_EQ(kelsFFTInitAlloc_C_32fc(&one, 0, 1, 0), kelStsOk);
  Kel32fc z = {2.5f, -1.0f};
  ASSERT_EQ(kelsFFTFwd_CToC_32fc_I(&z, one, nullptr), kelStsOk);
  EXPECT_EQ(z.re, 2.5f);
  EXPECT_EQ(z.im, -1.0f);
  kelsFFTFree_C_32fc(one);
  kelsFFTFree_C_32fc(s);
}

}  // namespace
}  // namespace kels::test

namespace kels::test {
namespace {

// Split layout with one array in place and the other not: each array is
// permuted on its own terms.
template <class F>
void mixed_in_place(int order) {
  using T = typename F::Real;
  OwnedSpec<F> s(order, 4);
  const std::size_t n = std::size_t{1} << order;
  const auto x = random_signal(n, 3u);
  std::vector<T> re(n), im(n), im_out(n);
  for (std::size_t i = 0; i < n; ++i) {
    re[i] = static_cast<T>(x[i].real());
    im[i] = static_cast<T>(x[i].imag());
  }
  ASSERT_EQ(F::fwd(re.data(), im.data(), re.data(), im_out.data(), s.record, nullptr), kelStsOk);
  auto want = ref::fft(x, false);
  for (auto& v : want) v /= std::sqrt(static_cast<long double>(n));
  std::vector<cld> got(n);
  for (std::size_t i = 0; i < n; ++i) got[i] = cld(re[i], im_out[i]);
  EXPECT_LE(ref::rel_rms(got, want), fft_bound<T>(order)) << F::name << " order " << order;
}

TEST(FftComplexSplit, OneArrayInPlace) {
  for (int order : {2, 5, 10, 12, 15}) {
    mixed_in_place<Fam32f>(order);
    mixed_in_place<Fam64f>(order);
  }
}

}  // namespace
}  // namespace kels::test

namespace kels::test {
namespace {

// Orders above the reference-FFT range (21: stepped over two-level in single
// precision, two stepped levels in double; 23: the tuned k = 8 outer order of
// single precision) by round trip against the input and by one spectral
// line against the direct sum.
template <class F>
void deep_round_trip(int order) {
  using T = typename F::Real;
  OwnedSpec<F> s(order, 2);
  ASSERT_EQ(s.status, kelStsOk);
  const std::size_t n = std::size_t{1} << order;
  const auto x = random_signal(n, 41u);
  KelStatus st;
  bool guards;
  Mode m;
  m.null_buffer = true;
  const auto y = run<F>(s.record, x, m, &st, &guards);
  ASSERT_EQ(st, kelStsOk);
  // Line 12345 directly, in long double.
  const std::size_t k = 12345 % n;
  cld want = 0;
  for (std::size_t j = 0; j < n; ++j) {
    const long double a = -6.283185307179586476925L * static_cast<long double>((j * k) % n) / n;
    want += x[j] * cld(std::cos(a), std::sin(a));
  }
  EXPECT_LE(std::abs(y[k] - want) / std::sqrt(static_cast<long double>(n)), 10 * fft_bound<T>(order));
  m.inverse = true;
  m.in_place = true;
  const auto z = run<F>(s.record, y, m, &st, &guards);
  ASSERT_EQ(st, kelStsOk);
  EXPECT_LE(ref::rel_rms(z, x), 2 * fft_bound<T>(order)) << F::name << " order " << order;
}

TEST(FftComplexDeep, Orders21And23) {
  for (int order : {21, 23}) {
    deep_round_trip<Fam32fc>(order);
    deep_round_trip<Fam64fc>(order);
  }
}

}  // namespace
}  // namespace kels::test
