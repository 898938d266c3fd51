#pragma once

#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

#include "graph/Link_map.h"
#include "graph/Named_graph.h"
#include "vorlane/network.h"

namespace vorlane {

struct Network::Body {
  Link_options options;
  gns::Link_map links_as_given;  ///< for the graph file
  gns::Named_graph graph;
  std::vector<Node> given_numbers;  ///< by node; empty for a network of names

  mutable std::once_flag sorted_once;
  mutable std::vector<Node> by_name;  ///< nodes in the order of their names, once it is sorted
};

namespace face {

/// The network of these links. Reports and polls.
Network Network_of(gns::Link_map links, const Link_options& options,
                   std::vector<Node> number_of_name = {});

}  // namespace face
}  // namespace vorlane
