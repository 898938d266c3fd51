#include "parts/Plan_texts.h"

#include <array>
#include <charconv>

#include "foundation/text/Json_text.h"
#include "parts/Level_costs.h"
#include "vorlane/version.h"

namespace gns::parts {

namespace {

constexpr std::uint64_t program_bytes = std::uint64_t{8} << 20U;

std::string Fingerprint_text(const Graph_part& graph) {
  constexpr int base = 16;
  std::array<char, base> digits = {};
  const auto [end, error] =
      std::to_chars(digits.data(), digits.data() + digits.size(), graph.Fingerprint(), base);
  const std::string text(digits.data(), end);
  return std::string(digits.size() - text.size(), '0') + text;
}

std::string Head_text(const Graph_part& graph, const char* first, const char* last) {
  return "# fingerprint " + Fingerprint_text(graph) + "\n" + "step\tpart\t" + first + "\t" + last +
         "\testimate\tmemory";
}

std::string Line(const char* step, std::uint64_t part, const std::string& first,
                 const std::string& last, std::uint64_t estimate, std::uint64_t memory) {
  std::string line = step;
  for (const std::string& field :
       {std::to_string(part), first, last, std::to_string(estimate), std::to_string(memory)})
    line.append("\t").append(field);
  return line;
}

/// Which slice of its node a part of the search is, from 1 on.
std::string Slice_text(const Walk_slice& slice) {
  if (slice.Is_whole()) return "-";
  return std::to_string(slice.index + 1) + "/" + std::to_string(slice.count);
}

/// The graph, and what a search has beside it: links to later neighbours, the order of the nodes,
/// and what is known of each.
std::uint64_t Search_memory(const Graph_part& graph) {
  constexpr std::uint64_t of_link = 5;
  constexpr std::uint64_t of_node = 24;
  const Named_graph& named = graph.Graph();
  return program_bytes + graph.Bytes() + named.links.size() * of_link +
         named.Node_count() * of_node;
}

/// Graph and cliques, and what percolation has beside them: cliques as ranks, their lists, and
/// communities with their links. With the intensity method that depends on the weights.
std::uint64_t Levels_memory(const Graph_part& graph, const All_cliques& all,
                            const Level_costs& costs, const Level_group& group) {
  constexpr std::uint64_t of_member = 10;
  constexpr std::uint64_t of_listed = 12;
  constexpr std::uint64_t of_clique = 56;
  constexpr std::uint64_t of_link = 48;
  return program_bytes + graph.Bytes() + all.cliques.Values().size() * of_member +
         costs.Listed(group.to) * of_listed + all.cliques.size() * of_clique +
         graph.Graph().links.size() * of_link;
}

std::string Threshold(bool used, double value) { return used ? Json_number(value) : "null"; }

std::string Truth(bool value) { return value ? "true" : "false"; }

}  // namespace

std::string Plan_text(const Graph_part& graph) {
  const Run_plan& plan = graph.Plan();
  const std::uint64_t memory = Search_memory(graph);
  std::string text = Head_text(graph, "from", "to") + "\tslice\n";
  std::uint64_t part = 0;
  for (const Search_range& range : plan.ranges) {
    const std::uint64_t estimate = plan.estimates[part];
    text += Line("search", ++part, std::to_string(range.first), std::to_string(range.last),
                 estimate, memory);
    text.append("\t").append(Slice_text(range.slice)).append("\n");
  }
  return text;
}

std::string Levels_text(const Graph_part& graph, const All_cliques& all) {
  const std::vector<std::size_t> no_links(all.of_size.size(), 0);  // they take none in lists
  const Level_costs costs({all.of_size, no_links});
  std::string text = Head_text(graph, "largest_k", "smallest_k") + "\n";
  std::uint64_t part = 0;
  for (const Level_group& group : all.groups) {
    const bool empty = group.Is_empty();
    text += Line("levels", ++part, empty ? "-" : std::to_string(group.from),
                 empty ? "-" : std::to_string(group.to), group.estimate,
                 empty ? 0 : Levels_memory(graph, all, costs, group)) +
            "\n";
  }
  return text;
}

std::string Run_text(const Graph_part& graph) {
  using Kind = Json_list::Kind;
  const Run_plan& plan = graph.Plan();
  const Run_parameters& p = plan.parameters;
  Json_list switches(Kind::object);
  switches.Add("directed", Truth(p.directed))
      .Add("lower_threshold", Threshold(p.use_lower_threshold, p.lower_threshold))
      .Add("upper_threshold", Threshold(p.use_upper_threshold, p.upper_threshold))
      .Add("intensity", Threshold(p.use_intensity, p.intensity_threshold))
      .Add("k", p.use_single_k ? std::to_string(p.single_k) : "null");
  Json_list run(Kind::object);
  run.Add("version", Json_string(VORLANE_VERSION))
      .Add("format", std::to_string(part_format))
      .Add("fingerprint", Json_string(Fingerprint_text(graph)))
      .Add("input", Json_string(p.input_file))
      .Add("output", Json_string(p.output_dir))
      .Add("parts", std::to_string(plan.Parts()))
      .Add("nodes", std::to_string(graph.Graph().Node_count()))
      .Add("links", std::to_string(graph.Graph().links.size()))
      .Add("switches", switches.Text())
      .Add("header", Json_string(plan.header));
  return run.Text() + "\n";
}

}  // namespace gns::parts
