// Real FFT of length N = 2^order into the packed layouts Perm, Pack and CCS,
// and back. Orders up to 5 run straight-line code (kernels/fft_real.h);
// larger orders run the complex transform of order - 1 on the signal
// viewed as N/2 complex values, z[m] = x[2m] + i x[2m+1], then recombines
// the pairs Z[k], Z[N/2 - k] with the record's factors (kernels/fft_real.h),
// which also apply the scale and write the target layout.
#include <cstdint>
#include <cstring>

#include "frame/common.h"
#include "kernels/fft_real.h"
#include "transform/fft_record.h"

// The straight-line transforms below are scalar code with many values live
// at once: GCC's basic-block vectoriser packs pairs of them into vectors and
// then spends more on the shuffles (and spills) than it saves, up to a
// quarter of the time at 32 values.
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC optimize("no-tree-slp-vectorize")
#endif

namespace kels::fft {
namespace {

enum class Layout { Perm, Pack, Ccs };

template <class T>
const Header<T>* real_header(const void* record) {
  return static_cast<const Header<T>*>(record);
}

// Orders up to kStraightMax run the straight-line transforms: no tables,
// no work area, the spectrum kept in registers between the arithmetic and
// the layout.
constexpr int kStraightMax = 5;
// The half-length complex transforms start at order 4, the smallest with
// tables in the record.
static_assert(kStraightMax >= 4, "orders up to 4 have no half-length transform");

// Index of the real part of X[1] (X[k] follows in pairs up to k = N/2 - 1),
// and of X[N/2] (N >= 2).
inline std::size_t pairs_at(Layout lay) { return lay == Layout::Pack ? 1 : 2; }
inline std::size_t nyquist_at(std::size_t n, Layout lay) {
  return lay == Layout::Perm ? 1 : lay == Layout::Pack ? n - 1 : n;
}

// Forward transform of N values into the layout, times s when SCALED. The
// whole signal is read before anything is written, so src may equal dst.
// The scaling is fused with the stores (a separate loop over the spectrum
// would keep it in memory instead of registers).
template <class T, int N, bool SCALED>
void straight_forward(const T* src, T* dst, Layout lay, T s) {
  T re[N / 2 + 1], im[N / 2 + 1];
  kernels::RealDft<T, N>::forward(src, 1, re, im);
  auto scale = [s](T v) { return SCALED ? v * s : v; };
  dst[0] = scale(re[0]);
  if (lay == Layout::Ccs) dst[1] = 0;
  if (N == 1) return;
  T* pairs = dst + pairs_at(lay);
#pragma GCC unroll 16
  for (int k = 1; k < N / 2; ++k) {
    pairs[2 * k - 2] = scale(re[k]);
    pairs[2 * k - 1] = scale(im[k]);
  }
  dst[nyquist_at(N, lay)] = scale(re[N / 2]);
  if (lay == Layout::Ccs) dst[N + 1] = 0;
}

// Inverse transform of the layout into N values, the spectrum taken times
// s when SCALED. The spectrum is read before anything is written.
template <class T, int N, bool SCALED>
void straight_inverse(const T* src, T* dst, Layout lay, T s) {
  auto scale = [s](T v) { return SCALED ? v * s : v; };
  T re[N / 2 + 1], im[N / 2 + 1];
  re[0] = scale(src[0]);
  if (N > 1) re[N / 2] = scale(src[nyquist_at(N, lay)]);
  const T* pairs = src + pairs_at(lay);
#pragma GCC unroll 16
  for (int k = 1; k < N / 2; ++k) {
    re[k] = scale(pairs[2 * k - 2]);
    im[k] = scale(pairs[2 * k - 1]);
  }
  kernels::RealDft<T, N>::inverse(re, im, dst, 1);
}

template <class T, int N>
void straight_n(const T* src, T* dst, Layout lay, bool inv, bool scaled, T s) {
  if (inv) {
    if (scaled) straight_inverse<T, N, true>(src, dst, lay, s);
    else straight_inverse<T, N, false>(src, dst, lay, s);
  } else {
    if (scaled) straight_forward<T, N, true>(src, dst, lay, s);
    else straight_forward<T, N, false>(src, dst, lay, s);
  }
}

template <class T>
void straight(int order, const T* src, T* dst, Layout lay, bool inv, bool scaled, T s) {
  switch (order) {
#define KELS_STRAIGHT_CASE(o)                                \
  case o:                                                    \
    straight_n<T, 1 << o>(src, dst, lay, inv, scaled, s);    \
    break;
    KELS_STRAIGHT_CASE(0)
    KELS_STRAIGHT_CASE(1)
    KELS_STRAIGHT_CASE(2)
    KELS_STRAIGHT_CASE(3)
    KELS_STRAIGHT_CASE(4)
    KELS_STRAIGHT_CASE(5)
#undef KELS_STRAIGHT_CASE
    default:
      break;
  }
}

// The half-length complex transform, unscaled (the recombination scales).
template <class T>
void run_complex(const Header<T>* h, int corder, const T* src, T* dst, T* work, bool inv) {
  const bool dbl = sizeof(T) == 8;
  if (corder <= leaf_max(dbl) && src != dst &&
      kernels::fft_small_interleaved(src, dst, corder, h->template at<T>(h->twiddle),
                                     h->template at<std::uint32_t>(h->bitrev), inv, T(1))) {
    return;
  }
  const kernels::FftPlan<T> plan = plan_of(h, corder, dbl);
  const kernels::FftArgs<T> args{src, src + 1, dst, dst + 1, work, inv, false, T(1)};
  kernels::fft_interleaved(plan, args);
}

// Whether the half-length transform of a real record of this order is a
// single leaf, whose record work area holds its N values and which, out of
// place, leaves the work area unused.
template <class T>
bool half_is_leaf(int order, const T* work) {
  return order - 1 <= leaf_max(sizeof(T) == 8) && work != nullptr;
}

// Forward transform of checked arguments; src and dst may be equal. Above
// the straight-line orders the half-length spectrum Z is computed into dst
// and recombined in place: X[k] (0 < k < N/2) lands where Z[k] was, which
// is its place in Perm and CCS. Pack, one value lower, takes Z from the work area when the
// half-length transform is a single leaf, and otherwise moves the block down
// by one value.
template <class T>
void forward_run(const Header<T>* h, const T* src, T* dst, T* work, Layout lay) {
  const int order = h->order;
  const std::size_t n = std::size_t{1} << order;
  const bool scaled = h->scale_fwd != 0;
  if (order <= kStraightMax) {
    straight(order, src, dst, lay, false, scaled, h->scale());
    return;
  }
  T* z = lay == Layout::Pack && half_is_leaf(order, work) ? work : dst;
  run_complex(h, order - 1, src, z, z == work ? nullptr : work, false);
  const T s = scaled ? h->scale() : T(1);
  const T* u = h->template at<T>(h->real_recombine);
  const T z0r = z[0], z0i = z[1];
  T* out = dst + (lay == Layout::Pack ? 1 : 2);
  kernels::real_recombine(z + 2, z == dst ? z + 2 : out, n / 2, u, T(-0.5), s * T(0.5), s);
  if (z == dst && lay == Layout::Pack) std::memmove(dst + 1, dst + 2, (n - 2) * sizeof(T));
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

// Inverse transform of checked arguments; src and dst may be equal. Above
// the straight-line orders the recombination reads X from src in its layout
// and writes Z (scaled) into the work area when the half-length transform is a single
// leaf, so that the complex inverse runs out of place into dst with its
// permutation fused into the first pass; larger orders write Z into dst
// and transform it in place.
template <class T>
void inverse_run(const Header<T>* h, const T* src, T* dst, T* work, Layout lay) {
  const int order = h->order;
  const std::size_t n = std::size_t{1} << order;
  const bool scaled = h->scale_inv != 0;
  if (order <= kStraightMax) {
    straight(order, src, dst, lay, true, scaled, h->scale());
    return;
  }
  const T s = scaled ? h->scale() : T(1);
  const T* u = h->template at<T>(h->ccs_recombine);
  const T r0 = src[0];
  const T rm = lay == Layout::Perm ? src[1] : lay == Layout::Pack ? src[n - 1] : src[n];
  T* z = half_is_leaf(order, work) ? work : dst;
  // X[1] of Pack is one value lower than in the other layouts; in place the
  // block moves up first so that every pair is read where it is written.
  const T* in = src + 2;
  if (lay == Layout::Pack) {
    if (src == z) std::memmove(z + 2, z + 1, (n - 2) * sizeof(T));
    else in = src + 1;
  }
  kernels::real_recombine(in, z + 2, n / 2, u, T(-1), s, s);
  z[0] = (r0 + rm) * s;
  z[1] = (r0 - rm) * s;
  run_complex(h, order - 1, z, dst, z == work ? nullptr : work, true);
}

// The transforms that use a work area. Kept out of line so that the short
// transforms' entry points save no registers and set up no frame for it.
template <class T>
[[gnu::noinline]] KelStatus transform_with_work(const Header<T>* h, const T* src, T* dst, Kel8u* buf,
                                                Layout lay, bool inv) {
  const WorkArea work(buf, h->work_bytes);
  if (work.failed()) return kelStsNoMemory;
  if (inv) inverse_run(h, src, dst, work.as<T>(), lay);
  else forward_run(h, src, dst, work.as<T>(), lay);
  return kelStsOk;
}

template <class T>
KelStatus transform(const void* record, std::uint32_t id, const T* src, T* dst, Kel8u* buf, Layout lay,
                    bool inv) {
  KELS_REQUIRE_PTRS(record);
  KELS_REQUIRE_ID(record, id);
  KELS_REQUIRE_PTRS(src, dst);
  const Header<T>* h = real_header<T>(record);
  if (h->order <= kStraightMax) {
    const bool scaled = (inv ? h->scale_inv : h->scale_fwd) != 0;
    straight(h->order, src, dst, lay, inv, scaled, h->scale());
    return kelStsOk;
  }
  return transform_with_work(h, src, dst, buf, lay, inv);
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
  const bool small = h->order <= kStraightMax;
  const WorkArea work(small ? nullptr : buf, small ? 0 : h->work_bytes);
  if (work.failed()) return kelStsNoMemory;
  double local[(1 << kStraightMax) + 2];
  // N + 2 doubles of data, then (16-byte aligned, 16N bytes from the start)
  // the double-precision work.
  double* x = small ? local : work.as<double>();
  double* dwork = small ? nullptr : x + 2 * n;
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
