// Real FFT of length N = 2^order into the packed layouts Perm, Pack and CCS,
// and back. Order >= 4 runs the complex transform of order - 1 on the signal
// viewed as N/2 complex values, z[m] = x[2m] + i x[2m+1], then recombines
// the pairs Z[k], Z[N/2 - k] with the record's factors (kernels/fft_real.h),
// which also apply the scale and write the target layout.
#include <cstdint>
#include <cstring>

#include "frame/common.h"
#include "kernels/fft_real.h"
#include "transform/fft_record.h"
#include "transform/fft_small.h"

namespace kels::fft {
namespace {

enum class Layout { Perm, Pack, Ccs };

// Perm (as computed) to the requested layout, in place in dst (N + 2 values
// for CCS).
template <class T>
void from_perm(T* d, std::size_t n, Layout lay) {
  if (lay == Layout::Pack && n > 2) {
    const T nyq = d[1];
    std::memmove(d + 1, d + 2, (n - 2) * sizeof(T));
    d[n - 1] = nyq;
  } else if (lay == Layout::Ccs) {
    if (n > 1) {
      d[n] = d[1];
      d[n + 1] = 0;
    }
    d[1] = 0;
  }
}

// The requested layout to Perm: src (N values, N + 2 for CCS) into dst (N
// values); src may equal dst.
template <class T>
void to_perm(const T* s, T* d, std::size_t n, Layout lay) {
  if (n == 1) {
    d[0] = s[0];
    return;
  }
  if (lay == Layout::Pack) {
    const T nyq = s[n - 1];
    std::memmove(d + 2, s + 1, (n - 2) * sizeof(T));
    d[0] = s[0];
    d[1] = nyq;
  } else {
    const T nyq = lay == Layout::Ccs ? s[n] : s[1];
    if (s != d) std::memcpy(d + 2, s + 2, (n - 2) * sizeof(T));
    d[0] = s[0];
    d[1] = nyq;
  }
}

template <class T>
const Header<T>* real_header(const void* record) {
  return static_cast<const Header<T>*>(record);
}

// Orders 0..3: the complex straight-line transform of the real data, the
// non-redundant half written as Perm.
template <class T>
void small_forward(int order, const T* src, T* dst, bool scaled, T scale) {
  const int n = 1 << order;
  Cx<T> x[8];
  for (int i = 0; i < n; ++i) x[i] = {src[i], T(0)};
  small_dft(order, x, false);
  const T s = scaled ? scale : T(1);
  dst[0] = x[0].r * s;
  if (n == 1) return;
  dst[1] = x[n / 2].r * s;
  for (int k = 1; k < n / 2; ++k) {
    dst[2 * k] = x[k].r * s;
    dst[2 * k + 1] = x[k].i * s;
  }
}

template <class T>
void small_inverse(int order, const T* perm, T* dst, bool scaled, T scale) {
  const int n = 1 << order;
  Cx<T> x[8];
  x[0] = {perm[0], T(0)};
  if (n > 1) x[n / 2] = {perm[1], T(0)};
  for (int k = 1; k < n / 2; ++k) {
    x[k] = {perm[2 * k], perm[2 * k + 1]};
    x[n - k] = {perm[2 * k], -perm[2 * k + 1]};
  }
  small_dft(order, x, true);
  for (int i = 0; i < n; ++i) dst[i] = scaled ? x[i].r * scale : x[i].r;
}

// The half-length complex transform, unscaled (the recombination scales).
template <class T>
void run_complex(const Header<T>* h, int corder, const T* src, T* dst, T* work, bool inv) {
  const bool dbl = sizeof(T) == 8;
  if (corder == 3) {
    // The half-length transform of order 4 is straight-line code, expanded
    // here for its one size.
    Cx<T> z[8];
    for (int i = 0; i < 8; ++i) z[i] = {src[2 * i], src[2 * i + 1]};
    small_dft(3, z, inv);
    for (int i = 0; i < 8; ++i) {
      dst[2 * i] = z[i].r;
      dst[2 * i + 1] = z[i].i;
    }
    return;
  }
  if (corder <= leaf_max(dbl) && src != dst &&
      kernels::fft_small_interleaved(src, dst, corder, h->template at<T>(h->twiddle),
                                     h->template at<std::uint32_t>(h->bitrev), inv, false,
                                     T(1))) {
    return;
  }
  const kernels::FftPlan<T> plan = plan_of(h, corder, dbl);
  const kernels::FftArgs<T> args{src, src + 1, dst, dst + 1, work, inv, false, T(1)};
  kernels::fft_interleaved(plan, args);
}

// Order 4 (an 8-point half-length transform) keeps the half-length spectrum
// in registers and a local array and recombines it with the twin straight
// into the layout: at this size the vector kernel's loads would wait for
// the scalar stores just made.
constexpr int kLocalOrder = 4;

// Whether the half-length transform of a real record of this order is a
// single leaf, whose record work area holds its N values and which, out of
// place, leaves the work area unused.
template <class T>
bool half_is_leaf(int order, const T* work) {
  return order - 1 <= leaf_max(sizeof(T) == 8) && work != nullptr;
}

// Forward transform of checked arguments; src and dst may be equal. From
// order 5 the half-length spectrum Z is computed into dst and recombined in
// place: X[k] (0 < k < N/2) lands where Z[k] was, which is its place in Perm
// and CCS. Pack, one value lower, takes Z from the work area when the
// half-length transform is a single leaf, and otherwise moves the block down
// by one value.
template <class T>
void forward_run(const Header<T>* h, const T* src, T* dst, T* work, Layout lay) {
  const int order = h->order;
  const std::size_t n = std::size_t{1} << order;
  const bool scaled = h->scale_fwd != 0;
  if (order < 4) {
    T tmp[8];
    small_forward(order, src, tmp, scaled, h->scale());
    std::memcpy(dst, tmp, n * sizeof(T));
    from_perm(dst, n, lay);
    return;
  }
  if constexpr (sizeof(T) == 4) {
    // Sixteen values: the whole spectrum from one in-register transform.
    alignas(32) float x[32];
    if (order == 4 && kernels::fft_real16_forward(src, x)) {
      const T s = scaled ? h->scale() : T(1);
      T* out = dst + (lay == Layout::Pack ? 1 : 2);
      for (int i = 2; i < 16; ++i) out[i - 2] = x[i] * s;
      dst[0] = x[0] * s;
      const T xm = x[16] * s;
      if (lay == Layout::Perm) {
        dst[1] = xm;
      } else if (lay == Layout::Ccs) {
        dst[1] = 0;
        dst[16] = xm;
        dst[17] = 0;
      } else {
        dst[15] = xm;
      }
      return;
    }
  }
  T local[16];
  T* z = order == kLocalOrder ? local : lay == Layout::Pack && half_is_leaf(order, work) ? work : dst;
  run_complex(h, order - 1, src, z, z == work ? nullptr : work, false);
  const T s = scaled ? h->scale() : T(1);
  const T* u = h->template at<T>(h->real_recombine);
  const T z0r = z[0], z0i = z[1];
  T* out = dst + (lay == Layout::Pack ? 1 : 2);
  if (z == local) {
    kernels::scalar::real_recombine(z + 2, out, n / 2, u, T(-0.5), s * T(0.5), s);
  } else {
    kernels::real_recombine(z + 2, z == dst ? z + 2 : out, n / 2, u, T(-0.5), s * T(0.5), s);
    if (z == dst && lay == Layout::Pack) std::memmove(dst + 1, dst + 2, (n - 2) * sizeof(T));
  }
  const T x0 = (z0r + z0i) * s, xm = (z0r - z0i) * s;
  dst[0] = x0;
  if (lay == Layout::Perm) {
    dst[1] = xm;
  } else if (lay == Layout::Ccs) {
    dst[1] = 0;
    dst[n] = xm;
    dst[n + 1] = 0;
  } else {
    dst[n - 1] = xm;
  }
}

// Inverse transform of checked arguments; src and dst may be equal. From
// order 5 the recombination reads X from src in its layout and writes Z
// (scaled) into the work area when the half-length transform is a single
// leaf, so that the complex inverse runs out of place into dst with its
// permutation fused into the first pass; larger orders write Z into dst
// and transform it in place.
template <class T>
void inverse_run(const Header<T>* h, const T* src, T* dst, T* work, Layout lay) {
  const int order = h->order;
  const std::size_t n = std::size_t{1} << order;
  const bool scaled = h->scale_inv != 0;
  if (order < 4) {
    T perm[8];
    to_perm(src, perm, n, lay);
    small_inverse(order, perm, dst, scaled, h->scale());
    return;
  }
  const T s = scaled ? h->scale() : T(1);
  const T* u = h->template at<T>(h->ccs_recombine);
  const T r0 = src[0];
  const T rm = lay == Layout::Perm ? src[1] : lay == Layout::Pack ? src[n - 1] : src[n];
  T local[16];
  T* z = order == kLocalOrder ? local : half_is_leaf(order, work) ? work : dst;
  // X[1] of Pack is one value lower than in the other layouts; in place the
  // block moves up first so that every pair is read where it is written.
  const T* in = src + 2;
  if (lay == Layout::Pack) {
    if (src == z) std::memmove(z + 2, z + 1, (n - 2) * sizeof(T));
    else in = src + 1;
  }
  if (z == local) kernels::scalar::real_recombine(in, z + 2, n / 2, u, T(-1), s, s);
  else kernels::real_recombine(in, z + 2, n / 2, u, T(-1), s, s);
  z[0] = (r0 + rm) * s;
  z[1] = (r0 - rm) * s;
  run_complex(h, order - 1, z, dst, z == work ? nullptr : work, true);
}

template <class T>
KelStatus transform(const void* record, std::uint32_t id, const T* src, T* dst, Kel8u* buf, Layout lay,
                    bool inv) {
  KELS_REQUIRE_PTRS(record);
  KELS_REQUIRE_ID(record, id);
  KELS_REQUIRE_PTRS(src, dst);
  const Header<T>* h = real_header<T>(record);
  const WorkArea work(buf, h->order < 4 ? 0 : h->work_bytes);
  if (work.failed()) return kelStsNoMemory;
  if (inv) inverse_run(h, src, dst, work.as<T>(), lay);
  else forward_run(h, src, dst, work.as<T>(), lay);
  return kelStsOk;
}

// Integer real transforms (I in, O out): the data are converted exactly to
// double precision in the work area, transformed there in place with the
// double-precision record, and rounded (with 2^-scaleFactor) and saturated
// into the destination; same error budget as the integer complex transforms.
template <class I, class O>
KelStatus int_transform(const void* record, std::uint32_t id, const I* src, O* dst, int sf, Kel8u* buf,
                        Layout lay, bool inv) {
  KELS_REQUIRE_PTRS(record);
  KELS_REQUIRE_ID(record, id);
  KELS_REQUIRE_PTRS(src, dst);
  const Header<double>* h = real_header<double>(record);
  const std::size_t n = std::size_t{1} << h->order;
  // CCS holds N + 2 values, except R[0], 0 for N = 1.
  const std::size_t packed = lay == Layout::Ccs ? (n == 1 ? 2 : n + 2) : n;
  const std::size_t in_len = inv ? packed : n, out_len = inv ? n : packed;
  const WorkArea work(h->order < 4 ? nullptr : buf, h->order < 4 ? 0 : h->work_bytes);
  if (work.failed()) return kelStsNoMemory;
  double local[10];
  // N + 2 doubles of data, then (16-byte aligned, 16N bytes from the start)
  // the double-precision work.
  double* x = h->order < 4 ? local : work.as<double>();
  double* dwork = h->order < 4 ? nullptr : x + 2 * n;
  for (std::size_t i = 0; i < in_len; ++i) x[i] = static_cast<double>(src[i]);
  if (inv) inverse_run(h, x, x, dwork, lay);
  else forward_run(h, x, x, dwork, lay);
  for (std::size_t i = 0; i < out_len; ++i) dst[i] = round_saturate<O>(std::ldexp(x[i], -sf));
  return kelStsOk;
}

}  // namespace
}  // namespace kels::fft

using kels::fft::Layout;

// (type code, element type, record family, identifier)
#define KELS_FFT_REAL_MEMBERS(X) X(32f, Kel32f, R_32f, 6u) X(64f, Kel64f, R_64f, 9u)
#define KELS_FFT_REAL_INT_MEMBERS(X) X(16s, Kel16s, R_16s, 3u) X(32s, Kel32s, R_32s, 0x4C4D5366u)

#define KELS_DEFINE_FFT_REAL_ONE(dir, name, inv, lay, code, T, fam, id)                              \
  KELS_EXPORT KelStatus kelsFFT##dir##_##name##_##code(const T* pSrc, T* pDst,                        \
                                                       const KelsFFTSpec_##fam* pSpec, Kel8u* pBuffer) { \
    return kels::fft::transform<T>(pSpec, id, pSrc, pDst, pBuffer, lay, inv);                          \
  }                                                                                                   \
  KELS_EXPORT KelStatus kelsFFT##dir##_##name##_##code##_I(T* pSrcDst, const KelsFFTSpec_##fam* pSpec,  \
                                                           Kel8u* pBuffer) {                          \
    return kelsFFT##dir##_##name##_##code(pSrcDst, pSrcDst, pSpec, pBuffer);                          \
  }
#define KELS_DEFINE_FFT_REAL(code, T, fam, id)                                          \
  KELS_DEFINE_FFT_REAL_ONE(Fwd, RToPerm, false, Layout::Perm, code, T, fam, id)         \
  KELS_DEFINE_FFT_REAL_ONE(Fwd, RToPack, false, Layout::Pack, code, T, fam, id)         \
  KELS_DEFINE_FFT_REAL_ONE(Fwd, RToCCS, false, Layout::Ccs, code, T, fam, id)           \
  KELS_DEFINE_FFT_REAL_ONE(Inv, PermToR, true, Layout::Perm, code, T, fam, id)          \
  KELS_DEFINE_FFT_REAL_ONE(Inv, PackToR, true, Layout::Pack, code, T, fam, id)          \
  KELS_DEFINE_FFT_REAL_ONE(Inv, CCSToR, true, Layout::Ccs, code, T, fam, id)

#define KELS_DEFINE_FFT_REAL_INT_ONE(dir, name, inv, lay, code, T, fam, id)                          \
  KELS_EXPORT KelStatus kelsFFT##dir##_##name##_##code##_Sfs(                                         \
      const T* pSrc, T* pDst, const KelsFFTSpec_##fam* pSpec, int scaleFactor, Kel8u* pBuffer) {      \
    return kels::fft::int_transform<T, T>(pSpec, id, pSrc, pDst, scaleFactor, pBuffer, lay, inv);     \
  }                                                                                                   \
  KELS_EXPORT KelStatus kelsFFT##dir##_##name##_##code##_ISfs(                                        \
      T* pSrcDst, const KelsFFTSpec_##fam* pSpec, int scaleFactor, Kel8u* pBuffer) {                  \
    return kelsFFT##dir##_##name##_##code##_Sfs(pSrcDst, pSrcDst, pSpec, scaleFactor, pBuffer);       \
  }
#define KELS_DEFINE_FFT_REAL_INT(code, T, fam, id)                                      \
  KELS_DEFINE_FFT_REAL_INT_ONE(Fwd, RToPerm, false, Layout::Perm, code, T, fam, id)     \
  KELS_DEFINE_FFT_REAL_INT_ONE(Fwd, RToPack, false, Layout::Pack, code, T, fam, id)     \
  KELS_DEFINE_FFT_REAL_INT_ONE(Fwd, RToCCS, false, Layout::Ccs, code, T, fam, id)       \
  KELS_DEFINE_FFT_REAL_INT_ONE(Inv, PermToR, true, Layout::Perm, code, T, fam, id)      \
  KELS_DEFINE_FFT_REAL_INT_ONE(Inv, PackToR, true, Layout::Pack, code, T, fam, id)      \
  KELS_DEFINE_FFT_REAL_INT_ONE(Inv, CCSToR, true, Layout::Ccs, code, T, fam, id)

KELS_FOR_MEMBERS(KELS_FFT_REAL_MEMBERS, KELS_DEFINE_FFT_REAL)
KELS_FOR_MEMBERS(KELS_FFT_REAL_INT_MEMBERS, KELS_DEFINE_FFT_REAL_INT)

// 16-bit signal, 32-bit CCS spectrum, and back.
KELS_EXPORT KelStatus kelsFFTFwd_RToCCS_16s32s_Sfs(const Kel16s* pSrc, Kel32s* pDst,
                                                   const KelsFFTSpec_R_16s32s* pSpec, int scaleFactor,
                                                   Kel8u* pBuffer) {
  return kels::fft::int_transform<Kel16s, Kel32s>(pSpec, 0x4C4D5367u, pSrc, pDst, scaleFactor, pBuffer,
                                                  Layout::Ccs, false);
}
KELS_EXPORT KelStatus kelsFFTInv_CCSToR_32s16s_Sfs(const Kel32s* pSrc, Kel16s* pDst,
                                                   const KelsFFTSpec_R_16s32s* pSpec, int scaleFactor,
                                                   Kel8u* pBuffer) {
  return kels::fft::int_transform<Kel32s, Kel16s>(pSpec, 0x4C4D5367u, pSrc, pDst, scaleFactor, pBuffer,
                                                  Layout::Ccs, true);
}
