#pragma once

#include <atomic>
#include <cstdint>

/// Beside the state report: how much of its work the stage at hand has done, in units of its own.
/// The threads of the run keep it, any other may read.
namespace external_control {

class Work_done {
 public:
  struct Share {
    std::uint64_t stage = 0;  ///< counts the stages that told their work
    std::uint64_t done = 0;
    std::uint64_t total = 0;  ///< 0: the stage doesn't tell
  };

  /// A stage with so much work to do; 0 ends the telling.
  void Begin(std::uint64_t total);
  void Add(std::uint64_t units) { done_.fetch_add(units, std::memory_order_relaxed); }
  void Set(std::uint64_t done) { done_.store(done, std::memory_order_relaxed); }
  /// At least so much is done.
  void Raise(std::uint64_t done);
  /// Never more done than there is.
  [[nodiscard]] Share Now() const;

 private:
  std::atomic<std::uint64_t> stage_ = 0;  ///< odd while a stage begins
  std::atomic<std::uint64_t> done_ = 0;
  std::atomic<std::uint64_t> total_ = 0;
};

/// What the levels of a run are about to write at most, see Results_bound; all 0 before it is
/// known.
struct Output_bound {
  std::atomic<std::uint64_t> entries = 0;
  std::atomic<std::uint64_t> files = 0;
  std::atomic<std::uint64_t> bytes = 0;
  std::atomic<std::uint64_t> pair_bytes = 0;
};

}  // namespace external_control
