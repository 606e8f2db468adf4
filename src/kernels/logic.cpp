// Bitwise and shift kernels, compiled once per SIMD target by Highway and
// reached through dynamic dispatch. No HWY_RESTRICT: the in-place forms
// pass the same array as source and destination.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "kernels/logic.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep
#include "hwy/highway.h"

#include "kernels/logic.h"

HWY_BEFORE_NAMESPACE();
namespace kels::kernels {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

template <BitOp kOp, class V>
HWY_INLINE V Apply(V a, V b) {
  if constexpr (kOp == BitOp::kAnd) return hn::And(a, b);
  if constexpr (kOp == BitOp::kOr) return hn::Or(a, b);
  if constexpr (kOp == BitOp::kXor) return hn::Xor(a, b);
  if constexpr (kOp == BitOp::kNot) return hn::Not(a);
}

// Two vectors per step; a null b means the constant operand.
template <BitOp kOp, class T>
void BitLoop(const T* a, const T* b, T val, T* dst, size_t n) {
  const hn::ScalableTag<T> d;
  const size_t N = hn::Lanes(d);
  const auto vc = hn::Set(d, val);
  size_t i = 0;
  if (b != nullptr) {
    for (; i + 2 * N <= n; i += 2 * N) {
      const auto x0 = Apply<kOp>(hn::LoadU(d, a + i), hn::LoadU(d, b + i));
      const auto x1 = Apply<kOp>(hn::LoadU(d, a + i + N), hn::LoadU(d, b + i + N));
      hn::StoreU(x0, d, dst + i);
      hn::StoreU(x1, d, dst + i + N);
    }
  } else {
    for (; i + 2 * N <= n; i += 2 * N) {
      const auto x0 = Apply<kOp>(hn::LoadU(d, a + i), vc);
      const auto x1 = Apply<kOp>(hn::LoadU(d, a + i + N), vc);
      hn::StoreU(x0, d, dst + i);
      hn::StoreU(x1, d, dst + i + N);
    }
  }
  scalar::bit_op(kOp, a + i, b ? b + i : nullptr, val, dst + i, n - i);
}

template <class T>
void BitOpT(int op, const T* a, const T* b, T val, T* dst, size_t n) {
  switch (static_cast<BitOp>(op)) {
    case BitOp::kAnd: return BitLoop<BitOp::kAnd>(a, b, val, dst, n);
    case BitOp::kOr: return BitLoop<BitOp::kOr>(a, b, val, dst, n);
    case BitOp::kXor: return BitLoop<BitOp::kXor>(a, b, val, dst, n);
    default: return BitLoop<BitOp::kNot>(a, b, val, dst, n);
  }
}

void BitOpU8(int op, const uint8_t* a, const uint8_t* b, uint8_t v, uint8_t* d, size_t n) { BitOpT(op, a, b, v, d, n); }
void BitOpU16(int op, const uint16_t* a, const uint16_t* b, uint16_t v, uint16_t* d, size_t n) {
  BitOpT(op, a, b, v, d, n);
}
void BitOpU32(int op, const uint32_t* a, const uint32_t* b, uint32_t v, uint32_t* d, size_t n) {
  BitOpT(op, a, b, v, d, n);
}

template <bool kLeft, class T>
void ShiftT(const T* src, T* dst, size_t n, int count) {
  const hn::ScalableTag<T> d;
  const size_t N = hn::Lanes(d);
  size_t i = 0;
  for (; i + N <= n; i += N) {
    const auto v = hn::LoadU(d, src + i);
    hn::StoreU(kLeft ? hn::ShiftLeftSame(v, count) : hn::ShiftRightSame(v, count), d, dst + i);
  }
  if (kLeft) {
    scalar::shift_left(src + i, dst + i, n - i, count);
  } else {
    scalar::shift_right(src + i, dst + i, n - i, count);
  }
}

void ShlU8(const uint8_t* s, uint8_t* d, size_t n, int c) { ShiftT<true>(s, d, n, c); }
void ShlU16(const uint16_t* s, uint16_t* d, size_t n, int c) { ShiftT<true>(s, d, n, c); }
void ShlU32(const uint32_t* s, uint32_t* d, size_t n, int c) { ShiftT<true>(s, d, n, c); }
void ShrU8(const uint8_t* s, uint8_t* d, size_t n, int c) { ShiftT<false>(s, d, n, c); }
void ShrU16(const uint16_t* s, uint16_t* d, size_t n, int c) { ShiftT<false>(s, d, n, c); }
void ShrS16(const int16_t* s, int16_t* d, size_t n, int c) { ShiftT<false>(s, d, n, c); }
void ShrS32(const int32_t* s, int32_t* d, size_t n, int c) { ShiftT<false>(s, d, n, c); }

}  // namespace HWY_NAMESPACE
}  // namespace kels::kernels
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace kels::kernels {

HWY_EXPORT(BitOpU8);
HWY_EXPORT(BitOpU16);
HWY_EXPORT(BitOpU32);
HWY_EXPORT(ShlU8);
HWY_EXPORT(ShlU16);
HWY_EXPORT(ShlU32);
HWY_EXPORT(ShrU8);
HWY_EXPORT(ShrU16);
HWY_EXPORT(ShrS16);
HWY_EXPORT(ShrS32);

void bit_op(BitOp op, const std::uint8_t* a, const std::uint8_t* b, std::uint8_t v, std::uint8_t* d, std::size_t n) {
  HWY_DYNAMIC_DISPATCH(BitOpU8)(static_cast<int>(op), a, b, v, d, n);
}
void bit_op(BitOp op, const std::uint16_t* a, const std::uint16_t* b, std::uint16_t v, std::uint16_t* d,
            std::size_t n) {
  HWY_DYNAMIC_DISPATCH(BitOpU16)(static_cast<int>(op), a, b, v, d, n);
}
void bit_op(BitOp op, const std::uint32_t* a, const std::uint32_t* b, std::uint32_t v, std::uint32_t* d,
            std::size_t n) {
  HWY_DYNAMIC_DISPATCH(BitOpU32)(static_cast<int>(op), a, b, v, d, n);
}
void shift_left(const std::uint8_t* s, std::uint8_t* d, std::size_t n, int c) { HWY_DYNAMIC_DISPATCH(ShlU8)(s, d, n, c); }
void shift_left(const std::uint16_t* s, std::uint16_t* d, std::size_t n, int c) {
  HWY_DYNAMIC_DISPATCH(ShlU16)(s, d, n, c);
}
void shift_left(const std::uint32_t* s, std::uint32_t* d, std::size_t n, int c) {
  HWY_DYNAMIC_DISPATCH(ShlU32)(s, d, n, c);
}
void shift_right(const std::uint8_t* s, std::uint8_t* d, std::size_t n, int c) { HWY_DYNAMIC_DISPATCH(ShrU8)(s, d, n, c); }
void shift_right(const std::uint16_t* s, std::uint16_t* d, std::size_t n, int c) {
  HWY_DYNAMIC_DISPATCH(ShrU16)(s, d, n, c);
}
void shift_right(const std::int16_t* s, std::int16_t* d, std::size_t n, int c) {
  HWY_DYNAMIC_DISPATCH(ShrS16)(s, d, n, c);
}
void shift_right(const std::int32_t* s, std::int32_t* d, std::size_t n, int c) {
  HWY_DYNAMIC_DISPATCH(ShrS32)(s, d, n, c);
}

}  // namespace kels::kernels
#endif  // HWY_ONCE
