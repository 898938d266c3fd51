#include "cli/Program_run.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <new>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "cli/Process_input.h"
#include "cli/Run_table.h"
#include "cli/Side_words.h"
#include "cli/commands/Export_all.h"
#include "cli/commands/Summary_text.h"
#include "cli/commands/Title_of.h"
#include "cli/terminal/Live_display.h"
#include "cli/terminal/Resources.h"
#include "cli/terminal/State_lines.h"
#include "cli/terminal/Stop_signals.h"
#include "control/Clique_find_ext_cont.h"
#include "engine/Find_coms.h"
#include "engine/Memory_limit.h"
#include "engine/Run_stages.h"
#include "face/Results_body.h"
#include "files/Unfinished_mark.h"
#include "formats/Network_file.h"
#include "formats/Unpacked_input.h"
#include "foundation/io/File_faults.h"
#include "foundation/paths/Free_space.h"
#include "foundation/paths/Total_path.h"
#include "report/Report_file.h"

namespace gns {

namespace {

/// One run of the program, from its switches to its exit code.
class Program_run : private Run_listener {
 public:
  Program_run(const Switch_values& values, Long_wishes wishes)
      : parameters_(Parameters_of(values)), wishes_(std::move(wishes)) {
    wishes_.input.directed = parameters_.directed;
    wishes_.input.for_files = true;
  }

  /// Throws an Error if an export would meet a file that exists.
  Exit_code Run() {
    vorlane::exporting::Export_order order = Order();
    for (const auto* const format : wishes_.output.formats) {
      order.format = format;
      vorlane::exporting::Refuse_existing_files(Files_of(order));
    }
    if (const std::string& page = wishes_.output.report; !page.empty())
      vorlane::exporting::Refuse_existing_files({page}, "report");
    return Report_end(Message());
  }

 private:
  /// Prints what is to be said about a run that ended with this message.
  Exit_code Report_end(const std::string& message) const {
    (wishes_.output.json ? std::cerr : std::cout)
        << message << (message.ends_with('\n') ? "" : "\n");
    const bool stopped = message == "Process stopped by user.\n" && Stop_signal_came();
    if (message == std::bad_alloc().what())
      Explain_lack_of_memory();
    else if (!way_out_.empty())
      Tell(way_out_);
    else if (message != run_finished && !stopped && !Outputs_are_one())
      Tell(message);
    List_file_faults();
    if (stopped) return Exit_code::stopped;
    if (message != run_finished || !File_faults().empty()) return Exit_code::run_failed;
    const bool exported = Export_and_report();
    Print_findings(parameters_, summary_, watch_, wishes_.output.json);
    Tell(Why_no_communities(summary_, parameters_));
    return exported ? Exit_code::finished : Exit_code::run_failed;
  }

  /// Ends the process at the poll that found a stop, without giving memory back.
  static void Leave() {
    running_->display_.reset();
    // No other thread ends the process. NOLINTNEXTLINE(concurrency-mt-unsafe)
    std::exit(static_cast<int>(running_->Report_end("Process stopped by user.\n")));
  }

  std::string Message() {
    running_ = this;
    external_control::PROCESS_CONTROL.workers = wishes_.jobs;
    external_control::BEFORE_UNWINDING = Leave;
    std::string message = Message_of_stages();
    external_control::BEFORE_UNWINDING = nullptr;
    display_.reset();
    return message;
  }

  std::string Message_of_stages() {
    try {
      display_.emplace(watch_, wishes_.progress);
      memory_limit_ = Limit_memory();
      Run_wishes wishes;
      wishes.read_first = true;
      wishes.listener = this;
      wishes.links_source = [this](const Link_rule& rule, Link_map& links, Link_file_check& check) {
        Read_network_file(parameters_.input_file, wishes_.input, rule, links, check);
      };
      bool approximation_needed = false;
      Run_stages(parameters_, wishes, approximation_needed, summary_);
      return run_finished;
    } catch (const std::exception& failure) {
      way_out_ = Way_out(failure);
      return failure.what();
    }
  }

  /// What is odd about the input is told even if reading ends in a failure.
  void Input_read(const Link_file_check& check, const Link_map* links) override {
    for (const std::string& text : Of_input(check, links, parameters_.input_file))
      display_->Tell(text);
  }

  void Bound_known(const Results_bound& bound) override {
    const std::string& output_dir = parameters_.output_dir;
    if (const auto space = Free_space_at(output_dir))
      display_->Tell(Of_great_results(bound, *space, Get_total_path(output_dir), parameters_));
  }

  void Explain_lack_of_memory() const {
    std::vector<std::string> stage = State_lines();
    stage.resize(std::max<std::size_t>(stage.size(), 1));
    std::cerr << "vorlane: memory ran out";
    if (memory_limit_ > 0) std::cerr << " (limit " << In_megabytes(memory_limit_) << ")";
    std::cerr << " in the stage \"" << stage.front() << "\", with ";
    const std::uint64_t k_cliques = external_control::PROGRESS.k_cliques_found.load();
    if (k_cliques > 0) {
      std::cerr << k_cliques << " k-cliques found.\n"
                << "A higher intensity threshold (-I) leaves fewer k-cliques, and so does, where\n"
                   "that is possible, a single k (-k) near 3 or near the largest clique.\n";
      return;
    }
    std::cerr
        << external_control::PROGRESS.cliques_found.load()
        << " cliques found.\n"
           "A link weight threshold (-w, -W) leaves fewer cliques, and so does a small time limit\n"
           "per node (-t 0.00001). A single k (-k) doesn't: all cliques are found first.\n";
  }

  void List_file_faults() const {
    const std::vector<File_fault> faults = File_faults();
    if (faults.empty()) return;
    std::cerr << "vorlane: " << faults.size() << " file(s) could not be written:\n";
    for (const File_fault& fault : faults)
      std::cerr << "  " << fault.path << ": " << fault.reason << "\n";
    std::cerr << "The results are not whole";
    const std::string& output_dir = parameters_.output_dir;
    if (Is_marked_unfinished(output_dir))
      std::cerr << "; " << Unfinished_mark_of(output_dir) << " tells so";
    std::cerr << ".\n";
  }

  [[nodiscard]] vorlane::exporting::Export_order Order() const {
    vorlane::exporting::Export_order order;
    order.stem = parameters_.output_dir;
    return order;
  }

  /// Of the results as they stand in their files; false, with the reason told, if that fails.
  bool Export_and_report() const {
    const std::string& page = wishes_.output.report;
    if (wishes_.output.formats.empty() && page.empty()) return true;
    try {
      const auto results = vorlane::Results::Open(parameters_.output_dir);
      Export_all(wishes_.output.formats, Order(), {results, std::nullopt});
      if (page.empty()) return true;
      vorlane::Report_options options;
      options.title = Title_of(parameters_.input_file);
      vorlane::report::Make_report(results, page, options);
      return true;
    } catch (const vorlane::Error& failure) {
      Tell(failure.what());
      return false;
    }
  }

  Run_parameters parameters_;
  Long_wishes wishes_;
  std::string way_out_;  ///< of a failure
  Stopwatch watch_;
  std::uint64_t memory_limit_ = 0;
  static inline Program_run* running_ = nullptr;
  std::optional<Live_display> display_;
  Run_summary summary_;
};

}  // namespace

Exit_code Run_program(int argc, const char* const* argv, const Long_wishes& wishes) {
  std::vector<std::string> unheeded;
  try {
    const Switch_values values = Read_command_line(argc, argv, unheeded);
    for (const std::string& text : unheeded) Tell("warning: " + text);
    if (values.input_file == standard_input && !values.use_output_dir) {
      Tell("standard input has no name to call the results after; give them a directory by -o DIR");
      return Exit_code::wrong_usage;
    }
    return Program_run(values, wishes).Run();
  } catch (const Xusage_printed& usage) {
    if (usage.on_request) return Exit_code::finished;
    if (!Outputs_are_one()) Tell(usage.errors);
    for (const std::string& text : unheeded) Tell(text);
    return Exit_code::wrong_usage;
  } catch (const Xerror_msg& failure) {
    std::cout << failure.what();
    return Exit_code::wrong_usage;
  } catch (const std::exception& failure) {
    std::cerr << "vorlane: " << failure.what() << "\n";
    return Exit_code::run_failed;
  }
}

}  // namespace gns
