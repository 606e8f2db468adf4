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

/* @decls-logic */

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

/* @decls-fir */

/* @decls-iir */

/* @decls-generate */

/* @decls-speech */

#ifdef __cplusplus
}
#endif

#endif /* KELS_H */
