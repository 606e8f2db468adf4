// Exact integer arithmetic of the statistics family: a signed 128-bit
// accumulator (sums of 32 x 32-bit products overflow 64 bits), the
// scale-factor rule applied to it, and element traits shared by the
// reductions and searches.
#ifndef KELS_KERNELS_STATS_INT_H
#define KELS_KERNELS_STATS_INT_H

#include <cstdint>
#include <limits>
#include <type_traits>

#include "kelstypes.h"

namespace kels::stats {

// ---- Element traits: complex types are pairs of their part type.
template <class T> struct part { using type = T; static constexpr bool complex = false; };
template <> struct part<Kel16sc> { using type = Kel16s; static constexpr bool complex = true; };
template <> struct part<Kel32sc> { using type = Kel32s; static constexpr bool complex = true; };
template <> struct part<Kel64sc> { using type = Kel64s; static constexpr bool complex = true; };
template <> struct part<Kel32fc> { using type = Kel32f; static constexpr bool complex = true; };
template <> struct part<Kel64fc> { using type = Kel64f; static constexpr bool complex = true; };
template <class T> using part_t = typename part<T>::type;
template <class T> constexpr bool is_complex = part<T>::complex;
template <class T> constexpr bool is_float = std::is_floating_point_v<part_t<T>>;
// Number of scalars per element.
template <class T> constexpr std::size_t width = is_complex<T> ? 2 : 1;

template <class T>
const part_t<T>* scalars(const T* p) { return reinterpret_cast<const part_t<T>*>(p); }
template <class T>
part_t<T>* scalars(T* p) { return reinterpret_cast<part_t<T>*>(p); }

// ---- Unsigned 128-bit magnitude and signed 128-bit accumulator.
struct U128 {
  std::uint64_t hi = 0, lo = 0;
};

inline U128 shr(U128 v, int s) {  // 0 <= s < 128
  if (s == 0) return v;
  if (s >= 64) return {0, v.hi >> (s - 64)};
  return {v.hi >> s, (v.lo >> s) | (v.hi << (64 - s))};
}

// The bits of v below position s (0 < s < 128).
inline U128 low_bits(U128 v, int s) {
  if (s >= 64) return {s == 64 ? 0 : v.hi & ((std::uint64_t{1} << (s - 64)) - 1), v.lo};
  return {0, v.lo & ((std::uint64_t{1} << s) - 1)};
}

inline bool less(U128 a, U128 b) { return a.hi != b.hi ? a.hi < b.hi : a.lo < b.lo; }
inline bool equal(U128 a, U128 b) { return a.hi == b.hi && a.lo == b.lo; }

inline U128 add(U128 a, U128 b) {
  const std::uint64_t lo = a.lo + b.lo;
  return {a.hi + b.hi + (lo < a.lo ? 1 : 0), lo};
}

inline U128 negate(U128 v) { return add({~v.hi, ~v.lo}, {0, 1}); }

// Full 64 x 64 -> 128-bit unsigned product from 32-bit halves.
inline U128 mul(std::uint64_t a, std::uint64_t b) {
  const std::uint64_t a0 = a & 0xFFFFFFFFu, a1 = a >> 32, b0 = b & 0xFFFFFFFFu, b1 = b >> 32;
  const std::uint64_t p00 = a0 * b0, p01 = a0 * b1, p10 = a1 * b0, p11 = a1 * b1;
  const std::uint64_t mid = (p00 >> 32) + (p01 & 0xFFFFFFFFu) + (p10 & 0xFFFFFFFFu);
  return {p11 + (p01 >> 32) + (p10 >> 32) + (mid >> 32), (mid << 32) | (p00 & 0xFFFFFFFFu)};
}

// Two's complement signed 128-bit value.
struct Wide {
  U128 bits;

  Wide() = default;
  Wide(std::int64_t v)  // NOLINT: implicit from the 64-bit accumulators
      : bits{v < 0 ? ~std::uint64_t{0} : 0, static_cast<std::uint64_t>(v)} {}
  static Wide from_unsigned(std::uint64_t v) { Wide w; w.bits = {0, v}; return w; }
  static Wide from_u128(U128 v) { Wide w; w.bits = v; return w; }

  Wide& operator+=(Wide o) { bits = add(bits, o.bits); return *this; }
  Wide& operator-=(Wide o) { bits = add(bits, negate(o.bits)); return *this; }
  bool negative() const { return (bits.hi >> 63) != 0; }
  U128 magnitude() const { return negative() ? negate(bits) : bits; }
  long double to_long_double() const {
    const U128 m = magnitude();
    const long double v = static_cast<long double>(m.hi) * 18446744073709551616.0L +
                          static_cast<long double>(m.lo);
    return negative() ? -v : v;
  }
};

// The scale-factor rule on an exact result r: r * 2^-sf, rounded to
// nearest with ties to even for sf > 0, then saturated to T. Rounding the
// magnitude to nearest-even and restoring the sign is the same as rounding
// the signed value, since ties-to-even is symmetric.
template <class T>
T scale_wide(Wide r, int sf) {
  using L = std::numeric_limits<T>;
  const bool neg = r.negative();
  U128 m = r.magnitude();
  if (sf > 0) {
    if (sf >= 128) {
      m = {0, 0};  // |r| < 2^127, so |r| / 2^sf < 1/2
    } else {
      const U128 q = shr(m, sf);
      const U128 rem = low_bits(m, sf);
      const U128 h = sf > 64 ? U128{std::uint64_t{1} << (sf - 65), 0} : U128{0, std::uint64_t{1} << (sf - 1)};
      const bool up = less(h, rem) || (equal(rem, h) && (q.lo & 1) != 0);
      m = up ? add(q, {0, 1}) : q;
    }
  } else if (sf < 0 && (m.hi | m.lo) != 0) {
    // Any bit shifted to position 64 or above saturates every destination.
    const int s = -sf;
    if (s >= 64 || m.hi != 0 || (m.lo >> (63 - s)) != 0) {
      return neg ? L::min() : L::max();
    }
    m = {0, m.lo << s};
  }
  // m now holds the magnitude of the scaled result; saturate with its sign.
  const std::uint64_t pos_max = static_cast<std::uint64_t>(L::max());
  const std::uint64_t neg_max = pos_max + (L::is_signed ? 1 : 0);
  if (neg) {
    if (!L::is_signed) return 0;
    if (m.hi != 0 || m.lo >= neg_max) return L::min();
    return static_cast<T>(-static_cast<std::int64_t>(m.lo));
  }
  if (m.hi != 0 || m.lo > pos_max) return L::max();
  return static_cast<T>(m.lo);
}

}  // namespace kels::stats

#endif  // KELS_KERNELS_STATS_INT_H
