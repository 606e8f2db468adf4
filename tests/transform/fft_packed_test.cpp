// Packed spectra: expansion of Pack / Perm / CCS arrays built from known
// Hermitian spectra (odd and even lengths, 1 and 2, in place and out of
// place), products checked through the expansion (the product of packed
// arrays expands to the product of the expanded spectra), the scaled 16-bit
// products against an exact model, and the argument checks.
#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <random>
#include <string>
#include <vector>

#include "kels.h"
#include "support/targets.h"

namespace kels::test {
namespace {

enum class Lay { Pack, Perm, Ccs };

// A Hermitian spectrum of length len with integer-valued parts (so every
// layout and product is exact), and its packed form.
std::vector<std::complex<double>> hermitian(int len, unsigned seed) {
  std::mt19937 gen(seed);
  std::uniform_int_distribution<int> u(-90, 90);
  std::vector<std::complex<double>> x(static_cast<std::size_t>(len));
  for (int k = 0; 2 * k <= len; ++k) {
    const bool real = k == 0 || 2 * k == len;
    x[k] = {double(u(gen)), real ? 0.0 : double(u(gen))};
    if (k > 0) x[len - k] = std::conj(x[k]);
  }
  return x;
}

std::vector<double> packed(const std::vector<std::complex<double>>& x, Lay lay) {
  const int len = static_cast<int>(x.size());
  std::vector<double> p(static_cast<std::size_t>(lay == Lay::Ccs ? 2 * (len / 2 + 1) : len));
  if (lay == Lay::Ccs) {
    for (int k = 0; 2 * k <= len; ++k) {
      p[2 * k] = x[k].real();
      p[2 * k + 1] = x[k].imag();
    }
    return p;
  }
  p[0] = x[0].real();
  const bool perm_even = lay == Lay::Perm && len % 2 == 0;
  for (int k = 1; 2 * k < len; ++k) {
    p[perm_even ? 2 * k : 2 * k - 1] = x[k].real();
    p[perm_even ? 2 * k + 1 : 2 * k] = x[k].imag();
  }
  if (len % 2 == 0 && len > 1) p[perm_even ? 1 : len - 1] = x[len / 2].real();
  return p;
}

template <class R, class C>
KelStatus expand(Lay lay, const R* s, C* d, int len) {
  if constexpr (std::is_same_v<R, Kel32f>) {
    return lay == Lay::Pack ? kelsConjPack_32fc(s, d, len) : lay == Lay::Perm ? kelsConjPerm_32fc(s, d, len)
                                                                              : kelsConjCcs_32fc(s, d, len);
  } else if constexpr (std::is_same_v<R, Kel64f>) {
    return lay == Lay::Pack ? kelsConjPack_64fc(s, d, len) : lay == Lay::Perm ? kelsConjPerm_64fc(s, d, len)
                                                                              : kelsConjCcs_64fc(s, d, len);
  } else {
    return lay == Lay::Pack ? kelsConjPack_16sc(s, d, len) : lay == Lay::Perm ? kelsConjPerm_16sc(s, d, len)
                                                                              : kelsConjCcs_16sc(s, d, len);
  }
}
template <class C>
KelStatus expand_i(Lay lay, C* x, int len) {
  if constexpr (std::is_same_v<C, Kel32fc>) {
    return lay == Lay::Pack ? kelsConjPack_32fc_I(x, len) : lay == Lay::Perm ? kelsConjPerm_32fc_I(x, len)
                                                                             : kelsConjCcs_32fc_I(x, len);
  } else if constexpr (std::is_same_v<C, Kel64fc>) {
    return lay == Lay::Pack ? kelsConjPack_64fc_I(x, len) : lay == Lay::Perm ? kelsConjPerm_64fc_I(x, len)
                                                                             : kelsConjCcs_64fc_I(x, len);
  } else {
    return lay == Lay::Pack ? kelsConjPack_16sc_I(x, len) : lay == Lay::Perm ? kelsConjPerm_16sc_I(x, len)
                                                                             : kelsConjCcs_16sc_I(x, len);
  }
}

template <class R, class C>
void check_expand() {
  for (int len : {1, 2, 3, 4, 5, 8, 9, 16, 31}) {
    for (Lay lay : {Lay::Pack, Lay::Perm, Lay::Ccs}) {
      const auto x = hermitian(len, static_cast<unsigned>(len));
      const auto p = packed(x, lay);
      Guarded<R> src(p.size());
      for (std::size_t i = 0; i < p.size(); ++i) src[i] = static_cast<R>(p[i]);
      Guarded<C> dst(static_cast<std::size_t>(len)), inpl(static_cast<std::size_t>(len));
      ASSERT_EQ((expand<R, C>(lay, src.data(), dst.data(), len)), kelStsOk);
      R* ip = reinterpret_cast<R*>(inpl.data());
      for (std::size_t i = 0; i < p.size() && i < 2 * static_cast<std::size_t>(len); ++i) ip[i] = static_cast<R>(p[i]);
      ASSERT_EQ(expand_i<C>(lay, inpl.data(), len), kelStsOk);
      for (int k = 0; k < len; ++k) {
        EXPECT_EQ(dst[k].re, x[k].real()) << "len " << len << " layout " << int(lay) << " k " << k;
        EXPECT_EQ(dst[k].im, x[k].imag()) << "len " << len << " layout " << int(lay) << " k " << k;
        EXPECT_EQ(inpl[k].re, x[k].real()) << "in place, len " << len << " k " << k;
        EXPECT_EQ(inpl[k].im, x[k].imag()) << "in place, len " << len << " k " << k;
      }
      EXPECT_TRUE(dst.guards_intact() && inpl.guards_intact());
    }
  }
}

TEST(FftPacked, ExpandAllLayouts) {
  check_expand<Kel32f, Kel32fc>();
  check_expand<Kel64f, Kel64fc>();
  check_expand<Kel16s, Kel16sc>();
}

// The expansion of a product equals the product of the expansions.
template <class T, class C>
void check_products(KelStatus (*mul_pack)(const T*, const T*, T*, int),
                    KelStatus (*mul_perm)(const T*, const T*, T*, int),
                    KelStatus (*conj_i)(const T*, T*, int)) {
  for (int len : {1, 2, 3, 4, 7, 8, 33, 64}) {
    for (int variant = 0; variant < 3; ++variant) {
      const Lay lay = variant == 1 ? Lay::Perm : Lay::Pack;
      const auto xa = hermitian(len, 11u + static_cast<unsigned>(len));
      const auto xb = hermitian(len, 97u + static_cast<unsigned>(len));
      const auto pa = packed(xa, lay), pb = packed(xb, lay);
      std::vector<T> a(pa.begin(), pa.end()), b(pb.begin(), pb.end()), d(pa.size());
      if (variant == 0) {
        ASSERT_EQ(mul_pack(a.data(), b.data(), d.data(), len), kelStsOk);
      } else if (variant == 1) {
        ASSERT_EQ(mul_perm(a.data(), b.data(), d.data(), len), kelStsOk);
      }
      if (variant == 2) {  // pSrcDst = b, the conjugated operand
        d = b;
        ASSERT_EQ(conj_i(a.data(), d.data(), len), kelStsOk);
      }
      std::vector<C> full(static_cast<std::size_t>(len));
      ASSERT_EQ((expand<T, C>(lay, d.data(), full.data(), len)), kelStsOk);
      for (int k = 0; k < len; ++k) {
        const auto want = variant == 2 ? xa[k] * std::conj(xb[k]) : xa[k] * xb[k];
        EXPECT_EQ(full[k].re, want.real()) << "len " << len << " variant " << variant << " k " << k;
        EXPECT_EQ(full[k].im, want.imag()) << "len " << len << " variant " << variant << " k " << k;
      }
    }
  }
}

TEST(FftPacked, ProductsFloat) {
  for_each_target([](const std::string&) {
    check_products<Kel32f, Kel32fc>(kelsMulPack_32f, kelsMulPerm_32f, kelsMulPackConj_32f_I);
    check_products<Kel64f, Kel64fc>(kelsMulPack_64f, kelsMulPerm_64f, kelsMulPackConj_64f_I);
  });
  // In-place forms give the out-of-place result.
  std::vector<Kel32f> a = {1, 2, 3, 4, 5, 6}, b = {7, 8, 9, 10, 11, 12}, d(6), bi = b;
  ASSERT_EQ(kelsMulPerm_32f(a.data(), b.data(), d.data(), 6), kelStsOk);
  ASSERT_EQ(kelsMulPerm_32f_I(a.data(), bi.data(), 6), kelStsOk);
  EXPECT_EQ(d, bi);
  bi = b;
  ASSERT_EQ(kelsMulPack_32f(a.data(), b.data(), d.data(), 6), kelStsOk);
  ASSERT_EQ(kelsMulPack_32f_I(a.data(), bi.data(), 6), kelStsOk);
  EXPECT_EQ(d, bi);
}

// Scaled 16-bit products: exact products, rounded to nearest even by
// 2^-scaleFactor and saturated.
long long round_scaled(long long r, int sf) {
  const long double v = std::ldexp(static_cast<long double>(r), -sf);
  long double f = std::floor(v);
  const long double frac = v - f;
  if (frac > 0.5L || (frac == 0.5L && std::fmod(f, 2.0L) != 0)) f += 1;
  return f > 32767 ? 32767 : f < -32768 ? -32768 : static_cast<long long>(f);
}

TEST(FftPacked, Products16s) {
  std::mt19937 gen(5);
  std::uniform_int_distribution<int> u(-32768, 32767);
  for (int len : {1, 2, 5, 6, 17}) {
    for (int sf : {-2, 0, 1, 3, 16, 31}) {
      for (bool perm : {false, true}) {
        std::vector<Kel16s> a(len), b(len), d(len), di;
        for (int i = 0; i < len; ++i) {
          a[i] = static_cast<Kel16s>(u(gen) >> (sf < 1 ? 8 : 0));
          b[i] = static_cast<Kel16s>(u(gen) >> (sf < 1 ? 8 : 0));
        }
        di = b;
        ASSERT_EQ(perm ? kelsMulPerm_16s_Sfs(a.data(), b.data(), d.data(), len, sf)
                       : kelsMulPack_16s_Sfs(a.data(), b.data(), d.data(), len, sf),
                  kelStsOk);
        ASSERT_EQ(perm ? kelsMulPerm_16s_ISfs(a.data(), di.data(), len, sf)
                       : kelsMulPack_16s_ISfs(a.data(), di.data(), len, sf),
                  kelStsOk);
        EXPECT_EQ(d, di);
        const bool even = len % 2 == 0;
        const int first = perm && even ? 2 : 1;
        const int pairs = perm && even ? (len - 2) / 2 : (len - 1) / 2;
        const int second_real = !even || len == 1 ? -1 : perm ? 1 : len - 1;
        std::vector<long long> want(len);
        want[0] = round_scaled(1LL * a[0] * b[0], sf);
        if (second_real >= 0) want[second_real] = round_scaled(1LL * a[second_real] * b[second_real], sf);
        for (int p = 0; p < pairs; ++p) {
          const int i = first + 2 * p;
          want[i] = round_scaled(1LL * a[i] * b[i] - 1LL * a[i + 1] * b[i + 1], sf);
          want[i + 1] = round_scaled(1LL * a[i] * b[i + 1] + 1LL * a[i + 1] * b[i], sf);
        }
        for (int i = 0; i < len; ++i) EXPECT_EQ(d[i], want[i]) << "len " << len << " sf " << sf << " i " << i;
      }
    }
  }
}

TEST(FftPacked, ArgumentChecks) {
  Guarded<Kel32f> a(8), d(8);
  Guarded<Kel32fc> c(8);
  EXPECT_EQ(kelsMulPack_32f(nullptr, a.data(), d.data(), 8), kelStsNullPtr);
  EXPECT_EQ(kelsMulPerm_32f(a.data(), a.data(), nullptr, 0), kelStsNullPtr);
  EXPECT_EQ(kelsMulPerm_32f(a.data(), a.data(), d.data(), 0), kelStsBadLength);
  EXPECT_EQ(kelsMulPackConj_32f_I(a.data(), d.data(), -1), kelStsBadLength);
  EXPECT_EQ(kelsMulPack_16s_Sfs(nullptr, nullptr, nullptr, 0, 0), kelStsNullPtr);
  EXPECT_EQ(kelsConjPack_32fc(nullptr, c.data(), 4), kelStsNullPtr);
  EXPECT_EQ(kelsConjCcs_32fc(a.data(), c.data(), 0), kelStsBadLength);
  EXPECT_EQ(kelsConjPerm_32fc_I(nullptr, 4), kelStsNullPtr);
  EXPECT_TRUE(d.untouched());
  EXPECT_TRUE(c.untouched());
}

}  // namespace
}  // namespace kels::test
