#pragma once

#include <cstddef>
#include <span>

#include "foundation/memory/Growing_array.h"

namespace gns {

/// Rows of values, one behind the other in one array. One that is moved from is empty.
template <typename Value>
class Row_array {
 public:
  using Row = std::span<const Value>;

  Row_array() = default;
  /// Rows that others hold, as Starts() and Values() tell them; these outlive it.
  static Row_array Looking_at(std::span<const std::size_t> starts, Row values) {
    Row_array rows;
    rows.values_ = Growing_array<Value>::Looking_at(values);
    rows.starts_ = Growing_array<std::size_t>::Looking_at(starts);
    return rows;
  }

  [[nodiscard]] std::size_t size() const { return starts_.size() == 0 ? 0 : starts_.size() - 1; }
  [[nodiscard]] bool empty() const { return size() == 0; }
  [[nodiscard]] Row operator[](std::size_t row) const {
    const std::size_t* const start = starts_.data() + row;
    return {values_.data() + start[0], start[1] - start[0]};
  }
  /// Has the processor fetch what tells where a row stands.
  void Prefetch(std::size_t row) const { __builtin_prefetch(starts_.data() + row); }
  /// Where each row starts among the values of all, and the end; nothing if there are no rows.
  [[nodiscard]] std::span<const std::size_t> Starts() const {
    return {starts_.data(), starts_.size()};
  }
  /// Values of all rows, in order.
  [[nodiscard]] Row Values() const { return {values_.data(), values_.size()}; }

  /// Makes room for so many more values at once.
  void Reserve(std::size_t count) { values_.Room_for(count); }

  void push_back(Row row) {
    values_.append(row.data(), row.size());
    Close_row();
  }
  /// Appends all rows of another one.
  void Append_rows(const Row_array& other) {
    if (other.empty()) return;
    const std::size_t offset = values_.size();
    values_.append(other.values_.data(), other.values_.size());
    if (starts_.size() == 0) starts_.push_back(0);
    std::size_t* const starts = starts_.Room_for(other.size());
    for (std::size_t row = 0; row < other.size(); ++row)
      starts[row] = offset + other.starts_.data()[row + 1];
    starts_.Grew(other.size());
  }
  /// Appends to the row under construction, which Close_row() then adds.
  void Append(const Value& value) { values_.push_back(value); }
  void Close_row() {
    if (starts_.size() == 0) starts_.push_back(0);
    starts_.push_back(values_.size());
  }

  /// Drops all rows from `row` on.
  void Truncate(std::size_t row) {
    values_.Cut(row == 0 ? 0 : starts_.data()[row]);
    starts_.Cut(row == 0 ? 0 : row + 1);
  }
  void clear() { *this = Row_array(); }

 private:
  Growing_array<Value> values_;
  Growing_array<std::size_t> starts_;  ///< where each row starts, and the end; empty: no rows
};

}  // namespace gns
