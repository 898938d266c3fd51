#include "engine/Find_levels.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <map>
#include <mutex>
#include <new>
#include <optional>
#include <utility>

#include "control/Run_control.h"
#include "control/Turns.h"
#include "control/Workers.h"
#include "foundation/memory/Memory_left.h"

namespace gns {

namespace {

/// Levels that were found by any worker, to be used in order.
class Found_levels {
 public:
  Found_levels(K_range ks, const Level_steps& steps) : next_k_(ks.largest), steps_(steps) {}

  void Put(Level level) {
    const std::lock_guard guard(lock_);
    const std::uint32_t k = level.k;
    waiting_.emplace(k, std::move(level));
  }
  /// Uses those whose turn it is.
  void Use() {
    while (std::optional<Level> level = Take()) steps_.use(*level);
  }

 private:
  std::optional<Level> Take() {
    const std::lock_guard guard(lock_);
    const auto found = waiting_.find(next_k_);
    if (found == waiting_.end()) return std::nullopt;
    std::optional<Level> level(std::move(found->second));
    waiting_.erase(found);
    --next_k_;
    return level;
  }

  std::mutex lock_;
  std::map<std::uint32_t, Level> waiting_;
  std::uint32_t next_k_;
  const Level_steps& steps_;
};

/// So many that each finds memory, and some is left for the levels themselves.
unsigned Workers_with_memory(unsigned workers, const Levels& levels) {
  constexpr std::uint64_t share_for_lists = 2;
  const std::uint64_t most =
      Memory_left() / share_for_lists / std::max<std::uint64_t>(levels.Bytes_of_fellow(), 1);
  return static_cast<unsigned>(std::clamp<std::uint64_t>(most, 1, workers));
}

void Find_one_by_one(Levels& levels, K_range ks, const Level_steps& steps) {
  for (std::uint32_t step = 0; step <= ks.largest - ks.smallest; ++step) {
    Level level = steps.find(ks.largest - step, levels);
    steps.use(level);
  }
}

void Find_on_workers(Levels& levels, K_range ks, unsigned workers, const Level_steps& steps) {
  levels.Share(ks.largest, ks.smallest);
  Found_levels found(ks, steps);
  std::atomic<std::uint32_t> taken = 0;
  const auto find_all = [&](Levels& own, bool is_first) {
    for (std::uint32_t step = 0; (step = taken++) <= ks.largest - ks.smallest;) {
      found.Put(steps.find(ks.largest - step, own));
      if (is_first) found.Use();
    }
  };
  external_control::On_workers(workers, [&](unsigned worker) {
    if (worker == 0) return find_all(levels, true);
    std::optional<Levels> fellow;
    try {
      fellow.emplace(levels.Fellow());
    } catch (const std::bad_alloc&) {
      return;  // the others do it all
    }
    find_all(*fellow, false);
  });
  found.Use();
}

}  // namespace

void Find_levels(const Levels_input& input, K_range ks, unsigned workers,
                 const Level_steps& steps) {
  Levels levels(input);
  if (ks.smallest > ks.largest) return;
  workers = std::min(workers, ks.largest - ks.smallest + 1);
  if (workers > 1) workers = Workers_with_memory(workers, levels);
  if (workers > 1)
    Find_on_workers(levels, ks, workers, steps);
  else
    Find_one_by_one(levels, ks, steps);
}

}  // namespace gns
