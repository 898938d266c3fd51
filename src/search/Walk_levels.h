#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "search/Local_graph.h"
#include "search/Sliced_level.h"

namespace gns {

/// What the levels of a walk stand in, kept from one walk to the next.
struct Walk_memory {
  std::vector<Bit_word> bits;           ///< per level: the candidates, then those to branch on
  std::vector<std::uint32_t> excluded;  ///< rows excluded at each level, level behind level
  std::vector<std::size_t> excluded_starts;
  std::vector<std::size_t> branches;  ///< per level: the candidate it branched on
  std::vector<Sliced_level> sliced;   ///< the first levels, as far as a slice cuts them
  std::vector<Bit_word> clique;
  std::vector<Bit_word> cycles;
  std::vector<Bit_word> leaf_cycles;
};

/// The levels of one walk over a local graph. With fixed_words 0 the row length is known at run
/// time only.
///
/// Level l of the walk holds a set of candidates that can join the partial clique, the part of them
/// still to branch on, and the list of excluded rows that can join it.
template <std::size_t fixed_words>
class Walk_levels {
 protected:
  Walk_levels(Walk_memory& memory, const Local_graph& local)
      : memory_(memory),
        local_(local),
        rows_(local.rows.data()),
        words_(fixed_words != 0 ? fixed_words : local.words),
        clique_((memory.clique.assign(words_, 0), memory.clique.data())) {}

  [[nodiscard]] std::size_t Words() const { return fixed_words != 0 ? fixed_words : words_; }
  [[nodiscard]] const Bit_word* Row(std::size_t row) const { return rows_ + row * Words(); }
  [[nodiscard]] std::size_t Level() const { return memory_.excluded_starts.size() - 1; }
  [[nodiscard]] Bit_word* Candidates(std::size_t level) {
    return memory_.bits.data() + level * 2 * Words();
  }
  [[nodiscard]] Bit_word* To_branch(std::size_t level) { return Candidates(level) + Words(); }

  [[gnu::always_inline]] void Reserve_level(std::size_t level) {
    if (memory_.bits.size() < (level + 1) * 2 * Words())
      memory_.bits.resize((level + 1) * 4 * Words());
  }

  /// All nodes but the one in hand are candidates. Which are to branch on isn't known yet.
  [[gnu::always_inline]] void Open_root() {
    Flip_bit(clique_, local_.home);
    memory_.branches.clear();
    memory_.sliced.clear();
    memory_.excluded.clear();
    memory_.excluded_starts.assign(1, 0);
    Reserve_level(0);
    std::fill_n(Candidates(0), Words(), 0);
    for (std::size_t i = 0; i < local_.nodes.size(); ++i) Flip_bit(Candidates(0), i);
    Flip_bit(Candidates(0), local_.home);
    for (std::size_t row = local_.nodes.size(); row < local_.Row_count(); ++row)
      if (Share_bit(Row(row), Candidates(0), Words()))
        memory_.excluded.push_back(static_cast<std::uint32_t>(row));
  }

  /// A candidate whose cliques are all found is excluded from then on.
  [[gnu::always_inline]] void Retire(std::size_t level, std::size_t candidate) {
    Flip_bit(Candidates(level), candidate);
    memory_.excluded.push_back(static_cast<std::uint32_t>(candidate));
  }

  /// Takes the deepest level away, and retires the candidate that it belongs to.
  [[gnu::always_inline]] void Close_level() {
    memory_.excluded.resize(memory_.excluded_starts.back());
    memory_.excluded_starts.pop_back();
    if (memory_.branches.empty()) return;
    const std::size_t candidate = memory_.branches.back();
    memory_.branches.pop_back();
    Flip_bit(clique_, candidate);
    Retire(Level(), candidate);
  }

  Walk_memory& memory_;
  const Local_graph& local_;
  const Bit_word* rows_;
  std::size_t words_;
  Bit_word* clique_;
};

}  // namespace gns
