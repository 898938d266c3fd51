#pragma once

#include "communities/Level_statistics.h"
#include "engine/Levels.h"
#include "vorlane/analysis.h"

namespace vorlane::face {

/// The level as others see it, with the links of its communities if they are wanted; nothing large
/// is copied.
Level Level_of(gns::Level found, bool with_links);

Statistics Statistics_of(gns::Level_statistics statistics);
/// The other way round.
gns::Level_statistics Statistics_of(const Statistics& statistics);

}  // namespace vorlane::face
