#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace gns {

/// A set of indices, a bit each, that is filled and emptied many times: it yields them ascending,
/// without a comparison of two, which no processor could foretell.
class Index_bits {
 public:
  /// For indices below `bound`.
  explicit Index_bits(std::size_t bound)
      : words_(bound / word_bits + 1, 0), blocks_(words_.size() / word_bits + 1, 0) {}

  void Add(std::uint32_t index) {
    const std::size_t word = index / word_bits;
    words_[word] |= std::uint64_t{1} << (index % word_bits);
    blocks_[word / word_bits] |= std::uint64_t{1} << (word % word_bits);
  }

  /// Takes all indices out, ascending, and calls use(index) for each. None is in front of `first`
  /// or behind `last`.
  template <typename Use>
  void Take(std::uint32_t first, std::uint32_t last, Use use) {
    for (std::size_t block = first / block_bits; block <= last / block_bits; ++block)
      For_each_bit_of(blocks_[block], block,
                      [&](std::size_t word) { For_each_bit_of(words_[word], word, use); });
  }

  /// Puts different indices in ascending order, many of them by way of this set, which is empty.
  void Sort(std::span<std::uint32_t> indices) {
    constexpr std::size_t many = 64;
    if (indices.size() < many) {
      std::ranges::sort(indices);
      return;
    }
    std::uint32_t first = indices[0];
    std::uint32_t last = indices[0];
    for (const std::uint32_t index : indices) {
      Add(index);
      first = std::min(first, index);
      last = std::max(last, index);
    }
    auto next = indices.begin();
    Take(first, last, [&](std::size_t index) { *next++ = static_cast<std::uint32_t>(index); });
  }

 private:
  static constexpr std::size_t word_bits = 64;
  static constexpr std::size_t block_bits = word_bits * word_bits;

  /// Clears a word, which is the one at `place`.
  template <typename Use>
  static void For_each_bit_of(std::uint64_t& word, std::size_t place, Use use) {
    for (std::uint64_t left = std::exchange(word, 0); left != 0; left &= left - 1)
      use(place * word_bits + static_cast<std::size_t>(std::countr_zero(left)));
  }

  std::vector<std::uint64_t> words_;
  std::vector<std::uint64_t> blocks_;  ///< a bit for each word that isn't empty
};

}  // namespace gns
