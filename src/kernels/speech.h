// G.711 encoders (vector kernels with scalar twins) and the decoding rules
// the companding tables are built from.
#ifndef KELS_KERNELS_SPEECH_H
#define KELS_KERNELS_SPEECH_H

#include <cstddef>
#include <cstdint>

namespace kels::kernels {

// Linear 16-bit samples to A-law / mu-law codes.
void alaw_encode(const std::int16_t* src, std::uint8_t* dst, std::size_t n);
void mulaw_encode(const std::int16_t* src, std::uint8_t* dst, std::size_t n);

namespace scalar {

// A-law: 13-bit magnitude (one's complement for negatives, so -1 -> 0), the
// first segment whose end (255 .. 32767, shifted right by 3) is not below
// it, four mantissa bits; the even bits are inverted (mask 0x55, and 0xD5
// for positive samples, which also sets the sign bit).
constexpr std::uint8_t alaw_encode_one(std::int16_t x) {
  int v = x >> 3;
  int mask = 0xD5;
  if (v < 0) {
    mask = 0x55;
    v = ~v;
  }
  int s = 0;
  while (s < 8 && ((32 << s) - 1) < v) ++s;
  const int mant = (v >> (s < 2 ? 1 : s)) & 15;
  return static_cast<std::uint8_t>(((s << 4) | mant) ^ mask);
}

// mu-law: 14-bit magnitude plus the bias 33, limited to 8191; segment s is 1
// plus the number of significant bits above bit 5; the code is inverted and
// the sign bit set for non-negative samples.
constexpr std::uint8_t mulaw_encode_one(std::int16_t x) {
  int m = (x >= 0 ? x >> 2 : ~x >> 2) + 33;
  if (m > 8191) m = 8191;
  int s = 1;
  for (int t = m >> 6; t != 0; t >>= 1) ++s;
  const int code = 15 - ((m >> s) & 15) + (8 - s) * 16;
  return static_cast<std::uint8_t>(x >= 0 ? code | 0x80 : code);
}

// G.711 decoding: the linear value of every code.
constexpr std::int16_t alaw_decode(std::uint8_t code) {
  const int a = code ^ 0x55;
  const int seg = (a >> 4) & 7;
  int t = (a & 15) << 4;
  if (seg == 0) {
    t += 8;
  } else {
    t = (t + 0x108) << (seg - 1);
  }
  return static_cast<std::int16_t>((a & 0x80) ? t : -t);
}

constexpr std::int16_t mulaw_decode(std::uint8_t code) {
  const int u = ~code & 0xFF;
  const int t = (((u & 15) << 3) + 0x84) << ((u >> 4) & 7);
  return static_cast<std::int16_t>((u & 0x80) ? 0x84 - t : t - 0x84);
}

inline void alaw_encode(const std::int16_t* src, std::uint8_t* dst, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) dst[i] = alaw_encode_one(src[i]);
}
inline void mulaw_encode(const std::int16_t* src, std::uint8_t* dst, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) dst[i] = mulaw_encode_one(src[i]);
}

}  // namespace scalar
}  // namespace kels::kernels

#endif  // KELS_KERNELS_SPEECH_H
