#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "search/Attempt.h"
#include "search/Local_graph.h"

namespace gns {

/// The order in which a walk over gaps meets the directed cliques of one node.
///
/// The walk builds a clique as a sequence, beginning with the node in hand alone. Each step puts
/// one more node into one of the gaps in front of, between and behind the members, such that all
/// links run forward. The walk tries the gaps from the front, and for one gap the nodes in
/// ascending order; what it tried once in a gap it doesn't try there again. So a clique is met
/// first by the steps that each take the first gap into which one of its missing nodes fits, and of
/// those nodes the smallest, and of two cliques the one comes first whose steps come first
/// lexicographically.
///
/// A missing node fits into a gap if no path of one-way links inside the clique leads from it to a
/// member in front of the gap, or to it from a member behind. Its first gap therefore is the one
/// behind the last member that leads to it. A clique of k nodes takes k^2 / 2 row operations at
/// most.
class Gap_order {
 public:
  /// Yields the places of the cliques, a row of bits each, in the order of the walk, or in the
  /// order of `cliques` where the attempt runs over. Valid until the next call.
  std::span<const std::uint32_t> Sort(const Local_graph& local, Attempt& attempt,
                                      const std::vector<Bit_word>& cliques);

 private:
  /// A gap, by the number of members in front of it, and in the lower half the node that goes into
  /// it, by its position in the local graph.
  using Step = std::uint64_t;

  /// A clique by its first steps, as far as they go into one word; a step that it doesn't take is
  /// as one that comes first.
  struct Keyed {
    std::uint64_t key;
    std::uint32_t place;
  };

  template <std::size_t fixed_words>
  bool Trace_all(const Local_graph& local, Attempt& attempt, const std::vector<Bit_word>& cliques);
  template <std::size_t fixed_words>
  void Trace(const Local_graph& local, const Bit_word* clique);
  template <std::size_t fixed_words>
  void Split(const Local_graph& local, std::size_t node, Bit_word* behind);
  [[nodiscard]] std::span<const Step> Steps_of(std::uint32_t place) const {
    return std::span(steps_).subspan(starts_[place], starts_[place + 1] - starts_[place]);
  }
  [[nodiscard]] std::uint64_t Key_of(std::uint32_t place, unsigned bits) const;
  void Sort_places(std::size_t node_count);

  std::vector<Step> steps_;          ///< to all cliques, one behind the other
  std::vector<std::size_t> starts_;  ///< steps of clique i: starts_[i] up to starts_[i + 1]
  std::vector<Keyed> keyed_;
  std::vector<std::uint32_t> places_;
  /// The missing nodes by their first gap, a row of bits each; the gap in front is the last row.
  std::vector<Bit_word> gaps_;
  std::vector<Bit_word> scratch_;
};

}  // namespace gns
