/* Compiled as strict C99 with warnings as errors. */
#include "kelcore.h"
#include "kels.h"
#include "kelstypes.h"

int kels_headers_c99_probe(void);
int kels_headers_c99_probe(void) {
  Kel32fc z = {1.0f, -1.0f};
  KelStatus st = kelStsOk;
  const KelLibraryVersion* v = kelsGetLibVersion();
  (void)z;
  return st + (v != 0 ? v->major : 0) + threads_omp_of_n_kel * 0;
}
