// SIMD kernels of the data-movement family and their scalar twins. The twins
// are the reference the tests compare every SIMD target against, and the
// path short vectors take.
#ifndef KELS_KERNELS_MOVEMENT_H
#define KELS_KERNELS_MOVEMENT_H

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace kels::kernels {

// Fill: dst[i] = pattern, for patterns of 1, 2, 4, 8 or 16 bytes.
void fill_u8(std::uint8_t v, std::uint8_t* dst, std::size_t n);
void fill_u16(std::uint16_t v, std::uint16_t* dst, std::size_t n);
void fill_u32(std::uint32_t v, std::uint32_t* dst, std::size_t n);
void fill_u64(std::uint64_t v, std::uint64_t* dst, std::size_t n);
void fill_u128(const std::uint64_t v[2], std::uint64_t* dst, std::size_t n);  // n pairs

// Block copy of n bytes (regions do not overlap).
void copy_block(const std::uint8_t* src, std::uint8_t* dst, std::size_t n);

// Negates the odd (imaginary) lanes of n interleaved complex elements;
// the 16-bit form saturates -(-32768) to 32767.
void conj_f32(const float* src, float* dst, std::size_t n);
void conj_f64(const double* src, double* dst, std::size_t n);
void conj_s16(const std::int16_t* src, std::int16_t* dst, std::size_t n);

// dst[i] = src[n-1-i] for 1/2/4/8-byte elements; in place when src == dst.
void flip_u8(const std::uint8_t* src, std::uint8_t* dst, std::size_t n);
void flip_u16(const std::uint16_t* src, std::uint16_t* dst, std::size_t n);
void flip_u32(const std::uint32_t* src, std::uint32_t* dst, std::size_t n);
void flip_u64(const std::uint64_t* src, std::uint64_t* dst, std::size_t n);

// Reverses the bytes of each 2/4/8-byte element (src may equal dst).
void swap_bytes_u16(const std::uint16_t* src, std::uint16_t* dst, std::size_t n);
void swap_bytes_u32(const std::uint32_t* src, std::uint32_t* dst, std::size_t n);
void swap_bytes_u64(const std::uint64_t* src, std::uint64_t* dst, std::size_t n);

// Split interleaved pairs into two arrays and join them back (element
// sizes 2, 4, 8 bytes); a null output of split skips that half.
void split_u16(const std::uint16_t* src, std::uint16_t* re, std::uint16_t* im, std::size_t n);
void split_u32(const std::uint32_t* src, std::uint32_t* re, std::uint32_t* im, std::size_t n);
void split_u64(const std::uint64_t* src, std::uint64_t* re, std::uint64_t* im, std::size_t n);
void join_u16(const std::uint16_t* re, const std::uint16_t* im, std::uint16_t* dst, std::size_t n);
void join_u32(const std::uint32_t* re, const std::uint32_t* im, std::uint32_t* dst, std::size_t n);
void join_u64(const std::uint64_t* re, const std::uint64_t* im, std::uint64_t* dst, std::size_t n);

// Audio scaling of one channel: y = x * 32767.5 - 0.5 in single precision,
// x > 1 -> 32767, x < -1 -> -32768, NaN -> -32768, else rounded to nearest
// even in the current rounding mode.
void scale_f32_to_s16(const float* src, std::int16_t* dst, std::size_t n);

namespace scalar {

inline std::int16_t scale_f32_to_s16_one(float x) {
  if (x > 1.0f) return 32767;
  if (x < -1.0f) return -32768;
  if (std::isnan(x)) return -32768;
  const float y = x * 32767.5f - 0.5f;
  return static_cast<std::int16_t>(std::nearbyint(y));
}

inline void scale_f32_to_s16(const float* src, std::int16_t* dst, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) dst[i] = scale_f32_to_s16_one(src[i]);
}

inline std::int16_t neg_sat16(std::int16_t v) {
  return v == INT16_MIN ? INT16_MAX : static_cast<std::int16_t>(-v);
}

template <class T>
void conj(const T* src, T* dst, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) {
    dst[2 * i] = src[2 * i];
    if constexpr (sizeof(T) == 2) {
      dst[2 * i + 1] = neg_sat16(src[2 * i + 1]);
    } else {
      dst[2 * i + 1] = -src[2 * i + 1];
    }
  }
}

// Elements are moved as bytes: the word type T may be a complex element
// aligned to only half its size.
template <class T>
void flip(const T* src, T* dst, std::size_t n) {
  if (src == dst) {
    for (std::size_t i = 0, j = n; i + 1 < j; ++i, --j) {
      T a, b;
      std::memcpy(&a, dst + i, sizeof a);
      std::memcpy(&b, dst + j - 1, sizeof b);
      std::memcpy(dst + i, &b, sizeof b);
      std::memcpy(dst + j - 1, &a, sizeof a);
    }
    return;
  }
  for (std::size_t i = 0; i < n; ++i) std::memcpy(dst + i, src + n - 1 - i, sizeof(T));
}

template <class T>
T swap_bytes_one(T v) {
  T r = 0;
  for (std::size_t b = 0; b < sizeof(T); ++b) {
    r = static_cast<T>((r << 8) | ((v >> (8 * b)) & 0xFF));
  }
  return r;
}

template <class T>
void swap_bytes(const T* src, T* dst, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) dst[i] = swap_bytes_one(src[i]);
}

template <class T>
void split(const T* src, T* re, T* im, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) {
    if (re) re[i] = src[2 * i];
    if (im) im[i] = src[2 * i + 1];
  }
}

template <class T>
void join(const T* re, const T* im, T* dst, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) {
    dst[2 * i] = re ? re[i] : T(0);
    dst[2 * i + 1] = im ? im[i] : T(0);
  }
}

}  // namespace scalar
}  // namespace kels::kernels

#endif  // KELS_KERNELS_MOVEMENT_H
