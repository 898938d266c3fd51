#include "intensity/K_clique_generation.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "control/Run_control.h"
#include "foundation/Errors.h"
#include "foundation/text/My_double2string.h"
#include "intensity/K_clique_search.h"
#include "search/Clique_reports.h"

namespace gns {

namespace {

/// The search goes through the nodes as the smallest of their k-cliques. A clique is done with when
/// the last node that can be the smallest of k of its nodes has been passed.
std::vector<std::uint32_t> Cliques_done_behind(const Weighted_cliques& cliques, std::uint32_t k) {
  std::vector<std::uint32_t> done_behind(std::size_t{cliques.Node_count()} + 1, 0);
  for (std::size_t i = 0; i < cliques.Cliques().size(); ++i) {
    const Node_span clique = cliques.Cliques()[i];
    ++done_behind[clique.size() < k ? clique.front() : clique[clique.size() - k]];
  }
  return done_behind;
}

/// The search for all k-cliques, with the progress report of the stage.
void Search(const Weighted_cliques& cliques, K_cliques& k_cliques, double intensity_threshold) {
  constexpr unsigned digits = 6;
  const std::uint32_t k = k_cliques.K();
  auto remaining = static_cast<std::uint32_t>(cliques.Cliques().size());
  const auto progress = std::make_shared<Progress_report>(
      " Generating k-cliques at k=" + std::to_string(k) + ",",
      " and a link weight intensity threshold I=" + double2string(intensity_threshold, digits) +
          ":",
      "cliques", remaining);
  external_control::Report_state(progress);

  const std::vector<std::uint32_t> done_behind = Cliques_done_behind(cliques, k);
  K_clique_search search(cliques, k, intensity_threshold);
  for (Node_index root = 1; remaining > 0; ++root) {
    progress->Set_remaining(remaining);
    search.Search_from(root, k_cliques);
    if (k_cliques.size() > std::numeric_limits<K_clique_index>::max())
      throw Xerror_msg("ERROR: there are more k-cliques than can be numbered.\n");
    remaining -= done_behind[root];
  }
}

/// The k-cliques that are in one of two, or in both.
K_cliques Union_of(const K_cliques& a, const K_cliques& b) {
  K_cliques both(a.K());
  std::size_t i = 0;
  std::size_t j = 0;
  while (i < a.size() || j < b.size()) {
    const bool from_a =
        j == b.size() || (i < a.size() && !std::ranges::lexicographical_compare(b[j], a[i]));
    const Node_span next = from_a ? a[i] : b[j];
    if (from_a) ++i;
    if (j < b.size() && std::ranges::equal(b[j], next)) ++j;
    both.push_back(next);
  }
  return both;
}

}  // namespace

void Generate_k_cls_from_cls_ec(const Weighted_cliques& cliques, K_cliques& k_cliques,
                                std::uint32_t k, double intensity_threshold) {
  k_cliques = K_cliques(k);
  if (k <= cliques.Largest_clique()) Search(cliques, k_cliques, intensity_threshold);
  std::ostringstream report;
  Clique_find_report_sub_routines::Report_clique_search_end(
      " k-cliques", static_cast<std::uint32_t>(k_cliques.size()), report);
  external_control::Report_state(report.str());
}

void Generate_k_cls_from_cls_ec(const Clique_vector& cliques, const Index_links& index_links,
                                K_cliques& k_cliques, std::uint32_t k, double intensity_threshold) {
  K_cliques found(k);
  Generate_k_cls_from_cls_ec(Weighted_cliques(cliques, index_links), found, k, intensity_threshold);
  k_cliques = k_cliques.empty() ? std::move(found) : Union_of(k_cliques, found);
}

}  // namespace gns
