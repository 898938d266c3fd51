#include "foundation/io/Line_reader.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "Temp_dir.h"
#include "foundation/Errors.h"

namespace gns {
namespace {

using namespace std::string_literals;

using Source = Line_reader::Source;
using Lines = std::vector<std::string>;

TEST(LineReader, CutsAtTheGivenCharacters) {
  const Temp_dir temp;
  const std::string longest(std::size_t{3} << 20U, 'x');
  const std::vector<std::tuple<std::string, Character_set, Lines, bool>> cases{
      {"", {'\n'}, {}, false},
      {"a\n\nb", {'\n'}, {"a", "", "b"}, false},
      {"a;b\n", {'\n', ';'}, {"a", "b"}, true},
      {"a\n", {}, {"a\n"}, false},
      {"a\0b\xff"s, {'\0', '\xff'}, {"a", "b"}, true},
      {longest + "\n" + longest, {'\n'}, {longest, longest}, false}};
  const Kept_buffer of_all;
  Line_reader other(temp.Write("other", "x\ny"));
  for (const auto& [text, line_ends, expected, terminated] : cases) {
    Line_reader reader(temp.Write("file", text), Source::regular_file, line_ends);
    Lines lines;
    for (std::string_view line; reader.Next(line);) lines.emplace_back(line);
    EXPECT_TRUE(lines == expected) << text.substr(0, 9);
    EXPECT_EQ(reader.Terminated(), terminated) << text.substr(0, 9);
  }
  std::string_view line;
  EXPECT_TRUE(other.Next(line) && line == "x" && other.Next(line) && line == "y");
}

TEST(LineReader, ShowsBytesBeforeTheyAreTaken) {
  const Temp_dir temp;
  const std::string text = "a\n" + std::string(10000, 'x') + "\nb";
  Line_reader reader(temp.Write("file", text));
  EXPECT_EQ(reader.Peek(1), "a");
  EXPECT_TRUE(reader.Peek(9000) == text.substr(0, 9000));
  std::string_view line;
  EXPECT_TRUE(reader.Next(line) && line == "a");
  EXPECT_TRUE(reader.Next(line) && line.size() == 10000);
  EXPECT_EQ(reader.Peek(9), "b");
  EXPECT_TRUE(reader.Next(line) && line == "b" && reader.Peek(9).empty());
  EXPECT_EQ(reader.Lines_taken(), 3U);
}

TEST(LineReader, RefusesWhatItCantRead) {
  const Temp_dir temp;
  const std::string pipe = temp.Path("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_THROW(Line_reader(temp.Path(), Source::any_file), Xep_file_not_found);
  for (const std::string& path : {temp.Path("missing"), temp.Path(), pipe, "/dev/zero"s})
    EXPECT_THROW(Line_reader(path, Source::regular_file), Xep_file_not_found) << path;
  std::string_view line = "left";
  EXPECT_FALSE(Line_reader("/dev/null").Next(line));
}

/// Neither a pipe that nobody writes to nor a line without an end keeps a reader from its polls.
TEST(LineReader, PollsWhileThereIsNoLine) {
  const Temp_dir temp;
  const std::string pipe = temp.Path("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  for (const std::string& path : {pipe, "/dev/zero"s}) {
    static int polls_left;
    polls_left = 5;
    Line_reader reader(path, Source::any_file, {'\n'}, [] {
      if (--polls_left == 0) throw std::runtime_error("stopped");
    });
    std::string_view line;
    EXPECT_THROW(reader.Next(line), std::runtime_error) << path;
  }
}

}  // namespace
}  // namespace gns
