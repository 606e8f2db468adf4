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

/* @decls-iir */

/* @decls-generate */

/* @decls-speech */

#ifdef __cplusplus
}
#endif

#endif /* KELS_H */
