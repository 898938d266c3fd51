#include <algorithm>
#include <numeric>

#include "files/Unfinished_mark.h"
#include "foundation/Errors.h"
#include "foundation/io/File_faults.h"
#include "parts/Missing_parts.h"
#include "parts/Open_plan.h"
#include "parts/Parts.h"

namespace gns::parts {

namespace {

/// Sees which cliques are missing where gathering is not done.
void Try_search(const Open_plan& plan, Missing_parts& missing) {
  for (std::uint64_t part = 1; part <= plan.Plan().Parts(); ++part)
    missing.Try(Step::search, part,
                [&] { const Open_clique_part found(plan, part, Part_check::ends); });
}

/// The levels of a part, if they are those of its group.
std::vector<K_summary> Levels_of(const Open_plan& plan, const Level_group& group,
                                 std::uint64_t part) {
  if (group.Is_empty()) return {};
  std::vector<K_summary> levels =
      Read_done_mark(plan.Folder(), plan.Key(Step::levels, part), plan.Output_dir()).levels;
  std::uint64_t k = group.from;
  const bool whole =
      levels.size() == group.from + 1 - group.to &&
      std::ranges::all_of(levels, [&](const K_summary& one) { return one.k == k--; });
  if (!whole) {
    const std::string path = plan.Folder().Done(Step::levels, part);
    throw Xbad_part(path, "tells of other levels", plan.Folder().Label(path, Step::levels).cure);
  }
  return levels;
}

/// Ends the claim, unless that was done before.
void Remove_mark(const std::string& output_dir) {
  if (!Is_marked_unfinished(output_dir)) return;
  Delete_what_is_aside(output_dir);
  File_fault_list faults;
  const File_faults_kept kept(faults);
  Unfinished_mark mark = Unfinished_mark::Taken_up(output_dir);
  mark.Remove();
  if (const auto all = faults.All(); !all.empty())
    throw Xerror_msg("ERROR: the results in '" + output_dir + "' can't be finished: '" +
                     all[0].path + "': " + all[0].reason +
                     ". Do the same again when that is mended.\n");
}

}  // namespace

Finished_run Finish(const std::string& work) {
  const Open_plan plan(work);
  Missing_parts missing(plan.Folder());
  std::optional<Open_cliques> cliques;
  if (!missing.Try(Step::gather, 0, [&] { cliques.emplace(plan); })) {
    Missing_parts all(plan.Folder());
    Try_search(plan, all);
    all.Refuse();
    missing.Refuse();
  }
  const All_cliques& all = cliques->All();
  Finished_run run = {plan.Plan().parameters, {}};
  Run_summary& summary = run.summary;
  for (std::uint64_t part = all.groups.size(); part > 0; --part)
    missing.Try(Step::levels, part, [&] {
      for (K_summary& level : Levels_of(plan, all.groups[part - 1], part))
        summary.extractions.push_back(std::move(level));
    });
  missing.Refuse();
  summary.nodes = plan.Graph().Graph().Node_count();
  summary.links = plan.Graph().Graph().links.size();
  summary.cliques_of_size = all.of_size;
  summary.exact_cliques = all.cliques.size();
  Delete_left_aside(plan.Folder().Path());
  Remove_mark(plan.Output_dir());
  return run;
}

}  // namespace gns::parts
