#include "intensity/K_clique_communities.h"

#include <algorithm>
#include <memory>
#include <numeric>
#include <string>
#include <vector>

#include "control/Run_control.h"
#include "foundation/text/My_double2string.h"
#include "intensity/Shared_subsets.h"
#include "search/Clique_reports.h"

namespace gns {

namespace {

using external_control::Check_for_stop_signal;

/// Groups of k-cliques, each known by its first one.
class K_clique_groups {
 public:
  explicit K_clique_groups(std::size_t count) : parents_(count) {
    std::iota(parents_.begin(), parents_.end(), 0);
  }

  K_clique_index First_of(K_clique_index k_clique) {
    while (parents_[k_clique] != k_clique)
      k_clique = parents_[k_clique] = parents_[parents_[k_clique]];
    return k_clique;
  }

  void Unite(K_clique_index a, K_clique_index b) {
    a = First_of(a);
    b = First_of(b);
    parents_[std::max(a, b)] = std::min(a, b);
  }

 private:
  std::vector<K_clique_index> parents_;
};

/// Decides on the nodes that a set has besides the one at position `left_out`, if there is such a
/// position. The logarithms are added up node by node; as soon as the sum passes with the lowest
/// logarithm in place of all that are to come, the set passes.
bool Passes_without(std::uint32_t left_out, const Sub_links& set, double min_log_w,
                    double threshold) {
  const double nodes = left_out < set.size() ? set.size() - 1.0 : set.size();
  const double links = (nodes - 1.0) * (0.5 * nodes);
  double sum = 0.0;
  double done = 1.0;
  for (std::uint32_t n = left_out == 0 ? 2 : 1; n < set.size(); ++n) {
    if (n == left_out) continue;
    if (!(threshold >= (links - (done * 0.5) * (done - 1.0)) * min_log_w + sum)) return true;
    for (std::uint32_t p = 0; p < n; ++p)
      if (p != left_out) sum += set.To_earlier(n)[p];
    done += 1.0;
  }
  return sum > threshold;
}

/// Unites the k-cliques that share a subset which passes the threshold.
class K_clique_joiner {
 public:
  K_clique_joiner(const K_cliques& k_cliques, const Link_logs& logs, double intensity_threshold)
      : k_cliques_(k_cliques),
        logs_(logs),
        threshold_(Log_threshold(intensity_threshold, k_cliques.K() - 1)),
        groups_(k_cliques.size()) {}

  /// Each subset is tested once at most, and only if it would unite groups.
  K_clique_groups& Join(Progress_report& progress) {
    Shared_subsets subsets(k_cliques_);
    const auto count = static_cast<K_clique_index>(k_cliques_.size());
    for (std::uint32_t part = 0; part < subsets.Part_count(); ++part) {
      subsets.Begin_part(part);
      for (K_clique_index i = 0; i < count; ++i) {
        Check_for_stop_signal();
        const std::uint64_t done = std::uint64_t{part} * count + i;
        progress.Set_remaining(count - static_cast<std::uint32_t>(done / subsets.Part_count()));
        subsets.Enter(i, [&](std::uint32_t left_out, Shared_subsets::Entry& entry) {
          if (entry.refused || groups_.First_of(i) == groups_.First_of(entry.k_clique)) return;
          if (Passes(i, left_out))
            groups_.Unite(i, entry.k_clique);
          else
            entry.refused = 1;
        });
      }
    }
    return groups_;
  }

 private:
  bool Passes(K_clique_index k_clique, std::uint32_t left_out) {
    sub_links_.Load(k_cliques_[k_clique], logs_);
    return Passes_without(left_out, sub_links_, sub_links_.Lowest(left_out), threshold_);
  }

  const K_cliques& k_cliques_;
  const Link_logs& logs_;
  double threshold_;
  K_clique_groups groups_;
  Sub_links sub_links_;
};

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

/// Appends the nodes of some k-cliques, ascending.
void Append_members(const K_cliques& k_cliques, std::span<const K_clique_index> of,
                    std::vector<bool>& met, Row_array<Node_index>& coms) {
  std::vector<Node_index> members;
  for (const K_clique_index i : of) {
    Check_for_stop_signal();
    for (const Node_index node : k_cliques[i]) {
      if (node >= met.size()) met.resize(node + std::size_t{1}, false);
      if (met[node]) continue;
      met[node] = true;
      members.push_back(node);
    }
  }
  std::ranges::sort(members);
  for (const Node_index node : members) met[node] = false;
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
  K_clique_joiner joiner(k_cliques, logs, intensity_threshold);
  Collect_k_cliques(k_cliques.size(), joiner.Join(*progress), com_k_cliques);
  std::vector<bool> met;
  for (std::size_t com = 0; com < com_k_cliques.size(); ++com)
    Append_members(k_cliques, com_k_cliques[com], met, coms);
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
  double min_log_w = 0.0;
  Get_sub_links_and_min_link_w(node_set, logs, sub_links, min_log_w);
  return Passes_without(sub_links.size(), sub_links, min_log_w,
                        Log_threshold(intensity_threshold, sub_links.size()));
}

}  // namespace Coms_from_k_cls_sub
}  // namespace gns
