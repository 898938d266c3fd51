#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Temp_dir.h"
#include "control/Clique_find_ext_cont.h"
#include "engine/Find_coms.h"
#include "engine/Run_stages.h"

namespace gns {

inline std::string Sample_links(const std::string& name) {
  return std::string(VORLANE_EXPECTED_DIR) + "/" + name + "/links.txt";
}

/// A run of a time limit on the links of tests/expected/time_limit: three cliques are found; then
/// five nodes that are all linked run over their time, and again after node E, which waits among
/// them, has finished. At k=3 their community holds an exact clique as well, and at k=5 they have
/// none.
inline Run_summary Run_short_of_time(Run_parameters parameters, Com_result_tables* tables) {
  parameters.use_time_limit = true;
  parameters.time_limit = 0.25;
  Run_wishes wishes;
  if (tables != nullptr) wishes.tables = Pointers_to(*tables);
  wishes.clock = [time = 0.0]() mutable {
    const std::string report = Read_state_report();
    const bool hard = report.find("\n 6 of 12 ") != std::string::npos ||
                      report.find("\n 5 of 12 ") != std::string::npos;
    return time += hard ? 0.5 : 0.0;
  };
  bool approximation_needed = false;
  Run_summary summary;
  Run_stages(parameters, wishes, approximation_needed, summary);
  EXPECT_EQ(approximation_needed, summary.approximate_cliques > 0);
  return summary;
}

/// A run of some kind on a small network, and how its directory is read back.
struct Sample_run {
  std::string name;  ///< of the links
  std::uint32_t load_mode = 0;
  Run_parameters parameters = {};
  bool short_of_time = false;

  /// Leaves the results directory and fills the tables, if there are any.
  void Run(const std::string& output_dir, Com_result_tables* tables) const {
    Run_parameters p = parameters;
    p.input_file = Sample_links(name);
    p.output_dir = output_dir;
    if (short_of_time) {
      EXPECT_GT(Run_short_of_time(p, tables).approximate_cliques, 0U);
      return;
    }
    bool approximation_needed = false;
    Run_summary summary;
    EXPECT_EQ(Find_coms(p, approximation_needed, summary, tables), run_finished) << name;
  }
};

/// One of each kind of run.
inline std::vector<Sample_run> Sample_runs() {
  Run_parameters thresholds;
  thresholds.use_lower_threshold = thresholds.use_upper_threshold = true;
  thresholds.lower_threshold = 0.5;
  thresholds.upper_threshold = 2e6;
  Run_parameters single_k;
  single_k.use_single_k = true;
  single_k.single_k = 4;
  Run_parameters directed;
  directed.directed = true;
  Run_parameters intensity;
  intensity.use_intensity = true;
  intensity.intensity_threshold = 9;
  return {{"six_links", 0},
          {"time_limit", 0},
          {"time_limit", 0, single_k},
          {"thresholds", 0, thresholds},
          {"time_limit", 1, directed},
          {"time_limit", 0, {}, true},
          {"time_limit", 1, directed, true},
          {"intensity", 2, intensity}};
}

}  // namespace gns
