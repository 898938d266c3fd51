#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "intensity/Local_links.h"

namespace gns {

/// What is sure of the k-cliques that a partial one can still be completed to.
enum class Outlook { none_passes, undecided, all_pass, all_subsets_pass };

/// Nodes that a partial k-clique can be completed with, ascending, each linked to all its nodes.
struct Candidates {
  std::vector<std::uint32_t> nodes;
  std::vector<double> sums;   ///< per node: logarithms of its links to the partial k-clique
  std::vector<double> reach;  ///< per node: what it brings at most by half of its other links

  [[nodiscard]] std::size_t size() const { return nodes.size(); }
  void clear() {
    nodes.clear();
    sums.clear();
    reach.clear();
  }
  void push_back(std::uint32_t node, double sum, double node_reach) {
    nodes.push_back(node);
    sums.push_back(sum);
    reach.push_back(node_reach);
  }
};

/// Bounds on the sum of logarithms of the k-cliques that contain a partial one.
///
/// From above: a candidate brings its links to the partial k-clique and half of its best links to
/// other candidates, and the best candidates are taken. From below: the weakest candidates, and for
/// the links between them the weakest such link. The work is linear in the links of the candidates.
class K_clique_bounds {
 public:
  /// A sum below `reject_below` is sure to fail, one above `accept_above` is sure to pass.
  K_clique_bounds(double reject_below, double accept_above)
      : reject_below_(reject_below), accept_above_(accept_above) {}

  /// True if the reach of the candidates shows that no k-clique passes; drops candidates that are
  /// not within it.
  bool Are_out_of_reach(double sum, std::uint32_t missing, Candidates& candidates);

  /// Judges a partial k-clique with the sum `sum`, to which `missing` of the candidates, at least
  /// 2, have to be added, and drops candidates that can't be among them. Where the weights don't
  /// `matter` any more, only links that are missing rule candidates out.
  Outlook Judge(const Ranked_links& links, double sum, std::uint32_t missing, bool matter,
                Candidates& candidates);

 private:
  bool Drop_loose(const Ranked_links& links, std::uint32_t missing, bool matter,
                  Candidates& candidates);
  void Look_at_links(const Ranked_links& links, std::uint32_t missing, bool matter,
                     Candidates& candidates);
  [[nodiscard]] double Lowest_completion(std::uint32_t missing, const Candidates& candidates);
  enum class Cut { nothing, some, all };
  Cut Cut_to_gains(double sum, std::uint32_t missing, Candidates& candidates);
  template <typename Keep>
  static bool Keep_if(Candidates& candidates, Keep keep);

  double reject_below_;
  double accept_above_;
  std::vector<unsigned char> is_candidate_;  ///< per node: 1 or 0
  std::vector<std::size_t> link_counts_;     ///< per candidate: links to others
  std::vector<double> gains_;                ///< per candidate
  double lowest_ = 0.0;                      ///< of the links between candidates
  bool complete_ = false;                    ///< no link is missing between candidates
  std::vector<double> logs_;                 ///< of the candidate at hand, to others
  std::vector<double> scratch_;
};

}  // namespace gns
