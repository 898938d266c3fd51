#pragma once

#include <cstdint>

#include "control/Clique_find_ext_cont.h"
#include "foundation/Text_writer.h"
#include "graph/Node_names.h"
#include "graph/Node_set.h"

namespace gns {

/// An index as the files show it: with a minus sign if it is at or behind `exact_count`.
inline void Write_index(Text_writer& file, std::uint32_t index, std::uint32_t exact_count) {
  if (index >= exact_count) file << '-';
  file << index;
}

/// "INDEX: NAME NAME ... NAME " with the names in the order of the nodes. Polls as a long stage
/// does.
inline void Write_members(Text_writer& file, std::uint32_t index, std::uint32_t exact_count,
                          Node_span members, const Node_names& node_names) {
  external_control::Check_inside_long_stage();
  Write_index(file, index, exact_count);
  file << ": ";
  for (const Node_index node : members) file << node_names[node] << ' ';
  file << '\n';
}

}  // namespace gns
