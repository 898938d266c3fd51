#include "search/Clique_walk.h"

#include <limits>

#include "foundation/Processor_level.h"
#include "search/One_way_cycles.h"
#include "search/Walk_levels.h"

namespace gns {

namespace {

/// One walk over a local graph.
template <bool directed, std::size_t fixed_words>
class Descent : Walk_levels<fixed_words> {
  using Levels = Walk_levels<fixed_words>;

 public:
  Descent(Walk_memory& memory, std::size_t least_size, const Local_graph& local, Attempt& attempt,
          std::vector<Bit_word>& found)
      : Levels(memory, local),
        least_size_(least_size),
        attempt_(attempt),
        found_(found),
        cycles_(local, clique_, memory.cycles),
        leaf_cycles_(local, clique_, memory.leaf_cycles) {}

  [[gnu::always_inline]] void Run(const Walk_slice& slice) {
    Open_root();
    if (!slice.Is_whole() && !memory_.excluded_starts.empty()) Cut_level(Slice_bounds(slice));
    while (!memory_.excluded_starts.empty()) {
      Attempt::Check_for_stop();
      if (Level() >= 2 && attempt_.Runs_over()) return;
      Step();
      if (attempt_.Timed_out()) return;
    }
  }

 private:
  using Levels::Candidates;
  using Levels::clique_;
  using Levels::Close_level;
  using Levels::Level;
  using Levels::local_;
  using Levels::memory_;
  using Levels::Reserve_level;
  using Levels::Retire;
  using Levels::Row;
  using Levels::To_branch;
  using Levels::Words;

  void Open_root() {
    Levels::Open_root();
    if (!Choose_branches()) memory_.excluded_starts.pop_back();
  }

  /// The deepest level is cut, and has no branch at hand: it gets those that come next, or a level
  /// below it is cut in turn, or it is closed. Seldom called, and kept out of the loop of the walk.
  [[gnu::noinline, gnu::flatten]] void Go_on_with_slice() {
    using Fate = Sliced_level::Fate;
    const std::size_t level = Level();
    Sliced_level& sliced = memory_.sliced.back();
    for (; !sliced.Is_over() && sliced.Fate_of_branch() != Fate::behind; sliced.Pass()) {
      const std::size_t branch = sliced.Branch();
      switch (sliced.Fate_of_branch()) {
        case Fate::whole:
          Flip_bit(To_branch(level), branch);
          sliced.Pass();
          return;
        case Fate::cut:
          if (Enter_cut(level, sliced)) return;
          break;
        default:
          Retire(level, branch);
      }
    }
    memory_.sliced.pop_back();
    Close_level();
  }

  /// True if that opened a level below, which is cut. If not, a clique may have been found, which
  /// is another slice's unless this one has the branch.
  bool Enter_cut(std::size_t level, Sliced_level& sliced) {
    const std::size_t branch = sliced.Branch();
    const std::size_t found = found_.size();
    if (!Enter(level, branch)) {
      if (!sliced.Has_uncut()) found_.resize(found);
      Retire(level, branch);
      return false;
    }
    const Slice_bounds inside = sliced.Inside();
    sliced.Pass();
    Cut_level(inside);
    return true;
  }

  /// The deepest level, just opened, has none of its branches at hand from then on but those that
  /// its slice has.
  void Cut_level(const Slice_bounds& bounds) {
    const std::size_t level = Level();
    memory_.sliced.emplace_back(local_, Candidates(level), To_branch(level), bounds);
    std::fill_n(To_branch(level), Words(), 0);
  }

  /// Takes the next branch of the deepest level, or closes the level if there is none.
  [[gnu::always_inline]] void Step() {
    const std::size_t level = Level();
    const std::size_t next = First_bit(To_branch(level), Words());
    if (next == Words() * word_bits) {
      if (level < memory_.sliced.size()) [[unlikely]]
        Go_on_with_slice();
      else
        Close_level();
      return;
    }
    Flip_bit(To_branch(level), next);
    if (!Enter(level, next)) Retire(level, next);
  }

  /// Adds candidate `next` to the partial clique. True if that opened a level below.
  [[gnu::always_inline]] bool Enter(std::size_t level, std::size_t next) {
    Reserve_level(level + 1);
    if constexpr (directed) cycles_.Join(next);
    const Bit_word* neighs = Row(next);
    const Bit_word* above = Candidates(level);
    Bit_word* below = Candidates(level + 1);
    std::size_t count = 0;
    for (std::size_t w = 0; w < Words(); ++w) {
      below[w] = above[w] & neighs[w];
      if constexpr (directed) below[w] &= ~cycles_.Closing(w);
      count += static_cast<std::size_t>(std::popcount(below[w]));
    }
    const std::size_t most_nodes = level + 2 + count;  // of a clique with all candidates
    if (most_nodes < least_size_) return false;
    const std::size_t start = memory_.excluded.size();
    attempt_.Add_work((start - memory_.excluded_starts[level] + count) * Words());
    if (count <= 1) {
      const bool asks_for_time = count == 1 && level >= 1;  // three nodes and a candidate
      if (!asks_for_time || !attempt_.Runs_over())
        Try_leaf(level, next, count == 1 ? First_bit(below, Words()) : next);
      return false;
    }

    for (std::size_t i = memory_.excluded_starts[level]; i < start; ++i) {
      const std::uint32_t row = memory_.excluded[i];
      if (Can_join(row, next)) memory_.excluded.push_back(row);
    }
    memory_.excluded_starts.push_back(start);
    Flip_bit(clique_, next);
    if (!Choose_branches()) {
      memory_.excluded_starts.pop_back();
      memory_.excluded.resize(start);
      Flip_bit(clique_, next);
      return false;
    }
    memory_.branches.push_back(next);
    return true;
  }

  /// Whether the node of an excluded row can join the clique that `next` is about to join.
  [[nodiscard]] bool Can_join(std::size_t row, std::size_t next) const {
    if (!Has_bit(Row(row), next)) return false;
    if constexpr (directed) return !cycles_.Closes(row);
    return true;
  }

  /// The partial clique with `next` and `last` (the same one where there is no further candidate)
  /// is maximal unless an excluded node can join. With the node in hand alone, one candidate makes
  /// no clique of three.
  [[gnu::always_inline]] void Try_leaf(std::size_t level, std::size_t next, std::size_t last) {
    if (level == 0 && next == last) return;
    Flip_bit(clique_, next);
    if (Is_maximal(level, next, last)) {
      found_.insert(found_.end(), clique_, clique_ + Words());
      if (last != next) Flip_bit(found_.data() + found_.size() - Words(), last);
    }
    Flip_bit(clique_, next);
  }

  [[nodiscard, gnu::always_inline]] bool Is_maximal(std::size_t level, std::size_t next,
                                                    std::size_t last) {
    bool looked = !directed || next == last;
    for (std::size_t i = memory_.excluded_starts[level]; i < memory_.excluded.size(); ++i) {
      const std::uint32_t row = memory_.excluded[i];
      if (!Has_bit(Row(row), last) || !Can_join(row, next)) continue;
      if constexpr (directed) {
        if (!looked) leaf_cycles_.Join(last);
        looked = true;
        if (next != last && leaf_cycles_.Closes(row)) continue;
      }
      return false;
    }
    return true;
  }

  /// Chooses a pivot for the deepest level and notes the candidates that need a branch. False if an
  /// excluded node can join whatever the candidates make: nothing maximal is below.
  [[gnu::always_inline]] bool Choose_branches() {
    const std::size_t level = Level();
    const Bit_word* candidates = Candidates(level);
    Bit_word* branches = To_branch(level);
    std::size_t fewest = std::numeric_limits<std::size_t>::max();
    const auto consider = [&](std::size_t row) __attribute__((always_inline)) {
      const Bit_word* linked = Row(row);
      std::size_t count = 0;
      for (std::size_t w = 0; w < Words(); ++w)
        count += static_cast<std::size_t>(std::popcount(candidates[w] & ~linked[w]));
      if (count >= fewest) return;
      if constexpr (directed) count += cycles_.Find_blockers(row, candidates, fewest - count);
      if (count >= fewest) return;
      fewest = count;
      for (std::size_t w = 0; w < Words(); ++w) {
        branches[w] = candidates[w] & ~linked[w];
        if constexpr (directed) branches[w] |= cycles_.Blockers(w);
      }
    };
    for (std::size_t i = memory_.excluded_starts[level]; i < memory_.excluded.size(); ++i) {
      consider(memory_.excluded[i]);
      if (fewest == 0) return false;
    }
    For_each_bit(candidates, Words(), [&](std::size_t position) {
      if (fewest > 1) consider(position);
    });
    return true;
  }

  std::size_t least_size_;
  Attempt& attempt_;
  std::vector<Bit_word>& found_;
  One_way_cycles<fixed_words> cycles_;       ///< of the node that joins, and of pivots
  One_way_cycles<fixed_words> leaf_cycles_;  ///< of the last node of a clique
};

}  // namespace

void Clique_walk::Find(const Local_graph& local, Attempt& attempt, std::vector<Bit_word>& found,
                       const Walk_slice& slice) {
  found.clear();
  With_row_length(local.words, [&](auto fixed_words) {
    Run_at_processor_level([&] {
      if (local.out_rows.empty())
        Descent<false, fixed_words()>(memory_, least_size_, local, attempt, found).Run(slice);
      else
        Descent<true, fixed_words()>(memory_, least_size_, local, attempt, found).Run(slice);
    });
  });
}

}  // namespace gns
