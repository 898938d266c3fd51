#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "communities/Community_statistics.h"
#include "engine/Run_summary.h"
#include "graph/Index_links.h"
#include "graph/Node_names.h"
#include "intensity/K_cliques.h"
#include "intensity/Weighted_cliques.h"
#include "percolation/Percolation.h"
#include "results/Com_result_tables.h"
#include "search/Clique_vector.h"
#include "search/Overlap_matrix.h"

namespace gns {

/// What the extraction works from, the same for every k.
struct Extraction_input {
  const Clique_vector& cliques;
  std::uint32_t exact_clique_count;
  const std::string& com_flag;
  const std::string& run_header;
  const std::string& output_dir;
  const Node_names& node_names;
  std::uint32_t vertex_count;
  const Index_links& index_links;
  std::uint32_t max_clique_size;  ///< for the state report only
  bool use_intensity;
  double intensity_threshold;  ///< read only if `use_intensity` is set
  Table_pointers tables = {};  ///< filled beside the files
};

/// Finds the communities at one k after the other, best with k descending, and writes their files.
class Extraction {
 public:
  explicit Extraction(const Extraction_input& input);

  /// Everything that a run does at one k. Reports and polls; throws what the stages throw, and
  /// files written until then stay.
  K_summary At(std::uint32_t k);

 private:
  const Communities& Find_communities(std::uint32_t k);
  const Communities& Find_by_overlap(std::uint32_t k);
  const Communities& Find_by_intensity(std::uint32_t k);
  void Write_communities(std::uint32_t k, const Communities& communities) const;
  Distribution Write_statistics(std::uint32_t k, const Communities& communities,
                                const Com_graph& com_graph) const;

  /// What the intensity method works from, and what it has found at one k.
  struct By_intensity {
    explicit By_intensity(const Extraction_input& input)
        : cliques(input.cliques, input.index_links) {}

    Weighted_cliques cliques;
    K_cliques k_cliques{0};
    Row_array<K_clique_index> com_k_cliques;
    Communities communities;  ///< without `com_links` and `com_cliques`
  };

  Extraction_input input_;
  std::optional<Percolation> percolation_;  ///< of a run without intensity
  std::optional<By_intensity> by_intensity_;
};

/// One k by itself. `overlap_matrix` is a view of the cliques and isn't asked. A run over many k is
/// cheaper with one Extraction.
void Extract_coms_ec(std::uint32_t k, const Clique_vector& cliques,
                     const Overlap_matrix& overlap_matrix, std::uint32_t exact_clique_count,
                     const std::string& com_flag, const std::string& run_header,
                     const std::string& output_dir, const Node_names& node_names,
                     std::uint32_t vertex_count, bool use_intensity, double intensity_threshold,
                     const Index_links& index_links, std::uint32_t max_clique_size);

/// The same, filling the tables of this k too.
void Extract_coms_ec_ret(std::uint32_t k, const Clique_vector& cliques,
                         const Overlap_matrix& overlap_matrix, std::uint32_t exact_clique_count,
                         const std::string& com_flag, const std::string& run_header,
                         const std::string& output_dir, const Node_names& node_names,
                         std::uint32_t vertex_count, bool use_intensity, double intensity_threshold,
                         const Index_links& index_links, Com_result_tables& tables,
                         std::uint32_t max_clique_size);

/// The same with the tables of the k one by one: the last seventeen of Com_result_tables.
void Extract_coms_ec_ret(
    std::uint32_t k, const Clique_vector& cliques, const Overlap_matrix& overlap_matrix,
    std::uint32_t exact_clique_count, const std::string& com_flag, const std::string& run_header,
    const std::string& output_dir, const Node_names& node_names, std::uint32_t vertex_count,
    bool use_intensity, double intensity_threshold, const Index_links& index_links,
    By_k<Names_by_index>& k_cliques, By_k<Names_by_index>& communities,
    By_k<Links_by_index>& com_links, By_k<Indices_by_index>& com_cliques,
    By_k<Overlap_table>& com_graphs, By_k<Distribution_table>& size_dist_exact,
    By_k<Distribution_table>& degree_dist_exact, By_k<Distribution_table>& overlap_dist_exact,
    By_k<Distribution_table>& membership_dist_exact, By_k<Distribution_table>& size_dist_appr,
    By_k<Distribution_table>& degree_dist_appr, By_k<Distribution_table>& overlap_dist_appr,
    By_k<Distribution_table>& membership_dist_appr, By_k<Distribution_table>& size_dist_merged,
    By_k<Distribution_table>& degree_dist_merged, By_k<Distribution_table>& overlap_dist_merged,
    By_k<Distribution_table>& membership_dist_merged, std::uint32_t max_clique_size);

}  // namespace gns
