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
/* ======================================================================
 * Arithmetic: Add, Sub, Mul, Div; C = constant operand, CRev = constant on
 * the left, _I = in place, Sfs = integer result times 2^-scaleFactor,
 * rounded to nearest even and saturated. Sub and Div take the right
 * operand first: kelsSub(pSrc1, pSrc2, pDst) writes pSrc2 - pSrc1 and
 * kelsDiv writes pSrc2 / pSrc1. Vector division by a zero element returns
 * kelStsDivByZeroWarn with a complete result; a zero constant divisor
 * returns kelStsDivByZero. The 16u scaled forms test the scale factor
 * before the pointers (see docs/interface-notes.md).
 * ====================================================================== */
KELAPI KelStatus kelsAdd_16s(const Kel16s* pSrc1, const Kel16s* pSrc2, Kel16s* pDst, int len);
KELAPI KelStatus kelsAdd_16s32f(const Kel16s* pSrc1, const Kel16s* pSrc2, Kel32f* pDst, int len);
KELAPI KelStatus kelsAdd_16s32s_I(const Kel16s* pSrc, Kel32s* pSrcDst, int len);
KELAPI KelStatus kelsAdd_16s_I(const Kel16s* pSrc, Kel16s* pSrcDst, int len);
KELAPI KelStatus kelsAdd_16s_ISfs(const Kel16s* pSrc, Kel16s* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsAdd_16s_Sfs(const Kel16s* pSrc1, const Kel16s* pSrc2, Kel16s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsAdd_16sc_ISfs(const Kel16sc* pSrc, Kel16sc* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsAdd_16sc_Sfs(const Kel16sc* pSrc1, const Kel16sc* pSrc2, Kel16sc* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsAdd_16u(const Kel16u* pSrc1, const Kel16u* pSrc2, Kel16u* pDst, int len);
KELAPI KelStatus kelsAdd_16u_ISfs(const Kel16u* pSrc, Kel16u* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsAdd_16u_Sfs(const Kel16u* pSrc1, const Kel16u* pSrc2, Kel16u* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsAdd_32f(const Kel32f* pSrc1, const Kel32f* pSrc2, Kel32f* pDst, int len);
KELAPI KelStatus kelsAdd_32f_I(const Kel32f* pSrc, Kel32f* pSrcDst, int len);
KELAPI KelStatus kelsAdd_32fc(const Kel32fc* pSrc1, const Kel32fc* pSrc2, Kel32fc* pDst, int len);
KELAPI KelStatus kelsAdd_32fc_I(const Kel32fc* pSrc, Kel32fc* pSrcDst, int len);
KELAPI KelStatus kelsAdd_32s_ISfs(const Kel32s* pSrc, Kel32s* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsAdd_32s_Sfs(const Kel32s* pSrc1, const Kel32s* pSrc2, Kel32s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsAdd_32sc_ISfs(const Kel32sc* pSrc, Kel32sc* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsAdd_32sc_Sfs(const Kel32sc* pSrc1, const Kel32sc* pSrc2, Kel32sc* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsAdd_32u(const Kel32u* pSrc1, const Kel32u* pSrc2, Kel32u* pDst, int len);
KELAPI KelStatus kelsAdd_64f(const Kel64f* pSrc1, const Kel64f* pSrc2, Kel64f* pDst, int len);
KELAPI KelStatus kelsAdd_64f_I(const Kel64f* pSrc, Kel64f* pSrcDst, int len);
KELAPI KelStatus kelsAdd_64fc(const Kel64fc* pSrc1, const Kel64fc* pSrc2, Kel64fc* pDst, int len);
KELAPI KelStatus kelsAdd_64fc_I(const Kel64fc* pSrc, Kel64fc* pSrcDst, int len);
KELAPI KelStatus kelsAdd_8u16u(const Kel8u* pSrc1, const Kel8u* pSrc2, Kel16u* pDst, int len);
KELAPI KelStatus kelsAdd_8u_ISfs(const Kel8u* pSrc, Kel8u* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsAdd_8u_Sfs(const Kel8u* pSrc1, const Kel8u* pSrc2, Kel8u* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsAddC_16s_I(Kel16s val, Kel16s* pSrcDst, int len);
KELAPI KelStatus kelsAddC_16s_ISfs(Kel16s val, Kel16s* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsAddC_16s_Sfs(const Kel16s* pSrc, Kel16s val, Kel16s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsAddC_16sc_ISfs(Kel16sc val, Kel16sc* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsAddC_16sc_Sfs(const Kel16sc* pSrc, Kel16sc val, Kel16sc* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsAddC_16u_ISfs(Kel16u val, Kel16u* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsAddC_16u_Sfs(const Kel16u* pSrc, Kel16u val, Kel16u* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsAddC_32f(const Kel32f* pSrc, Kel32f val, Kel32f* pDst, int len);
KELAPI KelStatus kelsAddC_32f_I(Kel32f val, Kel32f* pSrcDst, int len);
KELAPI KelStatus kelsAddC_32fc(const Kel32fc* pSrc, Kel32fc val, Kel32fc* pDst, int len);
KELAPI KelStatus kelsAddC_32fc_I(Kel32fc val, Kel32fc* pSrcDst, int len);
KELAPI KelStatus kelsAddC_32s_ISfs(Kel32s val, Kel32s* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsAddC_32s_Sfs(const Kel32s* pSrc, Kel32s val, Kel32s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsAddC_32sc_ISfs(Kel32sc val, Kel32sc* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsAddC_32sc_Sfs(const Kel32sc* pSrc, Kel32sc val, Kel32sc* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsAddC_64f(const Kel64f* pSrc, Kel64f val, Kel64f* pDst, int len);
KELAPI KelStatus kelsAddC_64f_I(Kel64f val, Kel64f* pSrcDst, int len);
KELAPI KelStatus kelsAddC_64fc(const Kel64fc* pSrc, Kel64fc val, Kel64fc* pDst, int len);
KELAPI KelStatus kelsAddC_64fc_I(Kel64fc val, Kel64fc* pSrcDst, int len);
KELAPI KelStatus kelsAddC_8u_ISfs(Kel8u val, Kel8u* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsAddC_8u_Sfs(const Kel8u* pSrc, Kel8u val, Kel8u* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsSub_16s(const Kel16s* pSrc1, const Kel16s* pSrc2, Kel16s* pDst, int len);
KELAPI KelStatus kelsSub_16s32f(const Kel16s* pSrc1, const Kel16s* pSrc2, Kel32f* pDst, int len);
KELAPI KelStatus kelsSub_16s_I(const Kel16s* pSrc, Kel16s* pSrcDst, int len);
KELAPI KelStatus kelsSub_16s_ISfs(const Kel16s* pSrc, Kel16s* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsSub_16s_Sfs(const Kel16s* pSrc1, const Kel16s* pSrc2, Kel16s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsSub_16sc_ISfs(const Kel16sc* pSrc, Kel16sc* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsSub_16sc_Sfs(const Kel16sc* pSrc1, const Kel16sc* pSrc2, Kel16sc* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsSub_16u_ISfs(const Kel16u* pSrc, Kel16u* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsSub_16u_Sfs(const Kel16u* pSrc1, const Kel16u* pSrc2, Kel16u* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsSub_32f(const Kel32f* pSrc1, const Kel32f* pSrc2, Kel32f* pDst, int len);
KELAPI KelStatus kelsSub_32f_I(const Kel32f* pSrc, Kel32f* pSrcDst, int len);
KELAPI KelStatus kelsSub_32fc(const Kel32fc* pSrc1, const Kel32fc* pSrc2, Kel32fc* pDst, int len);
KELAPI KelStatus kelsSub_32fc_I(const Kel32fc* pSrc, Kel32fc* pSrcDst, int len);
KELAPI KelStatus kelsSub_32s_ISfs(const Kel32s* pSrc, Kel32s* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsSub_32s_Sfs(const Kel32s* pSrc1, const Kel32s* pSrc2, Kel32s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsSub_32sc_ISfs(const Kel32sc* pSrc, Kel32sc* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsSub_32sc_Sfs(const Kel32sc* pSrc1, const Kel32sc* pSrc2, Kel32sc* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsSub_64f(const Kel64f* pSrc1, const Kel64f* pSrc2, Kel64f* pDst, int len);
KELAPI KelStatus kelsSub_64f_I(const Kel64f* pSrc, Kel64f* pSrcDst, int len);
KELAPI KelStatus kelsSub_64fc(const Kel64fc* pSrc1, const Kel64fc* pSrc2, Kel64fc* pDst, int len);
KELAPI KelStatus kelsSub_64fc_I(const Kel64fc* pSrc, Kel64fc* pSrcDst, int len);
KELAPI KelStatus kelsSub_8u_ISfs(const Kel8u* pSrc, Kel8u* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsSub_8u_Sfs(const Kel8u* pSrc1, const Kel8u* pSrc2, Kel8u* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsSubC_16s_I(Kel16s val, Kel16s* pSrcDst, int len);
KELAPI KelStatus kelsSubC_16s_ISfs(Kel16s val, Kel16s* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsSubC_16s_Sfs(const Kel16s* pSrc, Kel16s val, Kel16s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsSubC_16sc_ISfs(Kel16sc val, Kel16sc* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsSubC_16sc_Sfs(const Kel16sc* pSrc, Kel16sc val, Kel16sc* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsSubC_16u_ISfs(Kel16u val, Kel16u* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsSubC_16u_Sfs(const Kel16u* pSrc, Kel16u val, Kel16u* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsSubC_32f(const Kel32f* pSrc, Kel32f val, Kel32f* pDst, int len);
KELAPI KelStatus kelsSubC_32f_I(Kel32f val, Kel32f* pSrcDst, int len);
KELAPI KelStatus kelsSubC_32fc(const Kel32fc* pSrc, Kel32fc val, Kel32fc* pDst, int len);
KELAPI KelStatus kelsSubC_32fc_I(Kel32fc val, Kel32fc* pSrcDst, int len);
KELAPI KelStatus kelsSubC_32s_ISfs(Kel32s val, Kel32s* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsSubC_32s_Sfs(const Kel32s* pSrc, Kel32s val, Kel32s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsSubC_32sc_ISfs(Kel32sc val, Kel32sc* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsSubC_32sc_Sfs(const Kel32sc* pSrc, Kel32sc val, Kel32sc* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsSubC_64f(const Kel64f* pSrc, Kel64f val, Kel64f* pDst, int len);
KELAPI KelStatus kelsSubC_64f_I(Kel64f val, Kel64f* pSrcDst, int len);
KELAPI KelStatus kelsSubC_64fc(const Kel64fc* pSrc, Kel64fc val, Kel64fc* pDst, int len);
KELAPI KelStatus kelsSubC_64fc_I(Kel64fc val, Kel64fc* pSrcDst, int len);
KELAPI KelStatus kelsSubC_8u_ISfs(Kel8u val, Kel8u* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsSubC_8u_Sfs(const Kel8u* pSrc, Kel8u val, Kel8u* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsSubCRev_16s_ISfs(Kel16s val, Kel16s* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsSubCRev_16s_Sfs(const Kel16s* pSrc, Kel16s val, Kel16s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsSubCRev_16sc_ISfs(Kel16sc val, Kel16sc* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsSubCRev_16sc_Sfs(const Kel16sc* pSrc, Kel16sc val, Kel16sc* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsSubCRev_16u_ISfs(Kel16u val, Kel16u* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsSubCRev_16u_Sfs(const Kel16u* pSrc, Kel16u val, Kel16u* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsSubCRev_32f(const Kel32f* pSrc, Kel32f val, Kel32f* pDst, int len);
KELAPI KelStatus kelsSubCRev_32f_I(Kel32f val, Kel32f* pSrcDst, int len);
KELAPI KelStatus kelsSubCRev_32fc(const Kel32fc* pSrc, Kel32fc val, Kel32fc* pDst, int len);
KELAPI KelStatus kelsSubCRev_32fc_I(Kel32fc val, Kel32fc* pSrcDst, int len);
KELAPI KelStatus kelsSubCRev_32s_ISfs(Kel32s val, Kel32s* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsSubCRev_32s_Sfs(const Kel32s* pSrc, Kel32s val, Kel32s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsSubCRev_32sc_ISfs(Kel32sc val, Kel32sc* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsSubCRev_32sc_Sfs(const Kel32sc* pSrc, Kel32sc val, Kel32sc* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsSubCRev_64f(const Kel64f* pSrc, Kel64f val, Kel64f* pDst, int len);
KELAPI KelStatus kelsSubCRev_64f_I(Kel64f val, Kel64f* pSrcDst, int len);
KELAPI KelStatus kelsSubCRev_64fc(const Kel64fc* pSrc, Kel64fc val, Kel64fc* pDst, int len);
KELAPI KelStatus kelsSubCRev_64fc_I(Kel64fc val, Kel64fc* pSrcDst, int len);
KELAPI KelStatus kelsSubCRev_8u_ISfs(Kel8u val, Kel8u* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsSubCRev_8u_Sfs(const Kel8u* pSrc, Kel8u val, Kel8u* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsMul_16s(const Kel16s* pSrc1, const Kel16s* pSrc2, Kel16s* pDst, int len);
KELAPI KelStatus kelsMul_16s32f(const Kel16s* pSrc1, const Kel16s* pSrc2, Kel32f* pDst, int len);
KELAPI KelStatus kelsMul_16s32s_Sfs(const Kel16s* pSrc1, const Kel16s* pSrc2, Kel32s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsMul_16s_I(const Kel16s* pSrc, Kel16s* pSrcDst, int len);
KELAPI KelStatus kelsMul_16s_ISfs(const Kel16s* pSrc, Kel16s* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsMul_16s_Sfs(const Kel16s* pSrc1, const Kel16s* pSrc2, Kel16s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsMul_16sc_ISfs(const Kel16sc* pSrc, Kel16sc* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsMul_16sc_Sfs(const Kel16sc* pSrc1, const Kel16sc* pSrc2, Kel16sc* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsMul_16u16s_Sfs(const Kel16u* pSrc1, const Kel16s* pSrc2, Kel16s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsMul_16u_ISfs(const Kel16u* pSrc, Kel16u* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsMul_16u_Sfs(const Kel16u* pSrc1, const Kel16u* pSrc2, Kel16u* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsMul_32f(const Kel32f* pSrc1, const Kel32f* pSrc2, Kel32f* pDst, int len);
KELAPI KelStatus kelsMul_32f32fc(const Kel32f* pSrc1, const Kel32fc* pSrc2, Kel32fc* pDst, int len);
KELAPI KelStatus kelsMul_32f32fc_I(const Kel32f* pSrc, Kel32fc* pSrcDst, int len);
KELAPI KelStatus kelsMul_32f_I(const Kel32f* pSrc, Kel32f* pSrcDst, int len);
KELAPI KelStatus kelsMul_32fc(const Kel32fc* pSrc1, const Kel32fc* pSrc2, Kel32fc* pDst, int len);
KELAPI KelStatus kelsMul_32fc_I(const Kel32fc* pSrc, Kel32fc* pSrcDst, int len);
KELAPI KelStatus kelsMul_32s32sc_ISfs(const Kel32s* pSrc, Kel32sc* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsMul_32s32sc_Sfs(const Kel32s* pSrc1, const Kel32sc* pSrc2, Kel32sc* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsMul_32s_ISfs(const Kel32s* pSrc, Kel32s* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsMul_32s_Sfs(const Kel32s* pSrc1, const Kel32s* pSrc2, Kel32s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsMul_32sc_ISfs(const Kel32sc* pSrc, Kel32sc* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsMul_32sc_Sfs(const Kel32sc* pSrc1, const Kel32sc* pSrc2, Kel32sc* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsMul_64f(const Kel64f* pSrc1, const Kel64f* pSrc2, Kel64f* pDst, int len);
KELAPI KelStatus kelsMul_64f_I(const Kel64f* pSrc, Kel64f* pSrcDst, int len);
KELAPI KelStatus kelsMul_64fc(const Kel64fc* pSrc1, const Kel64fc* pSrc2, Kel64fc* pDst, int len);
KELAPI KelStatus kelsMul_64fc_I(const Kel64fc* pSrc, Kel64fc* pSrcDst, int len);
KELAPI KelStatus kelsMul_8u16u(const Kel8u* pSrc1, const Kel8u* pSrc2, Kel16u* pDst, int len);
KELAPI KelStatus kelsMul_8u_ISfs(const Kel8u* pSrc, Kel8u* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsMul_8u_Sfs(const Kel8u* pSrc1, const Kel8u* pSrc2, Kel8u* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsMul_Low_32s_Sfs(const Kel32s* pSrc1, const Kel32s* pSrc2, Kel32s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsMulC_16s_I(Kel16s val, Kel16s* pSrcDst, int len);
KELAPI KelStatus kelsMulC_16s_ISfs(Kel16s val, Kel16s* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsMulC_16s_Sfs(const Kel16s* pSrc, Kel16s val, Kel16s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsMulC_16sc_ISfs(Kel16sc val, Kel16sc* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsMulC_16sc_Sfs(const Kel16sc* pSrc, Kel16sc val, Kel16sc* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsMulC_16u_ISfs(Kel16u val, Kel16u* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsMulC_16u_Sfs(const Kel16u* pSrc, Kel16u val, Kel16u* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsMulC_32f(const Kel32f* pSrc, Kel32f val, Kel32f* pDst, int len);
KELAPI KelStatus kelsMulC_32f16s_Sfs(const Kel32f* pSrc, Kel32f val, Kel16s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsMulC_32f_I(Kel32f val, Kel32f* pSrcDst, int len);
KELAPI KelStatus kelsMulC_32fc(const Kel32fc* pSrc, Kel32fc val, Kel32fc* pDst, int len);
KELAPI KelStatus kelsMulC_32fc_I(Kel32fc val, Kel32fc* pSrcDst, int len);
KELAPI KelStatus kelsMulC_32s_ISfs(Kel32s val, Kel32s* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsMulC_32s_Sfs(const Kel32s* pSrc, Kel32s val, Kel32s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsMulC_32sc_ISfs(Kel32sc val, Kel32sc* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsMulC_32sc_Sfs(const Kel32sc* pSrc, Kel32sc val, Kel32sc* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsMulC_64f(const Kel64f* pSrc, Kel64f val, Kel64f* pDst, int len);
KELAPI KelStatus kelsMulC_64f_I(Kel64f val, Kel64f* pSrcDst, int len);
KELAPI KelStatus kelsMulC_64fc(const Kel64fc* pSrc, Kel64fc val, Kel64fc* pDst, int len);
KELAPI KelStatus kelsMulC_64fc_I(Kel64fc val, Kel64fc* pSrcDst, int len);
KELAPI KelStatus kelsMulC_8u_ISfs(Kel8u val, Kel8u* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsMulC_8u_Sfs(const Kel8u* pSrc, Kel8u val, Kel8u* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsMulC_Low_32f16s(const Kel32f* pSrc, Kel32f val, Kel16s* pDst, int len);
KELAPI KelStatus kelsDiv_16s_ISfs(const Kel16s* pSrc, Kel16s* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsDiv_16s_Sfs(const Kel16s* pSrc1, const Kel16s* pSrc2, Kel16s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsDiv_16sc_ISfs(const Kel16sc* pSrc, Kel16sc* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsDiv_16sc_Sfs(const Kel16sc* pSrc1, const Kel16sc* pSrc2, Kel16sc* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsDiv_16u_ISfs(const Kel16u* pSrc, Kel16u* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsDiv_16u_Sfs(const Kel16u* pSrc1, const Kel16u* pSrc2, Kel16u* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsDiv_32f(const Kel32f* pSrc1, const Kel32f* pSrc2, Kel32f* pDst, int len);
KELAPI KelStatus kelsDiv_32f_I(const Kel32f* pSrc, Kel32f* pSrcDst, int len);
KELAPI KelStatus kelsDiv_32fc(const Kel32fc* pSrc1, const Kel32fc* pSrc2, Kel32fc* pDst, int len);
KELAPI KelStatus kelsDiv_32fc_I(const Kel32fc* pSrc, Kel32fc* pSrcDst, int len);
KELAPI KelStatus kelsDiv_32s16s_Sfs(const Kel16s* pSrc1, const Kel32s* pSrc2, Kel16s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsDiv_32s_ISfs(const Kel32s* pSrc, Kel32s* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsDiv_32s_Sfs(const Kel32s* pSrc1, const Kel32s* pSrc2, Kel32s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsDiv_64f(const Kel64f* pSrc1, const Kel64f* pSrc2, Kel64f* pDst, int len);
KELAPI KelStatus kelsDiv_64f_I(const Kel64f* pSrc, Kel64f* pSrcDst, int len);
KELAPI KelStatus kelsDiv_64fc(const Kel64fc* pSrc1, const Kel64fc* pSrc2, Kel64fc* pDst, int len);
KELAPI KelStatus kelsDiv_64fc_I(const Kel64fc* pSrc, Kel64fc* pSrcDst, int len);
KELAPI KelStatus kelsDiv_8u_ISfs(const Kel8u* pSrc, Kel8u* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsDiv_8u_Sfs(const Kel8u* pSrc1, const Kel8u* pSrc2, Kel8u* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsDivC_16s_ISfs(Kel16s val, Kel16s* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsDivC_16s_Sfs(const Kel16s* pSrc, Kel16s val, Kel16s* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsDivC_16sc_ISfs(Kel16sc val, Kel16sc* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsDivC_16sc_Sfs(const Kel16sc* pSrc, Kel16sc val, Kel16sc* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsDivC_16u_ISfs(Kel16u val, Kel16u* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsDivC_16u_Sfs(const Kel16u* pSrc, Kel16u val, Kel16u* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsDivC_32f(const Kel32f* pSrc, Kel32f val, Kel32f* pDst, int len);
KELAPI KelStatus kelsDivC_32f_I(Kel32f val, Kel32f* pSrcDst, int len);
KELAPI KelStatus kelsDivC_32fc(const Kel32fc* pSrc, Kel32fc val, Kel32fc* pDst, int len);
KELAPI KelStatus kelsDivC_32fc_I(Kel32fc val, Kel32fc* pSrcDst, int len);
KELAPI KelStatus kelsDivC_64f(const Kel64f* pSrc, Kel64f val, Kel64f* pDst, int len);
KELAPI KelStatus kelsDivC_64f_I(Kel64f val, Kel64f* pSrcDst, int len);
KELAPI KelStatus kelsDivC_64fc(const Kel64fc* pSrc, Kel64fc val, Kel64fc* pDst, int len);
KELAPI KelStatus kelsDivC_64fc_I(Kel64fc val, Kel64fc* pSrcDst, int len);
KELAPI KelStatus kelsDivC_8u_ISfs(Kel8u val, Kel8u* pSrcDst, int len, int scaleFactor);
KELAPI KelStatus kelsDivC_8u_Sfs(const Kel8u* pSrc, Kel8u val, Kel8u* pDst, int len, int scaleFactor);
KELAPI KelStatus kelsDivCRev_16u(const Kel16u* pSrc, Kel16u val, Kel16u* pDst, int len);
KELAPI KelStatus kelsDivCRev_16u_I(Kel16u val, Kel16u* pSrcDst, int len);
KELAPI KelStatus kelsDivCRev_32f(const Kel32f* pSrc, Kel32f val, Kel32f* pDst, int len);
KELAPI KelStatus kelsDivCRev_32f_I(Kel32f val, Kel32f* pSrcDst, int len);

/* @decls-conversion */

/* @decls-logic */

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
