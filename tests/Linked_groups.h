#pragma once

#include <sstream>
#include <string>

namespace gns {

/// A link file in which nodes are linked unless they are of the same group. With groups of three
/// nodes there are 3^(node_count / 3) maximal cliques, with groups of one node there is one.
inline std::string Linked_groups(int node_count, int group) {
  std::ostringstream links;
  for (int a = 0; a < node_count; ++a)
    for (int b = 0; b < a; ++b)
      if (a / group != b / group) links << a << ' ' << b << '\n';
  return links.str();
}

}  // namespace gns
