// Real FFT against FFTW's r2c / c2r plans (FFTW_MEASURE, one thread),
// N = 2^4..2^20, single precision, out of place with a caller buffer and no
// scaling: kelsFFTFwd_RToCCS_32f against fftwf_plan_dft_r2c_1d and
// kelsFFTInv_CCSToR_32f against fftwf_plan_dft_c2r_1d (CCS is FFTW's
// half-complex array layout). Counters as in fft.cpp (ratio = kels / FFTW,
// GFLOP/s = 2.5 N log2 N / t for a real transform). Also kelsMulPerm_32f at
// 4096 against a plain loop.
#include <cmath>
#include <vector>

#include <benchmark/benchmark.h>

#include "kels.h"
#include "paired_timer.h"
#ifdef KELS_HAVE_FFTW
#include <fftw3.h>
#endif

namespace {

template <bool Inverse>
void BM_RealFFT_Ratio(benchmark::State& st) {
  const int order = static_cast<int>(st.range(0));
  const int n = 1 << order;
  KelsFFTSpec_R_32f* record = nullptr;
  kelsFFTInitAlloc_R_32f(&record, order, KEL_FFT_SCALE_NONE, 0);
  int bs = 0;
  kelsFFTGetBufSize_R_32f(record, &bs);
  std::vector<Kel8u> buf(static_cast<std::size_t>(bs) + 1);
  Kel32f* x = kelsMalloc_32f(n + 2);
  Kel32f* y = kelsMalloc_32f(n + 2);
#ifdef KELS_HAVE_FFTW
  fftwf_plan plan = Inverse ? fftwf_plan_dft_c2r_1d(n, reinterpret_cast<fftwf_complex*>(x), y, FFTW_MEASURE)
                            : fftwf_plan_dft_r2c_1d(n, x, reinterpret_cast<fftwf_complex*>(y), FFTW_MEASURE);
#endif
  for (int i = 0; i < n + 2; ++i) x[i] = static_cast<Kel32f>(std::sin(0.37 * i));
  if (Inverse) x[1] = x[n + 1] = 0;
  const int reps = n >= (1 << 14) ? 1 : (1 << 14) / n;
  auto run_kels = [&] {
    if (Inverse) kelsFFTInv_CCSToR_32f(x, y, record, buf.data());
    else kelsFFTFwd_RToCCS_32f(x, y, record, buf.data());
  };
#ifdef KELS_HAVE_FFTW
  // c2r overwrites its input; the repeated calls time the same work anyway.
  kels::bench::time_pair(st, reps, 2.5 * n * order, "fftw", true, run_kels, [&] { fftwf_execute(plan); });
  fftwf_destroy_plan(plan);
#else
  kels::bench::time_pair(st, reps, 2.5 * n * order, "fftw", false, run_kels, [] {});
#endif
  kelsFree(x);
  kelsFree(y);
  kelsFFTFree_R_32f(record);
}

void BM_MulPerm_Ratio(benchmark::State& st) {
  const int n = static_cast<int>(st.range(0));
  std::vector<Kel32f> a(n), b(n), d(n);
  for (int i = 0; i < n; ++i) {
    a[i] = static_cast<Kel32f>(std::sin(0.1 * i));
    b[i] = static_cast<Kel32f>(std::cos(0.3 * i));
  }
  auto loop = [&] {
    const Kel32f* pa = a.data();
    const Kel32f* pb = b.data();
    Kel32f* pd = d.data();
    pd[0] = pa[0] * pb[0];
    pd[1] = pa[1] * pb[1];
    for (int i = 2; i < n; i += 2) {
      pd[i] = pa[i] * pb[i] - pa[i + 1] * pb[i + 1];
      pd[i + 1] = pa[i] * pb[i + 1] + pa[i + 1] * pb[i];
    }
    benchmark::DoNotOptimize(pd);
  };
  kels::bench::time_pair(st, 64, 0, "loop", true, [&] { kelsMulPerm_32f(a.data(), b.data(), d.data(), n); },
                         loop);
}

}  // namespace

BENCHMARK_TEMPLATE(BM_RealFFT_Ratio, false)->DenseRange(4, 20)->Name("FFTRToCCS32f_Ratio");
BENCHMARK_TEMPLATE(BM_RealFFT_Ratio, true)->DenseRange(4, 20)->Name("FFTCCSToR32f_Ratio");
BENCHMARK(BM_MulPerm_Ratio)->Arg(4096)->Name("MulPerm32f_Ratio");
BENCHMARK_MAIN();
