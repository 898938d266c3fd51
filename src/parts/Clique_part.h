#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "parts/Graph_part.h"
#include "parts/Level_groups.h"
#include "parts/Part_reader.h"
#include "parts/Part_writer.h"
#include "search/Clique_vector.h"

namespace gns::parts {

/// Finds the cliques of a part of the node order and writes them, whole. `part` counts from 1.
/// Yields how many. Polls.
std::uint64_t Write_clique_part(const Byte_taker& take, const Graph_part& graph,
                                std::uint64_t part);

/// What Write_clique_part() has written, read where it lies.
Clique_vector Cliques_of_part(std::span<const std::byte> bytes, const Part_identity& expected,
                              const Part_label& label, Part_check check = Part_check::all);

/// The cliques of all parts, numbered, and who finds which levels.
struct All_cliques {
  Clique_vector cliques;
  std::vector<std::size_t> of_size;  ///< [n]: cliques of n nodes
  std::vector<Level_group> groups;   ///< as many as parts
};

/// Puts the cliques of all parts behind each other, those of slices joined, and writes them with
/// the groups of levels. Throws Xerror_msg if there are more than can be numbered.
void Write_all_cliques(const Byte_taker& take, const Graph_part& graph,
                       const std::vector<const Clique_vector*>& parts);

/// What Write_all_cliques() has written, read where it lies.
All_cliques All_cliques_of(std::span<const std::byte> bytes, const Graph_part& graph,
                           const Part_label& label, Part_check check = Part_check::all);

}  // namespace gns::parts
