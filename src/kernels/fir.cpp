// FIR inner-product kernels, compiled once per SIMD target by Highway.
// Four vectors of outputs are accumulated per pass over the taps so that
// the additions of independent outputs overlap in the pipeline; the tap is
// broadcast and the input read unaligned at offset n + k.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "kernels/fir.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep
#include "hwy/highway.h"

#include "kernels/fir.h"

HWY_BEFORE_NAMESPACE();
namespace kels::kernels {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

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

void FirDotF32(const float* t, size_t L, const float* x, float* y, size_t count) {
  FirDotReal(t, L, x, y, count);
}
void FirDotF64(const double* t, size_t L, const double* x, double* y, size_t count) {
  FirDotReal(t, L, x, y, count);
}

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

void fir_dot_f32(const float* t, std::size_t L, const float* x, float* y, std::size_t count) {
  HWY_DYNAMIC_DISPATCH(FirDotF32)(t, L, x, y, count);
}
void fir_dot_f64(const double* t, std::size_t L, const double* x, double* y, std::size_t count) {
  HWY_DYNAMIC_DISPATCH(FirDotF64)(t, L, x, y, count);
}
void fir_dot_c32(const float* t, std::size_t L, const float* x, float* y, std::size_t count) {
  HWY_DYNAMIC_DISPATCH(FirDotC32)(t, L, x, y, count);
}

}  // namespace kels::kernels
#endif  // HWY_ONCE
