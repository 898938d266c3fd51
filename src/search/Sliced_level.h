#pragma once

#include <cstddef>
#include <vector>

#include "search/Local_graph.h"
#include "search/Search_range.h"

namespace gns {

/// Where a slice lies in the work below a level of the walk, which goes from 0 to 1. What ends one
/// slice begins the next one, to the bit, as all of them reckon in the same way.
struct Slice_bounds {
  double begin = 0.0;
  double end = 1.0;
  double width = 1.0;  ///< of a slice that lies inside

  explicit Slice_bounds(const Walk_slice& slice);
  Slice_bounds(double from, double to, double wide) : begin(from), end(to), width(wide) {}
};

/// A level of a walk in which a slice begins or ends: its branches, one after the other, and what
/// is to become of them. A branch at the edge of the slice is cut in turn, by the level below it,
/// if it is dear enough for that, so that slices are alike even where one branch has all the work.
class Sliced_level {
 public:
  enum class Fate {
    other,   ///< it is another slice's
    whole,   ///< it is to be walked
    cut,     ///< it is partly to be walked
    behind,  ///< it is one of a slice behind, as are all that follow
  };

  /// `candidates` and `branches` are rows of bits, and looked at here alone. A branch has the
  /// candidates that it is linked to, but for the branches in front of it. Polls.
  Sliced_level(const Local_graph& local, const Bit_word* candidates, const Bit_word* branches,
               const Slice_bounds& bounds);

  [[nodiscard]] bool Is_over() const { return next_ == branches_.size(); }
  [[nodiscard]] std::size_t Branch() const { return branches_[next_].candidate; }
  [[nodiscard]] Fate Fate_of_branch() const;
  /// Whether the slice has a branch that turned out to be no level that can be cut.
  [[nodiscard]] bool Has_uncut() const { return Begin() >= bounds_.begin && Begin() < bounds_.end; }
  /// The slice in the level below a branch that is cut.
  [[nodiscard]] Slice_bounds Inside() const;
  void Pass() { ++next_; }

 private:
  struct Share {
    std::size_t candidate;
    double end;
  };

  [[nodiscard]] double Begin() const { return next_ == 0 ? 0.0 : branches_[next_ - 1].end; }
  [[nodiscard]] double End() const { return branches_[next_].end; }

  Slice_bounds bounds_;
  std::vector<Share> branches_;
  std::size_t next_ = 0;
};

}  // namespace gns
