// Data movement: every member against a byte-level model, the check order
// (pointers, then length, nothing written on error), the kernel thresholds,
// overlapping moves and misaligned buffers.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <random>
#include <vector>

#include "kels.h"
#include "support/targets.h"

namespace {

using kels::test::Guarded;

template <class T>
void fill_random(T* p, std::size_t n, unsigned seed) {
  std::mt19937 rng(seed);
  auto* b = reinterpret_cast<unsigned char*>(p);
  for (std::size_t i = 0; i < n * sizeof(T); ++i) b[i] = static_cast<unsigned char>(rng());
}

template <class T>
bool same_bytes(const T* a, const T* b, std::size_t n) {
  return std::memcmp(a, b, n * sizeof(T)) == 0;
}

// ---- Copy / Move / Zero / Set share one type list.
template <class T>
struct Fill {
  KelStatus (*copy)(const T*, T*, int);
  KelStatus (*move)(const T*, T*, int);
  KelStatus (*zero)(T*, int);
  KelStatus (*set)(T, T*, int);
};

#define MOVEMENT_TYPES(X) \
  X(8u, Kel8u) X(16s, Kel16s) X(16sc, Kel16sc) X(32s, Kel32s) X(32sc, Kel32sc) X(32f, Kel32f) \
  X(32fc, Kel32fc) X(64s, Kel64s) X(64sc, Kel64sc) X(64f, Kel64f) X(64fc, Kel64fc)

template <class T>
Fill<T> fill_fns();
#define FILL_FNS(code, T) \
  template <>             \
  Fill<T> fill_fns<T>() { return {kelsCopy_##code, kelsMove_##code, kelsZero_##code, kelsSet_##code}; }
MOVEMENT_TYPES(FILL_FNS)

template <class T>
class FillFamily : public ::testing::Test {};
using FillTypes = ::testing::Types<Kel8u, Kel16s, Kel16sc, Kel32s, Kel32sc, Kel32f, Kel32fc, Kel64s, Kel64sc, Kel64f,
                                   Kel64fc>;
TYPED_TEST_SUITE(FillFamily, FillTypes);

// Element counts around the copy (8192/16384 bytes) and fill (20480 bytes)
// kernel switches for this element size.
template <class T>
std::vector<int> threshold_lengths() {
  const int s = static_cast<int>(sizeof(T));
  return kels::test::sweep_lengths({8192 / s, 16384 / s, 20480 / s});
}

TYPED_TEST(FillFamily, CopyMoveZeroSetMatchModel) {
  using T = TypeParam;
  const Fill<T> f = fill_fns<T>();
  for (int n : threshold_lengths<T>()) {
    // Offsets keep each element's natural alignment but break the vector
    // alignment of the kernels.
    for (std::size_t off : {std::size_t{0}, alignof(T), 3 * alignof(T)}) {
      Guarded<T> src(n, off), dst(n, off * 2);
      fill_random(src.data(), n, static_cast<unsigned>(n));
      ASSERT_EQ(f.copy(src.data(), dst.data(), n), kelStsOk);
      EXPECT_TRUE(same_bytes(src.data(), dst.data(), n)) << n;
      EXPECT_TRUE(dst.guards_intact()) << n;

      T val;
      fill_random(&val, 1, 99);
      ASSERT_EQ(f.set(val, dst.data(), n), kelStsOk);
      for (int i = 0; i < n; ++i) ASSERT_TRUE(same_bytes(&val, dst.data() + i, 1)) << n << " " << i;
      EXPECT_TRUE(dst.guards_intact());

      ASSERT_EQ(f.zero(dst.data(), n), kelStsOk);
      std::vector<unsigned char> zeros(n * sizeof(T), 0);
      EXPECT_EQ(std::memcmp(dst.data(), zeros.data(), zeros.size()), 0);
      EXPECT_TRUE(dst.guards_intact());
    }
  }
}

TYPED_TEST(FillFamily, MoveHandlesOverlapBothWays) {
  using T = TypeParam;
  const Fill<T> f = fill_fns<T>();
  for (int n : {1, 5, 100, 5000}) {
    for (int shift : {1, 3, n}) {
      std::vector<T> buf(static_cast<std::size_t>(n + shift)), model;
      fill_random(buf.data(), buf.size(), 7);
      model = buf;
      std::memmove(model.data() + shift, model.data(), n * sizeof(T));
      ASSERT_EQ(f.move(buf.data(), buf.data() + shift, n), kelStsOk);
      EXPECT_TRUE(same_bytes(buf.data(), model.data(), buf.size()));
      fill_random(buf.data(), buf.size(), 8);
      model = buf;
      std::memmove(model.data(), model.data() + shift, n * sizeof(T));
      ASSERT_EQ(f.move(buf.data() + shift, buf.data(), n), kelStsOk);
      EXPECT_TRUE(same_bytes(buf.data(), model.data(), buf.size()));
    }
  }
}

TYPED_TEST(FillFamily, BadArgumentsWriteNothing) {
  using T = TypeParam;
  const Fill<T> f = fill_fns<T>();
  Guarded<T> src(8), dst(8);
  T val{};
  // Null pointers are reported before the length.
  EXPECT_EQ(f.copy(nullptr, dst.data(), 0), kelStsNullPtr);
  EXPECT_EQ(f.copy(src.data(), nullptr, 8), kelStsNullPtr);
  EXPECT_EQ(f.move(nullptr, dst.data(), -1), kelStsNullPtr);
  EXPECT_EQ(f.zero(nullptr, 0), kelStsNullPtr);
  EXPECT_EQ(f.set(val, nullptr, 0), kelStsNullPtr);
  for (int bad : {0, -1, -1000}) {
    EXPECT_EQ(f.copy(src.data(), dst.data(), bad), kelStsBadLength);
    EXPECT_EQ(f.move(src.data(), dst.data(), bad), kelStsBadLength);
    EXPECT_EQ(f.zero(dst.data(), bad), kelStsBadLength);
    EXPECT_EQ(f.set(val, dst.data(), bad), kelStsBadLength);
  }
  EXPECT_TRUE(dst.untouched());
}

// ---- Bit strings, against a one-bit-at-a-time model (MSB first).
int get_bit(const Kel8u* p, int i) { return (p[i / 8] >> (7 - i % 8)) & 1; }
void put_bit(Kel8u* p, int i, int b) {
  const Kel8u m = static_cast<Kel8u>(0x80 >> (i % 8));
  p[i / 8] = static_cast<Kel8u>(b ? (p[i / 8] | m) : (p[i / 8] & ~m));
}

TEST(Copy1u, BitOffsetsAgainstModel) {
  std::vector<Kel8u> src(64), dst(64), model;
  for (int so : {0, 1, 7, 8, 13}) {
    for (int dof : {0, 3, 7, 16}) {
      for (int len : {1, 7, 8, 9, 63, 64, 200}) {
        fill_random(src.data(), src.size(), static_cast<unsigned>(so * 31 + dof));
        fill_random(dst.data(), dst.size(), static_cast<unsigned>(len));
        model = dst;
        for (int i = 0; i < len; ++i) put_bit(model.data(), dof + i, get_bit(src.data(), so + i));
        ASSERT_EQ(kelsCopy_1u(src.data(), so, dst.data(), dof, len), kelStsOk);
        EXPECT_EQ(dst, model) << so << " " << dof << " " << len;
      }
    }
  }
  EXPECT_EQ(kelsCopy_1u(nullptr, 0, dst.data(), 0, 8), kelStsNullPtr);
  EXPECT_EQ(kelsCopy_1u(src.data(), 0, dst.data(), 0, 0), kelStsBadLength);
  EXPECT_EQ(kelsCopy_1u(src.data(), -1, dst.data(), 0, 8), kelStsBadLength);
}

// ---- Complex split/join, conjugation, reversal, byte swaps.
template <class C, class R>
struct Cplx {
  KelStatus (*to_real)(const C*, R*, R*, int);
  KelStatus (*to_cplx)(const R*, const R*, C*, int);
  KelStatus (*real)(const C*, R*, int);
  KelStatus (*imag)(const C*, R*, int);
  KelStatus (*conj)(const C*, C*, int);
  KelStatus (*conj_i)(C*, int);
  KelStatus (*conj_flip)(const C*, C*, int);
};

template <class C, class R>
void check_complex(const Cplx<C, R>& f, R neg_limit_im) {
  for (int n : kels::test::sweep_lengths()) {
    for (std::size_t off : {std::size_t{0}, alignof(C)}) {
      Guarded<C> src(n, off), dst(n, off), back(n);
      Guarded<R> re(n, off), im(n, off);
      fill_random(src.data(), n, static_cast<unsigned>(n));
      src[0].im = neg_limit_im;  // exercises the saturating 16-bit conjugate
      ASSERT_EQ(f.to_real(src.data(), re.data(), im.data(), n), kelStsOk);
      for (int i = 0; i < n; ++i) ASSERT_TRUE(same_bytes(&re[i], &src[i].re, 1) && same_bytes(&im[i], &src[i].im, 1));
      ASSERT_EQ(f.to_cplx(re.data(), im.data(), back.data(), n), kelStsOk);
      EXPECT_TRUE(same_bytes(back.data(), src.data(), n));
      ASSERT_EQ(f.to_cplx(nullptr, im.data(), back.data(), n), kelStsOk);
      for (int i = 0; i < n; ++i) ASSERT_TRUE(back[i].re == R(0) && same_bytes(&back[i].im, &src[i].im, 1));
      ASSERT_EQ(f.to_cplx(re.data(), nullptr, back.data(), n), kelStsOk);
      for (int i = 0; i < n; ++i) ASSERT_TRUE(back[i].im == R(0) && same_bytes(&back[i].re, &src[i].re, 1));

      Guarded<R> part(n);
      ASSERT_EQ(f.real(src.data(), part.data(), n), kelStsOk);
      EXPECT_TRUE(same_bytes(part.data(), re.data(), n));
      ASSERT_EQ(f.imag(src.data(), part.data(), n), kelStsOk);
      EXPECT_TRUE(same_bytes(part.data(), im.data(), n));

      // Conjugates; the 16-bit conjugate of -32768 saturates.
      std::vector<C> want(src.data(), src.data() + n), flipped(n);
      for (auto& c : want) {
        c.im = std::is_integral_v<R> && c.im == neg_limit_im ? static_cast<R>(-(neg_limit_im + 1)) : static_cast<R>(-c.im);
      }
      for (int i = 0; i < n; ++i) flipped[i] = want[n - 1 - i];
      ASSERT_EQ(f.conj(src.data(), dst.data(), n), kelStsOk);
      EXPECT_TRUE(same_bytes(dst.data(), want.data(), n)) << n;
      ASSERT_EQ(f.conj_flip(src.data(), dst.data(), n), kelStsOk);
      EXPECT_TRUE(same_bytes(dst.data(), flipped.data(), n)) << n;
      std::vector<C> copy(src.data(), src.data() + n);
      ASSERT_EQ(f.conj_i(copy.data(), n), kelStsOk);
      EXPECT_TRUE(same_bytes(copy.data(), want.data(), n)) << n;
      EXPECT_TRUE(dst.guards_intact() && re.guards_intact() && im.guards_intact());
    }
  }
  Guarded<C> c(4);
  Guarded<R> r(4);
  EXPECT_EQ(f.to_real(c.data(), nullptr, r.data(), 4), kelStsNullPtr);
  EXPECT_EQ(f.to_cplx(nullptr, nullptr, nullptr, 4), kelStsNullPtr);
  EXPECT_EQ(f.to_cplx(nullptr, nullptr, c.data(), 0), kelStsBadLength);
  EXPECT_EQ(f.conj(c.data(), c.data(), 0), kelStsBadLength);
  EXPECT_EQ(f.conj_i(nullptr, 4), kelStsNullPtr);
  EXPECT_EQ(f.conj_flip(nullptr, c.data(), 4), kelStsNullPtr);
}

TEST(Complex, SplitJoinConjAgainstModelOnEveryTarget) {
  kels::test::for_each_target([](const std::string& target) {
    SCOPED_TRACE(target);
    check_complex<Kel16sc, Kel16s>({kelsCplxToReal_16sc, kelsRealToCplx_16s, kelsReal_16sc, kelsImag_16sc,
                                    kelsConj_16sc, kelsConj_16sc_I, kelsConjFlip_16sc},
                                   static_cast<Kel16s>(-32768));
    check_complex<Kel32fc, Kel32f>({kelsCplxToReal_32fc, kelsRealToCplx_32f, kelsReal_32fc, kelsImag_32fc,
                                    kelsConj_32fc, kelsConj_32fc_I, kelsConjFlip_32fc},
                                   -2.0f);
    check_complex<Kel64fc, Kel64f>({kelsCplxToReal_64fc, kelsRealToCplx_64f, kelsReal_64fc, kelsImag_64fc,
                                    kelsConj_64fc, kelsConj_64fc_I, kelsConjFlip_64fc},
                                   -2.0);
  });
}

template <class T>
void check_flip(KelStatus (*flip)(const T*, T*, int), KelStatus (*flip_i)(T*, int)) {
  for (int n : kels::test::sweep_lengths()) {
    Guarded<T> src(n, alignof(T)), dst(n, 3 * alignof(T));
    fill_random(src.data(), n, static_cast<unsigned>(n));
    ASSERT_EQ(flip(src.data(), dst.data(), n), kelStsOk);
    for (int i = 0; i < n; ++i) ASSERT_TRUE(same_bytes(&dst[i], &src[n - 1 - i], 1)) << n;
    ASSERT_EQ(flip_i(dst.data(), n), kelStsOk);
    EXPECT_TRUE(same_bytes(dst.data(), src.data(), n)) << n;
    EXPECT_TRUE(dst.guards_intact());
  }
  EXPECT_EQ(flip(nullptr, nullptr, 0), kelStsNullPtr);
  EXPECT_EQ(flip_i(nullptr, 0), kelStsNullPtr);
  T x{};
  EXPECT_EQ(flip_i(&x, 0), kelStsBadLength);
}

template <class T>
void check_swap(KelStatus (*swap)(const T*, T*, int), KelStatus (*swap_i)(T*, int)) {
  for (int n : kels::test::sweep_lengths()) {
    Guarded<T> src(n, alignof(T)), dst(n, 2 * alignof(T));
    fill_random(src.data(), n, static_cast<unsigned>(n));
    ASSERT_EQ(swap(src.data(), dst.data(), n), kelStsOk);
    for (int i = 0; i < n; ++i) {
      const auto* s = reinterpret_cast<const unsigned char*>(&src[i]);
      const auto* d = reinterpret_cast<const unsigned char*>(&dst[i]);
      for (std::size_t b = 0; b < sizeof(T); ++b) ASSERT_EQ(d[b], s[sizeof(T) - 1 - b]) << n << " " << i;
    }
    ASSERT_EQ(swap_i(dst.data(), n), kelStsOk);
    EXPECT_TRUE(same_bytes(dst.data(), src.data(), n));
    EXPECT_TRUE(dst.guards_intact());
  }
  EXPECT_EQ(swap(nullptr, nullptr, 1), kelStsNullPtr);
  T x{};
  EXPECT_EQ(swap_i(&x, -3), kelStsBadLength);
}

TEST(Reorder, FlipAndSwapBytesOnEveryTarget) {
  kels::test::for_each_target([](const std::string& target) {
    SCOPED_TRACE(target);
    check_flip<Kel8u>(kelsFlip_8u, kelsFlip_8u_I);
    check_flip<Kel16u>(kelsFlip_16u, kelsFlip_16u_I);
    check_flip<Kel32f>(kelsFlip_32f, kelsFlip_32f_I);
    check_flip<Kel64f>(kelsFlip_64f, kelsFlip_64f_I);
    check_swap<Kel16u>(kelsSwapBytes_16u, kelsSwapBytes_16u_I);
    check_swap<Kel32u>(kelsSwapBytes_32u, kelsSwapBytes_32u_I);
    check_swap<Kel64u>(kelsSwapBytes_64u, kelsSwapBytes_64u_I);
  });
}

TEST(Reorder, SwapBytes24ExchangesOuterBytes) {
  const Kel8u src[6] = {1, 2, 3, 4, 5, 6};
  Kel8u dst[6];
  ASSERT_EQ(kelsSwapBytes_24u(src, dst, 2), kelStsOk);
  const Kel8u expect[6] = {3, 2, 1, 6, 5, 4};
  EXPECT_EQ(std::memcmp(dst, expect, 6), 0);
  ASSERT_EQ(kelsSwapBytes_24u_I(dst, 2), kelStsOk);
  EXPECT_EQ(std::memcmp(dst, src, 6), 0);
  EXPECT_EQ(kelsSwapBytes_24u(src, nullptr, 2), kelStsNullPtr);
  EXPECT_EQ(kelsSwapBytes_24u_I(dst, 0), kelStsBadLength);
}

// ---- Scaled interleaving.
TEST(JoinScaled, SixteenBitEdgeValues) {
  const Kel32f x[] = {0.0f, 1.0f, 1.5f, -1.0f, -1.5f, 0.5f, -0.5f, 1e-9f, -1e-9f};
  // 0.5 * 32767.5 - 0.5 = 16383.25 -> 16383; -0.5 -> -16384.25 -> -16384.
  const Kel16s expect[] = {0, 32767, 32767, -32768, -32768, 16383, -16384, 0, -1};
  const Kel32f* ch[1] = {x};
  Kel16s out[9];
  kels::test::for_each_target([&](const std::string& target) {
    ASSERT_EQ(kelsJoinScaled_32f16s_D2L(ch, 1, 9, out), kelStsOk);
    for (int i = 0; i < 9; ++i) EXPECT_EQ(out[i], expect[i]) << target << " " << x[i];
  });
}

TEST(JoinScaled, VectorKernelMatchesScalarRuleOnEveryTarget) {
  std::mt19937 rng(5);
  std::uniform_real_distribution<float> u(-1.2f, 1.2f);
  const int n = 1000;
  std::vector<Kel32f> x(n);
  for (auto& v : x) v = u(rng);
  x[3] = std::nanf("");
  // Exact ties of the scaled value: y = k + 0.5 exactly.
  for (int i = 10; i < 40; ++i) x[i] = (static_cast<float>(i - 25) + 0.5f + 0.5f) / 32767.5f;
  std::vector<Kel16s> model(n), out(n);
  for (int i = 0; i < n; ++i) {
    const float v = x[i];
    model[i] = v > 1.0f ? 32767 : (v < -1.0f || std::isnan(v)) ? -32768
               : static_cast<Kel16s>(std::nearbyint(v * 32767.5f - 0.5f));
  }
  const Kel32f* ch[1] = {x.data()};
  kels::test::for_each_target([&](const std::string& target) {
    for (int len : kels::test::sweep_lengths({n})) {
      if (len > n) continue;
      ASSERT_EQ(kelsJoinScaled_32f16s_D2L(ch, 1, len, out.data()), kelStsOk);
      for (int i = 0; i < len; ++i) ASSERT_EQ(out[i], model[i]) << target << " " << i;
    }
  });
}

TEST(JoinScaled, MultiChannelLayoutAndSplitInverse) {
  const int nc = 3, n = 300;
  std::vector<std::vector<Kel32f>> chans(nc, std::vector<Kel32f>(n));
  std::mt19937 rng(11);
  std::uniform_int_distribution<int> code(-32768, 32767);
  std::vector<Kel16s> codes(nc * n);
  for (auto& c : codes) c = static_cast<Kel16s>(code(rng));
  codes[0] = -32768;
  codes[1] = 32767;
  // Splitting codes and joining them again gives the codes back.
  Kel32f* dst[nc] = {chans[0].data(), chans[1].data(), chans[2].data()};
  ASSERT_EQ(kelsSplitScaled_16s32f_D2L(codes.data(), nc, n, dst), kelStsOk);
  EXPECT_EQ(chans[0][0], -1.0f);
  EXPECT_EQ(chans[1][0], 1.0f);
  for (int i = 0; i < n; ++i) {
    for (int c = 0; c < nc; ++c) {
      ASSERT_EQ(chans[c][i], (static_cast<float>(codes[i * nc + c]) + 0.5f) / 32767.5f);
    }
  }
  std::vector<Kel16s> back(nc * n);
  const Kel32f* src[nc] = {chans[0].data(), chans[1].data(), chans[2].data()};
  ASSERT_EQ(kelsJoinScaled_32f16s_D2L(src, nc, n, back.data()), kelStsOk);
  EXPECT_EQ(back, codes);

  // 24-bit: the same round trip through packed bytes.
  std::vector<Kel8u> packed(3 * nc * n), repacked(3 * nc * n);
  std::uniform_int_distribution<int> code24(-8388608, 8388607);
  for (int k = 0; k < nc * n; ++k) {
    const std::uint32_t u = static_cast<std::uint32_t>(k < 2 ? (k == 0 ? -8388608 : 8388607) : code24(rng));
    packed[3 * k] = static_cast<Kel8u>(u);
    packed[3 * k + 1] = static_cast<Kel8u>(u >> 8);
    packed[3 * k + 2] = static_cast<Kel8u>(u >> 16);
  }
  ASSERT_EQ(kelsSplitScaled_24s32f_D2L(packed.data(), nc, n, dst), kelStsOk);
  EXPECT_EQ(chans[0][0], -1.0f);
  EXPECT_EQ(chans[1][0], 1.0f);
  ASSERT_EQ(kelsJoinScaled_32f24s_D2L(src, nc, n, repacked.data()), kelStsOk);
  EXPECT_EQ(repacked, packed);
}

TEST(JoinScaled, CheckOrder) {
  Kel32f a[4] = {0, 0, 0, 0};
  const Kel32f* ok[2] = {a, a};
  const Kel32f* holey[2] = {a, nullptr};
  Kel16s out[8];
  Kel8u out24[24];
  EXPECT_EQ(kelsJoinScaled_32f16s_D2L(ok, 2, 4, nullptr), kelStsNullPtr);
  EXPECT_EQ(kelsJoinScaled_32f16s_D2L(nullptr, 2, 4, out), kelStsNullPtr);
  EXPECT_EQ(kelsJoinScaled_32f16s_D2L(holey, 2, 0, out), kelStsNullPtr);
  EXPECT_EQ(kelsJoinScaled_32f16s_D2L(ok, 0, 4, out), kelStsBadLength);
  EXPECT_EQ(kelsJoinScaled_32f16s_D2L(ok, 2, -1, out), kelStsBadLength);
  EXPECT_EQ(kelsJoinScaled_32f24s_D2L(holey, 2, 4, out24), kelStsNullPtr);
  Kel32f* dst[2] = {a, nullptr};
  EXPECT_EQ(kelsSplitScaled_16s32f_D2L(out, 2, 4, dst), kelStsNullPtr);
  EXPECT_EQ(kelsSplitScaled_24s32f_D2L(out24, 1, 0, dst), kelStsBadLength);
}

}  // namespace
