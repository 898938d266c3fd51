#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "intensity/K_clique_bounds.h"
#include "intensity/Local_links.h"
#include "intensity/Weighted_cliques.h"

namespace gns {

/// The nodes that k-cliques with a given smallest node, the root, can hold, numbered from 0, and
/// the links between them.
class Root_links {
 public:
  /// `cliques` must outlive the object. Only nodes are told that k-cliques with a sum of
  /// `reject_below` or more can hold.
  Root_links(const Weighted_cliques& cliques, std::uint32_t k, double reject_below);

  /// Takes another root and sets `candidates` to the nodes that can be in k-cliques with it; false
  /// if these are too few.
  bool Begin(Node_index root, Candidates& candidates);

  /// What a number stands for.
  [[nodiscard]] Node_index Name_of(std::uint32_t number) const { return names_[number]; }
  /// The links to higher numbers, ascending.
  [[nodiscard]] Link_rows::Row operator[](std::uint32_t number) const { return links_[number]; }
  /// The links between candidates, if they are bounded and k is 4 or more.
  [[nodiscard]] const Ranked_links& Ranked() const { return ranked_; }
  /// True if all logarithms are finite, those of the links to the root among them.
  [[nodiscard]] bool Are_bounded() const { return bounded_; }
  [[nodiscard]] double Highest_log() const { return highest_log_; }

 private:
  void Link_names();
  void Collect(const double* logs, Candidates& candidates);
  void Rank(const Candidates& candidates);
  void Note_range(std::span<const double> logs);

  const Weighted_cliques& cliques_;
  std::uint32_t k_;
  Link_rows rows_;  ///< of all nodes, to later ones, inside cliques of k nodes or more
  std::vector<Node_index> names_;
  std::vector<std::uint32_t> number_of_;  ///< per node: its number + 1, or 0
  Link_rows links_;
  std::vector<std::uint32_t> link_counts_;  ///< per number
  Ranked_links ranked_;
  double highest_log_ = 0.0;
  bool bounded_ = false;
};

}  // namespace gns
