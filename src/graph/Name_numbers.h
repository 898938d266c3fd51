#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "graph/Name_hash.h"
#include "graph/Name_table.h"

namespace gns {

/// Numbers names in order of first appearance and stores each distinct one once. Polls as a long
/// stage does.
class Name_numbers {
 public:
  /// The number of a name; of one not met before, what was size() until then.
  std::uint32_t Of(std::string_view name) { return Of(name, Name_hash(name, key_)); }

  /// Begins to fetch what a lookup of the name will need first; yields the hash that it takes.
  [[nodiscard]] std::uint64_t Announce(std::string_view name) const {
    const std::uint64_t hash = Name_hash(name, key_);
    if (!slots_.empty()) __builtin_prefetch(&slots_[hash & (slots_.size() - 1)]);
    return hash;
  }
  std::uint32_t Of(std::string_view name, std::uint64_t hash);

  [[nodiscard]] std::uint32_t size() const { return names_.size(); }

  /// The names by number; nothing is kept.
  Name_table Take();

 private:
  void Grow_slots();

  Hash_key key_ = Hash_key::Of_process();
  Name_table names_;
  std::vector<std::uint64_t> slots_;  ///< open addressing: upper half of the hash, number + 1
};

}  // namespace gns
