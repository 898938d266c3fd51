#include <utility>

#include "control/Run_control.h"
#include "engine/Find_level.h"
#include "engine/Level_finder.h"
#include "engine/Work_of_levels.h"
#include "files/Results_writer.h"
#include "parts/Open_plan.h"
#include "parts/Parts.h"

namespace gns::parts {

namespace {

Levels_input Input_of(const Open_plan& plan, const All_cliques& all) {
  const Run_parameters& p = plan.Plan().parameters;
  Levels_input input(all.cliques, plan.Graph().Graph().links);
  input.exact_clique_count = static_cast<std::uint32_t>(all.cliques.size());
  input.node_count = plan.Graph().Graph().Node_count();
  if (p.use_intensity) input.intensity_threshold = p.intensity_threshold;
  input.max_clique_size = static_cast<std::uint32_t>(all.of_size.size() - 1);
  return input;
}

Done_work Make(const Open_plan& plan, const All_cliques& all, const Level_group& group) {
  const auto from = static_cast<std::uint32_t>(group.from);
  const auto to = static_cast<std::uint32_t>(group.to);
  Done_work done;
  Results_aside aside(plan.Output_dir());
  const Results_writer results(plan.Place_in(aside.Directory()));
  Work_of_levels work(all.of_size, from, to);
  const Level_output output = {results, plan.Graph().Graph().names};
  const auto find_and_write = [&](std::uint32_t k, Levels& levels) {
    external_control::Check_for_stop_signal();
    Level kept;  // what else was found is written, and takes memory
    kept.k = k;
    kept.statistics = Find_level(k, levels, &output).statistics;
    return kept;
  };
  const auto keep = [&](Level& level) {
    done.levels.push_back({level.k, std::move(level.statistics)});
    if (from > to) work.End_level(level.k);
  };
  const unsigned workers = external_control::This_control().workers;
  Level_finder(Input_of(plan, all), {from, to}, workers).Find({from, to}, {find_and_write, keep});
  done.files = aside.Put_in_place();
  return done;
}

}  // namespace

std::uint64_t Find_levels(const std::string& work, std::uint64_t part,
                          const std::string& elsewhere) {
  const Open_plan plan(work, Part_check::all, elsewhere);
  plan.Refuse_no_part(part);
  const Done_key key = plan.Key(Step::levels, part);
  if (const auto before = Done_work_of(plan.Folder(), key, plan.Output_dir()))
    return before->levels.size();
  plan.Refuse_finished();
  const Open_cliques cliques(plan);
  File_aside mark(plan.Folder().Done(Step::levels, part));
  const Level_group& group = cliques.All().groups[part - 1];
  const Done_work done = group.Is_empty() ? Done_work() : Make(plan, cliques.All(), group);
  Write_done_mark(mark, key, done);
  return done.levels.size();
}

}  // namespace gns::parts
