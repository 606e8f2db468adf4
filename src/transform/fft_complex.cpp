// Complex FFT of length 2^order, floating (interleaved and split layouts)
// and integer (through double precision, rounded and saturated).
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "frame/common.h"
#include "transform/fft_record.h"
#include "transform/fft_small.h"

namespace kels::fft {
namespace {

using kernels::scalar::Cx;
using kernels::scalar::add;
using kernels::scalar::sub;
using kernels::scalar::rot;

// Data of a call in either layout: element i at re[S*i], im[S*i].
template <class T>
struct Data {
  const T* sre;
  const T* sim;
  T* dre;
  T* dim;
};

// The straight-line transforms of orders 0..3, one function per order,
// direction and scaling, chosen from a table.
template <class T, int S, int ORDER, bool INV, bool SCALED>
void small_fixed(const Data<T>& d, T scale) {
  constexpr int n = 1 << ORDER;
  Cx<T> x[8];
  for (int i = 0; i < n; ++i) x[i] = {d.sre[S * i], d.sim[S * i]};
  small_dft_fixed<ORDER, INV>(x);
  for (int i = 0; i < n; ++i) {
    d.dre[S * i] = SCALED ? x[i].r * scale : x[i].r;
    d.dim[S * i] = SCALED ? x[i].i * scale : x[i].i;
  }
}

template <class T, int S>
using SmallFn = void (*)(const Data<T>&, T);
template <class T, int S, bool INV, bool SCALED>
constexpr SmallFn<T, S> kSmall[4] = {&small_fixed<T, S, 0, INV, SCALED>, &small_fixed<T, S, 1, INV, SCALED>,
                                     &small_fixed<T, S, 2, INV, SCALED>, &small_fixed<T, S, 3, INV, SCALED>};

template <class T, int S>
void small_transform(int order, const Data<T>& d, bool inv, bool scaled, T scale) {
  if (inv) (scaled ? kSmall<T, S, true, true> : kSmall<T, S, true, false>)[order](d, scale);
  else (scaled ? kSmall<T, S, false, true> : kSmall<T, S, false, false>)[order](d, scale);
}

template <class T>
bool direction_scaled(const Header<T>* h, bool inv) {
  return (inv ? h->scale_inv : h->scale_fwd) != 0;
}

// Orders 4 and up through the engine, with a plan and a work area; kept
// out of line so that the small transforms' path saves no more registers
// than it uses.
template <class T, int S>
[[gnu::noinline]] KelStatus run_engine(const Header<T>* h, const Data<T>& d, Kel8u* buf, bool inv,
                                       bool scaled) {
  const WorkArea work(buf, h->work_bytes);
  if (work.failed()) return kelStsNoMemory;
  const kernels::FftPlan<T> plan = plan_of(h, h->order, sizeof(T) == 8);
  const kernels::FftArgs<T> args{d.sre, d.sim, d.dre, d.dim, work.as<T>(), inv, scaled, h->scale()};
  if (S == 2) kernels::fft_interleaved(plan, args);
  else kernels::fft_split(plan, args);
  return kelStsOk;
}

// Floating transform; S = 2 interleaved (sim = sre + 1), S = 1 split.
template <class T, int S>
KelStatus transform(const void* record, std::uint32_t id, const Data<T>& d, Kel8u* buf, bool inv) {
  KELS_REQUIRE_PTRS(record);
  KELS_REQUIRE_ID(record, id);
  KELS_REQUIRE_PTRS(d.sre, d.sim, d.dre, d.dim);
  const auto* h = static_cast<const Header<T>*>(record);
  const bool scaled = direction_scaled(h, inv);
  if (h->order < 4) {
    small_transform<T, S>(h->order, d, inv, scaled, h->scale());
    return kelStsOk;
  }
  // Single-leaf interleaved transforms out of place with a caller buffer need no
  // work area and no plan.
  if (S == 2 && h->order <= leaf_max(sizeof(T) == 8) && buf != nullptr && d.sre != d.dre &&
      kernels::fft_small_interleaved(d.sre, d.dre, h->order, h->template at<T>(h->twiddle),
                                     h->template at<std::uint32_t>(h->bitrev), inv,
                                     scaled ? h->scale() : T(1))) {
    return kelStsOk;
  }
  return run_engine<T, S>(h, d, buf, inv, scaled);
}

// Integer transform: the data go to double precision (exact for 16- and
// 32-bit values), through the double-precision engine in place, and back
// with the record's scale and 2^-scaleFactor applied before one rounding.
// Error budget: the double engine's error is a few units of 2^-53 times
// log2 N times the spectrum's RMS; for any output that does not saturate
// (|y| < 2^31) that is below 2^-10 of an output unit, so the result is the
// correctly rounded exact value except when the exact value lies within
// that distance of a rounding boundary (then it can be one unit off).
template <class I, int S>
KelStatus int_transform(const void* record, std::uint32_t id, const Data<I>& d, int sf, Kel8u* buf,
                        bool inv) {
  KELS_REQUIRE_PTRS(record);
  KELS_REQUIRE_ID(record, id);
  KELS_REQUIRE_PTRS(d.sre, d.sim, d.dre, d.dim);
  const auto* h = static_cast<const Header<double>*>(record);
  const std::size_t n = std::size_t{1} << h->order;
  const bool scaled = direction_scaled(h, inv);
  const WorkArea work(h->order < 4 ? nullptr : buf, h->order < 4 ? 0 : h->work_bytes);
  if (work.failed()) return kelStsNoMemory;
  Cx<double> local[8];
  // n complex doubles: the record's straight-line sizes in `local`, else the
  // start of the work area.
  Cx<double>* x = h->order < 4 ? local : work.as<Cx<double>>();
  for (std::size_t i = 0; i < n; ++i) {
    x[i] = {static_cast<double>(d.sre[S * i]), static_cast<double>(d.sim[S * i])};
  }
  if (h->order < 4) {
    small_dft(h->order, local, inv);
    if (scaled)
      for (std::size_t i = 0; i < n; ++i) local[i] = {local[i].r * h->scale(), local[i].i * h->scale()};
  } else {
    double* v = work.as<double>();
    const kernels::FftPlan<double> plan = plan_of(h, h->order, true);
    const kernels::FftArgs<double> args{v, v + 1, v, v + 1, v + 2 * n, inv, scaled, h->scale()};
    kernels::fft_interleaved(plan, args);
  }
  for (std::size_t i = 0; i < n; ++i) {
    d.dre[S * i] = round_saturate<I>(std::ldexp(x[i].r, -sf));
    d.dim[S * i] = round_saturate<I>(std::ldexp(x[i].i, -sf));
  }
  return kelStsOk;
}

template <class C, class R>
Data<R> interleaved(const C* src, C* dst) {
  const R* s = src ? reinterpret_cast<const R*>(src) : nullptr;
  R* t = dst ? reinterpret_cast<R*>(dst) : nullptr;
  return {s, s ? s + 1 : nullptr, t, t ? t + 1 : nullptr};
}

}  // namespace
}  // namespace kels::fft

using kels::fft::Data;

// Interleaved members: (type code, element type, scalar type, record family,
// identifier).
#define KELS_FFT_CPLX_MEMBERS(X) \
  X(32fc, Kel32fc, Kel32f, C_32fc, 4u) X(64fc, Kel64fc, Kel64f, C_64fc, 7u)
#define KELS_FFT_SPLIT_MEMBERS(X) \
  X(32f, Kel32f, C_32f, 5u) X(64f, Kel64f, C_64f, 8u)
#define KELS_FFT_INT_CPLX_MEMBERS(X) \
  X(16sc, Kel16sc, Kel16s, C_16sc, 1u) X(32sc, Kel32sc, Kel32s, C_32sc, 0x4C4D5364u)
#define KELS_FFT_INT_SPLIT_MEMBERS(X) \
  X(16s, Kel16s, C_16s, 2u) X(32s, Kel32s, C_32s, 0x4C4D5365u)

#define KELS_DEFINE_FFT_CPLX_DIR(dir, inv, code, C, R, fam, id)                                     \
  KELS_EXPORT KelStatus kelsFFT##dir##_CToC_##code(const C* pSrc, C* pDst,                          \
                                                   const KelsFFTSpec_##fam* pSpec, Kel8u* pBuffer) { \
    return kels::fft::transform<R, 2>(pSpec, id, kels::fft::interleaved<C, R>(pSrc, pDst), pBuffer, \
                                      inv);                                                         \
  }                                                                                                 \
  KELS_EXPORT KelStatus kelsFFT##dir##_CToC_##code##_I(C* pSrcDst, const KelsFFTSpec_##fam* pSpec,  \
                                                       Kel8u* pBuffer) {                            \
    return kelsFFT##dir##_CToC_##code(pSrcDst, pSrcDst, pSpec, pBuffer);                            \
  }
#define KELS_DEFINE_FFT_CPLX(code, C, R, fam, id)          \
  KELS_DEFINE_FFT_CPLX_DIR(Fwd, false, code, C, R, fam, id) \
  KELS_DEFINE_FFT_CPLX_DIR(Inv, true, code, C, R, fam, id)

#define KELS_DEFINE_FFT_SPLIT_DIR(dir, inv, code, R, fam, id)                                        \
  KELS_EXPORT KelStatus kelsFFT##dir##_CToC_##code(const R* pSrcRe, const R* pSrcIm, R* pDstRe,      \
                                                   R* pDstIm, const KelsFFTSpec_##fam* pSpec,        \
                                                   Kel8u* pBuffer) {                                 \
    return kels::fft::transform<R, 1>(pSpec, id, Data<R>{pSrcRe, pSrcIm, pDstRe, pDstIm}, pBuffer,   \
                                      inv);                                                          \
  }                                                                                                  \
  KELS_EXPORT KelStatus kelsFFT##dir##_CToC_##code##_I(R* pSrcDstRe, R* pSrcDstIm,                   \
                                                       const KelsFFTSpec_##fam* pSpec,               \
                                                       Kel8u* pBuffer) {                             \
    return kelsFFT##dir##_CToC_##code(pSrcDstRe, pSrcDstIm, pSrcDstRe, pSrcDstIm, pSpec, pBuffer);   \
  }
#define KELS_DEFINE_FFT_SPLIT(code, R, fam, id)          \
  KELS_DEFINE_FFT_SPLIT_DIR(Fwd, false, code, R, fam, id) \
  KELS_DEFINE_FFT_SPLIT_DIR(Inv, true, code, R, fam, id)

#define KELS_DEFINE_FFT_INT_CPLX_DIR(dir, inv, code, C, R, fam, id)                                  \
  KELS_EXPORT KelStatus kelsFFT##dir##_CToC_##code##_Sfs(                                            \
      const C* pSrc, C* pDst, const KelsFFTSpec_##fam* pSpec, int scaleFactor, Kel8u* pBuffer) {     \
    return kels::fft::int_transform<R, 2>(pSpec, id, kels::fft::interleaved<C, R>(pSrc, pDst),       \
                                          scaleFactor, pBuffer, inv);                                \
  }                                                                                                  \
  KELS_EXPORT KelStatus kelsFFT##dir##_CToC_##code##_ISfs(                                           \
      C* pSrcDst, const KelsFFTSpec_##fam* pSpec, int scaleFactor, Kel8u* pBuffer) {                 \
    return kelsFFT##dir##_CToC_##code##_Sfs(pSrcDst, pSrcDst, pSpec, scaleFactor, pBuffer);          \
  }
#define KELS_DEFINE_FFT_INT_CPLX(code, C, R, fam, id)          \
  KELS_DEFINE_FFT_INT_CPLX_DIR(Fwd, false, code, C, R, fam, id) \
  KELS_DEFINE_FFT_INT_CPLX_DIR(Inv, true, code, C, R, fam, id)

#define KELS_DEFINE_FFT_INT_SPLIT_DIR(dir, inv, code, R, fam, id)                                    \
  KELS_EXPORT KelStatus kelsFFT##dir##_CToC_##code##_Sfs(const R* pSrcRe, const R* pSrcIm,          \
                                                         R* pDstRe, R* pDstIm,                       \
                                                         const KelsFFTSpec_##fam* pSpec,             \
                                                         int scaleFactor, Kel8u* pBuffer) {          \
    return kels::fft::int_transform<R, 1>(pSpec, id, Data<R>{pSrcRe, pSrcIm, pDstRe, pDstIm},       \
                                          scaleFactor, pBuffer, inv);                                \
  }                                                                                                  \
  KELS_EXPORT KelStatus kelsFFT##dir##_CToC_##code##_ISfs(                                           \
      R* pSrcDstRe, R* pSrcDstIm, const KelsFFTSpec_##fam* pSpec, int scaleFactor, Kel8u* pBuffer) { \
    return kelsFFT##dir##_CToC_##code##_Sfs(pSrcDstRe, pSrcDstIm, pSrcDstRe, pSrcDstIm, pSpec,       \
                                            scaleFactor, pBuffer);                                   \
  }
#define KELS_DEFINE_FFT_INT_SPLIT(code, R, fam, id)          \
  KELS_DEFINE_FFT_INT_SPLIT_DIR(Fwd, false, code, R, fam, id) \
  KELS_DEFINE_FFT_INT_SPLIT_DIR(Inv, true, code, R, fam, id)

KELS_FOR_MEMBERS(KELS_FFT_CPLX_MEMBERS, KELS_DEFINE_FFT_CPLX)
KELS_FOR_MEMBERS(KELS_FFT_SPLIT_MEMBERS, KELS_DEFINE_FFT_SPLIT)
KELS_FOR_MEMBERS(KELS_FFT_INT_CPLX_MEMBERS, KELS_DEFINE_FFT_INT_CPLX)
KELS_FOR_MEMBERS(KELS_FFT_INT_SPLIT_MEMBERS, KELS_DEFINE_FFT_INT_SPLIT)
