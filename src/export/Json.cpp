#include <span>
#include <string_view>

#include "export/Formats.h"
#include "vorlane/version.h"

namespace vorlane::exporting {

namespace {

std::string_view Name_of(Method method) {
  if (method == Method::intensity) return "intensity";
  return method == Method::directed ? "directed" : "undirected";
}

/// Values with commas between them, in brackets.
template <typename Values, typename Put>
void Write_array(const Values& values, Text_sink& out, Put put) {
  char before = '[';
  for (const auto& value : values) {
    out << before;
    put(value);
    before = ',';
  }
  out << (before == '[' ? "[]" : "]");
}

void Write_rows(const Rows& rows, std::uint32_t first, Text_sink& out) {
  Write_array(rows, out, [&](Rows::Row row) {
    Write_array(row, out, [&](std::uint32_t value) { out << value - first; });
  });
}

/// Nodes are positions in the list of names, from 0.
constexpr Node first_node = 1;

void Write_links(const Selection& selection, Text_sink& out) {
  char before = '[';
  selection.For_each_link([&](Node first, Node second, double weight) {
    out << before << '[' << first - first_node << ',' << second - first_node;
    if (selection.Is_weighted()) out << ',' << gns::Json_number(weight);
    out << ']';
    before = ',';
  });
  out << (before == '[' ? "[]" : "]");
}

void Write_level(const Results& results, std::uint32_t k, Text_sink& out) {
  const Communities communities = results.Communities_at(k);
  out << "{\"k\":" << k << ",\"exact\":" << communities.exact_count << ",\"communities\":";
  Write_rows(communities.members, first_node, out);
  out << ",\"overlaps\":";
  Write_array(results.Overlaps_at(k), out, [&](const Overlap& overlap) {
    out << '[' << overlap.first << ',' << overlap.second << ',' << overlap.shared << ']';
  });
  if (results.Method() == Method::intensity) {
    out << ",\"k_cliques\":";
    Write_rows(results.K_cliques_at(k), first_node, out);
  } else {
    out << ",\"cliques\":";
    Write_rows(results.Cliques_at(k), 0, out);
  }
  out << '}';
}

}  // namespace

void Write_json(const Selection& selection, Text_sink& sink) {
  const Results& results = selection.Results();
  sink << "{\"vorlane\":" << In_json{VORLANE_VERSION}
       << ",\"method\":" << In_json{Name_of(results.Method())}
       << ",\"finished\":" << (results.Is_finished() ? "true" : "false") << ",\n\"nodes\":[";
  for (Node node = 1; node <= selection.Network().size(); ++node)
    sink << (node > 1 ? "," : "") << In_json{selection.Network().Name(node)};
  sink << "],\n\"links\":";
  Write_links(selection, sink);
  sink << ",\n\"cliques\":";
  const Cliques none;
  const Cliques& cliques = results.Is_finished() ? results.Cliques() : none;
  Write_rows(cliques.members, first_node, sink);
  sink << ",\"exact_cliques\":" << cliques.exact_count << ",\n\"levels\":";
  Write_array(selection.Ks(), sink, [&](std::uint32_t k) {
    sink << "\n";
    Write_level(results, k, sink);
  });
  sink << "}\n";
}

void Write_jsonl(const Selection& selection, Text_sink& sink) {
  for (const std::uint32_t k : selection.Ks()) {
    const Communities communities = selection.Results().Communities_at(k);
    for (std::size_t i = 0; i < communities.members.size(); ++i) {
      sink << "{\"k\":" << k << ",\"community\":" << i
           << ",\"exact\":" << (i < communities.exact_count ? "true" : "false") << ",\"nodes\":";
      Write_array(communities.members[i], sink,
                  [&](Node node) { sink << In_json{selection.Network().Name(node)}; });
      sink << "}\n";
    }
  }
}

/// As cdlib's reader of communities takes it, with what made them.
void Write_cdlib(const Selection& selection, Text_sink& sink) {
  const std::uint32_t k = selection.Ks().front();
  sink << "{\"communities\":";
  Write_array(selection.Results().Communities_at(k).members, sink, [&](Rows::Row members) {
    Write_array(members, sink, [&](Node node) { sink << In_json{selection.Network().Name(node)}; });
  });
  sink << R"(,"algorithm":"clique percolation","params":{"k":)" << k
       << ",\"method\":" << In_json{Name_of(selection.Results().Method())}
       << "},\"overlap\":true}\n";
}

}  // namespace vorlane::exporting
