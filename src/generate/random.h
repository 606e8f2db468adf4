// The library's pseudo-random generator: a subtract-with-borrow sequence
// (lags 2 and 3, modulus 2^32 - 18) added to a linear congruential sequence.
#ifndef KELS_GENERATE_RANDOM_H
#define KELS_GENERATE_RANDOM_H

#include <cstdint>

namespace kels::generate {

struct RandomWords {
  std::uint32_t g;           // congruential word
  std::uint32_t x1, x2, x3;  // x[n-1], x[n-2], x[n-3]
  std::uint32_t c;           // borrow: 0 or 0xFFFFFFFF (-1)
};

constexpr std::uint32_t kLcgMul = 69069u;
constexpr std::uint32_t kLcgAdd = 1013904243u;
constexpr std::uint32_t kLcgStart = 1131199209u;

inline RandomWords seed_words(std::uint32_t seed) {
  RandomWords w;
  w.x1 = seed;
  w.x2 = kLcgMul * seed + kLcgAdd;
  w.x3 = kLcgMul * w.x2 + kLcgAdd;
  w.c = 0xFFFFFFFFu;
  w.g = kLcgStart;
  return w;
}

// One step of both sequences; returns x[n] + g[n] read as a signed value.
// The borrow is the sign of t, taken without a branch (it is as likely set as
// not, so a branch would be mispredicted half the time).
inline std::int32_t next_raw(RandomWords& w) {
  const std::uint32_t t = w.x2 - w.x3 + w.c;
  const std::uint32_t borrow = 0u - (t >> 31);  // all ones when t is negative
  const std::uint32_t x = t - (borrow & 18u);
  w.c = borrow;
  w.x3 = w.x2;
  w.x2 = w.x1;
  w.x1 = x;
  w.g = kLcgMul * w.g + kLcgAdd;
  return static_cast<std::int32_t>(x + w.g);
}

}  // namespace kels::generate

#endif  // KELS_GENERATE_RANDOM_H
