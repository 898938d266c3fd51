#include "vorlane/analysis.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "engine/Cores_at_hand.h"
#include "engine/Find_level.h"
#include "face/Analysis_inside.h"
#include "face/Level_of_face.h"
#include "face/Network_body.h"
#include "face/Views.h"
#include "search/Clique_find.h"
#include "search/Undirected_search.h"

namespace vorlane {

namespace {

constexpr std::uint32_t least_k = 3;
constexpr unsigned most_workers = 1024;

void Check(const Network& network, const Options& options) {
  const auto refuse = [](const std::string& why) { throw Error(Error_kind::parameters, why); };
  const Link_options& taken = network.How_taken();
  if (options.k && *options.k < least_k) refuse("k must be 3 or more.");
  if (options.time_limit && !(*options.time_limit > 0))
    refuse("The time limit must be a number of seconds above 0.");
  if (options.workers > most_workers) refuse("There can be 1024 workers at most.");
  if (!options.intensity) return;
  if (std::isnan(*options.intensity)) refuse("The intensity threshold is not a number.");
  if (taken.directed) refuse("The intensity method needs an undirected network.");
  if (network.size() > 0 && !taken.weighted) refuse("The intensity method needs weights.");
  if (options.time_limit) refuse("The intensity method can't be used with a time limit.");
}

/// Whether the nodes ascend and, if the clique is an exact one, are linked; of the links, each with
/// the next node is looked at.
bool Is_clique(Rows::Row nodes, bool is_exact, const Network& network) {
  if (nodes.size() < least_k || nodes.front() == 0 || nodes.back() > network.size()) return false;
  const auto& links = network.Inside()->graph.links;
  for (std::size_t i = 1; i < nodes.size(); ++i) {
    const Node first = nodes[i - 1];
    const Node second = nodes[i];
    if (first >= second) return false;
    if (is_exact && !links.contains(first, second) && !links.contains(second, first)) return false;
  }
  return true;
}

}  // namespace

Analysis::Inside::Inside(Network of, const Options& asked, Control by)
    : network(std::move(of)), options(asked), control(std::move(by)) {
  Check(network, options);
  if (options.workers == 0) options.workers = gns::Cores_at_hand();
}

bool Analysis::Inside::Can_leave_out_cliques() const {
  return options.k && !options.time_limit && !options.intensity && !needs_all_cliques &&
         !network.How_taken().directed;
}

void Analysis::Inside::Search() {
  const gns::Named_graph& graph = network.Inside()->graph;
  external_control::This_control().progress.Reset();
  external_control::This_control().work_done.Begin(0);
  auto all = std::make_shared<gns::Clique_vector>();
  if (Can_leave_out_cliques()) {
    gns::Clique_find_of_size_ec(*all, graph.vertices, *options.k);
    cliques.exact_count = all->size();
  } else {
    Search_all(graph, *all);
  }
  Have(std::move(all));
}

void Analysis::Inside::Take(const Cliques& known) {
  if (known.exact_count > known.members.size())
    throw Error(Error_kind::input, "More cliques are said to be exact than there are.");
  cliques.exact_count = known.exact_count;
  auto all = std::make_shared<gns::Clique_vector>();
  for (std::size_t i = 0; i < known.members.size(); ++i) {
    if (!Is_clique(known.members[i], i < known.exact_count, network))
      throw Error(Error_kind::input, "What is given as clique " + std::to_string(i) +
                                         " (counted from 0) is none of this network.");
    all->push_back(known.members[i]);
  }
  Have(std::move(all));
}

void Analysis::Inside::Have(std::shared_ptr<const gns::Clique_vector> all) {
  found = std::move(all);
  cliques.members = face::View_of(*found, found);
  largest = gns::Max_clique_size_in_cl_vec(*found);
  next_k = options.k.value_or(largest);
}

void Analysis::Inside::Search_all(const gns::Named_graph& graph, gns::Clique_vector& all) {
  const gns::Time_limit limit = {options.time_limit.value_or(0)};
  gns::Overlap_matrix view;
  bool approximation_needed = false;
  std::uint32_t exact_count = 0;
  gns::Find_cliques_ec(options.time_limit ? &limit : nullptr, graph.directed, all, view,
                       graph.directed_vertices, graph.vertices, exact_count, approximation_needed);
  cliques.exact_count = exact_count;
}

void Analysis::Inside::Begin_levels() {
  gns::Levels_input input(*found, network.Inside()->graph.links);
  input.exact_clique_count = static_cast<std::uint32_t>(cliques.exact_count);
  input.node_count = network.size();
  input.intensity_threshold = options.intensity;
  input.max_clique_size = largest;
  input.links_are_kept = options.links;
  levels.emplace(input, gns::K_range{next_k, Last_k()}, options.workers);
  std::vector<std::size_t> of_size(largest + std::size_t{1}, 0);
  for (std::size_t i = 0; i < found->size(); ++i) ++of_size[(*found)[i].size()];
  work.emplace(std::move(of_size), next_k, Last_k());
}

std::uint32_t Analysis::Inside::Last_k() const { return options.k.value_or(least_k); }

std::optional<Level> Analysis::Inside::Next() {
  if (ahead.empty())
    Find_levels(options.workers, [this](Level& level) { ahead.push_back(std::move(level)); });
  if (ahead.empty()) return std::nullopt;
  std::optional<Level> next(std::move(ahead.front()));
  ahead.pop_front();
  return next;
}

void Analysis::Inside::For_each_level(const std::function<void(Level& level)>& use) {
  Find_levels(std::numeric_limits<std::uint32_t>::max(), use);
}

void Analysis::Inside::Find_levels(std::uint32_t most,
                                   const std::function<void(Level& level)>& use) {
  if (!found) Search();
  if (next_k < Last_k()) return;
  if (!levels) Begin_levels();
  const std::uint32_t from = next_k;
  const std::uint32_t to = from - std::min(from - Last_k(), most - 1);
  next_k = to - 1;
  const auto find = [](std::uint32_t k, gns::Levels& own) {
    external_control::Check_for_stop_signal();
    return gns::Find_level(k, own);
  };
  levels->Find({from, to}, {find, [&](gns::Level& level) {
                              const std::uint32_t k = level.k;
                              Level shown = face::Level_of(std::move(level), options.links);
                              if (!options.k) work->End_level(k);
                              use(shown);
                            }});
}

Analysis::Analysis(Network network, const Options& options, Control control)
    : inside_(std::make_unique<Inside>(std::move(network), options, std::move(control))) {}
Analysis::~Analysis() = default;
Analysis::Analysis(Analysis&&) noexcept = default;
Analysis& Analysis::operator=(Analysis&&) noexcept = default;

const Cliques& Analysis::Find_cliques() {
  inside_->Go_on([this] {
    if (!inside_->found) inside_->Search();
    return true;
  });
  return inside_->cliques;
}

std::optional<Level> Analysis::Next() {
  return inside_->Go_on([this] { return inside_->Next(); });
}

}  // namespace vorlane
