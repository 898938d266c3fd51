#include "files/Unfinished_mark.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <atomic>
#include <barrier>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "Directory_contents.h"
#include "Temp_dir.h"
#include "Thrown_message.h"
#include "foundation/io/File_faults.h"
#include "foundation/io/File_system.h"

namespace gns {
namespace {

namespace fs = std::filesystem;

/// Tells of directories what some file systems do, whatever they hold.
class Directories_of_size_48 final : public File_system {
  int Status(const char* path, struct stat& status, int flags) override {
    const int result = File_system::Status(path, status, flags);
    if (result == 0 && S_ISDIR(status.st_mode)) status.st_size = 48;
    return result;
  }
};

/// Notes each call that brings something to the disk, with what it finds in the directory.
class Noted_syncs final : public File_system {
 public:
  explicit Noted_syncs(int error) : error_(error) {}

  std::string calls;

  int Sync_all(int directory) override {
    Note("all", directory);
    errno = error_;
    return error_ == 0 ? 0 : -1;
  }
  int Sync(int directory) override {
    Note("directory", directory);
    return 0;
  }

 private:
  void Note(const std::string& name, int directory) {
    calls += name;
    const std::string path = "/proc/self/fd/" + std::to_string(directory) + "/";
    for (const char* entry : {".unfinished", "graph"})
      if (fs::exists(path + entry)) calls += std::string(" ") + entry;
    calls += "|";
  }

  int error_;
};

constexpr const char* in_use = "ERROR: the output directory already exists and it is non-empty.\n";

TEST(UnfinishedMark, StandsAsLongAsTheResultsAreNotWhole) {
  const Temp_dir temp;
  const std::string longest(255, 'o');
  for (const char* dir : {"empty", "target", "locked/inside"})
    fs::create_directories(temp.Path(dir));
  fs::create_symlink("target", temp.Path("link"));
  fs::permissions(temp.Path("locked"), fs::perms::owner_read | fs::perms::owner_exec);
  temp.Write("users.unfinished", "a b\n");
  for (const std::string& name :
       {std::string("empty"), std::string("new/parents"), longest, std::string("link"),
        std::string("locked/inside"), std::string("users"), std::string("missing/../back/")}) {
    const std::string dir = temp.Path(name);
    Unfinished_mark mark(dir);
    EXPECT_TRUE(Is_marked_unfinished(dir)) << name;
    mark.Check();
    fs::copy(dir, temp.Path("copy"));
    EXPECT_TRUE(Is_marked_unfinished(temp.Path("copy")));
    fs::remove_all(temp.Path("copy"));
    mark.Remove();
    EXPECT_FALSE(Is_marked_unfinished(dir));
    EXPECT_TRUE(fs::is_empty(dir)) << name;
  }
  EXPECT_EQ(temp.Read("users.unfinished"), "a b\n");
  fs::permissions(temp.Path("locked"), fs::perms::owner_all);
}

TEST(UnfinishedMark, IsRefusedToADirectoryInUse) {
  const Temp_dir temp;
  for (const char* dir : {"used", "marked"}) fs::create_directory(temp.Path(dir));
  temp.Write("used/graph", "");
  temp.Write("file", "");
  fs::create_symlink("used", temp.Path("link"));
  fs::create_symlink("../file", temp.Path("marked/.unfinished"));
  const Unfinished_mark other(temp.Path("running"));
  Directories_of_size_48 of_size_48;
  for (File_system* const files :
       {&File_system::At_hand(), static_cast<File_system*>(&of_size_48)}) {
    const File_system_in_use door(*files);
    const auto before = Contents_of(temp.Path());
    for (const char* name :
         {"used", "link", "running", "marked", "missing/../used", "new/..", "link/../used/"})
      EXPECT_EQ(Thrown_message([&] { Unfinished_mark(temp.Path(name)); }), in_use) << name;
    EXPECT_EQ(Contents_of(temp.Path()), before);
  }
  EXPECT_EQ(Thrown_message([&] { Unfinished_mark(temp.Path("missing/../file")); }),
            "ERROR: the results can't be written to '" + temp.Path("missing/../file") +
                "': Not a directory.\n");
}

/// Each round, one of several gets the directory, however close together they come and also when it
/// has finished before another looks.
TEST(ThreadsUnfinishedMark, OneOfManyGetsTheDirectory) {
  for (int round = 0; round < 30; ++round) {
    const Temp_dir temp;
    std::barrier start(4);
    std::atomic<int> winners = 0;
    const auto run = [&] {
      start.arrive_and_wait();
      const std::string message = Thrown_message([&] {
        Unfinished_mark mark(temp.Path("new/out"));
        ++winners;
        temp.Write("new/out/graph", "");
        mark.Remove();
      });
      EXPECT_TRUE(message == in_use || message == "nothing was thrown") << message;
    };
    {
      std::vector<std::jthread> runs;
      for (int i = 0; i < 4; ++i) runs.emplace_back(run);
    }
    EXPECT_EQ(winners, 1);
    EXPECT_EQ(Contents_of(temp.Path("new/out")).size(), 1U);
  }
}

TEST(UnfinishedMark, GoesWhenTheResultsAreOnTheDisk) {
  struct Case {
    const char* no_sync;
    int error;
    std::string calls;
  };
  for (const auto& [no_sync, error, calls] :
       std::vector<Case>{{"", 0, "all .unfinished graph|directory graph|"},
                         {"", EIO, "all .unfinished graph|"},
                         {"1", EIO, ""}}) {
    const Temp_dir temp;
    ::setenv("VORLANE_NO_SYNC", no_sync, 1);
    Noted_syncs files(error);
    const File_system_in_use door(files);
    Forget_file_faults();
    Unfinished_mark mark(temp.Path("out"));
    temp.Write("out/graph", "");
    mark.Remove();
    EXPECT_EQ(files.calls, calls);
    const bool failed = calls == "all .unfinished graph|";
    EXPECT_EQ(Is_marked_unfinished(temp.Path("out")), failed);
    std::string faults;
    for (const File_fault& fault : File_faults()) faults += fault.reason;
    EXPECT_EQ(faults, failed ? "sync: Input/output error" : "");
  }
  ::unsetenv("VORLANE_NO_SYNC");
}

TEST(UnfinishedMark, GoesWithADirectoryThatIsMovedAway) {
  const Temp_dir temp;
  Unfinished_mark mark(temp.Path("out"));
  fs::rename(temp.Path("out"), temp.Path("moved"));
  const std::string moved = "ERROR: the output directory '" + temp.Path("out") +
                            "' was moved or deleted during the run.\n";
  EXPECT_EQ(Thrown_message([&] { mark.Check(); }), moved);
  EXPECT_FALSE(fs::exists(temp.Path("out")));
  temp.Write("out", "");
  EXPECT_EQ(Thrown_message([&] { mark.Remove(); }), moved);
  fs::remove(temp.Path("out"));
  fs::create_directory(temp.Path("out"));  // by a writer
  EXPECT_EQ(Thrown_message([&] { mark.Remove(); }), moved);
  for (const char* dir : {"out", "moved"}) EXPECT_TRUE(Is_marked_unfinished(temp.Path(dir)));
}

}  // namespace
}  // namespace gns
