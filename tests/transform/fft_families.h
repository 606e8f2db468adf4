// Uniform access to the floating complex FFT families for the tests: one
// traits struct per family, and a runner that takes long-double data,
// calls the family's transform in the requested mode and returns the result.
#ifndef KELS_TESTS_TRANSFORM_FFT_FAMILIES_H
#define KELS_TESTS_TRANSFORM_FFT_FAMILIES_H

#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <random>
#include <vector>

#include "kels.h"
#include "reference/dft.h"
#include "support/targets.h"

namespace kels::test {

using ref::cld;

#define KELS_TEST_FFT_TRAITS(Name, T, C, fam, split_)                                              \
  struct Name {                                                                                    \
    using Real = T;                                                                                \
    using FftRecord = KelsFFTSpec_##fam;                                                                \
    static constexpr bool split = split_;                                                          \
    static constexpr const char* name = #fam;                                                      \
    static KelStatus get_size(int o, int f, int* a, int* b, int* c) {                              \
      return kelsFFTGetSize_##fam(o, f, 0, a, b, c);                                               \
    }                                                                                              \
    static KelStatus init(FftRecord** pp, int o, int f, Kel8u* m, Kel8u* b) {                           \
      return kelsFFTInit_##fam(pp, o, f, 0, m, b);                                                 \
    }                                                                                              \
    static KelStatus init_alloc(FftRecord** pp, int o, int f) { return kelsFFTInitAlloc_##fam(pp, o, f, 0); } \
    static KelStatus release(FftRecord* s) { return kelsFFTFree_##fam(s); }                             \
    static KelStatus buf_size(const FftRecord* s, int* n) { return kelsFFTGetBufSize_##fam(s, n); }     \
    KELS_TEST_FFT_CALLS_##split_(T, C, fam)                                                        \
  };

// Interleaved: re/im arrays are views of one array of pairs.
#define KELS_TEST_FFT_CALLS_false(T, C, fam)                                                       \
  static KelStatus fwd(const T* sr, const T*, T* dr, T*, const FftRecord* s, Kel8u* b) {                \
    return kelsFFTFwd_CToC_##fam##_(reinterpret_cast<const C*>(sr), reinterpret_cast<C*>(dr), s, b); \
  }                                                                                                \
  static KelStatus inv(const T* sr, const T*, T* dr, T*, const FftRecord* s, Kel8u* b) {                \
    return kelsFFTInv_CToC_##fam##_(reinterpret_cast<const C*>(sr), reinterpret_cast<C*>(dr), s, b); \
  }
#define KELS_TEST_FFT_CALLS_true(T, C, fam)                                                        \
  static KelStatus fwd(const T* sr, const T* si, T* dr, T* di, const FftRecord* s, Kel8u* b) {          \
    return kelsFFTFwd_CToC_##fam##_(sr, si, dr, di, s, b);                                         \
  }                                                                                                \
  static KelStatus inv(const T* sr, const T* si, T* dr, T* di, const FftRecord* s, Kel8u* b) {          \
    return kelsFFTInv_CToC_##fam##_(sr, si, dr, di, s, b);                                         \
  }

#define kelsFFTFwd_CToC_C_32fc_ kelsFFTFwd_CToC_32fc
#define kelsFFTInv_CToC_C_32fc_ kelsFFTInv_CToC_32fc
#define kelsFFTFwd_CToC_C_64fc_ kelsFFTFwd_CToC_64fc
#define kelsFFTInv_CToC_C_64fc_ kelsFFTInv_CToC_64fc
#define kelsFFTFwd_CToC_C_32f_ kelsFFTFwd_CToC_32f
#define kelsFFTInv_CToC_C_32f_ kelsFFTInv_CToC_32f
#define kelsFFTFwd_CToC_C_64f_ kelsFFTFwd_CToC_64f
#define kelsFFTInv_CToC_C_64f_ kelsFFTInv_CToC_64f

KELS_TEST_FFT_TRAITS(Fam32fc, Kel32f, Kel32fc, C_32fc, false)
KELS_TEST_FFT_TRAITS(Fam64fc, Kel64f, Kel64fc, C_64fc, false)
KELS_TEST_FFT_TRAITS(Fam32f, Kel32f, Kel32f, C_32f, true)
KELS_TEST_FFT_TRAITS(Fam64f, Kel64f, Kel64f, C_64f, true)

// A record made by InitAlloc, released on scope exit.
template <class F>
struct OwnedSpec {
  typename F::FftRecord* record = nullptr;
  KelStatus status;
  OwnedSpec(int order, int flag) { status = F::init_alloc(&record, order, flag); }
  ~OwnedSpec() {
    if (record) F::release(record);
  }
};

// A record laid into caller memory by Init and then released with Free:
// every transform must refuse it (its memory stays valid, so the refusal is
// observable).
template <class F>
struct ReleasedSpec {
  std::vector<Kel8u> mem = std::vector<Kel8u>(1 << 16), buf = std::vector<Kel8u>(1 << 16);
  typename F::FftRecord* record = nullptr;
  explicit ReleasedSpec(int order) {
    if (F::init(&record, order, 8, mem.data(), buf.data()) == kelStsOk) F::release(record);
  }
};

// Modes of a call.
struct Mode {
  bool inverse = false;
  bool in_place = false;
  bool null_buffer = false;
  std::size_t misalign = 0;     // bytes added to the caller's buffer
  std::size_t data_offset = 0;  // bytes past a 64-byte boundary of both data arrays
};

// Runs one transform of x; the data arrays sit in guarded buffers whose
// guards are checked.
template <class F>
std::vector<cld> run(const typename F::FftRecord* record, const std::vector<cld>& x, const Mode& m,
                     KelStatus* status, bool* guards_ok) {
  using T = typename F::Real;
  const std::size_t n = x.size();
  Guarded<T> a(2 * n, m.data_offset), b(2 * n, m.data_offset);
  // Split layout: re in [0, n), im in [n, 2n).
  auto re = [&](Guarded<T>& g) { return g.data(); };
  auto im = [&](Guarded<T>& g) { return F::split ? g.data() + n : g.data() + 1; };
  const std::size_t s = F::split ? 1 : 2;
  for (std::size_t i = 0; i < n; ++i) {
    re(a)[s * i] = static_cast<T>(x[i].real());
    im(a)[s * i] = static_cast<T>(x[i].imag());
  }
  Guarded<T>& out = m.in_place ? a : b;
  std::vector<Kel8u> buf;
  Kel8u* pbuf = nullptr;
  if (!m.null_buffer) {
    int size = 0;
    F::buf_size(record, &size);
    buf.assign(static_cast<std::size_t>(size) + m.misalign + 1, 0);
    pbuf = buf.data() + m.misalign;
  }
  *status = m.inverse ? F::inv(re(a), im(a), re(out), im(out), record, pbuf)
                      : F::fwd(re(a), im(a), re(out), im(out), record, pbuf);
  *guards_ok = a.guards_intact() && b.guards_intact();
  std::vector<cld> y(n);
  for (std::size_t i = 0; i < n; ++i) y[i] = cld(re(out)[s * i], im(out)[s * i]);
  return y;
}

inline std::vector<cld> random_signal(std::size_t n, unsigned seed) {
  std::mt19937 gen(seed);
  std::uniform_real_distribution<double> u(-1.0, 1.0);
  std::vector<cld> x(n);
  for (auto& v : x) v = cld(u(gen), u(gen));
  return x;
}

// The accuracy bound of the transforms: relative RMS error at most
// 3 * eps * log2 N (log2 N taken as at least 1).
template <class T>
long double fft_bound(int order) {
  return 3.0L * std::numeric_limits<T>::epsilon() * (order < 1 ? 1 : order);
}

}  // namespace kels::test

#endif  // KELS_TESTS_TRANSFORM_FFT_FAMILIES_H
