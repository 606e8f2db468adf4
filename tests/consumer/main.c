#include <stdio.h>

#include <kels.h>

int main(void) {
  const KelLibraryVersion* v = kelsGetLibVersion();
  Kel32f* a = kelsMalloc_32f(8);
  Kel32f b[8];
  KelStatus st;
  if (a == NULL) return 1;
  st = kelsSet_32f(1.5f, a, 8);
  if (st == kelStsOk) st = kelsCopy_32f(a, b, 8);
  kelsFree(a);
  printf("%s %s: %s\n", v->Name, v->Version, kelsGetStatusString(st));
  return (st == kelStsOk && b[7] == 1.5f) ? 0 : 1;
}
