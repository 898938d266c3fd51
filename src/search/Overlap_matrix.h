#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "search/Clique_vector.h"

namespace gns {

/// The clique overlap matrix: row i tells for each clique that shares nodes with clique i how many.
///
/// Never stored, since its entries grow quadratically with the cliques of a node: what is kept is
/// the index node -> cliques, from which a row is computed when it is asked for.
class Overlap_matrix {
 public:
  using Entry = std::pair<Clique_index, std::uint32_t>;

  Overlap_matrix() = default;
  explicit Overlap_matrix(const Clique_vector& cliques);

  /// Number of rows.
  [[nodiscard]] std::size_t size() const { return row_count_; }
  /// The cliques that hold a node, ascending; none for a node in no clique.
  [[nodiscard]] std::span<const Clique_index> Cliques_of(Node_index node) const;
  /// Row i, ascending; `cliques` is the vector that the matrix was built from.
  [[nodiscard]] std::vector<Entry> Row(const Clique_vector& cliques, Clique_index i) const;

 private:
  std::size_t row_count_ = 0;
  std::vector<std::size_t> starts_ = {0, 0};
  std::vector<Clique_index> cliques_;
};

}  // namespace gns
