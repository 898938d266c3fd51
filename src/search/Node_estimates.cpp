#include "search/Node_estimates.h"

#include <algorithm>

#include "control/Run_control.h"
#include "search/Walk_work.h"

namespace gns {

namespace {

class Estimating {
 public:
  explicit Estimating(const Search_graph& graph)
      : graph_(graph), is_candidate_(std::size_t{graph.Node_count()} + 1, 0) {}

  /// What takes the local graph, and what the walk. There is neither for less than two candidates,
  /// nor where a node in front can join whatever they make, which is looked at where it matters:
  /// one hot node may cover all others.
  std::uint64_t Of(Node_index node) {
    const Node_span candidates = graph_.Forward(node);
    std::uint64_t work = 1 + graph_.Neighs(node).size();
    if (candidates.size() < 2) return work;
    for (const Node_index neigh : graph_.Neighs(node)) work += graph_.Forward(neigh).size();
    if (candidates.size() < candidates_with_links) return work + Walk_work(candidates.size(), 0);
    const std::uint64_t walk = Walk_work(candidates.size(), Links_among(candidates));
    if (walk > work && !graph_.Directed() && Is_covered(node))
      return 1 + graph_.Neighs(node).size();
    return work + walk;
  }

 private:
  [[nodiscard]] bool Is_covered(Node_index node) const {
    const Node_span candidates = graph_.Forward(node);
    return std::ranges::any_of(graph_.Neighs(node), [&](Node_index other) {
      const Node_span linked = graph_.Forward(other);
      return linked.size() > candidates.size() && std::ranges::includes(linked, candidates);
    });
  }

  std::uint64_t Links_among(Node_span nodes) {
    std::uint64_t links = 0;
    for (const Node_index node : nodes) is_candidate_[node] = 1;
    for (const Node_index node : nodes)
      for (const Node_index other : graph_.Forward(node)) links += is_candidate_[other];
    for (const Node_index node : nodes) is_candidate_[node] = 0;
    return links;
  }

  const Search_graph& graph_;
  std::vector<std::uint8_t> is_candidate_;
};

}  // namespace

std::vector<std::uint64_t> Estimates_of_nodes(const Search_graph& graph, const Node_order& order) {
  Estimating estimating(graph);
  std::vector<std::uint64_t> estimates;
  estimates.reserve(order.size());
  for (const Node_index node : order) {
    external_control::Check_inside_long_stage();
    estimates.push_back(estimating.Of(node));
  }
  return estimates;
}

}  // namespace gns
