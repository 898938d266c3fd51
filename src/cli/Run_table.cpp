#include "cli/Run_table.h"

#include <iostream>
#include <string>

#include "cli/commands/Summary_text.h"
#include "face/Level_of_face.h"
#include "face/Results_body.h"
#include "foundation/paths/Total_path.h"
#include "results/Method.h"

namespace gns {

namespace {

void Print_counts(std::ostream& stream, const Run_summary& run) {
  stream << "  nodes " << run.nodes << ", links " << run.links << ", cliques "
         << run.exact_cliques + run.approximate_cliques;
  if (run.approximate_cliques > 0)
    stream << " (" << run.approximate_cliques << " of them approximate)";
  stream << "\n";
}

}  // namespace

vorlane::queries::Summary Summary_of_run(const Run_summary& run, vorlane::Method method) {
  vorlane::queries::Summary summary;
  summary.method = method;
  summary.nodes = run.nodes;
  for (const K_summary& level : run.extractions)
    summary.levels.push_back(
        vorlane::queries::Summary_of(level.k, vorlane::face::Statistics_of(level.statistics)));
  return summary;
}

void Print_run_table(std::ostream& stream, const Run_summary& run) {
  Print_counts(stream, run);
  if (run.extractions.empty()) return;
  const auto summary = Summary_of_run(run, vorlane::Method::undirected);
  stream << "\n";
  Table_of(summary, Alike_rows::folded).Print(stream);
  if (run.extractions.size() < 2) return;
  if (const auto chosen = vorlane::queries::Which_k({summary}))
    stream << "\n" << In_words(*chosen, "k = " + std::to_string(chosen->level.k));
}

void Print_findings(const Run_parameters& parameters, const Run_summary& run,
                    const Stopwatch& watch, bool json) {
  if (json) {
    const Method method = Method_of(parameters.directed, parameters.use_intensity);
    std::cout << In_json(Summary_of_run(run, vorlane::face::Method_of(method))) << "\n";
    return;
  }
  std::cout << "\n";
  Print_run_table(std::cout, run);
  std::cout << "\n  " << Resources_used(watch) << "\n  results in "
            << Get_total_path(parameters.output_dir) << "\n";
}

}  // namespace gns
