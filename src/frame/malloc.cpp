// Aligned allocation. A block handed out lies inside one malloc block of
// n * size + 36 bytes: the returned address is (raw + 35) rounded down to a
// multiple of 32, and the 32-bit word just below it records the raw address.
// On 32-bit targets that word is the raw address itself. On 64-bit targets it
// holds the raw address's low 32 bits; since raw lies 4..35 bytes below the
// returned address, those bits identify it exactly.
#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "frame/common.h"
#include "frame/malloc.h"

namespace kels {

namespace {
std::atomic<int> g_fail_countdown{0};

bool injected_failure() {
  int n = g_fail_countdown.load(std::memory_order_relaxed);
  while (n > 0) {
    if (g_fail_countdown.compare_exchange_weak(n, n - 1, std::memory_order_relaxed)) return n == 1;
  }
  return false;
}
}  // namespace

void fail_alloc_after(int countdown) { g_fail_countdown.store(countdown > 0 ? countdown : 0); }

void* aligned_alloc_bytes(std::uint32_t bytes) {
  if (injected_failure()) return nullptr;
  // The size is computed in 32-bit unsigned arithmetic like the callers'
  // element counts; a count that wraps yields a small block, as documented.
  const std::uint32_t total = bytes + 36u;
  void* raw = std::malloc(total);
  if (raw == nullptr) return nullptr;
  const std::uintptr_t raw_addr = reinterpret_cast<std::uintptr_t>(raw);
  const std::uintptr_t user = (raw_addr + 35u) & ~static_cast<std::uintptr_t>(31u);
  const std::uint32_t word = static_cast<std::uint32_t>(raw_addr);
  std::memcpy(reinterpret_cast<void*>(user - 4u), &word, sizeof word);
  return reinterpret_cast<void*>(user);
}

void aligned_free(void* ptr) {
  if (ptr == nullptr) return;
  const std::uintptr_t user = reinterpret_cast<std::uintptr_t>(ptr);
  std::uint32_t word;
  std::memcpy(&word, reinterpret_cast<const void*>(user - 4u), sizeof word);
  // Distance from raw to user, taken modulo 2^32: 4..35 for a genuine block.
  const std::uint32_t distance = static_cast<std::uint32_t>(user) - word;
  std::free(reinterpret_cast<void*>(user - distance));
}

}  // namespace kels

#define KELS_MALLOC_MEMBERS(X) \
  X(8u, Kel8u) X(16u, Kel16u) X(32u, Kel32u) X(8s, Kel8s) X(16s, Kel16s) \
  X(32s, Kel32s) X(64s, Kel64s) X(32f, Kel32f) X(64f, Kel64f) X(8sc, Kel8sc) \
  X(16sc, Kel16sc) X(32sc, Kel32sc) X(64sc, Kel64sc) X(32fc, Kel32fc) X(64fc, Kel64fc)

#define KELS_DEFINE_MALLOC(code, T)                                              \
  KELS_EXPORT T* kelsMalloc_##code(int len) {                                    \
    if (len < 1) return nullptr;                                                 \
    return static_cast<T*>(kels::aligned_alloc_bytes(                            \
        static_cast<std::uint32_t>(len) * static_cast<std::uint32_t>(sizeof(T)))); \
  }
KELS_FOR_MEMBERS(KELS_MALLOC_MEMBERS, KELS_DEFINE_MALLOC)

KELS_EXPORT void kelsFree(void* ptr) { kels::aligned_free(ptr); }
