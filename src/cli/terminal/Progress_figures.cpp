#include "cli/terminal/Progress_figures.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <string_view>

#include "cli/terminal/State_lines.h"
#include "control/Clique_find_ext_cont.h"
#include "control/Work_done.h"
#include "foundation/text/Json_text.h"
#include "foundation/text/My_double2string.h"

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

/// "8 s", "7 min", "2.5 h".
std::string In_time(double seconds) {
  constexpr double minute = 60;
  constexpr double hour = 60 * minute;
  if (seconds < 2 * minute) return double2string(std::ceil(seconds), 0) + " s";
  if (seconds < 2 * hour) return double2string(std::ceil(seconds / minute), 0) + " min";
  return double2string(seconds / hour, 1) + " h";
}

std::string Work_that_fits(const Progress_figures& figures, std::size_t width) {
  constexpr double hundred = 100;
  if (figures.share_done <= 0.0) return "";
  const std::string done = double2string(figures.share_done * hundred, 1) + "%";
  if (!figures.seconds_left) return First_that_fits({"work done: " + done, done}, width);
  const std::string left = In_time(*figures.seconds_left) + " left";
  return First_that_fits({"work done: " + done + ", about " + left, done + ", " + left, done},
                         width);
}

std::string Bound_in_json(const Progress_figures& figures) {
  if (figures.files == 0) return "null";
  return Json_list(Json_list::Kind::object)
      .Add("entries", std::to_string(figures.entries))
      .Add("files", std::to_string(figures.files))
      .Add("bytes", std::to_string(figures.bytes))
      .Add("pair_bytes", std::to_string(figures.pair_bytes))
      .Text();
}

}  // namespace

Progress_figures Current_figures(const Stopwatch& watch, Time_left& time_left) {
  const external_control::Progress& progress = external_control::PROGRESS;
  const external_control::Output_bound& bound = external_control::OUTPUT_BOUND;
  const external_control::Work_done::Share work = external_control::WORK_DONE.Now();
  Progress_figures figures;
  figures.report = State_lines();
  figures.seconds = watch.Seconds();
  if (work.total > 0)
    figures.share_done = static_cast<double>(work.done) / static_cast<double>(work.total);
  figures.seconds_left = time_left.At(figures.seconds, work);
  figures.files = bound.files;
  figures.entries = bound.entries;
  figures.bytes = bound.bytes;
  figures.pair_bytes = bound.pair_bytes;
  figures.cliques = progress.cliques_found;
  figures.k_cliques = progress.k_cliques_found;
  figures.nodes_left = progress.nodes_left;
  figures.failed_in_a_row = progress.failed_in_a_row;
  figures.peak_memory = Peak_memory();
  return figures;
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
  add(Work_that_fits(figures, width));
  if (figures.files > 0) {
    const std::string size = std::to_string(figures.files) + " files, " + In_units(figures.bytes);
    add(First_that_fits({"to write at most: " + size, size}, width));
  }
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
  Json_list report(Json_list::Kind::array);
  for (const std::string& line : figures.report) report.Add(Json_string(line));
  return Json_list(Json_list::Kind::object)
      .Add("seconds", double2string(figures.seconds, 2))
      .Add("report", report.Text())
      .Add("cliques", std::to_string(figures.cliques))
      .Add("k_cliques", std::to_string(figures.k_cliques))
      .Add("nodes_left", std::to_string(figures.nodes_left))
      .Add("failed_in_a_row", std::to_string(figures.failed_in_a_row))
      .Add("peak_memory", std::to_string(figures.peak_memory))
      .Add("work_done", double2string(figures.share_done, 4))
      .Add("seconds_left", figures.seconds_left ? double2string(*figures.seconds_left, 1) : "null")
      .Add("bound", Bound_in_json(figures))
      .Text();
}

}  // namespace gns
