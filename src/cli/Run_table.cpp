#include "cli/Run_table.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <numeric>
#include <string>
#include <vector>

namespace gns {

namespace {

using Row = std::array<std::string, 5>;

void Print_counts(std::ostream& stream, const Run_summary& summary) {
  const std::vector<std::size_t>& sizes = summary.cliques_of_size;
  stream << "  nodes " << summary.nodes << ", links " << summary.links << ", cliques "
         << std::accumulate(sizes.begin(), sizes.end(), std::size_t{0});
  if (summary.approximate_cliques > 0)
    stream << " (" << summary.approximate_cliques << " of them approximate)";
  stream << "\n";
}

Row Row_of(const K_summary& found, const std::vector<std::size_t>& cliques_of_size) {
  const std::size_t cliques = found.k < cliques_of_size.size() ? cliques_of_size[found.k] : 0;
  return {std::to_string(found.k), std::to_string(cliques), std::to_string(found.communities),
          std::to_string(found.largest), std::to_string(found.nodes_covered)};
}

}  // namespace

void Print_run_table(std::ostream& stream, const Run_summary& summary) {
  Print_counts(stream, summary);
  if (summary.extractions.empty()) return;
  std::vector<Row> rows = {{"k", "cliques of k nodes", "communities", "largest", "nodes covered"}};
  for (const K_summary& found : summary.extractions)
    rows.push_back(Row_of(found, summary.cliques_of_size));

  std::array<std::size_t, std::tuple_size_v<Row>> widths = {};
  for (const Row& row : rows)
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
  stream << "\n";
  for (const Row& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i)
      stream << "  " << std::setw(static_cast<int>(widths[i])) << row[i];
    stream << "\n";
  }
}

}  // namespace gns
