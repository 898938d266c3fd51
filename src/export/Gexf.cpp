#include "export/Formats.h"
#include "export/Picture.h"
#include "vorlane/version.h"

namespace vorlane::exporting {

namespace {

/// GEXF 1.2draft, which every reader knows. Lists are texts for most of them, so each item names
/// its k. Attributes have their titles as ids, since some readers show these.
class Gexf {
 public:
  Gexf(const Selection& selection, Text_sink& sink)
      : selection_(selection),
        out_(sink),
        memberships_(selection.Memberships()),
        picture_(selection) {}

  void Write() {
    out_ << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<gexf xmlns=\"http://www.gexf.net/1.2draft\" "
            "xmlns:viz=\"http://www.gexf.net/1.2draft/viz\" version=\"1.2\">\n"
            "<meta><creator>Vorlane " VORLANE_VERSION
            "</creator></meta>\n"
            "<graph mode=\"static\" defaultedgetype=\""
         << (selection_.Is_directed() ? "directed" : "undirected") << "\">\n";
    Declare_attributes();
    out_ << "<nodes>\n";
    for (Node node = 1; node <= selection_.Network().size(); ++node) Write_node(node);
    out_ << "</nodes>\n<edges>\n";
    std::size_t id = 0;
    selection_.For_each_link([&](Node first, Node second, double weight) {
      out_ << "<edge id=\"" << id++ << "\" source=\"" << first << "\" target=\"" << second;
      if (selection_.Is_weighted()) out_ << "\" weight=\"" << weight;
      out_ << "\"/>\n";
    });
    out_ << "</edges>\n</graph>\n</gexf>\n";
  }

 private:
  void Declare_attributes() {
    out_ << "<attributes class=\"node\" mode=\"static\">\n";
    const auto declare = [&](std::string_view name, std::string_view type,
                             std::string_view without) {
      out_ << "<attribute id=\"" << name << "\" title=\"" << name << "\" type=\"" << type << '"';
      if (without.empty())
        out_ << "/>\n";
      else
        out_ << "><default>" << without << "</default></attribute>\n";
    };
    for (std::size_t level = 0; level < selection_.Ks().size(); ++level) {
      const std::uint32_t k = selection_.Ks()[level];
      declare(Attribute("communities", k), "liststring", "");
      declare(Attribute("memberships", k), "integer", "0");
      declare(Attribute("community", k), "string", of_none);
      if (memberships_.Has_approximate(level)) declare(Attribute("approximate", k), "integer", "0");
    }
    out_ << "</attributes>\n";
  }

  void Write_node(Node node) {
    out_ << "<node id=\"" << node << "\" label=\"" << In_xml{selection_.Network().Name(node)}
         << "\"><attvalues>";
    memberships_.For_each_level(node, [&](std::size_t level, const Memberships::At_level& of) {
      Write_memberships(selection_.Ks()[level], of);
    });
    out_ << "</attvalues>";
    Write_look(node);
    out_ << "</node>\n";
  }

  void Write_memberships(std::uint32_t k, const Memberships::At_level& communities) {
    out_ << "<attvalue for=\"communities_k" << k << "\" value=\"[";
    for (std::size_t i = 0; i < communities.size(); ++i)
      out_ << (i > 0 ? ", k" : "k") << k << 'c' << communities[i];
    out_ << "]\"/><attvalue for=\"memberships_k" << k << "\" value=\"" << communities.size()
         << "\"/><attvalue for=\"community_k" << k << "\" value=\"";
    Write_community(communities, out_);
    out_ << "\"/>";
    if (const std::size_t count = communities.Approximate_count(); count > 0)
      out_ << "<attvalue for=\"approximate_k" << k << "\" value=\"" << count << "\"/>";
  }

  void Write_look(Node node) {
    const Point place = picture_.Place_of(node);
    const Colour colour = picture_.Colour_of(node);
    out_ << "<viz:size value=\"" << picture_.Size_of(node) << "\"/><viz:position x=\"" << place.x
         << "\" y=\"" << place.y << R"(" z="0"/><viz:color r=")" << int{colour.red} << "\" g=\""
         << int{colour.green} << "\" b=\"" << int{colour.blue} << "\"/>";
  }

  const Selection& selection_;
  Text_sink& out_;
  Memberships memberships_;
  Picture picture_;
};

}  // namespace

void Write_gexf(const Selection& selection, Text_sink& sink) { Gexf(selection, sink).Write(); }

}  // namespace vorlane::exporting
