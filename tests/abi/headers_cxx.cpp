// The headers also compile as C++ (the library's own sources include them
// too); the C99 object is linked in and called from here.
#include "kels.h"
#include "kelcore.h"

extern "C" int kels_headers_c99_probe(void);

int main() { return kels_headers_c99_probe() == 5 ? 0 : 1; }
