#include <string>

#include "export/Formats.h"

namespace vorlane::exporting {

namespace {

constexpr char comma = ',';
constexpr char tab = '\t';

/// A line for each node of each community. `exact` is 0 where the community holds an approximate
/// clique.
void Write_long(const Selection& selection, Text_sink& out, char separator) {
  out << "k" << separator << "community" << separator << "node" << separator << "exact\n";
  for (const std::uint32_t k : selection.Ks()) {
    const Communities communities = selection.Results().Communities_at(k);
    for (std::size_t i = 0; i < communities.members.size(); ++i)
      for (const Node node : communities.members[i])
        out << k << separator << i << separator << In_csv{selection.Network().Name(node), separator}
            << separator << (i < communities.exact_count ? "1\n" : "0\n");
  }
}

/// The communities of a node at each k, in columns; those of levels without any stay empty.
void Write_columns(const Memberships& memberships, Node node, std::size_t level_count,
                   char separator, Text_sink& out) {
  std::size_t column = 0;
  const auto go_to = [&](std::size_t level) {
    for (; column <= level; ++column) out << separator;
  };
  memberships.For_each_level(node, [&](std::size_t level, const Memberships::At_level& of) {
    go_to(level);
    Write_list(of, out);
  });
  if (level_count > 0) go_to(level_count - 1);
}

void Write_wide(const Selection& selection, Text_sink& out, char separator) {
  const Memberships memberships = selection.Memberships();
  out << "node";
  for (const std::uint32_t k : selection.Ks()) out << separator << "k" << k;
  out << "\n";
  for (Node node = 1; node <= selection.Network().size(); ++node) {
    out << In_csv{selection.Network().Name(node), separator};
    Write_columns(memberships, node, selection.Ks().size(), separator, out);
    out << "\n";
  }
}

}  // namespace

void Write_csv(const Selection& selection, Text_sink& sink) { Write_long(selection, sink, comma); }
void Write_tsv(const Selection& selection, Text_sink& sink) { Write_long(selection, sink, tab); }
void Write_wide_csv(const Selection& selection, Text_sink& sink) {
  Write_wide(selection, sink, comma);
}
void Write_wide_tsv(const Selection& selection, Text_sink& sink) {
  Write_wide(selection, sink, tab);
}

void Write_nodes_csv(const Selection& selection, Text_sink& sink) {
  const Memberships memberships = selection.Memberships();
  sink << "Id,Label";
  for (const std::uint32_t k : selection.Ks()) sink << ",communities_k" << k;
  sink << "\n";
  for (Node node = 1; node <= selection.Network().size(); ++node) {
    sink << node << ',' << In_csv{selection.Network().Name(node), comma};
    Write_columns(memberships, node, selection.Ks().size(), comma, sink);
    sink << "\n";
  }
}

void Write_edges_csv(const Selection& selection, Text_sink& sink) {
  sink << "Source,Target,Type,Weight\n";
  const std::string_view type = selection.Is_directed() ? ",Directed," : ",Undirected,";
  selection.For_each_link([&](Node first, Node second, double weight) {
    sink << first << ',' << second << type << weight << "\n";
  });
}

}  // namespace vorlane::exporting
