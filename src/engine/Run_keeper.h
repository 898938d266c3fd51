#pragma once

#include <cstdint>

#include "engine/Levels.h"
#include "graph/Link_map.h"
#include "graph/Node_names.h"
#include "search/Clique_vector.h"

namespace gns {

/// Is handed what a run finds, in its thread, right behind the writing of it. What it wants to keep
/// it copies: the run goes on with the rest.
class Run_keeper {
 public:
  Run_keeper() = default;
  Run_keeper(const Run_keeper&) = delete;
  Run_keeper& operator=(const Run_keeper&) = delete;
  virtual ~Run_keeper() = default;

  virtual void Keep_links(const Link_map& links) = 0;
  /// `names` stay until the run is over.
  virtual void Keep_cliques(const Clique_vector& cliques, std::uint32_t exact_count,
                            const Node_names& names) = 0;
  /// `links` are those of the network: they tell the direction of those of the communities.
  virtual void Keep_level(const Level& level, const Index_links& links) = 0;
};

}  // namespace gns
