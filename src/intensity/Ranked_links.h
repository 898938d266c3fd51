#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace gns {

/// Nodes numbered from 0, and for each its links to later ones, ascending, with their logarithms.
class Local_links {
 public:
  struct Row {
    std::span<const std::uint32_t> nodes;
    const double* logs;
  };

  [[nodiscard]] std::size_t size() const { return starts_.size() - 1; }
  [[nodiscard]] Row operator[](std::uint32_t node) const {
    const std::size_t start = starts_[node];
    return {{nodes_.data() + start, starts_[node + 1] - start}, logs_.data() + start};
  }
  [[nodiscard]] const std::vector<double>& Logs() const { return logs_; }

  void clear();
  /// Appends a link of the node under construction, which Close_row() then ends.
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

/// The same links, each from both ends.
class Ranked_links {
 public:
  using Row = Local_links::Row;

  [[nodiscard]] std::size_t size() const { return starts_.size() - 1; }
  [[nodiscard]] Row operator[](std::uint32_t node) const {
    const std::size_t start = starts_[node];
    return {{nodes_.data() + start, starts_[node + 1] - start}, logs_.data() + start};
  }
  /// True if the logarithms of each node descend.
  [[nodiscard]] bool Are_ranked() const { return are_ranked_; }

  /// Takes all links, in no order.
  void Take(const Local_links& links);
  /// Drops all links but those between nodes of an ascending sequence, and ranks these.
  void Rank(std::span<const std::uint32_t> nodes);

 private:
  bool are_ranked_ = false;
  std::vector<std::size_t> starts_ = {0};
  std::vector<std::uint32_t> nodes_;
  std::vector<double> logs_;
  std::vector<char> stays_;  ///< per node
  std::vector<std::pair<double, std::uint32_t>> row_;
};

}  // namespace gns
