#include "cli/options/Parameters.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <variant>

#include "cli/options/Option_table.h"
#include "engine/Check_switches.h"
#include "foundation/text/My_convert_from_string.h"

namespace gns {

namespace {

/// What the name of a file can hold; more is sure to fail, after much time and memory.
constexpr unsigned most_digits = 255;

using Flag = bool Switch_values::*;

/// A switch that is followed by a value.
template <typename T>
struct Value {
  bool Switch_values::*given;
  T Switch_values::*value;
};

struct Switch {
  const char* name;
  std::variant<Flag, Value<std::string>, Value<double>, Value<unsigned>> target;
};

using S = Switch_values;

/// Where each switch goes, in the order in which they are read and their messages come.
constexpr std::array<Switch, 11> switches{{
    {"-h", &S::help},
    {"-i", Value<std::string>{&S::use_input_file, &S::input_file}},
    {"-w", Value<double>{&S::use_lower_threshold, &S::lower_threshold}},
    {"-W", Value<double>{&S::use_upper_threshold, &S::upper_threshold}},
    {"-o", Value<std::string>{&S::use_output_dir, &S::output_dir}},
    {"-d", Value<unsigned>{&S::use_digits, &S::digits}},
    {"-t", Value<double>{&S::use_time_limit, &S::time_limit}},
    {"-D", &S::directed},
    {"-I", Value<double>{&S::use_intensity, &S::intensity_threshold}},
    {"-k", Value<unsigned>{&S::use_single_k, &S::single_k}},
    {"-U", &S::undirected_declared},
}};

void Add_error(const std::string& text, Switch_values& values) {
  values.errors += text;
  values.error = true;
}

void Read_switch(Flag flag, const std::string& /*name*/, const Switch_map& /*params*/,
                 Switch_values& values) {
  values.*flag = true;
}

template <typename T>
void Read_switch(const Value<T>& target, const std::string& name, const Switch_map& params,
                 Switch_values& values) {
  Get_param(values.*target.value, name, params, values.errors, values.error);
  values.*target.given = true;
}

}  // namespace

std::optional<std::size_t> Values_of(const std::string& key) {
  const Option* option = Switch_of(key);
  if (option == nullptr) return {};
  return option->argument.empty() ? 0 : 1;
}

bool Check_keys(const Switch_map& params) {
  return std::ranges::all_of(params,
                             [](const auto& param) { return Values_of(param.first).has_value(); });
}

template <typename T>
void Get_param(T& value, const std::string& key, const Switch_map& params, std::string& errors,
               bool& error) {
  const std::vector<std::string>& words = params[key];
  if (words.empty()) {
    errors += " No value is given for switch " + key + ".\n";
    error = true;
    return;
  }
  bool suspicious = false;
  if (Convert_from_string(words.front(), value, suspicious)) return;
  errors += " Unable to interpret the value '" + words.front() + "' for switch " + key + ".\n";
  error = true;
}

template void Get_param(std::string&, const std::string&, const Switch_map&, std::string&, bool&);
template void Get_param(double&, const std::string&, const Switch_map&, std::string&, bool&);
template void Get_param(unsigned&, const std::string&, const Switch_map&, std::string&, bool&);

void Examin_params(const Switch_map& params, Switch_values& values) {
  if (!Check_keys(params)) {
    Add_error("unknown parameter in parameter list! (Check_keys()).\n", values);
    return;
  }
  if (!params.contains("-i")) Add_error("You must specify an input file.\n", values);
  for (const Switch& s : switches) {
    if (!params.contains(s.name)) continue;
    std::visit([&](const auto& target) { Read_switch(target, s.name, params, values); }, s.target);
  }
  if (values.use_digits && values.digits > most_digits)
    Add_error(" The number of digits (-d) must not be greater than 255.\n", values);
  if (!Check_switches(values.use_time_limit, values.time_limit, values.use_lower_threshold,
                      values.use_upper_threshold, values.lower_threshold, values.upper_threshold,
                      values.directed, values.use_intensity, values.undirected_declared,
                      values.errors)) {
    values.error = true;
  }
}

void Examin_params(const Switch_map& params, bool& use_lower_threshold, double& lower_threshold,
                   bool& use_upper_threshold, double& upper_threshold, bool& use_digits,
                   unsigned& digits, bool& use_output_dir, std::string& output_dir,
                   std::string& input_file, bool& help, bool& use_time_limit, double& time_limit,
                   bool& directed, bool& use_intensity, double& intensity_threshold,
                   bool& use_single_k, unsigned& single_k, bool& error, std::string& errors) {
  Switch_values v{use_lower_threshold,
                  lower_threshold,
                  use_upper_threshold,
                  upper_threshold,
                  use_digits,
                  digits,
                  use_output_dir,
                  output_dir,
                  input_file,
                  help,
                  use_time_limit,
                  time_limit,
                  directed,
                  use_intensity,
                  intensity_threshold,
                  use_single_k,
                  single_k,
                  error,
                  errors};
  Examin_params(params, v);
  std::tie(use_lower_threshold, lower_threshold, use_upper_threshold, upper_threshold, use_digits,
           digits, use_output_dir, output_dir, input_file, help, use_time_limit, time_limit,
           directed, use_intensity, intensity_threshold, use_single_k, single_k, error, errors) =
      std::tie(v.use_lower_threshold, v.lower_threshold, v.use_upper_threshold, v.upper_threshold,
               v.use_digits, v.digits, v.use_output_dir, v.output_dir, v.input_file, v.help,
               v.use_time_limit, v.time_limit, v.directed, v.use_intensity, v.intensity_threshold,
               v.use_single_k, v.single_k, v.error, v.errors);
}

}  // namespace gns
