#include "parts/Graph_part.h"

#include <utility>

namespace gns::parts {

namespace {

/// The sections in their order. Rows take two: where they start, and what is in them.
enum Section : std::size_t {
  record,
  input_file,
  output_dir,
  header,
  ranges,
  estimates,
  name_bytes,
  name_ends,
  links,
  weights = links + 2,
  neighs,
  ineighs = neighs + 2,
};

/// Run_parameters, as far as they are numbers.
struct Run_record {
  std::uint64_t use_lower_threshold;
  double lower_threshold;
  std::uint64_t use_upper_threshold;
  double upper_threshold;
  std::uint64_t directed;
  std::uint64_t use_intensity;
  double intensity_threshold;
  std::uint64_t use_single_k;
  std::uint64_t single_k;
  std::uint64_t nodes;
};

Run_record Record_of(const Run_parameters& p, std::uint64_t nodes) {
  return {p.use_lower_threshold,
          p.lower_threshold,
          p.use_upper_threshold,
          p.upper_threshold,
          p.directed,
          p.use_intensity,
          p.intensity_threshold,
          p.use_single_k,
          p.single_k,
          nodes};
}

void Add_rows(Part_writer& writer, const Adjacency& rows) {
  writer.Add(rows.Starts());
  writer.Add(rows.Members());
}

}  // namespace

std::uint64_t Write_graph_part(const Byte_taker& take, const Run_plan& plan,
                               const Named_graph& graph) {
  Part_writer writer(take, {.kind = Part_kind::graph});
  const Run_record numbers = Record_of(plan.parameters, graph.Node_count());
  writer.Add(std::span(&numbers, 1));
  writer.Add(plan.parameters.input_file);
  writer.Add(plan.parameters.output_dir);
  writer.Add(plan.header);
  writer.Add(std::span(plan.ranges));
  writer.Add(std::span(plan.estimates));
  writer.Add(graph.names.Table().All_bytes());
  writer.Add(graph.names.Table().Ends());
  Add_rows(writer, graph.links.All_rows());
  writer.Add(graph.links.Weights());
  Add_rows(writer, graph.Neighs());
  if (graph.directed) Add_rows(writer, graph.directed_vertices.Ineigh_rows());
  return writer.End();
}

Graph_part::Graph_part(std::span<const std::byte> bytes, const Part_label& label, Part_check check)
    : reader_(bytes, {.kind = Part_kind::graph}, label, check), bytes_(bytes.size()) {
  Read_plan();
  Read_graph();
}

void Graph_part::Read_plan() {
  const auto numbers = reader_.Section<Run_record>(record);
  if (numbers.size() != 1) reader_.Refuse_damaged();
  const Run_record& run = numbers[0];
  Run_parameters& p = plan_.parameters;
  p.input_file = reader_.Text(input_file);
  p.output_dir = reader_.Text(output_dir);
  p.use_lower_threshold = run.use_lower_threshold != 0;
  p.lower_threshold = run.lower_threshold;
  p.use_upper_threshold = run.use_upper_threshold != 0;
  p.upper_threshold = run.upper_threshold;
  p.directed = run.directed != 0;
  p.use_intensity = run.use_intensity != 0;
  p.intensity_threshold = run.intensity_threshold;
  p.use_single_k = run.use_single_k != 0;
  p.single_k = static_cast<std::uint32_t>(run.single_k);
  nodes_ = run.nodes;
  plan_.header = reader_.Text(header);
  const auto searched = reader_.Section<Search_range>(ranges);
  const auto works = reader_.Section<std::uint64_t>(estimates);
  if (searched.size() != works.size()) reader_.Refuse_damaged();
  plan_.ranges.assign(searched.begin(), searched.end());
  plan_.estimates.assign(works.begin(), works.end());
}

Adjacency Graph_part::Rows(std::size_t section) const {
  const auto row_starts = reader_.Section<std::uint64_t>(section);
  const auto members = reader_.Section<Node_index>(section + 1);
  if (row_starts.size() != nodes_ + 2 || row_starts.back() != members.size())
    reader_.Refuse_damaged();
  return Adjacency::Looking_at(row_starts, members);
}

void Graph_part::Read_graph() {
  const auto bytes = reader_.Section<char>(name_bytes);
  const auto ends = reader_.Section<std::uint64_t>(name_ends);
  if (ends.size() != nodes_ || (!ends.empty() && ends.back() != bytes.size()))
    reader_.Refuse_damaged();
  graph_.names = Node_names(Name_table::Looking_at(bytes, ends));
  graph_.links = Index_links::Looking_at(Rows(links), reader_.Section<double>(weights));
  graph_.directed = plan_.parameters.directed;
  if (graph_.directed)
    graph_.directed_vertices = Dir_vertex_map(Rows(links), Rows(ineighs), Rows(neighs));
  else
    graph_.vertices = Vertex_map(Rows(neighs));
}

}  // namespace gns::parts
