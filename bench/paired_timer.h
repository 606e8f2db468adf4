// Alternating timing of a kels call and its peer inside one benchmark, so
// both see the same machine load; the counters report the ratio of the two
// times and each side's rate.
#ifndef KELS_BENCH_PAIRED_TIMER_H
#define KELS_BENCH_PAIRED_TIMER_H

#include <chrono>

#include <benchmark/benchmark.h>

namespace kels::bench {

// Runs kels() and peer() `reps` times each per iteration. Counters:
// kels_ns, peer_ns (per call), ratio = kels / peer, and, when flops > 0,
// kels_gflops and <peer>_gflops = flops / time. With has_peer false only the
// kels side is timed.
template <class K, class P>
void time_pair(benchmark::State& st, int reps, double flops, const char* peer_name, bool has_peer, K kels,
               P peer) {
  using Clock = std::chrono::steady_clock;
  double tk = 0, tp = 0;
  for (auto _ : st) {
    const auto t0 = Clock::now();
    for (int r = 0; r < reps; ++r) kels();
    benchmark::ClobberMemory();
    const auto t1 = Clock::now();
    if (has_peer) {
      for (int r = 0; r < reps; ++r) peer();
      benchmark::ClobberMemory();
    }
    const auto t2 = Clock::now();
    tk += std::chrono::duration<double>(t1 - t0).count();
    tp += std::chrono::duration<double>(t2 - t1).count();
  }
  const double calls = static_cast<double>(st.iterations()) * reps;
  const std::string p(peer_name);
  st.counters["kels_ns"] = 1e9 * tk / calls;
  if (flops > 0) st.counters["kels_gflops"] = flops * calls / tk * 1e-9;
  if (has_peer) {
    st.counters[p + "_ns"] = 1e9 * tp / calls;
    if (flops > 0) st.counters[p + "_gflops"] = flops * calls / tp * 1e-9;
    st.counters["ratio"] = tk / tp;
  }
}

}  // namespace kels::bench

#endif  // KELS_BENCH_PAIRED_TIMER_H
