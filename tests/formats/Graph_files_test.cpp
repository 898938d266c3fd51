#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Read_text.h"

namespace gns {
namespace {

struct Case {
  std::string text;
  std::string words;
  bool weighted = false;
  bool directed = false;
};

void Expect(const std::string& name, const Case& c) {
  Reading reading{name, c.weighted, {}};
  reading.wishes.directed = c.directed;
  EXPECT_EQ(Read_text(c.text, reading), c.words) << c.text;
}

const std::string heeds_none = "?3 the links have a direction, which is not heeded";
const std::string has_none =
    "?3 the links have no direction, and are taken as from the first node to the second";

TEST(Pajek, ReadsNetworks) {
  const std::string two = "*Vertices 2\n1 \"a\"\n2 \"b c\" 0.1 0.2 box\n";
  for (const Case& c : std::vector<Case>{
           {"*vertices 3\n*EDGES\n1 2\n 3 2 1.5\n", "1 2=0|3 2=0|"},
           {"*Vertices 3\n*Edges\n1 2\n3 2 1.5 c Blue\n", "1 2=1|3 2=1.5|", true},
           {"\xEF\xBB\xBF% by hand\n*Network x\n" + two + "*Edges\r\n1 2\r\n", "a b c=0|"},
           {"*Vertices 3\n2 two\n*Edges\n1 2\n", "1 two=0|"},
           {"*Vertices 4\n*Edgeslist\n1 2 3\n4 1\n", "1 2=1|1 3=1|4 1=1|", true},
           {"*Vertices 3\n\n*Arcs :1 \"likes\"\n1 2\n", "1 2=0|", false, true},
           {"*Vertices 3\n% x\n*Arcslist\n1 2\n", "1 2=0|" + heeds_none},
           {"*Vertices 3\n/* x */\n*Edges\n1 2\n", "1 2=0|" + has_none, false, true},
           {"*Vertices 3\n1 \"a\"\n2 \"a\"\n*Edges\n1 2\n",
            "1 2=0|?3 the label 'a' belongs to several nodes, so that all nodes are called by "
            "their "
            "identifiers"},
           {"*Vertices 3\n2 \"1\"\n*Edges\n1 2\n",
            "1 2=0|?4 the label '' belongs to several nodes, so that all nodes are called by their "
            "identifiers"},
           {"*Vertices 1\n", ""}})
    Expect("x.NET", c);
}

TEST(Pajek, TellsWhereItCantBeRead) {
  for (const Case& c : std::vector<Case>{{"1 2\n", "!1:1 1"},
                                         {"*Edges\n1 2\n", "!1:1 *Edges"},
                                         {"*Vertices x\n", "!1:11 x"},
                                         {"*Vertices 0\n", "!1:11 0"},
                                         {"*Vertices 99999999999\n", "!1:11 99999999999"},
                                         {"*Vertices 2\n1 \"a\n", "!2:3 \"a"},
                                         {"*Vertices 2\n3 \"a\"\n", "!2:1 3"},
                                         {"*Vertices 2\n1 \"a\"\n1\n", "!3:1 1"},
                                         {"*Vertices 2\n*Edges\n1 3\n", "!3:3 3"},
                                         {"*Vertices 2\n*Edges\n1\n", "!3:2 "},
                                         {"*Vertices 2\n*Edges\n1 2 x\n", "!3:5 x", true},
                                         {"*Vertices 2\n*Edges\n1 2\n*Arcs\n2 1\n", "!4:1 *Arcs"},
                                         {"*Vertices 2\n*Matrix\n", "!2:1 *Matrix"},
                                         {"*Vertices 2\n*Vertices 2\n", "!2:1 *Vertices"}})
    Expect("x.net", c);
}

TEST(Matrix, ReadsEntries) {
  const std::string head = "%%MatrixMarket matrix coordinate ";
  for (const Case& c : std::vector<Case>{
           {head + "pattern general\n% x\n3 3 2\n1 2\n3 1\n", "1 2=0|3 1=0|"},
           {head + "real general\n3 3 2\n1 2 0.5\n2 1 2e1\n", "1 2=0.5|2 1=20|", true},
           {head + "integer symmetric\n\n3 3 2\n2 1 7\n3 3 1\n", "2 1=7|", true},
           {head + "real symmetric\n3 3 2\n2 1 7\n3 3 1\n", "1 2=7|2 1=7|", true, true},
           {"% asym\n3 3 1\n1 2\n", "1 2=0|"},
           {"3 3 1\n1 2 4\n", "1 2=4|", true}})
    Expect("x.mtx", c);
}

TEST(Matrix, TellsWhereItCantBeRead) {
  const std::string head = "%%MatrixMarket matrix coordinate ";
  for (const Case& c :
       std::vector<Case>{{"", "!1:0 "},
                         {"%%MatrixMarket vector coordinate real general\n", "!1:16 vector"},
                         {"%%matrixmarket matrix array real general\n", "!1:23 array"},
                         {head + "complex general\n", "!1:34 complex"},
                         {head + "real skew-symmetric\n", "!1:39 skew-symmetric"},
                         {head + "pattern general\n2 2 1\n1 2\n", "!3:4 ", true},
                         {"3 4 1\n", "!1:3 4"},
                         {"3 3\n", "!1:4 "},
                         {"3 3 1\n0 1\n", "!2:1 0"},
                         {"3 3 1\n1 4\n", "!2:3 4"},
                         {"3 3 1\n1 -2\n", "!2:3 -2"},
                         {"3 3 1\n1 2 x\n", "!2:5 x", true},
                         {"3 3 1\n1 2\n2 3\n", "!3:1 2"},
                         {"3 3 2\n1 2\n", "!3:0 "}})
    Expect("x.mtx", c);
}

TEST(Metis, ReadsNeighbours) {
  for (const Case& c :
       std::vector<Case>{{"3 2\n2 3\n1\n1\n", "1 2=0|1 3=0|"},
                         {"% x\n3 1 1\n2 7\n% y\n1 7\n\n", "1 2=7|", true},
                         {"2 1 10\n5 2\n6 1\n", "1 2=0|"},
                         {"2 1 011 2\n5 5 2 3\n6 6 1 3\n", "1 2=3|", true},
                         {"2 1 100\n9 2\n9 1\n", "1 2=0|"},
                         {"2 1 111\n9 5 2 3\r\n9 6 1 3\r\n", "1 2=3|2 1=3|", true, true},
                         {"2 0\n\n\n", ""},
                         {"0 0\n", ""}})
    Expect("x.graph", c);
}

TEST(Metis, TellsWhereItCantBeRead) {
  for (const Case& c : std::vector<Case>{{"", "!1:0 "},
                                         {"x\n", "!1:1 x"},
                                         {"2 1 2\n", "!1:5 2"},
                                         {"2 1\n2\n1\n", "!1:0 2 1", true},
                                         {"2 1\n3\n1\n", "!2:1 3"},
                                         {"2 1\n0\n1\n", "!2:1 0"},
                                         {"2 1 1\n2\n1 1\n", "!2:2 "},
                                         {"2 1 10\n\n", "!2:1 "},
                                         {"2 1\n2\n", "!3:0 "},
                                         {"2 1\n2\n1\n1\n", "!4:1 1"},
                                         {"2 2\n2\n1\n", "!1:0 2"},
                                         {"3 1\n2 3\n\n\n", "!1:0 one that isn't"},
                                         {"2 1 1\n2 1\n1 2\n", "!1:0 one that isn't", true}})
    Expect("x.graph", c);
}

#ifdef VORLANE_EXPAT

const std::string keys =
    "<?xml version='1.0'?><graphml xmlns='http://graphml.graphdrawing.org/xmlns'>\n"
    "<key id='l' for='node' attr.name='label'/><key id='n' for='node' attr.name='name'/>"
    "<key id='w' for='edge' attr.name='Weight'><default>5</default></key>\n";

std::string Graph(const std::string& inside, const std::string& direction = "undirected") {
  return keys + "<graph edgedefault='" + direction + "'>" + inside + "</graph></graphml>\n";
}

TEST(Graphml, ReadsNetworks) {
  const std::string nodes = "<node id='x'/><node id='y'/>";
  const std::string edge = "<edge source='x' target='y'/>";
  for (const Case& c : std::vector<Case>{
           {Graph(nodes + edge), "x y=0|"},
           {Graph(edge + nodes), "x y=5|", true},
           {Graph(nodes + "<edge source='y' target='x'><data key='w'>0.5</data></edge>"),
            "y x=0.5|", true},
           {Graph("<node id='x'><data key='l'> A &amp; B\n</data></node>" + nodes.substr(14) +
                  edge),
            "A & B y=0|"},
           {Graph("<node id='x'><data key='n'>N</data><data key='l'>L</data></node><node id='y'>"
                  "<data key='l'><![CDATA[<l>]]></data></node>" +
                  edge),
            "N <l>=0|"},
           {Graph("<node id='x'><data key='l'>L</data><data key='n'>N</data></node>"
                  "<node id='y'><graph edgedefault='undirected'><node id='z'/>"
                  "<edge source='z' target='x'/></graph><data key='n'>Y</data></node>" +
                  edge),
            "N Y=0|z N=0|"},
           {Graph("<node id='x'><data key='l'>y</data></node><node id='y'/>" + edge),
            "x y=0|?3 the label '' belongs to several nodes, so that all nodes are called by their "
            "identifiers"},
           {Graph(nodes + edge, "directed"), "x y=0|" + heeds_none},
           {Graph(nodes + edge), "x y=0|" + has_none, false, true},
           {Graph(nodes + "<edge source='x' target='y' directed='true'/>"), "x y=0|", false, true},
           {"<g:graphml xmlns:g='u'><g:graph edgedefault='undirected'><g:node id='x'/>"
            "<g:node id='y'/><g:edge source='x' target='y'/></g:graph></g:graphml>",
            "x y=0|"},
           {"<?xml version='1.0' encoding='ISO-8859-1'?><graphml><graph edgedefault='undirected'>"
            "<node id='\xE9'/><node id='y'/><edge source='\xE9' target='y'/></graph></graphml>",
            "\xC3\xA9 y=0|"}})
    Expect("x.graphml", c);
}

TEST(Graphml, TellsWhereItCantBeRead) {
  const std::string nodes = "<node id='x'/>\n<node id='y'/>";
  std::string bomb = "<?xml version='1.0'?><!DOCTYPE g [<!ENTITY a 'aaaaaaaaaa'>\n";
  bomb += "<!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;&a;'>]><graphml>&b;</graphml>";
  for (const Case& c : std::vector<Case>{
           {"", "!1:1 no element found"},
           {"a b\n", "!1:1 syntax error"},
           {Graph(nodes).substr(0, keys.size() + 40), "!3:33 unclosed token"},
           {Graph("<node id='x'></edge>"), "!3:48 mismatched tag"},
           {"<graphml><node id='x'/></graphml>", "!1:10 node"},
           {"<graphml><graph/></graphml>", "!1:10 graph"},
           {"<graphml><graph edgedefault='both'/></graphml>", "!1:10 both"},
           {Graph("<node/>"), "!3:33 node"},
           {Graph(nodes + nodes), "!4:15 x"},
           {Graph(nodes + "<edge source='x'/>"), "!4:15 edge"},
           {Graph(nodes + "\n<edge source='x' target='z'/>"), "!5:1 z"},
           {Graph(nodes + "\n<hyperedge/>"), "!5:1 hyperedge"},
           {Graph(nodes + "\n<edge source='x' target='y'/><edge source='x' target='y' "
                          "directed='true'/>"),
            "!5:30 true"},
           {Graph(nodes + "\n<edge source='x' target='y'><data key='w'>much</data></edge>"),
            "!5:1 much", true},
           {bomb, "!1:46 a"}})
    Expect("x.graphml", c);
}

#endif

}  // namespace
}  // namespace gns
