#include "bench_util.h"

#include <cstdlib>
#include <cstring>
#include <new>
#include <type_traits>

namespace kels::bench {

template <class T>
Buffer<T>::Buffer(std::size_t n) : n_(n) {
  void* p = nullptr;
  if (posix_memalign(&p, 64, (n ? n : 1) * sizeof(T)) != 0) throw std::bad_alloc();
  p_ = static_cast<T*>(p);
  std::uint32_t s = 12345u;
  auto* bytes = reinterpret_cast<unsigned char*>(p_);
  for (std::size_t i = 0; i < n * sizeof(T); ++i) {
    s = s * 1664525u + 1013904223u;
    bytes[i] = static_cast<unsigned char>(s >> 24);
  }
  auto fill_real = [&](auto* q, std::size_t m) {
    using R = std::remove_pointer_t<decltype(q)>;
    for (std::size_t i = 0; i < m; ++i) {
      s = s * 1664525u + 1013904223u;
      q[i] = static_cast<R>(static_cast<double>(s) / 2147483648.0 - 1.0);
    }
  };
  if constexpr (std::is_floating_point_v<T>) fill_real(p_, n);
  if constexpr (std::is_same_v<T, Kel32fc>) fill_real(reinterpret_cast<float*>(p_), 2 * n);
  if constexpr (std::is_same_v<T, Kel64fc>) fill_real(reinterpret_cast<double*>(p_), 2 * n);
}

template <class T>
Buffer<T>::~Buffer() { std::free(p_); }

template class Buffer<Kel8u>;
template class Buffer<Kel16s>;
template class Buffer<Kel16u>;
template class Buffer<Kel32s>;
template class Buffer<Kel32u>;
template class Buffer<Kel32f>;
template class Buffer<Kel64f>;
template class Buffer<Kel32fc>;
template class Buffer<Kel64fc>;
template class Buffer<Kel16sc>;

}  // namespace kels::bench
