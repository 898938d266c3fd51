#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace gns {

/// Links of numbered nodes with their logarithms: rows, entered one after the other.
class Link_rows {
 public:
  struct Row {
    std::span<const std::uint32_t> nodes;
    const double* logs;
  };

  [[nodiscard]] std::size_t size() const { return starts_.size() - 1; }
  [[nodiscard]] Row operator[](std::size_t row) const {
    const std::size_t start = starts_[row];
    return {{nodes_.data() + start, starts_[row + 1] - start}, logs_.data() + start};
  }
  /// The logarithms of all rows.
  [[nodiscard]] const std::vector<double>& Logs() const { return logs_; }

  void clear() {
    starts_.assign(1, 0);
    nodes_.clear();
    logs_.clear();
  }
  /// Appends a link to the row under construction, which Close_row() then ends.
  void Append(std::uint32_t node, double log) {
    nodes_.push_back(node);
    logs_.push_back(log);
  }
  void Close_row() { starts_.push_back(nodes_.size()); }

 private:
  std::vector<std::size_t> starts_ = {0};
  std::vector<std::uint32_t> nodes_;
  std::vector<double> logs_;
};

/// The links between some of the nodes below a number, each from both of its ends; the strongest of
/// a node come first.
class Ranked_links {
 public:
  void Begin(std::size_t node_count);
  void Append(std::uint32_t node, double log) { rows_.Append(node, log); }
  void Close_row_of(std::uint32_t node) {
    row_of_[node] = static_cast<std::uint32_t>(rows_.size());
    rows_.Close_row();
  }
  /// Takes those of the links between the nodes of a part.
  void Take_part(const Ranked_links& links, std::span<const std::uint32_t> nodes);

  [[nodiscard]] std::size_t Node_count() const { return row_of_.size(); }
  /// Number of nodes that have a row.
  [[nodiscard]] std::size_t Row_count() const { return rows_.size(); }
  [[nodiscard]] Link_rows::Row operator[](std::uint32_t node) const { return rows_[row_of_[node]]; }

 private:
  std::vector<std::uint32_t> row_of_;  ///< per node that has one
  std::vector<char> is_in_part_;       ///< per node: 0 between calls
  Link_rows rows_;
};

}  // namespace gns
