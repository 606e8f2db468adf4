// Internal conventions shared by every family: how exported wrappers are
// declared, the argument checks in their fixed order, and record identifiers.
#ifndef KELS_FRAME_COMMON_H
#define KELS_FRAME_COMMON_H

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "kels.h"

// Definition of an exported entry point. The prototype in kels.h fixes the
// signature; a generated definition that disagrees with it fails to compile
// because both are extern "C".
#define KELS_EXPORT extern "C" KELAPI

// Expands to one statement per listed member: KELS_FOR_MEMBERS(LIST, DEF)
// is simply LIST(DEF). Spelled out so every family reads the same way:
//   #define KELS_COPY_MEMBERS(X) X(8u, Kel8u) X(16s, Kel16s) ...
//   #define KELS_DEFINE_COPY(code, T) KELS_EXPORT KelStatus kelsCopy_##code(...) {...}
//   KELS_FOR_MEMBERS(KELS_COPY_MEMBERS, KELS_DEFINE_COPY)
#define KELS_FOR_MEMBERS(LIST, DEF) LIST(DEF)

namespace kels {

// ---- Argument checks, in the order every exported function applies them:
// null pointers, then lengths, then the record identifier, then the
// family's own parameters.

template <class... P>
inline bool any_null(const P*... p) {
  return ((p == nullptr) || ...);
}

template <class... L>
inline bool any_short(L... len) {
  return ((len < 1) || ...);
}

// Reads a record's leading 32-bit identifier word without assuming the
// record type (the caller may hand any pointer).
inline std::uint32_t record_id(const void* record) {
  std::uint32_t id;
  std::memcpy(&id, record, sizeof id);
  return id;
}

inline bool has_id(const void* record, std::uint32_t id) { return record_id(record) == id; }

// The common shape of a one-source, one-destination operation: pointer and
// length checks, then the kernel over len elements. In-place forms pass the
// same array twice.
template <class S, class D, class Kernel>
KelStatus checked_unary(const S* src, D* dst, int len, Kernel&& kernel) {
  if (any_null(src, dst)) return kelStsNullPtr;
  if (len < 1) return kelStsBadLength;
  kernel(src, dst, static_cast<std::size_t>(len));
  return kelStsOk;
}

}  // namespace kels

// Statement forms of the checks: return the status at the first failure.
#define KELS_REQUIRE_PTRS(...) \
  do { if (::kels::any_null(__VA_ARGS__)) return kelStsNullPtr; } while (0)
#define KELS_REQUIRE_LEN(...) \
  do { if (::kels::any_short(__VA_ARGS__)) return kelStsBadLength; } while (0)
#define KELS_REQUIRE_ID(record, id) \
  do { if (!::kels::has_id((record), (id))) return kelStsBadContext; } while (0)
// Propagates a failing status of a delegated call (errors only; warnings go on).
#define KELS_RETURN_IF_ERROR(expr) \
  do { const KelStatus kels_sts_ = (expr); if (kels_sts_ < 0) return kels_sts_; } while (0)

#endif  // KELS_FRAME_COMMON_H
