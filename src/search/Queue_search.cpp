#include "search/Queue_search.h"

#include <algorithm>
#include <cstdint>
#include <deque>
#include <memory>
#include <sstream>
#include <utility>

#include "control/Run_control.h"
#include "foundation/Errors.h"
#include "search/Clique_reports.h"
#include "search/Hard_cliques.h"

namespace gns {

namespace {

using external_control::Report_state;
namespace reports = Clique_find_report_sub_routines;

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

}  // namespace gns
