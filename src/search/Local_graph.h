#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "graph/Node_set.h"

namespace gns {

/// A row of bits over the candidates of a local graph. Candidate 0 is the highest bit of the first
/// word, so that among sets of which none holds another the words compare, descending, as the sets
/// do lexicographically.
using Bit_word = std::uint64_t;
constexpr std::size_t word_bits = 64;

constexpr Bit_word Bit_of(std::size_t position) {
  return (Bit_word{1} << (word_bits - 1)) >> (position % word_bits);
}

/// Calls use(position) for each set bit, ascending.
template <typename Use>
void For_each_bit(const Bit_word* row, std::size_t words, Use use) {
  for (std::size_t w = 0; w < words; ++w) {
    for (Bit_word rest = row[w]; rest != 0;) {
      const auto position = static_cast<std::size_t>(std::countl_zero(rest));
      rest ^= Bit_of(position);
      use(w * word_bits + position);
    }
  }
}

/// What the cliques of one node are made from: its unfinished neighbours (the candidates) with the
/// links among them, and its finished neighbours (the excluded), each with its links to candidates.
struct Local_graph {
  std::vector<Node_index> candidates;  ///< ascending
  std::size_t excluded_count = 0;
  std::size_t words = 0;       ///< words per row
  std::vector<Bit_word> rows;  ///< a row per candidate, then a row per excluded node

  [[nodiscard]] const Bit_word* Row(std::size_t row) const { return rows.data() + row * words; }
  [[nodiscard]] Bit_word* Row(std::size_t row) { return rows.data() + row * words; }
  [[nodiscard]] std::size_t Row_count() const { return candidates.size() + excluded_count; }
};

}  // namespace gns
