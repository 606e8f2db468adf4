// Saturation and the scale-factor rule for integer results: the exact result
// r times 2^-scaleFactor, rounded to nearest with ties to even, saturated to
// the destination type.
#ifndef KELS_FRAME_SCALE_H
#define KELS_FRAME_SCALE_H

#include <cstdint>
#include <limits>
#include <type_traits>

namespace kels {

template <class T>
constexpr T saturate(std::int64_t v) {
  constexpr std::int64_t lo = static_cast<std::int64_t>(std::numeric_limits<T>::min());
  constexpr std::int64_t hi = static_cast<std::int64_t>(std::numeric_limits<T>::max());
  return static_cast<T>(v < lo ? lo : (v > hi ? hi : v));
}

// Saturation of a value that may exceed 64 bits' worth of headroom after a
// left shift is handled by scale_rule below; this is for in-range inputs.
constexpr std::int32_t saturate24s(std::int64_t v) {
  return static_cast<std::int32_t>(v < -8388608 ? -8388608 : (v > 8388607 ? 8388607 : v));
}

// Round-to-nearest-even right shift by s (1..62) of a signed 64-bit value:
// (r + 2^(s-1) - 1 + ((r >> s) & 1)) >> s with an arithmetic shift.
// The addition cannot overflow for |r| < 2^62, which every caller's exact
// result satisfies (products of two 32-bit values and sums of them).
constexpr std::int64_t shift_round_even(std::int64_t r, int s) {
  return (r + ((std::int64_t{1} << (s - 1)) - 1) + ((r >> s) & 1)) >> s;
}

// The full rule for an exact result r: scaleFactor > 0 rounds r / 2^sf to
// nearest even (a shift of 63 or more leaves 0); 0 keeps r; < 0 multiplies by
// 2^-sf. The result is saturated to T. Branch-per-element; the vector kernels
// specialise the common cases.
template <class T>
constexpr T scale_rule(std::int64_t r, int sf) {
  if (sf > 0) {
    if (sf > 62) return 0;  // |r| < 2^62, so the rounded quotient is 0
    return saturate<T>(shift_round_even(r, sf));
  }
  if (sf == 0) return saturate<T>(r);
  // Left shift with saturation; work on the magnitude so the shift has no
  // undefined behaviour.
  if (r == 0) return 0;
  const int s = -sf;
  constexpr std::int64_t hi = static_cast<std::int64_t>(std::numeric_limits<T>::max());
  constexpr std::int64_t lo = static_cast<std::int64_t>(std::numeric_limits<T>::min());
  if (s >= 62) return static_cast<T>(r > 0 ? hi : lo);
  const std::int64_t limit = std::int64_t{1} << (62 - s);
  if (r >= limit || r <= -limit) return static_cast<T>(r > 0 ? hi : lo);
  return saturate<T>(static_cast<std::int64_t>(static_cast<std::uint64_t>(r) << s));
}

}  // namespace kels

#endif  // KELS_FRAME_SCALE_H
