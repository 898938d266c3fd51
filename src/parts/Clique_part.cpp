#include "parts/Clique_part.h"

#include <algorithm>
#include <memory>

#include "control/Run_control.h"
#include "search/Directed_search.h"
#include "search/Node_work.h"
#include "search/Queue_search.h"
#include "search/Range_search.h"
#include "search/Undirected_search.h"

namespace gns::parts {

namespace {

enum Section : std::size_t { starts, members, of_size, groups };

/// A graph as a search needs it, and a search of it.
class Search_of_graph {
 public:
  explicit Search_of_graph(const Named_graph& graph) {
    if (graph.directed)
      Sort_dir_vtx_map(order_, graph.directed_vertices, "Neighs");
    else
      Sort_Vtx_map(order_, graph.vertices);
    graph_ = graph.directed ? std::make_unique<Search_graph>(graph.directed_vertices, order_)
                            : std::make_unique<Search_graph>(graph.vertices.Rows(), order_);
    if (graph.directed)
      search_ = std::make_unique<Directed_node_search>(*graph_);
    else
      search_ = std::make_unique<Undirected_node_search>(*graph_);
  }

  [[nodiscard]] const Node_order& Order() const { return order_; }
  [[nodiscard]] Node_search& Search() { return *search_; }

 private:
  Node_order order_;
  std::unique_ptr<Search_graph> graph_;
  std::unique_ptr<Node_search> search_;
};

/// In pieces, so that the work that is done can be told.
void Search_range(const Named_graph& graph, std::uint64_t from, std::uint64_t to,
                  Clique_vector& cliques) {
  constexpr std::uint64_t step = 64;
  Search_of_graph search(graph);
  const Adjacency& neighs = graph.directed ? graph.directed_vertices.Rows() : graph.vertices.Rows();
  const Node_work nodes(neighs, search.Order());
  external_control::Work_done& done = external_control::This_control().work_done;
  done.Begin(nodes.Of_range(from, to));
  Range_search range(search.Search(), search.Order());
  for (std::uint64_t place = from; place < to; place += step) {
    const std::uint64_t last = std::min(place + step, to);
    range.Find(place, last, cliques);
    Refuse_more_than(most_numbered_cliques, cliques);
    Note_progress(cliques.size(), static_cast<std::uint32_t>(to - last));
    done.Add(nodes.Of_range(place, last));
  }
  done.Begin(0);
}

/// The work at k: as many units as there are cliques of k nodes or more, and some for its files.
std::uint64_t Work_at(std::uint64_t k, const std::vector<std::size_t>& sizes) {
  constexpr std::uint64_t of_files = 4000;
  std::uint64_t work = of_files;
  for (std::uint64_t size = k; size < sizes.size(); ++size) work += sizes[size];
  return work;
}

/// The first group has the smallest k: nearly always the dearest, which had better begin early.
std::vector<Level_group> Groups_of_levels(const Run_plan& plan,
                                          const std::vector<std::size_t>& sizes) {
  constexpr std::uint64_t least_k = 3;
  const bool single = plan.parameters.use_single_k;
  const std::uint64_t first_k = single ? plan.parameters.single_k : least_k;
  const std::uint64_t end_k = single ? first_k + 1 : sizes.size();
  std::vector<std::uint64_t> works;
  for (std::uint64_t k = first_k; k < end_k; ++k) works.push_back(Work_at(k, sizes));
  const std::vector<std::uint64_t> places = Even_groups(works, plan.Parts());
  std::vector<Level_group> found(plan.Parts());
  for (std::size_t group = 0; group < found.size(); ++group) {
    if (places[group] == places[group + 1]) continue;
    found[group] = {first_k + places[group + 1] - 1, first_k + places[group], works[places[group]]};
    for (std::uint64_t place = places[group]; place < places[group + 1]; ++place)
      found[group].estimate += works[place];
  }
  return found;
}

Clique_vector Rows(const Part_reader& reader) {
  const auto row_starts = reader.Section<std::uint64_t>(starts);
  const auto values = reader.Section<Node_index>(members);
  if (row_starts.empty() ? !values.empty() : row_starts.back() != values.size())
    reader.Refuse_damaged();
  return Clique_vector::Looking_at(row_starts, values);
}

}  // namespace

std::uint64_t Write_clique_part(const Byte_taker& take, const Graph_part& graph,
                                std::uint64_t part) {
  Clique_vector cliques;
  const Run_plan& plan = graph.Plan();
  Search_range(graph.Graph(), plan.starts[part - 1], plan.starts[part], cliques);
  Part_writer writer(take, {Part_kind::cliques, graph.Fingerprint(), part});
  writer.Add(cliques.Starts());
  writer.Add(cliques.Values());
  writer.End();
  return cliques.size();
}

Clique_vector Cliques_of_part(std::span<const std::byte> bytes, const Part_identity& expected,
                              const Part_label& label, Part_check check) {
  return Rows(Part_reader(bytes, expected, label, check));
}

void Write_all_cliques(const Byte_taker& take, const Graph_part& graph,
                       const std::vector<const Clique_vector*>& parts) {
  std::uint64_t count = 0;
  for (const Clique_vector* cliques : parts) count += cliques->size();
  if (count > most_numbered_cliques)
    throw Xerror_msg("ERROR: there are more cliques than can be numbered.\n");
  Part_writer writer(take, {Part_kind::all_cliques, graph.Fingerprint(), 0});
  writer.Begin_section();
  std::uint64_t offset = 0;
  std::vector<std::uint64_t> ends;
  if (count > 0) writer.Append(std::span<const std::uint64_t>(&offset, 1));
  std::vector<std::size_t> sizes(1, 0);
  for (const Clique_vector* cliques : parts) {
    ends.clear();
    for (std::size_t i = 0; i < cliques->size(); ++i) {
      const std::size_t size = (*cliques)[i].size();
      ends.push_back(offset += size);
      if (size >= sizes.size()) sizes.resize(size + 1, 0);
      ++sizes[size];
    }
    writer.Append(std::span<const std::uint64_t>(ends));
  }
  writer.Begin_section();
  for (const Clique_vector* cliques : parts) writer.Append(cliques->Values());
  writer.Add(std::span<const std::size_t>(sizes));
  writer.Add(std::span<const Level_group>(Groups_of_levels(graph.Plan(), sizes)));
  writer.End();
}

All_cliques All_cliques_of(std::span<const std::byte> bytes, const Graph_part& graph,
                           const Part_label& label, Part_check check) {
  const Part_reader reader(bytes, {Part_kind::all_cliques, graph.Fingerprint(), 0}, label, check);
  const auto sizes = reader.Section<std::size_t>(of_size);
  const auto all_groups = reader.Section<Level_group>(groups);
  if (all_groups.size() != graph.Plan().Parts()) reader.Refuse_damaged();
  return {Rows(reader), {sizes.begin(), sizes.end()}, {all_groups.begin(), all_groups.end()}};
}

}  // namespace gns::parts
