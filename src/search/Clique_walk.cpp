#include "search/Clique_walk.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace gns {

/// One walk over a local graph. With fixed_words 0 the row length is known at run time only.
///
/// Level l of the walk holds a set of candidates that are linked to all members of the partial
/// clique, the part of them still to branch on, and the list of excluded rows linked to all
/// members.
template <std::size_t fixed_words>
class Clique_walk::Descent {
 public:
  Descent(Clique_walk& memory, const Local_graph& local, Attempt& attempt)
      : memory_(memory),
        local_(local),
        attempt_(attempt),
        words_(fixed_words != 0 ? fixed_words : local.words) {}

  void Run() {
    Open_root();
    while (!memory_.excluded_starts_.empty()) {
      Attempt::Check_for_stop();
      if (Level() >= 2 && attempt_.Runs_over()) return;
      Step();
    }
  }

 private:
  [[nodiscard]] std::size_t Words() const { return fixed_words != 0 ? fixed_words : words_; }
  [[nodiscard]] std::size_t Level() const { return memory_.excluded_starts_.size() - 1; }
  [[nodiscard]] Bit_word* Candidates(std::size_t level) {
    return memory_.bits_.data() + level * 2 * Words();
  }
  [[nodiscard]] Bit_word* To_branch(std::size_t level) { return Candidates(level) + Words(); }

  static bool Has(const Bit_word* row, std::size_t position) {
    return (row[position / word_bits] & Bit_of(position)) != 0;
  }
  static void Flip(Bit_word* row, std::size_t position) {
    row[position / word_bits] ^= Bit_of(position);
  }

  void Reserve_level(std::size_t level) {
    if (memory_.bits_.size() < (level + 1) * 2 * Words())
      memory_.bits_.resize((level + 1) * 4 * Words());
  }

  void Open_root() {
    memory_.clique_.assign(Words(), 0);
    memory_.branches_.clear();
    memory_.excluded_.clear();
    memory_.excluded_starts_.assign(1, 0);
    Reserve_level(0);
    std::fill_n(Candidates(0), Words(), 0);
    for (std::size_t i = 0; i < local_.candidates.size(); ++i) Flip(Candidates(0), i);
    for (std::size_t row = local_.candidates.size(); row < local_.Row_count(); ++row) {
      const Bit_word* bits = local_.Row(row);
      if (std::any_of(bits, bits + Words(), [](Bit_word word) { return word != 0; }))
        memory_.excluded_.push_back(static_cast<std::uint32_t>(row));
    }
    if (!Choose_branches(local_.candidates.size())) memory_.excluded_starts_.pop_back();
  }

  /// Takes the next branch of the deepest level, or closes the level if there is none.
  void Step() {
    const std::size_t level = Level();
    const std::size_t next = First_bit(To_branch(level));
    if (next == Words() * word_bits) {
      Close_level();
      return;
    }
    Flip(To_branch(level), next);
    if (!Enter(level, next)) Retire(level, next);
  }

  [[nodiscard]] std::size_t First_bit(const Bit_word* row) const {
    for (std::size_t w = 0; w < Words(); ++w)
      if (row[w] != 0) return w * word_bits + static_cast<std::size_t>(std::countl_zero(row[w]));
    return Words() * word_bits;
  }

  /// Adds candidate `next` to the partial clique. True if that opened a level below.
  bool Enter(std::size_t level, std::size_t next) {
    Reserve_level(level + 1);
    const Bit_word* neighs = local_.Row(next);
    const Bit_word* above = Candidates(level);
    Bit_word* below = Candidates(level + 1);
    std::size_t count = 0;
    for (std::size_t w = 0; w < Words(); ++w) {
      below[w] = above[w] & neighs[w];
      count += static_cast<std::size_t>(std::popcount(below[w]));
    }
    if (count <= 1) {
      Try_leaf(level, next, count == 1 ? First_bit(below) : next);
      return false;
    }

    const std::size_t start = memory_.excluded_.size();
    for (std::size_t i = memory_.excluded_starts_[level]; i < start; ++i) {
      const std::uint32_t row = memory_.excluded_[i];
      if (Has(local_.Row(row), next)) memory_.excluded_.push_back(row);
    }
    memory_.excluded_starts_.push_back(start);
    if (!Choose_branches(count)) {
      memory_.excluded_starts_.pop_back();
      memory_.excluded_.resize(start);
      return false;
    }
    memory_.branches_.push_back(next);
    Flip(memory_.clique_.data(), next);
    return true;
  }

  /// The partial clique with `next` and `last` (the same one where there is no further candidate)
  /// is maximal unless an excluded node is linked to both. Alone with the node in hand, one
  /// candidate makes no clique of three.
  void Try_leaf(std::size_t level, std::size_t next, std::size_t last) {
    if (level == 0 && next == last) return;
    for (std::size_t i = memory_.excluded_starts_[level]; i < memory_.excluded_.size(); ++i) {
      const Bit_word* row = local_.Row(memory_.excluded_[i]);
      if (Has(row, next) && Has(row, last)) return;
    }
    std::vector<Bit_word>& found = memory_.unsorted_;
    found.insert(found.end(), memory_.clique_.begin(), memory_.clique_.end());
    Bit_word* clique = found.data() + found.size() - Words();
    Flip(clique, next);
    if (last != next) Flip(clique, last);
  }

  /// Chooses a pivot for the deepest level and notes the candidates not linked to it for branching.
  /// False if an excluded node is linked to all candidates: nothing maximal is below.
  bool Choose_branches(std::size_t count) {
    const std::size_t level = Level();
    const Bit_word* candidates = Candidates(level);
    const Bit_word* pivot = nullptr;
    std::size_t most = 0;
    const auto consider = [&](const Bit_word* row) {
      std::size_t linked = 0;
      for (std::size_t w = 0; w < Words(); ++w)
        linked += static_cast<std::size_t>(std::popcount(candidates[w] & row[w]));
      if (pivot == nullptr || linked > most) {
        pivot = row;
        most = linked;
      }
    };
    for (std::size_t i = memory_.excluded_starts_[level]; i < memory_.excluded_.size(); ++i) {
      consider(local_.Row(memory_.excluded_[i]));
      if (most == count) return false;
    }
    For_each_bit(candidates, Words(), [&](std::size_t position) {
      if (most + 1 < count) consider(local_.Row(position));
    });
    Bit_word* branches = To_branch(level);
    for (std::size_t w = 0; w < Words(); ++w) branches[w] = candidates[w] & ~pivot[w];
    return true;
  }

  /// A candidate whose cliques are all found is excluded from then on.
  void Retire(std::size_t level, std::size_t candidate) {
    Flip(Candidates(level), candidate);
    memory_.excluded_.push_back(static_cast<std::uint32_t>(candidate));
  }

  void Close_level() {
    memory_.excluded_.resize(memory_.excluded_starts_.back());
    memory_.excluded_starts_.pop_back();
    if (memory_.branches_.empty()) return;
    const std::size_t candidate = memory_.branches_.back();
    memory_.branches_.pop_back();
    Flip(memory_.clique_.data(), candidate);
    Retire(Level(), candidate);
  }

  Clique_walk& memory_;
  const Local_graph& local_;
  Attempt& attempt_;
  std::size_t words_;
};

namespace {

/// Puts rows in descending order of their words, which is ascending order of the sets.
void Sort_rows(std::vector<Bit_word>& rows, std::size_t words, std::vector<std::uint32_t>& places,
               std::vector<Bit_word>& sorted) {
  if (words == 1) {
    std::sort(rows.begin(), rows.end(), std::greater<>());
    sorted.swap(rows);
    return;
  }
  places.resize(rows.size() / words);
  std::iota(places.begin(), places.end(), 0U);
  std::sort(places.begin(), places.end(), [&](std::uint32_t a, std::uint32_t b) {
    const Bit_word* row_a = rows.data() + a * words;
    const Bit_word* row_b = rows.data() + b * words;
    return std::lexicographical_compare(row_b, row_b + words, row_a, row_a + words);
  });
  sorted.clear();
  for (const std::uint32_t place : places)
    sorted.insert(sorted.end(), rows.begin() + static_cast<std::ptrdiff_t>(place * words),
                  rows.begin() + static_cast<std::ptrdiff_t>((place + 1) * words));
}

}  // namespace

void Clique_walk::Find(const Local_graph& local, Attempt& attempt, std::vector<Bit_word>& found) {
  unsorted_.clear();
  switch (local.words) {
    case 1:
      Descent<1>(*this, local, attempt).Run();
      break;
    case 2:
      Descent<2>(*this, local, attempt).Run();
      break;
    default:
      Descent<0>(*this, local, attempt).Run();
      break;
  }
  Sort_rows(unsorted_, local.words, places_, found);
}

}  // namespace gns
