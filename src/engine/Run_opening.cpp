#include "engine/Run_opening.h"

#include "control/Run_control.h"
#include "engine/Check_switches.h"
#include "engine/Own_input.h"
#include "files/Results_directory.h"
#include "foundation/Errors.h"
#include "graph/Link_conversion.h"
#include "input/Link_file_reader.h"

namespace gns {

using external_control::Check_for_stop_signal;
using external_control::Report_state;

namespace {

Link_rule Rule_of(const Run_parameters& p) {
  return {Needs_weights(p), p.use_lower_threshold, p.lower_threshold, p.use_upper_threshold,
          p.upper_threshold};
}

}  // namespace

std::string Header_of(const Run_parameters& p) {
  std::string header;
  Generate_alap_szoveg(header, p.input_file, p.use_lower_threshold, p.lower_threshold,
                       p.use_upper_threshold, p.upper_threshold);
  Extend_alap_szoveg(header, p.use_intensity, p.intensity_threshold, p.directed, p.use_time_limit,
                     p.time_limit, p.use_single_k, p.single_k);
  return header;
}

void Refuse_bad_run(const Run_parameters& p) {
  Refuse_bad_parameters(p);
  Refuse_own_input(p.input_file, p.output_dir);
  Check_out_dir(p.output_dir);
}

void Read_input(const Run_parameters& parameters, const Run_wishes& wishes, Link_map& links) {
  Link_file_check check(wishes.listener != nullptr);
  const auto tell = [&](const Link_map* read) {
    if (wishes.listener != nullptr) wishes.listener->Input_read(check, read);
  };
  try {
    if (wishes.links_source) {
      Report_state(" Reading input ...\n");
      wishes.links_source(Rule_of(parameters), links, check);
    } else {
      Read_links(parameters, links, check);
    }
  } catch (const Xep_wrong_line&) {
    tell(nullptr);
    throw;
  }
  tell(&links);
}

bool Needs_weights(const Run_parameters& parameters) {
  return parameters.use_lower_threshold || parameters.use_upper_threshold ||
         parameters.use_intensity;
}

void Read_links(const Run_parameters& p, Link_map& links, Link_file_check& check) {
  Report_state(" Reading input ...\n");
  if (Needs_weights(p))
    Read_weighted_links(p.input_file, links, p.use_lower_threshold, p.lower_threshold,
                        p.use_upper_threshold, p.upper_threshold, &check);
  else
    Read_unw_links(p.input_file, links, &check);
}

void Convert_links(Named_graph& graph, const Link_map& links, bool directed) {
  Report_state("____________________\n Converting links...\n");
  graph.directed = directed;
  Convert_s_links(graph.links, graph.names, links, directed);
  Report_state(" Links converted OK, total number of " + std::to_string(graph.links.size()) +
               "  will be\n taken into account in the community finding.\n");
  Check_for_stop_signal();
}

void Build_graph(Named_graph& graph) {
  Report_state("__________________________________\n Preparing graph from the links...\n");
  Make_vertices(graph);
  Report_state(" Graph created from the links OK.\n");
  Check_for_stop_signal();
}

}  // namespace gns
