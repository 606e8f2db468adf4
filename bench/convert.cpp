// Conversions against plain loops compiled -O3 -march=native in the same
// binary, and against copy bandwidth: the copy moves the same number of
// bytes (read + written) per iteration as the conversion, so the ratio of
// bytes/s says how close the conversion comes to streaming speed.
#include <algorithm>
#include <cmath>
#include <cstring>

#include "bench_util.h"

namespace {

using kels::bench::Buffer;

template <class S, class D, class F>
void run(benchmark::State& st, F&& body) {
  const std::size_t n = static_cast<std::size_t>(st.range(0));
  Buffer<S> a(n);
  Buffer<D> b(n);
  for (auto _ : st) {
    body(a.data(), b.data(), n);
    benchmark::DoNotOptimize(b.data());
    benchmark::ClobberMemory();
  }
  kels::bench::set_bytes(st, n * (sizeof(S) + sizeof(D)));
}

void BM_Convert_32f16s_Sfs_kels(benchmark::State& st) {
  run<Kel32f, Kel16s>(st, [](const Kel32f* s, Kel16s* d, std::size_t n) {
    kelsConvert_32f16s_Sfs(s, d, static_cast<int>(n), 1, -15);
  });
}

// What a user writes: scale, round to nearest even, saturate. Both sides
// convert [-1, 1) samples with scale factor -15.
void BM_Convert_32f16s_Sfs_loop(benchmark::State& st) {
  run<Kel32f, Kel16s>(st, [](const Kel32f* s, Kel16s* d, std::size_t n) {
    const float scale = 32768.0f;  // scale factor -15: [-1, 1) audio to 16 bits
    for (std::size_t i = 0; i < n; ++i) {
      const float v = std::min(std::max(std::nearbyint(s[i] * scale), -32768.0f), 32767.0f);
      d[i] = static_cast<Kel16s>(v);
    }
  });
}

void BM_Convert_16s32f_kels(benchmark::State& st) {
  run<Kel16s, Kel32f>(st, [](const Kel16s* s, Kel32f* d, std::size_t n) {
    kelsConvert_16s32f(s, d, static_cast<int>(n));
  });
}

void BM_Convert_16s32f_loop(benchmark::State& st) {
  run<Kel16s, Kel32f>(st, [](const Kel16s* s, Kel32f* d, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) d[i] = static_cast<float>(s[i]);
  });
}

// memcpy of 3 bytes per element moves 6 bytes per element, as both
// conversions do.
void BM_Copy_6BytesPerElement_memcpy(benchmark::State& st) {
  const std::size_t n = static_cast<std::size_t>(st.range(0));
  Buffer<Kel8u> a(3 * n), b(3 * n);
  for (auto _ : st) {
    std::memcpy(b.data(), a.data(), 3 * n);
    benchmark::DoNotOptimize(b.data());
    benchmark::ClobberMemory();
  }
  kels::bench::set_bytes(st, 6 * n);
}

}  // namespace

BENCHMARK(BM_Convert_32f16s_Sfs_kels)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_Convert_32f16s_Sfs_loop)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_Convert_16s32f_kels)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_Convert_16s32f_loop)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_Copy_6BytesPerElement_memcpy)->Arg(1 << 16)->Arg(1 << 24);
BENCHMARK_MAIN();
