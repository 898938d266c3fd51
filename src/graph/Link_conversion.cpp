#include "graph/Link_conversion.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <utility>

#include "control/Run_control.h"
#include "foundation/Errors.h"
#include "graph/Pair_sort.h"

namespace gns {

namespace {

/// Gives out node indices to name numbers in the order of first sight.
class Node_numbering {
 public:
  explicit Node_numbering(std::uint32_t name_count) : index_of_(name_count, 0) {
    name_of_.reserve(name_count);
  }

  Node_index Index_of(std::uint32_t name) {
    if (index_of_[name] == 0) {
      name_of_.push_back(name);
      index_of_[name] = static_cast<Node_index>(name_of_.size());
    }
    return index_of_[name];
  }

  std::vector<std::uint32_t> Take_names() { return std::move(name_of_); }

 private:
  std::vector<Node_index> index_of_;
  std::vector<std::uint32_t> name_of_;
};

/// Calls use(first, second) for each key, ascending; polls on the way.
template <typename Use>
void For_each_key(const Index_links& links, Use use) {
  for (Node_index first = 1; first <= links.Node_count(); ++first)
    for (const Node_index second : links.Row(first)) {
      external_control::Check_inside_long_stage();
      use(first, second);
    }
}

}  // namespace

std::vector<std::uint32_t> Convert_s_links(Index_links& index_links, Node_names& node_names,
                                           const Link_map& links, bool directed) {
  Node_numbering numbering(links.Names().size());
  std::vector<Index_pair> keys;
  keys.reserve(links.size());
  std::vector<double> weights;
  if (links.Has_weights()) weights.reserve(links.size());
  for (std::size_t i = 0; i < links.size(); ++i) {
    external_control::Check_inside_long_stage();
    const Node_index first = numbering.Index_of(links.Pairs()[i].first);
    const Node_index second = numbering.Index_of(links.Pairs()[i].second);
    const bool swapped = !directed && second < first;
    keys.push_back(swapped ? Index_pair{second, first} : Index_pair{first, second});
    if (links.Has_weights()) weights.push_back(links.Weight(i));
  }

  std::vector<std::uint32_t> name_of_node = numbering.Take_names();
  node_names = Node_names(links.Names(), name_of_node);
  Sort_pairs(keys, weights, node_names.size() + 1);
  Fold_equal_pairs(keys, weights);
  index_links = Index_links(keys, weights, node_names.size());
  return name_of_node;
}

void Vtx_map_from_link_map(Vertex_map& vtx_map, const Index_links& index_links) {
  For_each_key(index_links, [&](Node_index first, Node_index second) {
    if (second <= first && index_links.contains(second, first))
      throw Xerror_msg("ERROR: Vtx::Add_neigh() : attempt to add already exisiting neigh. ");
  });
  // Each row comes out ascending: its smaller members are entered from their own, earlier rows.
  vtx_map = Vertex_map(Adjacency(index_links.Node_count(), [&](auto enter) {
    For_each_key(index_links, [&](Node_index first, Node_index second) {
      enter(first, second);
      enter(second, first);
    });
  }));
}

void Dir_vtx_map_from_link_map(Dir_vertex_map& dir_vtx_map, const Index_links& index_links) {
  const Node_index count = index_links.Node_count();
  Adjacency out(count, [&](auto enter) { For_each_key(index_links, enter); });
  Adjacency in(count, [&](auto enter) {
    For_each_key(index_links, [&](Node_index from, Node_index to) { enter(to, from); });
  });
  std::vector<Node_index> both;
  Adjacency neighs(count, [&](auto enter) {
    for (Node_index node = 1; node <= count; ++node) {
      external_control::Check_inside_long_stage();
      both.clear();
      std::ranges::set_union(out[node], in[node], std::back_inserter(both));
      for (const Node_index neigh : both) enter(node, neigh);
    }
  });
  dir_vtx_map = Dir_vertex_map(std::move(out), std::move(in), std::move(neighs));
}

void Make_vertices(Named_graph& graph) {
  if (graph.directed)
    Dir_vtx_map_from_link_map(graph.directed_vertices, graph.links);
  else
    Vtx_map_from_link_map(graph.vertices, graph.links);
}

}  // namespace gns
