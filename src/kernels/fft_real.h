// Kernels of the real FFT and of the packed-spectrum products, with their
// scalar twins (the reference every SIMD target is tested against, and the
// code of the portable target).
//
// Recombination. A real transform of N = 2m points runs a complex transform
// of m points and then combines each pair of elements k, m - k (1 <= k < m/2)
// of a half-length spectrum A (m complex values) into the pair of another:
//   sum = A[k] + conj A[m-k],  dif = A[k] - conj A[m-k],
//   e = hs * sum,  t = u[k] * (s * dif),
//   B[k] = e + t,  B[m-k] = conj(e - t),
// and the middle element k = m/2 (its own partner) with u = (mid, 0).
// Forward (A = Z, the spectrum of z[j] = x[2j] + i x[2j+1]; B = X, the real
// signal's spectrum): u[k] = -i w^k / 2 with w = e^(-2 pi i/N), hs = s/2,
// mid = -1/2. Inverse (A = X, B = Z times 2): u[k] = i conj(w^k), hs = s,
// mid = -1. s is the transform's scale (1 when not scaling), so the scaling
// costs no pass of its own. Elements 0 and m (the real entries) are left to
// the caller.
#ifndef KELS_KERNELS_FFT_REAL_H
#define KELS_KERNELS_FFT_REAL_H

#include <cstddef>

namespace kels::kernels {

// Recombination of a spectrum of m complex values (m >= 4, a power of two):
// element k, 1 <= k <= m - 1, is read at in[2(k-1)], in[2(k-1)+1] and
// written at the same place of out; in may equal out (each pair is read
// before it is written), otherwise the two must not overlap. u holds u[k]
// at u[2k], u[2k+1] for k < m/2.
void real_recombine(const float* in, float* out, std::size_t m, const float* u, float mid, float hs,
                    float s);
void real_recombine(const double* in, double* out, std::size_t m, const double* u, double mid,
                    double hs, double s);

// d[i] = a[i] * b[i] (a[i] * conj(b[i]) when conj) for n interleaved complex
// values; d may equal a or b. Multiplies and adds are rounded one by one (no
// fused multiply-add), so every target gives the twin's result.
void mul_packed_pairs(const float* a, const float* b, float* d, std::size_t n, bool conj);
void mul_packed_pairs(const double* a, const double* b, double* d, std::size_t n, bool conj);

// Straight-line real transforms of N = 1..32 points: the radix-2 real
// algorithm, unrolled at compile time into code without loops or tables.
// Forward: with E and O the half-length spectra of the even and the odd
// samples, X[k] = E[k] + w^k O[k] and X[N/2 - k] = conj(E[k] - w^k O[k])
// for 0 <= k <= N/4 (w = e^(-2 pi i/N); E and O real at 0 and N/4).
// Inverse (the same steps backwards): the even outputs are the half-length
// inverse of Y[k] = X[k] + conj X[N/2 - k], the odd ones that of
// V[k] = (X[k] - conj X[N/2 - k]) conj(w^k); both are Hermitian, so the
// recursion again needs k <= N/4 only. The twiddles 1, -i and (1 - i)/sqrt 2
// are applied without general products. Every target runs this code, so the
// results are the same everywhere.
#if defined(__GNUC__)
#define KELS_REAL_DFT_INLINE inline __attribute__((always_inline))
#else
#define KELS_REAL_DFT_INLINE inline
#endif

template <class T, int N>
struct RealDft {
  static_assert(N >= 4 && N <= 32 && (N & (N - 1)) == 0, "straight-line sizes are 4..32");
  // cos(pi j/16), j = 0..8: cos(2 pi k/N) is entry k 32/N, the sine entry
  // 8 - k 32/N.
  static constexpr T cosine(int j) {
    constexpr long double c[9] = {1.0L,
                                  0.98078528040323044912618223613424L,
                                  0.92387953251128675612818318939679L,
                                  0.83146961230254523707878837761791L,
                                  0.70710678118654752440084436210485L,
                                  0.55557023301960222474283081394853L,
                                  0.38268343236508977172845998403040L,
                                  0.19509032201612826784828486847702L,
                                  0.0L};
    return static_cast<T>(c[j]);
  }

  // X[k] = re[k] + i im[k], 0 <= k <= N/2, of x[0], x[s], ..., x[(N-1) s];
  // im[0] and im[N/2] (zero) are not written.
  static KELS_REAL_DFT_INLINE void forward(const T* x, std::size_t s, T* re, T* im) {
    constexpr int H = N / 2, Q = N / 4;
    T er[Q + 1], ei[Q + 1], od_r[Q + 1], od_i[Q + 1];
    RealDft<T, H>::forward(x, 2 * s, er, ei);
    RealDft<T, H>::forward(x + s, 2 * s, od_r, od_i);
    re[0] = er[0] + od_r[0];
    re[H] = er[0] - od_r[0];
    re[Q] = er[Q];
    im[Q] = -od_r[Q];
#pragma GCC unroll 8
    for (int k = 1; k < Q; ++k) {
      T tr, ti;  // w^k O[k]
      if (2 * k == Q) {
        const T h = cosine(4);
        tr = (od_r[k] + od_i[k]) * h;
        ti = (od_i[k] - od_r[k]) * h;
      } else {
        const T c = cosine(k * 32 / N), sn = cosine(8 - k * 32 / N);
        tr = c * od_r[k] + sn * od_i[k];
        ti = c * od_i[k] - sn * od_r[k];
      }
      re[k] = er[k] + tr;
      im[k] = ei[k] + ti;
      re[H - k] = er[k] - tr;
      im[H - k] = ti - ei[k];
    }
  }

  // x[j s] = sum over the Hermitian spectrum X[0..N-1] of X[k] w^(-jk), from
  // X[k] = re[k] + i im[k], 0 <= k <= N/2 (im[0] and im[N/2] not read).
  static KELS_REAL_DFT_INLINE void inverse(const T* re, const T* im, T* x, std::size_t s) {
    constexpr int H = N / 2, Q = N / 4;
    T yr[Q + 1], yi[Q + 1], vr[Q + 1], vi[Q + 1];
    yr[0] = re[0] + re[H];
    vr[0] = re[0] - re[H];
    yr[Q] = re[Q] + re[Q];
    vr[Q] = -(im[Q] + im[Q]);
#pragma GCC unroll 8
    for (int k = 1; k < Q; ++k) {
      const T dr = re[k] - re[H - k], di = im[k] + im[H - k];
      yr[k] = re[k] + re[H - k];
      yi[k] = im[k] - im[H - k];
      if (2 * k == Q) {
        const T h = cosine(4);
        vr[k] = (dr - di) * h;
        vi[k] = (dr + di) * h;
      } else {
        const T c = cosine(k * 32 / N), sn = cosine(8 - k * 32 / N);
        vr[k] = c * dr - sn * di;
        vi[k] = sn * dr + c * di;
      }
    }
    RealDft<T, H>::inverse(yr, yi, x, 2 * s);
    RealDft<T, H>::inverse(vr, vi, x + s, 2 * s);
  }
};

template <class T>
struct RealDft<T, 2> {
  static KELS_REAL_DFT_INLINE void forward(const T* x, std::size_t s, T* re, T*) {
    re[0] = x[0] + x[s];
    re[1] = x[0] - x[s];
  }
  static KELS_REAL_DFT_INLINE void inverse(const T* re, const T*, T* x, std::size_t s) {
    const T a = re[0], b = re[1];
    x[0] = a + b;
    x[s] = a - b;
  }
};

template <class T>
struct RealDft<T, 1> {
  static KELS_REAL_DFT_INLINE void forward(const T* x, std::size_t, T* re, T*) { re[0] = x[0]; }
  static KELS_REAL_DFT_INLINE void inverse(const T* re, const T*, T* x, std::size_t) { x[0] = re[0]; }
};

namespace scalar {

// One pair (k, m - k), k < m/2, in the pointer convention above (element k
// at index 2(k-1)); ur, ui are u[k].
template <class T>
inline void recombine_pair(const T* in, T* out, std::size_t m, std::size_t k, T ur, T ui, T hs, T s) {
  const T* lo = in + 2 * (k - 1);
  const T* hi = in + 2 * (m - k - 1);
  const T ar = lo[0], ai = lo[1], br = hi[0], bi = hi[1];
  const T er = (ar + br) * hs, ei = (ai - bi) * hs;
  const T fr = (ar - br) * s, fi = (ai + bi) * s;
  const T tr = ur * fr + -(ui * fi), ti = ur * fi + ui * fr;
  T* olo = out + 2 * (k - 1);
  T* ohi = out + 2 * (m - k - 1);
  olo[0] = er + tr;
  olo[1] = ei + ti;
  ohi[0] = er - tr;
  ohi[1] = -(ei - ti);
}

// The middle element k = m/2: A[k] is its own partner and u = (mid, 0), so
// dif is imaginary and B[k] = (hs Re sum, mid s Im dif).
template <class T>
inline void recombine_middle(const T* in, T* out, std::size_t m, T mid, T hs, T s) {
  const T* c = in + 2 * (m / 2 - 1);
  const T ar = c[0], ai = c[1];
  const T er = (ar + ar) * hs, fi = (ai + ai) * s;
  T* o = out + 2 * (m / 2 - 1);
  o[0] = er;
  o[1] = mid * fi;
}

// Pairs k0 <= k < m/2, then the middle.
template <class T>
inline void recombine_from(const T* in, T* out, std::size_t m, std::size_t k0, const T* u, T mid, T hs,
                           T s) {
  for (std::size_t k = k0; k < m / 2; ++k) recombine_pair(in, out, m, k, u[2 * k], u[2 * k + 1], hs, s);
  recombine_middle(in, out, m, mid, hs, s);
}

template <class T>
void real_recombine(const T* in, T* out, std::size_t m, const T* u, T mid, T hs, T s) {
  recombine_from(in, out, m, 1, u, mid, hs, s);
}

template <class T>
inline void mul_pair(const T* a, const T* b, T* d, bool conj) {
  const T ar = a[0], ai = a[1], br = b[0], bi = b[1];
  if (conj) {
    const T re = ar * br + ai * bi, im = ai * br + -(ar * bi);
    d[0] = re;
    d[1] = im;
  } else {
    const T re = ar * br + -(ai * bi), im = ar * bi + ai * br;
    d[0] = re;
    d[1] = im;
  }
}

template <class T>
void mul_packed_pairs(const T* a, const T* b, T* d, std::size_t n, bool conj) {
  for (std::size_t i = 0; i < n; ++i) mul_pair(a + 2 * i, b + 2 * i, d + 2 * i, conj);
}

}  // namespace scalar
}  // namespace kels::kernels

#endif  // KELS_KERNELS_FFT_REAL_H
