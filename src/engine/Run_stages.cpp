#include "engine/Run_stages.h"

#include <utility>
#include <vector>

#include "control/Run_control.h"
#include "engine/Extract_coms.h"
#include "files/Graph_and_clique_files.h"
#include "files/Results_directory.h"
#include "foundation/io/File_faults.h"
#include "graph/Link_conversion.h"
#include "input/Link_file_reader.h"
#include "search/Clique_find.h"
#include "search/Clique_vector.h"

namespace gns {

namespace {

using external_control::Check_for_stop_signal;
using external_control::Report_state;

void Summarize(const Clique_vector& cliques, std::uint32_t exact_clique_count,
               Run_summary& summary) {
  summary.cliques_of_size.assign(Max_clique_size_in_cl_vec(cliques) + std::size_t{1}, 0);
  for (std::size_t i = 0; i < cliques.size(); ++i) ++summary.cliques_of_size[cliques[i].size()];
  summary.exact_cliques = exact_clique_count;
  summary.approximate_cliques = cliques.size() - exact_clique_count;
}

constexpr std::uint32_t least_k = 3;  ///< of a run over all k

/// Tells, while it lives, how much of the work on the levels is done. A level is as much as it has
/// cliques: nearly all of the time goes into their neighbours, which percolation asks for clique by
/// clique.
class Work_of_levels {
 public:
  Work_of_levels(std::vector<std::size_t> cliques_of_size, std::uint32_t largest_k,
                 std::uint32_t smallest_k)
      : cliques_from_(std::move(cliques_of_size)) {
    for (std::size_t size = cliques_from_.size(); size > 1; --size)
      cliques_from_[size - 2] += cliques_from_[size - 1];
    std::uint64_t total = 0;
    for (std::size_t k = smallest_k; k <= largest_k && k < cliques_from_.size(); ++k)
      total += cliques_from_[k];
    external_control::This_control().work_done.Begin(total);
  }
  ~Work_of_levels() { external_control::This_control().work_done.Begin(0); }
  Work_of_levels(const Work_of_levels&) = delete;
  Work_of_levels& operator=(const Work_of_levels&) = delete;

  void End_level(std::uint32_t k) {
    done_ += cliques_from_[k];
    external_control::This_control().work_done.Set(done_);
  }

 private:
  std::vector<std::size_t> cliques_from_;  ///< [n]: cliques of n nodes or more
  std::uint64_t done_ = 0;
};

void Tell_bound(const Run_start& start, const Extraction_input& input) {
  if (!start.tell_bound) return;
  const bool single = start.parameters.use_single_k;
  const std::uint32_t k = start.parameters.single_k;
  const Results_bound bound =
      Bound_of_results(input, single ? k : input.max_clique_size, single ? k : least_k);
  external_control::Output_bound& told = external_control::This_control().output_bound;
  told.entries = bound.entries;
  told.files = bound.files;
  told.bytes = bound.bytes;
  told.pair_bytes = bound.pair_bytes;
  start.tell_bound(bound);
}

void Extract_all(const Run_parameters& parameters, const Unfinished_mark& mark,
                 const Extraction_input& input, Run_summary& summary) {
  Extraction extraction(input);
  if (parameters.use_single_k) {
    Work_of_levels work(summary.cliques_of_size, parameters.single_k, parameters.single_k);
    mark.Check();
    summary.extractions.push_back(extraction.At(parameters.single_k));
    return;
  }
  Work_of_levels work(summary.cliques_of_size, input.max_clique_size, least_k);
  for (std::uint32_t k = input.max_clique_size; k >= least_k; --k) {
    Check_for_stop_signal();
    mark.Check();
    summary.extractions.push_back(extraction.At(k));
    work.End_level(k);
  }
}

}  // namespace

Run_start Start_of_run(const Run_parameters& p) {
  Run_start start;
  start.parameters = p;
  start.weighted = p.use_lower_threshold || p.use_upper_threshold || p.use_intensity;
  Generate_com_flag(start.com_flag, p.directed, p.use_intensity);
  Generate_alap_szoveg(start.run_header, p.input_file, p.use_lower_threshold, p.lower_threshold,
                       p.use_upper_threshold, p.upper_threshold);
  return start;
}

void Read_links(const Run_start& start, Link_map& links) {
  Link_file_check unheard;
  Read_links(start, links, unheard);
}

void Read_links(const Run_start& start, Link_map& links, Link_file_check& check) {
  Report_state(" Reading input ...\n");
  const Run_parameters& p = start.parameters;
  if (start.weighted)
    Read_weighted_links(p.input_file, links, p.use_lower_threshold, p.lower_threshold,
                        p.use_upper_threshold, p.upper_threshold, &check);
  else
    Read_unw_links(p.input_file, links, &check);
}

void Open_results(Run_start& start) {
  const Run_parameters& p = start.parameters;
  Extend_alap_szoveg(start.run_header, p.use_intensity, p.intensity_threshold, p.directed,
                     p.use_time_limit, p.time_limit, p.use_single_k, p.single_k);
  Forget_file_faults();
  start.mark = std::make_unique<Unfinished_mark>(p.output_dir);
  Kiir_params(p.output_dir, start.run_header);
}

void Run_from_links(const Run_start& start, Link_map& links, bool& approximation_needed,
                    Run_summary& summary, const Table_pointers& tables) {
  const Run_parameters& parameters = start.parameters;
  start.mark->Check();
  Kiir_graph_ret(links, parameters.output_dir, parameters.directed, start.run_header,
                 start.weighted, tables.graph_links);
  Report_state("_______________\n Links read OK.\n");
  Check_for_stop_signal();

  Report_state("____________________\n Converting links...\n");
  Index_links index_links;
  Node_names node_names;
  Convert_s_links(index_links, node_names, links, parameters.directed);
  links.clear();
  Report_state(" Links converted OK, total number of " + std::to_string(index_links.size()) +
               "  will be\n taken into account in the community finding.\n");
  Check_for_stop_signal();

  Report_state("__________________________________\n Preparing graph from the links...\n");
  Vertex_map vtx_map;
  Dir_vertex_map dir_vtx_map;
  if (parameters.directed)
    Dir_vtx_map_from_link_map(dir_vtx_map, index_links);
  else
    Vtx_map_from_link_map(vtx_map, index_links);
  const std::uint32_t vertex_count = parameters.directed ? dir_vtx_map.size() : vtx_map.size();
  summary.nodes = vertex_count;
  summary.links = index_links.size();
  Report_state(" Graph created from the links OK.\n");
  Check_for_stop_signal();

  Clique_vector cliques;
  Overlap_matrix overlap_matrix;
  std::uint32_t exact_clique_count = 0;
  const Time_limit time_limit = {parameters.time_limit, start.clock};
  Find_cliques_ec(parameters.use_time_limit ? &time_limit : nullptr, parameters.directed, cliques,
                  overlap_matrix, dir_vtx_map, vtx_map, exact_clique_count, approximation_needed);
  Summarize(cliques, exact_clique_count, summary);
  // With tables the poll comes behind the report.
  const bool with_tables = tables.cliques != nullptr;
  if (!with_tables) Check_for_stop_signal();
  Report_state("___________________________\n Writing cliques to disk...\n");
  if (with_tables) Check_for_stop_signal();
  start.mark->Check();
  Kiir_cliques_VL_ret(parameters.output_dir, cliques, node_names, exact_clique_count,
                      start.com_flag, start.run_header, tables.cliques);
  Report_state(" done.\n");
  Check_for_stop_signal();

  const Extraction_input input = {cliques,
                                  exact_clique_count,
                                  start.com_flag,
                                  start.run_header,
                                  parameters.output_dir,
                                  node_names,
                                  vertex_count,
                                  index_links,
                                  Max_clique_size_in_cl_vec(cliques),
                                  parameters.use_intensity,
                                  parameters.intensity_threshold,
                                  tables};
  Tell_bound(start, input);
  Extract_all(parameters, *start.mark, input, summary);
  if (File_faults().empty()) start.mark->Remove();
}

}  // namespace gns
