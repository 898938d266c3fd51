#include "engine/Check_switches.h"

#include <gtest/gtest.h>

#include <string>

#include "foundation/Errors.h"

namespace gns {
namespace {

const std::string time_text = " The maximal allowed time per node must be positive.\n";
const std::string threshold_text =
    " The sepcified lower threshold is higher (or equal to) the upper threshold.\n";
const std::string directed_intensity_text =
    " The search algorithm cannot apply the link weight \n"
    " intensity condition when looking for directed communities.\n";
const std::string timed_intensity_text =
    " The search algorithm cannot apply the maximal time \n"
    " per node condition when a link weight intensity condition is set as well.\n";
const std::string both_methods_text =
    " The program cannot apply the dirrected and undirected\n"
    " search algorithm at the same time.\n";

struct Switch_case {
  bool use_time_limit;
  double time_limit;
  bool use_lower;
  bool use_upper;
  double lower;
  double upper;
  bool directed;
  bool use_intensity;
  bool undirected;
  std::string errors;
};

TEST(CheckSwitches, EveryBrokenRuleIsToldInOrder) {
  for (const Switch_case& c : {
           Switch_case{false, -1, false, false, 2, 1, false, false, false, ""},
           {true, 0.0, false, false, 0, 0, false, false, false, time_text},
           {true, 1e-9, true, false, 2, 1, true, false, false, ""},
           {false, 0, false, true, 2, 1, false, true, true, ""},
           {false, 0, true, true, 1, 1, false, false, false, threshold_text},
           {false, 0, true, true, 1, 1.5, false, false, true, ""},
           {false, 0, false, false, 0, 0, true, true, false, directed_intensity_text},
           {true, 1, false, false, 0, 0, false, true, false, timed_intensity_text},
           {false, 0, false, false, 0, 0, true, false, true, both_methods_text},
           {true, -1, true, true, 2, 1, true, true, true,
            time_text + threshold_text + directed_intensity_text + timed_intensity_text +
                both_methods_text},
       }) {
    std::string errors = "before\n";
    EXPECT_EQ(Check_switches(c.use_time_limit, c.time_limit, c.use_lower, c.use_upper, c.lower,
                             c.upper, c.directed, c.use_intensity, c.undirected, errors),
              c.errors.empty());
    EXPECT_EQ(errors, "before\n" + c.errors);
  }
}

TEST(RefuseBadParameters, ASingleKTooSmallForTheIntensityMethod) {
  const std::string head = "The following error(s) occured:\n";
  const std::string k_text =
      " The k-clique size must be at least 3 when a link weight\n intensity condition is set.\n";
  Run_parameters p;
  p.use_single_k = true;
  p.single_k = 2;
  Refuse_bad_parameters(p);
  p.use_intensity = true;
  const auto message = [&p]() -> std::string {
    try {
      Refuse_bad_parameters(p);
    } catch (const Xerror_msg& error) {
      return error.what();
    }
    return "";
  };
  EXPECT_EQ(message(), head + k_text + "\n");
  p.directed = true;
  EXPECT_EQ(message(), head + directed_intensity_text + k_text + "\n");
  p.directed = false;
  p.single_k = 3;
  EXPECT_EQ(message(), "");
  p.single_k = 0;
  p.use_single_k = false;
  EXPECT_EQ(message(), "");
}

}  // namespace
}  // namespace gns
