// G.711 encoder kernels, compiled once per SIMD target by Highway. Each lane
// runs the encoder's segment search as a sum of comparisons and extracts the
// mantissa with a per-lane shift, so no table lookups are needed.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "kernels/speech.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep
#include "hwy/highway.h"

#include "kernels/speech.h"

HWY_BEFORE_NAMESPACE();
namespace kels::kernels {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET != HWY_SCALAR

template <class D, class V>
HWY_INLINE void StoreCodes(D d, V codes, uint8_t* HWY_RESTRICT dst) {
  const hn::Rebind<uint8_t, D> du8;
  hn::StoreU(hn::DemoteTo(du8, codes), du8, dst);
}

void MuLawEncode(const int16_t* HWY_RESTRICT src, uint8_t* HWY_RESTRICT dst, size_t n) {
  const hn::ScalableTag<int16_t> d;
  const size_t N = hn::Lanes(d);
  size_t i = 0;
  for (; i + N <= n; i += N) {
    const auto x = hn::LoadU(d, src + i);
    const auto neg = hn::ShiftRight<15>(x);  // -1 for negative samples
    const auto m = hn::Min(hn::Add(hn::ShiftRight<2>(hn::Xor(x, neg)), hn::Set(d, 33)), hn::Set(d, 8191));
    // s = 1 + number of thresholds 64, 128, ..., 4096 that m reaches.
    auto s = hn::Set(d, 1);
    for (int j = 0; j < 7; ++j) {
      s = hn::Sub(s, hn::VecFromMask(d, hn::Gt(m, hn::Set(d, static_cast<int16_t>((64 << j) - 1)))));
    }
    const auto mant = hn::And(hn::Shr(m, s), hn::Set(d, 15));
    auto code = hn::Sub(hn::Sub(hn::Set(d, 143), hn::ShiftLeft<4>(s)), mant);
    code = hn::Or(code, hn::AndNot(neg, hn::Set(d, 0x80)));
    StoreCodes(d, code, dst + i);
  }
  scalar::mulaw_encode(src + i, dst + i, n - i);
}

void ALawEncode(const int16_t* HWY_RESTRICT src, uint8_t* HWY_RESTRICT dst, size_t n) {
  const hn::ScalableTag<int16_t> d;
  const size_t N = hn::Lanes(d);
  size_t i = 0;
  for (; i + N <= n; i += N) {
    const auto v0 = hn::ShiftRight<3>(hn::LoadU(d, src + i));
    const auto neg = hn::ShiftRight<15>(v0);
    const auto v = hn::Xor(v0, neg);  // one's complement of negatives
    const auto mask = hn::Xor(hn::Set(d, 0xD5), hn::And(neg, hn::Set(d, 0x80)));
    // Segment: number of segment ends 31, 63, ..., 2047 below v (v <= 4095).
    auto s = hn::Zero(d);
    for (int j = 0; j < 7; ++j) {
      s = hn::Sub(s, hn::VecFromMask(d, hn::Gt(v, hn::Set(d, static_cast<int16_t>((32 << j) - 1)))));
    }
    const auto shift = hn::Max(s, hn::Set(d, 1));
    const auto mant = hn::And(hn::Shr(v, shift), hn::Set(d, 15));
    const auto code = hn::Xor(hn::Or(hn::ShiftLeft<4>(s), mant), mask);
    StoreCodes(d, code, dst + i);
  }
  scalar::alaw_encode(src + i, dst + i, n - i);
}

#else

void MuLawEncode(const int16_t* src, uint8_t* dst, size_t n) { scalar::mulaw_encode(src, dst, n); }
void ALawEncode(const int16_t* src, uint8_t* dst, size_t n) { scalar::alaw_encode(src, dst, n); }

#endif

}  // namespace HWY_NAMESPACE
}  // namespace kels::kernels
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace kels::kernels {

HWY_EXPORT(MuLawEncode);
HWY_EXPORT(ALawEncode);

void mulaw_encode(const std::int16_t* src, std::uint8_t* dst, std::size_t n) {
  HWY_DYNAMIC_DISPATCH(MuLawEncode)(src, dst, n);
}
void alaw_encode(const std::int16_t* src, std::uint8_t* dst, std::size_t n) {
  HWY_DYNAMIC_DISPATCH(ALawEncode)(src, dst, n);
}

}  // namespace kels::kernels
#endif  // HWY_ONCE
