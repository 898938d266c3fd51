#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <span>

namespace gns {

/// Puts entries that came in any order into that of their keys, ascending; `key` is a member or a
/// function of an entry. Of entries with the same key the last one stays. Yields how many stay, at
/// the front.
template <typename Entry, typename Key>
std::size_t Sort_entries(std::span<Entry> entries, Key key) {
  if (std::ranges::adjacent_find(entries, std::ranges::greater_equal(), key) == entries.end())
    return entries.size();
  std::ranges::stable_sort(entries, {}, key);
  const auto same_key = [key](const Entry& a, const Entry& b) {
    return std::invoke(key, a) == std::invoke(key, b);
  };
  const auto replaced = std::unique(entries.rbegin(), entries.rend(), same_key).base();
  return static_cast<std::size_t>(std::move(replaced, entries.end(), entries.begin()) -
                                  entries.begin());
}

}  // namespace gns
