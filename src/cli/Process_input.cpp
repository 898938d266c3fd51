#include "cli/Process_input.h"

#include "cli/Parameters.h"
#include "cli/Switches.h"
#include "cli/Usage.h"
#include "files/Link_file_reader.h"
#include "files/Results_directory.h"
#include "foundation/My_double2string.h"

namespace gns {

namespace {

constexpr unsigned default_digits = 6;

/// The switches that were given. Where there is nothing to run, prints the usage and throws.
Switch_values Read_command_line(int argc, const char* const* argv) {
  const Switches switches(argc, argv);
  Switch_values values;
  Examin_params(Switch_map(switches.Params()), values);
  if (values.help) {
    Print_detailed_usage(switches.Prog_name());
  } else if (values.error) {
    Print_usage(switches.Prog_name(), values.errors);
  }
  if (values.help || values.error) throw Xusage_printed(values.help);
  return values;
}

std::string Results_dir_name(const Switch_values& values) {
  const unsigned digits = values.use_digits ? values.digits : default_digits;
  std::string name = values.input_file + "_files";
  const auto add_number = [&](const char* mark, double number) {
    name.append(mark).append(double2string(number, digits));
  };
  if (values.use_lower_threshold) add_number("_", values.lower_threshold);
  if (values.use_lower_threshold || values.use_upper_threshold) name += "_w";
  if (values.use_upper_threshold) add_number("_", values.upper_threshold);
  if (values.directed) name += "-d";
  if (values.use_output_dir) name = values.output_dir;
  // Also behind a name that was given.
  if (values.use_intensity) add_number("-w-th", values.intensity_threshold);
  return name;
}

template <typename T>
void Set_if_given(bool given, const T& given_value, bool& use_value, T& value) {
  use_value = given;
  if (given) value = given_value;
}

}  // namespace

Xusage_printed::Xusage_printed(bool was_asked) : Xerror_msg(""), on_request(was_asked) {}

void Process_input(const int& argc, const char* const* argv, std::string& output_dir,
                   Link_map& links, double& time_limit, bool& use_time_limit, bool& directed,
                   bool& use_intensity, double& intensity_threshold, bool& use_single_k,
                   unsigned& single_k, bool& weighted, std::string& com_flag,
                   std::string& run_header) {
  const Switch_values values = Read_command_line(argc, argv);
  const double lower_threshold = values.use_lower_threshold ? values.lower_threshold : 0.0;
  const double upper_threshold = values.use_upper_threshold ? values.upper_threshold : 0.0;

  output_dir = Results_dir_name(values);
  directed = directed || values.directed;
  Set_if_given(values.use_time_limit, values.time_limit, use_time_limit, time_limit);
  Set_if_given(values.use_intensity, values.intensity_threshold, use_intensity,
               intensity_threshold);
  Set_if_given(values.use_single_k, values.single_k, use_single_k, single_k);

  weighted = values.use_lower_threshold || values.use_upper_threshold || values.use_intensity;
  if (weighted) {
    Read_weighted_links(values.input_file, links, values.use_lower_threshold, lower_threshold,
                        values.use_upper_threshold, upper_threshold);
  } else {
    Read_unw_links(values.input_file, links);
  }
  Generate_com_flag(com_flag, directed, use_intensity);
  Generate_alap_szoveg(run_header, values.input_file, values.use_lower_threshold, lower_threshold,
                       values.use_upper_threshold, upper_threshold);
}

}  // namespace gns
