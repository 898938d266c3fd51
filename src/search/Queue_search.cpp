#include "search/Queue_search.h"

#include <algorithm>
#include <cstdint>
#include <deque>
#include <memory>
#include <sstream>
#include <utility>

#include "control/Run_control.h"
#include "foundation/Errors.h"
#include "foundation/text/My_double2string.h"
#include "search/Clique_reports.h"
#include "search/Hard_cliques.h"

namespace gns {

namespace {

using external_control::Report_state;
namespace reports = Clique_find_report_sub_routines;

std::string Title_of(const Search_kind& kind, const Time_limit* limit) {
  constexpr unsigned digits = 3;
  if (limit == nullptr) return kind.title;
  return kind.timed_title + double2string(limit->seconds, digits) + ":";
}

/// Composes a report at once and makes it the state report.
template <typename Compose>
void Report(Compose compose) {
  std::ostringstream stream;
  compose(stream);
  Report_state(stream.str());
}

/// The queue of nodes with the count of failures in a row.
class Node_queue {
 public:
  Node_queue(const Node_order& order, const Search_kind& kind, const Time_limit* limit)
      : kind_(kind),
        waiting_(order.begin(), order.end()),
        progress_(std::make_shared<Progress_report>(Title_of(kind, limit), "nodes", Size())) {}

  [[nodiscard]] std::uint32_t Size() const { return static_cast<std::uint32_t>(waiting_.size()); }
  [[nodiscard]] bool Goes_on() const { return !waiting_.empty() && !gives_up_; }

  Node_index Take() {
    progress_->Set_remaining(Size());
    if (!progress_shown_) Report_state(progress_);
    progress_shown_ = true;
    const Node_index node = waiting_.front();
    waiting_.pop_front();
    return node;
  }

  void Note_success() { skipped_ = 0; }

  /// Attempts that have failed in a row.
  [[nodiscard]] std::uint32_t Skipped() const { return skipped_; }

  void Put_back(Node_index node) {
    ++skipped_;
    waiting_.push_back(node);
    Report([&](std::ostream& s) { reports::Report_hard_node(node, skipped_, Size(), s); });
    progress_shown_ = false;
    gives_up_ = skipped_ >= Size();
    if (gives_up_)
      Report([&](std::ostream& s) { reports::Report_all_rem_nodes_to_hard(kind_.unit, s); });
  }

  std::vector<Node_index> Left() const {
    std::vector<Node_index> left(waiting_.begin(), waiting_.end());
    std::sort(left.begin(), left.end());
    return left;
  }

 private:
  const Search_kind& kind_;
  std::deque<Node_index> waiting_;
  std::shared_ptr<Progress_report> progress_;
  bool progress_shown_ = false;
  std::uint32_t skipped_ = 0;
  bool gives_up_ = false;
};

void Report_end(const Search_kind& kind, const Time_limit* limit, bool all_solved,
                const Clique_vector& cliques) {
  const auto count = static_cast<std::uint32_t>(cliques.size());
  Report([&](std::ostream& s) {
    if (!all_solved)
      reports::Report_clique_search_end("exact " + kind.unit, count, s);
    else if (limit == nullptr)
      reports::Report_clique_search_end(kind.unit, count, s);
    else
      reports::Report_clique_search_end(kind.unit, count, kind.closing_line, s);
  });
}

void Note_progress(std::size_t cliques, std::uint32_t nodes_left, std::uint32_t failed_in_a_row) {
  external_control::Progress& progress = external_control::This_control().progress;
  progress.cliques_found.store(cliques, std::memory_order_relaxed);
  progress.nodes_left.store(nodes_left, std::memory_order_relaxed);
  progress.failed_in_a_row.store(failed_in_a_row, std::memory_order_relaxed);
}

/// Passes everything on, and tells the work that is done. The work on a node is taken to be the
/// square of the number of its candidates: its neighbours that have more neighbours than it, or as
/// many and a greater index.
class Told_search : public Node_search {
 public:
  Told_search(Node_search& search, const Adjacency& neighs, const Node_order& order)
      : search_(search), neighs_(neighs) {
    std::uint64_t total = 0;
    for (const Node_index node : order) total += Work_on(node);
    external_control::This_control().work_done.Begin(total);
  }
  ~Told_search() override { external_control::This_control().work_done.Begin(0); }
  Told_search(const Told_search&) = delete;
  Told_search& operator=(const Told_search&) = delete;

  void Find(Node_index node, Attempt& attempt, Clique_vector& cliques) override {
    search_.Find(node, attempt, cliques);
  }
  void Finish(Node_index node) override {
    search_.Finish(node);
    external_control::This_control().work_done.Add(Work_on(node));
  }

 private:
  [[nodiscard]] std::uint64_t Work_on(Node_index node) const {
    const std::size_t degree = neighs_[node].size();
    std::uint64_t candidates = 0;
    for (const Node_index other : neighs_[node]) {
      const std::size_t degree_of_other = neighs_[other].size();
      if (degree_of_other > degree || (degree_of_other == degree && other > node)) ++candidates;
    }
    return 1 + candidates * candidates;
  }

  Node_search& search_;
  const Adjacency& neighs_;
};

}  // namespace

void Refuse_more_than(std::size_t most_cliques, const Clique_vector& cliques) {
  if (cliques.size() > most_cliques)
    throw Xerror_msg("ERROR: there are more cliques than can be numbered.\n");
}

std::vector<Node_index> Search_queue(Node_search& search, const Node_order& order,
                                     const Search_kind& kind, const Time_limit* limit,
                                     Clique_vector& cliques, std::size_t most_cliques) {
  cliques.clear();
  Hard_cliques hard_cliques;
  Node_queue queue(order, kind, limit);
  Attempt attempt(limit);
  while (queue.Goes_on()) {
    Attempt::Check_for_stop();
    const Node_index node = queue.Take();
    const std::size_t recorded = cliques.size();
    attempt.Start();
    search.Find(node, attempt, cliques);
    if (!attempt.Timed_out()) {
      queue.Note_success();
      search.Finish(node);
    } else {
      hard_cliques.Take_from(cliques, recorded);
      queue.Put_back(node);
    }
    Refuse_more_than(most_cliques, cliques);
    Note_progress(cliques.size(), queue.Size(), queue.Skipped());
  }
  if (limit != nullptr) Attempt::Check_for_stop();
  Note_progress(cliques.size(), 0, 0);
  std::vector<Node_index> left = queue.Left();
  if (!left.empty()) hard_cliques.Record(cliques);
  Refuse_more_than(most_cliques, cliques);
  Report_end(kind, limit, left.empty(), cliques);
  return left;
}

Left_map Search_all(Node_search& search, const Adjacency& neighs, const Node_order& order,
                    const Search_kind& kind, const Time_limit* limit, Clique_vector& cliques,
                    Overlap_matrix& overlap_matrix) {
  overlap_matrix = Overlap_matrix(cliques);  // stays right as the cliques come, up to a stop
  Told_search told(search, neighs, order);
  return Spanned_by(Search_queue(told, order, kind, limit, cliques), neighs);
}

}  // namespace gns
