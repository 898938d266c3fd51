// Holds the estimates of a search against what it costs: search_work FILE [-D]. Prints the
// nanoseconds that the estimates took, and then for each node, in the order of the search, its
// estimate and the nanoseconds that it took, all of them the least of three times in one process.
#include <algorithm>
#include <chrono>
#include <cstdint>
#include <iostream>
#include <string>
#include <vector>

#include "engine/Run_opening.h"
#include "graph/Node_order.h"
#include "search/Directed_search.h"
#include "search/Node_estimates.h"
#include "search/Undirected_search.h"

namespace {

using Clock = std::chrono::steady_clock;

/// The time of each node is lowered to what it takes here.
void Search(gns::Node_search& search, const gns::Node_order& order,
            std::vector<std::int64_t>& times) {
  gns::Attempt without_limit;
  gns::Clique_vector cliques;
  for (std::size_t place = 0; place < order.size(); ++place) {
    const auto start = Clock::now();
    search.Find(order[place], without_limit, cliques);
    search.Finish(order[place]);
    const std::chrono::nanoseconds taken = Clock::now() - start;
    times[place] = std::min<std::int64_t>(times[place], taken.count());
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "usage: " << argv[0] << " FILE [-D]\n";
    return 2;
  }
  gns::Run_parameters parameters;
  parameters.input_file = argv[1];
  parameters.directed = argc > 2 && std::string(argv[2]) == "-D";
  gns::Link_map links;
  gns::Read_input(parameters, {}, links);
  gns::Named_graph network;
  gns::Convert_links(network, links, parameters.directed);
  gns::Build_graph(network);
  const gns::Node_order order = gns::Order_of(network);
  const gns::Search_graph graph = gns::Search_graph_of(network, order);
  std::vector<std::int64_t> times(order.size(), INT64_MAX);
  constexpr int repetitions = 3;
  for (int i = 0; i < repetitions; ++i) {
    gns::Directed_node_search directed(graph);
    gns::Undirected_node_search undirected(graph);
    gns::Node_search& search =
        network.directed ? static_cast<gns::Node_search&>(directed) : undirected;
    Search(search, order, times);
  }
  std::vector<std::uint64_t> estimates;
  std::int64_t of_estimates = INT64_MAX;
  for (int i = 0; i < repetitions; ++i) {
    const auto start = Clock::now();
    estimates = gns::Estimates_of_nodes(graph, order);
    const std::chrono::nanoseconds taken = Clock::now() - start;
    of_estimates = std::min<std::int64_t>(of_estimates, taken.count());
  }
  std::cout << of_estimates << '\n';
  for (std::size_t place = 0; place < order.size(); ++place)
    std::cout << estimates[place] << ' ' << times[place] << '\n';
  return 0;
}
