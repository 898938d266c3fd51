#include "cli/Run_table.h"

#include <numeric>
#include <string>
#include <vector>

#include "cli/terminal/Text_table.h"

namespace gns {

namespace {

void Print_counts(std::ostream& stream, const Run_summary& summary) {
  const std::vector<std::size_t>& sizes = summary.cliques_of_size;
  stream << "  nodes " << summary.nodes << ", links " << summary.links << ", cliques "
         << std::accumulate(sizes.begin(), sizes.end(), std::size_t{0});
  if (summary.approximate_cliques > 0)
    stream << " (" << summary.approximate_cliques << " of them approximate)";
  stream << "\n";
}

}  // namespace

void Print_run_table(std::ostream& stream, const Run_summary& summary) {
  Print_counts(stream, summary);
  if (summary.extractions.empty()) return;
  Text_table table({"k", "cliques of k nodes", "communities", "largest", "nodes covered"});
  for (const K_summary& found : summary.extractions) {
    const std::vector<std::size_t>& sizes = summary.cliques_of_size;
    const std::size_t cliques = found.k < sizes.size() ? sizes[found.k] : 0;
    table.Add({std::to_string(found.k), std::to_string(cliques), std::to_string(found.communities),
               std::to_string(found.largest), std::to_string(found.nodes_covered)});
  }
  stream << "\n";
  table.Print(stream);
}

}  // namespace gns
