#include <optional>
#include <set>

#include "files/Unfinished_mark.h"
#include "foundation/paths/Dir_listing.h"
#include "parts/Aside.h"
#include "parts/Open_plan.h"
#include "parts/Parts.h"

namespace gns::parts {

namespace {

/// The names of the files that somebody is about to make.
std::set<std::string> Begun_in(const Work_folder& folder) {
  std::set<std::string> begun;
  Dir_listing listing(folder.Path());
  while (const char* const name = listing.Next())
    if (const auto maker = Maker_of(name); maker && maker->May_be_alive())
      begun.insert(folder / maker->name);
  return begun;
}

/// Done if the work throws nothing, else running if the file is about to be made.
template <typename Work>
Part_state State_of(const std::set<std::string>& begun, const std::string& file, Work work) {
  try {
    work();
    return Part_state::done;
  } catch (const Xbad_part&) {
    return begun.contains(file) ? Part_state::running : Part_state::missing;
  }
}

}  // namespace

Status Status_of(const std::string& work) {
  const Open_plan plan(work, Part_check::ends);
  const Work_folder& folder = plan.Folder();
  const std::set<std::string> begun = Begun_in(folder);
  Status status;
  status.output_dir = plan.Output_dir();
  std::optional<Open_cliques> cliques;
  status.gather =
      State_of(begun, folder.Done(Step::gather), [&] { cliques.emplace(plan, Part_check::ends); });
  bool all_levels = true;
  for (std::uint64_t part = 1; part <= plan.Plan().Parts(); ++part) {
    // Their cliques are not needed any more once they are gathered.
    status.search.push_back(status.gather == Part_state::done
                                ? Part_state::done
                                : State_of(begun, folder.Cliques_of(part), [&] {
                                    const Open_clique_part found(plan, part, Part_check::ends);
                                  }));
    if (!plan.Plan().ranges[part - 1].slice.Is_whole()) status.slices.push_back(part);
    status.levels.push_back(State_of(begun, folder.Done(Step::levels, part), [&] {
      if (cliques && cliques->All().groups[part - 1].Is_empty()) return;
      Read_done_mark(folder, plan.Key(Step::levels, part), plan.Output_dir());
    }));
    all_levels = all_levels && status.levels.back() == Part_state::done;
  }
  status.finished =
      status.gather == Part_state::done && all_levels && !Is_marked_unfinished(plan.Output_dir());
  return status;
}

std::vector<std::uint64_t> Left_of(const Status& status, Step step) {
  const auto numbers = [](const std::vector<Part_state>& parts) {
    std::vector<std::uint64_t> left;
    for (std::size_t i = 0; i < parts.size(); ++i)
      if (parts[i] != Part_state::done) left.push_back(i + 1);
    return left;
  };
  switch (step) {
    case Step::search:
      return numbers(status.search);
    case Step::gather:
      return numbers({status.gather});
    case Step::levels:
      return numbers(status.levels);
    case Step::finish:
      return numbers({status.finished ? Part_state::done : Part_state::missing});
    case Step::plan:
      break;
  }
  return {};
}

}  // namespace gns::parts
