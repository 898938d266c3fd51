#include "export/Formats.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include "Random_graphs.h"
#include "export/Picture.h"
#include "vorlane/vorlane.h"

namespace vorlane::exporting {
namespace {

std::string Written(std::string_view format, const Selection& selection, std::size_t file = 0) {
  std::ostringstream stream;
  Stream_sink sink(stream);
  Format_of(format)->files[file].write(selection, sink);
  sink.Hand_on();
  return stream.str();
}

/// A triangle and a clique of four nodes that share "c<", at k = 3 and 4.
Results Small_results(Method method) {
  Link_options links;
  links.weighted = method == Method::intensity;
  links.directed = method == Method::directed;
  Network::Builder builder(links);
  const std::vector<std::pair<std::string, std::string>> pairs = {
      {"a\"", "b,1"}, {"b,1", "c<"}, {"a\"", "c<"}, {"c<", "d"}, {"c<", "e"},
      {"c<", "f"},    {"d", "e"},    {"d", "f"},    {"e", "f"},  {"a\"", "g\xFF"}};
  for (const auto& [from, to] : pairs) {
    if (links.weighted)
      builder.Add(from, to, 0.5);
    else
      builder.Add(from, to);
  }
  Options options;
  if (method == Method::intensity) options.intensity = 0.25;
  return Find(builder.Build(), options);
}

TEST(Formats, Tables) {
  const Selection all(Small_results(Method::undirected), std::nullopt);
  EXPECT_EQ(Written("csv", all),
            "k,community,node,exact\n3,0,\"a\"\"\",1\n3,0,\"b,1\",1\n3,0,c<,1\n3,1,c<,1\n3,1,d,1\n"
            "3,1,e,1\n3,1,f,1\n4,0,c<,1\n4,0,d,1\n4,0,e,1\n4,0,f,1\n");
  EXPECT_EQ(Written("csv-wide", all),
            "node,k3,k4\n\"a\"\"\",0,\n\"b,1\",0,\nc<,0|1,0\ng\xFF,,\nd,1,0\ne,1,0\nf,1,0\n");
  EXPECT_EQ(Written("tables", Selection(all.Results(), 4)),
            "Id,Label,communities_k4\n1,\"a\"\"\",\n2,\"b,1\",\n3,c<,0\n4,g\xFF,\n5,d,0\n6,e,0\n"
            "7,f,0\n");
  EXPECT_EQ(Written("tsv", Selection(Small_results(Method::directed), 4)),
            "k\tcommunity\tnode\texact\n4\t0\tc<\t1\n4\t0\td\t1\n4\t0\te\t1\n4\t0\tf\t1\n");
  const auto edges = Written("tables", Selection(Small_results(Method::directed), 4), 1);
  EXPECT_EQ(edges.substr(0, 40), "Source,Target,Type,Weight\n1,2,Directed,1");
}

TEST(Formats, Json) {
  const Selection all(Small_results(Method::intensity), 4);
  EXPECT_EQ(Written("json", all),
            "{\"vorlane\":\"" VORLANE_VERSION
            "\",\"method\":\"intensity\",\"finished\":true,\n"
            "\"nodes\":[\"a\\\"\",\"b,1\",\"c<\",\"g\xEF\xBF\xBD\",\"d\",\"e\",\"f\"],\n"
            "\"links\":[[0,1,0.5],[0,2,0.5],[0,3,0.5],[1,2,0.5],[2,4,0.5],[2,5,0.5],[2,6,0.5],"
            "[4,5,0.5],[4,6,0.5],[5,6,0.5]],\n"
            "\"cliques\":[[0,1,2],[2,4,5,6]],\"exact_cliques\":2,\n\"levels\":[\n"
            "{\"k\":4,\"exact\":1,\"communities\":[[2,4,5,6]],\"overlaps\":[],"
            "\"k_cliques\":[[2,4,5,6]]}]}\n");
  EXPECT_EQ(Written("jsonl", all),
            "{\"k\":4,\"community\":0,\"exact\":true,\"nodes\":[\"c<\",\"d\",\"e\",\"f\"]}\n");
  EXPECT_EQ(Written("cdlib", all),
            "{\"communities\":[[\"c<\",\"d\",\"e\",\"f\"]],\"algorithm\":\"clique percolation\","
            "\"params\":{\"k\":4,\"method\":\"intensity\"},\"overlap\":true}\n");
}

/// Lines of the text that have a piece in them.
std::string Lines_with(const std::string& piece, const std::string& text) {
  std::istringstream lines(text);
  std::string found;
  for (std::string line; std::getline(lines, line);)
    if (line.find(piece) != std::string::npos) found += line + "\n";
  return found;
}

TEST(Formats, Xml) {
  const Selection all(Small_results(Method::undirected), std::nullopt);
  const std::string gexf = Written("gexf", all);
  const std::string line = Lines_with("label=\"c", gexf);
  EXPECT_TRUE(line.starts_with(
      "<node id=\"3\" label=\"c&lt;\"><attvalues>"
      "<attvalue for=\"communities_k3\" value=\"[k3c0, k3c1]\"/>"
      "<attvalue for=\"memberships_k3\" value=\"2\"/>"
      "<attvalue for=\"community_k3\" value=\"overlap\"/>"
      "<attvalue for=\"communities_k4\" value=\"[k4c0]\"/>"
      "<attvalue for=\"memberships_k4\" value=\"1\"/>"
      "<attvalue for=\"community_k4\" value=\"0\"/></attvalues><viz:size value=\"15\"/>"))
      << line;
  EXPECT_NE(Lines_with("label=\"g", gexf).find("g\xEF\xBF\xBD\"><attvalues></attvalues>"),
            std::string::npos);
  const std::string graphml = Written("graphml", Selection(Small_results(Method::intensity), 3));
  EXPECT_EQ(Lines_with("n3\"", graphml),
            "<node id=\"n3\"><data key=\"name\">c&lt;</data><data key=\"label\">c&lt;</data>"
            "<data key=\"communities_k3\">0|1</data><data key=\"memberships_k3\">2</data>"
            "<data key=\"community_k3\">overlap</data></node>\n"
            "<edge source=\"n1\" target=\"n3\"><data key=\"weight\">0.5</data></edge>\n"
            "<edge source=\"n2\" target=\"n3\"><data key=\"weight\">0.5</data></edge>\n"
            "<edge source=\"n3\" target=\"n5\"><data key=\"weight\">0.5</data></edge>\n"
            "<edge source=\"n3\" target=\"n6\"><data key=\"weight\">0.5</data></edge>\n"
            "<edge source=\"n3\" target=\"n7\"><data key=\"weight\">0.5</data></edge>\n");
}

/// Counts, names, memberships at each k, and a pie for the node of two communities.
TEST(Formats, Cx2) {
  const std::string all =
      Written("cx2", Selection(Small_results(Method::undirected), std::nullopt));
  EXPECT_NE(all.find(R"({"name":"nodes","elementCount":7},{"name":"edges","elementCount":10})"),
            std::string::npos);
  EXPECT_NE(all.find(R"({"name":"nodeBypasses","elementCount":1})"), std::string::npos);
  EXPECT_NE(Lines_with(R"("name":"c<")", all)
                .find(R"("communities_k3":[0,1],"memberships_k3":2,"community_k3":"overlap",)"
                      R"("communities_k4":[0],"memberships_k4":1,"community_k4":"0"}})"),
            std::string::npos);
  EXPECT_NE(Lines_with(R"("name":"g)", all).find("\"v\":{\"name\":\"g\xEF\xBF\xBD\"}}"),
            std::string::npos);
  EXPECT_NE(all.find(R"("cy_dataColumns":["slice_1","slice_2"],"cy_colors":["#)"),
            std::string::npos);
  EXPECT_EQ(all.find("weight"), std::string::npos);

  const std::string weighted =
      Written("cx2", Selection(Small_results(Method::intensity), std::nullopt));
  EXPECT_NE(weighted.find(R"({"weight":{"d":"double"},"directed":{"d":"boolean","v":false}})"),
            std::string::npos);
  EXPECT_NE(weighted.find(R"({"id":0,"s":1,"t":2,"v":{"weight":0.5}})"), std::string::npos);
  const std::string directed = Written("cx2", Selection(Small_results(Method::directed), 4));
  EXPECT_NE(directed.find(R"("directed":{"d":"boolean","v":true})"), std::string::npos);
  EXPECT_NE(directed.find(R"("EDGE_TARGET_ARROW_SHAPE":"triangle")"), std::string::npos);
  EXPECT_EQ(directed.find("communities_k3"), std::string::npos);
}

/// What a table tells equals the results, for every kind of them, one community or many.
TEST(Formats, WideTablesHoldAllMemberships) {
  for (std::uint32_t seed = 1; seed <= 60; ++seed) {
    SCOPED_TRACE(seed);
    gns::literal::Random random(seed);
    Link_options links;
    links.weighted = seed % 3 == 2;
    links.directed = seed % 3 == 1;
    Network::Builder builder(20, links);
    std::vector<Node> from;
    std::vector<Node> to;
    for (std::uint32_t count = random.Between(20, 120); count > 0; --count) {
      from.push_back(random.Between(1, 20));
      to.push_back(random.Between(1, 20));
    }
    const std::vector<double> weights(links.weighted ? from.size() : 0, 1.0);
    builder.Add(from, to, weights);
    Options options;
    if (links.weighted) options.intensity = 0.9;
    const Results results = Find(builder.Build(), options);

    std::map<std::pair<std::string, std::string>, std::string> expected;  // node, column
    for (const std::uint32_t k : results.Ks())
      for (std::size_t i = 0; i < results.At(k).members.size(); ++i)
        for (const Node node : results.At(k).members[i]) {
          std::ostringstream column;
          column << "k" << k;
          std::string& cell = expected[{std::string(results.Network().Name(node)), column.str()}];
          cell.append(cell.empty() ? "" : "|").append(std::to_string(i));
        }
    std::map<std::pair<std::string, std::string>, std::string> found;
    std::istringstream lines(Written("csv-wide", Selection(results, std::nullopt)));
    std::vector<std::string> head;
    for (std::string line; std::getline(lines, line);) {
      std::vector<std::string> cells;
      for (std::size_t at = 0; at <= line.size();) {
        const std::size_t end = std::min(line.find(',', at), line.size());
        cells.push_back(line.substr(at, end - at));
        at = end + 1;
      }
      if (head.empty()) head = cells;
      ASSERT_EQ(cells.size(), head.size());
      for (std::size_t i = 1; i < cells.size() && cells[0] != "node"; ++i)
        if (!cells[i].empty()) found[{cells[0], head[i]}] = cells[i];
    }
    EXPECT_EQ(found, expected);
  }
}

/// Cliques of many sizes, the last two of which share a node; and a node in none.
TEST(Picture, CommunitiesStandTogether) {
  Network::Builder builder(400, {});
  std::vector<Node> from;
  std::vector<Node> to;
  std::vector<std::pair<Node, Node>> ranges;
  for (Node first = 1, size = 40; size >= 3; size -= size > 10 ? 10 : 1) {
    ranges.emplace_back(first, first + size - 1);
    first += size;
  }
  for (const auto& [first, last] : ranges)
    for (Node a = first; a <= last; ++a)
      for (Node b = a + 1; b <= last; ++b) {
        from.push_back(a);
        to.push_back(b);
      }
  const Node shared = ranges[0].second;
  for (const auto& [a, b] :
       std::vector<std::pair<Node, Node>>{{shared, 398}, {shared, 399}, {398, 399}, {1, 400}}) {
    from.push_back(a);
    to.push_back(b);
  }
  builder.Add(from, to, {});
  const Results results = Find(builder.Build());
  const Selection selection(results, 3);
  const Picture picture(selection);
  const auto& members = results.At(3).members;
  ASSERT_EQ(members.size(), ranges.size() + 1);

  const auto distance = [](Point a, Point b) { return std::hypot(a.x - b.x, a.y - b.y); };
  const auto mean_distance = [&](const auto& nodes) {
    double sum = 0;
    double pairs = 0;
    for (const Node a : nodes)
      for (const Node b : nodes)
        if (a < b) {
          sum += distance(picture.Place_of(a), picture.Place_of(b));
          ++pairs;
        }
    return sum / pairs;
  };
  std::vector<Node> all(results.Network().size());
  std::iota(all.begin(), all.end(), 1U);
  for (const auto community : members)
    EXPECT_LT(mean_distance(community), mean_distance(all) / 2) << community.size();
}

}  // namespace
}  // namespace vorlane::exporting
