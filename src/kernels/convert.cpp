// Conversion kernels, compiled once per SIMD target by Highway and reached
// through dynamic dispatch. Each loop processes whole vectors and hands the
// remainder to its scalar twin, so both always agree on the tail.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "kernels/convert.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep
#include "hwy/highway.h"
#include "hwy/cache_control.h"

#include "kernels/convert.h"

HWY_BEFORE_NAMESPACE();
namespace kels::kernels {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// Loads |lanes of di| elements of S and widens them to int32.
template <class S, class DI>
HWY_INLINE hn::Vec<DI> LoadAsI32(DI di, const S* p) {
  if constexpr (std::is_same_v<S, int32_t>) {
    return hn::LoadU(di, p);
  } else if constexpr (std::is_signed_v<S>) {
    return hn::PromoteTo(di, hn::LoadU(hn::Rebind<S, DI>(), p));
  } else {
    const hn::Rebind<uint32_t, DI> du;
    return hn::BitCast(di, hn::PromoteTo(du, hn::LoadU(hn::Rebind<S, DI>(), p)));
  }
}

// Raw x86 conversions of lanes already known to be in range or to be
// meant as "invalid" (NaN and values below -2^31 give 0x80000000): no
// overflow fix-up. The nearest form rounds in the current mode, which the
// exported functions set to nearest-even for the call.
#if HWY_TARGET != HWY_SCALAR
template <size_t N>
HWY_INLINE hn::Vec128<int32_t, N> CvtRaw(hn::Vec128<float, N> v, hwy::SizeTag<1> /*nearest*/) {
  return hn::Vec128<int32_t, N>{_mm_cvtps_epi32(v.raw)};
}
template <size_t N>
HWY_INLINE hn::Vec128<int32_t, N> CvtRaw(hn::Vec128<float, N> v, hwy::SizeTag<0> /*truncate*/) {
  return hn::Vec128<int32_t, N>{_mm_cvttps_epi32(v.raw)};
}
#if HWY_TARGET <= HWY_AVX2
HWY_INLINE hn::Vec256<int32_t> CvtRaw(hn::Vec256<float> v, hwy::SizeTag<1>) {
  return hn::Vec256<int32_t>{_mm256_cvtps_epi32(v.raw)};
}
HWY_INLINE hn::Vec256<int32_t> CvtRaw(hn::Vec256<float> v, hwy::SizeTag<0>) {
  return hn::Vec256<int32_t>{_mm256_cvttps_epi32(v.raw)};
}
#endif
#if HWY_TARGET <= HWY_AVX3
HWY_INLINE hn::Vec512<int32_t> CvtRaw(hn::Vec512<float> v, hwy::SizeTag<1>) {
  return hn::Vec512<int32_t>{_mm512_cvtps_epi32(v.raw)};
}
HWY_INLINE hn::Vec512<int32_t> CvtRaw(hn::Vec512<float> v, hwy::SizeTag<0>) {
  return hn::Vec512<int32_t>{_mm512_cvttps_epi32(v.raw)};
}
#endif
#endif

// Stores whole vectors; with kStream, non-temporal stores to an aligned
// destination (large outputs that would only evict the cache). Vectors of
// fewer than 16 bytes (narrowed results on the smaller targets) are stored
// normally: the streaming store always writes 16 bytes.
template <bool kStream, class D, class V, class T>
HWY_INLINE void Put(V v, D d, T* p) {
  if (kStream && hn::Lanes(d) * sizeof(T) >= 16) {
    hn::Stream(v, d, p);
  } else {
    hn::StoreU(v, d, p);
  }
}

// Outputs of at least this many bytes (well beyond the second-level cache,
// where the stored lines would only be read for ownership and evicted again)
// are written with non-temporal stores.
constexpr size_t kStreamBytes = size_t{8} << 20;

// Runs body(i0, i1, stream) over [0, n): for large outputs the part from
// the first 64-byte aligned destination element on is streamed.
template <class T, class Body>
HWY_INLINE void SplitForStreaming(T* dst, size_t n, Body&& body) {
  const uintptr_t a = reinterpret_cast<uintptr_t>(dst);
  if (n * sizeof(T) < kStreamBytes || a % sizeof(T) != 0) {
    body(0, n, std::false_type());
    return;
  }
  const size_t head = ((64 - a % 64) % 64) / sizeof(T);
  body(0, head, std::false_type());
  body(head, n, std::true_type());
  hwy::FlushStream();
}

template <class S, class D>
void WidenT(const S* HWY_RESTRICT src, D* HWY_RESTRICT dst, size_t n) {
  const hn::ScalableTag<D> d;
  const hn::Rebind<S, decltype(d)> ds;
  const size_t N = hn::Lanes(d);
  size_t i = 0;
  for (; i + N <= n; i += N) hn::StoreU(hn::PromoteTo(d, hn::LoadU(ds, src + i)), d, dst + i);
  scalar::widen(src + i, dst + i, n - i);
}

void WidenS8S16(const int8_t* s, int16_t* d, size_t n) { WidenT(s, d, n); }
void WidenS16S32(const int16_t* s, int32_t* d, size_t n) { WidenT(s, d, n); }
void WidenF32F64(const float* s, double* d, size_t n) { WidenT(s, d, n); }

// Integer -> single precision, optionally times a power of two. Four
// vectors per step keep the converter busy at short lengths.
template <bool kScale, bool kStream, class S>
size_t ToFloatRange(const S* HWY_RESTRICT src, float* HWY_RESTRICT dst, size_t i, size_t end, float factor) {
  const hn::ScalableTag<float> df;
  const hn::Rebind<int32_t, decltype(df)> di;
  const size_t N = hn::Lanes(df);
  const auto f = hn::Set(df, factor);
  auto one = [&](size_t k) HWY_ATTR {
    auto a = hn::ConvertTo(df, LoadAsI32(di, src + k));
    if (kScale) a = hn::Mul(a, f);
    Put<kStream>(a, df, dst + k);
  };
  for (; i + 4 * N <= end; i += 4 * N) {
    one(i);
    one(i + N);
    one(i + 2 * N);
    one(i + 3 * N);
  }
  for (; i + N <= end; i += N) one(i);
  return i;
}

template <bool kScale, class S>
void ToFloatLoop(const S* HWY_RESTRICT src, float* HWY_RESTRICT dst, size_t n, float factor) {
  SplitForStreaming(dst, n, [&](size_t i0, size_t i1, auto stream) {
    const size_t done = ToFloatRange<kScale, decltype(stream)::value>(src, dst, i0, i1, factor);
    scalar::to_floating(src + done, dst + done, i1 - done, factor);
  });
}

template <class S>
void ToFloatT(const S* src, float* dst, size_t n, float factor) {
  if (factor == 1.0f) {
    ToFloatLoop<false>(src, dst, n, factor);
  } else {
    ToFloatLoop<true>(src, dst, n, factor);
  }
}

void ToFloatS8(const int8_t* s, float* d, size_t n, float f) { ToFloatT(s, d, n, f); }
void ToFloatU8(const uint8_t* s, float* d, size_t n, float f) { ToFloatT(s, d, n, f); }
void ToFloatS16(const int16_t* s, float* d, size_t n, float f) { ToFloatT(s, d, n, f); }
void ToFloatU16(const uint16_t* s, float* d, size_t n, float f) { ToFloatT(s, d, n, f); }
void ToFloatS32(const int32_t* s, float* d, size_t n, float f) { ToFloatT(s, d, n, f); }

template <class S>
void ToDoubleT(const S* HWY_RESTRICT src, double* HWY_RESTRICT dst, size_t n, double factor) {
  const hn::ScalableTag<double> dd;
  const hn::Rebind<int32_t, decltype(dd)> di;
  const size_t N = hn::Lanes(dd);
  const auto f = hn::Set(dd, factor);
  size_t i = 0;
  for (; i + N <= n; i += N) {
    hn::StoreU(hn::Mul(hn::PromoteTo(dd, LoadAsI32(di, src + i)), f), dd, dst + i);
  }
  scalar::to_floating(src + i, dst + i, n - i, factor);
}

void ToDoubleS16(const int16_t* s, double* d, size_t n, double f) { ToDoubleT(s, d, n, f); }
void ToDoubleS32(const int32_t* s, double* d, size_t n, double f) { ToDoubleT(s, d, n, f); }

void F64ToF32Sat(const double* HWY_RESTRICT src, float* HWY_RESTRICT dst, size_t n) {
  const hn::ScalableTag<double> dd;
  const hn::Rebind<float, decltype(dd)> df;
  const size_t N = hn::Lanes(dd);
  const auto kmax = hn::Set(dd, 3.4028234663852886e38);
  const auto kmin = hn::Neg(kmax);
  size_t i = 0;
  for (; i + N <= n; i += N) {
    const auto x = hn::LoadU(dd, src + i);
    auto y = hn::IfThenElse(hn::Ge(x, kmax), kmax, x);
    y = hn::IfThenElse(hn::Ge(x, kmin), y, kmin);  // NaN fails the test too
    hn::StoreU(hn::DemoteTo(df, y), df, dst + i);
  }
  scalar::f64_to_f32_sat(src + i, dst + i, n - i);
}

// Single precision -> integer. On x86 the scaled value is only clamped from
// above (minps returns its second operand, so NaN passes through); the
// conversion gives 0x80000000 for NaN and for everything below -2^31, and
// the saturating narrowing maps that to the destination's minimum. 32-bit
// destinations, whose maximum a float cannot hold, and the portable target
// clamp in float (NaN taken as the minimum) and take 2^31 and above from a
// separate test.
template <class D, bool kNearest, bool kStream>
size_t F32ToIntRange(const float* HWY_RESTRICT src, D* HWY_RESTRICT dst, size_t i, size_t end, float factor) {
  const hn::ScalableTag<float> df;
  const hn::Rebind<int32_t, decltype(df)> di;
  const hn::Rebind<D, decltype(df)> dd;
  constexpr bool kWide = sizeof(D) == 4;
  const size_t N = hn::Lanes(df);
  const auto f = hn::Set(df, factor);
  const auto lo = hn::Set(df, static_cast<float>(std::numeric_limits<D>::min()));
  const auto hi = hn::Set(df, kWide ? 2147483520.0f : static_cast<float>(std::numeric_limits<D>::max()));
  const auto two31 = hn::Set(df, 2147483648.0f);
  const auto imax = hn::Set(di, std::numeric_limits<int32_t>::max());
  for (; i + N <= end; i += N) {
    if (kStream) hwy::Prefetch(src + i + 512);  // 2 KiB ahead on the streaming path
    const auto y = hn::Mul(hn::LoadU(df, src + i), f);
#if HWY_TARGET != HWY_SCALAR
    if constexpr (!kWide) {
      const auto r = CvtRaw(hn::Min(hi, y), hwy::SizeTag<kNearest ? 1 : 0>());
      Put<kStream>(hn::DemoteTo(dd, r), dd, dst + i);
      continue;
    }
#endif
    const auto c = hn::Min(hn::Max(hn::IfThenElse(hn::Eq(y, y), y, lo), lo), hi);
    auto r = kNearest ? hn::NearestInt(c) : hn::ConvertTo(di, c);
    if constexpr (kWide) {
      r = hn::IfThenElse(hn::RebindMask(di, hn::Ge(y, two31)), imax, r);
      Put<kStream>(r, di, reinterpret_cast<int32_t*>(dst) + i);
    } else {
      Put<kStream>(hn::DemoteTo(dd, r), dd, dst + i);
    }
  }
  return i;
}

template <class D, bool kNearest>
void F32ToIntLoop(const float* HWY_RESTRICT src, D* HWY_RESTRICT dst, size_t n, float factor) {
  size_t done = 0;
  SplitForStreaming(dst, n, [&](size_t i0, size_t i1, auto stream) {
    done = F32ToIntRange<D, kNearest, decltype(stream)::value>(src, dst, i0, i1, factor);
    // The unvectorised rest of a range goes through the twin.
    const int sf = 127 - static_cast<int>(scalar::float_bits(factor) >> 23);
    scalar::f_to_int(src + done, dst + done, i1 - done, sf, kNearest);
  });
}

template <class D>
void F32ToIntT(const float* src, D* dst, size_t n, float factor, bool nearest) {
  if (nearest) {
    F32ToIntLoop<D, true>(src, dst, n, factor);
  } else {
    F32ToIntLoop<D, false>(src, dst, n, factor);
  }
}

void F32ToS8(const float* s, int8_t* d, size_t n, float f, bool r) { F32ToIntT(s, d, n, f, r); }
void F32ToU8(const float* s, uint8_t* d, size_t n, float f, bool r) { F32ToIntT(s, d, n, f, r); }
void F32ToS16(const float* s, int16_t* d, size_t n, float f, bool r) { F32ToIntT(s, d, n, f, r); }
void F32ToU16(const float* s, uint16_t* d, size_t n, float f, bool r) { F32ToIntT(s, d, n, f, r); }
void F32ToS32(const float* s, int32_t* d, size_t n, float f, bool r) { F32ToIntT(s, d, n, f, r); }

// The integer scale rule on int32 lanes, saturated to [lo, hi]. Right
// shifts round to nearest even from the floor quotient and the remainder
// (no 64-bit intermediate needed); left shifts first clamp the source to one
// step beyond the range that survives the shift, so the shifted value cannot
// wrap. sf lies in -15..31.
template <class DI>
class ScaleS32 {
 public:
  using V = hn::Vec<DI>;
  ScaleS32(DI di, int sf, int32_t lo, int32_t hi)
      : sf_(sf),
        k_(sf < 0 ? -sf : 0),
        mask_(hn::Set(di, sf > 0 ? static_cast<int32_t>((uint32_t{1} << sf) - 1u) : 0)),
        half_(hn::Set(di, sf > 0 ? static_cast<int32_t>(uint32_t{1} << (sf - 1)) : 0)),
        one_(hn::Set(di, 1)),
        lo_(hn::Set(di, lo)),
        hi_(hn::Set(di, hi)),
        pre_lo_(hn::Set(di, (lo >> k_) - 1)),
        pre_hi_(hn::Set(di, (hi >> k_) + 1)) {}

  V operator()(V x) const {
    if (sf_ > 0) {
      const V q = hn::ShiftRightSame(x, sf_);
      const V rem = hn::And(x, mask_);
      const auto up = hn::Or(hn::Gt(rem, half_), hn::And(hn::Eq(rem, half_), hn::Eq(hn::And(q, one_), one_)));
      x = hn::Sub(q, hn::VecFromMask(DI(), up));
    } else if (sf_ < 0) {
      x = hn::ShiftLeftSame(hn::Min(hn::Max(x, pre_lo_), pre_hi_), k_);
    }
    return hn::Min(hn::Max(x, lo_), hi_);
  }

 private:
  int sf_, k_;
  V mask_, half_, one_, lo_, hi_, pre_lo_, pre_hi_;
};

void S32ToS16Scaled(const int32_t* HWY_RESTRICT src, int16_t* HWY_RESTRICT dst, size_t n, int sf) {
  const hn::ScalableTag<int32_t> di;
  const hn::Rebind<int16_t, decltype(di)> d16;
  const size_t N = hn::Lanes(di);
  const ScaleS32<decltype(di)> scale(di, sf, -32768, 32767);
  size_t i = 0;
  for (; i + N <= n; i += N) hn::StoreU(hn::DemoteTo(d16, scale(hn::LoadU(di, src + i))), d16, dst + i);
  scalar::s32_to_s16_scaled(src + i, dst + i, n - i, sf);
}

// Packed 24-bit data through byte shuffles within 128-bit blocks: four
// elements are twelve bytes. The loops read or write 16 bytes per group
// and so stop while at least 16 bytes of the packed array remain.
void Unpack24(const uint8_t* HWY_RESTRICT src, int32_t* HWY_RESTRICT dst, size_t n, bool is_signed) {
  size_t i = 0;
#if HWY_TARGET != HWY_SCALAR
  const hn::FixedTag<uint8_t, 16> d8;
  const hn::FixedTag<int32_t, 4> d32;
  alignas(16) static constexpr uint8_t kSpread[16] = {0, 1, 2, 0x80, 3, 4, 5, 0x80, 6, 7, 8, 0x80, 9, 10, 11, 0x80};
  const auto idx = hn::Load(d8, kSpread);
  for (; i + 6 <= n; i += 4) {
    auto v = hn::BitCast(d32, hn::TableLookupBytesOr0(hn::LoadU(d8, src + 3 * i), idx));
    if (is_signed) v = hn::ShiftRight<8>(hn::ShiftLeft<8>(v));
    hn::StoreU(v, d32, dst + i);
  }
#endif
  scalar::unpack24(src + 3 * i, dst + i, n - i, is_signed);
}

void S32To24Scaled(const int32_t* HWY_RESTRICT src, uint8_t* HWY_RESTRICT dst, size_t n, int sf, int32_t lo,
                   int32_t hi) {
  size_t i = 0;
#if HWY_TARGET != HWY_SCALAR
  const hn::FixedTag<uint8_t, 16> d8;
  const hn::FixedTag<int32_t, 4> d32;
  alignas(16) static constexpr uint8_t kGather[16] = {0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, 0x80, 0x80, 0x80, 0x80};
  const auto idx = hn::Load(d8, kGather);
  const ScaleS32<decltype(d32)> scale(d32, sf, lo, hi);
  for (; i + 6 <= n; i += 4) {
    const auto v = hn::BitCast(d8, scale(hn::LoadU(d32, src + i)));
    hn::StoreU(hn::TableLookupBytesOr0(v, idx), d8, dst + 3 * i);
  }
#endif
  scalar::s32_to_24_scaled(src + i, dst + 3 * i, n - i, sf, lo, hi);
}

// Half precision. The bit patterns are built with integer operations so
// that the result is the same on every target (with or without F16C) and
// independent of the rounding mode.
void F16ToF32(const uint16_t* HWY_RESTRICT src, float* HWY_RESTRICT dst, size_t n) {
  const hn::ScalableTag<float> df;
  const hn::Rebind<int32_t, decltype(df)> di;
  const size_t N = hn::Lanes(df);
  const auto k3ff = hn::Set(di, 0x3FF);
  const auto k1f = hn::Set(di, 0x1F);
  const auto kexp = hn::Set(di, 0x7F800000);
  const auto k112 = hn::Set(di, 112);
  const auto tiny = hn::Set(df, 0x1p-24f);
  const auto zero = hn::Zero(di);
  size_t i = 0;
  for (; i + N <= n; i += N) {
    const auto h = LoadAsI32(di, src + i);
    const auto sign = hn::ShiftLeft<16>(hn::And(h, hn::Set(di, 0x8000)));
    const auto e = hn::And(hn::ShiftRight<10>(h), k1f);
    const auto m = hn::And(h, k3ff);
    const auto normal = hn::Or(hn::ShiftLeft<23>(hn::Add(e, k112)), hn::ShiftLeft<13>(m));
    const auto special = hn::Or(kexp, hn::ShiftLeft<13>(m));
    const auto sub = hn::BitCast(di, hn::Mul(hn::ConvertTo(df, m), tiny));
    auto r = hn::IfThenElse(hn::Eq(e, k1f), special, normal);
    r = hn::IfThenElse(hn::Eq(e, zero), sub, r);
    hn::StoreU(hn::BitCast(df, hn::Or(r, sign)), df, dst + i);
  }
  scalar::f16_to_f32(src + i, dst + i, n - i);
}

template <bool kNearest>
void F32ToF16Loop(const float* HWY_RESTRICT src, uint16_t* HWY_RESTRICT dst, size_t n) {
  const hn::ScalableTag<int32_t> di;
  const hn::Rebind<uint16_t, decltype(di)> d16;
  const size_t N = hn::Lanes(di);
  const auto one = hn::Set(di, 1);
  size_t i = 0;
  for (; i + N <= n; i += N) {
    const auto u = hn::BitCast(di, hn::LoadU(hn::Rebind<float, decltype(di)>(), src + i));
    const auto sign = hn::And(hn::ShiftRight<16>(u), hn::Set(di, 0x8000));
    const auto a = hn::And(u, hn::Set(di, 0x7FFFFFFF));
    // Normal half results.
    auto hn_ = hn::ShiftRight<13>(hn::Sub(a, hn::Set(di, 0x38000000)));
    // Subnormal half results: the 24-bit significand shifted right by
    // 126 - exponent (14..24 for the lanes that use it; clamped so that
    // the other lanes shift by a defined amount).
    const auto m = hn::Or(hn::And(a, hn::Set(di, 0x7FFFFF)), hn::Set(di, 0x800000));
    const auto shift = hn::Min(hn::Max(hn::Sub(hn::Set(di, 126), hn::ShiftRight<23>(a)), hn::Set(di, 14)),
                               hn::Set(di, 24));
    auto hs = (m >> shift);
    if (kNearest) {
      const auto low = hn::And(a, hn::Set(di, 0x1FFF));
      const auto half = hn::Set(di, 0x1000);
      const auto up = hn::Or(hn::Gt(low, half), hn::And(hn::Eq(low, half), hn::Eq(hn::And(hn_, one), one)));
      hn_ = hn::Sub(hn_, hn::VecFromMask(di, up));
      const auto lows = hn::And(m, hn::Sub((one << shift), one));
      const auto halfs = (one << hn::Sub(shift, one));
      const auto ups = hn::Or(hn::Gt(lows, halfs), hn::And(hn::Eq(lows, halfs), hn::Eq(hn::And(hs, one), one)));
      hs = hn::Sub(hs, hn::VecFromMask(di, ups));
    }
    const auto nan = hn::Or(hn::Set(di, 0x7E00), hn::And(hn::ShiftRight<13>(a), hn::Set(di, 0x3FF)));
    const auto over = kNearest ? hn::Set(di, 0x7C00)
                               : hn::IfThenElse(hn::Eq(a, hn::Set(di, 0x7F800000)), hn::Set(di, 0x7C00),
                                                hn::Set(di, 0x7BFF));
    auto h = hn::IfThenElseZero(hn::Gt(a, hn::Set(di, 0x32FFFFFF)), hs);
    h = hn::IfThenElse(hn::Gt(a, hn::Set(di, 0x387FFFFF)), hn_, h);
    h = hn::IfThenElse(hn::Gt(a, hn::Set(di, 0x477FFFFF)), over, h);
    h = hn::IfThenElse(hn::Gt(a, hn::Set(di, 0x7F800000)), nan, h);
    hn::StoreU(hn::DemoteTo(d16, hn::Or(h, sign)), d16, dst + i);
  }
  scalar::f32_to_f16(src + i, dst + i, n - i, kNearest);
}

void F32ToF16(const float* src, uint16_t* dst, size_t n, bool nearest) {
  if (nearest) {
    F32ToF16Loop<true>(src, dst, n);
  } else {
    F32ToF16Loop<false>(src, dst, n);
  }
}

}  // namespace HWY_NAMESPACE
}  // namespace kels::kernels
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace kels::kernels {

HWY_EXPORT(WidenS8S16);
HWY_EXPORT(WidenS16S32);
HWY_EXPORT(WidenF32F64);
HWY_EXPORT(ToFloatS8);
HWY_EXPORT(ToFloatU8);
HWY_EXPORT(ToFloatS16);
HWY_EXPORT(ToFloatU16);
HWY_EXPORT(ToFloatS32);
HWY_EXPORT(ToDoubleS16);
HWY_EXPORT(ToDoubleS32);
HWY_EXPORT(F64ToF32Sat);
HWY_EXPORT(F32ToS8);
HWY_EXPORT(F32ToU8);
HWY_EXPORT(F32ToS16);
HWY_EXPORT(F32ToU16);
HWY_EXPORT(F32ToS32);
HWY_EXPORT(S32ToS16Scaled);
HWY_EXPORT(Unpack24);
HWY_EXPORT(S32To24Scaled);
HWY_EXPORT(F16ToF32);
HWY_EXPORT(F32ToF16);

void widen(const std::int8_t* s, std::int16_t* d, std::size_t n) { HWY_DYNAMIC_DISPATCH(WidenS8S16)(s, d, n); }
void widen(const std::int16_t* s, std::int32_t* d, std::size_t n) { HWY_DYNAMIC_DISPATCH(WidenS16S32)(s, d, n); }
void widen(const float* s, double* d, std::size_t n) { HWY_DYNAMIC_DISPATCH(WidenF32F64)(s, d, n); }
void to_float(const std::int8_t* s, float* d, std::size_t n, float f) { HWY_DYNAMIC_DISPATCH(ToFloatS8)(s, d, n, f); }
void to_float(const std::uint8_t* s, float* d, std::size_t n, float f) { HWY_DYNAMIC_DISPATCH(ToFloatU8)(s, d, n, f); }
void to_float(const std::int16_t* s, float* d, std::size_t n, float f) { HWY_DYNAMIC_DISPATCH(ToFloatS16)(s, d, n, f); }
void to_float(const std::uint16_t* s, float* d, std::size_t n, float f) { HWY_DYNAMIC_DISPATCH(ToFloatU16)(s, d, n, f); }
void to_float(const std::int32_t* s, float* d, std::size_t n, float f) { HWY_DYNAMIC_DISPATCH(ToFloatS32)(s, d, n, f); }
void to_double(const std::int16_t* s, double* d, std::size_t n, double f) {
  HWY_DYNAMIC_DISPATCH(ToDoubleS16)(s, d, n, f);
}
void to_double(const std::int32_t* s, double* d, std::size_t n, double f) {
  HWY_DYNAMIC_DISPATCH(ToDoubleS32)(s, d, n, f);
}
void f64_to_f32_sat(const double* s, float* d, std::size_t n) { HWY_DYNAMIC_DISPATCH(F64ToF32Sat)(s, d, n); }

namespace {
// The vector kernels multiply by 2^-sf as a normal float; scale factors
// outside -127..126 (whose results are 0 or saturated for nearly every
// input, but not all) take the exact scalar path.
template <class D, class K>
void f32_to_int_dispatch(K kernel, const float* s, D* d, std::size_t n, int sf, bool nearest) {
  if (sf < -127 || sf > 126) {
    scalar::f_to_int(s, d, n, sf, nearest);
    return;
  }
  kernel(s, d, n, scalar::bits_float(static_cast<std::uint32_t>(127 - sf) << 23), nearest);
}
}  // namespace

void f32_to_int(const float* s, std::int8_t* d, std::size_t n, int sf, bool r) {
  f32_to_int_dispatch(HWY_DYNAMIC_DISPATCH(F32ToS8), s, d, n, sf, r);
}
void f32_to_int(const float* s, std::uint8_t* d, std::size_t n, int sf, bool r) {
  f32_to_int_dispatch(HWY_DYNAMIC_DISPATCH(F32ToU8), s, d, n, sf, r);
}
void f32_to_int(const float* s, std::int16_t* d, std::size_t n, int sf, bool r) {
  f32_to_int_dispatch(HWY_DYNAMIC_DISPATCH(F32ToS16), s, d, n, sf, r);
}
void f32_to_int(const float* s, std::uint16_t* d, std::size_t n, int sf, bool r) {
  f32_to_int_dispatch(HWY_DYNAMIC_DISPATCH(F32ToU16), s, d, n, sf, r);
}
void f32_to_int(const float* s, std::int32_t* d, std::size_t n, int sf, bool r) {
  f32_to_int_dispatch(HWY_DYNAMIC_DISPATCH(F32ToS32), s, d, n, sf, r);
}
void s32_to_s16_scaled(const std::int32_t* s, std::int16_t* d, std::size_t n, int sf) {
  HWY_DYNAMIC_DISPATCH(S32ToS16Scaled)(s, d, n, sf);
}
void unpack24(const std::uint8_t* s, std::int32_t* d, std::size_t n, bool is_signed) {
  HWY_DYNAMIC_DISPATCH(Unpack24)(s, d, n, is_signed);
}
void s32_to_24_scaled(const std::int32_t* s, std::uint8_t* d, std::size_t n, int sf, std::int32_t lo,
                      std::int32_t hi) {
  HWY_DYNAMIC_DISPATCH(S32To24Scaled)(s, d, n, sf, lo, hi);
}
void f16_to_f32(const std::uint16_t* s, float* d, std::size_t n) { HWY_DYNAMIC_DISPATCH(F16ToF32)(s, d, n); }
void f32_to_f16(const float* s, std::uint16_t* d, std::size_t n, bool nearest) {
  HWY_DYNAMIC_DISPATCH(F32ToF16)(s, d, n, nearest);
}

}  // namespace kels::kernels
#endif  // HWY_ONCE
