#include "formats/Labelled_links.h"

#include <limits>
#include <new>
#include <utility>

#include "control/Run_control.h"
#include "foundation/text/Shown_text.h"

namespace gns {

std::uint32_t Labelled_links::Node_of(std::string_view id, const Field_place& place) {
  const std::uint32_t node = ids_.Of(id);
  if (node == nodes_.size()) nodes_.push_back({place, 0, 0, false});
  return node;
}

bool Labelled_links::Declare(std::uint32_t node, const Field_place& place) {
  if (nodes_[node].is_declared) return false;
  nodes_[node].place = place;
  return nodes_[node].is_declared = true;
}

void Labelled_links::Set_label(std::uint32_t node, std::string_view label) {
  if (label.size() > std::numeric_limits<std::uint32_t>::max()) throw std::bad_alloc();
  nodes_[node].label_start = labels_.size();
  nodes_[node].label_size = static_cast<std::uint32_t>(label.size());
  labels_ += label;
}

void Labelled_links::Add(std::uint32_t first, std::uint32_t second, double weight) {
  pairs_.push_back({first, second});
  weights_.push_back(weight);
}

bool Labelled_links::Labels_are_unique(const Name_table& ids, Link_file_check& check) const {
  if (labels_.empty()) return false;
  Name_numbers met;
  for (std::uint32_t i = 0; i < nodes_.size(); ++i) {
    const std::string_view label = Label(nodes_[i]);
    if (met.Of(label.empty() ? ids[i] : label) == i) continue;
    check.Note({nodes_[i].place.line,
                "the label " + Quoted(label) + " belongs to several nodes, so that all nodes are " +
                    "called by their identifiers",
                "give each node a label of its own"});
    return false;
  }
  return true;
}

void Labelled_links::Hand_over(bool weighted, Name_rule& names, Link_file_check& check,
                               Link_intake& intake) {
  const Name_table ids = ids_.Take();
  for (std::uint32_t i = 0; i < nodes_.size(); ++i)
    if (!all_declared_ && !nodes_[i].is_declared)
      Refuse_field(file_, nodes_[i].place,
                   {"the identifier of a node", ids[i], "No node of the file has this one."});
  const bool by_label = Labels_are_unique(ids, check);
  std::vector<std::string_view> fit(nodes_.size());
  const auto name = [&](std::uint32_t node) {
    if (fit[node].data() != nullptr) return fit[node];
    const std::string_view label = by_label ? Label(nodes_[node]) : std::string_view();
    return fit[node] =
               names.Fit(label.empty() ? ids[node] : label, [&] { return nodes_[node].place; });
  };
  for (std::size_t i = 0; i < pairs_.size(); ++i) {
    external_control::Check_inside_long_stage();
    const std::string_view first = name(pairs_[i].first);
    intake.Take(first, name(pairs_[i].second), weighted ? weights_[i] : 0.0);
  }
  pairs_ = {};
  weights_ = {};
}

void Check_direction(bool file_is_directed, bool run_is_directed, std::size_t line,
                     Link_file_check& check) {
  if (file_is_directed == run_is_directed) return;
  if (file_is_directed)
    check.Note(
        {line, "the links have a direction, which is not heeded", "-D takes it into account"});
  else
    check.Note({line,
                "the links have no direction, and are taken as from the first node to the second",
                "leave out -D"});
}

}  // namespace gns
