// Statistics against the plain loops a user would write (compiled here with
// -O3 -march=native), and a read-bandwidth probe: the widest reduction the
// compiler vectorises on its own (XOR of 64-bit words), which streams the
// same bytes as the single-source kernels. Compare medians of the same run:
// kels / loop time, and bytes per second against BM_ReadBandwidth.
#include <cmath>
#include <cstdint>

#include "bench_util.h"

namespace {

using kels::bench::Buffer;

template <class T>
int len_of(const Buffer<T>& b) {
  return static_cast<int>(b.size());
}

// ---- Read bandwidth probe over n elements of T (the same bytes as the
// kernel it is compared with: caches make the size matter).
template <class T>
void BM_ReadBandwidth(benchmark::State& st) {
  const std::size_t n = static_cast<std::size_t>(st.range(0));
  Buffer<T> a(n);
  const auto* w = reinterpret_cast<const std::uint64_t*>(a.data());
  const std::size_t words = n * sizeof(T) / sizeof(std::uint64_t);
  for (auto _ : st) {
    std::uint64_t x = 0;
    for (std::size_t i = 0; i < words; ++i) x ^= w[i];
    benchmark::DoNotOptimize(x);
  }
  kels::bench::set_bytes(st, n * sizeof(T));
}

// ---- Sum_32f: fast and accurate hints against a float loop.
void BM_Sum32f_kels_fast(benchmark::State& st) {
  Buffer<Kel32f> a(static_cast<std::size_t>(st.range(0)));
  for (auto _ : st) {
    Kel32f s;
    kelsSum_32f(a.data(), len_of(a), &s, kelAlgHintFast);
    benchmark::DoNotOptimize(s);
  }
  kels::bench::set_bytes(st, a.size() * sizeof(Kel32f));
}

void BM_Sum32f_kels_accurate(benchmark::State& st) {
  Buffer<Kel32f> a(static_cast<std::size_t>(st.range(0)));
  for (auto _ : st) {
    Kel32f s;
    kelsSum_32f(a.data(), len_of(a), &s, kelAlgHintAccurate);
    benchmark::DoNotOptimize(s);
  }
  kels::bench::set_bytes(st, a.size() * sizeof(Kel32f));
}

void BM_Sum32f_loop(benchmark::State& st) {
  Buffer<Kel32f> a(static_cast<std::size_t>(st.range(0)));
  for (auto _ : st) {
    const float* p = a.data();
    float s = 0;
    for (std::size_t i = 0; i < a.size(); ++i) s += p[i];
    benchmark::DoNotOptimize(s);
  }
  kels::bench::set_bytes(st, a.size() * sizeof(Kel32f));
}

// ---- DotProd_32f.
void BM_DotProd32f_kels(benchmark::State& st) {
  Buffer<Kel32f> a(static_cast<std::size_t>(st.range(0))), b(a.size());
  for (auto _ : st) {
    Kel32f s;
    kelsDotProd_32f(a.data(), b.data(), len_of(a), &s);
    benchmark::DoNotOptimize(s);
  }
  kels::bench::set_bytes(st, 2 * a.size() * sizeof(Kel32f));
}

void BM_DotProd32f_loop(benchmark::State& st) {
  Buffer<Kel32f> a(static_cast<std::size_t>(st.range(0))), b(a.size());
  for (auto _ : st) {
    const float* p = a.data();
    const float* q = b.data();
    float s = 0;
    for (std::size_t i = 0; i < a.size(); ++i) s += p[i] * q[i];
    benchmark::DoNotOptimize(s);
  }
  kels::bench::set_bytes(st, 2 * a.size() * sizeof(Kel32f));
}

// ---- MaxIndx_32f.
void BM_MaxIndx32f_kels(benchmark::State& st) {
  Buffer<Kel32f> a(static_cast<std::size_t>(st.range(0)));
  for (auto _ : st) {
    Kel32f m;
    int i;
    kelsMaxIndx_32f(a.data(), len_of(a), &m, &i);
    benchmark::DoNotOptimize(m);
    benchmark::DoNotOptimize(i);
  }
  kels::bench::set_bytes(st, a.size() * sizeof(Kel32f));
}

void BM_MaxIndx32f_loop(benchmark::State& st) {
  Buffer<Kel32f> a(static_cast<std::size_t>(st.range(0)));
  for (auto _ : st) {
    const float* p = a.data();
    float m = p[0];
    int idx = 0;
    for (std::size_t i = 1; i < a.size(); ++i) {
      if (p[i] > m) {
        m = p[i];
        idx = static_cast<int>(i);
      }
    }
    benchmark::DoNotOptimize(m);
    benchmark::DoNotOptimize(idx);
  }
  kels::bench::set_bytes(st, a.size() * sizeof(Kel32f));
}

// ---- MinMax_16s.
void BM_MinMax16s_kels(benchmark::State& st) {
  Buffer<Kel16s> a(static_cast<std::size_t>(st.range(0)));
  for (auto _ : st) {
    Kel16s mn, mx;
    kelsMinMax_16s(a.data(), len_of(a), &mn, &mx);
    benchmark::DoNotOptimize(mn);
    benchmark::DoNotOptimize(mx);
  }
  kels::bench::set_bytes(st, a.size() * sizeof(Kel16s));
}

void BM_MinMax16s_loop(benchmark::State& st) {
  Buffer<Kel16s> a(static_cast<std::size_t>(st.range(0)));
  for (auto _ : st) {
    const Kel16s* p = a.data();
    Kel16s mn = p[0], mx = p[0];
    for (std::size_t i = 1; i < a.size(); ++i) {
      mn = p[i] < mn ? p[i] : mn;
      mx = p[i] > mx ? p[i] : mx;
    }
    benchmark::DoNotOptimize(mn);
    benchmark::DoNotOptimize(mx);
  }
  kels::bench::set_bytes(st, a.size() * sizeof(Kel16s));
}

// ---- Norm_L2_32f.
void BM_NormL2_32f_kels(benchmark::State& st) {
  Buffer<Kel32f> a(static_cast<std::size_t>(st.range(0)));
  for (auto _ : st) {
    Kel32f r;
    kelsNorm_L2_32f(a.data(), len_of(a), &r);
    benchmark::DoNotOptimize(r);
  }
  kels::bench::set_bytes(st, a.size() * sizeof(Kel32f));
}

void BM_NormL2_32f_loop(benchmark::State& st) {
  Buffer<Kel32f> a(static_cast<std::size_t>(st.range(0)));
  for (auto _ : st) {
    const float* p = a.data();
    float s = 0;
    for (std::size_t i = 0; i < a.size(); ++i) s += p[i] * p[i];
    const float r = std::sqrt(s);
    benchmark::DoNotOptimize(r);
  }
  kels::bench::set_bytes(st, a.size() * sizeof(Kel32f));
}

}  // namespace

BENCHMARK_TEMPLATE(BM_ReadBandwidth, Kel32f)->Apply(kels::bench::standard_sizes);
BENCHMARK_TEMPLATE(BM_ReadBandwidth, Kel16s)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_Sum32f_kels_fast)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_Sum32f_kels_accurate)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_Sum32f_loop)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_DotProd32f_kels)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_DotProd32f_loop)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_MaxIndx32f_kels)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_MaxIndx32f_loop)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_MinMax16s_kels)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_MinMax16s_loop)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_NormL2_32f_kels)->Apply(kels::bench::standard_sizes);
BENCHMARK(BM_NormL2_32f_loop)->Apply(kels::bench::standard_sizes);
BENCHMARK_MAIN();
