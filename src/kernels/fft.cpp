// SIMD passes of the FFT engine (see fft.h), compiled once per target by
// Highway. The radix-4 stages vectorise across butterfly indices j, so a
// stage runs at the widest vector whose complex lanes fit in a quarter of the
// stage; shorter stages (the first one or two of each leaf) stay on the
// scalar twin. The stepped scheme's column pass works on groups of four
// columns that share every twiddle, so its stages vectorise across the four
// columns with broadcast twiddles.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "kernels/fft.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep
#include "hwy/highway.h"

#include "kernels/fft.h"

#include <cmath>

HWY_BEFORE_NAMESPACE();
namespace kels::kernels {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET != HWY_SCALAR

// Alternating fused multiply-add: FmAddSub gives a*b - c in even lanes and
// a*b + c in odd lanes, FmSubAdd the opposite signs. SSE4 has no fused form
// and rounds the product first.
#if HWY_TARGET == HWY_SSE4
HWY_INLINE __m128 FmAddSubRaw(__m128 a, __m128 b, __m128 c) { return _mm_addsub_ps(_mm_mul_ps(a, b), c); }
HWY_INLINE __m128d FmAddSubRaw(__m128d a, __m128d b, __m128d c) { return _mm_addsub_pd(_mm_mul_pd(a, b), c); }
HWY_INLINE __m128 FmSubAddRaw(__m128 a, __m128 b, __m128 c) {
  return _mm_addsub_ps(_mm_mul_ps(a, b), _mm_xor_ps(c, _mm_set1_ps(-0.0f)));
}
HWY_INLINE __m128d FmSubAddRaw(__m128d a, __m128d b, __m128d c) {
  return _mm_addsub_pd(_mm_mul_pd(a, b), _mm_xor_pd(c, _mm_set1_pd(-0.0)));
}
#else
HWY_INLINE __m128 FmAddSubRaw(__m128 a, __m128 b, __m128 c) { return _mm_fmaddsub_ps(a, b, c); }
HWY_INLINE __m128d FmAddSubRaw(__m128d a, __m128d b, __m128d c) { return _mm_fmaddsub_pd(a, b, c); }
HWY_INLINE __m256 FmAddSubRaw(__m256 a, __m256 b, __m256 c) { return _mm256_fmaddsub_ps(a, b, c); }
HWY_INLINE __m256d FmAddSubRaw(__m256d a, __m256d b, __m256d c) { return _mm256_fmaddsub_pd(a, b, c); }
HWY_INLINE __m128 FmSubAddRaw(__m128 a, __m128 b, __m128 c) { return _mm_fmsubadd_ps(a, b, c); }
HWY_INLINE __m128d FmSubAddRaw(__m128d a, __m128d b, __m128d c) { return _mm_fmsubadd_pd(a, b, c); }
HWY_INLINE __m256 FmSubAddRaw(__m256 a, __m256 b, __m256 c) { return _mm256_fmsubadd_ps(a, b, c); }
HWY_INLINE __m256d FmSubAddRaw(__m256d a, __m256d b, __m256d c) { return _mm256_fmsubadd_pd(a, b, c); }
#if HWY_TARGET == HWY_AVX3
HWY_INLINE __m512 FmAddSubRaw(__m512 a, __m512 b, __m512 c) { return _mm512_fmaddsub_ps(a, b, c); }
HWY_INLINE __m512d FmAddSubRaw(__m512d a, __m512d b, __m512d c) { return _mm512_fmaddsub_pd(a, b, c); }
HWY_INLINE __m512 FmSubAddRaw(__m512 a, __m512 b, __m512 c) { return _mm512_fmsubadd_ps(a, b, c); }
HWY_INLINE __m512d FmSubAddRaw(__m512d a, __m512d b, __m512d c) { return _mm512_fmsubadd_pd(a, b, c); }
#endif
#endif
template <class V>
HWY_INLINE V FmAddSub(V a, V b, V c) {
  V r;
  r.raw = FmAddSubRaw(a.raw, b.raw, c.raw);
  return r;
}
template <class V>
HWY_INLINE V FmSubAdd(V a, V b, V c) {
  V r;
  r.raw = FmSubAddRaw(a.raw, b.raw, c.raw);
  return r;
}

// Complex arithmetic on vectors of layout S. Interleaved vectors hold
// (re, im) pairs; split "vectors" are a pair of re and im vectors.
template <class D, int S, bool INV>
struct CxOps;

template <class D, bool INV>
struct CxOps<D, 2, INV> {
  using V = hn::Vec<D>;
  using T = hn::TFromD<D>;
  struct C {
    V v;
  };
  D d;
  V nj;  // multiplier turning Reverse2(a) into -i*a (forward) or +i*a
  V one;
  explicit CxOps(D dd)
      : d(dd),
        nj(INV ? hn::OddEven(hn::Set(dd, T(1)), hn::Set(dd, T(-1)))
               : hn::OddEven(hn::Set(dd, T(-1)), hn::Set(dd, T(1)))),
        one(hn::Set(dd, T(1))) {}
  static constexpr size_t kStride = 2;
  C load(const T* re, const T*, size_t i) const { return {hn::LoadU(d, re + 2 * i)}; }
  void store(T* re, T*, size_t i, C c) const { hn::StoreU(c.v, d, re + 2 * i); }
  C add(C a, C b) const { return {hn::Add(a.v, b.v)}; }
  C sub(C a, C b) const { return {hn::Sub(a.v, b.v)}; }
  C rot(C a) const { return {hn::Mul(hn::Reverse2(d, a.v), nj)}; }
  // plus = t + rot(x), minus = t - rot(x): one swap and two alternating
  // adds (the products by one are exact).
  void add_rot(C t, C x, C& plus, C& minus) const {
    const V sx = hn::Reverse2(d, x.v);
    plus.v = INV ? FmAddSub(t.v, one, sx) : FmSubAdd(t.v, one, sx);
    minus.v = INV ? FmSubAdd(t.v, one, sx) : FmAddSub(t.v, one, sx);
  }
  // a * w (a * conj(w) inverse) with per-lane twiddles w in the same layout.
  C mul(C a, C w) const { return mul_b(a, hn::DupEven(w.v), hn::DupOdd(w.v)); }
  // Twiddles w[i].. read from memory as duplicated real and imaginary parts.
  // The duplicating loads need no shuffle; double precision takes the
  // imaginary parts from one value further on, so it reads one value past
  // the last twiddle: the first-level tables keep at least two spare
  // entries after their last stage, and the static tables are padded.
  // (Measured 5-10% faster than a shuffle at 2^6..2^10.)
  struct Tw {
    V r, i;
  };
  Tw tw_at(const T* w, const T*, size_t i) const {
    const V x = hn::LoadU(d, w + 2 * i);
    constexpr size_t kBytes = sizeof(T) * hn::MaxLanes(D());
    Tw t;
#if HWY_TARGET != HWY_SSE4
    if constexpr (sizeof(T) == 4 && kBytes == 32) {
      t.r.raw = _mm256_moveldup_ps(x.raw);
      t.i.raw = _mm256_movehdup_ps(x.raw);
      return t;
    }
    if constexpr (sizeof(T) == 8 && kBytes == 32) {
      t.r.raw = _mm256_movedup_pd(x.raw);
      t.i.raw = _mm256_movedup_pd(_mm256_loadu_pd(w + 2 * i + 1));
      return t;
    }
#if HWY_TARGET == HWY_AVX3
    if constexpr (sizeof(T) == 4 && kBytes == 64) {
      t.r.raw = _mm512_moveldup_ps(x.raw);
      t.i.raw = _mm512_movehdup_ps(x.raw);
      return t;
    }
    if constexpr (sizeof(T) == 8 && kBytes == 64) {
      t.r.raw = _mm512_movedup_pd(x.raw);
      t.i.raw = _mm512_movedup_pd(_mm512_loadu_pd(w + 2 * i + 1));
      return t;
    }
#endif
#endif
    t.r = hn::DupEven(x);
    t.i = hn::DupOdd(x);
    return t;
  }
  C mul_w(C a, const Tw& w) const { return mul_b(a, w.r, w.i); }
  Tw mul_tw_vec(V w) const { return {hn::DupEven(w), hn::DupOdd(w)}; }
  // a * w with w given as broadcast real and imaginary parts.
  C mul_b(C a, V wr, V wi) const {
    const V t = hn::Mul(hn::Reverse2(d, a.v), wi);
    return {INV ? FmSubAdd(a.v, wr, t) : FmAddSub(a.v, wr, t)};
  }
  C scale(C a, V s) const { return {hn::Mul(a.v, s)}; }
};

template <class D, bool INV>
struct CxOps<D, 1, INV> {
  using V = hn::Vec<D>;
  using T = hn::TFromD<D>;
  struct C {
    V r, i;
  };
  D d;
  explicit CxOps(D dd) : d(dd) {}
  static constexpr size_t kStride = 1;
  C load(const T* re, const T* im, size_t i) const { return {hn::LoadU(d, re + i), hn::LoadU(d, im + i)}; }
  void store(T* re, T* im, size_t i, C c) const {
    hn::StoreU(c.r, d, re + i);
    hn::StoreU(c.i, d, im + i);
  }
  C add(C a, C b) const { return {hn::Add(a.r, b.r), hn::Add(a.i, b.i)}; }
  C sub(C a, C b) const { return {hn::Sub(a.r, b.r), hn::Sub(a.i, b.i)}; }
  C rot(C a) const { return INV ? C{hn::Neg(a.i), a.r} : C{a.i, hn::Neg(a.r)}; }
  C mul(C a, C w) const { return mul_b(a, w.r, w.i); }
  struct Tw {
    V r, i;
  };
  Tw tw_at(const T* w, const T* wi, size_t i) const { return {hn::LoadU(d, w + i), hn::LoadU(d, wi + i)}; }
  C mul_w(C a, const Tw& w) const { return mul_b(a, w.r, w.i); }
  void add_rot(C t, C x, C& plus, C& minus) const {
    const C r = rot(x);
    plus = add(t, r);
    minus = sub(t, r);
  }
  C mul_b(C a, V wr, V wi) const {
    if (INV) {
      return {hn::MulAdd(a.i, wi, hn::Mul(a.r, wr)), hn::NegMulAdd(a.r, wi, hn::Mul(a.i, wr))};
    }
    return {hn::NegMulAdd(a.i, wi, hn::Mul(a.r, wr)), hn::MulAdd(a.r, wi, hn::Mul(a.i, wr))};
  }
  C scale(C a, V s) const { return {hn::Mul(a.r, s), hn::Mul(a.i, s)}; }
};

template <class O, class C>
HWY_INLINE void Bfly4(const O& o, C& x0, C& x1, C& x2, C& x3) {
  const C t0 = o.add(x0, x1), t1 = o.sub(x0, x1);
  const C t2 = o.add(x2, x3);
  o.add_rot(t1, o.sub(x2, x3), x1, x3);
  x0 = o.add(t0, t2);
  x2 = o.sub(t0, t2);
}

template <int S, bool INV, class D, class T>
HWY_INLINE void Radix4Body(D d, const T* re, const T* im, T* ore, T* oim, size_t n, size_t L,
                           const T* tw) {
  const CxOps<D, S, INV> o(d);
  const size_t q = L / 4;
  const size_t step = hn::Lanes(d) / S;
  const T* twi = scalar::block_im<T, S>(tw, 3 * q);
  for (size_t b = 0; b < n; b += L) {
    for (size_t j = 0; j < q; j += step) {
      const size_t i = b + j;
      auto x0 = o.load(re, im, i);
      auto x1 = o.mul_w(o.load(re, im, i + q), o.tw_at(tw, twi, q + j));
      auto x2 = o.mul_w(o.load(re, im, i + 2 * q), o.tw_at(tw, twi, j));
      auto x3 = o.mul_w(o.load(re, im, i + 3 * q), o.tw_at(tw, twi, 2 * q + j));
      Bfly4(o, x0, x1, x2, x3);
      o.store(ore, oim, i, x0);
      o.store(ore, oim, i + q, x1);
      o.store(ore, oim, i + 2 * q, x2);
      o.store(ore, oim, i + 3 * q, x3);
    }
  }
}

// Stages L and 4L in one pass: sixteen vectors of butterfly index j (lanes
// j..j+V-1) are loaded, the four radix-4 butterflies of stage L and the four
// of stage 4L run in registers, and the sixteen are stored.
template <int S, bool INV, class D, class T>
HWY_INLINE void Radix4x2Body(D d, const T* re, const T* im, T* ore, T* oim, size_t n, size_t L,
                             const T* tw, const T* tw4) {
  const CxOps<D, S, INV> o(d);
  const size_t q = L / 4;
  const size_t step = hn::Lanes(d) / S;
  const T* twi = scalar::block_im<T, S>(tw, 3 * q);
  const T* tw4i = scalar::block_im<T, S>(tw4, 3 * L);
  using C = typename CxOps<D, S, INV>::C;
  for (size_t b = 0; b < n; b += 4 * L) {
    for (size_t j = 0; j < q; j += step) {
      const size_t i = b + j;
      C x[16];
      const auto w1 = o.tw_at(tw, twi, q + j), w2 = o.tw_at(tw, twi, j), w3 = o.tw_at(tw, twi, 2 * q + j);
      for (size_t g = 0; g < 4; ++g) {
        C& a0 = x[4 * g];
        C& a1 = x[4 * g + 1];
        C& a2 = x[4 * g + 2];
        C& a3 = x[4 * g + 3];
        const size_t e = i + g * L;
        a0 = o.load(re, im, e);
        a1 = o.mul_w(o.load(re, im, e + q), w1);
        a2 = o.mul_w(o.load(re, im, e + 2 * q), w2);
        a3 = o.mul_w(o.load(re, im, e + 3 * q), w3);
        Bfly4(o, a0, a1, a2, a3);
      }
      for (size_t g = 0; g < 4; ++g) {
        const size_t jj = j + g * q;
        C a0 = x[g];
        C a1 = o.mul_w(x[g + 4], o.tw_at(tw4, tw4i, L + jj));
        C a2 = o.mul_w(x[g + 8], o.tw_at(tw4, tw4i, jj));
        C a3 = o.mul_w(x[g + 12], o.tw_at(tw4, tw4i, 2 * L + jj));
        Bfly4(o, a0, a1, a2, a3);
        const size_t e = i + g * q;
        o.store(ore, oim, e, a0);
        o.store(ore, oim, e + L, a1);
        o.store(ore, oim, e + 2 * L, a2);
        o.store(ore, oim, e + 3 * L, a3);
      }
    }
  }
}

// A double-precision pass from an aligned area into rows of interleaved
// output 32 bytes off a 64-byte line (`narrow`: the stepped scheme's rows,
// whose lines are not in the first-level cache) runs at half width when
// vectors are 512 bits wide: its stores then stay inside lines. Measured
// 3-5% faster at 2^13..2^15. Full width measured faster into a single
// leaf's output, which stays in that cache (20%), and for single precision.
template <int S, class D, class T>
bool HalfStores(D d, const T* out, bool narrow) {
  return narrow && S == 2 && sizeof(T) == 8 && sizeof(T) * hn::Lanes(d) == 64 &&
         (reinterpret_cast<uintptr_t>(out) & 63) == 32;
}

// The stage passes in place, or from one array into another: either way
// the data do not alias the tables, which lets the compiler move table loads
// across the data stores.
template <int S, bool INV, class D, class T>
void Radix4Rows(D d, const T* re, const T* im, T* ore, T* oim, size_t n, size_t L, const T* tw,
                bool narrow = false) {
  auto in_place = [&](T* HWY_RESTRICT r, T* HWY_RESTRICT i) { Radix4Body<S, INV>(d, r, i, r, i, n, L, tw); };
  auto apart = [&](const T* HWY_RESTRICT r, const T* HWY_RESTRICT i, T* HWY_RESTRICT orr,
                   T* HWY_RESTRICT oi) {
    if (HalfStores<S>(d, orr, narrow)) Radix4Body<S, INV>(hn::Half<D>(), r, i, orr, oi, n, L, tw);
    else Radix4Body<S, INV>(d, r, i, orr, oi, n, L, tw);
  };
  if (ore == re) in_place(ore, oim);
  else apart(re, im, ore, oim);
}
template <int S, bool INV, class D, class T>
void Radix4x2Rows(D d, const T* re, const T* im, T* ore, T* oim, size_t n, size_t L, const T* tw,
                  const T* tw4, bool narrow = false) {
  auto in_place = [&](T* HWY_RESTRICT r, T* HWY_RESTRICT i) {
    Radix4x2Body<S, INV>(d, r, i, r, i, n, L, tw, tw4);
  };
  auto apart = [&](const T* HWY_RESTRICT r, const T* HWY_RESTRICT i, T* HWY_RESTRICT orr,
                   T* HWY_RESTRICT oi) {
    if (HalfStores<S>(d, orr, narrow)) Radix4x2Body<S, INV>(hn::Half<D>(), r, i, orr, oi, n, L, tw, tw4);
    else Radix4x2Body<S, INV>(d, r, i, orr, oi, n, L, tw, tw4);
  };
  if (ore == re) in_place(ore, oim);
  else apart(re, im, ore, oim);
}

// Bit reversal of 3 and 4 bits.
constexpr size_t kRev8[8] = {0, 4, 2, 6, 1, 5, 3, 7};
constexpr size_t kRev16[16] = {0, 8, 4, 12, 2, 10, 6, 14, 1, 9, 5, 13, 3, 11, 7, 15};

// Transposes V x V complex values held in V vectors of V complex each:
// afterwards v[j] lane i holds what v[i] lane j held.
template <class D, class C>
HWY_INLINE void TransposeCx(D d, C* v) {
  using T = hn::TFromD<D>;
  constexpr size_t kBytes = sizeof(T) * hn::MaxLanes(D());
  const size_t V = hn::Lanes(d) / 2;
  if (V == 1) return;
  if constexpr (sizeof(T) == 4 && kBytes == 16) {
    const hn::Repartition<uint64_t, D> du;
    const auto a = hn::BitCast(du, v[0].v), b = hn::BitCast(du, v[1].v);
    v[0].v = hn::BitCast(d, hn::InterleaveLower(du, a, b));
    v[1].v = hn::BitCast(d, hn::InterleaveUpper(du, a, b));
  } else if constexpr (sizeof(T) == 8 && kBytes == 32) {
    const auto a = v[0].v, b = v[1].v;
    v[0].v = hn::ConcatLowerLower(d, b, a);
    v[1].v = hn::ConcatUpperUpper(d, b, a);
  } else if constexpr (sizeof(T) == 4 && kBytes == 32) {
    const hn::Repartition<uint64_t, D> du;
    const auto a = hn::BitCast(du, v[0].v), b = hn::BitCast(du, v[1].v);
    const auto c = hn::BitCast(du, v[2].v), e = hn::BitCast(du, v[3].v);
    const auto abl = hn::InterleaveLower(du, a, b), abu = hn::InterleaveUpper(du, a, b);
    const auto cel = hn::InterleaveLower(du, c, e), ceu = hn::InterleaveUpper(du, c, e);
    v[0].v = hn::BitCast(d, hn::ConcatLowerLower(du, cel, abl));
    v[1].v = hn::BitCast(d, hn::ConcatLowerLower(du, ceu, abu));
    v[2].v = hn::BitCast(d, hn::ConcatUpperUpper(du, cel, abl));
    v[3].v = hn::BitCast(d, hn::ConcatUpperUpper(du, ceu, abu));
  }
#if HWY_TARGET == HWY_AVX3
  else if constexpr (sizeof(T) == 8 && kBytes == 64) {
    // 128-bit units: (a0 a2 b0 b2), (a1 a3 b1 b3), ... then one more round.
    const auto t0 = _mm512_shuffle_f64x2(v[0].v.raw, v[1].v.raw, _MM_SHUFFLE(2, 0, 2, 0));
    const auto t1 = _mm512_shuffle_f64x2(v[0].v.raw, v[1].v.raw, _MM_SHUFFLE(3, 1, 3, 1));
    const auto t2 = _mm512_shuffle_f64x2(v[2].v.raw, v[3].v.raw, _MM_SHUFFLE(2, 0, 2, 0));
    const auto t3 = _mm512_shuffle_f64x2(v[2].v.raw, v[3].v.raw, _MM_SHUFFLE(3, 1, 3, 1));
    v[0].v.raw = _mm512_shuffle_f64x2(t0, t2, _MM_SHUFFLE(2, 0, 2, 0));
    v[2].v.raw = _mm512_shuffle_f64x2(t0, t2, _MM_SHUFFLE(3, 1, 3, 1));
    v[1].v.raw = _mm512_shuffle_f64x2(t1, t3, _MM_SHUFFLE(2, 0, 2, 0));
    v[3].v.raw = _mm512_shuffle_f64x2(t1, t3, _MM_SHUFFLE(3, 1, 3, 1));
  } else if constexpr (sizeof(T) == 4 && kBytes == 64) {
    // Eight complex floats (64-bit units) per vector: pairs within 128-bit
    // blocks, then blocks across pairs of vectors, then across quads.
    __m512d t[8], s[8];
    for (int i = 0; i < 8; i += 2) {
      const __m512d a = _mm512_castps_pd(v[i].v.raw), b = _mm512_castps_pd(v[i + 1].v.raw);
      t[i] = _mm512_unpacklo_pd(a, b);
      t[i + 1] = _mm512_unpackhi_pd(a, b);
    }
    for (int i = 0; i < 8; i += 4) {
      s[i] = _mm512_shuffle_f64x2(t[i], t[i + 2], _MM_SHUFFLE(2, 0, 2, 0));
      s[i + 1] = _mm512_shuffle_f64x2(t[i], t[i + 2], _MM_SHUFFLE(3, 1, 3, 1));
      s[i + 2] = _mm512_shuffle_f64x2(t[i + 1], t[i + 3], _MM_SHUFFLE(2, 0, 2, 0));
      s[i + 3] = _mm512_shuffle_f64x2(t[i + 1], t[i + 3], _MM_SHUFFLE(3, 1, 3, 1));
    }
    // s[0]: units 0 and 4 of rows 0..3, s[1]: 2 and 6, s[2]: 1 and 5, s[3]: 3 and 7.
    constexpr int kLo[4] = {0, 2, 1, 3};
    for (int j = 0; j < 4; ++j) {
      v[kLo[j]].v.raw = _mm512_castpd_ps(_mm512_shuffle_f64x2(s[j], s[j + 4], _MM_SHUFFLE(2, 0, 2, 0)));
      v[kLo[j] + 4].v.raw = _mm512_castpd_ps(_mm512_shuffle_f64x2(s[j], s[j + 4], _MM_SHUFFLE(3, 1, 3, 1)));
    }
  }
#endif
}


// Natural-order 4-point DFT of a0..a3 (Bfly4 takes bit-reversed order).
template <class O, class C>
HWY_INLINE void Dft4(const O& o, C& a0, C& a1, C& a2, C& a3) {
  C x0 = a0, x1 = a2, x2 = a1, x3 = a3;
  Bfly4(o, x0, x1, x2, x3);
  a0 = x0;
  a1 = x1;
  a2 = x2;
  a3 = x3;
}

// Twiddles w16^(s0 k1) for k1 = 1..3 (rows) and s0 = 0..3 (lanes),
// interleaved (a zero row after them for the twiddle loads, see tw_at).
template <class T>
struct Tw16 {
  static constexpr T c1 = T(0.92387953251128675613L), s1 = T(0.38268343236508977173L);
  static constexpr T h = T(0.70710678118654752440L);
  alignas(64) static constexpr T v[4][8] = {{1, 0, c1, -s1, h, -h, s1, -c1},
                                            {1, 0, h, -h, 0, -1, -h, -h},
                                            {1, 0, s1, -c1, -h, -h, -c1, s1},
                                            {}};
};

// The 16-point transform of data given as four vectors of four complex
// values u[a] = x[4a .. 4a+3], i.e. x = 4 s1 + s0 with s0 in the lanes;
// 4-point transforms across the vectors, twiddles per lane, one 4 x 4
// transpose, 4-point transforms across the vectors again, which leaves
// X[k1 + 4 k0] in vector k0, lane k1.
template <bool INV, class D, class T>
void Dft16Rows(D d, typename CxOps<D, 2, INV>::C* u, T* dst) {
  const CxOps<D, 2, INV> o(d);
  using C = typename CxOps<D, 2, INV>::C;
  Dft4(o, u[0], u[1], u[2], u[3]);
  // Double precision reads the twiddles with tw_at's duplicating loads
  // (3-7% faster); single precision measured faster duplicating in
  // registers.
  for (size_t k1 = 1; k1 < 4; ++k1) {
    u[k1] = sizeof(T) == 8 ? o.mul_w(u[k1], o.tw_at(Tw16<T>::v[k1 - 1], nullptr, 0))
                           : o.mul(u[k1], C{hn::Load(d, Tw16<T>::v[k1 - 1])});
  }
  TransposeCx(d, u);
  // Separate variables: stored from an array, the four vectors are copied
  // through the stack as one block.
  C x0 = u[0], x1 = u[1], x2 = u[2], x3 = u[3];
  Dft4(o, x0, x1, x2, x3);
  o.store(dst, nullptr, 0, x0);
  o.store(dst, nullptr, 4, x1);
  o.store(dst, nullptr, 8, x2);
  o.store(dst, nullptr, 12, x3);
}
template <bool INV, class D, class T>
void Dft16Contiguous(D d, const T* src, T* dst) {
  const CxOps<D, 2, INV> o(d);
  typename CxOps<D, 2, INV>::C u[4];
  for (size_t a = 0; a < 4; ++a) u[a] = o.load(src, nullptr, 4 * a);
  Dft16Rows<INV>(d, u, dst);
}

// Natural-order B-point DFT (B = 8 or 16) of y[0..B-1], each lane an
// independent transform; the result replaces y. B = 4 * B1 with s = 4 s1 + s0
// and k = k1 + B1 k0: B1-point transforms over s1, twiddles w_B^(s0 k1),
// then 4-point transforms over s0.
template <size_t B, class O, class C>
HWY_INLINE void DftLanes(const O& o, C* y) {
  using T = hn::TFromD<decltype(o.d)>;
  constexpr T c1 = T(0.92387953251128675613L), s1 = T(0.38268343236508977173L);
  constexpr T h = T(0.70710678118654752440L);
  auto tw = [&](C a, T wr, T wi) { return o.mul_b(a, hn::Set(o.d, wr), hn::Set(o.d, wi)); };
  C z[16];
  if constexpr (B == 16) {
    for (size_t s0 = 0; s0 < 4; ++s0) {
      C a0 = y[s0], a1 = y[4 + s0], a2 = y[8 + s0], a3 = y[12 + s0];
      Dft4(o, a0, a1, a2, a3);
      z[4 * s0] = a0;
      z[4 * s0 + 1] = a1;
      z[4 * s0 + 2] = a2;
      z[4 * s0 + 3] = a3;
    }
    // z[4 s0 + k1] *= w16^(s0 k1)
    z[5] = tw(z[5], c1, -s1);
    z[6] = tw(z[6], h, -h);
    z[7] = tw(z[7], s1, -c1);
    z[9] = tw(z[9], h, -h);
    z[10] = o.rot(z[10]);
    z[11] = tw(z[11], -h, -h);
    z[13] = tw(z[13], s1, -c1);
    z[14] = tw(z[14], -h, -h);
    z[15] = tw(z[15], -c1, s1);
    for (size_t k1 = 0; k1 < 4; ++k1) {
      C a0 = z[k1], a1 = z[4 + k1], a2 = z[8 + k1], a3 = z[12 + k1];
      Dft4(o, a0, a1, a2, a3);
      y[k1] = a0;
      y[k1 + 4] = a1;
      y[k1 + 8] = a2;
      y[k1 + 12] = a3;
    }
  } else {
    for (size_t s0 = 0; s0 < 4; ++s0) {
      z[2 * s0] = o.add(y[s0], y[4 + s0]);
      z[2 * s0 + 1] = o.sub(y[s0], y[4 + s0]);
    }
    // z[2 s0 + 1] *= w8^s0
    z[3] = tw(z[3], h, -h);
    z[5] = o.rot(z[5]);
    z[7] = tw(z[7], -h, -h);
    for (size_t k1 = 0; k1 < 2; ++k1) {
      C a0 = z[k1], a1 = z[2 + k1], a2 = z[4 + k1], a3 = z[6 + k1];
      Dft4(o, a0, a1, a2, a3);
      y[k1] = a0;
      y[k1 + 2] = a1;
      y[k1 + 4] = a2;
      y[k1 + 6] = a3;
    }
  }
}

// Transforms of N = 4B points (B = 8 or 16) in registers, vectors of four
// complex values: x = 4 s + r with r in the lanes; B-point transforms across
// the vectors, 4 x 4 transposes that bring r across the vectors, twiddles
// w_N^(r k) from the record's stage table of length N (its three blocks
// w^k, w^2k, w^3k, k < B), and 4-point transforms across the vectors:
// X[k + B k0] lands in vector k0 of the transposed group of k.
// load(s) gives x[4s .. 4s + 3]; put(k, v) takes X[k .. k + 3].
template <size_t B, bool INV, class D, class T, class Load, class Put>
HWY_INLINE void SmallFourT(D d, const Load& load, const Put& put, const T* stage) {
  const CxOps<D, 2, INV> o(d);
  using C = typename CxOps<D, 2, INV>::C;
  C y[B];
  for (size_t s = 0; s < B; ++s) y[s] = load(s);
  DftLanes<B>(o, y);
  for (size_t a = 0; a < B; a += 4) {
    C u[4] = {y[a], y[a + 1], y[a + 2], y[a + 3]};
    TransposeCx(d, u);
    u[1] = o.mul_w(u[1], o.tw_at(stage, nullptr, a));
    u[2] = o.mul_w(u[2], o.tw_at(stage, nullptr, B + a));
    u[3] = o.mul_w(u[3], o.tw_at(stage, nullptr, 2 * B + a));
    Dft4(o, u[0], u[1], u[2], u[3]);
    for (size_t k0 = 0; k0 < 4; ++k0) put(B * k0 + a, u[k0]);
  }
}
template <size_t B, bool INV, class D, class T>
void SmallFour(D d, const T* src, T* dst, const T* stage) {
  const CxOps<D, 2, INV> o(d);
  using C = typename CxOps<D, 2, INV>::C;
  SmallFourT<B, INV>(
      d, [&](size_t s) { return o.load(src, nullptr, 4 * s); },
      [&](size_t k, C v) { o.store(dst, nullptr, k, v); }, stage);
}


// Largest transform whose double-precision first pass uses full-width
// vectors.
constexpr size_t kWideLeadMax = 2048;

// Transposes V x V real values held in V vectors of V lanes (V = 2 or 4).
template <class D, class V>
HWY_INLINE void TransposeReal(D d, V* v) {
  using T = hn::TFromD<D>;
  constexpr size_t kLanes = hn::MaxLanes(D());
  if constexpr (kLanes == 2) {
    const V a = v[0], b = v[1];
    v[0] = hn::InterleaveLower(d, a, b);
    v[1] = hn::InterleaveUpper(d, a, b);
  } else if constexpr (kLanes == 4 && sizeof(T) == 4) {
    const hn::Repartition<uint64_t, D> du;
    const auto t0 = hn::BitCast(du, hn::InterleaveLower(d, v[0], v[1]));
    const auto t1 = hn::BitCast(du, hn::InterleaveUpper(d, v[0], v[1]));
    const auto t2 = hn::BitCast(du, hn::InterleaveLower(d, v[2], v[3]));
    const auto t3 = hn::BitCast(du, hn::InterleaveUpper(d, v[2], v[3]));
    v[0] = hn::BitCast(d, hn::InterleaveLower(du, t0, t2));
    v[1] = hn::BitCast(d, hn::InterleaveUpper(du, t0, t2));
    v[2] = hn::BitCast(d, hn::InterleaveLower(du, t1, t3));
    v[3] = hn::BitCast(d, hn::InterleaveUpper(du, t1, t3));
  } else if constexpr (kLanes == 4 && sizeof(T) == 8) {
    // 128-bit blocks: InterleaveLower/Upper pair lanes (0, 2) and (1, 3).
    const V l01 = hn::InterleaveLower(d, v[0], v[1]), u01 = hn::InterleaveUpper(d, v[0], v[1]);
    const V l23 = hn::InterleaveLower(d, v[2], v[3]), u23 = hn::InterleaveUpper(d, v[2], v[3]);
    v[0] = hn::ConcatLowerLower(d, l23, l01);
    v[1] = hn::ConcatLowerLower(d, u23, u01);
    v[2] = hn::ConcatUpperUpper(d, l23, l01);
    v[3] = hn::ConcatUpperUpper(d, u23, u01);
  }
}

// Lane i of u[j] <- element g + j of block i (blocks at base[0..V-1]), and
// back: V x V transposes of complex values (interleaved) or of the real and
// imaginary parts (split).
template <int S, class O, class T, class C>
HWY_INLINE void LoadTransposed(const O& o, const T* re, const T* im, const size_t* base, size_t g,
                               C* u) {
  const size_t V = hn::Lanes(o.d) / S;
  static_assert(S == 2 || hn::MaxLanes(decltype(o.d)()) <= 4, "split layout: at most 4 lanes");
  if constexpr (S == 2) {
    for (size_t i = 0; i < V; ++i) u[i] = o.load(re, im, base[i] + g);
    TransposeCx(o.d, u);
  } else {
    hn::Vec<decltype(o.d)> ur[4], ui[4];
    for (size_t i = 0; i < V; ++i) {
      ur[i] = hn::LoadU(o.d, re + base[i] + g);
      ui[i] = hn::LoadU(o.d, im + base[i] + g);
    }
    TransposeReal(o.d, ur);
    TransposeReal(o.d, ui);
    for (size_t j = 0; j < V; ++j) u[j] = C{ur[j], ui[j]};
  }
}
template <int S, class O, class T, class C>
HWY_INLINE void StoreTransposed(const O& o, C* u, const size_t* base, size_t g, T* re, T* im) {
  const size_t V = hn::Lanes(o.d) / S;
  if constexpr (S == 2) {
    TransposeCx(o.d, u);
    for (size_t i = 0; i < V; ++i) o.store(re, im, base[i] + g, u[i]);
  } else {
    hn::Vec<decltype(o.d)> ur[4], ui[4];
    for (size_t i = 0; i < V; ++i) {
      ur[i] = u[i].r;
      ui[i] = u[i].i;
    }
    TransposeReal(o.d, ur);
    TransposeReal(o.d, ui);
    for (size_t i = 0; i < V; ++i) {
      hn::StoreU(ur[i], o.d, re + base[i] + g);
      hn::StoreU(ui[i], o.d, im + base[i] + g);
    }
  }
}

// Stores the B-point results y of V transforms (lanes) as blocks at
// dst + 2 base[i] that start 32 bytes off a 64-byte line, with whole
// vectors shifted by half a vector (each store inside one line): the first
// and last half vectors alone, the others made of the upper half of one
// transposed vector and the lower half of the next. Made double precision
// 2^11 7-10% faster than full-width stores across lines.
template <size_t B, class D, class C, class T>
HWY_INLINE void StoreShifted(D d, const C* y, const size_t* base, T* dst) {
  constexpr size_t V = hn::MaxLanes(D()) / 2, H = V / 2;
  const hn::Half<D> dh;
  C t[B];  // t[g + i]: transform i's values g .. g + V - 1
  for (size_t g = 0; g < B; g += V) {
    for (size_t i = 0; i < V; ++i) t[g + i] = y[g + i];
    TransposeCx(d, t + g);
  }
  for (size_t i = 0; i < V; ++i) {
    T* p = dst + 2 * base[i];
    hn::StoreU(hn::LowerHalf(dh, t[i].v), dh, p);
    for (size_t g = V; g < B; g += V) {
      hn::StoreU(hn::ConcatLowerUpper(d, t[g + i].v, t[g - V + i].v), d, p + 2 * (g - H));
    }
    hn::StoreU(hn::UpperHalf(dh, t[B - V + i].v), dh, p + 2 * (B - H));
  }
}

// First pass of the engine on blocks of B = 16 (even leaf orders) or 8
// points: the first two radix-4 stages (radix-2 and radix-4 for B = 8) as
// one in-register B-point transform. Lanes run over V consecutive
// transforms; each lane's B results are regrouped by V x V transposes and
// stored as contiguous runs of its block.
//   fused:  block m = rev(B r) takes src[r + s N/B], s = 0..B-1 (the
//           permutation happens in the loads and stores);
//   else:   the array was permuted already; block m holds its inputs in
//           bit-reversed position order and is transformed in place.
// With a stride, only the transforms r0 + j stride + (0 .. width - 1) run
// (the rows of a stepped level, see fft.h).
template <size_t B, bool INV, int S, class D, class T>
void LeadBlocks(D d, const T* sre, const T* sim, T* dre, T* dim, size_t n,
                const scalar::BitRev& rev, bool fused, size_t r0, size_t stride, size_t width,
                const scalar::RowMap& map = scalar::RowMap()) {
  const CxOps<D, S, INV> o(d);
  using C = typename CxOps<D, S, INV>::C;
  const size_t V = hn::Lanes(d) / S;
  const size_t cnt = n / B;
  const size_t step = stride ? stride : V;
  const size_t wide = stride ? width : V;
  size_t base[8];
  // Interleaved blocks 32 bytes off a 64-byte line: 512-bit stores shifted
  // by half a vector, each inside one line.
  const bool shift = S == 2 && sizeof(T) * hn::Lanes(d) == 64 && B > V &&
                     (reinterpret_cast<uintptr_t>(dre) & 63) == 32;
  // r is a multiple of V, so rev(B (r + i)) = rev(B r) | rev(B i).
  size_t low[8];
  for (size_t i = 0; i < V; ++i) low[i] = fused ? rev(B * i) : 0;
  for (size_t r1 = r0; r1 < cnt; r1 += step) {
    for (size_t r = r1; r < r1 + wide; r += V) {
      C y[B];
      if (fused) {
        for (size_t s = 0; s < B; ++s) y[s] = o.load(sre, sim, r + s * cnt);
        const size_t high = rev(B * r);
        for (size_t i = 0; i < V; ++i) base[i] = map(B * (high | low[i]));
      } else {
        for (size_t i = 0; i < V; ++i) base[i] = B * (r + i);
        for (size_t g = 0; g < B; g += V) {
          C u[8];
          LoadTransposed<S>(o, dre, dim, base, g, u);
          for (size_t j = 0; j < V; ++j) y[B == 16 ? kRev16[g + j] : kRev8[g + j]] = u[j];
        }
      }
      DftLanes<B>(o, y);
      if (shift) {
        if constexpr (S == 2) StoreShifted<B>(d, y, base, dre);
        continue;
      }
      for (size_t g = 0; g < B; g += V) {
        C u[8];
        for (size_t i = 0; i < V; ++i) u[i] = y[g + i];
        StoreTransposed<S>(o, u, base, g, dre, dim);
      }
    }
  }
}


// Column pass of the stepped scheme for one group of four columns (one
// vector of four complex values per row), interleaved layout. Row b of the
// group (data + 2 (4g + M b)) is input rev(b) of the four K-point column
// transforms; decimation in time gives natural-order outputs, which go back
// to the rows. The gather with its merge twiddles is fused with the first
// stages (in-register 8- or 16-point blocks), and the last radix-4 stage
// writes straight to the rows; the stages between run on the work buffer.
//
// The group holds columns W g + c0 .. + W - 1 (W = 2, 4 or 8 columns per
// vector); c0 = W / 2 shifts 512-bit groups by half a vector, so that data
// 32 bytes off a 64-byte boundary are still read in whole lines.
#ifndef PFD
#define PFD 448
#endif
template <size_t B, bool INV, class D, class T>
void ColumnGroup(D d, T* data, size_t M, size_t K, int k, size_t g, const T* merge,
                 const T* col, T* work, size_t c0) {
  const CxOps<D, 2, INV> o(d);
  using C = typename CxOps<D, 2, INV>::C;
  const size_t W = hn::Lanes(d) / 2;
  const size_t q0 = W * g + c0;  // first column of the group
  T* const base = data + 2 * q0;
  // Merge factors (see fft.h): the row factors of columns q0 mod 8 .. of
  // row b, and the group factor of the 8-column block of q0.
  const T* rf = merge + 2 * (q0 & 7);
  const T* gf = merge + 32 * K + 2 * (q0 / 8) * K;
  auto row = [&](size_t b) { return base + 2 * M * b; };
  auto grp = [&](size_t b) { return work + 2 * W * b; };
  // Double-precision rows of a megabyte and more fill the second-level
  // cache; the row lines of the group after next are fetched there ahead,
  // which measured 1-4% faster at 2^16..2^19 (single precision: slower).
  const bool ahead = sizeof(T) == 8 && 2 * sizeof(T) * M * K >= (size_t(1) << 20);
  auto merged = [&](size_t b) {
    if (ahead) _mm_prefetch(reinterpret_cast<const char*>(row(b) + 2 * W) + 128, _MM_HINT_T1);
    const C x = o.mul_b(o.load(row(b), nullptr, 0), hn::Set(d, gf[2 * b]), hn::Set(d, gf[2 * b + 1]));
    return o.mul_w(x, o.tw_at(rf + 32 * b, nullptr, 0));
  };
  const bool direct = K == B;  // the lead is the whole transform
  for (size_t b0 = 0; b0 < K; b0 += B) {
    // Unrolled, so that the bit-reversed places are constants and y stays
    // in registers (indexed at run time it went through the stack: the
    // column pass ran up to 13% longer).
    C y[B];
    HWY_UNROLL(16)
    for (size_t p = 0; p < B; ++p) {
      const size_t b = b0 + p;
      y[B == 16 ? kRev16[p] : kRev8[p]] = merged(b);
    }
    DftLanes<B>(o, y);
    HWY_UNROLL(16)
    for (size_t p = 0; p < B; ++p) o.store(direct ? row(b0 + p) : grp(b0 + p), nullptr, 0, y[p]);
  }
  if (direct) return;
  size_t L = 4 * B;
  const T* tw = col + stage_offset(k, L);
  // Broadcast twiddles of the stage of quarter q (block t) at index j.
  auto bfly = [&](const T* t, size_t q, size_t j, C& x0, C& x1, C& x2, C& x3) {
    const T* w = t + 2 * j;
    x1 = o.mul_b(x1, hn::Set(d, w[2 * q]), hn::Set(d, w[2 * q + 1]));
    x2 = o.mul_b(x2, hn::Set(d, w[0]), hn::Set(d, w[1]));
    x3 = o.mul_b(x3, hn::Set(d, w[4 * q]), hn::Set(d, w[4 * q + 1]));
    Bfly4(o, x0, x1, x2, x3);
  };
  for (;; L *= 4) {
    const size_t q = L / 4;
    if (4 * L == K) {
      // The last two stages in one pass from the work buffer to the rows,
      // sixteen vectors in registers (as Radix4x2Body).
      const T* tw4 = tw + 2 * (3 * L / 4);
      for (size_t j = 0; j < q; ++j) {
        C x[16];
        for (size_t g = 0; g < 4; ++g) {
          const size_t e = j + g * L;
          C* a = x + 4 * g;
          a[0] = o.load(grp(e), nullptr, 0);
          a[1] = o.load(grp(e + q), nullptr, 0);
          a[2] = o.load(grp(e + 2 * q), nullptr, 0);
          a[3] = o.load(grp(e + 3 * q), nullptr, 0);
          bfly(tw, q, j, a[0], a[1], a[2], a[3]);
        }
        for (size_t g = 0; g < 4; ++g) {
          C a0 = x[g], a1 = x[g + 4], a2 = x[g + 8], a3 = x[g + 12];
          bfly(tw4, L, j + g * q, a0, a1, a2, a3);
          const size_t e = j + g * q;
          o.store(row(e), nullptr, 0, a0);
          o.store(row(e + L), nullptr, 0, a1);
          o.store(row(e + 2 * L), nullptr, 0, a2);
          o.store(row(e + 3 * L), nullptr, 0, a3);
        }
      }
      break;
    }
    const bool last = L == K;
    for (size_t b0 = 0; b0 < K; b0 += L) {
      for (size_t j = 0; j < q; ++j) {
        const T* t = tw + 2 * j;
        const auto w1r = hn::Set(d, t[2 * q]), w1i = hn::Set(d, t[2 * q + 1]);
        const auto w2r = hn::Set(d, t[0]), w2i = hn::Set(d, t[1]);
        const auto w3r = hn::Set(d, t[4 * q]), w3i = hn::Set(d, t[4 * q + 1]);
        const size_t b = b0 + j;
        C x0 = o.load(grp(b), nullptr, 0);
        C x1 = o.mul_b(o.load(grp(b + q), nullptr, 0), w1r, w1i);
        C x2 = o.mul_b(o.load(grp(b + 2 * q), nullptr, 0), w2r, w2i);
        C x3 = o.mul_b(o.load(grp(b + 3 * q), nullptr, 0), w3r, w3i);
        Bfly4(o, x0, x1, x2, x3);
        if (last) {
          o.store(row(b), nullptr, 0, x0);
          o.store(row(b + q), nullptr, 0, x1);
          o.store(row(b + 2 * q), nullptr, 0, x2);
          o.store(row(b + 3 * q), nullptr, 0, x3);
        } else {
          o.store(grp(b), nullptr, 0, x0);
          o.store(grp(b + q), nullptr, 0, x1);
          o.store(grp(b + 2 * q), nullptr, 0, x2);
          o.store(grp(b + 3 * q), nullptr, 0, x3);
        }
      }
    }
    if (last) break;
    tw += 2 * (3 * L / 4);
  }
}

// Twiddles w_N^(r k) of the codelets below for k = 1..K-1 (row k - 1) and
// r = 0..7 (interleaved complex floats), rounded once from long double.
template <size_t N, size_t K>
struct TwLanes {
  alignas(64) float w[K - 1][16];
  TwLanes() {
    const long double pi = 3.141592653589793238462643383279502884L;
    for (size_t k = 1; k < K; ++k)
      for (size_t r = 0; r < 8; ++r) {
        const long double a = 2 * pi * static_cast<long double>(r * k) / N;
        w[k - 1][2 * r] = static_cast<float>(std::cos(a));
        w[k - 1][2 * r + 1] = static_cast<float>(-std::sin(a));
      }
  }
};
const TwLanes<64, 8> kTw64;
const TwLanes<128, 16> kTw128;

// w_256^k, k = 0..127, interleaved complex floats (the 256-point combine).
struct Tw256 {
  alignas(64) float w[256];
  Tw256() {
    const long double pi = 3.141592653589793238462643383279502884L;
    for (size_t k = 0; k < 128; ++k) {
      const long double a = 2 * pi * static_cast<long double>(k) / 256;
      w[2 * k] = static_cast<float>(std::cos(a));
      w[2 * k + 1] = static_cast<float>(-std::sin(a));
    }
  }
};
const Tw256 kTw256;

// Single-precision transforms of N = 8K points (K = 8 or 16) with eight
// complex values per vector: x = 8 s + r with r in the lanes, K-point
// transforms across the K vectors (s), twiddles w_N^(r k1), 8 x 8
// transposes of each group of eight vectors, 8-point transforms across the
// vectors of a group (r), which leaves X[k1 + K k0] in vector k0 of the
// group of k1, lane k1 mod 8. load(s) gives x[8s .. 8s + 7]; put(k, v)
// takes X[k .. k + 7].
template <size_t K, bool INV, class D, class Load, class Put>
HWY_INLINE void DftEight(D d, const Load& load, const Put& put) {
  const CxOps<D, 2, INV> o(d);
  using C = typename CxOps<D, 2, INV>::C;
  const auto& tw = K == 8 ? kTw64.w : kTw128.w;
  C y[K];
  for (size_t s = 0; s < K; ++s) y[s] = load(s);
  DftLanes<K>(o, y);
  for (size_t k = 1; k < K; ++k) y[k] = o.mul_w(y[k], o.tw_at(tw[k - 1], nullptr, 0));
  for (size_t g = 0; g < K; g += 8) {
    TransposeCx(d, y + g);
    DftLanes<8>(o, y + g);
    for (size_t k = 0; k < 8; ++k) put(K * k + g, y[g + k]);
  }
}

template <size_t K, bool INV, class D>
void DftEightContiguous(D d, const float* src, float* dst) {
  const CxOps<D, 2, INV> o(d);
  using C = typename CxOps<D, 2, INV>::C;
  DftEight<K, INV>(
      d, [&](size_t s) { return o.load(src, nullptr, 8 * s); },
      [&](size_t k, C v) { o.store(dst, nullptr, k, v); });
}

// Factors of the double-precision 128-point transform: the 64-point stage
// block (w^j, w^2j, w^3j, j < 16, w = w_64) and w_128^k, k < 64.
struct Tw128Double {
  alignas(64) double stage[96 + 8];  // (padded for the twiddle loads)
  alignas(64) double w[128 + 8];
  Tw128Double() {
    const long double pi = 3.141592653589793238462643383279502884L;
    auto put = [&](double* p, size_t i, size_t e, size_t n) {
      const long double a = 2 * pi * static_cast<long double>(e) / static_cast<long double>(n);
      p[2 * i] = static_cast<double>(std::cos(a));
      p[2 * i + 1] = static_cast<double>(-std::sin(a));
    };
    for (size_t j = 0; j < 16; ++j)
      for (size_t m = 1; m <= 3; ++m) put(stage, 16 * (m - 1) + j, m * j, 64);
    for (size_t k = 0; k < 64; ++k) put(w, k, k, 128);
  }
};
const Tw128Double kTw128Double;

#if HWY_TARGET == HWY_AVX3
// 128 double-precision points by decimation in time: the 64-point
// transforms A of the even and B of the odd points (four complex values per
// vector, A parked in the first half of dst), then X[k] = A[k] + w^k B[k]
// and X[k + 64] = A[k] - w^k B[k].
template <bool INV, class D>
void Dft128Double(D d, const double* src, double* dst) {
  const CxOps<D, 2, INV> o(d);
  using C = typename CxOps<D, 2, INV>::C;
  auto half = [&](bool odd) {
    return [&, odd](size_t s) {
      const __m512d lo = _mm512_loadu_pd(src + 16 * s), hi = _mm512_loadu_pd(src + 16 * s + 8);
      C c;
      c.v.raw = odd ? _mm512_shuffle_f64x2(lo, hi, _MM_SHUFFLE(3, 1, 3, 1))
                    : _mm512_shuffle_f64x2(lo, hi, _MM_SHUFFLE(2, 0, 2, 0));
      return c;
    };
  };
  const double* stage = kTw128Double.stage;
  SmallFourT<16, INV>(d, half(false), [&](size_t k, C v) { o.store(dst, nullptr, k, v); }, stage);
  SmallFourT<16, INV>(d, half(true), [&](size_t k, C b) {
    const C a = o.load(dst, nullptr, k);
    const C t = o.mul_w(b, o.tw_at(kTw128Double.w, nullptr, k));
    o.store(dst, nullptr, k, o.add(a, t));
    o.store(dst, nullptr, k + 64, o.sub(a, t));
  }, stage);
}

// 256 single-precision points by decimation in time: the 128-point
// transforms A of the even and B of the odd points (each in registers, A
// parked in the first half of dst), then X[k] = A[k] + w^k B[k] and
// X[k + 128] = A[k] - w^k B[k].
template <bool INV, class D>
void Dft256(D d, const float* src, float* dst) {
  const CxOps<D, 2, INV> o(d);
  using C = typename CxOps<D, 2, INV>::C;
  const __m512i even = _mm512_setr_epi64(0, 2, 4, 6, 8, 10, 12, 14);
  const __m512i odd = _mm512_setr_epi64(1, 3, 5, 7, 9, 11, 13, 15);
  auto half = [&](const __m512i& sel) {
    return [&, sel](size_t s) {
      const __m512d lo = _mm512_loadu_pd(reinterpret_cast<const double*>(src + 32 * s));
      const __m512d hi = _mm512_loadu_pd(reinterpret_cast<const double*>(src + 32 * s + 16));
      C c;
      c.v.raw = _mm512_castpd_ps(_mm512_permutex2var_pd(lo, sel, hi));
      return c;
    };
  };
  DftEight<16, INV>(d, half(even), [&](size_t k, C v) { o.store(dst, nullptr, k, v); });
  DftEight<16, INV>(d, half(odd), [&](size_t k, C b) {
    const C a = o.load(dst, nullptr, k);
    const C t = o.mul_w(b, o.tw_at(kTw256.w, nullptr, k));
    o.store(dst, nullptr, k, o.add(a, t));
    o.store(dst, nullptr, k + 128, o.sub(a, t));
  });
}
#endif

// Whole transforms of 16, 32 and 64 points in registers (four complex
// values per vector; eight for 64 single-precision points where vectors
// are that wide); `first` is the first-level table of the order.
template <bool INV, class D, class T>
HWY_INLINE void Codelet(D d, const T* src, T* dst, size_t n, const T* first) {
  if constexpr (sizeof(T) == 4 && hn::MaxLanes(hn::CappedTag<float, 16>()) == 16) {
    if (n == 64) return DftEightContiguous<8, INV>(hn::CappedTag<float, 16>(), src, dst);
  }
  if (n == 16) Dft16Contiguous<INV>(d, src, dst);
  else if (n == 32) SmallFour<8, INV>(d, src, dst, first + stage_offset(5, 32));
  else SmallFour<16, INV>(d, src, dst, first + stage_offset(6, 64));
}

template <class T, int S>
struct VecPasses : scalar::Passes<T, S> {
  using Base = scalar::Passes<T, S>;
  // Group width in T units of one layout half: 8 interleaved values, or 4
  // real and 4 imaginary values.
  static constexpr size_t kGroup = S == 2 ? 8 : 4;
  using DG = hn::CappedTag<T, kGroup>;

  template <bool INV>
  static void radix4_t(const T* re, const T* im, T* ore, T* oim, size_t n, size_t L, const T* tw) {
    const size_t q = L / 4;
    const hn::ScalableTag<T> dz;
    const hn::CappedTag<T, 32 / sizeof(T)> df;
    const hn::CappedTag<T, 4> d4;
    const hn::CappedTag<T, 2> d2;
    // Short runs (two 512-bit vectors) of interleaved data 32 bytes off a
    // line run at 256 bits, each access inside one line.
    const bool half_off = S == 2 && sizeof(T) * hn::Lanes(dz) == 64 && q * S < 4 * hn::Lanes(dz) &&
                          (reinterpret_cast<uintptr_t>(ore) & 63) == 32;
    if (q * S >= hn::Lanes(dz) && !half_off) {
      Radix4Rows<S, INV>(dz, re, im, ore, oim, n, L, tw, true);
    } else if (q * S >= hn::Lanes(df)) {
      Radix4Rows<S, INV>(df, re, im, ore, oim, n, L, tw);
    } else if (q * S >= hn::Lanes(d4) && hn::Lanes(d4) >= size_t(S)) {
      Radix4Rows<S, INV>(d4, re, im, ore, oim, n, L, tw);
    } else if (q * S >= hn::Lanes(d2) && hn::Lanes(d2) >= size_t(S)) {
      Radix4Rows<S, INV>(d2, re, im, ore, oim, n, L, tw);
    } else {
      Base::radix4_range(re, im, ore, oim, n, L, tw, INV, 0);
    }
  }
  static void radix4(const T* re, const T* im, T* ore, T* oim, size_t n, size_t L, const T* tw,
                     bool inv) {
    if (inv) radix4_t<true>(re, im, ore, oim, n, L, tw);
    else radix4_t<false>(re, im, ore, oim, n, L, tw);
  }

  template <bool INV>
  static void radix4x2_t(const T* re, const T* im, T* ore, T* oim, size_t n, size_t L, const T* tw,
                         const T* tw4) {
    const size_t q = L / 4;
    const hn::ScalableTag<T> dz;
    const hn::CappedTag<T, 32 / sizeof(T)> df;
    const hn::CappedTag<T, 4> d4;
    const hn::CappedTag<T, 2> d2;
    if (q * S >= hn::Lanes(dz)) {
      Radix4x2Rows<S, INV>(dz, re, im, ore, oim, n, L, tw, tw4, true);
    } else if (q * S >= hn::Lanes(df)) {
      Radix4x2Rows<S, INV>(df, re, im, ore, oim, n, L, tw, tw4);
    } else if (q * S >= hn::Lanes(d4) && hn::Lanes(d4) >= size_t(S)) {
      Radix4x2Rows<S, INV>(d4, re, im, ore, oim, n, L, tw, tw4);
    } else if (q * S >= hn::Lanes(d2) && hn::Lanes(d2) >= size_t(S)) {
      Radix4x2Rows<S, INV>(d2, re, im, ore, oim, n, L, tw, tw4);
    } else {
      Base::radix4x2(re, im, ore, oim, n, L, tw, tw4, INV);
    }
  }
  static void radix4x2(const T* re, const T* im, T* ore, T* oim, size_t n, size_t L, const T* tw,
                       const T* tw4, bool inv) {
    if (inv) radix4x2_t<true>(re, im, ore, oim, n, L, tw, tw4);
    else radix4x2_t<false>(re, im, ore, oim, n, L, tw, tw4);
  }

  // ---- First pass: B-point blocks in registers. Returns the block length
  // transformed (n when the whole transform is done). With a stride, only
  // the transforms r0 + j stride + (0 .. lanes - 1) run, lanes as given by
  // lead_lanes (the rows of a stepped level).
  using DL8 = hn::CappedTag<T, 16>;                  // eight complex floats
  using DL4 = hn::CappedTag<T, 8>;                   // up to four complex values
  using DL1 = hn::CappedTag<T, 2>;                   // one complex value
  using DLW = hn::CappedTag<T, 32 / sizeof(T)>;      // 256 bits
  using DLS = hn::CappedTag<T, 4>;                   // split layout
  enum class LeadTag { kScalar, kOne, kFour, kWide, kEight };
  static LeadTag lead_tag(size_t n, int leaf, size_t stride, bool off) {
    if (S == 1) return n / 16 >= hn::Lanes(DLS()) && hn::Lanes(DLS()) >= 2 ? LeadTag::kFour : LeadTag::kScalar;
    const size_t cnt = n >> (leaf & 1 ? 3 : 4);
    // Double precision beyond L1-sized data measured faster with 256-bit
    // vectors (two complex values, shorter transposes) than with 512-bit;
    // row by row (stride) the data stay in L1 and whole lines are read,
    // unless the destination is off a line: then 256-bit stores, each inside
    // one line, measured 3-6% faster at 2^16..2^19 points.
    const bool rows_off = off && stride != 0;
    const bool wide = (stride == 0 && n > kWideLeadMax) || rows_off;
    if (sizeof(T) == 8 && wide && cnt >= hn::Lanes(DLW()) / 2) return LeadTag::kWide;
    if (sizeof(T) == 4 && hn::Lanes(DL8()) == 16 && cnt >= 8 && !rows_off) return LeadTag::kEight;
    return cnt >= hn::Lanes(DL4()) / 2 ? LeadTag::kFour : LeadTag::kOne;
  }
  // Row by row (leaf rows of 2^leaf points), the transforms of one source
  // line (64 bytes) go together, so that each line is read once, as long as
  // their rows fit in 32 KiB.
  static size_t lead_lanes(size_t n, int leaf) {
    const LeadTag tag = lead_tag(n, leaf, 1, false);
    if (tag != LeadTag::kFour && tag != LeadTag::kEight) return 1;
    const size_t V = S == 1 ? hn::Lanes(DLS())
                            : (tag == LeadTag::kEight ? hn::Lanes(DL8()) : hn::Lanes(DL4())) / 2;
    size_t w = 64 / (S == 1 ? sizeof(T) : 2 * sizeof(T));
    while (w > V && (w * 2 * sizeof(T)) << leaf > 32768) w /= 2;
    return HWY_MAX(V, w);
  }
  template <bool INV>
  static size_t lead_t(const T* sre, const T* sim, T* dre, T* dim, size_t n, int leaf,
                       const scalar::BitRev& rev, bool fused, const T* first, size_t r0,
                       size_t stride, const scalar::RowMap& map) {
    if (S == 2 && fused && stride == 0 && hn::Lanes(DL4()) == 8 && n <= 64) {
      Codelet<INV>(DL4(), sre, dre, n, first);
      return n;
    }
    const bool odd = leaf & 1;
    auto run = [&](auto d) {
      const size_t width = stride ? lead_lanes(n, leaf) : 0;
      if (odd) LeadBlocks<8, INV, S>(d, sre, sim, dre, dim, n, rev, fused, r0, stride, width, map);
      else LeadBlocks<16, INV, S>(d, sre, sim, dre, dim, n, rev, fused, r0, stride, width, map);
    };
    switch (lead_tag(n, leaf, stride, S == 2 && fused && scalar::off_line(dre))) {
      case LeadTag::kScalar:
        return Base::lead(sre, sim, dre, dim, n, leaf, rev, fused, INV, first, r0, stride, map);
      case LeadTag::kWide:
        if constexpr (S == 2) run(DLW());
        break;
      case LeadTag::kEight:
        if constexpr (S == 2 && sizeof(T) == 4) run(DL8());
        break;
      case LeadTag::kFour:
        if constexpr (S == 2) run(DL4());
        else run(DLS());
        break;
      case LeadTag::kOne:
        if constexpr (S == 2) run(DL1());
        break;
    }
    return odd ? 8 : 16;
  }
  static size_t lead(const T* sre, const T* sim, T* dre, T* dim, size_t n, int leaf,
                     const scalar::BitRev& rev, bool fused, bool inv, const T* first,
                     size_t r0 = 0, size_t stride = 0, const scalar::RowMap& map = scalar::RowMap()) {
    return inv ? lead_t<true>(sre, sim, dre, dim, n, leaf, rev, fused, first, r0, stride, map)
               : lead_t<false>(sre, sim, dre, dim, n, leaf, rev, fused, first, r0, stride, map);
  }

  // Twiddles tab[S * stride * q] for the lanes q.. of a vector (stride 1 or
  // 2; the two-level scheme's inner combine reads every other entry).
  template <class D, class O>
  static auto load_tw(D d, const O& o, const T* tab, const T* tabi, size_t q, size_t stride) {
    if (stride == 1 || (S == 2 && hn::Lanes(d) == 2)) return o.load(tab, tabi, q * stride);
    using C = typename O::C;
    if constexpr (S == 2) {
      const hn::Repartition<uint64_t, D> du;
      const auto* t = reinterpret_cast<const uint64_t*>(tab) + 2 * q;
      return C{hn::BitCast(d, hn::ConcatEven(du, hn::LoadU(du, t + hn::Lanes(du)), hn::LoadU(du, t)))};
    } else {
      const size_t NL = hn::Lanes(d);
      return C{hn::ConcatEven(d, hn::LoadU(d, tab + 2 * q + NL), hn::LoadU(d, tab + 2 * q)),
               hn::ConcatEven(d, hn::LoadU(d, tabi + 2 * q + NL), hn::LoadU(d, tabi + 2 * q))};
    }
  }

  // Double-precision interleaved data run one complex per 128-bit vector
  // here, which makes any stride a plain load.
  using DC = hn::CappedTag<T, sizeof(T) == 8 && S == 2 ? 2 : 32 / sizeof(T)>;

  template <bool INV, class D>
  static void combine2_t(D d, T* re, T* im, size_t h, const T* tab, size_t c, size_t stride) {
    const CxOps<D, S, INV> o(d);
    const size_t step = hn::Lanes(d) / S;
    const T* tabi = scalar::block_im<T, S>(tab, c);
    for (size_t q = 0; q < h; q += step) {
      const auto e = o.load(re, im, q);
      const auto od = o.mul(o.load(re, im, q + h), load_tw(d, o, tab, tabi, q, stride));
      o.store(re, im, q, o.add(e, od));
      o.store(re, im, q + h, o.sub(e, od));
    }
  }
  // Consecutive twiddles (stride 1) run at full width.
  static void combine2(T* re, T* im, size_t h, const T* tab, size_t c, size_t stride, bool inv) {
    const DC d;
    const hn::ScalableTag<T> dz;
    if (stride == 1 && h * S >= 2 * hn::Lanes(dz)) {
      if (inv) combine2_t<true>(dz, re, im, h, tab, c, stride);
      else combine2_t<false>(dz, re, im, h, tab, c, stride);
    } else if (stride > 2 || h * S < 2 * hn::Lanes(d)) {
      Base::combine2(re, im, h, tab, c, stride, inv);
    } else if (inv) {
      combine2_t<true>(d, re, im, h, tab, c, stride);
    } else {
      combine2_t<false>(d, re, im, h, tab, c, stride);
    }
  }

  // Twiddles tab[2q], tab[2q + 2], ... of interleaved double precision (one
  // complex per 128-bit unit).
  template <class D>
  static bool load_even_units(D d, const T* tab, size_t q, hn::Vec<D>& out) {
    (void)d;
    (void)tab;
    (void)q;
    (void)out;
#if HWY_TARGET != HWY_SSE4
    if constexpr (sizeof(T) == 8 && sizeof(T) * hn::MaxLanes(D()) == 32) {
      const __m256d lo = _mm256_loadu_pd(tab + 4 * q), hi = _mm256_loadu_pd(tab + 4 * q + 4);
      out.raw = _mm256_permute2f128_pd(lo, hi, 0x20);
      return true;
    }
#if HWY_TARGET == HWY_AVX3
    if constexpr (sizeof(T) == 8 && sizeof(T) * hn::MaxLanes(D()) == 64) {
      const __m512d lo = _mm512_loadu_pd(tab + 4 * q), hi = _mm512_loadu_pd(tab + 4 * q + 8);
      out.raw = _mm512_shuffle_f64x2(lo, hi, _MM_SHUFFLE(2, 0, 2, 0));
      return true;
    }
#endif
#endif
    return false;
  }

  template <bool INV, class D>
  static size_t combine4_t(D d, T* re, T* im, size_t Q, const T* tab, size_t c, size_t q0,
                           size_t q1) {
    const CxOps<D, S, INV> o(d);
    using C = typename CxOps<D, S, INV>::C;
    const size_t step = hn::Lanes(d) / S;
    const T* tabi = scalar::block_im<T, S>(tab, c);
    size_t q = q0;
    for (; q + step <= q1; q += step) {
      C w1;
      if constexpr (S == 2 && sizeof(T) == 8) {
        if (hn::Lanes(d) == 2) w1 = o.load(tab, tabi, 2 * q);
        else if (!load_even_units(d, tab, q, w1.v)) return q;
      } else {
        w1 = load_tw(d, o, tab, tabi, q, 2);
      }
      const auto w = o.tw_at(tab, tabi, q);
      const C a0 = o.load(re, im, q), b = o.mul(o.load(re, im, q + Q), w1);
      const C c0 = o.load(re, im, q + 2 * Q), e = o.mul(o.load(re, im, q + 3 * Q), w1);
      const C e1 = o.add(a0, b), e2 = o.sub(a0, b);
      const C f1 = o.mul_w(o.add(c0, e), w), g2 = o.mul_w(o.sub(c0, e), w);
      C x1, x3;
      o.add_rot(e2, g2, x1, x3);
      o.store(re, im, q, o.add(e1, f1));
      o.store(re, im, q + 2 * Q, o.sub(e1, f1));
      o.store(re, im, q + Q, x1);
      o.store(re, im, q + 3 * Q, x3);
    }
    return q;
  }
  template <bool INV>
  static size_t combine4_runs(T* re, T* im, size_t Q, const T* tab, size_t c) {
    const hn::ScalableTag<T> d;
    const size_t V = hn::Lanes(d) / S;
    // Interleaved data 32 bytes off a 64-byte line: the 512-bit vectors
    // shifted by half a vector, so that each access stays inside a line (the
    // twiddle loads then cross lines instead), and the first and last half
    // vectors at 256 bits. Measured 4% faster at double precision 2^11 and
    // 3-5% at single precision 2^12.
    if constexpr (S == 2 && sizeof(T) * hn::MaxLanes(decltype(d)()) == 64) {
      if (Q >= 2 * V && (reinterpret_cast<uintptr_t>(re) & 63) == 32) {
        const hn::Half<decltype(d)> dh;
        const size_t h = V / 2;
        combine4_t<INV>(dh, re, im, Q, tab, c, 0, h);
        combine4_t<INV>(d, re, im, Q, tab, c, h, Q - h);
        return combine4_t<INV>(dh, re, im, Q, tab, c, Q - h, Q);
      }
    }
    return combine4_t<INV>(d, re, im, Q, tab, c, 0, Q);
  }
  static void combine4(T* re, T* im, size_t Q, const T* tab, size_t c, bool inv) {
    const size_t done = inv ? combine4_runs<true>(re, im, Q, tab, c) : combine4_runs<false>(re, im, Q, tab, c);
    Base::combine4(re, im, Q, tab, c, inv, done);
  }

  static void scale(T* re, T* im, size_t n, T s) {
    const hn::ScalableTag<T> d;
    const size_t NL = hn::Lanes(d);
    const auto vs = hn::Set(d, s);
    auto run = [&](T* p, size_t m) {
      const size_t whole = m - m % NL;
      for (size_t i = 0; i < whole; i += NL) hn::StoreU(hn::Mul(hn::LoadU(d, p + i), vs), d, p + i);
      for (size_t i = whole; i < m; ++i) p[i] *= s;
    };
    if (S == 2) {
      run(re, 2 * n);
    } else {
      run(re, n);
      run(im, n);
    }
  }

  // ---- Bit-reversal permutation (interleaved, src may equal dst) in tiles
  // of V x V complex values, V per vector: with p = (a, mid, b), a and b of
  // t = log2 V bits, dst(a, mid, b) = src(rev b, rev mid, rev a). Loading
  // the rows of the source tile in bit-reversed order, one transpose leaves
  // destination row a in vector rev a.
  template <class D>
  static void permute_tiles(D d, const T* src, T* dst, int order, const scalar::BitRev& rev) {
    const CxOps<D, 2, false> o(d);
    using C = typename CxOps<D, 2, false>::C;
    const size_t V = hn::Lanes(d) / 2;
    const int t = V == 4 ? 2 : 1;
    const size_t row = size_t(1) << (order - t);
    const size_t nmid = size_t(1) << (order - 2 * t);
    const size_t rv[4] = {0, V == 4 ? 2u : 1u, 1, 3};
    auto load = [&](size_t mid, C* v) {
      for (size_t x = 0; x < V; ++x) v[x] = o.load(src, nullptr, rv[x] * row + (mid << t));
      TransposeCx(d, v);
    };
    auto store = [&](size_t mid, const C* v) {
      for (size_t a = 0; a < V; ++a) o.store(dst, nullptr, a * row + (mid << t), v[rv[a]]);
    };
    for (size_t mid = 0; mid < nmid; ++mid) {
      const size_t rmid = rev(mid << t) >> t;
      if (rmid < mid) continue;
      C v1[4], v2[4];
      load(rmid, v1);
      if (rmid == mid) {
        store(mid, v1);
      } else {
        load(mid, v2);
        store(mid, v1);
        store(rmid, v2);
      }
    }
  }
  static bool permute_interleaved(const T* src, T* dst, int order, const scalar::BitRev& rev) {
    const hn::CappedTag<T, 8> d;
    const size_t V = hn::Lanes(d) / 2;
    if (S != 2 || V < 2 || order < 6) return false;
    permute_tiles(d, src, dst, order, rev);
    return true;
  }

  // ---- Whole column pass of a stepped level (interleaved layout, four
  // complex values per vector); false leaves it to the generic passes.
  template <bool INV, class D>
  static void column_groups(D d, T* data, size_t M, size_t K, int k, const T* merge, const T* col,
                            T* work, size_t g0, size_t g1, size_t c0) {
    for (size_t g = g0; g < g1; ++g) {
      if (k & 1) ColumnGroup<8, INV>(d, data, M, K, k, g, merge, col, work, c0);
      else ColumnGroup<16, INV>(d, data, M, K, k, g, merge, col, work, c0);
    }
  }
  // Data 32 bytes off a 64-byte boundary: the 512-bit groups shifted by half
  // a vector read whole lines; the half-vector edges go alone.
  template <bool INV, class D, class DH>
  static void column_groups_shifted(D d, DH dh, T* data, size_t M, size_t K, int k,
                                    const T* merge, const T* col, T* work) {
    const size_t W = hn::Lanes(d) / 2, WH = W / 2;
    column_groups<INV>(dh, data, M, K, k, merge, col, work, 0, 1, 0);
    column_groups<INV>(d, data, M, K, k, merge, col, work, 0, M / W - 1, WH);
    column_groups<INV>(dh, data, M, K, k, merge, col, work, M / WH - 1, M / WH, 0);
  }
  template <bool INV>
  static void column_pass_t(T* data, size_t M, size_t K, int k, const T* merge, const T* col,
                            T* work) {
    // Single precision processes eight columns (whole 64-byte row pieces)
    // when the target has 512-bit vectors and eight columns of K elements
    // fit a small scratch area: with four, the two halves of every row line
    // are fetched twice, since rows a power of two apart evict each other.
    // For the same reason, 512-bit groups of data 32 bytes off a line
    // boundary are shifted by half a vector.
    constexpr size_t kScratch = 2048;  // complex values
    const bool half_off = (reinterpret_cast<uintptr_t>(data) & 63) == 32;
    const hn::CappedTag<T, 16> d8;
    const hn::CappedTag<T, 8> d;
    if constexpr (sizeof(T) == 4 && hn::MaxLanes(decltype(d8)()) == 16) {
      if (8 * K <= kScratch) {
        HWY_ALIGN T scratch[2 * kScratch];
        if (half_off) column_groups_shifted<INV>(d8, d, data, M, K, k, merge, col, scratch);
        else column_groups<INV>(d8, data, M, K, k, merge, col, scratch, 0, M / 8, 0);
        return;
      }
    }
    if constexpr (sizeof(T) == 8 && hn::MaxLanes(decltype(d)()) == 8) {
      if (half_off) {
        column_groups_shifted<INV>(d, hn::CappedTag<T, 4>(), data, M, K, k, merge, col, work);
        return;
      }
    }
    column_groups<INV>(d, data, M, K, k, merge, col, work, 0, M / 4, 0);
  }
  static bool column_pass(T* re, size_t M, size_t K, int k, const T* merge, const T* col, T* work,
                          bool inv) {
    if (S != 2 || hn::Lanes(hn::CappedTag<T, 8>()) != 8 || k < 3) return false;
    if (inv) column_pass_t<true>(re, M, K, k, merge, col, work);
    else column_pass_t<false>(re, M, K, k, merge, col, work);
    return true;
  }

  // ---- Column pass: group b of the work buffer at work + 8b.
  // Row pointers of the four columns q0..q0+3 in row b, as a "group" in the
  // data's own layout.
  template <bool INV>
  static void gather_t(const T* re, const T* im, size_t M, size_t K, size_t g, const T* merge,
                       T* work) {
    const DG d;
    const CxOps<DG, S, INV> o(d);
    const size_t NL = hn::Lanes(d);
    const size_t r0 = 4 * (g & 1);  // merge factors: see fft.h
    const T* gf = merge + 32 * K + 2 * (g / 2) * K;
    for (size_t b = 0; b < K; ++b) {
      const size_t e = 4 * g + M * b;  // first element of the row's group
      const T* rf = merge + 32 * b + S * r0;
      const auto gr = hn::Set(d, gf[2 * b]), gi = hn::Set(d, gf[2 * b + 1]);
      T* w = work + 8 * b;
      for (size_t off = 0; off < kGroup; off += NL) {
        typename CxOps<DG, S, INV>::C x, t;
        if (S == 2) {
          x = o.mul_b(o.load(re + 2 * e + off, nullptr, 0), gr, gi);
          t = o.load(rf + off, nullptr, 0);
          o.store(w + off, nullptr, 0, o.mul(x, t));
        } else {
          x = o.mul_b(o.load(re + e + off, im + e + off, 0), gr, gi);
          t = o.load(rf + off, rf + 16 + off, 0);
          o.store(w + off, w + 4 + off, 0, o.mul(x, t));
        }
      }
    }
  }
  static void gather(const T* re, const T* im, size_t M, size_t K, size_t g, const T* merge,
                     T* work, bool inv) {
    if (inv) gather_t<true>(re, im, M, K, g, merge, work);
    else gather_t<false>(re, im, M, K, g, merge, work);
  }
  static void scatter(T* re, T* im, size_t M, size_t K, size_t g, T* work) {
    const DG d;
    const size_t NL = hn::Lanes(d);
    for (size_t b = 0; b < K; ++b) {
      const size_t e = 4 * g + M * b;
      const T* w = work + 8 * b;
      for (size_t off = 0; off < kGroup; off += NL) {
        if (S == 2) {
          hn::StoreU(hn::LoadU(d, w + off), d, re + 2 * e + off);
        } else {
          hn::StoreU(hn::LoadU(d, w + off), d, re + e + off);
          hn::StoreU(hn::LoadU(d, w + 4 + off), d, im + e + off);
        }
      }
    }
  }

  // Loads/stores of the part `off` of group b.
  template <class O>
  static auto gl(const O& o, T* w, size_t b, size_t off) {
    return S == 2 ? o.load(w + 8 * b + off, nullptr, 0) : o.load(w + 8 * b + off, w + 8 * b + 4 + off, 0);
  }
  template <class O, class C>
  static void gs(const O& o, T* w, size_t b, size_t off, C c) {
    if (S == 2) o.store(w + 8 * b + off, nullptr, 0, c);
    else o.store(w + 8 * b + off, w + 8 * b + 4 + off, 0, c);
  }

  static void col_radix2(T* w, size_t K) {
    const DG d;
    const CxOps<DG, S, false> o(d);
    for (size_t b = 0; b < K; b += 2)
      for (size_t off = 0; off < kGroup; off += hn::Lanes(d)) {
        const auto x = gl(o, w, b, off), y = gl(o, w, b + 1, off);
        gs(o, w, b, off, o.add(x, y));
        gs(o, w, b + 1, off, o.sub(x, y));
      }
  }
  template <bool INV>
  static void col_radix4_first_t(T* w, size_t K) {
    const DG d;
    const CxOps<DG, S, INV> o(d);
    for (size_t b = 0; b < K; b += 4)
      for (size_t off = 0; off < kGroup; off += hn::Lanes(d)) {
        auto x0 = gl(o, w, b, off), x1 = gl(o, w, b + 1, off);
        auto x2 = gl(o, w, b + 2, off), x3 = gl(o, w, b + 3, off);
        Bfly4(o, x0, x1, x2, x3);
        gs(o, w, b, off, x0);
        gs(o, w, b + 1, off, x1);
        gs(o, w, b + 2, off, x2);
        gs(o, w, b + 3, off, x3);
      }
  }
  static void col_radix4_first(T* w, size_t K, bool inv) {
    if (inv) col_radix4_first_t<true>(w, K);
    else col_radix4_first_t<false>(w, K);
  }
  template <bool INV>
  static void col_radix4_t(T* w, size_t K, size_t L, const T* tw) {
    const DG d;
    const CxOps<DG, S, INV> o(d);
    const size_t q = L / 4;
    const T* twi = scalar::block_im<T, S>(tw, 3 * q);
    for (size_t b0 = 0; b0 < K; b0 += L)
      for (size_t j = 0; j < q; ++j) {
        const auto w1r = hn::Set(d, tw[S * (q + j)]), w1i = hn::Set(d, twi[S * (q + j)]);
        const auto w2r = hn::Set(d, tw[S * j]), w2i = hn::Set(d, twi[S * j]);
        const auto w3r = hn::Set(d, tw[S * (2 * q + j)]), w3i = hn::Set(d, twi[S * (2 * q + j)]);
        const size_t b = b0 + j;
        for (size_t off = 0; off < kGroup; off += hn::Lanes(d)) {
          auto x0 = gl(o, w, b, off);
          auto x1 = o.mul_b(gl(o, w, b + q, off), w1r, w1i);
          auto x2 = o.mul_b(gl(o, w, b + 2 * q, off), w2r, w2i);
          auto x3 = o.mul_b(gl(o, w, b + 3 * q, off), w3r, w3i);
          Bfly4(o, x0, x1, x2, x3);
          gs(o, w, b, off, x0);
          gs(o, w, b + q, off, x1);
          gs(o, w, b + 2 * q, off, x2);
          gs(o, w, b + 3 * q, off, x3);
        }
      }
  }
  static void col_radix4(T* w, size_t K, size_t L, const T* tw, bool inv) {
    if (inv) col_radix4_t<true>(w, K, L, tw);
    else col_radix4_t<false>(w, K, L, tw);
  }
};

template <class T, int S>
void Run(const FftPlan<T>& p, const FftArgs<T>& a) {
  scalar::Engine<T, S, VecPasses<T, S>>{p, a}.run();
}

// The radix-4 stage passes at one vector width D (the leaf's stage loop
// is the engine's).
template <class D, bool INV>
struct FixedWidthStages {
  template <class T>
  static void radix4(const T* re, const T* im, T* ore, T* oim, size_t n, size_t L, const T* tw, bool) {
    Radix4Rows<2, INV>(D(), re, im, ore, oim, n, L, tw);
  }
  template <class T>
  static void radix4x2(const T* re, const T* im, T* ore, T* oim, size_t n, size_t L, const T* tw,
                       const T* tw4, bool) {
    Radix4x2Rows<2, INV>(D(), re, im, ore, oim, n, L, tw, tw4);
  }
};

// A single leaf of order >= 7, out of place, at one vector width: the
// fused first pass, then the radix-4 stages (pairs in one pass). With a
// destination off a 64-byte line every full-width access would touch two
// lines, so the passes before the last one run in an aligned stack area and
// only the last stage's stores straddle lines.
template <bool INV, class D, class T>
void LeafDirect(D d, const T* src, T* dst, int order, const T* first, const uint32_t* rev) {
  const size_t n = size_t(1) << order;
  const scalar::BitRev br(rev, order);
  alignas(64) T scratch[8192 / sizeof(T)];  // a whole leaf
  T* mid = scalar::off_line(dst) && 2 * n * sizeof(T) <= sizeof(scratch) ? scratch : dst;
  if (order & 1) LeadBlocks<8, INV, 2>(d, src, src + 1, mid, mid + 1, n, br, true, 0, 0, 0);
  else LeadBlocks<16, INV, 2>(d, src, src + 1, mid, mid + 1, n, br, true, 0, 0, 0);
  scalar::leaf_stages<T, FixedWidthStages<D, INV>>(mid, mid + 1, order, order & 1 ? 8 : 16, first, INV,
                                                   dst, dst + 1);
}

template <class T>
bool SmallInterleaved(const T* src, T* dst, int order, const T* first, const uint32_t* rev,
                      bool inv, T scale) {
  const bool scaled = scale != T(1);  // a product by one changes nothing
  const hn::CappedTag<T, 8> d4;
  if (hn::Lanes(d4) < 4 || order < 4) return false;
  const size_t n = size_t(1) << order;
  using P = VecPasses<T, 2>;
  if (hn::Lanes(d4) == 8 && order <= 6) {
    if (inv) Codelet<true>(d4, src, dst, n, first);
    else Codelet<false>(d4, src, dst, n, first);
    if (scaled) P::scale(dst, nullptr, n, scale);
    return true;
  }
  if constexpr (sizeof(T) == 4 && hn::MaxLanes(hn::CappedTag<float, 16>()) == 16) {
    const hn::CappedTag<float, 16> d8;
    if (order == 7) {
      if (inv) DftEightContiguous<16, true>(d8, src, dst);
      else DftEightContiguous<16, false>(d8, src, dst);
      if (scaled) P::scale(dst, nullptr, n, scale);
      return true;
    }
#if HWY_TARGET == HWY_AVX3
    if (order == 8) {
      if (inv) Dft256<true>(d8, src, dst);
      else Dft256<false>(d8, src, dst);
      if (scaled) P::scale(dst, nullptr, n, scale);
      return true;
    }
#endif
  }
#if HWY_TARGET == HWY_AVX3
  if constexpr (sizeof(T) == 8) {
    if (order == 7) {
      const hn::CappedTag<double, 8> dd;
      if (inv) Dft128Double<true>(dd, src, dst);
      else Dft128Double<false>(dd, src, dst);
      if (scaled) P::scale(dst, nullptr, n, scale);
      return true;
    }
  }
#endif
  if (order >= 7) {
    // Full-width vectors throughout, the passes called directly without the
    // engine's width selection (call overhead is a tenth of a 128-point
    // transform).
    const hn::ScalableTag<T> dz;
    if (inv) LeafDirect<true>(dz, src, dst, order, first, rev);
    else LeafDirect<false>(dz, src, dst, order, first, rev);
    if (scaled) P::scale(dst, nullptr, n, scale);
    return true;
  }
  const size_t lead = P::lead(src, nullptr, dst, nullptr, n, order,
                              scalar::BitRev(rev, order), true, inv, first);
  scalar::leaf_stages<T, P>(dst, dst + 1, order, lead, first, inv);
  if (scaled) P::scale(dst, nullptr, n, scale);
  return true;
}

#else  // HWY_SCALAR: the portable twin

template <class T>
bool SmallInterleaved(const T*, T*, int, const T*, const uint32_t*, bool, T) {
  return false;
}


template <class T, int S>
void Run(const FftPlan<T>& p, const FftArgs<T>& a) {
  scalar::fft<T, S>(p, a);
}

#endif

bool SmallInterleavedF32(const float* src, float* dst, int order, const float* first,
                         const uint32_t* rev, bool inv, float scale) {
  return SmallInterleaved(src, dst, order, first, rev, inv, scale);
}
bool SmallInterleavedF64(const double* src, double* dst, int order, const double* first,
                         const uint32_t* rev, bool inv, double scale) {
  return SmallInterleaved(src, dst, order, first, rev, inv, scale);
}

void FftInterleavedF32(const FftPlan<float>& p, const FftArgs<float>& a) { Run<float, 2>(p, a); }
void FftInterleavedF64(const FftPlan<double>& p, const FftArgs<double>& a) { Run<double, 2>(p, a); }
void FftSplitF32(const FftPlan<float>& p, const FftArgs<float>& a) { Run<float, 1>(p, a); }
void FftSplitF64(const FftPlan<double>& p, const FftArgs<double>& a) { Run<double, 1>(p, a); }

}  // namespace HWY_NAMESPACE
}  // namespace kels::kernels
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace kels::kernels {

HWY_EXPORT(SmallInterleavedF32);
HWY_EXPORT(SmallInterleavedF64);
HWY_EXPORT(FftInterleavedF32);
HWY_EXPORT(FftInterleavedF64);
HWY_EXPORT(FftSplitF32);
HWY_EXPORT(FftSplitF64);

// HWY_DYNAMIC_DISPATCH with the chosen-target record looked up once: the
// transforms of 16 to 64 points take a few tens of nanoseconds, and the
// library call behind the lookup, with the argument saving around it,
// measured a tenth of that. The record's contents are still read on every
// call, so a change of target takes effect as before.
#if HWY_IDE || ((HWY_TARGETS & (HWY_TARGETS - 1)) == 0)
#define KELS_DISPATCH(FUNC) HWY_STATIC_DISPATCH(FUNC)
#else
hwy::ChosenTarget& chosen = hwy::GetChosenTarget();
#define KELS_DISPATCH(FUNC) (*(HWY_DISPATCH_TABLE(FUNC)[chosen.GetIndex()]))
#endif

bool fft_small_interleaved(const float* src, float* dst, int order, const float* first,
                           const std::uint32_t* rev, bool inv, float scale) {
  return KELS_DISPATCH(SmallInterleavedF32)(src, dst, order, first, rev, inv, scale);
}
bool fft_small_interleaved(const double* src, double* dst, int order, const double* first,
                           const std::uint32_t* rev, bool inv, double scale) {
  return KELS_DISPATCH(SmallInterleavedF64)(src, dst, order, first, rev, inv, scale);
}

void fft_interleaved(const FftPlan<float>& p, const FftArgs<float>& a) {
  KELS_DISPATCH(FftInterleavedF32)(p, a);
}
void fft_interleaved(const FftPlan<double>& p, const FftArgs<double>& a) {
  KELS_DISPATCH(FftInterleavedF64)(p, a);
}
void fft_split(const FftPlan<float>& p, const FftArgs<float>& a) { KELS_DISPATCH(FftSplitF32)(p, a); }
void fft_split(const FftPlan<double>& p, const FftArgs<double>& a) { KELS_DISPATCH(FftSplitF64)(p, a); }

}  // namespace kels::kernels
#endif  // HWY_ONCE
