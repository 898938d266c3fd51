#include "intensity/K_clique_search.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include "control/Run_control.h"
#include "intensity/Hopeful_nodes.h"

namespace gns {

namespace {

/// More than two sums of the logarithms of a k-clique can differ by rounding, in whatever order and
/// grouping they are added up, and a few operations on top.
double Rounding_margin(std::uint32_t k, double largest_log) {
  constexpr double share = 4 * std::numeric_limits<double>::epsilon();
  const double links = 0.5 * k * (k - 1.0);
  return share * links * links * largest_log;
}

}  // namespace

K_clique_search::K_clique_search(const Weighted_cliques& cliques, std::uint32_t k,
                                 double intensity_threshold)
    : cliques_(cliques),
      k_(k),
      threshold_(Log_threshold(intensity_threshold, k)),
      reject_below_(threshold_ - Rounding_margin(k, cliques.Largest_log())),
      accept_above_(threshold_ + Rounding_margin(k, cliques.Largest_log())),
      bounds_(reject_below_, accept_above_),
      root_links_(cliques, k, reject_below_),
      levels_(k - 2),
      k_clique_(k) {}

void K_clique_search::Search_from(Node_index root, K_cliques& found) {
  Tell_and_poll(found);
  if (!(threshold_ < std::numeric_limits<double>::infinity())) return;
  if (!root_links_.Begin(root, levels_[0].candidates)) return;
  k_clique_[0] = root;
  levels_[0].all_pass = false;
  levels_[0].links = &root_links_.Ranked();
  if (!Begin_level(0, found)) return;
  for (std::uint32_t depth = 0;;) {
    Tell_and_poll(found);
    Level& level = levels_[depth];
    const std::uint32_t missing = k_ - 1 - depth;
    if (missing > 2 && level.candidates.size() - level.next >= missing) {
      if (Descend(depth, found)) ++depth;
      continue;
    }
    if (missing == 2) Take_pairs(level, found);
    if (depth == 0) return;
    --depth;
  }
}

void K_clique_search::Tell_and_poll(const K_cliques& found) const {
  external_control::This_control().progress.k_cliques_found.store(found.size(),
                                                                  std::memory_order_relaxed);
  external_control::This_control().progress.k_cliques_visited.store(visited_,
                                                                    std::memory_order_relaxed);
  external_control::Check_for_stop_signal();
}

/// Looks at the candidates of a new level; false if there is nothing left to do with them.
bool K_clique_search::Begin_level(std::uint32_t depth, K_cliques& found) {
  Level& level = levels_[depth];
  const std::uint32_t missing = k_ - 1 - depth;
  level.next = 0;
  if (level.candidates.size() < missing) return false;
  if (root_links_.Are_bounded() && missing > 2) {
    const Outlook outlook =
        bounds_.Judge(*level.links, level.sum, missing, !level.all_pass, level.candidates);
    if (outlook == Outlook::none_passes) return false;
    if (outlook == Outlook::all_subsets_pass) {
      Take_all_subsets(level, depth, found);
      return false;
    }
    level.all_pass = outlook == Outlook::all_pass;
    if (missing > 3 && level.candidates.size() * 2 < level.links->Row_count()) {
      level.own_links.Take_part(*level.links, level.candidates.nodes);
      level.links = &level.own_links;
    }
  }
  level.best_sum = *std::ranges::max_element(level.candidates.sums);
  return true;
}

/// Chooses the next candidate; true if the level below it is worth entering.
bool K_clique_search::Descend(std::uint32_t depth, K_cliques& found) {
  Level& level = levels_[depth];
  Level& below = levels_[depth + 1];
  const std::size_t at = level.next++;
  ++visited_;
  const std::uint32_t missing_below = k_ - 2 - depth;
  const std::uint32_t node = level.candidates.nodes[at];
  below.sum = level.sum + level.candidates.sums[at];
  below.all_pass = level.all_pass;
  below.links = level.links;
  if (!level.all_pass && root_links_.Are_bounded() && Is_hopeless(level, below.sum, missing_below))
    return false;
  k_clique_[depth + 1] = root_links_.Name_of(node);
  below.candidates.clear();
  const bool with_reach = !below.all_pass && root_links_.Are_bounded();
  For_each_behind(level, at, [&](std::size_t position, double candidate_sum) {
    below.candidates.push_back(level.candidates.nodes[position], candidate_sum,
                               with_reach ? level.candidates.reach[position] : 0.0);
  });
  if (below.candidates.size() < missing_below) return false;
  if (with_reach && missing_below > 2 &&
      bounds_.Are_out_of_reach(below.sum, missing_below, below.candidates))
    return false;
  return Begin_level(depth + 1, found);
}

/// A rough bound from above: the best candidate and the highest logarithm for all that is missing.
bool K_clique_search::Is_hopeless(const Level& level, double sum, std::uint32_t missing) const {
  const double links_between = 0.5 * missing * (missing + 1.0);
  return sum + missing * level.best_sum + links_between * root_links_.Highest_log() < reject_below_;
}

/// Calls use(candidate, its sum with the one at position `at`) for those behind `at` that are
/// linked to the one there.
template <typename Use>
void K_clique_search::For_each_behind(const Level& level, std::size_t at, Use use) const {
  const std::vector<std::uint32_t>& nodes = level.candidates.nodes;
  const Link_rows::Row row = root_links_[nodes[at]];
  std::size_t next = at + 1;
  for (std::size_t i = 0; i < row.nodes.size(); ++i) {
    while (next < nodes.size() && nodes[next] < row.nodes[i]) ++next;
    if (next == nodes.size()) return;
    if (nodes[next] == row.nodes[i]) use(next, level.candidates.sums[next] + row.logs[i]);
  }
}

/// Completes a partial k-clique that lacks two nodes.
void K_clique_search::Take_pairs(const Level& level, K_cliques& found) {
  for (std::size_t at = 0; at + 1 < level.candidates.size(); ++at) {
    Tell_and_poll(found);
    ++visited_;
    const std::uint32_t node = level.candidates.nodes[at];
    const double sum = level.sum + level.candidates.sums[at];
    if (!level.all_pass && root_links_.Are_bounded() && Is_hopeless(level, sum, 1)) continue;
    k_clique_[k_ - 2] = root_links_.Name_of(node);
    For_each_behind(level, at, [&](std::size_t last, double last_sum) {
      ++visited_;
      k_clique_[k_ - 1] = root_links_.Name_of(level.candidates.nodes[last]);
      if (level.all_pass || Passes(sum + last_sum)) found.push_back(k_clique_);
    });
  }
}

/// Completes a partial k-clique by every subset of its candidates.
void K_clique_search::Take_all_subsets(const Level& level, std::uint32_t depth, K_cliques& found) {
  const std::vector<std::uint32_t>& nodes = level.candidates.nodes;
  const std::size_t missing = k_ - 1 - depth;
  subset_.resize(missing);
  std::iota(subset_.begin(), subset_.end(), 0);
  for (;;) {
    Tell_and_poll(found);
    ++visited_;
    for (std::size_t i = 0; i < missing; ++i)
      k_clique_[depth + 1 + i] = root_links_.Name_of(nodes[subset_[i]]);
    found.push_back(k_clique_);
    std::size_t last = missing;
    while (last > 0 && subset_[last - 1] == nodes.size() - missing + last - 1) --last;
    if (last == 0) return;
    std::iota(subset_.begin() + static_cast<std::ptrdiff_t>(last) - 1, subset_.end(),
              subset_[last - 1] + 1);
  }
}

/// Decides on k_clique_, whose logarithms add up to about `sum`.
bool K_clique_search::Passes(double sum) {
  if (sum > accept_above_) return true;
  if (sum < reject_below_) return false;
  return Passes_exactly();
}

bool K_clique_search::Passes_exactly() {
  sub_links_.Load(k_clique_, cliques_.Logs());
  if (sub_links_.Sum(k_) > threshold_) return true;
  // No clique around the k-clique has a higher lowest logarithm than the k-clique itself.
  const auto passes = [this](double min_log_w) { return Some_partial_sum_passes(min_log_w); };
  return passes(sub_links_.Lowest()) && cliques_.Any_clique_around(k_clique_, passes);
}

bool K_clique_search::Some_partial_sum_passes(double min_log_w) const {
  const double total = static_cast<double>((k_ - 1) * k_) * 0.5;
  for (std::uint32_t nodes = 2; nodes <= k_; ++nodes) {
    const double done = (nodes * 0.5) * (nodes - 1.0);
    if ((total - done) * min_log_w + sub_links_.Sum(nodes) > threshold_) return true;
  }
  return false;
}

}  // namespace gns
