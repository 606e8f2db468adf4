// Data-movement kernels, compiled once per SIMD target by Highway and
// reached through dynamic dispatch (resolved on first call, then a pointer
// call per invocation).
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "kernels/movement.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep
#include "hwy/highway.h"

#include "kernels/movement.h"

HWY_BEFORE_NAMESPACE();
namespace kels::kernels {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

template <class T>
void FillT(T v, T* HWY_RESTRICT dst, size_t n) {
  const hn::ScalableTag<T> d;
  const size_t N = hn::Lanes(d);
  const auto vv = hn::Set(d, v);
  size_t i = 0;
  for (; i + 4 * N <= n; i += 4 * N) {
    hn::StoreU(vv, d, dst + i);
    hn::StoreU(vv, d, dst + i + N);
    hn::StoreU(vv, d, dst + i + 2 * N);
    hn::StoreU(vv, d, dst + i + 3 * N);
  }
  for (; i + N <= n; i += N) hn::StoreU(vv, d, dst + i);
  // The words may be complex elements aligned to half their size.
  for (; i < n; ++i) std::memcpy(dst + i, &v, sizeof v);
}

void FillU8(uint8_t v, uint8_t* dst, size_t n) { FillT(v, dst, n); }
void FillU16(uint16_t v, uint16_t* dst, size_t n) { FillT(v, dst, n); }
void FillU32(uint32_t v, uint32_t* dst, size_t n) { FillT(v, dst, n); }
void FillU64(uint64_t v, uint64_t* dst, size_t n) { FillT(v, dst, n); }

void FillU128(const uint64_t* v, uint64_t* HWY_RESTRICT dst, size_t n) {
  const hn::ScalableTag<uint64_t> d;
  const size_t N = hn::Lanes(d);  // even on every target but EMU128's minimum
  size_t i = 0;
  if (N >= 2) {
    const auto vv = hn::LoadDup128(d, v);
    for (; i + N <= 2 * n; i += N) hn::StoreU(vv, d, dst + i);
  }
  for (; i < 2 * n; i += 2) {
    dst[i] = v[0];
    dst[i + 1] = v[1];
  }
}

// Copy of n bytes in vector blocks, four vectors per step.
void CopyBlock(const uint8_t* HWY_RESTRICT src, uint8_t* HWY_RESTRICT dst, size_t n) {
  const hn::ScalableTag<uint8_t> d;
  const size_t N = hn::Lanes(d);
  size_t i = 0;
  for (; i + 4 * N <= n; i += 4 * N) {
    const auto a = hn::LoadU(d, src + i);
    const auto b = hn::LoadU(d, src + i + N);
    const auto c = hn::LoadU(d, src + i + 2 * N);
    const auto e = hn::LoadU(d, src + i + 3 * N);
    hn::StoreU(a, d, dst + i);
    hn::StoreU(b, d, dst + i + N);
    hn::StoreU(c, d, dst + i + 2 * N);
    hn::StoreU(e, d, dst + i + 3 * N);
  }
  if (i < n) std::memcpy(dst + i, src + i, n - i);
}

template <class T>
void ConjFloat(const T* src, T* dst, size_t n) {
  const hn::ScalableTag<T> d;
  const size_t N = hn::Lanes(d);
  const size_t total = 2 * n;  // scalars
  size_t i = 0;
  if (N >= 2) {
    for (; i + N <= total; i += N) {
      const auto v = hn::LoadU(d, src + i);
      hn::StoreU(hn::OddEven(hn::Neg(v), v), d, dst + i);
    }
  }
  for (; i < total; i += 2) {
    dst[i] = src[i];
    dst[i + 1] = -src[i + 1];
  }
}

void ConjF32(const float* src, float* dst, size_t n) { ConjFloat(src, dst, n); }
void ConjF64(const double* src, double* dst, size_t n) { ConjFloat(src, dst, n); }

void ConjS16(const int16_t* src, int16_t* dst, size_t n) {
  const hn::ScalableTag<int16_t> d;
  const size_t N = hn::Lanes(d);
  const size_t total = 2 * n;
  size_t i = 0;
  if (N >= 2) {
    const auto zero = hn::Zero(d);
    for (; i + N <= total; i += N) {
      const auto v = hn::LoadU(d, src + i);
      hn::StoreU(hn::OddEven(hn::SaturatedSub(zero, v), v), d, dst + i);
    }
  }
  for (; i < total; i += 2) {
    dst[i] = src[i];
    dst[i + 1] = scalar::neg_sat16(src[i + 1]);
  }
}

// Reversal: out of place reads vectors from the end; in place swaps a vector
// from each end and meets in the middle.
template <class T>
void FlipT(const T* src, T* dst, size_t n) {
  const hn::ScalableTag<T> d;
  const size_t N = hn::Lanes(d);
  if (src != dst) {
    size_t i = 0;
    for (; i + N <= n; i += N) {
      hn::StoreU(hn::Reverse(d, hn::LoadU(d, src + n - i - N)), d, dst + i);
    }
    scalar::flip(src, dst + i, n - i);  // the first n - i elements, reversed
    return;
  }
  size_t lo = 0, hi = n;
  while (hi - lo >= 2 * N) {
    const auto a = hn::LoadU(d, dst + lo);
    const auto b = hn::LoadU(d, dst + hi - N);
    hn::StoreU(hn::Reverse(d, b), d, dst + lo);
    hn::StoreU(hn::Reverse(d, a), d, dst + hi - N);
    lo += N;
    hi -= N;
  }
  scalar::flip(dst + lo, dst + lo, hi - lo);
}

void FlipU16(const uint16_t* s, uint16_t* d, size_t n) { FlipT(s, d, n); }
void FlipU32(const uint32_t* s, uint32_t* d, size_t n) { FlipT(s, d, n); }
void FlipU64(const uint64_t* s, uint64_t* d, size_t n) { FlipT(s, d, n); }

// Byte reversal inside each element through a byte shuffle within each
// 128-bit block.
template <class T>
void SwapBytesT(const T* src, T* dst, size_t n) {
  const hn::ScalableTag<uint8_t> d8;
  const hn::Repartition<T, decltype(d8)> d;
  const size_t N = hn::Lanes(d);
  size_t i = 0;
#if HWY_TARGET != HWY_SCALAR
  if (hn::Lanes(d8) >= 16) {
    alignas(16) uint8_t pattern[16];
    for (size_t b = 0; b < 16; ++b) {
      pattern[b] = static_cast<uint8_t>((b / sizeof(T)) * sizeof(T) + (sizeof(T) - 1 - b % sizeof(T)));
    }
    const auto idx = hn::LoadDup128(d8, pattern);
    for (; i + N <= n; i += N) {
      const auto v = hn::BitCast(d8, hn::LoadU(d, src + i));
      hn::StoreU(hn::BitCast(d, hn::TableLookupBytes(v, idx)), d, dst + i);
    }
  }
#else
  (void)N;
#endif
  for (; i < n; ++i) dst[i] = scalar::swap_bytes_one(src[i]);
}

void SwapBytesU16(const uint16_t* s, uint16_t* d, size_t n) { SwapBytesT(s, d, n); }
void SwapBytesU32(const uint32_t* s, uint32_t* d, size_t n) { SwapBytesT(s, d, n); }
void SwapBytesU64(const uint64_t* s, uint64_t* d, size_t n) { SwapBytesT(s, d, n); }

template <class T>
void SplitT(const T* HWY_RESTRICT src, T* HWY_RESTRICT re, T* HWY_RESTRICT im, size_t n) {
  const hn::ScalableTag<T> d;
  const size_t N = hn::Lanes(d);
  size_t i = 0;
  if (re != nullptr && im != nullptr) {
    for (; i + N <= n; i += N) {
      hn::Vec<decltype(d)> a, b;
      hn::LoadInterleaved2(d, src + 2 * i, a, b);
      hn::StoreU(a, d, re + i);
      hn::StoreU(b, d, im + i);
    }
  }
  scalar::split(src + 2 * i, re ? re + i : nullptr, im ? im + i : nullptr, n - i);
}

template <class T>
void JoinT(const T* HWY_RESTRICT re, const T* HWY_RESTRICT im, T* HWY_RESTRICT dst, size_t n) {
  const hn::ScalableTag<T> d;
  const size_t N = hn::Lanes(d);
  const auto zero = hn::Zero(d);
  size_t i = 0;
  for (; i + N <= n; i += N) {
    const auto a = re ? hn::LoadU(d, re + i) : zero;
    const auto b = im ? hn::LoadU(d, im + i) : zero;
    hn::StoreInterleaved2(a, b, d, dst + 2 * i);
  }
  scalar::join(re ? re + i : nullptr, im ? im + i : nullptr, dst + 2 * i, n - i);
}

void SplitU16(const uint16_t* s, uint16_t* r, uint16_t* m, size_t n) { SplitT(s, r, m, n); }
void SplitU32(const uint32_t* s, uint32_t* r, uint32_t* m, size_t n) { SplitT(s, r, m, n); }
void SplitU64(const uint64_t* s, uint64_t* r, uint64_t* m, size_t n) { SplitT(s, r, m, n); }
void JoinU16(const uint16_t* r, const uint16_t* m, uint16_t* d, size_t n) { JoinT(r, m, d, n); }
void JoinU32(const uint32_t* r, const uint32_t* m, uint32_t* d, size_t n) { JoinT(r, m, d, n); }
void JoinU64(const uint64_t* r, const uint64_t* m, uint64_t* d, size_t n) { JoinT(r, m, d, n); }

void ScaleF32ToS16(const float* HWY_RESTRICT src, int16_t* HWY_RESTRICT dst, size_t n) {
  const hn::ScalableTag<float> df;
  const hn::Rebind<int32_t, decltype(df)> di;
  const hn::Rebind<int16_t, decltype(df)> d16;
  const size_t N = hn::Lanes(df);
  const auto k = hn::Set(df, 32767.5f);
  const auto half = hn::Set(df, 0.5f);
  const auto one = hn::Set(df, 1.0f);
  const auto hi = hn::Set(di, 32767);
  const auto lo = hn::Set(di, -32768);
  size_t i = 0;
  for (; i + N <= n; i += N) {
    const auto x = hn::LoadU(df, src + i);
    const auto y = hn::Sub(hn::Mul(x, k), half);
    auto r = hn::NearestInt(y);
    r = hn::IfThenElse(hn::RebindMask(di, hn::Gt(x, one)), hi, r);
    // Below -1 and NaN (which compares false with everything) go to -32768.
    const auto in_low_range = hn::Ge(x, hn::Neg(one));
    r = hn::IfThenElse(hn::RebindMask(di, hn::Or(in_low_range, hn::Gt(x, one))), r, lo);
    hn::StoreU(hn::DemoteTo(d16, r), d16, dst + i);
  }
  scalar::scale_f32_to_s16(src + i, dst + i, n - i);
}

}  // namespace HWY_NAMESPACE
}  // namespace kels::kernels
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace kels::kernels {

HWY_EXPORT(FillU8);
HWY_EXPORT(FillU16);
HWY_EXPORT(FillU32);
HWY_EXPORT(FillU64);
HWY_EXPORT(FillU128);
HWY_EXPORT(CopyBlock);
HWY_EXPORT(ConjF32);
HWY_EXPORT(ConjF64);
HWY_EXPORT(ConjS16);
HWY_EXPORT(FlipU16);
HWY_EXPORT(FlipU32);
HWY_EXPORT(FlipU64);
HWY_EXPORT(SwapBytesU16);
HWY_EXPORT(SwapBytesU32);
HWY_EXPORT(SwapBytesU64);
HWY_EXPORT(SplitU16);
HWY_EXPORT(SplitU32);
HWY_EXPORT(SplitU64);
HWY_EXPORT(JoinU16);
HWY_EXPORT(JoinU32);
HWY_EXPORT(JoinU64);
HWY_EXPORT(ScaleF32ToS16);

void fill_u8(std::uint8_t v, std::uint8_t* d, std::size_t n) { HWY_DYNAMIC_DISPATCH(FillU8)(v, d, n); }
void fill_u16(std::uint16_t v, std::uint16_t* d, std::size_t n) { HWY_DYNAMIC_DISPATCH(FillU16)(v, d, n); }
void fill_u32(std::uint32_t v, std::uint32_t* d, std::size_t n) { HWY_DYNAMIC_DISPATCH(FillU32)(v, d, n); }
void fill_u64(std::uint64_t v, std::uint64_t* d, std::size_t n) { HWY_DYNAMIC_DISPATCH(FillU64)(v, d, n); }
void fill_u128(const std::uint64_t v[2], std::uint64_t* d, std::size_t n) {
  HWY_DYNAMIC_DISPATCH(FillU128)(v, d, n);
}
void copy_block(const std::uint8_t* s, std::uint8_t* d, std::size_t n) { HWY_DYNAMIC_DISPATCH(CopyBlock)(s, d, n); }
void conj_f32(const float* s, float* d, std::size_t n) { HWY_DYNAMIC_DISPATCH(ConjF32)(s, d, n); }
void conj_f64(const double* s, double* d, std::size_t n) { HWY_DYNAMIC_DISPATCH(ConjF64)(s, d, n); }
void conj_s16(const std::int16_t* s, std::int16_t* d, std::size_t n) { HWY_DYNAMIC_DISPATCH(ConjS16)(s, d, n); }
void flip_u8(const std::uint8_t* s, std::uint8_t* d, std::size_t n) { scalar::flip(s, d, n); }
void flip_u16(const std::uint16_t* s, std::uint16_t* d, std::size_t n) { HWY_DYNAMIC_DISPATCH(FlipU16)(s, d, n); }
void flip_u32(const std::uint32_t* s, std::uint32_t* d, std::size_t n) { HWY_DYNAMIC_DISPATCH(FlipU32)(s, d, n); }
void flip_u64(const std::uint64_t* s, std::uint64_t* d, std::size_t n) { HWY_DYNAMIC_DISPATCH(FlipU64)(s, d, n); }
void swap_bytes_u16(const std::uint16_t* s, std::uint16_t* d, std::size_t n) {
  HWY_DYNAMIC_DISPATCH(SwapBytesU16)(s, d, n);
}
void swap_bytes_u32(const std::uint32_t* s, std::uint32_t* d, std::size_t n) {
  HWY_DYNAMIC_DISPATCH(SwapBytesU32)(s, d, n);
}
void swap_bytes_u64(const std::uint64_t* s, std::uint64_t* d, std::size_t n) {
  HWY_DYNAMIC_DISPATCH(SwapBytesU64)(s, d, n);
}
void split_u16(const std::uint16_t* s, std::uint16_t* r, std::uint16_t* m, std::size_t n) {
  HWY_DYNAMIC_DISPATCH(SplitU16)(s, r, m, n);
}
void split_u32(const std::uint32_t* s, std::uint32_t* r, std::uint32_t* m, std::size_t n) {
  HWY_DYNAMIC_DISPATCH(SplitU32)(s, r, m, n);
}
void split_u64(const std::uint64_t* s, std::uint64_t* r, std::uint64_t* m, std::size_t n) {
  HWY_DYNAMIC_DISPATCH(SplitU64)(s, r, m, n);
}
void join_u16(const std::uint16_t* r, const std::uint16_t* m, std::uint16_t* d, std::size_t n) {
  HWY_DYNAMIC_DISPATCH(JoinU16)(r, m, d, n);
}
void join_u32(const std::uint32_t* r, const std::uint32_t* m, std::uint32_t* d, std::size_t n) {
  HWY_DYNAMIC_DISPATCH(JoinU32)(r, m, d, n);
}
void join_u64(const std::uint64_t* r, const std::uint64_t* m, std::uint64_t* d, std::size_t n) {
  HWY_DYNAMIC_DISPATCH(JoinU64)(r, m, d, n);
}
void scale_f32_to_s16(const float* s, std::int16_t* d, std::size_t n) {
  HWY_DYNAMIC_DISPATCH(ScaleF32ToS16)(s, d, n);
}

}  // namespace kels::kernels
#endif  // HWY_ONCE
