// Operations on packed spectra of real signals: products of two Pack or
// Perm arrays (used by FFT filtering and convolution), the Pack product
// with the conjugate of the in-place operand, and the expansion of Pack,
// Perm and CCS arrays into full complex spectra.
#include <cstdint>
#include <limits>
#include <type_traits>

#include "frame/common.h"
#include "frame/scale.h"
#include "kernels/fft_real.h"

namespace kels::packed {
namespace {

// Products of the real entries and of complex pairs, floating or scaled
// 16-bit (exact 64-bit products, then the scale-factor rule).
template <class T>
struct Arith {
  int sf = 0;
  T real(T a, T b) const {
    if constexpr (std::is_floating_point_v<T>) {
      return a * b;
    } else {
      return scale_rule<T>(std::int64_t{a} * b, sf);
    }
  }
  // (ar + i ai)(br + i bi), or with conj(b) when `conj_b`.
  void cplx(T ar, T ai, T br, T bi, bool conj_b, T* re, T* im) const {
    if constexpr (std::is_floating_point_v<T>) {
      if (conj_b) {
        *re = ar * br + ai * bi;
        *im = ai * br - ar * bi;
      } else {
        *re = ar * br - ai * bi;
        *im = ar * bi + ai * br;
      }
    } else {
      const std::int64_t rr = std::int64_t{ar} * br, ii = std::int64_t{ai} * bi;
      const std::int64_t ri = std::int64_t{ar} * bi, ir = std::int64_t{ai} * br;
      *re = scale_rule<T>(conj_b ? rr + ii : rr - ii, sf);
      *im = scale_rule<T>(conj_b ? ir - ri : ri + ir, sf);
    }
  }
};

// Pack: [0] real, pairs from index 1, [len-1] real when len is even.
// Perm: [0] real, [1] real when len is even with pairs from 2, else pairs
// from 1. `first_pair` is the index of the first pair, `nyq` the index of
// the second real entry (or -1).
struct Shape {
  int first_pair, pairs, nyq;
};
Shape pack_shape(int len) { return {1, (len - 1) / 2, len % 2 == 0 ? len - 1 : -1}; }
Shape perm_shape(int len) {
  return len % 2 == 0 ? Shape{2, (len - 2) / 2, len > 1 ? 1 : -1} : Shape{1, (len - 1) / 2, -1};
}

template <class T>
KelStatus mul(const T* a, const T* b, T* d, int len, bool perm, bool conj_b, int sf) {
  KELS_REQUIRE_PTRS(a, b, d);
  KELS_REQUIRE_LEN(len);
  const Arith<T> ar{sf};
  const Shape s = perm ? perm_shape(len) : pack_shape(len);
  // The pairs first: in place, d is b, and the real entries lie outside them.
  if constexpr (std::is_floating_point_v<T>) {
    kernels::mul_packed_pairs(a + s.first_pair, b + s.first_pair, d + s.first_pair,
                       static_cast<std::size_t>(s.pairs), conj_b);
  }
  d[0] = ar.real(a[0], b[0]);
  if (s.nyq >= 0) d[s.nyq] = ar.real(a[s.nyq], b[s.nyq]);
  for (int p = 0; p < (std::is_floating_point_v<T> ? 0 : s.pairs); ++p) {
    const int i = s.first_pair + 2 * p;
    T re, im;
    ar.cplx(a[i], a[i + 1], b[i], b[i + 1], conj_b, &re, &im);
    d[i] = re;
    d[i + 1] = im;
  }
  return kelStsOk;
}

template <class T>
T neg(T v) {
  if constexpr (std::is_floating_point_v<T>) {
    return -v;
  } else {
    return v == std::numeric_limits<T>::min() ? std::numeric_limits<T>::max() : static_cast<T>(-v);
  }
}

enum class Layout { Pack, Perm, Ccs };

// Expansion of the packed spectrum src (reals) into len complex values at
// dst (pairs of T). Everything an element needs is read before the element
// is written, and elements are written from the top down, so dst may start
// at src (in place).
template <class T>
KelStatus expand(const T* src, T* dst, int len, Layout lay) {
  KELS_REQUIRE_PTRS(src, dst);
  KELS_REQUIRE_LEN(len);
  const bool even = len % 2 == 0;
  // Position of R[k] (I[k] follows) for 1 <= k < len/2 (or <= (len-1)/2).
  auto at = [&](int k) {
    if (lay == Layout::Ccs || (lay == Layout::Perm && even)) return 2 * k;
    return 2 * k - 1;
  };
  T nyq = 0;
  if (even && len > 1) nyq = lay == Layout::Ccs ? src[len] : lay == Layout::Perm ? src[1] : src[len - 1];
  const T r0 = src[0];
  const int half = (len - 1) / 2;  // complex pairs in the packed array
  // Mirrors first: they lie above every packed value.
  for (int k = half; k >= 1; --k) {
    const T re = src[at(k)], im = src[at(k) + 1];
    dst[2 * (len - k)] = re;
    dst[2 * (len - k) + 1] = neg(im);
  }
  if (even && len > 1) {
    dst[len] = nyq;
    dst[len + 1] = 0;
  }
  for (int k = half; k >= 1; --k) {
    const T re = src[at(k)], im = src[at(k) + 1];
    dst[2 * k] = re;
    dst[2 * k + 1] = im;
  }
  dst[0] = r0;
  dst[1] = 0;
  return kelStsOk;
}

}  // namespace
}  // namespace kels::packed

using kels::packed::Layout;

// (code, type, in-place/out-of-place names carry the scale factor for 16s)
#define KELS_MULPACK_FLOAT_MEMBERS(X) X(32f, Kel32f) X(64f, Kel64f)
#define KELS_DEFINE_MULPACK_FLOAT(code, T)                                                       \
  KELS_EXPORT KelStatus kelsMulPack_##code(const T* pSrc1, const T* pSrc2, T* pDst, int len) {   \
    return kels::packed::mul<T>(pSrc1, pSrc2, pDst, len, false, false, 0);                       \
  }                                                                                              \
  KELS_EXPORT KelStatus kelsMulPack_##code##_I(const T* pSrc, T* pSrcDst, int len) {             \
    return kels::packed::mul<T>(pSrc, pSrcDst, pSrcDst, len, false, false, 0);                   \
  }                                                                                              \
  KELS_EXPORT KelStatus kelsMulPerm_##code(const T* pSrc1, const T* pSrc2, T* pDst, int len) {   \
    return kels::packed::mul<T>(pSrc1, pSrc2, pDst, len, true, false, 0);                        \
  }                                                                                              \
  KELS_EXPORT KelStatus kelsMulPerm_##code##_I(const T* pSrc, T* pSrcDst, int len) {             \
    return kels::packed::mul<T>(pSrc, pSrcDst, pSrcDst, len, true, false, 0);                    \
  }                                                                                              \
  KELS_EXPORT KelStatus kelsMulPackConj_##code##_I(const T* pSrc, T* pSrcDst, int len) {         \
    return kels::packed::mul<T>(pSrc, pSrcDst, pSrcDst, len, false, true, 0);                    \
  }
KELS_FOR_MEMBERS(KELS_MULPACK_FLOAT_MEMBERS, KELS_DEFINE_MULPACK_FLOAT)

KELS_EXPORT KelStatus kelsMulPack_16s_Sfs(const Kel16s* pSrc1, const Kel16s* pSrc2, Kel16s* pDst, int len,
                                          int scaleFactor) {
  return kels::packed::mul<Kel16s>(pSrc1, pSrc2, pDst, len, false, false, scaleFactor);
}
KELS_EXPORT KelStatus kelsMulPack_16s_ISfs(const Kel16s* pSrc, Kel16s* pSrcDst, int len, int scaleFactor) {
  return kels::packed::mul<Kel16s>(pSrc, pSrcDst, pSrcDst, len, false, false, scaleFactor);
}
KELS_EXPORT KelStatus kelsMulPerm_16s_Sfs(const Kel16s* pSrc1, const Kel16s* pSrc2, Kel16s* pDst, int len,
                                          int scaleFactor) {
  return kels::packed::mul<Kel16s>(pSrc1, pSrc2, pDst, len, true, false, scaleFactor);
}
KELS_EXPORT KelStatus kelsMulPerm_16s_ISfs(const Kel16s* pSrc, Kel16s* pSrcDst, int len, int scaleFactor) {
  return kels::packed::mul<Kel16s>(pSrc, pSrcDst, pSrcDst, len, true, false, scaleFactor);
}

// (complex code, real type, complex type)
#define KELS_CONJPACK_MEMBERS(X) X(32fc, Kel32f, Kel32fc) X(64fc, Kel64f, Kel64fc) X(16sc, Kel16s, Kel16sc)
#define KELS_DEFINE_CONJ_LAYOUT(name, lay, code, R, C)                                           \
  KELS_EXPORT KelStatus kels##name##_##code(const R* pSrc, C* pDst, int len) {                   \
    return kels::packed::expand<R>(pSrc, reinterpret_cast<R*>(pDst), len, lay);                  \
  }                                                                                              \
  KELS_EXPORT KelStatus kels##name##_##code##_I(C* pSrcDst, int len) {                           \
    R* p = reinterpret_cast<R*>(pSrcDst);                                                        \
    return kels::packed::expand<R>(p, p, len, lay);                                              \
  }
#define KELS_DEFINE_CONJPACK(code, R, C)                    \
  KELS_DEFINE_CONJ_LAYOUT(ConjPack, Layout::Pack, code, R, C) \
  KELS_DEFINE_CONJ_LAYOUT(ConjPerm, Layout::Perm, code, R, C) \
  KELS_DEFINE_CONJ_LAYOUT(ConjCcs, Layout::Ccs, code, R, C)
KELS_FOR_MEMBERS(KELS_CONJPACK_MEMBERS, KELS_DEFINE_CONJPACK)
