#include "cli/Process_input.h"

#include "cli/options/Switches.h"
#include "cli/options/Unheeded_words.h"
#include "cli/options/Usage.h"
#include "engine/Run_stages.h"
#include "files/Results_directory.h"
#include "foundation/text/My_double2string.h"

namespace gns {

namespace {

constexpr unsigned default_digits = 6;

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

Xusage_printed::Xusage_printed(bool was_asked, const std::string& faults)
    : Xerror_msg(""), on_request(was_asked), errors(faults) {}

Xusage_printed::~Xusage_printed() noexcept = default;

Switch_values Read_command_line(int argc, const char* const* argv,
                                std::vector<std::string>& unheeded) {
  const Switches switches(argc, argv);
  const Switch_map params(switches.Params());
  unheeded = Unheeded_words(params);
  Switch_values values;
  Examin_params(params, values);
  if (values.help) {
    Print_detailed_usage(switches.Prog_name());
  } else if (values.error) {
    Print_usage(switches.Prog_name(), values.errors);
  }
  if (values.help || values.error)
    throw Xusage_printed(values.help, Check_keys(params) ? values.errors : "");
  return values;
}

Run_parameters Parameters_of(const Switch_values& values) {
  Run_parameters p;
  p.input_file = values.input_file;
  p.output_dir = Results_dir_name(values);
  p.use_lower_threshold = values.use_lower_threshold;
  p.lower_threshold = values.use_lower_threshold ? values.lower_threshold : 0.0;
  p.use_upper_threshold = values.use_upper_threshold;
  p.upper_threshold = values.use_upper_threshold ? values.upper_threshold : 0.0;
  p.directed = values.directed;
  p.use_intensity = values.use_intensity;
  p.intensity_threshold = values.intensity_threshold;
  p.use_time_limit = values.use_time_limit;
  p.time_limit = values.time_limit;
  p.use_single_k = values.use_single_k;
  p.single_k = values.single_k;
  return p;
}

void Process_input(const int& argc, const char* const* argv, std::string& output_dir,
                   Link_map& links, double& time_limit, bool& use_time_limit, bool& directed,
                   bool& use_intensity, double& intensity_threshold, bool& use_single_k,
                   unsigned& single_k, bool& weighted, std::string& com_flag,
                   std::string& run_header) {
  std::vector<std::string> unheard_words;
  const Switch_values values = Read_command_line(argc, argv, unheard_words);
  const Run_parameters p = Parameters_of(values);
  Generate_alap_szoveg(run_header, p.input_file, p.use_lower_threshold, p.lower_threshold,
                       p.use_upper_threshold, p.upper_threshold);
  Link_file_check unheard;
  Read_links(p, links, unheard);
  output_dir = p.output_dir;
  directed = directed || values.directed;
  Set_if_given(values.use_time_limit, values.time_limit, use_time_limit, time_limit);
  Set_if_given(values.use_intensity, values.intensity_threshold, use_intensity,
               intensity_threshold);
  Set_if_given(values.use_single_k, values.single_k, use_single_k, single_k);
  weighted = Needs_weights(p);
  Generate_com_flag(com_flag, p.directed, p.use_intensity);
}

}  // namespace gns
