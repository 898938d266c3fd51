#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace gns {

/// A row of bits over the nodes of a local graph. Node 0 is the highest bit of the first word, so
/// that among sets of which none holds another the words compare, descending, as the sets do
/// lexicographically.
using Bit_word = std::uint64_t;
constexpr std::size_t word_bits = 64;

constexpr Bit_word Bit_of(std::size_t position) {
  return (Bit_word{1} << (word_bits - 1)) >> (position % word_bits);
}
inline bool Has_bit(const Bit_word* row, std::size_t position) {
  return (row[position / word_bits] & Bit_of(position)) != 0;
}
inline void Flip_bit(Bit_word* row, std::size_t position) {
  row[position / word_bits] ^= Bit_of(position);
}
/// Position of the first set bit; words * word_bits if there is none.
inline std::size_t First_bit(const Bit_word* row, std::size_t words) {
  for (std::size_t w = 0; w < words; ++w)
    if (row[w] != 0) return w * word_bits + static_cast<std::size_t>(std::countl_zero(row[w]));
  return words * word_bits;
}
inline std::size_t Count_bits(const Bit_word* row, std::size_t words) {
  std::size_t count = 0;
  for (std::size_t w = 0; w < words; ++w) count += static_cast<std::size_t>(std::popcount(row[w]));
  return count;
}
inline bool Share_bit(const Bit_word* a, const Bit_word* b, std::size_t words) {
  for (std::size_t w = 0; w < words; ++w)
    if ((a[w] & b[w]) != 0) return true;
  return false;
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

/// Adds to the row `ends`, until nothing is new or `stop` says so, the rows (in `links`, one behind
/// the other) of those of its positions that stand in `inside`; `seen` becomes the positions whose
/// rows were added. `todo` is a row to work on.
template <typename Stop>
[[gnu::always_inline]] inline void Spread(const Bit_word* links, std::size_t words,
                                          const Bit_word* inside, Bit_word* ends, Bit_word* seen,
                                          Bit_word* todo, Stop stop) {
  std::fill_n(seen, words, 0);
  while (!stop()) {
    for (std::size_t w = 0; w < words; ++w) todo[w] = ends[w] & inside[w] & ~seen[w];
    const std::size_t next = First_bit(todo, words);
    if (next == words * word_bits) return;
    Flip_bit(seen, next);
    for (std::size_t w = 0; w < words; ++w) ends[w] |= links[next * words + w];
  }
}

/// Calls use(n) with n as a constant of the type: the number of words per row if that is 1 or 2,
/// for code that is compiled for these lengths, else 0.
template <typename Use>
void With_row_length(std::size_t words, Use use) {
  if (words == 1) return use(std::integral_constant<std::size_t, 1>());
  if (words == 2) return use(std::integral_constant<std::size_t, 2>());
  use(std::integral_constant<std::size_t, 0>());
}

}  // namespace gns
