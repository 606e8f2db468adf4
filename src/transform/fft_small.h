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
// the same array. With the order and direction fixed at compile time the
// values stay in registers.
template <int ORDER, bool INV, class T>
inline void small_dft_fixed(Cx<T>* x) {
  Cx<T> y[8];
  if constexpr (ORDER == 0) {
    return;
  } else if constexpr (ORDER == 1) {
    y[0] = add(x[0], x[1]);
    y[1] = sub(x[0], x[1]);
  } else if constexpr (ORDER == 2) {
    dft4(x, y, INV);
  } else {
    const Cx<T> ev[4] = {x[0], x[2], x[4], x[6]}, od[4] = {x[1], x[3], x[5], x[7]};
    Cx<T> e[4], o[4];
    dft4(ev, e, INV);
    dft4(od, o, INV);
    const T h = static_cast<T>(0.70710678118654752440L);
    // o[k] * w8^k: w8 = (1 - i)/sqrt(2) forward, (1 + i)/sqrt(2) inverse.
    const Cx<T> o1 = INV ? Cx<T>{(o[1].r - o[1].i) * h, (o[1].r + o[1].i) * h}
                         : Cx<T>{(o[1].r + o[1].i) * h, (o[1].i - o[1].r) * h};
    const Cx<T> o2 = rot(o[2], INV);
    const Cx<T> o3 = INV ? Cx<T>{-(o[3].r + o[3].i) * h, (o[3].r - o[3].i) * h}
                         : Cx<T>{(o[3].i - o[3].r) * h, -(o[3].r + o[3].i) * h};
    const Cx<T> ot[4] = {o[0], o1, o2, o3};
    for (int k = 0; k < 4; ++k) {
      y[k] = add(e[k], ot[k]);
      y[k + 4] = sub(e[k], ot[k]);
    }
  }
  for (int k = 0; k < (1 << ORDER); ++k) x[k] = y[k];
}

template <class T>
inline void small_dft(int order, Cx<T>* x, bool inv) {
  switch (order * 2 + (inv ? 1 : 0)) {
    case 2: return small_dft_fixed<1, false>(x);
    case 3: return small_dft_fixed<1, true>(x);
    case 4: return small_dft_fixed<2, false>(x);
    case 5: return small_dft_fixed<2, true>(x);
    case 6: return small_dft_fixed<3, false>(x);
    case 7: return small_dft_fixed<3, true>(x);
    default: return;
  }
}

}  // namespace kels::fft

#endif  // KELS_TRANSFORM_FFT_SMALL_H
