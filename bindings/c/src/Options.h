#pragma once

#include "bindings/c/vorlane_c.h"
#include "vorlane/vorlane.h"

namespace vorlane::c {

/// What is given, or the defaults for null. Throws an Error of kind `parameters`.
Link_options Options_of(const vorlane_link_options* given);
Options Options_of(const vorlane_options* given);

}  // namespace vorlane::c
