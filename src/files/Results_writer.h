#pragma once

#include <cstdint>

#include "files/Results_place.h"
#include "graph/Link_map.h"
#include "graph/Node_names.h"
#include "results/Com_result_tables.h"
#include "search/Clique_vector.h"

namespace gns {

/// Writes the files of a results directory, and fills those tables that are wanted with the same.
/// The directories must be there or possible to make; a file that can't be written is noted among
/// the file faults and no error. Formats: docs/file-formats.md.
///
/// Indices at and behind a count of exact ones carry a minus sign. Whoever writes much polls as a
/// long stage does.
class Results_writer {
 public:
  explicit Results_writer(Results_place place, const Table_pointers& tables = {});

  [[nodiscard]] const Results_place& Place() const { return place_; }
  [[nodiscard]] const Table_pointers& Tables() const { return tables_; }

  /// input_params.txt, which holds the header alone.
  void Write_params() const;
  /// The links as they were accepted, one per line, with the weight if `weighted`.
  void Write_graph(const Link_map& links, bool weighted) const;
  /// A line per clique: its index and its members' names.
  void Write_cliques(const Clique_vector& cliques, std::uint32_t exact_count,
                     const Node_names& names) const;

 private:
  Results_place place_;
  Table_pointers tables_;
};

}  // namespace gns
