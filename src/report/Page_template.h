#pragma once

#include <string_view>

namespace vorlane::report {

/// The page as web/ builds it, with `place_of_title` and `place_of_data` where these belong.
std::string_view Page_template();

constexpr std::string_view place_of_title = "@title@";
constexpr std::string_view place_of_data = "@data@";

}  // namespace vorlane::report
