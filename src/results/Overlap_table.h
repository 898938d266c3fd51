#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <stdexcept>
#include <utility>
#include <vector>

#include "results/Sorted_entries.h"

namespace gns {

/// A map from two community indices to the number of nodes that they share, ascending, in a sorted
/// array. It is filled first and read then, as a Table_by_index.
class Overlap_table {
 public:
  using key_type = std::pair<std::int32_t, std::int32_t>;
  using mapped_type = std::uint32_t;
  using value_type = std::pair<key_type, mapped_type>;
  using const_iterator = std::vector<value_type>::const_iterator;

  Overlap_table() = default;
  Overlap_table(std::initializer_list<value_type> entries) : entries_(entries) { Finish(); }

  /// Sets the number of a pair, in place of an earlier one.
  void Set(const key_type& pair, mapped_type shared) { entries_.emplace_back(pair, shared); }
  /// Ends the filling.
  void Finish() { entries_.resize(Sort_entries(std::span(entries_), &value_type::first)); }

  [[nodiscard]] std::size_t size() const { return entries_.size(); }
  [[nodiscard]] bool empty() const { return entries_.empty(); }
  [[nodiscard]] const_iterator begin() const { return entries_.begin(); }
  [[nodiscard]] const_iterator end() const { return entries_.end(); }
  [[nodiscard]] const_iterator find(const key_type& pair) const {
    const auto found = std::ranges::lower_bound(entries_, pair, {}, &value_type::first);
    return found != end() && found->first == pair ? found : end();
  }
  [[nodiscard]] bool contains(const key_type& pair) const { return find(pair) != end(); }
  /// Throws std::out_of_range if there is no such pair.
  [[nodiscard]] mapped_type at(const key_type& pair) const {
    const auto found = find(pair);
    if (found == end()) throw std::out_of_range("no overlap of these communities");
    return found->second;
  }
  bool operator==(const Overlap_table&) const = default;

 private:
  std::vector<value_type> entries_;
};

}  // namespace gns
