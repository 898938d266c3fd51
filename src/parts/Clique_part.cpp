#include "parts/Clique_part.h"

#include "foundation/Errors.h"
#include "parts/Part_search.h"
#include "search/Queue_search.h"

namespace gns::parts {

namespace {

enum Section : std::size_t { starts, members, of_size, groups };

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
  Search_the_range(graph.Graph(), graph.Plan().ranges[part - 1], cliques);
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
  const Joined_ranges joined(graph.Graph(), graph.Plan().ranges, parts);
  Part_writer writer(take, {Part_kind::all_cliques, graph.Fingerprint(), 0});
  writer.Begin_section();
  std::uint64_t offset = 0;
  std::vector<std::uint64_t> ends;
  if (count > 0) writer.Append(std::span<const std::uint64_t>(&offset, 1));
  for (const Clique_vector* cliques : joined.Blocks()) {
    ends.clear();
    for (std::size_t i = 0; i < cliques->size(); ++i)
      ends.push_back(offset += (*cliques)[i].size());
    writer.Append(std::span<const std::uint64_t>(ends));
  }
  writer.Begin_section();
  for (const Clique_vector* cliques : joined.Blocks()) writer.Append(cliques->Values());
  const Level_counts counts = Count_for_levels(joined.Blocks(), graph.Graph().links);
  writer.Add(std::span<const std::size_t>(counts.cliques_of));
  writer.Add(std::span<const Level_group>(Groups_of_levels(graph.Plan(), counts)));
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
