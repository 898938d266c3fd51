#include "search/Node_estimates.h"

#include "control/Run_control.h"
#include "search/Walk_work.h"

namespace gns {

namespace {

class Estimating {
 public:
  explicit Estimating(const Search_graph& graph)
      : graph_(graph), is_candidate_(std::size_t{graph.Node_count()} + 1, 0) {}

  /// What takes the local graph, and what the walk. Two candidates are the least for that.
  std::uint64_t Of(Node_index node) {
    const Node_span candidates = graph_.Forward(node);
    std::uint64_t work = 1 + graph_.Neighs(node).size();
    if (candidates.size() < 2) return work;
    const bool with_links = candidates.size() >= candidates_with_links;
    for (const Node_index neigh : graph_.Neighs(node)) work += graph_.Forward(neigh).size();
    return work + Walk_work(candidates.size(), with_links ? Links_among(candidates) : 0);
  }

 private:
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
