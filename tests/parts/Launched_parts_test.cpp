#include <filesystem>

#include "Parts_runs.h"
#include "files/Unfinished_mark.h"

/// What those need who start parts elsewhere.
namespace gns::parts {
namespace {

namespace fs = std::filesystem;

using Numbers = std::vector<std::uint64_t>;

void Do_all_left(const std::string& work, Step step) {
  for (const std::uint64_t part : Left_of(Status_of(work), step))
    step == Step::search ? Search(work, part) : Find_levels(work, part);
}

TEST(LaunchedParts, AreThoseThatAreLeft) {
  const Temp_dir temp;
  Run_parameters parameters;
  parameters.input_file = temp.Write("links", Drawn_links(20, false));
  parameters.output_dir = temp.Path("out");
  const std::string work = temp.Path("work");
  constexpr std::uint64_t parts = 40;
  Plan(parameters, {}, work, parts);
  Search(work, 2);
  temp.Write("work/cliques.4.bin", "cut off");
  const Numbers left = Left_of(Status_of(work), Step::search);
  EXPECT_EQ(left.size(), parts - 1);
  EXPECT_EQ((Numbers{left.begin(), left.begin() + 3}), (Numbers{1, 3, 4}));
  Do_all_left(work, Step::search);
  EXPECT_EQ(Left_of(Status_of(work), Step::search), Numbers());
  EXPECT_EQ(Left_of(Status_of(work), Step::gather), Numbers{1});
  Gather(work);
  EXPECT_EQ(Left_of(Status_of(work), Step::gather), Numbers());

  // There are fewer levels than parts, so most parts have nothing to do.
  const Numbers levels = Left_of(Status_of(work), Step::levels);
  EXPECT_GT(levels.size(), 2U);
  EXPECT_LT(levels.size(), 20U);
  for (const std::uint64_t part : levels) EXPECT_GT(Find_levels(work, part), 0U);
  EXPECT_EQ(Left_of(Status_of(work), Step::levels), Numbers());
  EXPECT_EQ(Left_of(Status_of(work), Step::finish), Numbers{1});
  Finish(work);
  EXPECT_EQ(Left_of(Status_of(work), Step::finish), Numbers());
  EXPECT_EQ(Contents_of(parameters.output_dir), Single_run(temp, parameters));
}

/// A machine that has copies of some files of the folder.
class Far_machine {
 public:
  explicit Far_machine(const Temp_dir& temp) : temp_(temp) { fs::create_directory(Folder()); }

  [[nodiscard]] std::string Folder() const { return temp_.Path("far"); }
  void Send(const std::vector<std::string>& names) const {
    for (const std::string& name : names) fs::copy(temp_.Path("work/" + name), Folder());
  }
  void Take(const std::string& name) const {
    fs::rename(Folder() + "/" + name, temp_.Path("work/" + name));
  }

 private:
  const Temp_dir& temp_;
};

TEST(LaunchedParts, MayBeDoneWhereTheResultsAreNotSeen) {
  for (const Parts_run& run : Parts_runs()) {
    SCOPED_TRACE(run.name);
    const Temp_dir temp;
    Run_parameters parameters = run.parameters;
    parameters.input_file = temp.Write("links", run.links);
    const Contents single = Single_run(temp, parameters);
    parameters.output_dir = temp.Path("out");
    const std::string work = temp.Path("work");
    const Far_machine far(temp);
    Plan(parameters, {}, work, 3);
    const std::string hidden = temp.Path("hidden");
    fs::rename(parameters.output_dir, hidden);
    far.Send({"graph.bin", "plan.tsv", "run.json"});
    for (const std::uint64_t part : {1U, 2U, 3U}) {
      Search(far.Folder(), part, far.Folder());
      far.Take("cliques." + std::to_string(part) + ".bin");
    }
    fs::rename(hidden, parameters.output_dir);
    Gather(work);
    fs::rename(parameters.output_dir, hidden);
    far.Send({"cliques.bin", "levels.tsv"});
    for (const std::uint64_t part : {1U, 2U, 3U}) {
      const std::string away = temp.Path("away");
      fs::create_directory(away);
      Find_levels(far.Folder(), part, away);
      fs::copy(away, hidden, fs::copy_options::recursive);
      fs::remove_all(away);
      far.Take("levels." + std::to_string(part) + ".done");
    }
    fs::rename(hidden, parameters.output_dir);
    Finish(work);
    EXPECT_EQ(Contents_of(parameters.output_dir), single);
  }
}

}  // namespace
}  // namespace gns::parts
