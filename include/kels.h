/*
 * kels.h: every exported function of the kels signal-processing library,
 * grouped by family.
 *
 * Conventions: every function returns a KelStatus; arguments are sources,
 * constants, destination, length, then modifiers (scale factor, rounding
 * mode, hint, record, work buffer). Arguments are checked in the order
 * null pointers, lengths, record identifier, family parameters; a function
 * that fails a check writes nothing.
 */
#ifndef KELS_H
#define KELS_H

#include "kelstypes.h"

#if defined(__GNUC__)
#define KELAPI __attribute__((visibility("default")))
#else
#define KELAPI
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ======================================================================
 * Library frame: status text, aligned allocation, version
 * ====================================================================== */

/* Short constant English description of a status code ("unknown status"
 * for values that are not codes of the library). */
KELAPI const char* kelsGetStatusString(KelStatus status);

/* 32-byte aligned blocks of len elements; null for len < 1 or when the
 * system allocator fails. Release with kelsFree. */
KELAPI Kel8u*   kelsMalloc_8u(int len);
KELAPI Kel16u*  kelsMalloc_16u(int len);
KELAPI Kel32u*  kelsMalloc_32u(int len);
KELAPI Kel8s*   kelsMalloc_8s(int len);
KELAPI Kel16s*  kelsMalloc_16s(int len);
KELAPI Kel32s*  kelsMalloc_32s(int len);
KELAPI Kel64s*  kelsMalloc_64s(int len);
KELAPI Kel32f*  kelsMalloc_32f(int len);
KELAPI Kel64f*  kelsMalloc_64f(int len);
KELAPI Kel8sc*  kelsMalloc_8sc(int len);
KELAPI Kel16sc* kelsMalloc_16sc(int len);
KELAPI Kel32sc* kelsMalloc_32sc(int len);
KELAPI Kel64sc* kelsMalloc_64sc(int len);
KELAPI Kel32fc* kelsMalloc_32fc(int len);
KELAPI Kel64fc* kelsMalloc_64fc(int len);
KELAPI void     kelsFree(void* ptr);

KELAPI const KelLibraryVersion* kelsGetLibVersion(void);

/* ======================================================================
 * Data movement and initialisation
 * ====================================================================== */

/* Copy of a bit string: len bits starting srcBitOffset bits (0..7, counted
 * from the most significant bit) into *pSrc go to dstBitOffset bits into
 * *pDst; the other bits of the destination bytes are kept. */
KELAPI KelStatus kelsCopy_1u(const Kel8u* pSrc, int srcBitOffset, Kel8u* pDst, int dstBitOffset, int len);
KELAPI KelStatus kelsCopy_8u(const Kel8u* pSrc, Kel8u* pDst, int len);
KELAPI KelStatus kelsCopy_16s(const Kel16s* pSrc, Kel16s* pDst, int len);
KELAPI KelStatus kelsCopy_16sc(const Kel16sc* pSrc, Kel16sc* pDst, int len);
KELAPI KelStatus kelsCopy_32s(const Kel32s* pSrc, Kel32s* pDst, int len);
KELAPI KelStatus kelsCopy_32sc(const Kel32sc* pSrc, Kel32sc* pDst, int len);
KELAPI KelStatus kelsCopy_32f(const Kel32f* pSrc, Kel32f* pDst, int len);
KELAPI KelStatus kelsCopy_32fc(const Kel32fc* pSrc, Kel32fc* pDst, int len);
KELAPI KelStatus kelsCopy_64s(const Kel64s* pSrc, Kel64s* pDst, int len);
KELAPI KelStatus kelsCopy_64sc(const Kel64sc* pSrc, Kel64sc* pDst, int len);
KELAPI KelStatus kelsCopy_64f(const Kel64f* pSrc, Kel64f* pDst, int len);
KELAPI KelStatus kelsCopy_64fc(const Kel64fc* pSrc, Kel64fc* pDst, int len);

KELAPI KelStatus kelsMove_8u(const Kel8u* pSrc, Kel8u* pDst, int len);
KELAPI KelStatus kelsMove_16s(const Kel16s* pSrc, Kel16s* pDst, int len);
KELAPI KelStatus kelsMove_16sc(const Kel16sc* pSrc, Kel16sc* pDst, int len);
KELAPI KelStatus kelsMove_32s(const Kel32s* pSrc, Kel32s* pDst, int len);
KELAPI KelStatus kelsMove_32sc(const Kel32sc* pSrc, Kel32sc* pDst, int len);
KELAPI KelStatus kelsMove_32f(const Kel32f* pSrc, Kel32f* pDst, int len);
KELAPI KelStatus kelsMove_32fc(const Kel32fc* pSrc, Kel32fc* pDst, int len);
KELAPI KelStatus kelsMove_64s(const Kel64s* pSrc, Kel64s* pDst, int len);
KELAPI KelStatus kelsMove_64sc(const Kel64sc* pSrc, Kel64sc* pDst, int len);
KELAPI KelStatus kelsMove_64f(const Kel64f* pSrc, Kel64f* pDst, int len);
KELAPI KelStatus kelsMove_64fc(const Kel64fc* pSrc, Kel64fc* pDst, int len);

KELAPI KelStatus kelsZero_8u(Kel8u* pDst, int len);
KELAPI KelStatus kelsZero_16s(Kel16s* pDst, int len);
KELAPI KelStatus kelsZero_16sc(Kel16sc* pDst, int len);
KELAPI KelStatus kelsZero_32s(Kel32s* pDst, int len);
KELAPI KelStatus kelsZero_32sc(Kel32sc* pDst, int len);
KELAPI KelStatus kelsZero_32f(Kel32f* pDst, int len);
KELAPI KelStatus kelsZero_32fc(Kel32fc* pDst, int len);
KELAPI KelStatus kelsZero_64s(Kel64s* pDst, int len);
KELAPI KelStatus kelsZero_64sc(Kel64sc* pDst, int len);
KELAPI KelStatus kelsZero_64f(Kel64f* pDst, int len);
KELAPI KelStatus kelsZero_64fc(Kel64fc* pDst, int len);

KELAPI KelStatus kelsSet_8u(Kel8u val, Kel8u* pDst, int len);
KELAPI KelStatus kelsSet_16s(Kel16s val, Kel16s* pDst, int len);
KELAPI KelStatus kelsSet_16sc(Kel16sc val, Kel16sc* pDst, int len);
KELAPI KelStatus kelsSet_32s(Kel32s val, Kel32s* pDst, int len);
KELAPI KelStatus kelsSet_32sc(Kel32sc val, Kel32sc* pDst, int len);
KELAPI KelStatus kelsSet_32f(Kel32f val, Kel32f* pDst, int len);
KELAPI KelStatus kelsSet_32fc(Kel32fc val, Kel32fc* pDst, int len);
KELAPI KelStatus kelsSet_64s(Kel64s val, Kel64s* pDst, int len);
KELAPI KelStatus kelsSet_64sc(Kel64sc val, Kel64sc* pDst, int len);
KELAPI KelStatus kelsSet_64f(Kel64f val, Kel64f* pDst, int len);
KELAPI KelStatus kelsSet_64fc(Kel64fc val, Kel64fc* pDst, int len);

KELAPI KelStatus kelsCplxToReal_16sc(const Kel16sc* pSrc, Kel16s* pDstRe, Kel16s* pDstIm, int len);
KELAPI KelStatus kelsCplxToReal_32fc(const Kel32fc* pSrc, Kel32f* pDstRe, Kel32f* pDstIm, int len);
KELAPI KelStatus kelsCplxToReal_64fc(const Kel64fc* pSrc, Kel64f* pDstRe, Kel64f* pDstIm, int len);
/* Either source may be null: its part of every element is then 0. */
KELAPI KelStatus kelsRealToCplx_16s(const Kel16s* pSrcRe, const Kel16s* pSrcIm, Kel16sc* pDst, int len);
KELAPI KelStatus kelsRealToCplx_32f(const Kel32f* pSrcRe, const Kel32f* pSrcIm, Kel32fc* pDst, int len);
KELAPI KelStatus kelsRealToCplx_64f(const Kel64f* pSrcRe, const Kel64f* pSrcIm, Kel64fc* pDst, int len);
KELAPI KelStatus kelsReal_16sc(const Kel16sc* pSrc, Kel16s* pDstRe, int len);
KELAPI KelStatus kelsReal_32fc(const Kel32fc* pSrc, Kel32f* pDstRe, int len);
KELAPI KelStatus kelsReal_64fc(const Kel64fc* pSrc, Kel64f* pDstRe, int len);
KELAPI KelStatus kelsImag_16sc(const Kel16sc* pSrc, Kel16s* pDstIm, int len);
KELAPI KelStatus kelsImag_32fc(const Kel32fc* pSrc, Kel32f* pDstIm, int len);
KELAPI KelStatus kelsImag_64fc(const Kel64fc* pSrc, Kel64f* pDstIm, int len);

KELAPI KelStatus kelsConj_16sc(const Kel16sc* pSrc, Kel16sc* pDst, int len);
KELAPI KelStatus kelsConj_16sc_I(Kel16sc* pSrcDst, int len);
KELAPI KelStatus kelsConj_32fc(const Kel32fc* pSrc, Kel32fc* pDst, int len);
KELAPI KelStatus kelsConj_32fc_I(Kel32fc* pSrcDst, int len);
KELAPI KelStatus kelsConj_64fc(const Kel64fc* pSrc, Kel64fc* pDst, int len);
KELAPI KelStatus kelsConj_64fc_I(Kel64fc* pSrcDst, int len);
KELAPI KelStatus kelsConjFlip_16sc(const Kel16sc* pSrc, Kel16sc* pDst, int len);
KELAPI KelStatus kelsConjFlip_32fc(const Kel32fc* pSrc, Kel32fc* pDst, int len);
KELAPI KelStatus kelsConjFlip_64fc(const Kel64fc* pSrc, Kel64fc* pDst, int len);

KELAPI KelStatus kelsFlip_8u(const Kel8u* pSrc, Kel8u* pDst, int len);
KELAPI KelStatus kelsFlip_8u_I(Kel8u* pSrcDst, int len);
KELAPI KelStatus kelsFlip_16u(const Kel16u* pSrc, Kel16u* pDst, int len);
KELAPI KelStatus kelsFlip_16u_I(Kel16u* pSrcDst, int len);
KELAPI KelStatus kelsFlip_32f(const Kel32f* pSrc, Kel32f* pDst, int len);
KELAPI KelStatus kelsFlip_32f_I(Kel32f* pSrcDst, int len);
KELAPI KelStatus kelsFlip_64f(const Kel64f* pSrc, Kel64f* pDst, int len);
KELAPI KelStatus kelsFlip_64f_I(Kel64f* pSrcDst, int len);

/* 24u: len three-byte elements; bytes 0 and 2 of each are exchanged. */
KELAPI KelStatus kelsSwapBytes_16u(const Kel16u* pSrc, Kel16u* pDst, int len);
KELAPI KelStatus kelsSwapBytes_16u_I(Kel16u* pSrcDst, int len);
KELAPI KelStatus kelsSwapBytes_24u(const Kel8u* pSrc, Kel8u* pDst, int len);
KELAPI KelStatus kelsSwapBytes_24u_I(Kel8u* pSrcDst, int len);
KELAPI KelStatus kelsSwapBytes_32u(const Kel32u* pSrc, Kel32u* pDst, int len);
KELAPI KelStatus kelsSwapBytes_32u_I(Kel32u* pSrcDst, int len);
KELAPI KelStatus kelsSwapBytes_64u(const Kel64u* pSrc, Kel64u* pDst, int len);
KELAPI KelStatus kelsSwapBytes_64u_I(Kel64u* pSrcDst, int len);

/* Interleave nChannels float vectors into frames of scaled integers, and
 * the reverse. The 24-bit samples are packed three bytes, least significant
 * first. */
KELAPI KelStatus kelsJoinScaled_32f16s_D2L(const Kel32f* const pSrc[], int nChannels, int len, Kel16s* pDst);
KELAPI KelStatus kelsJoinScaled_32f24s_D2L(const Kel32f* const pSrc[], int nChannels, int len, Kel8u* pDst);
KELAPI KelStatus kelsSplitScaled_16s32f_D2L(const Kel16s* pSrc, int nChannels, int len, Kel32f* const pDst[]);
KELAPI KelStatus kelsSplitScaled_24s32f_D2L(const Kel8u* pSrc, int nChannels, int len, Kel32f* const pDst[]);

/* @decls-arithmetic */

/* @decls-conversion */
/* Conversions check pSrc, pDst (kelStsNullPtr) and len >= 1 (kelStsBadLength)
 * and never fail otherwise: out-of-range values saturate. rndMode 1 rounds to
 * nearest even, any other value toward zero. Float-to-integer results:
 * x * 2^-scaleFactor rounded and saturated; NaN gives the type's minimum.
 * 24u/24s: Kel8u* to 3-byte little-endian elements, len counts elements.
 * 16f: IEEE half-precision bit patterns in Kel16u. */
KELAPI KelStatus kelsConvert_8s16s(const Kel8s* pSrc, Kel16s* pDst, int len);
KELAPI KelStatus kelsConvert_8s32f(const Kel8s* pSrc, Kel32f* pDst, int len);
KELAPI KelStatus kelsConvert_8u32f(const Kel8u* pSrc, Kel32f* pDst, int len);
KELAPI KelStatus kelsConvert_16s32s(const Kel16s* pSrc, Kel32s* pDst, int len);
KELAPI KelStatus kelsConvert_16s32f(const Kel16s* pSrc, Kel32f* pDst, int len);
KELAPI KelStatus kelsConvert_16u32f(const Kel16u* pSrc, Kel32f* pDst, int len);
/* Integer to float with scale: times 2^-scaleFactor; the 32f forms clamp the
 * scale factor to -112..126, the 64f forms to -1023..1022. */
KELAPI KelStatus kelsConvert_16s32f_Sfs(const Kel16s* pSrc, Kel32f* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsConvert_16s64f_Sfs(const Kel16s* pSrc, Kel64f* pDst, int len, int scaleFactor);
/* Saturating narrowing; the _Sfs forms round to nearest even and clamp the
 * scale factor to -15..31 (64s32s: exact for every scale factor). */
KELAPI KelStatus kelsConvert_32s16s(const Kel32s* pSrc, Kel16s* pDst, int len);
KELAPI KelStatus kelsConvert_32s16s_Sfs(const Kel32s* pSrc, Kel16s* pDst, int len, int scaleFactor);
/* 32s32f rounds in the processor's current mode. */
KELAPI KelStatus kelsConvert_32s32f(const Kel32s* pSrc, Kel32f* pDst, int len);
KELAPI KelStatus kelsConvert_32s32f_Sfs(const Kel32s* pSrc, Kel32f* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsConvert_32s64f(const Kel32s* pSrc, Kel64f* pDst, int len);
KELAPI KelStatus kelsConvert_32s64f_Sfs(const Kel32s* pSrc, Kel64f* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsConvert_64s32s_Sfs(const Kel64s* pSrc, Kel32s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsConvert_32f8s_Sfs(const Kel32f* pSrc, Kel8s* pDst, int len, int rndMode, int scaleFactor);
KELAPI KelStatus kelsConvert_32f8u_Sfs(const Kel32f* pSrc, Kel8u* pDst, int len, int rndMode, int scaleFactor);
KELAPI KelStatus kelsConvert_32f16s_Sfs(const Kel32f* pSrc, Kel16s* pDst, int len, int rndMode, int scaleFactor);
KELAPI KelStatus kelsConvert_32f16u_Sfs(const Kel32f* pSrc, Kel16u* pDst, int len, int rndMode, int scaleFactor);
KELAPI KelStatus kelsConvert_32f32s_Sfs(const Kel32f* pSrc, Kel32s* pDst, int len, int rndMode, int scaleFactor);
KELAPI KelStatus kelsConvert_64f32s_Sfs(const Kel64f* pSrc, Kel32s* pDst, int len, int rndMode, int scaleFactor);
KELAPI KelStatus kelsConvert_32f64f(const Kel32f* pSrc, Kel64f* pDst, int len);
/* Values >= FLT_MAX give FLT_MAX; below -FLT_MAX and NaN give -FLT_MAX. */
KELAPI KelStatus kelsConvert_64f32f(const Kel64f* pSrc, Kel32f* pDst, int len);
KELAPI KelStatus kelsConvert_24u32u(const Kel8u* pSrc, Kel32u* pDst, int len);
KELAPI KelStatus kelsConvert_32u24u_Sfs(const Kel32u* pSrc, Kel8u* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsConvert_24s32s(const Kel8u* pSrc, Kel32s* pDst, int len);
KELAPI KelStatus kelsConvert_32s24s_Sfs(const Kel32s* pSrc, Kel8u* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsConvert_24u32f(const Kel8u* pSrc, Kel32f* pDst, int len);
/* 32f24u / 32f24s round to nearest even. */
KELAPI KelStatus kelsConvert_32f24u_Sfs(const Kel32f* pSrc, Kel8u* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsConvert_24s32f(const Kel8u* pSrc, Kel32f* pDst, int len);
KELAPI KelStatus kelsConvert_32f24s_Sfs(const Kel32f* pSrc, Kel8u* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsConvert_16f32f(const Kel16u* pSrc, Kel32f* pDst, int len);
/* To half precision: IEEE rounding in rndMode (overflow gives infinity when
 * rounding to nearest, 65504 when truncating). */
KELAPI KelStatus kelsConvert_32f16f(const Kel32f* pSrc, Kel16u* pDst, int len, int rndMode);
KELAPI KelStatus kelsConvert_16s16f(const Kel16s* pSrc, Kel16u* pDst, int len, int rndMode);
KELAPI KelStatus kelsConvert_16f16s_Sfs(const Kel16u* pSrc, Kel16s* pDst, int len, int rndMode, int scaleFactor);

/* @decls-logic */
/* Bitwise: pDst[n] = pSrc1[n] op pSrc2[n] (or op val); null pointers, then len. */
KELAPI KelStatus kelsAnd_8u(const Kel8u* pSrc1, const Kel8u* pSrc2, Kel8u* pDst, int len);
KELAPI KelStatus kelsAnd_8u_I(const Kel8u* pSrc, Kel8u* pSrcDst, int len);
KELAPI KelStatus kelsAndC_8u(const Kel8u* pSrc, Kel8u val, Kel8u* pDst, int len);
KELAPI KelStatus kelsAndC_8u_I(Kel8u val, Kel8u* pSrcDst, int len);
KELAPI KelStatus kelsOr_8u(const Kel8u* pSrc1, const Kel8u* pSrc2, Kel8u* pDst, int len);
KELAPI KelStatus kelsOr_8u_I(const Kel8u* pSrc, Kel8u* pSrcDst, int len);
KELAPI KelStatus kelsOrC_8u(const Kel8u* pSrc, Kel8u val, Kel8u* pDst, int len);
KELAPI KelStatus kelsOrC_8u_I(Kel8u val, Kel8u* pSrcDst, int len);
KELAPI KelStatus kelsXor_8u(const Kel8u* pSrc1, const Kel8u* pSrc2, Kel8u* pDst, int len);
KELAPI KelStatus kelsXor_8u_I(const Kel8u* pSrc, Kel8u* pSrcDst, int len);
KELAPI KelStatus kelsXorC_8u(const Kel8u* pSrc, Kel8u val, Kel8u* pDst, int len);
KELAPI KelStatus kelsXorC_8u_I(Kel8u val, Kel8u* pSrcDst, int len);
KELAPI KelStatus kelsNot_8u(const Kel8u* pSrc, Kel8u* pDst, int len);
KELAPI KelStatus kelsNot_8u_I(Kel8u* pSrcDst, int len);
KELAPI KelStatus kelsAnd_16u(const Kel16u* pSrc1, const Kel16u* pSrc2, Kel16u* pDst, int len);
KELAPI KelStatus kelsAnd_16u_I(const Kel16u* pSrc, Kel16u* pSrcDst, int len);
KELAPI KelStatus kelsAndC_16u(const Kel16u* pSrc, Kel16u val, Kel16u* pDst, int len);
KELAPI KelStatus kelsAndC_16u_I(Kel16u val, Kel16u* pSrcDst, int len);
KELAPI KelStatus kelsOr_16u(const Kel16u* pSrc1, const Kel16u* pSrc2, Kel16u* pDst, int len);
KELAPI KelStatus kelsOr_16u_I(const Kel16u* pSrc, Kel16u* pSrcDst, int len);
KELAPI KelStatus kelsOrC_16u(const Kel16u* pSrc, Kel16u val, Kel16u* pDst, int len);
KELAPI KelStatus kelsOrC_16u_I(Kel16u val, Kel16u* pSrcDst, int len);
KELAPI KelStatus kelsXor_16u(const Kel16u* pSrc1, const Kel16u* pSrc2, Kel16u* pDst, int len);
KELAPI KelStatus kelsXor_16u_I(const Kel16u* pSrc, Kel16u* pSrcDst, int len);
KELAPI KelStatus kelsXorC_16u(const Kel16u* pSrc, Kel16u val, Kel16u* pDst, int len);
KELAPI KelStatus kelsXorC_16u_I(Kel16u val, Kel16u* pSrcDst, int len);
KELAPI KelStatus kelsNot_16u(const Kel16u* pSrc, Kel16u* pDst, int len);
KELAPI KelStatus kelsNot_16u_I(Kel16u* pSrcDst, int len);
KELAPI KelStatus kelsAnd_32u(const Kel32u* pSrc1, const Kel32u* pSrc2, Kel32u* pDst, int len);
KELAPI KelStatus kelsAnd_32u_I(const Kel32u* pSrc, Kel32u* pSrcDst, int len);
KELAPI KelStatus kelsAndC_32u(const Kel32u* pSrc, Kel32u val, Kel32u* pDst, int len);
KELAPI KelStatus kelsAndC_32u_I(Kel32u val, Kel32u* pSrcDst, int len);
KELAPI KelStatus kelsOr_32u(const Kel32u* pSrc1, const Kel32u* pSrc2, Kel32u* pDst, int len);
KELAPI KelStatus kelsOr_32u_I(const Kel32u* pSrc, Kel32u* pSrcDst, int len);
KELAPI KelStatus kelsOrC_32u(const Kel32u* pSrc, Kel32u val, Kel32u* pDst, int len);
KELAPI KelStatus kelsOrC_32u_I(Kel32u val, Kel32u* pSrcDst, int len);
KELAPI KelStatus kelsXor_32u(const Kel32u* pSrc1, const Kel32u* pSrc2, Kel32u* pDst, int len);
KELAPI KelStatus kelsXor_32u_I(const Kel32u* pSrc, Kel32u* pSrcDst, int len);
KELAPI KelStatus kelsXorC_32u(const Kel32u* pSrc, Kel32u val, Kel32u* pDst, int len);
KELAPI KelStatus kelsXorC_32u_I(Kel32u val, Kel32u* pSrcDst, int len);
KELAPI KelStatus kelsNot_32u(const Kel32u* pSrc, Kel32u* pDst, int len);
KELAPI KelStatus kelsNot_32u_I(Kel32u* pSrcDst, int len);
/* Shifts by val bits. Checked in this order: val == 0 copies (kelsCopy_* of the
 * same width, its status); val >= width zero-fills (kelsZero_*, its status;
 * null pSrc gives kelStsNullPtr); then pointers, len, val < 0 (kelStsBadShift).
 * Signed right shifts are arithmetic and never zero-fill (val >= width acts as
 * width - 1). _I forms: val >= width zero-fills first; then pointer, len,
 * val < 0; val == 0 returns kelStsOk untouched. */
KELAPI KelStatus kelsLShiftC_8u(const Kel8u* pSrc, int val, Kel8u* pDst, int len);
KELAPI KelStatus kelsLShiftC_8u_I(int val, Kel8u* pSrcDst, int len);
KELAPI KelStatus kelsRShiftC_8u(const Kel8u* pSrc, int val, Kel8u* pDst, int len);
KELAPI KelStatus kelsRShiftC_8u_I(int val, Kel8u* pSrcDst, int len);
KELAPI KelStatus kelsLShiftC_16u(const Kel16u* pSrc, int val, Kel16u* pDst, int len);
KELAPI KelStatus kelsLShiftC_16u_I(int val, Kel16u* pSrcDst, int len);
KELAPI KelStatus kelsRShiftC_16u(const Kel16u* pSrc, int val, Kel16u* pDst, int len);
KELAPI KelStatus kelsRShiftC_16u_I(int val, Kel16u* pSrcDst, int len);
KELAPI KelStatus kelsLShiftC_16s(const Kel16s* pSrc, int val, Kel16s* pDst, int len);
KELAPI KelStatus kelsLShiftC_16s_I(int val, Kel16s* pSrcDst, int len);
KELAPI KelStatus kelsRShiftC_16s(const Kel16s* pSrc, int val, Kel16s* pDst, int len);
KELAPI KelStatus kelsRShiftC_16s_I(int val, Kel16s* pSrcDst, int len);
KELAPI KelStatus kelsLShiftC_32s(const Kel32s* pSrc, int val, Kel32s* pDst, int len);
KELAPI KelStatus kelsLShiftC_32s_I(int val, Kel32s* pSrcDst, int len);
KELAPI KelStatus kelsRShiftC_32s(const Kel32s* pSrc, int val, Kel32s* pDst, int len);
KELAPI KelStatus kelsRShiftC_32s_I(int val, Kel32s* pSrcDst, int len);

/* @decls-statistics */

/* @decls-transform */

/* @decls-fir */

/* @decls-iir */

/* @decls-generate */

/* @decls-speech */

#ifdef __cplusplus
}
#endif

#endif /* KELS_H */
