#include "engine/Level_finder.h"

#include <algorithm>
#include <atomic>
#include <mutex>
#include <new>
#include <optional>
#include <utility>
#include <vector>

#include "control/Run_control.h"
#include "control/Turns.h"
#include "control/Workers.h"
#include "foundation/memory/Memory_left.h"

namespace gns {

namespace {

/// Levels that were found by any worker, to be used in order.
class Found_levels {
 public:
  Found_levels(K_range ks, const Level_steps& steps)
      : waiting_(ks.largest - ks.smallest + std::size_t{1}), steps_(steps) {}

  /// `step`: how far the level lies below the largest k.
  void Put(std::size_t step, Level level) {
    const std::lock_guard guard(lock_);
    waiting_[step].emplace(std::move(level));
  }
  /// Uses those whose turn it is.
  void Use() {
    while (std::optional<Level> level = Take()) steps_.use(*level);
  }

 private:
  std::optional<Level> Take() {
    const std::lock_guard guard(lock_);
    if (next_ == waiting_.size() || !waiting_[next_]) return std::nullopt;
    return std::exchange(waiting_[next_++], std::nullopt);
  }

  std::mutex lock_;
  std::vector<std::optional<Level>> waiting_;  ///< by step
  std::size_t next_ = 0;                       ///< the step whose level is to be used next
  const Level_steps& steps_;
};

/// So many that each finds memory, and some is left for the levels themselves.
unsigned Workers_with_memory(unsigned workers, const Levels& levels) {
  constexpr std::uint64_t share_for_lists = 2;
  const std::uint64_t most =
      Memory_left() / share_for_lists / std::max<std::uint64_t>(levels.Bytes_of_fellow(), 1);
  return static_cast<unsigned>(std::clamp<std::uint64_t>(most, 1, workers));
}

Levels_input Down_to(std::uint32_t last_k, Levels_input input) {
  input.last_k = last_k;
  return input;
}

}  // namespace

Level_finder::Level_finder(const Levels_input& input, K_range all, unsigned workers)
    : levels_(Down_to(all.smallest, input)) {
  if (all.smallest > all.largest) return;
  workers_ = std::min(workers, all.largest - all.smallest + 1);
  if (workers_ > 1) workers_ = Workers_with_memory(workers_, levels_);
  fellows_.resize(workers_ - 1);
  if (workers_ > 1) levels_.Share(all.largest);  // it takes a while, and needs nobody yet
}

void Level_finder::Find(K_range ks, const Level_steps& steps) {
  if (ks.smallest > ks.largest) return;
  if (workers_ == 1)
    Find_one_by_one(ks, steps);
  else
    Find_on_workers(ks, steps);
}

void Level_finder::Find_one_by_one(K_range ks, const Level_steps& steps) {
  for (std::uint32_t step = 0; step <= ks.largest - ks.smallest; ++step) {
    Level level = steps.find(ks.largest - step, levels_);
    steps.use(level);
  }
}

void Level_finder::Find_on_workers(K_range ks, const Level_steps& steps) {
  levels_.Share(ks.largest);
  Found_levels found(ks, steps);
  std::atomic<std::uint32_t> taken = 0;
  external_control::On_workers(workers_, [&](unsigned worker) {
    Levels* const levels = Levels_of(worker);
    if (levels == nullptr) return;
    for (std::uint32_t step = 0; (step = taken++) <= ks.largest - ks.smallest;) {
      found.Put(step, steps.find(ks.largest - step, *levels));
      if (worker == 0) found.Use();
    }
    if (ks.smallest == levels_.Input().last_k) levels->Give_up_lists();
  });
  found.Use();
}

/// Null for a worker that there is no memory for: the others do it all.
Levels* Level_finder::Levels_of(unsigned worker) {
  if (worker == 0) return &levels_;
  std::optional<Levels>& fellow = fellows_[worker - 1];
  try {
    if (!fellow) fellow.emplace(levels_.Fellow());
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
  return &*fellow;
}

}  // namespace gns
