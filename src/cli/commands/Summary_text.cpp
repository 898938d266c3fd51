#include "cli/commands/Summary_text.h"

#include <cmath>

#include "cli/options/Marked_text.h"

namespace gns {

namespace {

using vorlane::queries::Level_summary;
using vorlane::queries::Summary;

std::string Share(std::size_t part, std::size_t whole) {
  const double share = whole == 0 ? 0.0 : static_cast<double>(part) / static_cast<double>(whole);
  return std::to_string(std::lround(100 * share)) + " %";
}

std::vector<std::string> Cells(const std::string& k, const Level_summary& level,
                               std::size_t nodes) {
  return {k,
          std::to_string(level.communities),
          std::to_string(level.largest),
          std::to_string(level.second_largest),
          std::to_string(level.covered),
          Share(level.covered, nodes),
          std::to_string(level.overlapping),
          std::to_string(level.overlaps)};
}

bool Is_alike(const Level_summary& a, const Level_summary& b) {
  return a.communities == b.communities && a.largest == b.largest &&
         a.second_largest == b.second_largest && a.covered == b.covered &&
         a.overlapping == b.overlapping && a.overlaps == b.overlaps;
}

std::string Json_of(const Level_summary& level) {
  Json_list json(Json_list::Kind::object);
  const auto add = [&](const char* key, std::size_t value) {
    json.Add(key, std::to_string(value));
  };
  add("k", level.k);
  add("communities", level.communities);
  add("approximate", level.approximate);
  add("largest", level.largest);
  add("second_largest", level.second_largest);
  add("covered", level.covered);
  add("overlapping", level.overlapping);
  add("overlaps", level.overlaps);
  return json.Text();
}

}  // namespace

std::string Name_of(vorlane::Method method) {
  if (method == vorlane::Method::intensity) return "intensity";
  return method == vorlane::Method::directed ? "directed" : "undirected";
}

std::string Kind_in_words(const Summary& summary) {
  std::string words = Name_of(summary.method);
  if (!summary.levels.empty()) words += ", " + std::to_string(summary.nodes) + " nodes";
  if (!summary.finished) words += "; the run has not finished, there may be more levels";
  return words;
}

Text_table Table_of(const Summary& summary, Alike_rows alike) {
  Text_table table({"k", "communities", "largest", "second", "covered", "covered share",
                    "overlapping", "overlaps"});
  const auto& levels = summary.levels;
  for (std::size_t first = 0, last = 0; first < levels.size(); first = last + 1) {
    last = first;
    if (alike == Alike_rows::folded)
      while (last + 1 < levels.size() && Is_alike(levels[first], levels[last + 1])) ++last;
    std::string k = std::to_string(levels[last].k);
    if (last > first) k.append("-").append(std::to_string(levels[first].k));
    table.Add(Cells(k, levels[first], summary.nodes));
  }
  return table;
}

std::string In_words(const vorlane::queries::Recommendation& chosen, const std::string& choice) {
  constexpr std::size_t width = 80;
  constexpr std::size_t indent = 2;
  const std::string words = choice + ": " + chosen.reason;
  return std::string(indent, ' ') + Wrapped(words, width, indent, indent) + "\n";
}

std::string In_json(const Summary& summary) {
  Json_list levels(Json_list::Kind::array);
  for (const Level_summary& level : summary.levels) levels.Add(Json_of(level));
  Json_list json(Json_list::Kind::object);
  json.Add("method", Json_string(Name_of(summary.method)));
  json.Add("finished", summary.finished ? "true" : "false");
  json.Add("nodes", std::to_string(summary.nodes));
  json.Add("levels", levels.Text());
  return json.Text();
}

}  // namespace gns
