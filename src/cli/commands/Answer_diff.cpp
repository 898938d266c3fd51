#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "cli/commands/Answers.h"
#include "cli/terminal/Text_table.h"
#include "foundation/text/Json_text.h"
#include "foundation/text/My_double2string.h"
#include "queries/Diff.h"

namespace gns {

namespace {

using vorlane::queries::Change;
using vorlane::queries::Fate;
using vorlane::queries::Level_diff;

constexpr std::array<const char*, 8> fates = {"kept",   "grown", "shrunk", "changed",
                                              "merged", "split", "died",   "born"};
constexpr int digits = 3;

std::string Name_of(Fate fate) { return fates[static_cast<std::size_t>(fate)]; }

std::size_t Count(const Level_diff& diff, Fate fate) {
  return static_cast<std::size_t>(std::ranges::count(diff.changes, fate, &Change::fate));
}

/// A row for each k.
Text_table Table_of(const std::vector<Level_diff>& diffs) {
  std::vector<std::string> head = {"k"};
  head.insert(head.end(), fates.begin(), fates.end());
  head.insert(head.end(), {"omega index", "NMI"});
  Text_table table(std::move(head));
  for (const Level_diff& diff : diffs) {
    std::vector<std::string> row = {std::to_string(diff.k)};
    for (std::size_t i = 0; i < fates.size(); ++i)
      row.push_back(std::to_string(Count(diff, static_cast<Fate>(i))));
    row.push_back(double2string(diff.omega, digits));
    row.push_back(double2string(diff.nmi, digits));
    table.Add(std::move(row));
  }
  return table;
}

/// A row for each community.
Text_table Table_of(const Level_diff& diff) {
  Text_table table({"", "before", "nodes", "after", "nodes", "Jaccard"});
  const auto add = [&](const Change& change) {
    const auto number = [](const auto& community) {
      return community ? std::to_string(*community) : std::string("-");
    };
    const auto size = [](const auto& community, std::size_t nodes) {
      return community ? std::to_string(nodes) : std::string("-");
    };
    table.Add({Name_of(change.fate), number(change.before), size(change.before, change.size_before),
               number(change.after), size(change.after, change.size_after),
               double2string(change.jaccard, digits)});
  };
  for (const Change& change : diff.changes) add(change);
  return table;
}

std::string In_json(const Change& change) {
  const auto number = [](const auto& community) {
    return community ? std::to_string(*community) : std::string("null");
  };
  return Json_list(Json_list::Kind::object)
      .Add("fate", Json_string(Name_of(change.fate)))
      .Add("before", number(change.before))
      .Add("after", number(change.after))
      .Add("nodes_before", std::to_string(change.size_before))
      .Add("nodes_after", std::to_string(change.size_after))
      .Add("jaccard", Json_number(change.jaccard))
      .Text();
}

std::string In_json(const std::vector<Level_diff>& diffs) {
  Json_list levels(Json_list::Kind::array);
  for (const Level_diff& diff : diffs) {
    Json_list changes(Json_list::Kind::array);
    for (const Change& change : diff.changes) changes.Add(In_json(change));
    levels.Add(Json_list(Json_list::Kind::object)
                   .Add("k", std::to_string(diff.k))
                   .Add("omega", Json_number(diff.omega))
                   .Add("nmi", Json_number(diff.nmi))
                   .Add("changes", changes.Text())
                   .Text());
  }
  return levels.Text();
}

}  // namespace

void Answer_diff(const Word_line& line, std::ostream& out) {
  const auto first = vorlane::Results::Open(line.arguments[0]);
  const auto second = vorlane::Results::Open(line.arguments[1]);
  const std::optional<std::uint32_t> k = K_of(line);
  if (k && std::ranges::find(first.Ks(), *k) == first.Ks().end()) (void)second.Sizes_at(*k);
  const std::vector<Level_diff> diffs = vorlane::queries::Diff_of(first, second, k);
  if (line.Has("--json")) {
    out << In_json(diffs) << "\n";
    return;
  }
  const Text_table table = k ? Table_of(diffs.front()) : Table_of(diffs);
  if (line.Has("--csv")) {
    table.Print_csv(out);
    return;
  }
  table.Print(out);
  if (k)
    out << "\nomega index " << double2string(diffs.front().omega, digits) << ", NMI "
        << double2string(diffs.front().nmi, digits) << "\n";
}

}  // namespace gns
