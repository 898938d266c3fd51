#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "graph/Node_set.h"

namespace gns {

/// What is sure of the k-cliques that a partial one can still be completed to.
enum class Outlook { none_passes, undecided, all_pass, all_subsets_pass };

/// Nodes that a partial k-clique can be completed with, ascending, each linked to all its nodes.
struct Candidates {
  std::vector<std::uint32_t> nodes;
  std::vector<double>
      sums;  ///< per node: logarithms of its links to the partial k-clique, added up

  [[nodiscard]] std::size_t size() const { return nodes.size(); }
  void clear() {
    nodes.clear();
    sums.clear();
  }
  void push_back(std::uint32_t node, double sum) {
    nodes.push_back(node);
    sums.push_back(sum);
  }
};

/// Nodes numbered from 0, and for each its links to later ones, ascending, with their logarithms.
class Local_links {
 public:
  struct Row {
    std::span<const std::uint32_t> nodes;
    const double* logs;
  };

  [[nodiscard]] std::size_t size() const { return starts_.size() - 1; }
  [[nodiscard]] Row operator[](std::uint32_t node) const {
    const std::size_t start = starts_[node];
    return {{nodes_.data() + start, starts_[node + 1] - start}, logs_.data() + start};
  }
  [[nodiscard]] const std::vector<double>& Logs() const { return logs_; }

  void clear();
  /// Appends a link of the node under construction, which Close_row() then ends.
  void Append(std::uint32_t node, double log);
  void Close_row() { starts_.push_back(nodes_.size()); }

 private:
  std::vector<std::size_t> starts_ = {0};
  std::vector<std::uint32_t> nodes_;
  std::vector<double> logs_;
};

/// Bounds on the sum of logarithms of the k-cliques that contain a partial one.
///
/// From above: a candidate brings its links to the partial k-clique and half of its best links to
/// other candidates, and the best candidates are taken. From below: the weakest candidates, and for
/// the links between them the weakest such link. The work is linear in the links between the
/// candidates.
class K_clique_bounds {
 public:
  /// A sum below `reject_below` is sure to fail, one above `accept_above` is sure to pass.
  K_clique_bounds(double reject_below, double accept_above)
      : reject_below_(reject_below), accept_above_(accept_above) {}

  /// Judges a partial k-clique with the sum `sum`, to which `missing` of the candidates, at least
  /// 2, have to be added, and drops candidates that can't be among them. Where the weights don't
  /// `matter` any more, only links that are missing rule candidates out.
  Outlook Judge(const Local_links& links, double sum, std::uint32_t missing, bool matter,
                Candidates& candidates);

 private:
  struct Pair {
    std::uint32_t first;
    std::uint32_t second;
    double log;
  };

  void Collect_pairs(const Local_links& links, const Candidates& candidates);
  [[nodiscard]] bool Complete() const;
  bool Drop_loose(std::uint32_t missing, Candidates& candidates);
  [[nodiscard]] double Lowest_completion(std::uint32_t missing, const Candidates& candidates);
  void Compute_gains(std::uint32_t missing, const Candidates& candidates);
  template <typename Keep>
  static bool Keep_if(Candidates& candidates, Keep keep);

  double reject_below_;
  double accept_above_;
  std::vector<std::uint32_t> position_of_;  ///< per node: position among the candidates + 1, or 0
  std::vector<Pair> pairs_;                 ///< links between candidates, by their positions
  std::vector<std::size_t> starts_;         ///< per candidate: its part of `logs_`
  std::vector<double> logs_;                ///< per candidate: its links to other candidates
  std::vector<double> gains_;
  std::vector<double> scratch_;
};

}  // namespace gns
