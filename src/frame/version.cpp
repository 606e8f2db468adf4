// The constant version record of this build.
#include "frame/common.h"

namespace {
constexpr KelLibraryVersion kVersion = {
    5, 1, 133, 274, {'z', '4', '\0', '\0'}, "libkelsz4.so.5.1", "5.1.1", "Jun 17 2006"};
}

KELS_EXPORT const KelLibraryVersion* kelsGetLibVersion(void) { return &kVersion; }
