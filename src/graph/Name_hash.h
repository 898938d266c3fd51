#pragma once

#include <cstdint>
#include <string_view>

namespace gns {

/// What a hash of names depends on beside the name. Results never do.
struct Hash_key {
  std::uint64_t start;
  std::uint64_t factor;  ///< odd

  /// A key that nobody can foresee; another one each time.
  static Hash_key Drawn();
  /// The key of this process, so that names can't be made beforehand to meet in one place.
  static Hash_key Of_process();
};

/// Folds a text into 64 bits, eight bytes at a time.
std::uint64_t Name_hash(std::string_view text, Hash_key key);

}  // namespace gns
