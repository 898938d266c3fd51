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
  Ordered_cliques(const std::vector<Search_range>& ranges, std::size_t nodes,
                  const std::string& title, Clique_vector& cliques)
      : ranges_(ranges),
        waiting_(ranges.size()),
        slices_done_(ranges.size(), 0),
        is_done_(ranges.size(), false),
        nodes_left_(static_cast<std::uint32_t>(nodes)),
        progress_(std::make_shared<Progress_report>(title, "nodes", nodes_left_)),
        cliques_(cliques) {
    external_control::Report_state(progress_);
  }

  /// A range is done, by a worker that has `search`. With the last slice of a node it joins them.
  void Add(std::size_t at, Clique_vector found, Range_search& search) {
    const Search_range& range = ranges_[at];
    const std::size_t first = at - range.slice.index;
    const std::size_t end = first + range.slice.count;
    if (!range.slice.Is_whole()) {
      if (!Is_last_slice(at, first, std::move(found))) return;
      found = Clique_vector();
      Join(first, end, found, search);
    }
    Take(first, end, std::move(found));
  }

 private:
  bool Is_last_slice(std::size_t at, std::size_t first, Clique_vector found) {
    const std::lock_guard guard(lock_);
    waiting_[at] = std::move(found);
    return ++slices_done_[first] == ranges_[at].slice.count;
  }

  /// Nobody else looks at slices that are all there.
  void Join(std::size_t first, std::size_t end, Clique_vector& found, Range_search& search) {
    std::vector<const Clique_vector*> slices;
    for (std::size_t at = first; at < end; ++at) slices.push_back(&waiting_[at]);
    search.Join(ranges_[first], slices, found);
    for (std::size_t at = first; at < end; ++at) waiting_[at].clear();
  }

  /// What is found in a range, or all slices of a node, takes its place behind what is in front.
  void Take(std::size_t first, std::size_t end, Clique_vector found) {
    const std::lock_guard guard(lock_);
    count_ += found.size();
    nodes_left_ -= static_cast<std::uint32_t>(ranges_[first].last - ranges_[first].first);
    progress_->Set_remaining(nodes_left_);
    Note_progress(count_, nodes_left_);
    waiting_[first] = std::move(found);
    for (std::size_t at = first; at < end; ++at) is_done_[at] = true;
    for (; next_ < waiting_.size() && is_done_[next_]; ++next_) {
      cliques_.Append_rows(waiting_[next_]);
      waiting_[next_].clear();
      Refuse_more_than(most_numbered_cliques, cliques_);
    }
  }

  const std::vector<Search_range>& ranges_;
  std::mutex lock_;
  std::vector<Clique_vector> waiting_;      ///< per range
  std::vector<std::uint64_t> slices_done_;  ///< of the node whose first slice the range is
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
  const std::vector<Search_range> ranges = nodes.Ranges(control.workers * ranges_of_worker);
  control.work_done.Begin(nodes.Of_range(0, nodes.Order().size()));
  cliques.clear();
  Ordered_cliques ordered(ranges, nodes.Order().size(), kind.title, cliques);
  std::atomic<std::size_t> next = 0;
  external_control::On_workers(control.workers, [&](unsigned) {
    const std::unique_ptr<Sliced_node_search> search = make();
    Range_search range_search(*search, nodes.Order());
    for (std::size_t at = 0; (at = next++) < ranges.size();) {
      Clique_vector found;
      range_search.Find(ranges[at], found);
      ordered.Add(at, std::move(found), range_search);
      control.work_done.Add(nodes.Of(ranges[at]));
    }
  });
  control.work_done.Begin(0);
  Report_end(kind, nullptr, true, cliques);
}

}  // namespace gns
