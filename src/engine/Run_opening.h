#pragma once

#include <string>

#include "engine/Run_parameters.h"
#include "engine/Run_wishes.h"
#include "graph/Link_map.h"
#include "graph/Named_graph.h"
#include "input/Link_file_check.h"

namespace gns {

/// What comes in front of a search, in the order of a run.

/// The lines that all results files begin with: how the run was made.
std::string Header_of(const Run_parameters& parameters);

/// Refuses what no run takes, in front of all that it writes. Throws Xerror_msg.
void Refuse_bad_run(const Run_parameters& parameters);

/// Reads the links from where the wishes tell and reports it; the listener hears of it. Throws the
/// errors of the readers.
void Read_input(const Run_parameters& parameters, const Run_wishes& wishes, Link_map& links);

/// True if the links must be read with their weights.
bool Needs_weights(const Run_parameters& parameters);

/// Reads the links of the input file, with weights if the run needs them, and reports it. Throws
/// the errors of the link readers, for a compressed file or one in UTF-16, too. `check` is told
/// what can't be meant as it stands.
void Read_links(const Run_parameters& parameters, Link_map& links, Link_file_check& check);

/// Turn links into the graph of a run, and report it: first its links and names, then its vertices.
/// In between the links as they were read may be given up.
void Convert_links(Named_graph& graph, const Link_map& links, bool directed);
void Build_graph(Named_graph& graph);

}  // namespace gns
