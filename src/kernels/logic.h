// SIMD kernels of the bitwise and shift family and their scalar twins.
// Every kernel works element by element, so the source may equal the
// destination (the in-place forms pass the same array twice).
#ifndef KELS_KERNELS_LOGIC_H
#define KELS_KERNELS_LOGIC_H

#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace kels::kernels {

enum class BitOp : int { kAnd = 0, kOr = 1, kXor = 2, kNot = 3 };

// dst[i] = a[i] op (b ? b[i] : val); kNot ignores b and val.
void bit_op(BitOp op, const std::uint8_t* a, const std::uint8_t* b, std::uint8_t val, std::uint8_t* dst,
            std::size_t n);
void bit_op(BitOp op, const std::uint16_t* a, const std::uint16_t* b, std::uint16_t val, std::uint16_t* dst,
            std::size_t n);
void bit_op(BitOp op, const std::uint32_t* a, const std::uint32_t* b, std::uint32_t val, std::uint32_t* dst,
            std::size_t n);

// Shifts by a count 0 <= count < width: left shifts drop the bits shifted
// out; right shifts are logical for unsigned and arithmetic for signed data.
void shift_left(const std::uint8_t* src, std::uint8_t* dst, std::size_t n, int count);
void shift_left(const std::uint16_t* src, std::uint16_t* dst, std::size_t n, int count);
void shift_left(const std::uint32_t* src, std::uint32_t* dst, std::size_t n, int count);
void shift_right(const std::uint8_t* src, std::uint8_t* dst, std::size_t n, int count);
void shift_right(const std::uint16_t* src, std::uint16_t* dst, std::size_t n, int count);
void shift_right(const std::int16_t* src, std::int16_t* dst, std::size_t n, int count);
void shift_right(const std::int32_t* src, std::int32_t* dst, std::size_t n, int count);

namespace scalar {

template <class T>
T bit_op_one(BitOp op, T a, T b) {
  switch (op) {
    case BitOp::kAnd: return static_cast<T>(a & b);
    case BitOp::kOr: return static_cast<T>(a | b);
    case BitOp::kXor: return static_cast<T>(a ^ b);
    default: return static_cast<T>(~a);
  }
}

template <class T>
void bit_op(BitOp op, const T* a, const T* b, T val, T* dst, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) dst[i] = bit_op_one(op, a[i], b ? b[i] : val);
}

template <class T>
void shift_left(const T* src, T* dst, std::size_t n, int count) {
  using U = std::make_unsigned_t<T>;
  for (std::size_t i = 0; i < n; ++i) {
    dst[i] = static_cast<T>(static_cast<U>(static_cast<std::uint32_t>(static_cast<U>(src[i])) << count));
  }
}

// Right shift of signed values is arithmetic (floor division by 2^count),
// written without relying on the implementation's shift of negatives.
template <class T>
void shift_right(const T* src, T* dst, std::size_t n, int count) {
  for (std::size_t i = 0; i < n; ++i) {
    if constexpr (std::is_signed_v<T>) {
      const std::int64_t v = src[i];
      const std::int64_t d = std::int64_t{1} << count;
      dst[i] = static_cast<T>(v >= 0 ? v / d : -((-v + d - 1) / d));
    } else {
      dst[i] = static_cast<T>(static_cast<std::uint32_t>(src[i]) >> count);
    }
  }
}

}  // namespace scalar
}  // namespace kels::kernels

#endif  // KELS_KERNELS_LOGIC_H
