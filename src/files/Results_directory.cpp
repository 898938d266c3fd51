#include "files/Results_directory.h"

#include <system_error>

#include "files/Results_writer.h"
#include "foundation/Errors.h"
#include "foundation/paths/Dir_listing.h"
#include "foundation/paths/Direktoriz.h"
#include "foundation/paths/Total_path.h"
#include "foundation/text/My_double2string.h"
#include "results/Method.h"

namespace gns {

namespace {

std::string Six_digits(double value) {
  constexpr unsigned digits = 6;
  return double2string(value, digits);
}

}  // namespace

Xdir_not_empty::Xdir_not_empty(std::string directory)
    : Xerror_msg("ERROR: the output directory already exists and it is non-empty.\n"),
      dir(std::move(directory)) {}

Xdir_not_empty::~Xdir_not_empty() noexcept = default;

void Check_out_dir(const std::string& output_dir) {
  bool empty = true;
  std::string error_text;
  if (!Is_there_such_dir(output_dir, empty, error_text) || empty) return;
  if (!List_dir(output_dir).empty()) throw Xdir_not_empty(output_dir);
}

void Check_entries(const std::string& output_dir, std::string_view allowed) {
  Dir_listing listing(output_dir);
  while (const char* const name = listing.Next())
    if (name != allowed) throw Xdir_not_empty(output_dir);
  if (const int error = listing.Error())
    throw Xerror_msg("ERROR: the output directory '" + output_dir +
                     "' can't be listed: " + std::generic_category().message(error) + ".\n");
}

void Generate_alap_szoveg(std::string& run_header, const std::string& input_file,
                          bool use_lower_threshold, double lower_threshold,
                          bool use_upper_threshold, double upper_threshold) {
  Generate_header(run_header, Get_total_path(input_file), use_lower_threshold, lower_threshold,
                  use_upper_threshold, upper_threshold);
}

void Generate_header(std::string& run_header, const std::string& source, bool use_lower_threshold,
                     double lower_threshold, bool use_upper_threshold, double upper_threshold) {
  run_header = " from " + source + "\n";
  run_header += use_lower_threshold
                    ? "# at a lower link weight threshold of " + Six_digits(lower_threshold) + ",\n"
                    : "# at no lower link weight threshold,\n";
  run_header += use_upper_threshold ? "# and at an upper link weight threshold of " +
                                          Six_digits(upper_threshold) + ".\n"
                                    : "# and at no upper link weight threshold.\n";
}

void Extend_alap_szoveg(std::string& run_header, bool use_intensity, double intensity_threshold,
                        bool directed, bool use_time_limit, double time_limit, bool use_single_k,
                        std::uint32_t single_k) {
  if (use_intensity)
    run_header += "# A lower link weight intensity threshold of " +
                  Six_digits(intensity_threshold) + " was set.\n";
  run_header +=
      directed ? "# Links were treated as directed.\n" : "# Links were treated as undirected.\n";
  run_header += use_time_limit ? "# The maximal allowed time per node during clique search was " +
                                     Six_digits(time_limit) + " secs.\n"
                               : "# No time limit was set for the clique search.\n";
  if (use_single_k)
    run_header +=
        "# The communities were extracted solely at k=" + std::to_string(single_k) + ".\n";
}

void Kiir_params(const std::string& output_dir, const std::string& run_header) {
  Results_writer({output_dir, "", run_header}).Write_params();
}

void Generate_com_flag(std::string& com_flag, bool directed, bool use_intensity) {
  com_flag = Flag_of(Method_of(directed, use_intensity));
}

}  // namespace gns
