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

/* @decls-speech */

#ifdef __cplusplus
}
#endif

#endif /* KELS_H */
