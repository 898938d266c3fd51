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
      to_sort_(place_of_.size()),
      cliques_to_sort_(cliques.size()) {}

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
  cliques_to_sort_.Sort(new_cliques_);  // as they stand in memory
  Collect_members(before);
  Count_sources(before);
  result.coms.push_back(members_);
  Rewind();
  for (std::size_t first = 0; first < members_.size();) {
    const std::size_t last = End_of_batch(first);
    Collect_sources(first, last, before);
    for (std::size_t i = first; i < last; ++i) {
      external_control::Check_inside_long_stage();
      const std::size_t start = source_starts_[i] - source_starts_[first];
      const std::size_t end = source_starts_[i + 1] - source_starts_[first];
      Append_links(members_[i], {sources_.data() + start, end - start}, before, result);
    }
    first = last;
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

void Community_contents::Rewind() {
  part_at_.assign(parts_.size(), 0);
  clique_at_.assign(new_cliques_.size(), 0);
}

/// Calls use(first node, source) for the sources of links that begin at nodes up to `last`, from
/// where the call before has ended.
template <typename Use>
void Community_contents::For_each_source(Node_index last, const Communities& before, Use use) {
  for (std::size_t part = 0; part < parts_.size(); ++part) {
    external_control::Check_inside_long_stage();
    const std::span<const Index_pair> links = before.com_links[parts_[part]];
    const auto offset = static_cast<std::size_t>(links.data() - before.com_links.Values().data());
    std::size_t start = part_at_[part];
    for (std::size_t end = start; start < links.size() && links[start].first <= last; start = end) {
      const std::size_t most_end = std::min(links.size(), start + Source::most);
      while (end < most_end && links[end].first == links[start].first) ++end;
      use(links[start].first, Source(true, offset + start, end - start));
    }
    part_at_[part] = start;
  }
  for (std::size_t clique = 0; clique < new_cliques_.size(); ++clique) {
    external_control::Check_inside_long_stage();
    const Node_span row = cliques_[new_cliques_[clique]];
    const auto offset = static_cast<std::size_t>(row.data() - cliques_.Values().data());
    std::size_t i = clique_at_[clique];
    for (; i + 1 < row.size() && row[i] <= last; ++i)
      for (std::size_t at = i + 1; at < row.size(); at += Source::most)
        use(row[i], Source(false, offset + at, std::min(row.size() - at, Source::most)));
    clique_at_[clique] = static_cast<std::uint32_t>(i);
  }
}

/// Tells where the sources of each member start, if those of all stand behind each other.
void Community_contents::Count_sources(const Communities& before) {
  source_starts_.assign(members_.size() + 1, 0);
  Rewind();
  For_each_source(members_.back(), before,
                  [this](Node_index node, const Source&) { ++source_starts_[place_of_[node]]; });
  std::partial_sum(source_starts_.begin(), source_starts_.end(), source_starts_.begin());
}

/// The sources of so many members are held at a time, from the first on, that the cliques are gone
/// through a few times at most: those of a giant community take more memory than all its cliques.
std::size_t Community_contents::End_of_batch(std::size_t first) const {
  constexpr std::size_t few = std::size_t{1} << 22U;
  constexpr std::size_t most_batches = 8;
  const std::size_t most = std::max(few, source_starts_.back() / most_batches);
  const auto end = std::upper_bound(source_starts_.begin() + static_cast<std::ptrdiff_t>(first) + 1,
                                    source_starts_.end(), source_starts_[first] + most);
  return std::max(first + 1, static_cast<std::size_t>(end - source_starts_.begin()) - 1);
}

void Community_contents::Collect_sources(std::size_t first, std::size_t last,
                                         const Communities& before) {
  sources_.resize(source_starts_[last] - source_starts_[first]);
  next_source_.assign(source_starts_.begin() + static_cast<std::ptrdiff_t>(first),
                      source_starts_.begin() + static_cast<std::ptrdiff_t>(last));
  For_each_source(members_[last - 1], before, [&](Node_index node, const Source& source) {
    sources_[next_source_[place_of_[node] - 1 - first]++ - source_starts_[first]] = source;
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
