#include "engine/Run_stages.h"

#include <optional>
#include <utility>

#include "control/Run_control.h"
#include "control/Workers.h"
#include "engine/Find_level.h"
#include "engine/Level_finder.h"
#include "engine/Levels.h"
#include "engine/Results_bound.h"
#include "engine/Work_of_levels.h"
#include "files/Results_writer.h"
#include "files/Unfinished_mark.h"
#include "foundation/io/File_faults.h"
#include "graph/Named_graph.h"
#include "results/Method.h"
#include "search/Clique_find.h"
#include "search/Clique_vector.h"

namespace gns {

namespace {

using external_control::Check_for_stop_signal;
using external_control::Report_state;

constexpr std::uint32_t least_k = 3;  ///< of a run over all k

class Run {
 public:
  Run(const Run_parameters& parameters, const Run_wishes& wishes, Run_summary& summary)
      : parameters_(parameters),
        method_(Method_of(parameters.directed, parameters.use_intensity)),
        wishes_(wishes),
        summary_(summary) {}

  void Through_all_stages(bool& approximation_needed) {
    Link_map links;
    if (wishes_.read_first) {
      header_ = Header_of(parameters_);
      Read_input(parameters_, wishes_, links);
      Refuse_bad_run(parameters_);
      Open_results();
    } else {
      Refuse_bad_run(parameters_);
      header_ = Header_of(parameters_);
      Open_results();
      Read_input(parameters_, wishes_, links);
    }
    Write_and_build_graph(links);
    links.clear();
    summary_.nodes = graph_.Node_count();
    summary_.links = graph_.links.size();
    Find_cliques(approximation_needed);
    Write_cliques_and_expect_levels();
    Tell_bound();
    Find_and_write_levels();
    if (File_faults().empty()) mark_->Remove();
  }

 private:
  /// Claims the directory: the first write of a run.
  void Open_results() {
    Forget_file_faults();
    mark_.emplace(parameters_.output_dir);
    results_.emplace(Results_place{parameters_.output_dir, Flag_of(method_), header_},
                     wishes_.tables);
    results_->Write_params();
  }

  /// The file of the graph has names, and the graph itself numbers; both come from the links.
  void Write_and_build_graph(const Link_map& links) {
    const auto build = [&] {
      Convert_links(graph_, links, parameters_.directed);
      Build_graph(graph_);
    };
    external_control::Do_both([&] { Write_graph(links); }, build);
  }

  void Write_graph(const Link_map& links) const {
    mark_->Check();
    results_->Write_graph(links, Needs_weights(parameters_));
    if (wishes_.keeper != nullptr) wishes_.keeper->Keep_links(links);
    Report_state("_______________\n Links read OK.\n");
    Check_for_stop_signal();
  }

  void Find_cliques(bool& approximation_needed) {
    const Time_limit time_limit = {parameters_.time_limit, wishes_.clock};
    Overlap_matrix view;
    Find_cliques_ec(parameters_.use_time_limit ? &time_limit : nullptr, graph_.directed, cliques_,
                    view, graph_.directed_vertices, graph_.vertices, exact_count_,
                    approximation_needed);
    graph_.directed_vertices = {};  // nobody else needs them, and the levels need memory
    graph_.vertices = {};
    summary_.cliques_of_size.assign(Max_clique_size_in_cl_vec(cliques_) + std::size_t{1}, 0);
    for (std::size_t i = 0; i < cliques_.size(); ++i)
      ++summary_.cliques_of_size[cliques_[i].size()];
    summary_.exact_cliques = exact_count_;
    summary_.approximate_cliques = cliques_.size() - exact_count_;
  }

  void Write_cliques() const {
    // For a caller who wants results in memory the poll comes behind the report.
    const bool for_memory = wishes_.tables.cliques != nullptr || wishes_.keeper != nullptr;
    if (!for_memory) Check_for_stop_signal();
    Report_state("___________________________\n Writing cliques to disk...\n");
    if (for_memory) Check_for_stop_signal();
    mark_->Check();
    results_->Write_cliques(cliques_, exact_count_, graph_.names);
    if (wishes_.keeper != nullptr)
      wishes_.keeper->Keep_cliques(cliques_, exact_count_, graph_.names);
    Report_state(" done.\n");
    Check_for_stop_signal();
  }

  /// What comes in front of the levels needs no more than the cliques, as their file does.
  void Write_cliques_and_expect_levels() {
    const auto expect_levels = [this] {
      if (wishes_.listener != nullptr)
        bound_ = Bound_of_results(Input_of_levels(), graph_.names, header_.size(), Ks().largest,
                                  Ks().smallest);
      if (Workers_of_levels() > 1 && method_ != Method::intensity) Begin_levels();
    };
    external_control::Do_both([this] { Write_cliques(); }, expect_levels);
  }

  [[nodiscard]] Levels_input Input_of_levels() const {
    Levels_input input(cliques_, graph_.links);
    input.exact_clique_count = exact_count_;
    input.node_count = summary_.nodes;
    if (method_ == Method::intensity) input.intensity_threshold = parameters_.intensity_threshold;
    input.max_clique_size = Largest_clique();
    return input;
  }

  [[nodiscard]] std::uint32_t Largest_clique() const {
    return static_cast<std::uint32_t>(summary_.cliques_of_size.size() - 1);
  }
  [[nodiscard]] K_range Ks() const {
    if (parameters_.use_single_k) return {parameters_.single_k, parameters_.single_k};
    return {Largest_clique(), least_k};
  }
  /// A table has entries of every k, and no lock.
  [[nodiscard]] unsigned Workers_of_levels() const {
    return wishes_.tables == Table_pointers() ? external_control::This_control().workers : 1;
  }

  void Begin_levels() { levels_.emplace(Input_of_levels(), Ks(), Workers_of_levels()); }

  void Find_and_write_levels() {
    const bool single = parameters_.use_single_k;
    Work_of_levels work(summary_.cliques_of_size, Ks().largest, Ks().smallest);
    const Level_output output = {*results_, graph_.names};
    const auto find_and_write = [&](std::uint32_t k, Levels& levels) {
      if (!single) Check_for_stop_signal();
      mark_->Check();
      Level level = Find_level(k, levels, &output);
      if (wishes_.keeper == nullptr) Leave_statistics_only(level);
      return level;
    };
    const auto keep = [&](Level& level) {
      if (wishes_.keeper != nullptr) wishes_.keeper->Keep_level(level, graph_.links);
      summary_.extractions.push_back({level.k, std::move(level.statistics)});
      if (!single) work.End_level(level.k);
    };
    if (!levels_) Begin_levels();
    levels_->Find(Ks(), {find_and_write, keep});
  }

  static void Leave_statistics_only(Level& level) {
    Level kept;
    kept.k = level.k;
    kept.statistics = std::move(level.statistics);
    level = std::move(kept);
  }

  void Tell_bound() const {
    if (wishes_.listener == nullptr) return;
    external_control::Output_bound& told = external_control::This_control().output_bound;
    told.entries = bound_.entries;
    told.files = bound_.files;
    told.bytes = bound_.bytes;
    told.pair_bytes = bound_.pair_bytes;
    wishes_.listener->Bound_known(bound_);
  }

  const Run_parameters& parameters_;
  Method method_;
  const Run_wishes& wishes_;
  Run_summary& summary_;
  std::string header_;
  std::optional<Unfinished_mark> mark_;  ///< of the results directory, once it is open
  std::optional<Results_writer> results_;
  Named_graph graph_;
  Clique_vector cliques_;
  std::uint32_t exact_count_ = 0;
  Results_bound bound_;
  std::optional<Level_finder> levels_;
};

}  // namespace

void Run_stages(const Run_parameters& parameters, const Run_wishes& wishes,
                bool& approximation_needed, Run_summary& summary) {
  summary = {};
  external_control::This_control().progress.Reset();
  external_control::This_control().work_done.Begin(0);
  Run(parameters, wishes, summary).Through_all_stages(approximation_needed);
}

}  // namespace gns
