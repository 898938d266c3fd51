#pragma once

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "graph/Link_map.h"
#include "graph/Named_graph.h"
#include "vorlane/network.h"

namespace vorlane {

struct Network::Body {
  Link_options options;
  gns::Link_map links_as_given;  ///< for the graph file, and for who takes them elsewhere
  gns::Named_graph graph;
  std::vector<std::uint32_t> name_places;  ///< by node, from 1 on: where its name stands in there
  std::vector<std::string> warnings;       ///< on the file
  std::vector<Node> given_numbers;         ///< by node; empty for a network of names

  mutable std::once_flag sorted_once;
  mutable std::vector<Node> by_name;  ///< nodes in the order of their names, once it is sorted
};

namespace face {

/// The network of these links. Reports and polls.
Network Network_of(gns::Link_map links, const Link_options& options,
                   std::vector<Node> number_of_name = {}, std::vector<std::string> warnings = {});

}  // namespace face
}  // namespace vorlane
