#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <string_view>
#include <tuple>
#include <vector>

#include "Temp_dir.h"
#include "Thrown_message.h"
#include "foundation/io/File_system.h"
#include "foundation/paths/Dir_error.h"
#include "foundation/paths/Direktoriz.h"
#include "foundation/paths/Total_path.h"

namespace gns {
namespace {

namespace fs = std::filesystem;

/// A file "goes" is deleted in front of the first look at it.
class Deleted_meanwhile final : public File_system {
  int Status(const char* path, struct stat& status, int flags) override {
    if (std::string_view(path).ends_with("/goes")) ::unlink(path);
    return File_system::Status(path, status, flags);
  }
};

/// Stands in a directory of its own as long as the test runs.
class Paths : public ::testing::Test {
 protected:
  Paths() { fs::current_path(temp_.Path()); }
  ~Paths() override { fs::current_path(before_); }
  fs::path before_ = fs::current_path();
  Temp_dir temp_;
};

TEST_F(Paths, TypeAndEmptiness) {
  temp_.Write("blank", "");
  fs::create_symlink(temp_.Write("full", "x"), "link");
  fs::create_symlink("nowhere", "dangling");
  mkfifo("pipe", 0600);
  const std::vector<std::tuple<std::string, bool, std::string, bool>> cases{
      {"blank", true, "file", true},
      {"full", true, "file", false},
      {"link", true, "file", false},
      {"pipe", true, "other", true},
      {"dangling", false, "other", true}};
  std::string type;
  bool empty = false;
  std::string error_text;
  for (const auto& [path, there, expected_type, expected_empty] : cases) {
    EXPECT_EQ(Is_there_such_path(path, type, empty, error_text), there) << path;
    EXPECT_EQ(type, expected_type) << path;
    EXPECT_EQ(empty, expected_empty) << path;
    EXPECT_EQ(error_text, there ? "" : Dir_error(ENOENT)) << path;
  }
  struct stat status {};
  ASSERT_EQ(stat(".", &status), 0);
  EXPECT_TRUE(Is_there_such_dir(".", empty, error_text));
  EXPECT_EQ(empty, status.st_size == 48);
  EXPECT_FALSE(Is_there_such_dir("full", empty, error_text));
  EXPECT_EQ(error_text, "The path full is a file.");
  EXPECT_FALSE(Is_there_such_file(".", empty, error_text));
  EXPECT_EQ(error_text, "The path . is a dir.");
}

TEST_F(Paths, Lists) {
  for (const char* dir : {"d/e", "z"}) Make_dir(dir);
  for (const char* name : {".h", "d/a", "d/e/x", "d/e/y", "d/f"}) temp_.Write(name, "");
  fs::create_directory_symlink(".", "d/g");
  EXPECT_EQ(List_dir("."), (std::vector<Dir_entry>{{".h", "file"}, {"d", "dir"}, {"z", "dir"}}));
  EXPECT_EQ(List_dir("d").back(), (Dir_entry{"g", "dir"}));
  EXPECT_EQ(Thrown_message([] { List_dir(".h"); }),
            "ERROR: List_dir() called on .h and\nThe path .h is a file.");

  fs::create_symlink("nowhere", "z/dangling");
  EXPECT_EQ(Thrown_message([] { List_dir("z"); }),
            "ERROR: problem with dangling in List_dir():\n" + Dir_error(ENOENT));
  std::string names;
  for (const auto& [name, type] : List_dir_rec(".")) names += name + ' ' + type.front() + '|';
  EXPECT_EQ(names, ".h f|d/g o|d/f f|d/e/y f|d/e/x f|d/e d|d/a f|d d|z/dangling o|z d|");
}

TEST_F(Paths, ListsNothingThatGoesMeanwhile) {
  for (const char* name : {"goes", "stays"}) temp_.Write(name, "");
  Deleted_meanwhile files;
  const File_system_in_use in_use(files);
  EXPECT_EQ(List_dir("."), (std::vector<Dir_entry>{{"stays", "file"}}));
}

TEST_F(Paths, ErrorNumbers) {
  EXPECT_EQ(Dir_error(EBUSY),
            "The rename fails because oldpath or newpath is a directory that  is in use by some "
            "process.");
  EXPECT_EQ(Dir_error(EEXIST), "pathname already exists.");
  EXPECT_EQ(Dir_error(0), " Other error occured, errno=0");
}

TEST_F(Paths, TotalPathResolvesWhatASlashCloses) {
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
  EXPECT_EQ(Get_path_list("/home//x/"), (std::list<std::string>{"", "home", "", "x"}));
}

TEST_F(Paths, WorkingDirectory) {
  EXPECT_EQ(Thrown_message([] { Get_current_path(1); }),
            "ERROR: Get_current_path() called with 1 and \n Other error occured, errno=34");
  fs::create_directory("gone");
  fs::current_path("gone");
  fs::remove(temp_.Path("gone"));
  EXPECT_EQ(Get_total_path("/a"), "/a");
  EXPECT_EQ(Thrown_message([] { Get_total_path("a"); }),
            "ERROR: Get_current_path() called with 10000 and \n" + Dir_error(ENOENT));
}

}  // namespace
}  // namespace gns
