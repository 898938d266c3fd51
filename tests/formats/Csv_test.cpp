#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "Read_text.h"

namespace gns {
namespace {

struct Case {
  std::string text;
  std::string words;
  bool weighted = true;
  std::vector<std::string> columns = {};
  std::string name = "net.csv";
};

void Expect(const Case& c, bool for_files = false, const std::string& blanks = "") {
  Reading reading{c.name, c.weighted, {}};
  reading.wishes.columns = c.columns;
  reading.wishes.for_files = for_files;
  reading.wishes.blanks = blanks;
  EXPECT_EQ(Read_text(c.text, reading), c.words) << c.text;
}

TEST(Csv, FindsSeparatorAndColumns) {
  for (const Case& c : std::vector<Case>{
           {"a,b,1\nb,c,2\n", "a b=1|b c=2|"},
           {"a;b;1\nb;c;2", "a b=1|b c=2|"},
           {"a\tb\t1\r\nb\tc\t2\r\n", "a b=1|b c=2|"},
           {"\xEF\xBB\xBFSource,Target\na,b\n", "a b=0|", false},
           {"# made by hand\n# twice\nfrom,to\na,b\n", "a b=0|", false},
           {"id,TARGET,Source,weight\n7,b,a,3\n", "a b=3|"},
           {"node1;node2;evenings\na;b;4\n", "a b=4|"},
           {"wer,wen,oft\na,b,1\nb,c,2\n", "a b=1|b c=2|"},  // a third field that is a number
           {"wer,wen\na,b\n", "a b=0|wer wen=0|", false},    // below: nothing tells
           {"a,b,x\nb,c,y\n", "a b=0|b c=0|", false},        // a third field of words
           {"Lovelace, Ada;b\nc;d\n", "Lovelace, Ada b=0|c d=0|", false},
           {"a\tb,c\nd\te\n", "a b,c=0|d e=0|", false, {}, "net.tsv"},
           {"a , \tb ,1\n\n ,,\n,,\n", "a b=1|"},  // blanks around, free rows
           {"a,b,1,more\nb,c,2\n", "a b=1|b c=2|"},
           {"", "", false},
           {"source,target\n", "", false},
           {"x,y,z\n1,a,b\n", "a b=1|", true, {"y", "z", "x"}},
           {"1,a,b\n2,b,c\n", "a b=1|b c=2|", true, {"2", "3", "1"}},
           {"x,y,z\na,b,1\nb,c,1\n", "a b=1|b c=1|", true, {"1", "2", "3"}},
           {"x,source,target\n1,a,b\n", "a b=0|", false, {"2", "3"}}})
    Expect(c);
}

TEST(Csv, TakesWhatStandsInQuotes) {
  for (const Case& c :
       std::vector<Case>{{"\"a,b\",\"c \"\"d\"\"\",\"1\"\n", "a,b c \"d\"=1|"},
                         {"\"a\nb\r\nc\",d,2\ne,f,3\n", "a\nb\nc d=2|e f=3|"},
                         {" \"a\" ;b;1\n", "a b=1|"},
                         {"a\"b,c\"\"d,1\n", "a\"b c\"\"d=1|"},  // quotes inside a field are text
                         {"a,b,1,\"more,\n\"\n\"c\",d,2", "a b=1|c d=2|"},
                         {"source,target\n\" a \",b\n", " a  b=0|", false}})
    Expect(c);
}

TEST(Csv, TellsWhereItCantBeRead) {
  for (const Case& c :
       std::vector<Case>{{"a,b,1\nb,c\n", "!2:4 "},
                         {"a,b,1\nb,c,x1\n", "!2:5 x1"},
                         {"a;b;1\n\xC3\xA4;\xC3\xB6;0,5\n", "!2:5 0,5"},
                         {"a,b,1\n\nb\n", "!3:2 "},
                         {"a,b,1\n" + std::string(70000, '\n') + "b\n", "!70002:2 "},
                         {"a,b,1\n,c,1\n", "!2:1 "},
                         {"a,b,1\nb,  ,1\n", "!2:3 "},
                         {"a b\nc d\n", "!1:1 a b"},
                         {"a,b\n\"c,d\ne,f\n", "!2:1 c,d\ne,f\n", false},  // quotes without an end
                         {"a,b\nc,\"d\"x,e\n", "!2:6 x,e", false},
                         {"x,y\na,b\n", "!1:1 x,y", false, {"x", "z"}},
                         {"x,y\na,b\n", "!1:4 ", false, {"1", "9"}},
                         {"a,b\rc,d\r", "!1:0 \r", false}})
    Expect(c);
}

TEST(Csv, KeepsNamesFitForFiles) {
  const std::string text = "Ada L,b,1\nc,#d,1\n";
  Expect({text, "Ada L b=1|c #d=1|"});
  Expect({text, "!1:1 Ada L"}, true);
  Expect({"a,b,1\nc,#d,1\n", "!2:3 #d"}, true);
  Expect({text, "Ada_L b=1|c _d=1|"}, true, "_");
  Expect({"Ada L,b,1\nAda L,c,1\n", "Ada\xC2\xB7L b=1|Ada\xC2\xB7L c=1|"}, true, "\xC2\xB7");
  Expect({"Ada L,b,1\nc,Ada_L,1\n", "!2:3 Ada_L"}, true, "_");
  Expect({"Ada_L,b,1\nc,Ada\tL,1\n", "!2:3 Ada\tL"}, true, "_");
  Expect({"Ada L,b,1\n\"Ada\nL\",c,1\n", "!2:1 Ada\nL"}, true, "_");
}

/// Random fields, each written in quotes if it must be or by chance, across many blocks.
TEST(Csv, ReadsBackWhatWasWritten) {
  const std::vector<std::string> pieces = {"a", "b", "\xC3\xA9", "\"", ",", ";", "\n", "x y", "#"};
  for (std::uint32_t seed = 0; seed < 60; ++seed) {
    std::mt19937 random(seed);
    Link_map_builder builder(false);
    std::string text = "source,target\n";
    const auto field = [&] {
      std::string name = "n";
      for (std::size_t left = random() % 5; left > 0; --left) name += pieces[random() % 9];
      return name + std::string(random() % 100 == 0 ? 5000 : 0, 'z') + "e";
    };
    const auto put = [&](const std::string& name) {
      if (name.find_first_of("\",\n") == std::string::npos && random() % 2 == 0) {
        text += name;
        return;
      }
      text += '"';
      for (const char c : name) text.append(c == '"' ? 2 : 1, c);
      text += '"';
    };
    for (std::size_t left = seed == 0 ? 50000 : random() % 50; left > 0; --left) {
      const std::string first = field();
      const std::string second = field();
      put(first);
      text += ',';
      put(second);
      text += random() % 2 == 0 ? "\r\n" : "\n";
      if (first != second) builder.Add(first, second);
    }
    std::ostringstream words;
    Put(words, builder.Build());
    ASSERT_TRUE(Read_text(text, {"net.csv"}) == words.str()) << "seed " << seed;
  }
}

}  // namespace
}  // namespace gns
