// Single-rate FIR filters against a plain C++ direct-form loop (compiled
// -O3 -march=native like this file) and, when FFTW is found, an FFTW-based
// overlap-save filter. One thread unless stated; blocks of 4096 and 65536
// samples; 8 to 2048 taps. items/s are samples per second; compare medians
// of the same run.
#include <algorithm>
#include <chrono>
#include <cstring>
#include <vector>

#include "bench_util.h"
#include "paired_timer.h"
#include "kelcore.h"
#ifdef KELS_HAVE_FFTW
#include <fftw3.h>
#endif

namespace {

using kels::bench::Buffer;

struct OneThread {
  int saved;
  explicit OneThread(int n = 1) : saved(kel_set_num_threads(n)) {}
  ~OneThread() { kel_set_num_threads(saved); }
};

void args(benchmark::internal::Benchmark* b) {
  for (int n : {4096, 65536}) {
    for (int L : {8, 32, 128, 512, 2048}) b->Args({n, L});
  }
}

void finish(benchmark::State& st, int n) {
  st.SetItemsProcessed(static_cast<std::int64_t>(st.iterations()) * n);
}

// A block filter on an InitAlloc record.
template <class T, class S, KelStatus (*Init)(S**, const T*, int, const T*),
          KelStatus (*Run)(const T*, T*, int, S*), KelStatus (*Release)(S*)>
void run_state(benchmark::State& st, int n, int L) {
  Buffer<T> taps(static_cast<std::size_t>(L)), x(static_cast<std::size_t>(n)), y(static_cast<std::size_t>(n));
  S* s = nullptr;
  Init(&s, taps.data(), L, nullptr);
  for (auto _ : st) {
    Run(x.data(), y.data(), n, s);
    benchmark::DoNotOptimize(y.data());
  }
  Release(s);
  finish(st, n);
}

void BM_FIR_32f(benchmark::State& st) {
  OneThread one;
  run_state<Kel32f, KelsFIRState_32f, kelsFIRInitAlloc_32f, kelsFIR_32f, kelsFIRFree_32f>(
      st, static_cast<int>(st.range(0)), static_cast<int>(st.range(1)));
}

void BM_FIR_32fc(benchmark::State& st) {
  OneThread one;
  run_state<Kel32fc, KelsFIRState_32fc, kelsFIRInitAlloc_32fc, kelsFIR_32fc, kelsFIRFree_32fc>(
      st, static_cast<int>(st.range(0)), static_cast<int>(st.range(1)));
}

void BM_FIR_Direct_32f(benchmark::State& st) {
  const int n = static_cast<int>(st.range(0)), L = static_cast<int>(st.range(1));
  Buffer<Kel32f> taps(L), x(n), y(n);
  std::vector<Kel32f> d(2 * static_cast<std::size_t>(L), 0.0f);
  int idx = 0;
  for (auto _ : st) {
    kelsFIR_Direct_32f(x.data(), y.data(), n, taps.data(), L, d.data(), &idx);
    benchmark::DoNotOptimize(y.data());
  }
  finish(st, n);
}

// The plain direct form: history of L-1 samples in front of the block,
// y[i] = sum_k h[k] * x[i-k] as one running sum, history moved after the block.
void BM_FIR_32f_plain(benchmark::State& st) {
  const int n = static_cast<int>(st.range(0)), L = static_cast<int>(st.range(1));
  Buffer<Kel32f> taps(L), x(n), y(n);
  std::vector<float> buf(static_cast<std::size_t>(n + L - 1), 0.0f);
  for (auto _ : st) {
    std::memcpy(buf.data() + L - 1, x.data(), sizeof(float) * static_cast<std::size_t>(n));
    const float* h = taps.data();
    for (int i = 0; i < n; ++i) {
      float acc = 0;
      const float* xi = buf.data() + i + L - 1;
      for (int k = 0; k < L; ++k) acc += h[k] * xi[-k];
      y.data()[i] = acc;
    }
    std::memmove(buf.data(), buf.data() + n, sizeof(float) * static_cast<std::size_t>(L - 1));
    benchmark::DoNotOptimize(y.data());
  }
  finish(st, n);
}

void BM_FIR_32fc_plain(benchmark::State& st) {
  const int n = static_cast<int>(st.range(0)), L = static_cast<int>(st.range(1));
  Buffer<Kel32fc> taps(L), x(n), y(n);
  std::vector<Kel32fc> buf(static_cast<std::size_t>(n + L - 1), Kel32fc{0, 0});
  for (auto _ : st) {
    std::memcpy(buf.data() + L - 1, x.data(), sizeof(Kel32fc) * static_cast<std::size_t>(n));
    const Kel32fc* h = taps.data();
    for (int i = 0; i < n; ++i) {
      float re = 0, im = 0;
      const Kel32fc* xi = buf.data() + i + L - 1;
      for (int k = 0; k < L; ++k) {
        re += h[k].re * xi[-k].re - h[k].im * xi[-k].im;
        im += h[k].re * xi[-k].im + h[k].im * xi[-k].re;
      }
      y.data()[i] = Kel32fc{re, im};
    }
    std::memmove(buf.data(), buf.data() + n, sizeof(Kel32fc) * static_cast<std::size_t>(L - 1));
    benchmark::DoNotOptimize(y.data());
  }
  finish(st, n);
}

#ifdef KELS_HAVE_FFTW
// Overlap-save with FFTW's real transforms: N = twice the smallest power of
// two above L, S = N - L + 1 outputs per transform pair.
struct FftwOls {
  int n, L, N, S;
  float* blk;
  fftwf_complex* freq;
  fftwf_complex* taps_freq;
  fftwf_plan fwd, inv;
  std::vector<float> stream;
  FftwOls(const float* taps, int n_, int L_) : n(n_), L(L_), N(4) {
    while (N <= L) N *= 2;
    N *= 2;
    S = N - L + 1;
    blk = fftwf_alloc_real(static_cast<std::size_t>(N));
    freq = fftwf_alloc_complex(static_cast<std::size_t>(N / 2 + 1));
    taps_freq = fftwf_alloc_complex(static_cast<std::size_t>(N / 2 + 1));
    fwd = fftwf_plan_dft_r2c_1d(N, blk, freq, FFTW_MEASURE);
    inv = fftwf_plan_dft_c2r_1d(N, freq, blk, FFTW_MEASURE);
    std::fill(blk, blk + N, 0.0f);
    std::copy(taps, taps + L, blk);
    fftwf_execute_dft_r2c(fwd, blk, taps_freq);
    stream.assign(static_cast<std::size_t>(n + L - 1), 0.0f);
  }
  ~FftwOls() {
    fftwf_destroy_plan(fwd);
    fftwf_destroy_plan(inv);
    fftwf_free(blk);
    fftwf_free(freq);
    fftwf_free(taps_freq);
  }
  void run(const float* x, float* y) {
    const float scale = 1.0f / static_cast<float>(N);
    std::memcpy(stream.data() + L - 1, x, sizeof(float) * static_cast<std::size_t>(n));
    for (int i = 0; i < n; i += S) {
      const int m = std::min(S, n - i);
      const int avail = std::min(N, m + L - 1);
      std::copy(stream.data() + i, stream.data() + i + avail, blk);
      std::fill(blk + avail, blk + N, 0.0f);
      fftwf_execute_dft_r2c(fwd, blk, freq);
      for (int k = 0; k <= N / 2; ++k) {
        const float re = freq[k][0] * taps_freq[k][0] - freq[k][1] * taps_freq[k][1];
        const float im = freq[k][0] * taps_freq[k][1] + freq[k][1] * taps_freq[k][0];
        freq[k][0] = re * scale;
        freq[k][1] = im * scale;
      }
      fftwf_execute_dft_c2r(inv, freq, blk);
      std::copy(blk + L - 1, blk + L - 1 + m, y + i);
    }
    std::memmove(stream.data(), stream.data() + n, sizeof(float) * static_cast<std::size_t>(L - 1));
  }
};

void BM_FIR_32f_fftw_ols(benchmark::State& st) {
  const int n = static_cast<int>(st.range(0)), L = static_cast<int>(st.range(1));
  Buffer<Kel32f> taps(L), x(n), y(n);
  FftwOls f(taps.data(), n, L);
  for (auto _ : st) {
    f.run(x.data(), y.data());
    benchmark::DoNotOptimize(y.data());
  }
  finish(st, n);
}

// kelsFIR_32f on an InitAlloc record (FFT method from 64 taps) and the FFTW
// filter timed alternately in the same iterations (counter ratio = kels /
// FFTW), so both see the same machine load.
void BM_FIR_32f_vs_fftw(benchmark::State& st) {
  OneThread one;
  const int n = static_cast<int>(st.range(0)), L = static_cast<int>(st.range(1));
  Buffer<Kel32f> taps(L), x(n), y(n), z(n);
  FftwOls f(taps.data(), n, L);
  KelsFIRState_32f* s = nullptr;
  kelsFIRInitAlloc_32f(&s, taps.data(), L, nullptr);
  kels::bench::time_pair(st, 1, 0, "fftw", true, [&] { kelsFIR_32f(x.data(), y.data(), n, s); },
                         [&] { f.run(x.data(), z.data()); });
  kelsFIRFree_32f(s);
  finish(st, n);
}
BENCHMARK(BM_FIR_32f_fftw_ols)->Apply(args);
BENCHMARK(BM_FIR_32f_vs_fftw)->ArgsProduct({{4096, 65536}, {128, 512, 2048}});
#endif

// 10^6 samples with 1, 2 and 3 threads (the parallel regions above 160000
// samples): 128 taps on an InitAlloc record (FFT method) and 32 taps on a
// record built by Init (direct method). Compare real times of the same run.
void BM_FIR_32f_threads_fft(benchmark::State& st) {
  OneThread team(static_cast<int>(st.range(0)));
  run_state<Kel32f, KelsFIRState_32f, kelsFIRInitAlloc_32f, kelsFIR_32f, kelsFIRFree_32f>(st, 1000000, 128);
}

void BM_FIR_32f_threads_direct(benchmark::State& st) {
  OneThread team(static_cast<int>(st.range(0)));
  const int n = 1000000, L = 32;
  int size = 0;
  kelsFIRGetStateSize_32f(L, &size);
  Buffer<Kel8u> mem(static_cast<std::size_t>(size));
  Buffer<Kel32f> taps(L), x(n), y(n);
  KelsFIRState_32f* s = nullptr;
  kelsFIRInit_32f(&s, taps.data(), L, nullptr, mem.data());
  for (auto _ : st) {
    kelsFIR_32f(x.data(), y.data(), n, s);
    benchmark::DoNotOptimize(y.data());
  }
  finish(st, n);
}

// Speed-up of 2 threads over 1 on the same record: each iteration times one
// call with each count; on a shared machine the fastest calls of each kind
// are the ones the other core was free for, so the counter speedup is the
// ratio of the minima (t1_ms, t2_ms). Arg 0: InitAlloc record, 128 taps (FFT
// method); 1: Init record, 128 taps (direct method); 2: Init, 32 taps.
void BM_FIR_32f_speedup(benchmark::State& st) {
  const int n = 1000000, mode = static_cast<int>(st.range(0)), L = mode == 2 ? 32 : 128;
  OneThread team(2);
  Buffer<Kel32f> taps(L), x(n), y(n);
  int size = 0;
  kelsFIRGetStateSize_32f(L, &size);
  Buffer<Kel8u> mem(static_cast<std::size_t>(size));
  KelsFIRState_32f* s = nullptr;
  if (mode == 0) kelsFIRInitAlloc_32f(&s, taps.data(), L, nullptr);
  else kelsFIRInit_32f(&s, taps.data(), L, nullptr, mem.data());
  using Clock = std::chrono::steady_clock;
  double best[3] = {1e30, 1e30, 1e30};
  for (auto _ : st) {
    for (int t = 1; t <= 2; ++t) {
      kel_set_num_threads(t);
      const auto t0 = Clock::now();
      kelsFIR_32f(x.data(), y.data(), n, s);
      benchmark::DoNotOptimize(y.data());
      best[t] = std::min(best[t], std::chrono::duration<double, std::milli>(Clock::now() - t0).count());
    }
  }
  if (mode == 0) kelsFIRFree_32f(s);
  st.counters["t1_ms"] = best[1];
  st.counters["t2_ms"] = best[2];
  st.counters["speedup"] = best[1] / best[2];
}

}  // namespace

BENCHMARK(BM_FIR_32f_speedup)->DenseRange(0, 2)->UseRealTime();
BENCHMARK(BM_FIR_32f)->Apply(args);
BENCHMARK(BM_FIR_32f_plain)->Apply(args);
BENCHMARK(BM_FIR_32fc)->Apply(args);
BENCHMARK(BM_FIR_32fc_plain)->Apply(args);
BENCHMARK(BM_FIR_Direct_32f)->Apply(args);
BENCHMARK(BM_FIR_32f_threads_fft)->Arg(1)->Arg(2)->Arg(3)->UseRealTime();
BENCHMARK(BM_FIR_32f_threads_direct)->Arg(1)->Arg(2)->Arg(3)->UseRealTime();
BENCHMARK_MAIN();
