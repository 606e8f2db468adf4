// Inner products of the FIR filters and their scalar twins.
//
// Every kernel computes count outputs y[n] = sum over k < L of t[k] * x[n+k]
// (t holds the taps reversed, so the inner product runs forward over memory
// and x[n+L-1] meets the caller's tap 0). The SIMD kernels vectorise across
// outputs, not across taps: each output is still summed in the order
// k = 0, 1, ..., L-1 in the element precision, so every target, the scalar
// twin and any split of the outputs among threads give bit-identical
// results.
#ifndef KELS_KERNELS_FIR_H
#define KELS_KERNELS_FIR_H

#include <cstddef>

namespace kels::kernels {

void fir_dot_f32(const float* t, std::size_t L, const float* x, float* y, std::size_t count);
void fir_dot_f64(const double* t, std::size_t L, const double* x, double* y, std::size_t count);
// Complex single precision, interleaved (re, im): t holds 2L floats, x
// 2(count+L-1), y 2count. Each step adds (tr*xr - ti*xi, tr*xi + ti*xr).
void fir_dot_c32(const float* t, std::size_t L, const float* x, float* y, std::size_t count);

namespace scalar {

template <class T>
void fir_dot_real(const T* t, std::size_t L, const T* x, T* y, std::size_t count) {
  for (std::size_t n = 0; n < count; ++n) {
    T acc = 0;
    for (std::size_t k = 0; k < L; ++k) acc = acc + t[k] * x[n + k];
    y[n] = acc;
  }
}

inline void fir_dot_c32(const float* t, std::size_t L, const float* x, float* y, std::size_t count) {
  for (std::size_t n = 0; n < count; ++n) {
    float re = 0, im = 0;
    for (std::size_t k = 0; k < L; ++k) {
      const float tr = t[2 * k], ti = t[2 * k + 1];
      const float xr = x[2 * (n + k)], xi = x[2 * (n + k) + 1];
      re = re + (tr * xr - ti * xi);
      im = im + (tr * xi + ti * xr);
    }
    y[2 * n] = re;
    y[2 * n + 1] = im;
  }
}

}  // namespace scalar
}  // namespace kels::kernels

#endif  // KELS_KERNELS_FIR_H
