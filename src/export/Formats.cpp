#include "export/Formats.h"

#include <algorithm>
#include <array>

namespace vorlane::exporting {

namespace {

constexpr std::array gexf = {Format_file{".gexf", Write_gexf}};
constexpr std::array graphml = {Format_file{".graphml", Write_graphml}};
constexpr std::array cx2 = {Format_file{".cx2", Write_cx2}};
constexpr std::array csv = {Format_file{".csv", Write_csv}};
constexpr std::array tsv = {Format_file{".tsv", Write_tsv}};
constexpr std::array wide_csv = {Format_file{".wide.csv", Write_wide_csv}};
constexpr std::array wide_tsv = {Format_file{".wide.tsv", Write_wide_tsv}};
constexpr std::array tables = {Format_file{".nodes.csv", Write_nodes_csv},
                               Format_file{".edges.csv", Write_edges_csv}};
constexpr std::array json = {Format_file{".json", Write_json}};
constexpr std::array jsonl = {Format_file{".jsonl", Write_jsonl}};
constexpr std::array cdlib = {Format_file{".cdlib.json", Write_cdlib}};

constexpr std::array formats = {
    Format{"gexf", "network and communities with colours and places, for Gephi", gexf},
    Format{"graphml", "network and communities, for igraph, networkx and others", graphml},
    Format{"cx2", "network and communities with pies on overlaps, for Cytoscape", cx2},
    Format{"csv", "a line for each node in a community", csv},
    Format{"tsv", "the same with tabs", tsv},
    Format{"csv-wide", "a line for each node, a column for each k", wide_csv},
    Format{"tsv-wide", "the same with tabs", wide_tsv},
    Format{"tables", "two tables, nodes and edges, for Gephi's spreadsheet import", tables},
    Format{"json", "all of it, as docs/schemas/results.schema.json tells", json},
    Format{"jsonl", "a community on each line, as JSON", jsonl},
    Format{"cdlib", "a file for each k, for cdlib", cdlib, true},
};

}  // namespace

std::span<const Format> All_formats() { return formats; }

const Format* Format_of(std::string_view name) {
  const auto* const found = std::ranges::find(formats, name, &Format::name);
  return found == formats.end() ? nullptr : found;
}

void Write_community(const Memberships::At_level& communities, Text_sink& sink) {
  if (communities.size() == 1)
    sink << communities[0];
  else
    sink << "overlap";
}

void Write_list(const Memberships::At_level& communities, Text_sink& sink) {
  for (std::size_t i = 0; i < communities.size(); ++i) {
    if (i > 0) sink << '|';
    sink << communities[i];
  }
}

}  // namespace vorlane::exporting
