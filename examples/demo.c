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
  {
    /* Scaled integer arithmetic: (1 + 2) / 2 = 1.5 rounds to the even 2. */
    Kel16s a[2] = {1, 30000}, b[2] = {2, 30000}, c[2];
    report("kelsAdd_16s_Sfs(a, b, c, 2, 1)", kelsAdd_16s_Sfs(a, b, c, 2, 1));
    printf("    1 + 2 scaled by 1/2 -> %d, 30000 + 30000 scaled by 1/2 -> %d\n", c[0], c[1]);
  }
  {
    /* An 8-point FFT of a unit impulse is flat. */
    KelsFFTSpec_C_32fc* record = NULL;
    Kel32fc in[8] = {{1.0f, 0.0f}}, out[8];
    report("kelsFFTInitAlloc_C_32fc(&record, 3, ...)",
           kelsFFTInitAlloc_C_32fc(&record, 3, KEL_FFT_SCALE_NONE, kelAlgHintAccurate));
    report("kelsFFTFwd_CToC_32fc(in, out, record, NULL)", kelsFFTFwd_CToC_32fc(in, out, record, NULL));
    printf("    out[0] = %g%+gi, out[5] = %g%+gi\n", out[0].re, out[0].im, out[5].re, out[5].im);
    report("kelsFFTFree_C_32fc(record)", kelsFFTFree_C_32fc(record));
  }
  {
    Kel32f sum = 0.0f;
    Kel16s pcm2[3] = {0, 1000, -32768};
    Kel8u mu[3];
    report("kelsSum_32f(x, 8, &sum, accurate)", kelsSum_32f(x, 8, &sum, kelAlgHintAccurate));
    printf("    sum = %g\n", sum);
    report("kelsLinToMuLaw_16s8u(pcm, mu, 3)", kelsLinToMuLaw_16s8u(pcm2, mu, 3));
    printf("    mu-law codes: 0x%02X 0x%02X 0x%02X\n", mu[0], mu[1], mu[2]);
  }
  printf("\nBad arguments are reported, and nothing is written:\n");
  report("kelsCopy_32f(NULL, y, 8)", kelsCopy_32f(NULL, y, 8));
  report("kelsCopy_32f(x, y, 0)", kelsCopy_32f(x, y, 0));
  kelsFree(x);
  return 0;
}
