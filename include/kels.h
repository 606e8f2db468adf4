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
/* Sum, mean and standard deviation. Integer data are summed exactly and scaled
 * once (scale-factor rule). The single-precision forms take a hint: 1 = fast,
 * any other value = accurate (extended-precision accumulation). StdDev is the
 * unbiased sample deviation and needs len >= 2. */
KELAPI KelStatus kelsSum_16s32s_Sfs(const Kel16s* pSrc, int len, Kel32s* pSum, int scaleFactor);
KELAPI KelStatus kelsSum_16sc32sc_Sfs(const Kel16sc* pSrc, int len, Kel32sc* pSum, int scaleFactor);
KELAPI KelStatus kelsSum_32s_Sfs(const Kel32s* pSrc, int len, Kel32s* pSum, int scaleFactor);
KELAPI KelStatus kelsSum_32f(const Kel32f* pSrc, int len, Kel32f* pSum, int hint);
KELAPI KelStatus kelsMean_32f(const Kel32f* pSrc, int len, Kel32f* pMean, int hint);
KELAPI KelStatus kelsSum_32fc(const Kel32fc* pSrc, int len, Kel32fc* pSum, int hint);
KELAPI KelStatus kelsMean_32fc(const Kel32fc* pSrc, int len, Kel32fc* pMean, int hint);
KELAPI KelStatus kelsSum_64f(const Kel64f* pSrc, int len, Kel64f* pSum);
KELAPI KelStatus kelsMean_64f(const Kel64f* pSrc, int len, Kel64f* pMean);
KELAPI KelStatus kelsSum_64fc(const Kel64fc* pSrc, int len, Kel64fc* pSum);
KELAPI KelStatus kelsMean_64fc(const Kel64fc* pSrc, int len, Kel64fc* pMean);
KELAPI KelStatus kelsMean_16s_Sfs(const Kel16s* pSrc, int len, Kel16s* pMean, int scaleFactor);
KELAPI KelStatus kelsMean_16sc_Sfs(const Kel16sc* pSrc, int len, Kel16sc* pMean, int scaleFactor);
KELAPI KelStatus kelsMean_32s_Sfs(const Kel32s* pSrc, int len, Kel32s* pMean, int scaleFactor);
KELAPI KelStatus kelsStdDev_16s_Sfs(const Kel16s* pSrc, int len, Kel16s* pStdDev, int scaleFactor);
KELAPI KelStatus kelsStdDev_16s32s_Sfs(const Kel16s* pSrc, int len, Kel32s* pStdDev, int scaleFactor);
KELAPI KelStatus kelsSum_16s_Sfs(const Kel16s* pSrc, int len, Kel16s* pSum, int scaleFactor);
KELAPI KelStatus kelsSum_16sc_Sfs(const Kel16sc* pSrc, int len, Kel16sc* pSum, int scaleFactor);
KELAPI KelStatus kelsStdDev_32f(const Kel32f* pSrc, int len, Kel32f* pStdDev, int hint);
KELAPI KelStatus kelsStdDev_64f(const Kel64f* pSrc, int len, Kel64f* pStdDev);

/* Norms of pSrc, and of pSrc1 - pSrc2 (NormDiff): Inf = largest magnitude,
 * L1 = sum of magnitudes, L2 = root of the sum of squares, L2Sqr = the sum of
 * squares. Complex magnitudes are moduli. Norm_Inf_16s32s_Sfs shifts right
 * without rounding. */
KELAPI KelStatus kelsNorm_Inf_32f(const Kel32f* pSrc, int len, Kel32f* pNorm);
KELAPI KelStatus kelsNormDiff_Inf_32f(const Kel32f* pSrc1, const Kel32f* pSrc2, int len, Kel32f* pNorm);
KELAPI KelStatus kelsNorm_L1_32f(const Kel32f* pSrc, int len, Kel32f* pNorm);
KELAPI KelStatus kelsNormDiff_L1_32f(const Kel32f* pSrc1, const Kel32f* pSrc2, int len, Kel32f* pNorm);
KELAPI KelStatus kelsNorm_L2_32f(const Kel32f* pSrc, int len, Kel32f* pNorm);
KELAPI KelStatus kelsNormDiff_L2_32f(const Kel32f* pSrc1, const Kel32f* pSrc2, int len, Kel32f* pNorm);
KELAPI KelStatus kelsNorm_Inf_64f(const Kel64f* pSrc, int len, Kel64f* pNorm);
KELAPI KelStatus kelsNormDiff_Inf_64f(const Kel64f* pSrc1, const Kel64f* pSrc2, int len, Kel64f* pNorm);
KELAPI KelStatus kelsNorm_L1_64f(const Kel64f* pSrc, int len, Kel64f* pNorm);
KELAPI KelStatus kelsNormDiff_L1_64f(const Kel64f* pSrc1, const Kel64f* pSrc2, int len, Kel64f* pNorm);
KELAPI KelStatus kelsNorm_L2_64f(const Kel64f* pSrc, int len, Kel64f* pNorm);
KELAPI KelStatus kelsNormDiff_L2_64f(const Kel64f* pSrc1, const Kel64f* pSrc2, int len, Kel64f* pNorm);
KELAPI KelStatus kelsNorm_Inf_16s32f(const Kel16s* pSrc, int len, Kel32f* pNorm);
KELAPI KelStatus kelsNormDiff_Inf_16s32f(const Kel16s* pSrc1, const Kel16s* pSrc2, int len, Kel32f* pNorm);
KELAPI KelStatus kelsNorm_L1_16s32f(const Kel16s* pSrc, int len, Kel32f* pNorm);
KELAPI KelStatus kelsNormDiff_L1_16s32f(const Kel16s* pSrc1, const Kel16s* pSrc2, int len, Kel32f* pNorm);
KELAPI KelStatus kelsNorm_L2_16s32f(const Kel16s* pSrc, int len, Kel32f* pNorm);
KELAPI KelStatus kelsNormDiff_L2_16s32f(const Kel16s* pSrc1, const Kel16s* pSrc2, int len, Kel32f* pNorm);
KELAPI KelStatus kelsNorm_Inf_32fc32f(const Kel32fc* pSrc, int len, Kel32f* pNorm);
KELAPI KelStatus kelsNormDiff_Inf_32fc32f(const Kel32fc* pSrc1, const Kel32fc* pSrc2, int len, Kel32f* pNorm);
KELAPI KelStatus kelsNorm_Inf_64fc64f(const Kel64fc* pSrc, int len, Kel64f* pNorm);
KELAPI KelStatus kelsNormDiff_Inf_64fc64f(const Kel64fc* pSrc1, const Kel64fc* pSrc2, int len, Kel64f* pNorm);
KELAPI KelStatus kelsNorm_L1_64fc64f(const Kel64fc* pSrc, int len, Kel64f* pNorm);
KELAPI KelStatus kelsNormDiff_L1_64fc64f(const Kel64fc* pSrc1, const Kel64fc* pSrc2, int len, Kel64f* pNorm);
KELAPI KelStatus kelsNorm_L2_64fc64f(const Kel64fc* pSrc, int len, Kel64f* pNorm);
KELAPI KelStatus kelsNormDiff_L2_64fc64f(const Kel64fc* pSrc1, const Kel64fc* pSrc2, int len, Kel64f* pNorm);
KELAPI KelStatus kelsNorm_L1_32fc64f(const Kel32fc* pSrc, int len, Kel64f* pNorm);
KELAPI KelStatus kelsNormDiff_L1_32fc64f(const Kel32fc* pSrc1, const Kel32fc* pSrc2, int len, Kel64f* pNorm);
KELAPI KelStatus kelsNorm_L2_32fc64f(const Kel32fc* pSrc, int len, Kel64f* pNorm);
KELAPI KelStatus kelsNormDiff_L2_32fc64f(const Kel32fc* pSrc1, const Kel32fc* pSrc2, int len, Kel64f* pNorm);
KELAPI KelStatus kelsNorm_Inf_16s32s_Sfs(const Kel16s* pSrc, int len, Kel32s* pNorm, int scaleFactor);
KELAPI KelStatus kelsNormDiff_Inf_16s32s_Sfs(const Kel16s* pSrc1, const Kel16s* pSrc2, int len, Kel32s* pNorm, int scaleFactor);
KELAPI KelStatus kelsNorm_L1_16s32s_Sfs(const Kel16s* pSrc, int len, Kel32s* pNorm, int scaleFactor);
KELAPI KelStatus kelsNormDiff_L1_16s32s_Sfs(const Kel16s* pSrc1, const Kel16s* pSrc2, int len, Kel32s* pNorm, int scaleFactor);
KELAPI KelStatus kelsNorm_L2_16s32s_Sfs(const Kel16s* pSrc, int len, Kel32s* pNorm, int scaleFactor);
KELAPI KelStatus kelsNormDiff_L2_16s32s_Sfs(const Kel16s* pSrc1, const Kel16s* pSrc2, int len, Kel32s* pNorm, int scaleFactor);
KELAPI KelStatus kelsNorm_L1_16s64s_Sfs(const Kel16s* pSrc, int len, Kel64s* pNorm, int scaleFactor);
KELAPI KelStatus kelsNormDiff_L1_16s64s_Sfs(const Kel16s* pSrc1, const Kel16s* pSrc2, int len, Kel64s* pNorm, int scaleFactor);
KELAPI KelStatus kelsNorm_L2Sqr_16s64s_Sfs(const Kel16s* pSrc, int len, Kel64s* pNorm, int scaleFactor);
KELAPI KelStatus kelsNormDiff_L2Sqr_16s64s_Sfs(const Kel16s* pSrc1, const Kel16s* pSrc2, int len, Kel64s* pNorm, int scaleFactor);

/* Dot products sum(pSrc1[n] * pSrc2[n]), no conjugation. Integer sums are
 * exact; the Sfs forms clamp the scale factor to -31..31 and saturate. */
KELAPI KelStatus kelsDotProd_32f(const Kel32f* pSrc1, const Kel32f* pSrc2, int len, Kel32f* pDp);
KELAPI KelStatus kelsDotProd_32fc(const Kel32fc* pSrc1, const Kel32fc* pSrc2, int len, Kel32fc* pDp);
KELAPI KelStatus kelsDotProd_32f32fc(const Kel32f* pSrc1, const Kel32fc* pSrc2, int len, Kel32fc* pDp);
KELAPI KelStatus kelsDotProd_32f64f(const Kel32f* pSrc1, const Kel32f* pSrc2, int len, Kel64f* pDp);
KELAPI KelStatus kelsDotProd_32fc64fc(const Kel32fc* pSrc1, const Kel32fc* pSrc2, int len, Kel64fc* pDp);
KELAPI KelStatus kelsDotProd_32f32fc64fc(const Kel32f* pSrc1, const Kel32fc* pSrc2, int len, Kel64fc* pDp);
KELAPI KelStatus kelsDotProd_64f(const Kel64f* pSrc1, const Kel64f* pSrc2, int len, Kel64f* pDp);
KELAPI KelStatus kelsDotProd_64fc(const Kel64fc* pSrc1, const Kel64fc* pSrc2, int len, Kel64fc* pDp);
KELAPI KelStatus kelsDotProd_64f64fc(const Kel64f* pSrc1, const Kel64fc* pSrc2, int len, Kel64fc* pDp);
KELAPI KelStatus kelsDotProd_16s64s(const Kel16s* pSrc1, const Kel16s* pSrc2, int len, Kel64s* pDp);
KELAPI KelStatus kelsDotProd_16sc64sc(const Kel16sc* pSrc1, const Kel16sc* pSrc2, int len, Kel64sc* pDp);
KELAPI KelStatus kelsDotProd_16s16sc64sc(const Kel16s* pSrc1, const Kel16sc* pSrc2, int len, Kel64sc* pDp);
KELAPI KelStatus kelsDotProd_16s32f(const Kel16s* pSrc1, const Kel16s* pSrc2, int len, Kel32f* pDp);
KELAPI KelStatus kelsDotProd_16sc32fc(const Kel16sc* pSrc1, const Kel16sc* pSrc2, int len, Kel32fc* pDp);
KELAPI KelStatus kelsDotProd_16s16sc32fc(const Kel16s* pSrc1, const Kel16sc* pSrc2, int len, Kel32fc* pDp);
KELAPI KelStatus kelsDotProd_16s_Sfs(const Kel16s* pSrc1, const Kel16s* pSrc2, int len, Kel16s* pDp, int scaleFactor);
KELAPI KelStatus kelsDotProd_16sc_Sfs(const Kel16sc* pSrc1, const Kel16sc* pSrc2, int len, Kel16sc* pDp, int scaleFactor);
KELAPI KelStatus kelsDotProd_16s16sc_Sfs(const Kel16s* pSrc1, const Kel16sc* pSrc2, int len, Kel16sc* pDp, int scaleFactor);
KELAPI KelStatus kelsDotProd_16s32s_Sfs(const Kel16s* pSrc1, const Kel16s* pSrc2, int len, Kel32s* pDp, int scaleFactor);
KELAPI KelStatus kelsDotProd_16sc32sc_Sfs(const Kel16sc* pSrc1, const Kel16sc* pSrc2, int len, Kel32sc* pDp, int scaleFactor);
KELAPI KelStatus kelsDotProd_16s16sc32sc_Sfs(const Kel16s* pSrc1, const Kel16sc* pSrc2, int len, Kel32sc* pDp, int scaleFactor);
KELAPI KelStatus kelsDotProd_16s32s32s_Sfs(const Kel16s* pSrc1, const Kel32s* pSrc2, int len, Kel32s* pDp, int scaleFactor);
KELAPI KelStatus kelsDotProd_32s_Sfs(const Kel32s* pSrc1, const Kel32s* pSrc2, int len, Kel32s* pDp, int scaleFactor);
KELAPI KelStatus kelsDotProd_32sc_Sfs(const Kel32sc* pSrc1, const Kel32sc* pSrc2, int len, Kel32sc* pDp, int scaleFactor);
KELAPI KelStatus kelsDotProd_32s32sc_Sfs(const Kel32s* pSrc1, const Kel32sc* pSrc2, int len, Kel32sc* pDp, int scaleFactor);

/* Sum of natural logarithms (warnings kelStsLnZeroArg / kelStsLnNegArg) and
 * sliding sums pDst[n] = pSrc[n] + ... + pSrc[n + maskSize - 1], which read
 * len + maskSize - 1 source elements. */
KELAPI KelStatus kelsSumLn_32f(const Kel32f* pSrc, int len, Kel32f* pSum);
KELAPI KelStatus kelsSumLn_64f(const Kel64f* pSrc, int len, Kel64f* pSum);
KELAPI KelStatus kelsSumLn_32f64f(const Kel32f* pSrc, int len, Kel64f* pSum);
KELAPI KelStatus kelsSumLn_16s32f(const Kel16s* pSrc, int len, Kel32f* pSum);
KELAPI KelStatus kelsSumWindow_8u32f(const Kel8u* pSrc, Kel32f* pDst, int len, int maskSize);
KELAPI KelStatus kelsSumWindow_16s32f(const Kel16s* pSrc, Kel32f* pDst, int len, int maskSize);

/* Extremes. Index forms report the lowest index among equal extremes;
 * kelsMaxIndx_32f accepts a null pIndx. Abs forms use |-32768| = 32768 and
 * report it saturated (32767). */
KELAPI KelStatus kelsMax_16s(const Kel16s* pSrc, int len, Kel16s* pMax);
KELAPI KelStatus kelsMin_16s(const Kel16s* pSrc, int len, Kel16s* pMin);
KELAPI KelStatus kelsMaxIndx_16s(const Kel16s* pSrc, int len, Kel16s* pMax, int* pIndx);
KELAPI KelStatus kelsMinIndx_16s(const Kel16s* pSrc, int len, Kel16s* pMin, int* pIndx);
KELAPI KelStatus kelsMax_32s(const Kel32s* pSrc, int len, Kel32s* pMax);
KELAPI KelStatus kelsMin_32s(const Kel32s* pSrc, int len, Kel32s* pMin);
KELAPI KelStatus kelsMaxIndx_32s(const Kel32s* pSrc, int len, Kel32s* pMax, int* pIndx);
KELAPI KelStatus kelsMinIndx_32s(const Kel32s* pSrc, int len, Kel32s* pMin, int* pIndx);
KELAPI KelStatus kelsMax_32f(const Kel32f* pSrc, int len, Kel32f* pMax);
KELAPI KelStatus kelsMin_32f(const Kel32f* pSrc, int len, Kel32f* pMin);
KELAPI KelStatus kelsMaxIndx_32f(const Kel32f* pSrc, int len, Kel32f* pMax, int* pIndx);
KELAPI KelStatus kelsMinIndx_32f(const Kel32f* pSrc, int len, Kel32f* pMin, int* pIndx);
KELAPI KelStatus kelsMax_64f(const Kel64f* pSrc, int len, Kel64f* pMax);
KELAPI KelStatus kelsMin_64f(const Kel64f* pSrc, int len, Kel64f* pMin);
KELAPI KelStatus kelsMaxIndx_64f(const Kel64f* pSrc, int len, Kel64f* pMax, int* pIndx);
KELAPI KelStatus kelsMinIndx_64f(const Kel64f* pSrc, int len, Kel64f* pMin, int* pIndx);
KELAPI KelStatus kelsMinMax_8u(const Kel8u* pSrc, int len, Kel8u* pMin, Kel8u* pMax);
KELAPI KelStatus kelsMinMaxIndx_8u(const Kel8u* pSrc, int len, Kel8u* pMin, int* pMinIndx, Kel8u* pMax, int* pMaxIndx);
KELAPI KelStatus kelsMinMax_16u(const Kel16u* pSrc, int len, Kel16u* pMin, Kel16u* pMax);
KELAPI KelStatus kelsMinMaxIndx_16u(const Kel16u* pSrc, int len, Kel16u* pMin, int* pMinIndx, Kel16u* pMax, int* pMaxIndx);
KELAPI KelStatus kelsMinMax_16s(const Kel16s* pSrc, int len, Kel16s* pMin, Kel16s* pMax);
KELAPI KelStatus kelsMinMaxIndx_16s(const Kel16s* pSrc, int len, Kel16s* pMin, int* pMinIndx, Kel16s* pMax, int* pMaxIndx);
KELAPI KelStatus kelsMinMax_32u(const Kel32u* pSrc, int len, Kel32u* pMin, Kel32u* pMax);
KELAPI KelStatus kelsMinMaxIndx_32u(const Kel32u* pSrc, int len, Kel32u* pMin, int* pMinIndx, Kel32u* pMax, int* pMaxIndx);
KELAPI KelStatus kelsMinMax_32s(const Kel32s* pSrc, int len, Kel32s* pMin, Kel32s* pMax);
KELAPI KelStatus kelsMinMaxIndx_32s(const Kel32s* pSrc, int len, Kel32s* pMin, int* pMinIndx, Kel32s* pMax, int* pMaxIndx);
KELAPI KelStatus kelsMinMax_32f(const Kel32f* pSrc, int len, Kel32f* pMin, Kel32f* pMax);
KELAPI KelStatus kelsMinMaxIndx_32f(const Kel32f* pSrc, int len, Kel32f* pMin, int* pMinIndx, Kel32f* pMax, int* pMaxIndx);
KELAPI KelStatus kelsMinMax_64f(const Kel64f* pSrc, int len, Kel64f* pMin, Kel64f* pMax);
KELAPI KelStatus kelsMinMaxIndx_64f(const Kel64f* pSrc, int len, Kel64f* pMin, int* pMinIndx, Kel64f* pMax, int* pMaxIndx);
KELAPI KelStatus kelsMaxAbs_16s(const Kel16s* pSrc, int len, Kel16s* pMaxAbs);
KELAPI KelStatus kelsMinAbs_16s(const Kel16s* pSrc, int len, Kel16s* pMinAbs);
KELAPI KelStatus kelsMaxAbsIndx_16s(const Kel16s* pSrc, int len, Kel16s* pMaxAbs, int* pIndx);
KELAPI KelStatus kelsMinAbsIndx_16s(const Kel16s* pSrc, int len, Kel16s* pMinAbs, int* pIndx);
KELAPI KelStatus kelsMaxAbs_32s(const Kel32s* pSrc, int len, Kel32s* pMaxAbs);
KELAPI KelStatus kelsMinAbs_32s(const Kel32s* pSrc, int len, Kel32s* pMinAbs);
KELAPI KelStatus kelsMaxAbsIndx_32s(const Kel32s* pSrc, int len, Kel32s* pMaxAbs, int* pIndx);
KELAPI KelStatus kelsMinAbsIndx_32s(const Kel32s* pSrc, int len, Kel32s* pMinAbs, int* pIndx);

/* pSrcDst[n] = max / min of pSrc[n] and pSrcDst[n]. */
KELAPI KelStatus kelsMaxEvery_16s_I(const Kel16s* pSrc, Kel16s* pSrcDst, int len);
KELAPI KelStatus kelsMinEvery_16s_I(const Kel16s* pSrc, Kel16s* pSrcDst, int len);
KELAPI KelStatus kelsMaxEvery_32s_I(const Kel32s* pSrc, Kel32s* pSrcDst, int len);
KELAPI KelStatus kelsMinEvery_32s_I(const Kel32s* pSrc, Kel32s* pSrcDst, int len);
KELAPI KelStatus kelsMaxEvery_32f_I(const Kel32f* pSrc, Kel32f* pSrcDst, int len);
KELAPI KelStatus kelsMinEvery_32f_I(const Kel32f* pSrc, Kel32f* pSrcDst, int len);

/* Order of the largest magnitude (length checked before pointers): floats
 * biased exponent - (bias - 1), so 1.0 -> 1; integers: significant bits.
 * kelsMaxOrder_32f returns kelStsNotFinite for infinite or NaN data. */
KELAPI KelStatus kelsMaxOrder_16s(const Kel16s* pSrc, int len, int* pOrder);
KELAPI KelStatus kelsMaxOrder_32s(const Kel32s* pSrc, int len, int* pOrder);
KELAPI KelStatus kelsMaxOrder_32f(const Kel32f* pSrc, int len, int* pOrder);
KELAPI KelStatus kelsMaxOrder_64f(const Kel64f* pSrc, int len, int* pOrder);

/* Count of lowerBound < x < upperBound; nearest entries of an ascending
 * table (the lower entry on equal distance). */
KELAPI KelStatus kelsCountInRange_32s(const Kel32s* pSrc, int len, int* pCounts, Kel32s lowerBound, Kel32s upperBound);
KELAPI KelStatus kelsFindNearestOne_16u(Kel16u inpVal, Kel16u* pOutVal, int* pOutIndex, const Kel16u* pTable, int tblLen);
KELAPI KelStatus kelsFindNearest_16u(const Kel16u* pVals, Kel16u* pOutVals, int* pOutIndexes, int len, const Kel16u* pTable, int tblLen);

/* @decls-transform */
/* FFT specification records: sizes in bytes, creation in caller memory or
 * by the library, release, work-buffer size. Orders 0..30. */
KELAPI KelStatus kelsFFTGetSize_C_16sc(int order, int flag, int hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
KELAPI KelStatus kelsFFTInit_C_16sc(KelsFFTSpec_C_16sc** ppSpec, int order, int flag, int hint, Kel8u* pSpec, Kel8u* pSpecBuffer);
KELAPI KelStatus kelsFFTInitAlloc_C_16sc(KelsFFTSpec_C_16sc** ppSpec, int order, int flag, int hint);
KELAPI KelStatus kelsFFTFree_C_16sc(KelsFFTSpec_C_16sc* pSpec);
KELAPI KelStatus kelsFFTGetBufSize_C_16sc(const KelsFFTSpec_C_16sc* pSpec, int* pBufferSize);
KELAPI KelStatus kelsFFTGetSize_C_16s(int order, int flag, int hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
KELAPI KelStatus kelsFFTInit_C_16s(KelsFFTSpec_C_16s** ppSpec, int order, int flag, int hint, Kel8u* pSpec, Kel8u* pSpecBuffer);
KELAPI KelStatus kelsFFTInitAlloc_C_16s(KelsFFTSpec_C_16s** ppSpec, int order, int flag, int hint);
KELAPI KelStatus kelsFFTFree_C_16s(KelsFFTSpec_C_16s* pSpec);
KELAPI KelStatus kelsFFTGetBufSize_C_16s(const KelsFFTSpec_C_16s* pSpec, int* pBufferSize);
KELAPI KelStatus kelsFFTGetSize_R_16s(int order, int flag, int hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
KELAPI KelStatus kelsFFTInit_R_16s(KelsFFTSpec_R_16s** ppSpec, int order, int flag, int hint, Kel8u* pSpec, Kel8u* pSpecBuffer);
KELAPI KelStatus kelsFFTInitAlloc_R_16s(KelsFFTSpec_R_16s** ppSpec, int order, int flag, int hint);
KELAPI KelStatus kelsFFTFree_R_16s(KelsFFTSpec_R_16s* pSpec);
KELAPI KelStatus kelsFFTGetBufSize_R_16s(const KelsFFTSpec_R_16s* pSpec, int* pBufferSize);
KELAPI KelStatus kelsFFTGetSize_C_32fc(int order, int flag, int hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
KELAPI KelStatus kelsFFTInit_C_32fc(KelsFFTSpec_C_32fc** ppSpec, int order, int flag, int hint, Kel8u* pSpec, Kel8u* pSpecBuffer);
KELAPI KelStatus kelsFFTInitAlloc_C_32fc(KelsFFTSpec_C_32fc** ppSpec, int order, int flag, int hint);
KELAPI KelStatus kelsFFTFree_C_32fc(KelsFFTSpec_C_32fc* pSpec);
KELAPI KelStatus kelsFFTGetBufSize_C_32fc(const KelsFFTSpec_C_32fc* pSpec, int* pBufferSize);
KELAPI KelStatus kelsFFTGetSize_C_32f(int order, int flag, int hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
KELAPI KelStatus kelsFFTInit_C_32f(KelsFFTSpec_C_32f** ppSpec, int order, int flag, int hint, Kel8u* pSpec, Kel8u* pSpecBuffer);
KELAPI KelStatus kelsFFTInitAlloc_C_32f(KelsFFTSpec_C_32f** ppSpec, int order, int flag, int hint);
KELAPI KelStatus kelsFFTFree_C_32f(KelsFFTSpec_C_32f* pSpec);
KELAPI KelStatus kelsFFTGetBufSize_C_32f(const KelsFFTSpec_C_32f* pSpec, int* pBufferSize);
KELAPI KelStatus kelsFFTGetSize_R_32f(int order, int flag, int hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
KELAPI KelStatus kelsFFTInit_R_32f(KelsFFTSpec_R_32f** ppSpec, int order, int flag, int hint, Kel8u* pSpec, Kel8u* pSpecBuffer);
KELAPI KelStatus kelsFFTInitAlloc_R_32f(KelsFFTSpec_R_32f** ppSpec, int order, int flag, int hint);
KELAPI KelStatus kelsFFTFree_R_32f(KelsFFTSpec_R_32f* pSpec);
KELAPI KelStatus kelsFFTGetBufSize_R_32f(const KelsFFTSpec_R_32f* pSpec, int* pBufferSize);
KELAPI KelStatus kelsFFTGetSize_C_64fc(int order, int flag, int hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
KELAPI KelStatus kelsFFTInit_C_64fc(KelsFFTSpec_C_64fc** ppSpec, int order, int flag, int hint, Kel8u* pSpec, Kel8u* pSpecBuffer);
KELAPI KelStatus kelsFFTInitAlloc_C_64fc(KelsFFTSpec_C_64fc** ppSpec, int order, int flag, int hint);
KELAPI KelStatus kelsFFTFree_C_64fc(KelsFFTSpec_C_64fc* pSpec);
KELAPI KelStatus kelsFFTGetBufSize_C_64fc(const KelsFFTSpec_C_64fc* pSpec, int* pBufferSize);
KELAPI KelStatus kelsFFTGetSize_C_64f(int order, int flag, int hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
KELAPI KelStatus kelsFFTInit_C_64f(KelsFFTSpec_C_64f** ppSpec, int order, int flag, int hint, Kel8u* pSpec, Kel8u* pSpecBuffer);
KELAPI KelStatus kelsFFTInitAlloc_C_64f(KelsFFTSpec_C_64f** ppSpec, int order, int flag, int hint);
KELAPI KelStatus kelsFFTFree_C_64f(KelsFFTSpec_C_64f* pSpec);
KELAPI KelStatus kelsFFTGetBufSize_C_64f(const KelsFFTSpec_C_64f* pSpec, int* pBufferSize);
KELAPI KelStatus kelsFFTGetSize_R_64f(int order, int flag, int hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
KELAPI KelStatus kelsFFTInit_R_64f(KelsFFTSpec_R_64f** ppSpec, int order, int flag, int hint, Kel8u* pSpec, Kel8u* pSpecBuffer);
KELAPI KelStatus kelsFFTInitAlloc_R_64f(KelsFFTSpec_R_64f** ppSpec, int order, int flag, int hint);
KELAPI KelStatus kelsFFTFree_R_64f(KelsFFTSpec_R_64f* pSpec);
KELAPI KelStatus kelsFFTGetBufSize_R_64f(const KelsFFTSpec_R_64f* pSpec, int* pBufferSize);
KELAPI KelStatus kelsFFTGetSize_C_32sc(int order, int flag, int hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
KELAPI KelStatus kelsFFTInit_C_32sc(KelsFFTSpec_C_32sc** ppSpec, int order, int flag, int hint, Kel8u* pSpec, Kel8u* pSpecBuffer);
KELAPI KelStatus kelsFFTInitAlloc_C_32sc(KelsFFTSpec_C_32sc** ppSpec, int order, int flag, int hint);
KELAPI KelStatus kelsFFTFree_C_32sc(KelsFFTSpec_C_32sc* pSpec);
KELAPI KelStatus kelsFFTGetBufSize_C_32sc(const KelsFFTSpec_C_32sc* pSpec, int* pBufferSize);
KELAPI KelStatus kelsFFTGetSize_C_32s(int order, int flag, int hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
KELAPI KelStatus kelsFFTInit_C_32s(KelsFFTSpec_C_32s** ppSpec, int order, int flag, int hint, Kel8u* pSpec, Kel8u* pSpecBuffer);
KELAPI KelStatus kelsFFTInitAlloc_C_32s(KelsFFTSpec_C_32s** ppSpec, int order, int flag, int hint);
KELAPI KelStatus kelsFFTFree_C_32s(KelsFFTSpec_C_32s* pSpec);
KELAPI KelStatus kelsFFTGetBufSize_C_32s(const KelsFFTSpec_C_32s* pSpec, int* pBufferSize);
KELAPI KelStatus kelsFFTGetSize_R_32s(int order, int flag, int hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
KELAPI KelStatus kelsFFTInit_R_32s(KelsFFTSpec_R_32s** ppSpec, int order, int flag, int hint, Kel8u* pSpec, Kel8u* pSpecBuffer);
KELAPI KelStatus kelsFFTInitAlloc_R_32s(KelsFFTSpec_R_32s** ppSpec, int order, int flag, int hint);
KELAPI KelStatus kelsFFTFree_R_32s(KelsFFTSpec_R_32s* pSpec);
KELAPI KelStatus kelsFFTGetBufSize_R_32s(const KelsFFTSpec_R_32s* pSpec, int* pBufferSize);
KELAPI KelStatus kelsFFTGetSize_R_16s32s(int order, int flag, int hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
KELAPI KelStatus kelsFFTInit_R_16s32s(KelsFFTSpec_R_16s32s** ppSpec, int order, int flag, int hint, Kel8u* pSpec, Kel8u* pSpecBuffer);
KELAPI KelStatus kelsFFTInitAlloc_R_16s32s(KelsFFTSpec_R_16s32s** ppSpec, int order, int flag, int hint);
KELAPI KelStatus kelsFFTFree_R_16s32s(KelsFFTSpec_R_16s32s* pSpec);
KELAPI KelStatus kelsFFTGetBufSize_R_16s32s(const KelsFFTSpec_R_16s32s* pSpec, int* pBufferSize);
/* Complex FFT of length 2^order; pBuffer null or of GetBufSize bytes. */
KELAPI KelStatus kelsFFTFwd_CToC_32fc(const Kel32fc* pSrc, Kel32fc* pDst, const KelsFFTSpec_C_32fc* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_CToC_32fc_I(Kel32fc* pSrcDst, const KelsFFTSpec_C_32fc* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_CToC_64fc(const Kel64fc* pSrc, Kel64fc* pDst, const KelsFFTSpec_C_64fc* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_CToC_64fc_I(Kel64fc* pSrcDst, const KelsFFTSpec_C_64fc* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_CToC_32f(const Kel32f* pSrcRe, const Kel32f* pSrcIm, Kel32f* pDstRe, Kel32f* pDstIm, const KelsFFTSpec_C_32f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_CToC_32f_I(Kel32f* pSrcDstRe, Kel32f* pSrcDstIm, const KelsFFTSpec_C_32f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_CToC_64f(const Kel64f* pSrcRe, const Kel64f* pSrcIm, Kel64f* pDstRe, Kel64f* pDstIm, const KelsFFTSpec_C_64f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_CToC_64f_I(Kel64f* pSrcDstRe, Kel64f* pSrcDstIm, const KelsFFTSpec_C_64f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CToC_32fc(const Kel32fc* pSrc, Kel32fc* pDst, const KelsFFTSpec_C_32fc* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CToC_32fc_I(Kel32fc* pSrcDst, const KelsFFTSpec_C_32fc* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CToC_64fc(const Kel64fc* pSrc, Kel64fc* pDst, const KelsFFTSpec_C_64fc* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CToC_64fc_I(Kel64fc* pSrcDst, const KelsFFTSpec_C_64fc* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CToC_32f(const Kel32f* pSrcRe, const Kel32f* pSrcIm, Kel32f* pDstRe, Kel32f* pDstIm, const KelsFFTSpec_C_32f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CToC_32f_I(Kel32f* pSrcDstRe, Kel32f* pSrcDstIm, const KelsFFTSpec_C_32f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CToC_64f(const Kel64f* pSrcRe, const Kel64f* pSrcIm, Kel64f* pDstRe, Kel64f* pDstIm, const KelsFFTSpec_C_64f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CToC_64f_I(Kel64f* pSrcDstRe, Kel64f* pSrcDstIm, const KelsFFTSpec_C_64f* pSpec, Kel8u* pBuffer);
/* Real FFT of length 2^order into the packed layouts Perm, Pack (N values)
 * and CCS (N + 2 values), and back; _I in place (CCS forward: N + 2). */
KELAPI KelStatus kelsFFTFwd_RToPerm_32f(const Kel32f* pSrc, Kel32f* pDst, const KelsFFTSpec_R_32f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_RToPerm_32f_I(Kel32f* pSrcDst, const KelsFFTSpec_R_32f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_PermToR_32f(const Kel32f* pSrc, Kel32f* pDst, const KelsFFTSpec_R_32f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_PermToR_32f_I(Kel32f* pSrcDst, const KelsFFTSpec_R_32f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_RToPack_32f(const Kel32f* pSrc, Kel32f* pDst, const KelsFFTSpec_R_32f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_RToPack_32f_I(Kel32f* pSrcDst, const KelsFFTSpec_R_32f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_PackToR_32f(const Kel32f* pSrc, Kel32f* pDst, const KelsFFTSpec_R_32f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_PackToR_32f_I(Kel32f* pSrcDst, const KelsFFTSpec_R_32f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_RToCCS_32f(const Kel32f* pSrc, Kel32f* pDst, const KelsFFTSpec_R_32f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_RToCCS_32f_I(Kel32f* pSrcDst, const KelsFFTSpec_R_32f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CCSToR_32f(const Kel32f* pSrc, Kel32f* pDst, const KelsFFTSpec_R_32f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CCSToR_32f_I(Kel32f* pSrcDst, const KelsFFTSpec_R_32f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_RToPerm_64f(const Kel64f* pSrc, Kel64f* pDst, const KelsFFTSpec_R_64f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_RToPerm_64f_I(Kel64f* pSrcDst, const KelsFFTSpec_R_64f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_PermToR_64f(const Kel64f* pSrc, Kel64f* pDst, const KelsFFTSpec_R_64f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_PermToR_64f_I(Kel64f* pSrcDst, const KelsFFTSpec_R_64f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_RToPack_64f(const Kel64f* pSrc, Kel64f* pDst, const KelsFFTSpec_R_64f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_RToPack_64f_I(Kel64f* pSrcDst, const KelsFFTSpec_R_64f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_PackToR_64f(const Kel64f* pSrc, Kel64f* pDst, const KelsFFTSpec_R_64f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_PackToR_64f_I(Kel64f* pSrcDst, const KelsFFTSpec_R_64f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_RToCCS_64f(const Kel64f* pSrc, Kel64f* pDst, const KelsFFTSpec_R_64f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_RToCCS_64f_I(Kel64f* pSrcDst, const KelsFFTSpec_R_64f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CCSToR_64f(const Kel64f* pSrc, Kel64f* pDst, const KelsFFTSpec_R_64f* pSpec, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CCSToR_64f_I(Kel64f* pSrcDst, const KelsFFTSpec_R_64f* pSpec, Kel8u* pBuffer);
/* Integer real FFT: exact transform times the record scale times
 * 2^-scaleFactor, rounded to nearest even and saturated. */
KELAPI KelStatus kelsFFTFwd_RToPerm_16s_Sfs(const Kel16s* pSrc, Kel16s* pDst, const KelsFFTSpec_R_16s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_RToPerm_16s_ISfs(Kel16s* pSrcDst, const KelsFFTSpec_R_16s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_RToPack_16s_Sfs(const Kel16s* pSrc, Kel16s* pDst, const KelsFFTSpec_R_16s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_RToPack_16s_ISfs(Kel16s* pSrcDst, const KelsFFTSpec_R_16s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_RToCCS_16s_Sfs(const Kel16s* pSrc, Kel16s* pDst, const KelsFFTSpec_R_16s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_RToCCS_16s_ISfs(Kel16s* pSrcDst, const KelsFFTSpec_R_16s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_PermToR_16s_Sfs(const Kel16s* pSrc, Kel16s* pDst, const KelsFFTSpec_R_16s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_PermToR_16s_ISfs(Kel16s* pSrcDst, const KelsFFTSpec_R_16s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_PackToR_16s_Sfs(const Kel16s* pSrc, Kel16s* pDst, const KelsFFTSpec_R_16s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_PackToR_16s_ISfs(Kel16s* pSrcDst, const KelsFFTSpec_R_16s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CCSToR_16s_Sfs(const Kel16s* pSrc, Kel16s* pDst, const KelsFFTSpec_R_16s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CCSToR_16s_ISfs(Kel16s* pSrcDst, const KelsFFTSpec_R_16s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_RToPerm_32s_Sfs(const Kel32s* pSrc, Kel32s* pDst, const KelsFFTSpec_R_32s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_RToPerm_32s_ISfs(Kel32s* pSrcDst, const KelsFFTSpec_R_32s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_RToPack_32s_Sfs(const Kel32s* pSrc, Kel32s* pDst, const KelsFFTSpec_R_32s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_RToPack_32s_ISfs(Kel32s* pSrcDst, const KelsFFTSpec_R_32s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_RToCCS_32s_Sfs(const Kel32s* pSrc, Kel32s* pDst, const KelsFFTSpec_R_32s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_RToCCS_32s_ISfs(Kel32s* pSrcDst, const KelsFFTSpec_R_32s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_PermToR_32s_Sfs(const Kel32s* pSrc, Kel32s* pDst, const KelsFFTSpec_R_32s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_PermToR_32s_ISfs(Kel32s* pSrcDst, const KelsFFTSpec_R_32s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_PackToR_32s_Sfs(const Kel32s* pSrc, Kel32s* pDst, const KelsFFTSpec_R_32s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_PackToR_32s_ISfs(Kel32s* pSrcDst, const KelsFFTSpec_R_32s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CCSToR_32s_Sfs(const Kel32s* pSrc, Kel32s* pDst, const KelsFFTSpec_R_32s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CCSToR_32s_ISfs(Kel32s* pSrcDst, const KelsFFTSpec_R_32s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_RToCCS_16s32s_Sfs(const Kel16s* pSrc, Kel32s* pDst, const KelsFFTSpec_R_16s32s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CCSToR_32s16s_Sfs(const Kel32s* pSrc, Kel16s* pDst, const KelsFFTSpec_R_16s32s* pSpec, int scaleFactor, Kel8u* pBuffer);
/* Packed spectra: products of Pack / Perm arrays (len reals), the Pack
 * product with the conjugate of the in-place operand, and expansion of a
 * Pack / Perm / CCS spectrum of a real signal of length len into len complex
 * values (in place: the first reals of pSrcDst hold the packed spectrum). */
KELAPI KelStatus kelsMulPack_32f(const Kel32f* pSrc1, const Kel32f* pSrc2, Kel32f* pDst, int len);
KELAPI KelStatus kelsMulPack_32f_I(const Kel32f* pSrc, Kel32f* pSrcDst, int len);
KELAPI KelStatus kelsMulPerm_32f(const Kel32f* pSrc1, const Kel32f* pSrc2, Kel32f* pDst, int len);
KELAPI KelStatus kelsMulPerm_32f_I(const Kel32f* pSrc, Kel32f* pSrcDst, int len);
KELAPI KelStatus kelsMulPackConj_32f_I(const Kel32f* pSrc, Kel32f* pSrcDst, int len);
KELAPI KelStatus kelsMulPack_64f(const Kel64f* pSrc1, const Kel64f* pSrc2, Kel64f* pDst, int len);
KELAPI KelStatus kelsMulPack_64f_I(const Kel64f* pSrc, Kel64f* pSrcDst, int len);
KELAPI KelStatus kelsMulPerm_64f(const Kel64f* pSrc1, const Kel64f* pSrc2, Kel64f* pDst, int len);
KELAPI KelStatus kelsMulPerm_64f_I(const Kel64f* pSrc, Kel64f* pSrcDst, int len);
KELAPI KelStatus kelsMulPackConj_64f_I(const Kel64f* pSrc, Kel64f* pSrcDst, int len);
KELAPI KelStatus kelsMulPack_16s_Sfs(const Kel16s* pSrc1, const Kel16s* pSrc2, Kel16s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsMulPack_16s_ISfs(const Kel16s* pSrc, Kel16s* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsMulPerm_16s_Sfs(const Kel16s* pSrc1, const Kel16s* pSrc2, Kel16s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsMulPerm_16s_ISfs(const Kel16s* pSrc, Kel16s* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsConjPack_32fc(const Kel32f* pSrc, Kel32fc* pDst, int len);
KELAPI KelStatus kelsConjPack_32fc_I(Kel32fc* pSrcDst, int len);
KELAPI KelStatus kelsConjPerm_32fc(const Kel32f* pSrc, Kel32fc* pDst, int len);
KELAPI KelStatus kelsConjPerm_32fc_I(Kel32fc* pSrcDst, int len);
KELAPI KelStatus kelsConjCcs_32fc(const Kel32f* pSrc, Kel32fc* pDst, int len);
KELAPI KelStatus kelsConjCcs_32fc_I(Kel32fc* pSrcDst, int len);
KELAPI KelStatus kelsConjPack_64fc(const Kel64f* pSrc, Kel64fc* pDst, int len);
KELAPI KelStatus kelsConjPack_64fc_I(Kel64fc* pSrcDst, int len);
KELAPI KelStatus kelsConjPerm_64fc(const Kel64f* pSrc, Kel64fc* pDst, int len);
KELAPI KelStatus kelsConjPerm_64fc_I(Kel64fc* pSrcDst, int len);
KELAPI KelStatus kelsConjCcs_64fc(const Kel64f* pSrc, Kel64fc* pDst, int len);
KELAPI KelStatus kelsConjCcs_64fc_I(Kel64fc* pSrcDst, int len);
KELAPI KelStatus kelsConjPack_16sc(const Kel16s* pSrc, Kel16sc* pDst, int len);
KELAPI KelStatus kelsConjPack_16sc_I(Kel16sc* pSrcDst, int len);
KELAPI KelStatus kelsConjPerm_16sc(const Kel16s* pSrc, Kel16sc* pDst, int len);
KELAPI KelStatus kelsConjPerm_16sc_I(Kel16sc* pSrcDst, int len);
KELAPI KelStatus kelsConjCcs_16sc(const Kel16s* pSrc, Kel16sc* pDst, int len);
KELAPI KelStatus kelsConjCcs_16sc_I(Kel16sc* pSrcDst, int len);
/* Integer complex FFT: exact transform times the record scale times
 * 2^-scaleFactor, rounded to nearest even and saturated. */
KELAPI KelStatus kelsFFTFwd_CToC_16sc_Sfs(const Kel16sc* pSrc, Kel16sc* pDst, const KelsFFTSpec_C_16sc* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_CToC_16sc_ISfs(Kel16sc* pSrcDst, const KelsFFTSpec_C_16sc* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_CToC_32sc_Sfs(const Kel32sc* pSrc, Kel32sc* pDst, const KelsFFTSpec_C_32sc* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_CToC_32sc_ISfs(Kel32sc* pSrcDst, const KelsFFTSpec_C_32sc* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_CToC_16s_Sfs(const Kel16s* pSrcRe, const Kel16s* pSrcIm, Kel16s* pDstRe, Kel16s* pDstIm, const KelsFFTSpec_C_16s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_CToC_16s_ISfs(Kel16s* pSrcDstRe, Kel16s* pSrcDstIm, const KelsFFTSpec_C_16s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_CToC_32s_Sfs(const Kel32s* pSrcRe, const Kel32s* pSrcIm, Kel32s* pDstRe, Kel32s* pDstIm, const KelsFFTSpec_C_32s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTFwd_CToC_32s_ISfs(Kel32s* pSrcDstRe, Kel32s* pSrcDstIm, const KelsFFTSpec_C_32s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CToC_16sc_Sfs(const Kel16sc* pSrc, Kel16sc* pDst, const KelsFFTSpec_C_16sc* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CToC_16sc_ISfs(Kel16sc* pSrcDst, const KelsFFTSpec_C_16sc* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CToC_32sc_Sfs(const Kel32sc* pSrc, Kel32sc* pDst, const KelsFFTSpec_C_32sc* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CToC_32sc_ISfs(Kel32sc* pSrcDst, const KelsFFTSpec_C_32sc* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CToC_16s_Sfs(const Kel16s* pSrcRe, const Kel16s* pSrcIm, Kel16s* pDstRe, Kel16s* pDstIm, const KelsFFTSpec_C_16s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CToC_16s_ISfs(Kel16s* pSrcDstRe, Kel16s* pSrcDstIm, const KelsFFTSpec_C_16s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CToC_32s_Sfs(const Kel32s* pSrcRe, const Kel32s* pSrcIm, Kel32s* pDstRe, Kel32s* pDstIm, const KelsFFTSpec_C_32s* pSpec, int scaleFactor, Kel8u* pBuffer);
KELAPI KelStatus kelsFFTInv_CToC_32s_ISfs(Kel32s* pSrcDstRe, Kel32s* pSrcDstIm, const KelsFFTSpec_C_32s* pSpec, int scaleFactor, Kel8u* pBuffer);

/* @decls-fir */
/* Single-rate FIR filters on a state record (GetStateSize + Init, or InitAlloc + Free).
 * Delay lines are exchanged newest sample first. Integer-taps records keep taps
 * normalised to |tap| <= 32766 with a power-of-two factor. */
KELAPI KelStatus kelsFIRGetStateSize_32f(int tapsLen, int* pStateSize);
KELAPI KelStatus kelsFIRFree_32f(KelsFIRState_32f* pState);
KELAPI KelStatus kelsFIRGetDlyLine_32f(const KelsFIRState_32f* pState, Kel32f* pDlyLine);
KELAPI KelStatus kelsFIRSetDlyLine_32f(KelsFIRState_32f* pState, const Kel32f* pDlyLine);
KELAPI KelStatus kelsFIRInit_32f(KelsFIRState_32f** ppState, const Kel32f* pTaps, int tapsLen, const Kel32f* pDlyLine, Kel8u* pBuffer);
KELAPI KelStatus kelsFIRInitAlloc_32f(KelsFIRState_32f** ppState, const Kel32f* pTaps, int tapsLen, const Kel32f* pDlyLine);
KELAPI KelStatus kelsFIRGetTaps_32f(const KelsFIRState_32f* pState, Kel32f* pTaps);
KELAPI KelStatus kelsFIRSetTaps_32f(const Kel32f* pTaps, KelsFIRState_32f* pState);
KELAPI KelStatus kelsFIROne_32f(Kel32f src, Kel32f* pDstVal, KelsFIRState_32f* pState);
KELAPI KelStatus kelsFIR_32f(const Kel32f* pSrc, Kel32f* pDst, int numIters, KelsFIRState_32f* pState);
KELAPI KelStatus kelsFIR_32f_I(Kel32f* pSrcDst, int numIters, KelsFIRState_32f* pState);
KELAPI KelStatus kelsFIRGetStateSize_32fc(int tapsLen, int* pStateSize);
KELAPI KelStatus kelsFIRFree_32fc(KelsFIRState_32fc* pState);
KELAPI KelStatus kelsFIRGetDlyLine_32fc(const KelsFIRState_32fc* pState, Kel32fc* pDlyLine);
KELAPI KelStatus kelsFIRSetDlyLine_32fc(KelsFIRState_32fc* pState, const Kel32fc* pDlyLine);
KELAPI KelStatus kelsFIRInit_32fc(KelsFIRState_32fc** ppState, const Kel32fc* pTaps, int tapsLen, const Kel32fc* pDlyLine, Kel8u* pBuffer);
KELAPI KelStatus kelsFIRInitAlloc_32fc(KelsFIRState_32fc** ppState, const Kel32fc* pTaps, int tapsLen, const Kel32fc* pDlyLine);
KELAPI KelStatus kelsFIRGetTaps_32fc(const KelsFIRState_32fc* pState, Kel32fc* pTaps);
KELAPI KelStatus kelsFIRSetTaps_32fc(const Kel32fc* pTaps, KelsFIRState_32fc* pState);
KELAPI KelStatus kelsFIROne_32fc(Kel32fc src, Kel32fc* pDstVal, KelsFIRState_32fc* pState);
KELAPI KelStatus kelsFIR_32fc(const Kel32fc* pSrc, Kel32fc* pDst, int numIters, KelsFIRState_32fc* pState);
KELAPI KelStatus kelsFIR_32fc_I(Kel32fc* pSrcDst, int numIters, KelsFIRState_32fc* pState);
KELAPI KelStatus kelsFIRGetStateSize_64f(int tapsLen, int* pStateSize);
KELAPI KelStatus kelsFIRFree_64f(KelsFIRState_64f* pState);
KELAPI KelStatus kelsFIRGetDlyLine_64f(const KelsFIRState_64f* pState, Kel64f* pDlyLine);
KELAPI KelStatus kelsFIRSetDlyLine_64f(KelsFIRState_64f* pState, const Kel64f* pDlyLine);
KELAPI KelStatus kelsFIRInit_64f(KelsFIRState_64f** ppState, const Kel64f* pTaps, int tapsLen, const Kel64f* pDlyLine, Kel8u* pBuffer);
KELAPI KelStatus kelsFIRInitAlloc_64f(KelsFIRState_64f** ppState, const Kel64f* pTaps, int tapsLen, const Kel64f* pDlyLine);
KELAPI KelStatus kelsFIRGetTaps_64f(const KelsFIRState_64f* pState, Kel64f* pTaps);
KELAPI KelStatus kelsFIRSetTaps_64f(const Kel64f* pTaps, KelsFIRState_64f* pState);
KELAPI KelStatus kelsFIROne_64f(Kel64f src, Kel64f* pDstVal, KelsFIRState_64f* pState);
KELAPI KelStatus kelsFIR_64f(const Kel64f* pSrc, Kel64f* pDst, int numIters, KelsFIRState_64f* pState);
KELAPI KelStatus kelsFIR_64f_I(Kel64f* pSrcDst, int numIters, KelsFIRState_64f* pState);
KELAPI KelStatus kelsFIRGetStateSize_64fc(int tapsLen, int* pStateSize);
KELAPI KelStatus kelsFIRFree_64fc(KelsFIRState_64fc* pState);
KELAPI KelStatus kelsFIRGetDlyLine_64fc(const KelsFIRState_64fc* pState, Kel64fc* pDlyLine);
KELAPI KelStatus kelsFIRSetDlyLine_64fc(KelsFIRState_64fc* pState, const Kel64fc* pDlyLine);
KELAPI KelStatus kelsFIRInit_64fc(KelsFIRState_64fc** ppState, const Kel64fc* pTaps, int tapsLen, const Kel64fc* pDlyLine, Kel8u* pBuffer);
KELAPI KelStatus kelsFIRInitAlloc_64fc(KelsFIRState_64fc** ppState, const Kel64fc* pTaps, int tapsLen, const Kel64fc* pDlyLine);
KELAPI KelStatus kelsFIRGetTaps_64fc(const KelsFIRState_64fc* pState, Kel64fc* pTaps);
KELAPI KelStatus kelsFIRSetTaps_64fc(const Kel64fc* pTaps, KelsFIRState_64fc* pState);
KELAPI KelStatus kelsFIROne_64fc(Kel64fc src, Kel64fc* pDstVal, KelsFIRState_64fc* pState);
KELAPI KelStatus kelsFIR_64fc(const Kel64fc* pSrc, Kel64fc* pDst, int numIters, KelsFIRState_64fc* pState);
KELAPI KelStatus kelsFIR_64fc_I(Kel64fc* pSrcDst, int numIters, KelsFIRState_64fc* pState);
KELAPI KelStatus kelsFIRGetStateSize64f_32f(int tapsLen, int* pStateSize);
KELAPI KelStatus kelsFIRFree64f_32f(KelsFIRState64f_32f* pState);
KELAPI KelStatus kelsFIRGetDlyLine64f_32f(const KelsFIRState64f_32f* pState, Kel32f* pDlyLine);
KELAPI KelStatus kelsFIRSetDlyLine64f_32f(KelsFIRState64f_32f* pState, const Kel32f* pDlyLine);
KELAPI KelStatus kelsFIRInit64f_32f(KelsFIRState64f_32f** ppState, const Kel64f* pTaps, int tapsLen, const Kel32f* pDlyLine, Kel8u* pBuffer);
KELAPI KelStatus kelsFIRInitAlloc64f_32f(KelsFIRState64f_32f** ppState, const Kel64f* pTaps, int tapsLen, const Kel32f* pDlyLine);
KELAPI KelStatus kelsFIRGetTaps64f_32f(const KelsFIRState64f_32f* pState, Kel64f* pTaps);
KELAPI KelStatus kelsFIRSetTaps64f_32f(const Kel64f* pTaps, KelsFIRState64f_32f* pState);
KELAPI KelStatus kelsFIROne64f_32f(Kel32f src, Kel32f* pDstVal, KelsFIRState64f_32f* pState);
KELAPI KelStatus kelsFIR64f_32f(const Kel32f* pSrc, Kel32f* pDst, int numIters, KelsFIRState64f_32f* pState);
KELAPI KelStatus kelsFIR64f_32f_I(Kel32f* pSrcDst, int numIters, KelsFIRState64f_32f* pState);
KELAPI KelStatus kelsFIRGetStateSize64fc_32fc(int tapsLen, int* pStateSize);
KELAPI KelStatus kelsFIRFree64fc_32fc(KelsFIRState64fc_32fc* pState);
KELAPI KelStatus kelsFIRGetDlyLine64fc_32fc(const KelsFIRState64fc_32fc* pState, Kel32fc* pDlyLine);
KELAPI KelStatus kelsFIRSetDlyLine64fc_32fc(KelsFIRState64fc_32fc* pState, const Kel32fc* pDlyLine);
KELAPI KelStatus kelsFIRInit64fc_32fc(KelsFIRState64fc_32fc** ppState, const Kel64fc* pTaps, int tapsLen, const Kel32fc* pDlyLine, Kel8u* pBuffer);
KELAPI KelStatus kelsFIRInitAlloc64fc_32fc(KelsFIRState64fc_32fc** ppState, const Kel64fc* pTaps, int tapsLen, const Kel32fc* pDlyLine);
KELAPI KelStatus kelsFIRGetTaps64fc_32fc(const KelsFIRState64fc_32fc* pState, Kel64fc* pTaps);
KELAPI KelStatus kelsFIRSetTaps64fc_32fc(const Kel64fc* pTaps, KelsFIRState64fc_32fc* pState);
KELAPI KelStatus kelsFIROne64fc_32fc(Kel32fc src, Kel32fc* pDstVal, KelsFIRState64fc_32fc* pState);
KELAPI KelStatus kelsFIR64fc_32fc(const Kel32fc* pSrc, Kel32fc* pDst, int numIters, KelsFIRState64fc_32fc* pState);
KELAPI KelStatus kelsFIR64fc_32fc_I(Kel32fc* pSrcDst, int numIters, KelsFIRState64fc_32fc* pState);
KELAPI KelStatus kelsFIRGetStateSize32f_16s(int tapsLen, int* pStateSize);
KELAPI KelStatus kelsFIRFree32f_16s(KelsFIRState32f_16s* pState);
KELAPI KelStatus kelsFIRGetDlyLine32f_16s(const KelsFIRState32f_16s* pState, Kel16s* pDlyLine);
KELAPI KelStatus kelsFIRSetDlyLine32f_16s(KelsFIRState32f_16s* pState, const Kel16s* pDlyLine);
KELAPI KelStatus kelsFIRInit32f_16s(KelsFIRState32f_16s** ppState, const Kel32f* pTaps, int tapsLen, const Kel16s* pDlyLine, Kel8u* pBuffer);
KELAPI KelStatus kelsFIRInitAlloc32f_16s(KelsFIRState32f_16s** ppState, const Kel32f* pTaps, int tapsLen, const Kel16s* pDlyLine);
KELAPI KelStatus kelsFIRGetTaps32f_16s(const KelsFIRState32f_16s* pState, Kel32f* pTaps);
KELAPI KelStatus kelsFIRSetTaps32f_16s(const Kel32f* pTaps, KelsFIRState32f_16s* pState);
KELAPI KelStatus kelsFIROne32f_16s_Sfs(Kel16s src, Kel16s* pDstVal, KelsFIRState32f_16s* pState, int scaleFactor);
KELAPI KelStatus kelsFIR32f_16s_Sfs(const Kel16s* pSrc, Kel16s* pDst, int numIters, KelsFIRState32f_16s* pState, int scaleFactor);
KELAPI KelStatus kelsFIR32f_16s_ISfs(Kel16s* pSrcDst, int numIters, KelsFIRState32f_16s* pState, int scaleFactor);
KELAPI KelStatus kelsFIRGetStateSize32fc_16sc(int tapsLen, int* pStateSize);
KELAPI KelStatus kelsFIRFree32fc_16sc(KelsFIRState32fc_16sc* pState);
KELAPI KelStatus kelsFIRGetDlyLine32fc_16sc(const KelsFIRState32fc_16sc* pState, Kel16sc* pDlyLine);
KELAPI KelStatus kelsFIRSetDlyLine32fc_16sc(KelsFIRState32fc_16sc* pState, const Kel16sc* pDlyLine);
KELAPI KelStatus kelsFIRInit32fc_16sc(KelsFIRState32fc_16sc** ppState, const Kel32fc* pTaps, int tapsLen, const Kel16sc* pDlyLine, Kel8u* pBuffer);
KELAPI KelStatus kelsFIRInitAlloc32fc_16sc(KelsFIRState32fc_16sc** ppState, const Kel32fc* pTaps, int tapsLen, const Kel16sc* pDlyLine);
KELAPI KelStatus kelsFIRGetTaps32fc_16sc(const KelsFIRState32fc_16sc* pState, Kel32fc* pTaps);
KELAPI KelStatus kelsFIRSetTaps32fc_16sc(const Kel32fc* pTaps, KelsFIRState32fc_16sc* pState);
KELAPI KelStatus kelsFIROne32fc_16sc_Sfs(Kel16sc src, Kel16sc* pDstVal, KelsFIRState32fc_16sc* pState, int scaleFactor);
KELAPI KelStatus kelsFIR32fc_16sc_Sfs(const Kel16sc* pSrc, Kel16sc* pDst, int numIters, KelsFIRState32fc_16sc* pState, int scaleFactor);
KELAPI KelStatus kelsFIR32fc_16sc_ISfs(Kel16sc* pSrcDst, int numIters, KelsFIRState32fc_16sc* pState, int scaleFactor);
KELAPI KelStatus kelsFIRGetStateSize64f_32s(int tapsLen, int* pStateSize);
KELAPI KelStatus kelsFIRFree64f_32s(KelsFIRState64f_32s* pState);
KELAPI KelStatus kelsFIRGetDlyLine64f_32s(const KelsFIRState64f_32s* pState, Kel32s* pDlyLine);
KELAPI KelStatus kelsFIRSetDlyLine64f_32s(KelsFIRState64f_32s* pState, const Kel32s* pDlyLine);
KELAPI KelStatus kelsFIRInit64f_32s(KelsFIRState64f_32s** ppState, const Kel64f* pTaps, int tapsLen, const Kel32s* pDlyLine, Kel8u* pBuffer);
KELAPI KelStatus kelsFIRInitAlloc64f_32s(KelsFIRState64f_32s** ppState, const Kel64f* pTaps, int tapsLen, const Kel32s* pDlyLine);
KELAPI KelStatus kelsFIRGetTaps64f_32s(const KelsFIRState64f_32s* pState, Kel64f* pTaps);
KELAPI KelStatus kelsFIRSetTaps64f_32s(const Kel64f* pTaps, KelsFIRState64f_32s* pState);
KELAPI KelStatus kelsFIROne64f_32s_Sfs(Kel32s src, Kel32s* pDstVal, KelsFIRState64f_32s* pState, int scaleFactor);
KELAPI KelStatus kelsFIR64f_32s_Sfs(const Kel32s* pSrc, Kel32s* pDst, int numIters, KelsFIRState64f_32s* pState, int scaleFactor);
KELAPI KelStatus kelsFIR64f_32s_ISfs(Kel32s* pSrcDst, int numIters, KelsFIRState64f_32s* pState, int scaleFactor);
KELAPI KelStatus kelsFIRGetStateSize64fc_32sc(int tapsLen, int* pStateSize);
KELAPI KelStatus kelsFIRFree64fc_32sc(KelsFIRState64fc_32sc* pState);
KELAPI KelStatus kelsFIRGetDlyLine64fc_32sc(const KelsFIRState64fc_32sc* pState, Kel32sc* pDlyLine);
KELAPI KelStatus kelsFIRSetDlyLine64fc_32sc(KelsFIRState64fc_32sc* pState, const Kel32sc* pDlyLine);
KELAPI KelStatus kelsFIRInit64fc_32sc(KelsFIRState64fc_32sc** ppState, const Kel64fc* pTaps, int tapsLen, const Kel32sc* pDlyLine, Kel8u* pBuffer);
KELAPI KelStatus kelsFIRInitAlloc64fc_32sc(KelsFIRState64fc_32sc** ppState, const Kel64fc* pTaps, int tapsLen, const Kel32sc* pDlyLine);
KELAPI KelStatus kelsFIRGetTaps64fc_32sc(const KelsFIRState64fc_32sc* pState, Kel64fc* pTaps);
KELAPI KelStatus kelsFIRSetTaps64fc_32sc(const Kel64fc* pTaps, KelsFIRState64fc_32sc* pState);
KELAPI KelStatus kelsFIROne64fc_32sc_Sfs(Kel32sc src, Kel32sc* pDstVal, KelsFIRState64fc_32sc* pState, int scaleFactor);
KELAPI KelStatus kelsFIR64fc_32sc_Sfs(const Kel32sc* pSrc, Kel32sc* pDst, int numIters, KelsFIRState64fc_32sc* pState, int scaleFactor);
KELAPI KelStatus kelsFIR64fc_32sc_ISfs(Kel32sc* pSrcDst, int numIters, KelsFIRState64fc_32sc* pState, int scaleFactor);
KELAPI KelStatus kelsFIRGetStateSize64f_16s(int tapsLen, int* pStateSize);
KELAPI KelStatus kelsFIRFree64f_16s(KelsFIRState64f_16s* pState);
KELAPI KelStatus kelsFIRGetDlyLine64f_16s(const KelsFIRState64f_16s* pState, Kel16s* pDlyLine);
KELAPI KelStatus kelsFIRSetDlyLine64f_16s(KelsFIRState64f_16s* pState, const Kel16s* pDlyLine);
KELAPI KelStatus kelsFIRInit64f_16s(KelsFIRState64f_16s** ppState, const Kel64f* pTaps, int tapsLen, const Kel16s* pDlyLine, Kel8u* pBuffer);
KELAPI KelStatus kelsFIRInitAlloc64f_16s(KelsFIRState64f_16s** ppState, const Kel64f* pTaps, int tapsLen, const Kel16s* pDlyLine);
KELAPI KelStatus kelsFIRGetTaps64f_16s(const KelsFIRState64f_16s* pState, Kel64f* pTaps);
KELAPI KelStatus kelsFIRSetTaps64f_16s(const Kel64f* pTaps, KelsFIRState64f_16s* pState);
KELAPI KelStatus kelsFIROne64f_16s_Sfs(Kel16s src, Kel16s* pDstVal, KelsFIRState64f_16s* pState, int scaleFactor);
KELAPI KelStatus kelsFIR64f_16s_Sfs(const Kel16s* pSrc, Kel16s* pDst, int numIters, KelsFIRState64f_16s* pState, int scaleFactor);
KELAPI KelStatus kelsFIR64f_16s_ISfs(Kel16s* pSrcDst, int numIters, KelsFIRState64f_16s* pState, int scaleFactor);
KELAPI KelStatus kelsFIRGetStateSize64fc_16sc(int tapsLen, int* pStateSize);
KELAPI KelStatus kelsFIRFree64fc_16sc(KelsFIRState64fc_16sc* pState);
KELAPI KelStatus kelsFIRGetDlyLine64fc_16sc(const KelsFIRState64fc_16sc* pState, Kel16sc* pDlyLine);
KELAPI KelStatus kelsFIRSetDlyLine64fc_16sc(KelsFIRState64fc_16sc* pState, const Kel16sc* pDlyLine);
KELAPI KelStatus kelsFIRInit64fc_16sc(KelsFIRState64fc_16sc** ppState, const Kel64fc* pTaps, int tapsLen, const Kel16sc* pDlyLine, Kel8u* pBuffer);
KELAPI KelStatus kelsFIRInitAlloc64fc_16sc(KelsFIRState64fc_16sc** ppState, const Kel64fc* pTaps, int tapsLen, const Kel16sc* pDlyLine);
KELAPI KelStatus kelsFIRGetTaps64fc_16sc(const KelsFIRState64fc_16sc* pState, Kel64fc* pTaps);
KELAPI KelStatus kelsFIRSetTaps64fc_16sc(const Kel64fc* pTaps, KelsFIRState64fc_16sc* pState);
KELAPI KelStatus kelsFIROne64fc_16sc_Sfs(Kel16sc src, Kel16sc* pDstVal, KelsFIRState64fc_16sc* pState, int scaleFactor);
KELAPI KelStatus kelsFIR64fc_16sc_Sfs(const Kel16sc* pSrc, Kel16sc* pDst, int numIters, KelsFIRState64fc_16sc* pState, int scaleFactor);
KELAPI KelStatus kelsFIR64fc_16sc_ISfs(Kel16sc* pSrcDst, int numIters, KelsFIRState64fc_16sc* pState, int scaleFactor);
KELAPI KelStatus kelsFIRGetStateSize32s_16s(int tapsLen, int* pStateSize);
KELAPI KelStatus kelsFIRFree32s_16s(KelsFIRState32s_16s* pState);
KELAPI KelStatus kelsFIRGetDlyLine32s_16s(const KelsFIRState32s_16s* pState, Kel16s* pDlyLine);
KELAPI KelStatus kelsFIRSetDlyLine32s_16s(KelsFIRState32s_16s* pState, const Kel16s* pDlyLine);
KELAPI KelStatus kelsFIROne32s_16s_Sfs(Kel16s src, Kel16s* pDstVal, KelsFIRState32s_16s* pState, int scaleFactor);
KELAPI KelStatus kelsFIR32s_16s_Sfs(const Kel16s* pSrc, Kel16s* pDst, int numIters, KelsFIRState32s_16s* pState, int scaleFactor);
KELAPI KelStatus kelsFIR32s_16s_ISfs(Kel16s* pSrcDst, int numIters, KelsFIRState32s_16s* pState, int scaleFactor);
KELAPI KelStatus kelsFIRInit32s_16s(KelsFIRState32s_16s** ppState, const Kel32s* pTaps, int tapsLen, int tapsFactor, const Kel16s* pDlyLine, Kel8u* pBuffer);
KELAPI KelStatus kelsFIRInitAlloc32s_16s(KelsFIRState32s_16s** ppState, const Kel32s* pTaps, int tapsLen, int tapsFactor, const Kel16s* pDlyLine);
KELAPI KelStatus kelsFIRGetTaps32s_16s(const KelsFIRState32s_16s* pState, Kel32s* pTaps, int* pTapsFactor);
KELAPI KelStatus kelsFIRSetTaps32s_16s(const Kel32s* pTaps, KelsFIRState32s_16s* pState, int tapsFactor);
KELAPI KelStatus kelsFIRInit32s_16s32f(KelsFIRState32s_16s** ppState, const Kel32f* pTaps, int tapsLen, const Kel16s* pDlyLine, Kel8u* pBuffer);
KELAPI KelStatus kelsFIRInitAlloc32s_16s32f(KelsFIRState32s_16s** ppState, const Kel32f* pTaps, int tapsLen, const Kel16s* pDlyLine);
KELAPI KelStatus kelsFIRGetTaps32s_16s32f(const KelsFIRState32s_16s* pState, Kel32f* pTaps);
KELAPI KelStatus kelsFIRSetTaps32s_16s32f(const Kel32f* pTaps, KelsFIRState32s_16s* pState);
KELAPI KelStatus kelsFIRGetStateSize32s_16s32f(int tapsLen, int* pStateSize);
KELAPI KelStatus kelsFIRFree32s_16s32f(KelsFIRState32s_16s* pState);
KELAPI KelStatus kelsFIROne32s_16s32f_Sfs(Kel16s src, Kel16s* pDstVal, KelsFIRState32s_16s* pState, int scaleFactor);
KELAPI KelStatus kelsFIR32s_16s32f_Sfs(const Kel16s* pSrc, Kel16s* pDst, int numIters, KelsFIRState32s_16s* pState, int scaleFactor);
KELAPI KelStatus kelsFIR32s_16s32f_ISfs(Kel16s* pSrcDst, int numIters, KelsFIRState32s_16s* pState, int scaleFactor);
KELAPI KelStatus kelsFIRGetStateSize32sc_16sc(int tapsLen, int* pStateSize);
KELAPI KelStatus kelsFIRFree32sc_16sc(KelsFIRState32sc_16sc* pState);
KELAPI KelStatus kelsFIRGetDlyLine32sc_16sc(const KelsFIRState32sc_16sc* pState, Kel16sc* pDlyLine);
KELAPI KelStatus kelsFIRSetDlyLine32sc_16sc(KelsFIRState32sc_16sc* pState, const Kel16sc* pDlyLine);
KELAPI KelStatus kelsFIROne32sc_16sc_Sfs(Kel16sc src, Kel16sc* pDstVal, KelsFIRState32sc_16sc* pState, int scaleFactor);
KELAPI KelStatus kelsFIR32sc_16sc_Sfs(const Kel16sc* pSrc, Kel16sc* pDst, int numIters, KelsFIRState32sc_16sc* pState, int scaleFactor);
KELAPI KelStatus kelsFIR32sc_16sc_ISfs(Kel16sc* pSrcDst, int numIters, KelsFIRState32sc_16sc* pState, int scaleFactor);
KELAPI KelStatus kelsFIRInit32sc_16sc(KelsFIRState32sc_16sc** ppState, const Kel32sc* pTaps, int tapsLen, int tapsFactor, const Kel16sc* pDlyLine, Kel8u* pBuffer);
KELAPI KelStatus kelsFIRInitAlloc32sc_16sc(KelsFIRState32sc_16sc** ppState, const Kel32sc* pTaps, int tapsLen, int tapsFactor, const Kel16sc* pDlyLine);
KELAPI KelStatus kelsFIRGetTaps32sc_16sc(const KelsFIRState32sc_16sc* pState, Kel32sc* pTaps, int* pTapsFactor);
KELAPI KelStatus kelsFIRSetTaps32sc_16sc(const Kel32sc* pTaps, KelsFIRState32sc_16sc* pState, int tapsFactor);
KELAPI KelStatus kelsFIRInit32sc_16sc32fc(KelsFIRState32sc_16sc** ppState, const Kel32fc* pTaps, int tapsLen, const Kel16sc* pDlyLine, Kel8u* pBuffer);
KELAPI KelStatus kelsFIRInitAlloc32sc_16sc32fc(KelsFIRState32sc_16sc** ppState, const Kel32fc* pTaps, int tapsLen, const Kel16sc* pDlyLine);
KELAPI KelStatus kelsFIRGetTaps32sc_16sc32fc(const KelsFIRState32sc_16sc* pState, Kel32fc* pTaps);
KELAPI KelStatus kelsFIRSetTaps32sc_16sc32fc(const Kel32fc* pTaps, KelsFIRState32sc_16sc* pState);
KELAPI KelStatus kelsFIRGetStateSize32sc_16sc32fc(int tapsLen, int* pStateSize);
KELAPI KelStatus kelsFIRFree32sc_16sc32fc(KelsFIRState32sc_16sc* pState);
KELAPI KelStatus kelsFIROne32sc_16sc32fc_Sfs(Kel16sc src, Kel16sc* pDstVal, KelsFIRState32sc_16sc* pState, int scaleFactor);
KELAPI KelStatus kelsFIR32sc_16sc32fc_Sfs(const Kel16sc* pSrc, Kel16sc* pDst, int numIters, KelsFIRState32sc_16sc* pState, int scaleFactor);
KELAPI KelStatus kelsFIR32sc_16sc32fc_ISfs(Kel16sc* pSrcDst, int numIters, KelsFIRState32sc_16sc* pState, int scaleFactor);
KELAPI KelStatus kelsFIRGetStateSize_32s(int tapsLen, int* pStateSize);
KELAPI KelStatus kelsFIRFree_32s(KelsFIRState_32s* pState);
KELAPI KelStatus kelsFIROne_32s_Sfs(Kel32s src, Kel32s* pDstVal, KelsFIRState_32s* pState, int scaleFactor);
KELAPI KelStatus kelsFIR_32s_Sfs(const Kel32s* pSrc, Kel32s* pDst, int numIters, KelsFIRState_32s* pState, int scaleFactor);
KELAPI KelStatus kelsFIR_32s_ISfs(Kel32s* pSrcDst, int numIters, KelsFIRState_32s* pState, int scaleFactor);
KELAPI KelStatus kelsFIRInit_32s(KelsFIRState_32s** ppState, const Kel32s* pTaps, int tapsLen, int tapsFactor, const Kel32s* pDlyLine, Kel8u* pBuffer);
KELAPI KelStatus kelsFIRInitAlloc_32s(KelsFIRState_32s** ppState, const Kel32s* pTaps, int tapsLen, int tapsFactor, const Kel32s* pDlyLine);
KELAPI KelStatus kelsFIRGetTaps_32s(const KelsFIRState_32s* pState, Kel32s* pTaps, int* pTapsFactor);
KELAPI KelStatus kelsFIRSetTaps_32s(const Kel32s* pTaps, KelsFIRState_32s* pState, int tapsFactor);
/* Single-rate workers of the 64f_32s record; they check nothing. */
KELAPI KelStatus kelsFIRSR64f_32s_Sfs(const Kel32s* pSrc, Kel32s* pDst, int numIters, KelsFIRState64f_32s* pState, int scaleFactor);
KELAPI KelStatus kelsFIRSR64f_32s_ISfs(Kel32s* pSrcDst, int numIters, KelsFIRState64f_32s* pState, int scaleFactor);
KELAPI KelStatus kelsFIRSROne64f_32s_Sfs(Kel32s src, Kel32s* pDstVal, KelsFIRState64f_32s* pState, int scaleFactor);
/* Caller-held FIR filters: taps in the caller's order, a delay line of 2*tapsLen
 * samples (zeroed before the first call) and an index in [0, tapsLen). */
KELAPI KelStatus kelsFIROne_Direct_32f(Kel32f src, Kel32f* pDstVal, const Kel32f* pTaps, int tapsLen, Kel32f* pDlyLine, int* pDlyLineIndex);
KELAPI KelStatus kelsFIROne_Direct_32f_I(Kel32f* pSrcDst, const Kel32f* pTaps, int tapsLen, Kel32f* pDlyLine, int* pDlyLineIndex);
KELAPI KelStatus kelsFIR_Direct_32f(const Kel32f* pSrc, Kel32f* pDst, int numIters, const Kel32f* pTaps, int tapsLen, Kel32f* pDlyLine, int* pDlyLineIndex);
KELAPI KelStatus kelsFIR_Direct_32f_I(Kel32f* pSrcDst, int numIters, const Kel32f* pTaps, int tapsLen, Kel32f* pDlyLine, int* pDlyLineIndex);
KELAPI KelStatus kelsFIROne_Direct_32fc(Kel32fc src, Kel32fc* pDstVal, const Kel32fc* pTaps, int tapsLen, Kel32fc* pDlyLine, int* pDlyLineIndex);
KELAPI KelStatus kelsFIROne_Direct_32fc_I(Kel32fc* pSrcDst, const Kel32fc* pTaps, int tapsLen, Kel32fc* pDlyLine, int* pDlyLineIndex);
KELAPI KelStatus kelsFIR_Direct_32fc(const Kel32fc* pSrc, Kel32fc* pDst, int numIters, const Kel32fc* pTaps, int tapsLen, Kel32fc* pDlyLine, int* pDlyLineIndex);
KELAPI KelStatus kelsFIR_Direct_32fc_I(Kel32fc* pSrcDst, int numIters, const Kel32fc* pTaps, int tapsLen, Kel32fc* pDlyLine, int* pDlyLineIndex);
KELAPI KelStatus kelsFIROne_Direct_64f(Kel64f src, Kel64f* pDstVal, const Kel64f* pTaps, int tapsLen, Kel64f* pDlyLine, int* pDlyLineIndex);
KELAPI KelStatus kelsFIROne_Direct_64f_I(Kel64f* pSrcDst, const Kel64f* pTaps, int tapsLen, Kel64f* pDlyLine, int* pDlyLineIndex);
KELAPI KelStatus kelsFIR_Direct_64f(const Kel64f* pSrc, Kel64f* pDst, int numIters, const Kel64f* pTaps, int tapsLen, Kel64f* pDlyLine, int* pDlyLineIndex);
KELAPI KelStatus kelsFIR_Direct_64f_I(Kel64f* pSrcDst, int numIters, const Kel64f* pTaps, int tapsLen, Kel64f* pDlyLine, int* pDlyLineIndex);
KELAPI KelStatus kelsFIROne_Direct_64fc(Kel64fc src, Kel64fc* pDstVal, const Kel64fc* pTaps, int tapsLen, Kel64fc* pDlyLine, int* pDlyLineIndex);
KELAPI KelStatus kelsFIROne_Direct_64fc_I(Kel64fc* pSrcDst, const Kel64fc* pTaps, int tapsLen, Kel64fc* pDlyLine, int* pDlyLineIndex);
KELAPI KelStatus kelsFIR_Direct_64fc(const Kel64fc* pSrc, Kel64fc* pDst, int numIters, const Kel64fc* pTaps, int tapsLen, Kel64fc* pDlyLine, int* pDlyLineIndex);
KELAPI KelStatus kelsFIR_Direct_64fc_I(Kel64fc* pSrcDst, int numIters, const Kel64fc* pTaps, int tapsLen, Kel64fc* pDlyLine, int* pDlyLineIndex);
KELAPI KelStatus kelsFIROne64f_Direct_32f(Kel32f src, Kel32f* pDstVal, const Kel64f* pTaps, int tapsLen, Kel32f* pDlyLine, int* pDlyLineIndex);
KELAPI KelStatus kelsFIROne64f_Direct_32f_I(Kel32f* pSrcDst, const Kel64f* pTaps, int tapsLen, Kel32f* pDlyLine, int* pDlyLineIndex);
KELAPI KelStatus kelsFIR64f_Direct_32f(const Kel32f* pSrc, Kel32f* pDst, int numIters, const Kel64f* pTaps, int tapsLen, Kel32f* pDlyLine, int* pDlyLineIndex);
KELAPI KelStatus kelsFIR64f_Direct_32f_I(Kel32f* pSrcDst, int numIters, const Kel64f* pTaps, int tapsLen, Kel32f* pDlyLine, int* pDlyLineIndex);
KELAPI KelStatus kelsFIROne64fc_Direct_32fc(Kel32fc src, Kel32fc* pDstVal, const Kel64fc* pTaps, int tapsLen, Kel32fc* pDlyLine, int* pDlyLineIndex);
KELAPI KelStatus kelsFIROne64fc_Direct_32fc_I(Kel32fc* pSrcDst, const Kel64fc* pTaps, int tapsLen, Kel32fc* pDlyLine, int* pDlyLineIndex);
KELAPI KelStatus kelsFIR64fc_Direct_32fc(const Kel32fc* pSrc, Kel32fc* pDst, int numIters, const Kel64fc* pTaps, int tapsLen, Kel32fc* pDlyLine, int* pDlyLineIndex);
KELAPI KelStatus kelsFIR64fc_Direct_32fc_I(Kel32fc* pSrcDst, int numIters, const Kel64fc* pTaps, int tapsLen, Kel32fc* pDlyLine, int* pDlyLineIndex);
KELAPI KelStatus kelsFIROne_Direct_16s_Sfs(Kel16s src, Kel16s* pDstVal, const Kel16s* pTaps, int tapsLen, Kel16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIROne_Direct_16s_ISfs(Kel16s* pSrcDst, const Kel16s* pTaps, int tapsLen, Kel16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIR_Direct_16s_Sfs(const Kel16s* pSrc, Kel16s* pDst, int numIters, const Kel16s* pTaps, int tapsLen, Kel16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIR_Direct_16s_ISfs(Kel16s* pSrcDst, int numIters, const Kel16s* pTaps, int tapsLen, Kel16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIROne32f_Direct_16s_Sfs(Kel16s src, Kel16s* pDstVal, const Kel32f* pTaps, int tapsLen, Kel16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIROne32f_Direct_16s_ISfs(Kel16s* pSrcDst, const Kel32f* pTaps, int tapsLen, Kel16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIR32f_Direct_16s_Sfs(const Kel16s* pSrc, Kel16s* pDst, int numIters, const Kel32f* pTaps, int tapsLen, Kel16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIR32f_Direct_16s_ISfs(Kel16s* pSrcDst, int numIters, const Kel32f* pTaps, int tapsLen, Kel16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIROne32fc_Direct_16sc_Sfs(Kel16sc src, Kel16sc* pDstVal, const Kel32fc* pTaps, int tapsLen, Kel16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIROne32fc_Direct_16sc_ISfs(Kel16sc* pSrcDst, const Kel32fc* pTaps, int tapsLen, Kel16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIR32fc_Direct_16sc_Sfs(const Kel16sc* pSrc, Kel16sc* pDst, int numIters, const Kel32fc* pTaps, int tapsLen, Kel16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIR32fc_Direct_16sc_ISfs(Kel16sc* pSrcDst, int numIters, const Kel32fc* pTaps, int tapsLen, Kel16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIROne64f_Direct_16s_Sfs(Kel16s src, Kel16s* pDstVal, const Kel64f* pTaps, int tapsLen, Kel16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIROne64f_Direct_16s_ISfs(Kel16s* pSrcDst, const Kel64f* pTaps, int tapsLen, Kel16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIR64f_Direct_16s_Sfs(const Kel16s* pSrc, Kel16s* pDst, int numIters, const Kel64f* pTaps, int tapsLen, Kel16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIR64f_Direct_16s_ISfs(Kel16s* pSrcDst, int numIters, const Kel64f* pTaps, int tapsLen, Kel16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIROne64f_Direct_32s_Sfs(Kel32s src, Kel32s* pDstVal, const Kel64f* pTaps, int tapsLen, Kel32s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIROne64f_Direct_32s_ISfs(Kel32s* pSrcDst, const Kel64f* pTaps, int tapsLen, Kel32s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIR64f_Direct_32s_Sfs(const Kel32s* pSrc, Kel32s* pDst, int numIters, const Kel64f* pTaps, int tapsLen, Kel32s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIR64f_Direct_32s_ISfs(Kel32s* pSrcDst, int numIters, const Kel64f* pTaps, int tapsLen, Kel32s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIROne64fc_Direct_16sc_Sfs(Kel16sc src, Kel16sc* pDstVal, const Kel64fc* pTaps, int tapsLen, Kel16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIROne64fc_Direct_16sc_ISfs(Kel16sc* pSrcDst, const Kel64fc* pTaps, int tapsLen, Kel16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIR64fc_Direct_16sc_Sfs(const Kel16sc* pSrc, Kel16sc* pDst, int numIters, const Kel64fc* pTaps, int tapsLen, Kel16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIR64fc_Direct_16sc_ISfs(Kel16sc* pSrcDst, int numIters, const Kel64fc* pTaps, int tapsLen, Kel16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIROne64fc_Direct_32sc_Sfs(Kel32sc src, Kel32sc* pDstVal, const Kel64fc* pTaps, int tapsLen, Kel32sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIROne64fc_Direct_32sc_ISfs(Kel32sc* pSrcDst, const Kel64fc* pTaps, int tapsLen, Kel32sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIR64fc_Direct_32sc_Sfs(const Kel32sc* pSrc, Kel32sc* pDst, int numIters, const Kel64fc* pTaps, int tapsLen, Kel32sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIR64fc_Direct_32sc_ISfs(Kel32sc* pSrcDst, int numIters, const Kel64fc* pTaps, int tapsLen, Kel32sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIROne32s_Direct_16s_Sfs(Kel16s src, Kel16s* pDstVal, const Kel32s* pTaps, int tapsLen, int tapsFactor, Kel16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIROne32s_Direct_16s_ISfs(Kel16s* pSrcDst, const Kel32s* pTaps, int tapsLen, int tapsFactor, Kel16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIR32s_Direct_16s_Sfs(const Kel16s* pSrc, Kel16s* pDst, int numIters, const Kel32s* pTaps, int tapsLen, int tapsFactor, Kel16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIR32s_Direct_16s_ISfs(Kel16s* pSrcDst, int numIters, const Kel32s* pTaps, int tapsLen, int tapsFactor, Kel16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIROne32sc_Direct_16sc_Sfs(Kel16sc src, Kel16sc* pDstVal, const Kel32sc* pTaps, int tapsLen, int tapsFactor, Kel16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIROne32sc_Direct_16sc_ISfs(Kel16sc* pSrcDst, const Kel32sc* pTaps, int tapsLen, int tapsFactor, Kel16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIR32sc_Direct_16sc_Sfs(const Kel16sc* pSrc, Kel16sc* pDst, int numIters, const Kel32sc* pTaps, int tapsLen, int tapsFactor, Kel16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);
KELAPI KelStatus kelsFIR32sc_Direct_16sc_ISfs(Kel16sc* pSrcDst, int numIters, const Kel32sc* pTaps, int tapsLen, int tapsFactor, Kel16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor);

/* @decls-iir */

/* @decls-generate */
/* ---- Windows. Weights are symmetric with ends at n = 0 and n = len-1. Lengths
 * below 3 are refused (BlackmanOpt: below 4, tested before the pointers;
 * Kaiser: below 1). 16s results are rounded to nearest, ties away from zero,
 * and saturated. Q15 forms take alpha * 2^15 as an int. */
KELAPI KelStatus kelsWinBartlett_16s(const Kel16s* pSrc, Kel16s* pDst, int len);
KELAPI KelStatus kelsWinBartlett_16s_I(Kel16s* pSrcDst, int len);
KELAPI KelStatus kelsWinBartlett_16sc(const Kel16sc* pSrc, Kel16sc* pDst, int len);
KELAPI KelStatus kelsWinBartlett_16sc_I(Kel16sc* pSrcDst, int len);
KELAPI KelStatus kelsWinBartlett_32f(const Kel32f* pSrc, Kel32f* pDst, int len);
KELAPI KelStatus kelsWinBartlett_32f_I(Kel32f* pSrcDst, int len);
KELAPI KelStatus kelsWinBartlett_32fc(const Kel32fc* pSrc, Kel32fc* pDst, int len);
KELAPI KelStatus kelsWinBartlett_32fc_I(Kel32fc* pSrcDst, int len);
KELAPI KelStatus kelsWinBartlett_64f(const Kel64f* pSrc, Kel64f* pDst, int len);
KELAPI KelStatus kelsWinBartlett_64f_I(Kel64f* pSrcDst, int len);
KELAPI KelStatus kelsWinBartlett_64fc(const Kel64fc* pSrc, Kel64fc* pDst, int len);
KELAPI KelStatus kelsWinBartlett_64fc_I(Kel64fc* pSrcDst, int len);
KELAPI KelStatus kelsWinHann_16s(const Kel16s* pSrc, Kel16s* pDst, int len);
KELAPI KelStatus kelsWinHann_16s_I(Kel16s* pSrcDst, int len);
KELAPI KelStatus kelsWinHann_16sc(const Kel16sc* pSrc, Kel16sc* pDst, int len);
KELAPI KelStatus kelsWinHann_16sc_I(Kel16sc* pSrcDst, int len);
KELAPI KelStatus kelsWinHann_32f(const Kel32f* pSrc, Kel32f* pDst, int len);
KELAPI KelStatus kelsWinHann_32f_I(Kel32f* pSrcDst, int len);
KELAPI KelStatus kelsWinHann_32fc(const Kel32fc* pSrc, Kel32fc* pDst, int len);
KELAPI KelStatus kelsWinHann_32fc_I(Kel32fc* pSrcDst, int len);
KELAPI KelStatus kelsWinHann_64f(const Kel64f* pSrc, Kel64f* pDst, int len);
KELAPI KelStatus kelsWinHann_64f_I(Kel64f* pSrcDst, int len);
KELAPI KelStatus kelsWinHann_64fc(const Kel64fc* pSrc, Kel64fc* pDst, int len);
KELAPI KelStatus kelsWinHann_64fc_I(Kel64fc* pSrcDst, int len);
KELAPI KelStatus kelsWinHamming_16s(const Kel16s* pSrc, Kel16s* pDst, int len);
KELAPI KelStatus kelsWinHamming_16s_I(Kel16s* pSrcDst, int len);
KELAPI KelStatus kelsWinHamming_16sc(const Kel16sc* pSrc, Kel16sc* pDst, int len);
KELAPI KelStatus kelsWinHamming_16sc_I(Kel16sc* pSrcDst, int len);
KELAPI KelStatus kelsWinHamming_32f(const Kel32f* pSrc, Kel32f* pDst, int len);
KELAPI KelStatus kelsWinHamming_32f_I(Kel32f* pSrcDst, int len);
KELAPI KelStatus kelsWinHamming_32fc(const Kel32fc* pSrc, Kel32fc* pDst, int len);
KELAPI KelStatus kelsWinHamming_32fc_I(Kel32fc* pSrcDst, int len);
KELAPI KelStatus kelsWinHamming_64f(const Kel64f* pSrc, Kel64f* pDst, int len);
KELAPI KelStatus kelsWinHamming_64f_I(Kel64f* pSrcDst, int len);
KELAPI KelStatus kelsWinHamming_64fc(const Kel64fc* pSrc, Kel64fc* pDst, int len);
KELAPI KelStatus kelsWinHamming_64fc_I(Kel64fc* pSrcDst, int len);
KELAPI KelStatus kelsWinBlackmanStd_16s(const Kel16s* pSrc, Kel16s* pDst, int len);
KELAPI KelStatus kelsWinBlackmanStd_16s_I(Kel16s* pSrcDst, int len);
KELAPI KelStatus kelsWinBlackmanStd_16sc(const Kel16sc* pSrc, Kel16sc* pDst, int len);
KELAPI KelStatus kelsWinBlackmanStd_16sc_I(Kel16sc* pSrcDst, int len);
KELAPI KelStatus kelsWinBlackmanStd_32f(const Kel32f* pSrc, Kel32f* pDst, int len);
KELAPI KelStatus kelsWinBlackmanStd_32f_I(Kel32f* pSrcDst, int len);
KELAPI KelStatus kelsWinBlackmanStd_32fc(const Kel32fc* pSrc, Kel32fc* pDst, int len);
KELAPI KelStatus kelsWinBlackmanStd_32fc_I(Kel32fc* pSrcDst, int len);
KELAPI KelStatus kelsWinBlackmanStd_64f(const Kel64f* pSrc, Kel64f* pDst, int len);
KELAPI KelStatus kelsWinBlackmanStd_64f_I(Kel64f* pSrcDst, int len);
KELAPI KelStatus kelsWinBlackmanStd_64fc(const Kel64fc* pSrc, Kel64fc* pDst, int len);
KELAPI KelStatus kelsWinBlackmanStd_64fc_I(Kel64fc* pSrcDst, int len);
KELAPI KelStatus kelsWinBlackmanOpt_16s(const Kel16s* pSrc, Kel16s* pDst, int len);
KELAPI KelStatus kelsWinBlackmanOpt_16s_I(Kel16s* pSrcDst, int len);
KELAPI KelStatus kelsWinBlackmanOpt_16sc(const Kel16sc* pSrc, Kel16sc* pDst, int len);
KELAPI KelStatus kelsWinBlackmanOpt_16sc_I(Kel16sc* pSrcDst, int len);
KELAPI KelStatus kelsWinBlackmanOpt_32f(const Kel32f* pSrc, Kel32f* pDst, int len);
KELAPI KelStatus kelsWinBlackmanOpt_32f_I(Kel32f* pSrcDst, int len);
KELAPI KelStatus kelsWinBlackmanOpt_32fc(const Kel32fc* pSrc, Kel32fc* pDst, int len);
KELAPI KelStatus kelsWinBlackmanOpt_32fc_I(Kel32fc* pSrcDst, int len);
KELAPI KelStatus kelsWinBlackmanOpt_64f(const Kel64f* pSrc, Kel64f* pDst, int len);
KELAPI KelStatus kelsWinBlackmanOpt_64f_I(Kel64f* pSrcDst, int len);
KELAPI KelStatus kelsWinBlackmanOpt_64fc(const Kel64fc* pSrc, Kel64fc* pDst, int len);
KELAPI KelStatus kelsWinBlackmanOpt_64fc_I(Kel64fc* pSrcDst, int len);
KELAPI KelStatus kelsWinBlackman_16s(const Kel16s* pSrc, Kel16s* pDst, int len, Kel32f alpha);
KELAPI KelStatus kelsWinBlackman_16s_I(Kel16s* pSrcDst, int len, Kel32f alpha);
KELAPI KelStatus kelsWinBlackman_16sc(const Kel16sc* pSrc, Kel16sc* pDst, int len, Kel32f alpha);
KELAPI KelStatus kelsWinBlackman_16sc_I(Kel16sc* pSrcDst, int len, Kel32f alpha);
KELAPI KelStatus kelsWinBlackman_32f(const Kel32f* pSrc, Kel32f* pDst, int len, Kel32f alpha);
KELAPI KelStatus kelsWinBlackman_32f_I(Kel32f* pSrcDst, int len, Kel32f alpha);
KELAPI KelStatus kelsWinBlackman_32fc(const Kel32fc* pSrc, Kel32fc* pDst, int len, Kel32f alpha);
KELAPI KelStatus kelsWinBlackman_32fc_I(Kel32fc* pSrcDst, int len, Kel32f alpha);
KELAPI KelStatus kelsWinBlackman_64f(const Kel64f* pSrc, Kel64f* pDst, int len, Kel32f alpha);
KELAPI KelStatus kelsWinBlackman_64f_I(Kel64f* pSrcDst, int len, Kel32f alpha);
KELAPI KelStatus kelsWinBlackman_64fc(const Kel64fc* pSrc, Kel64fc* pDst, int len, Kel32f alpha);
KELAPI KelStatus kelsWinBlackman_64fc_I(Kel64fc* pSrcDst, int len, Kel32f alpha);
KELAPI KelStatus kelsWinBlackmanQ15_16s(const Kel16s* pSrc, Kel16s* pDst, int len, int alphaQ15);
KELAPI KelStatus kelsWinBlackmanQ15_16s_I(Kel16s* pSrcDst, int len, int alphaQ15);
KELAPI KelStatus kelsWinBlackmanQ15_16sc(const Kel16sc* pSrc, Kel16sc* pDst, int len, int alphaQ15);
KELAPI KelStatus kelsWinBlackmanQ15_16sc_I(Kel16sc* pSrcDst, int len, int alphaQ15);
KELAPI KelStatus kelsWinKaiser_16s(const Kel16s* pSrc, Kel16s* pDst, int len, Kel32f alpha);
KELAPI KelStatus kelsWinKaiser_16s_I(Kel16s* pSrcDst, int len, Kel32f alpha);
KELAPI KelStatus kelsWinKaiser_16sc(const Kel16sc* pSrc, Kel16sc* pDst, int len, Kel32f alpha);
KELAPI KelStatus kelsWinKaiser_16sc_I(Kel16sc* pSrcDst, int len, Kel32f alpha);
KELAPI KelStatus kelsWinKaiser_32f(const Kel32f* pSrc, Kel32f* pDst, int len, Kel32f alpha);
KELAPI KelStatus kelsWinKaiser_32f_I(Kel32f* pSrcDst, int len, Kel32f alpha);
KELAPI KelStatus kelsWinKaiser_32fc(const Kel32fc* pSrc, Kel32fc* pDst, int len, Kel32f alpha);
KELAPI KelStatus kelsWinKaiser_32fc_I(Kel32fc* pSrcDst, int len, Kel32f alpha);
KELAPI KelStatus kelsWinKaiser_64f(const Kel64f* pSrc, Kel64f* pDst, int len, Kel32f alpha);
KELAPI KelStatus kelsWinKaiser_64f_I(Kel64f* pSrcDst, int len, Kel32f alpha);
KELAPI KelStatus kelsWinKaiser_64fc(const Kel64fc* pSrc, Kel64fc* pDst, int len, Kel32f alpha);
KELAPI KelStatus kelsWinKaiser_64fc_I(Kel64fc* pSrcDst, int len, Kel32f alpha);
KELAPI KelStatus kelsWinKaiserQ15_16s(const Kel16s* pSrc, Kel16s* pDst, int len, int alphaQ15);
KELAPI KelStatus kelsWinKaiserQ15_16s_I(Kel16s* pSrcDst, int len, int alphaQ15);
KELAPI KelStatus kelsWinKaiserQ15_16sc(const Kel16sc* pSrc, Kel16sc* pDst, int len, int alphaQ15);
KELAPI KelStatus kelsWinKaiserQ15_16sc_I(Kel16sc* pSrcDst, int len, int alphaQ15);
/* In place, result scaled by 2^-scaleFactor before rounding and saturation. */
KELAPI KelStatus kelsWinBlackmanQ15_16s_ISfs(Kel16s* pSrcDst, int len, int alphaQ15, int scaleFactor);

/* ---- Tone and triangle. *pPhase (radians, [0, 2pi)) is the phase of the first
 * sample; it is replaced by the phase of the sample after the last one. The
 * parameters are checked before the destination. Complex forms: the imaginary
 * part is the same wave a quarter period later (a sine for the tone). */
KELAPI KelStatus kelsTone_Direct_16s(Kel16s* pDst, int len, Kel32f magn, Kel32f rFreq, Kel32f* pPhase);
KELAPI KelStatus kelsTone_Direct_16sc(Kel16sc* pDst, int len, Kel32f magn, Kel32f rFreq, Kel32f* pPhase);
KELAPI KelStatus kelsTone_Direct_32f(Kel32f* pDst, int len, Kel32f magn, Kel32f rFreq, Kel32f* pPhase);
KELAPI KelStatus kelsTone_Direct_32fc(Kel32fc* pDst, int len, Kel32f magn, Kel32f rFreq, Kel32f* pPhase);
KELAPI KelStatus kelsTone_Direct_64f(Kel64f* pDst, int len, Kel64f magn, Kel64f rFreq, Kel64f* pPhase);
KELAPI KelStatus kelsTone_Direct_64fc(Kel64fc* pDst, int len, Kel64f magn, Kel64f rFreq, Kel64f* pPhase);
KELAPI KelStatus kelsTriangle_Direct_16s(Kel16s* pDst, int len, Kel32f magn, Kel32f rFreq, Kel32f asym, Kel32f* pPhase);
KELAPI KelStatus kelsTriangle_Direct_16sc(Kel16sc* pDst, int len, Kel32f magn, Kel32f rFreq, Kel32f asym, Kel32f* pPhase);
KELAPI KelStatus kelsTriangle_Direct_32f(Kel32f* pDst, int len, Kel32f magn, Kel32f rFreq, Kel32f asym, Kel32f* pPhase);
KELAPI KelStatus kelsTriangle_Direct_32fc(Kel32fc* pDst, int len, Kel32f magn, Kel32f rFreq, Kel32f asym, Kel32f* pPhase);
KELAPI KelStatus kelsTriangle_Direct_64f(Kel64f* pDst, int len, Kel64f magn, Kel64f rFreq, Kel64f asym, Kel64f* pPhase);
KELAPI KelStatus kelsTriangle_Direct_64fc(Kel64fc* pDst, int len, Kel64f magn, Kel64f rFreq, Kel64f asym, Kel64f* pPhase);
/* Q15 forms: rFreqQ15 in [0, 16384), phaseQ15 in [0, 205887), asymQ15 in
 * [-102943, 102943], magn >= 1; samples rounded half away from zero. */
KELAPI KelStatus kelsToneQ15_Direct_16s(Kel16s* pDst, int len, Kel16s magn, Kel16s rFreqQ15, Kel32s phaseQ15);
KELAPI KelStatus kelsToneGetStateSizeQ15_16s(int* pStateSize);
KELAPI KelStatus kelsToneInitQ15_16s(KelsToneState_16s* pState, Kel16s magn, Kel16s rFreqQ15, Kel32s phaseQ15);
KELAPI KelStatus kelsToneInitAllocQ15_16s(KelsToneState_16s** ppState, Kel16s magn, Kel16s rFreqQ15, Kel32s phaseQ15);
KELAPI KelStatus kelsToneQ15_16s(Kel16s* pDst, int len, KelsToneState_16s* pState);
KELAPI KelStatus kelsToneFree(KelsToneState_16s* pState);
KELAPI KelStatus kelsTriangleQ15_Direct_16s(Kel16s* pDst, int len, Kel16s magn, Kel16s rFreqQ15, Kel32s asymQ15, Kel32s phaseQ15);
KELAPI KelStatus kelsTriangleGetStateSizeQ15_16s(int* pStateSize);
KELAPI KelStatus kelsTriangleInitQ15_16s(KelsTriangleState_16s* pState, Kel16s magn, Kel16s rFreqQ15, Kel32s asymQ15, Kel32s phaseQ15);
KELAPI KelStatus kelsTriangleInitAllocQ15_16s(KelsTriangleState_16s** ppState, Kel16s magn, Kel16s rFreqQ15, Kel32s asymQ15, Kel32s phaseQ15);
KELAPI KelStatus kelsTriangleQ15_16s(Kel16s* pDst, int len, KelsTriangleState_16s* pState);
KELAPI KelStatus kelsTriangleFree(KelsTriangleState_16s* pState);

/* ---- Random numbers. _Direct forms restart the generator from *pSeed and
 * write the last subtract-with-borrow word back to it; state forms continue
 * one stream across calls. Integer outputs are rounded to nearest, ties away
 * from zero, and saturated. */
KELAPI KelStatus kelsRandUniform_Direct_16s(Kel16s* pDst, int len, Kel16s low, Kel16s high, unsigned int* pSeed);
KELAPI KelStatus kelsRandUniform_Direct_32f(Kel32f* pDst, int len, Kel32f low, Kel32f high, unsigned int* pSeed);
KELAPI KelStatus kelsRandUniform_Direct_64f(Kel64f* pDst, int len, Kel64f low, Kel64f high, unsigned int* pSeed);
KELAPI KelStatus kelsRandGauss_Direct_16s(Kel16s* pDst, int len, Kel16s mean, Kel16s stdDev, unsigned int* pSeed);
KELAPI KelStatus kelsRandGauss_Direct_32f(Kel32f* pDst, int len, Kel32f mean, Kel32f stdDev, unsigned int* pSeed);
KELAPI KelStatus kelsRandGauss_Direct_64f(Kel64f* pDst, int len, Kel64f mean, Kel64f stdDev, unsigned int* pSeed);
KELAPI KelStatus kelsRandUniformInitAlloc_8u(KelsRandUniState_8u** ppState, Kel8u low, Kel8u high, unsigned int seed);
KELAPI KelStatus kelsRandUniformInitAlloc_16s(KelsRandUniState_16s** ppState, Kel16s low, Kel16s high, unsigned int seed);
KELAPI KelStatus kelsRandUniformInitAlloc_32f(KelsRandUniState_32f** ppState, Kel32f low, Kel32f high, unsigned int seed);
KELAPI KelStatus kelsRandUniformGetSize_16s(int* pStateSize);
KELAPI KelStatus kelsRandUniformInit_16s(KelsRandUniState_16s* pState, Kel16s low, Kel16s high, unsigned int seed);
KELAPI KelStatus kelsRandUniform_8u(Kel8u* pDst, int len, KelsRandUniState_8u* pState);
KELAPI KelStatus kelsRandUniform_16s(Kel16s* pDst, int len, KelsRandUniState_16s* pState);
KELAPI KelStatus kelsRandUniform_32f(Kel32f* pDst, int len, KelsRandUniState_32f* pState);
KELAPI KelStatus kelsRandUniformFree_8u(KelsRandUniState_8u* pState);
KELAPI KelStatus kelsRandUniformFree_16s(KelsRandUniState_16s* pState);
KELAPI KelStatus kelsRandUniformFree_32f(KelsRandUniState_32f* pState);
KELAPI KelStatus kelsRandGaussInitAlloc_8u(KelsRandGaussState_8u** ppState, Kel8u mean, Kel8u stdDev, unsigned int seed);
KELAPI KelStatus kelsRandGaussInitAlloc_16s(KelsRandGaussState_16s** ppState, Kel16s mean, Kel16s stdDev, unsigned int seed);
KELAPI KelStatus kelsRandGaussInitAlloc_32f(KelsRandGaussState_32f** ppState, Kel32f mean, Kel32f stdDev, unsigned int seed);
KELAPI KelStatus kelsRandGaussGetSize_16s(int* pStateSize);
KELAPI KelStatus kelsRandGaussInit_16s(KelsRandGaussState_16s* pState, Kel16s mean, Kel16s stdDev, unsigned int seed);
KELAPI KelStatus kelsRandGauss_8u(Kel8u* pDst, int len, KelsRandGaussState_8u* pState);
KELAPI KelStatus kelsRandGauss_16s(Kel16s* pDst, int len, KelsRandGaussState_16s* pState);
KELAPI KelStatus kelsRandGauss_32f(Kel32f* pDst, int len, KelsRandGaussState_32f* pState);
KELAPI KelStatus kelsRandGaussFree_8u(KelsRandGaussState_8u* pState);
KELAPI KelStatus kelsRandGaussFree_16s(KelsRandGaussState_16s* pState);
KELAPI KelStatus kelsRandGaussFree_32f(KelsRandGaussState_32f* pState);

/* ---- Ramp: offset + slope * n. Jaehne: magn * sin(pi/2 * n^2 / len); the
 * unsigned forms map the signal's range onto 0..magn. */
KELAPI KelStatus kelsVectorRamp_8u(Kel8u* pDst, int len, Kel32f offset, Kel32f slope);
KELAPI KelStatus kelsVectorRamp_8s(Kel8s* pDst, int len, Kel32f offset, Kel32f slope);
KELAPI KelStatus kelsVectorRamp_16u(Kel16u* pDst, int len, Kel32f offset, Kel32f slope);
KELAPI KelStatus kelsVectorRamp_16s(Kel16s* pDst, int len, Kel32f offset, Kel32f slope);
KELAPI KelStatus kelsVectorRamp_32u(Kel32u* pDst, int len, Kel32f offset, Kel32f slope);
KELAPI KelStatus kelsVectorRamp_32s(Kel32s* pDst, int len, Kel32f offset, Kel32f slope);
KELAPI KelStatus kelsVectorRamp_32f(Kel32f* pDst, int len, Kel32f offset, Kel32f slope);
KELAPI KelStatus kelsVectorRamp_64f(Kel64f* pDst, int len, Kel32f offset, Kel32f slope);
KELAPI KelStatus kelsVectorJaehne_8u(Kel8u* pDst, int len, Kel8u magn);
KELAPI KelStatus kelsVectorJaehne_8s(Kel8s* pDst, int len, Kel8s magn);
KELAPI KelStatus kelsVectorJaehne_16u(Kel16u* pDst, int len, Kel16u magn);
KELAPI KelStatus kelsVectorJaehne_16s(Kel16s* pDst, int len, Kel16s magn);
KELAPI KelStatus kelsVectorJaehne_32u(Kel32u* pDst, int len, Kel32u magn);
KELAPI KelStatus kelsVectorJaehne_32s(Kel32s* pDst, int len, Kel32s magn);
KELAPI KelStatus kelsVectorJaehne_32f(Kel32f* pDst, int len, Kel32f magn);
KELAPI KelStatus kelsVectorJaehne_64f(Kel64f* pDst, int len, Kel64f magn);

/* @decls-speech */
/* ---- G.711 companding (codes are bytes; 32f samples are scaled by 2^-15). */
KELAPI KelStatus kelsALawToLin_8u16s(const Kel8u* pSrc, Kel16s* pDst, int len);
KELAPI KelStatus kelsALawToLin_8u32f(const Kel8u* pSrc, Kel32f* pDst, int len);
KELAPI KelStatus kelsMuLawToLin_8u16s(const Kel8u* pSrc, Kel16s* pDst, int len);
KELAPI KelStatus kelsMuLawToLin_8u32f(const Kel8u* pSrc, Kel32f* pDst, int len);
KELAPI KelStatus kelsLinToALaw_16s8u(const Kel16s* pSrc, Kel8u* pDst, int len);
KELAPI KelStatus kelsLinToALaw_32f8u(const Kel32f* pSrc, Kel8u* pDst, int len);
KELAPI KelStatus kelsLinToMuLaw_16s8u(const Kel16s* pSrc, Kel8u* pDst, int len);
KELAPI KelStatus kelsLinToMuLaw_32f8u(const Kel32f* pSrc, Kel8u* pDst, int len);
KELAPI KelStatus kelsALawToMuLaw_8u(const Kel8u* pSrc, Kel8u* pDst, int len);
KELAPI KelStatus kelsMuLawToALaw_8u(const Kel8u* pSrc, Kel8u* pDst, int len);

#ifdef __cplusplus
}
#endif

#endif /* KELS_H */
