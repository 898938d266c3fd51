#include "search/Undirected_search.h"

#include <algorithm>
#include <memory>
#include <numeric>

#include "graph/Core.h"
#include "search/Whole_search.h"

namespace gns {

namespace {

const Search_kind kind = {
    .title = " Locating cliques:",
    .timed_title = " Locating cliques, max. allowed time/node=",
    .unit = "cliques",
    .closing_line = " no approximation was needed",
};

constexpr std::uint32_t least_clique = 3;

/// In `neighs`, all of the graph or its core, in the order of the whole graph.
Left_map Search(Clique_vector& cliques, Overlap_matrix& overlap_matrix, const Vertex_map& vtx_map,
                const Adjacency& neighs, std::uint32_t least_size, const Time_limit* limit) {
  Node_order order;
  Sort_Vtx_map(order, vtx_map);
  const Search_graph graph(neighs, order);
  const auto make = [&] { return std::make_unique<Undirected_node_search>(graph, least_size); };
  return Search_all(make, {graph, order}, kind, limit, cliques, overlap_matrix);
}

}  // namespace

void Undirected_node_search::Find(Node_index node, Attempt& attempt, Clique_vector& cliques) {
  Find(node, {}, attempt, cliques);
}

void Undirected_node_search::Find_slice(Node_index node, const Walk_slice& slice,
                                        Clique_vector& cliques) {
  Attempt without_limit;
  Find(node, slice, without_limit, cliques);
}

void Undirected_node_search::Find(Node_index node, const Walk_slice& slice, Attempt& attempt,
                                  Clique_vector& cliques) {
  if (!graph_.Cut_out(node, local_)) return;
  walk_.Find(local_, attempt, found_, slice);
  if (!attempt.Timed_out()) Sort_found();
  local_.Record_all(cliques, found_);
}

/// Each slice is in order.
void Undirected_node_search::Join(Node_index /*node*/, std::span<const Clique_vector* const> slices,
                                  Clique_vector& cliques) {
  struct Rest {
    const Clique_vector* slice;
    std::size_t row;
    [[nodiscard]] Node_span First() const { return (*slice)[row]; }
  };
  const auto comes_later = [](const Rest& a, const Rest& b) {
    return std::ranges::lexicographical_compare(b.First(), a.First());
  };
  std::vector<Rest> heap;
  for (const Clique_vector* const slice : slices)
    if (!slice->empty()) heap.push_back({slice, 0});
  std::ranges::make_heap(heap, comes_later);
  while (!heap.empty()) {
    Attempt::Check_for_stop();
    std::ranges::pop_heap(heap, comes_later);
    Rest& next = heap.back();
    cliques.push_back(next.First());
    if (++next.row < next.slice->size())
      std::ranges::push_heap(heap, comes_later);
    else
      heap.pop_back();
  }
}

/// Puts the rows in descending order of their words, which is ascending order of the sets. A
/// node may have a hundred million cliques, so every comparison polls.
void Undirected_node_search::Sort_found() {
  const std::size_t words = local_.words;
  if (words == 1) {
    std::sort(found_.begin(), found_.end(), [](Bit_word a, Bit_word b) {
      Attempt::Check_for_stop();
      return a > b;
    });
    return;
  }
  places_.resize(found_.size() / words);
  std::iota(places_.begin(), places_.end(), 0U);
  const auto row = [&](std::uint32_t place) { return found_.data() + place * words; };
  std::sort(places_.begin(), places_.end(), [&](std::uint32_t a, std::uint32_t b) {
    Attempt::Check_for_stop();
    return std::lexicographical_compare(row(b), row(b) + words, row(a), row(a) + words);
  });
  sorted_.clear();
  for (const std::uint32_t place : places_) {
    Attempt::Check_for_stop();
    sorted_.insert(sorted_.end(), row(place), row(place) + words);
  }
  found_.swap(sorted_);
}

void Clique_find_ec(Clique_vector& cliques, Overlap_matrix& overlap_matrix,
                    const Vertex_map& vtx_map) {
  Search(cliques, overlap_matrix, vtx_map, vtx_map.Rows(), least_clique, nullptr);
}

void Clique_find_of_size_ec(Clique_vector& cliques, const Vertex_map& vtx_map,
                            std::uint32_t least_size) {
  Overlap_matrix view;
  Search(cliques, view, vtx_map, Core_of(vtx_map.Rows(), least_size - 1), least_size, nullptr);
}

void Clique_find_part_time_ec(Clique_vector& cliques, Overlap_matrix& overlap_matrix,
                              const Vertex_map& vtx_map, Left_map& left_map,
                              const Time_limit& time_limit) {
  left_map = Search(cliques, overlap_matrix, vtx_map, vtx_map.Rows(), least_clique, &time_limit);
}

}  // namespace gns
