#include "engine/Check_switches.h"

#include <array>
#include <cmath>
#include <limits>

#include "foundation/Errors.h"

namespace gns {

bool Check_switches(bool use_time_limit, double time_limit, bool use_lower_threshold,
                    bool use_upper_threshold, double lower_threshold, double upper_threshold,
                    bool directed, bool use_intensity, bool undirected_declared,
                    std::string& errors) {
  struct Rule {
    bool broken;
    const char* text;
  };
  const bool use_both_thresholds = use_lower_threshold && use_upper_threshold;
  constexpr double infinity = std::numeric_limits<double>::infinity();
  const std::array<Rule, 6> rules{{
      {use_time_limit && !(time_limit > 0.0),
       " The maximal allowed time per node must be positive.\n"},
      {use_time_limit && time_limit == infinity,
       " The maximal allowed time per node must be finite.\n"},
      {use_both_thresholds && lower_threshold >= upper_threshold,
       " The sepcified lower threshold is higher (or equal to) the upper threshold.\n"},
      {directed && use_intensity,
       " The search algorithm cannot apply the link weight \n"
       " intensity condition when looking for directed communities.\n"},
      {use_intensity && use_time_limit,
       " The search algorithm cannot apply the maximal time \n"
       " per node condition when a link weight intensity condition is set as well.\n"},
      {undirected_declared && directed,
       " The program cannot apply the dirrected and undirected\n"
       " search algorithm at the same time.\n"},
  }};
  bool good = true;
  for (const Rule& rule : rules) {
    if (!rule.broken) continue;
    errors += rule.text;
    good = false;
  }
  return good;
}

void Refuse_bad_parameters(const Run_parameters& p) {
  // The intensity method asks for the links among k - 1 nodes.
  constexpr std::uint32_t least_k = 3;
  std::string errors;
  Check_switches(p.use_time_limit, p.time_limit, p.use_lower_threshold, p.use_upper_threshold,
                 p.lower_threshold, p.upper_threshold, p.directed, p.use_intensity, false, errors);
  if ((p.use_lower_threshold && std::isnan(p.lower_threshold)) ||
      (p.use_upper_threshold && std::isnan(p.upper_threshold)) ||
      (p.use_intensity && std::isnan(p.intensity_threshold)))
    errors += " A threshold must be a number.\n";
  if (p.use_intensity && p.use_single_k && p.single_k < least_k)
    errors +=
        " The k-clique size must be at least 3 when a link weight\n"
        " intensity condition is set.\n";
  if (!errors.empty()) throw Xerror_msg("The following error(s) occured:\n" + errors + "\n");
}

}  // namespace gns
