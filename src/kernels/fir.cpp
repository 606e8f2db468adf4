// FIR kernels, compiled once per SIMD target by Highway: inner products
// (several independent accumulators per pass over the taps so that the
// additions overlap in the pipeline; the tap is broadcast and the input read
// unaligned at offset n + k) and the spectral step of overlap-save.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "kernels/fir.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep
#include "hwy/highway.h"

#include "kernels/fir.h"

#include <cmath>

HWY_BEFORE_NAMESPACE();
namespace kels::kernels {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// One running sum per output (double precision).
template <class T>
void FirDotReal(const T* HWY_RESTRICT t, size_t L, const T* HWY_RESTRICT x, T* HWY_RESTRICT y,
                size_t count) {
  const hn::ScalableTag<T> d;
  const size_t N = hn::Lanes(d);
  size_t n = 0;
  for (; n + 4 * N <= count; n += 4 * N) {
    auto a0 = hn::Zero(d), a1 = hn::Zero(d), a2 = hn::Zero(d), a3 = hn::Zero(d);
    const T* xp = x + n;
    for (size_t k = 0; k < L; ++k) {
      const auto tk = hn::Set(d, t[k]);
      a0 = hn::Add(a0, hn::Mul(tk, hn::LoadU(d, xp + k)));
      a1 = hn::Add(a1, hn::Mul(tk, hn::LoadU(d, xp + k + N)));
      a2 = hn::Add(a2, hn::Mul(tk, hn::LoadU(d, xp + k + 2 * N)));
      a3 = hn::Add(a3, hn::Mul(tk, hn::LoadU(d, xp + k + 3 * N)));
    }
    hn::StoreU(a0, d, y + n);
    hn::StoreU(a1, d, y + n + N);
    hn::StoreU(a2, d, y + n + 2 * N);
    hn::StoreU(a3, d, y + n + 3 * N);
  }
  for (; n + N <= count; n += N) {
    auto a = hn::Zero(d);
    for (size_t k = 0; k < L; ++k) a = hn::Add(a, hn::Mul(hn::Set(d, t[k]), hn::LoadU(d, x + n + k)));
    hn::StoreU(a, d, y + n);
  }
  scalar::fir_dot_real(t, L, x + n, y + n, count - n);
}

// V vectors of consecutive outputs by the single-precision rule of four
// partial sums (L >= 4): each output lane keeps its own s0..s3, so the lane
// performs exactly the operations of scalar::sum_f32; the 4V independent
// accumulators hide the latency of the additions.
template <size_t V, class D>
HWY_INLINE void SumF32Block(D d, const float* HWY_RESTRICT t, size_t L, const float* HWY_RESTRICT x,
                            float* HWY_RESTRICT y) {
  const size_t N = hn::Lanes(d);
  hn::Vec<D> s[V][4];
  for (size_t v = 0; v < V; ++v) {
    for (size_t j = 0; j < 4; ++j) s[v][j] = hn::Zero(d);
  }
  const size_t L4 = L & ~size_t{3};
  size_t k = 0;
  for (; k < L4; k += 4) {
    for (size_t j = 0; j < 4; ++j) {
      const auto tk = hn::Set(d, t[k + j]);
      for (size_t v = 0; v < V; ++v) s[v][j] = hn::Add(s[v][j], hn::Mul(tk, hn::LoadU(d, x + v * N + k + j)));
    }
  }
  if (L - k >= 2) {
    for (size_t j = 0; j < 2; ++j) {
      const auto tk = hn::Set(d, t[k + j]);
      for (size_t v = 0; v < V; ++v) s[v][j] = hn::Add(s[v][j], hn::Mul(tk, hn::LoadU(d, x + v * N + k + j)));
    }
    k += 2;
  }
  if (k < L) {
    const auto tk = hn::Set(d, t[k]);
    for (size_t v = 0; v < V; ++v) s[v][0] = hn::Add(s[v][0], hn::Mul(tk, hn::LoadU(d, x + v * N + k)));
  }
  for (size_t v = 0; v < V; ++v) {
    hn::StoreU(hn::Add(hn::Add(s[v][0], s[v][1]), hn::Add(s[v][2], s[v][3])), d, y + v * N);
  }
}

void FirDotF32(const float* HWY_RESTRICT t, size_t L, const float* HWY_RESTRICT x, float* HWY_RESTRICT y,
               size_t count) {
  size_t n = 0;
  if (L >= 4) {
    const hn::ScalableTag<float> d;
    const size_t N = hn::Lanes(d);
    for (; n + 2 * N <= count; n += 2 * N) SumF32Block<2>(d, t, L, x + n, y + n);
    for (; n + N <= count; n += N) SumF32Block<1>(d, t, L, x + n, y + n);
  }
  scalar::fir_dot_f32(t, L, x + n, y + n, count - n);
}
void FirDotF64(const double* t, size_t L, const double* x, double* y, size_t count) {
  FirDotReal(t, L, x, y, count);
}

// Caller-held single-precision sums in double precision, V vectors of
// outputs per pass: the products are formed in single precision (so each is
// rounded as the rule says) and widened; the order of the additions does not
// matter because the caller only uses this where they are exact.
template <size_t V, class DD>
HWY_INLINE void SumExactBlock(DD dd, const float* HWY_RESTRICT taps, size_t L, const float* HWY_RESTRICT x,
                              float* HWY_RESTRICT y) {
  const hn::Rebind<float, DD> df;
  const size_t N = hn::Lanes(dd);
  hn::Vec<DD> s[V];
  for (size_t v = 0; v < V; ++v) s[v] = hn::Zero(dd);
  for (size_t k = 0; k < L; ++k) {
    const auto tk = hn::Set(df, taps[L - 1 - k]);
    for (size_t v = 0; v < V; ++v) s[v] = hn::Add(s[v], hn::PromoteTo(dd, hn::Mul(tk, hn::LoadU(df, x + v * N + k))));
  }
  for (size_t v = 0; v < V; ++v) hn::StoreU(hn::DemoteTo(df, s[v]), df, y + v * N);
}

void FirSumExactF32(const float* HWY_RESTRICT taps, size_t L, const float* HWY_RESTRICT x, float* HWY_RESTRICT y,
                    size_t count) {
  const hn::ScalableTag<double> dd;
  const size_t N = hn::Lanes(dd);
  size_t n = 0;
  for (; n + 4 * N <= count; n += 4 * N) SumExactBlock<4>(dd, taps, L, x + n, y + n);
  for (; n + N <= count; n += N) SumExactBlock<1>(dd, taps, L, x + n, y + n);
  scalar::fir_sum_exact_f32(taps, L, x + n, y + n, count - n);
}

// Two accumulators (split at 2^g), combined as scalar::round_sum_to_float
// does, lane by lane.
template <size_t V, class DD>
HWY_INLINE void SumSplitBlock(DD dd, const float* HWY_RESTRICT taps, size_t L, const float* HWY_RESTRICT x,
                              float* HWY_RESTRICT y, hn::Vec<DD> split) {
  const hn::Rebind<float, DD> df;
  const hn::RebindToUnsigned<DD> du;
  const size_t N = hn::Lanes(dd);
  hn::Vec<DD> a[V], b[V];
  for (size_t v = 0; v < V; ++v) a[v] = b[v] = hn::Zero(dd);
  for (size_t k = 0; k < L; ++k) {
    const auto tk = hn::Set(df, taps[L - 1 - k]);
    for (size_t v = 0; v < V; ++v) {
      const auto p = hn::PromoteTo(dd, hn::Mul(tk, hn::LoadU(df, x + v * N + k)));
      const auto big = hn::Ge(hn::Abs(p), split);
      a[v] = hn::Add(a[v], hn::IfThenElseZero(big, p));
      b[v] = hn::Add(b[v], hn::IfThenZeroElse(big, p));
    }
  }
  const auto one = hn::Set(du, 1);
  const auto minus_one = hn::Set(du, ~uint64_t{0});
  for (size_t v = 0; v < V; ++v) {
    const auto s = hn::Add(a[v], b[v]);
    const auto bb = hn::Sub(s, a[v]);
    const auto e = hn::Add(hn::Sub(a[v], hn::Sub(s, bb)), hn::Sub(b[v], bb));
    const auto u = hn::BitCast(du, s);
    const auto even = hn::Eq(hn::And(u, one), hn::Zero(du));
    const auto inexact = hn::RebindMask(du, hn::Ne(e, hn::Zero(dd)));
    const auto same_sign = hn::Eq(hn::ShiftRight<63>(hn::Xor(hn::BitCast(du, e), u)), hn::Zero(du));
    const auto step = hn::IfThenElse(same_sign, one, minus_one);
    const auto odd = hn::IfThenElse(hn::And(even, inexact), hn::Add(u, step), u);
    hn::StoreU(hn::DemoteTo(df, hn::BitCast(dd, odd)), df, y + v * N);
  }
}

void FirSumSplitF32(const float* HWY_RESTRICT taps, size_t L, const float* HWY_RESTRICT x, float* HWY_RESTRICT y,
                    size_t count, int g) {
  const hn::ScalableTag<double> dd;
  const size_t N = hn::Lanes(dd);
  const auto split = hn::Set(dd, std::ldexp(1.0, g));
  size_t n = 0;
  for (; n + 2 * N <= count; n += 2 * N) SumSplitBlock<2>(dd, taps, L, x + n, y + n, split);
  for (; n + N <= count; n += N) SumSplitBlock<1>(dd, taps, L, x + n, y + n, split);
  scalar::fir_sum_split_f32(taps, L, x + n, y + n, count - n, g);
}

// Smallest nonzero and largest magnitude bit patterns of v.
void FirMagnitudeBits(const float* HWY_RESTRICT v, size_t n, uint32_t* min_nonzero, uint32_t* max_bits) {
  const hn::ScalableTag<uint32_t> du;
  const size_t N = hn::Lanes(du);
  const auto mask = hn::Set(du, 0x7fffffffu);
  const auto none = hn::Set(du, 0xffffffffu);
  auto lo = none, hi = hn::Zero(du);
  const uint32_t* p = reinterpret_cast<const uint32_t*>(v);
  size_t i = 0;
  for (; i + N <= n; i += N) {
    const auto u = hn::And(hn::LoadU(du, p + i), mask);
    hi = hn::Max(hi, u);
    lo = hn::Min(lo, hn::IfThenElse(hn::Eq(u, hn::Zero(du)), none, u));
  }
  uint32_t l = hn::GetLane(hn::MinOfLanes(du, lo)), h = hn::GetLane(hn::MaxOfLanes(du, hi));
  scalar::magnitude_bits(v + i, n - i, &l, &h);
  *min_nonzero = l;
  *max_bits = h;
}

// Spectral step: the k side is a vector of C = N/2 complex entries from k
// on, the partner side the C entries ending at m - k; each side reads the
// other in reversed entry order. Entries 0 and m/2 and the last pairs near
// m/2 go through the scalar twin.
#if HWY_TARGET != HWY_SCALAR
template <class D, class T>
HWY_INLINE hn::Vec<D> SpectralPart(D d, const T* const tab[4], size_t e, hn::Vec<D> v, hn::Vec<D> w) {
  const auto a = hn::Add(hn::Mul(hn::LoadU(d, tab[0] + 2 * e), v), hn::Mul(hn::LoadU(d, tab[1] + 2 * e), hn::Reverse2(d, v)));
  const auto b = hn::Add(hn::Mul(hn::LoadU(d, tab[2] + 2 * e), w), hn::Mul(hn::LoadU(d, tab[3] + 2 * e), hn::Reverse2(d, w)));
  return hn::Add(a, b);
}
// Complex entries in reverse order (the parts of each entry stay in place).
template <class D>
HWY_INLINE hn::Vec<D> ReverseEntries(D d, hn::Vec<D> v) {
  return hn::Reverse2(d, hn::Reverse(d, v));
}
#endif

template <class T>
void FirSpectral(const T* const tab[4], T* HWY_RESTRICT z, size_t m) {
  scalar::spectral(tab, z, m, 0, 0);
  size_t k = 1;
#if HWY_TARGET != HWY_SCALAR
  const hn::ScalableTag<T> d;
  const size_t C = hn::Lanes(d) / 2;
  for (; k + C <= m / 2; k += C) {
    const size_t j = m - k - (C - 1);
    const auto v = hn::LoadU(d, z + 2 * k);
    const auto w = hn::LoadU(d, z + 2 * j);
    const auto ok = SpectralPart(d, tab, k, v, ReverseEntries(d, w));
    const auto oj = SpectralPart(d, tab, j, w, ReverseEntries(d, v));
    hn::StoreU(ok, d, z + 2 * k);
    hn::StoreU(oj, d, z + 2 * j);
  }
#endif
  scalar::spectral(tab, z, m, k, m / 2);
}
void FirSpectralF32(const float* const tab[4], float* z, size_t m) { FirSpectral(tab, z, m); }
void FirSpectralF64(const double* const tab[4], double* z, size_t m) { FirSpectral(tab, z, m); }

// Complex: a vector holds N/2 interleaved outputs. The products with the
// real part of the tap and with the imaginary part (on the pair-swapped
// input) are combined as (p1 - p2) in the real lanes and (p1 + p2) in the
// imaginary lanes, which is the scalar twin's expression lane by lane.
#if HWY_TARGET != HWY_SCALAR
template <class D>
HWY_INLINE hn::Vec<D> ComplexStep(D d, hn::Vec<D> acc, const float* xp, hn::Vec<D> tr, hn::Vec<D> ti) {
  const auto v = hn::LoadU(d, xp);
  const auto p1 = hn::Mul(tr, v);
  const auto p2 = hn::Mul(ti, hn::Reverse2(d, v));
  return hn::Add(acc, hn::OddEven(hn::Add(p1, p2), hn::Sub(p1, p2)));
}
#endif

void FirDotC32(const float* HWY_RESTRICT t, size_t L, const float* HWY_RESTRICT x,
               float* HWY_RESTRICT y, size_t count) {
  size_t n = 0;
#if HWY_TARGET != HWY_SCALAR
  const hn::ScalableTag<float> d;
  const size_t N = hn::Lanes(d);  // floats per vector
  const size_t C = N / 2;         // complex outputs per vector
  for (; n + 4 * C <= count; n += 4 * C) {
    auto a0 = hn::Zero(d), a1 = hn::Zero(d), a2 = hn::Zero(d), a3 = hn::Zero(d);
    const float* xp = x + 2 * n;
    for (size_t k = 0; k < L; ++k) {
      const auto tr = hn::Set(d, t[2 * k]);
      const auto ti = hn::Set(d, t[2 * k + 1]);
      a0 = ComplexStep(d, a0, xp + 2 * k, tr, ti);
      a1 = ComplexStep(d, a1, xp + 2 * k + N, tr, ti);
      a2 = ComplexStep(d, a2, xp + 2 * k + 2 * N, tr, ti);
      a3 = ComplexStep(d, a3, xp + 2 * k + 3 * N, tr, ti);
    }
    hn::StoreU(a0, d, y + 2 * n);
    hn::StoreU(a1, d, y + 2 * n + N);
    hn::StoreU(a2, d, y + 2 * n + 2 * N);
    hn::StoreU(a3, d, y + 2 * n + 3 * N);
  }
  for (; n + C <= count; n += C) {
    auto a = hn::Zero(d);
    for (size_t k = 0; k < L; ++k) {
      a = ComplexStep(d, a, x + 2 * (n + k), hn::Set(d, t[2 * k]), hn::Set(d, t[2 * k + 1]));
    }
    hn::StoreU(a, d, y + 2 * n);
  }
#endif
  scalar::fir_dot_c32(t, L, x + 2 * n, y + 2 * n, count - n);
}

}  // namespace HWY_NAMESPACE
}  // namespace kels::kernels
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace kels::kernels {

HWY_EXPORT(FirDotF32);
HWY_EXPORT(FirDotF64);
HWY_EXPORT(FirDotC32);
HWY_EXPORT(FirSpectralF32);
HWY_EXPORT(FirSumExactF32);
HWY_EXPORT(FirSumSplitF32);
HWY_EXPORT(FirMagnitudeBits);
HWY_EXPORT(FirSpectralF64);

void fir_dot_f32(const float* t, std::size_t L, const float* x, float* y, std::size_t count) {
  HWY_DYNAMIC_DISPATCH(FirDotF32)(t, L, x, y, count);
}
void fir_dot_f64(const double* t, std::size_t L, const double* x, double* y, std::size_t count) {
  HWY_DYNAMIC_DISPATCH(FirDotF64)(t, L, x, y, count);
}
void fir_dot_c32(const float* t, std::size_t L, const float* x, float* y, std::size_t count) {
  HWY_DYNAMIC_DISPATCH(FirDotC32)(t, L, x, y, count);
}

void fir_sum_split_f32(const float* taps, std::size_t L, const float* x, float* y, std::size_t count, int g) {
  HWY_DYNAMIC_DISPATCH(FirSumSplitF32)(taps, L, x, y, count, g);
}
ExponentRange exponent_range(const float* v, std::size_t n) {
  std::uint32_t lo = 0, hi = 0;
  HWY_DYNAMIC_DISPATCH(FirMagnitudeBits)(v, n, &lo, &hi);
  return exponent_range_of(lo, hi);
}
void fir_sum_exact_f32(const float* taps, std::size_t L, const float* x, float* y, std::size_t count) {
  HWY_DYNAMIC_DISPATCH(FirSumExactF32)(taps, L, x, y, count);
}
void fir_spectral_f32(const float* const tab[4], float* z, std::size_t m) {
  HWY_DYNAMIC_DISPATCH(FirSpectralF32)(tab, z, m);
}
void fir_spectral_f64(const double* const tab[4], double* z, std::size_t m) {
  HWY_DYNAMIC_DISPATCH(FirSpectralF64)(tab, z, m);
}

}  // namespace kels::kernels
#endif  // HWY_ONCE
