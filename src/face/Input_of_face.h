#pragma once

#include "formats/Input_wishes.h"
#include "vorlane/network.h"

namespace vorlane::face {

/// How a file is to be read. Throws an Error of kind `parameters` for what can't be meant.
gns::Input_wishes Wishes_of(const Link_options& options);

}  // namespace vorlane::face
