#include <cctype>
#include <filesystem>
#include <set>
#include <sstream>

#include "Child.h"
#include "Directory_contents.h"

namespace gns {
namespace {

/// The program and what it says of its options.
class Options : public ::testing::Test {
 protected:
  /// The exit code of a run with these words behind an input and an output.
  int Run(Words words) {
    for (const char* const made : {"out", "out.html"})
      std::filesystem::remove_all(temp_.Path(made));
    words.insert(words.begin(), {"-i", "net", "-o", "out"});
    Child child(temp_, words);
    const int code = child.Wait();
    out_ = child.Out();
    return code;
  }

  /// The options that --help shows, each with an argument that suits it if it takes one.
  std::vector<Words> Shown() {
    EXPECT_EQ(Run({"--help"}), 0);
    std::vector<Words> shown;
    std::istringstream lines(out_);
    for (std::string line; std::getline(lines, line);) {
      if (!line.starts_with("  -")) continue;
      std::istringstream fields(line);
      Words words(1);
      fields >> words[0];
      words[0].resize(std::min(words[0].find("[="), words[0].size()));
      const std::string argument = line.substr(line.find(words[0]) + words[0].size() + 1);
      if (std::isupper(argument[0]) != 0) words.push_back(Suiting(argument));
      if (words[0] == "--columns") words.insert(words.end(), {"-i", "net.csv"});
      shown.push_back(words);
    }
    return shown;
  }

  static std::string Suiting(const std::string& argument) {
    if (argument.starts_with("FILE ")) return "net";
    if (argument.starts_with("PAGE ")) return "out.html";
    if (argument.starts_with("FORMAT ")) return "links";
    if (argument.starts_with("FORMATS ")) return "csv";
    if (argument.starts_with("A,B,W ")) return "2,1";
    return argument.starts_with("DIR ") ? "out" : "4";
  }

  Temp_dir temp_;
  std::string net_ = temp_.Write("net", "a b 1\nb c 2\nc a 3\n");
  std::string table_ = temp_.Write("net.csv", "a,b\nb,c\n");
  std::string out_;
};

TEST_F(Options, AreTakenIfHelpShowsThem) {
  const std::vector<Words> shown = Shown();
  EXPECT_GE(shown.size(), 14U) << out_;
  std::set<std::string> switches;
  for (const Words& words : shown) {
    EXPECT_EQ(Run(words), 0) << words[0] << "\n" << out_;
    switches.insert(words[0]);
    if (words.size() == 1) continue;
    EXPECT_EQ(Run({words[0]}), 2) << words[0];
    if (words[0].starts_with("--")) continue;
    EXPECT_NE(out_.find("No value is given for switch " + words[0]), std::string::npos) << out_;
  }
  for (int letter = 'A'; letter <= 'z'; ++letter) {
    const std::string word{'-', static_cast<char>(letter)};
    if (std::isalpha(letter) == 0 || switches.contains(word)) continue;
    EXPECT_EQ(Run({word}), 2) << word;
    EXPECT_NE(out_.find("unknown parameter"), std::string::npos) << word;
  }
  for (const char* word : {"--helpless", "--version=1", "--progressive", "--jobless"})
    EXPECT_EQ(Run({word}), 2) << word;
}

/// As many cores as are told leave the same files, whatever memory there is for them.
TEST_F(Options, JobsChangeNoResult) {
  ASSERT_EQ(Run({}), 0);
  const auto expected = Contents_of(temp_.Path("out"));
  for (const char* const jobs : {"--jobs=1", "--jobs=2", "--jobs=0", "--jobs=1024"}) {
    EXPECT_EQ(Run({jobs}), 0) << jobs;
    EXPECT_EQ(Contents_of(temp_.Path("out")), expected) << jobs;
  }
  for (const char* const jobs : {"--jobs=-1", "--jobs=two", "--jobs=", "--jobs=1025"})
    EXPECT_EQ(Run({jobs}), 2) << jobs;
}

}  // namespace
}  // namespace gns
