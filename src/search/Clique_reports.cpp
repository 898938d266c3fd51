#include "search/Clique_reports.h"

#include <algorithm>
#include <sstream>
#include <utility>

#include "foundation/text/My_double2string.h"
#include "foundation/text/My_int2string.h"

namespace gns {

namespace {

std::string Rule(std::size_t length) { return std::string(length, '_') + "\n"; }

}  // namespace

namespace Clique_find_report_sub_routines {

namespace {

void Report_remaining(const std::string& unit, std::uint32_t remaining, std::uint32_t total,
                      std::ostream& stream) {
  const double done = 100.0 * (total - remaining) / total;
  stream << " " << int2string(remaining) << " of " << int2string(total) << " " << unit << " to do ("
         << double2string(done, 2) << "% done)\n";
}

}  // namespace

void Report_progress(const std::string& title, const std::string& unit, std::uint32_t remaining,
                     std::uint32_t total, std::ostream& stream) {
  stream << Rule(title.size()) << title << "\n";
  Report_remaining(unit, remaining, total, stream);
}

void Report_progress(const std::string& title, const std::string& second_title,
                     const std::string& unit, std::uint32_t remaining, std::uint32_t total,
                     std::ostream& stream) {
  stream << Rule(std::max(title.size(), second_title.size())) << title << "\n"
         << second_title << "\n";
  Report_remaining(unit, remaining, total, stream);
}

void Report_hard_node(std::uint32_t node, std::uint32_t skipped, std::uint32_t total,
                      std::ostream& stream) {
  stream << " Exceeded allowed time at node no." << int2string(node) << ",\n skipping, "
         << int2string(skipped) << " out of " << int2string(total) << " skipped in a row, ("
         << double2string(100.0 * skipped / total, 2) << "%)\n";
}

void Report_all_rem_nodes_to_hard(const std::string& unit, std::ostream& stream) {
  constexpr std::size_t rule_without_unit = 43;
  stream << Rule(unit.size() + rule_without_unit) << " The extraction of " << unit
         << " has been found too slow \n at all of the remaining nodes.\n";
}

void Report_clique_search_end(const std::string& unit, std::uint32_t count, std::ostream& stream) {
  const std::string line = " Altogether " + int2string(count) + " " + unit + " found.";
  stream << Rule(line.size()) << line << "\n";
}

void Report_clique_search_end(const std::string& unit, std::uint32_t count,
                              const std::string& closing, std::ostream& stream) {
  Report_clique_search_end(unit, count, stream);
  stream << closing << "\n";
}

}  // namespace Clique_find_report_sub_routines

Progress_report::Progress_report(std::string title, std::string second_title, std::string unit,
                                 std::uint32_t total)
    : title_(std::move(title)),
      second_title_(std::move(second_title)),
      unit_(std::move(unit)),
      total_(total),
      remaining_(total) {}

std::string Progress_report::Text() const {
  using namespace Clique_find_report_sub_routines;
  const std::uint32_t remaining = remaining_.load(std::memory_order_relaxed);
  std::ostringstream stream;
  if (second_title_.empty()) {
    Report_progress(title_, unit_, remaining, total_, stream);
  } else {
    Report_progress(title_, second_title_, unit_, remaining, total_, stream);
  }
  return stream.str();
}

}  // namespace gns
