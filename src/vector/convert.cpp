// Type conversion: widening, narrowing with scale and saturation, float to
// integer in a caller-chosen rounding mode, 24-bit packed integers and half
// precision.
#include <xmmintrin.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "frame/common.h"
#include "kelcore.h"
#include "kernels/convert.h"

namespace kels {
namespace {

namespace ks = kernels::scalar;

// Element formats without a C type of their own: half precision travels as
// Kel16u, packed 24-bit integers as the bytes (Kel8u) of each element.
struct F16 {};
struct U24 { static constexpr std::int32_t lo = 0, hi = 16777215; };
struct S24 { static constexpr std::int32_t lo = -8388608, hi = 8388607; };

template <class T> struct storage_of { using type = T; };
template <> struct storage_of<F16> { using type = Kel16u; };
template <> struct storage_of<U24> { using type = Kel8u; };
template <> struct storage_of<S24> { using type = Kel8u; };
template <class T> using storage_t = typename storage_of<T>::type;

template <class T> constexpr bool is_packed24 = std::is_same_v<T, U24> || std::is_same_v<T, S24>;

// ---- Rounding control. The float-to-integer conversions run with the SSE
// rounding field set to the requested mode and the invalid and precision
// flags cleared; the caller's register comes back on return unless the
// only change is a raised precision flag (which is left for the caller to
// see, as after any inexact arithmetic).
constexpr unsigned kSseInvalid = 0x0001u, kSsePrecision = 0x0020u;

class SseRounding {
 public:
  // One register write at most on entry and on exit: the register is only
  // loaded when it must change (writes to it stall the pipeline).
  explicit SseRounding(int rndMode) : prev_(_mm_getcsr()) {
    const unsigned rc = rndMode == 1 ? KEL_SSX_RC_NEAR : KEL_SSX_RC_ZERO;
    const unsigned next = (prev_ & ~(KEL_SSX_RC_MASK | kSseInvalid | kSsePrecision)) | rc;
    if (next != prev_) kel_set_cw_ssx(next);
  }
  ~SseRounding() {
    if (((_mm_getcsr() ^ prev_) & ~kSsePrecision) != 0) kel_set_cw_ssx(prev_);
  }
  SseRounding(const SseRounding&) = delete;
  SseRounding& operator=(const SseRounding&) = delete;

 private:
  unsigned prev_;
};

// The x87 unit with 64-bit precision and the requested rounding, restored
// to the caller's control word on return.
class FpuRounding {
 public:
  explicit FpuRounding(int rndMode)
      : prev_(kel_set_rcpc_fpu((rndMode == 1 ? KEL_FPU_RC_NEAR : KEL_FPU_RC_ZERO) | KEL_FPU_PC_64)) {}
  ~FpuRounding() { kel_set_cw_fpu(prev_); }
  FpuRounding(const FpuRounding&) = delete;
  FpuRounding& operator=(const FpuRounding&) = delete;

 private:
  unsigned prev_;
};

// ---- Scale factors of the integer-to-float forms: 2^-s built from the
// exponent field, s clamped so that the factor is a normal number (the
// clamp -112..126 of the single-precision forms is part of the interface;
// the double forms clamp to the whole normal range, -1023..1022).
float factor_f32(int sf) {
  const int s = std::clamp(sf, -112, 126);
  return ks::bits_float(static_cast<std::uint32_t>(127 - s) << 23);
}

double factor_f64(int sf) {
  const int s = std::clamp(sf, -1023, 1022);
  return std::ldexp(1.0, -s);
}

// Integer narrowing clamps the scale factor to -15..31 (32-bit sources).
int clamp_narrow(int sf) { return std::clamp(sf, -15, 31); }

// Processes n elements in blocks through a stack buffer of T: half
// precision and 16s <-> 16f go through single precision, which holds both
// exactly; packed 24-bit data through 32-bit integers.
template <class T, class F>
void through(std::size_t n, F&& step) {
  constexpr std::size_t kBlock = 512;
  alignas(64) T tmp[kBlock];
  for (std::size_t i = 0; i < n; i += kBlock) step(i, std::min(kBlock, n - i), tmp);
}

// ---- Forms without modifiers.
template <class S, class D>
void run_plain(const storage_t<S>* src, storage_t<D>* dst, std::size_t n) {
  if constexpr (is_packed24<S> && std::is_same_v<D, Kel32f>) {
    through<std::int32_t>(n, [&](std::size_t i, std::size_t m, std::int32_t* tmp) {
      kernels::unpack24(src + 3 * i, tmp, m, std::is_same_v<S, S24>);
      kernels::to_float(tmp, dst + i, m, 1.0f);  // exact: below 2^24
    });
  } else if constexpr (is_packed24<S>) {
    kernels::unpack24(src, reinterpret_cast<std::int32_t*>(dst), n, std::is_same_v<S, S24>);
  } else if constexpr (std::is_same_v<S, F16>) {
    kernels::f16_to_f32(src, dst, n);
  } else if constexpr (std::is_same_v<S, Kel64f>) {
    kernels::f64_to_f32_sat(src, dst, n);
  } else if constexpr (std::is_same_v<S, Kel32s> && std::is_same_v<D, Kel16s>) {
    kernels::s32_to_s16_scaled(src, dst, n, 0);
  } else if constexpr (std::is_same_v<D, Kel32f>) {
    kernels::to_float(src, dst, n, 1.0f);
  } else if constexpr (std::is_same_v<D, Kel64f> && std::is_integral_v<S>) {
    kernels::to_double(src, dst, n, 1.0);
  } else {
    kernels::widen(src, dst, n);
  }
}

// ---- Forms with a scale factor only.
template <class S, class D>
void run_sfs(const storage_t<S>* src, storage_t<D>* dst, std::size_t n, int sf) {
  if constexpr (std::is_same_v<D, Kel32f>) {
    kernels::to_float(src, dst, n, factor_f32(sf));
  } else if constexpr (std::is_same_v<D, Kel64f>) {
    kernels::to_double(src, dst, n, factor_f64(sf));
  } else if constexpr (std::is_same_v<D, Kel16s>) {
    kernels::s32_to_s16_scaled(src, dst, n, clamp_narrow(sf));
  } else if constexpr (std::is_same_v<S, Kel64s>) {
    // 64-bit sources: the exact rule for every scale factor.
    for (std::size_t i = 0; i < n; ++i) dst[i] = static_cast<D>(ks::narrow_model(src[i], sf, INT32_MIN, INT32_MAX));
  } else if constexpr (std::is_same_v<S, Kel32f>) {
    // Single precision to packed 24-bit: the float-to-integer rule with
    // rounding to nearest even, saturated to 32 bits and then (monotonic,
    // so the same as saturating once) to 24 bits.
    SseRounding mode(1);
    through<std::int32_t>(n, [&](std::size_t i, std::size_t m, std::int32_t* tmp) {
      kernels::f32_to_int(src + i, tmp, m, sf, true);
      kernels::s32_to_24_scaled(tmp, dst + 3 * i, m, 0, D::lo, D::hi);
    });
  } else if constexpr (std::is_same_v<S, Kel32s>) {
    kernels::s32_to_24_scaled(src, dst, n, clamp_narrow(sf), D::lo, D::hi);
  } else {
    const int s = clamp_narrow(sf);  // 32u sources: beyond the int32 lanes of the kernel
    for (std::size_t i = 0; i < n; ++i) ks::put24(dst + 3 * i, ks::narrow_model(src[i], s, D::lo, D::hi));
  }
}

// ---- Float to integer with a rounding mode and a scale factor.
template <class S, class D>
void run_rnd_sfs(const storage_t<S>* src, D* dst, std::size_t n, int rnd, int sf) {
  const bool nearest = rnd == 1;
  if constexpr (std::is_same_v<S, Kel64f>) {
    FpuRounding mode(rnd);
    const long double factor = std::ldexp(1.0L, -std::clamp(sf, -1200, 1200));
    for (std::size_t i = 0; i < n; ++i) {
      const long double y = static_cast<long double>(src[i]) * factor;
      dst[i] = std::isnan(y) ? INT32_MIN
                             : static_cast<D>(std::llrint(std::clamp(y, -2147483648.0L, 2147483647.0L)));
    }
  } else if constexpr (std::is_same_v<S, F16>) {
    SseRounding mode(rnd);
    through<float>(n, [&](std::size_t i, std::size_t m, float* tmp) {
      kernels::f16_to_f32(src + i, tmp, m);
      kernels::f32_to_int(tmp, dst + i, m, sf, nearest);
    });
  } else {
    SseRounding mode(rnd);
    kernels::f32_to_int(src, dst, n, sf, nearest);
  }
}

// ---- To half precision with a rounding mode.
template <class S, class D>
void run_rnd(const S* src, Kel16u* dst, std::size_t n, int rnd) {
  SseRounding mode(rnd);
  const bool nearest = rnd == 1;
  if constexpr (std::is_same_v<S, Kel32f>) {
    kernels::f32_to_f16(src, dst, n, nearest);
  } else {
    through<float>(n, [&](std::size_t i, std::size_t m, float* tmp) {
      kernels::to_float(src + i, tmp, m, 1.0f);
      kernels::f32_to_f16(tmp, dst + i, m, nearest);
    });
  }
}

// Every conversion checks the two pointers and the length, and nothing
// else: out-of-range values saturate.
template <class S, class D>
KelStatus convert(const storage_t<S>* src, storage_t<D>* dst, int len) {
  KELS_REQUIRE_PTRS(src, dst);
  KELS_REQUIRE_LEN(len);
  run_plain<S, D>(src, dst, static_cast<std::size_t>(len));
  return kelStsOk;
}

template <class S, class D>
KelStatus convert_sfs(const storage_t<S>* src, storage_t<D>* dst, int len, int sf) {
  KELS_REQUIRE_PTRS(src, dst);
  KELS_REQUIRE_LEN(len);
  run_sfs<S, D>(src, dst, static_cast<std::size_t>(len), sf);
  return kelStsOk;
}

template <class S, class D>
KelStatus convert_rnd_sfs(const storage_t<S>* src, D* dst, int len, int rnd, int sf) {
  KELS_REQUIRE_PTRS(src, dst);
  KELS_REQUIRE_LEN(len);
  run_rnd_sfs<S, D>(src, dst, static_cast<std::size_t>(len), rnd, sf);
  return kelStsOk;
}

template <class S, class D>
KelStatus convert_rnd(const S* src, Kel16u* dst, int len, int rnd) {
  KELS_REQUIRE_PTRS(src, dst);
  KELS_REQUIRE_LEN(len);
  run_rnd<S, D>(src, dst, static_cast<std::size_t>(len), rnd);
  return kelStsOk;
}

}  // namespace
}  // namespace kels

using namespace kels;

// ---- Member tables: (name part, source format, destination format).
#define KELS_CONVERT_MEMBERS(X)                                                                 \
  X(8s16s, Kel8s, Kel16s) X(8s32f, Kel8s, Kel32f) X(8u32f, Kel8u, Kel32f)                       \
  X(16s32s, Kel16s, Kel32s) X(16s32f, Kel16s, Kel32f) X(16u32f, Kel16u, Kel32f)                 \
  X(32s16s, Kel32s, Kel16s) X(32s32f, Kel32s, Kel32f) X(32s64f, Kel32s, Kel64f)                 \
  X(32f64f, Kel32f, Kel64f) X(64f32f, Kel64f, Kel32f) X(16f32f, F16, Kel32f)                    \
  X(24u32u, U24, Kel32u) X(24s32s, S24, Kel32s) X(24u32f, U24, Kel32f) X(24s32f, S24, Kel32f)
#define KELS_CONVERT_SFS_MEMBERS(X)                                                             \
  X(16s32f, Kel16s, Kel32f) X(16s64f, Kel16s, Kel64f) X(32s16s, Kel32s, Kel16s)                 \
  X(32s32f, Kel32s, Kel32f) X(32s64f, Kel32s, Kel64f) X(64s32s, Kel64s, Kel32s)                 \
  X(32u24u, Kel32u, U24) X(32s24s, Kel32s, S24) X(32f24u, Kel32f, U24) X(32f24s, Kel32f, S24)
#define KELS_CONVERT_RND_SFS_MEMBERS(X)                                                         \
  X(32f8s, Kel32f, Kel8s) X(32f8u, Kel32f, Kel8u) X(32f16s, Kel32f, Kel16s)                     \
  X(32f16u, Kel32f, Kel16u) X(32f32s, Kel32f, Kel32s) X(64f32s, Kel64f, Kel32s)                 \
  X(16f16s, F16, Kel16s)
#define KELS_CONVERT_RND_MEMBERS(X) X(32f16f, Kel32f, F16) X(16s16f, Kel16s, F16)

#define KELS_DEFINE_CONVERT(name, S, D)                                                         \
  KELS_EXPORT KelStatus kelsConvert_##name(const storage_t<S>* pSrc, storage_t<D>* pDst, int len) { \
    return convert<S, D>(pSrc, pDst, len);                                                      \
  }
#define KELS_DEFINE_CONVERT_SFS(name, S, D)                                                     \
  KELS_EXPORT KelStatus kelsConvert_##name##_Sfs(const storage_t<S>* pSrc, storage_t<D>* pDst, int len, \
                                                 int scaleFactor) {                             \
    return convert_sfs<S, D>(pSrc, pDst, len, scaleFactor);                                     \
  }
#define KELS_DEFINE_CONVERT_RND_SFS(name, S, D)                                                 \
  KELS_EXPORT KelStatus kelsConvert_##name##_Sfs(const storage_t<S>* pSrc, D* pDst, int len, int rndMode, \
                                                 int scaleFactor) {                             \
    return convert_rnd_sfs<S, D>(pSrc, pDst, len, rndMode, scaleFactor);                        \
  }
#define KELS_DEFINE_CONVERT_RND(name, S, D)                                                     \
  KELS_EXPORT KelStatus kelsConvert_##name(const S* pSrc, Kel16u* pDst, int len, int rndMode) { \
    return convert_rnd<S, D>(pSrc, pDst, len, rndMode);                                         \
  }

KELS_FOR_MEMBERS(KELS_CONVERT_MEMBERS, KELS_DEFINE_CONVERT)
KELS_FOR_MEMBERS(KELS_CONVERT_SFS_MEMBERS, KELS_DEFINE_CONVERT_SFS)
KELS_FOR_MEMBERS(KELS_CONVERT_RND_SFS_MEMBERS, KELS_DEFINE_CONVERT_RND_SFS)
KELS_FOR_MEMBERS(KELS_CONVERT_RND_MEMBERS, KELS_DEFINE_CONVERT_RND)
