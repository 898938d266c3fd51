#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace gns {

/// Rows of values, one behind the other in one array. One that is moved from is empty.
template <typename Value>
class Row_array {
 public:
  using Row = std::span<const Value>;

  [[nodiscard]] std::size_t size() const { return starts_.empty() ? 0 : starts_.size() - 1; }
  [[nodiscard]] bool empty() const { return size() == 0; }
  [[nodiscard]] Row operator[](std::size_t row) const {
    return {values_.data() + starts_[row], starts_[row + 1] - starts_[row]};
  }
  /// Has the processor fetch what tells where a row stands.
  void Prefetch(std::size_t row) const { __builtin_prefetch(starts_.data() + row); }
  /// Values of all rows, in order.
  [[nodiscard]] const std::vector<Value>& Values() const { return values_; }

  void push_back(Row row) {
    values_.insert(values_.end(), row.begin(), row.end());
    Close_row();
  }
  /// Appends to the row under construction, which Close_row() then adds.
  void Append(const Value& value) { values_.push_back(value); }
  void Close_row() {
    if (starts_.empty()) starts_.push_back(0);
    starts_.push_back(values_.size());
  }

  /// Drops all rows from `row` on.
  void Truncate(std::size_t row) {
    values_.resize(row == 0 ? 0 : starts_[row]);
    starts_.resize(row == 0 ? 0 : row + 1);
  }
  void clear() { *this = Row_array(); }

 private:
  std::vector<Value> values_;
  std::vector<std::size_t> starts_;  ///< where each row starts, and the end; empty: no rows
};

}  // namespace gns
