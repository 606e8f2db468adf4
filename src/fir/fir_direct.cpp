// Caller-held (_Direct) FIR filters: the caller keeps the taps in its own
// order, a delay line of 2*tapsLen samples and an index; every sample is
// stored at d[i] and d[i+L], the index advances, and the output is the sum
// over the span d[i..i+L-1] (oldest first) against the reversed taps.
#include <cstdint>
#include <type_traits>

#include "fir/fir_arith.h"
#include "kernels/fir.h"
#include "frame/common.h"
#include "frame/scale.h"

namespace kels::fir {
namespace {


// 32-bit wrapping arithmetic of the integer-taps forms.
inline std::int32_t wrap(std::uint32_t v) { return static_cast<std::int32_t>(v); }
inline std::uint32_t umul(std::int32_t a, std::int32_t b) {
  return static_cast<std::uint32_t>(a) * static_cast<std::uint32_t>(b);
}

// Integer-taps form: shift = tapsFactor - scaleFactor clamped to -31..31;
// a positive shift moves the wrapped sum left (wrapping), a negative one
// right with rounding to nearest even; then saturation to 16 bits.
inline Kel16s shift_wrapped(std::int32_t sum, int factor, int sf) {
  const std::int64_t s64 = static_cast<std::int64_t>(factor) - sf;
  const int shift = static_cast<int>(s64 < -31 ? -31 : (s64 > 31 ? 31 : s64));
  std::int64_t v = sum;
  if (shift > 0) v = wrap(static_cast<std::uint32_t>(sum) << shift);
  else if (shift < 0) v = shift_round_even(sum, -shift);
  return saturate<Kel16s>(v);
}

// Sum over the span x[0..L-1] against the caller's taps read backwards
// (tapRev[k] = taps[L-1-k]), by the rule of the member.
template <class Tap, class Data>
Data direct_sum(const Tap* taps, int L, const Data* x, int sf, int factor) {
  if constexpr (std::is_same_v<Tap, Kel32f> && std::is_same_v<Data, Kel32f>) {
    // Products rounded to single precision, summed in extended precision,
    // rounded once.
    long double s = 0;
    for (int k = 0; k < L; ++k) s += static_cast<float>(taps[L - 1 - k] * x[k]);
    return static_cast<Kel32f>(s);
  } else if constexpr (std::is_same_v<Tap, Kel32fc> && std::is_same_v<Data, Kel32fc>) {
    long double re = 0, im = 0;
    for (int k = 0; k < L; ++k) {
      const Kel32fc t = taps[L - 1 - k];
      const float pr = t.re * x[k].re - t.im * x[k].im;
      const float pi = t.re * x[k].im + t.im * x[k].re;
      re += pr;
      im += pi;
    }
    return Kel32fc{static_cast<Kel32f>(re), static_cast<Kel32f>(im)};
  } else if constexpr (std::is_same_v<Tap, Kel16s>) {
    // Q15 taps: products summed in a wrapping 32-bit integer, then shifted
    // right by scaleFactor + 15 with rounding to nearest even (left when
    // negative) and saturated.
    (void)factor;
    std::uint32_t s = 0;
    for (int k = 0; k < L; ++k) s += umul(taps[L - 1 - k], x[k]);
    return scale_rule<Kel16s>(wrap(s), clamp_shift(static_cast<std::int64_t>(sf) + 15));
  } else if constexpr (std::is_same_v<Tap, Kel32s>) {
    std::uint32_t s = 0;
    for (int k = 0; k < L; ++k) s += umul(taps[L - 1 - k], x[k]);
    return shift_wrapped(wrap(s), factor, sf);
  } else if constexpr (std::is_same_v<Tap, Kel32sc>) {
    std::uint32_t re = 0, im = 0;
    for (int k = 0; k < L; ++k) {
      const Kel32sc t = taps[L - 1 - k];
      re += umul(t.re, x[k].re) - umul(t.im, x[k].im);
      im += umul(t.re, x[k].im) + umul(t.im, x[k].re);
    }
    return Kel16sc{shift_wrapped(wrap(re), factor, sf), shift_wrapped(wrap(im), factor, sf)};
  } else {
    // Double-precision taps, or single-precision taps on integer data: the
    // sum in double precision, then converted (scaled, rounded to nearest
    // even and saturated for integer data).
    (void)factor;
    using A = std::conditional_t<is_complex<Tap>::value || is_complex<Data>::value, C<double>, double>;
    A acc{};
    for (int k = 0; k < L; ++k) acc = acc + widen<A>(taps[L - 1 - k]) * widen<A>(x[k]);
    return convert<Data>(acc, sf, 0);
  }
}

// Outputs of the single-precision caller-held form checked at a time for
// sums exact in double precision: a short piece keeps the exponent range
// of its inputs narrow (so more pieces pass) at the cost of rescanning the
// L - 1 inputs the pieces share.
constexpr int kExactPiece = 256;
// The first L-1 outputs of a block are formed from a copy on the stack of
// at most kExactPiece + kHeadMaxTaps samples (9 KiB).
constexpr int kHeadMaxTaps = 2048;

// Four consecutive single-precision outputs whose spans start at x, x+1,
// x+2, x+3: the same sums as direct_sum, with four independent
// extended-precision accumulators so their additions overlap.
void direct_sum4_32f(const Kel32f* taps, int L, const Kel32f* x, Kel32f* y) {
  long double a0 = 0, a1 = 0, a2 = 0, a3 = 0;
  for (int k = 0; k < L; ++k) {
    const float t = taps[L - 1 - k];
    const float p0 = t * x[k], p1 = t * x[k + 1], p2 = t * x[k + 2], p3 = t * x[k + 3];
    a0 += p0;
    a1 += p1;
    a2 += p2;
    a3 += p3;
  }
  y[0] = static_cast<Kel32f>(a0);
  y[1] = static_cast<Kel32f>(a1);
  y[2] = static_cast<Kel32f>(a2);
  y[3] = static_cast<Kel32f>(a3);
}

template <class Tap, class Data>
void direct_run(const Data* src, Data* dst, int n, const Tap* taps, int L, Data* d, int* index, int sf,
                int factor) {
  int i = *index;
  for (int j = 0; j < n; ++j) {
    const Data x = src[j];
    d[i] = x;
    d[i + L] = x;
    i = i + 1 >= L ? 0 : i + 1;
    dst[j] = direct_sum(taps, L, d + i, sf, factor);
  }
  *index = i;
}

// The index is tested last: after the null pointers and the taps length.
// Every form tests it, so no call can write outside the caller's 2*tapsLen
// delay line.
inline bool bad_index(const int* index, int L) { return *index < 0 || *index >= L; }

// Single-precision outputs y[0..count) over the spans x[j..j+L-1], in
// pieces of kExactPiece outputs. Pieces whose sums are exact in one
// double-precision accumulator, or in two split by magnitude (checked from
// the exponent ranges of the taps and of the piece's inputs and the taps'
// magnitude sum), take the SIMD double-precision kernels, which then round
// the same exact value as the extended-precision accumulation; the others
// keep that accumulation.
struct TapsSummary {
  kernels::ExponentRange range;
  double abs_sum;
};
void sum_pieces_32f(const Kel32f* taps, int L, const TapsSummary& ts, const Kel32f* x, Kel32f* y, int count) {
  const std::size_t Ls = static_cast<std::size_t>(L);
  for (int j = 0; j < count;) {
    const int c = count - j < kExactPiece ? count - j : kExactPiece;
    const Kel32f* xp = x + j;
    const kernels::ExponentRange xr = kernels::exponent_range(xp, static_cast<std::size_t>(c + L - 1));
    int g = 0;
    if (kernels::sum_exact_in_double(ts.range, ts.abs_sum, xr)) {
      kernels::fir_sum_exact_f32(taps, Ls, xp, y + j, static_cast<std::size_t>(c));
    } else if (kernels::split_exact_in_double(ts.range, ts.abs_sum, xr, Ls, &g)) {
      kernels::fir_sum_split_f32(taps, Ls, xp, y + j, static_cast<std::size_t>(c), g);
    } else {
      int i = 0;
      for (; i + 4 <= c; i += 4) direct_sum4_32f(taps, L, xp + i, y + j + i);
      for (; i < c; ++i) y[j + i] = direct_sum(taps, L, xp + i, 0, 0);
    }
    j += c;
  }
}

// Out-of-place single-precision block: the first L-1 outputs, whose spans
// reach into the history, are formed piece by piece from a copy of the span
// (history then inputs) on the stack when the taps are few enough for it;
// the rest straight from the input.
void direct_block_32f(const Kel32f* src, Kel32f* dst, int n, const Kel32f* taps, int L, const Kel32f* d, int i0) {
  const TapsSummary ts{kernels::exponent_range(taps, static_cast<std::size_t>(L)),
                       kernels::abs_sum(taps, static_cast<std::size_t>(L))};
  const int head = n < L - 1 ? n : L - 1;
  if (L - 1 <= kHeadMaxTaps) {
    Kel32f span[kExactPiece + kHeadMaxTaps];
    for (int j = 0; j < head; j += kExactPiece) {
      const int c = head - j < kExactPiece ? head - j : kExactPiece;
      // span[m] = (history then input)[j + 1 + m]
      for (int m = 0; m < c + L - 1; ++m) {
        const int at = j + 1 + m;
        span[m] = at < L ? d[i0 + at] : src[at - L];
      }
      sum_pieces_32f(taps, L, ts, span, dst + j, c);
    }
  } else {
    for (int j = 0; j < head; ++j) {
      long double acc = 0;
      for (int k = 0; k < L; ++k) {
        const int at = j + 1 + k;
        acc += static_cast<float>(taps[L - 1 - k] * (at < L ? d[i0 + at] : src[at - L]));
      }
      dst[j] = static_cast<Kel32f>(acc);
    }
  }
  if (n > head) sum_pieces_32f(taps, L, ts, src + (head - L + 1), dst + head, n - head);
}

// Block of the caller-held form. Out of place, the outputs whose span lies
// wholly in the block (j >= L-1) are read straight from the input, as the
// same sums the one-sample step would form, and the delay line then receives
// the last L inputs in the slots the steps would have used; in place (or for
// the first L-1 samples) the one-sample step runs sample by sample. The
// single-precision member handles the first L-1 samples itself.
template <class Tap, class Data>
void direct_block_run(const Data* src, Data* dst, int n, const Tap* taps, int L, Data* d, int* index, int sf,
                      int factor) {
  constexpr bool f32 = std::is_same_v<Tap, Kel32f> && std::is_same_v<Data, Kel32f>;
  const int head = n < L - 1 ? n : L - 1;
  if (src == dst || (head == n && !f32)) {
    direct_run(src, dst, n, taps, L, d, index, sf, factor);
    return;
  }
  const int i0 = *index;
  int first = 0;  // first sample whose slot the steps below must write
  if constexpr (f32) {
    direct_block_32f(src, dst, n, taps, L, d, i0);
  } else {
    direct_run(src, dst, head, taps, L, d, index, sf, factor);
    for (int j = head; j < n; ++j) dst[j] = direct_sum(taps, L, src + (j - L + 1), sf, factor);
    first = head;
  }
  for (int j = n - L > first ? n - L : first; j < n; ++j) {
    const int slot = static_cast<int>((static_cast<std::int64_t>(i0) + j) % L);
    d[slot] = src[j];
    d[slot + L] = src[j];
  }
  *index = static_cast<int>((static_cast<std::int64_t>(i0) + n) % L);
}

template <class Tap, class Data>
KelStatus one_direct(Data src, Data* dst, const Tap* taps, int L, Data* d, int* index, int sf, int factor) {
  KELS_REQUIRE_PTRS(dst, taps);
  if (L < 1) return kelStsBadFIRLength;
  KELS_REQUIRE_PTRS(d, index);
  if (bad_index(index, L)) return kelStsBadDelayIndex;
  direct_run(&src, dst, 1, taps, L, d, index, sf, factor);
  return kelStsOk;
}

template <class Tap, class Data>
KelStatus block_direct(const Data* src, Data* dst, int n, const Tap* taps, int L, Data* d, int* index, int sf,
                       int factor) {
  KELS_REQUIRE_PTRS(src, dst);
  KELS_REQUIRE_LEN(n);
  KELS_REQUIRE_PTRS(taps);
  if (L < 1) return kelStsBadFIRLength;
  KELS_REQUIRE_PTRS(d, index);
  if (bad_index(index, L)) return kelStsBadDelayIndex;
  direct_block_run(src, dst, n, taps, L, d, index, sf, factor);
  return kelStsOk;
}

}  // namespace
}  // namespace kels::fir

using namespace kels::fir;

// ---- Member tables: (taps prefix, data code, taps type, data type).
#define KELS_FIR_DIRECT_FLOAT_MEMBERS(X)                                                 \
  X(, 32f, Kel32f, Kel32f) X(, 32fc, Kel32fc, Kel32fc) X(, 64f, Kel64f, Kel64f)         \
  X(, 64fc, Kel64fc, Kel64fc) X(64f, 32f, Kel64f, Kel32f) X(64fc, 32fc, Kel64fc, Kel32fc)
#define KELS_FIR_DIRECT_SFS_MEMBERS(X)                                                   \
  X(, 16s, Kel16s, Kel16s) X(32f, 16s, Kel32f, Kel16s) X(32fc, 16sc, Kel32fc, Kel16sc)  \
  X(64f, 16s, Kel64f, Kel16s) X(64f, 32s, Kel64f, Kel32s) X(64fc, 16sc, Kel64fc, Kel16sc) \
  X(64fc, 32sc, Kel64fc, Kel32sc)
#define KELS_FIR_DIRECT_FACTOR_MEMBERS(X) X(32s, 16s, Kel32s, Kel16s) X(32sc, 16sc, Kel32sc, Kel16sc)

#define KELS_DEFINE_FIR_DIRECT_FLOAT(P, D, Tap, Data)                                             \
  KELS_EXPORT KelStatus kelsFIROne##P##_Direct_##D(Data src, Data* pDstVal, const Tap* pTaps,    \
                                                   int tapsLen, Data* pDlyLine, int* pDlyLineIndex) { \
    return one_direct(src, pDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex, 0, 0);               \
  }                                                                                               \
  KELS_EXPORT KelStatus kelsFIROne##P##_Direct_##D##_I(Data* pSrcDst, const Tap* pTaps, int tapsLen, \
                                                       Data* pDlyLine, int* pDlyLineIndex) {      \
    KELS_REQUIRE_PTRS(pSrcDst);                                                                   \
    return one_direct(*pSrcDst, pSrcDst, pTaps, tapsLen, pDlyLine, pDlyLineIndex, 0, 0);          \
  }                                                                                               \
  KELS_EXPORT KelStatus kelsFIR##P##_Direct_##D(const Data* pSrc, Data* pDst, int numIters,      \
                                                const Tap* pTaps, int tapsLen, Data* pDlyLine,    \
                                                int* pDlyLineIndex) {                             \
    return block_direct(pSrc, pDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex, 0, 0);     \
  }                                                                                               \
  KELS_EXPORT KelStatus kelsFIR##P##_Direct_##D##_I(Data* pSrcDst, int numIters, const Tap* pTaps, \
                                                    int tapsLen, Data* pDlyLine, int* pDlyLineIndex) { \
    return block_direct(pSrcDst, pSrcDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex, 0, 0); \
  }

#define KELS_DEFINE_FIR_DIRECT_SFS(P, D, Tap, Data)                                               \
  KELS_EXPORT KelStatus kelsFIROne##P##_Direct_##D##_Sfs(Data src, Data* pDstVal, const Tap* pTaps, \
                                                         int tapsLen, Data* pDlyLine,             \
                                                         int* pDlyLineIndex, int scaleFactor) {   \
    return one_direct(src, pDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor, 0);     \
  }                                                                                               \
  KELS_EXPORT KelStatus kelsFIROne##P##_Direct_##D##_ISfs(Data* pSrcDst, const Tap* pTaps,       \
                                                          int tapsLen, Data* pDlyLine,            \
                                                          int* pDlyLineIndex, int scaleFactor) {  \
    KELS_REQUIRE_PTRS(pSrcDst);                                                                   \
    return one_direct(*pSrcDst, pSrcDst, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor, 0); \
  }                                                                                               \
  KELS_EXPORT KelStatus kelsFIR##P##_Direct_##D##_Sfs(const Data* pSrc, Data* pDst, int numIters, \
                                                      const Tap* pTaps, int tapsLen, Data* pDlyLine, \
                                                      int* pDlyLineIndex, int scaleFactor) {      \
    return block_direct(pSrc, pDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor, 0); \
  }                                                                                               \
  KELS_EXPORT KelStatus kelsFIR##P##_Direct_##D##_ISfs(Data* pSrcDst, int numIters, const Tap* pTaps, \
                                                       int tapsLen, Data* pDlyLine,               \
                                                       int* pDlyLineIndex, int scaleFactor) {     \
    return block_direct(pSrcDst, pSrcDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex,      \
                        scaleFactor, 0);                                                          \
  }

#define KELS_DEFINE_FIR_DIRECT_FACTOR(P, D, Tap, Data)                                            \
  KELS_EXPORT KelStatus kelsFIROne##P##_Direct_##D##_Sfs(Data src, Data* pDstVal, const Tap* pTaps, \
                                                         int tapsLen, int tapsFactor, Data* pDlyLine, \
                                                         int* pDlyLineIndex, int scaleFactor) {   \
    return one_direct(src, pDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor, tapsFactor); \
  }                                                                                               \
  KELS_EXPORT KelStatus kelsFIROne##P##_Direct_##D##_ISfs(Data* pSrcDst, const Tap* pTaps,       \
                                                          int tapsLen, int tapsFactor, Data* pDlyLine, \
                                                          int* pDlyLineIndex, int scaleFactor) {  \
    KELS_REQUIRE_PTRS(pSrcDst);                                                                   \
    return one_direct(*pSrcDst, pSrcDst, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor,    \
                      tapsFactor);                                                                \
  }                                                                                               \
  KELS_EXPORT KelStatus kelsFIR##P##_Direct_##D##_Sfs(const Data* pSrc, Data* pDst, int numIters, \
                                                      const Tap* pTaps, int tapsLen, int tapsFactor, \
                                                      Data* pDlyLine, int* pDlyLineIndex,         \
                                                      int scaleFactor) {                          \
    return block_direct(pSrc, pDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor, \
                        tapsFactor);                                                              \
  }                                                                                               \
  KELS_EXPORT KelStatus kelsFIR##P##_Direct_##D##_ISfs(Data* pSrcDst, int numIters, const Tap* pTaps, \
                                                       int tapsLen, int tapsFactor, Data* pDlyLine, \
                                                       int* pDlyLineIndex, int scaleFactor) {     \
    return block_direct(pSrcDst, pSrcDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex,      \
                        scaleFactor, tapsFactor);                                                 \
  }

KELS_FOR_MEMBERS(KELS_FIR_DIRECT_FLOAT_MEMBERS, KELS_DEFINE_FIR_DIRECT_FLOAT)
KELS_FOR_MEMBERS(KELS_FIR_DIRECT_SFS_MEMBERS, KELS_DEFINE_FIR_DIRECT_SFS)
KELS_FOR_MEMBERS(KELS_FIR_DIRECT_FACTOR_MEMBERS, KELS_DEFINE_FIR_DIRECT_FACTOR)
