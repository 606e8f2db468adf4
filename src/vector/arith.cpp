// Elementwise arithmetic: Add, Sub, Mul, Div with constant (C), reversed
// constant (CRev), in-place (_I) and scaled-integer (Sfs) forms.
//
// Every member is one line in a table at the end of this file. A member
// names its operation and types; the wrapper turns its arguments into a left
// operand x and a right operand y (each a vector or a constant) so that the
// result is x op y, and hands them to one of three families:
//   scaled_run   integer add/sub/mul: exact result, then the scale-factor
//                branch (packed 16-bit kernels where they exist);
//   int_div_run  integer division: exact rounded quotient, or the
//                single-precision method of the signed 16-bit forms;
//   float_run    IEEE arithmetic on real and complex floats, and the
//                float-to-16-bit scaled product.
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "frame/common.h"
#include "frame/scale.h"
#include "kernels/arith.h"
#include "vector/arith_rules.h"

namespace kels {
namespace {

using namespace kels::kernels;
using namespace kels::arith;

// ---- Operands: a vector, or one value used for every element.

template <class T>
struct Vec {
  using type = T;
  static constexpr bool is_const = false;
  const T* p;
  T operator[](std::size_t i) const { return p[i]; }
  bool null() const { return p == nullptr; }
  const T* ptr() const { return p; }
};

template <class T>
struct Cst {
  using type = T;
  static constexpr bool is_const = true;
  T v;
  T operator[](std::size_t) const { return v; }
  bool null() const { return false; }
  const T* ptr() const { return &v; }
};

// ---- Destinations of the zero-fill, set and copy shortcuts. They go
// through the library's own data-movement functions, whose status is
// returned; 16u data is handled as 16s (same size, bit patterns kept).

inline KelStatus zero_fill(Kel8u* d, int len) { return kelsZero_8u(d, len); }
inline KelStatus zero_fill(Kel16s* d, int len) { return kelsZero_16s(d, len); }
inline KelStatus zero_fill(Kel16u* d, int len) { return kelsZero_16s(reinterpret_cast<Kel16s*>(d), len); }
inline KelStatus zero_fill(Kel32s* d, int len) { return kelsZero_32s(d, len); }
inline KelStatus zero_fill(Kel32u* d, int len) { return kelsZero_32s(reinterpret_cast<Kel32s*>(d), len); }
inline KelStatus zero_fill(Kel32f* d, int len) { return kelsZero_32f(d, len); }
inline KelStatus zero_fill(Kel16sc* d, int len) { return kelsZero_16sc(d, len); }
inline KelStatus zero_fill(Kel32sc* d, int len) { return kelsZero_32sc(d, len); }

// In place the copy is a move of a vector onto itself (the block copy
// requires distinct regions).
template <class T>
KelStatus copy_16(const T* src, T* dst, int len) {
  static_assert(sizeof(T) == 2, "16-bit data");
  auto s = reinterpret_cast<const Kel16s*>(src);
  auto d = reinterpret_cast<Kel16s*>(dst);
  return src == dst ? kelsMove_16s(s, d, len) : kelsCopy_16s(s, d, len);
}

template <class X, class Y, class D>
bool any_null(const X& x, const Y& y, const D* dst) {
  return x.null() || y.null() || dst == nullptr;
}

// ---- Integer add, sub, mul with the scale-factor rule.

template <ScaleMode M, class Op, class X, class Y, class D>
void scaled_loop(X x, Y y, D* dst, std::size_t n, int shift) {
  for (std::size_t i = 0; i < n; ++i) {
    dst[i] = put<M, D>(Op::exact(wide(x[i]), wide(y[i])), shift);
  }
}

template <class Op, class X, class Y, class D>
void scaled_compute(X x, Y y, D* dst, std::size_t n, Branch b) {
  using TX = typename X::type;
  using TY = typename Y::type;
  constexpr bool packed = std::is_same_v<TX, D> && std::is_same_v<TY, D> &&
                          (std::is_same_v<D, Kel16s> || std::is_same_v<D, Kel16u>);
  if constexpr (packed) {
    if constexpr (std::is_same_v<D, Kel16s>) {
      scaled_s16(Op::code, b.mode, b.shift, x.ptr(), X::is_const, y.ptr(), Y::is_const, dst, n);
    } else {
      scaled_u16(Op::code, b.mode, b.shift, x.ptr(), X::is_const, y.ptr(), Y::is_const, dst, n);
    }
  } else {
    switch (b.mode) {
      case ScaleMode::sat: scaled_loop<ScaleMode::sat, Op>(x, y, dst, n, b.shift); break;
      case ScaleMode::half: scaled_loop<ScaleMode::half, Op>(x, y, dst, n, b.shift); break;
      case ScaleMode::round: scaled_loop<ScaleMode::round, Op>(x, y, dst, n, b.shift); break;
      case ScaleMode::lshift: scaled_loop<ScaleMode::lshift, Op>(x, y, dst, n, b.shift); break;
      case ScaleMode::sign: scaled_loop<ScaleMode::sign, Op>(x, y, dst, n, b.shift); break;
    }
  }
}

// The unsigned 16-bit forms test the scale factor before the pointers:
// above the limit the result is all zeros whatever the data; with a
// non-zero constant added and a scale factor below -15 every sum saturates;
// adding or subtracting 0 (multiplying or dividing by 1) unscaled is a
// copy. Each shortcut returns the status of the function it delegates to,
// which checks the destination and length itself.
template <class Op, class X, class Y, class D>
bool u16_shortcut(X x, Y y, D* dst, int len, int sf, int limit, KelStatus* sts) {
  if (sf > limit) {
    *sts = (x.null() || y.null()) ? kelStsNullPtr : zero_fill(dst, len);
    return true;
  }
  if constexpr (Y::is_const && !X::is_const) {
    if (Op::code == ArithOp::add && sf < -15 && y.v != 0) {
      *sts = x.null() ? kelStsNullPtr : kelsSet_16s(-1, reinterpret_cast<Kel16s*>(dst), len);
      return true;
    }
    if (sf == 0 && y.v == Op::identity) {
      *sts = copy_16(x.p, dst, len);
      return true;
    }
  }
  return false;
}

template <class Op, class X, class Y, class D>
KelStatus scaled_run(X x, Y y, D* dst, int len, int sf) {
  using TX = typename X::type;
  using TY = typename Y::type;
  constexpr int limit = zero_limit<Op, TX, TY>();
  if constexpr (std::is_same_v<D, Kel16u>) {
    KelStatus sts;
    if (u16_shortcut<Op>(x, y, dst, len, sf, limit, &sts)) return sts;
  }
  if (any_null(x, y, dst)) return kelStsNullPtr;
  KELS_REQUIRE_LEN(len);
  // Multiplying 16-bit data by the constant 0 or (unscaled) 1 needs no
  // arithmetic.
  if constexpr (std::is_same_v<D, Kel16s> && std::is_same_v<TX, Kel16s> && Y::is_const &&
                Op::code == ArithOp::mul) {
    if (y.v == 0) return zero_fill(dst, len);
    if (y.v == 1 && sf == 0) return copy_16(x.p, dst, len);
  }
  const Branch b = pick_branch<part_t<D>>(sf, limit);
  if (b.zero) return zero_fill(dst, len);
  scaled_compute<Op>(x, y, dst, static_cast<std::size_t>(len), b);
  return kelStsOk;
}

// ---- Integer division.

template <class X, class Y, class D>
KelStatus int_div_run(X x, Y y, D* dst, int len, int sf) {
  using TX = typename X::type;
  if constexpr (std::is_same_v<D, Kel16u>) {
    KelStatus sts;
    if (u16_shortcut<DivOp>(x, y, dst, len, sf, quotient_limit<TX>(), &sts)) return sts;
  }
  if (any_null(x, y, dst)) return kelStsNullPtr;
  KELS_REQUIRE_LEN(len);
  if constexpr (Y::is_const) {
    if (is_zero_divisor(y.v)) return kelStsDivByZero;
  }
  const std::size_t n = static_cast<std::size_t>(len);
  bool met_zero = false;
  if constexpr (std::is_same_v<D, Kel16s> && std::is_same_v<TX, Kel16s>) {
    const float scale = float_scale(sf);
    for (std::size_t i = 0; i < n; ++i) dst[i] = div16s_float(x[i], y[i], scale, &met_zero);
  } else {
    for (std::size_t i = 0; i < n; ++i) dst[i] = div_exact<D>(x[i], y[i], sf, &met_zero);
  }
  return met_zero ? kelStsDivByZeroWarn : kelStsOk;
}

// Reversed division of unsigned 16-bit data, val / x with 16 fraction bits
// in the quotient. The rounding, (q + 32767 + 2b) >> 16 with b the lowest
// integer bit, is the documented result (it is not ties-to-even).
KelStatus div_crev_16u(const Kel16u* src, Kel16u val, Kel16u* dst, int len) {
  KELS_REQUIRE_PTRS(src, dst);
  KELS_REQUIRE_LEN(len);
  const std::size_t n = static_cast<std::size_t>(len);
  bool met_zero = false;
  if (val == 0) {
    // Scan before filling: in place the source is the destination.
    for (std::size_t i = 0; i < n && !met_zero; ++i) met_zero = src[i] == 0;
    KELS_RETURN_IF_ERROR(zero_fill(dst, len));
  } else {
    const std::uint32_t num = static_cast<std::uint32_t>(val) << 16;
    for (std::size_t i = 0; i < n; ++i) {
      const std::uint32_t x = src[i];
      if (x == 0) {
        met_zero = true;
        dst[i] = 65535;
        continue;
      }
      const std::uint32_t q = num / x;
      dst[i] = static_cast<Kel16u>((q + 32767u + 2u * ((q >> 16) & 1u)) >> 16);
    }
  }
  return met_zero ? kelStsDivByZeroWarn : kelStsOk;
}

// ---- Floating point.

template <class Op, class X, class Y, class D>
bool float_compute(X x, Y y, D* dst, std::size_t n) {
  using TX = typename X::type;
  using TY = typename Y::type;
  constexpr bool same = std::is_same_v<TX, D> && std::is_same_v<TY, D>;
  if constexpr (same && (std::is_same_v<D, Kel32f> || std::is_same_v<D, Kel64f>)) {
    if constexpr (std::is_same_v<D, Kel32f>) {
      return binary_f32(Op::code, x.ptr(), X::is_const, y.ptr(), Y::is_const, dst, n);
    } else {
      return binary_f64(Op::code, x.ptr(), X::is_const, y.ptr(), Y::is_const, dst, n);
    }
  } else if constexpr (same && is_cplx_v<D> && !X::is_const && !Y::is_const &&
                       (Op::code == ArithOp::add || Op::code == ArithOp::sub)) {
    // Complex add and sub are the real operation on the interleaved parts.
    using R = part_t<D>;
    auto xs = reinterpret_cast<const R*>(x.p);
    auto ys = reinterpret_cast<const R*>(y.p);
    auto ds = reinterpret_cast<R*>(dst);
    if constexpr (std::is_same_v<R, Kel32f>) binary_f32(Op::code, xs, false, ys, false, ds, 2 * n);
    else binary_f64(Op::code, xs, false, ys, false, ds, 2 * n);
    return false;
  } else if constexpr (same && is_cplx_v<D> && Op::code == ArithOp::mul) {
    // The product is commutative: a constant factor goes first.
    using R = part_t<D>;
    auto xs = reinterpret_cast<const R*>(X::is_const ? x.ptr() : y.ptr());
    auto ys = reinterpret_cast<const R*>(X::is_const ? y.ptr() : x.ptr());
    auto ds = reinterpret_cast<R*>(dst);
    const bool c = X::is_const || Y::is_const;
    if constexpr (std::is_same_v<R, Kel32f>) cmul_f32(xs, c, ys, n, ds);
    else cmul_f64(xs, c, ys, n, ds);
    return false;
  } else {
    bool met_zero = false;
    for (std::size_t i = 0; i < n; ++i) {
      if constexpr (Op::code == ArithOp::div) met_zero |= zero_element(y[i]);
      dst[i] = Op::fexact(x[i], y[i]);
    }
    return met_zero;
  }
}

template <class Op, class X, class Y, class D>
KelStatus float_run(X x, Y y, D* dst, int len, int) {
  if (any_null(x, y, dst)) return kelStsNullPtr;
  KELS_REQUIRE_LEN(len);
  if constexpr (Op::code == ArithOp::div && Y::is_const) {
    if (is_zero_divisor(y.v)) return kelStsDivByZero;
  }
  const bool met_zero = float_compute<Op>(x, y, dst, static_cast<std::size_t>(len));
  return met_zero ? kelStsDivByZeroWarn : kelStsOk;
}

// Float data, 16-bit scaled result: the exact product (two single-precision
// values multiply exactly in double precision) times 2^-sf, rounded to
// nearest even and saturated.
template <class Op, class X, class Y, class D>
KelStatus float_to_int_run(X x, Y y, D* dst, int len, int sf) {
  if (any_null(x, y, dst)) return kelStsNullPtr;
  KELS_REQUIRE_LEN(len);
  for (std::size_t i = 0, n = static_cast<std::size_t>(len); i < n; ++i) {
    const double p = static_cast<double>(x[i]) * static_cast<double>(y[i]);
    dst[i] = round_even_sat<D>(std::ldexp(p, sf < -2000 ? 2000 : (sf > 2000 ? -2000 : -sf)));
  }
  return kelStsOk;
}

// ---- Family choice by operation and types.

template <class Op, class X, class Y, class D>
KelStatus run(X x, Y y, D* dst, int len, int sf) {
  using TX = typename X::type;
  if constexpr (is_float_v<TX> && !is_float_v<D>) {
    return float_to_int_run<Op>(x, y, dst, len, sf);
  } else if constexpr (is_float_v<D> && is_float_v<TX>) {
    return float_run<Op>(x, y, dst, len, sf);
  } else if constexpr (Op::code == ArithOp::div) {
    return int_div_run(x, y, dst, len, sf);
  } else {
    return scaled_run<Op>(x, y, dst, len, sf);
  }
}

// Argument order of the exported forms: for Sub and Div the first source is
// the right operand (pDst = pSrc2 - pSrc1, pSrcDst = pSrcDst - pSrc).
template <class Op, class A, class B, class D>
KelStatus vv(const A* src1, const B* src2, D* dst, int len, int sf) {
  if constexpr (Op::swapped) {
    return run<Op>(Vec<B>{src2}, Vec<A>{src1}, dst, len, sf);
  } else {
    return run<Op>(Vec<A>{src1}, Vec<B>{src2}, dst, len, sf);
  }
}

template <class Op, class A, class D>
KelStatus vv_i(const A* src, D* srcdst, int len, int sf) {
  if constexpr (Op::swapped) {
    return run<Op>(Vec<D>{srcdst}, Vec<A>{src}, srcdst, len, sf);
  } else {
    return run<Op>(Vec<A>{src}, Vec<D>{srcdst}, srcdst, len, sf);
  }
}

// Constant forms: C is x op val, CRev is val op x.
template <class Op, bool Rev, class A, class D>
KelStatus vc(const A* src, A val, D* dst, int len, int sf) {
  if constexpr (Rev) {
    return run<Op>(Cst<A>{val}, Vec<A>{src}, dst, len, sf);
  } else {
    return run<Op>(Vec<A>{src}, Cst<A>{val}, dst, len, sf);
  }
}

}  // namespace
}  // namespace kels

using namespace kels;

// ---- Member tables.
//
// Pairs of the same-type forms, one line each:
//   KELS_SFS_PAIRS      kels<Op>_<t>_Sfs and kels<Op>_<t>_ISfs
//   KELS_PLAIN_PAIRS    kels<Op>_<t> and kels<Op>_<t>_I (no scale factor)
//   KELS_CSFS_PAIRS     kels<Name>_<t>_Sfs and _ISfs with a constant
//   KELS_CPLAIN_PAIRS   kels<Name>_<t> and _I with a constant
// (Name, Op, Rev): AddC is (AddC, AddOp, false); SubCRev is (SubCRev, SubOp, true).
#define KELS_SFS_PAIRS(X)                                                                     \
  X(Add, AddOp, 8u, Kel8u) X(Add, AddOp, 16u, Kel16u) X(Add, AddOp, 16s, Kel16s)              \
  X(Add, AddOp, 16sc, Kel16sc) X(Add, AddOp, 32s, Kel32s) X(Add, AddOp, 32sc, Kel32sc)        \
  X(Sub, SubOp, 8u, Kel8u) X(Sub, SubOp, 16u, Kel16u) X(Sub, SubOp, 16s, Kel16s)              \
  X(Sub, SubOp, 16sc, Kel16sc) X(Sub, SubOp, 32s, Kel32s) X(Sub, SubOp, 32sc, Kel32sc)        \
  X(Mul, MulOp, 8u, Kel8u) X(Mul, MulOp, 16u, Kel16u) X(Mul, MulOp, 16s, Kel16s)              \
  X(Mul, MulOp, 16sc, Kel16sc) X(Mul, MulOp, 32s, Kel32s) X(Mul, MulOp, 32sc, Kel32sc)        \
  X(Div, DivOp, 8u, Kel8u) X(Div, DivOp, 16u, Kel16u) X(Div, DivOp, 16s, Kel16s)              \
  X(Div, DivOp, 16sc, Kel16sc) X(Div, DivOp, 32s, Kel32s)

#define KELS_PLAIN_PAIRS(X)                                                                   \
  X(Add, AddOp, 16s, Kel16s) X(Sub, SubOp, 16s, Kel16s) X(Mul, MulOp, 16s, Kel16s)            \
  X(Add, AddOp, 32f, Kel32f) X(Add, AddOp, 32fc, Kel32fc)                                     \
  X(Add, AddOp, 64f, Kel64f) X(Add, AddOp, 64fc, Kel64fc)                                     \
  X(Sub, SubOp, 32f, Kel32f) X(Sub, SubOp, 32fc, Kel32fc)                                     \
  X(Sub, SubOp, 64f, Kel64f) X(Sub, SubOp, 64fc, Kel64fc)                                     \
  X(Mul, MulOp, 32f, Kel32f) X(Mul, MulOp, 32fc, Kel32fc)                                     \
  X(Mul, MulOp, 64f, Kel64f) X(Mul, MulOp, 64fc, Kel64fc)                                     \
  X(Div, DivOp, 32f, Kel32f) X(Div, DivOp, 32fc, Kel32fc)                                     \
  X(Div, DivOp, 64f, Kel64f) X(Div, DivOp, 64fc, Kel64fc)

#define KELS_CSFS_PAIRS(X)                                                                    \
  X(AddC, AddOp, false, 8u, Kel8u) X(AddC, AddOp, false, 16u, Kel16u)                         \
  X(AddC, AddOp, false, 16s, Kel16s) X(AddC, AddOp, false, 16sc, Kel16sc)                     \
  X(AddC, AddOp, false, 32s, Kel32s) X(AddC, AddOp, false, 32sc, Kel32sc)                     \
  X(SubC, SubOp, false, 8u, Kel8u) X(SubC, SubOp, false, 16u, Kel16u)                         \
  X(SubC, SubOp, false, 16s, Kel16s) X(SubC, SubOp, false, 16sc, Kel16sc)                     \
  X(SubC, SubOp, false, 32s, Kel32s) X(SubC, SubOp, false, 32sc, Kel32sc)                     \
  X(SubCRev, SubOp, true, 8u, Kel8u) X(SubCRev, SubOp, true, 16u, Kel16u)                     \
  X(SubCRev, SubOp, true, 16s, Kel16s) X(SubCRev, SubOp, true, 16sc, Kel16sc)                 \
  X(SubCRev, SubOp, true, 32s, Kel32s) X(SubCRev, SubOp, true, 32sc, Kel32sc)                 \
  X(MulC, MulOp, false, 8u, Kel8u) X(MulC, MulOp, false, 16u, Kel16u)                         \
  X(MulC, MulOp, false, 16s, Kel16s) X(MulC, MulOp, false, 16sc, Kel16sc)                     \
  X(MulC, MulOp, false, 32s, Kel32s) X(MulC, MulOp, false, 32sc, Kel32sc)                     \
  X(DivC, DivOp, false, 8u, Kel8u) X(DivC, DivOp, false, 16u, Kel16u)                         \
  X(DivC, DivOp, false, 16s, Kel16s) X(DivC, DivOp, false, 16sc, Kel16sc)

#define KELS_CPLAIN_PAIRS(X)                                                                  \
  X(AddC, AddOp, false, 32f, Kel32f) X(AddC, AddOp, false, 32fc, Kel32fc)                     \
  X(AddC, AddOp, false, 64f, Kel64f) X(AddC, AddOp, false, 64fc, Kel64fc)                     \
  X(SubC, SubOp, false, 32f, Kel32f) X(SubC, SubOp, false, 32fc, Kel32fc)                     \
  X(SubC, SubOp, false, 64f, Kel64f) X(SubC, SubOp, false, 64fc, Kel64fc)                     \
  X(SubCRev, SubOp, true, 32f, Kel32f) X(SubCRev, SubOp, true, 32fc, Kel32fc)                 \
  X(SubCRev, SubOp, true, 64f, Kel64f) X(SubCRev, SubOp, true, 64fc, Kel64fc)                 \
  X(MulC, MulOp, false, 32f, Kel32f) X(MulC, MulOp, false, 32fc, Kel32fc)                     \
  X(MulC, MulOp, false, 64f, Kel64f) X(MulC, MulOp, false, 64fc, Kel64fc)                     \
  X(DivC, DivOp, false, 32f, Kel32f) X(DivC, DivOp, false, 32fc, Kel32fc)                     \
  X(DivC, DivOp, false, 64f, Kel64f) X(DivC, DivOp, false, 64fc, Kel64fc)                     \
  X(DivCRev, DivOp, true, 32f, Kel32f)

// Single members with mixed types: (name, op, source1, source2, destination).
#define KELS_VV_SFS_SINGLES(X)                                                                \
  X(Mul_16u16s_Sfs, MulOp, Kel16u, Kel16s, Kel16s)                                            \
  X(Mul_16s32s_Sfs, MulOp, Kel16s, Kel16s, Kel32s)                                            \
  X(Mul_32s32sc_Sfs, MulOp, Kel32s, Kel32sc, Kel32sc)                                         \
  X(Mul_Low_32s_Sfs, MulOp, Kel32s, Kel32s, Kel32s)                                           \
  X(Div_32s16s_Sfs, DivOp, Kel16s, Kel32s, Kel16s)
#define KELS_VV_SINGLES(X)                                                                    \
  X(Add_8u16u, AddOp, Kel8u, Kel8u, Kel16u) X(Mul_8u16u, MulOp, Kel8u, Kel8u, Kel16u)         \
  X(Add_16u, AddOp, Kel16u, Kel16u, Kel16u) X(Add_32u, AddOp, Kel32u, Kel32u, Kel32u)         \
  X(Add_16s32f, AddOp, Kel16s, Kel16s, Kel32f) X(Sub_16s32f, SubOp, Kel16s, Kel16s, Kel32f)   \
  X(Mul_16s32f, MulOp, Kel16s, Kel16s, Kel32f)                                                \
  X(Mul_32f32fc, MulOp, Kel32f, Kel32fc, Kel32fc)
// In place: (name, op, source, source-destination).
#define KELS_VVI_SFS_SINGLES(X) X(Mul_32s32sc_ISfs, MulOp, Kel32s, Kel32sc)
#define KELS_VVI_SINGLES(X)                                                                   \
  X(Add_16s32s_I, AddOp, Kel16s, Kel32s) X(Mul_32f32fc_I, MulOp, Kel32f, Kel32fc)
// Constant forms: (name, op, reversed, source, destination).
#define KELS_VC_SFS_SINGLES(X) X(MulC_32f16s_Sfs, MulOp, false, Kel32f, Kel16s)
#define KELS_VC_SINGLES(X)                                                                    \
  X(MulC_Low_32f16s, MulOp, false, Kel32f, Kel16s)
#define KELS_VCI_SINGLES(X)                                                                   \
  X(AddC_16s_I, AddOp, false, Kel16s) X(SubC_16s_I, SubOp, false, Kel16s)                     \
  X(MulC_16s_I, MulOp, false, Kel16s)

#define KELS_DEFINE_SFS_PAIR(op, Op, code, T)                                                  \
  KELS_EXPORT KelStatus kels##op##_##code##_Sfs(const T* pSrc1, const T* pSrc2, T* pDst, int len, \
                                                 int scaleFactor) {                            \
    return vv<Op>(pSrc1, pSrc2, pDst, len, scaleFactor);                                       \
  }                                                                                            \
  KELS_EXPORT KelStatus kels##op##_##code##_ISfs(const T* pSrc, T* pSrcDst, int len, int scaleFactor) { \
    return vv_i<Op>(pSrc, pSrcDst, len, scaleFactor);                                          \
  }
#define KELS_DEFINE_PLAIN_PAIR(op, Op, code, T)                                                \
  KELS_EXPORT KelStatus kels##op##_##code(const T* pSrc1, const T* pSrc2, T* pDst, int len) {  \
    return vv<Op>(pSrc1, pSrc2, pDst, len, 0);                                                 \
  }                                                                                            \
  KELS_EXPORT KelStatus kels##op##_##code##_I(const T* pSrc, T* pSrcDst, int len) {            \
    return vv_i<Op>(pSrc, pSrcDst, len, 0);                                                    \
  }
#define KELS_DEFINE_CSFS_PAIR(name, Op, rev, code, T)                                          \
  KELS_EXPORT KelStatus kels##name##_##code##_Sfs(const T* pSrc, T val, T* pDst, int len,      \
                                                   int scaleFactor) {                          \
    return vc<Op, rev>(pSrc, val, pDst, len, scaleFactor);                                     \
  }                                                                                            \
  KELS_EXPORT KelStatus kels##name##_##code##_ISfs(T val, T* pSrcDst, int len, int scaleFactor) { \
    return vc<Op, rev>(pSrcDst, val, pSrcDst, len, scaleFactor);                               \
  }
#define KELS_DEFINE_CPLAIN_PAIR(name, Op, rev, code, T)                                        \
  KELS_EXPORT KelStatus kels##name##_##code(const T* pSrc, T val, T* pDst, int len) {          \
    return vc<Op, rev>(pSrc, val, pDst, len, 0);                                               \
  }                                                                                            \
  KELS_EXPORT KelStatus kels##name##_##code##_I(T val, T* pSrcDst, int len) {                  \
    return vc<Op, rev>(pSrcDst, val, pSrcDst, len, 0);                                         \
  }
#define KELS_DEFINE_VV_SFS(name, Op, A, B, D)                                                  \
  KELS_EXPORT KelStatus kels##name(const A* pSrc1, const B* pSrc2, D* pDst, int len, int scaleFactor) { \
    return vv<Op>(pSrc1, pSrc2, pDst, len, scaleFactor);                                       \
  }
#define KELS_DEFINE_VV(name, Op, A, B, D)                                                      \
  KELS_EXPORT KelStatus kels##name(const A* pSrc1, const B* pSrc2, D* pDst, int len) {         \
    return vv<Op>(pSrc1, pSrc2, pDst, len, 0);                                                 \
  }
#define KELS_DEFINE_VVI_SFS(name, Op, A, D)                                                    \
  KELS_EXPORT KelStatus kels##name(const A* pSrc, D* pSrcDst, int len, int scaleFactor) {      \
    return vv_i<Op>(pSrc, pSrcDst, len, scaleFactor);                                          \
  }
#define KELS_DEFINE_VVI(name, Op, A, D)                                                        \
  KELS_EXPORT KelStatus kels##name(const A* pSrc, D* pSrcDst, int len) {                       \
    return vv_i<Op>(pSrc, pSrcDst, len, 0);                                                    \
  }
#define KELS_DEFINE_VC_SFS(name, Op, rev, A, D)                                                \
  KELS_EXPORT KelStatus kels##name(const A* pSrc, A val, D* pDst, int len, int scaleFactor) {  \
    return vc<Op, rev>(pSrc, val, pDst, len, scaleFactor);                                     \
  }
#define KELS_DEFINE_VC(name, Op, rev, A, D)                                                    \
  KELS_EXPORT KelStatus kels##name(const A* pSrc, A val, D* pDst, int len) {                   \
    return vc<Op, rev>(pSrc, val, pDst, len, 0);                                               \
  }
#define KELS_DEFINE_VCI(name, Op, rev, T)                                                      \
  KELS_EXPORT KelStatus kels##name(T val, T* pSrcDst, int len) {                               \
    return vc<Op, rev>(pSrcDst, val, pSrcDst, len, 0);                                         \
  }

KELS_FOR_MEMBERS(KELS_SFS_PAIRS, KELS_DEFINE_SFS_PAIR)
KELS_FOR_MEMBERS(KELS_PLAIN_PAIRS, KELS_DEFINE_PLAIN_PAIR)
KELS_FOR_MEMBERS(KELS_CSFS_PAIRS, KELS_DEFINE_CSFS_PAIR)
KELS_FOR_MEMBERS(KELS_CPLAIN_PAIRS, KELS_DEFINE_CPLAIN_PAIR)
KELS_FOR_MEMBERS(KELS_VV_SFS_SINGLES, KELS_DEFINE_VV_SFS)
KELS_FOR_MEMBERS(KELS_VV_SINGLES, KELS_DEFINE_VV)
KELS_FOR_MEMBERS(KELS_VVI_SFS_SINGLES, KELS_DEFINE_VVI_SFS)
KELS_FOR_MEMBERS(KELS_VVI_SINGLES, KELS_DEFINE_VVI)
KELS_FOR_MEMBERS(KELS_VC_SFS_SINGLES, KELS_DEFINE_VC_SFS)
KELS_FOR_MEMBERS(KELS_VC_SINGLES, KELS_DEFINE_VC)
KELS_FOR_MEMBERS(KELS_VCI_SINGLES, KELS_DEFINE_VCI)

KELS_EXPORT KelStatus kelsDivCRev_16u(const Kel16u* pSrc, Kel16u val, Kel16u* pDst, int len) {
  return div_crev_16u(pSrc, val, pDst, len);
}
KELS_EXPORT KelStatus kelsDivCRev_16u_I(Kel16u val, Kel16u* pSrcDst, int len) {
  return div_crev_16u(pSrcDst, val, pSrcDst, len);
}
