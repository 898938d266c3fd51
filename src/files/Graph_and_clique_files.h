#pragma once

#include <cstdint>
#include <string>

#include "communities/K_cliques.h"
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

/// Writes a line per k-clique into the directory of the k: its index and its members' names. Polls
/// the stop flag as a long stage does.
void Kiir_k_cliques_VL(const std::string& output_dir, const K_cliques& k_cliques, std::uint32_t k,
                       const Node_names& node_names, const std::string& run_header);

}  // namespace gns
