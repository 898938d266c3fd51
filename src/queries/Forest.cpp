#include "queries/Forest.h"

#include <algorithm>

#include "control/Run_control.h"
#include "queries/Tree.h"

namespace vorlane::queries {

namespace {

/// The nodes of some communities that are in none of their children, community by community.
class Own_nodes_finder {
 public:
  explicit Own_nodes_finder(Node node_count) : seen_by_(std::size_t{node_count} + 1, 0) {}

  void Add(Rows::Row members, gns::Node_span children_of, const Rows& children,
           std::vector<Node>& own_nodes) {
    ++mark_;
    for (const std::uint32_t child : children_of)
      for (const Node node : children[child]) seen_by_[node] = mark_;
    for (const Node node : members)
      if (seen_by_[node] != mark_) own_nodes.push_back(node);
  }

 private:
  std::vector<std::uint32_t> seen_by_;
  std::uint32_t mark_ = 0;
};

}  // namespace

Forest::Forest(const Results& results) : ks_(results.Ks().rbegin(), results.Ks().rend()) {
  std::size_t level = 0;
  for (const Tree_node& node : Tree_of(results)) {
    for (; ks_[level] != node.place.k; ++level) first_of_.push_back(size());
    const std::size_t below = level == 0 ? 0 : first_of_[level - 1];
    parents_.push_back(node.parent ? static_cast<std::uint32_t>(below + *node.parent) : none);
  }
  while (first_of_.size() <= ks_.size()) first_of_.push_back(size());
  Find_own_nodes(results);
}

void Forest::Find_own_nodes(const Results& results) {
  Own_nodes_finder finder(results.Network().size());
  Rows members = ks_.empty() ? Rows() : results.Communities_at(ks_[0]).members;
  for (std::size_t level = 0; level < ks_.size(); ++level) {
    external_control::Check_for_stop_signal();
    const bool is_last = level + 1 == ks_.size();
    const Rows children = is_last ? Rows() : results.Communities_at(ks_[level + 1]).members;
    const std::uint32_t first = first_of_[level];
    const gns::Row_index children_of(static_cast<Node>(members.size()), [&](auto enter) {
      for (std::uint32_t i = 0; i < children.size(); ++i)
        if (const std::uint32_t parent = parents_[first_of_[level + 1] + i]; parent != none)
          enter(parent - first + 1, i);
    });
    for (std::uint32_t i = 0; i < members.size(); ++i) {
      sizes_.push_back(static_cast<std::uint32_t>(members[i].size()));
      finder.Add(members[i], children_of[i + 1], children, own_nodes_);
      own_starts_.push_back(own_nodes_.size());
    }
    members = children;
  }
}

std::size_t Forest::Level_of(std::uint32_t place) const {
  return static_cast<std::size_t>(std::ranges::upper_bound(first_of_, place) - first_of_.begin()) -
         1;
}

std::vector<std::uint32_t> Forest::Homes(Node node_count) const {
  std::vector<std::uint32_t> homes(std::size_t{node_count} + 1, none);
  for (std::size_t level = ks_.size(); level-- > 0;)
    for (std::uint32_t place = First_of(level); place < First_of(level + 1); ++place)
      for (const Node node : Own_nodes(place))
        if (homes[node] == none) homes[node] = place;
  return homes;
}

}  // namespace vorlane::queries
