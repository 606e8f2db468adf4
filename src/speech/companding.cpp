// G.711 mu-law and A-law companding: decoding by table, encoding by the
// segment rules, and direct transcoding between the two code sets.
#include <array>
#include <cmath>
#include <cstdint>

#include "frame/common.h"
#include "kernels/speech.h"

namespace kels::speech {
namespace {

using kernels::scalar::alaw_decode;
using kernels::scalar::mulaw_decode;

template <class F>
constexpr std::array<Kel16s, 256> make_table(F decode) {
  std::array<Kel16s, 256> t{};
  for (int c = 0; c < 256; ++c) t[static_cast<std::size_t>(c)] = decode(static_cast<std::uint8_t>(c));
  return t;
}

constexpr auto kALawTable = make_table(alaw_decode);
constexpr auto kMuLawTable = make_table(mulaw_decode);
static_assert(kALawTable[0xD5] == 8 && kALawTable[0x55] == -8 && kALawTable[0x00] == -5504 &&
              kALawTable[0x80] == 5504, "A-law decoding table");
static_assert(kMuLawTable[0x00] == -32124 && kMuLawTable[0x80] == 32124 && kMuLawTable[0x7F] == 0 &&
              kMuLawTable[0xFF] == 0, "mu-law decoding table");

// Transcoding tables, indexed by the full source code. They are fixed data:
// about an eighth of the entries differ from the nearest-value mapping.
constexpr std::uint8_t kALawToMuLaw[256] = {
    42,  43,  40,  41,  46,  47,  44,  45,  34,  35,  32,  33,  38,  39,  36,  37,
    57,  58,  55,  56,  61,  62,  59,  60,  49,  50,  47,  48,  53,  54,  51,  52,
    10,  11,  8,   9,   14,  15,  12,  13,  2,   3,   0,   1,   6,   7,   4,   5,
    26,  27,  24,  25,  30,  31,  28,  29,  18,  19,  16,  17,  22,  23,  20,  21,
    98,  99,  96,  97,  102, 103, 100, 101, 93,  93,  92,  92,  95,  95,  94,  94,
    116, 118, 112, 114, 124, 126, 120, 122, 106, 107, 104, 105, 110, 111, 108, 109,
    72,  73,  70,  71,  76,  77,  74,  75,  64,  65,  63,  63,  68,  69,  66,  67,
    86,  87,  84,  85,  90,  91,  88,  89,  79,  79,  78,  78,  82,  83,  80,  81,
    170, 171, 168, 169, 174, 175, 172, 173, 162, 163, 160, 161, 166, 167, 164, 165,
    185, 186, 183, 184, 189, 190, 187, 188, 177, 178, 175, 176, 181, 182, 179, 180,
    138, 139, 136, 137, 142, 143, 140, 141, 130, 131, 128, 129, 134, 135, 132, 133,
    154, 155, 152, 153, 158, 159, 156, 157, 146, 147, 144, 145, 150, 151, 148, 149,
    226, 227, 224, 225, 230, 231, 228, 229, 221, 221, 220, 220, 223, 223, 222, 222,
    244, 246, 240, 242, 252, 254, 248, 250, 234, 235, 232, 233, 238, 239, 236, 237,
    200, 201, 198, 199, 204, 205, 202, 203, 192, 193, 191, 191, 196, 197, 194, 195,
    214, 215, 212, 213, 218, 219, 216, 217, 207, 207, 206, 206, 210, 211, 208, 209};

constexpr std::uint8_t kMuLawToALaw[256] = {
    42,  43,  40,  41,  46,  47,  44,  45,  34,  35,  32,  33,  38,  39,  36,  37,
    58,  59,  56,  57,  62,  63,  60,  61,  50,  51,  48,  49,  54,  55,  52,  53,
    10,  11,  8,   9,   14,  15,  12,  13,  2,   3,   0,   1,   6,   7,   4,   26,
    27,  24,  25,  30,  31,  28,  29,  18,  19,  16,  17,  22,  23,  20,  21,  106,
    104, 105, 110, 111, 108, 109, 98,  99,  96,  97,  102, 103, 100, 101, 122, 120,
    126, 127, 124, 125, 114, 115, 112, 113, 118, 119, 116, 117, 75,  73,  79,  77,
    66,  67,  64,  65,  70,  71,  68,  69,  90,  91,  88,  89,  94,  95,  92,  93,
    82,  82,  83,  83,  80,  80,  81,  81,  86,  86,  87,  87,  84,  84,  85,  85,
    170, 171, 168, 169, 174, 175, 172, 173, 162, 163, 160, 161, 166, 167, 164, 165,
    186, 187, 184, 185, 190, 191, 188, 189, 178, 179, 176, 177, 182, 183, 180, 181,
    138, 139, 136, 137, 142, 143, 140, 141, 130, 131, 128, 129, 134, 135, 132, 154,
    155, 152, 153, 158, 159, 156, 157, 146, 147, 144, 145, 150, 151, 148, 149, 234,
    232, 233, 238, 239, 236, 237, 226, 227, 224, 225, 230, 231, 228, 229, 250, 248,
    254, 255, 252, 253, 242, 243, 240, 241, 246, 247, 244, 245, 203, 201, 207, 205,
    194, 195, 192, 193, 198, 199, 196, 197, 218, 219, 216, 217, 222, 223, 220, 221,
    210, 210, 211, 211, 208, 208, 209, 209, 214, 214, 215, 215, 212, 212, 213, 213};

// 32f samples: x * 32768, saturated to the 16-bit range, rounded half away
// from zero; NaN encodes as 0.
inline Kel16s from_float(Kel32f x) {
  const float v = x * 32768.0f;
  if (!(v == v)) return 0;
  if (v >= 32767.0f) return 32767;
  if (v <= -32768.0f) return -32768;
  return static_cast<Kel16s>(v < 0 ? std::ceil(v - 0.5f) : std::floor(v + 0.5f));
}

// The encoders work on blocks of 16-bit samples so that the 32f forms share
// the vector kernels of the 16s forms.
template <void (*Encode)(const std::int16_t*, std::uint8_t*, std::size_t)>
KelStatus encode_16s(const Kel16s* src, Kel8u* dst, int len) {
  KELS_REQUIRE_PTRS(src, dst);
  KELS_REQUIRE_LEN(len);
  Encode(src, dst, static_cast<std::size_t>(len));
  return kelStsOk;
}

template <void (*Encode)(const std::int16_t*, std::uint8_t*, std::size_t)>
KelStatus encode_32f(const Kel32f* src, Kel8u* dst, int len) {
  KELS_REQUIRE_PTRS(src, dst);
  KELS_REQUIRE_LEN(len);
  constexpr int kBlock = 256;
  Kel16s tmp[kBlock];
  for (int i = 0; i < len; i += kBlock) {
    const int m = len - i < kBlock ? len - i : kBlock;
    for (int k = 0; k < m; ++k) tmp[k] = from_float(src[i + k]);
    Encode(tmp, dst + i, static_cast<std::size_t>(m));
  }
  return kelStsOk;
}

template <class Out, class Map>
KelStatus decode(const Kel8u* src, Out* dst, int len, Map map) {
  KELS_REQUIRE_PTRS(src, dst);
  KELS_REQUIRE_LEN(len);
  for (int i = 0; i < len; ++i) dst[i] = map(src[i]);
  return kelStsOk;
}

// 2^-15 scales the 16-bit table values to [-1, 1) exactly.
constexpr float kToFloat = 3.0517578125e-5f;

}  // namespace
}  // namespace kels::speech

using namespace kels::speech;
using kels::kernels::alaw_encode;
using kels::kernels::mulaw_encode;

KELS_EXPORT KelStatus kelsALawToLin_8u16s(const Kel8u* pSrc, Kel16s* pDst, int len) {
  return decode(pSrc, pDst, len, [](Kel8u c) { return kALawTable[c]; });
}
KELS_EXPORT KelStatus kelsALawToLin_8u32f(const Kel8u* pSrc, Kel32f* pDst, int len) {
  return decode(pSrc, pDst, len, [](Kel8u c) { return kALawTable[c] * kToFloat; });
}
KELS_EXPORT KelStatus kelsMuLawToLin_8u16s(const Kel8u* pSrc, Kel16s* pDst, int len) {
  return decode(pSrc, pDst, len, [](Kel8u c) { return kMuLawTable[c]; });
}
KELS_EXPORT KelStatus kelsMuLawToLin_8u32f(const Kel8u* pSrc, Kel32f* pDst, int len) {
  return decode(pSrc, pDst, len, [](Kel8u c) { return kMuLawTable[c] * kToFloat; });
}
KELS_EXPORT KelStatus kelsALawToMuLaw_8u(const Kel8u* pSrc, Kel8u* pDst, int len) {
  return decode(pSrc, pDst, len, [](Kel8u c) { return kALawToMuLaw[c]; });
}
KELS_EXPORT KelStatus kelsMuLawToALaw_8u(const Kel8u* pSrc, Kel8u* pDst, int len) {
  return decode(pSrc, pDst, len, [](Kel8u c) { return kMuLawToALaw[c]; });
}
KELS_EXPORT KelStatus kelsLinToALaw_16s8u(const Kel16s* pSrc, Kel8u* pDst, int len) {
  return encode_16s<alaw_encode>(pSrc, pDst, len);
}
KELS_EXPORT KelStatus kelsLinToALaw_32f8u(const Kel32f* pSrc, Kel8u* pDst, int len) {
  return encode_32f<alaw_encode>(pSrc, pDst, len);
}
KELS_EXPORT KelStatus kelsLinToMuLaw_16s8u(const Kel16s* pSrc, Kel8u* pDst, int len) {
  return encode_16s<mulaw_encode>(pSrc, pDst, len);
}
KELS_EXPORT KelStatus kelsLinToMuLaw_32f8u(const Kel32f* pSrc, Kel8u* pDst, int len) {
  return encode_32f<mulaw_encode>(pSrc, pDst, len);
}
