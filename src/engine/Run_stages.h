#pragma once

#include <functional>
#include <memory>
#include <string>

#include "engine/Results_bound.h"
#include "engine/Run_parameters.h"
#include "engine/Run_summary.h"
#include "files/Unfinished_mark.h"
#include "graph/Link_map.h"
#include "input/Link_file_check.h"
#include "results/Com_result_tables.h"
#include "search/Attempt.h"

namespace gns {

/// What a run with links already read starts from.
struct Run_start {
  Run_parameters parameters;
  bool weighted = false;  ///< the links were read with weights
  std::string com_flag;   ///< "directed", "intensity" or empty
  std::string run_header;
  Clock clock = Processor_seconds;        ///< what a time limit is measured by
  std::unique_ptr<Unfinished_mark> mark;  ///< of the results directory, once it is open
  /// Is told, if it is set, what the levels take at most, before the first of them.
  std::function<void(const Results_bound&)> tell_bound;
};

/// What follows from the parameters alone. The header has its first three lines.
Run_start Start_of_run(const Run_parameters& parameters);

/// Reads the links of the input file, with weights if the run needs them. Throws the errors of the
/// link readers, for a compressed file or one in UTF-16, too. `check` is told what can't be meant
/// as it stands.
void Read_links(const Run_start& start, Link_map& links);
void Read_links(const Run_start& start, Link_map& links, Link_file_check& check);

/// Completes the header and prepares the results directory, which must be empty or missing and is
/// marked as unfinished. The first write of a run; throws Xerror_msg if the directory is in use or
/// can't be made or written to.
void Open_results(Run_start& start);

/// Everything behind the reading of the links, into results that are open; `links` is emptied on
/// the way. The tables that are wanted are filled beside the files. Throws what its stages throw.
void Run_from_links(const Run_start& start, Link_map& links, bool& approximation_needed,
                    Run_summary& summary, const Table_pointers& tables = {});

}  // namespace gns
