// G.711 companding: decoding tables against the segment definitions, the
// encoders over all 65536 inputs on every SIMD target, all 256 codes, the
// float forms and the transcoding tables.
#include <cmath>
#include <cstdlib>
#include <vector>

#include <gtest/gtest.h>

#include "kels.h"
#include "kernels/speech.h"
#include "support/targets.h"

namespace {

using kels::test::Guarded;

// Linear value of a code from the G.711 segment definition: mu-law on the
// 14-bit scale ((2m + 33) 2^e - 33), A-law on the 13-bit scale (2m + 1 in
// segment 0, (2m + 33) 2^(e-1) above), both brought to 16 bits.
int mulaw_value(int code) {
  const int u = ~code & 0xFF;
  const int e = (u >> 4) & 7, m = u & 15;
  const int mag = (((2 * m + 33) << e) - 33) * 4;
  return (u & 0x80) ? -mag : mag;
}
int alaw_value(int code) {
  const int a = code ^ 0x55;
  const int e = (a >> 4) & 7, m = a & 15;
  const int mag = (e == 0 ? 2 * m + 1 : (2 * m + 33) << (e - 1)) * 8;
  return (a & 0x80) ? mag : -mag;
}

std::vector<Kel16s> all_samples() {
  std::vector<Kel16s> x(65536);
  for (int i = 0; i < 65536; ++i) x[static_cast<std::size_t>(i)] = static_cast<Kel16s>(i - 32768);
  return x;
}
std::vector<Kel8u> all_codes() {
  std::vector<Kel8u> c(256);
  for (int i = 0; i < 256; ++i) c[static_cast<std::size_t>(i)] = static_cast<Kel8u>(i);
  return c;
}

TEST(Companding, DecodingTables) {
  const auto codes = all_codes();
  std::vector<Kel16s> a(256), m(256);
  std::vector<Kel32f> af(256), mf(256);
  ASSERT_EQ(kelsALawToLin_8u16s(codes.data(), a.data(), 256), kelStsOk);
  ASSERT_EQ(kelsMuLawToLin_8u16s(codes.data(), m.data(), 256), kelStsOk);
  ASSERT_EQ(kelsALawToLin_8u32f(codes.data(), af.data(), 256), kelStsOk);
  ASSERT_EQ(kelsMuLawToLin_8u32f(codes.data(), mf.data(), 256), kelStsOk);
  for (int c = 0; c < 256; ++c) {
    EXPECT_EQ(a[c], alaw_value(c)) << c;
    EXPECT_EQ(m[c], mulaw_value(c)) << c;
    EXPECT_EQ(af[c], std::ldexp(static_cast<float>(a[c]), -15)) << c;
    EXPECT_EQ(mf[c], std::ldexp(static_cast<float>(m[c]), -15)) << c;
  }
  EXPECT_EQ(a[0xD5], 8);
  EXPECT_EQ(a[0x55], -8);
  EXPECT_EQ(m[0x00], -32124);
  EXPECT_EQ(m[0x7F], 0);
  EXPECT_EQ(m[0xFF], 0);
}

// Every SIMD target against the scalar twin, all inputs, at several
// alignments and lengths that end inside a vector.
TEST(Companding, EncoderKernelsMatchScalarTwins) {
  const auto x = all_samples();
  std::vector<Kel8u> ref_a(65536), ref_m(65536);
  kels::kernels::scalar::alaw_encode(x.data(), ref_a.data(), 65536);
  kels::kernels::scalar::mulaw_encode(x.data(), ref_m.data(), 65536);
  kels::test::for_each_target([&](const std::string& target) {
    for (std::size_t off : {0u, 1u, 7u}) {
      for (std::size_t n : {1u, 15u, 33u, 65536u - 7u}) {
        std::vector<Kel8u> a(n + off), m(n + off);
        kels::kernels::alaw_encode(x.data() + off, a.data(), n);
        kels::kernels::mulaw_encode(x.data() + off, m.data(), n);
        for (std::size_t i = 0; i < n; ++i) {
          ASSERT_EQ(a[i], ref_a[i + off]) << target << " A-law x=" << x[i + off];
          ASSERT_EQ(m[i], ref_m[i + off]) << target << " mu-law x=" << x[i + off];
        }
      }
    }
  });
}

// Over all 65536 inputs: the decoded value of the code is the centre of a
// quantisation cell containing the input (error at most half the segment's
// step plus the 2 or 3 bits the encoder drops), the decoded value never
// decreases as the input grows, and decoding is idempotent through encoding.
TEST(Companding, EncodersOverAllInputs) {
  const auto x = all_samples();
  std::vector<Kel8u> a(65536), m(65536);
  ASSERT_EQ(kelsLinToALaw_16s8u(x.data(), a.data(), 65536), kelStsOk);
  ASSERT_EQ(kelsLinToMuLaw_16s8u(x.data(), m.data(), 65536), kelStsOk);
  int prev_a = -40000, prev_m = -40000;
  for (int i = 0; i < 65536; ++i) {
    const int xi = x[static_cast<std::size_t>(i)];
    const int da = alaw_value(a[i]), dm = mulaw_value(m[i]);
    const int ea = ((a[i] ^ 0x55) >> 4) & 7, em = ((~m[i]) >> 4) & 7;
    const int step_a = ea < 2 ? 16 : 16 << (ea - 1), step_m = 8 << em;
    if (xi < 32768 - 1024) {
      EXPECT_LE(std::abs(xi - da), step_a / 2 + 8) << "A-law x=" << xi;
    }
    if (std::abs(xi) < 32124) {
      EXPECT_LE(std::abs(xi - dm), step_m / 2 + 4) << "mu-law x=" << xi;
    }
    EXPECT_GE(da, prev_a) << xi;
    EXPECT_GE(dm, prev_m) << xi;
    prev_a = da;
    prev_m = dm;
    EXPECT_EQ((a[i] & 0x80) != 0, xi >= 0);
    EXPECT_EQ((m[i] & 0x80) != 0, xi >= 0);
  }
  // All 256 codes: decode, encode, decode gives the same value; every code
  // but the negative zero of mu-law (0x7F) comes back unchanged.
  const auto codes = all_codes();
  std::vector<Kel16s> lin(256);
  std::vector<Kel8u> back(256);
  ASSERT_EQ(kelsALawToLin_8u16s(codes.data(), lin.data(), 256), kelStsOk);
  ASSERT_EQ(kelsLinToALaw_16s8u(lin.data(), back.data(), 256), kelStsOk);
  EXPECT_EQ(back, codes);
  ASSERT_EQ(kelsMuLawToLin_8u16s(codes.data(), lin.data(), 256), kelStsOk);
  ASSERT_EQ(kelsLinToMuLaw_16s8u(lin.data(), back.data(), 256), kelStsOk);
  for (int c = 0; c < 256; ++c) EXPECT_EQ(back[c], c == 0x7F ? 0xFF : c) << c;
}

TEST(Companding, KnownCodes) {
  const Kel16s x[5] = {0, -1, 32767, -32768, 8};
  Kel8u a[5], m[5];
  ASSERT_EQ(kelsLinToALaw_16s8u(x, a, 5), kelStsOk);
  ASSERT_EQ(kelsLinToMuLaw_16s8u(x, m, 5), kelStsOk);
  EXPECT_EQ(a[0], 0xD5);
  EXPECT_EQ(a[1], 0x55);
  EXPECT_EQ(m[0], 0xFF);
  EXPECT_EQ(m[1], 0x7F);
  EXPECT_EQ(m[2], 0x80);
  EXPECT_EQ(m[3], 0x00);
  EXPECT_EQ(a[2], 0xAA);  // top segment, mantissa 15, even bits inverted
}

// 32f input: x * 32768 saturated, rounded half away from zero, then the 16s
// encoder.
TEST(Companding, FloatEncoders) {
  std::vector<Kel32f> f;
  for (int i = -70000; i <= 70000; i += 7) f.push_back(static_cast<float>(i) / 65536.0f);  // half-integer steps
  for (float v : {1.0f, -1.0f, 2.0f, -3.0f, 0.5f / 32768, -0.5f / 32768, 1e30f, -1e30f}) f.push_back(v);
  const int n = static_cast<int>(f.size());
  std::vector<Kel16s> s(f.size());
  for (std::size_t i = 0; i < f.size(); ++i) {
    const double v = static_cast<double>(f[i]) * 32768;
    const double c = std::min(32767.0, std::max(-32768.0, v));
    s[i] = static_cast<Kel16s>(c < 0 ? std::ceil(c - 0.5) : std::floor(c + 0.5));
  }
  std::vector<Kel8u> a(f.size()), ra(f.size()), m(f.size()), rm(f.size());
  ASSERT_EQ(kelsLinToALaw_32f8u(f.data(), a.data(), n), kelStsOk);
  ASSERT_EQ(kelsLinToALaw_16s8u(s.data(), ra.data(), n), kelStsOk);
  ASSERT_EQ(kelsLinToMuLaw_32f8u(f.data(), m.data(), n), kelStsOk);
  ASSERT_EQ(kelsLinToMuLaw_16s8u(s.data(), rm.data(), n), kelStsOk);
  EXPECT_EQ(a, ra);
  EXPECT_EQ(m, rm);
  const Kel32f one = 1.0f;
  Kel8u c = 0;
  ASSERT_EQ(kelsLinToMuLaw_32f8u(&one, &c, 1), kelStsOk);
  EXPECT_EQ(c, 0x80);
}

// Transcoding keeps the sign, keeps the order of the decoded values, and
// lands close to the source value (within the coarser code set's step).
TEST(Companding, TranscodingTables) {
  const auto codes = all_codes();
  std::vector<Kel8u> a2m(256), m2a(256);
  ASSERT_EQ(kelsALawToMuLaw_8u(codes.data(), a2m.data(), 256), kelStsOk);
  ASSERT_EQ(kelsMuLawToALaw_8u(codes.data(), m2a.data(), 256), kelStsOk);
  EXPECT_EQ(mulaw_value(a2m[0xD5]), 8);
  for (int c = 0; c < 256; ++c) {
    EXPECT_EQ(a2m[c] & 0x80, c & 0x80) << c;
    EXPECT_EQ(m2a[c] & 0x80, c & 0x80) << c;
    const int va = alaw_value(c), vm = mulaw_value(c);
    EXPECT_LE(std::abs(mulaw_value(a2m[c]) - va), std::max(64, std::abs(va) / 8)) << c;
    EXPECT_LE(std::abs(alaw_value(m2a[c]) - vm), std::max(64, std::abs(vm) / 8)) << c;
    for (int d = 0; d < 256; ++d) {
      if (alaw_value(c) < alaw_value(d)) {
        EXPECT_LE(mulaw_value(a2m[c]), mulaw_value(a2m[d]));
      }
      if (mulaw_value(c) < mulaw_value(d)) {
        EXPECT_LE(alaw_value(m2a[c]), alaw_value(m2a[d]));
      }
    }
  }
}

TEST(Companding, CheckOrder) {
  Guarded<Kel8u> d(4);
  Guarded<Kel16s> l(4);
  const Kel8u c[4] = {};
  const Kel16s s[4] = {};
  EXPECT_EQ(kelsLinToMuLaw_16s8u(nullptr, d.data(), 0), kelStsNullPtr);
  EXPECT_EQ(kelsLinToALaw_16s8u(s, nullptr, 4), kelStsNullPtr);
  EXPECT_EQ(kelsLinToALaw_32f8u(nullptr, d.data(), 4), kelStsNullPtr);
  EXPECT_EQ(kelsLinToMuLaw_32f8u(reinterpret_cast<const Kel32f*>(s), d.data(), 0), kelStsBadLength);
  EXPECT_EQ(kelsALawToLin_8u16s(c, l.data(), 0), kelStsBadLength);
  EXPECT_EQ(kelsMuLawToLin_8u16s(nullptr, l.data(), 4), kelStsNullPtr);
  EXPECT_EQ(kelsALawToLin_8u32f(c, nullptr, 4), kelStsNullPtr);
  EXPECT_EQ(kelsMuLawToLin_8u32f(c, reinterpret_cast<Kel32f*>(l.data()), -1), kelStsBadLength);
  EXPECT_EQ(kelsALawToMuLaw_8u(c, d.data(), 0), kelStsBadLength);
  EXPECT_EQ(kelsMuLawToALaw_8u(nullptr, d.data(), 4), kelStsNullPtr);
  EXPECT_TRUE(d.untouched());
  EXPECT_TRUE(l.untouched());
}

}  // namespace
