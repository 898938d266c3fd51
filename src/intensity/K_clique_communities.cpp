#include "intensity/K_clique_communities.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "control/Run_control.h"
#include "foundation/text/My_double2string.h"
#include "intensity/K_clique_groups.h"
#include "intensity/K_clique_joiner.h"
#include "intensity/K_clique_tree.h"
#include "search/Clique_reports.h"

namespace gns {

namespace {

using external_control::Check_for_stop_signal;

/// Lists the k-cliques of each group.
void Collect_k_cliques(std::size_t count, K_clique_groups& groups,
                       Row_array<K_clique_index>& com_k_cliques) {
  constexpr K_clique_index none = ~K_clique_index{0};
  std::vector<K_clique_index> next(count, none);
  std::vector<K_clique_index> last(count, none);
  for (K_clique_index i = 0; i < count; ++i) {
    const K_clique_index first = groups.First_of(i);
    if (first != i) next[last[first]] = i;
    last[first] = i;
  }
  for (K_clique_index first = 0; first < count; ++first) {
    if (groups.First_of(first) != first) continue;
    for (K_clique_index i = first; i != none; i = next[i]) com_k_cliques.Append(i);
    com_k_cliques.Close_row();
  }
}

/// Appends the nodes of some k-cliques, ascending. `last_com` tells for each node in which
/// community, counted from 1, it was met last.
void Append_members(const K_clique_tree& tree, std::span<const K_clique_index> of,
                    std::vector<std::uint32_t>& last_com, Row_array<Node_index>& coms) {
  const auto com = static_cast<std::uint32_t>(coms.size()) + 1;
  std::vector<Node_index> members;
  for (std::size_t i = 0; i < of.size(); ++i) {
    Check_for_stop_signal();
    const bool has_previous = i > 0 && of[i - 1] + 1 == of[i];
    const Node_span k_clique = tree.All()[of[i]];
    for (const Node_index node :
         k_clique.subspan(has_previous ? tree.Shared_with_previous(of[i]) : 0)) {
      if (last_com[node] == com) continue;
      last_com[node] = com;
      members.push_back(node);
    }
  }
  std::ranges::sort(members);
  coms.push_back(members);
}

}  // namespace

void Intensity_coms_from_k_cliques_ec(const K_cliques& k_cliques, Row_array<Node_index>& coms,
                                      Row_array<K_clique_index>& com_k_cliques,
                                      const Link_logs& logs, double intensity_threshold) {
  constexpr unsigned digits = 6;
  coms.clear();
  com_k_cliques.clear();
  if (k_cliques.empty()) return;
  const auto progress = std::make_shared<Progress_report>(
      " Extracting communities from the k-cliques at k=" + std::to_string(k_cliques.K()) + ",",
      " and a link weight intensity threshlod I=" + double2string(intensity_threshold, digits) +
          ":",
      "k-cliques", static_cast<std::uint32_t>(k_cliques.size()));
  external_control::Report_state(progress);
  const K_clique_tree tree(k_cliques);
  {
    K_clique_joiner joiner(tree, logs, intensity_threshold);
    Collect_k_cliques(k_cliques.size(), joiner.Join(*progress), com_k_cliques);
  }
  std::vector<std::uint32_t> last_com(std::size_t{tree.Largest_node()} + 1, 0);
  for (std::size_t com = 0; com < com_k_cliques.size(); ++com)
    Append_members(tree, com_k_cliques[com], last_com, coms);
}

void Intensity_coms_from_k_cliques_ec(const K_cliques& k_cliques, Row_array<Node_index>& coms,
                                      Row_array<Index_pair>& com_links, std::uint32_t /*k*/,
                                      const Index_links& index_links, double intensity_threshold) {
  Row_array<K_clique_index> com_k_cliques;
  Intensity_coms_from_k_cliques_ec(k_cliques, coms, com_k_cliques, Link_logs(index_links),
                                   intensity_threshold);
  com_links.clear();
  for (std::size_t com = 0; com < com_k_cliques.size(); ++com) {
    K_clique_com_links(k_cliques, com_k_cliques).For_each(com, [&](const Index_pair& link) {
      com_links.Append(link);
    });
    com_links.Close_row();
  }
}

namespace Coms_from_k_cls_sub {

bool Check_intersection(Node_span node_set, const Link_logs& logs, double intensity_threshold) {
  Sub_links sub_links;
  sub_links.Load(node_set, logs);
  return Passes_in_order(sub_links, Log_threshold(intensity_threshold, sub_links.size()));
}

}  // namespace Coms_from_k_cls_sub
}  // namespace gns
