/* A first look at kels: the version record and a few calls with their
 * statuses. */
#include <stdio.h>

#include <kelcore.h>
#include <kels.h>

static void report(const char* call, KelStatus st) {
  printf("  %-44s -> %4d  %s\n", call, st, kelsGetStatusString(st));
}

int main(void) {
  const KelLibraryVersion* v = kelsGetLibVersion();
  printf("%s version %s (%d.%d, build %d.%d, cpu \"%s\", %s)\n", v->Name, v->Version, v->major,
         v->minor, v->majorBuild, v->build, v->targetCpu, v->BuildDate);
  printf("threads for parallel filters: %d\n\n", kel_get_num_threads());

  Kel32f* x = kelsMalloc_32f(8);
  Kel32f y[8];
  Kel32fc z[4];
  Kel16s pcm[8];
  if (x == NULL) return 1;

  printf("Calls and their statuses:\n");
  report("kelsSet_32f(0.25f, x, 8)", kelsSet_32f(0.25f, x, 8));
  report("kelsCopy_32f(x, y, 8)", kelsCopy_32f(x, y, 8));
  report("kelsFlip_32f_I(y, 8)", kelsFlip_32f_I(y, 8));
  report("kelsRealToCplx_32f(x, NULL, z, 4)", kelsRealToCplx_32f(x, NULL, z, 4));
  report("kelsConj_32fc_I(z, 4)", kelsConj_32fc_I(z, 4));
  {
    const Kel32f* channels[1] = {y};
    y[0] = -1.0f; y[1] = 1.0f; y[2] = 0.0f;
    report("kelsJoinScaled_32f16s_D2L(ch, 1, 8, pcm)", kelsJoinScaled_32f16s_D2L(channels, 1, 8, pcm));
    printf("    -1.0 -> %d, 1.0 -> %d, 0.0 -> %d\n", pcm[0], pcm[1], pcm[2]);
  }
  report("kelsCopy_32f(NULL, y, 8)", kelsCopy_32f(NULL, y, 8));
  report("kelsCopy_32f(x, y, 0)", kelsCopy_32f(x, y, 0));
  kelsFree(x);
  return 0;
}
