#include "engine/Find_coms.h"

#include <exception>

#include "control/Clique_find_ext_cont.h"
#include "engine/Check_switches.h"
#include "engine/Run_stages.h"
#include "files/Link_file_reader.h"
#include "files/Results_directory.h"

namespace gns {

const std::string run_finished = "Process ended succesfully.";

namespace {

using external_control::CURRENT_STATE_REPORT;

std::string Header_of(const Run_parameters& p) {
  std::string header;
  Generate_alap_szoveg(header, p.input_file, p.use_lower_threshold, p.lower_threshold,
                       p.use_upper_threshold, p.upper_threshold);
  Extend_alap_szoveg(header, p.use_intensity, p.intensity_threshold, p.directed, p.use_time_limit,
                     p.time_limit, p.use_single_k, p.single_k);
  return header;
}

void Read_links(const Run_parameters& p, bool weighted, Link_map& links) {
  CURRENT_STATE_REPORT = " Reading input ...\n";
  if (weighted)
    Read_weighted_links(p.input_file, links, p.use_lower_threshold, p.lower_threshold,
                        p.use_upper_threshold, p.upper_threshold);
  else
    Read_unw_links(p.input_file, links);
}

void Run(const Run_parameters& parameters, bool& approximation_needed, Run_summary& summary) {
  Refuse_bad_parameters(parameters);
  Check_out_dir(parameters.output_dir);
  Run_start start;
  start.parameters = parameters;
  start.run_header = Header_of(parameters);
  Open_results(start);
  Generate_com_flag(start.com_flag, parameters.directed, parameters.use_intensity);
  start.weighted =
      parameters.use_lower_threshold || parameters.use_upper_threshold || parameters.use_intensity;
  Link_map links;
  Read_links(parameters, start.weighted, links);
  Run_from_links(start, links, approximation_needed, summary);
}

}  // namespace

std::string Find_coms(const std::string& input_file, const std::string& output_dir,
                      bool use_lower_threshold, double lower_threshold, bool use_upper_threshold,
                      double upper_threshold, bool directed, bool use_intensity,
                      double intensity_threshold, bool use_time_limit, double time_limit,
                      bool use_single_k, std::uint32_t single_k, bool& approximation_needed) {
  const Run_parameters parameters = {input_file,      output_dir,          use_lower_threshold,
                                     lower_threshold, use_upper_threshold, upper_threshold,
                                     directed,        use_intensity,       intensity_threshold,
                                     use_time_limit,  time_limit,          use_single_k,
                                     single_k};
  Run_summary summary;
  return Find_coms(parameters, approximation_needed, summary);
}

std::string Find_coms(const Run_parameters& parameters, bool& approximation_needed,
                      Run_summary& summary) {
  try {
    Run(parameters, approximation_needed, summary);
    return run_finished;
  } catch (const std::exception& failure) {
    return failure.what();
  }
}

}  // namespace gns
