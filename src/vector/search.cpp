// Extremes and search: smallest and largest elements (by value or by
// magnitude, with or without their index), elementwise max/min of two
// vectors, the binary order of the largest magnitude, range counts and the
// nearest entries of a sorted table.
//
// Every index search reports the lowest index among equal extremes.
#include <cstdint>
#include <limits>

#include "frame/common.h"
#include "kernels/stats.h"

namespace kels {
namespace {

namespace kk = kels::kernels;

// Below this length an index search is one scalar scan that replaces the
// current extreme only on a strictly better element. From it on the vector
// min/max runs over chunks small enough to stay in the first-level cache;
// when a chunk improves on the extreme so far, the first occurrence of the
// chunk's extreme is located inside that chunk. Both give the lowest index.
constexpr std::size_t kIndexKernelMin = 34;
constexpr std::size_t kChunk = 4096;

template <class V>
struct Found {
  V value;
  std::size_t index;
};

// Where the values come from: the data themselves, or their magnitudes as
// unsigned values of the same width (|-32768| = 32768), computed one chunk
// at a time.
template <class T>
struct Direct {
  using V = T;
  const T* p;
  const V* chunk(std::size_t i, std::size_t) { return p + i; }
};

template <class S, class U>
struct Magnitudes {
  using V = U;
  const S* p;
  alignas(64) U buf[kChunk];
  const V* chunk(std::size_t i, std::size_t m) {
    kk::magnitude(p + i, buf, m);
    return buf;
  }
};

// The smallest (lo) and/or largest (hi) value with its lowest index; a
// null output is not searched for. With NaN data the first element stands
// unless a later one compares strictly better.
template <class Src, class V = typename Src::V>
void index_extremes(Src& src, std::size_t n, Found<V>* lo, Found<V>* hi) {
  const V* c = src.chunk(0, n < kChunk ? n : kChunk);
  Found<V> l{c[0], 0}, h{c[0], 0};
  if (n < kIndexKernelMin) {
    for (std::size_t i = 1; i < n; ++i) {
      if (c[i] < l.value) l = {c[i], i};
      if (c[i] > h.value) h = {c[i], i};
    }
  } else {
    for (std::size_t i0 = 0; i0 < n; i0 += kChunk) {
      const std::size_t m = n - i0 < kChunk ? n - i0 : kChunk;
      if (i0 != 0) c = src.chunk(i0, m);
      V cmn = c[0], cmx = c[0];
      kk::min_max(c, m, lo ? &cmn : nullptr, hi ? &cmx : nullptr);
      // The value reported is the element found, so that a zero keeps the
      // sign of its first occurrence as in the scalar scan.
      if (lo && cmn < l.value) {
        const std::size_t k = kk::find_first(c, m, cmn);
        if (k < m) l = {c[k], i0 + k};
      }
      if (hi && cmx > h.value) {
        const std::size_t k = kk::find_first(c, m, cmx);
        if (k < m) h = {c[k], i0 + k};
      }
    }
  }
  if (lo) *lo = l;
  if (hi) *hi = h;
}

// Max, Min and MinMax without indices: the caller passes null for the
// result it does not return (MinMax checks both of its pointers first).
template <class T>
KelStatus max_min(const T* src, int len, T* mn, T* mx) {
  KELS_REQUIRE_PTRS(src);
  if (mn == nullptr && mx == nullptr) return kelStsNullPtr;
  KELS_REQUIRE_LEN(len);
  kk::min_max(src, static_cast<std::size_t>(len), mn, mx);
  return kelStsOk;
}

// Index forms. kOptionalIndex: a null index pointer is accepted and only
// the value is returned.
template <bool kMax, bool kOptionalIndex, class T>
KelStatus extreme_indx(const T* src, int len, T* value, int* index) {
  KELS_REQUIRE_PTRS(src, value);
  if (!kOptionalIndex) KELS_REQUIRE_PTRS(index);
  KELS_REQUIRE_LEN(len);
  Direct<T> d{src};
  Found<T> f;
  index_extremes(d, static_cast<std::size_t>(len), kMax ? nullptr : &f, kMax ? &f : nullptr);
  *value = f.value;
  if (index) *index = static_cast<int>(f.index);
  return kelStsOk;
}

template <class T>
KelStatus min_max_indx(const T* src, int len, T* mn, int* imn, T* mx, int* imx) {
  KELS_REQUIRE_PTRS(src, mn, imn, mx, imx);
  KELS_REQUIRE_LEN(len);
  Direct<T> d{src};
  Found<T> l, h;
  index_extremes(d, static_cast<std::size_t>(len), &l, &h);
  *mn = l.value;
  *imn = static_cast<int>(l.index);
  *mx = h.value;
  *imx = static_cast<int>(h.index);
  return kelStsOk;
}

// ---- Magnitudes of signed integers, reported saturated to the source
// type (a magnitude of 32768 reads 32767).
template <class S>
using unsigned_of = std::make_unsigned_t<S>;

template <class S>
S saturate_magnitude(unsigned_of<S> m) {
  constexpr auto top = static_cast<unsigned_of<S>>(std::numeric_limits<S>::max());
  return static_cast<S>(m > top ? top : m);
}

// max(|mn|, |mx|) for mn <= mx, i.e. max(-mn, mx).
inline std::int64_t largest_magnitude(std::int64_t mn, std::int64_t mx) { return -mn > mx ? -mn : mx; }

template <bool kMax, class S>
KelStatus extreme_abs(const S* src, int len, S* value, int* index, bool want_index) {
  KELS_REQUIRE_PTRS(src, value);
  if (want_index) KELS_REQUIRE_PTRS(index);
  KELS_REQUIRE_LEN(len);
  const std::size_t n = static_cast<std::size_t>(len);
  using U = unsigned_of<S>;
  if (kMax && !want_index) {
    // The largest magnitude is that of the minimum or of the maximum.
    S mn, mx;
    kk::min_max(src, n, &mn, &mx);
    *value = saturate_magnitude<S>(static_cast<U>(largest_magnitude(mn, mx)));
    return kelStsOk;
  }
  Magnitudes<S, U> m;
  m.p = src;
  Found<U> f;
  index_extremes(m, n, kMax ? nullptr : &f, kMax ? &f : nullptr);
  *value = saturate_magnitude<S>(f.value);
  if (want_index) *index = static_cast<int>(f.index);
  return kelStsOk;
}

template <class T>
KelStatus every_i(const T* src, T* srcdst, int len, bool take_max) {
  KELS_REQUIRE_PTRS(src, srcdst);
  KELS_REQUIRE_LEN(len);
  kk::every(src, srcdst, static_cast<std::size_t>(len), take_max);
  return kelStsOk;
}

// ---- Binary order of the largest magnitude. The length is tested before
// the pointers. Floats: the biased exponent minus (bias - 1), so 1.0 has
// order 1 and 0.5 order 0; integers: the number of significant bits of the
// largest magnitude (1 -> 1, 32768 -> 16, an all-zero vector -> 0).
template <class T>
KelStatus max_order(const T* src, int len, int* order) {
  if (len < 1) return kelStsBadLength;
  KELS_REQUIRE_PTRS(src, order);
  const std::size_t n = static_cast<std::size_t>(len);
  if constexpr (std::is_floating_point_v<T>) {
    constexpr int kMantBits = std::numeric_limits<T>::digits - 1;
    constexpr int kBias = std::numeric_limits<T>::max_exponent - 1;
    const auto bits = kk::max_magnitude_bits(src, n);
    *order = static_cast<int>(bits >> kMantBits) - (kBias - 1);
    // Only single precision reports non-finite data; the exponent field of
    // an infinity or NaN is all ones (order 129).
    if (std::is_same_v<T, float> && bits > 0x7F7FFFFFu) return kelStsNotFinite;
  } else {
    T mn, mx;
    kk::min_max(src, n, &mn, &mx);
    std::uint64_t m = static_cast<std::uint64_t>(largest_magnitude(mn, mx));
    int bits = 0;
    while (m != 0) {
      ++bits;
      m >>= 1;
    }
    *order = bits;
  }
  return kelStsOk;
}

KelStatus count_in_range(const Kel32s* src, int len, int* count, Kel32s lo, Kel32s hi) {
  KELS_REQUIRE_PTRS(src, count);
  KELS_REQUIRE_LEN(len);
  *count = 0;
  *count = static_cast<int>(kk::count_in_range(src, static_cast<std::size_t>(len), lo, hi));
  return kelStsOk;
}

// Index of the table entry nearest to v in an ascending table; at equal
// distance the lower entry wins.
std::size_t nearest_entry(Kel16u v, const Kel16u* table, std::size_t n) {
  if (v <= table[0]) return 0;
  if (v >= table[n - 1]) return n - 1;
  // table[lo] <= v < table[hi] holds throughout.
  std::size_t lo = 0, hi = n - 1;
  while (hi - lo > 1) {
    const std::size_t mid = lo + (hi - lo) / 2;
    if (v >= table[mid]) {
      lo = mid;
    } else {
      hi = mid;
    }
  }
  return v - table[lo] > table[lo + 1] - v ? lo + 1 : lo;
}

KelStatus find_nearest(const Kel16u* vals, Kel16u* out_vals, int* out_idx, int len, const Kel16u* table,
                       int tbl_len) {
  KELS_REQUIRE_PTRS(vals, out_vals, out_idx, table);
  KELS_REQUIRE_LEN(len, tbl_len);
  for (std::size_t i = 0, n = static_cast<std::size_t>(len); i < n; ++i) {
    const std::size_t k = nearest_entry(vals[i], table, static_cast<std::size_t>(tbl_len));
    out_vals[i] = table[k];
    out_idx[i] = static_cast<int>(k);
  }
  return kelStsOk;
}

}  // namespace
}  // namespace kels

using namespace kels;

// ---- Member tables: (type code, element type).
// Max/Min rows: (type code, element type, MaxIndx accepts a null index
// pointer) -- only kelsMaxIndx_32f does.
#define KELS_MAXMIN_MEMBERS(X) X(16s, Kel16s, false) X(32s, Kel32s, false) X(32f, Kel32f, true) X(64f, Kel64f, false)
#define KELS_MINMAX_MEMBERS(X) \
  X(8u, Kel8u) X(16u, Kel16u) X(16s, Kel16s) X(32u, Kel32u) X(32s, Kel32s) X(32f, Kel32f) X(64f, Kel64f)
#define KELS_ABS_MEMBERS(X) X(16s, Kel16s) X(32s, Kel32s)
#define KELS_EVERY_MEMBERS(X) X(16s, Kel16s) X(32s, Kel32s) X(32f, Kel32f)
#define KELS_ORDER_MEMBERS(X) X(16s, Kel16s) X(32s, Kel32s) X(32f, Kel32f) X(64f, Kel64f)

#define KELS_DEFINE_MAXMIN(code, T, optional_index)                                             \
  KELS_EXPORT KelStatus kelsMax_##code(const T* pSrc, int len, T* pMax) {                      \
    return max_min<T>(pSrc, len, nullptr, pMax);                                                \
  }                                                                                             \
  KELS_EXPORT KelStatus kelsMin_##code(const T* pSrc, int len, T* pMin) {                      \
    return max_min<T>(pSrc, len, pMin, nullptr);                                                \
  }                                                                                             \
  KELS_EXPORT KelStatus kelsMaxIndx_##code(const T* pSrc, int len, T* pMax, int* pIndx) {      \
    return extreme_indx<true, optional_index>(pSrc, len, pMax, pIndx);               \
  }                                                                                             \
  KELS_EXPORT KelStatus kelsMinIndx_##code(const T* pSrc, int len, T* pMin, int* pIndx) {      \
    return extreme_indx<false, false>(pSrc, len, pMin, pIndx);                                  \
  }
#define KELS_DEFINE_MINMAX(code, T)                                                             \
  KELS_EXPORT KelStatus kelsMinMax_##code(const T* pSrc, int len, T* pMin, T* pMax) {          \
    KELS_REQUIRE_PTRS(pSrc, pMin, pMax);                                                        \
    return max_min<T>(pSrc, len, pMin, pMax);                                                   \
  }                                                                                             \
  KELS_EXPORT KelStatus kelsMinMaxIndx_##code(const T* pSrc, int len, T* pMin, int* pMinIndx, T* pMax, \
                                              int* pMaxIndx) {                                  \
    return min_max_indx<T>(pSrc, len, pMin, pMinIndx, pMax, pMaxIndx);                          \
  }
#define KELS_DEFINE_ABS(code, T)                                                                \
  KELS_EXPORT KelStatus kelsMaxAbs_##code(const T* pSrc, int len, T* pMaxAbs) {                \
    return extreme_abs<true>(pSrc, len, pMaxAbs, nullptr, false);                               \
  }                                                                                             \
  KELS_EXPORT KelStatus kelsMinAbs_##code(const T* pSrc, int len, T* pMinAbs) {                \
    return extreme_abs<false>(pSrc, len, pMinAbs, nullptr, false);                              \
  }                                                                                             \
  KELS_EXPORT KelStatus kelsMaxAbsIndx_##code(const T* pSrc, int len, T* pMaxAbs, int* pIndx) { \
    return extreme_abs<true>(pSrc, len, pMaxAbs, pIndx, true);                                  \
  }                                                                                             \
  KELS_EXPORT KelStatus kelsMinAbsIndx_##code(const T* pSrc, int len, T* pMinAbs, int* pIndx) { \
    return extreme_abs<false>(pSrc, len, pMinAbs, pIndx, true);                                 \
  }
#define KELS_DEFINE_EVERY(code, T)                                                              \
  KELS_EXPORT KelStatus kelsMaxEvery_##code##_I(const T* pSrc, T* pSrcDst, int len) {          \
    return every_i<T>(pSrc, pSrcDst, len, true);                                                \
  }                                                                                             \
  KELS_EXPORT KelStatus kelsMinEvery_##code##_I(const T* pSrc, T* pSrcDst, int len) {          \
    return every_i<T>(pSrc, pSrcDst, len, false);                                               \
  }
#define KELS_DEFINE_ORDER(code, T)                                                              \
  KELS_EXPORT KelStatus kelsMaxOrder_##code(const T* pSrc, int len, int* pOrder) {             \
    return max_order<T>(pSrc, len, pOrder);                                                     \
  }

KELS_FOR_MEMBERS(KELS_MAXMIN_MEMBERS, KELS_DEFINE_MAXMIN)
KELS_FOR_MEMBERS(KELS_MINMAX_MEMBERS, KELS_DEFINE_MINMAX)
KELS_FOR_MEMBERS(KELS_ABS_MEMBERS, KELS_DEFINE_ABS)
KELS_FOR_MEMBERS(KELS_EVERY_MEMBERS, KELS_DEFINE_EVERY)
KELS_FOR_MEMBERS(KELS_ORDER_MEMBERS, KELS_DEFINE_ORDER)

KELS_EXPORT KelStatus kelsCountInRange_32s(const Kel32s* pSrc, int len, int* pCounts, Kel32s lowerBound,
                                           Kel32s upperBound) {
  return count_in_range(pSrc, len, pCounts, lowerBound, upperBound);
}
KELS_EXPORT KelStatus kelsFindNearestOne_16u(Kel16u inpVal, Kel16u* pOutVal, int* pOutIndex, const Kel16u* pTable,
                                             int tblLen) {
  return find_nearest(&inpVal, pOutVal, pOutIndex, 1, pTable, tblLen);
}
KELS_EXPORT KelStatus kelsFindNearest_16u(const Kel16u* pVals, Kel16u* pOutVals, int* pOutIndexes, int len,
                                          const Kel16u* pTable, int tblLen) {
  return find_nearest(pVals, pOutVals, pOutIndexes, len, pTable, tblLen);
}
