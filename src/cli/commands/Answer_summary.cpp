#include <string>

#include "cli/commands/Answers.h"
#include "cli/commands/Summary_text.h"
#include "queries/Summary.h"
#include "queries/Which_k.h"
#include "vorlane/results.h"

namespace gns {

using vorlane::Results;
using vorlane::queries::Summary;

void Answer_summary(const Word_line& line, std::ostream& out) {
  const Summary summary = vorlane::queries::Summary_of(Results::Open(line.arguments.front()));
  if (line.Has("--json")) {
    out << In_json(summary) << "\n";
    return;
  }
  if (line.Has("--csv")) {
    Table_of(summary, Alike_rows::each).Print_csv(out);
    return;
  }
  out << Kind_in_words(summary) << "\n\n";
  Table_of(summary, Alike_rows::each).Print(out);
}

void Answer_which_k(const Word_line& line, std::ostream& out) {
  std::vector<Summary> summaries;
  for (const std::string& directory : line.arguments)
    summaries.push_back(vorlane::queries::Summary_of(Results::Open(directory)));
  const auto chosen = vorlane::queries::Which_k(summaries);
  if (line.Has("--json")) {
    Json_list json(Json_list::Kind::object);
    json.Add("k", chosen ? std::to_string(chosen->level.k) : "null");
    json.Add("directory", chosen ? Json_string(line.arguments[chosen->result]) : "null");
    json.Add("reason", chosen ? Json_string(chosen->reason) : "null");
    out << json.Text() << "\n";
    return;
  }
  if (!chosen) {
    out << "There are no communities.\n";
    return;
  }
  Table_of(summaries[chosen->result], Alike_rows::folded).Print(out);
  std::string choice = "k = " + std::to_string(chosen->level.k);
  if (line.arguments.size() > 1) choice += " of " + line.arguments[chosen->result];
  out << "\n" << In_words(*chosen, choice);
}

}  // namespace gns
