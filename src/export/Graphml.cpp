#include "export/Formats.h"

namespace vorlane::exporting {

namespace {

/// GraphML with plain strings, "0|3": readers refuse lists or read them each in their own way.
class Graphml {
 public:
  Graphml(const Selection& selection, Text_sink& sink)
      : selection_(selection), out_(sink), memberships_(selection.Memberships()) {}

  void Write() {
    out_ << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<graphml xmlns=\"http://graphml.graphdrawing.org/xmlns\" "
            "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
            "xsi:schemaLocation=\"http://graphml.graphdrawing.org/xmlns "
            "http://graphml.graphdrawing.org/xmlns/1.0/graphml.xsd\">\n";
    Declare_keys();
    out_ << R"(<graph id="network" edgedefault=")"
         << (selection_.Is_directed() ? "directed" : "undirected") << "\">\n";
    for (Node node = 1; node <= selection_.Network().size(); ++node) Write_node(node);
    selection_.For_each_link([&](Node first, Node second, double weight) {
      out_ << "<edge source=\"n" << first << "\" target=\"n" << second;
      if (selection_.Is_weighted())
        out_ << R"("><data key="weight">)" << weight << "</data></edge>\n";
      else
        out_ << "\"/>\n";
    });
    out_ << "</graph>\n</graphml>\n";
  }

 private:
  void Declare_keys() {
    const auto declare = [&](std::string_view name, std::string_view of, std::string_view type,
                             std::string_view without) {
      out_ << "<key id=\"" << name << "\" for=\"" << of << "\" attr.name=\"" << name
           << "\" attr.type=\"" << type << '"';
      if (without.empty())
        out_ << "/>\n";
      else
        out_ << "><default>" << without << "</default></key>\n";
    };
    declare("name", "node", "string", "");
    declare("label", "node", "string", "");
    for (std::size_t level = 0; level < selection_.Ks().size(); ++level) {
      const std::uint32_t k = selection_.Ks()[level];
      declare(Attribute("communities", k), "node", "string", "");
      declare(Attribute("memberships", k), "node", "int", "0");
      declare(Attribute("community", k), "node", "string", of_none);
      if (memberships_.Has_approximate(level))
        declare(Attribute("approximate", k), "node", "int", "0");
    }
    if (selection_.Is_weighted()) declare("weight", "edge", "double", "");
  }

  void Write_node(Node node) {
    const In_xml name = {selection_.Network().Name(node)};
    out_ << "<node id=\"n" << node << R"("><data key="name">)" << name
         << "</data><data key=\"label\">" << name << "</data>";
    memberships_.For_each_level(
        node, [&](std::size_t level, const Memberships::At_level& communities) {
          const std::uint32_t k = selection_.Ks()[level];
          out_ << "<data key=\"communities_k" << k << "\">";
          Write_list(communities, out_);
          out_ << "</data><data key=\"memberships_k" << k << "\">" << communities.size()
               << "</data><data key=\"community_k" << k << "\">";
          Write_community(communities, out_);
          out_ << "</data>";
          if (const std::size_t count = communities.Approximate_count(); count > 0)
            out_ << "<data key=\"approximate_k" << k << "\">" << count << "</data>";
        });
    out_ << "</node>\n";
  }

  const Selection& selection_;
  Text_sink& out_;
  Memberships memberships_;
};

}  // namespace

void Write_graphml(const Selection& selection, Text_sink& sink) {
  Graphml(selection, sink).Write();
}

}  // namespace vorlane::exporting
