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
  [[nodiscard]] std::span<const double> Logs() const { return {logs_.data(), starts_.back()}; }

  void clear() {
    starts_.assign(1, 0);
    size_ = 0;
  }
  /// To be called before up to `count` links are entered.
  void Make_room(std::size_t count) {
    if (size_ + count < nodes_.size()) return;
    nodes_.resize(2 * (size_ + count + 1));
    logs_.resize(nodes_.size());
  }
  /// Appends a link to the row under construction, if it is wanted, which no processor can foresee.
  void Append(std::uint32_t node, double log, bool wanted = true) {
    nodes_[size_] = node;
    logs_[size_] = log;
    size_ += wanted ? 1 : 0;
  }
  void Close_row() { starts_.push_back(size_); }

 private:
  std::vector<std::size_t> starts_ = {0};
  std::size_t size_ = 0;  ///< of what stands in both below, with room for one more at least
  std::vector<std::uint32_t> nodes_;
  std::vector<double> logs_;
};

/// The links between some of the nodes below a number, each from both of its ends; the strongest of
/// a node come first.
class Ranked_links {
 public:
  void Begin(std::size_t node_count);
  void Make_room(std::size_t count) { rows_.Make_room(count); }
  void Append(std::uint32_t node, double log, bool wanted) { rows_.Append(node, log, wanted); }
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
