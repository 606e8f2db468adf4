// Long-double reference transforms for the FFT tests: the direct DFT
// (O(N^2), exact twiddles from sinl/cosl of the reduced angle) and a
// recursive radix-2 FFT in long double for lengths where the direct sum is
// too slow. Both return the unscaled forward or inverse transform.
#ifndef KELS_TESTS_REFERENCE_DFT_H
#define KELS_TESTS_REFERENCE_DFT_H

#include <complex>
#include <cstddef>
#include <vector>

namespace kels::ref {

using cld = std::complex<long double>;

std::vector<cld> dft(const std::vector<cld>& x, bool inverse);
std::vector<cld> fft(const std::vector<cld>& x, bool inverse);  // size a power of two

// sqrt(sum |a-b|^2 / sum |b|^2); 0 when both are zero.
long double rel_rms(const std::vector<cld>& a, const std::vector<cld>& b);

}  // namespace kels::ref

#endif  // KELS_TESTS_REFERENCE_DFT_H
