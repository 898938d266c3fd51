#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <functional>
#include <iostream>
#include <set>
#include <sstream>
#include <vector>

#include "Temp_dir.h"
#include "Thrown_message.h"
#include "foundation/paths/Deleting.h"
#include "foundation/paths/Dir_error.h"
#include "foundation/paths/Dir_prepare.h"
#include "foundation/paths/Direktoriz.h"
#include "foundation/paths/Renaming.h"

namespace gns {
namespace {

namespace fs = std::filesystem;

const std::string fine = "nothing was thrown";
const std::string stopped = "stopped interactively by user.";
const std::string tree = "d d/e d/e/e d/e/e/x d/x";
const std::string all = tree + " f g";

/// Stands in a directory with the files f and g and the directory d as long as the test runs.
class InPlace : public ::testing::Test {
 protected:
  using Operation = std::function<void()>;

  struct Case {
    Operation operation;
    std::string message;
    std::string left = all;
    std::string input = {};
    std::string output = {};
  };

  InPlace() { fs::current_path(temp_.Path()); }
  ~InPlace() override { fs::current_path(before_); }

  void Fill() const {
    for (const fs::directory_entry& old : fs::directory_iterator(".")) fs::remove_all(old);
    fs::create_directories("d/e/e");
    for (const std::string name : {"f", "g", "d/x", "d/e/e/x"})
      temp_.Write(name, name.substr(name.size() - 1));
  }

  /// The names of all that is there; to a file with new contents these are added.
  [[nodiscard]] std::string Left() const {
    std::set<std::string> names;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(".")) {
      const std::string name = entry.path().string().substr(2);
      const std::string contents = entry.is_regular_file() ? temp_.Read(name) : "";
      names.insert(name + (name.ends_with(contents) ? "" : "=" + contents));
    }
    std::string text;
    for (const std::string& name : names) text += (text.empty() ? "" : " ") + name;
    return text;
  }

  /// The message of an operation that hears `input` on standard input; `output` is what it says.
  static std::string Talk(const Operation& operation, const std::string& input,
                          std::string& output) {
    std::istringstream in(input);
    std::ostringstream out;
    std::streambuf* const cin_before = std::cin.rdbuf(in.rdbuf());
    std::streambuf* const cout_before = std::cout.rdbuf(out.rdbuf());
    const std::string message = Thrown_message(operation);
    std::cin.rdbuf(cin_before);
    std::cout.rdbuf(cout_before);
    output = out.str();
    return message;
  }

  void Check(const std::vector<Case>& cases) const {
    for (const Case& c : cases) {
      SCOPED_TRACE("case " + std::to_string(&c - cases.data()));
      Fill();
      std::string output;
      EXPECT_EQ(Talk(c.operation, c.input, output), c.message);
      EXPECT_EQ(output, c.output);
      EXPECT_EQ(Left(), c.left);
    }
  }

  Temp_dir temp_;

 private:
  fs::path before_ = fs::current_path();
};

TEST_F(InPlace, FlagsDecide) {
  std::vector<Case> cases{
      {[] { Del_dir("f", "force"); }, fine, tree + " g"},
      {[] { Del_dir("f", "silent"); }, fine, tree + " f1=f g"},
      {[] { Del_file("d", "force"); }, fine, "f g"},
      {[] { Del_file("d", "silent"); }, fine, "d1 d1/e d1/e/e d1/e/e/x d1/x f g"},
      {[] { Del_path("d"), Del_path("f"); }, fine, "g"},
      {[] { Rename_path("f", "g", "silent"); }, fine, tree + " g1=g g=f"},
      {[] { Rename_path("f", "g", "force"); }, fine, tree + " g=f"},
      {[] { Make_dir("g1"), Make_dir("g2"), Make_dir("g4"), Rename_auto("g"); }, fine,
       tree + " f g1 g2 g3=g g4"},
      {[] { Dir_prepare("d", "keep"); }, fine},
      {[] { Dir_prepare("f", "keep"); }, fine, tree + " f f1=f g"},
      {[] { Dir_prepare("n/m", "keep"); }, fine, all + " n n/m"},
      {[] { Dir_prepare("d", "clear"); }, fine, "d f g"},
      {[] { Dir_prepare("f", "clear"); }, fine},
      {[] { Dir_prepare("n"); }, fine, all + " n"},
      {[] { Make_dir("h/i/"), Make_dir("j//k"), Make_dir("/"); }, fine, all + " h h/i j j/k"}};
  for (const std::string flag : {"force", "silent", "interactive"}) {
    cases.push_back({[=] { Del_dir("d", flag); }, fine, "f g"});
    cases.push_back({[=] { Del_file("f", flag); }, fine, tree + " g"});
    cases.push_back({[=] { Rename_path("f", "h", flag); }, fine, tree + " g h=f"});
  }
  Check(cases);
}

TEST_F(InPlace, PromptsToTheLetter) {
  const std::string delete_question =
      "Do you wish to \n delete (d),\n rename (r), or stop (any other key)?\n";
  const std::string no_dir = "Del_dir():\nThe path f  is not a directory.\n" + delete_question;
  const std::string no_file = "Del_file():\nThe path d  is a directory.\n" + delete_question;
  const std::string taken =
      "Rename_path():\nThe specified new path g already exists.\n"
      "Do you wish to \n overwrite (o),\n change the destination path (c),\n"
      " or stop (any other key)?\n";
  const std::string dir_there =
      "Dir_prepare():\nThe d is already a dir, and it is not empty.\n"
      "Do you wish to \n keep the contents (k),\n clear it (c),\n or stop (any other key)?\n";
  const std::string file_there =
      "Dir_prepare():\nThe f is already a file, and it is not empty.\n"
      "Do you wish to \n overwrite it (o),\n rename it (r),\n or stop (any other key)?\n";
  const std::string new_name = "Please type in the new name:\n";
  const std::string new_target = "Please type in the new destination path:\n";
  const std::string new_path = "Please type in the new path:\n";
  Check({{[] { Del_dir("f"); }, fine, tree + " g", "d", no_dir},
         {[] { Del_dir("f"); }, fine, tree + " g h=f", " \n r\t h x", no_dir + new_name},
         {[] { Del_dir("f"); }, fine, tree + " g=f", "rg\no", no_dir + new_name + taken},
         {[] { Del_dir("f"); }, stopped, all, "D", no_dir},
         {[] { Del_dir("f"); }, stopped, all, "r \n", no_dir + new_name},
         {[] { Del_file("d"); }, fine, "f g", "d", no_file},
         {[] { Del_file("d"); }, fine, "c c/e c/e/e c/e/e/x c/x f g", "rc", no_file + new_name},
         {[] { Del_file("d"); }, stopped, all, "", no_file},
         {[] { Rename_path("f", "g"); }, fine, tree + " g=f", "overwrite", taken},
         {[] { Rename_path("f", "g"); }, fine, tree + " g h=f", "c g c\nh",
          taken + new_target + taken + new_target},
         {[] { Rename_path("f", "g"); }, stopped, all, "cg", taken + new_target + taken},
         {[] { Dir_prepare("d"); }, fine, all, "k", dir_there},
         {[] { Dir_prepare("d"); }, fine, "d f g", "c", dir_there},
         {[] { Dir_prepare("d", "interactive"); }, stopped, all, "o", dir_there},
         {[] { Dir_prepare("f"); }, fine, all, "o", file_there},
         {[] { Dir_prepare("f"); }, fine, tree + " f g h=f", "r h", file_there + new_path},
         {[] { Dir_prepare_interact("f", "other", true); }, stopped, all, "",
          "Dir_prepare():\nThe f is already a other, and it is empty." +
              file_there.substr(file_there.find("\nDo"))}});

  std::string input;
  for (int i = 0; i < 1000; ++i) input += "c g\n";
  EXPECT_EQ(Talk([] { Rename_path("f", "g"); }, input, input), stopped);
}

TEST_F(InPlace, Refusals) {
  const std::string missing = " and \n" + Dir_error(ENOENT);
  std::vector<Case> cases{
      {[] { Del_path("n"); }, "ERROR: Del_path() called on n" + missing},
      {[] { Del_dir("n"); }, "ERROR: Del_dir() called on n" + missing},
      {[] { Del_file("n", "force"); }, "ERROR: Del_file() called on n" + missing},
      {[] { Rename_path("n", "f", "silent"); }, "ERROR: Rename_path() called on n" + missing},
      {[] { Rename_the_path("n", "y"); }, "ERROR: Rename_the_path() called with n and y" + missing},
      {[] { Make_dir("f/x/y"); }, "ERROR: Make_dir() called with f/x and \n" + Dir_error(ENOTDIR)},
      {[] { Remove_dir("d"); }, "ERROR: Remove_dir() called on 'd' and\n" + Dir_error(ENOTEMPTY)},
      {[] { Unlink_file("d"); }, "ERROR: Unlink_file() called on 'd'and \n" + Dir_error(EISDIR)},
      {[] { Delete_dir("f"); }, "ERROR: List_dir() called on f and\nThe path f is a file."}};
  for (const std::string flag : {"", "keep", "forced"}) {
    cases.push_back(
        {[=] { Del_dir("d", flag); }, "ERROR: Del_dir() called with unknown flag '" + flag + "'"});
    cases.push_back({[=] { Del_file("f", flag); },
                     "ERROR: Del_file() called with unknown flag '" + flag + "'."});
    cases.push_back({[=] { Rename_path("f", "h", flag); },
                     "ERROR: Rename_path() called with unknown flag'" + flag + "'"});
    if (flag == "keep") continue;
    cases.push_back({[=] { Dir_prepare("d", flag); },
                     "ERROR: Dir_prepare() called with unknown flag '" + flag + "'"});
  }
  Check(cases);
}

TEST_F(InPlace, LinksAreDeletedButNeverFollowed) {
  const std::string without_n = tree + " f g l to_d";
  const std::string links = " n n/m n/m/l n/m/to_d n/m/to_f n/m/to_n n/to_d";
  const std::string without_to_d = tree + " f g l" + links;
  const std::string all_links = tree + " f g l" + links + " to_d";
  const std::string missing = " called on l and \n" + Dir_error(ENOENT);
  std::vector<Case> cases{
      {[] { Delete_dir("n"); }, fine, without_n},
      {[] { Del_path("n/"); }, fine, without_n},
      {[] { Delete_dir("to_d"); }, fine, without_to_d},
      {[] { Del_path("to_d//"); }, fine, without_to_d},
      {[] { Del_file("to_d", "force"); }, fine, without_to_d},
      {[] { Dir_prepare("to_d", "clear"); }, fine, without_to_d + " to_d"},
      {[] { Unlink_file("l"); }, fine, tree + " f g" + links + " to_d"},
      {[] { Del_path("l"); }, "ERROR: Del_path()" + missing, all_links},
      {[] { Del_dir("l"); }, "ERROR: Del_dir()" + missing, all_links},
      {[] { Del_file("l"); }, "ERROR: Del_file()" + missing, all_links},
      {[] { Rename_path("l", "h"); }, "ERROR: Rename_path()" + missing, all_links},
      {[] { Rename_path("f", "l"); }, fine, tree + " g l=f" + links + " to_d"},
      {[] { Rename_the_path("l", "f1"), Rename_auto("f"); }, fine,
       tree + " f1 f2=f g" + links + " to_d"}};
  cases.push_back({[] { Make_dir("l"); },
                   "ERROR: Make_dir() called with l and \n" + Dir_error(EEXIST), all_links});
  for (Case& c : cases) {
    c.operation = [this, operation = c.operation] {
      fs::create_directories("n/m");
      for (const std::string to : {"d", "f", "n"})
        fs::create_symlink(temp_.Path(to), "n/m/to_" + to);
      for (const char* link : {"l", "n/m/l"}) fs::create_symlink("nowhere", link);
      for (const char* link : {"to_d", "n/to_d"}) fs::create_symlink(temp_.Path("d"), link);
      operation();
    };
  }
  Check(cases);
}

TEST_F(InPlace, OddNamesAndDepths) {
  std::string deep = "n";
  for (int level = 0; level < 1000; ++level) deep += "/n";
  for (const std::string& name : {deep, std::string("n/-rf"), std::string("n/a\nb\xff")}) {
    Make_dir(name);
    temp_.Write(name + "/ x", "");
  }
  Delete_dir("n");
  EXPECT_EQ(Left(), "");

  // Deeper than a path can tell: nothing is deleted.
  temp_.Write("first", "");
  for (int level = 0; level < 25; ++level) {
    const std::string name(200, 'n');
    fs::create_directory(name);
    fs::current_path(name);
  }
  fs::current_path(temp_.Path());
  const std::string message = Thrown_message([] { Delete_dir("."); });
  EXPECT_TRUE(message.ends_with(Dir_error(ENAMETOOLONG))) << message;
  EXPECT_TRUE(Is_there_such_file("first"));
}

TEST_F(InPlace, MissingRights) {
  Fill();
  fs::permissions(".", fs::perms(0755));
  fs::permissions("d/e/e", fs::perms(0555));
  const pid_t child = fork();
  if (child == 0) {
    constexpr uid_t nobody = 65534;
    if (geteuid() == 0 && setuid(nobody) != 0) _exit(2);
    const std::string message = Thrown_message([] { Delete_dir("d"); });
    _exit(message == "ERROR: Unlink_file() called on 'd/e/e/x'and \nPermission denied." ? 0 : 1);
  }
  int status = -1;
  waitpid(child, &status, 0);
  fs::permissions("d/e/e", fs::perms(0755));
  if (WEXITSTATUS(status) == 2) GTEST_SKIP() << "root can't become another user here";
  EXPECT_EQ(status, 0);
  EXPECT_EQ(Left(), all);
}

}  // namespace
}  // namespace gns
