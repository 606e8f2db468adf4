// Generators and companding against plain loops compiled in this binary
// (-O3 -march=native): normal random numbers by the same generator and polar
// method, and the textbook per-sample G.711 mu-law encoder.
#include <cmath>
#include <cstdint>
#include <vector>

#include "bench_util.h"

namespace {

using kels::bench::Buffer;

void gen_sizes(benchmark::internal::Benchmark* b) { b->Arg(1 << 10)->Arg(1 << 16)->Arg(1 << 20); }

void BM_RandGauss32f_kels(benchmark::State& st) {
  const int n = static_cast<int>(st.range(0));
  Buffer<Kel32f> d(static_cast<std::size_t>(n));
  unsigned int seed = 1;
  for (auto _ : st) {
    kelsRandGauss_Direct_32f(d.data(), n, 0.0f, 1.0f, &seed);
    benchmark::DoNotOptimize(d.data());
    benchmark::ClobberMemory();
  }
  st.SetItemsProcessed(static_cast<std::int64_t>(st.iterations()) * n);
}

// The same stream written as a plain loop: subtract-with-borrow plus
// congruential words, polar method in double precision.
void BM_RandGauss32f_loop(benchmark::State& st) {
  const int n = static_cast<int>(st.range(0));
  Buffer<Kel32f> d(static_cast<std::size_t>(n));
  std::uint32_t seed = 1;
  for (auto _ : st) {
    std::uint32_t x1 = seed, x2 = 69069u * x1 + 1013904243u, x3 = 69069u * x2 + 1013904243u;
    std::uint32_t c = 0xFFFFFFFFu, g = 1131199209u;
    auto next = [&]() {
      const std::uint32_t t = x2 - x3 + c;
      const std::uint32_t x = static_cast<std::int32_t>(t) < 0 ? t - 18u : t;
      c = static_cast<std::int32_t>(t) < 0 ? 0xFFFFFFFFu : 0u;
      x3 = x2;
      x2 = x1;
      x1 = x;
      g = 69069u * g + 1013904243u;
      return static_cast<std::int32_t>(x + g);
    };
    Kel32f* p = d.data();
    for (int i = 0; i < n;) {
      double u1, u2, s;
      do {
        u1 = next() * 0x1p-31;
        u2 = next() * 0x1p-31;
        s = u1 * u1 + u2 * u2;
      } while (s >= 1.0 || s == 0.0);
      const double f = std::sqrt(-2.0 * std::log(s) / s);
      p[i++] = static_cast<float>(f * u2);
      if (i < n) p[i++] = static_cast<float>(f * u1);
    }
    seed = x1;
    benchmark::DoNotOptimize(d.data());
    benchmark::ClobberMemory();
  }
  st.SetItemsProcessed(static_cast<std::int64_t>(st.iterations()) * n);
}

void BM_LinToMuLaw16s8u_kels(benchmark::State& st) {
  const int n = static_cast<int>(st.range(0));
  Buffer<Kel16s> s(static_cast<std::size_t>(n));
  Buffer<Kel8u> d(static_cast<std::size_t>(n));
  for (auto _ : st) {
    kelsLinToMuLaw_16s8u(s.data(), d.data(), n);
    benchmark::DoNotOptimize(d.data());
    benchmark::ClobberMemory();
  }
  st.SetItemsProcessed(static_cast<std::int64_t>(st.iterations()) * n);
}

// Textbook encoder: biased magnitude, segment search, four mantissa bits.
inline Kel8u mulaw_plain(Kel16s x) {
  static const int seg_end[8] = {0x3F, 0x7F, 0xFF, 0x1FF, 0x3FF, 0x7FF, 0xFFF, 0x1FFF};
  int mask = 0xFF, m;
  if (x < 0) {
    m = (~x >> 2) + 33;
    mask = 0x7F;
  } else {
    m = (x >> 2) + 33;
  }
  if (m > 8191) m = 8191;
  int seg = 0;
  while (seg < 8 && m > seg_end[seg]) ++seg;
  return static_cast<Kel8u>(((seg << 4) | ((m >> (seg + 1)) & 0xF)) ^ mask);
}

void BM_LinToMuLaw16s8u_loop(benchmark::State& st) {
  const int n = static_cast<int>(st.range(0));
  Buffer<Kel16s> s(static_cast<std::size_t>(n));
  Buffer<Kel8u> d(static_cast<std::size_t>(n));
  for (auto _ : st) {
    const Kel16s* in = s.data();
    Kel8u* out = d.data();
    for (int i = 0; i < n; ++i) out[i] = mulaw_plain(in[i]);
    benchmark::DoNotOptimize(d.data());
    benchmark::ClobberMemory();
  }
  st.SetItemsProcessed(static_cast<std::int64_t>(st.iterations()) * n);
}

// Branch-free scalar encoder (segment from the bit length); the compiler
// may vectorise this one.
void BM_LinToMuLaw16s8u_loop_branchless(benchmark::State& st) {
  const int n = static_cast<int>(st.range(0));
  Buffer<Kel16s> s(static_cast<std::size_t>(n));
  Buffer<Kel8u> d(static_cast<std::size_t>(n));
  for (auto _ : st) {
    const Kel16s* in = s.data();
    Kel8u* out = d.data();
    for (int i = 0; i < n; ++i) {
      const int x = in[i];
      const int neg = x >> 31;
      int m = ((x ^ neg) >> 2) + 33;
      m = m < 8191 ? m : 8191;
      const int seg = 32 - __builtin_clz(static_cast<unsigned>(m >> 6) | 1u) - ((m >> 6) == 0);
      const int code = 143 - 16 * (seg + 1) - ((m >> (seg + 1)) & 15);
      out[i] = static_cast<Kel8u>(code | (~neg & 0x80));
    }
    benchmark::DoNotOptimize(d.data());
    benchmark::ClobberMemory();
  }
  st.SetItemsProcessed(static_cast<std::int64_t>(st.iterations()) * n);
}

}  // namespace

BENCHMARK(BM_RandGauss32f_kels)->Apply(gen_sizes);
BENCHMARK(BM_RandGauss32f_loop)->Apply(gen_sizes);
BENCHMARK(BM_LinToMuLaw16s8u_kels)->Apply(gen_sizes);
BENCHMARK(BM_LinToMuLaw16s8u_loop)->Apply(gen_sizes);
BENCHMARK(BM_LinToMuLaw16s8u_loop_branchless)->Apply(gen_sizes);
BENCHMARK_MAIN();
