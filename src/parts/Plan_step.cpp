#include <algorithm>
#include <optional>

#include "engine/Check_switches.h"
#include "engine/Own_input.h"
#include "engine/Run_opening.h"
#include "files/Results_directory.h"
#include "files/Results_writer.h"
#include "files/Unfinished_mark.h"
#include "foundation/Errors.h"
#include "foundation/io/File_system.h"
#include "foundation/paths/Make_dir_aside.h"
#include "foundation/paths/Total_path.h"
#include "parts/Open_plan.h"
#include "parts/Parts.h"
#include "parts/Plan_texts.h"
#include "results/Method.h"
#include "search/Node_estimates.h"

namespace gns::parts {

namespace {

constexpr std::uint64_t most_parts = 1'000'000;

bool Is_there(const std::string& path) {
  struct stat status {};
  return File_system::At_hand().Status(path.c_str(), status, AT_SYMLINK_NOFOLLOW) == 0;
}

/// A plan in the making.
class Planning {
 public:
  Planning(const Run_parameters& parameters, const std::string& work, std::uint64_t parts)
      : folder_(work), goes_on_(Is_there(folder_.Graph())) {
    plan_.parameters = parameters;
    plan_.parameters.input_file = Get_total_path(parameters.input_file);
    plan_.parameters.output_dir = Get_total_path(parameters.output_dir);
    plan_.estimates.resize(parts);
  }

  void Make(const Run_wishes& wishes, const Run_parameters& as_given) {
    plan_.header = Header_of(as_given);
    Refuse_unfit(as_given);
    Read_input(as_given, wishes, links_);
    Convert_links(graph_, links_, as_given.directed);
    Build_graph(graph_);
    Share_out();
    Refuse_unfit(as_given);
    Make_dir_aside(folder_.Path());
    const std::uint64_t fingerprint = Write_graph();
    const Done_key key = {Step::plan, 0, fingerprint};
    File_aside mark(folder_.Done(Step::plan));
    Claim();
    const Done_work work = {Write_results(), {}};
    Write_texts();
    Write_done_mark(mark, key, work);
  }

 private:
  /// What is left of a plan of the same run may be gone on with.
  void Refuse_unfit(const Run_parameters& as_given) const {
    Refuse_bad_parameters(as_given);
    Refuse_own_input(as_given.input_file, as_given.output_dir);
    if (!goes_on_) Check_out_dir(as_given.output_dir);
  }

  void Share_out() {
    const Node_order order = Order_of(graph_);
    const std::vector<std::uint64_t> works =
        Estimates_of_nodes(Search_graph_of(graph_, order), order);
    plan_.ranges = Ranges_of(works, plan_.Parts());
    plan_.ranges.resize(plan_.Parts(), {works.size(), works.size()});
    std::ranges::transform(plan_.ranges, plan_.estimates.begin(),
                           [&](const Search_range& range) { return Work_of(range, works); });
  }

  /// Throws if the folder holds another run.
  std::uint64_t Write_graph() const {
    File_aside file(folder_.Graph());
    const std::uint64_t fingerprint =
        Write_graph_part([&](auto bytes) { file.Write(bytes); }, plan_, graph_);
    if (goes_on_) {
      const Part_label label = folder_.Label(folder_.Graph(), Step::plan);
      const Mapped_file before = Mapped_part(label);
      if (Graph_part(before.Bytes(), label, Part_check::ends).Fingerprint() != fingerprint)
        throw Xerror_msg("ERROR: '" + folder_.Path() +
                         "' holds the parts of another run. Choose another folder, or delete " +
                         "it if that run is not wanted any more.\n");
    }
    file.Finish();
    return fingerprint;
  }

  /// Of a plan that was cut short the mark stays for this one.
  void Claim() const {
    const std::string& output_dir = plan_.parameters.output_dir;
    if (goes_on_ && Is_marked_unfinished(output_dir)) return;
    const Unfinished_mark mark(output_dir);
  }

  std::vector<Results_file> Write_results() const {
    const Run_parameters& p = plan_.parameters;
    Results_aside aside(p.output_dir);
    const Results_writer results(
        {aside.Directory(), Flag_of(Method_of(p.directed, p.use_intensity)), plan_.header});
    results.Write_params();
    results.Write_graph(links_, Needs_weights(p));
    return aside.Put_in_place();
  }

  void Write_texts() const {
    const Part_label label = folder_.Label(folder_.Graph(), Step::plan);
    const Mapped_file file = Mapped_part(label);
    const Graph_part graph(file.Bytes(), label, Part_check::ends);
    Write_text_aside(folder_.Plan(), Plan_text(graph));
    Write_text_aside(folder_.Run(), Run_text(graph));
  }

  Work_folder folder_;
  bool goes_on_;  ///< there is, or was, a plan in the folder
  Run_plan plan_;
  Link_map links_;
  Named_graph graph_;
};

}  // namespace

void Refuse_bad_plan(const Run_parameters& parameters, std::uint64_t parts) {
  if (parameters.use_time_limit)
    throw Xerror_msg(
        "ERROR: a run in parts takes no time limit (-t): which cliques are found within it depends "
        "on the clock of a single run.\n");
  if (parts == 0 || parts > most_parts)
    throw Xerror_msg("ERROR: the number of parts must be from 1 to " + std::to_string(most_parts) +
                     ".\n");
}

void Plan(const Run_parameters& parameters, const Run_wishes& wishes, const std::string& work,
          std::uint64_t parts) {
  Refuse_bad_plan(parameters, parts);
  Planning(parameters, work, parts).Make(wishes, parameters);
}

}  // namespace gns::parts
