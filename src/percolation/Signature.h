#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace gns {

/// A node set folded into a few words, from which an upper bound of the nodes that two sets share
/// can be read with a handful of bit operations.
///
/// Each node has one of the positions; nodes that fall on a position that is taken already are
/// counted in the topmost `collision_bits`, one bit each. In a question these bits are all set, so
/// that the bits common to a signature and a question are never fewer than the shared nodes.
template <std::size_t words, unsigned collision_bits>
class Signature {
 public:
  static constexpr unsigned bits = words * 64;
  static constexpr unsigned positions = bits - collision_bits;
  static_assert(positions <= 256);

  void Add(std::uint8_t position) {
    std::uint64_t& word = words_[position / 64];
    const std::uint64_t bit = std::uint64_t{1} << (position % 64);
    if ((word & bit) != 0) Add_collision();
    word |= bit;
  }

  [[nodiscard]] Signature As_question() const {
    Signature question = *this;
    question.words_.back() |= all_collisions;
    return question;
  }

  /// The bound: how many nodes the set of this signature can share with the one of `question`. A
  /// bound of `bits` says nothing: it stands for any number.
  [[nodiscard]] unsigned Shared_at_most(const Signature& question) const {
    int shared = 0;
    for (std::size_t w = 0; w < words; ++w) shared += std::popcount(words_[w] & question.words_[w]);
    return static_cast<unsigned>(shared);
  }

 private:
  static constexpr std::uint64_t all_collisions = ~std::uint64_t{0} << (64 - collision_bits);
  static constexpr std::uint64_t first_collision = std::uint64_t{1} << (64 - collision_bits);

  /// Sets the next collision bit; with none left, the signature says nothing any more: all set.
  void Add_collision() {
    const std::uint64_t taken = words_.back() & all_collisions;
    if (taken == all_collisions) words_.fill(~std::uint64_t{0});
    words_.back() |= taken == 0 ? first_collision : (taken << 1U) & all_collisions;
  }

  std::array<std::uint64_t, words> words_ = {};
};

}  // namespace gns
