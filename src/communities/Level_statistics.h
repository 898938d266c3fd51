#pragma once

#include <cstdint>
#include <optional>

#include "communities/Communities.h"
#include "communities/Community_statistics.h"

namespace gns {

/// The four distributions of a set of communities.
struct Distributions {
  Distribution membership;
  Distribution size;
  Distribution overlap;
  Distribution degree;
};

/// The distributions at one k; where some communities are approximate, also those of the exact and
/// of the approximate ones by themselves.
struct Level_statistics {
  Distributions all;
  std::optional<Distributions> exact;
  std::optional<Distributions> approximate;
};

/// `com_graph` is that of the communities; `vertex_count` and errors as of Community_statistics().
Level_statistics Statistics_of(const Communities& communities, const Com_graph& com_graph,
                               std::uint32_t vertex_count);

}  // namespace gns
