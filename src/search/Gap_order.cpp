#include "search/Gap_order.h"

#include <algorithm>
#include <numeric>

namespace gns {

std::span<const std::uint32_t> Gap_order::Sort(const Local_graph& local, Attempt& attempt,
                                               const std::vector<Bit_word>& cliques) {
  places_.resize(cliques.size() / local.words);
  std::iota(places_.begin(), places_.end(), 0U);
  if (places_.size() < 2) return places_;

  steps_.clear();
  starts_.assign(1, 0);
  for (std::size_t at = 0; at < cliques.size(); at += local.words) {
    Attempt::Check_for_stop();
    Trace(local, cliques.data() + at);
    starts_.push_back(steps_.size());
    constexpr std::size_t steps_of_three = 2;
    const bool had_candidates = steps_.size() - starts_[starts_.size() - 2] > steps_of_three;
    if (had_candidates && attempt.Runs_over()) return places_;
  }
  std::sort(places_.begin(), places_.end(), [&](std::uint32_t a, std::uint32_t b) {
    Attempt::Check_for_stop();
    return std::lexicographical_compare(steps_.data() + starts_[a], steps_.data() + starts_[a + 1],
                                        steps_.data() + starts_[b], steps_.data() + starts_[b + 1]);
  });
  return places_;
}

/// Appends the steps to a clique.
void Gap_order::Trace(const Local_graph& local, const Bit_word* clique) {
  const std::size_t words = local.words;
  gaps_.assign(clique, clique + words);
  Flip_bit(gaps_.data(), local.home);
  Split(local, local.home);
  for (std::uint32_t gap = 0; !gaps_.empty();) {
    const std::size_t node = First_bit(gaps_.data() + gaps_.size() - words, words);
    if (node == words * word_bits) {
      gaps_.resize(gaps_.size() - words);
      ++gap;
      continue;
    }
    steps_.push_back({gap, static_cast<std::uint32_t>(node)});
    Flip_bit(gaps_.data() + gaps_.size() - words, node);
    Split(local, node);
  }
}

/// Puts `node` into the gap in front: of the missing nodes of that gap, those to which paths lead
/// from it go to the gap behind it. Such paths stay among the missing nodes of the gap.
void Gap_order::Split(const Local_graph& local, std::size_t node) {
  const std::size_t words = local.words;
  gaps_.resize(gaps_.size() + words);
  scratch_.resize(2 * words);
  Bit_word* behind = gaps_.data() + gaps_.size() - 2 * words;
  Bit_word* front = behind + words;
  std::copy_n(behind, words, front);
  std::copy_n(local.Out(node), words, behind);
  const Bit_word* in = local.In(node);
  const auto all_told = [&] {
    for (std::size_t w = 0; w < words; ++w)
      if ((front[w] & ~in[w] & ~behind[w]) != 0) return false;
    return true;
  };
  Spread(local.out_rows.data(), words, front, behind, scratch_.data(), scratch_.data() + words,
         all_told);
  for (std::size_t w = 0; w < words; ++w) {
    behind[w] &= front[w];
    front[w] ^= behind[w];
  }
}

}  // namespace gns
