#include "engine/Find_coms.h"

#include <exception>

#include "engine/Check_switches.h"
#include "engine/Run_stages.h"
#include "files/Results_directory.h"

namespace gns {

const std::string run_finished = "Process ended succesfully.";

namespace {

void Run(const Run_parameters& parameters, bool& approximation_needed, Run_summary& summary) {
  Refuse_bad_parameters(parameters);
  Check_out_dir(parameters.output_dir);
  Run_start start = Start_of_run(parameters);
  Open_results(start);
  Link_map links;
  Read_links(start, links);
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
