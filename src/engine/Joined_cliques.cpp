#include "engine/Joined_cliques.h"

#include <algorithm>
#include <utility>

#include "control/Run_control.h"
#include "engine/Clique_partners.h"
#include "foundation/text/Decimal_digits.h"

namespace gns {

using external_control::Check_inside_long_stage;

Joined_cliques::Amount& Joined_cliques::Amount::operator+=(const Amount& other) {
  count += other.count;
  bytes += other.bytes;
  return *this;
}

Joined_cliques::Amount& Joined_cliques::Amount::operator-=(const Amount& other) {
  count -= other.count;
  bytes -= other.bytes;
  return *this;
}

Joined_cliques::Joined_cliques(const Clique_vector& cliques, std::uint32_t exact_clique_count,
                               const Index_links& index_links, const Node_names& node_names)
    : cliques_(cliques),
      exact_clique_count_(exact_clique_count),
      partner_of_(cliques.size()),
      levels_(cliques.size()),
      shared_(cliques.size()),
      leads_to_(cliques.size()),
      groups_(cliques.size()) {
  for (std::size_t i = 0; i < cliques.size(); ++i)
    largest_ = std::max(largest_, static_cast<std::uint32_t>(cliques[i].size()));
  reached_ = largest_ + 1;
  of_size_ = Adjacency(largest_, [&](auto enter) {
    for (Clique_index i = 0; i < cliques.size(); ++i)
      enter(static_cast<Node_index>(cliques[i].size()), i);
  });
  const Node_index node_count = std::max(node_names.size(), index_links.Node_count());
  name_bytes_.resize(std::size_t{node_count} + 1);
  for (Node_index node = 1; node <= node_count; ++node)
    name_bytes_[node] = static_cast<double>(node_names[node].size() + 1);
  Count_in_graph(index_links);
  Find_partners();
}

Joined_cliques::Amount Joined_cliques::Smaller(const Amount& a, const Amount& b) {
  return {std::min(a.count, b.count), std::min(a.bytes, b.bytes)};
}

/// Every link line shows two names, each with a blank or the end of the line behind it.
Joined_cliques::Amount Joined_cliques::Links_among(const Amount& nodes) {
  return {nodes.count * (nodes.count - 1) / 2, nodes.bytes * (nodes.count - 1)};
}

/// A directed link in both directions counts twice. An approximate clique counts with all its
/// pairs.
void Joined_cliques::Count_in_graph(const Index_links& index_links) {
  nodes_.resize(largest_ + std::size_t{2});
  links_.resize(nodes_.size());
  std::vector<std::uint32_t> largest_of(name_bytes_.size(), 0);
  for (std::size_t i = 0; i < cliques_.size(); ++i) {
    const Node_span members = cliques_[i];
    const auto size = static_cast<std::uint32_t>(members.size());
    Amount names;
    for (const Node_index node : members) {
      largest_of[node] = std::max(largest_of[node], size);
      names += {1, name_bytes_[node]};
    }
    groups_[i].nodes = names;
    if (i >= exact_clique_count_) links_[size] += Links_among(names);
  }
  for (Node_index node = 1; node < name_bytes_.size(); ++node)
    nodes_[largest_of[node]] += {1, name_bytes_[node]};
  for (Node_index first = 1; first <= index_links.Node_count(); ++first)
    for (const Node_index second : index_links.Row(first)) {
      Check_inside_long_stage();
      links_[std::min(largest_of[first], largest_of[second])] +=
          {1, name_bytes_[first] + name_bytes_[second]};
    }
  for (std::uint32_t size = largest_; size > 0; --size) {
    nodes_[size] += nodes_[size + 1];
    links_[size] += links_[size + 1];
  }
}

void Joined_cliques::Find_partners() {
  Clique_partners partners(static_cast<Node_index>(name_bytes_.size()), cliques_.size());
  for (Clique_index i = 0; i < cliques_.size(); ++i) {
    Check_inside_long_stage();
    const Clique_partners::Partner partner = partners.Of(i, cliques_[i]);
    partner_of_[i] = partner.clique;
    if (partner.shared == 0) continue;
    const std::size_t smaller = std::min(cliques_[i].size(), cliques_[partner.clique].size());
    partners.For_each_shared(cliques_[i], partner, [&](Node_index node) {
      shared_[i] += {1, name_bytes_[node]};
    });
    levels_[i] = static_cast<std::uint32_t>(std::min(partner.shared + std::size_t{1}, smaller));
  }
  of_level_ = Adjacency(largest_, [&](auto enter) {
    for (Clique_index i = 0; i < cliques_.size(); ++i)
      if (levels_[i] > 0) enter(levels_[i], i);
  });
}

const Level_counts& Joined_cliques::At(std::uint32_t k) {
  bool changed = false;
  while (reached_ > std::max(k, 1U)) {
    --reached_;
    for (const Clique_index clique : of_size_[reached_]) Enter(clique);
    for (const Clique_index clique : of_level_[reached_]) Join(clique, partner_of_[clique]);
    changed = changed || !of_size_[reached_].empty() || !of_level_[reached_].empty();
  }
  if (changed) Recount();
  return counts_;
}

void Joined_cliques::Enter(Clique_index clique) {
  Check_inside_long_stage();
  Group& group = groups_[clique];
  group.links = Links_among(group.nodes);
  leads_to_[clique] = clique;
  representatives_.push_back(clique);
  constexpr double blank = 1;
  const double sign = clique < exact_clique_count_ ? 0 : 1;
  counts_.cliques += 1;
  counts_.clique_bytes += sign + Decimal_digits(clique) + blank;
}

void Joined_cliques::Join(Clique_index clique, Clique_index earlier) {
  const Clique_index into = Representative(clique);
  const Clique_index from = Representative(earlier);
  if (into == from) return;
  const Amount& shared = shared_[clique];
  groups_[into].nodes += groups_[from].nodes;
  groups_[into].nodes -= shared;
  groups_[into].links += groups_[from].links;
  groups_[into].links -= Links_among(shared);
  leads_to_[from] = into;
}

Clique_index Joined_cliques::Representative(Clique_index clique) {
  while (leads_to_[clique] != clique) {
    leads_to_[clique] = leads_to_[leads_to_[clique]];
    clique = leads_to_[clique];
  }
  return clique;
}

/// No group holds more than there is in the graph, and no more links than its nodes can have.
void Joined_cliques::Recount() {
  std::erase_if(representatives_, [&](Clique_index i) { return leads_to_[i] != i; });
  Level_counts sums;
  sums.cliques = counts_.cliques;
  sums.clique_bytes = counts_.clique_bytes;
  sums.communities = static_cast<double>(representatives_.size());
  double largest = 0.0;
  for (const Clique_index i : representatives_) {
    const Group& group = groups_[i];
    const Amount nodes = Smaller(group.nodes, nodes_[reached_]);
    const Amount links = Smaller(Smaller(group.links, Links_among(nodes)), links_[reached_]);
    sums.members += nodes.count;
    sums.member_bytes += nodes.bytes;
    sums.links += links.count;
    sums.link_bytes += links.bytes;
    sums.second_size = std::max(sums.second_size, std::min(largest, nodes.count));
    largest = std::max(largest, nodes.count);
  }
  counts_ = sums;
}

}  // namespace gns
