#include <filesystem>

#include "Parts_runs.h"
#include "Thrown_message.h"

namespace gns::parts {
namespace {

namespace fs = std::filesystem;

constexpr std::uint64_t parts = 7;

/// A run of seven parts, of which some are slices of one node.
class PartsInSlices : public ::testing::Test {
 protected:
  PartsInSlices() {
    parameters_.input_file = temp_.Write("links", Hot_links(false));
    single_ = Single_run(temp_, parameters_);
    parameters_.output_dir = temp_.Path("out");
    Plan(parameters_, {}, work_, parts);
    slices_ = Status_of(work_).slices;
  }

  [[nodiscard]] std::string File_of(std::uint64_t part) const {
    return temp_.Path("work/cliques." + std::to_string(part) + ".bin");
  }

  Temp_dir temp_;
  Run_parameters parameters_;
  Contents single_;
  std::string work_ = temp_.Path("work");
  std::vector<std::uint64_t> slices_;
};

/// A slice is a part as others are.
TEST_F(PartsInSlices, AreRefusedByName) {
  ASSERT_GE(slices_.size(), 2U);
  for (std::uint64_t part = 1; part <= parts; ++part) Search(work_, part);
  const std::uint64_t bad = slices_[1];
  const auto expect_refused = [&](const char* why) {
    std::ostringstream line;
    line << "'" << File_of(bad) << "' " << why << ": vorlane parts search --work " << work_
         << " --part " << bad << "\n";
    const std::string message = Thrown_message([&] { Gather(work_); });
    EXPECT_NE(message.find(line.str()), std::string::npos) << message;
  };
  fs::remove(File_of(bad));
  expect_refused("is missing");
  Search(work_, bad);
  fs::resize_file(File_of(bad), fs::file_size(File_of(bad)) / 2);
  expect_refused("is cut or damaged");
  fs::copy_file(File_of(slices_[0]), File_of(bad), fs::copy_options::overwrite_existing);
  expect_refused("is another part than its name tells");
  Run_planned(work_, parts);
  EXPECT_TRUE(Contents_of(parameters_.output_dir) == single_);
}

/// A line of the plan tells which slice of which node a part is: they stand behind each other,
/// share the estimate, and come again for each node.
TEST_F(PartsInSlices, AreToldByThePlan) {
  std::ifstream table(work_ + "/plan.tsv");
  std::string line;
  std::getline(table, line);
  std::getline(table, line);
  EXPECT_EQ(line, "step\tpart\tfrom\tto\testimate\tmemory\tslice");
  std::vector<std::uint64_t> told;
  std::uint64_t place = 0;
  while (std::getline(table, line)) {
    std::istringstream fields(line);
    std::string step;
    std::string slice;
    std::uint64_t part = 0;
    std::uint64_t from = 0;
    std::uint64_t to = 0;
    std::uint64_t estimate = 0;
    std::uint64_t memory = 0;
    fields >> step >> part >> from >> to >> estimate >> memory >> slice;
    EXPECT_EQ(from, place) << line;
    place = to;
    if (slice == "-") continue;
    told.push_back(part);
    EXPECT_EQ(to, from + 1);
    EXPECT_GT(estimate, 500U);
    const auto bar = slice.find('/');
    const auto at = std::stoul(slice);
    EXPECT_TRUE(at == 1 || told[told.size() - 2] == part - 1) << line;
    if (at < std::stoul(slice.substr(bar + 1))) place = from;
  }
  EXPECT_EQ(told, slices_);
}

}  // namespace
}  // namespace gns::parts
