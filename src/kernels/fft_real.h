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
