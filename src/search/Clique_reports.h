#pragma once

#include <atomic>
#include <cstdint>
#include <ostream>
#include <string>

#include "control/Run_control.h"

namespace gns {

/// The texts by which a running stage tells what it is doing. Every line ends in a newline. Numbers
/// are plain decimal whatever the flags and the locale of the stream.
namespace Clique_find_report_sub_routines {

/// A rule, the title, and how many of `total` units remain.
void Report_progress(const std::string& title, const std::string& unit, std::uint32_t remaining,
                     std::uint32_t total, std::ostream& stream);
/// The same with two title lines.
void Report_progress(const std::string& title, const std::string& second_title,
                     const std::string& unit, std::uint32_t remaining, std::uint32_t total,
                     std::ostream& stream);
/// Tells of a node that ran over its time, as one of `skipped` in a row while `total` are waiting.
void Report_hard_node(std::uint32_t node, std::uint32_t skipped, std::uint32_t total,
                      std::ostream& stream);
/// Tells that every node that is left has failed.
void Report_all_rem_nodes_to_hard(const std::string& unit, std::ostream& stream);
/// A rule as long as the line below it, which tells how many units were found.
void Report_clique_search_end(const std::string& unit, std::uint32_t count, std::ostream& stream);
/// The same with a closing line.
void Report_clique_search_end(const std::string& unit, std::uint32_t count,
                              const std::string& closing, std::ostream& stream);

}  // namespace Clique_find_report_sub_routines

/// The progress of one stage as a state report: the stage keeps the remaining count up to date and
/// the text is composed only when somebody reads it.
class Progress_report : public external_control::Report {
 public:
  Progress_report(std::string title, std::string second_title, std::string unit,
                  std::uint32_t total);
  Progress_report(std::string title, std::string unit, std::uint32_t total)
      : Progress_report(std::move(title), "", std::move(unit), total) {}

  void Set_remaining(std::uint32_t remaining) {
    remaining_.store(remaining, std::memory_order_relaxed);
  }
  [[nodiscard]] std::string Text() const override;

 private:
  std::string title_;
  std::string second_title_;  ///< empty: the report has one title line
  std::string unit_;
  std::uint32_t total_;
  std::atomic<std::uint32_t> remaining_;
};

}  // namespace gns
