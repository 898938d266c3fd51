#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "communities/Level_statistics.h"
#include "graph/Node_set.h"
#include "graph/Row_array.h"
#include "results/Method.h"
#include "search/Clique_vector.h"

namespace gns {

/// The node of a name, or nothing.
using Node_of_name = std::function<std::optional<Node_index>(std::string_view name)>;

/// Rows of nodes as a file has them; those behind the exact ones have a minus sign there.
struct Read_rows {
  Row_array<Node_index> rows;
  std::size_t exact_count = 0;
};

/// Reads rows of names. Throws as Read_row_file(), for a name without a node, too.
Read_rows Read_rows_of_names(const std::string& file_name, const Node_of_name& node_of);

/// True if a line that is no comment has this name among its words.
bool Has_line_with(const std::string& file_name, std::string_view name);

/// Reads the files of one k in a results directory, each when it is asked for. They throw
/// Xep_file_not_found, or Xep_wrong_line at what no writer leaves.
class Level_reader {
 public:
  Level_reader(const std::string& results_dir, Method method, std::uint32_t k);

  /// The files without which there is no level.
  [[nodiscard]] std::vector<std::string> Needed_files() const;
  /// True if the file that is written last is there.
  [[nodiscard]] bool Is_whole() const;

  [[nodiscard]] Level_statistics Read_statistics() const;
  [[nodiscard]] Read_rows Read_communities(const Node_of_name& node_of) const;
  /// By community: how many nodes it has.
  [[nodiscard]] std::vector<std::uint32_t> Read_sizes() const;
  /// By community: the numbers of its cliques. Of no intensity run.
  [[nodiscard]] Row_array<Clique_index> Read_com_cliques() const;
  /// Of an intensity run.
  [[nodiscard]] Row_array<Node_index> Read_k_cliques(const Node_of_name& node_of) const;
  /// Smaller node first.
  [[nodiscard]] Row_array<Index_pair> Read_com_links(const Node_of_name& node_of) const;
  [[nodiscard]] Com_graph Read_overlaps() const;
  /// The names in a community; nothing if there is none of this number. The rest of the file isn't
  /// taken apart.
  [[nodiscard]] std::optional<std::vector<std::string>> Names_in(std::size_t community) const;
  /// The communities that hold a node of this name, ascending; the rest of the file isn't taken
  /// apart.
  [[nodiscard]] std::vector<std::uint32_t> Communities_with(std::string_view name) const;

 private:
  [[nodiscard]] std::string Path(const std::string& base_name) const;
  [[nodiscard]] Distributions Read_distributions(const std::string& stat_flag) const;

  std::string directory_;
  Method method_;
};

}  // namespace gns
