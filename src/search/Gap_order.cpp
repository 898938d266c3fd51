#include "search/Gap_order.h"

#include <algorithm>
#include <bit>
#include <numeric>

#include "foundation/Processor_level.h"

namespace gns {

std::span<const std::uint32_t> Gap_order::Sort(const Local_graph& local, Attempt& attempt,
                                               const std::vector<Bit_word>& cliques) {
  places_.resize(cliques.size() / local.words);
  std::iota(places_.begin(), places_.end(), 0U);
  if (places_.size() < 2 || attempt.Timed_out()) return places_;

  bool traced = false;
  With_row_length(local.words, [&](auto fixed_words) {
    Run_at_processor_level([&] { traced = Trace_all<fixed_words()>(local, attempt, cliques); });
  });
  if (traced) Sort_places(local.nodes.size());
  return places_;
}

/// Finds the steps to all cliques; false if the attempt runs over.
template <std::size_t fixed_words>
bool Gap_order::Trace_all(const Local_graph& local, Attempt& attempt,
                          const std::vector<Bit_word>& cliques) {
  steps_.clear();
  starts_.assign(1, 0);
  scratch_.resize(2 * local.words);
  for (std::size_t at = 0; at < cliques.size(); at += local.words) {
    Attempt::Check_for_stop();
    Trace<fixed_words>(local, cliques.data() + at);
    constexpr std::size_t steps_of_three = 2;
    const std::size_t steps = steps_.size() - starts_.back();
    const bool had_candidates = steps > steps_of_three;
    attempt.Add_work(steps * steps * local.words);
    starts_.push_back(steps_.size());
    if (had_candidates && attempt.Runs_over()) return false;
  }
  return true;
}

/// Puts the places in the order of their steps; nearly all comparisons are those of keys.
void Gap_order::Sort_places(std::size_t node_count) {
  const auto bits = static_cast<unsigned>(std::bit_width(node_count));
  keyed_.clear();
  for (const std::uint32_t place : places_) keyed_.push_back({Key_of(place, bits), place});
  std::sort(keyed_.begin(), keyed_.end(), [&](const Keyed& a, const Keyed& b) {
    Attempt::Check_for_stop();
    if (a.key != b.key) return a.key < b.key;
    return std::ranges::lexicographical_compare(Steps_of(a.place), Steps_of(b.place));
  });
  std::ranges::transform(keyed_, places_.begin(), &Keyed::place);
}

/// Gap and node of a step take so many bits each.
std::uint64_t Gap_order::Key_of(std::uint32_t place, unsigned bits) const {
  constexpr unsigned key_bits = 64;
  std::uint64_t key = 0;
  unsigned left = key_bits;
  for (const Step step : Steps_of(place)) {
    if (left < 2 * bits) break;
    left -= 2 * bits;
    key |= ((step >> 32U) << bits | (step & 0xFFFFFFFFU)) << left;
  }
  return key;
}

/// Appends the steps to a clique.
template <std::size_t fixed_words>
void Gap_order::Trace(const Local_graph& local, const Bit_word* clique) {
  const std::size_t words = fixed_words != 0 ? fixed_words : local.words;
  const std::size_t most_rows = Count_bits(clique, words) + 1;
  gaps_.resize(std::max(gaps_.size(), most_rows * words));
  std::copy_n(clique, words, gaps_.data());
  Flip_bit(gaps_.data(), local.home);
  Split<fixed_words>(local, local.home, gaps_.data());
  Step gap = 0;
  for (std::size_t rows = 2; rows > 0;) {
    Bit_word* front = gaps_.data() + (rows - 1) * words;
    const std::size_t node = First_bit(front, words);
    if (node == words * word_bits) {
      --rows;
      ++gap;
      continue;
    }
    steps_.push_back(gap << 32U | node);
    Flip_bit(front, node);
    Split<fixed_words>(local, node, front);
    ++rows;
  }
}

/// Puts `node` into the gap in front: of the missing nodes of that gap, those to which paths lead
/// from it go to the gap behind it, the others stay in the gap in front, now one row further on.
/// Such paths stay among the missing nodes of the gap.
template <std::size_t fixed_words>
void Gap_order::Split(const Local_graph& local, std::size_t node, Bit_word* behind) {
  const std::size_t words = fixed_words != 0 ? fixed_words : local.words;
  Bit_word* front = behind + words;
  const Bit_word* out = local.out_rows.data() + node * words;
  const Bit_word* in = local.in_rows.data() + node * words;
  std::copy_n(behind, words, front);
  std::copy_n(out, words, behind);
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
