#pragma once

#include <cstddef>
#include <limits>
#include <optional>
#include <string>

#include "cli/options/gmap.h"

namespace gns {

/// What the switches of a command line say. A value is read only if its `use_` is set.
/// The values at the start break no rule, so that a value that could not be read adds no further
/// message to that of its reading.
struct Switch_values {
  bool use_lower_threshold = false;  ///< -w
  double lower_threshold = -std::numeric_limits<double>::infinity();
  bool use_upper_threshold = false;  ///< -W
  double upper_threshold = std::numeric_limits<double>::infinity();
  bool use_digits = false;  ///< -d
  unsigned digits = 0;
  bool use_output_dir = false;  ///< -o
  std::string output_dir;
  std::string input_file;       ///< -i, mandatory
  bool help = false;            ///< -h
  bool use_time_limit = false;  ///< -t, in seconds
  double time_limit = 1.0;
  bool directed = false;       ///< -D
  bool use_intensity = false;  ///< -I
  double intensity_threshold = 0.0;
  bool use_single_k = false;  ///< -k
  unsigned single_k = 0;
  bool error = false;  ///< something is wrong with the command line; `errors` tells what
  std::string errors;
  bool undirected_declared = false;  ///< -U
  bool use_input_file = false;       ///< -i
};

/// How many values the switch takes, 0 or 1; nothing if this program has no such switch.
std::optional<std::size_t> Values_of(const std::string& key);

/// True if every key is a switch of this program.
bool Check_keys(const Switch_map& params);

/// Reads the first word behind the switch `key`, which must be in `params`. If there is none or it
/// can't be converted, a message is appended to `errors`, `error` is set and `value` stays.
/// For string, double and unsigned.
template <typename T>
void Get_param(T& value, const std::string& key, const Switch_map& params, std::string& errors,
               bool& error);

/// Reads all switches and checks that they go together. All that is wrong piles up in `errors`.
/// The flags are only ever set, so the caller starts with all of them off.
void Examin_params(const Switch_map& params, Switch_values& values);
void Examin_params(const Switch_map& params, bool& use_lower_threshold, double& lower_threshold,
                   bool& use_upper_threshold, double& upper_threshold, bool& use_digits,
                   unsigned& digits, bool& use_output_dir, std::string& output_dir,
                   std::string& input_file, bool& help, bool& use_time_limit, double& time_limit,
                   bool& directed, bool& use_intensity, double& intensity_threshold,
                   bool& use_single_k, unsigned& single_k, bool& error, std::string& errors);

}  // namespace gns
