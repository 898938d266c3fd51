#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "formats/Bad_field.h"
#include "formats/Name_rule.h"
#include "graph/Name_numbers.h"
#include "graph/Node_set.h"
#include "input/Link_file_check.h"
#include "input/Link_intake.h"

namespace gns {

/// Links between nodes that have an identifier and perhaps a label, which may come behind the
/// links. A node is called by its label; where two would be called the same, all are called by
/// their identifiers, which `check` is told.
class Labelled_links {
 public:
  /// With `all_declared`, a node that only a link names needs no declaration.
  explicit Labelled_links(std::string file, bool all_declared = false)
      : file_(std::move(file)), all_declared_(all_declared) {}

  /// The number of a node, met at a place.
  std::uint32_t Node_of(std::string_view id, const Field_place& place);
  /// Notes that the node is there, not only named by a link; false if it was noted before.
  bool Declare(std::uint32_t node, const Field_place& place);
  void Set_label(std::uint32_t node, std::string_view label);
  void Add(std::uint32_t first, std::uint32_t second, double weight);

  /// Hands all links over, in the order in which they came; nothing is kept. Throws Xep_wrong_line
  /// for a node that was never declared, and for a name that `names` refuses.
  void Hand_over(bool weighted, Name_rule& names, Link_file_check& check, Link_intake& intake);

 private:
  struct Node {
    Field_place place;
    std::size_t label_start = 0;
    std::uint32_t label_size = 0;
    bool is_declared = false;
  };

  [[nodiscard]] std::string_view Label(const Node& node) const {
    return std::string_view(labels_).substr(node.label_start, node.label_size);
  }
  [[nodiscard]] bool Labels_are_unique(const Name_table& ids, Link_file_check& check) const;

  std::string file_;
  bool all_declared_;
  Name_numbers ids_;
  std::vector<Node> nodes_;
  std::string labels_;
  std::vector<Index_pair> pairs_;
  std::vector<double> weights_;
};

/// Where links have a direction that the run doesn't want, or none where it wants one.
void Check_direction(bool file_is_directed, bool run_is_directed, std::size_t line,
                     Link_file_check& check);

}  // namespace gns
