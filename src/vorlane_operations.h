#pragma once

/// The operations of the engine, one by one, for programs that are built with this project and link
/// vorlane_engine: from the readers to the writers, and whole runs. They are kept as they are, but
/// are not installed; a program that wants results in memory is better off with vorlane/vorlane.h.
///
/// Find_coms() is a run from link file to results directory. Stop_process() and Read_state_report()
/// may be called from other threads while a run goes on; one run at a time per process.

// foundation: errors, text and numbers, paths
#include "foundation/Errors.h"
#include "foundation/io/File_faults.h"
#include "foundation/paths/Deleting.h"
#include "foundation/paths/Dir_error.h"
#include "foundation/paths/Dir_prepare.h"
#include "foundation/paths/Direktoriz.h"
#include "foundation/paths/Renaming.h"
#include "foundation/paths/Total_path.h"
#include "foundation/text/Character_set.h"
#include "foundation/text/My_convert_from_string.h"
#include "foundation/text/My_double2string.h"
#include "foundation/text/My_int2string.h"
#include "foundation/text/My_string_to_d.h"
#include "foundation/text/My_string_to_i.h"
#include "foundation/text/Text_fields.h"

// control: stop and state reports
#include "control/Clique_find_ext_cont.h"

// graph: from links between names to vertices
#include "graph/Index_links.h"
#include "graph/Link_conversion.h"
#include "graph/Link_map.h"
#include "graph/Node_names.h"
#include "graph/Node_order.h"
#include "graph/Node_set.h"
#include "graph/Row_array.h"
#include "graph/Vertex_map.h"
#include "graph/records/Vertex_export.h"
#include "graph/records/Vtx.h"
#include "graph/records/Vtxd.h"

// search: maximal cliques
#include "search/Clique_find.h"
#include "search/Clique_reports.h"
#include "search/Clique_vector.h"
#include "search/Core_cliques.h"
#include "search/Directed_search.h"
#include "search/Left_map.h"
#include "search/Overlap_matrix.h"
#include "search/Undirected_search.h"

// communities: percolation, the intensity method, statistics
#include "communities/Communities.h"
#include "communities/Community_statistics.h"
#include "intensity/K_clique_communities.h"
#include "intensity/K_clique_generation.h"
#include "intensity/K_cliques.h"
#include "intensity/Weighted_cliques.h"
#include "percolation/Coms_funcs.h"
#include "percolation/Percolation.h"

// files: link files and results directories
#include "files/Community_files.h"
#include "files/Graph_and_clique_files.h"
#include "files/My_string_chopper.h"
#include "files/Pair_fields.h"
#include "files/Read_data.h"
#include "files/Results_directory.h"
#include "files/Results_names.h"
#include "files/Results_reader.h"
#include "files/Statistics_files.h"
#include "files/Unfinished_mark.h"
#include "input/Link_file_check.h"
#include "input/Link_file_kind.h"
#include "input/Link_file_reader.h"
#include "results/Com_result_tables.h"
#include "results/Index_list.h"
#include "results/Name_list.h"
#include "results/Name_pairs.h"
#include "results/Table_by_index.h"

// engine: whole runs
#include "engine/Check_switches.h"
#include "engine/Extract_coms.h"
#include "engine/Find_coms.h"
#include "engine/Load_coms.h"
#include "engine/Memory_limit.h"
#include "engine/Run_message.h"
#include "engine/Run_parameters.h"
#include "engine/Run_summary.h"
