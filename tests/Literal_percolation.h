#pragma once

#include <cstdint>
#include <set>
#include <utility>
#include <vector>

#include "Literal_search.h"

namespace gns::literal {

/// A clique vector as a search and an approximation deliver it.
struct Clique_input {
  std::vector<Set> cliques;
  Matrix overlap_matrix;
  std::uint32_t exact_clique_count = 0;
};

inline Clique_input Input_of(const std::vector<Set>& cliques, std::size_t exact_clique_count) {
  Record record;
  for (const Set& clique : cliques) record.Iktatjuk_az_uj_math_cliquet(clique);
  return {cliques, record.overlap_matrix, static_cast<std::uint32_t>(exact_clique_count)};
}

/// Percolation at one k on the stored overlap matrix, by recursion.
class Percolation_at_k {
 public:
  struct Community {
    Set nodes;
    std::set<std::pair<Node_index, Node_index>> links;
    std::vector<Clique_index> clique_list;
    bool appr = false;
  };

  Percolation_at_k(const Clique_input& input, std::uint32_t k)
      : input_(input), k_(k), clique_com_inds_(input.cliques.size(), -1) {
    std::vector<Community> found;
    for (Clique_index i = 0; i < input.cliques.size(); ++i) {
      Community community;
      if (clique_com_inds_[i] < 0 && input.cliques[i].size() >= k) Look_for_new_com(i, community);
      if (!community.nodes.empty()) found.push_back(community);
    }
    for (const Community& community : found)
      if (!community.appr) coms.push_back(community);
    exact_com_count = static_cast<std::uint32_t>(coms.size());
    for (const Community& community : found)
      if (community.appr) coms.push_back(community);
  }

  std::vector<Community> coms;
  std::uint32_t exact_com_count = 0;

 private:
  void Look_for_new_com(Clique_index seed, Community& community) {
    std::vector<Clique_index> candidates;
    bool opened = false;
    for (const auto& [clique, overlap] : input_.overlap_matrix[seed]) {
      if (overlap < k_ - 1) continue;
      candidates.push_back(clique);
      opened = opened || overlap >= k_;
    }
    if (!opened) return;
    ++com_ind_;
    Claim(candidates, community);
    for (const Clique_index clique : candidates) Extend_com(clique, community);
  }

  void Extend_com(Clique_index from, Community& community) {
    std::vector<Clique_index> candidates;
    for (const auto& [clique, overlap] : input_.overlap_matrix[from])
      if (overlap >= k_ - 1 && clique_com_inds_[clique] < 0) candidates.push_back(clique);
    Claim(candidates, community);
    for (const Clique_index clique : candidates) Extend_com(clique, community);
  }

  void Claim(const std::vector<Clique_index>& candidates, Community& community) {
    for (const Clique_index clique : candidates) {
      clique_com_inds_[clique] = com_ind_;
      community.clique_list.push_back(clique);
      if (clique >= input_.exact_clique_count) community.appr = true;
      for (const Node_index a : input_.cliques[clique]) {
        community.nodes.insert(a);
        for (const Node_index b : input_.cliques[clique])
          if (a < b) community.links.emplace(a, b);
      }
    }
  }

  const Clique_input& input_;
  std::uint32_t k_;
  std::vector<std::int32_t> clique_com_inds_;
  std::int32_t com_ind_ = -1;
};

}  // namespace gns::literal
