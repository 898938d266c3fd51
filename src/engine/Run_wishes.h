#pragma once

#include <functional>

#include "engine/Results_bound.h"
#include "engine/Run_keeper.h"
#include "graph/Link_map.h"
#include "input/Link_file_check.h"
#include "input/Link_intake.h"
#include "results/Com_result_tables.h"
#include "search/Attempt.h"

namespace gns {

/// Hears of a run, in its thread, what its state reports don't tell.
class Run_listener {
 public:
  Run_listener() = default;
  Run_listener(const Run_listener&) = delete;
  Run_listener& operator=(const Run_listener&) = delete;
  virtual ~Run_listener() = default;

  /// The input has been read; `links` is null if it ended at a line that no link could be made of.
  virtual void Input_read(const Link_file_check& check, const Link_map* links) = 0;
  /// What the levels write at most, before the first of them.
  virtual void Bound_known(const Results_bound& bound) = 0;
};

/// Reads the links of a run from wherever they are, by the rule. It throws what leaves the run.
using Links_source =
    std::function<void(const Link_rule& rule, Link_map& links, Link_file_check& check)>;

/// In what the callers of a run differ.
struct Run_wishes {
  /// The input is read in front of the checks and of the results directory, as the program does;
  /// else behind them.
  bool read_first = false;
  Clock clock = Processor_seconds;   ///< what a time limit is measured by
  Table_pointers tables = {};        ///< those that are wanted are filled beside the files
  Run_keeper* keeper = nullptr;      ///< takes the same as the tables, by number
  Run_listener* listener = nullptr;  ///< without one, no bound is formed
  Links_source links_source;         ///< without one, the input is a link file
};

}  // namespace gns
