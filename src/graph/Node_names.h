#pragma once

#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "graph/Name_table.h"
#include "graph/Node_set.h"

namespace gns {

/// Node index -> node name: the only place where the names survive the conversion of links.
class Node_names {
 public:
  Node_names() = default;
  /// `numbers[i]` is the number in `table` of the name of node i + 1.
  Node_names(std::shared_ptr<const Name_table> table, std::vector<std::uint32_t> numbers)
      : table_(std::move(table)), numbers_(std::move(numbers)) {}

  /// The name of a node; the empty text for an index without one.
  [[nodiscard]] std::string_view operator[](Node_index node) const {
    return node - 1 < numbers_.size() ? (*table_)[numbers_[node - 1]] : std::string_view();
  }
  [[nodiscard]] Node_index size() const { return static_cast<Node_index>(numbers_.size()); }

 private:
  std::shared_ptr<const Name_table> table_;
  std::vector<std::uint32_t> numbers_;
};

}  // namespace gns
