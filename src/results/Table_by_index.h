#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "foundation/memory/Growing_array.h"
#include "foundation/text/Delimiter_places.h"
#include "foundation/text/My_string_to_i.h"
#include "results/Sorted_entries.h"

namespace gns {

/// A map from the signed index of a clique or community to a row of values, ascending. The rows
/// stand one behind the other in one `Values`, in the order in which they came.
///
/// It is filled first and read then: each Add() opens a row, and Finish() ends the filling.
template <typename Values>
class Table_by_index {
 public:
  using key_type = std::int32_t;
  using mapped_type = typename Values::Row;
  using value_type = std::pair<key_type, mapped_type>;

  Table_by_index() = default;
  Table_by_index(std::initializer_list<std::pair<key_type, Values>> rows) {
    for (const auto& [key, values] : rows) Add(key).Append(values);
    Finish();
  }

  /// Opens the row of a key: what is appended to the values before the next Add() or Finish()
  /// belongs to it. It replaces an earlier row of that key. Always yields the same object.
  Values& Add(key_type key) {
    Close();
    entries_.push_back({key, 0, values_.Place()});
    count_at_open_ = values_.size();
    return values_;
  }
  /// Adds the rows of lines "INDEX: VALUE VALUE ... " at the front of a text, as far as they are
  /// plain: as a writer leaves them. Yields the size of these lines.
  std::size_t Add_plain_lines(std::string_view text) {
    Blank_places blanks(text, Up_to_blank());
    std::size_t taken = 0;
    for (;;) {
      std::size_t blank = blanks.Next();
      key_type key = 0;
      if (blank < taken + 2 || blank == text.size() || text[blank] != ' ' ||
          text[blank - 1] != ':' || !Convert_plain_part(text, taken, blank - 1, key))
        return taken;
      if (!Add(key).Append_line(text, blank, blanks)) {
        Drop();
        return taken;
      }
      taken = blank + 2;
    }
  }
  /// Makes room for the rows of a text of so many bytes.
  void Reserve_for_text(std::size_t bytes) { values_.Reserve_for_text(bytes); }
  /// Takes the row that is open away again, with what it got.
  void Drop() {
    values_.Cut(entries_.Values().back().place, *count_at_open_);
    entries_.Cut(entries_.size() - 1);
    count_at_open_.reset();
  }
  void Finish() {
    Close();
    values_.Shrink_to_fit();
    entries_.Cut(Sort_entries(entries_.Values(), &Entry::key));
    entries_.Shrink_to_fit();
  }

  class Iterator {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = Table_by_index::value_type;
    using difference_type = std::ptrdiff_t;
    using reference = value_type;
    struct pointer {
      value_type entry;
      const value_type* operator->() const { return &entry; }
    };

    Iterator() = default;
    Iterator(const Table_by_index* table, std::size_t at) : table_(table), at_(at) {}

    value_type operator*() const {
      const Entry& entry = table_->entries_.Values()[at_];
      return {entry.key, table_->values_.Row_at(entry.place, entry.count)};
    }
    pointer operator->() const { return {**this}; }
    Iterator& operator++() {
      ++at_;
      return *this;
    }
    Iterator operator++(int) { return {table_, at_++}; }
    bool operator==(const Iterator& other) const { return at_ == other.at_; }

   private:
    const Table_by_index* table_ = nullptr;
    std::size_t at_ = 0;
  };
  using const_iterator = Iterator;

  [[nodiscard]] std::size_t size() const { return entries_.size(); }
  [[nodiscard]] bool empty() const { return entries_.size() == 0; }
  [[nodiscard]] Iterator begin() const { return {this, 0}; }
  [[nodiscard]] Iterator end() const { return {this, entries_.size()}; }
  [[nodiscard]] Iterator find(key_type key) const {
    const auto entries = entries_.Values();
    const auto found = std::ranges::lower_bound(entries, key, {}, &Entry::key);
    if (found == entries.end() || found->key != key) return end();
    return {this, static_cast<std::size_t>(found - entries.begin())};
  }
  [[nodiscard]] bool contains(key_type key) const { return find(key) != end(); }
  /// Throws std::out_of_range if there is no such row.
  [[nodiscard]] mapped_type at(key_type key) const {
    const Iterator found = find(key);
    if (found == end()) throw std::out_of_range("no row of this index");
    return (*found).second;
  }
  bool operator==(const Table_by_index& other) const {
    return std::ranges::equal(*this, other, [](const value_type& a, const value_type& b) {
      return a.first == b.first && std::ranges::equal(a.second, b.second);
    });
  }

 private:
  struct Entry {
    key_type key;
    std::uint32_t count;
    std::size_t place;
  };

  void Close() {
    if (count_at_open_ && entries_.size() > 0)
      entries_.Values().back().count = static_cast<std::uint32_t>(values_.size() - *count_at_open_);
    count_at_open_.reset();
  }

  Growing_array<Entry> entries_;
  Values values_;
  std::optional<std::size_t> count_at_open_;
};

/// Ends the filling of a table, if there is one, however its scope is left.
template <typename Table>
class Filling {
 public:
  explicit Filling(Table* table) : table_(table) {}
  ~Filling() {
    if (table_ != nullptr) table_->Finish();
  }
  Filling(const Filling&) = delete;
  Filling& operator=(const Filling&) = delete;

 private:
  Table* table_;
};

}  // namespace gns
