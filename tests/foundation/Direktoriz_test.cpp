#include "foundation/Direktoriz.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <filesystem>
#include <vector>

#include "Message_of.h"
#include "Temp_dir.h"
#include "foundation/Dir_error.h"
#include "foundation/Dir_prepare.h"
#include "foundation/Total_path.h"

namespace gns {
namespace {

namespace fs = std::filesystem;

TEST(PathTests, TypeAndEmptiness) {
  const Temp_dir temp;
  fs::create_symlink(temp.Write("full", "x"), temp.Path("link"));
  fs::create_symlink(temp.Path("nowhere"), temp.Path("dangling"));
  mkfifo(temp.Path("pipe").c_str(), 0600);
  struct Case {
    std::string path;
    bool there;
    std::string type;
    bool empty;
  };
  for (const Case& c : std::vector<Case>{{temp.Write("blank", ""), true, "file", true},
                                         {temp.Path("full"), true, "file", false},
                                         {temp.Path("link"), true, "file", false},
                                         {temp.Path("pipe"), true, "other", true},
                                         {temp.Path("dangling"), false, "other", true},
                                         {temp.Path("nowhere"), false, "other", true}}) {
    std::string type = "?";
    bool empty = !c.empty;
    std::string error_text;
    EXPECT_EQ(Is_there_such_path(c.path, type, empty, error_text), c.there) << c.path;
    EXPECT_EQ(type, c.type) << c.path;
    EXPECT_EQ(empty, c.empty) << c.path;
    EXPECT_EQ(error_text, c.there ? "" : Dir_error(ENOENT)) << c.path;
  }
}

TEST(PathTests, OnlySize48CountsAsAnEmptyDirectory) {
  const Temp_dir temp;
  struct stat status {};
  ASSERT_EQ(stat(temp.Path().c_str(), &status), 0);
  bool empty = status.st_size != 48;
  std::string error_text;
  EXPECT_TRUE(Is_there_such_dir(temp.Path(), empty, error_text));
  EXPECT_EQ(empty, status.st_size == 48);
}

TEST(PathTests, WrongTypeIsTold) {
  const Temp_dir temp;
  const std::string file = temp.Write("f", "");
  bool empty = false;
  std::string error_text;
  EXPECT_FALSE(Is_there_such_dir(file, empty, error_text));
  EXPECT_EQ(error_text, "The path " + file + " is a file.");
  EXPECT_FALSE(Is_there_such_file(temp.Path(), empty, error_text));
  EXPECT_EQ(error_text, "The path " + temp.Path() + " is a dir.");
  EXPECT_TRUE(Is_there_such_file(file) && !Is_there_such_dir(file));
}

TEST(ListDir, SortedWithTypes) {
  const Temp_dir temp;
  fs::create_directory(temp.Path("b"));
  for (const char* name : {"c", "a", ".h"}) temp.Write(name, "");
  EXPECT_EQ(List_dir(temp.Path()),
            (std::vector<Dir_entry>{{".h", "file"}, {"a", "file"}, {"b", "dir"}, {"c", "file"}}));
}

TEST(ListDir, Failures) {
  const Temp_dir temp;
  const std::string file = temp.Write("f", "");
  EXPECT_EQ(Message_of([&] { List_dir(file); }),
            "ERROR: List_dir() called on " + file + " and\nThe path " + file + " is a file.");
  fs::create_symlink(temp.Path("nowhere"), temp.Path("dangling"));
  EXPECT_EQ(Message_of([&] { List_dir(temp.Path()); }),
            "ERROR: problem with dangling in List_dir():\n" + Dir_error(ENOENT));
}

TEST(ListDirRec, ContentsInFrontOfTheirDirectory) {
  const Temp_dir temp;
  for (const char* dir : {"d/e", "z"}) Make_dir(temp.Path(dir));
  for (const char* name : {"a", "d/a", "d/e/x", "d/e/y", "d/f"}) temp.Write(name, "");
  fs::create_directory_symlink(temp.Path(), temp.Path("d/g"));
  fs::create_symlink(temp.Path("nowhere"), temp.Path("z/dangling"));
  EXPECT_EQ(List_dir_rec(temp.Path()), (std::vector<Dir_entry>{{"a", "file"},
                                                               {"d/g", "other"},
                                                               {"d/f", "file"},
                                                               {"d/e/y", "file"},
                                                               {"d/e/x", "file"},
                                                               {"d/e", "dir"},
                                                               {"d/a", "file"},
                                                               {"d", "dir"},
                                                               {"z/dangling", "other"},
                                                               {"z", "dir"}}));
}

TEST(Renaming, AutoTakesTheFirstFreeNumber) {
  const Temp_dir temp;
  const std::string path = temp.Write("x", "moved");
  for (const char* taken : {"x1", "x2", "x4"}) temp.Write(taken, "");
  Rename_auto(path);
  EXPECT_FALSE(Is_there_such_path(path));
  EXPECT_EQ(temp.Read("x3"), "moved");
  EXPECT_EQ(Message_of([&] { Rename_the_path(path, "y"); }),
            "ERROR: Rename_the_path() called with " + path + " and y and \n" + Dir_error(ENOENT));
}

TEST(DirPrepare, KeepsMakesOrMovesAside) {
  const Temp_dir temp;
  const std::string path = temp.Write("x", "a file");
  Dir_prepare(path, "keep");
  EXPECT_TRUE(Is_there_such_dir(path));
  EXPECT_EQ(temp.Read("x1"), "a file");

  temp.Write("x/inside", "kept");
  Dir_prepare(path, "keep");
  EXPECT_EQ(temp.Read("x/inside"), "kept");

  Dir_prepare(temp.Path("new/deep"), "keep");
  EXPECT_TRUE(Is_there_such_dir(temp.Path("new/deep")));
  for (const std::string flag : {"", "kept"}) {
    EXPECT_EQ(Message_of([&] { Dir_prepare(path, flag); }),
              "ERROR: Dir_prepare() called with unknown flag '" + flag + "'");
  }
}

TEST(MakeDir, MakesAllParents) {
  const Temp_dir temp;
  for (const std::string name : {"a/b/c/", "d", "e//f"}) {
    Make_dir(temp.Path(name));
    EXPECT_TRUE(Is_there_such_dir(temp.Path(name))) << name;
  }
  Make_dir("/");
  const std::string below_file = temp.Write("file", "") + "/x/y";
  EXPECT_EQ(
      Message_of([&] { Make_dir(below_file); }),
      "ERROR: Make_dir() called with " + temp.Path("file/x") + " and \n" + Dir_error(ENOTDIR));
  fs::create_symlink(temp.Path("nowhere"), temp.Path("dangling"));
  EXPECT_EQ(
      Message_of([&] { Make_dir(temp.Path("dangling")); }),
      "ERROR: Make_dir() called with " + temp.Path("dangling") + " and \n" + Dir_error(EEXIST));
}

TEST(DirError, TableAndTheRest) {
  EXPECT_EQ(Dir_error(EBUSY),
            "The rename fails because oldpath or newpath is a directory that  is in use by some "
            "process.");
  EXPECT_EQ(Dir_error(0), " Other error occured, errno=0");
}

/// Stands in a directory of its own as long as the test runs.
class TotalPath : public ::testing::Test {
 protected:
  TotalPath() { fs::current_path(temp_.Path()); }
  ~TotalPath() override { fs::current_path(before_); }
  fs::path before_ = fs::current_path();
  Temp_dir temp_;
};

TEST_F(TotalPath, ResolvesWhatASlashCloses) {
  const std::string here = temp_.Path();
  const std::string above = fs::path(here).parent_path();
  const std::vector<std::pair<std::string, std::string>> cases{{"/a/b", "/a/b"},
                                                               {"/a/b/", "/a/b"},
                                                               {"b/../c", here + "/c"},
                                                               {"../x", above + "/x"},
                                                               {"a/../", here},
                                                               {"a/..", here + "/a/.."},
                                                               {"./a/./b", here + "/a/b"},
                                                               {".", here + "/."},
                                                               {"", ""},
                                                               {"/", "/"},
                                                               {"/../a", "a"},
                                                               {"a//b", here + "/a//b"}};
  for (const auto& [path, total] : cases) EXPECT_EQ(Get_total_path(path), total) << path;
}

TEST_F(TotalPath, WorkingDirectory) {
  EXPECT_EQ(Get_current_path(10000), temp_.Path());
  EXPECT_EQ(Message_of([] { Get_current_path(1); }),
            "ERROR: Get_current_path() called with 1 and \n Other error occured, errno=34");
  fs::create_directory("gone");
  fs::current_path("gone");
  fs::remove(temp_.Path("gone"));
  EXPECT_EQ(Get_total_path("/a"), "/a");
  EXPECT_EQ(Message_of([] { Get_total_path("a"); }),
            "ERROR: Get_current_path() called with 10000 and \n" + Dir_error(ENOENT));
}

TEST(PathList, CutsAtEverySlash) {
  EXPECT_EQ(Get_path_list("/home/x"), (std::list<std::string>{"", "home", "x"}));
  EXPECT_EQ(Get_path_list("a//b/"), (std::list<std::string>{"a", "", "b"}));
  EXPECT_EQ(Get_path_list(""), std::list<std::string>());
}

}  // namespace
}  // namespace gns
