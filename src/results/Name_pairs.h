#pragma once

#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <string_view>
#include <utility>

#include "results/Name_list.h"

namespace gns {

/// Pairs of names that stand one behind the other in memory; a view of a part of a Name_pairs.
class Name_pair_row {
 public:
  using value_type = std::pair<std::string_view, std::string_view>;

  class Iterator {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = Name_pair_row::value_type;
    using difference_type = std::ptrdiff_t;
    using pointer = void;
    using reference = value_type;

    Iterator() = default;
    explicit Iterator(Name_row::Iterator at) : at_(at) {}

    value_type operator*() const { return {*at_, *std::next(at_)}; }
    Iterator& operator++() {
      std::advance(at_, 2);
      return *this;
    }
    Iterator operator++(int) { return std::exchange(*this, Iterator(++Iterator(*this))); }
    bool operator==(const Iterator&) const = default;

   private:
    Name_row::Iterator at_;
  };
  using const_iterator = Iterator;

  Name_pair_row() = default;
  explicit Name_pair_row(Name_row names) : names_(names) {}

  [[nodiscard]] std::size_t size() const { return names_.size() / 2; }
  [[nodiscard]] bool empty() const { return names_.empty(); }
  [[nodiscard]] Iterator begin() const { return Iterator(names_.begin()); }
  [[nodiscard]] Iterator end() const { return Iterator(names_.end()); }

 private:
  friend bool operator==(const Name_pair_row& a, const Name_pair_row& b);

  Name_row names_;
};

inline bool operator==(const Name_pair_row& a, const Name_pair_row& b) {
  return a.names_ == b.names_;
}

/// A sequence of pairs of names, held like a Name_list.
class Name_pairs {
 public:
  using Row = Name_pair_row;
  using value_type = Name_pair_row::value_type;
  using const_iterator = Name_pair_row::Iterator;

  Name_pairs() = default;
  Name_pairs(std::initializer_list<value_type> pairs) {
    for (const auto& [first, second] : pairs) push_back(first, second);
  }

  void push_back(std::string_view first, std::string_view second) {
    names_.push_back(first);
    names_.push_back(second);
  }
  /// Appends lines of two words as a Name_list does.
  std::size_t Append_lines(std::string_view text) { return names_.Append_pair_lines(text); }
  void Append(const Name_pairs& pairs) { names_.Append(pairs.names_); }

  [[nodiscard]] std::size_t size() const { return names_.size() / 2; }
  [[nodiscard]] bool empty() const { return names_.empty(); }
  [[nodiscard]] const_iterator begin() const { return Name_pair_row(*this).begin(); }
  [[nodiscard]] const_iterator end() const { return Name_pair_row(*this).end(); }
  operator Name_pair_row() const { return Name_pair_row(names_); }

  /// As those of a Name_list; counts are of pairs.
  [[nodiscard]] std::size_t Place() const { return names_.Place(); }
  [[nodiscard]] Name_pair_row Row_at(std::size_t place, std::size_t count) const {
    return Name_pair_row(names_.Row_at(place, 2 * count));
  }
  void Cut(std::size_t place, std::size_t count) { names_.Cut(place, 2 * count); }
  /// Makes room for what a text of so many bytes can hold; what is left unused is never touched.
  void Reserve_for_text(std::size_t bytes) { names_.Reserve_for_text(bytes); }
  void Shrink_to_fit() { names_.Shrink_to_fit(); }

 private:
  Name_list names_;
};

}  // namespace gns
