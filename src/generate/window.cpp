// Window functions: Bartlett, Hann, Hamming, Blackman (with its standard and
// optimal presets) and Kaiser, applied to real and complex vectors. Every
// window is symmetric, so one weight serves the pair (k, len-1-k); the
// weights of a block of pairs are generated together and then applied.
#include <algorithm>
#include <cmath>

#include "frame/common.h"
#include "generate/generate.h"

namespace kels::generate {
namespace {

// Pairs per weight block. The cosine recurrence restarts from exact values
// at every block, which bounds its error growth independently of the length.
constexpr int kBlock = 256;

// Working precision of the weights: extended for the double-precision
// types, double for the others (whose results are rounded to float or to
// 16-bit integers).
template <class T>
using weight_t = std::conditional_t<std::is_same_v<part_t<T>, Kel64f>, long double, double>;

// Multiplies one element by a weight. Floating parts use the weight rounded
// to their own precision; 16-bit parts multiply in double, scale by
// 2^-scaleFactor (exact), round half away from zero and saturate.
template <class T, class F>
void weigh(const T& src, T& dst, F w, int sf) {
  using P = part_t<T>;
  const P* s = reinterpret_cast<const P*>(&src);
  P* d = reinterpret_cast<P*>(&dst);
  for (int c = 0; c < parts<T>::count; ++c) {
    if constexpr (std::is_same_v<P, Kel16s>) {
      const double prod = static_cast<double>(s[c]) * static_cast<double>(w);
      d[c] = round_saturate<Kel16s>(sf == 0 ? prod : std::ldexp(prod, -std::clamp(sf, -2000, 2000)));
    } else {
      d[c] = s[c] * static_cast<P>(w);
    }
  }
}

// Applies the symmetric weights from gen(k0, m, w) (weights of pairs
// k0 .. k0+m-1) to src, writing dst; the middle element of an odd length has
// weight 1.
template <class T, class Gen>
void apply_symmetric(const T* src, T* dst, int len, const Gen& gen, int sf) {
  using F = typename Gen::type;
  const int half = len / 2;
  F w[kBlock + 4];
  for (int k0 = 0; k0 < half; k0 += kBlock) {
    const int m = std::min(kBlock, half - k0);
    gen(k0, m, w);
    for (int i = 0; i < m; ++i) {
      const int a = k0 + i, b = len - 1 - a;
      weigh(src[a], dst[a], w[i], sf);
      weigh(src[b], dst[b], w[i], sf);
    }
  }
  if (len & 1) weigh(src[half], dst[half], F(1), sf);
}

// cos(k*omega) for k = k0 .. k0+m-1 by the recurrence
// cos((k+4)w) = 2 cos(4w) cos(kw) - cos((k-4)w): four interleaved chains,
// one per residue of k modulo 4, so consecutive steps do not wait for each
// other. Each chain runs in difference form (delta += d y; y += delta with
// d = 2 cos(4w) - 2 = -4 sin^2(2w)), whose error does not grow with 1/omega
// for small steps. Eight cosines start each block.
template <class F>
struct CosineRun {
  F omega, d;
  explicit CosineRun(F om) : omega(om) {
    const F s = std::sin(2 * om);
    d = -4 * s * s;
  }
  void operator()(int k0, int m, F* c) const {  // c holds m rounded up to 4
    F y[4], delta[4];
    for (int j = 0; j < 4; ++j) {
      y[j] = std::cos(static_cast<F>(k0 + j) * omega);
      delta[j] = y[j] - std::cos(static_cast<F>(k0 + j - 4) * omega);
    }
    for (int i = 0; i < m; i += 4) {
      for (int j = 0; j < 4; ++j) {
        c[i + j] = y[j];
        delta[j] += d * y[j];
        y[j] += delta[j];
      }
    }
  }
};

// w = a0 - a1 cos(k omega) - a2 cos(2 k omega); the second harmonic comes
// from the first as 2 cos^2 - 1.
template <class F>
struct CosineWeights {
  using type = F;
  F a0, a1, a2;
  CosineRun<F> run;
  CosineWeights(int len, long double b0, long double b1, long double b2)
      : a0(static_cast<F>(b0)), a1(static_cast<F>(b1)), a2(static_cast<F>(b2)),
        run(static_cast<F>(kTwoPiL / (len - 1))) {}
  void operator()(int k0, int m, F* w) const {
    run(k0, m, w);
    for (int i = 0; i < m; ++i) {
      const F c = w[i];
      w[i] = a0 - a1 * c - a2 * (2 * c * c - 1);
    }
  }
};

template <class F>
struct BartlettWeights {
  using type = F;
  F step;
  explicit BartlettWeights(int len) : step(F(2) / static_cast<F>(len - 1)) {}
  void operator()(int k0, int m, F* w) const {
    for (int i = 0; i < m; ++i) w[i] = static_cast<F>(k0 + i) * step;
  }
};

// Modified Bessel function I0 by the polynomial approximations of Abramowitz
// and Stegun (9.8.1 below 3.75, 9.8.2 above), in extended precision.
long double bessel_i0(long double x) {
  const long double ax = std::fabs(x);
  if (ax < 3.75L) {
    long double t = ax * static_cast<long double>(0.26666666666666666);  // 1/3.75 as a double
    t *= t;
    return 1.0L + t * (3.5156229L + t * (3.0899424L + t * (1.2067492L + t * (0.2659732L +
           t * (0.0360768L + t * 0.0045813L)))));
  }
  const long double t = 3.75L / ax;
  const long double p = 0.39894228L + t * (0.01328592L + t * (0.00225319L + t * (-0.00157565L +
      t * (0.00916281L + t * (-0.02057706L + t * (0.02635537L + t * (-0.01647633L +
      t * 0.00392377L)))))));
  return std::exp(ax) / std::sqrt(ax) * p;
}

struct KaiserWeights {
  using type = long double;
  long double alpha, norm;
  int last;  // len - 1
  KaiserWeights(int len, long double a)
      : alpha(a), norm(1.0L / bessel_i0(a * (len - 1) / 2)), last(len - 1) {}
  void operator()(int k0, int m, long double* w) const {
    for (int i = 0; i < m; ++i) {
      const long double n = k0 + i;
      w[i] = bessel_i0(alpha * std::sqrt(n * (last - n))) * norm;
    }
  }
};

// Length 3 of the zero-ended cosine windows in 16-bit and single precision:
// the ends become zero and the middle passes through (64f computes the
// formula instead, whose ends are zero up to rounding).
template <class T>
bool zero_ended_three(const T* src, T* dst, int len, int sf) {
  if (len != 3 || std::is_same_v<part_t<T>, Kel64f>) return false;
  weigh(src[0], dst[0], 0.0L, 0);
  weigh(src[1], dst[1], 1.0L, sf);
  weigh(src[2], dst[2], 0.0L, 0);
  return true;
}

template <class T>
KelStatus bartlett(const T* src, T* dst, int len) {
  KELS_REQUIRE_PTRS(src, dst);
  if (len < 3) return kelStsBadLength;
  apply_symmetric(src, dst, len, BartlettWeights<weight_t<T>>(len), 0);
  return kelStsOk;
}

template <class T>
KelStatus hann(const T* src, T* dst, int len) {
  KELS_REQUIRE_PTRS(src, dst);
  if (len < 3) return kelStsBadLength;
  if (zero_ended_three(src, dst, len, 0)) return kelStsOk;
  apply_symmetric(src, dst, len, CosineWeights<weight_t<T>>(len, 0.5L, 0.5L, 0.0L), 0);
  return kelStsOk;
}

// Hamming's ends are 0.08, so length 3 takes the general path.
template <class T>
KelStatus hamming(const T* src, T* dst, int len) {
  KELS_REQUIRE_PTRS(src, dst);
  if (len < 3) return kelStsBadLength;
  apply_symmetric(src, dst, len, CosineWeights<weight_t<T>>(len, 0.54L, 0.46L, 0.0L), 0);
  return kelStsOk;
}

template <class T>
KelStatus blackman_sfs(const T* src, T* dst, int len, long double alpha, int sf) {
  KELS_REQUIRE_PTRS(src, dst);
  if (len < 3) return kelStsBadLength;
  if (zero_ended_three(src, dst, len, sf)) return kelStsOk;
  apply_symmetric(src, dst, len, CosineWeights<weight_t<T>>(len, (alpha + 1) / 2, 0.5L, alpha / 2), sf);
  return kelStsOk;
}

template <class T>
KelStatus blackman(const T* src, T* dst, int len, Kel32f alpha) {
  return blackman_sfs(src, dst, len, alpha, 0);
}

// The standard preset is alpha = -0.16 as a single-precision value.
template <class T>
KelStatus blackman_std(const T* src, T* dst, int len) {
  return blackman(src, dst, len, -0.16f);
}

// The optimal preset depends on the length, so the length is tested before
// anything else (it would divide by cos(pi/2) for len = 3).
template <class T>
KelStatus blackman_opt(const T* src, T* dst, int len) {
  if (len < 4) return kelStsBadLength;
  const double c = 0.5 / std::cos(3.141592653589793 / (len - 1));
  return blackman(src, dst, len, static_cast<Kel32f>(-(c * c)));
}

// Beyond |alpha| (len-1)/2 = 38 the normalising I0 leaves the range where
// the weights are meaningful; NaN is refused with the same status.
template <class T>
KelStatus kaiser(const T* src, T* dst, int len, long double alpha) {
  KELS_REQUIRE_PTRS(src, dst);
  KELS_REQUIRE_LEN(len);
  if (len == 1) {
    if (src != dst) dst[0] = src[0];
    return kelStsOk;
  }
  if (!(std::fabs(alpha) * (len - 1) / 2 <= 38.0L)) return kelStsBadWinAlpha;
  apply_symmetric(src, dst, len, KaiserWeights(len, alpha), 0);
  return kelStsOk;
}

long double from_q15(int alpha) { return std::ldexp(static_cast<long double>(alpha), -15); }

}  // namespace
}  // namespace kels::generate

using namespace kels::generate;

#define KELS_WIN_MEMBERS(X) \
  X(16s, Kel16s) X(16sc, Kel16sc) X(32f, Kel32f) X(32fc, Kel32fc) X(64f, Kel64f) X(64fc, Kel64fc)
#define KELS_WIN_Q15_MEMBERS(X) X(16s, Kel16s) X(16sc, Kel16sc)

// Windows without a parameter: (name, template).
#define KELS_DEFINE_WIN_PLAIN(name, fn, code, T)                                              \
  KELS_EXPORT KelStatus kelsWin##name##_##code(const T* pSrc, T* pDst, int len) {             \
    return fn<T>(pSrc, pDst, len);                                                            \
  }                                                                                           \
  KELS_EXPORT KelStatus kelsWin##name##_##code##_I(T* pSrcDst, int len) {                     \
    return fn<T>(pSrcDst, pSrcDst, len);                                                      \
  }
// Windows with a parameter alpha, given as a float or in Q15.
#define KELS_DEFINE_WIN_ALPHA(name, fn, code, T, A, conv)                                     \
  KELS_EXPORT KelStatus kelsWin##name##_##code(const T* pSrc, T* pDst, int len, A alpha) {    \
    return fn<T>(pSrc, pDst, len, conv(alpha));                                               \
  }                                                                                           \
  KELS_EXPORT KelStatus kelsWin##name##_##code##_I(T* pSrcDst, int len, A alpha) {            \
    return fn<T>(pSrcDst, pSrcDst, len, conv(alpha));                                         \
  }

#define KELS_AS_IS(a) (a)
#define KELS_DEFINE_WINDOWS(code, T)                                          \
  KELS_DEFINE_WIN_PLAIN(Bartlett, bartlett, code, T)                          \
  KELS_DEFINE_WIN_PLAIN(Hann, hann, code, T)                                  \
  KELS_DEFINE_WIN_PLAIN(Hamming, hamming, code, T)                            \
  KELS_DEFINE_WIN_PLAIN(BlackmanStd, blackman_std, code, T)                   \
  KELS_DEFINE_WIN_PLAIN(BlackmanOpt, blackman_opt, code, T)                   \
  KELS_DEFINE_WIN_ALPHA(Blackman, blackman, code, T, Kel32f, KELS_AS_IS)      \
  KELS_DEFINE_WIN_ALPHA(Kaiser, kaiser, code, T, Kel32f, static_cast<long double>)
#define KELS_DEFINE_WINDOWS_Q15(code, T)                                      \
  KELS_DEFINE_WIN_ALPHA(BlackmanQ15, blackman_q15, code, T, int, from_q15)    \
  KELS_DEFINE_WIN_ALPHA(KaiserQ15, kaiser, code, T, int, from_q15)

namespace kels::generate {
namespace {
template <class T>
KelStatus blackman_q15(const T* src, T* dst, int len, long double alpha) {
  return blackman_sfs(src, dst, len, alpha, 0);
}
}  // namespace
}  // namespace kels::generate

KELS_FOR_MEMBERS(KELS_WIN_MEMBERS, KELS_DEFINE_WINDOWS)
KELS_FOR_MEMBERS(KELS_WIN_Q15_MEMBERS, KELS_DEFINE_WINDOWS_Q15)

KELS_EXPORT KelStatus kelsWinBlackmanQ15_16s_ISfs(Kel16s* pSrcDst, int len, int alphaQ15, int scaleFactor) {
  return blackman_sfs<Kel16s>(pSrcDst, pSrcDst, len, from_q15(alphaQ15), scaleFactor);
}
