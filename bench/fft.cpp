// Complex FFT against FFTW (FFTW_MEASURE plans, one thread), N = 2^4..2^20,
// single and double precision, out of place with a caller work buffer and
// no scaling. Each *_Ratio run times both libraries alternately on the same
// input inside one benchmark, so the counters compare them under the same
// machine load:
//   ratio       = time(kels) / time(FFTW)
//   kels_gflops = 5 N log2 N / time(kels)  (likewise fftw_gflops)
// docs/fft_chart.py turns the JSON output into docs/fft_gflops.svg.
#include <cmath>
#include <cstring>
#include <vector>

#include <benchmark/benchmark.h>

#include "kels.h"
#include "paired_timer.h"
#ifdef KELS_HAVE_FFTW
#include <fftw3.h>
#endif

namespace {

template <class T>
struct KelsFft;

template <>
struct KelsFft<float> {
  using C = Kel32fc;
  KelsFFTSpec_C_32fc* record = nullptr;
  explicit KelsFft(int order) { kelsFFTInitAlloc_C_32fc(&record, order, KEL_FFT_SCALE_NONE, 0); }
  ~KelsFft() { kelsFFTFree_C_32fc(record); }
  int buf_size() const {
    int n = 0;
    kelsFFTGetBufSize_C_32fc(record, &n);
    return n;
  }
  void run(const C* x, C* y, Kel8u* buf) const { kelsFFTFwd_CToC_32fc(x, y, record, buf); }
  static C* alloc(int n) { return kelsMalloc_32fc(n); }
};

template <>
struct KelsFft<double> {
  using C = Kel64fc;
  KelsFFTSpec_C_64fc* record = nullptr;
  explicit KelsFft(int order) { kelsFFTInitAlloc_C_64fc(&record, order, KEL_FFT_SCALE_NONE, 0); }
  ~KelsFft() { kelsFFTFree_C_64fc(record); }
  int buf_size() const {
    int n = 0;
    kelsFFTGetBufSize_C_64fc(record, &n);
    return n;
  }
  void run(const C* x, C* y, Kel8u* buf) const { kelsFFTFwd_CToC_64fc(x, y, record, buf); }
  static C* alloc(int n) { return kelsMalloc_64fc(n); }
};

#ifdef KELS_HAVE_FFTW
template <class T>
struct Fftw;
template <>
struct Fftw<float> {
  fftwf_plan plan;
  Fftw(int n, Kel32fc* x, Kel32fc* y) {
    plan = fftwf_plan_dft_1d(n, reinterpret_cast<fftwf_complex*>(x), reinterpret_cast<fftwf_complex*>(y),
                             FFTW_FORWARD, FFTW_MEASURE);
  }
  ~Fftw() { fftwf_destroy_plan(plan); }
  void run() const { fftwf_execute(plan); }
};
template <>
struct Fftw<double> {
  fftw_plan plan;
  Fftw(int n, Kel64fc* x, Kel64fc* y) {
    plan = fftw_plan_dft_1d(n, reinterpret_cast<fftw_complex*>(x), reinterpret_cast<fftw_complex*>(y),
                            FFTW_FORWARD, FFTW_MEASURE);
  }
  ~Fftw() { fftw_destroy_plan(plan); }
  void run() const { fftw_execute(plan); }
};
#endif

template <class T>
void BM_FFT_Ratio(benchmark::State& st) {
  const int order = static_cast<int>(st.range(0));
  const int n = 1 << order;
  using C = typename KelsFft<T>::C;
  C* x = KelsFft<T>::alloc(n);
  C* y = KelsFft<T>::alloc(n);
  KelsFft<T> k(order);
  std::vector<Kel8u> buf(static_cast<std::size_t>(k.buf_size()) + 1);
#ifdef KELS_HAVE_FFTW
  Fftw<T> f(n, x, y);  // planning overwrites the arrays: fill afterwards
#endif
  for (int i = 0; i < n; ++i) {
    x[i].re = static_cast<T>(std::sin(0.37 * i));
    x[i].im = static_cast<T>(std::cos(0.11 * i * i));
  }
  // Repeat short transforms so each timed batch is long against the clock.
  const int reps = n >= (1 << 14) ? 1 : (1 << 14) / n;
#ifdef KELS_HAVE_FFTW
  auto peer = [&] { f.run(); };
  const bool has_peer = true;
#else
  auto peer = [] {};
  const bool has_peer = false;
#endif
  kels::bench::time_pair(st, reps, 5.0 * n * order, "fftw", has_peer, [&] { k.run(x, y, buf.data()); }, peer);
  kelsFree(x);
  kelsFree(y);
}

}  // namespace

BENCHMARK_TEMPLATE(BM_FFT_Ratio, float)->DenseRange(4, 20)->Name("FFT32fc_Ratio");
BENCHMARK_TEMPLATE(BM_FFT_Ratio, double)->DenseRange(4, 20)->Name("FFT64fc_Ratio");
BENCHMARK_MAIN();
