// Helpers shared by the benchmarks: aligned buffers and the sizes used
// everywhere (1 Ki, 64 Ki, 16 Mi elements).
#ifndef KELS_BENCH_UTIL_H
#define KELS_BENCH_UTIL_H

#include <cstddef>
#include <cstdint>

#include <benchmark/benchmark.h>

#include "kels.h"

namespace kels::bench {

// Owning 64-byte aligned buffer of n elements, filled with a deterministic
// pattern in [-1, 1) (floats) or the full range (integers).
template <class T>
class Buffer {
 public:
  explicit Buffer(std::size_t n);
  ~Buffer();
  Buffer(const Buffer&) = delete;
  Buffer& operator=(const Buffer&) = delete;
  T* data() { return p_; }
  std::size_t size() const { return n_; }

 private:
  T* p_;
  std::size_t n_;
};

// Standard size sweep: 1 Ki, 64 Ki, 16 Mi elements.
inline void standard_sizes(benchmark::internal::Benchmark* b) {
  b->Arg(1 << 10)->Arg(1 << 16)->Arg(1 << 24);
}

// Records bytes moved per iteration so Google Benchmark prints bandwidth.
inline void set_bytes(benchmark::State& st, std::size_t bytes_per_iter) {
  st.SetBytesProcessed(static_cast<std::int64_t>(st.iterations()) *
                       static_cast<std::int64_t>(bytes_per_iter));
}

}  // namespace kels::bench

#endif  // KELS_BENCH_UTIL_H
