// Runs a check once per SIMD target that this machine supports and that the
// library was compiled for, so every kernel is compared with its scalar twin
// on SSE4, AVX2, AVX-512 ... and the portable fallback.
#ifndef KELS_TESTS_SUPPORT_TARGETS_H
#define KELS_TESTS_SUPPORT_TARGETS_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "hwy/targets.h"

namespace kels::test {

// Calls fn(target_name) with dispatch pinned to each target in turn, then
// restores normal dispatch. Kernels reached through HWY_DYNAMIC_DISPATCH
// follow the pin; records that cache a kernel pointer must be created inside
// fn.
template <class Fn>
void for_each_target(Fn&& fn) {
  for (const std::int64_t target : hwy::SupportedAndGeneratedTargets()) {
    hwy::SetSupportedTargetsForTest(target);
    fn(std::string(hwy::TargetName(target)));
  }
  hwy::SetSupportedTargetsForTest(0);
}

// Lengths that cross the head, body and tail of kernels whose vectors hold
// up to 64 bytes, plus the given thresholds and their neighbours.
std::vector<int> sweep_lengths(std::initializer_list<int> thresholds = {});

// A buffer of n elements of T starting `offset_bytes` past a 64-byte boundary
// (for unaligned and odd-address cases), guarded by sentinel bytes on both
// sides that check() verifies were not touched.
template <class T>
class Guarded {
 public:
  explicit Guarded(std::size_t n, std::size_t offset_bytes = 0, unsigned char fill = 0xA5)
      : n_(n), offset_(offset_bytes), fill_(fill),
        storage_(kPad + offset_bytes + n * sizeof(T) + kPad + 64, fill) {}
  T* data() { return reinterpret_cast<T*>(base() + kPad + offset_); }
  const T* data() const { return reinterpret_cast<const T*>(base() + kPad + offset_); }
  std::size_t size() const { return n_; }
  T& operator[](std::size_t i) { return data()[i]; }
  // True when the bytes around the n elements still hold the fill pattern.
  bool guards_intact() const {
    const unsigned char* b = base();
    for (std::size_t i = 0; i < kPad + offset_; ++i) if (b[i] != fill_) return false;
    const unsigned char* e = b + kPad + offset_ + n_ * sizeof(T);
    for (std::size_t i = 0; i < kPad; ++i) if (e[i] != fill_) return false;
    return true;
  }
  // True when the n elements themselves still hold the fill pattern (nothing
  // was written).
  bool untouched() const {
    const unsigned char* p = reinterpret_cast<const unsigned char*>(data());
    for (std::size_t i = 0; i < n_ * sizeof(T); ++i) if (p[i] != fill_) return false;
    return true;
  }

 private:
  static constexpr std::size_t kPad = 64;
  unsigned char* base() {
    auto a = reinterpret_cast<std::uintptr_t>(storage_.data());
    return storage_.data() + ((64 - a % 64) % 64);
  }
  const unsigned char* base() const {
    auto a = reinterpret_cast<std::uintptr_t>(storage_.data());
    return storage_.data() + ((64 - a % 64) % 64);
  }
  std::size_t n_, offset_;
  unsigned char fill_;
  std::vector<unsigned char> storage_;
};

}  // namespace kels::test

#endif  // KELS_TESTS_SUPPORT_TARGETS_H
