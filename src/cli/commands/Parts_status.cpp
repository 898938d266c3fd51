#include "cli/commands/Parts_status.h"

#include <algorithm>
#include <vector>

#include "foundation/text/Json_text.h"

namespace gns {

namespace {

using parts::Part_state;
using parts::Step;

std::string Name_of(Part_state state) {
  if (state == Part_state::done) return "done";
  return state == Part_state::running ? "running" : "missing";
}

/// "2, 5-7", or whatever is to stand between them.
std::string Ranges_of(const std::vector<std::uint64_t>& numbers, const char* between) {
  std::string text;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const std::size_t first = i;
    while (i + 1 < numbers.size() && numbers[i + 1] == numbers[i] + 1) ++i;
    text.append(text.empty() ? "" : between).append(std::to_string(numbers[first]));
    if (i > first) text.append("-").append(std::to_string(numbers[i]));
  }
  return text;
}

std::vector<std::uint64_t> Parts_in(const std::vector<Part_state>& states, Part_state state) {
  std::vector<std::uint64_t> parts;
  for (std::size_t i = 0; i < states.size(); ++i)
    if (states[i] == state) parts.push_back(i + 1);
  return parts;
}

std::string Line_of(Step step, const std::vector<Part_state>& states) {
  std::string line = "  " + parts::Name_of(step) + ": " +
                     std::to_string(std::ranges::count(states, Part_state::done)) + " of " +
                     std::to_string(states.size()) + " done";
  for (const Part_state state : {Part_state::running, Part_state::missing})
    if (const std::string ranges = Ranges_of(Parts_in(states, state), ", "); !ranges.empty())
      line.append("; ").append(Name_of(state)).append(" ").append(ranges);
  return line + "\n";
}

/// What can be begun now.
std::vector<std::string> Next_commands(const parts::Status& status,
                                       const parts::Work_folder& folder) {
  std::vector<std::string> commands;
  if (status.finished) return commands;
  const auto missing = [&](Step step, const std::vector<Part_state>& states) {
    for (std::size_t i = 0; i < states.size(); ++i)
      if (states[i] == Part_state::missing) commands.push_back(folder.Command(step, i + 1));
  };
  const auto all_done = [](const std::vector<Part_state>& states) {
    return std::ranges::all_of(states, [](Part_state s) { return s == Part_state::done; });
  };
  missing(Step::search, status.search);
  if (all_done(status.search) && status.gather == Part_state::missing)
    commands.push_back(folder.Command(Step::gather));
  if (status.gather == Part_state::done) missing(Step::levels, status.levels);
  if (status.gather == Part_state::done && all_done(status.levels))
    commands.push_back(folder.Command(Step::finish));
  return commands;
}

std::string States_in_json(const std::vector<Part_state>& states) {
  Json_list list(Json_list::Kind::array);
  for (const Part_state state : states) list.Add(Json_string(Name_of(state)));
  return list.Text();
}

}  // namespace

std::string In_words(const parts::Status& status, const parts::Work_folder& folder) {
  constexpr std::size_t most_commands = 5;
  std::string text = "results in " + status.output_dir + " are " +
                     (status.finished ? "finished\n" : "not finished\n");
  text += Line_of(Step::search, status.search);
  if (status.gather != Part_state::done && !status.slices.empty())
    text += "    slices of single nodes: " + Ranges_of(status.slices, ", ") + "\n";
  text += "  gather: " + Name_of(status.gather) + "\n";
  text += Line_of(Step::levels, status.levels);
  const std::vector<std::string> commands = Next_commands(status, folder);
  for (std::size_t i = 0; i < std::min(commands.size(), most_commands); ++i)
    text += "next: " + commands[i] + "\n";
  if (commands.size() > most_commands)
    text += "and " + std::to_string(commands.size() - most_commands) + " more like these\n";
  return text;
}

std::string Left_in_words(const parts::Status& status, Step step) {
  return Ranges_of(Left_of(status, step), ",") + "\n";
}

std::string In_json(const parts::Status& status, const parts::Work_folder& folder) {
  Json_list commands(Json_list::Kind::array);
  for (const std::string& command : Next_commands(status, folder))
    commands.Add(Json_string(command));
  return Json_list(Json_list::Kind::object)
      .Add("output", Json_string(status.output_dir))
      .Add("finished", status.finished ? "true" : "false")
      .Add("parts", std::to_string(status.search.size()))
      .Add("search", States_in_json(status.search))
      .Add("gather", Json_string(Name_of(status.gather)))
      .Add("levels", States_in_json(status.levels))
      .Add("next", commands.Text())
      .Text();
}

}  // namespace gns
