#include "communities/Community_statistics.h"

#include <algorithm>

#include "control/Run_control.h"
#include "foundation/Errors.h"
#include "graph/Row_index.h"

namespace gns {

namespace {

std::size_t Node_limit(const Row_array<Node_index>& coms) {
  const Node_span members = coms.Values();
  return members.empty() ? 0 : std::size_t{*std::ranges::max_element(members)} + 1;
}

/// Communities whose nodes are numbered anew, in the same order, where they are few among many: at
/// most k nearly all nodes are in no community, and what is kept for each node is better short.
class Close_numbered {
 public:
  explicit Close_numbered(const Row_array<Node_index>& coms) {
    constexpr std::size_t few = 16;  // so many times as many nodes
    const Node_span members = coms.Values();
    if (Node_limit(coms) <= few * members.size()) {
      coms_ = Row_array<Node_index>::Looking_at(coms.Starts(), members);
      return;
    }
    std::vector<Node_index> nodes(members.begin(), members.end());
    std::sort(nodes.begin(), nodes.end());
    nodes.erase(std::unique(nodes.begin(), nodes.end()), nodes.end());
    numbers_.reserve(members.size());
    for (const Node_index node : members)
      numbers_.push_back(static_cast<Node_index>(
          1 + (std::lower_bound(nodes.begin(), nodes.end(), node) - nodes.begin())));
    coms_ = Row_array<Node_index>::Looking_at(coms.Starts(), numbers_);
  }

  [[nodiscard]] const Row_array<Node_index>& Coms() const { return coms_; }

 private:
  std::vector<Node_index> numbers_;
  Row_array<Node_index> coms_;
};

}  // namespace

void Prepare_community_graph(Com_graph& com_graph, const Row_array<Node_index>& coms) {
  com_graph.clear();
  const Close_numbered numbered(coms);
  const Row_index memberships = Holders_of_nodes(numbered.Coms());
  std::vector<std::uint32_t> shared(coms.size(), 0);
  std::vector<std::uint32_t> met;
  for (std::uint32_t com = 0; com < coms.size(); ++com) {
    external_control::Check_inside_long_stage();
    met.clear();
    for (const Node_index node : numbered.Coms()[com]) {
      const auto holders = memberships[node];
      for (const std::uint32_t other : holders.subspan(static_cast<std::size_t>(
               std::upper_bound(holders.begin(), holders.end(), com) - holders.begin())))
        if (shared[other]++ == 0) met.push_back(other);
    }
    std::sort(met.begin(), met.end());
    for (const std::uint32_t other : met) {
      com_graph.push_back({com, other, shared[other]});
      shared[other] = 0;
    }
  }
}

void Community_statistics(Distribution& size_dist, Distribution& degree_dist,
                          Distribution& overlap_dist, Distribution& membership_dist,
                          const Row_array<Node_index>& coms, std::uint32_t vertex_count) {
  Com_graph com_graph;
  Prepare_community_graph(com_graph, coms);
  Community_statistics(size_dist, degree_dist, overlap_dist, membership_dist, coms, com_graph,
                       vertex_count);
}

void Community_statistics(Distribution& size_dist, Distribution& degree_dist,
                          Distribution& overlap_dist, Distribution& membership_dist,
                          const Row_array<Node_index>& coms, const Com_graph& com_graph,
                          std::uint32_t vertex_count) {
  for (Distribution* dist : {&size_dist, &degree_dist, &overlap_dist, &membership_dist})
    dist->clear();
  for (std::size_t com = 0; com < coms.size(); ++com)
    ++size_dist[static_cast<std::uint32_t>(coms[com].size())];

  std::vector<std::uint32_t> degrees(coms.size(), 0);
  for (const Com_overlap& overlap : com_graph) {
    ++overlap_dist[overlap.shared];
    ++degrees[overlap.first];
    ++degrees[overlap.second];
  }
  for (const std::uint32_t degree : degrees) ++degree_dist[degree];

  const Close_numbered numbered(coms);
  std::vector<std::uint32_t> memberships(Node_limit(numbered.Coms()), 0);
  for (const Node_index node : numbered.Coms().Values()) ++memberships[node];
  std::uint32_t covered = 0;
  for (const std::uint32_t membership : memberships) {
    if (membership == 0) continue;
    ++membership_dist[membership];
    ++covered;
  }
  if (covered > vertex_count)
    throw Xerror_msg(
        "ERROR: Community_statistics() : More vertex in the communities than in the graph.");
  membership_dist[0] = vertex_count - covered;
}

}  // namespace gns
