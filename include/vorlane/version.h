#pragma once

/// The version of these headers. Within one major version programs that were compiled against an
/// older library go on with a newer one.
#define VORLANE_VERSION_MAJOR 1
#define VORLANE_VERSION_MINOR 0
#define VORLANE_VERSION_PATCH 0
#define VORLANE_VERSION "1.0.0"

#if defined(_WIN32)
#define VORLANE_API
#else
#define VORLANE_API __attribute__((visibility("default")))
#endif

namespace vorlane {

/// The version of the library that is linked, as "1.0.0".
VORLANE_API const char* Version();

}  // namespace vorlane
