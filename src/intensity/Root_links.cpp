#include "intensity/Root_links.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "intensity/Hopeful_nodes.h"

namespace gns {

Root_links::Root_links(const Weighted_cliques& cliques, std::uint32_t k, double reject_below)
    : cliques_(cliques), k_(k), number_of_(std::size_t{cliques.Node_count()} + 1, 0) {
  const Hopeful_nodes hopeful(cliques, k, reject_below);
  rows_.Close_row();  // there is no node 0
  for (Node_index node = 1; node <= cliques.Node_count(); ++node) {
    rows_.Make_room(cliques.Ranked_links(node).size());
    if (hopeful[node])
      cliques.For_each_link(node, k, [&](Node_index neighbour, double log, std::uint32_t) {
        rows_.Append(neighbour, log, hopeful[neighbour]);
      });
    rows_.Close_row();
  }
}

bool Root_links::Begin(Node_index root, Candidates& candidates) {
  const Link_rows::Row row = rows_[root];
  if (row.nodes.size() + 1 < k_) return false;
  names_.assign(row.nodes.begin(), row.nodes.end());
  for (std::uint32_t i = 0; i < names_.size(); ++i) number_of_[names_[i]] = i + 1;
  Link_names();
  Collect(row.logs, candidates);
  const bool enough = candidates.size() + 1 >= k_;
  if (enough && bounded_ && k_ > 3) Rank(candidates);
  for (const Node_index node : names_) number_of_[node] = 0;
  return enough;
}

void Root_links::Link_names() {
  links_.clear();
  for (const Node_index node : names_) {
    const Link_rows::Row row = rows_[node];
    links_.Make_room(row.nodes.size());
    for (std::size_t i = 0; i < row.nodes.size(); ++i) {
      const std::uint32_t number = number_of_[row.nodes[i]];
      links_.Append(number - 1, row.logs[i], number != 0);
    }
    links_.Close_row();
  }
}

/// Collects those that are linked to enough of the others. `logs` are of the links to the root.
void Root_links::Collect(const double* logs, Candidates& candidates) {
  link_counts_.assign(names_.size(), 0);
  for (std::uint32_t i = 0; i < names_.size(); ++i) {
    link_counts_[i] += static_cast<std::uint32_t>(links_[i].nodes.size());
    for (const std::uint32_t other : links_[i].nodes) ++link_counts_[other];
  }
  candidates.clear();
  for (std::uint32_t i = 0; i < names_.size(); ++i) {
    if (link_counts_[i] + 2 >= k_)
      candidates.push_back(i, logs[i], std::numeric_limits<double>::infinity());
    else
      number_of_[names_[i]] = 0;
  }
  bounded_ = true;
  highest_log_ = -std::numeric_limits<double>::infinity();
  Note_range(candidates.sums);
  Note_range(links_.Logs());
}

void Root_links::Rank(const Candidates& candidates) {
  ranked_.Begin(names_.size());
  for (const std::uint32_t candidate : candidates.nodes) {
    const auto ends = cliques_.Ranked_links(names_[candidate]);
    ranked_.Make_room(ends.size());
    for (const Weighted_cliques::Link_end& end : ends) {
      const std::uint32_t number = number_of_[end.node];
      ranked_.Append(number - 1, end.log, number != 0 && end.clique_size >= k_);
    }
    ranked_.Close_row_of(candidate);
  }
}

void Root_links::Note_range(std::span<const double> logs) {
  for (const double log : logs) {
    bounded_ = bounded_ && std::isfinite(log);
    highest_log_ = std::max(highest_log_, log);
  }
}

}  // namespace gns
