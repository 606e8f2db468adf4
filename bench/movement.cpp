// Copy and Set bandwidth against the C runtime's memcpy and a plain fill
// loop. The ratio counters (kels / peer) are printed by the *_Ratio runs.
#include <cstring>

#include "bench_util.h"

namespace {

using kels::bench::Buffer;

void BM_Copy32f_kels(benchmark::State& st) {
  const std::size_t n = static_cast<std::size_t>(st.range(0));
  Buffer<Kel32f> a(n), b(n);
  for (auto _ : st) {
    kelsCopy_32f(a.data(), b.data(), static_cast<int>(n));
    benchmark::DoNotOptimize(b.data());
    benchmark::ClobberMemory();
  }
  kels::bench::set_bytes(st, 2 * n * sizeof(Kel32f));
}

void BM_Copy32f_memcpy(benchmark::State& st) {
  const std::size_t n = static_cast<std::size_t>(st.range(0));
  Buffer<Kel32f> a(n), b(n);
  for (auto _ : st) {
    std::memcpy(b.data(), a.data(), n * sizeof(Kel32f));
    benchmark::DoNotOptimize(b.data());
    benchmark::ClobberMemory();
  }
  kels::bench::set_bytes(st, 2 * n * sizeof(Kel32f));
}

void BM_Set32f_kels(benchmark::State& st) {
  const std::size_t n = static_cast<std::size_t>(st.range(0));
  Buffer<Kel32f> b(n);
  for (auto _ : st) {
    kelsSet_32f(0.5f, b.data(), static_cast<int>(n));
    benchmark::DoNotOptimize(b.data());
    benchmark::ClobberMemory();
  }
  kels::bench::set_bytes(st, n * sizeof(Kel32f));
}

void BM_Set32f_loop(benchmark::State& st) {
  const std::size_t n = static_cast<std::size_t>(st.range(0));
  Buffer<Kel32f> b(n);
  for (auto _ : st) {
    float* p = b.data();
    for (std::size_t i = 0; i < n; ++i) p[i] = 0.5f;
    benchmark::DoNotOptimize(b.data());
    benchmark::ClobberMemory();
  }
  kels::bench::set_bytes(st, n * sizeof(Kel32f));
}

}  // namespace

BENCHMARK(BM_Copy32f_kels)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_Copy32f_memcpy)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_Set32f_kels)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_Set32f_loop)->Apply(kels::bench::standard_sizes);
BENCHMARK_MAIN();
