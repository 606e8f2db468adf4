#include "reference/dft.h"

#include <cmath>

namespace kels::ref {
namespace {

constexpr long double kTwoPi = 6.283185307179586476925286766559L;

cld unit(std::size_t m, std::size_t n, bool inverse) {
  const long double a = kTwoPi * static_cast<long double>(m % n) / static_cast<long double>(n);
  return {std::cos(a), inverse ? std::sin(a) : -std::sin(a)};
}

void fft_rec(const cld* x, std::size_t stride, cld* y, std::size_t n, const std::vector<cld>& w,
             std::size_t wstride) {
  if (n == 1) {
    y[0] = x[0];
    return;
  }
  const std::size_t h = n / 2;
  fft_rec(x, 2 * stride, y, h, w, 2 * wstride);
  fft_rec(x + stride, 2 * stride, y + h, h, w, 2 * wstride);
  for (std::size_t k = 0; k < h; ++k) {
    const cld e = y[k], o = y[k + h] * w[k * wstride];
    y[k] = e + o;
    y[k + h] = e - o;
  }
}

}  // namespace

std::vector<cld> dft(const std::vector<cld>& x, bool inverse) {
  const std::size_t n = x.size();
  std::vector<cld> tw(n), y(n);
  for (std::size_t m = 0; m < n; ++m) tw[m] = unit(m, n, inverse);
  for (std::size_t k = 0; k < n; ++k) {
    cld s = 0;
    for (std::size_t j = 0; j < n; ++j) s += x[j] * tw[(j * k) % n];
    y[k] = s;
  }
  return y;
}

std::vector<cld> fft(const std::vector<cld>& x, bool inverse) {
  const std::size_t n = x.size();
  std::vector<cld> w(n / 2 + 1), y(n);
  for (std::size_t m = 0; m <= n / 2; ++m) w[m] = unit(m, n, inverse);
  fft_rec(x.data(), 1, y.data(), n, w, 1);
  return y;
}

long double rel_rms(const std::vector<cld>& a, const std::vector<cld>& b) {
  long double num = 0, den = 0;
  for (std::size_t i = 0; i < a.size(); ++i) {
    num += std::norm(a[i] - b[i]);
    den += std::norm(b[i]);
  }
  if (den == 0) return num == 0 ? 0 : 1;
  return std::sqrt(num / den);
}

}  // namespace kels::ref
