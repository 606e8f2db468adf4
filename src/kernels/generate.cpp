// Kernel of the normal random generator, compiled once per SIMD target by
// Highway: the polar method's factor for a block of accepted pairs. The
// logarithm follows scalar::log_positive operation for operation (separate
// multiplies and adds; the library is built without contraction), so the
// lanes reproduce the scalar twin bit for bit.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "kernels/generate.cpp"
#include "hwy/foreach_target.h"  // IWYU pragma: keep
#include "hwy/highway.h"

#include "kernels/generate.h"

HWY_BEFORE_NAMESPACE();
namespace kels::kernels {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET != HWY_SCALAR

template <class D>
HWY_INLINE hn::Vec<D> LogPositive(D d, hn::Vec<D> s) {
  const hn::RebindToUnsigned<D> du;
  const auto bits = hn::BitCast(du, s);
  auto e = hn::BitCast(d, hn::Or(hn::ShiftRight<52>(bits), hn::Set(du, 0x4330000000000000ull)));
  e = hn::Sub(e, hn::Set(d, 4503599627371519.0));
  auto m = hn::BitCast(d, hn::Or(hn::And(bits, hn::Set(du, 0x000FFFFFFFFFFFFFull)),
                                 hn::Set(du, 0x3FF0000000000000ull)));
  const auto big = hn::Gt(m, hn::Set(d, scalar::kSqrt2));
  m = hn::IfThenElse(big, hn::Mul(m, hn::Set(d, 0.5)), m);
  e = hn::IfThenElse(big, hn::Add(e, hn::Set(d, 1.0)), e);
  const auto one = hn::Set(d, 1.0);
  const auto z = hn::Div(hn::Sub(m, one), hn::Add(m, one));
  const auto z2 = hn::Mul(z, z);
  auto p = hn::Set(d, scalar::kAtanhCoef[0]);
  for (int k = 1; k < 10; ++k) p = hn::Add(hn::Mul(p, z2), hn::Set(d, scalar::kAtanhCoef[k]));
  p = hn::Add(hn::Mul(p, z2), one);
  const auto lm = hn::Mul(hn::Add(z, z), p);
  return hn::Add(hn::Mul(e, hn::Set(d, scalar::kLn2Hi)),
                 hn::Add(hn::Mul(e, hn::Set(d, scalar::kLn2Lo)), lm));
}

void GaussFactors(const double* HWY_RESTRICT s, double* HWY_RESTRICT f, size_t n) {
  const hn::ScalableTag<double> d;
  const size_t N = hn::Lanes(d);
  size_t i = 0;
  for (; i + N <= n; i += N) {
    const auto v = hn::LoadU(d, s + i);
    const auto t = hn::Div(hn::Mul(hn::Set(d, -2.0), LogPositive(d, v)), v);
    hn::StoreU(hn::Sqrt(t), d, f + i);
  }
  scalar::gauss_factors(s + i, f + i, n - i);
}

#else

void GaussFactors(const double* s, double* f, size_t n) { scalar::gauss_factors(s, f, n); }

#endif

}  // namespace HWY_NAMESPACE
}  // namespace kels::kernels
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace kels::kernels {

HWY_EXPORT(GaussFactors);

void gauss_factors(const double* s, double* f, std::size_t n) {
  HWY_DYNAMIC_DISPATCH(GaussFactors)(s, f, n);
}

}  // namespace kels::kernels
#endif  // HWY_ONCE
