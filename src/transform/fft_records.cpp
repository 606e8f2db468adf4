// FFT specification records of the thirteen families: sizes, construction
// of the tables from one quarter-wave sine table, release, buffer sizes.
#include <climits>
#include <cstddef>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "frame/common.h"
#include "frame/malloc.h"
#include "transform/fft_record.h"

namespace kels::fft {
namespace {

constexpr std::int64_t r16(std::int64_t x) { return x & ~std::int64_t{15}; }
constexpr std::int64_t up16(std::int64_t x) { return (x + 15) & ~std::int64_t{15}; }

// Columns per row group of the stepped scheme, indexed by order. The
// irregular entries (8 for orders 23 and 24 of single precision, 8 for 21
// and 22 of double precision) keep the column table and a column group
// inside the second-level cache at those sizes.
constexpr signed char kOuterSingle[31] = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,   // 0..10: leaf
                                          0, 0, 5, 6, 7, 8, 8, 8, 10, 10,    // 11..20
                                          10, 10, 8, 8, 10, 10, 10, 10, 10, 10};
constexpr signed char kOuterDouble[31] = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,   // 0..9 leaf, 10, 11
                                          0, 4, 5, 6, 7, 7, 8, 9, 9, 9,      // 11..20
                                          8, 8, 9, 9, 9, 9, 9, 9, 9, 9};

// Size of the base sine table (N/4 + 1 entries) with its alignment slack.
std::int64_t base_table_bytes(int order, bool dbl) {
  const std::int64_t n = std::int64_t{1} << order;
  return dbl ? r16(8 * (n / 4) + 23) : r16(n + 19);
}

struct Inner {
  std::int64_t tables = 0, extra = 0, work = 0;
};

// Table, init-buffer and work bytes of the complex part of order `order`
// (>= 4), before the bit-reversal table.
Inner inner_sizes(int order, bool dbl) {
  const std::int64_t e = dbl ? 16 : 8;  // bytes per complex element
  const std::int64_t n = std::int64_t{1} << order;
  Inner r;
  if (order <= leaf_max(dbl)) {
    r.tables = r16(e * n + 23);
    r.work = r16(e * n + 15);
    return r;
  }
  const int k = outer_order(order, dbl);
  if (k == 0) {
    const std::int64_t leaf = std::int64_t{1} << leaf_max(dbl);
    r.tables = r16(e * (n / 2) + 15) + r16(e * leaf + 23);
    r.work = e * leaf;
    return r;
  }
  r = inner_sizes(order - k, dbl);
  const std::int64_t kk = std::int64_t{1} << k;
  r.tables += r16(e * kk + 23) + e * n;
  r.extra += base_table_bytes(k, dbl) + 4 * e * kk;
  if (4 * e * kk > r.work) r.work = 4 * e * kk;
  return r;
}

Sizes complex_sizes(int order, bool dbl) {
  Sizes s;
  if (order < 4) {
    s.record = dbl ? 100 : 96;
    return s;
  }
  const Inner in = inner_sizes(order, dbl);
  const std::int64_t n = std::int64_t{1} << order;
  s.record = (dbl ? 112 : 96) + in.tables + r16(n + 19);
  s.init = base_table_bytes(order, dbl) + in.extra + 16;
  s.work = in.work;
  return s;
}

bool fits_int(const Sizes& s) {
  return s.record <= INT_MAX && s.init <= INT_MAX && s.work + 16 <= INT_MAX;
}

// ---- Table construction --------------------------------------------------

// e^(-2 pi i m / 2^ob) from the quarter-wave table sin(2 pi k / 2^ob),
// k = 0..2^ob/4, by symmetry.
template <class T>
struct Twiddles {
  const T* base;
  int ob;
  T sin_at(std::uint64_t m) const {
    const std::uint64_t nb = std::uint64_t{1} << ob, q = nb / 4;
    m &= nb - 1;
    if (m <= q) return base[m];
    if (m <= 2 * q) return base[2 * q - m];
    if (m <= 3 * q) return -base[m - 2 * q];
    return -base[nb - m];
  }
  // W_(2^lorder)^e
  kernels::scalar::Cx<T> w(std::uint64_t e, int lorder) const {
    const std::uint64_t m = e << (ob - lorder);
    const std::uint64_t nb = std::uint64_t{1} << ob;
    return {sin_at(m + nb / 4), static_cast<T>(-sin_at(m))};
  }
};

template <class T>
void put(T* blk, std::size_t count, std::size_t idx, kernels::scalar::Cx<T> v, bool split) {
  if (split) {
    blk[idx] = v.r;
    blk[count + idx] = v.i;
  } else {
    blk[2 * idx] = v.r;
    blk[2 * idx + 1] = v.i;
  }
}

template <class T>
void fill_base(T* base, int order) {
  const std::int64_t n = std::int64_t{1} << order;
  // 2*pi as the double 6.283185307179586, divided in extended precision; the
  // quotient by a power of two is exact, so the rounding to double is too.
  const double step = static_cast<double>(6.283185307179586L / static_cast<long double>(n));
  for (std::int64_t k = 0; k <= n / 4; ++k) {
    // The upper half of the quarter wave comes from the cosine, whose
    // argument is small there: better accuracy near pi/2.
    const double v = k <= n / 8 ? std::sin(static_cast<double>(k) * step)
                                : std::cos(static_cast<double>(n / 4 - k) * step);
    base[k] = static_cast<T>(v);
  }
}

template <class T>
std::size_t first_level_entries(int n) {
  std::size_t total = 0;
  for (std::size_t L = (n & 1) ? 8 : 16; L <= (std::size_t{1} << n); L *= 4) total += 3 * L / 4;
  return total;
}

template <class T>
void fill_first_level(T* t, int n, const Twiddles<T>& tw, bool split) {
  for (std::size_t L = (n & 1) ? 8 : 16; L <= (std::size_t{1} << n); L *= 4) {
    const std::size_t q = L / 4, c = 3 * q;
    int l = 0;
    while ((std::size_t{1} << l) < L) ++l;
    for (std::size_t r = 0; r < 3; ++r)
      for (std::size_t j = 0; j < q; ++j) put(t, c, r * q + j, tw.w((r + 1) * j, l), split);
    t += 2 * c;
  }
}

std::uint32_t reverse_bits(std::uint32_t x, int bits) {
  std::uint32_t r = 0;
  for (int i = 0; i < bits; ++i) r |= ((x >> i) & 1u) << (bits - 1 - i);
  return r;
}

// Merge factors of a stepped level: w^(rev_k(b) q) = G[q / 8][b] R[b][q mod 8]
// (w = e^(-2 pi i / 2^n)), so the column pass reads one factor per row and
// eight columns instead of one per element.
template <class T>
void fill_merge(T* t, int n, int k, const Twiddles<T>& tw, bool split) {
  const std::size_t K = std::size_t{1} << k, M = std::size_t{1} << (n - k);
  for (std::size_t b = 0; b < K; ++b) {
    const std::uint64_t rb = reverse_bits(static_cast<std::uint32_t>(b), k);
    for (std::size_t c = 0; c < 16; ++c) put(t + 32 * b, 16, c, tw.w(rb * c, n), split);
  }
  T* g = t + 32 * K;
  for (std::size_t h = 0; h < M / 8; ++h)
    for (std::size_t b = 0; b < K; ++b) {
      const std::uint64_t rb = reverse_bits(static_cast<std::uint32_t>(b), k);
      put(g + 2 * (h * K + b), 1, 0, tw.w(rb * 8 * h, n), split);
    }
}

// Places the tables one after the other from `cur`, each at a 16-byte
// boundary, and returns the offset of the next one.
struct Placer {
  unsigned char* rec;
  std::uint32_t cur;
  template <class U>
  U* take(std::uint32_t& field, std::size_t bytes) {
    field = cur;
    cur = static_cast<std::uint32_t>(up16(cur + static_cast<std::int64_t>(bytes)));
    return reinterpret_cast<U*>(rec + field);
  }
};

// Tables of a complex part of order `corder` (>= 4), base table of order
// `ob`.
template <class T>
void build_complex_tables(Header<T>* h, Placer& pl, int corder, bool dbl, bool split,
                          const Twiddles<T>& tw) {
  const Shape s = shape_of(corder, dbl);
  const int hb = (corder + 1) / 2;
  std::uint32_t* rev = pl.template take<std::uint32_t>(h->bitrev, (std::size_t{4} << hb));
  for (std::uint32_t x = 0; x < (1u << hb); ++x) rev[x] = reverse_bits(x, hb);
  T* first = pl.template take<T>(h->twiddle, 2 * sizeof(T) * first_level_entries<T>(s.leaf));
  fill_first_level(first, s.leaf, tw, split);
  if (s.two_level) {
    const std::size_t c = std::size_t{1} << (s.two_level - 1);
    T* sec = pl.template take<T>(h->second, 2 * sizeof(T) * c);
    for (std::size_t q = 0; q < c; ++q) put(sec, c, q, tw.w(q, s.two_level), split);
  }
  for (int i = 0; i < s.levels; ++i) {
    T* col = pl.template take<T>(h->step[i], 2 * sizeof(T) * first_level_entries<T>(s.step_k[i]));
    fill_first_level(col, s.step_k[i], tw, split);
    T* merge = pl.template take<T>(h->step_merge[i], 2 * sizeof(T) * (std::size_t{1} << s.step_order[i]));
    fill_merge(merge, s.step_order[i], s.step_k[i], tw, split);
  }
}

template <class T>
KelStatus build(const Family& f, void* mem, int order, int flag, int hint, void* init_buf, bool owns,
                void** out) {
  auto* h = static_cast<Header<T>*>(mem);
  std::memset(h, 0, sizeof *h);
  h->id = f.id;
  h->order = order;
  h->hint = hint;
  h->owns_memory = owns ? 1 : 0;
  const std::int64_t n = std::int64_t{1} << order;
  T scale;
  switch (flag) {
    case 1:
    case 2:
      // Single precision divides in single precision; double precision
      // rounds the extended-precision quotient.
      scale = sizeof(T) == 4 ? static_cast<T>(1.0f / static_cast<float>(n))
                             : static_cast<T>(1.0L / static_cast<long double>(n));
      h->scale_fwd = flag == 1;
      h->scale_inv = flag == 2;
      break;
    case 4:
      scale = static_cast<T>(1.0L / std::sqrt(static_cast<long double>(n)));
      h->scale_fwd = h->scale_inv = 1;
      break;
    case 8:
      scale = 0;
      break;
    default:
      h->id = 0;  // released half-made record
      return kelStsBadFlag;
  }
  std::memcpy(h->scale_bytes, &scale, sizeof scale);
  if (order < 4) {
    *out = h;
    return kelStsOk;
  }
  if (init_buf == nullptr) {
    h->id = 0;
    return kelStsNullPtr;
  }
  const Sizes sz = record_sizes(f, order);
  if (!fits_int(sz)) {
    h->id = 0;
    return kelStsNoMemory;
  }
  h->work_bytes = static_cast<std::int32_t>(sz.work);
  T* base = static_cast<T*>(align16(init_buf));
  fill_base(base, order);
  const Twiddles<T> tw{base, order};
  Placer pl{static_cast<unsigned char*>(mem), tables_start<T>()};
  const int corder = f.real ? order - 1 : order;
  if (corder >= 4) build_complex_tables(h, pl, corder, f.dbl, f.split, tw);
  if (f.real) {
    // Recombination factors u[k], k = 0..N/4-1, of w^k = e^(-2 pi i k/N)
    // with the rotation and the forward 1/2 folded in (exactly):
    // -i w^k / 2 (forward) and i conj(w^k) (inverse); see kernels/fft_real.h.
    const std::size_t c = static_cast<std::size_t>(n / 4);
    T* rr = pl.template take<T>(h->real_recombine, 2 * sizeof(T) * c);
    T* cr = pl.template take<T>(h->ccs_recombine, 2 * sizeof(T) * c);
    for (std::size_t k = 0; k < c; ++k) {
      const auto w = tw.w(k, order);
      put(rr, c, k, kernels::scalar::Cx<T>{w.i / 2, -w.r / 2}, false);
      put(cr, c, k, kernels::scalar::Cx<T>{w.i, w.r}, false);
    }
  }
  *out = h;
  return kelStsOk;
}

// ---- Exported operations, one template each over the family -------------

KelStatus get_size(const Family& f, int order, int* record, int* init, int* work) {
  if (order < 0 || order > 30) return kelStsBadOrder;
  KELS_REQUIRE_PTRS(record, init, work);
  const Sizes s = record_sizes(f, order);
  if (!fits_int(s)) return kelStsNoMemory;
  *record = static_cast<int>(s.record);
  *init = static_cast<int>(s.init);
  *work = s.work > 0 ? static_cast<int>(s.work + 16) : 0;
  return kelStsOk;
}

template <class FftRecord>
KelStatus init(const Family& f, FftRecord** pp, int order, int flag, int hint, Kel8u* mem, Kel8u* buf) {
  KELS_REQUIRE_PTRS(pp);
  if (order < 0 || order > 30) return kelStsBadOrder;
  KELS_REQUIRE_PTRS(mem);
  void* out = nullptr;
  const KelStatus st = build_record(f, align16(mem), order, flag, hint, buf, false, &out);
  if (st == kelStsOk) *pp = static_cast<FftRecord*>(out);
  return st;
}

template <class FftRecord>
KelStatus init_alloc(const Family& f, FftRecord** pp, int order, int flag, int hint) {
  KELS_REQUIRE_PTRS(pp);
  if (order < 0 || order > 30) return kelStsBadOrder;
  const Sizes s = record_sizes(f, order);
  if (!fits_int(s)) return kelStsNoMemory;
  // Header and tables are one library allocation (the record refers to its
  // tables by offsets from the header); the base table lives in a temporary
  // allocation released before returning.
  void* rec = aligned_alloc_bytes(static_cast<std::uint32_t>(s.record));
  if (rec == nullptr) return kelStsNoMemory;
  void* tmp = nullptr;
  if (order >= 4 && flag_ok(flag)) {
    tmp = aligned_alloc_bytes(static_cast<std::uint32_t>(s.init));
    if (tmp == nullptr) {
      aligned_free(rec);
      return kelStsNoMemory;
    }
  }
  void* out = nullptr;
  const KelStatus st = build_record(f, rec, order, flag, hint, tmp, true, &out);
  aligned_free(tmp);
  if (st != kelStsOk) {
    aligned_free(rec);
    return st;
  }
  *pp = static_cast<FftRecord*>(out);
  return kelStsOk;
}

// Fields after the scale lie one word later in double-precision headers.
std::size_t owns_offset(const Family& f) {
  return f.dbl ? offsetof(Header<double>, owns_memory) : offsetof(Header<float>, owns_memory);
}
std::size_t work_offset(const Family& f) {
  return f.dbl ? offsetof(Header<double>, work_bytes) : offsetof(Header<float>, work_bytes);
}

KelStatus free_spec(const Family& f, void* record) {
  KELS_REQUIRE_PTRS(record);
  KELS_REQUIRE_ID(record, f.id);
  const std::uint32_t zero = 0;
  std::memcpy(record, &zero, sizeof zero);
  std::int32_t owns;
  std::memcpy(&owns, static_cast<unsigned char*>(record) + owns_offset(f), sizeof owns);
  if (owns == 1) aligned_free(record);
  return kelStsOk;
}

KelStatus get_buf_size(const Family& f, const void* record, int* size) {
  KELS_REQUIRE_PTRS(record, size);
  KELS_REQUIRE_ID(record, f.id);
  std::int32_t work;
  std::memcpy(&work, static_cast<const unsigned char*>(record) + work_offset(f), sizeof work);
  *size = work < 1 ? 0 : work + 16;
  return kelStsOk;
}

}  // namespace

bool flag_ok(int flag) { return flag == 1 || flag == 2 || flag == 4 || flag == 8; }

int outer_order(int order, bool dbl) {
  if (order < 0 || order > 30) return 0;
  return dbl ? kOuterDouble[order] : kOuterSingle[order];
}

Shape shape_of(int order, bool dbl) {
  Shape s;
  int n = order;
  while (n > leaf_max(dbl)) {
    const int k = outer_order(n, dbl);
    if (k == 0) {
      s.two_level = n;
      s.leaf = leaf_max(dbl);
      return s;
    }
    s.step_order[s.levels] = n;
    s.step_k[s.levels] = k;
    ++s.levels;
    n -= k;
  }
  s.leaf = n;
  return s;
}

Sizes record_sizes(const Family& f, int order) {
  const std::int64_t n = std::int64_t{1} << order;
  Sizes s;
  if (order < 4) {
    s.record = f.dbl ? 100 : 96;
    return s;
  }
  if (f.real) {
    const Sizes c = complex_sizes(order - 1, f.dbl);
    const std::int64_t e = f.dbl ? 16 : 8;
    s.record = c.record + 32 * ((e * (n / 4) + 15) / 16) + 96;
    s.init = base_table_bytes(order, f.dbl) + (order - 1 >= 4 ? inner_sizes(order - 1, f.dbl).extra : 0) + 16;
    s.work = c.work;
  } else {
    s = complex_sizes(order, f.dbl);
  }
  // Integer data are converted to double precision in the work area: 16
  // bytes per point ahead of the double-precision work.
  if (f.integer) s.work = up16(s.work) + 16 * n;
  return s;
}

KelStatus build_record(const Family& f, void* rec, int order, int flag, int hint, void* init_buf,
                       bool owns, void** out) {
  return f.dbl ? build<double>(f, rec, order, flag, hint, init_buf, owns, out)
               : build<float>(f, rec, order, flag, hint, init_buf, owns, out);
}

WorkArea::WorkArea(Kel8u* caller, std::int64_t bytes) : bytes_(bytes) {
  if (caller != nullptr) {
    ptr_ = align16(caller);
  } else if (bytes > 0) {
    ptr_ = aligned_alloc_bytes(static_cast<std::uint32_t>(bytes));
    owned_ = ptr_ != nullptr;
  }
}

WorkArea::~WorkArea() {
  if (owned_) aligned_free(ptr_);
}

}  // namespace kels::fft

// ---- Exported members -----------------------------------------------------
using kels::fft::Family;

#define KELS_FFT_SPEC_MEMBERS(X)                                   \
  X(C_16sc, 1u, true, false, false, true)                          \
  X(C_16s, 2u, true, false, false, true)                           \
  X(R_16s, 3u, true, false, true, true)                            \
  X(C_32fc, 4u, false, false, false, false)                        \
  X(C_32f, 5u, false, true, false, false)                          \
  X(R_32f, 6u, false, false, true, false)                          \
  X(C_64fc, 7u, true, false, false, false)                         \
  X(C_64f, 8u, true, true, false, false)                           \
  X(R_64f, 9u, true, false, true, false)                           \
  X(C_32sc, 0x4C4D5364u, true, false, false, true)                 \
  X(C_32s, 0x4C4D5365u, true, false, false, true)                  \
  X(R_32s, 0x4C4D5366u, true, false, true, true)                   \
  X(R_16s32s, 0x4C4D5367u, true, false, true, true)

#define KELS_DEFINE_FFT_SPEC(fam, id, dbl, split, real, integer)                                  \
  namespace {                                                                                     \
  constexpr Family kFamily_##fam{id, dbl, split, real, integer};                                  \
  }                                                                                               \
  KELS_EXPORT KelStatus kelsFFTGetSize_##fam(int order, int flag, int hint, int* pSpecSize,       \
                                             int* pSpecBufferSize, int* pBufferSize) {            \
    (void)flag;                                                                                   \
    (void)hint;                                                                                   \
    return kels::fft::get_size(kFamily_##fam, order, pSpecSize, pSpecBufferSize, pBufferSize);    \
  }                                                                                               \
  KELS_EXPORT KelStatus kelsFFTInit_##fam(KelsFFTSpec_##fam** ppSpec, int order, int flag,        \
                                          int hint, Kel8u* pSpec, Kel8u* pSpecBuffer) {           \
    return kels::fft::init(kFamily_##fam, ppSpec, order, flag, hint, pSpec, pSpecBuffer);         \
  }                                                                                               \
  KELS_EXPORT KelStatus kelsFFTInitAlloc_##fam(KelsFFTSpec_##fam** ppSpec, int order, int flag,   \
                                               int hint) {                                        \
    return kels::fft::init_alloc(kFamily_##fam, ppSpec, order, flag, hint);                       \
  }                                                                                               \
  KELS_EXPORT KelStatus kelsFFTFree_##fam(KelsFFTSpec_##fam* pSpec) {                             \
    return kels::fft::free_spec(kFamily_##fam, pSpec);                                            \
  }                                                                                               \
  KELS_EXPORT KelStatus kelsFFTGetBufSize_##fam(const KelsFFTSpec_##fam* pSpec, int* pBufferSize) { \
    return kels::fft::get_buf_size(kFamily_##fam, pSpec, pBufferSize);                            \
  }

KELS_FOR_MEMBERS(KELS_FFT_SPEC_MEMBERS, KELS_DEFINE_FFT_SPEC)
