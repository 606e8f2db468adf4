/*
 * kelstypes.h: element types, status codes, record types and flags of the
 * kels signal-processing library.
 */
#ifndef KELSTYPES_H
#define KELSTYPES_H

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Element types -------------------------------------------------------
 * A complex value is its real part followed by its imaginary part, no gap. */
typedef unsigned char      Kel8u;
typedef signed char        Kel8s;
typedef unsigned short     Kel16u;
typedef short              Kel16s;
typedef unsigned int       Kel32u;
typedef int                Kel32s;
typedef long long          Kel64s;
typedef unsigned long long Kel64u;
typedef float              Kel32f;
typedef double             Kel64f;

typedef struct { Kel8s  re; Kel8s  im; } Kel8sc;
typedef struct { Kel16s re; Kel16s im; } Kel16sc;
typedef struct { Kel32s re; Kel32s im; } Kel32sc;
typedef struct { Kel64s re; Kel64s im; } Kel64sc;
typedef struct { Kel32f re; Kel32f im; } Kel32fc;
typedef struct { Kel64f re; Kel64f im; } Kel64fc;

/* ---- Status codes --------------------------------------------------------
 * Every function returns a KelStatus: 0 success, negative error (nothing was
 * written), positive warning (the result is complete). */
typedef int KelStatus;

enum {
  kelStsBadDesignParam  = -209,
  kelStsBadDesignFreq   = -208,
  kelStsBadDesignOrder  = -206,
  kelStsSingular        = -195,
  kelStsBadSparsePos    = -194,
  kelStsBadStride       = -182,
  kelStsToneMagn        = -46,
  kelStsToneFreq        = -45,
  kelStsTonePhase       = -44,
  kelStsTrnglMagn       = -43,
  kelStsTrnglFreq       = -42,
  kelStsTrnglPhase      = -41,
  kelStsTrnglAsym       = -40,
  kelStsBadWinAlpha     = -39,
  kelStsBadJaehneMagn   = -38,
  kelStsBadWTOffset     = -35,
  kelStsBadWindowWidth  = -33,
  kelStsBadShift        = -32,
  kelStsBadSampleFactor = -31,
  kelStsBadSamplePhase  = -30,
  kelStsBadMRFactor     = -29,
  kelStsBadMRPhase      = -28,
  kelStsBadRelFreq      = -27,
  kelStsBadFIRLength    = -26,
  kelStsBadIIROrder     = -25,
  kelStsBadDelayIndex   = -24,
  kelStsNegThreshold    = -19,
  kelStsBadThreshold    = -18,
  kelStsBadContext      = -17,
  kelStsBadFlag         = -16,
  kelStsBadOrder        = -15,
  kelStsScaleRange      = -13,
  kelStsDivByZero       = -10,
  kelStsNoMemory        = -9,
  kelStsNullPtr         = -8,
  kelStsBadLength       = -6,
  kelStsBadIndex        = -5,
  kelStsOk              = 0,
  kelStsSqrtNegArg      = 3,
  kelStsInvThreshWarn   = 4,
  kelStsDivByZeroWarn   = 6,
  kelStsLnZeroArg       = 7,
  kelStsLnNegArg        = 8,
  kelStsNotFinite       = 9
};

/* ---- Library version record ---------------------------------------------- */
typedef struct {
  int major;
  int minor;
  int majorBuild;
  int build;
  char targetCpu[4];
  const char* Name;
  const char* Version;
  const char* BuildDate;
} KelLibraryVersion;

/* ---- Flags and hints ----------------------------------------------------- */
/* Precision hint of the single-precision statistics and some transforms:
 * 1 asks for the fast method, any other value for the accurate one. */
typedef enum { kelAlgHintNone = 0, kelAlgHintFast = 1, kelAlgHintAccurate = 2 } KelHintAlgorithm;

/* Rounding modes of the conversions. */
typedef enum { kelRndZero = 0, kelRndNear = 1, kelRndFinancial = 2 } KelRoundMode;

/* ---- Opaque records ------------------------------------------------------
 * Specification and state records live in memory the caller obtains from the
 * library (GetSize + Init, or InitAlloc); their layout is private. Each
 * family adds its typedefs below. */

/* @records-transform */
/* FFT specification records (one family per data layout) and the scale
 * flags of their GetSize/Init/InitAlloc functions. */
#define KEL_FFT_SCALE_FWD_N  1 /* forward result times 1/N */
#define KEL_FFT_SCALE_INV_N  2 /* inverse result times 1/N */
#define KEL_FFT_SCALE_SQRT_N 4 /* both directions times 1/sqrt(N) */
#define KEL_FFT_SCALE_NONE   8 /* no scaling */
typedef struct KelsFFTSpec_C_16sc KelsFFTSpec_C_16sc;
typedef struct KelsFFTSpec_C_16s KelsFFTSpec_C_16s;
typedef struct KelsFFTSpec_R_16s KelsFFTSpec_R_16s;
typedef struct KelsFFTSpec_C_32fc KelsFFTSpec_C_32fc;
typedef struct KelsFFTSpec_C_32f KelsFFTSpec_C_32f;
typedef struct KelsFFTSpec_R_32f KelsFFTSpec_R_32f;
typedef struct KelsFFTSpec_C_64fc KelsFFTSpec_C_64fc;
typedef struct KelsFFTSpec_C_64f KelsFFTSpec_C_64f;
typedef struct KelsFFTSpec_R_64f KelsFFTSpec_R_64f;
typedef struct KelsFFTSpec_C_32sc KelsFFTSpec_C_32sc;
typedef struct KelsFFTSpec_C_32s KelsFFTSpec_C_32s;
typedef struct KelsFFTSpec_R_32s KelsFFTSpec_R_32s;
typedef struct KelsFFTSpec_R_16s32s KelsFFTSpec_R_16s32s;

/* @records-fir */
/* FIR filter states. The four-character identifiers of the records are
 * checked by every call; 32s_16s32f shares the 32s_16s record, 32sc_16sc32fc
 * the 32sc_16sc record and _32s the 64f_32s record. */
typedef struct KelsFIRState_32f KelsFIRState_32f;
typedef struct KelsFIRState_32fc KelsFIRState_32fc;
typedef struct KelsFIRState_64f KelsFIRState_64f;
typedef struct KelsFIRState_64fc KelsFIRState_64fc;
typedef struct KelsFIRState32f_16s KelsFIRState32f_16s;
typedef struct KelsFIRState32fc_16sc KelsFIRState32fc_16sc;
typedef struct KelsFIRState32s_16s KelsFIRState32s_16s;
typedef struct KelsFIRState32sc_16sc KelsFIRState32sc_16sc;
typedef struct KelsFIRState64f_32f KelsFIRState64f_32f;
typedef struct KelsFIRState64fc_32fc KelsFIRState64fc_32fc;
typedef struct KelsFIRState64f_32s KelsFIRState64f_32s;
typedef struct KelsFIRState64fc_32sc KelsFIRState64fc_32sc;
typedef struct KelsFIRState64f_16s KelsFIRState64f_16s;
typedef struct KelsFIRState64fc_16sc KelsFIRState64fc_16sc;
typedef KelsFIRState64f_32s KelsFIRState_32s;

/* @records-iir */

/* @records-generate */
/* Tone and triangle generator states (Q15 forms) and random generator states. */
typedef struct KelsToneState_16s KelsToneState_16s;
typedef struct KelsTriangleState_16s KelsTriangleState_16s;
typedef struct KelsRandUniState_8u KelsRandUniState_8u;
typedef struct KelsRandUniState_16s KelsRandUniState_16s;
typedef struct KelsRandUniState_32f KelsRandUniState_32f;
typedef struct KelsRandGaussState_8u KelsRandGaussState_8u;
typedef struct KelsRandGaussState_16s KelsRandGaussState_16s;
typedef struct KelsRandGaussState_32f KelsRandGaussState_32f;

#ifdef __cplusplus
}
#endif

#endif /* KELSTYPES_H */
