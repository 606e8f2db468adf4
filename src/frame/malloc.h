// Aligned allocation used by kelsMalloc_* and by every InitAlloc.
#ifndef KELS_FRAME_MALLOC_H
#define KELS_FRAME_MALLOC_H

#include <cstdint>

namespace kels {

// A 32-byte aligned block of `bytes` bytes (see malloc.cpp for the layout),
// or null. Release with aligned_free (== kelsFree).
void* aligned_alloc_bytes(std::uint32_t bytes);
void aligned_free(void* ptr);

// Typed convenience for records and work buffers.
template <class T>
T* aligned_alloc_n(std::uint32_t n) {
  return static_cast<T*>(aligned_alloc_bytes(n * static_cast<std::uint32_t>(sizeof(T))));
}

// Test hook, not exported from the shared library: makes aligned_alloc_bytes
// fail (return null) on the countdown'th call from now (1 = the next call);
// 0 disables. The unit tests link the library statically and use it to walk
// every allocation-failure path.
void fail_alloc_after(int countdown);

}  // namespace kels

#endif  // KELS_FRAME_MALLOC_H
