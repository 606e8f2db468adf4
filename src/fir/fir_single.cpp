// Single-rate FIR filters on a state record: size, Init/InitAlloc/Free, the
// exchange of taps and delay lines, the one-sample step and the direct block
// method. One template per operation; the member tables at the end
// instantiate the exported functions.
#include <omp.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdint>
#include <limits>
#include <new>

#include "fir/fir_arith.h"
#include "fir/fir_record.h"
#include "frame/common.h"
#include "frame/malloc.h"
#include "kels.h"
#include "kernels/fir.h"

namespace kels::fir {
namespace {

// Outputs read straight from the caller's input are computed in a parallel
// region when the block has more samples than this.
constexpr int kParallelMinIters = 160000;
// Outputs (direct method) or block outputs (FFT method) per piece of work
// handed to a thread: some tens of microseconds, so the hand-out costs
// nothing and the threads finish close together.
constexpr std::size_t kParallelChunk = 16384;
// The FFT method is chosen for blocks of at least this many samples.
constexpr int kFftMinIters = 512;
// The 64f_32s worker filters a block in pieces of at most this many samples.
constexpr int kPiece64f32s = 2048;

template <class M> using tap_t = typename M::Tap;
template <class M> using data_t = typename M::Data;

template <class State> Record* rec(State* s) { return reinterpret_cast<Record*>(s); }
template <class State> const Record* rec(const State* s) { return reinterpret_cast<const Record*>(s); }

// Power-of-two factor applied to the sums when converting them to the data
// type: only the integer-taps records scale their sums by their factor.
template <class M> int sum_factor(const Record* r) { return M::int_taps ? r->taps_factor : 0; }

// ---- Inner products.

// Sum of taps[k] * x[k] in the member's accumulator, k = 0..L-1 in order.
template <class M>
acc_t<tap_t<M>, data_t<M>> dot(const tap_t<M>* t, const data_t<M>* x, int L) {
  using A = acc_t<tap_t<M>, data_t<M>>;
  A acc{};
  for (int k = 0; k < L; ++k) acc = acc + widen<A>(t[k]) * widen<A>(x[k]);
  return acc;
}

// count outputs y[n] = sum over k of taps[k] * x[n+k]. The members whose
// taps and data share a float type use the SIMD kernels; the others form
// each sum in their accumulator and convert it.
template <class M>
void run_kernel(const Record* r, const data_t<M>* x, data_t<M>* y, std::size_t count, int sf) {
  const tap_t<M>* t = area<tap_t<M>>(r, r->taps);
  const std::size_t L = static_cast<std::size_t>(r->taps_len);
  if constexpr (std::is_same_v<M, M32f>) {
    kernels::fir_dot_f32(t, L, x, y, count);
  } else if constexpr (std::is_same_v<M, M64f>) {
    kernels::fir_dot_f64(t, L, x, y, count);
  } else if constexpr (std::is_same_v<M, M32fc>) {
    kernels::fir_dot_c32(reinterpret_cast<const float*>(t), L, reinterpret_cast<const float*>(x),
                         reinterpret_cast<float*>(y), count);
  } else {
    const int factor = sum_factor<M>(r);
    for (std::size_t n = 0; n < count; ++n) {
      y[n] = convert<data_t<M>>(dot<M>(t, x + n, static_cast<int>(L)), sf, factor);
    }
  }
}

// The same over the library's thread count, in chunks of kParallelChunk
// outputs handed out as threads become free: a thread that starts late or
// shares its core with other work takes fewer chunks instead of holding up
// the others at the end, as a fixed split into equal ranges would. Every
// output is formed by the same sequence of operations whoever computes it,
// so the result does not depend on the split.
template <class M>
void run_kernel_parallel(const Record* r, const data_t<M>* x, data_t<M>* y, std::size_t count, int sf) {
  const int threads = threads_omp_of_n_kel;
  if (threads < 2) {
    run_kernel<M>(r, x, y, count, sf);
    return;
  }
  const std::int64_t chunks = static_cast<std::int64_t>((count + kParallelChunk - 1) / kParallelChunk);
#pragma omp parallel for num_threads(threads) schedule(dynamic, 1)
  for (std::int64_t c = 0; c < chunks; ++c) {
    const std::size_t lo = static_cast<std::size_t>(c) * kParallelChunk;
    run_kernel<M>(r, x + lo, y + lo, std::min(kParallelChunk, count - lo), sf);
  }
}

// ---- Direct block method.
//
// h = delay-line area + dlyIndex holds the L history samples oldest first.
// Short blocks (numIters <= directLimit) are appended behind the history and
// filtered there, then the newest L samples are moved to the start of the
// area. Longer blocks append only directLimit samples for the first L4
// outputs (which need history), take the new history from the end of the
// input, and compute the remaining outputs straight from the input.
template <class M>
void direct_block(Record* r, const data_t<M>* src, data_t<M>* dst, int n, int sf) {
  using D = data_t<M>;
  const int L = r->taps_len;
  const int L4 = (L + 3) & ~3;
  const int limit = r->direct_limit;
  D* dly = area<D>(r, r->dly);
  D* h = dly + r->dly_index;
  r->dly_index = 0;
  if (n <= limit) {
    copy_n(src, h + L, n);
    run_kernel<M>(r, h + 1, dst, static_cast<std::size_t>(n), sf);
    move_n(h + n, dly, L);
    return;
  }
  copy_n(src, h + L, limit);
  run_kernel<M>(r, h + 1, dst, static_cast<std::size_t>(L4), sf);
  copy_n(src + (n - L), dly, L);
  const D* rest_in = src + (L4 - L + 1);
  const std::size_t rest = static_cast<std::size_t>(n - L4);
  if (n > kParallelMinIters) run_kernel_parallel<M>(r, rest_in, dst + L4, rest, sf);
  else run_kernel<M>(r, rest_in, dst + L4, rest, sf);
}

// ---- Overlap-save through the FFT.
//
// Prepared only on records made by InitAlloc with at least kFftMinTaps taps,
// for the single-precision record (float transforms) and the "12IF" record
// of the 64f_32s and _32s functions (double transforms of the integer data,
// which convert exactly). The other records hold no FFT specification.
//
// A real block of N samples is transformed as m = N/2 complex values
// z[i] = x[2i] + i x[2i+1] by the unscaled complex FFT of order log2(N) - 1.
// The real spectrum X of the block, its product with the taps' spectrum H
// and the half-length spectrum of the product are each linear in the pair
// (Z[k], conj Z[m-k]), so the three steps fold into one pass
//   Z'[k] = A[k] Z[k] + B[k] conj(Z[(m-k) mod m])
// with factors (the 1/N of the inverse included) computed once from the
// taps. The unscaled inverse of Z' is then the block's circular convolution
// with the taps, again viewed as m complex values. Compared with real
// transforms and a product of packed spectra, this saves the two passes
// that split and rebuild the real spectrum, the separate product and the
// scaling pass.
constexpr int kFftMinTaps = 64;

template <class M> constexpr bool has_fft = std::is_same_v<M, M32f> || std::is_same_v<M, M64f32s>;

// The complex-FFT functions of one precision.
template <class F_, class Cx_, class R, auto Init, auto BufSize, auto Fwd, auto Inv, auto Free,
          auto Spectral>
struct FftApi {
  using F = F_;
  using Cx = Cx_;
  using FftRecord = R;
  static KelStatus init(R** p, int order) { return Init(p, order, KEL_FFT_SCALE_NONE, 0); }
  static KelStatus buf_size(const void* s, int* n) { return BufSize(static_cast<const R*>(s), n); }
  static KelStatus fwd(const F* a, F* b, const void* s, Kel8u* w) {
    return Fwd(reinterpret_cast<const Cx*>(a), reinterpret_cast<Cx*>(b), static_cast<const R*>(s), w);
  }
  static KelStatus inv(const F* a, F* b, const void* s, Kel8u* w) {
    return Inv(reinterpret_cast<const Cx*>(a), reinterpret_cast<Cx*>(b), static_cast<const R*>(s), w);
  }
  static void spectral(const F* const tab[4], F* z, std::size_t m) { Spectral(tab, z, m); }
  static void release(void* s) { Free(static_cast<R*>(s)); }
};
using FftApi32 = FftApi<Kel32f, Kel32fc, KelsFFTSpec_C_32fc, kelsFFTInitAlloc_C_32fc, kelsFFTGetBufSize_C_32fc,
                        kelsFFTFwd_CToC_32fc, kelsFFTInv_CToC_32fc, kelsFFTFree_C_32fc,
                        kernels::fir_spectral_f32>;
using FftApi64 = FftApi<Kel64f, Kel64fc, KelsFFTSpec_C_64fc, kelsFFTInitAlloc_C_64fc, kelsFFTGetBufSize_C_64fc,
                        kelsFFTFwd_CToC_64fc, kelsFFTInv_CToC_64fc, kelsFFTFree_C_64fc,
                        kernels::fir_spectral_f64>;
template <class M> using fft_api = std::conditional_t<std::is_same_v<M, M32f>, FftApi32, FftApi64>;
template <class M> using fft_t = typename fft_api<M>::F;

// Areas of the FFT method behind the record, in one allocation: the four
// factor tables of the spectral step (N values each), then per thread a
// status, a block area (two N-value buffers) and an FFT work buffer. Per-thread areas are
// rounded up to whole cache lines plus one spare line, so whatever the
// alignment of the record no two threads ever write to the same line.
constexpr std::uint64_t thread_stride(std::uint64_t bytes) { return ((bytes + 63) & ~std::uint64_t{63}) + 64; }

struct FftLayout {
  std::uint64_t taps, status, blocks, work, end;
};
// Each thread's block area holds two N-value buffers: the transforms run
// out of place (block -> spectrum -> block), which the FFT does markedly
// faster than in place at the larger lengths.
template <class M>
std::uint64_t fft_block_stride(int N) {
  return thread_stride(2 * static_cast<std::uint64_t>(N) * sizeof(fft_t<M>));
}
template <class M>
FftLayout fft_layout(std::uint64_t start, int N, int threads, int buf_size) {
  const std::uint64_t T = static_cast<std::uint64_t>(threads);
  FftLayout f{};
  f.taps = r16(start);
  f.status = f.taps + 4 * r16(static_cast<std::uint64_t>(N) * sizeof(fft_t<M>));
  f.blocks = f.status + T * thread_stride(sizeof(int));
  f.work = f.blocks + T * fft_block_stride<M>(N);
  f.end = f.work + T * thread_stride(static_cast<std::uint64_t>(buf_size < 0 ? 0 : buf_size));
  return f;
}

// Per-thread areas of thread t: status, block, FFT work buffer (null when
// the transform needs none).
template <class M>
int* fft_status_of(Record* r, int t) {
  const std::uint64_t taps_bytes = 4 * r16(static_cast<std::uint64_t>(r->fft_len) * sizeof(fft_t<M>));
  return area<int>(r, r->fft_taps + static_cast<std::uint32_t>(taps_bytes + static_cast<std::uint64_t>(t) * thread_stride(sizeof(int))));
}
template <class M>
fft_t<M>* fft_block_of(Record* r, int t) {
  return area<fft_t<M>>(r, r->fft_blocks + static_cast<std::uint32_t>(static_cast<std::uint64_t>(t) * fft_block_stride<M>(r->fft_len)));
}
template <class M>
Kel8u* fft_work_of(Record* r, int t) {
  int size = 0;
  fft_api<M>::buf_size(r->half_fft, &size);
  if (size <= 0) return nullptr;
  return area<Kel8u>(r, r->fft_work) + static_cast<std::size_t>(t) * thread_stride(static_cast<std::uint64_t>(size));
}

// Factor tables of the spectral step from the half-length spectrum zh of
// the taps (in the caller's order, zero-padded to N), in double precision:
// H[k] = (a + b)/2 + W^k (a - b)/(2i) with a = zh[k mod m],
// b = conj zh[(m-k) mod m], W = e^(-2 pi i/N). The block's real spectrum is
// X[e] = p a + q b with p = (1 - iW^e)/2, q = (1 + iW^e)/2 (a, b taken at
// e), and the half-length spectrum of the output real spectrum Y is
// Z'[e] = (1 + i c) Y[e] + (1 - i c) conj Y[m-e], c = conj W^e; with
// Y = H X / N these give A[e] and B[e] below.
template <class F>
void fill_spectral_tables(const F* zh, int N, F* tab) {
  using cd = std::complex<double>;
  const std::size_t m = static_cast<std::size_t>(N) / 2;
  const double pi = 3.14159265358979323846;
  const cd i1(0, 1);
  auto W = [&](std::size_t k) {
    const double a = -2 * pi * static_cast<double>(k) / N;
    return cd(std::cos(a), std::sin(a));
  };
  auto Zh = [&](std::size_t k) { return cd(zh[2 * (k % m)], zh[2 * (k % m) + 1]); };
  auto H = [&](std::size_t k) {
    const cd a = Zh(k), b = std::conj(Zh(m - k));
    return (a + b) * 0.5 + W(k) * (a - b) / (2.0 * i1);
  };
  for (std::size_t e = 0; e < m; ++e) {
    const cd w = W(e);
    const cd wp = -std::conj(w);  // W^(m-e)
    const cd c = std::conj(w);
    const cd p = (1.0 - i1 * w) / 2.0, q = (1.0 + i1 * w) / 2.0;
    const cd pp = (1.0 - i1 * wp) / 2.0, qp = (1.0 + i1 * wp) / 2.0;
    const cd he = H(e), hp = std::conj(H(m - e));
    const cd A = ((1.0 + i1 * c) * he * p + (1.0 - i1 * c) * hp * std::conj(qp)) / static_cast<double>(N);
    const cd B = ((1.0 + i1 * c) * he * q + (1.0 - i1 * c) * hp * std::conj(pp)) / static_cast<double>(N);
    F* t0 = tab + 2 * e;
    F* t1 = t0 + N;
    F* t2 = t1 + N;
    F* t3 = t2 + N;
    t0[0] = static_cast<F>(A.real());
    t0[1] = static_cast<F>(A.real());
    t1[0] = static_cast<F>(-A.imag());
    t1[1] = static_cast<F>(A.imag());
    t2[0] = static_cast<F>(B.real());
    t2[1] = static_cast<F>(-B.real());
    t3[0] = static_cast<F>(B.imag());
    t3[1] = static_cast<F>(B.imag());
  }
}

// Transformed taps: the taps in the caller's order, zero-padded to N, are
// transformed in thread 0's block and turned into the factor tables. A
// failing transform releases the specification, so the FFT method is no
// longer chosen.
template <class M>
KelStatus fft_prepare_taps(Record* r) {
  using F = fft_t<M>;
  const int L = r->taps_len;
  const int N = r->fft_len;
  F* z = fft_block_of<M>(r, 0);
  const tap_t<M>* t = area<tap_t<M>>(r, r->taps);
  for (int k = 0; k < L; ++k) z[k] = static_cast<F>(t[L - 1 - k]);
  zero_n(z + L, N - L);
  const KelStatus st = fft_api<M>::fwd(z, z + N, r->half_fft, fft_work_of<M>(r, 0));
  if (st < 0) {
    fft_api<M>::release(r->half_fft);
    r->half_fft = nullptr;
    r->fft_len = -1;
    return st;
  }
  fill_spectral_tables(z + N, N, area<F>(r, r->fft_taps));
  return st;
}

// Data into a transform block and outputs back (the integer data convert
// exactly to double; outputs round with 2^-sf and saturate).
template <class M>
void fft_load(const data_t<M>* x, fft_t<M>* b, int n) {
  if constexpr (std::is_same_v<data_t<M>, fft_t<M>>) copy_n(x, b, n);
  else for (int k = 0; k < n; ++k) b[k] = static_cast<fft_t<M>>(x[k]);
}
template <class M>
void fft_store(const fft_t<M>* b, data_t<M>* y, int n, int sf) {
  if constexpr (std::is_same_v<data_t<M>, fft_t<M>>) {
    (void)sf;
    copy_n(b, y, n);
  } else {
    for (int k = 0; k < n; ++k) y[k] = convert<data_t<M>>(b[k], sf, 0);
  }
}

// Circular convolution of the block at src (the caller's input, or b) with
// the taps into b: forward transform into the spectrum buffer b + N,
// spectral step there, inverse back into b.
template <class M>
KelStatus fft_convolve(const Record* r, const fft_t<M>* src, fft_t<M>* b, Kel8u* w) {
  using A = fft_api<M>;
  using F = fft_t<M>;
  const std::size_t N = static_cast<std::size_t>(r->fft_len);
  F* z = b + N;
  KELS_RETURN_IF_ERROR(A::fwd(src, z, r->half_fft, w));
  const F* base = area<F>(r, r->fft_taps);
  const F* const tab[4] = {base, base + N, base + 2 * N, base + 3 * N};
  A::spectral(tab, z, N / 2);
  return A::inv(z, b, r->half_fft, w);
}

// Block starting at in[i] of the long path: M overlap samples then S new
// ones; R samples remain after the first block. Full blocks of float data
// are transformed straight from the input.
template <class M>
KelStatus fft_one_block(Record* r, const data_t<M>* in, data_t<M>* out, int R, int i, fft_t<M>* b, Kel8u* w, int sf) {
  const int N = r->fft_len;
  const int hist = r->taps_len - 1;
  const int S = N - hist;
  const int rem = R - i;
  int out_count = S;
  if (rem < N) {
    const int in_count = std::min(N, hist + rem);
    out_count = std::min(S, rem);
    fft_load<M>(in + i, b, in_count);
    zero_n(b + in_count, N - in_count);
    KELS_RETURN_IF_ERROR(fft_convolve<M>(r, b, b, w));
  } else if constexpr (std::is_same_v<data_t<M>, fft_t<M>>) {
    KELS_RETURN_IF_ERROR(fft_convolve<M>(r, in + i, b, w));
  } else {
    fft_load<M>(in + i, b, N);
    KELS_RETURN_IF_ERROR(fft_convolve<M>(r, b, b, w));
  }
  fft_store<M>(b + hist, out + i, out_count, sf);
  return kelStsOk;
}

// Overlap-save block filter. The first block takes its M overlap samples
// from the history; the history is then replaced before the remaining
// blocks, which read only the input. Above kParallelMinIters samples the
// remaining blocks are handed out to the threads in chunks of about
// kParallelChunk outputs as they become free, each thread with its own
// buffers; every block is computed by the same operations whoever computes
// it, so outputs do not depend on the split.
template <class M>
KelStatus fft_block(Record* r, const data_t<M>* src, data_t<M>* dst, int n, int sf) {
  using D = data_t<M>;
  using F = fft_t<M>;
  const int L = r->taps_len;
  const int N = r->fft_len;
  const int hist = L - 1;
  const int S = N - hist;
  D* dly = area<D>(r, r->dly);
  D* h = dly + r->dly_index;
  F* b = fft_block_of<M>(r, 0);
  Kel8u* w = fft_work_of<M>(r, 0);
  fft_load<M>(h + 1, b, hist);
  if (n <= S) {
    // New history: the last L of the held history followed by the inputs.
    r->dly_index = 0;
    fft_load<M>(src, b + hist, n);
    if (n < L) move_n(h + n, dly, L - n);
    copy_n(src + std::max(0, n - L), dly + std::max(0, L - n), std::min(n, L));
    zero_n(b + hist + n, N - hist - n);
    KELS_RETURN_IF_ERROR(fft_convolve<M>(r, b, b, w));
    fft_store<M>(b + hist, dst, n, sf);
    return kelStsOk;
  }
  fft_load<M>(src, b + hist, S);
  r->dly_index = 0;
  copy_n(src + (n - L), dly, L);
  KELS_RETURN_IF_ERROR(fft_convolve<M>(r, b, b, w));
  fft_store<M>(b + hist, dst, S, sf);
  const D* in = src + (S - hist);
  D* out = dst + S;
  const int R = n - S;
  if (R < 1) return kelStsOk;
  const int blocks = (R + S - 1) / S;
  const int threads = std::min(threads_omp_of_n_kel, r->fft_threads);
  if (n <= kParallelMinIters || threads < 2) {
    for (int j = 0; j < blocks; ++j) KELS_RETURN_IF_ERROR(fft_one_block<M>(r, in, out, R, j * S, b, w, sf));
    return kelStsOk;
  }
  for (int t = 0; t < threads; ++t) *fft_status_of<M>(r, t) = kelStsOk;
  const int per_chunk = std::max(1, static_cast<int>(kParallelChunk) / S);
#pragma omp parallel num_threads(threads)
  {
    const int id = omp_get_thread_num();
    F* bt = fft_block_of<M>(r, id);
    Kel8u* wt = fft_work_of<M>(r, id);
    int st = kelStsOk;
#pragma omp for schedule(dynamic, per_chunk)
    for (int j = 0; j < blocks; ++j) {
      if (st >= 0) st = fft_one_block<M>(r, in, out, R, j * S, bt, wt, sf);
    }
    *fft_status_of<M>(r, id) = st;
  }
  int worst = kelStsOk;
  for (int t = 0; t < threads; ++t) worst = std::min(worst, *fft_status_of<M>(r, t));
  return static_cast<KelStatus>(worst);
}

// Method selection of the block filter: blocks of at least kFftMinIters
// samples on a record with a prepared FFT go through overlap-save (about
// 2 log2 N operations per output instead of L); the others, and every
// block of a record without one, take the direct method.
template <class M>
KelStatus filter_block(Record* r, const data_t<M>* src, data_t<M>* dst, int n, int sf) {
  if constexpr (has_fft<M>) {
    if (n >= kFftMinIters && r->fft_len >= 1) return fft_block<M>(r, src, dst, n, sf);
  }
  constexpr int piece = std::is_same_v<M, M64f32s> ? kPiece64f32s : std::numeric_limits<int>::max();
  for (int i = 0; i < n; i += piece) {
    const int m = std::min(piece, n - i);
    direct_block<M>(r, src + i, dst + i, m, sf);
  }
  return kelStsOk;
}

// In place (the _I twins, and the out-of-place entry points given the same
// array twice): the direct method reads inputs after writing earlier outputs,
// so each piece of the block is first copied to the record's work area.
template <class M>
KelStatus filter_in_place(Record* r, data_t<M>* buf, int n, int sf) {
  using D = data_t<M>;
  if (n <= r->direct_limit) return filter_block<M>(r, buf, buf, n, sf);
  D* work = area<D>(r, r->work);
  const int chunk = r->work_len;
  for (int i = 0; i < n; i += chunk) {
    const int m = std::min(chunk, n - i);
    copy_n(buf + i, work, m);
    KELS_RETURN_IF_ERROR(filter_block<M>(r, work, buf + i, m, sf));
  }
  return kelStsOk;
}

// One sample on the doubled delay line inside the area: store at d[i] and
// d[i+L], advance i, and form the sum over the span d[i..i+L-1].
template <class M>
data_t<M> one_step(Record* r, data_t<M> x, int sf) {
  using D = data_t<M>;
  const int L = r->taps_len;
  D* d = area<D>(r, r->dly);
  int i = r->dly_index;
  d[i] = x;
  d[i + L] = x;
  i = i + 1 >= L ? 0 : i + 1;
  r->dly_index = i;
  const tap_t<M>* t = area<tap_t<M>>(r, r->taps);
  if constexpr (std::is_same_v<M, M32f>) {
    (void)sf;
    return kernels::scalar::sum_f32(t, static_cast<std::size_t>(L), d + i);
  } else {
    return convert<D>(dot<M>(t, d + i, L), sf, sum_factor<M>(r));
  }
}

// ---- Record construction and the exchange of taps and history.

template <class M>
void set_history(Record* r, const data_t<M>* p) {
  using D = data_t<M>;
  const int L = r->dly_len;
  D* h = area<D>(r, r->dly);
  r->dly_index = 0;
  if (p == nullptr) {
    zero_n(h, L);
    return;
  }
  for (int i = 0; i < L; ++i) h[i] = p[L - 1 - i];
}

template <class M>
void get_history(const Record* r, data_t<M>* p) {
  const int L = r->dly_len;
  const data_t<M>* h = area<data_t<M>>(r, r->dly) + r->dly_index;
  for (int i = 0; i < L; ++i) p[i] = h[L - 1 - i];
}

template <class M>
Record* build(void* mem, int L, const data_t<M>* history) {
  const Layout lay = layout<M>(L, thread_count());
  Record* r = new (mem) Record{};
  r->id = M::id;
  r->taps = static_cast<std::uint32_t>(lay.taps);
  r->dly = static_cast<std::uint32_t>(lay.dly);
  r->taps_x4 = static_cast<std::uint32_t>(lay.taps_x4);
  r->work = static_cast<std::uint32_t>(lay.work);
  r->taps_len = L;
  r->dly_len = L;
  r->direct_limit = ((L + 3) & ~3) + 1;
  r->fft_len = -1;
  r->half_fft = nullptr;
  r->work_len = static_cast<std::int32_t>(kWorkUsedBytes / sizeof(data_t<M>));
  zero_n(area<data_t<M>>(r, r->dly), 3 * L + 4);
  set_history<M>(r, history);
  return r;
}

// Each reversed tap repeated four times (for the integer members the
// normalised taps at 16 bits, which they fit).
template <class M>
void fill_x4(Record* r) {
  using X = x4_t<tap_t<M>>;
  const tap_t<M>* t = area<tap_t<M>>(r, r->taps);
  X* q = area<X>(r, r->taps_x4);
  for (int k = 0; k < r->taps_len; ++k) {
    X v;
    if constexpr (std::is_same_v<X, tap_t<M>>) {
      v = t[k];
    } else if constexpr (is_complex<X>::value) {
      v = X{static_cast<Kel16s>(t[k].re), static_cast<Kel16s>(t[k].im)};
    } else {
      v = static_cast<X>(t[k]);
    }
    for (int j = 0; j < 4; ++j) q[4 * k + j] = v;
  }
}

// Applies f to each part of a real or complex value.
template <class Out, class In, class F>
Out map_parts(const In& x, F f) {
  if constexpr (is_complex<In>::value) {
    return Out{f(x.re), f(x.im)};
  } else {
    return f(x);
  }
}
template <class T, class F>
void for_parts(const T& x, F f) {
  if constexpr (is_complex<T>::value) {
    f(x.re);
    f(x.im);
  } else {
    f(x);
  }
}

inline int add_factor(int a, int b) {
  const std::int64_t s = static_cast<std::int64_t>(a) + b;
  return static_cast<int>(std::clamp<std::int64_t>(s, std::numeric_limits<int>::min(),
                                                   std::numeric_limits<int>::max()));
}

// Taps given in the stored type.
template <class M>
void store_plain(Record* r, const tap_t<M>* p) {
  tap_t<M>* t = area<tap_t<M>>(r, r->taps);
  const int L = r->taps_len;
  for (int k = 0; k < L; ++k) t[k] = p[L - 1 - k];
  r->taps_factor = 0;
}
template <class M>
void load_plain(const Record* r, tap_t<M>* p) {
  const tap_t<M>* t = area<tap_t<M>>(r, r->taps);
  const int L = r->taps_len;
  for (int k = 0; k < L; ++k) p[k] = t[L - 1 - k];
}

// Integer taps with a factor, normalised: s is the smallest shift that
// brings the largest magnitude to at most 32766; every tap is shifted right
// (arithmetically) by s and the stored factor is tapsFactor + s. Works in
// place on the stored (reversed) taps.
template <class M>
void normalise(Record* r, int factor) {
  using T = tap_t<M>;
  const int L = r->taps_len;
  T* t = area<T>(r, r->taps);
  std::int64_t largest = 0;
  for (int k = 0; k < L; ++k) {
    for_parts(t[k], [&](Kel32s v) { largest = std::max<std::int64_t>(largest, v < 0 ? -std::int64_t{v} : v); });
  }
  int s = 0;
  while ((largest >> s) > 32766) ++s;
  for (int k = 0; k < L; ++k) t[k] = map_parts<T>(t[k], [s](Kel32s v) { return static_cast<Kel32s>(v >> s); });
  r->taps_factor = add_factor(factor, s);
}
template <class M>
void store_int(Record* r, const tap_t<M>* p, int factor) {
  store_plain<M>(r, p);
  normalise<M>(r, factor);
}
template <class M>
void load_int(const Record* r, tap_t<M>* p, int* factor) {
  load_plain<M>(r, p);
  *factor = r->taps_factor;
}

// Float taps into an integer-taps record: the factor f is the smallest that
// brings the largest magnitude times 2^-f to at most 32766, so the taps keep
// 15 significant bits; each tap is rounded to nearest even (NaN gives 0),
// then the normalisation rule applies as for integer taps.
template <class M, class F>
void store_float_as_int(Record* r, const F* p) {
  using T = tap_t<M>;
  const int L = r->taps_len;
  double largest = 0;
  for (int k = 0; k < L; ++k) {
    for_parts(p[k], [&](float v) {
      const double a = std::fabs(static_cast<double>(v));
      if (a > largest && std::isfinite(a)) largest = a;
    });
  }
  int f = 0;
  if (largest > 0) {
    int e = 0;
    std::frexp(largest, &e);
    f = e - 15;
    if (std::ldexp(largest, -f) > 32766.0) ++f;
  }
  T* t = area<T>(r, r->taps);
  for (int k = 0; k < L; ++k) {
    t[k] = map_parts<T>(p[L - 1 - k], [f](float v) {
      return round_saturate<Kel32s>(std::ldexp(static_cast<double>(v), -f));
    });
  }
  normalise<M>(r, f);
}
template <class M, class F>
void load_int_as_float(const Record* r, F* p) {
  const tap_t<M>* t = area<tap_t<M>>(r, r->taps);
  const int L = r->taps_len;
  const int f = r->taps_factor;
  for (int k = 0; k < L; ++k) {
    p[k] = map_parts<F>(t[L - 1 - k], [f](Kel32s v) { return static_cast<float>(std::ldexp(static_cast<double>(v), f)); });
  }
}

// 32-bit integer taps with a factor into the double-precision record:
// stored tap = tap * 2^tapsFactor (exact unless it leaves the double range).
template <class M>
void store_int_as_double(Record* r, const Kel32s* p, int factor) {
  Kel64f* t = area<Kel64f>(r, r->taps);
  const int L = r->taps_len;
  for (int k = 0; k < L; ++k) t[k] = std::ldexp(static_cast<double>(p[L - 1 - k]), clamp_shift(factor));
  r->taps_factor = factor;
}
template <class M>
void load_double_as_int(const Record* r, Kel32s* p, int* factor) {
  const Kel64f* t = area<Kel64f>(r, r->taps);
  const int L = r->taps_len;
  const int f = r->taps_factor;
  for (int k = 0; k < L; ++k) p[k] = round_saturate<Kel32s>(std::ldexp(t[L - 1 - k], clamp_shift(-std::int64_t{f})));
  *factor = f;
}

// FFT preparation of InitAlloc: order = (smallest k >= 2 with 2^k > L) + 1,
// so N > 2L and each block yields S = N - L + 1 > L + 1 outputs; the
// complex transform of the method has order - 1. A length
// the transforms do not support, or areas too large for the record's
// offsets, leave the record without the method; running out of memory
// fails the call.
struct FftPlan {
  int N, threads;
  FftLayout lay;
};
template <class M>
KelStatus fft_plan(int L, std::uint64_t record_bytes, void** fft_record, FftPlan* plan) {
  using A = fft_api<M>;
  int order = 2;
  while ((std::int64_t{1} << order) <= L) ++order;
  ++order;
  typename A::FftRecord* s = nullptr;
  const KelStatus st = A::init(&s, order - 1);
  if (st == kelStsNoMemory) return st;
  if (st < 0) return kelStsOk;
  int buf = 0;
  if (A::buf_size(s, &buf) < 0) buf = 0;
  plan->N = 1 << order;
  plan->threads = thread_count();
  plan->lay = fft_layout<M>(record_bytes, plan->N, plan->threads, buf);
  if (plan->lay.end > static_cast<std::uint64_t>(std::numeric_limits<std::int32_t>::max())) {
    A::release(s);
    return kelStsOk;
  }
  *fft_record = s;
  return kelStsOk;
}

// ---- Exported operations.

template <class M>
KelStatus get_state_size(int L, int* size) {
  KELS_REQUIRE_PTRS(size);
  if (L < 1) return kelStsBadFIRLength;
  const int s = state_size<M>(L);
  if (s == 0) return kelStsBadFIRLength;
  *size = s;
  return kelStsOk;
}

// Builds the record in the caller's buffer (rounded up to 16 bytes) or, when
// buffer is null, in a block of its own. store(r) writes the taps.
template <class M, class State, class Store>
KelStatus init_family(State** pp, int L, const data_t<M>* history, Kel8u* buffer, Store store) {
  if (L < 1) return kelStsBadFIRLength;
  const int size = state_size<M>(L);
  if (size == 0) return kelStsBadFIRLength;
  void* mem;
  void* fft_record = nullptr;
  FftPlan plan{};
  if (buffer != nullptr) {
    const std::uintptr_t a = reinterpret_cast<std::uintptr_t>(buffer);
    mem = buffer + ((16 - a % 16) % 16);
  } else {
    std::uint64_t total = static_cast<std::uint64_t>(size);
    if constexpr (has_fft<M>) {
      if (L >= kFftMinTaps) {
        KELS_RETURN_IF_ERROR(fft_plan<M>(L, static_cast<std::uint64_t>(size), &fft_record, &plan));
        if (fft_record != nullptr) total = plan.lay.end;
      }
    }
    mem = aligned_alloc_bytes(static_cast<std::uint32_t>(total));
    if (mem == nullptr) {
      if constexpr (has_fft<M>) {
        if (fft_record != nullptr) fft_api<M>::release(fft_record);
      }
      return kelStsNoMemory;
    }
  }
  Record* r = build<M>(mem, L, history);
  r->owned = buffer == nullptr ? 1 : 0;
  store(r);
  fill_x4<M>(r);
  if constexpr (has_fft<M>) {
    if (fft_record != nullptr) {
      r->half_fft = fft_record;
      r->fft_len = plan.N;
      r->fft_threads = plan.threads;
      r->fft_taps = static_cast<std::uint32_t>(plan.lay.taps);
      r->fft_blocks = static_cast<std::uint32_t>(plan.lay.blocks);
      r->fft_work = static_cast<std::uint32_t>(plan.lay.work);
      const KelStatus st = fft_prepare_taps<M>(r);
      if (st < 0) {
        aligned_free(r);
        return st;
      }
    }
  }
  *pp = reinterpret_cast<State*>(r);
  return kelStsOk;
}

template <class M, class State>
KelStatus free_family(State* s) {
  KELS_REQUIRE_PTRS(s);
  KELS_REQUIRE_ID(s, M::id);
  Record* r = rec(s);
  if (r->owned == 0) return kelStsOk;
  if constexpr (has_fft<M>) {
    if (r->half_fft != nullptr) fft_api<M>::release(r->half_fft);
  }
  aligned_free(r);
  return kelStsOk;
}

// Taps exchange: both pointers, then the identifier, then the conversion.
template <class M, class State, class Fn>
KelStatus taps_family(State* s, const void* taps, Fn fn) {
  KELS_REQUIRE_PTRS(s, taps);
  KELS_REQUIRE_ID(s, M::id);
  fn(rec(s));
  return kelStsOk;
}

// Replacing taps keeps the history; a prepared FFT has its transformed
// taps rebuilt (a failing transform gives its status and drops the method).
template <class M, class State, class Fn>
KelStatus set_taps_family(State* s, const void* taps, Fn store) {
  KELS_REQUIRE_PTRS(s, taps);
  KELS_REQUIRE_ID(s, M::id);
  store(rec(s));
  fill_x4<M>(rec(s));
  if constexpr (has_fft<M>) {
    if (rec(s)->half_fft != nullptr) return fft_prepare_taps<M>(rec(s));
  }
  return kelStsOk;
}

template <class M, class State>
KelStatus get_dly_family(const State* s, data_t<M>* p) {
  KELS_REQUIRE_PTRS(s, p);
  KELS_REQUIRE_ID(s, M::id);
  get_history<M>(rec(s), p);
  return kelStsOk;
}

template <class M, class State>
KelStatus set_dly_family(State* s, const data_t<M>* p) {
  KELS_REQUIRE_PTRS(s);
  KELS_REQUIRE_ID(s, M::id);
  set_history<M>(rec(s), p);
  return kelStsOk;
}

// One sample: only the single-rate identifier is accepted.
template <class M, class State>
KelStatus one_family(data_t<M> src, data_t<M>* dst, State* s, int sf) {
  KELS_REQUIRE_PTRS(s, dst);
  KELS_REQUIRE_ID(s, M::id);
  *dst = one_step<M>(rec(s), src, sf);
  return kelStsOk;
}

// Block filter. The single-precision block entry points also accept the
// multi-rate record once that family exists; until then its identifier is
// refused like any other foreign record.
template <class M, class State>
KelStatus block_family(const data_t<M>* src, data_t<M>* dst, int n, State* s, int sf) {
  KELS_REQUIRE_PTRS(s, src, dst);
  KELS_REQUIRE_LEN(n);
  KELS_REQUIRE_ID(s, M::id);
  if (src == dst) return filter_in_place<M>(rec(s), dst, n, sf);
  return filter_block<M>(rec(s), src, dst, n, sf);
}

template <class M, class State>
KelStatus block_family_i(data_t<M>* buf, int n, State* s, int sf) {
  KELS_REQUIRE_PTRS(s, buf);
  KELS_REQUIRE_LEN(n);
  KELS_REQUIRE_ID(s, M::id);
  return filter_in_place<M>(rec(s), buf, n, sf);
}

}  // namespace
}  // namespace kels::fir

using namespace kels::fir;

// ---- Member tables: (taps prefix, data code, member, state type).
// Float data, no scale factor.
#define KELS_FIR_FLOAT_MEMBERS(X)                                                                  \
  X(, 32f, M32f, KelsFIRState_32f) X(, 32fc, M32fc, KelsFIRState_32fc)                            \
  X(, 64f, M64f, KelsFIRState_64f) X(, 64fc, M64fc, KelsFIRState_64fc)                            \
  X(64f, 32f, M64f32f, KelsFIRState64f_32f) X(64fc, 32fc, M64fc32fc, KelsFIRState64fc_32fc)
// Integer data with a scale factor, float taps.
#define KELS_FIR_SFS_MEMBERS(X)                                                                    \
  X(32f, 16s, M32f16s, KelsFIRState32f_16s) X(32fc, 16sc, M32fc16sc, KelsFIRState32fc_16sc)       \
  X(64f, 32s, M64f32s, KelsFIRState64f_32s) X(64fc, 32sc, M64fc32sc, KelsFIRState64fc_32sc)       \
  X(64f, 16s, M64f16s, KelsFIRState64f_16s) X(64fc, 16sc, M64fc16sc, KelsFIRState64fc_16sc)
// Integer taps with a factor; the last two entries name the float-taps
// variant sharing the record (suffix of its names, its taps type).
#define KELS_FIR_INT_TAPS_MEMBERS(X)                                                               \
  X(32s, 16s, M32s16s, KelsFIRState32s_16s, 32f, Kel32f)                                          \
  X(32sc, 16sc, M32sc16sc, KelsFIRState32sc_16sc, 32fc, Kel32fc)

#define KELS_DEFINE_FIR_LIFECYCLE(P, D, M, State)                                                  \
  KELS_EXPORT KelStatus kelsFIRGetStateSize##P##_##D(int tapsLen, int* pStateSize) {              \
    return get_state_size<M>(tapsLen, pStateSize);                                                 \
  }                                                                                                \
  KELS_EXPORT KelStatus kelsFIRFree##P##_##D(State* pState) { return free_family<M>(pState); }

#define KELS_DEFINE_FIR_DLY(P, D, M, State)                                                        \
  KELS_EXPORT KelStatus kelsFIRGetDlyLine##P##_##D(const State* pState, M::Data* pDlyLine) {      \
    return get_dly_family<M>(pState, pDlyLine);                                                    \
  }                                                                                                \
  KELS_EXPORT KelStatus kelsFIRSetDlyLine##P##_##D(State* pState, const M::Data* pDlyLine) {      \
    return set_dly_family<M>(pState, pDlyLine);                                                    \
  }

#define KELS_DEFINE_FIR_PLAIN_TAPS(P, D, M, State)                                                 \
  KELS_EXPORT KelStatus kelsFIRInit##P##_##D(State** ppState, const M::Tap* pTaps, int tapsLen,   \
                                             const M::Data* pDlyLine, Kel8u* pBuffer) {            \
    KELS_REQUIRE_PTRS(ppState, pTaps, pBuffer);                                                    \
    return init_family<M>(ppState, tapsLen, pDlyLine, pBuffer,                                     \
                          [pTaps](Record* r) { store_plain<M>(r, pTaps); });                       \
  }                                                                                                \
  KELS_EXPORT KelStatus kelsFIRInitAlloc##P##_##D(State** ppState, const M::Tap* pTaps,           \
                                                  int tapsLen, const M::Data* pDlyLine) {          \
    KELS_REQUIRE_PTRS(ppState, pTaps);                                                             \
    return init_family<M>(ppState, tapsLen, pDlyLine, nullptr,                                     \
                          [pTaps](Record* r) { store_plain<M>(r, pTaps); });                       \
  }                                                                                                \
  KELS_EXPORT KelStatus kelsFIRGetTaps##P##_##D(const State* pState, M::Tap* pTaps) {             \
    return taps_family<M>(pState, pTaps, [pTaps](const Record* r) { load_plain<M>(r, pTaps); });  \
  }                                                                                                \
  KELS_EXPORT KelStatus kelsFIRSetTaps##P##_##D(const M::Tap* pTaps, State* pState) {             \
    return set_taps_family<M>(pState, pTaps, [pTaps](Record* r) { store_plain<M>(r, pTaps); });   \
  }

#define KELS_DEFINE_FIR_FILTER(P, D, M, State)                                                     \
  KELS_EXPORT KelStatus kelsFIROne##P##_##D(M::Data src, M::Data* pDstVal, State* pState) {       \
    return one_family<M>(src, pDstVal, pState, 0);                                                 \
  }                                                                                                \
  KELS_EXPORT KelStatus kelsFIR##P##_##D(const M::Data* pSrc, M::Data* pDst, int numIters,        \
                                         State* pState) {                                          \
    return block_family<M>(pSrc, pDst, numIters, pState, 0);                                       \
  }                                                                                                \
  KELS_EXPORT KelStatus kelsFIR##P##_##D##_I(M::Data* pSrcDst, int numIters, State* pState) {     \
    return block_family_i<M>(pSrcDst, numIters, pState, 0);                                        \
  }

#define KELS_DEFINE_FIR_FILTER_SFS(P, D, M, State)                                                 \
  KELS_EXPORT KelStatus kelsFIROne##P##_##D##_Sfs(M::Data src, M::Data* pDstVal, State* pState,   \
                                                  int scaleFactor) {                               \
    return one_family<M>(src, pDstVal, pState, scaleFactor);                                       \
  }                                                                                                \
  KELS_EXPORT KelStatus kelsFIR##P##_##D##_Sfs(const M::Data* pSrc, M::Data* pDst, int numIters,  \
                                               State* pState, int scaleFactor) {                   \
    return block_family<M>(pSrc, pDst, numIters, pState, scaleFactor);                             \
  }                                                                                                \
  KELS_EXPORT KelStatus kelsFIR##P##_##D##_ISfs(M::Data* pSrcDst, int numIters, State* pState,    \
                                                int scaleFactor) {                                 \
    return block_family_i<M>(pSrcDst, numIters, pState, scaleFactor);                              \
  }

// Integer taps with tapsFactor, and the float-taps variant of the same record
// (no delay-line exchange of its own: the integer member's serves both).
#define KELS_DEFINE_FIR_INT_TAPS(P, D, M, State, FC, F)                                            \
  KELS_EXPORT KelStatus kelsFIRInit##P##_##D(State** ppState, const M::Tap* pTaps, int tapsLen,   \
                                             int tapsFactor, const M::Data* pDlyLine,              \
                                             Kel8u* pBuffer) {                                     \
    KELS_REQUIRE_PTRS(ppState, pTaps, pBuffer);                                                    \
    return init_family<M>(ppState, tapsLen, pDlyLine, pBuffer,                                     \
                          [=](Record* r) { store_int<M>(r, pTaps, tapsFactor); });                 \
  }                                                                                                \
  KELS_EXPORT KelStatus kelsFIRInitAlloc##P##_##D(State** ppState, const M::Tap* pTaps,           \
                                                  int tapsLen, int tapsFactor,                     \
                                                  const M::Data* pDlyLine) {                       \
    KELS_REQUIRE_PTRS(ppState, pTaps);                                                             \
    return init_family<M>(ppState, tapsLen, pDlyLine, nullptr,                                     \
                          [=](Record* r) { store_int<M>(r, pTaps, tapsFactor); });                 \
  }                                                                                                \
  KELS_EXPORT KelStatus kelsFIRGetTaps##P##_##D(const State* pState, M::Tap* pTaps,               \
                                                int* pTapsFactor) {                                \
    KELS_REQUIRE_PTRS(pTapsFactor);                                                                \
    return taps_family<M>(pState, pTaps, [=](const Record* r) { load_int<M>(r, pTaps, pTapsFactor); }); \
  }                                                                                                \
  KELS_EXPORT KelStatus kelsFIRSetTaps##P##_##D(const M::Tap* pTaps, State* pState,               \
                                                int tapsFactor) {                                  \
    return set_taps_family<M>(pState, pTaps, [=](Record* r) { store_int<M>(r, pTaps, tapsFactor); }); \
  }                                                                                                \
  KELS_EXPORT KelStatus kelsFIRInit##P##_##D##FC(State** ppState, const F* pTaps, int tapsLen,    \
                                                 const M::Data* pDlyLine, Kel8u* pBuffer) {        \
    KELS_REQUIRE_PTRS(ppState, pTaps, pBuffer);                                                    \
    return init_family<M>(ppState, tapsLen, pDlyLine, pBuffer,                                     \
                          [=](Record* r) { store_float_as_int<M>(r, pTaps); });                    \
  }                                                                                                \
  KELS_EXPORT KelStatus kelsFIRInitAlloc##P##_##D##FC(State** ppState, const F* pTaps,            \
                                                      int tapsLen, const M::Data* pDlyLine) {      \
    KELS_REQUIRE_PTRS(ppState, pTaps);                                                             \
    return init_family<M>(ppState, tapsLen, pDlyLine, nullptr,                                     \
                          [=](Record* r) { store_float_as_int<M>(r, pTaps); });                    \
  }                                                                                                \
  KELS_EXPORT KelStatus kelsFIRGetTaps##P##_##D##FC(const State* pState, F* pTaps) {              \
    return taps_family<M>(pState, pTaps, [=](const Record* r) { load_int_as_float<M>(r, pTaps); }); \
  }                                                                                                \
  KELS_EXPORT KelStatus kelsFIRSetTaps##P##_##D##FC(const F* pTaps, State* pState) {              \
    return set_taps_family<M>(pState, pTaps, [=](Record* r) { store_float_as_int<M>(r, pTaps); }); \
  }                                                                                                \
  KELS_DEFINE_FIR_LIFECYCLE(P, D##FC, M, State)                                                    \
  KELS_DEFINE_FIR_FILTER_SFS(P, D##FC, M, State)

#define KELS_DEFINE_FIR_ALL_FLOAT(P, D, M, State) \
  KELS_DEFINE_FIR_LIFECYCLE(P, D, M, State) KELS_DEFINE_FIR_DLY(P, D, M, State) \
  KELS_DEFINE_FIR_PLAIN_TAPS(P, D, M, State) KELS_DEFINE_FIR_FILTER(P, D, M, State)
#define KELS_DEFINE_FIR_ALL_SFS(P, D, M, State) \
  KELS_DEFINE_FIR_LIFECYCLE(P, D, M, State) KELS_DEFINE_FIR_DLY(P, D, M, State) \
  KELS_DEFINE_FIR_PLAIN_TAPS(P, D, M, State) KELS_DEFINE_FIR_FILTER_SFS(P, D, M, State)
#define KELS_DEFINE_FIR_ALL_INT(P, D, M, State, FC, F) \
  KELS_DEFINE_FIR_LIFECYCLE(P, D, M, State) KELS_DEFINE_FIR_DLY(P, D, M, State) \
  KELS_DEFINE_FIR_FILTER_SFS(P, D, M, State) KELS_DEFINE_FIR_INT_TAPS(P, D, M, State, FC, F)

KELS_FOR_MEMBERS(KELS_FIR_FLOAT_MEMBERS, KELS_DEFINE_FIR_ALL_FLOAT)
KELS_FOR_MEMBERS(KELS_FIR_SFS_MEMBERS, KELS_DEFINE_FIR_ALL_SFS)
KELS_FOR_MEMBERS(KELS_FIR_INT_TAPS_MEMBERS, KELS_DEFINE_FIR_ALL_INT)

// _32s: 32-bit integer taps with a factor, kept as doubles in the 64f_32s
// record ("12IF"); its delay line is exchanged through the 64f_32s functions.
KELS_DEFINE_FIR_LIFECYCLE(, 32s, M64f32s, KelsFIRState_32s)
KELS_DEFINE_FIR_FILTER_SFS(, 32s, M64f32s, KelsFIRState_32s)
KELS_EXPORT KelStatus kelsFIRInit_32s(KelsFIRState_32s** ppState, const Kel32s* pTaps, int tapsLen,
                                      int tapsFactor, const Kel32s* pDlyLine, Kel8u* pBuffer) {
  KELS_REQUIRE_PTRS(ppState, pTaps, pBuffer);
  return init_family<M64f32s>(ppState, tapsLen, pDlyLine, pBuffer,
                              [=](Record* r) { store_int_as_double<M64f32s>(r, pTaps, tapsFactor); });
}
KELS_EXPORT KelStatus kelsFIRInitAlloc_32s(KelsFIRState_32s** ppState, const Kel32s* pTaps, int tapsLen,
                                           int tapsFactor, const Kel32s* pDlyLine) {
  KELS_REQUIRE_PTRS(ppState, pTaps);
  return init_family<M64f32s>(ppState, tapsLen, pDlyLine, nullptr,
                              [=](Record* r) { store_int_as_double<M64f32s>(r, pTaps, tapsFactor); });
}
KELS_EXPORT KelStatus kelsFIRGetTaps_32s(const KelsFIRState_32s* pState, Kel32s* pTaps, int* pTapsFactor) {
  KELS_REQUIRE_PTRS(pTapsFactor);
  return taps_family<M64f32s>(pState, pTaps,
                              [=](const Record* r) { load_double_as_int<M64f32s>(r, pTaps, pTapsFactor); });
}
KELS_EXPORT KelStatus kelsFIRSetTaps_32s(const Kel32s* pTaps, KelsFIRState_32s* pState, int tapsFactor) {
  return set_taps_family<M64f32s>(pState, pTaps,
                                  [=](Record* r) { store_int_as_double<M64f32s>(r, pTaps, tapsFactor); });
}

// Single-rate workers of the "12IF" record, without argument checks.
KELS_EXPORT KelStatus kelsFIRSR64f_32s_Sfs(const Kel32s* pSrc, Kel32s* pDst, int numIters,
                                           KelsFIRState64f_32s* pState, int scaleFactor) {
  if (pSrc == pDst) return filter_in_place<M64f32s>(rec(pState), pDst, numIters, scaleFactor);
  return filter_block<M64f32s>(rec(pState), pSrc, pDst, numIters, scaleFactor);
}
KELS_EXPORT KelStatus kelsFIRSR64f_32s_ISfs(Kel32s* pSrcDst, int numIters, KelsFIRState64f_32s* pState,
                                            int scaleFactor) {
  return filter_in_place<M64f32s>(rec(pState), pSrcDst, numIters, scaleFactor);
}
KELS_EXPORT KelStatus kelsFIRSROne64f_32s_Sfs(Kel32s src, Kel32s* pDstVal, KelsFIRState64f_32s* pState,
                                              int scaleFactor) {
  *pDstVal = one_step<M64f32s>(rec(pState), src, scaleFactor);
  return kelStsOk;
}
