// Power-of-two complex FFT engine: bit-reversal permutation, radix-4
// decimation-in-time stages, and the two large-order schemes (two-level
// halving with a radix-2 combine, and the stepped row/column scheme).
//
// The engine is one template over the element type T and the data layout S
// (S = 2: interleaved re,im pairs; S = 1: separate re and im arrays; element
// i lives at re[S*i], im[S*i] either way). A pass policy P supplies the inner
// loops: scalar::Passes below is the portable twin that every SIMD target is
// tested against, and the SIMD kernels (fft.cpp) override the passes they
// vectorise.
//
// Table layouts (shared by the record builder and the passes). Every table
// is a sequence of complex values; "block of c entries" means
//   interleaved (S = 2): re0, im0, re1, im1, ...
//   split (S = 1):       re0 .. re(c-1), im0 .. im(c-1)
// - first-level table of order n: for each radix-4 stage of length L >= 8
//   (L = 8, 32, ... for odd n; 16, 64, ... for even n), one block of
//   3L/4 entries: w^j (j < L/4), then w^(2j), then w^(3j), w = e^(-2 pi i/L);
//   the blocks follow each other in stage order (total < 2^n entries);
// - second-level table of the two-level scheme of order m: one block of 2^(m-1)
//   entries e^(-2 pi i q/2^m);
// - merge table of a stepped level (order n, K = 2^k rows of M columns):
//   the factor e^(-2 pi i rev_k(b) q / 2^n) of row b, column q is the
//   product G[q / 8][b] R[b][q mod 8]. For each row b one block of 16 row
//   factors R[b][c] = e^(-2 pi i rev_k(b) c / 2^n), c = 0..15 (16 so that a
//   group of up to eight columns starting anywhere in an 8-column block
//   reads them contiguously), then for each 8-column block h and row b one
//   group factor G[h][b] = e^(-2 pi i rev_k(b) 8h / 2^n) (re, im), in (h, b)
//   order: 16K + N/8 entries of the 2^n set aside;
// - column table of a stepped level: the first-level table of order k.
#ifndef KELS_KERNELS_FFT_H
#define KELS_KERNELS_FFT_H

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace kels::kernels {

// Members are left uninitialised: a plan sets the first `levels` steps and
// nothing reads the others (zeroing the whole plan per call costs more than
// a small transform).
template <class T>
struct FftStep {
  int order;          // log2 of the length this level transforms
  int k;              // log2 of the column (outer) length
  const T* col;       // first-level table of order k
  const T* merge;     // merge table of order `order`
};

// Everything a transform needs, resolved from a record.
template <class T>
struct FftPlan {
  int order = 0;
  int leaf = 0;                // order of the first-level table
  const T* first = nullptr;
  int two_level = 0;           // top order of the two-level part, 0 = none
  const T* second = nullptr;
  int levels = 0;              // stepped levels, outermost first
  FftStep<T> step[3];
  const std::uint32_t* rev = nullptr;  // bit reversal of ceil(order/2) bits
};

template <class T>
struct FftArgs {
  const T* src_re;
  const T* src_im;  // interleaved: src_re + 1
  T* dst_re;
  T* dst_im;        // interleaved: dst_re + 1
  T* work;          // 16-byte aligned, or null when the plan needs none
  bool inverse;
  bool scaled;
  T scale;
};

// Dispatched entry points (fft.cpp).
void fft_interleaved(const FftPlan<float>& p, const FftArgs<float>& a);
void fft_interleaved(const FftPlan<double>& p, const FftArgs<double>& a);
void fft_split(const FftPlan<float>& p, const FftArgs<float>& a);
void fft_split(const FftPlan<double>& p, const FftArgs<double>& a);

// Out-of-place interleaved transforms of a single leaf (order 4 up to the
// leaf size) straight from the record's first-level and bit-reversal tables,
// multiplied by `scale` unless it is 1, without a plan or work area. Returns
// false (nothing written) when the target has no kernel for them; the
// engine then runs. (Six integer arguments and one floating one: all travel
// in registers, which lets the dispatch be a jump.)
bool fft_small_interleaved(const float* src, float* dst, int order, const float* first,
                           const std::uint32_t* rev, bool inv, float scale);
bool fft_small_interleaved(const double* src, double* dst, int order, const double* first,
                           const std::uint32_t* rev, bool inv, double scale);

// Offset (in T units) of the stage block of length L inside a first-level
// table: the sum of 2 * 3L'/4 over the earlier stages L' >= 8.
inline std::size_t stage_offset(int n, std::size_t L) {
  std::size_t off = 0;
  for (std::size_t s = (n & 1) ? 8 : 16; s < L; s *= 4) off += 2 * (3 * s / 4);
  return off;
}

namespace scalar {

template <class T>
struct Cx {
  T r, i;
};
template <class T>
inline Cx<T> add(Cx<T> a, Cx<T> b) { return {a.r + b.r, a.i + b.i}; }
template <class T>
inline Cx<T> sub(Cx<T> a, Cx<T> b) { return {a.r - b.r, a.i - b.i}; }
// a * w, or a * conj(w) for the inverse direction.
template <class T>
inline Cx<T> mul(Cx<T> a, Cx<T> w, bool inv) {
  const T wi = inv ? -w.i : w.i;
  return {a.r * w.r - a.i * wi, a.i * w.r + a.r * wi};
}
// -i * a (forward) or +i * a (inverse).
template <class T>
inline Cx<T> rot(Cx<T> a, bool inv) {
  return inv ? Cx<T>{-a.i, a.r} : Cx<T>{a.i, -a.r};
}

// Element i of a complex sequence with layout S whose imaginary parts start
// at im (interleaved: re + 1).
template <class T, int S>
inline Cx<T> ld(const T* re, const T* im, std::size_t i) { return {re[S * i], im[S * i]}; }
template <class T, int S>
inline void st(T* re, T* im, std::size_t i, Cx<T> v) {
  re[S * i] = v.r;
  im[S * i] = v.i;
}

// Imaginary-part pointer of a table block of c entries.
template <class T, int S>
inline const T* block_im(const T* blk, std::size_t c) { return S == 2 ? blk + 1 : blk + c; }

// Work-buffer column groups: group b holds the four columns' elements of
// row b at work + 8b, in the same 4-entry block layout as the merge table.
template <class T, int S>
inline T* grp_re(T* w, std::size_t b, int c) { return w + 8 * b + (S == 2 ? 2 * c : c); }
template <class T, int S>
inline std::size_t grp_im_off() { return S == 2 ? 1 : 4; }

// Bit reversal of `order` bits through the half table of ceil(order/2) bits.
struct BitRev {
  const std::uint32_t* tab;
  int lo_bits, hi_bits;  // lo_bits = floor(order/2), hi_bits = ceil(order/2)
  BitRev(const std::uint32_t* t, int order) : tab(t), lo_bits(order / 2), hi_bits(order - order / 2) {}
  std::uint32_t lo(std::size_t x) const { return lo_bits == hi_bits ? tab[x] : tab[x] >> 1; }
  std::size_t operator()(std::size_t p) const {
    const std::size_t l = p & ((std::size_t(1) << lo_bits) - 1), h = p >> lo_bits;
    return (std::size_t(lo(l)) << hi_bits) | tab[h];
  }
};

// Where the first pass stores the block that starts at element x: at x,
// or, for a scratch area that holds G = 2^g rows of M = 2^m elements of a
// stepped level (rows whose numbers differ in their top g bits only), at
// (x >> top) M + x mod M with top = order - g.
struct RowMap {
  int top = 0;  // 0: no remapping
  int m = 0;
  std::size_t operator()(std::size_t x) const {
    return top ? ((x >> top) << m) | (x & ((std::size_t(1) << m) - 1)) : x;
  }
};

template <class T, int S>
struct Passes {
  // Radix-2 pass on adjacent pairs of n elements (first pass of odd orders).
  static void radix2(T* re, T* im, std::size_t n) {
    for (std::size_t i = 0; i < n; i += 2) {
      const Cx<T> a = ld<T, S>(re, im, i), b = ld<T, S>(re, im, i + 1);
      st<T, S>(re, im, i, add(a, b));
      st<T, S>(re, im, i + 1, sub(a, b));
    }
  }

  // 4-point butterflies of the elements a0..a3 (already twiddled), in the
  // quarter order of a bit-reversed block: positions 0, 1, 2, 3 hold the
  // sub-transforms of residues 0, 2, 1, 3.
  static void bfly4(Cx<T>& x0, Cx<T>& x1, Cx<T>& x2, Cx<T>& x3, bool inv) {
    // x0 = F0, x1 = W^2j F2, x2 = W^j F1, x3 = W^3j F3
    const Cx<T> t0 = add(x0, x1), t1 = sub(x0, x1);
    const Cx<T> t2 = add(x2, x3), t3 = rot(sub(x2, x3), inv);
    x0 = add(t0, t2);
    x2 = sub(t0, t2);
    x1 = add(t1, t3);
    x3 = sub(t1, t3);
  }

  // First radix-4 pass of even orders: 4-point transforms, no twiddles.
  static void radix4_first(T* re, T* im, std::size_t n, bool inv) {
    for (std::size_t i = 0; i < n; i += 4) {
      Cx<T> x0 = ld<T, S>(re, im, i), x1 = ld<T, S>(re, im, i + 1);
      Cx<T> x2 = ld<T, S>(re, im, i + 2), x3 = ld<T, S>(re, im, i + 3);
      bfly4(x0, x1, x2, x3, inv);
      st<T, S>(re, im, i, x0);
      st<T, S>(re, im, i + 1, x1);
      st<T, S>(re, im, i + 2, x2);
      st<T, S>(re, im, i + 3, x3);
    }
  }

  // The first pass fused with the bit-reversal permutation: output block m
  // (4 elements) holds the 4-point transform of src[r + {0, N/2, N/4, 3N/4}],
  // r = rev(4m) / 4; iterated over r so the reads run sequentially.
  static void first4_fused(const T* sre, const T* sim, T* dre, T* dim, std::size_t n,
                           const BitRev& rev, bool inv, std::size_t r0, std::size_t stride,
                           const RowMap& map) {
    const std::size_t q = n / 4;
    for (std::size_t r = r0; r < q; r += stride) {
      const std::size_t m4 = map(rev(r));
      Cx<T> x0 = ld<T, S>(sre, sim, r), x1 = ld<T, S>(sre, sim, r + 2 * q);
      Cx<T> x2 = ld<T, S>(sre, sim, r + q), x3 = ld<T, S>(sre, sim, r + 3 * q);
      bfly4(x0, x1, x2, x3, inv);
      st<T, S>(dre, dim, m4, x0);
      st<T, S>(dre, dim, m4 + 1, x1);
      st<T, S>(dre, dim, m4 + 2, x2);
      st<T, S>(dre, dim, m4 + 3, x3);
    }
  }
  // Same for the radix-2 first pass of odd orders: block 2m = rev(r).
  static void first2_fused(const T* sre, const T* sim, T* dre, T* dim, std::size_t n,
                           const BitRev& rev, std::size_t r0, std::size_t stride, const RowMap& map) {
    const std::size_t h = n / 2;
    for (std::size_t r = r0; r < h; r += stride) {
      const std::size_t m2 = map(rev(r));
      const Cx<T> a = ld<T, S>(sre, sim, r), b = ld<T, S>(sre, sim, r + h);
      st<T, S>(dre, dim, m2, add(a, b));
      st<T, S>(dre, dim, m2 + 1, sub(a, b));
    }
  }

  // The first pass over the whole array: the first stages of every leaf, on
  // blocks of 2 (odd leaf orders) or 4 elements, fused with the bit-reversal
  // permutation when the data are read from a separate source, else on the
  // permuted destination. Returns the block length transformed. A fused pass
  // with a stride runs only the blocks r0 + j stride + (0 .. lead_lanes - 1)
  // (the rows of a stepped level), stored where `map` says.
  static std::size_t lead(const T* sre, const T* sim, T* dre, T* dim, std::size_t n, int leaf,
                          const BitRev& rev, bool fused, bool inv, const T* /*first*/,
                          std::size_t r0 = 0, std::size_t stride = 0, const RowMap& map = RowMap()) {
    if (leaf & 1) {
      if (fused) first2_fused(sre, sim, dre, dim, n, rev, r0, stride ? stride : 1, map);
      else radix2(dre, dim, n);
      return 2;
    }
    if (fused) first4_fused(sre, sim, dre, dim, n, rev, inv, r0, stride ? stride : 1, map);
    else radix4_first(dre, dim, n, inv);
    return 4;
  }
  static std::size_t lead_lanes(std::size_t, int) { return 1; }

  // One radix-4 stage of length L (>= 8) over n elements, twiddles from the
  // stage block tw (3L/4 entries), for butterfly indices j0 <= j < q. The
  // results go to (ore, oim), which is either (re, im) or a separate array.
  static void radix4_range(const T* re, const T* im, T* ore, T* oim, std::size_t n, std::size_t L,
                           const T* tw, bool inv, std::size_t j0) {
    const std::size_t q = L / 4;
    const T* twi = block_im<T, S>(tw, 3 * q);
    for (std::size_t b = 0; b < n; b += L) {
      for (std::size_t j = j0; j < q; ++j) {
        const std::size_t i = b + j;
        Cx<T> x0 = ld<T, S>(re, im, i);
        Cx<T> x1 = mul(ld<T, S>(re, im, i + q), ld<T, S>(tw, twi, q + j), inv);
        Cx<T> x2 = mul(ld<T, S>(re, im, i + 2 * q), ld<T, S>(tw, twi, j), inv);
        Cx<T> x3 = mul(ld<T, S>(re, im, i + 3 * q), ld<T, S>(tw, twi, 2 * q + j), inv);
        bfly4(x0, x1, x2, x3, inv);
        st<T, S>(ore, oim, i, x0);
        st<T, S>(ore, oim, i + q, x1);
        st<T, S>(ore, oim, i + 2 * q, x2);
        st<T, S>(ore, oim, i + 3 * q, x3);
      }
    }
  }
  static void radix4(const T* re, const T* im, T* ore, T* oim, std::size_t n, std::size_t L,
                     const T* tw, bool inv) {
    radix4_range(re, im, ore, oim, n, L, tw, inv, 0);
  }
  // Two consecutive stages L and 4L (tables tw and tw4).
  static void radix4x2(const T* re, const T* im, T* ore, T* oim, std::size_t n, std::size_t L,
                       const T* tw, const T* tw4, bool inv) {
    radix4_range(re, im, ore, oim, n, L, tw, inv, 0);
    radix4_range(ore, oim, ore, oim, n, 4 * L, tw4, inv, 0);
  }

  // Two radix-2 combines in one pass: the four transformed quarters A, B, C,
  // D of Q elements form the halves E = (A, B) and F = (C, D) with the
  // twiddles tab[2q], then the whole with tab[q] (w^(q+Q) = -i w^q).
  static void combine4(T* re, T* im, std::size_t Q, const T* tab, std::size_t c, bool inv,
                       std::size_t q0 = 0) {
    const T* tabi = block_im<T, S>(tab, c);
    for (std::size_t q = q0; q < Q; ++q) {
      const Cx<T> w1 = ld<T, S>(tab, tabi, 2 * q), w = ld<T, S>(tab, tabi, q);
      const Cx<T> a0 = ld<T, S>(re, im, q), b = mul(ld<T, S>(re, im, q + Q), w1, inv);
      const Cx<T> c0 = ld<T, S>(re, im, q + 2 * Q), e = mul(ld<T, S>(re, im, q + 3 * Q), w1, inv);
      const Cx<T> e1 = add(a0, b), e2 = sub(a0, b);
      const Cx<T> f1 = mul(add(c0, e), w, inv), f2 = rot(mul(sub(c0, e), w, inv), inv);
      st<T, S>(re, im, q, add(e1, f1));
      st<T, S>(re, im, q + 2 * Q, sub(e1, f1));
      st<T, S>(re, im, q + Q, add(e2, f2));
      st<T, S>(re, im, q + 3 * Q, sub(e2, f2));
    }
  }

  // Radix-2 combine of two transformed halves of h elements each with the
  // twiddles tab[q * stride] of a second-level block of c entries.
  static void combine2(T* re, T* im, std::size_t h, const T* tab, std::size_t c,
                       std::size_t stride, bool inv) {
    const T* tabi = block_im<T, S>(tab, c);
    for (std::size_t q = 0; q < h; ++q) {
      const Cx<T> e = ld<T, S>(re, im, q);
      const Cx<T> o = mul(ld<T, S>(re, im, q + h), ld<T, S>(tab, tabi, q * stride), inv);
      st<T, S>(re, im, q, add(e, o));
      st<T, S>(re, im, q + h, sub(e, o));
    }
  }

  static void scale(T* re, T* im, std::size_t n, T s) {
    if (S == 2) {
      for (std::size_t i = 0; i < 2 * n; ++i) re[i] *= s;
    } else {
      for (std::size_t i = 0; i < n; ++i) re[i] *= s;
      for (std::size_t i = 0; i < n; ++i) im[i] *= s;
    }
  }

  // Column pass pieces of the stepped scheme. Rows of M elements; the four
  // columns q0..q0+3 (q0 = 4g) are gathered into work groups 0..K-1, each
  // element multiplied by its group factor and its row factor.
  static void gather(const T* re, const T* im, std::size_t M, std::size_t K, std::size_t g,
                     const T* merge, T* work, bool inv) {
    const std::size_t r0 = 4 * (g & 1);
    const T* gf = merge + 32 * K + 2 * (g / 2) * K;
    for (std::size_t b = 0; b < K; ++b) {
      const T* rf = merge + 32 * b;
      const T* rfi = block_im<T, S>(rf, 16);
      const Cx<T> gw{gf[2 * b], gf[2 * b + 1]};
      for (int c = 0; c < 4; ++c) {
        const Cx<T> x = mul(ld<T, S>(re, im, 4 * g + c + M * b), gw, inv);
        const Cx<T> v = mul(x, ld<T, S>(rf, rfi, r0 + c), inv);
        T* w = grp_re<T, S>(work, b, c);
        w[0] = v.r;
        w[grp_im_off<T, S>()] = v.i;
      }
    }
  }
  static void scatter(T* re, T* im, std::size_t M, std::size_t K, std::size_t g, T* work) {
    for (std::size_t b = 0; b < K; ++b) {
      for (int c = 0; c < 4; ++c) {
        const T* w = grp_re<T, S>(work, b, c);
        st<T, S>(re, im, 4 * g + c + M * b, Cx<T>{w[0], w[grp_im_off<T, S>()]});
      }
    }
  }
  // A vectorised bit-reversal permutation of interleaved data: none here.
  static bool permute_interleaved(const T*, T*, int, const BitRev&) { return false; }
  // A whole column pass in one piece: none here (the passes below do it).
  static bool column_pass(T*, std::size_t, std::size_t, int, const T*, const T*, T*, bool) {
    return false;
  }
  // The same passes as above applied to the K groups of the work buffer (four
  // independent columns sharing every twiddle).
  static Cx<T> gld(T* w, std::size_t b, int c) {
    const T* p = grp_re<T, S>(w, b, c);
    return {p[0], p[grp_im_off<T, S>()]};
  }
  static void gst(T* w, std::size_t b, int c, Cx<T> v) {
    T* p = grp_re<T, S>(w, b, c);
    p[0] = v.r;
    p[grp_im_off<T, S>()] = v.i;
  }
  static void col_radix2(T* w, std::size_t K) {
    for (std::size_t b = 0; b < K; b += 2)
      for (int c = 0; c < 4; ++c) {
        const Cx<T> a = gld(w, b, c), d = gld(w, b + 1, c);
        gst(w, b, c, add(a, d));
        gst(w, b + 1, c, sub(a, d));
      }
  }
  static void col_radix4_first(T* w, std::size_t K, bool inv) {
    for (std::size_t b = 0; b < K; b += 4)
      for (int c = 0; c < 4; ++c) {
        Cx<T> x0 = gld(w, b, c), x1 = gld(w, b + 1, c), x2 = gld(w, b + 2, c), x3 = gld(w, b + 3, c);
        bfly4(x0, x1, x2, x3, inv);
        gst(w, b, c, x0);
        gst(w, b + 1, c, x1);
        gst(w, b + 2, c, x2);
        gst(w, b + 3, c, x3);
      }
  }
  static void col_radix4(T* w, std::size_t K, std::size_t L, const T* tw, bool inv) {
    const std::size_t q = L / 4;
    const T* twi = block_im<T, S>(tw, 3 * q);
    for (std::size_t b0 = 0; b0 < K; b0 += L)
      for (std::size_t j = 0; j < q; ++j) {
        const Cx<T> w1 = ld<T, S>(tw, twi, q + j), w2 = ld<T, S>(tw, twi, j);
        const Cx<T> w3 = ld<T, S>(tw, twi, 2 * q + j);
        const std::size_t b = b0 + j;
        for (int c = 0; c < 4; ++c) {
          Cx<T> x0 = gld(w, b, c);
          Cx<T> x1 = mul(gld(w, b + q, c), w1, inv);
          Cx<T> x2 = mul(gld(w, b + 2 * q, c), w2, inv);
          Cx<T> x3 = mul(gld(w, b + 3 * q, c), w3, inv);
          bfly4(x0, x1, x2, x3, inv);
          gst(w, b, c, x0);
          gst(w, b + q, c, x1);
          gst(w, b + 2 * q, c, x2);
          gst(w, b + 3 * q, c, x3);
        }
      }
  }
};

inline std::size_t reverse_small(std::size_t x, int bits) {
  std::size_t r = 0;
  for (int i = 0; i < bits; ++i) r |= ((x >> i) & 1u) << (bits - 1 - i);
  return r;
}

// dst[p] = src[rev(p)] for elements of type E, in place when src == dst.
// The index is split as (a, mid, b) with t-bit a and b, so that
// rev(a, mid, b) = (rev b, rev mid, rev a): the tile of all (a, b) for one
// mid and the tile for rev(mid) are read into two small buffers and written
// back exchanged, touching 2^t-element runs instead of single elements.
template <class E>
void permute(const E* src, E* dst, int order) {
  const int t = order >= 8 ? 4 : order / 2;
  const int mb = order - 2 * t;
  const std::size_t T = std::size_t(1) << t, nmid = std::size_t(1) << mb;
  std::size_t rt[16];
  for (std::size_t i = 0; i < T; ++i) rt[i] = reverse_small(i, t);
  E b1[256], b2[256];
  auto load = [&](E* buf, std::size_t mid) {
    for (std::size_t a = 0; a < T; ++a)
      std::memcpy(buf + a * T, src + ((a << (mb + t)) | (mid << t)), T * sizeof(E));
  };
  // Row a of the target tile: dst(a, mid, b) = old(rev b, rmid, rev a).
  auto store = [&](const E* buf, std::size_t mid) {
    for (std::size_t a = 0; a < T; ++a) {
      E* d = dst + ((a << (mb + t)) | (mid << t));
      const std::size_t ra = rt[a];
      for (std::size_t b = 0; b < T; ++b) std::memcpy(d + b, buf + rt[b] * T + ra, sizeof(E));
    }
  };
  for (std::size_t mid = 0; mid < nmid; ++mid) {
    const std::size_t rmid = reverse_small(mid, mb);
    if (rmid < mid) continue;
    load(b1, mid);
    if (rmid == mid) {
      store(b1, mid);
    } else {
      load(b2, rmid);
      store(b2, mid);
      store(b1, rmid);
    }
  }
}

// The radix-4 stages of a leaf of order n after the first pass transformed
// blocks of `lead` points; `first` is the leaf's first-level table. The
// stages run in place on (re, im) except the last, which writes to
// (ore, oim); the caller makes sure there is at least one stage when these
// differ.
template <class T, class P>
void leaf_stages(T* re, T* im, int n, std::size_t lead, const T* first, bool inv, T* ore, T* oim) {
  const std::size_t N = std::size_t(1) << n;
  std::size_t L = 4 * lead;
  const T* tw = first + stage_offset(n, L);
  int stages = 0;
  for (std::size_t l = L; l <= N; l *= 4) ++stages;
  // An odd number of stages runs the first one alone; the others go in
  // pairs, each pair one pass over the data.
  if (stages % 2 == 1) {
    const bool last = stages == 1;
    P::radix4(re, im, last ? ore : re, last ? oim : im, N, L, tw, inv);
    tw += 2 * (3 * L / 4);
    L *= 4;
  }
  for (; L <= N; L *= 16) {
    const T* tw4 = tw + 2 * (3 * L / 4);
    const bool last = 16 * L > N;
    P::radix4x2(re, im, last ? ore : re, last ? oim : im, N, L, tw, tw4, inv);
    tw = tw4 + 2 * (3 * L);
  }
}
template <class T, class P>
void leaf_stages(T* re, T* im, int n, std::size_t lead, const T* first, bool inv) {
  leaf_stages<T, P>(re, im, n, lead, first, inv, re, im);
}

template <class T>
struct Pair {
  T a, b;
};

// Bytes of the aligned stack area that takes the passes before the last one
// when the destination is off a 64-byte line: a leaf of either precision
// (8 KiB), or a group of rows up to a third of the first-level cache (larger
// groups measured slower there, as the stores to the rows evict them).
constexpr std::size_t kScratchBytes = 16384;

// True when full-width vector accesses at p straddle two cache lines.
inline bool off_line(const void* p) { return (reinterpret_cast<std::uintptr_t>(p) & 63) != 0; }

// The transform driver, written once over layout and pass policy.
//
// A destination off a 64-byte line makes every full-width access touch two
// lines. When a single leaf, or a group of rows of the only stepped level,
// fits the aligned stack area, the first pass and every pass but the last
// run there instead, and the last pass writes the destination; a single
// leaf's source is then read only by the first pass, so in-place calls need
// no copy either. (The two-level scheme stays in the destination: its last
// pass into lines not yet in cache measured slower than the split accesses
// it saves.)
template <class T, int S, class P>
struct Engine {
  const FftPlan<T>& p;
  const FftArgs<T>& a;
  std::size_t lead_ = 0;  // block length the first pass transformed
  // A single stepped level over leaf rows runs the first pass row by row,
  // each row's stages following while its data are still in cache.
  bool rows_ = false;
  bool fused_ = false;
  const T* sr_ = nullptr;
  const T* si_ = nullptr;
  BitRev rev_{nullptr, 0};
  T* scr_ = nullptr;  // the aligned area of the rows, or null

  void run() {
    alignas(64) T scratch[kScratchBytes / sizeof(T)];
    const std::size_t n = std::size_t(1) << p.order;
    const T* sr = a.src_re;
    const T* si = a.src_im;
    const BitRev rev(p.rev, p.order);
    rows_ = p.levels == 1 && p.two_level == 0;
    const bool off = off_line(a.dst_re) || (S == 1 && off_line(a.dst_im));
    if (off && p.order <= p.leaf && p.order >= 7 && 2 * n * sizeof(T) <= kScratchBytes) {
      T* wre = scratch;
      T* wim = S == 2 ? scratch + 1 : scratch + n;
      lead_ = P::lead(sr, si, wre, wim, n, p.leaf, rev, true, a.inverse, p.first);
      leaf(wre, wim, p.order, a.dst_re, a.dst_im);
      return;
    }
    // Orders up to the leaf size copy an in-place input to the work buffer
    // first, so the permutation can be fused with the first pass.
    const bool small = p.order <= p.leaf && a.work != nullptr;
    if (small && S == 2 && sr == a.dst_re) {
      std::memcpy(a.work, sr, 2 * n * sizeof(T));
      sr = a.work;
      si = a.work + 1;
    } else if (small && S == 1) {
      if (sr == a.dst_re) {
        std::memcpy(a.work, sr, n * sizeof(T));
        sr = a.work;
      }
      if (si == a.dst_im) {
        std::memcpy(a.work + n, si, n * sizeof(T));
        si = a.work + n;
      }
    }
    const bool fused = sr != a.dst_re && si != a.dst_im;
    if (!fused) {
      if (S == 2) {
        if (!P::permute_interleaved(sr, a.dst_re, p.order, rev)) {
          permute(reinterpret_cast<const Pair<T>*>(sr), reinterpret_cast<Pair<T>*>(a.dst_re), p.order);
        }
      } else {
        permute(sr, a.dst_re, p.order);
        permute(si, a.dst_im, p.order);
      }
    }
    if (rows_) {
      fused_ = fused;
      sr_ = sr;
      si_ = si;
      rev_ = rev;
      const std::size_t M = std::size_t(1) << (p.order - p.step[0].k);
      const std::size_t rows = P::lead_lanes(n, p.leaf);
      if (off && fused && M >= 128 && 2 * rows * M * sizeof(T) <= kScratchBytes) scr_ = scratch;
    } else {
      lead_ = P::lead(sr, si, a.dst_re, a.dst_im, n, p.leaf, rev, fused, a.inverse, p.first);
    }
    block(a.dst_re, a.dst_im, p.order, 0);
  }

  // A leaf of order n: the radix-4 stages after the blocks of lead_ points
  // that the first pass transformed over the whole array, the last one into
  // (ore, oim), then the scaling.
  void leaf(T* re, T* im, int n, T* ore, T* oim) {
    leaf_stages<T, P>(re, im, n, lead_, p.first, a.inverse, ore, oim);
    if (a.scaled) P::scale(ore, oim, std::size_t(1) << n, a.scale);
  }

  void block(T* re, T* im, int n, int level) {
    if (level < p.levels && level < 3 && p.step[level].order == n) {
      stepped(re, im, level);
    } else if (n == p.two_level && n >= p.leaf + 2) {
      // The top two levels of the halving in one pass over the block.
      const std::size_t Q = std::size_t(1) << (n - 2);
      for (std::size_t i = 0; i < 4; ++i) block(re + S * i * Q, im + S * i * Q, n - 2, 3);
      P::combine4(re, im, Q, p.second, std::size_t(1) << (p.two_level - 1), a.inverse);
    } else if (n > p.leaf) {
      const std::size_t h = std::size_t(1) << (n - 1);
      block(re, im, n - 1, 3);
      block(re + S * h, im + S * h, n - 1, 3);
      const std::size_t c = std::size_t(1) << (p.two_level - 1);
      P::combine2(re, im, h, p.second, c, std::size_t(1) << (p.two_level - n), a.inverse);
    } else {
      leaf(re, im, n, re, im);
    }
  }

  void columns(T* w, const FftStep<T>& s) {
    const std::size_t K = std::size_t(1) << s.k;
    std::size_t L;
    if (s.k & 1) {
      P::col_radix2(w, K);
      L = 8;
    } else {
      P::col_radix4_first(w, K, a.inverse);
      L = 16;
    }
    for (const T* tw = s.col; L <= K; L *= 4) {
      P::col_radix4(w, K, L, tw, a.inverse);
      tw += 2 * (3 * L / 4);
    }
  }

  // The leaf rows of the only stepped level, first pass included. Fused with
  // the permutation, first-pass transform r lands in row rev_k(r mod K), so
  // the transforms r = c + j K (+ lanes) fill the rows rev_k(c ..): every
  // source line is read once and each group of rows is finished at once.
  // Those rows differ in their top bits only, which is how they share the
  // aligned area when there is one.
  void row_leaves(T* re, T* im, const FftStep<T>& s) {
    const std::size_t K = std::size_t(1) << s.k;
    const int m = s.order - s.k;
    const std::size_t M = std::size_t(1) << m;
    if (!fused_) {
      for (std::size_t b = 0; b < K; ++b) {
        T* r = re + S * b * M;
        T* i = im + S * b * M;
        lead_ = P::lead(r, i, r, i, M, m, rev_, false, a.inverse, p.first);
        leaf(r, i, m, r, i);
      }
      return;
    }
    const std::size_t n = std::size_t(1) << p.order;
    const std::size_t G = P::lead_lanes(n, p.leaf);
    int g = 0;
    while ((std::size_t(1) << g) < G) ++g;
    T* wre = scr_ ? scr_ : a.dst_re;
    T* wim = scr_ ? (S == 2 ? scr_ + 1 : scr_ + G * M) : a.dst_im;
    const RowMap map = scr_ ? RowMap{p.order - g, m} : RowMap();
    for (std::size_t c = 0; c < K; c += G) {
      lead_ = P::lead(sr_, si_, wre, wim, n, p.leaf, rev_, true, a.inverse, p.first, c, K, map);
      for (std::size_t j = 0; j < G; ++j) {
        const std::size_t b = reverse_small(c + j, s.k);
        const std::size_t w = scr_ ? b >> (s.k - g) : b;
        leaf(wre + S * w * M, wim + S * w * M, m, re + S * b * M, im + S * b * M);
      }
    }
  }

  void stepped(T* re, T* im, int level) {
    const FftStep<T>& s = p.step[level];
    const std::size_t K = std::size_t(1) << s.k;
    const std::size_t M = std::size_t(1) << (s.order - s.k);
    if (level == 0 && rows_) {
      row_leaves(re, im, s);
    } else {
      for (std::size_t b = 0; b < K; ++b) block(re + S * b * M, im + S * b * M, s.order - s.k, level + 1);
    }
    if (P::column_pass(re, M, K, s.k, s.merge, s.col, a.work, a.inverse)) return;
    for (std::size_t g = 0; g < M / 4; ++g) {
      P::gather(re, im, M, K, g, s.merge, a.work, a.inverse);
      columns(a.work, s);
      P::scatter(re, im, M, K, g, a.work);
    }
  }
};

template <class T, int S>
void fft(const FftPlan<T>& p, const FftArgs<T>& a) {
  Engine<T, S, Passes<T, S>>{p, a}.run();
}

}  // namespace scalar
}  // namespace kels::kernels

#endif  // KELS_KERNELS_FFT_H
