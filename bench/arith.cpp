// Arithmetic against plain loops compiled -O3 -march=native in this binary,
// and against copy bandwidth (memcpy of one stream) at the large size.
// Bytes per iteration count every stream read and written, so the
// "bytes_per_second" columns of kels and Copy compare directly.
#include <cstring>

#include "bench_util.h"

namespace {

using kels::bench::Buffer;

template <class Body>
void run(benchmark::State& st, std::size_t bytes, Body body) {
  for (auto _ : st) {
    body();
    benchmark::ClobberMemory();
  }
  kels::bench::set_bytes(st, bytes);
}

std::size_t len_of(const benchmark::State& st) { return static_cast<std::size_t>(st.range(0)); }

// ---- kelsAdd_32f
void BM_Add32f_kels(benchmark::State& st) {
  const std::size_t n = len_of(st);
  Buffer<Kel32f> a(n), b(n), d(n);
  run(st, 3 * n * sizeof(Kel32f), [&] { kelsAdd_32f(a.data(), b.data(), d.data(), static_cast<int>(n)); });
}
void BM_Add32f_loop(benchmark::State& st) {
  const std::size_t n = len_of(st);
  Buffer<Kel32f> a(n), b(n), d(n);
  run(st, 3 * n * sizeof(Kel32f), [&] {
    const float* x = a.data();
    const float* y = b.data();
    float* z = d.data();
    for (std::size_t i = 0; i < n; ++i) z[i] = x[i] + y[i];
  });
}

// ---- kelsMul_32fc
void BM_Mul32fc_kels(benchmark::State& st) {
  const std::size_t n = len_of(st);
  Buffer<Kel32fc> a(n), b(n), d(n);
  run(st, 3 * n * sizeof(Kel32fc), [&] { kelsMul_32fc(a.data(), b.data(), d.data(), static_cast<int>(n)); });
}
void BM_Mul32fc_loop(benchmark::State& st) {
  const std::size_t n = len_of(st);
  Buffer<Kel32fc> a(n), b(n), d(n);
  run(st, 3 * n * sizeof(Kel32fc), [&] {
    const Kel32fc* x = a.data();
    const Kel32fc* y = b.data();
    Kel32fc* z = d.data();
    for (std::size_t i = 0; i < n; ++i) {
      z[i].re = x[i].re * y[i].re - x[i].im * y[i].im;
      z[i].im = x[i].re * y[i].im + x[i].im * y[i].re;
    }
  });
}

// ---- kelsAdd_16s_Sfs, scale factors 0 and 1
template <int SF>
void BM_Add16sSfs_kels(benchmark::State& st) {
  const std::size_t n = len_of(st);
  Buffer<Kel16s> a(n), b(n), d(n);
  run(st, 3 * n * sizeof(Kel16s), [&] { kelsAdd_16s_Sfs(a.data(), b.data(), d.data(), static_cast<int>(n), SF); });
}
template <int SF>
void BM_Add16sSfs_loop(benchmark::State& st) {
  const std::size_t n = len_of(st);
  Buffer<Kel16s> a(n), b(n), d(n);
  run(st, 3 * n * sizeof(Kel16s), [&] {
    const Kel16s* x = a.data();
    const Kel16s* y = b.data();
    Kel16s* z = d.data();
    for (std::size_t i = 0; i < n; ++i) {
      const int s = x[i] + y[i];
      if (SF == 0) {
        z[i] = static_cast<Kel16s>(s > 32767 ? 32767 : (s < -32768 ? -32768 : s));
      } else {
        z[i] = static_cast<Kel16s>((s + ((s >> 1) & 1)) >> 1);
      }
    }
  });
}

// ---- kelsMulC_16s_Sfs (scale factor 4: the general rounding branch)
constexpr Kel16s kMulVal = 12345;
constexpr int kMulSf = 4;
void BM_MulC16sSfs_kels(benchmark::State& st) {
  const std::size_t n = len_of(st);
  Buffer<Kel16s> a(n), d(n);
  run(st, 2 * n * sizeof(Kel16s), [&] { kelsMulC_16s_Sfs(a.data(), kMulVal, d.data(), static_cast<int>(n), kMulSf); });
}
void BM_MulC16sSfs_loop(benchmark::State& st) {
  const std::size_t n = len_of(st);
  Buffer<Kel16s> a(n), d(n);
  run(st, 2 * n * sizeof(Kel16s), [&] {
    const Kel16s* x = a.data();
    Kel16s* z = d.data();
    for (std::size_t i = 0; i < n; ++i) {
      const int p = x[i] * kMulVal;
      const int r = (p + (1 << (kMulSf - 1)) - 1 + ((p >> kMulSf) & 1)) >> kMulSf;
      z[i] = static_cast<Kel16s>(r > 32767 ? 32767 : (r < -32768 ? -32768 : r));
    }
  });
}

// ---- Copy bandwidth: one read and one write stream of 64 MiB.
void BM_Copy_memcpy(benchmark::State& st) {
  const std::size_t n = len_of(st);
  Buffer<Kel32f> a(n), d(n);
  run(st, 2 * n * sizeof(Kel32f), [&] { std::memcpy(d.data(), a.data(), n * sizeof(Kel32f)); });
}

}  // namespace

BENCHMARK(BM_Add32f_kels)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_Add32f_loop)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_Mul32fc_kels)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_Mul32fc_loop)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_Add16sSfs_kels<0>)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_Add16sSfs_loop<0>)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_Add16sSfs_kels<1>)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_Add16sSfs_loop<1>)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_MulC16sSfs_kels)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_MulC16sSfs_loop)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_Copy_memcpy)->Arg(1 << 24);
BENCHMARK_MAIN();
