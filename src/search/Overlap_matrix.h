#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "graph/Row_index.h"
#include "search/Clique_vector.h"

namespace gns {

/// The clique overlap matrix: row i tells for each clique that shares nodes with clique i, itself
/// included, how many they share.
///
/// Never stored, since its entries grow quadratically with the cliques of a node. It is a view of
/// the clique vector, which must outlive it unchanged; a row is computed when it is asked for, from
/// an index node -> cliques that is made for the first row.
class Overlap_matrix {
 public:
  using Entry = std::pair<Clique_index, std::uint32_t>;

  Overlap_matrix() = default;
  explicit Overlap_matrix(const Clique_vector& cliques) : cliques_(&cliques) {}

  /// Number of rows.
  [[nodiscard]] std::size_t size() const { return cliques_ == nullptr ? 0 : cliques_->size(); }
  /// The entries of row i, ascending by clique.
  [[nodiscard]] std::vector<Entry> Row(Clique_index i);

 private:
  const Clique_vector* cliques_ = nullptr;
  std::optional<Row_index> cliques_of_;  ///< made for the first row
};

}  // namespace gns
