// Statistics and search kernels, compiled once per SIMD target by Highway
// and reached through dynamic dispatch. The portable one-lane target simply
// runs the scalar twins: these kernels need at least two lanes to split
// vectors into halves and pairs.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "kernels/stats.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep
#include "hwy/highway.h"
#include "hwy/cache_control.h"

#include <type_traits>

#include "kernels/stats.h"

HWY_BEFORE_NAMESPACE();
namespace kels::kernels {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// Room for four vectors of any lane type on any target.
constexpr size_t kMaxLaneBytes = 4 * HWY_MAX_BYTES;

// Widening to double costs enough instructions per cache line that the
// out-of-order window alone no longer keeps enough misses in flight to
// stream from memory; the widening kernels request the lines of the
// iteration kAheadBytes in advance.
constexpr size_t kAheadBytes = 4096;
// From this many elements (beyond the caches) the norms and extremes read
// two streams.
constexpr size_t kTwoStreamMin = size_t{1} << 18;
template <class T>
HWY_INLINE void PrefetchAhead(const T* p, size_t i, size_t scalars) {
  // Integer arithmetic: the address may lie past the end of the data, which
  // a prefetch tolerates but pointer arithmetic would not.
  const uintptr_t c = reinterpret_cast<uintptr_t>(p + i) + kAheadBytes;
  for (size_t k = 0; k < scalars * sizeof(T); k += 64) hwy::Prefetch(reinterpret_cast<const uint8_t*>(c + k));
}

#if HWY_TARGET != HWY_SCALAR

using DD = hn::ScalableTag<double>;
using VD = hn::Vec<DD>;

// A full vector of T widened to doubles: one vector for double data, two
// (lower half, upper half) for float data. Widening a float is exact.
template <class T>
constexpr size_t kParts = sizeof(double) / sizeof(T);

template <class V>
HWY_INLINE void Widen(const V v, VD* out) {
  using T = hn::TFromV<V>;
  const DD dd;
  if constexpr (std::is_same_v<T, double>) {
    out[0] = v;
  } else {
    const hn::Half<hn::ScalableTag<float>> dh;
    out[0] = hn::PromoteTo(dd, hn::LowerHalf(dh, v));
    out[1] = hn::PromoteTo(dd, hn::UpperHalf(dh, v));
  }
}

double SumLanesD(DD dd, VD v) { return hn::GetLane(hn::SumOfLanes(dd, v)); }

// Sum of the even lanes minus or plus the odd lanes (the lane parity equals
// the parity of the scalar index because every load starts at an even
// scalar index and vectors have an even number of lanes).
void SplitParity(VD v, double* even, double* odd) {
  const DD dd;
  HWY_ALIGN double buf[HWY_MAX_BYTES / sizeof(double)];
  hn::Store(v, dd, buf);
  double e = 0, o = 0;
  for (size_t k = 0; k < hn::Lanes(dd); k += 2) {
    e += buf[k];
    o += buf[k + 1];
  }
  *even = e;
  *odd = o;
}

#endif  // HWY_TARGET != HWY_SCALAR

template <class T>
void SumLanesT(const T* HWY_RESTRICT p, size_t n, size_t stride, T* out) {
  const hn::ScalableTag<T> d;
  const size_t N = hn::Lanes(d);
  auto a0 = hn::Zero(d), a1 = hn::Zero(d), a2 = hn::Zero(d), a3 = hn::Zero(d);
  size_t i = 0;
  for (; i + 4 * N <= n; i += 4 * N) {
    a0 = hn::Add(a0, hn::LoadU(d, p + i));
    a1 = hn::Add(a1, hn::LoadU(d, p + i + N));
    a2 = hn::Add(a2, hn::LoadU(d, p + i + 2 * N));
    a3 = hn::Add(a3, hn::LoadU(d, p + i + 3 * N));
  }
  // Accumulator k holds scalars at indices = k * N + lane (mod 4N).
  alignas(64) T buf[kMaxLaneBytes / sizeof(T)];
  hn::StoreU(a0, d, buf);
  hn::StoreU(a1, d, buf + N);
  hn::StoreU(a2, d, buf + 2 * N);
  hn::StoreU(a3, d, buf + 3 * N);
  T s[2] = {0, 0};
  if (stride == 1) {
    // Pairwise over the accumulators keeps the lanes' rounding balanced.
    for (size_t k = 0; k < N; ++k) s[0] += (buf[k] + buf[k + N]) + (buf[k + 2 * N] + buf[k + 3 * N]);
  } else {
    for (size_t k = 0; k < 4 * N; ++k) s[k % 2] += buf[k];
  }
  T tail[2];
  scalar::sum_lanes(p + i, n - i, stride, tail);
  out[0] = s[0] + tail[0];
  if (stride == 2) out[1] = s[1] + tail[1];
}

void SumLanesF32(const float* p, size_t n, size_t stride, float* out) { SumLanesT(p, n, stride, out); }
void SumLanesF64(const double* p, size_t n, size_t stride, double* out) { SumLanesT(p, n, stride, out); }

void SumSqF32(const float* HWY_RESTRICT p, size_t n, double* s1, double* s2) {
#if HWY_TARGET == HWY_SCALAR
  scalar::sum_sq(p, n, s1, s2);
#else
  const hn::ScalableTag<float> df;
  const DD dd;
  const size_t N = hn::Lanes(df);
  VD a0 = hn::Zero(dd), a1 = hn::Zero(dd), q0 = hn::Zero(dd), q1 = hn::Zero(dd);
  size_t i = 0;
  for (; i + N <= n; i += N) {
    PrefetchAhead(p, i, N);
    VD w[2];
    Widen(hn::LoadU(df, p + i), w);
    a0 = hn::Add(a0, w[0]);
    a1 = hn::Add(a1, w[1]);
    q0 = hn::MulAdd(w[0], w[0], q0);
    q1 = hn::MulAdd(w[1], w[1], q1);
  }
  double t1, t2;
  scalar::sum_sq(p + i, n - i, &t1, &t2);
  *s1 = SumLanesD(dd, hn::Add(a0, a1)) + t1;
  *s2 = SumLanesD(dd, hn::Add(q0, q1)) + t2;
#endif
}

// ---- Dot products: double accumulators, one per widened part.

template <class T>
double DotRRT(const T* HWY_RESTRICT a, const T* HWY_RESTRICT b, size_t n) {
#if HWY_TARGET == HWY_SCALAR
  return scalar::dot_rr(a, b, n);
#else
  const hn::ScalableTag<T> d;
  const DD dd;
  const size_t N = hn::Lanes(d);
  VD acc[2] = {hn::Zero(dd), hn::Zero(dd)};
  VD acc2[2] = {hn::Zero(dd), hn::Zero(dd)};
  size_t i = 0;
  for (; i + 2 * N <= n; i += 2 * N) {
    PrefetchAhead(a, i, 2 * N);
    PrefetchAhead(b, i, 2 * N);
    VD wa[2], wb[2], wc[2], we[2];
    Widen(hn::LoadU(d, a + i), wa);
    Widen(hn::LoadU(d, b + i), wb);
    Widen(hn::LoadU(d, a + i + N), wc);
    Widen(hn::LoadU(d, b + i + N), we);
    for (size_t k = 0; k < kParts<T>; ++k) {
      acc[k] = hn::MulAdd(wa[k], wb[k], acc[k]);
      acc2[k] = hn::MulAdd(wc[k], we[k], acc2[k]);
    }
  }
  for (; i + N <= n; i += N) {
    VD wa[2], wb[2];
    Widen(hn::LoadU(d, a + i), wa);
    Widen(hn::LoadU(d, b + i), wb);
    for (size_t k = 0; k < kParts<T>; ++k) acc[k] = hn::MulAdd(wa[k], wb[k], acc[k]);
  }
  const VD total = hn::Add(hn::Add(acc[0], acc[1]), hn::Add(acc2[0], acc2[1]));
  return SumLanesD(dd, total) + scalar::dot_rr(a + i, b + i, n - i);
#endif
}

// Complex b (n pairs) times real a (n scalars) or complex a (n pairs).
template <bool kComplexA, class T>
void DotCT(const T* HWY_RESTRICT a, const T* HWY_RESTRICT b, size_t n, double* out) {
  const size_t a_step = kComplexA ? 2 : 1;
#if HWY_TARGET == HWY_SCALAR
  size_t i = 0;
  double s[2] = {0, 0};
#else
  const hn::ScalableTag<T> d;
  const DD dd;
  const size_t N = hn::Lanes(d);
  VD re[2] = {hn::Zero(dd), hn::Zero(dd)}, im[2] = {hn::Zero(dd), hn::Zero(dd)};
  size_t i = 0;
  for (; i + N <= n; i += N) {
    PrefetchAhead(a, a_step * i, a_step * N);
    PrefetchAhead(b, 2 * i, 2 * N);
    hn::Vec<decltype(d)> ar, ai, br, bi;
    if constexpr (kComplexA) {
      hn::LoadInterleaved2(d, a + 2 * i, ar, ai);
    } else {
      ar = hn::LoadU(d, a + i);
    }
    hn::LoadInterleaved2(d, b + 2 * i, br, bi);
    VD war[2], wai[2], wbr[2], wbi[2];
    Widen(ar, war);
    Widen(br, wbr);
    Widen(bi, wbi);
    if constexpr (kComplexA) Widen(ai, wai);
    for (size_t k = 0; k < kParts<T>; ++k) {
      re[k] = hn::MulAdd(war[k], wbr[k], re[k]);
      im[k] = hn::MulAdd(war[k], wbi[k], im[k]);
      if constexpr (kComplexA) {
        re[k] = hn::NegMulAdd(wai[k], wbi[k], re[k]);
        im[k] = hn::MulAdd(wai[k], wbr[k], im[k]);
      }
    }
  }
  const double s[2] = {SumLanesD(dd, hn::Add(re[0], re[1])), SumLanesD(dd, hn::Add(im[0], im[1]))};
#endif
  double tail[2];
  if constexpr (kComplexA) {
    scalar::dot_cc(a + a_step * i, b + 2 * i, n - i, tail);
  } else {
    scalar::dot_rc(a + a_step * i, b + 2 * i, n - i, tail);
  }
  out[0] = s[0] + tail[0];
  out[1] = s[1] + tail[1];
}

double DotRRF32(const float* a, const float* b, size_t n) { return DotRRT(a, b, n); }
double DotRRF64(const double* a, const double* b, size_t n) { return DotRRT(a, b, n); }
void DotRCF32(const float* a, const float* b, size_t n, double* o) { DotCT<false>(a, b, n, o); }
void DotRCF64(const double* a, const double* b, size_t n, double* o) { DotCT<false>(a, b, n, o); }
void DotCCF32(const float* a, const float* b, size_t n, double* o) { DotCT<true>(a, b, n, o); }
void DotCCF64(const double* a, const double* b, size_t n, double* o) { DotCT<true>(a, b, n, o); }

// ---- Norms: x = a or a - b in double; |x| per scalar or per pair.

#if HWY_TARGET != HWY_SCALAR
// One step of a norm: N scalars (real) or N pairs (complex) from index i
// folded into the accumulators, one per widened part.
template <NormKind kKind, bool kComplex, class T>
HWY_INLINE void NormStep(const T* HWY_RESTRICT a, const T* HWY_RESTRICT b, size_t i, VD* acc) {
  const hn::ScalableTag<T> d;
  VD m[2];  // |x| (real) or |x|^2 (complex) per widened part
  if constexpr (kComplex) {
    hn::Vec<decltype(d)> ar, ai;
    hn::LoadInterleaved2(d, a + 2 * i, ar, ai);
    VD xr[2], xi[2];
    Widen(ar, xr);
    Widen(ai, xi);
    if (b != nullptr) {
      hn::Vec<decltype(d)> br, bi;
      hn::LoadInterleaved2(d, b + 2 * i, br, bi);
      VD yr[2], yi[2];
      Widen(br, yr);
      Widen(bi, yi);
      for (size_t k = 0; k < kParts<T>; ++k) {
        xr[k] = hn::Sub(xr[k], yr[k]);
        xi[k] = hn::Sub(xi[k], yi[k]);
      }
    }
    // Unfused, as in the scalar twin, so that maxima agree exactly.
    for (size_t k = 0; k < kParts<T>; ++k) m[k] = hn::Add(hn::Mul(xr[k], xr[k]), hn::Mul(xi[k], xi[k]));
  } else {
    Widen(hn::LoadU(d, a + i), m);
    if (b != nullptr) {
      VD y[2];
      Widen(hn::LoadU(d, b + i), y);
      for (size_t k = 0; k < kParts<T>; ++k) m[k] = hn::Sub(m[k], y[k]);
    }
  }
  for (size_t k = 0; k < kParts<T>; ++k) {
    if constexpr (kKind == NormKind::kInf) {
      acc[k] = hn::Max(acc[k], kComplex ? m[k] : hn::Abs(m[k]));
    } else if constexpr (kKind == NormKind::kL1) {
      acc[k] = hn::Add(acc[k], kComplex ? hn::Sqrt(m[k]) : hn::Abs(m[k]));
    } else {
      acc[k] = kComplex ? hn::Add(acc[k], m[k]) : hn::MulAdd(m[k], m[k], acc[k]);
    }
  }
}
#endif

template <NormKind kKind, bool kComplex, class T>
double NormKT(const T* HWY_RESTRICT a, const T* HWY_RESTRICT b, size_t n) {
#if HWY_TARGET == HWY_SCALAR
  return scalar::norm(a, b, n, kKind, kComplex);
#else
  const hn::ScalableTag<T> d;
  const DD dd;
  const size_t N = hn::Lanes(d);
  // Four steps per iteration into separate accumulators: eight independent
  // chains hide the latency of the adds and keep enough loads in flight to
  // stream from memory.
  VD acc[8];
  for (auto& v : acc) v = hn::Zero(dd);
  const size_t step = kComplex ? 2 : 1;  // scalars per element
  size_t i = 0;
  // Long vectors are read as two halves side by side: two sequential
  // streams keep more memory requests in flight than one.
  const size_t half = n >= kTwoStreamMin ? (n / 2) / (2 * N) * (2 * N) : 0;
  for (size_t j = 0; j < half; j += 2 * N) {
    PrefetchAhead(a, step * j, 2 * N * step);
    PrefetchAhead(a, step * (half + j), 2 * N * step);
    if (b != nullptr) {
      PrefetchAhead(b, step * j, 2 * N * step);
      PrefetchAhead(b, step * (half + j), 2 * N * step);
    }
    NormStep<kKind, kComplex>(a, b, j, acc);
    NormStep<kKind, kComplex>(a, b, j + N, acc + 2);
    NormStep<kKind, kComplex>(a, b, half + j, acc + 4);
    NormStep<kKind, kComplex>(a, b, half + j + N, acc + 6);
  }
  i = 2 * half;
  for (; i + 4 * N <= n; i += 4 * N) {
    PrefetchAhead(a, step * i, 4 * N * step);
    if (b != nullptr) PrefetchAhead(b, step * i, 4 * N * step);
    NormStep<kKind, kComplex>(a, b, i, acc);
    NormStep<kKind, kComplex>(a, b, i + N, acc + 2);
    NormStep<kKind, kComplex>(a, b, i + 2 * N, acc + 4);
    NormStep<kKind, kComplex>(a, b, i + 3 * N, acc + 6);
  }
  for (size_t k = 2; k < 8; k += 2) {
    if constexpr (kKind == NormKind::kInf) {
      acc[0] = hn::Max(acc[0], acc[k]);
      acc[1] = hn::Max(acc[1], acc[k + 1]);
    } else {
      acc[0] = hn::Add(acc[0], acc[k]);
      acc[1] = hn::Add(acc[1], acc[k + 1]);
    }
  }
  for (; i + N <= n; i += N) NormStep<kKind, kComplex>(a, b, i, acc);
  const double tail = scalar::norm(a + step * i, b ? b + step * i : nullptr, n - i, kKind, kComplex);
  if constexpr (kKind == NormKind::kInf) {
    double v = hn::GetLane(hn::MaxOfLanes(dd, hn::Max(acc[0], acc[1])));
    if (kComplex) v = std::sqrt(v);
    return v > tail ? v : tail;
  } else {
    return SumLanesD(dd, hn::Add(acc[0], acc[1])) + tail;
  }
#endif
}

template <class T>
double NormT(const T* a, const T* b, size_t n, NormKind kind, bool complex) {
  switch (kind) {
    case NormKind::kInf:
      return complex ? NormKT<NormKind::kInf, true>(a, b, n) : NormKT<NormKind::kInf, false>(a, b, n);
    case NormKind::kL1:
      return complex ? NormKT<NormKind::kL1, true>(a, b, n) : NormKT<NormKind::kL1, false>(a, b, n);
    default:
      return complex ? NormKT<NormKind::kL2Sqr, true>(a, b, n) : NormKT<NormKind::kL2Sqr, false>(a, b, n);
  }
}

double NormF32(const float* a, const float* b, size_t n, NormKind k, bool c) { return NormT(a, b, n, k, c); }
double NormF64(const double* a, const double* b, size_t n, NormKind k, bool c) { return NormT(a, b, n, k, c); }

// ---- Exact sums of 16-bit integers through the pairwise multiply-add
// (pmaddwd): each 32-bit lane receives x[2k] * w[2k] + x[2k+1] * w[2k+1].

#if HWY_TARGET != HWY_SCALAR
using D16 = hn::ScalableTag<int16_t>;
using D32 = hn::RepartitionToWide<D16>;
using D64 = hn::RepartitionToWide<D32>;

HWY_INLINE void AddWidened(hn::Vec<D32> v, hn::Vec<D64>& lo, hn::Vec<D64>& hi) {
  const D64 d64;
  const hn::Half<D32> dh;
  lo = hn::Add(lo, hn::PromoteTo(d64, hn::LowerHalf(dh, v)));
  hi = hn::Add(hi, hn::PromoteTo(d64, hn::UpperHalf(dh, v)));
}

template <class D>
int64_t SumLanes64(D d, hn::Vec<D> v) {
  alignas(64) hn::TFromD<D> buf[HWY_MAX_BYTES / 8];
  hn::StoreU(v, d, buf);
  int64_t s = 0;
  for (size_t k = 0; k < hn::Lanes(d); ++k) s += static_cast<int64_t>(buf[k]);
  return s;
}
#endif

void SumsI16(const int16_t* HWY_RESTRICT p, size_t n, size_t stride, int64_t* out) {
#if HWY_TARGET == HWY_SCALAR
  scalar::sums_i16(p, n, stride, out);
#else
  const D16 d16;
  const D32 d32;
  const D64 d64;
  const size_t N = hn::Lanes(d16);
  // Weights select the parts: all ones, or ones on even / odd lanes.
  const auto one = hn::Set(d16, 1), zero = hn::Zero(d16);
  const auto w0 = stride == 1 ? one : hn::OddEven(zero, one);
  const auto w1 = hn::OddEven(one, zero);
  auto lo0 = hn::Zero(d64), hi0 = hn::Zero(d64), lo1 = hn::Zero(d64), hi1 = hn::Zero(d64);
  // A 32-bit lane gains at most 65536 in magnitude per step: 2^14 steps
  // stay below 2^31.
  constexpr size_t kSteps = size_t{1} << 14;
  size_t i = 0;
  while (i + N <= n) {
    auto s0 = hn::Zero(d32), s1 = hn::Zero(d32), unused = hn::Zero(d32);
    for (size_t k = 0; k < kSteps && i + N <= n; ++k, i += N) {
      const auto v = hn::LoadU(d16, p + i);
      s0 = hn::ReorderWidenMulAccumulate(d32, v, w0, s0, unused);
      if (stride == 2) s1 = hn::ReorderWidenMulAccumulate(d32, v, w1, s1, unused);
    }
    AddWidened(s0, lo0, hi0);
    AddWidened(s1, lo1, hi1);
  }
  int64_t tail[2] = {0, 0};
  scalar::sums_i16(p + i, n - i, stride, tail);
  out[0] = SumLanes64(d64, hn::Add(lo0, hi0)) + tail[0];
  if (stride == 2) out[1] = SumLanes64(d64, hn::Add(lo1, hi1)) + tail[1];
#endif
}

// Pairs of squares lie in [0, 2^31]: read as unsigned 32-bit values.
uint64_t SumSqI16(const int16_t* HWY_RESTRICT p, size_t n) {
#if HWY_TARGET == HWY_SCALAR
  return scalar::sum_sq_i16(p, n);
#else
  const D16 d16;
  const D32 d32;
  const hn::RebindToUnsigned<D32> du32;
  const hn::RebindToUnsigned<D64> du64;
  const hn::Half<decltype(du32)> duh;
  const size_t N = hn::Lanes(d16);
  auto lo = hn::Zero(du64), hi = hn::Zero(du64);
  size_t i = 0;
  for (; i + N <= n; i += N) {
    const auto v = hn::LoadU(d16, p + i);
    auto unused = hn::Zero(d32);
    const auto sq = hn::BitCast(du32, hn::ReorderWidenMulAccumulate(d32, v, v, hn::Zero(d32), unused));
    lo = hn::Add(lo, hn::PromoteTo(du64, hn::LowerHalf(duh, sq)));
    hi = hn::Add(hi, hn::PromoteTo(du64, hn::UpperHalf(duh, sq)));
  }
  return static_cast<uint64_t>(SumLanes64(du64, hn::Add(lo, hi))) + scalar::sum_sq_i16(p + i, n - i);
#endif
}

// A pair of products lies in [-2^31 + 2^16, 2^31]; only 2^31 (both pairs
// -32768 * -32768) wraps, onto INT32_MIN, a value that cannot occur
// otherwise. Subtracting 1 (wrapping) maps every attainable value onto
// [-2^31, 2^31 - 1] exactly, so the sign-extended lane plus 1 is the true
// pair sum; the 1s are added back once at the end.
int64_t DotI16(const int16_t* HWY_RESTRICT a, const int16_t* HWY_RESTRICT b, size_t n) {
#if HWY_TARGET == HWY_SCALAR
  return scalar::dot_i16(a, b, n);
#else
  const D16 d16;
  const D32 d32;
  const D64 d64;
  const size_t N = hn::Lanes(d16);
  const auto one = hn::Set(d32, 1);
  auto lo = hn::Zero(d64), hi = hn::Zero(d64);
  size_t i = 0;
  for (; i + N <= n; i += N) {
    auto unused = hn::Zero(d32);
    const auto pair = hn::ReorderWidenMulAccumulate(d32, hn::LoadU(d16, a + i), hn::LoadU(d16, b + i),
                                                    hn::Zero(d32), unused);
    AddWidened(hn::Sub(pair, one), lo, hi);
  }
  const int64_t ones = static_cast<int64_t>(i / 2);  // one per pair
  return SumLanes64(d64, hn::Add(lo, hi)) + ones + scalar::dot_i16(a + i, b + i, n - i);
#endif
}

// ---- Extremes. Four accumulators per result hide the latency of float
// min/max; a last vector overlapping the previous one covers the tail
// (min and max are idempotent).

template <bool kMin, bool kMax, class T>
void MinMaxKT(const T* HWY_RESTRICT p, size_t n, T* mn, T* mx) {
  const hn::ScalableTag<T> d;
  const size_t N = hn::Lanes(d);
  if (n < N) {
    scalar::min_max(p, n, mn, mx);
    return;
  }
  const auto first = hn::LoadU(d, p);
  auto l0 = first, l1 = first, l2 = first, l3 = first;
  auto h0 = first, h1 = first, h2 = first, h3 = first;
  size_t i = N;
  // Long vectors as two streams (the second half beside the first), as in
  // the norms; the loop below then finishes from 2 * half.
  const size_t half = n >= kTwoStreamMin ? (n / 2) / (2 * N) * (2 * N) : 0;
  for (size_t j = 0; j < half; j += 2 * N) {
    const auto v0 = hn::LoadU(d, p + j), v1 = hn::LoadU(d, p + j + N);
    const auto v2 = hn::LoadU(d, p + half + j), v3 = hn::LoadU(d, p + half + j + N);
    if (kMin) {
      l0 = hn::Min(l0, v0);
      l1 = hn::Min(l1, v1);
      l2 = hn::Min(l2, v2);
      l3 = hn::Min(l3, v3);
    }
    if (kMax) {
      h0 = hn::Max(h0, v0);
      h1 = hn::Max(h1, v1);
      h2 = hn::Max(h2, v2);
      h3 = hn::Max(h3, v3);
    }
  }
  if (half != 0) i = 2 * half;
  for (; i + 4 * N <= n; i += 4 * N) {
    const auto v0 = hn::LoadU(d, p + i), v1 = hn::LoadU(d, p + i + N);
    const auto v2 = hn::LoadU(d, p + i + 2 * N), v3 = hn::LoadU(d, p + i + 3 * N);
    if (kMin) {
      l0 = hn::Min(l0, v0);
      l1 = hn::Min(l1, v1);
      l2 = hn::Min(l2, v2);
      l3 = hn::Min(l3, v3);
    }
    if (kMax) {
      h0 = hn::Max(h0, v0);
      h1 = hn::Max(h1, v1);
      h2 = hn::Max(h2, v2);
      h3 = hn::Max(h3, v3);
    }
  }
  for (; i < n; i += N) {
    const auto v = hn::LoadU(d, p + (i + N <= n ? i : n - N));
    if (kMin) l0 = hn::Min(l0, v);
    if (kMax) h0 = hn::Max(h0, v);
  }
  const auto l = hn::Min(hn::Min(l0, l1), hn::Min(l2, l3));
  const auto h = hn::Max(hn::Max(h0, h1), hn::Max(h2, h3));
  if constexpr (sizeof(T) == 1) {
    // No cross-lane reduction of bytes on the wide targets: store and scan.
    alignas(64) T buf[HWY_MAX_BYTES];
    if (kMin) {
      hn::StoreU(l, d, buf);
      scalar::min_max(buf, N, mn, static_cast<T*>(nullptr));
    }
    if (kMax) {
      hn::StoreU(h, d, buf);
      scalar::min_max(buf, N, static_cast<T*>(nullptr), mx);
    }
  } else {
    // Reduction trees across the lanes (a store and scalar scan would cost
    // more than the whole loop at short lengths).
    if (kMin) *mn = hn::GetLane(hn::MinOfLanes(d, l));
    if (kMax) *mx = hn::GetLane(hn::MaxOfLanes(d, h));
  }
}

template <class T>
void MinMaxT(const T* p, size_t n, T* mn, T* mx) {
  if (mn && mx) {
    MinMaxKT<true, true>(p, n, mn, mx);
  } else if (mn) {
    MinMaxKT<true, false>(p, n, mn, mx);
  } else if (mx) {
    MinMaxKT<false, true>(p, n, mn, mx);
  }
}

template <class T>
size_t FindFirstT(const T* HWY_RESTRICT p, size_t n, T v) {
  const hn::ScalableTag<T> d;
  const size_t N = hn::Lanes(d);
  const auto vv = hn::Set(d, v);
  size_t i = 0;
  for (; i + N <= n; i += N) {
    const auto m = hn::Eq(hn::LoadU(d, p + i), vv);
    if (!hn::AllFalse(d, m)) return i + static_cast<size_t>(hn::FindFirstTrue(d, m));
  }
  return i + scalar::find_first(p + i, n - i, v);
}

#define KELS_STATS_EXTREME_KERNELS(T, name)                                            \
  void MinMax##name(const T* p, size_t n, T* mn, T* mx) { MinMaxT(p, n, mn, mx); }    \
  size_t FindFirst##name(const T* p, size_t n, T v) { return FindFirstT(p, n, v); }
KELS_STATS_EXTREME_KERNELS(uint8_t, U8)
KELS_STATS_EXTREME_KERNELS(uint16_t, U16)
KELS_STATS_EXTREME_KERNELS(int16_t, I16)
KELS_STATS_EXTREME_KERNELS(uint32_t, U32)
KELS_STATS_EXTREME_KERNELS(int32_t, I32)
KELS_STATS_EXTREME_KERNELS(float, F32)
KELS_STATS_EXTREME_KERNELS(double, F64)
#undef KELS_STATS_EXTREME_KERNELS

template <class S, class U>
void MagnitudeT(const S* HWY_RESTRICT p, U* HWY_RESTRICT out, size_t n) {
  size_t i = 0;
#if HWY_TARGET != HWY_SCALAR
  // Abs wraps the most negative value onto itself; its bits read as the
  // unsigned magnitude.
  const hn::ScalableTag<S> d;
  const hn::RebindToUnsigned<decltype(d)> du;
  const size_t N = hn::Lanes(d);
  for (; i + N <= n; i += N) hn::StoreU(hn::BitCast(du, hn::Abs(hn::LoadU(d, p + i))), du, out + i);
#endif
  scalar::magnitude(p + i, out + i, n - i);
}

void MagnitudeI16(const int16_t* p, uint16_t* o, size_t n) { MagnitudeT(p, o, n); }
void MagnitudeI32(const int32_t* p, uint32_t* o, size_t n) { MagnitudeT(p, o, n); }

// Magnitude bits compared as signed integers of the same width: with the
// sign bit cleared they are non-negative.
template <class F>
auto MaxMagnitudeBitsT(const F* HWY_RESTRICT p, size_t n) {
  using I = hwy::MakeSigned<F>;
  using U = hwy::MakeUnsigned<F>;
  const hn::ScalableTag<I> di;
  const size_t N = hn::Lanes(di);
  const auto mask = hn::Set(di, hwy::LimitsMax<I>());
  auto m = hn::Zero(di);
  size_t i = 0;
  for (; i + N <= n; i += N) {
    const auto v = hn::LoadU(di, reinterpret_cast<const I*>(p) + i);
    m = hn::Max(m, hn::And(v, mask));
  }
  alignas(64) I buf[kMaxLaneBytes / sizeof(I)];
  hn::StoreU(m, di, buf);
  U best = scalar::max_magnitude_bits<U>(p + i, n - i);
  for (size_t k = 0; k < N; ++k) {
    if (static_cast<U>(buf[k]) > best) best = static_cast<U>(buf[k]);
  }
  return best;
}

uint32_t MaxMagnitudeBitsF32(const float* p, size_t n) { return MaxMagnitudeBitsT(p, n); }
uint64_t MaxMagnitudeBitsF64(const double* p, size_t n) { return MaxMagnitudeBitsT(p, n); }

template <class T>
void EveryT(const T* HWY_RESTRICT src, T* HWY_RESTRICT srcdst, size_t n, bool take_max) {
  size_t i = 0;
#if HWY_TARGET != HWY_SCALAR
  // Max(a, b) / Min(a, b) return b unless a is strictly greater / smaller,
  // exactly like the scalar rule (also for NaN operands).
  const hn::ScalableTag<T> d;
  const size_t N = hn::Lanes(d);
  if (take_max) {
    for (; i + N <= n; i += N) {
      hn::StoreU(hn::Max(hn::LoadU(d, src + i), hn::LoadU(d, srcdst + i)), d, srcdst + i);
    }
  } else {
    for (; i + N <= n; i += N) {
      hn::StoreU(hn::Min(hn::LoadU(d, src + i), hn::LoadU(d, srcdst + i)), d, srcdst + i);
    }
  }
#endif
  scalar::every(src + i, srcdst + i, n - i, take_max);
}

void EveryI16(const int16_t* s, int16_t* sd, size_t n, bool mx) { EveryT(s, sd, n, mx); }
void EveryI32(const int32_t* s, int32_t* sd, size_t n, bool mx) { EveryT(s, sd, n, mx); }
void EveryF32(const float* s, float* sd, size_t n, bool mx) { EveryT(s, sd, n, mx); }

size_t CountInRangeI32(const int32_t* HWY_RESTRICT p, size_t n, int32_t lo, int32_t hi) {
  const hn::ScalableTag<int32_t> d;
  const size_t N = hn::Lanes(d);
  const auto vlo = hn::Set(d, lo), vhi = hn::Set(d, hi);
  size_t count = 0, i = 0;
  for (; i + N <= n; i += N) {
    const auto v = hn::LoadU(d, p + i);
    count += hn::CountTrue(d, hn::And(hn::Gt(v, vlo), hn::Lt(v, vhi)));
  }
  return count + scalar::count_in_range(p + i, n - i, lo, hi);
}

}  // namespace HWY_NAMESPACE
}  // namespace kels::kernels
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace kels::kernels {

HWY_EXPORT(SumLanesF32);
HWY_EXPORT(SumLanesF64);
HWY_EXPORT(SumSqF32);
HWY_EXPORT(DotRRF32);
HWY_EXPORT(DotRRF64);
HWY_EXPORT(DotRCF32);
HWY_EXPORT(DotRCF64);
HWY_EXPORT(DotCCF32);
HWY_EXPORT(DotCCF64);
HWY_EXPORT(NormF32);
HWY_EXPORT(NormF64);
HWY_EXPORT(SumsI16);
HWY_EXPORT(SumSqI16);
HWY_EXPORT(DotI16);
HWY_EXPORT(MagnitudeI16);
HWY_EXPORT(MagnitudeI32);
HWY_EXPORT(MaxMagnitudeBitsF32);
HWY_EXPORT(MaxMagnitudeBitsF64);
HWY_EXPORT(EveryI16);
HWY_EXPORT(EveryI32);
HWY_EXPORT(EveryF32);
HWY_EXPORT(CountInRangeI32);

void sum_lanes(const float* p, std::size_t n, std::size_t s, float* o) { HWY_DYNAMIC_DISPATCH(SumLanesF32)(p, n, s, o); }
void sum_lanes(const double* p, std::size_t n, std::size_t s, double* o) { HWY_DYNAMIC_DISPATCH(SumLanesF64)(p, n, s, o); }
void sum_sq(const float* p, std::size_t n, double* s1, double* s2) { HWY_DYNAMIC_DISPATCH(SumSqF32)(p, n, s1, s2); }
double dot_rr(const float* a, const float* b, std::size_t n) { return HWY_DYNAMIC_DISPATCH(DotRRF32)(a, b, n); }
double dot_rr(const double* a, const double* b, std::size_t n) { return HWY_DYNAMIC_DISPATCH(DotRRF64)(a, b, n); }
void dot_rc(const float* a, const float* b, std::size_t n, double* o) { HWY_DYNAMIC_DISPATCH(DotRCF32)(a, b, n, o); }
void dot_rc(const double* a, const double* b, std::size_t n, double* o) { HWY_DYNAMIC_DISPATCH(DotRCF64)(a, b, n, o); }
void dot_cc(const float* a, const float* b, std::size_t n, double* o) { HWY_DYNAMIC_DISPATCH(DotCCF32)(a, b, n, o); }
void dot_cc(const double* a, const double* b, std::size_t n, double* o) { HWY_DYNAMIC_DISPATCH(DotCCF64)(a, b, n, o); }
double norm(const float* a, const float* b, std::size_t n, NormKind k, bool c) {
  return HWY_DYNAMIC_DISPATCH(NormF32)(a, b, n, k, c);
}
double norm(const double* a, const double* b, std::size_t n, NormKind k, bool c) {
  return HWY_DYNAMIC_DISPATCH(NormF64)(a, b, n, k, c);
}

void sums_i16(const std::int16_t* p, std::size_t n, std::size_t s, std::int64_t* o) {
  HWY_DYNAMIC_DISPATCH(SumsI16)(p, n, s, o);
}
std::uint64_t sum_sq_i16(const std::int16_t* p, std::size_t n) { return HWY_DYNAMIC_DISPATCH(SumSqI16)(p, n); }
std::int64_t dot_i16(const std::int16_t* a, const std::int16_t* b, std::size_t n) {
  return HWY_DYNAMIC_DISPATCH(DotI16)(a, b, n);
}

#define KELS_STATS_EXTREME_DISPATCH(T, name)                                           \
  HWY_EXPORT(MinMax##name);                                                            \
  HWY_EXPORT(FindFirst##name);                                                         \
  void min_max(const T* p, std::size_t n, T* mn, T* mx) { HWY_DYNAMIC_DISPATCH(MinMax##name)(p, n, mn, mx); } \
  std::size_t find_first(const T* p, std::size_t n, T v) { return HWY_DYNAMIC_DISPATCH(FindFirst##name)(p, n, v); }
KELS_STATS_EXTREME_DISPATCH(std::uint8_t, U8)
KELS_STATS_EXTREME_DISPATCH(std::uint16_t, U16)
KELS_STATS_EXTREME_DISPATCH(std::int16_t, I16)
KELS_STATS_EXTREME_DISPATCH(std::uint32_t, U32)
KELS_STATS_EXTREME_DISPATCH(std::int32_t, I32)
KELS_STATS_EXTREME_DISPATCH(float, F32)
KELS_STATS_EXTREME_DISPATCH(double, F64)
#undef KELS_STATS_EXTREME_DISPATCH

void magnitude(const std::int16_t* p, std::uint16_t* o, std::size_t n) { HWY_DYNAMIC_DISPATCH(MagnitudeI16)(p, o, n); }
void magnitude(const std::int32_t* p, std::uint32_t* o, std::size_t n) { HWY_DYNAMIC_DISPATCH(MagnitudeI32)(p, o, n); }
std::uint32_t max_magnitude_bits(const float* p, std::size_t n) { return HWY_DYNAMIC_DISPATCH(MaxMagnitudeBitsF32)(p, n); }
std::uint64_t max_magnitude_bits(const double* p, std::size_t n) { return HWY_DYNAMIC_DISPATCH(MaxMagnitudeBitsF64)(p, n); }
void every(const std::int16_t* s, std::int16_t* sd, std::size_t n, bool mx) { HWY_DYNAMIC_DISPATCH(EveryI16)(s, sd, n, mx); }
void every(const std::int32_t* s, std::int32_t* sd, std::size_t n, bool mx) { HWY_DYNAMIC_DISPATCH(EveryI32)(s, sd, n, mx); }
void every(const float* s, float* sd, std::size_t n, bool mx) { HWY_DYNAMIC_DISPATCH(EveryF32)(s, sd, n, mx); }
std::size_t count_in_range(const std::int32_t* p, std::size_t n, std::int32_t lo, std::int32_t hi) {
  return HWY_DYNAMIC_DISPATCH(CountInRangeI32)(p, n, lo, hi);
}

}  // namespace kels::kernels
#endif  // HWY_ONCE
