#pragma once

#include <algorithm>
#include <functional>
#include <vector>

namespace gns {

/// Puts entries that came in any order into that of their keys, ascending; `key` is a member or a
/// function of an entry. Of entries with the same key the last one stays.
template <typename Entry, typename Key>
void Sort_entries(std::vector<Entry>& entries, Key key) {
  if (std::ranges::adjacent_find(entries, std::ranges::greater_equal(), key) == entries.end())
    return;
  std::ranges::stable_sort(entries, {}, key);
  const auto same_key = [key](const Entry& a, const Entry& b) {
    return std::invoke(key, a) == std::invoke(key, b);
  };
  const auto replaced = std::unique(entries.rbegin(), entries.rend(), same_key);
  entries.erase(entries.begin(), replaced.base());
}

}  // namespace gns
