#include "percolation/Community_contents.h"

#include <algorithm>
#include <numeric>

#include "control/Run_control.h"

namespace gns {

namespace {

void Append_all_pairs(Node_span members, Communities& result) {
  for (std::size_t i = 0; i < members.size(); ++i)
    for (std::size_t j = i + 1; j < members.size(); ++j)
      result.com_links.Append({members[i], members[j]});
}

std::size_t Behind_all(Node_span nodes) {
  return nodes.empty() ? 1 : std::size_t{*std::ranges::max_element(nodes)} + 1;
}

}  // namespace

Community_contents::Community_contents(const Clique_vector& cliques)
    : cliques_(cliques),
      community_of_(cliques.size(), none),
      place_of_(Behind_all(cliques.Values()), 0),
      met_by_(place_of_.size(), 0),
      to_sort_(place_of_.size()) {}

void Community_contents::Note_communities(const Communities& communities) {
  for (std::uint32_t com = 0; com < communities.size(); ++com)
    for (const Clique_index clique : communities.com_cliques[com]) community_of_[clique] = com;
}

void Community_contents::Forget_communities() { std::ranges::fill(community_of_, none); }

void Community_contents::Append(std::span<const Clique_index> com_cliques,
                                const Communities& before, Communities& result) {
  Sort_out(com_cliques);
  result.com_cliques.push_back(com_cliques);
  if (parts_.size() == 1 && new_cliques_.empty()) {
    result.coms.push_back(before.coms[parts_[0]]);
    result.com_links.push_back(before.com_links[parts_[0]]);
    return;
  }
  if (parts_.empty() && new_cliques_.size() == 1) {
    result.coms.push_back(cliques_[new_cliques_[0]]);
    Append_all_pairs(cliques_[new_cliques_[0]], result);
    result.com_links.Close_row();
    return;
  }
  Collect_members(before);
  Collect_sources(before);
  result.coms.push_back(members_);
  for (std::size_t i = 0; i < members_.size(); ++i) {
    external_control::Check_inside_long_stage();
    Append_links(members_[i],
                 {sources_.data() + source_starts_[i], source_starts_[i + 1] - source_starts_[i]},
                 before, result);
  }
  result.com_links.Close_row();
  for (const Node_index member : members_) place_of_[member] = 0;
}

/// Parts the cliques of a community into whole former communities and cliques of their own.
void Community_contents::Sort_out(std::span<const Clique_index> com_cliques) {
  parts_.clear();
  new_cliques_.clear();
  for (const Clique_index clique : com_cliques) {
    if (community_of_[clique] == none)
      new_cliques_.push_back(clique);
    else
      parts_.push_back(community_of_[clique]);
  }
  std::sort(parts_.begin(), parts_.end());
  parts_.erase(std::unique(parts_.begin(), parts_.end()), parts_.end());
}

void Community_contents::Collect_members(const Communities& before) {
  members_.clear();
  const auto add = [this](Node_span nodes) {
    for (const Node_index node : nodes) {
      if (place_of_[node] != 0) continue;
      place_of_[node] = 1;
      members_.push_back(node);
    }
  };
  for (const std::uint32_t part : parts_) add(before.coms[part]);
  for (const Clique_index clique : new_cliques_) add(cliques_[clique]);
  std::sort(members_.begin(), members_.end());
  for (std::uint32_t i = 0; i < members_.size(); ++i) place_of_[members_[i]] = i + 1;
}

/// Calls use(first node, source) for each source of links.
template <typename Use>
void Community_contents::For_each_source(const Communities& before, Use use) const {
  for (const std::uint32_t part : parts_) {
    external_control::Check_inside_long_stage();
    const std::span<const Index_pair> links = before.com_links[part];
    const auto offset = static_cast<std::size_t>(links.data() - before.com_links.Values().data());
    for (std::size_t start = 0, end = 0; start < links.size(); start = end) {
      const std::size_t most_end = std::min(links.size(), start + Source::most);
      while (end < most_end && links[end].first == links[start].first) ++end;
      use(links[start].first, Source(true, offset + start, end - start));
    }
  }
  for (const Clique_index clique : new_cliques_) {
    external_control::Check_inside_long_stage();
    const Node_span row = cliques_[clique];
    const auto offset = static_cast<std::size_t>(row.data() - cliques_.Values().data());
    for (std::size_t i = 1; i < row.size(); ++i)
      for (std::size_t at = i; at < row.size(); at += Source::most)
        use(row[i - 1], Source(false, offset + at, std::min(row.size() - at, Source::most)));
  }
}

void Community_contents::Collect_sources(const Communities& before) {
  source_starts_.assign(members_.size() + 2, 0);
  For_each_source(
      before, [this](Node_index node, const Source&) { ++source_starts_[place_of_[node] + 1]; });
  std::partial_sum(source_starts_.begin(), source_starts_.end(), source_starts_.begin());
  sources_.resize(source_starts_.back());
  // Filling moves each start on to the start of the next member.
  For_each_source(before, [this](Node_index node, const Source& source) {
    sources_[source_starts_[place_of_[node]]++] = source;
  });
}

void Community_contents::Append_links(Node_index member, std::span<const Source> sources,
                                      const Communities& before, Communities& result) {
  const Node_index* const nodes = cliques_.Values().data();
  const Index_pair* const pairs = before.com_links.Values().data();
  met_.clear();
  const auto meet = [&](Node_index node) {
    if (met_by_[node] == member) return;
    met_by_[node] = member;
    met_.push_back(node);
  };
  for (const Source source : sources) {
    if (source.Are_pairs())
      for (std::size_t i = source.Start(); i < source.End(); ++i) meet(pairs[i].second);
    else
      for (std::size_t i = source.Start(); i < source.End(); ++i) meet(nodes[i]);
  }
  if (sources.size() > 1) to_sort_.Sort(met_);
  for (const Node_index node : met_) {
    result.com_links.Append({member, node});
    met_by_[node] = 0;
  }
}

}  // namespace gns
