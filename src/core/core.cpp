// libkelcore: the process-wide thread count, x87/SSE rounding control and the
// IEEE special constants that the signal-processing library reads.
#include "kelcore.h"

#include <xmmintrin.h>

#include <climits>
#include <cstdlib>
#include <limits>

#include <sched.h>
#include <unistd.h>

namespace {

// Processors this process may run on: the affinity mask when it can be read
// (containers and taskset narrow it), else the online processor count.
int available_processors() {
  cpu_set_t set;
  if (sched_getaffinity(0, sizeof(set), &set) == 0) {
    const int n = CPU_COUNT(&set);
    if (n > 0) return n;
  }
  const long n = sysconf(_SC_NPROCESSORS_ONLN);
  return n > 0 ? static_cast<int>(n < INT_MAX ? n : INT_MAX) : 1;
}

int initial_thread_count() {
  // OMP_NUM_THREADS may be a list ("4,2" for nested levels); its first
  // entry is the team size of the outermost level.
  if (const char* env = std::getenv("OMP_NUM_THREADS")) {
    char* end = nullptr;
    const long n = std::strtol(env, &end, 10);
    if (end != env && n > 0) return static_cast<int>(n < 1024 ? n : 1024);
  }
  return available_processors();
}

}  // namespace

extern "C" {

KELCORE_API int threads_omp_of_n_kel = initial_thread_count();

KELCORE_API int kel_set_num_threads(int n) {
  const int previous = threads_omp_of_n_kel;
  threads_omp_of_n_kel = n < 1 ? 1 : n;
  return previous;
}

KELCORE_API int kel_get_num_threads(void) { return threads_omp_of_n_kel; }

KELCORE_API unsigned int kel_set_cw_fpu(unsigned int cw) {
  unsigned short previous = 0;
  unsigned short next = static_cast<unsigned short>(cw);
  __asm__ __volatile__("fnstcw %0" : "=m"(previous));
  __asm__ __volatile__("fldcw %0" : : "m"(next));
  return previous;
}

KELCORE_API unsigned int kel_set_rcpc_fpu(unsigned int rcpc) {
  unsigned short previous = 0;
  __asm__ __volatile__("fnstcw %0" : "=m"(previous));
  const unsigned int mask = KEL_FPU_RC_MASK | KEL_FPU_PC_MASK;
  unsigned short next = static_cast<unsigned short>((previous & ~mask) | (rcpc & mask));
  __asm__ __volatile__("fldcw %0" : : "m"(next));
  return previous;
}

KELCORE_API unsigned int kel_set_cw_ssx(unsigned int csr) {
  const unsigned int previous = _mm_getcsr();
  _mm_setcsr(csr);
  return previous;
}

KELCORE_API unsigned int kel_set_rc_ssx(unsigned int rc) {
  const unsigned int previous = _mm_getcsr();
  _mm_setcsr((previous & ~KEL_SSX_RC_MASK) | (rc & KEL_SSX_RC_MASK));
  return previous;
}

extern KELCORE_API const float kelConstantOfINF_32f = std::numeric_limits<float>::infinity();
extern KELCORE_API const double kelConstantOfINF_64f = std::numeric_limits<double>::infinity();
extern KELCORE_API const float kelConstantOfNAN_32f = std::numeric_limits<float>::quiet_NaN();
extern KELCORE_API const double kelConstantOfNAN_64f = std::numeric_limits<double>::quiet_NaN();

}  // extern "C"
