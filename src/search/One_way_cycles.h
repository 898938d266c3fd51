#pragma once

#include <algorithm>
#include <array>
#include <span>
#include <type_traits>
#include <vector>

#include "search/Local_graph.h"

namespace gns {

/// Keeps a growing clique of a directed local graph free of cycles of one-way links. A set of nodes
/// that are all linked can be put in an order in which every node has a link to each one behind it
/// exactly if it has no such cycle.
///
/// fixed_words: words per row, or 0 if that is known at run time only.
template <std::size_t fixed_words>
class One_way_cycles {
 public:
  /// `clique` is the row of the partial clique; it and `local` outlive the object. `memory` serves
  /// one object at a time.
  One_way_cycles(const Local_graph& local, const Bit_word* clique, std::vector<Bit_word>& memory)
      : words_(local.words),
        rows_(local.rows.data()),
        out_rows_(local.out_rows.data()),
        in_rows_(local.in_rows.data()),
        clique_(clique) {
    if constexpr (fixed_words == 0) {
      memory.resize(std::max(memory.size(), 9 * local.words));
      Bit_word* next = memory.data();
      for (Row* row :
           {&before_, &behind_, &in_, &out_, &inside_, &leading_, &blockers_, &seen_, &todo_}) {
        *row = {next, local.words};
        next += local.words;
      }
    }
  }

  /// Looks round from a node that joins the clique, free of cycles with it.
  void Join(std::size_t node) {
    Follow(out_rows_, node, out_, behind_);
    Follow(in_rows_, node, in_, before_);
    Flip_bit(behind_.data(), node);
    Flip_bit(before_.data(), node);
  }

  /// The nodes that close a cycle with the node that joins, if free of cycles with the clique.
  [[nodiscard]] Bit_word Closing(std::size_t w) const { return out_[w] & in_[w]; }

  /// The same question for the node of any row.
  [[nodiscard]] bool Closes(std::size_t row) const {
    return Share_bit(in_rows_ + row * Words(), behind_.data(), Words()) &&
           Share_bit(out_rows_ + row * Words(), before_.data(), Words());
  }

  /// Finds candidates such that every clique which the node of `row` can't join for a cycle has one
  /// of them: of a cycle, the first candidate behind that node, with members of the partial clique
  /// at most in between. Yields how many there are, but no more than `limit`, where it gives up.
  std::size_t Find_blockers(std::size_t row, const Bit_word* candidates, std::size_t limit);
  [[nodiscard]] Bit_word Blockers(std::size_t w) const { return blockers_[w]; }

 private:
  using Row =
      std::conditional_t<fixed_words != 0, std::array<Bit_word, fixed_words>, std::span<Bit_word>>;

  [[nodiscard]] std::size_t Words() const { return fixed_words != 0 ? fixed_words : words_; }

  /// Follows one-way links from a row through the clique: `seen` becomes the members met, `ends`
  /// all nodes that a link from there leads to.
  void Follow(const Bit_word* links, std::size_t start, Row& ends, Row& seen) {
    std::copy_n(links + start * Words(), Words(), ends.begin());
    Spread(links, Words(), clique_, ends.data(), seen.data(), todo_.data(), [] { return false; });
  }

  std::size_t words_;
  const Bit_word* rows_;
  const Bit_word* out_rows_;
  const Bit_word* in_rows_;
  const Bit_word* clique_;
  Row before_, behind_;  ///< the node that joins, with the members that lead to it, or it leads to
  Row in_, out_;         ///< starts of links to before_, ends of links from behind_
  Row inside_, leading_, blockers_;
  Row seen_, todo_;
};

template <std::size_t fixed_words>
std::size_t One_way_cycles<fixed_words>::Find_blockers(std::size_t row, const Bit_word* candidates,
                                                       std::size_t limit) {
  Follow(out_rows_, row, blockers_, seen_);
  const Bit_word* linked = rows_ + row * Words();
  Bit_word any = 0;
  for (std::size_t w = 0; w < Words(); ++w) {
    blockers_[w] &= candidates[w] & linked[w];
    any |= blockers_[w];
  }
  if (any == 0) return 0;

  for (std::size_t w = 0; w < Words(); ++w) inside_[w] = linked[w] & (candidates[w] | clique_[w]);
  std::copy_n(in_rows_ + row * Words(), Words(), leading_.begin());
  std::size_t count = 0;
  const auto enough = [&] {
    count = 0;
    for (std::size_t w = 0; w < Words(); ++w)
      count += static_cast<std::size_t>(std::popcount(blockers_[w] & leading_[w]));
    return count >= limit;
  };
  Spread(in_rows_, Words(), inside_.data(), leading_.data(), seen_.data(), todo_.data(), enough);
  for (std::size_t w = 0; w < Words(); ++w) blockers_[w] &= leading_[w];
  return std::min(count, limit);
}

}  // namespace gns
