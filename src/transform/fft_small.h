// Straight-line complex transforms of 1, 2, 4 and 8 points (the records of
// orders 0..3 have no tables), shared by the complex and real transforms.
#ifndef KELS_TRANSFORM_FFT_SMALL_H
#define KELS_TRANSFORM_FFT_SMALL_H

#include "kernels/fft.h"

namespace kels::fft {

using kernels::scalar::Cx;
using kernels::scalar::add;
using kernels::scalar::sub;
using kernels::scalar::rot;

// 4-point transform in natural input order.
template <class T>
inline void dft4(const Cx<T>* x, Cx<T>* y, bool inv) {
  const Cx<T> s02 = add(x[0], x[2]), d02 = sub(x[0], x[2]);
  const Cx<T> s13 = add(x[1], x[3]), d13 = rot(sub(x[1], x[3]), inv);
  y[0] = add(s02, s13);
  y[2] = sub(s02, s13);
  y[1] = add(d02, d13);
  y[3] = sub(d02, d13);
}

// Straight-line transforms of 1, 2, 4 and 8 points. The input is read
// completely before anything is stored, so source and destination may be
// the same array.
template <class T>
inline void small_dft(int order, Cx<T>* x, bool inv) {
  Cx<T> y[8];
  switch (order) {
    case 0:
      return;
    case 1:
      y[0] = add(x[0], x[1]);
      y[1] = sub(x[0], x[1]);
      break;
    case 2:
      dft4(x, y, inv);
      break;
    default: {
      const Cx<T> ev[4] = {x[0], x[2], x[4], x[6]}, od[4] = {x[1], x[3], x[5], x[7]};
      Cx<T> e[4], o[4];
      dft4(ev, e, inv);
      dft4(od, o, inv);
      const T h = static_cast<T>(0.70710678118654752440L);
      // o[k] * w8^k: w8 = (1 - i)/sqrt(2) forward, (1 + i)/sqrt(2) inverse.
      const Cx<T> o1 = inv ? Cx<T>{(o[1].r - o[1].i) * h, (o[1].r + o[1].i) * h}
                           : Cx<T>{(o[1].r + o[1].i) * h, (o[1].i - o[1].r) * h};
      const Cx<T> o2 = rot(o[2], inv);
      const Cx<T> o3 = inv ? Cx<T>{-(o[3].r + o[3].i) * h, (o[3].r - o[3].i) * h}
                           : Cx<T>{(o[3].i - o[3].r) * h, -(o[3].r + o[3].i) * h};
      const Cx<T> ot[4] = {o[0], o1, o2, o3};
      for (int k = 0; k < 4; ++k) {
        y[k] = add(e[k], ot[k]);
        y[k + 4] = sub(e[k], ot[k]);
      }
    }
  }
  for (int k = 0; k < (1 << order); ++k) x[k] = y[k];
}

}  // namespace kels::fft

#endif  // KELS_TRANSFORM_FFT_SMALL_H
