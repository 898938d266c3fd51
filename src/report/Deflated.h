#pragma once

#include <string>
#include <string_view>

namespace vorlane::report {

/// The bytes as a zlib stream (RFC 1950): packed if the library for it is at hand, else in stored
/// blocks, which any reader of such streams takes too. Polls for a stop.
std::string Deflated(std::string_view bytes);

/// In base64 (RFC 4648), without line ends.
std::string Base64(std::string_view bytes);

}  // namespace vorlane::report
