#pragma once

#include <cstdint>
#include <string>

#include "graph/Link_map.h"
#include "graph/Node_names.h"
#include "search/Clique_vector.h"

namespace gns {

/// Writes the links as they were accepted, one per line, with the weight if `weighted`.
void Kiir_graph(const Link_map& links, const std::string& output_dir, bool directed,
                const std::string& run_header, bool weighted);

/// Writes a line per clique: its index and its members' names. Indices at and behind
/// `exact_clique_count` carry a minus sign.
void Kiir_cliques_VL(const std::string& output_dir, const Clique_vector& cliques,
                     const Node_names& node_names, std::uint32_t exact_clique_count,
                     const std::string& com_flag, const std::string& run_header);

}  // namespace gns
