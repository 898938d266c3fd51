#include <algorithm>
#include <charconv>
#include <iostream>
#include <string>
#include <vector>

#include "cli/Process_input.h"
#include "cli/Run_table.h"
#include "cli/Side_words.h"
#include "cli/commands/Answers.h"
#include "cli/commands/Parts_status.h"
#include "cli/options/Long_wishes.h"
#include "cli/terminal/Live_display.h"
#include "engine/Memory_limit.h"
#include "engine/Run_message.h"
#include "engine/Run_wishes.h"
#include "face/Errors_of_face.h"
#include "formats/Network_file.h"
#include "formats/Unpacked_input.h"
#include "foundation/Errors.h"
#include "foundation/paths/Total_path.h"
#include "foundation/text/My_string_to_d.h"
#include "foundation/text/Shown_text.h"
#include "parts/Parts.h"
#include "parts/Slurm_scripts.h"
#include "parts/Work_folder.h"

namespace gns {

namespace {

using parts::Step;
using vorlane::face::With_errors;

/// A command line of the word `parts`.
struct Parts_line {
  std::string step;
  std::string work;
  std::vector<std::string> switches;  ///< those of a run
  const Word_line& words;
};

/// The folder is also what stands behind -W, but a number there is the threshold of a run.
Parts_line Read(const Word_line& words) {
  Parts_line line = {words.arguments.front(), words.Value("--work"), {}, words};
  for (std::size_t i = 1; i < words.arguments.size(); ++i) {
    double number = 0.0;
    const bool more = i + 1 < words.arguments.size();
    if (words.arguments[i] == "-W" && more && !stringtodouble(words.arguments[i + 1], number))
      line.work = words.arguments[++i];
    else
      line.switches.push_back(words.arguments[i]);
  }
  if (line.work.empty())
    throw Xerror_msg("Which folder do the parts meet in? Give it by --work DIR.\n");
  if (line.step != "plan" && !line.switches.empty())
    throw Xerror_msg(Quoted(line.switches.front()) + " is more than '" + line.step +
                     "' takes; the switches of the run stand in its plan.\n");
  return line;
}

std::uint64_t Number_of(const Parts_line& line, const std::string& option) {
  const std::string word = line.words.Value(option);
  std::uint64_t number = 0;
  const auto [end, failure] = std::from_chars(word.data(), word.data() + word.size(), number);
  if (word.empty() || failure != std::errc() || end != word.data() + word.size() || number == 0)
    throw Xerror_msg("'" + line.step + "' needs " + option + " with a number from 1 on" +
                     (word.empty() ? "" : ", not " + Quoted(word)) + ".\n");
  return number;
}

/// What `plan` is told in the switches of a run.
struct Planned_run {
  Run_parameters parameters;
  Long_wishes wishes;
};

Planned_run Read_switches(const Parts_line& line) {
  std::vector<const char*> words;
  for (const std::string& word : line.switches) words.push_back(word.c_str());
  Planned_run run;
  words = Take_long_words(words, run.wishes);
  words.insert(words.begin(), "vorlane parts plan");
  if (!run.wishes.output.formats.empty() || !run.wishes.output.report.empty())
    throw Xerror_msg("Parts are exported and shown when they are finished: vorlane help export\n");
  if (run.wishes.jobs != 1)
    throw Xerror_msg(
        "A part is done by one core: do as many at a time as there are cores. --jobs is for "
        "single runs.\n");
  std::vector<std::string> unheeded;
  try {
    const Switch_values values =
        Read_command_line(static_cast<int>(words.size()), words.data(), unheeded);
    for (const std::string& text : unheeded) Tell("warning: " + text);
    if (values.input_file == standard_input && !values.use_output_dir)
      throw Xerror_msg(
          "Standard input has no name to call the results after; give them a "
          "directory by -o DIR.\n");
    run.parameters = Parameters_of(values);
  } catch (const Xusage_printed& usage) {
    std::string faults = usage.errors;
    for (const std::string& text : unheeded) faults += text + "\n";
    throw Xerror_msg(faults);
  }
  run.wishes.input.directed = run.parameters.directed;
  run.wishes.input.for_files = true;
  return run;
}

/// Tells what is odd about the input of a plan.
class Plan_listener : public Run_listener {
 public:
  Plan_listener(const std::string& input_file, Live_display& display)
      : input_file_(input_file), display_(display) {}

  void Input_read(const Link_file_check& check, const Link_map* links) override {
    for (const std::string& text : Of_input(check, links, input_file_)) display_.Tell(text);
  }
  void Bound_known(const Results_bound& /*bound*/) override {}

 private:
  const std::string& input_file_;
  Live_display& display_;
};

std::string Next_commands(const Parts_line& line, Step step, std::uint64_t parts) {
  const std::string each =
      parts > 1 ? ", for each I from 1 to " + std::to_string(parts) : std::string();
  const std::string command = parts::Work_folder(line.work).Command(step);
  return "next" + each + ": " + command + " --part " + (parts > 1 ? "I" : "1") + "\n";
}

void Plan(const Parts_line& line, std::ostream& out) {
  const std::uint64_t count = Number_of(line, "--parts");
  const Planned_run run = Read_switches(line);
  parts::Refuse_bad_plan(run.parameters, count);
  const Stopwatch watch;
  {
    Live_display display(watch, run.wishes.progress);
    Plan_listener listener(run.parameters.input_file, display);
    Run_wishes wishes;
    wishes.listener = &listener;
    wishes.links_source = [&](const Link_rule& rule, Link_map& links, Link_file_check& check) {
      Read_network_file(run.parameters.input_file, run.wishes.input, rule, links, check);
    };
    With_errors(vorlane::Error_kind::other,
                [&] { parts::Plan(run.parameters, wishes, line.work, count); });
  }
  out << "planned in " << line.work << ": " << count << (count == 1 ? " part\n" : " parts\n");
  if (line.words.Has("--slurm"))
    out << "next: sh "
        << Shell_word(parts::Write_slurm_scripts(line.work, Resolved_path("/proc/self/exe")))
        << "\n";
  else
    out << Next_commands(line, Step::search, count);
}

/// Does a step with its progress shown, and yields what it counted.
template <typename Work>
std::uint64_t Counted(Work work) {
  const Stopwatch watch;
  const Live_display display(watch, {});
  return With_errors(vorlane::Error_kind::other, work);
}

void Search(const Parts_line& line, std::ostream& out) {
  const std::uint64_t part = Number_of(line, "--part");
  const std::uint64_t count = Counted([&] { return parts::Search(line.work, part); });
  out << "part " << part << " is searched: " << count << (count == 1 ? " clique\n" : " cliques\n");
}

void Gather(const Parts_line& line, std::ostream& out) {
  const std::uint64_t count = Counted([&] { return parts::Gather(line.work); });
  const std::vector<std::uint64_t> left = With_errors(vorlane::Error_kind::other, [&] {
    return Left_of(parts::Status_of(line.work), Step::levels);
  });
  out << "gathered: " << count << (count == 1 ? " clique\n" : " cliques\n");
  if (left.empty())
    out << "next: " << parts::Work_folder(line.work).Command(Step::finish) << "\n";
  else
    out << Next_commands(line, Step::levels, left.back());  // the first parts have the levels
}

void Find_levels(const Parts_line& line, std::ostream& out) {
  const std::uint64_t part = Number_of(line, "--part");
  const std::uint64_t count = Counted([&] { return parts::Find_levels(line.work, part); });
  out << "part " << part << " is done: " << count << (count == 1 ? " level\n" : " levels\n");
}

void Finish(const Parts_line& line, std::ostream& out) {
  const Stopwatch watch;
  const parts::Finished_run run =
      With_errors(vorlane::Error_kind::other, [&] { return parts::Finish(line.work); });
  const bool json = line.words.Has("--json");
  (json ? std::cerr : out) << run_finished << "\n";
  Print_findings(run.parameters, run.summary, watch, json);
  Tell(Why_no_communities(run.summary, run.parameters));
}

/// Throws Xerror_msg for the name of none that `status` can tell of.
Step Step_called(const std::string& name) {
  for (const Step step : {Step::search, Step::gather, Step::levels, Step::finish})
    if (parts::Name_of(step) == name) return step;
  throw Xerror_msg("--left takes search, gather, levels or finish, not " + Quoted(name) + ".\n");
}

void Tell_status(const Parts_line& line, std::ostream& out) {
  const parts::Status status =
      With_errors(vorlane::Error_kind::other, [&] { return parts::Status_of(line.work); });
  const parts::Work_folder folder(line.work);
  if (line.words.Has("--left"))
    out << Left_in_words(status, Step_called(line.words.Value("--left")));
  else
    out << (line.words.Has("--json") ? In_json(status, folder) + "\n" : In_words(status, folder));
}

}  // namespace

void Answer_parts(const Word_line& words, std::ostream& out) {
  using Answer = void (*)(const Parts_line& line, std::ostream& out);
  constexpr std::array<std::pair<std::string_view, Answer>, 6> answers = {
      {{"plan", Plan},
       {"search", Search},
       {"gather", Gather},
       {"levels", Find_levels},
       {"finish", Finish},
       {"status", Tell_status}}};
  const std::string& step = words.arguments.front();
  const auto* const answer =
      std::ranges::find(answers, step, [](const auto& one) { return one.first; });
  if (answer == answers.end())
    throw Xerror_msg("There is no step " + Quoted(step) +
                     "; there are plan, search, gather, levels, finish and status.\n");
  const Parts_line line = Read(words);
  Limit_memory();
  answer->second(line, out);
}

}  // namespace gns
