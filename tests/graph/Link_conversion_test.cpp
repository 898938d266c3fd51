#include "graph/Link_conversion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "Thrown_message.h"
#include "graph/Node_order.h"

namespace gns {
namespace {

using namespace std::string_literals;

struct Link {
  std::string first;
  std::string second;
  double weight = 0.0;
};
using Name_pair = std::pair<std::string, std::string>;
using Literal_index_links = std::map<std::pair<Node_index, Node_index>, double>;

Link_map Built(const std::vector<Link>& links, bool weighted = true) {
  Link_map_builder builder(weighted);
  for (const Link& link : links) builder.Add(link.first, link.second, link.weight);
  return builder.Build();
}

/// Conversion with maps, as plain as it can be.
struct Literal_conversion {
  Literal_conversion(const std::vector<Link>& lines, bool directed) {
    std::map<Name_pair, double> links;
    for (const Link& line : lines) links[{line.first, line.second}] += line.weight;
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

/// Some names begin alike, longer than a machine word; some lists are longer than a first table of
/// names.
std::vector<Link> Random_links(std::uint32_t seed) {
  std::mt19937 random(seed);
  const unsigned size = seed % 100 == 0 ? 3000 : 80;
  const unsigned names = 2 + static_cast<unsigned>(random()) % size;
  const auto name = [&] {
    const unsigned n = static_cast<unsigned>(random()) % names;
    return (n % 3 == 0 ? "the same beginning" : "") + std::to_string(n * n);
  };
  std::vector<Link> links;
  for (unsigned left = static_cast<unsigned>(random()) % size; left > 0; --left) {
    Link link = {name(), name(), (static_cast<double>(random() % 2001) - 1000.0) / 10.0};
    if (link.first != link.second) links.push_back(link);
  }
  return links;
}

/// By size of their rows, then by index.
template <typename Rows>
Node_order Ordered(const Rows& rows) {
  Node_order order;
  for (Node_index node = 1; node < rows.size(); ++node) order.push_back(node);
  std::ranges::stable_sort(order, {}, [&](Node_index node) { return rows[node].size(); });
  return order;
}

void Expect_graph(const Index_links& links, const Literal_index_links& literal, bool directed) {
  const Node_index count = links.Node_count();
  std::vector<std::set<Node_index>> out(count + 1), in(count + 1), all(count + 1);
  for (const auto& [key, weight] : literal) {
    out[key.first].insert(key.second);
    in[key.second].insert(key.first);
    all[key.first].insert(key.second);
    all[key.second].insert(key.first);
  }
  Node_order order = {9};
  if (directed) {
    Dir_vertex_map map;
    Dir_vtx_map_from_link_map(map, links);
    ASSERT_EQ(map.size(), count);
    for (Node_index node = 1; node <= count; ++node) {
      const Vtxd record = map.Record(node);
      ASSERT_EQ(record.Index(), node);
      ASSERT_TRUE(std::ranges::equal(record.Oneighs_c(), out[node]));
      ASSERT_TRUE(std::ranges::equal(record.Ineighs_c(), in[node]));
      ASSERT_TRUE(std::ranges::equal(record.Neighs_c(), all[node]));
      ASSERT_TRUE(std::ranges::equal(map.Neighs(node), all[node]));
    }
    for (const auto& [flag, rows] : {std::pair("Oneighs", out), {"Ineighs", in}, {"Neighs", all}}) {
      Sort_dir_vtx_map(order, map, flag);
      ASSERT_EQ(order, Ordered(rows)) << flag;
    }
  } else {
    Vertex_map map;
    Vtx_map_from_link_map(map, links);
    ASSERT_EQ(map.size(), count);
    for (Node_index node = 1; node <= count; ++node) {
      ASSERT_EQ(map.Record(node).Name(), std::to_string(node));
      ASSERT_TRUE(std::ranges::equal(map.Record(node).Neighs_c(), all[node]));
    }
    Sort_Vtx_map(order, map);
    ASSERT_EQ(order, Ordered(all));
  }
}

TEST(LinkConversion, EqualsTheLiteralOneOnRandomLinks) {
  for (std::uint32_t seed = 0; seed < 1001; ++seed) {
    SCOPED_TRACE(seed);
    const std::vector<Link> lines = Random_links(seed);
    const bool directed = seed % 2 == 1;
    const Literal_conversion literal(lines, directed);

    Index_links links({{1, 2}}, {5.0}, 2);
    Node_names names;
    Convert_s_links(links, names, Built(lines), directed);
    ASSERT_EQ(names.size(), literal.names.size());
    for (Node_index node = 1; node <= names.size(); ++node)
      ASSERT_EQ(names[node], literal.names[node - 1]);
    ASSERT_EQ(links.size(), literal.index_links.size());
    ASSERT_EQ(links.Node_count(), names.size());
    for (const auto& [key, weight] : literal.index_links) {
      ASSERT_EQ(links.Weight(key.first, key.second), weight);
      for (const auto& [a, b] : {std::pair(key.first, key.second + 1), {key.second, key.first}})
        ASSERT_EQ(links.contains(a, b), literal.index_links.contains({a, b}));
    }
    ASSERT_FALSE(links.contains(links.Node_count() + 1, 1));
    Expect_graph(links, literal.index_links, directed);
    if (HasFatalFailure()) return;
  }
}

TEST(LinkConversion, NoUndirectedGraphOfALinkInBothDirections) {
  for (const std::vector<Index_pair>& keys :
       std::vector<std::vector<Index_pair>>{{{1, 2}, {1, 3}, {3, 1}}, {{1, 2}, {2, 2}}}) {
    Vertex_map vtx_map;
    EXPECT_EQ(Thrown_message([&] { Vtx_map_from_link_map(vtx_map, Index_links(keys, {}, 3)); }),
              "ERROR: Vtx::Add_neigh() : attempt to add already exisiting neigh. ");
  }
}

/// Bytes compare unsigned, a prefix comes first, and a NUL is a byte like any other. Weights add up
/// in the order of adding.
TEST(LinkMap, OrderAndSums) {
  const std::vector<Link> lines = {
      {"b", "\xc3", 1},         {"b", "~", 1},           {"b", "A\xc3", 1},
      {"aaaaaaaab", "b", 4},    {"aaaaaaaa", "b", 1e17}, {"a\0"s, "b", 3},
      {"aaaaaaaa", "b", -1e17}, {"a", "b", 2},           {"aaaaaaaa", "b", 1}};
  std::string text;
  for (const bool weighted : {true, false}) {
    const Link_map links = Built(lines, weighted);
    for (std::size_t i = 0; i < links.size(); ++i)
      text += std::string(links.First(i)) + " " + std::string(links.Second(i)) + "=" +
              std::to_string(static_cast<int>(links.Weight(i))) + "|";
  }
  EXPECT_EQ(text,
            "a b=2|a\0 b=3|aaaaaaaa b=1|aaaaaaaab b=4|b A\xc3=1|b ~=1|b \xc3=1|"
            "a b=0|a\0 b=0|aaaaaaaa b=0|aaaaaaaab b=0|b A\xc3=0|b ~=0|b \xc3=0|"s);
}

TEST(NodeOrder, InvalidFlag) {
  Node_order order = {9};
  for (const std::string flag : {"neighs", "", "Neighs "})
    EXPECT_EQ(Thrown_message([&] { Sort_dir_vtx_map(order, {}, flag); }),
              " Invalid flag '" + flag + "' given in Sort_vtxd_gmap...\n");
  EXPECT_EQ(order, Node_order{9});
}

}  // namespace
}  // namespace gns
