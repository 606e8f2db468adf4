// Bitwise operations on unsigned vectors and shifts by a constant count.
#include <cstddef>
#include <type_traits>

#include "frame/common.h"
#include "kernels/logic.h"

namespace kels {
namespace {

using kernels::BitOp;

template <class T>
using bits_t = std::make_unsigned_t<T>;

template <class T>
const bits_t<T>* as_bits(const T* p) {
  return reinterpret_cast<const bits_t<T>*>(p);
}
template <class T>
bits_t<T>* as_bits(T* p) {
  return reinterpret_cast<bits_t<T>*>(p);
}

// ---- Bitwise operations: null pointers, then the length.

template <BitOp kOp, class T>
KelStatus bitwise(const T* src1, const T* src2, T* dst, int len) {
  KELS_REQUIRE_PTRS(src1, src2, dst);
  KELS_REQUIRE_LEN(len);
  kernels::bit_op(kOp, src1, src2, T{0}, dst, static_cast<std::size_t>(len));
  return kelStsOk;
}

template <BitOp kOp, class T>
KelStatus bitwise_c(const T* src, T val, T* dst, int len) {
  KELS_REQUIRE_PTRS(src, dst);
  KELS_REQUIRE_LEN(len);
  kernels::bit_op(kOp, src, static_cast<const T*>(nullptr), val, dst, static_cast<std::size_t>(len));
  return kelStsOk;
}

// ---- Shifts. The degenerate counts are handed to the copy and zero-fill
// functions before any other check, and those functions' status is
// returned. The library has copy and zero-fill functions for 8u, 16s and
// 32s; 16u data (and the 32-bit unsigned view of 32s) use the function of
// the same width, which checks and writes the same bytes.

template <class T>
KelStatus copy_same_width(const T* src, T* dst, int len) {
  if constexpr (sizeof(T) == 1) {
    return kelsCopy_8u(reinterpret_cast<const Kel8u*>(src), reinterpret_cast<Kel8u*>(dst), len);
  } else if constexpr (sizeof(T) == 2) {
    return kelsCopy_16s(reinterpret_cast<const Kel16s*>(src), reinterpret_cast<Kel16s*>(dst), len);
  } else {
    return kelsCopy_32s(reinterpret_cast<const Kel32s*>(src), reinterpret_cast<Kel32s*>(dst), len);
  }
}

template <class T>
KelStatus zero_same_width(T* dst, int len) {
  if constexpr (sizeof(T) == 1) {
    return kelsZero_8u(reinterpret_cast<Kel8u*>(dst), len);
  } else if constexpr (sizeof(T) == 2) {
    return kelsZero_16s(reinterpret_cast<Kel16s*>(dst), len);
  } else {
    return kelsZero_32s(reinterpret_cast<Kel32s*>(dst), len);
  }
}

enum class Dir { kLeft, kRight };

// Arithmetic right shifts never zero-fill: a count of w or more gives the
// sign of each element (0 or -1), which is the shift by w - 1.
template <Dir kDir, class T>
constexpr bool kSignFill = kDir == Dir::kRight && std::is_signed_v<T>;

template <Dir kDir, class T>
void run_shift(const T* src, T* dst, std::size_t n, int count) {
  if constexpr (kDir == Dir::kLeft) {
    kernels::shift_left(as_bits(src), as_bits(dst), n, count);
  } else {
    kernels::shift_right(src, dst, n, count);
  }
}

template <Dir kDir, class T>
KelStatus shift(const T* src, int val, T* dst, int len) {
  constexpr int w = 8 * static_cast<int>(sizeof(T));
  if (val == 0) return copy_same_width(src, dst, len);
  if (!kSignFill<kDir, T> && val >= w) {
    if (src == nullptr) return kelStsNullPtr;
    return zero_same_width(dst, len);
  }
  KELS_REQUIRE_PTRS(src, dst);
  KELS_REQUIRE_LEN(len);
  if (val < 0) return kelStsBadShift;
  run_shift<kDir>(src, dst, static_cast<std::size_t>(len), val < w ? val : w - 1);
  return kelStsOk;
}

// In place: a too-large count zero-fills before the pointer is looked at;
// a zero count is accepted after the pointer, length and sign checks and
// leaves the data as it is.
template <Dir kDir, class T>
KelStatus shift_i(int val, T* srcdst, int len) {
  constexpr int w = 8 * static_cast<int>(sizeof(T));
  if (!kSignFill<kDir, T> && val >= w) return zero_same_width(srcdst, len);
  KELS_REQUIRE_PTRS(srcdst);
  KELS_REQUIRE_LEN(len);
  if (val < 0) return kelStsBadShift;
  if (val == 0) return kelStsOk;
  run_shift<kDir>(srcdst, srcdst, static_cast<std::size_t>(len), val < w ? val : w - 1);
  return kelStsOk;
}

}  // namespace
}  // namespace kels

using namespace kels;

// ---- Member tables: (type code, element type).
#define KELS_BITWISE_MEMBERS(X) X(8u, Kel8u) X(16u, Kel16u) X(32u, Kel32u)
#define KELS_SHIFT_MEMBERS(X) X(8u, Kel8u) X(16u, Kel16u) X(16s, Kel16s) X(32s, Kel32s)

#define KELS_DEFINE_BITOP(Name, op, code, T)                                                   \
  KELS_EXPORT KelStatus kels##Name##_##code(const T* pSrc1, const T* pSrc2, T* pDst, int len) { \
    return bitwise<BitOp::op>(pSrc1, pSrc2, pDst, len);                                       \
  }                                                                                           \
  KELS_EXPORT KelStatus kels##Name##_##code##_I(const T* pSrc, T* pSrcDst, int len) {         \
    return bitwise<BitOp::op>(pSrc, static_cast<const T*>(pSrcDst), pSrcDst, len);           \
  }                                                                                           \
  KELS_EXPORT KelStatus kels##Name##C_##code(const T* pSrc, T val, T* pDst, int len) {        \
    return bitwise_c<BitOp::op>(pSrc, val, pDst, len);                                        \
  }                                                                                           \
  KELS_EXPORT KelStatus kels##Name##C_##code##_I(T val, T* pSrcDst, int len) {                \
    return bitwise_c<BitOp::op>(static_cast<const T*>(pSrcDst), val, pSrcDst, len);          \
  }
#define KELS_DEFINE_BITWISE(code, T)                                                          \
  KELS_DEFINE_BITOP(And, kAnd, code, T)                                                       \
  KELS_DEFINE_BITOP(Or, kOr, code, T)                                                         \
  KELS_DEFINE_BITOP(Xor, kXor, code, T)                                                       \
  KELS_EXPORT KelStatus kelsNot_##code(const T* pSrc, T* pDst, int len) {                    \
    return bitwise_c<BitOp::kNot>(pSrc, T{0}, pDst, len);                                     \
  }                                                                                           \
  KELS_EXPORT KelStatus kelsNot_##code##_I(T* pSrcDst, int len) {                            \
    return bitwise_c<BitOp::kNot>(static_cast<const T*>(pSrcDst), T{0}, pSrcDst, len);       \
  }
#define KELS_DEFINE_SHIFT(code, T)                                                            \
  KELS_EXPORT KelStatus kelsLShiftC_##code(const T* pSrc, int val, T* pDst, int len) {       \
    return shift<Dir::kLeft>(pSrc, val, pDst, len);                                           \
  }                                                                                           \
  KELS_EXPORT KelStatus kelsLShiftC_##code##_I(int val, T* pSrcDst, int len) {               \
    return shift_i<Dir::kLeft>(val, pSrcDst, len);                                            \
  }                                                                                           \
  KELS_EXPORT KelStatus kelsRShiftC_##code(const T* pSrc, int val, T* pDst, int len) {       \
    return shift<Dir::kRight>(pSrc, val, pDst, len);                                          \
  }                                                                                           \
  KELS_EXPORT KelStatus kelsRShiftC_##code##_I(int val, T* pSrcDst, int len) {               \
    return shift_i<Dir::kRight>(val, pSrcDst, len);                                           \
  }

KELS_FOR_MEMBERS(KELS_BITWISE_MEMBERS, KELS_DEFINE_BITWISE)
KELS_FOR_MEMBERS(KELS_SHIFT_MEMBERS, KELS_DEFINE_SHIFT)
