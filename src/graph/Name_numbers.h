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
  std::uint32_t Of(std::string_view name);

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
