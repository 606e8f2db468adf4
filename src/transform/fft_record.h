// FFT specification records: header layout, family descriptions, the size
// rules, the shape of the large-order schemes, and the plan a transform
// builds from a record. Shared by the record operations, the complex and the
// real transforms.
#ifndef KELS_TRANSFORM_FFT_RECORD_H
#define KELS_TRANSFORM_FFT_RECORD_H

#include <cstddef>
#include <cstdint>
#include <cmath>
#include <cstring>
#include <limits>

#include "frame/common.h"
#include "kernels/fft.h"

namespace kels::fft {

// What distinguishes the thirteen record families.
struct Family {
  std::uint32_t id;
  bool dbl;      // double-precision tables (also every integer family)
  bool split;    // tables in split layout (the separate re/im families)
  bool real;     // real-signal record: complex part of order - 1
  bool integer;  // integer data converted through double precision
};

// Record header: twenty 32-bit words for single precision, twenty-one for
// double precision (the scale is a double). Tables are referred to by byte
// offsets from the header's address (0 = absent), so the header has the same
// width on 32- and 64-bit targets and the record can be copied.
template <class T>
struct Header {
  std::uint32_t id;
  std::int32_t order;
  std::int32_t scale_fwd;
  std::int32_t scale_inv;
  unsigned char scale_bytes[sizeof(T)];
  std::int32_t hint;
  std::int32_t work_bytes;
  std::int32_t owns_memory;
  std::uint32_t bitrev;
  std::uint32_t twiddle;
  std::uint32_t second;
  std::uint32_t reserved;
  std::uint32_t real_recombine;
  std::uint32_t ccs_recombine;
  std::uint32_t step[3];
  std::uint32_t step_merge[3];

  T scale() const {
    T s;
    std::memcpy(&s, scale_bytes, sizeof s);
    return s;
  }
  template <class U>
  const U* at(std::uint32_t off) const {
    return off == 0 ? nullptr
                    : reinterpret_cast<const U*>(reinterpret_cast<const unsigned char*>(this) + off);
  }
};
static_assert(sizeof(Header<float>) == 80, "single-precision header is twenty words");
static_assert(sizeof(Header<double>) == 84, "double-precision header is twenty-one words");

// Byte offset of the first table: the header rounded up to 16 bytes.
template <class T>
constexpr std::uint32_t tables_start() {
  return (sizeof(Header<T>) + 15) & ~std::uint32_t{15};
}

// The four accepted scale flags: 1 forward 1/N, 2 inverse 1/N, 4 both
// 1/sqrt(N), 8 none.
bool flag_ok(int flag);

// Largest order a leaf (first-level table) transforms: 1024 points of single
// precision or 512 of double precision, 8 KiB of data either way.
constexpr int leaf_max(bool dbl) { return dbl ? 9 : 10; }

// Outer (column) order of the large-order schemes, by order; 0 selects the
// two-level halving scheme.
int outer_order(int order, bool dbl);

// The decomposition of a complex transform of order >= 4.
struct Shape {
  int leaf = 0;
  int two_level = 0;
  int levels = 0;
  int step_order[3] = {0, 0, 0};
  int step_k[3] = {0, 0, 0};
};
Shape shape_of(int order, bool dbl);

// Byte sizes a record reports. work is the record's workBufferSize (without
// the 16 bytes of alignment slack).
struct Sizes {
  std::int64_t record = 0, init = 0, work = 0;
};
Sizes record_sizes(const Family& f, int order);

// Builds a record into the 16-byte aligned memory at `rec` (ownsMemory
// given), with the base sine table in `init_buf`. Returns the status that
// Init must return; on failure the identifier is left 0.
KelStatus build_record(const Family& f, void* rec, int order, int flag, int hint, void* init_buf,
                       bool owns, void** out);

// Complex plan of order `corder` from a record's tables.
template <class T>
kernels::FftPlan<T> plan_of(const Header<T>* h, int corder, bool dbl) {
  kernels::FftPlan<T> p;
  if (corder <= leaf_max(dbl)) {  // a single leaf: no large-order scheme
    p.order = p.leaf = corder;
    p.first = h->template at<T>(h->twiddle);
    p.rev = h->template at<std::uint32_t>(h->bitrev);
    return p;
  }
  const Shape s = shape_of(corder, dbl);
  p.order = corder;
  p.leaf = s.leaf;
  p.first = h->template at<T>(h->twiddle);
  p.two_level = s.two_level;
  p.second = h->template at<T>(h->second);
  p.levels = s.levels;
  for (int i = 0; i < s.levels; ++i) {
    p.step[i] = {s.step_order[i], s.step_k[i], h->template at<T>(h->step[i]),
                 h->template at<T>(h->step_merge[i])};
  }
  p.rev = h->template at<std::uint32_t>(h->bitrev);
  return p;
}

inline void* align16(void* p) {
  const auto a = reinterpret_cast<std::uintptr_t>(p);
  return static_cast<unsigned char*>(p) + ((16 - a % 16) % 16);
}

// A transform's work area: the caller's buffer aligned up to 16 bytes, or a
// library allocation of `bytes` that lives until the end of the call.
class WorkArea {
 public:
  WorkArea(Kel8u* caller, std::int64_t bytes);
  ~WorkArea();
  WorkArea(const WorkArea&) = delete;
  WorkArea& operator=(const WorkArea&) = delete;
  bool failed() const { return ptr_ == nullptr && bytes_ > 0; }
  template <class T>
  T* as() const { return static_cast<T*>(ptr_); }

 private:
  void* ptr_ = nullptr;
  bool owned_ = false;
  std::int64_t bytes_;
};

// Integer outputs of the integer transforms, computed in double precision:
// Nearest integer, ties to even, saturated to I.
template <class I>
inline I round_saturate(double y) {
  constexpr double lo = static_cast<double>(std::numeric_limits<I>::min());
  constexpr double hi = static_cast<double>(std::numeric_limits<I>::max());
  if (!(y > lo)) return std::numeric_limits<I>::min();  // also NaN, which exact data never give
  if (y >= hi) return std::numeric_limits<I>::max();
  double f = std::floor(y);
  const double frac = y - f;
  if (frac > 0.5 || (frac == 0.5 && std::fmod(f, 2.0) != 0.0)) f += 1.0;
  return static_cast<I>(f);
}

}  // namespace kels::fft

#endif  // KELS_TRANSFORM_FFT_RECORD_H
