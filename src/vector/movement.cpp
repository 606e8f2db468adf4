// Data movement and initialisation: copy, move, zero, set, complex
// split/join, conjugation, reversal, byte swapping and the scaled
// interleaving of multi-channel audio.
#include <cmath>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "frame/common.h"
#include "kernels/movement.h"

namespace kels {
namespace {

using namespace kels::kernels;

// Kernel choice by byte count. Short copies go straight to the C runtime;
// mid-size ones use the vector block copy; from 16 KiB on, a copy that
// prefetches the source ahead of its stores. For that tier the C runtime's
// large-block copy is used: it prefetches too and switches to non-temporal
// stores for blocks larger than the cache, which measured 8% faster at
// 64 MiB than a prefetching vector loop of our own.
constexpr std::size_t kCopyBlockBytes = 8192;
constexpr std::size_t kCopyPrefetchBytes = 16384;
// Fills of 20 KiB and more of 16-byte elements use the vector kernel; shorter
// ones a plain loop. Fills of smaller elements always use the vector kernel,
// whose width follows the processor (a plain loop compiled for the SSE2
// baseline was 6x slower than an AVX-512 loop at 4 KiB).
constexpr std::size_t kFillLargeBytes = 20480;

void copy_bytes(const void* src, void* dst, std::size_t bytes) {
  auto s = static_cast<const std::uint8_t*>(src);
  auto d = static_cast<std::uint8_t*>(dst);
  if (bytes < kCopyBlockBytes) {
    std::memcpy(d, s, bytes);
  } else if (bytes < kCopyPrefetchBytes) {
    copy_block(s, d, bytes);
  } else {
    std::memcpy(d, s, bytes);
  }
}

template <class T>
KelStatus copy_family(const T* src, T* dst, int len) {
  KELS_REQUIRE_PTRS(src, dst);
  KELS_REQUIRE_LEN(len);
  copy_bytes(src, dst, static_cast<std::size_t>(len) * sizeof(T));
  return kelStsOk;
}

template <class T>
KelStatus move_family(const T* src, T* dst, int len) {
  KELS_REQUIRE_PTRS(src, dst);
  KELS_REQUIRE_LEN(len);
  std::memmove(dst, src, static_cast<std::size_t>(len) * sizeof(T));
  return kelStsOk;
}

// Fill with the bit pattern of val, whatever the element type: the element
// is handled as an unsigned word of its size (or a pair for 16 bytes).
template <class T>
void fill_pattern(const T val, T* dst, std::size_t n) {
  const bool large = n * sizeof(T) >= kFillLargeBytes;
  if constexpr (sizeof(T) == 16) {
    std::uint64_t w[2];
    std::memcpy(w, &val, sizeof w);
    if (large) {
      fill_u128(w, reinterpret_cast<std::uint64_t*>(dst), n);
    } else {
      for (std::size_t i = 0; i < n; ++i) dst[i] = val;
    }
  } else {
    using W = std::conditional_t<sizeof(T) == 1, std::uint8_t,
              std::conditional_t<sizeof(T) == 2, std::uint16_t,
              std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>>>;
    W w;
    std::memcpy(&w, &val, sizeof w);
    W* d = reinterpret_cast<W*>(dst);
    (void)large;  // both sizes use the vector fill; see kFillLargeBytes
    if constexpr (sizeof(W) == 1) {
      fill_u8(w, d, n);
    } else if constexpr (sizeof(W) == 2) {
      fill_u16(w, d, n);
    } else if constexpr (sizeof(W) == 4) {
      fill_u32(w, d, n);
    } else {
      fill_u64(w, d, n);
    }
  }
}

template <class T>
KelStatus zero_family(T* dst, int len) {
  KELS_REQUIRE_PTRS(dst);
  KELS_REQUIRE_LEN(len);
  std::memset(static_cast<void*>(dst), 0, static_cast<std::size_t>(len) * sizeof(T));
  return kelStsOk;
}

template <class T>
KelStatus set_family(T val, T* dst, int len) {
  KELS_REQUIRE_PTRS(dst);
  KELS_REQUIRE_LEN(len);
  fill_pattern(val, dst, static_cast<std::size_t>(len));
  return kelStsOk;
}

// Complex element C with scalar part R: split/join through the unsigned word
// of R's size.
template <class R>
using word_t = std::conditional_t<sizeof(R) == 2, std::uint16_t,
               std::conditional_t<sizeof(R) == 4, std::uint32_t, std::uint64_t>>;

template <class R>
void split_words(const void* src, R* re, R* im, std::size_t n) {
  using W = word_t<R>;
  auto s = static_cast<const W*>(src);
  if constexpr (sizeof(W) == 2) split_u16(s, reinterpret_cast<W*>(re), reinterpret_cast<W*>(im), n);
  else if constexpr (sizeof(W) == 4) split_u32(s, reinterpret_cast<W*>(re), reinterpret_cast<W*>(im), n);
  else split_u64(s, reinterpret_cast<W*>(re), reinterpret_cast<W*>(im), n);
}

template <class R>
void join_words(const R* re, const R* im, void* dst, std::size_t n) {
  using W = word_t<R>;
  auto d = static_cast<W*>(dst);
  auto r = reinterpret_cast<const W*>(re);
  auto m = reinterpret_cast<const W*>(im);
  if constexpr (sizeof(W) == 2) join_u16(r, m, d, n);
  else if constexpr (sizeof(W) == 4) join_u32(r, m, d, n);
  else join_u64(r, m, d, n);
}

template <class C, class R>
KelStatus cplx_to_real_family(const C* src, R* re, R* im, int len) {
  KELS_REQUIRE_PTRS(src, re, im);
  KELS_REQUIRE_LEN(len);
  split_words<R>(src, re, im, static_cast<std::size_t>(len));
  return kelStsOk;
}

// Either part may be absent and reads as zero; with both absent the result
// is all zeros.
template <class R, class C>
KelStatus real_to_cplx_family(const R* re, const R* im, C* dst, int len) {
  KELS_REQUIRE_PTRS(dst);
  KELS_REQUIRE_LEN(len);
  join_words<R>(re, im, dst, static_cast<std::size_t>(len));
  return kelStsOk;
}

template <class C>
void conj_kernel(const C* src, C* dst, std::size_t n) {
  if constexpr (std::is_same_v<C, Kel16sc>) {
    conj_s16(reinterpret_cast<const std::int16_t*>(src), reinterpret_cast<std::int16_t*>(dst), n);
  } else if constexpr (std::is_same_v<C, Kel32fc>) {
    conj_f32(reinterpret_cast<const float*>(src), reinterpret_cast<float*>(dst), n);
  } else {
    conj_f64(reinterpret_cast<const double*>(src), reinterpret_cast<double*>(dst), n);
  }
}

template <class T>
void flip_kernel(const T* src, T* dst, std::size_t n) {
  if constexpr (sizeof(T) == 1) {
    flip_u8(reinterpret_cast<const std::uint8_t*>(src), reinterpret_cast<std::uint8_t*>(dst), n);
  } else if constexpr (sizeof(T) == 2) {
    flip_u16(reinterpret_cast<const std::uint16_t*>(src), reinterpret_cast<std::uint16_t*>(dst), n);
  } else if constexpr (sizeof(T) == 4) {
    flip_u32(reinterpret_cast<const std::uint32_t*>(src), reinterpret_cast<std::uint32_t*>(dst), n);
  } else if constexpr (sizeof(T) == 8) {
    flip_u64(reinterpret_cast<const std::uint64_t*>(src), reinterpret_cast<std::uint64_t*>(dst), n);
  } else {
    scalar::flip(src, dst, n);
  }
}

// Conjugate of the reversed vector (out of place only): reverse whole
// elements, then conjugate in place.
template <class C>
void conj_flip_kernel(const C* src, C* dst, std::size_t n) {
  flip_kernel(src, dst, n);
  conj_kernel(dst, dst, n);
}

template <class C, class R>
void real_kernel(const C* src, R* re, std::size_t n) {
  split_words<R>(src, re, nullptr, n);
}

template <class C, class R>
void imag_kernel(const C* src, R* im, std::size_t n) {
  split_words<R>(src, nullptr, im, n);
}

template <class T>
void swap_kernel(const T* src, T* dst, std::size_t n) {
  if constexpr (sizeof(T) == 2) {
    swap_bytes_u16(src, dst, n);
  } else if constexpr (sizeof(T) == 4) {
    swap_bytes_u32(src, dst, n);
  } else {
    swap_bytes_u64(reinterpret_cast<const std::uint64_t*>(src), reinterpret_cast<std::uint64_t*>(dst), n);
  }
}

KelStatus swap_bytes_24(const Kel8u* src, Kel8u* dst, int len) {
  KELS_REQUIRE_PTRS(src, dst);
  KELS_REQUIRE_LEN(len);
  for (std::size_t i = 0, n = static_cast<std::size_t>(len); i < n; ++i) {
    const Kel8u b0 = src[3 * i], b1 = src[3 * i + 1], b2 = src[3 * i + 2];
    dst[3 * i] = b2;
    dst[3 * i + 1] = b1;
    dst[3 * i + 2] = b0;
  }
  return kelStsOk;
}

// ---- Bit-string copy. Bits are numbered from the most significant bit of
// each byte; an offset of 8 or more moves on by whole bytes.
KelStatus copy_bits(const Kel8u* src, int src_offset, Kel8u* dst, int dst_offset, int len) {
  KELS_REQUIRE_PTRS(src, dst);
  KELS_REQUIRE_LEN(len);
  if (src_offset < 0 || dst_offset < 0) return kelStsBadLength;
  src += src_offset / 8;
  dst += dst_offset / 8;
  const int so = src_offset % 8, dof = dst_offset % 8;
  const std::size_t n = static_cast<std::size_t>(len);
  if (so == 0 && dof == 0) {
    std::memmove(dst, src, n / 8);
    const int rest = static_cast<int>(n % 8);
    if (rest != 0) {
      const Kel8u mask = static_cast<Kel8u>(0xFF00u >> rest);  // top `rest` bits
      dst[n / 8] = static_cast<Kel8u>((dst[n / 8] & ~mask) | (src[n / 8] & mask));
    }
    return kelStsOk;
  }
  // General case one bit at a time; offsets are rare and strings short.
  for (std::size_t i = 0; i < n; ++i) {
    const std::size_t sb = static_cast<std::size_t>(so) + i;
    const std::size_t db = static_cast<std::size_t>(dof) + i;
    const int bit = (src[sb / 8] >> (7 - sb % 8)) & 1;
    const Kel8u mask = static_cast<Kel8u>(0x80u >> (db % 8));
    dst[db / 8] = static_cast<Kel8u>(bit ? (dst[db / 8] | mask) : (dst[db / 8] & ~mask));
  }
  return kelStsOk;
}

// ---- Scaled interleaving of multi-channel audio.
// 16-bit: y = x * 32767.5 - 0.5 rounded to nearest even, |x| > 1 saturates,
// so -1.0 -> -32768 and 1.0 -> 32767. 24-bit: the same with 8388607.5,
// computed in double precision (the single-precision product would not hold
// 24 significant bits). The splits invert these maps: x = (v + 0.5) / k.

inline std::int32_t scale_f32_to_s24(float x) {
  if (x > 1.0f) return 8388607;
  if (x < -1.0f || std::isnan(x)) return -8388608;
  const double y = static_cast<double>(x) * 8388607.5 - 0.5;
  return static_cast<std::int32_t>(std::nearbyint(y));
}

inline void put24(Kel8u* p, std::int32_t v) {
  const std::uint32_t u = static_cast<std::uint32_t>(v);
  p[0] = static_cast<Kel8u>(u);
  p[1] = static_cast<Kel8u>(u >> 8);
  p[2] = static_cast<Kel8u>(u >> 16);
}

inline std::int32_t get24s(const Kel8u* p) {
  const std::uint32_t u = p[0] | (static_cast<std::uint32_t>(p[1]) << 8) |
                          (static_cast<std::uint32_t>(p[2]) << 16);
  return static_cast<std::int32_t>(u ^ 0x800000u) - 0x800000;  // sign-extend bit 23
}

// Checks shared by the multi-channel functions: the interleaved buffer, the
// channel array and every channel pointer, then the channel and frame counts.
template <class P>
KelStatus check_channels(const void* frames, P* const* ch, int channels, int len) {
  KELS_REQUIRE_PTRS(frames, ch);
  for (int c = 0; c < channels; ++c) {
    if (ch[c] == nullptr) return kelStsNullPtr;
  }
  KELS_REQUIRE_LEN(channels, len);
  return kelStsOk;
}

// Visits every sample of len frames of nc channels: fn(frame, channel,
// index in the interleaved buffer).
template <class Fn>
void for_each_sample(int channels, int len, Fn&& fn) {
  const std::size_t nc = static_cast<std::size_t>(channels), n = static_cast<std::size_t>(len);
  for (std::size_t i = 0; i < n; ++i) {
    for (std::size_t c = 0; c < nc; ++c) fn(i, c, i * nc + c);
  }
}

KelStatus join_scaled_16s(const Kel32f* const* src, int channels, int len, Kel16s* dst) {
  KELS_RETURN_IF_ERROR(check_channels(dst, src, channels, len));
  const std::size_t nc = static_cast<std::size_t>(channels), n = static_cast<std::size_t>(len);
  if (nc == 1) {
    scale_f32_to_s16(src[0], dst, n);
    return kelStsOk;
  }
  // Convert a block of each channel with the vector kernel, then interleave.
  constexpr std::size_t kBlock = 256;
  alignas(32) std::int16_t tmp[kBlock];
  for (std::size_t c = 0; c < nc; ++c) {
    for (std::size_t i = 0; i < n; i += kBlock) {
      const std::size_t m = n - i < kBlock ? n - i : kBlock;
      scale_f32_to_s16(src[c] + i, tmp, m);
      for (std::size_t k = 0; k < m; ++k) dst[(i + k) * nc + c] = tmp[k];
    }
  }
  return kelStsOk;
}

KelStatus join_scaled_24s(const Kel32f* const* src, int channels, int len, Kel8u* dst) {
  KELS_RETURN_IF_ERROR(check_channels(dst, src, channels, len));
  for_each_sample(channels, len, [&](std::size_t i, std::size_t c, std::size_t k) {
    put24(dst + 3 * k, scale_f32_to_s24(src[c][i]));
  });
  return kelStsOk;
}

KelStatus split_scaled_16s(const Kel16s* src, int channels, int len, Kel32f* const* dst) {
  KELS_RETURN_IF_ERROR(check_channels(src, dst, channels, len));
  for_each_sample(channels, len, [&](std::size_t i, std::size_t c, std::size_t k) {
    dst[c][i] = (static_cast<float>(src[k]) + 0.5f) / 32767.5f;
  });
  return kelStsOk;
}

KelStatus split_scaled_24s(const Kel8u* src, int channels, int len, Kel32f* const* dst) {
  KELS_RETURN_IF_ERROR(check_channels(src, dst, channels, len));
  for_each_sample(channels, len, [&](std::size_t i, std::size_t c, std::size_t k) {
    dst[c][i] = static_cast<float>((get24s(src + 3 * k) + 0.5) / 8388607.5);
  });
  return kelStsOk;
}

}  // namespace
}  // namespace kels

using namespace kels;

// ---- Member tables: (type code, element type[, part type]).

#define KELS_COPY_MEMBERS(X) \
  X(8u, Kel8u) X(16s, Kel16s) X(16sc, Kel16sc) X(32s, Kel32s) X(32sc, Kel32sc) X(32f, Kel32f) \
  X(32fc, Kel32fc) X(64s, Kel64s) X(64sc, Kel64sc) X(64f, Kel64f) X(64fc, Kel64fc)
// Move, Zero and Set share Copy's types (Copy adds only the bit string).
#define KELS_MOVE_MEMBERS(X) KELS_COPY_MEMBERS(X)
#define KELS_FILL_MEMBERS(X) KELS_COPY_MEMBERS(X)
#define KELS_CPLX_MEMBERS(X) X(16sc, 16s, Kel16sc, Kel16s) X(32fc, 32f, Kel32fc, Kel32f) X(64fc, 64f, Kel64fc, Kel64f)
#define KELS_FLIP_MEMBERS(X) X(8u, Kel8u) X(16u, Kel16u) X(32f, Kel32f) X(64f, Kel64f)
#define KELS_SWAP_MEMBERS(X) X(16u, Kel16u) X(32u, Kel32u) X(64u, Kel64u)

#define KELS_DEFINE_COPY(code, T)                                                     \
  KELS_EXPORT KelStatus kelsCopy_##code(const T* pSrc, T* pDst, int len) {           \
    return copy_family<T>(pSrc, pDst, len);                                           \
  }
#define KELS_DEFINE_MOVE(code, T)                                                     \
  KELS_EXPORT KelStatus kelsMove_##code(const T* pSrc, T* pDst, int len) {           \
    return move_family<T>(pSrc, pDst, len);                                           \
  }
#define KELS_DEFINE_FILL(code, T)                                                     \
  KELS_EXPORT KelStatus kelsZero_##code(T* pDst, int len) { return zero_family<T>(pDst, len); } \
  KELS_EXPORT KelStatus kelsSet_##code(T val, T* pDst, int len) { return set_family<T>(val, pDst, len); }
#define KELS_DEFINE_CPLX(ccode, rcode, C, R)                                                      \
  KELS_EXPORT KelStatus kelsCplxToReal_##ccode(const C* pSrc, R* pDstRe, R* pDstIm, int len) {   \
    return cplx_to_real_family<C, R>(pSrc, pDstRe, pDstIm, len);                                  \
  }                                                                                               \
  KELS_EXPORT KelStatus kelsRealToCplx_##rcode(const R* pSrcRe, const R* pSrcIm, C* pDst, int len) { \
    return real_to_cplx_family<R, C>(pSrcRe, pSrcIm, pDst, len);                                  \
  }                                                                                               \
  KELS_EXPORT KelStatus kelsReal_##ccode(const C* pSrc, R* pDstRe, int len) {                    \
    return checked_unary(pSrc, pDstRe, len, real_kernel<C, R>);                                                  \
  }                                                                                               \
  KELS_EXPORT KelStatus kelsImag_##ccode(const C* pSrc, R* pDstIm, int len) {                    \
    return checked_unary(pSrc, pDstIm, len, imag_kernel<C, R>);                                                  \
  }                                                                                               \
  KELS_EXPORT KelStatus kelsConj_##ccode(const C* pSrc, C* pDst, int len) {                      \
    return checked_unary(pSrc, pDst, len, conj_kernel<C>);                                                       \
  }                                                                                               \
  KELS_EXPORT KelStatus kelsConj_##ccode##_I(C* pSrcDst, int len) {                               \
    return checked_unary(pSrcDst, pSrcDst, len, conj_kernel<C>);                                  \
  }                                                                                               \
  KELS_EXPORT KelStatus kelsConjFlip_##ccode(const C* pSrc, C* pDst, int len) {                  \
    return checked_unary(pSrc, pDst, len, conj_flip_kernel<C>);                                                  \
  }
#define KELS_DEFINE_FLIP(code, T)                                                     \
  KELS_EXPORT KelStatus kelsFlip_##code(const T* pSrc, T* pDst, int len) {           \
    return checked_unary(pSrc, pDst, len, flip_kernel<T>);                                           \
  }                                                                                   \
  KELS_EXPORT KelStatus kelsFlip_##code##_I(T* pSrcDst, int len) {                   \
    return checked_unary(pSrcDst, pSrcDst, len, flip_kernel<T>);                      \
  }
#define KELS_DEFINE_SWAP(code, T)                                                     \
  KELS_EXPORT KelStatus kelsSwapBytes_##code(const T* pSrc, T* pDst, int len) {      \
    return checked_unary(pSrc, pDst, len, swap_kernel<T>);                                     \
  }                                                                                   \
  KELS_EXPORT KelStatus kelsSwapBytes_##code##_I(T* pSrcDst, int len) {              \
    return checked_unary(pSrcDst, pSrcDst, len, swap_kernel<T>);                                      \
  }

KELS_FOR_MEMBERS(KELS_COPY_MEMBERS, KELS_DEFINE_COPY)
KELS_FOR_MEMBERS(KELS_MOVE_MEMBERS, KELS_DEFINE_MOVE)
KELS_FOR_MEMBERS(KELS_FILL_MEMBERS, KELS_DEFINE_FILL)
KELS_FOR_MEMBERS(KELS_CPLX_MEMBERS, KELS_DEFINE_CPLX)
KELS_FOR_MEMBERS(KELS_FLIP_MEMBERS, KELS_DEFINE_FLIP)
KELS_FOR_MEMBERS(KELS_SWAP_MEMBERS, KELS_DEFINE_SWAP)

KELS_EXPORT KelStatus kelsCopy_1u(const Kel8u* pSrc, int srcBitOffset, Kel8u* pDst, int dstBitOffset,
                                  int len) {
  return copy_bits(pSrc, srcBitOffset, pDst, dstBitOffset, len);
}
KELS_EXPORT KelStatus kelsSwapBytes_24u(const Kel8u* pSrc, Kel8u* pDst, int len) {
  return swap_bytes_24(pSrc, pDst, len);
}
KELS_EXPORT KelStatus kelsSwapBytes_24u_I(Kel8u* pSrcDst, int len) {
  return swap_bytes_24(pSrcDst, pSrcDst, len);
}
KELS_EXPORT KelStatus kelsJoinScaled_32f16s_D2L(const Kel32f* const pSrc[], int nChannels, int len,
                                                Kel16s* pDst) {
  return join_scaled_16s(pSrc, nChannels, len, pDst);
}
KELS_EXPORT KelStatus kelsJoinScaled_32f24s_D2L(const Kel32f* const pSrc[], int nChannels, int len,
                                                Kel8u* pDst) {
  return join_scaled_24s(pSrc, nChannels, len, pDst);
}
KELS_EXPORT KelStatus kelsSplitScaled_16s32f_D2L(const Kel16s* pSrc, int nChannels, int len,
                                                 Kel32f* const pDst[]) {
  return split_scaled_16s(pSrc, nChannels, len, pDst);
}
KELS_EXPORT KelStatus kelsSplitScaled_24s32f_D2L(const Kel8u* pSrc, int nChannels, int len,
                                                 Kel32f* const pDst[]) {
  return split_scaled_24s(pSrc, nChannels, len, pDst);
}
