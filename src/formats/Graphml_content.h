#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "formats/Bad_field.h"
#include "formats/Labelled_links.h"

namespace gns {

/// The content of a GraphML file, as its elements come one by one from a parser. Throws
/// Xep_wrong_line for what has no meaning.
class Graphml_content {
 public:
  /// The attributes of an element: names and values by turns, a null at the end.
  using Attributes = const char* const*;

  Graphml_content(std::string file, bool weighted)
      : links(file), file_(std::move(file)), weighted_(weighted) {}

  void Begin(std::string_view element, Attributes attributes, const Field_place& place);
  void Take_text(std::string_view text);
  void End(std::string_view element);

  Labelled_links links;
  bool has_directed = false;  ///< some edge has a direction
  bool has_undirected = false;
  std::size_t first_edge_line = 0;

 private:
  /// What a key declares. Of several attributes that name a node, the first kind counts most.
  enum class Meaning { none, name, label, weight };
  struct Key {
    Meaning meaning = Meaning::none;
    std::string without;  ///< what holds for elements without the attribute
  };
  struct Open_node {
    std::uint32_t number;
    Meaning named_by;
  };
  struct Edge {
    std::uint32_t first;
    std::uint32_t second;
    std::string weight;
    Field_place place;
  };

  void Begin_graph(Attributes attributes, const Field_place& place);
  void Begin_key(Attributes attributes);
  void Begin_node(Attributes attributes, const Field_place& place);
  void Begin_edge(Attributes attributes, const Field_place& place);
  void Begin_data(Attributes attributes, const Field_place& place);
  void End_data();
  void End_edge();
  [[nodiscard]] std::string Needed(Attributes attributes, std::string_view name,
                                   std::string_view element, const Field_place& place) const;
  [[noreturn]] void Refuse(const Field_place& place, const char* expected, std::string_view found,
                           const char* cure) const;

  std::string file_;
  bool weighted_;
  bool in_graph_ = false;
  bool directed_ = false;  ///< of edges that don't tell
  std::map<std::string, Key, std::less<>> keys_;
  std::string open_key_;          ///< whose default may come
  std::vector<Open_node> nodes_;  ///< one inside the other
  bool in_edge_ = false;
  Edge edge_ = {};
  Meaning wanted_ = Meaning::none;  ///< of the text that comes
  bool in_default_ = false;
  std::string text_;
};

}  // namespace gns
