// Deterministic test signals: the linear ramp and the Jaehne chirp, whose
// instantaneous frequency rises linearly from 0 to half the sampling rate.
#include <cmath>

#include "frame/common.h"
#include "frame/malloc.h"
#include "generate/generate.h"

namespace kels::generate {
namespace {

// offset + slope * n in double precision (exact for the float inputs up to
// the final rounding), rounded half away from zero and saturated for the
// integer types.
template <class T>
KelStatus ramp(T* dst, int len, Kel32f offset, Kel32f slope) {
  KELS_REQUIRE_PTRS(dst);
  KELS_REQUIRE_LEN(len);
  const double o = offset, s = slope;
  for (int n = 0; n < len; ++n) dst[n] = to_part<T>(o + s * static_cast<double>(n));
  return kelStsOk;
}

// sin(pi/2 * n^2 / len) for n = 0 .. len-1: the factor pi/(2 len) is formed
// once, then multiplied by n and by n again.
template <class Out>
void jaehne_wave(Out out, int len) {
  const double factor = 3.141592653589793 / (2.0 * len);
  for (int n = 0; n < len; ++n) {
    const double x = static_cast<double>(n);
    out(n, std::sin(factor * x * x));
  }
}

// Signed and floating types: magn * sine; integers round half away from
// zero (|value| <= magn, so no saturation is needed).
template <class T>
KelStatus jaehne_signed(T* dst, int len, T magn) {
  KELS_REQUIRE_PTRS(dst);
  KELS_REQUIRE_LEN(len);
  if (!(magn >= 0)) return kelStsBadJaehneMagn;
  const double m = static_cast<double>(magn);
  jaehne_wave([&](int n, double v) { dst[n] = to_part<T>(m * v); }, len);
  return kelStsOk;
}

// Extremes of a double vector (NaN-free by construction).
double max_of(const double* v, int n) {
  double m = v[0];
  for (int i = 1; i < n; ++i) m = v[i] > m ? v[i] : m;
  return m;
}
double min_of(const double* v, int n) {
  double m = v[0];
  for (int i = 1; i < n; ++i) m = v[i] < m ? v[i] : m;
  return m;
}

// Unsigned types: the magn-scaled sine values go to a double work vector,
// and their range [min, max] is mapped onto 0 .. magn, truncating after
// adding 0.5. A flat signal (max - min <= 0, e.g. len 1) maps to 0.
template <class T>
KelStatus jaehne_unsigned(T* dst, int len, T magn) {
  KELS_REQUIRE_PTRS(dst);
  KELS_REQUIRE_LEN(len);
  // The allocator sizes blocks in 32 bits: a request it cannot express is an
  // allocation failure, not a wrapped size.
  constexpr int kMaxWork = static_cast<int>((0xFFFFFFFFu - 64u) / sizeof(double));
  double* work = len > kMaxWork ? nullptr : kels::aligned_alloc_n<double>(static_cast<std::uint32_t>(len));
  if (work == nullptr) return kelStsNoMemory;
  const double m = static_cast<double>(magn);
  jaehne_wave([&](int n, double v) { work[n] = m * v; }, len);
  const double hi = max_of(work, len), lo = min_of(work, len);
  const double factor = hi - lo > 0 ? m / (hi - lo) : 0.0;
  for (int n = 0; n < len; ++n) dst[n] = static_cast<T>((work[n] - lo) * factor + 0.5);
  kels::aligned_free(work);
  return kelStsOk;
}

}  // namespace
}  // namespace kels::generate

using namespace kels::generate;

#define KELS_RAMP_MEMBERS(X) \
  X(8u, Kel8u) X(8s, Kel8s) X(16u, Kel16u) X(16s, Kel16s) X(32u, Kel32u) X(32s, Kel32s) X(32f, Kel32f) X(64f, Kel64f)
#define KELS_JAEHNE_SIGNED_MEMBERS(X) X(8s, Kel8s) X(16s, Kel16s) X(32s, Kel32s) X(32f, Kel32f) X(64f, Kel64f)
#define KELS_JAEHNE_UNSIGNED_MEMBERS(X) X(8u, Kel8u) X(16u, Kel16u) X(32u, Kel32u)

#define KELS_DEFINE_RAMP(code, T)                                                              \
  KELS_EXPORT KelStatus kelsVectorRamp_##code(T* pDst, int len, Kel32f offset, Kel32f slope) {  \
    return ramp<T>(pDst, len, offset, slope);                                                   \
  }
#define KELS_DEFINE_JAEHNE_SIGNED(code, T)                                     \
  KELS_EXPORT KelStatus kelsVectorJaehne_##code(T* pDst, int len, T magn) {     \
    return jaehne_signed<T>(pDst, len, magn);                                   \
  }
#define KELS_DEFINE_JAEHNE_UNSIGNED(code, T)                                   \
  KELS_EXPORT KelStatus kelsVectorJaehne_##code(T* pDst, int len, T magn) {     \
    return jaehne_unsigned<T>(pDst, len, magn);                                 \
  }

KELS_FOR_MEMBERS(KELS_RAMP_MEMBERS, KELS_DEFINE_RAMP)
KELS_FOR_MEMBERS(KELS_JAEHNE_SIGNED_MEMBERS, KELS_DEFINE_JAEHNE_SIGNED)
KELS_FOR_MEMBERS(KELS_JAEHNE_UNSIGNED_MEMBERS, KELS_DEFINE_JAEHNE_UNSIGNED)
