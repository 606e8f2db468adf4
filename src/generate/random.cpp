// Uniform and normal pseudo-random vectors. The _Direct forms restart the
// generator from a seed on every call and hand back the last
// subtract-with-borrow word as the next seed; the state forms keep all five
// generator words in a record, so consecutive calls continue one stream.
#include <cmath>

#include "frame/common.h"
#include "frame/malloc.h"
#include "generate/generate.h"
#include "generate/random.h"
#include "kernels/generate.h"

namespace kels::generate {
namespace {

// ---- Records. Fields sit at 4-byte offsets so the layout and size are the
// same on 32- and 64-bit targets; a trailing word says whether the record
// was allocated by the library.
constexpr std::int32_t kUni32fId = 37, kUni16sId = 36, kUni8uId = 38;
constexpr std::int32_t kGauss16sId = 39, kGauss32fId = 40, kGauss8uId = 41;

#pragma pack(push, 4)
template <class T>
struct UniformRecord {
  std::int32_t id;
  std::uint32_t seed;
  T low, high;
  double mid, scale;
  RandomWords words;
  std::uint32_t allocated;
};
template <class T>
struct GaussRecord {
  std::int32_t id;
  std::uint32_t seed;
  T mean, std_dev;
  RandomWords words;
  std::uint32_t allocated;
};
#pragma pack(pop)
static_assert(sizeof(UniformRecord<Kel32f>) == 56, "uniform record layout");
static_assert(sizeof(UniformRecord<Kel16s>) == 52, "uniform record layout");
static_assert(sizeof(GaussRecord<Kel32f>) == 40, "gauss record layout");

template <class T> constexpr std::int32_t uniform_id();
template <> constexpr std::int32_t uniform_id<Kel32f>() { return kUni32fId; }
template <> constexpr std::int32_t uniform_id<Kel16s>() { return kUni16sId; }
template <> constexpr std::int32_t uniform_id<Kel8u>() { return kUni8uId; }
template <class T> constexpr std::int32_t gauss_id();
template <> constexpr std::int32_t gauss_id<Kel32f>() { return kGauss32fId; }
template <> constexpr std::int32_t gauss_id<Kel16s>() { return kGauss16sId; }
template <> constexpr std::int32_t gauss_id<Kel8u>() { return kGauss8uId; }

// Uniform values r * scale + mid in extended precision, r the signed raw
// word: scale = (high - low) 2^-32 and mid = (low + high) / 2 put them in
// [low, high). F is the precision mid and scale are kept in (double in the
// records; extended for the 64f form, which has none).
template <class T, class F>
void uniform_fill(T* dst, int len, F mid, F scale, RandomWords& w) {
  const long double m = mid, s = scale;
  for (int i = 0; i < len; ++i) dst[i] = to_part<T>(static_cast<long double>(next_raw(w)) * s + m);
}

// Normal values by the polar method. Two raw words give u1 and u2 in
// [-1, 1) (scaled by 2^-31); the pair is redrawn while s = u1^2 + u2^2 is 0
// or at least 1. The test is made exactly on the integers (r1^2 + r2^2
// against 2^62), so it never depends on rounding. The pair yields
// mean + stdDev f u2, then mean + stdDev f u1 with f = sqrt(-2 ln s / s);
// an odd length drops the last second value.
//
// The serial generator first collects a block of accepted pairs; the
// factors of the whole block then go through the vector kernel.
template <class T>
void gauss_fill(T* dst, int len, double mean, double std_dev, RandomWords& w) {
  constexpr std::uint64_t kOne = std::uint64_t{1} << 62;
  constexpr int kPairs = 256;
  std::int32_t r1[kPairs], r2[kPairs];
  double s[kPairs], f[kPairs];
  int i = 0;
  while (i < len) {
    const int rest = (len - i + 1) / 2;
    const int pairs = rest < kPairs ? rest : kPairs;
    // Every drawn pair is written at slot p; only an accepted one advances p
    // (no branch on the one-in-five rejections).
    for (int p = 0; p < pairs;) {
      r1[p] = next_raw(w);
      r2[p] = next_raw(w);
      const std::uint64_t q = static_cast<std::uint64_t>(std::int64_t{r1[p]} * r1[p]) +
                              static_cast<std::uint64_t>(std::int64_t{r2[p]} * r2[p]);
      s[p] = static_cast<double>(q) * 0x1p-62;
      p += static_cast<int>((q < kOne) & (q != 0));
    }
    kernels::gauss_factors(s, f, static_cast<std::size_t>(pairs));
    for (int p = 0; p < pairs; ++p) {
      const double g = std_dev * f[p];
      dst[i++] = to_part<T>(mean + g * (static_cast<double>(r2[p]) * 0x1p-31));
      if (i < len) dst[i++] = to_part<T>(mean + g * (static_cast<double>(r1[p]) * 0x1p-31));
    }
  }
}

// _Direct forms: a generator started from *pSeed fills the vector, and the
// last subtract-with-borrow word becomes the next seed.
template <class T, class Fill>
KelStatus direct(T* dst, int len, unsigned int* pseed, Fill fill) {
  KELS_REQUIRE_PTRS(dst, pseed);
  KELS_REQUIRE_LEN(len);
  RandomWords w = seed_words(*pseed);
  fill(w);
  *pseed = w.x1;
  return kelStsOk;
}

template <class T>
KelStatus uniform_direct(T* dst, int len, T low, T high, unsigned int* pseed) {
  using F = std::conditional_t<std::is_same_v<T, Kel64f>, long double, double>;
  const F mid = (static_cast<F>(low) + static_cast<F>(high)) / 2;
  const F scale = (static_cast<F>(high) - static_cast<F>(low)) * static_cast<F>(0x1p-32);
  return direct(dst, len, pseed, [&](RandomWords& w) { uniform_fill(dst, len, mid, scale, w); });
}

template <class T>
KelStatus gauss_direct(T* dst, int len, T mean, T std_dev, unsigned int* pseed) {
  return direct(dst, len, pseed, [&](RandomWords& w) {
    gauss_fill(dst, len, static_cast<double>(mean), static_cast<double>(std_dev), w);
  });
}

template <class T>
UniformRecord<T> make_uniform(T low, T high, std::uint32_t seed) {
  UniformRecord<T> r{};
  r.id = uniform_id<T>();
  r.seed = seed;
  r.low = low;
  r.high = high;
  r.mid = (static_cast<double>(low) + static_cast<double>(high)) / 2;
  r.scale = (static_cast<double>(high) - static_cast<double>(low)) * 0x1p-32;
  r.words = seed_words(seed);
  return r;
}

template <class T>
GaussRecord<T> make_gauss(T mean, T std_dev, std::uint32_t seed) {
  GaussRecord<T> r{};
  r.id = gauss_id<T>();
  r.seed = seed;
  r.mean = mean;
  r.std_dev = std_dev;
  r.words = seed_words(seed);
  return r;
}

template <class T>
void generate(T* dst, int len, UniformRecord<T>& r) {
  uniform_fill(dst, len, r.mid, r.scale, r.words);
}
template <class T>
void generate(T* dst, int len, GaussRecord<T>& r) {
  gauss_fill(dst, len, static_cast<double>(r.mean), static_cast<double>(r.std_dev), r.words);
}

// Generating call on a record: pointers, length, identifier, then the
// vector; the advanced generator words are written back.
template <class R, class T>
KelStatus generate_state(T* dst, int len, void* state, std::int32_t id) {
  KELS_REQUIRE_PTRS(dst, state);
  KELS_REQUIRE_LEN(len);
  KELS_REQUIRE_ID(state, static_cast<std::uint32_t>(id));
  R r = load_record<R>(state);
  generate(dst, len, r);
  store_record(state, r);
  return kelStsOk;
}

template <class R>
KelStatus init_caller(void* p, const R& r) {
  KELS_REQUIRE_PTRS(p);
  store_record(p, r);
  return kelStsOk;
}

template <class R>
KelStatus get_size(int* psize) {
  KELS_REQUIRE_PTRS(psize);
  *psize = static_cast<int>(sizeof(R));
  return kelStsOk;
}

}  // namespace
}  // namespace kels::generate

using namespace kels::generate;

#define KELS_RAND_DIRECT_MEMBERS(X) X(16s, Kel16s) X(32f, Kel32f) X(64f, Kel64f)
#define KELS_RAND_STATE_MEMBERS(X) X(8u, Kel8u) X(16s, Kel16s) X(32f, Kel32f)

#define KELS_DEFINE_RAND_DIRECT(code, T)                                                          \
  KELS_EXPORT KelStatus kelsRandUniform_Direct_##code(T* pDst, int len, T low, T high,           \
                                                      unsigned int* pSeed) {                      \
    return uniform_direct<T>(pDst, len, low, high, pSeed);                                        \
  }                                                                                               \
  KELS_EXPORT KelStatus kelsRandGauss_Direct_##code(T* pDst, int len, T mean, T stdDev,          \
                                                    unsigned int* pSeed) {                        \
    return gauss_direct<T>(pDst, len, mean, stdDev, pSeed);                                       \
  }

// (kind, record template, record type prefix, maker, identifier) x (code, T)
#define KELS_DEFINE_RAND_STATE_KIND(Kind, Rec, State, make, idfn, code, T)                       \
  KELS_EXPORT KelStatus kelsRand##Kind##InitAlloc_##code(State##_##code** ppState, T a, T b,     \
                                                         unsigned int seed) {                     \
    return alloc_record(reinterpret_cast<Rec<T>**>(ppState), make<T>(a, b, seed));                  \
  }                                                                                               \
  KELS_EXPORT KelStatus kelsRand##Kind##_##code(T* pDst, int len, State##_##code* pState) {      \
    return generate_state<Rec<T>>(pDst, len, pState, idfn<T>());                                  \
  }                                                                                               \
  KELS_EXPORT KelStatus kelsRand##Kind##Free_##code(State##_##code* pState) {                    \
    return release_record<Rec<T>>(pState, static_cast<std::uint32_t>(idfn<T>()));                                                 \
  }
#define KELS_DEFINE_RAND_STATE(code, T)                                                                 \
  KELS_DEFINE_RAND_STATE_KIND(Uniform, UniformRecord, KelsRandUniState, make_uniform, uniform_id, code, T) \
  KELS_DEFINE_RAND_STATE_KIND(Gauss, GaussRecord, KelsRandGaussState, make_gauss, gauss_id, code, T)

KELS_FOR_MEMBERS(KELS_RAND_DIRECT_MEMBERS, KELS_DEFINE_RAND_DIRECT)
KELS_FOR_MEMBERS(KELS_RAND_STATE_MEMBERS, KELS_DEFINE_RAND_STATE)

// Caller-memory forms (16s): GetSize reports the record size, Init builds
// the record in the caller's block as it is (no alignment is needed).
KELS_EXPORT KelStatus kelsRandUniformGetSize_16s(int* pStateSize) {
  return get_size<UniformRecord<Kel16s>>(pStateSize);
}
KELS_EXPORT KelStatus kelsRandUniformInit_16s(KelsRandUniState_16s* pState, Kel16s low, Kel16s high,
                                              unsigned int seed) {
  return init_caller(pState, make_uniform<Kel16s>(low, high, seed));
}
KELS_EXPORT KelStatus kelsRandGaussGetSize_16s(int* pStateSize) {
  return get_size<GaussRecord<Kel16s>>(pStateSize);
}
KELS_EXPORT KelStatus kelsRandGaussInit_16s(KelsRandGaussState_16s* pState, Kel16s mean, Kel16s stdDev,
                                            unsigned int seed) {
  return init_caller(pState, make_gauss<Kel16s>(mean, stdDev, seed));
}
