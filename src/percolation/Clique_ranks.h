#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <variant>
#include <vector>

#include "search/Clique_vector.h"

namespace gns {

/// The nodes of cliques numbered by the number of cliques that hold them, rare ones first.
struct Node_ranks {
  explicit Node_ranks(const Clique_vector& cliques);

  std::vector<std::uint32_t> rank_of;  ///< per node; means nothing where no clique holds the node
  std::uint32_t count = 0;             ///< nodes that some clique holds
};

/// The cliques as rows of ranks, ascending, so that their rarest nodes come first. A rank is a
/// number of 16 bits or 32.
template <typename Rank>
class Clique_ranks {
 public:
  using Row = std::span<const Rank>;

  /// `cliques` must outlive the object.
  Clique_ranks(const Clique_vector& cliques, const Node_ranks& nodes);

  [[nodiscard]] std::size_t size() const { return cliques_.size(); }
  /// Number of members of all cliques together.
  [[nodiscard]] std::size_t Members() const { return ranks_.size(); }
  [[nodiscard]] Row operator[](std::size_t clique) const {
    const Node_span members = cliques_[clique];
    const auto start = static_cast<std::size_t>(members.data() - cliques_.Values().data());
    return {ranks_.data() + start, members.size()};
  }

  /// Has the processor fetch what tells where a row stands.
  void Prefetch_place(std::size_t clique) const { cliques_.Prefetch(clique); }

 private:
  const Clique_vector& cliques_;
  std::vector<Rank> ranks_;  ///< parallel to the values of the cliques
};

/// Cliques as rows of ranks that take 16 bits where these are enough, the same for all who look.
struct Ranked_cliques {
  /// `cliques` must outlive the object. Made by the workers of the run.
  explicit Ranked_cliques(const Clique_vector& cliques)
      : Ranked_cliques(cliques, Node_ranks(cliques)) {}

  std::uint32_t node_count;  ///< nodes that some clique holds
  std::variant<Clique_ranks<std::uint16_t>, Clique_ranks<std::uint32_t>> rows;

 private:
  Ranked_cliques(const Clique_vector& cliques, const Node_ranks& nodes);
};

}  // namespace gns
