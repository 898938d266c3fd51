#include "graph/Link_conversion.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "foundation/Errors.h"
#include "graph/Node_order.h"

namespace gns {
namespace {

using namespace std::string_literals;

struct Link {
  std::string first;
  std::string second;
  double weight = 0.0;
};
using Literal_links = std::map<std::pair<std::string, std::string>, double>;
using Literal_index_links = std::map<std::pair<Node_index, Node_index>, double>;

Link_map Built(const std::vector<Link>& links, bool weighted = true) {
  Link_map_builder builder(weighted);
  for (const Link& link : links) builder.Add(link.first, link.second, link.weight);
  return builder.Build();
}

std::vector<std::pair<std::string, double>> Listed(const Link_map& links) {
  std::vector<std::pair<std::string, double>> list;
  for (std::size_t i = 0; i < links.size(); ++i)
    list.emplace_back(std::string(links.First(i)) + " " + std::string(links.Second(i)),
                      links.Weight(i));
  return list;
}

/// Conversion with maps, as plain as it can be.
struct Literal_conversion {
  Literal_conversion(const Literal_links& links, bool directed) {
    std::map<std::string, Node_index> index_of;
    const auto number = [&](const std::string& name) {
      const auto next = static_cast<Node_index>(index_of.size() + 1);
      if (index_of.emplace(name, next).second) names.push_back(name);
      return index_of[name];
    };
    for (const auto& [key, weight] : links) {
      const Node_index a = number(key.first);
      const Node_index b = number(key.second);
      index_links[!directed && b < a ? std::pair(b, a) : std::pair(a, b)] += weight;
    }
  }
  std::vector<std::string> names;
  Literal_index_links index_links;
};

std::vector<Link> Random_links(std::uint32_t seed) {
  std::mt19937 random(seed);
  const unsigned names = 2 + static_cast<unsigned>(random()) % 30;
  const auto name = [&] {
    // Many equal beginnings, longer than what a machine word holds.
    const unsigned n = static_cast<unsigned>(random()) % names;
    return (n % 3 == 0 ? "the same beginning" : "") + std::to_string(n * n);
  };
  std::vector<Link> links;
  for (unsigned left = static_cast<unsigned>(random()) % 80; left > 0; --left) {
    Link link = {name(), name(), (static_cast<double>(random() % 2001) - 1000.0) / 10.0};
    if (link.first != link.second) links.push_back(link);
  }
  return links;
}

Literal_index_links As_map(const Index_links& links) {
  Literal_index_links map;
  for (Node_index first = 1; first <= links.Node_count(); ++first)
    for (const Node_index second : links.Row(first))
      map[{first, second}] = links.Weight(first, second).value();
  return map;
}

void Expect_undirected_records(const Index_links& links) {
  Vertex_map vtx_map;
  Vtx_map_from_link_map(vtx_map, links);
  std::vector<Vtx> records;
  for (Node_index node = 1; node <= links.Node_count(); ++node) records.emplace_back(node);
  for (const auto& [key, weight] : As_map(links)) {
    records[key.first - 1].Add_neigh(key.second);
    records[key.second - 1].Add_neigh(key.first);
  }
  ASSERT_EQ(vtx_map.size(), records.size());
  for (const Vtx& record : records) {
    const Vtx built = vtx_map.Record(record.Index());
    ASSERT_EQ(built.Neighs(), record.Neighs());
    ASSERT_EQ(built.Index(), record.Index());
    ASSERT_EQ(built.Name(), std::to_string(record.Index()));
  }
}

void Expect_directed_records(const Index_links& links) {
  Dir_vertex_map vtx_map;
  Dir_vtx_map_from_link_map(vtx_map, links);
  std::vector<Vtxd> records;
  for (Node_index node = 1; node <= links.Node_count(); ++node) records.emplace_back(node);
  for (const auto& [key, weight] : As_map(links)) {
    records[key.first - 1].Add_oneigh(key.second);
    records[key.second - 1].Add_ineigh(key.first);
  }
  ASSERT_EQ(vtx_map.size(), records.size());
  for (const Vtxd& record : records) {
    const Vtxd built = vtx_map.Record(record.Index());
    ASSERT_EQ(built.Neighs(), record.Neighs());
    ASSERT_EQ(built.Oneighs(), record.Oneighs());
    ASSERT_EQ(built.Ineighs(), record.Ineighs());
    ASSERT_TRUE(std::ranges::equal(vtx_map.Neighs(record.Index()), record.Neighs_c()));
  }
}

TEST(LinkConversion, EqualsTheLiteralOneOnRandomLinks) {
  for (std::uint32_t seed = 0; seed < 1000; ++seed) {
    const std::vector<Link> lines = Random_links(seed);
    Literal_links literal_links;
    for (const Link& line : lines) literal_links[{line.first, line.second}] += line.weight;
    const bool directed = seed % 2 == 1;
    const Literal_conversion literal(literal_links, directed);

    Index_links index_links({{1, 2}}, {5.0}, 2);
    Node_names names;
    Convert_s_links(index_links, names, Built(lines), directed);
    ASSERT_EQ(As_map(index_links), literal.index_links) << seed;
    ASSERT_EQ(index_links.size(), literal.index_links.size());
    ASSERT_EQ(names.size(), literal.names.size());
    for (Node_index node = 1; node <= names.size(); ++node)
      ASSERT_EQ(names[node], literal.names[node - 1]);
    directed ? Expect_directed_records(index_links) : Expect_undirected_records(index_links);
    if (HasFatalFailure()) FAIL() << seed;
  }
}

TEST(LinkConversion, KnownLinks) {
  struct Case {
    std::vector<Link> links;
    std::vector<std::string> names;
    Literal_index_links undirected;
    Literal_index_links directed;
  };
  for (const Case& c : std::vector<Case>{
           {{}, {}, {}, {}},
           {{{"b", "a", 2}}, {"b", "a"}, {{{1, 2}, 2}}, {{{1, 2}, 2}}},
           {{{"a", "b"}, {"a", "c"}, {"b", "a"}, {"c", "d"}},
            {"a", "b", "c", "d"},
            {{{1, 2}, 0}, {{1, 3}, 0}, {{3, 4}, 0}},
            {{{1, 2}, 0}, {{1, 3}, 0}, {{2, 1}, 0}, {{3, 4}, 0}}},
           {{{"x", "y", 0.25}, {"y", "x", 0.5}},
            {"x", "y"},
            {{{1, 2}, 0.75}},
            {{{1, 2}, 0.25}, {{2, 1}, 0.5}}},
           {{{"9", "10", -1}}, {"9", "10"}, {{{1, 2}, -1}}, {{{1, 2}, -1}}},
           {{{"9", "c"}, {"10", "c"}, {"\xff", "A"}},
            {"10", "c", "9", "\xff", "A"},
            {{{1, 2}, 0}, {{2, 3}, 0}, {{4, 5}, 0}},
            {{{1, 2}, 0}, {{3, 2}, 0}, {{4, 5}, 0}}},
       }) {
    for (const bool directed : {false, true}) {
      Index_links index_links;
      Node_names names;
      Convert_s_links(index_links, names, Built(c.links), directed);
      EXPECT_EQ(As_map(index_links), directed ? c.directed : c.undirected);
      for (Node_index node = 1; node <= names.size(); ++node)
        EXPECT_EQ(names[node], c.names.at(node - 1));
    }
  }
}

/// Keys of a directed run, in which one link comes twice, are refused.
TEST(LinkConversion, UndirectedMapWithALinkInBothDirections) {
  for (const std::vector<Index_pair>& keys :
       std::vector<std::vector<Index_pair>>{{{1, 2}, {1, 3}, {3, 1}}, {{1, 2}, {2, 2}}}) {
    Vertex_map vtx_map;
    try {
      Vtx_map_from_link_map(vtx_map, Index_links(keys, {}, 3));
      ADD_FAILURE();
    } catch (const Xerror_msg& error) {
      EXPECT_STREQ(error.what(),
                   "ERROR: Vtx::Add_neigh() : attempt to add already exisiting neigh. ");
    }
  }
}

TEST(LinkMap, OrderAndSums) {
  // Bytes compare unsigned, a prefix comes first, and a NUL is a byte like any other.
  EXPECT_EQ(Listed(Built({{"b", "\xc3", 1},
                          {"b", "~", 1},
                          {"b", "A\xc3", 1},
                          {"aaaaaaaab", "b", 4},
                          {"aaaaaaaa", "b", 1e17},
                          {"a\0"s, "b", 3},
                          {"aaaaaaaa", "b", -1e17},
                          {"a", "b", 2},
                          {"aaaaaaaa", "b", 1}})),
            (std::vector<std::pair<std::string, double>>{{"a b", 2},
                                                         {"a\0 b"s, 3},
                                                         {"aaaaaaaa b", 1},
                                                         {"aaaaaaaab b", 4},
                                                         {"b A\xc3", 1},
                                                         {"b ~", 1},
                                                         {"b \xc3", 1}}));
  EXPECT_EQ(Listed(Built({{"a", "b", 2}, {"a", "b", 3}}, false)),
            (std::vector<std::pair<std::string, double>>{{"a b", 0}}));
}

TEST(IndexLinks, MissingKeys) {
  const Index_links links({{1, 2}, {1, 4}, {3, 4}}, {5, 6, 7}, 4);
  EXPECT_EQ(links.Weight(1, 4), 6.0);
  EXPECT_TRUE(links.contains(3, 4));
  for (const Index_pair& key : std::vector<Index_pair>{{1, 3}, {2, 1}, {4, 5}, {5, 1}, {1, 5}}) {
    EXPECT_FALSE(links.contains(key.first, key.second));
    EXPECT_EQ(links.Weight(key.first, key.second), std::nullopt);
  }
}

TEST(NodeOrder, ByNeighboursThenByIndex) {
  const Index_links links({{1, 4}, {2, 3}, {2, 4}, {3, 2}, {4, 1}, {5, 4}}, {}, 5);
  Dir_vertex_map directed;
  Dir_vtx_map_from_link_map(directed, links);
  Node_order order = {9};
  const std::vector<std::pair<std::string, Node_order>> cases = {
      {"Neighs", {1, 3, 5, 2, 4}}, {"Ineighs", {5, 1, 2, 3, 4}}, {"Oneighs", {1, 3, 4, 5, 2}}};
  for (const auto& [flag, expected] : cases) {
    Sort_dir_vtx_map(order, directed, flag);
    EXPECT_EQ(order, expected) << flag;
  }
  for (const std::string flag : {"neighs", "", "Neighs "}) {
    try {
      Sort_dir_vtx_map(order, directed, flag);
      ADD_FAILURE() << flag;
    } catch (const Xerror_msg& error) {
      EXPECT_EQ(error.what(), " Invalid flag '" + flag + "' given in Sort_vtxd_gmap...\n");
    }
    EXPECT_EQ(order, cases.back().second);
  }
  Vertex_map undirected;
  Vtx_map_from_link_map(undirected, Index_links({{1, 4}, {2, 3}, {2, 4}, {4, 5}}, {}, 5));
  Sort_Vtx_map(order, undirected);
  EXPECT_EQ(order, (Node_order{1, 3, 5, 2, 4}));
  Sort_Vtx_map(order, {});
  EXPECT_TRUE(order.empty());
}

}  // namespace
}  // namespace gns
