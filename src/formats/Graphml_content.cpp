#include "formats/Graphml_content.h"

#include <utility>

#include "foundation/text/My_string_to_d.h"
#include "foundation/text/Text_fields.h"
#include "input/Link_file_reader.h"

namespace gns {

namespace {

constexpr std::string_view white_space = " \t\r\n";

/// The value of an attribute; null if it isn't there.
const char* Value_of(Graphml_content::Attributes attributes, std::string_view name) {
  for (; *attributes != nullptr; attributes += 2)
    if (name == *attributes) return attributes[1];
  return nullptr;
}

std::string Text_of(Graphml_content::Attributes attributes, std::string_view name) {
  const char* const value = Value_of(attributes, name);
  return value == nullptr ? "" : value;
}

}  // namespace

void Graphml_content::Begin(std::string_view element, Attributes attributes,
                            const Field_place& place) {
  if (element == "graph") return Begin_graph(attributes, place);
  if (element == "key") return Begin_key(attributes);
  if (element == "default") {
    in_default_ = !open_key_.empty();
    text_.clear();
    return;
  }
  if (element == "data") return Begin_data(attributes, place);
  if (element == "hyperedge")
    Refuse(place, "edges between two nodes", element, "An edge of several nodes is no link.");
  if (element != "node" && element != "edge") return;
  if (!in_graph_) Refuse(place, "a graph around nodes and edges", element, "This is no GraphML.");
  if (element == "node")
    Begin_node(attributes, place);
  else
    Begin_edge(attributes, place);
}

void Graphml_content::Begin_graph(Attributes attributes, const Field_place& place) {
  const std::string direction = Needed(attributes, "edgedefault", "graph", place);
  if (direction != "directed" && direction != "undirected")
    Refuse(place, "edgedefault directed or undirected", direction, "Correct it in the file.");
  in_graph_ = true;
  directed_ = direction == "directed";
}

void Graphml_content::Begin_key(Attributes attributes) {
  open_key_ = Text_of(attributes, "id");
  const std::string domain = Text_of(attributes, "for");
  const std::string name = Lower_case(Text_of(attributes, "attr.name"));
  const bool for_nodes = domain == "node" || domain == "all" || domain.empty();
  const bool for_edges = domain == "edge" || domain == "all" || domain.empty();
  Key& key = keys_[open_key_];
  key = {};
  if (for_nodes && name == "name") key.meaning = Meaning::name;
  if (for_nodes && name == "label") key.meaning = Meaning::label;
  if (for_edges && name == "weight") key.meaning = Meaning::weight;
}

void Graphml_content::Begin_node(Attributes attributes, const Field_place& place) {
  const std::string id = Needed(attributes, "id", "node", place);
  const std::uint32_t node = links.Node_of(id, place);
  if (!links.Declare(node, place))
    Refuse(place, "an identifier that no other node has", id, "Give each node one of its own.");
  nodes_.push_back({node, Meaning::none});
}

void Graphml_content::Begin_edge(Attributes attributes, const Field_place& place) {
  in_edge_ = true;
  edge_ = {links.Node_of(Needed(attributes, "source", "edge", place), place),
           links.Node_of(Needed(attributes, "target", "edge", place), place), "", place};
  const std::string direction = Text_of(attributes, "directed");
  const bool directed = direction.empty() ? directed_ : direction == "true" || direction == "1";
  (directed ? has_directed : has_undirected) = true;
  if (has_directed && has_undirected)
    Refuse(place, "an edge with a direction as the others have it, or none as they",
           direction.empty() ? directed ? "directed" : "undirected" : direction,
           "Put the edges with a direction and those without into files of their own.");
  if (first_edge_line == 0) first_edge_line = place.line;
}

void Graphml_content::Begin_data(Attributes attributes, const Field_place& place) {
  text_.clear();
  wanted_ = Meaning::none;
  const auto key = keys_.find(Needed(attributes, "key", "data", place));
  if (key == keys_.end()) return;
  const Meaning meaning = key->second.meaning;
  const bool is_of_edge = meaning == Meaning::weight;
  if (in_edge_ ? is_of_edge : !nodes_.empty() && !is_of_edge) wanted_ = meaning;
}

void Graphml_content::Take_text(std::string_view text) {
  if (in_default_ || wanted_ != Meaning::none) text_ += text;
}

void Graphml_content::End(std::string_view element) {
  if (element == "key") open_key_.clear();
  if (element == "default" && std::exchange(in_default_, false)) keys_[open_key_].without = text_;
  if (element == "data") End_data();
  if (element == "edge" && std::exchange(in_edge_, false)) End_edge();
  if (element == "node" && !nodes_.empty()) nodes_.pop_back();
}

void Graphml_content::End_data() {
  const Meaning meaning = std::exchange(wanted_, Meaning::none);
  if (meaning == Meaning::none) return;
  if (meaning == Meaning::weight) {
    edge_.weight = text_;
    return;
  }
  Open_node& node = nodes_.back();
  const std::string_view label = Trimmed(text_, white_space);
  if (label.empty() || node.named_by == Meaning::name) return;
  links.Set_label(node.number, label);
  node.named_by = meaning;
}

void Graphml_content::End_edge() {
  double weight = 0.0;
  if (weighted_) {
    if (edge_.weight.empty())
      for (const auto& [id, key] : keys_)
        if (key.meaning == Meaning::weight) edge_.weight = key.without;
    if (!stringtodouble(edge_.weight, weight))
      Refuse(edge_.place, expected_weight.data(), edge_.weight,
             "Runs with -w, -W or -I need the attribute weight at every edge.");
  }
  links.Add(edge_.first, edge_.second, weight);
}

std::string Graphml_content::Needed(Attributes attributes, std::string_view name,
                                    std::string_view element, const Field_place& place) const {
  const char* const value = Value_of(attributes, name);
  if (value == nullptr || *value == '\0')
    Refuse(place, ("the attribute " + std::string(name)).c_str(), element,
           "GraphML asks for it at this element.");
  return value;
}

void Graphml_content::Refuse(const Field_place& place, const char* expected, std::string_view found,
                             const char* cure) const {
  Refuse_field(file_, place, {expected, found, cure});
}

}  // namespace gns
