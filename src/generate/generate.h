// Helpers shared by the window and generator families: element traits for
// real and complex types, rounding of generated values to integers, and the
// byte-copy access to records that may sit at any address in caller memory.
#ifndef KELS_GENERATE_GENERATE_H
#define KELS_GENERATE_GENERATE_H

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "frame/common.h"
#include "frame/malloc.h"
#include "kels.h"

namespace kels::generate {

// Real part type and number of parts of an element type.
template <class T> struct parts { using type = T; static constexpr int count = 1; };
template <> struct parts<Kel16sc> { using type = Kel16s; static constexpr int count = 2; };
template <> struct parts<Kel32fc> { using type = Kel32f; static constexpr int count = 2; };
template <> struct parts<Kel64fc> { using type = Kel64f; static constexpr int count = 2; };
template <class T> using part_t = typename parts<T>::type;
template <class T> constexpr bool is_complex_v = parts<T>::count == 2;

// Round half away from zero and saturate to the integer type I; NaN gives 0.
// Out-of-range values are caught before any conversion. In range, adding
// +-0.5 is exact (the value has at most 53 significant bits above 2^-21,
// floats being widened to double first) and the conversion truncates, which
// together round half away from zero.
template <class I, class F>
I round_saturate(F v) {
  static_assert(std::is_integral_v<I>);
  using W = std::conditional_t<(sizeof(F) < sizeof(double)), double, F>;
  constexpr W lo = static_cast<W>(std::numeric_limits<I>::min());
  constexpr W hi = static_cast<W>(std::numeric_limits<I>::max());
  const W x = static_cast<W>(v);
  if (!(x == x)) return 0;
  if (x <= lo) return std::numeric_limits<I>::min();
  if (x >= hi) return std::numeric_limits<I>::max();
  return static_cast<I>(static_cast<std::int64_t>(x < 0 ? x - W(0.5) : x + W(0.5)));
}

// A value computed in extended or double precision, delivered in the part
// type P: floating types round once, integer types round and saturate.
template <class P, class F>
P to_part(F v) {
  if constexpr (std::is_floating_point_v<P>) {
    return static_cast<P>(v);
  } else {
    return round_saturate<P>(v);
  }
}

// Records are read into a local copy and written back whole: the caller's
// block need not be aligned for the record's fields.
template <class R>
R load_record(const void* p) {
  R r;
  std::memcpy(&r, p, sizeof r);
  return r;
}
template <class R>
void store_record(void* p, const R& r) {
  std::memcpy(p, &r, sizeof r);
}

// InitAlloc: a library block holding record r with its allocated flag set.
template <class R>
KelStatus alloc_record(R** pp, R r) {
  KELS_REQUIRE_PTRS(pp);
  auto* p = static_cast<R*>(kels::aligned_alloc_bytes(sizeof(R)));
  if (p == nullptr) return kelStsNoMemory;
  r.allocated = 1;
  store_record(p, r);
  *pp = p;
  return kelStsOk;
}

// Free: releases a record made by InitAlloc; a record in caller memory (made
// by Init) is only invalidated by clearing its identifier.
template <class R>
KelStatus release_record(void* state, std::uint32_t id) {
  KELS_REQUIRE_PTRS(state);
  KELS_REQUIRE_ID(state, id);
  if (load_record<R>(state).allocated == 1) {
    kels::aligned_free(state);
  } else {
    const std::uint32_t zero = 0;
    std::memcpy(state, &zero, sizeof zero);
  }
  return kelStsOk;
}

constexpr long double kPiL = 3.141592653589793238462643383279502884L;
constexpr long double kTwoPiL = 2 * kPiL;

}  // namespace kels::generate

#endif  // KELS_GENERATE_GENERATE_H
