#include <algorithm>
#include <array>
#include <string>

#include "export/Formats.h"
#include "export/Picture.h"

namespace vorlane::exporting {

namespace {

/// A pie takes its slices from columns; these are all 1, so that the slices are equal.
constexpr std::array<std::string_view, 8> slices = {"slice_1", "slice_2", "slice_3", "slice_4",
                                                    "slice_5", "slice_6", "slice_7", "slice_8"};

/// CX2, which has lists of integers, and pies for the nodes of several communities.
class Cx2 {
 public:
  Cx2(const Selection& selection, Text_sink& sink)
      : selection_(selection),
        out_(sink),
        memberships_(selection.Memberships()),
        picture_(selection) {
    for (Node node = 1; node <= selection.Network().size(); ++node)
      if (picture_.Communities_of(node).size() > 1) with_pies_.push_back(node);
  }

  void Write() {
    out_ << "[{\"CXVersion\":\"2.0\",\"hasFragments\":false},\n";
    Write_counts();
    Declare_attributes();
    Write_nodes();
    Write_edges();
    Write_style();
    Write_pies();
    out_ << "{\"status\":[{\"success\":true}]}]\n";
  }

 private:
  void Write_counts() {
    out_ << "{\"metaData\":[{\"name\":\"attributeDeclarations\",\"elementCount\":1},"
            "{\"name\":\"nodes\",\"elementCount\":"
         << selection_.Network().size() << R"(},{"name":"edges","elementCount":)"
         << selection_.Network().Link_count()
         << "},{\"name\":\"visualProperties\",\"elementCount\":1},"
            "{\"name\":\"nodeBypasses\",\"elementCount\":"
         << with_pies_.size() << "}]},\n";
  }

  void Declare_attributes() {
    out_ << R"({"attributeDeclarations":[{"nodes":{"name":{"d":"string"})";
    for (std::size_t level = 0; level < selection_.Ks().size(); ++level) {
      const std::uint32_t k = selection_.Ks()[level];
      out_ << ",\"communities_k" << k << R"(":{"d":"list_of_integer"},"memberships_k)" << k
           << R"(":{"d":"integer","v":0},"community_k)" << k << R"(":{"d":"string","v":")"
           << of_none << "\"}";
      if (memberships_.Has_approximate(level))
        out_ << ",\"approximate_k" << k << R"(":{"d":"integer","v":0})";
    }
    for (const std::string_view slice : slices)
      out_ << ",\"" << slice << R"(":{"d":"integer","v":1})";
    out_ << "},\"edges\":{";
    if (selection_.Is_weighted()) out_ << R"("weight":{"d":"double"},)";
    out_ << R"("directed":{"d":"boolean","v":)" << (selection_.Is_directed() ? "true" : "false")
         << "}}}]},\n";
  }

  void Write_nodes() {
    out_ << "{\"nodes\":[";
    for (Node node = 1; node <= selection_.Network().size(); ++node) {
      const Point place = picture_.Place_of(node);
      out_ << (node > 1 ? ",\n" : "\n") << "{\"id\":" << node << ",\"x\":" << place.x
           << ",\"y\":" << place.y << R"(,"v":{"name":)"
           << In_json{selection_.Network().Name(node)};
      memberships_.For_each_level(node, [&](std::size_t level, const Memberships::At_level& of) {
        Write_memberships(selection_.Ks()[level], of);
      });
      out_ << "}}";
    }
    out_ << "]},\n";
  }

  void Write_memberships(std::uint32_t k, const Memberships::At_level& communities) {
    out_ << ",\"communities_k" << k << "\":[";
    for (std::size_t i = 0; i < communities.size(); ++i)
      out_ << (i > 0 ? "," : "") << communities[i];
    out_ << "],\"memberships_k" << k << "\":" << communities.size() << ",\"community_k" << k
         << "\":\"";
    Write_community(communities, out_);
    out_ << '"';
    if (const std::size_t count = communities.Approximate_count(); count > 0)
      out_ << ",\"approximate_k" << k << "\":" << count;
  }

  void Write_edges() {
    out_ << "{\"edges\":[";
    std::size_t id = 0;
    selection_.For_each_link([&](Node first, Node second, double weight) {
      out_ << (id > 0 ? ",\n" : "\n") << "{\"id\":" << id << ",\"s\":" << first
           << ",\"t\":" << second << ",\"v\":{";
      if (selection_.Is_weighted()) out_ << "\"weight\":" << gns::Json_number(weight);
      out_ << "}}";
      ++id;
    });
    out_ << "]},\n";
  }

  /// Colours by the shown k.
  void Write_style() {
    out_ << "{\"visualProperties\":[{\"default\":{\"node\":{\"NODE_SHAPE\":\"ellipse\","
            "\"NODE_WIDTH\":12,\"NODE_HEIGHT\":12},\"edge\":{\"EDGE_WIDTH\":1";
    if (selection_.Is_directed()) out_ << R"(,"EDGE_TARGET_ARROW_SHAPE":"triangle")";
    out_ << "}},\"nodeMapping\":{\"NODE_LABEL\":{\"type\":\"PASSTHROUGH\",\"definition\":"
            "{\"attribute\":\"name\",\"type\":\"string\"}}";
    if (const auto k = selection_.Shown_k()) {
      out_ << ",\"NODE_BACKGROUND_COLOR\":{\"type\":\"DISCRETE\",\"definition\":{\"attribute\":"
              "\"community_k"
           << *k << R"(","type":"string","map":[)";
      for (std::uint32_t i = 0; i < picture_.Community_count(); ++i)
        out_ << (i > 0 ? "," : "") << R"({"v":")" << i << R"(","vp":")"
             << picture_.Colour_of_community(i).In_hex() << "\"}";
      out_ << "]}}";
    }
    out_ << "}}]},\n";
  }

  void Write_pies() {
    out_ << "{\"nodeBypasses\":[";
    for (std::size_t i = 0; i < with_pies_.size(); ++i) {
      out_ << (i > 0 ? ",\n" : "\n") << "{\"id\":" << with_pies_[i]
           << ",\"v\":{\"NODE_CUSTOMGRAPHICS_1\":{\"type\":\"chart\",\"name\":"
              "\"org.cytoscape.PieChart\",\"properties\":{\"cy_dataColumns\":[";
      const auto communities = picture_.Communities_of(with_pies_[i]);
      const std::size_t count = std::min(communities.size(), slices.size());
      for (std::size_t slice = 0; slice < count; ++slice)
        out_ << (slice > 0 ? ",\"" : "\"") << slices[slice] << '"';
      out_ << "],\"cy_colors\":[";
      for (std::size_t slice = 0; slice < count; ++slice)
        out_ << (slice > 0 ? ",\"" : "\"")
             << picture_.Colour_of_community(communities[slice]).In_hex() << '"';
      out_ << R"(],"cy_colorScheme":"CUSTOM"}}}})";
    }
    out_ << "]},\n";
  }

  const Selection& selection_;
  Text_sink& out_;
  Memberships memberships_;
  Picture picture_;
  std::vector<Node> with_pies_;
};

}  // namespace

void Write_cx2(const Selection& selection, Text_sink& sink) { Cx2(selection, sink).Write(); }

}  // namespace vorlane::exporting
