#include "search/Worker_search.h"

#include <atomic>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "control/Run_control.h"
#include "control/Workers.h"
#include "search/Clique_reports.h"
#include "search/Queue_search.h"
#include "search/Range_search.h"

namespace gns {

namespace {

/// What was found in ranges, put together in their order, and the progress that it means.
class Ordered_cliques {
 public:
  Ordered_cliques(std::size_t ranges, std::size_t nodes, const std::string& title,
                  Clique_vector& cliques)
      : waiting_(ranges),
        is_done_(ranges, false),
        nodes_left_(static_cast<std::uint32_t>(nodes)),
        progress_(std::make_shared<Progress_report>(title, "nodes", nodes_left_)),
        cliques_(cliques) {
    external_control::Report_state(progress_);
  }

  /// A range of so many nodes is done.
  void Add(std::size_t range, std::size_t nodes, Clique_vector found) {
    const std::lock_guard guard(lock_);
    count_ += found.size();
    nodes_left_ -= static_cast<std::uint32_t>(nodes);
    progress_->Set_remaining(nodes_left_);
    Note_progress(count_, nodes_left_);
    waiting_[range] = std::move(found);
    is_done_[range] = true;
    for (; next_ < waiting_.size() && is_done_[next_]; ++next_) {
      cliques_.Append_rows(waiting_[next_]);
      waiting_[next_].clear();
      Refuse_more_than(most_numbered_cliques, cliques_);
    }
  }

 private:
  std::mutex lock_;
  std::vector<Clique_vector> waiting_;  ///< per range
  std::vector<bool> is_done_;
  std::size_t next_ = 0;   ///< the first range that isn't
  std::size_t count_ = 0;  ///< of the cliques of all that are
  std::uint32_t nodes_left_;
  std::shared_ptr<Progress_report> progress_;
  Clique_vector& cliques_;
};

}  // namespace

void Search_on_workers(const Search_maker& make, const Node_work& nodes, const Search_kind& kind,
                       Clique_vector& cliques) {
  constexpr std::size_t ranges_of_worker = 64;  // so that all end at about the same time
  external_control::Run_control& control = external_control::This_control();
  const std::vector<std::size_t> starts = nodes.Ranges(control.workers * ranges_of_worker);
  control.work_done.Begin(nodes.Of_range(0, nodes.Order().size()));
  cliques.clear();
  Ordered_cliques ordered(starts.size() - 1, nodes.Order().size(), kind.title, cliques);
  std::atomic<std::size_t> next = 0;
  external_control::On_workers(control.workers, [&](unsigned) {
    const std::unique_ptr<Node_search> search = make();
    Range_search ranges(*search, nodes.Order());
    for (std::size_t range = 0; (range = next++) + 1 < starts.size();) {
      const std::size_t first = starts[range];
      const std::size_t last = starts[range + 1];
      Clique_vector found;
      ranges.Find(first, last, found);
      ordered.Add(range, last - first, std::move(found));
      control.work_done.Add(nodes.Of_range(first, last));
    }
  });
  control.work_done.Begin(0);
  Report_end(kind, nullptr, true, cliques);
}

}  // namespace gns
