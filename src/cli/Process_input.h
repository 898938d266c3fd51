#pragma once

#include <string>
#include <vector>

#include "cli/options/Parameters.h"
#include "engine/Run_parameters.h"
#include "foundation/Errors.h"
#include "graph/Link_map.h"

namespace gns {

/// Thrown with the empty text when the usage has been printed and nothing is left to say.
class Xusage_printed : public Xerror_msg {
 public:
  Xusage_printed(bool on_request, const std::string& errors);
  ~Xusage_printed() noexcept override;

  bool on_request;     ///< the usage was asked for; else the command line is wrong
  std::string errors;  ///< what is wrong with it, but for switches that there are not
};

/// The switches that were given. Where there is nothing to run, prints the usage and throws
/// `Xusage_printed`. `unheeded` gets what is to be said of words that no run heeds, in any case.
Switch_values Read_command_line(int argc, const char* const* argv,
                                std::vector<std::string>& unheeded);

/// The parameters of the run that the switches mean.
Run_parameters Parameters_of(const Switch_values& values);

/// Turns a command line into the parameters of a run, reads the links and begins the header.
///
/// The switches set the booleans to true or false, but `directed` only ever to true, so it starts
/// at false. The numbers are written only where their switch is given. Throws `Xusage_printed`
/// after printing the usage, and the errors of the link readers.
void Process_input(const int& argc, const char* const* argv, std::string& output_dir,
                   Link_map& links, double& time_limit, bool& use_time_limit, bool& directed,
                   bool& use_intensity, double& intensity_threshold, bool& use_single_k,
                   unsigned& single_k, bool& weighted, std::string& com_flag,
                   std::string& run_header);

}  // namespace gns
