// Elementwise arithmetic kernels, compiled once per SIMD target by Highway.
//
// The scaled 16-bit kernels work in two ways. Where the result can be formed
// in 16-bit lanes without losing bits (saturating add/sub for scale factor
// 0, the rounded half-sum for scale factor 1) they run at full width.
// Otherwise each group of elements is widened to 32-bit lanes, the exact
// result and its rounding terms are formed there, and the lanes are packed
// back with saturation; that is the scalar rule, lane by lane.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "kernels/arith.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep
#include "hwy/highway.h"

#include "kernels/arith.h"

HWY_BEFORE_NAMESPACE();
namespace kels::kernels {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// ---- Full-width 16-bit paths.

// Scale factor 0 of add and sub: the saturating lane operations are the rule.
template <class T>
size_t SatAddSub16(ArithOp op, const T* x, bool xc, const T* y, bool yc, T* dst, size_t n) {
  const hn::ScalableTag<T> d;
  const size_t N = hn::Lanes(d);
  const auto xs = hn::Set(d, x[0]);
  const auto ys = hn::Set(d, y[0]);
  size_t i = 0;
  for (; i + N <= n; i += N) {
    const auto a = xc ? xs : hn::LoadU(d, x + i);
    const auto b = yc ? ys : hn::LoadU(d, y + i);
    hn::StoreU(op == ArithOp::add ? hn::SaturatedAdd(a, b) : hn::SaturatedSub(a, b), d, dst + i);
  }
  return i;
}

// Scale factor 1 of add (both types) and of signed sub, without widening.
// AverageRound gives (a + b + 1) >> 1 on unsigned lanes: the floor of the
// half-sum plus one when the sum is odd. Ties to even take that one back
// when the result is odd (the sum is odd exactly when a ^ b is odd).
// Signed lanes are biased by 0x8000 into unsigned ones; for a - b the
// right operand enters as ~b (= -b - 1), whose extra -1 cancels the +1, so
// the average is the floor and an odd difference rounds up when the floor
// is odd (saturating: 32767 - (-32768) gives 32767).
template <class T>
size_t HalfAddSub16(ArithOp op, const T* x, bool xc, const T* y, bool yc, T* dst, size_t n) {
  const hn::ScalableTag<T> d;
  const hn::RebindToUnsigned<decltype(d)> du;
  const size_t N = hn::Lanes(d);
  const auto xs = hn::Set(d, x[0]);
  const auto ys = hn::Set(d, y[0]);
  const auto one = hn::Set(du, uint16_t{1});
  const auto bias = hn::Set(du, uint16_t{std::is_signed_v<T> ? 0x8000 : 0});
  const auto nbias = hn::Set(du, uint16_t{0x7FFF});  // ~b ^ 0x8000 == b ^ 0x7FFF
  size_t i = 0;
  for (; i + N <= n; i += N) {
    const auto a = hn::BitCast(du, xc ? xs : hn::LoadU(d, x + i));
    const auto b = hn::BitCast(du, yc ? ys : hn::LoadU(d, y + i));
    const auto odd = hn::And(hn::Xor(a, b), one);
    if (op == ArithOp::add) {
      const auto avg = hn::AverageRound(hn::Xor(a, bias), hn::Xor(b, bias));
      const auto r = hn::Sub(avg, hn::And(odd, avg));
      hn::StoreU(hn::BitCast(d, hn::Xor(r, bias)), d, dst + i);
    } else {
      const auto fl = hn::BitCast(d, hn::Xor(hn::AverageRound(hn::Xor(a, bias), hn::Xor(b, nbias)), bias));
      const auto up = hn::BitCast(d, hn::And(odd, hn::BitCast(du, fl)));
      hn::StoreU(hn::SaturatedAdd(fl, up), d, dst + i);
    }
  }
  return i;
}

// ---- Widened paths: 32-bit lanes hold the exact result.

// Signed 32-bit lanes: every add/sub result and every signed 16-bit product
// fits, with room for the rounding terms (|r| <= 2^30 + 2^29).
template <ScaleMode M, class D32, class V>
HWY_INLINE V ScaleI32(D32 d, V r, int shift) {
  if constexpr (M == ScaleMode::sat) {
    return r;
  } else if constexpr (M == ScaleMode::half) {
    return hn::ShiftRight<1>(hn::Add(r, hn::And(hn::ShiftRight<1>(r), hn::Set(d, 1))));
  } else if constexpr (M == ScaleMode::round) {
    const auto bias = hn::Set(d, (1 << (shift - 1)) - 1);
    const auto odd = hn::And(hn::ShiftRightSame(r, shift), hn::Set(d, 1));
    return hn::ShiftRightSame(hn::Add(hn::Add(r, bias), odd), shift);
  } else if constexpr (M == ScaleMode::lshift) {
    // Any |r| >= 32769 saturates for every shift >= 1; clamping there first
    // keeps r << 15 inside 32 bits.
    const auto lim = hn::Set(d, 32769);
    return hn::ShiftLeftSame(hn::Min(hn::Max(r, hn::Neg(lim)), lim), shift);
  } else {
    const auto one = hn::Set(d, 1);
    return hn::ShiftLeft<16>(hn::Min(hn::Max(r, hn::Neg(one)), one));
  }
}

// Unsigned 32-bit lanes, for unsigned 16-bit products (up to 0xFFFE0001,
// which does not fit a signed lane). Rounding uses t = r >> (shift - 1):
// the result is (t >> 1) + (t & 1 & (sticky | t >> 1)), where sticky says
// whether any bit below t's lowest is set; no step can overflow.
template <ScaleMode M, class D32, class V>
HWY_INLINE V ScaleU32(D32 d, V r, int shift) {
  const auto one = hn::Set(d, 1u);
  if constexpr (M == ScaleMode::sat) {
    return hn::Min(r, hn::Set(d, 65535u));
  } else if constexpr (M == ScaleMode::half || M == ScaleMode::round) {
    const int s = M == ScaleMode::half ? 1 : shift;
    const auto t = s == 1 ? r : hn::ShiftRightSame(r, s - 1);
    const auto below = hn::And(r, hn::Set(d, (s == 1 ? 0u : (~0u >> (33 - s)))));
    const auto sticky = hn::Min(below, one);
    const auto q = hn::ShiftRight<1>(t);
    const auto up = hn::And(hn::And(t, hn::Or(sticky, q)), one);
    return hn::Min(hn::Add(q, up), hn::Set(d, 65535u));
  } else if constexpr (M == ScaleMode::lshift) {
    return hn::Min(hn::ShiftLeftSame(hn::Min(r, hn::Set(d, 65536u)), shift), hn::Set(d, 65535u));
  } else {
    return hn::Mul(hn::Min(r, one), hn::Set(d, 65535u));
  }
}

template <ScaleMode M, class T>
size_t Widened16(ArithOp op, int shift, const T* x, bool xc, const T* y, bool yc, T* dst, size_t n) {
  const hn::ScalableTag<int32_t> di;
  const hn::Rebind<T, decltype(di)> dh;
  const size_t N = hn::Lanes(di);
  size_t i = 0;
  if constexpr (std::is_unsigned_v<T>) {
    if (op == ArithOp::mul) {
      const hn::RebindToUnsigned<decltype(di)> du;
      const auto xs = hn::Set(du, static_cast<uint32_t>(x[0]));
      const auto ys = hn::Set(du, static_cast<uint32_t>(y[0]));
      for (; i + N <= n; i += N) {
        const auto a = xc ? xs : hn::PromoteTo(du, hn::LoadU(dh, x + i));
        const auto b = yc ? ys : hn::PromoteTo(du, hn::LoadU(dh, y + i));
        const auto r = ScaleU32<M>(du, hn::Mul(a, b), shift);
        hn::StoreU(hn::DemoteTo(dh, hn::BitCast(di, r)), dh, dst + i);
      }
      return i;
    }
  }
  const auto xs = hn::Set(di, static_cast<int32_t>(x[0]));
  const auto ys = hn::Set(di, static_cast<int32_t>(y[0]));
  for (; i + N <= n; i += N) {
    const auto a = xc ? xs : hn::PromoteTo(di, hn::LoadU(dh, x + i));
    const auto b = yc ? ys : hn::PromoteTo(di, hn::LoadU(dh, y + i));
    const auto r = op == ArithOp::add ? hn::Add(a, b) : (op == ArithOp::sub ? hn::Sub(a, b) : hn::Mul(a, b));
    hn::StoreU(hn::DemoteTo(dh, ScaleI32<M>(di, r, shift)), dh, dst + i);
  }
  return i;
}

#if HWY_TARGET != HWY_SCALAR
// Signed 16-bit data at full width: each vector of elements becomes two
// vectors of 32-bit lanes by interleaving with the sign (add, sub) or by
// interleaving the low and high halves of the 16x16 products (mul). The
// interleave works on the lower and upper halves of each 128-bit block and
// the saturating pack joins them back block by block, which restores the
// element order.
template <ScaleMode M>
size_t ZipS16(ArithOp op, int shift, const int16_t* x, bool xc, const int16_t* y, bool yc, int16_t* dst,
              size_t n) {
  const hn::ScalableTag<int16_t> d;
  const hn::RepartitionToWide<decltype(d)> dw;
  const size_t N = hn::Lanes(d);
  const auto xs = hn::Set(d, x[0]);
  const auto ys = hn::Set(d, y[0]);
  size_t i = 0;
  for (; i + N <= n; i += N) {
    const auto a = xc ? xs : hn::LoadU(d, x + i);
    const auto b = yc ? ys : hn::LoadU(d, y + i);
    hn::Vec<decltype(dw)> r0, r1;
    if (op == ArithOp::mul) {
      const auto lo = hn::Mul(a, b);
      const auto hi = hn::MulHigh(a, b);
      r0 = hn::ZipLower(dw, lo, hi);
      r1 = hn::ZipUpper(dw, lo, hi);
    } else {
      const auto sa = hn::ShiftRight<15>(a);
      const auto sb = hn::ShiftRight<15>(b);
      const auto a0 = hn::ZipLower(dw, a, sa), a1 = hn::ZipUpper(dw, a, sa);
      const auto b0 = hn::ZipLower(dw, b, sb), b1 = hn::ZipUpper(dw, b, sb);
      r0 = op == ArithOp::add ? hn::Add(a0, b0) : hn::Sub(a0, b0);
      r1 = op == ArithOp::add ? hn::Add(a1, b1) : hn::Sub(a1, b1);
    }
    hn::StoreU(hn::ReorderDemote2To(d, ScaleI32<M>(dw, r0, shift), ScaleI32<M>(dw, r1, shift)), d, dst + i);
  }
  return i;
}
#endif

template <ScaleMode M, class T>
size_t General16(ArithOp op, int shift, const T* x, bool xc, const T* y, bool yc, T* dst, size_t n) {
#if HWY_TARGET != HWY_SCALAR
  if constexpr (std::is_same_v<T, int16_t>) return ZipS16<M>(op, shift, x, xc, y, yc, dst, n);
#endif
  return Widened16<M>(op, shift, x, xc, y, yc, dst, n);
}

template <class T>
void Scaled16(ArithOp op, ScaleMode mode, int shift, const T* x, bool xc, const T* y, bool yc,
              T* dst, size_t n) {
  size_t i = 0;
  const bool addsub = op == ArithOp::add || op == ArithOp::sub;
  if (mode == ScaleMode::sat && addsub) {
    i = SatAddSub16(op, x, xc, y, yc, dst, n);
  } else if (mode == ScaleMode::half && (op == ArithOp::add || (op == ArithOp::sub && std::is_signed_v<T>))) {
    i = HalfAddSub16(op, x, xc, y, yc, dst, n);
  } else {
    switch (mode) {
      case ScaleMode::sat: i = General16<ScaleMode::sat>(op, shift, x, xc, y, yc, dst, n); break;
      case ScaleMode::half: i = General16<ScaleMode::half>(op, shift, x, xc, y, yc, dst, n); break;
      case ScaleMode::round: i = General16<ScaleMode::round>(op, shift, x, xc, y, yc, dst, n); break;
      case ScaleMode::lshift: i = General16<ScaleMode::lshift>(op, shift, x, xc, y, yc, dst, n); break;
      case ScaleMode::sign: i = General16<ScaleMode::sign>(op, shift, x, xc, y, yc, dst, n); break;
    }
  }
  scalar::scaled16(op, mode, shift, xc ? x : x + i, xc, yc ? y : y + i, yc, dst + i, n - i);
}

void ScaledS16(ArithOp op, ScaleMode mode, int shift, const int16_t* x, bool xc, const int16_t* y,
               bool yc, int16_t* dst, size_t n) {
  Scaled16(op, mode, shift, x, xc, y, yc, dst, n);
}
void ScaledU16(ArithOp op, ScaleMode mode, int shift, const uint16_t* x, bool xc, const uint16_t* y,
               bool yc, uint16_t* dst, size_t n) {
  Scaled16(op, mode, shift, x, xc, y, yc, dst, n);
}

// ---- Float kernels.

template <ArithOp OP, class T>
bool BinaryFloatOp(const T* x, bool xc, const T* y, bool yc, T* dst, size_t n) {
  const hn::ScalableTag<T> d;
  const size_t N = hn::Lanes(d);
  const auto xs = hn::Set(d, x[0]);
  const auto ys = hn::Set(d, y[0]);
  const auto zero = hn::Zero(d);
  auto zeros = hn::Zero(d);  // lanes that met a zero divisor are all ones
  size_t i = 0;
  auto apply = [&](auto a, auto b) {
    if constexpr (OP == ArithOp::add) return hn::Add(a, b);
    else if constexpr (OP == ArithOp::sub) return hn::Sub(a, b);
    else if constexpr (OP == ArithOp::mul) return hn::Mul(a, b);
    else return hn::Div(a, b);
  };
  for (; i + 2 * N <= n; i += 2 * N) {
    const auto a0 = xc ? xs : hn::LoadU(d, x + i);
    const auto a1 = xc ? xs : hn::LoadU(d, x + i + N);
    const auto b0 = yc ? ys : hn::LoadU(d, y + i);
    const auto b1 = yc ? ys : hn::LoadU(d, y + i + N);
    if constexpr (OP == ArithOp::div) {
      zeros = hn::Or(zeros, hn::VecFromMask(d, hn::Eq(b0, zero)));
      zeros = hn::Or(zeros, hn::VecFromMask(d, hn::Eq(b1, zero)));
    }
    hn::StoreU(apply(a0, b0), d, dst + i);
    hn::StoreU(apply(a1, b1), d, dst + i + N);
  }
  bool met_zero = OP == ArithOp::div && !hn::AllFalse(d, hn::MaskFromVec(zeros));
  if (i < n) {
    met_zero |= scalar::binary_float(OP, xc ? x : x + i, xc, yc ? y : y + i, yc, dst + i, n - i);
  }
  return met_zero;
}

template <class T>
bool BinaryFloat(ArithOp op, const T* x, bool xc, const T* y, bool yc, T* dst, size_t n) {
  switch (op) {
    case ArithOp::add: return BinaryFloatOp<ArithOp::add>(x, xc, y, yc, dst, n);
    case ArithOp::sub: return BinaryFloatOp<ArithOp::sub>(x, xc, y, yc, dst, n);
    case ArithOp::mul: return BinaryFloatOp<ArithOp::mul>(x, xc, y, yc, dst, n);
    default: return BinaryFloatOp<ArithOp::div>(x, xc, y, yc, dst, n);
  }
}

bool BinaryF32(ArithOp op, const float* x, bool xc, const float* y, bool yc, float* dst, size_t n) {
  return BinaryFloat(op, x, xc, y, yc, dst, n);
}
bool BinaryF64(ArithOp op, const double* x, bool xc, const double* y, bool yc, double* dst, size_t n) {
  return BinaryFloat(op, x, xc, y, yc, dst, n);
}

// Complex product on interleaved lanes: with x = (a, b) and y = (c, d) per
// pair, x * (c, c) gives (ac, bc) and swap(x) * (-d, d) gives (-bd, ad),
// and the two are added. Negating a factor negates the rounded product
// exactly, so each part is the scalar twin's ac - bd and ad + bc bit for bit.
template <class T>
void CMul(const T* x, bool xc, const T* y, size_t n, T* dst) {
  const hn::ScalableTag<T> d;
  const size_t N = hn::Lanes(d);
  size_t i = 0;
#if HWY_TARGET != HWY_SCALAR
  alignas(16) T pair[16 / sizeof(T)];
  for (size_t k = 0; k < 16 / sizeof(T); k += 2) {
    pair[k] = x[0];
    pair[k + 1] = x[1];
  }
  const auto xpair = hn::LoadDup128(d, pair);
  const auto neg_even = hn::OddEven(hn::Zero(d), hn::Set(d, T(-0.0)));  // sign bit in even lanes
  const size_t total = 2 * n;
  for (; i + N <= total; i += N) {
    const auto a = xc ? xpair : hn::LoadU(d, x + i);
    const auto b = hn::LoadU(d, y + i);
    const auto swapped = [&] {
      if constexpr (sizeof(T) == 4) return hn::Shuffle2301(a);
      else return hn::Shuffle01(a);
    }();
    const auto p1 = hn::Mul(a, hn::DupEven(b));
    const auto p2 = hn::Mul(swapped, hn::Xor(hn::DupOdd(b), neg_even));
    hn::StoreU(hn::Add(p1, p2), d, dst + i);
  }
  i /= 2;
#else
  (void)N;
#endif
  scalar::cmul(xc ? x : x + 2 * i, xc, y + 2 * i, n - i, dst + 2 * i);
}

void CMulF32(const float* x, bool xc, const float* y, size_t n, float* dst) { CMul(x, xc, y, n, dst); }
void CMulF64(const double* x, bool xc, const double* y, size_t n, double* dst) { CMul(x, xc, y, n, dst); }

}  // namespace HWY_NAMESPACE
}  // namespace kels::kernels
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace kels::kernels {

HWY_EXPORT(ScaledS16);
HWY_EXPORT(ScaledU16);
HWY_EXPORT(BinaryF32);
HWY_EXPORT(BinaryF64);
HWY_EXPORT(CMulF32);
HWY_EXPORT(CMulF64);

void scaled_s16(ArithOp op, ScaleMode mode, int shift, const std::int16_t* x, bool xc,
                const std::int16_t* y, bool yc, std::int16_t* dst, std::size_t n) {
  HWY_DYNAMIC_DISPATCH(ScaledS16)(op, mode, shift, x, xc, y, yc, dst, n);
}
void scaled_u16(ArithOp op, ScaleMode mode, int shift, const std::uint16_t* x, bool xc,
                const std::uint16_t* y, bool yc, std::uint16_t* dst, std::size_t n) {
  HWY_DYNAMIC_DISPATCH(ScaledU16)(op, mode, shift, x, xc, y, yc, dst, n);
}
bool binary_f32(ArithOp op, const float* x, bool xc, const float* y, bool yc, float* dst, std::size_t n) {
  return HWY_DYNAMIC_DISPATCH(BinaryF32)(op, x, xc, y, yc, dst, n);
}
bool binary_f64(ArithOp op, const double* x, bool xc, const double* y, bool yc, double* dst,
                std::size_t n) {
  return HWY_DYNAMIC_DISPATCH(BinaryF64)(op, x, xc, y, yc, dst, n);
}
void cmul_f32(const float* x, bool xc, const float* y, std::size_t n, float* dst) {
  HWY_DYNAMIC_DISPATCH(CMulF32)(x, xc, y, n, dst);
}
void cmul_f64(const double* x, bool xc, const double* y, std::size_t n, double* dst) {
  HWY_DYNAMIC_DISPATCH(CMulF64)(x, xc, y, n, dst);
}

}  // namespace kels::kernels
#endif  // HWY_ONCE
