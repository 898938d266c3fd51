#include "foundation/Line_reader.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>
#include <string_view>
#include <vector>

#include "Temp_dir.h"
#include "foundation/Errors.h"

namespace gns {
namespace {

using namespace std::string_literals;

using Source = Line_reader::Source;

TEST(LineReader, CutsAtTheGivenCharacters) {
  struct Case {
    std::string text;
    Character_set line_ends;
    std::vector<std::string> lines;
    bool terminated;
  };
  const Temp_dir temp;
  const std::string longest(std::size_t{3} << 20U, 'x');
  for (const Case& c : std::vector<Case>{
           {"", {'\n'}, {}, false},
           {"\n", {'\n'}, {""}, true},
           {"a\n\nb", {'\n'}, {"a", "", "b"}, false},
           {"a;b\n", {'\n', ';'}, {"a", "b"}, true},
           {"a\n", {}, {"a\n"}, false},
           {"a\0b\xff"s, {'\0', '\xff'}, {"a", "b"}, true},
           {longest + "\n" + longest, {'\n'}, {longest, longest}, false},
       }) {
    Line_reader reader(temp.Write("file", c.text), Source::regular_file, c.line_ends);
    std::vector<std::string> lines;
    for (std::string_view line; reader.Next(line);) lines.emplace_back(line);
    EXPECT_TRUE(lines == c.lines) << c.text.substr(0, 9);
    EXPECT_EQ(reader.Terminated(), c.terminated) << c.text.substr(0, 9);
  }
}

TEST(LineReader, RefusesWhatItCantRead) {
  const Temp_dir temp;
  const std::string pipe = temp.Path("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  for (const auto& [path, source] : std::vector<std::pair<std::string, Source>>{
           {temp.Path(), Source::any_file},
           {temp.Path("missing"), Source::regular_file},
           {temp.Path(), Source::regular_file},
           {pipe, Source::regular_file},
           {"/dev/zero", Source::regular_file},
       })
    EXPECT_THROW(Line_reader(path, source), Xep_file_not_found) << path;
  std::string_view line = "left";
  EXPECT_FALSE(Line_reader("/dev/null").Next(line));
}

}  // namespace
}  // namespace gns
