// The single-rate FIR state record: header, member descriptions and the
// layout of the areas that follow the header inside one block.
#ifndef KELS_FIR_FIR_RECORD_H
#define KELS_FIR_FIR_RECORD_H

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "frame/common.h"
#include "kelcore.h"

namespace kels::fir {

// Record header. Areas are addressed by 32-bit byte offsets from the
// record's start (the record is position-independent and the header keeps
// its size on 32- and 64-bit targets); only the FFT specification, a
// separately allocated object, is held as a pointer.
struct Record {
  std::uint32_t id;
  std::uint32_t taps;          // reversed taps: taps[k] = caller's tap[L-1-k]
  std::uint32_t dly;           // delay-line area of 3L+4 samples
  std::int32_t taps_len;       // L
  std::int32_t direct_limit;   // L rounded up to a multiple of 4, plus 1
  std::int32_t fft_len;        // N of the FFT method; -1 when absent
  void* half_fft;              // complex FFT record of half the block length, or null
  std::uint32_t fft_taps;      // 4N values: factor tables of the spectral step, 0 when absent
  std::int32_t dly_index;      // start of the history inside the delay-line area
  std::uint32_t taps_x4;       // each reversed tap repeated four times
  std::int32_t dly_len;        // history samples exchanged with the caller (= L)
  std::uint32_t work;          // work area
  std::uint32_t fft_work;      // FFT work buffers, 0 when absent
  std::int32_t owned;          // 1: made by InitAlloc, released by Free
  std::int32_t taps_factor;    // power-of-two factor of integer taps
  std::int32_t work_len;       // samples of the data type the work area holds
  std::uint32_t fft_blocks;    // per-thread block areas (2N values) of the FFT method, 0 when absent
  std::int32_t fft_threads;    // threads the FFT blocks, work buffers and statuses were sized for
};
static_assert(sizeof(Record) <= 80, "the header must fit the smallest documented header");

// A member: stored tap type, data type, identifier. Integer-taps members
// keep 32-bit taps normalised to at most 32766 in magnitude with a factor.
template <class TapT, class DataT, std::uint32_t Id, bool IntTaps = false>
struct Member {
  using Tap = TapT;
  using Data = DataT;
  static constexpr std::uint32_t id = Id;
  static constexpr bool int_taps = IntTaps;
};

using M32f = Member<Kel32f, Kel32f, 0x46493031u>;
using M32fc = Member<Kel32fc, Kel32fc, 0x46493032u>;
using M64f = Member<Kel64f, Kel64f, 0x46493133u>;
using M64fc = Member<Kel64fc, Kel64fc, 0x46493134u>;
using M32f16s = Member<Kel32f, Kel16s, 0x46493035u>;
using M32fc16sc = Member<Kel32fc, Kel16sc, 0x46493036u>;
using M32s16s = Member<Kel32s, Kel16s, 0x46493039u, true>;
using M32sc16sc = Member<Kel32sc, Kel16sc, 0x46493130u, true>;
using M64f32f = Member<Kel64f, Kel32f, 0x46493137u>;
using M64fc32fc = Member<Kel64fc, Kel32fc, 0x46493138u>;
using M64f32s = Member<Kel64f, Kel32s, 0x46493231u>;
using M64fc32sc = Member<Kel64fc, Kel32sc, 0x46493232u>;
using M64f16s = Member<Kel64f, Kel16s, 0x46493235u>;
using M64fc16sc = Member<Kel64fc, Kel16sc, 0x46493236u>;

// Multi-rate records share the identifier tests of the block filter, the
// taps and delay-line exchange and Free.
constexpr std::uint32_t kMultiRateId32f = 0x46493033u;

template <class T> struct is_complex : std::false_type {};
template <> struct is_complex<Kel16sc> : std::true_type {};
template <> struct is_complex<Kel32sc> : std::true_type {};
template <> struct is_complex<Kel32fc> : std::true_type {};
template <> struct is_complex<Kel64fc> : std::true_type {};

template <class T> struct part { using type = T; };
template <> struct part<Kel16sc> { using type = Kel16s; };
template <> struct part<Kel32sc> { using type = Kel32s; };
template <> struct part<Kel32fc> { using type = Kel32f; };
template <> struct part<Kel64fc> { using type = Kel64f; };
template <class T> using part_t = typename part<T>::type;

// The 16-bit companion of an integer tap type (the four-fold copy of the
// integer members holds the normalised taps at 16 bits).
template <class T> using x4_t = std::conditional_t<std::is_same_v<T, Kel32s>, Kel16s,
                                std::conditional_t<std::is_same_v<T, Kel32sc>, Kel16sc, T>>;

constexpr std::uint64_t r16(std::uint64_t n) { return (n + 15) & ~std::uint64_t{15}; }

// Thread count that sizes the work area (at least one).
inline int thread_count() { return threads_omp_of_n_kel < 1 ? 1 : threads_omp_of_n_kel; }

// Work area: (4T + 4092) floats on the documented members, 16384 bytes on the
// integer-taps members. The filters use only its first 16384 bytes (the size
// at T = 1), so a thread count raised between GetStateSize and Init never
// makes a record overrun the caller's buffer.
constexpr std::uint32_t kWorkUsedBytes = 16384;

struct Layout {
  std::uint64_t taps, dly, taps_x4, work, total;
};

template <class M>
Layout layout(std::int64_t L, int threads) {
  using Tap = typename M::Tap;
  using Data = typename M::Data;
  Layout lay{};
  const std::uint64_t header = M::int_taps ? 80 : 112;
  const std::uint64_t taps_bytes = r16(static_cast<std::uint64_t>(L) * sizeof(Tap));
  const std::uint64_t x4_bytes = M::int_taps ? r16(4 * static_cast<std::uint64_t>(L) * sizeof(x4_t<Tap>))
                                             : 4 * taps_bytes;
  const std::uint64_t work_bytes = M::int_taps ? kWorkUsedBytes
                                               : (4 * static_cast<std::uint64_t>(threads) + 4092) * 4;
  lay.taps = header;
  lay.dly = lay.taps + taps_bytes;
  lay.taps_x4 = lay.dly + r16((3 * static_cast<std::uint64_t>(L) + 4) * sizeof(Data));
  lay.work = lay.taps_x4 + x4_bytes;
  lay.total = lay.work + work_bytes + 16;  // 16: alignment of the caller's buffer
  return lay;
}

// Record size in bytes, or 0 when it does not fit in an int.
template <class M>
int state_size(int L) {
  const std::uint64_t total = layout<M>(L, thread_count()).total;
  return total > static_cast<std::uint64_t>(std::numeric_limits<int>::max()) ? 0 : static_cast<int>(total);
}

template <class T>
T* area(Record* r, std::uint32_t off) {
  return reinterpret_cast<T*>(reinterpret_cast<unsigned char*>(r) + off);
}
template <class T>
const T* area(const Record* r, std::uint32_t off) {
  return reinterpret_cast<const T*>(reinterpret_cast<const unsigned char*>(r) + off);
}

}  // namespace kels::fir

#endif  // KELS_FIR_FIR_RECORD_H
