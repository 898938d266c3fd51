#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "foundation/memory/Growing_array.h"
#include "graph/Name_numbers.h"

namespace gns {

/// Names that wait for their numbers, a few at a time. In a table of millions of names each lookup
/// waits for memory; announced together, they wait together.
class Name_queue {
 public:
  static constexpr std::size_t most = 32;

  /// There must be room: at most `most` names since the last Take().
  void Add(std::string_view name, Name_numbers& numbers) {
    waiting_.at(count_++) = {bytes_.size(), name.size(), numbers.Announce(name)};
    bytes_.append(name.data(), name.size());
  }
  [[nodiscard]] bool Is_full() const { return count_ == most; }

  /// Calls `take(number)` for each name in order of adding; none is left.
  template <typename Take>
  void Take_numbers(Name_numbers& numbers, Take take) {
    for (std::size_t i = 0; i < count_; ++i) {
      const auto& [start, size, hash] = waiting_[i];
      take(numbers.Of({bytes_.data() + start, size}, hash));
    }
    count_ = 0;
    bytes_.Cut(0);
  }

 private:
  struct Waiting {
    std::size_t start;
    std::size_t size;
    std::uint64_t hash;
  };
  std::array<Waiting, most> waiting_ = {};
  std::size_t count_ = 0;
  Growing_array<char> bytes_;
};

}  // namespace gns
