#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "graph/Node_set.h"
#include "search/Attempt.h"
#include "search/Bit_rows.h"
#include "search/Clique_vector.h"

namespace gns {

/// What the cliques of one node are made from: the node in hand with its unfinished neighbours (the
/// candidates) and the links among them, and its finished neighbours (the excluded), each with its
/// links to the others.
///
/// Links of the node in hand stand in the rows of a directed graph only, where their direction
/// counts.
struct Local_graph {
  std::vector<Node_index> nodes;  ///< ascending: the node in hand and the candidates
  std::size_t home = 0;           ///< position of the node in hand
  std::size_t excluded_count = 0;
  std::size_t words = 0;       ///< words per row
  std::vector<Bit_word> rows;  ///< a row per node, then a row per excluded node
  /// Likewise the ends of the one-way links from a node and of those to it; both empty in an
  /// undirected graph.
  std::vector<Bit_word> out_rows;
  std::vector<Bit_word> in_rows;

  [[nodiscard]] const Bit_word* Row(std::size_t row) const { return rows.data() + row * words; }
  [[nodiscard]] const Bit_word* Out(std::size_t row) const { return out_rows.data() + row * words; }
  [[nodiscard]] const Bit_word* In(std::size_t row) const { return in_rows.data() + row * words; }
  [[nodiscard]] std::size_t Row_count() const { return nodes.size() + excluded_count; }

  /// Adds the nodes of a row of bits as a clique.
  void Record(Clique_vector& cliques, const Bit_word* row) const {
    For_each_bit(row, words, [&](std::size_t position) { cliques.Append(nodes[position]); });
    cliques.Close_row();
  }
  /// Adds all rows, one behind the other. Polls.
  void Record_all(Clique_vector& cliques, const std::vector<Bit_word>& all) const {
    for (std::size_t at = 0; at < all.size(); at += words) {
      Attempt::Check_for_stop();
      Record(cliques, all.data() + at);
    }
  }
  /// Appends the row of bits of a clique that was recorded.
  void Append_row(Node_span clique, std::vector<Bit_word>& all) const {
    all.resize(all.size() + words, 0);
    Bit_word* const row = all.data() + all.size() - words;
    auto place = nodes.begin();
    for (const Node_index node : clique) {
      place = std::lower_bound(place, nodes.end(), node);
      Flip_bit(row, static_cast<std::size_t>(place - nodes.begin()));
    }
  }
};

}  // namespace gns
