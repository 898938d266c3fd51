#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "Directory_contents.h"
#include "Linked_groups.h"
#include "Temp_dir.h"
#include "control/Clique_find_ext_cont.h"
#include "engine/Find_coms.h"
#include "files/Unfinished_mark.h"
#include "foundation/io/File_faults.h"

namespace gns {
namespace {

namespace fs = std::filesystem;

/// While it lives no file of this process can grow beyond a size, as on a full disk.
class File_size_limit {
 public:
  explicit File_size_limit(std::size_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit = {bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  File_size_limit(const File_size_limit&) = delete;
  File_size_limit& operator=(const File_size_limit&) = delete;
  ~File_size_limit() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

 private:
  void (*handler_)(int);
  rlimit before_ = {};
};

TEST(RunFaults, AFullDiskIsRemembered) {
  const Temp_dir temp;
  Run_parameters parameters = {temp.Write("links", Linked_groups(20, 1)), temp.Path("whole")};
  bool approximation_needed = false;
  Run_summary summary;
  ASSERT_EQ(Find_coms(parameters, approximation_needed, summary), run_finished);
  const auto whole = Contents_of(parameters.output_dir);

  parameters.output_dir = temp.Path("cut");
  const std::size_t limit = whole.at("k=3/communities_links").size() - 1;
  {
    const File_size_limit full_disk(limit);
    EXPECT_EQ(Find_coms(parameters, approximation_needed, summary), run_finished);
  }
  std::vector<std::string> faults;
  for (const File_fault& fault : File_faults()) {
    faults.push_back(fs::relative(fault.path, parameters.output_dir));
    EXPECT_EQ(fault.reason, "write: File too large");
  }
  std::ranges::sort(faults);
  std::vector<std::string> too_long;
  auto cut = Contents_of(parameters.output_dir);
  EXPECT_EQ(cut.erase(".unfinished"), 1U);
  for (const auto& [name, text] : cut) {
    if (whole.at(name).size() > limit) too_long.push_back(name);
    EXPECT_EQ(text, whole.at(name).substr(0, limit)) << name;
  }
  EXPECT_GE(faults.size(), 19U);
  EXPECT_EQ(faults, too_long);

  parameters.output_dir = temp.Path("none");
  {
    const File_size_limit full_disk(0);
    EXPECT_EQ(Find_coms(parameters, approximation_needed, summary),
              "ERROR: the results can't be written to '" + parameters.output_dir +
                  "': File too large.\n");
  }
  EXPECT_TRUE(Contents_of(parameters.output_dir).empty());
  EXPECT_EQ(Find_coms(parameters, approximation_needed, summary), run_finished);
  EXPECT_TRUE(File_faults().empty());
  EXPECT_EQ(Contents_of(parameters.output_dir), whole);
}

TEST(ThreadsRun, AStopInsideTheSearchLeavesTheGraphFile) {
  const Temp_dir temp;
  const Run_parameters parameters = {temp.Write("links", Linked_groups(90, 3)), temp.Path("out")};
  std::thread watcher([] {
    while (Read_state_report().find(" 90 of 90 nodes to do") == std::string::npos)
      std::this_thread::yield();
    Stop_process();
  });
  bool approximation_needed = false;
  Run_summary summary;
  EXPECT_EQ(Find_coms(parameters, approximation_needed, summary), "Process stopped by user.\n");
  watcher.join();
  Reset_stop_process();
  EXPECT_EQ(Contents_of(parameters.output_dir).size(), 3U);
  EXPECT_TRUE(Is_marked_unfinished(parameters.output_dir));
  EXPECT_EQ(Read_state_report(), " Process stopped by user.\n");
}

}  // namespace
}  // namespace gns
