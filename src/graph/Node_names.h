#pragma once

#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "control/Run_control.h"
#include "graph/Name_table.h"
#include "graph/Node_set.h"

namespace gns {

/// Node index -> node name: the only place where the names survive the conversion of links. Held in
/// the order of the nodes, as the writers go through them.
class Node_names {
 public:
  Node_names() = default;
  /// `numbers[i]` is the number in `names` of the name of node i + 1.
  Node_names(const Name_table& names, const std::vector<std::uint32_t>& numbers) {
    names_.Reserve(static_cast<std::uint32_t>(numbers.size()), names.Bytes());
    for (const std::uint32_t number : numbers) {
      external_control::Check_inside_long_stage();
      names_.Add(names[number]);
    }
  }

  /// The names of the nodes in their order.
  explicit Node_names(Name_table names) : names_(std::move(names)) {}

  /// The name of a node; the empty text for an index without one.
  [[nodiscard]] std::string_view operator[](Node_index node) const {
    return node - 1 < names_.size() ? names_[node - 1] : std::string_view();
  }
  [[nodiscard]] Node_index size() const { return names_.size(); }
  [[nodiscard]] const Name_table& Table() const { return names_; }

 private:
  Name_table names_;
};

}  // namespace gns
