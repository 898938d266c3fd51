#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "intensity/K_clique_bounds.h"
#include "intensity/K_cliques.h"
#include "intensity/Local_links.h"
#include "intensity/Root_links.h"
#include "intensity/Sub_links.h"
#include "intensity/Weighted_cliques.h"

namespace gns {

/// Finds the k-cliques whose link weight intensity exceeds a threshold, in lexicographic order.
///
/// A k-clique passes if the sum of its logarithms, added up node by node in ascending order,
/// exceeds the logarithm of the threshold, or if for some maximal clique around it such a partial
/// sum already does with the lowest logarithm of that clique in place of every link to come. The
/// two differ by rounding only, and where a weight is negative. So the search adds up in the order
/// that suits it, with bounds that cut hopeless branches and take sure ones whole; sums too close
/// to the threshold for that, and those that are no numbers, are decided as said.
class K_clique_search {
 public:
  /// `cliques` must outlive the object; `k` is at least 3.
  K_clique_search(const Weighted_cliques& cliques, std::uint32_t k, double intensity_threshold);

  /// Appends the k-cliques whose smallest node is `root`. Polls the stop flag at each step, and
  /// tells there how many k-cliques have been found and visited.
  void Search_from(Node_index root, K_cliques& found);

 private:
  /// The candidates for one more node of the partial k-clique, and how far they are worked off.
  struct Level {
    Candidates candidates;
    std::size_t next = 0;
    double sum = 0.0;       ///< of the partial k-clique
    double best_sum = 0.0;  ///< of the candidates
    bool all_pass = false;
    const Ranked_links* links = nullptr;  ///< between the candidates and perhaps some more nodes
    Ranked_links own_links;               ///< for levels where these would be too many more
  };

  void Tell_and_poll(const K_cliques& found) const;
  bool Begin_level(std::uint32_t depth, K_cliques& found);
  bool Descend(std::uint32_t depth, K_cliques& found);
  [[nodiscard]] bool Is_hopeless(const Level& level, double sum, std::uint32_t missing) const;
  template <typename Use>
  void For_each_behind(const Level& level, std::size_t at, Use use) const;
  void Take_pairs(const Level& level, K_cliques& found);
  void Take_all_subsets(const Level& level, std::uint32_t depth, K_cliques& found);
  [[nodiscard]] bool Passes(double sum);
  [[nodiscard]] bool Passes_exactly();
  [[nodiscard]] bool Some_partial_sum_passes(double min_log_w) const;

  const Weighted_cliques& cliques_;
  std::uint32_t k_;
  double threshold_;     ///< of sums of logarithms
  double reject_below_;  ///< a sum below fails, in whatever order it was added up
  double accept_above_;
  K_clique_bounds bounds_;
  Root_links root_links_;
  std::uint64_t visited_ = 0;  ///< whole k-cliques and parts of them
  std::vector<Level> levels_;  ///< [d]: d + 1 nodes are chosen, 2 or more are missing
  std::vector<Node_index> k_clique_;
  std::vector<std::uint32_t> subset_;
  Sub_links sub_links_;  ///< of the k-clique decided exactly last
};

}  // namespace gns
