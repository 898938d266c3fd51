#include "intensity/K_clique_joiner.h"

#include <algorithm>

#include "control/Run_control.h"

namespace gns {

namespace {

using external_control::Check_for_stop_signal;

/// The first half of the work goes from depth to depth, the second through the subsets.
std::uint32_t Remaining(std::size_t count, double share_done) {
  const auto done = static_cast<std::size_t>(share_done * static_cast<double>(count));
  return static_cast<std::uint32_t>(count - std::min(done, count - 1));
}

}  // namespace

K_clique_joiner::K_clique_joiner(const K_clique_tree& tree, const Link_logs& logs,
                                 double intensity_threshold)
    : tree_(tree),
      logs_(logs),
      threshold_(Log_threshold(intensity_threshold, tree.K() - 1)),
      all_pass_(Every_set_passes(logs, tree.K() - 1, threshold_)),
      groups_(tree.All().size()),
      marks_(tree.Place_count()),
      subset_(tree.K() - 1),
      next_(std::size_t{tree.Largest_node()} + 1) {}

K_clique_groups& K_clique_joiner::Join(Progress_report& progress) {
  constexpr Index told_after = 1024;
  const std::size_t count = tree_.All().size();
  for (std::uint32_t depth = tree_.K(); depth-- > 0;) {
    for (Index index = 0; index < tree_.Count(depth); ++index) {
      Check_for_stop_signal();
      if (index % told_after == 0) {
        const double at = tree_.First_k_clique(depth, index) / static_cast<double>(count);
        progress.Set_remaining(Remaining(count, 0.5 * (tree_.K() - 1 - depth + at) / tree_.K()));
      }
      if (depth + 1 == tree_.K())
        Join_ends(index);
      else
        Join_inside(depth, index);
    }
  }
  beginnings_.push_back({0, 0, 0, 0});
  Join_all(&progress);
  progress.Set_remaining(1);
  return groups_;
}

/// Unites the k-cliques that differ in their last node only.
void K_clique_joiner::Join_ends(Index index) {
  const std::uint32_t depth = tree_.K() - 1;
  const auto [begin, end] = tree_.Children(depth, index);
  Mark& mark = marks_[tree_.Place(depth, index)];
  mark.refused = end - begin > 1 && !Passes(tree_.All()[begin].first(depth));
  mark.one_group = !mark.refused;
  if (mark.refused) return;
  for (K_clique_index i = begin + 1; i < end; ++i) groups_.Unite(begin, i);
}

/// Goes through the subsets that begin as a branch does, and lack the node behind that beginning.
/// Where there is little hope for one group, that is left for later.
void K_clique_joiner::Join_inside(std::uint32_t depth, Index index) {
  const auto children = tree_.Children(depth, index);
  for (Index child = children.begin; child < children.end; ++child)
    if (!Is_in_one_group(depth + 1, child)) return;
  bool& one_group = marks_[tree_.Place(depth, index)].one_group;
  one_group = Are_in_one_group(depth + 1, children);
  if (one_group) return;
  const Node_span members = tree_.All()[tree_.First_k_clique(depth, index)];
  std::copy_n(members.begin(), depth, subset_.begin());
  for (Index child = children.begin; child < children.end; ++child) longer_.push_back(child);
  beginnings_.push_back({depth, tree_.Last(depth, index), none, 0});
  Join_all(nullptr);
  one_group = Are_in_one_group(depth + 1, children);
}

/// Works off all beginnings that are left to do.
void K_clique_joiner::Join_all(Progress_report* progress) {
  std::size_t first_nodes = 0;  // of which the subsets are left to do
  while (!beginnings_.empty()) {
    Check_for_stop_signal();
    const Beginning beginning = beginnings_.back();
    beginnings_.pop_back();
    if (progress != nullptr && beginning.depth == 1) {
      first_nodes = std::max(first_nodes, beginnings_.size() + 1);
      const double left =
          static_cast<double>(beginnings_.size()) / static_cast<double>(first_nodes);
      progress->Set_remaining(Remaining(tree_.All().size(), 1 - 0.5 * left));
    }
    at_hand_.assign(longer_.begin() + static_cast<std::ptrdiff_t>(beginning.longer), longer_.end());
    longer_.resize(beginning.longer);
    if (beginning.depth > 0) subset_[beginning.depth - 1] = beginning.last;
    if (Are_in_one_group(beginning)) continue;
    if (beginning.branch != none) {
      const auto [begin, end] = tree_.Children(beginning.depth, beginning.branch);
      for (Index child = begin; child < end; ++child) at_hand_.push_back(child);
    }
    if (beginning.depth + 1 == tree_.K())
      Join_subset(beginning);
    else
      Divide(beginning);
  }
}

/// Unites the k-cliques at hand, which have a whole subset in common, if it passes.
void K_clique_joiner::Join_subset(const Beginning& subset) {
  Mark* const mark =
      subset.branch == none ? nullptr : &marks_[tree_.Place(subset.depth, subset.branch)];
  if (mark != nullptr && mark->refused) return;
  if (Passes(subset_))
    for (const K_clique_index i : at_hand_) groups_.Unite(at_hand_.front(), i);
  else if (mark != nullptr)
    mark->refused = true;
}

/// Leaves the beginnings with one node more to be done, where they can join something.
void K_clique_joiner::Divide(const Beginning& beginning) {
  const std::uint32_t depth = beginning.depth + 1;
  Note_next(beginning);
  for (const Node_index node : next_nodes_) {
    Next& next = next_[node];
    const bool divided = next.branch != none && !Is_in_one_group(depth, next.branch);
    next.joins = next.count + (next.branch != none ? 1 : 0) > 1 || divided;
    if (!next.joins) continue;
    next.place = longer_.size();
    beginnings_.push_back({depth, node, next.branch, next.place});
    longer_.resize(longer_.size() + next.count);
  }
  for (const Index branch : at_hand_) {
    const auto [begin, end] = tree_.Children(depth, branch);
    for (Index child = begin; child < end; ++child) {
      Next& next = next_[tree_.Last(depth + 1, child)];
      if (next.joins) longer_[next.place++] = child;
    }
  }
  for (const Node_index node : next_nodes_) next_[node] = {};
}

/// Finds out which nodes the subsets can go on with.
void K_clique_joiner::Note_next(const Beginning& beginning) {
  const std::uint32_t depth = beginning.depth + 1;
  next_nodes_.clear();
  const auto meet = [&](Node_index node) -> Next& {
    Next& next = next_[node];
    if (next.count == 0 && next.branch == none) next_nodes_.push_back(node);
    return next;
  };
  if (beginning.branch != none) {
    const auto [begin, end] = tree_.Children(beginning.depth, beginning.branch);
    for (Index child = begin; child < end; ++child) meet(tree_.Last(depth, child)).branch = child;
  }
  for (const Index branch : at_hand_) {
    const auto [begin, end] = tree_.Children(depth, branch);
    for (Index child = begin; child < end; ++child) ++meet(tree_.Last(depth + 1, child)).count;
  }
}

bool K_clique_joiner::Are_in_one_group(const Beginning& beginning) {
  const bool has_branch = beginning.branch != none;
  if (has_branch && !Is_in_one_group(beginning.depth, beginning.branch)) return false;
  const K_clique_index group = has_branch ? Group_of(beginning.depth, beginning.branch)
                                          : Group_of(beginning.depth + 1, at_hand_.front());
  return std::ranges::all_of(at_hand_, [&](Index branch) {
    return Is_in_one_group(beginning.depth + 1, branch) &&
           Group_of(beginning.depth + 1, branch) == group;
  });
}

/// True for branches each of which is in one group, if that is the same for all.
bool K_clique_joiner::Are_in_one_group(std::uint32_t depth, K_clique_tree::Range branches) {
  const K_clique_index group = Group_of(depth, branches.begin);
  for (Index branch = branches.begin + 1; branch < branches.end; ++branch)
    if (Group_of(depth, branch) != group) return false;
  return true;
}

bool K_clique_joiner::Passes(Node_span subset) {
  if (all_pass_) return true;
  sub_links_.Load(subset, logs_);
  return Passes_in_order(sub_links_, threshold_);
}

}  // namespace gns
