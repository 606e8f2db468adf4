// Tone (sampled cosine) and triangle generators: the _Direct forms carry the
// phase between calls through *pPhase; the Q15 forms keep magnitude,
// frequency and phase in a small record with a sample counter.
#include <cmath>

#include "frame/common.h"
#include "frame/malloc.h"
#include "generate/generate.h"

namespace kels::generate {
namespace {

// 1/(2 pi) as a double: the phase reduction forms its quotient with it.
constexpr long double kInvTwoPi = 0.15915494309189535;

// The recurrence of the tone restarts from exact cosines every kToneRestart
// samples, so the error stays at a few units of extended precision however
// long the vector is (the restart costs four elementary functions).
constexpr int kToneRestart = 512;

// The fraction of k * rfreq (cycles completed after k samples), accurate to
// extended precision for every k below 2^31: rfreq is split into a high part
// of 30 fraction bits, whose product with k is exact in the 64-bit mantissa,
// and a small remainder.
long double cycles_frac(double rfreq, std::uint32_t k) {
  const double hi = std::ldexp(std::floor(std::ldexp(rfreq, 30)), -30);
  const double lo = rfreq - hi;  // exact
  long double c = static_cast<long double>(hi) * k;
  c -= std::floor(c);
  c += static_cast<long double>(lo) * k;
  return c - std::floor(c);
}

// Phase after len samples, phase + 2 pi rfreq len reduced to [0, 2pi) of the
// parameter precision P (the cycles are reduced before the scaling by 2 pi);
// anything the reduction leaves outside that range (rounding at the ends)
// becomes 0, so the result is always accepted by the next call.
template <class P>
P next_phase(long double phase, double rfreq, int len) {
  long double p = phase + kTwoPiL * cycles_frac(rfreq, static_cast<std::uint32_t>(len));
  p -= kTwoPiL * std::floor(p * kInvTwoPi);
  if (!(p >= 0 && p < kTwoPiL)) p = 0;
  const P r = static_cast<P>(p);
  return (r >= 0 && r < static_cast<P>(kTwoPiL)) ? r : P(0);
}

// True when phase lies in [0, 2pi) with 2pi rounded to the precision P (the
// value that is refused).
template <class P>
bool phase_ok(P phase) {
  return phase >= 0 && phase < static_cast<P>(kTwoPiL);
}

// Writes one element from its real (and, for complex types, imaginary) value.
template <class T>
void put(T& dst, long double re, long double im) {
  using P = part_t<T>;
  P* d = reinterpret_cast<P*>(&dst);
  d[0] = to_part<P>(re);
  if constexpr (is_complex_v<T>) d[1] = to_part<P>(im);
}

// y[k] = magn cos(phase + k omega) for k = k0 .. k0+m-1 (and the sine for
// the imaginary part): two values from the cosine, two by the recurrence with
// 2 cos(omega), the rest by two interleaved recurrences with step 2 omega,
// y[n] = 2 cos(2 omega) y[n-2] - y[n-4]. The recurrences are evaluated in
// difference form (delta += d y; y += delta, with d = 2 cos - 2 computed from
// a squared sine), which keeps them accurate when the step is near 0 or 2 pi
// where 2 cos is close to 2.
//
// The block's first phase is reduced in cycles (k0 rfreq modulo 1, exactly)
// before it is scaled by 2 pi, and the second is the first plus omega: two
// arguments rounded independently at a large magnitude would disagree by
// more than the recurrence can tolerate near the ends of the frequency range.
template <class T>
void tone_block(T* dst, int k0, int m, long double magn, double rfreq, long double phase) {
  const long double omega = kTwoPiL * rfreq;
  const long double a0 = phase + kTwoPiL * cycles_frac(rfreq, static_cast<std::uint32_t>(k0));
  long double c[4], s[4];
  for (int i = 0; i < 2; ++i) {
    const long double arg = i == 0 ? a0 : a0 + omega;
    c[i] = magn * std::cos(arg);
    s[i] = is_complex_v<T> ? magn * std::sin(arg) : 0.0L;
  }
  const long double h1 = std::sin(omega / 2), h2 = std::sin(omega);
  const long double d1 = -4 * h1 * h1;  // 2 cos(omega) - 2
  const long double d2 = -4 * h2 * h2;  // 2 cos(2 omega) - 2
  c[2] = c[1] + (c[1] - c[0]) + d1 * c[1];
  c[3] = c[2] + (c[2] - c[1]) + d1 * c[2];
  s[2] = s[1] + (s[1] - s[0]) + d1 * s[1];
  s[3] = s[2] + (s[2] - s[1]) + d1 * s[2];
  const int head = m < 4 ? m : 4;
  for (int i = 0; i < head; ++i) put(dst[i], c[i], s[i]);
  if (m <= 4) return;
  // Two chains (even and odd indices), each keeping its last value and last
  // difference in registers.
  long double c0 = c[2], c1 = c[3], e0 = c[2] - c[0], e1 = c[3] - c[1];
  long double s0 = s[2], s1 = s[3], f0 = s[2] - s[0], f1 = s[3] - s[1];
  int i = 4;
  for (; i + 1 < m; i += 2) {
    e0 += d2 * c0;
    c0 += e0;
    e1 += d2 * c1;
    c1 += e1;
    if constexpr (is_complex_v<T>) {
      f0 += d2 * s0;
      s0 += f0;
      f1 += d2 * s1;
      s1 += f1;
    }
    put(dst[i], c0, s0);
    put(dst[i + 1], c1, s1);
  }
  if (i < m) {
    e0 += d2 * c0;
    c0 += e0;
    f0 += d2 * s0;
    s0 += f0;
    put(dst[i], c0, s0);
  }
}

template <class T, class P>
KelStatus tone_direct(T* dst, int len, P magn, P rfreq, P* pphase) {
  KELS_REQUIRE_PTRS(pphase);
  if (!(magn > 0)) return kelStsToneMagn;
  if (!(rfreq >= 0 && rfreq < P(0.5))) return kelStsToneFreq;
  if (!phase_ok(*pphase)) return kelStsTonePhase;
  KELS_REQUIRE_PTRS(dst);
  KELS_REQUIRE_LEN(len);
  const long double phase = *pphase;
  *pphase = next_phase<P>(phase, rfreq, len);
  for (int k0 = 0; k0 < len; k0 += kToneRestart) {
    const int m = len - k0 < kToneRestart ? len - k0 : kToneRestart;
    tone_block(dst + k0, k0, m, magn, static_cast<double>(rfreq), phase);
  }
  return kelStsOk;
}

// The triangle wave of magnitude M with its peak at phase 0, falling
// linearly to -M at pi + asym and rising back to M at 2pi. At asym = -pi
// the falling edge has zero length (phase 0 gives -M); at asym = pi the
// rising edge has.
struct TriangleShape {
  long double magn, fall_end, fall_slope, rise_slope;
  TriangleShape(long double m, long double asym) : magn(m) {
    long double a = kPiL + asym;  // length of the falling edge
    if (a < 0) a = 0;
    if (a > kTwoPiL) a = kTwoPiL;
    const long double b = kTwoPiL - a;
    fall_end = a;
    fall_slope = a > 0 ? 2 * m / a : 0;
    rise_slope = b > 0 ? 2 * m / b : 0;
  }
  long double operator()(long double theta) const {
    if (fall_end > 0 && theta <= fall_end) return magn - theta * fall_slope;
    return (theta - fall_end) * rise_slope - magn;
  }
};

// Each sample is evaluated from its own phase; the phase advances by omega
// in extended precision and wraps at 2pi (omega < pi, so once at most), and
// is recomputed exactly at the start of every block of kToneRestart samples.
template <class T>
void triangle_fill(T* dst, int len, const TriangleShape& shape, double rfreq, long double phase) {
  const long double omega = kTwoPiL * rfreq;
  long double re = 0, im = 0;
  for (int k = 0; k < len; ++k) {
    if (k % kToneRestart == 0) {
      re = phase + kTwoPiL * cycles_frac(rfreq, static_cast<std::uint32_t>(k));
      if (re >= kTwoPiL) re -= kTwoPiL;
      im = re - kPiL / 2;  // a quarter period later
      if (im < 0) im += kTwoPiL;
    }
    put(dst[k], shape(re), is_complex_v<T> ? shape(im) : 0.0L);
    re += omega;
    if (re >= kTwoPiL) re -= kTwoPiL;
    im += omega;
    if (im >= kTwoPiL) im -= kTwoPiL;
  }
}

template <class T, class P>
KelStatus triangle_direct(T* dst, int len, P magn, P rfreq, P asym, P* pphase) {
  KELS_REQUIRE_PTRS(pphase);
  if (!(magn > 0)) return kelStsTrnglMagn;
  if (!(rfreq >= 0 && rfreq < P(0.5))) return kelStsTrnglFreq;
  const P pi = static_cast<P>(kPiL);
  if (!(asym >= -pi && asym <= pi)) return kelStsTrnglAsym;
  if (!phase_ok(*pphase)) return kelStsTrnglPhase;
  KELS_REQUIRE_PTRS(dst);
  KELS_REQUIRE_LEN(len);
  const long double phase = *pphase;
  *pphase = next_phase<P>(phase, rfreq, len);
  triangle_fill(dst, len, TriangleShape(magn, asym), rfreq, phase);
  return kelStsOk;
}

// ---- Q15 records. Doubles sit at 4-byte offsets so that the layout (and
// the size reported to callers) is the same on 32- and 64-bit targets.
constexpr std::uint32_t kToneId = 0x4c4d535c;      // "\SML" in memory
constexpr std::uint32_t kTriangleId = 0x4952545c;  // "\TRI" in memory
constexpr Kel32s kQ15PhaseEnd = 205887;            // first phase refused
constexpr Kel32s kQ15AsymMax = 102943;             // largest |asym| accepted

#pragma pack(push, 4)
struct ToneRecord {
  std::uint32_t id;
  double magn, rfreq, phase;
  std::int32_t counter;
  std::uint32_t allocated, started;
};
struct TriangleRecord {
  std::uint32_t id;
  double magn, rfreq, phase, asym;
  std::int32_t counter;
  std::uint32_t allocated, started;
};
#pragma pack(pop)
static_assert(sizeof(ToneRecord) == 40, "tone record layout");
static_assert(sizeof(TriangleRecord) == 48, "triangle record layout");

double q15(long v) { return std::ldexp(static_cast<double>(v), -15); }

KelStatus tone_q15_check(Kel16s magn, Kel16s rfreq, Kel32s phase) {
  if (magn < 1) return kelStsToneMagn;
  if (rfreq < 0 || rfreq >= 16384) return kelStsToneFreq;
  if (phase < 0 || phase >= kQ15PhaseEnd) return kelStsTonePhase;
  return kelStsOk;
}

KelStatus triangle_q15_check(Kel16s magn, Kel16s rfreq, Kel32s asym, Kel32s phase) {
  if (magn < 1) return kelStsTrnglMagn;
  if (rfreq < 0 || rfreq >= 16384) return kelStsTrnglFreq;
  if (asym < -kQ15AsymMax || asym > kQ15AsymMax) return kelStsTrnglAsym;
  if (phase < 0 || phase >= kQ15PhaseEnd) return kelStsTrnglPhase;
  return kelStsOk;
}

ToneRecord make_tone(Kel16s magn, Kel16s rfreq, Kel32s phase) {
  return ToneRecord{kToneId, double(magn), q15(rfreq), q15(phase), 0, 0, 0};
}

TriangleRecord make_triangle(Kel16s magn, Kel16s rfreq, Kel32s asym, Kel32s phase) {
  return TriangleRecord{kTriangleId, double(magn), q15(rfreq), q15(phase), q15(asym), 0, 0, 0};
}

// The frequency is a multiple of 2^-15, so the wave repeats every 32768
// samples: the counter enters the phase modulo 32768, which keeps the
// argument small and exact however long the stream runs.
long double q15_arg(double rfreq, double phase, std::uint32_t k) {
  return kTwoPiL * rfreq * static_cast<long double>(k & 32767u) + phase;
}

// Sample k of the stream is magn cos(2 pi rfreq k + phase), one cosine per
// sample in double precision, rounded half away from zero.
void tone_q15_fill(Kel16s* dst, int len, ToneRecord& r) {
  const std::uint32_t k0 = static_cast<std::uint32_t>(r.counter);
  for (int i = 0; i < len; ++i) {
    const double arg = static_cast<double>(q15_arg(r.rfreq, r.phase, k0 + static_cast<std::uint32_t>(i)));
    dst[i] = round_saturate<Kel16s>(r.magn * std::cos(arg));
  }
  r.counter = static_cast<std::int32_t>(k0 + static_cast<std::uint32_t>(len));
  r.started = 1;
}

void triangle_q15_fill(Kel16s* dst, int len, TriangleRecord& r) {
  const TriangleShape shape(r.magn, r.asym);
  const std::uint32_t k0 = static_cast<std::uint32_t>(r.counter);
  for (int i = 0; i < len; ++i) {
    long double arg = q15_arg(r.rfreq, r.phase, k0 + static_cast<std::uint32_t>(i));
    arg -= kTwoPiL * std::floor(arg / kTwoPiL);
    if (!(arg >= 0 && arg < kTwoPiL)) arg = 0;
    dst[i] = round_saturate<Kel16s>(shape(arg));
  }
  r.counter = static_cast<std::int32_t>(k0 + static_cast<std::uint32_t>(len));
  r.started = 1;
}

template <class R, class Fill>
KelStatus q15_generate(Kel16s* dst, int len, void* state, std::uint32_t id, Fill fill) {
  KELS_REQUIRE_PTRS(dst, state);
  KELS_REQUIRE_LEN(len);
  KELS_REQUIRE_ID(state, id);
  R r = load_record<R>(state);
  fill(dst, len, r);
  store_record(state, r);
  return kelStsOk;
}

// Shapes shared by the tone and triangle Q15 functions. `params` is the
// status of the parameter checks (pure, so it may be computed before the
// pointer checks that precede it in the order of statuses).
template <class R, class Fill>
KelStatus q15_direct(Kel16s* dst, int len, KelStatus params, R r, Fill fill) {
  KELS_REQUIRE_PTRS(dst);
  KELS_REQUIRE_LEN(len);
  KELS_RETURN_IF_ERROR(params);
  fill(dst, len, r);
  return kelStsOk;
}

template <class R>
KelStatus q15_size(int* psize) {
  KELS_REQUIRE_PTRS(psize);
  *psize = static_cast<int>(sizeof(R));
  return kelStsOk;
}

template <class R>
KelStatus q15_init(void* state, KelStatus params, const R& r) {
  KELS_REQUIRE_PTRS(state);
  KELS_RETURN_IF_ERROR(params);
  store_record(state, r);
  return kelStsOk;
}

template <class R>
KelStatus q15_init_alloc(R** pp, KelStatus params, const R& r) {
  KELS_REQUIRE_PTRS(pp);
  KELS_RETURN_IF_ERROR(params);
  return alloc_record(pp, r);
}

}  // namespace
}  // namespace kels::generate

using namespace kels::generate;

// (type code, element type, parameter type)
#define KELS_TONE_MEMBERS(X) \
  X(16s, Kel16s, Kel32f) X(16sc, Kel16sc, Kel32f) X(32f, Kel32f, Kel32f) \
  X(32fc, Kel32fc, Kel32f) X(64f, Kel64f, Kel64f) X(64fc, Kel64fc, Kel64f)

#define KELS_DEFINE_TONE(code, T, P)                                                             \
  KELS_EXPORT KelStatus kelsTone_Direct_##code(T* pDst, int len, P magn, P rFreq, P* pPhase) {   \
    return tone_direct<T, P>(pDst, len, magn, rFreq, pPhase);                                    \
  }                                                                                              \
  KELS_EXPORT KelStatus kelsTriangle_Direct_##code(T* pDst, int len, P magn, P rFreq, P asym,    \
                                                   P* pPhase) {                                  \
    return triangle_direct<T, P>(pDst, len, magn, rFreq, asym, pPhase);                          \
  }

KELS_FOR_MEMBERS(KELS_TONE_MEMBERS, KELS_DEFINE_TONE)

// ---- Q15 tone. The Direct form checks the destination first, the Init
// forms the record pointer first; both then test magnitude, frequency and
// phase in that order.
KELS_EXPORT KelStatus kelsToneQ15_Direct_16s(Kel16s* pDst, int len, Kel16s magn, Kel16s rFreqQ15,
                                             Kel32s phaseQ15) {
  return q15_direct(pDst, len, tone_q15_check(magn, rFreqQ15, phaseQ15), make_tone(magn, rFreqQ15, phaseQ15),
                    tone_q15_fill);
}
KELS_EXPORT KelStatus kelsToneGetStateSizeQ15_16s(int* pStateSize) { return q15_size<ToneRecord>(pStateSize); }
KELS_EXPORT KelStatus kelsToneInitQ15_16s(KelsToneState_16s* pState, Kel16s magn, Kel16s rFreqQ15,
                                          Kel32s phaseQ15) {
  return q15_init(pState, tone_q15_check(magn, rFreqQ15, phaseQ15), make_tone(magn, rFreqQ15, phaseQ15));
}
KELS_EXPORT KelStatus kelsToneInitAllocQ15_16s(KelsToneState_16s** ppState, Kel16s magn, Kel16s rFreqQ15,
                                               Kel32s phaseQ15) {
  return q15_init_alloc(reinterpret_cast<ToneRecord**>(ppState), tone_q15_check(magn, rFreqQ15, phaseQ15),
                        make_tone(magn, rFreqQ15, phaseQ15));
}
KELS_EXPORT KelStatus kelsToneQ15_16s(Kel16s* pDst, int len, KelsToneState_16s* pState) {
  return q15_generate<ToneRecord>(pDst, len, pState, kToneId, tone_q15_fill);
}
KELS_EXPORT KelStatus kelsToneFree(KelsToneState_16s* pState) {
  return release_record<ToneRecord>(pState, kToneId);
}

// ---- Q15 triangle: the same shapes with asym (checked after the frequency).
KELS_EXPORT KelStatus kelsTriangleQ15_Direct_16s(Kel16s* pDst, int len, Kel16s magn, Kel16s rFreqQ15,
                                                 Kel32s asymQ15, Kel32s phaseQ15) {
  return q15_direct(pDst, len, triangle_q15_check(magn, rFreqQ15, asymQ15, phaseQ15),
                    make_triangle(magn, rFreqQ15, asymQ15, phaseQ15), triangle_q15_fill);
}
KELS_EXPORT KelStatus kelsTriangleGetStateSizeQ15_16s(int* pStateSize) {
  return q15_size<TriangleRecord>(pStateSize);
}
KELS_EXPORT KelStatus kelsTriangleInitQ15_16s(KelsTriangleState_16s* pState, Kel16s magn, Kel16s rFreqQ15,
                                              Kel32s asymQ15, Kel32s phaseQ15) {
  return q15_init(pState, triangle_q15_check(magn, rFreqQ15, asymQ15, phaseQ15),
                  make_triangle(magn, rFreqQ15, asymQ15, phaseQ15));
}
KELS_EXPORT KelStatus kelsTriangleInitAllocQ15_16s(KelsTriangleState_16s** ppState, Kel16s magn,
                                                   Kel16s rFreqQ15, Kel32s asymQ15, Kel32s phaseQ15) {
  return q15_init_alloc(reinterpret_cast<TriangleRecord**>(ppState),
                        triangle_q15_check(magn, rFreqQ15, asymQ15, phaseQ15),
                        make_triangle(magn, rFreqQ15, asymQ15, phaseQ15));
}
KELS_EXPORT KelStatus kelsTriangleQ15_16s(Kel16s* pDst, int len, KelsTriangleState_16s* pState) {
  return q15_generate<TriangleRecord>(pDst, len, pState, kTriangleId, triangle_q15_fill);
}
KELS_EXPORT KelStatus kelsTriangleFree(KelsTriangleState_16s* pState) {
  return release_record<TriangleRecord>(pState, kTriangleId);
}
