// SIMD kernels of the real FFT (the recombination of the half-length
// spectrum) and of the packed-spectrum products, compiled once per target by
// Highway (see fft_real.h for the arithmetic). The recombination works on
// a vector of pairs k..k+L-1 from the bottom and their partners m-k-L+1..m-k
// from the top, the top vector reversed complex by complex so that lane j of
// both holds the partners k + j and m - k - j. Every sum and product is the
// twin's, in the twin's order, so the results are bit-identical.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "kernels/fft_real.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep
#include "hwy/highway.h"

#include <cstring>
#include <type_traits>

#include "kernels/fft_real.h"

HWY_BEFORE_NAMESPACE();
namespace kels::kernels {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET != HWY_SCALAR

// Alternating sums: AddSub gives x - y in the even lanes and x + y in the
// odd lanes, SubAdd the opposite. SSE4 has the first as one instruction;
// the targets with fused forms compute x * 1 -/+ y, whose product by one is
// exact, so the single rounding is that of the plain sum either way.
#if HWY_TARGET == HWY_SSE4
HWY_INLINE __m128 AddSubRaw(__m128 x, __m128 y) { return _mm_addsub_ps(x, y); }
HWY_INLINE __m128d AddSubRaw(__m128d x, __m128d y) { return _mm_addsub_pd(x, y); }
HWY_INLINE __m128 SubAddRaw(__m128 x, __m128 y) {
  return _mm_addsub_ps(x, _mm_xor_ps(y, _mm_set1_ps(-0.0f)));
}
HWY_INLINE __m128d SubAddRaw(__m128d x, __m128d y) {
  return _mm_addsub_pd(x, _mm_xor_pd(y, _mm_set1_pd(-0.0)));
}
#else
HWY_INLINE __m128 AddSubRaw(__m128 x, __m128 y) { return _mm_fmaddsub_ps(x, _mm_set1_ps(1.0f), y); }
HWY_INLINE __m128d AddSubRaw(__m128d x, __m128d y) { return _mm_fmaddsub_pd(x, _mm_set1_pd(1.0), y); }
HWY_INLINE __m256 AddSubRaw(__m256 x, __m256 y) { return _mm256_fmaddsub_ps(x, _mm256_set1_ps(1.0f), y); }
HWY_INLINE __m256d AddSubRaw(__m256d x, __m256d y) { return _mm256_fmaddsub_pd(x, _mm256_set1_pd(1.0), y); }
HWY_INLINE __m128 SubAddRaw(__m128 x, __m128 y) { return _mm_fmsubadd_ps(x, _mm_set1_ps(1.0f), y); }
HWY_INLINE __m128d SubAddRaw(__m128d x, __m128d y) { return _mm_fmsubadd_pd(x, _mm_set1_pd(1.0), y); }
HWY_INLINE __m256 SubAddRaw(__m256 x, __m256 y) { return _mm256_fmsubadd_ps(x, _mm256_set1_ps(1.0f), y); }
HWY_INLINE __m256d SubAddRaw(__m256d x, __m256d y) { return _mm256_fmsubadd_pd(x, _mm256_set1_pd(1.0), y); }
#if HWY_TARGET <= HWY_AVX3
HWY_INLINE __m512 AddSubRaw(__m512 x, __m512 y) { return _mm512_fmaddsub_ps(x, _mm512_set1_ps(1.0f), y); }
HWY_INLINE __m512d AddSubRaw(__m512d x, __m512d y) { return _mm512_fmaddsub_pd(x, _mm512_set1_pd(1.0), y); }
HWY_INLINE __m512 SubAddRaw(__m512 x, __m512 y) { return _mm512_fmsubadd_ps(x, _mm512_set1_ps(1.0f), y); }
HWY_INLINE __m512d SubAddRaw(__m512d x, __m512d y) { return _mm512_fmsubadd_pd(x, _mm512_set1_pd(1.0), y); }
#endif
#endif
template <class V>
HWY_INLINE V AddSub(V x, V y) {
  V r;
  r.raw = AddSubRaw(x.raw, y.raw);
  return r;
}
template <class V>
HWY_INLINE V SubAdd(V x, V y) {
  V r;
  r.raw = SubAddRaw(x.raw, y.raw);
  return r;
}

// Reverses the order of the complex values (lane pairs) of v.
template <class D>
HWY_INLINE hn::Vec<D> ReverseCx(D d, hn::Vec<D> v) {
  if constexpr (sizeof(hn::TFromD<D>) == 4) {
    const hn::Repartition<uint64_t, D> du;
    return hn::BitCast(d, hn::Reverse(du, hn::BitCast(du, v)));
  } else {
    return hn::Reverse2(d, hn::Reverse(d, v));
  }
}

// Real and imaginary parts of the complex values at p, each duplicated into
// both lanes of its pair. For single precision the x86 forms that duplicate
// while loading (a load and no shuffle) are used where they exist.
template <bool IM, class D>
HWY_INLINE hn::Vec<D> LoadDup(D d, const hn::TFromD<D>* p) {
#if HWY_TARGET <= HWY_AVX3
  if constexpr (std::is_same_v<hn::Vec<D>, hn::Vec512<float>>) {
    const __m512 v = _mm512_loadu_ps(p);
    return hn::Vec<D>{IM ? _mm512_movehdup_ps(v) : _mm512_moveldup_ps(v)};
  }
#endif
#if HWY_TARGET <= HWY_AVX2
  if constexpr (std::is_same_v<hn::Vec<D>, hn::Vec256<float>>) {
    const __m256 v = _mm256_loadu_ps(p);
    return hn::Vec<D>{IM ? _mm256_movehdup_ps(v) : _mm256_moveldup_ps(v)};
  }
#endif
  const auto v = hn::LoadU(d, p);
  return IM ? hn::DupOdd(v) : hn::DupEven(v);
}
template <class D>
HWY_INLINE hn::Vec<D> LoadDupRe(D d, const hn::TFromD<D>* p) { return LoadDup<false>(d, p); }
template <class D>
HWY_INLINE hn::Vec<D> LoadDupIm(D d, const hn::TFromD<D>* p) { return LoadDup<true>(d, p); }

// Pairs from k on with vectors of d while a whole vector of pairs remains
// below the middle; returns the first pair not done. UNIT: s == 1, whose
// products are exact and skipped.
template <bool UNIT, class D, class T = hn::TFromD<D>>
HWY_INLINE size_t RecombineVectors(D d, const T* in, T* out, size_t m, size_t k, const T* u, T hs, T s) {
  const size_t L = hn::Lanes(d) / 2;
  const auto vhs = hn::Set(d, hs), vs = hn::Set(d, s);
  const auto one = hn::Set(d, T(1)), neg = hn::Set(d, T(-1));
  const auto cj = hn::OddEven(neg, one);   // -1 on the imaginary lanes
  for (; k + L <= m / 2; k += L) {
    const auto a = hn::LoadU(d, in + 2 * (k - 1));
    const auto b = ReverseCx(d, hn::LoadU(d, in + 2 * (m - k - L)));
    const auto p = hn::Add(a, b), q = hn::Sub(a, b);
    const auto e = hn::Mul(hn::OddEven(q, p), vhs);  // (ar + br, ai - bi) hs
    auto f = hn::OddEven(p, q);                      // (ar - br, ai + bi) s
    if (!UNIT) f = hn::Mul(f, vs);
    const auto x = hn::Mul(LoadDupRe(d, u + 2 * k), f);
    const auto y = hn::Mul(LoadDupIm(d, u + 2 * k), hn::Reverse2(d, f));
    const auto t = AddSub(x, y);  // (x - y, x + y)
    hn::StoreU(hn::Add(e, t), d, out + 2 * (k - 1));
    hn::StoreU(ReverseCx(d, hn::Mul(hn::Sub(e, t), cj)), d, out + 2 * (m - k - L));
  }
  return k;
}

// Full vectors, then (short spectra and the pairs next to the middle)
// half and quarter vectors down to 128 bits, then the twin for what is left
// and the middle.
template <bool UNIT, class T>
void RecombineWidths(const T* in, T* out, size_t m, const T* u, T mid, T hs, T s) {
  const hn::ScalableTag<T> d;
  size_t k = RecombineVectors<UNIT>(d, in, out, m, 1, u, hs, s);
  if (hn::Lanes(d) * sizeof(T) > 32) {
    k = RecombineVectors<UNIT>(hn::CappedTag<T, 32 / sizeof(T)>(), in, out, m, k, u, hs, s);
  }
  if (hn::Lanes(d) * sizeof(T) > 16) {
    k = RecombineVectors<UNIT>(hn::CappedTag<T, 16 / sizeof(T)>(), in, out, m, k, u, hs, s);
  }
  scalar::recombine_from(in, out, m, k, u, mid, hs, s);
}

template <class T>
void RecombineT(const T* in, T* out, size_t m, const T* u, T mid, T hs, T s) {
  if (s == T(1)) RecombineWidths<true>(in, out, m, u, mid, hs, s);
  else RecombineWidths<false>(in, out, m, u, mid, hs, s);
}

// Complex products of the interleaved pairs at a and b: with x = Re(a) b and
// y = Im(a) times b swapped, a b = (x - y, x + y) and a conj(b) = (y + x,
// y - x) on (even, odd) lanes, the twin's sums exactly.
template <bool CONJ, class D>
HWY_INLINE hn::Vec<D> MulCx(D d, const hn::TFromD<D>* a, const hn::TFromD<D>* b) {
  auto vb = hn::LoadU(d, b);
  // b is loaded once and kept in a register: folded into both of its uses,
  // the load would run twice, and loads are what bounds this loop (the
  // duplicating loads of a cost no shuffle).
  asm("" : "+v"(vb.raw));
  const auto x = hn::Mul(LoadDupRe(d, a), vb);
  const auto y = hn::Mul(LoadDupIm(d, a), hn::Reverse2(d, vb));
  return CONJ ? SubAdd(y, x) : AddSub(x, y);
}

// Products of fewer than a vector of values through a padded vector, with
// the same arithmetic as the full vectors (a scalar loop here could be
// turned into fused multiply-adds by the compiler's own vectoriser).
template <bool CONJ, class D>
HWY_INLINE void MulCxPartial(D d, const hn::TFromD<D>* a, const hn::TFromD<D>* b, hn::TFromD<D>* dst,
                             size_t count) {
  using T = hn::TFromD<D>;
  HWY_ALIGN T ta[64 / sizeof(T)] = {}, tb[64 / sizeof(T)] = {};
  std::memcpy(ta, a, count * sizeof(T));
  std::memcpy(tb, b, count * sizeof(T));
  hn::Store(MulCx<CONJ>(d, ta, tb), d, ta);
  std::memcpy(dst, ta, count * sizeof(T));
}

template <bool CONJ, class T>
void MulPackedT(const T* a, const T* b, T* dst, size_t n) {
  const hn::ScalableTag<T> d;
  const size_t N = hn::Lanes(d);
  const size_t total = 2 * n;
  size_t i = 0;
  // The first pairs separately until dst is vector-aligned (when it can be
  // reached pair by pair), so that no store straddles two cache lines.
  const size_t vbytes = N * sizeof(T);
  const auto addr = reinterpret_cast<uintptr_t>(dst);
  if (total >= 4 * N && addr % (2 * sizeof(T)) == 0 && addr % vbytes != 0) {
    i = (vbytes - addr % vbytes) / sizeof(T);
    MulCxPartial<CONJ>(d, a, b, dst, i);
  }
  // Two vectors per step; both are loaded before either is stored, so dst
  // may be a or b.
  for (; i + 2 * N <= total; i += 2 * N) {
    const auto r0 = MulCx<CONJ>(d, a + i, b + i);
    const auto r1 = MulCx<CONJ>(d, a + i + N, b + i + N);
    hn::StoreU(r0, d, dst + i);
    hn::StoreU(r1, d, dst + i + N);
  }
  for (; i + N <= total; i += N) hn::StoreU(MulCx<CONJ>(d, a + i, b + i), d, dst + i);
  if (i < total) MulCxPartial<CONJ>(d, a + i, b + i, dst + i, total - i);
}

template <class T>
void MulPackedDispatch(const T* a, const T* b, T* d, size_t n, bool conj) {
  if (conj) MulPackedT<true>(a, b, d, n);
  else MulPackedT<false>(a, b, d, n);
}

#else  // HWY_SCALAR: the twins

template <class T>
void RecombineT(const T* in, T* out, size_t m, const T* u, T mid, T hs, T s) {
  scalar::real_recombine(in, out, m, u, mid, hs, s);
}

template <class T>
void MulPackedDispatch(const T* a, const T* b, T* d, size_t n, bool conj) {
  scalar::mul_packed_pairs(a, b, d, n, conj);
}

#endif

void RecombineF32(const float* in, float* out, size_t m, const float* u, float mid, float hs, float s) {
  RecombineT(in, out, m, u, mid, hs, s);
}
void RecombineF64(const double* in, double* out, size_t m, const double* u, double mid, double hs,
                  double s) {
  RecombineT(in, out, m, u, mid, hs, s);
}
void MulPackedF32(const float* a, const float* b, float* d, size_t n, bool conj) {
  MulPackedDispatch(a, b, d, n, conj);
}
void MulPackedF64(const double* a, const double* b, double* d, size_t n, bool conj) {
  MulPackedDispatch(a, b, d, n, conj);
}

}  // namespace HWY_NAMESPACE
}  // namespace kels::kernels
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace kels::kernels {

HWY_EXPORT(RecombineF32);
HWY_EXPORT(RecombineF64);
HWY_EXPORT(MulPackedF32);
HWY_EXPORT(MulPackedF64);

void real_recombine(const float* in, float* out, std::size_t m, const float* u, float mid, float hs,
                    float s) {
  HWY_DYNAMIC_DISPATCH(RecombineF32)(in, out, m, u, mid, hs, s);
}
void real_recombine(const double* in, double* out, std::size_t m, const double* u, double mid,
                    double hs, double s) {
  HWY_DYNAMIC_DISPATCH(RecombineF64)(in, out, m, u, mid, hs, s);
}
void mul_packed_pairs(const float* a, const float* b, float* d, std::size_t n, bool conj) {
  HWY_DYNAMIC_DISPATCH(MulPackedF32)(a, b, d, n, conj);
}
void mul_packed_pairs(const double* a, const double* b, double* d, std::size_t n, bool conj) {
  HWY_DYNAMIC_DISPATCH(MulPackedF64)(a, b, d, n, conj);
}

}  // namespace kels::kernels
#endif  // HWY_ONCE
