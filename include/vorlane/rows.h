#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <utility>

namespace vorlane {

/// A node of a network: 1 up to its size. There is no node 0, so an array over nodes has size + 1
/// places, the first of them unused.
using Node = std::uint32_t;

/// Two nodes that are linked.
struct Node_pair {
  Node first;
  Node second;
  auto operator<=>(const Node_pair&) const = default;
};

/// Two communities, smaller number first, and how many nodes they share (at least 1).
struct Overlap {
  std::uint32_t first;
  std::uint32_t second;
  std::uint32_t shared;
  bool operator==(const Overlap&) const = default;
};

/// An array that is kept alive by whoever holds a copy of this object: copying is cheap, nothing in
/// it ever changes, and it may be read from any thread.
template <typename Value>
class Array {
 public:
  Array() = default;
  Array(std::span<const Value> values, std::shared_ptr<const void> owner)
      : values_(values), owner_(std::move(owner)) {}

  [[nodiscard]] std::size_t size() const { return values_.size(); }
  [[nodiscard]] bool empty() const { return values_.empty(); }
  [[nodiscard]] const Value& operator[](std::size_t place) const { return values_[place]; }
  [[nodiscard]] auto begin() const { return values_.begin(); }
  [[nodiscard]] auto end() const { return values_.end(); }
  [[nodiscard]] std::span<const Value> Values() const { return values_; }
  /// What keeps the values alive; for those who hand the bare array on.
  [[nodiscard]] const std::shared_ptr<const void>& Owner() const { return owner_; }

 private:
  std::span<const Value> values_;
  std::shared_ptr<const void> owner_;
};

/// Rows of values in two flat arrays: row i is Values()[Starts()[i]] up to Values()[Starts()[i+1]].
/// Starts() has size() + 1 places. Shared, unchanging and cheap to copy as an Array.
template <typename Value>
class Rows_of {
 public:
  using Row = std::span<const Value>;

  Rows_of() = default;
  Rows_of(std::span<const std::size_t> starts, std::span<const Value> values,
          std::shared_ptr<const void> owner)
      : starts_(starts), values_(values), owner_(std::move(owner)) {}

  [[nodiscard]] std::size_t size() const { return starts_.size() - 1; }
  [[nodiscard]] bool empty() const { return size() == 0; }
  /// `row` must be below size().
  [[nodiscard]] Row operator[](std::size_t row) const {
    return values_.subspan(starts_[row], starts_[row + 1] - starts_[row]);
  }
  [[nodiscard]] std::span<const std::size_t> Starts() const { return starts_; }
  [[nodiscard]] Row Values() const { return values_; }
  [[nodiscard]] const std::shared_ptr<const void>& Owner() const { return owner_; }

  /// Goes through the rows.
  class Iterator {
   public:
    Iterator(const Rows_of& rows, std::size_t row) : rows_(&rows), row_(row) {}
    Row operator*() const { return (*rows_)[row_]; }
    Iterator& operator++() {
      ++row_;
      return *this;
    }
    bool operator==(const Iterator& other) const { return row_ == other.row_; }

   private:
    const Rows_of* rows_;
    std::size_t row_;
  };
  [[nodiscard]] Iterator begin() const { return {*this, 0}; }
  [[nodiscard]] Iterator end() const { return {*this, size()}; }

 private:
  static constexpr std::size_t no_rows[1] = {0};

  std::span<const std::size_t> starts_ = no_rows;
  std::span<const Value> values_;
  std::shared_ptr<const void> owner_;
};

/// Rows of nodes, or of numbers of cliques.
using Rows = Rows_of<std::uint32_t>;

}  // namespace vorlane
