#include "control/Work_done.h"

#include <algorithm>

namespace external_control {

void Work_done::Begin(std::uint64_t total) {
  ++stage_;
  done_ = 0;
  total_ = total;
  ++stage_;
}

void Work_done::Raise(std::uint64_t done) {
  std::uint64_t before = done_;
  while (before < done && !done_.compare_exchange_weak(before, done)) {
  }
}

Work_done::Share Work_done::Now() const {
  const std::uint64_t stage = stage_;
  const std::uint64_t total = total_;
  const std::uint64_t done = std::min(done_.load(), total);
  if (stage % 2 != 0 || stage_ != stage) return {};
  return {stage / 2, done, total};
}

}  // namespace external_control
