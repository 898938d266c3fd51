#include "cli/Progress_figures.h"

#include <algorithm>
#include <initializer_list>
#include <limits>
#include <string_view>

#include "cli/State_lines.h"
#include "control/Clique_find_ext_cont.h"
#include "foundation/My_double2string.h"

namespace gns {

namespace {

/// As many whole words of the text as fit.
std::string Words_that_fit(const std::string& text, std::size_t width) {
  if (text.size() <= width) return text;
  const std::size_t end = text.rfind(' ', width);
  return end == std::string::npos ? "" : text.substr(0, text.find_last_not_of(' ', end) + 1);
}

/// The first of the texts that fits; empty if none does.
std::string First_that_fits(std::initializer_list<std::string> texts, std::size_t width) {
  for (const std::string& text : texts)
    if (text.size() <= width) return text;
  return "";
}

std::string In_quotes(const std::string& text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') quoted += '\\';
    quoted += static_cast<unsigned char>(c) < ' ' ? ' ' : c;
  }
  return quoted += '"';
}

}  // namespace

Progress_figures Current_figures(const Stopwatch& watch) {
  const external_control::Progress& progress = external_control::PROGRESS;
  return {State_lines(),
          progress.cliques_found.load(),
          progress.k_cliques_found.load(),
          progress.nodes_left.load(),
          progress.failed_in_a_row.load(),
          watch.Seconds(),
          Peak_memory()};
}

std::vector<std::string> In_lines(const Progress_figures& figures, std::size_t width) {
  std::vector<std::string> lines;
  const auto add = [&lines](std::string line) {
    if (!line.empty()) lines.push_back(std::move(line));
  };
  const auto add_count = [&](const std::string& what, std::uint64_t count) {
    const std::string number = std::to_string(count);
    if (count > 0) add(First_that_fits({what + " so far: " + number, what + ": " + number}, width));
  };
  for (const std::string& line : figures.report) add(Words_that_fit(line, width));
  if (figures.failed_in_a_row > 0) {
    const std::string left = std::to_string(figures.nodes_left);
    const std::string failed = std::to_string(figures.failed_in_a_row);
    add(First_that_fits({"nodes left: " + left + ", failed in a row: " + failed,
                         "left: " + left + ", failed: " + failed, "left: " + left},
                        width));
  }
  add_count("cliques", figures.cliques);
  add_count("k-cliques", figures.k_cliques);
  const std::string time = double2string(figures.seconds, 2) + " s";
  const std::string memory = In_megabytes(figures.peak_memory);
  add(First_that_fits({time + ", peak memory " + memory, time + ", " + memory, time}, width));
  return lines;
}

std::string In_one_line(const Progress_figures& figures) {
  const std::vector<std::string> lines = In_lines(figures, std::numeric_limits<std::size_t>::max());
  std::string text;
  for (const std::string& line : lines)
    text.append(text.empty()                                 ? ""
                : text.ends_with(':') || text.ends_with('.') ? " "
                                                             : ", ")
        .append(line);
  return text;
}

std::string In_json(const Progress_figures& figures) {
  std::string report;
  for (const std::string& line : figures.report)
    report.append(report.empty() ? "" : ",").append(In_quotes(line));
  return "{\"seconds\":" + double2string(figures.seconds, 2) + ",\"report\":[" + report +
         "],\"cliques\":" + std::to_string(figures.cliques) +
         ",\"k_cliques\":" + std::to_string(figures.k_cliques) +
         ",\"nodes_left\":" + std::to_string(figures.nodes_left) +
         ",\"failed_in_a_row\":" + std::to_string(figures.failed_in_a_row) +
         ",\"peak_memory\":" + std::to_string(figures.peak_memory) + "}";
}

}  // namespace gns
