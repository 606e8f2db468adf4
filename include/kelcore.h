/*
 * kelcore.h: the companion core library of kels: the process-wide thread
 * count, x87 and SSE rounding control, and IEEE special constants.
 */
#ifndef KELCORE_H
#define KELCORE_H

#if defined(__GNUC__)
#define KELCORE_API __attribute__((visibility("default")))
#else
#define KELCORE_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Number of threads the parallel regions of the FIR filters use. Initialised
 * when the library is loaded from OMP_NUM_THREADS when that is set to a
 * positive number, else from the processors available to the process.
 * Read it directly or through kel_get_num_threads; change it only through
 * kel_set_num_threads. */
extern KELCORE_API int threads_omp_of_n_kel;

/* Sets the thread count (values below 1 are taken as 1) and returns the
 * previous one. */
KELCORE_API int kel_set_num_threads(int n);
/* Returns the thread count. */
KELCORE_API int kel_get_num_threads(void);

/* x87 control word: sets it to cw and returns the previous word. */
KELCORE_API unsigned int kel_set_cw_fpu(unsigned int cw);
/* Sets only the x87 rounding-control (bits 10-11) and precision-control
 * (bits 8-9) fields to those of rcpc, leaving the other bits; returns the
 * previous control word. */
KELCORE_API unsigned int kel_set_rcpc_fpu(unsigned int rcpc);
/* SSE control and status register (MXCSR): sets it to csr and returns the
 * previous value. */
KELCORE_API unsigned int kel_set_cw_ssx(unsigned int csr);
/* Sets only the MXCSR rounding field (bits 13-14) to that of rc, leaving the
 * other bits; returns the previous register value. */
KELCORE_API unsigned int kel_set_rc_ssx(unsigned int rc);

/* Field values for the helpers above. */
#define KEL_FPU_RC_NEAR  0x0000u
#define KEL_FPU_RC_DOWN  0x0400u
#define KEL_FPU_RC_UP    0x0800u
#define KEL_FPU_RC_ZERO  0x0C00u
#define KEL_FPU_RC_MASK  0x0C00u
#define KEL_FPU_PC_24    0x0000u
#define KEL_FPU_PC_53    0x0200u
#define KEL_FPU_PC_64    0x0300u
#define KEL_FPU_PC_MASK  0x0300u
#define KEL_SSX_RC_NEAR  0x0000u
#define KEL_SSX_RC_DOWN  0x2000u
#define KEL_SSX_RC_UP    0x4000u
#define KEL_SSX_RC_ZERO  0x6000u
#define KEL_SSX_RC_MASK  0x6000u

/* Positive infinity and the quiet NaN of each precision. */
extern KELCORE_API const float  kelConstantOfINF_32f;
extern KELCORE_API const double kelConstantOfINF_64f;
extern KELCORE_API const float  kelConstantOfNAN_32f;
extern KELCORE_API const double kelConstantOfNAN_64f;

#ifdef __cplusplus
}
#endif

#endif /* KELCORE_H */
