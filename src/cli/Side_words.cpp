#include "cli/Side_words.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <iostream>
#include <string_view>
#include <system_error>

#include "cli/terminal/Resources.h"
#include "files/Results_directory.h"
#include "files/Unfinished_mark.h"
#include "foundation/Errors.h"
#include "foundation/paths/Direktoriz.h"
#include "foundation/paths/Total_path.h"
#include "foundation/text/My_double2string.h"
#include "foundation/text/Shown_text.h"
#include "foundation/text/Text_fields.h"
#include "input/Link_file_kind.h"
#include "input/Link_file_reader.h"

namespace gns {

namespace {

std::string Of_wrong_line(const Xep_wrong_line& failure) {
  const Place_in_file& place = failure.place;
  if (place.line == 0) return "";
  std::string text = place.file + ", line " + std::to_string(place.line);
  if (place.column > 0) text += ", column " + std::to_string(place.column);
  text += ": expected " + place.expected;
  text +=
      place.found.empty() ? ", but the line ends there." : ", found " + Quoted(place.found) + ".";
  if (!place.cure.empty()) return text + " " + place.cure;
  if (place.expected == expected_second_name &&
      failure.wrong_line.find_first_of(",;|") != std::string::npos)
    return text + " Fields are separated by blanks or tabs: tr ',;|' ' ' < " +
           Shell_word(place.file) + " > NEW_FILE, unless --format=csv reads it as it is";
  if (place.expected == expected_weight && place.found.empty())
    return text + " Runs with -w, -W or -I need a weight on every line.";
  if (place.line == 1 && place.expected == expected_weight)
    return text + " If this is a header, put '#' in front of it.";
  return text;
}

/// The message says of every file that can't be read that it was not found.
std::string Why_unreadable(const std::string& file) {
  std::error_code ignored;
  if (std::filesystem::is_directory(file, ignored)) return "Is a directory";
  if (::access(file.c_str(), R_OK) == 0) return "";
  return std::generic_category().message(errno);
}

std::string Of_unreadable_file(const std::string& file) {
  const std::string reason = Why_unreadable(file);
  return reason.empty() ? "" : (file.empty() ? "''" : Get_total_path(file)) + ": " + reason;
}

std::string Of_other_kind(const Xno_link_file& failure) {
  std::string text = failure.file + " holds no links, it is " + failure.kind;
  if (failure.reader.empty()) return text;
  std::error_code ignored;
  const bool is_file = std::filesystem::is_regular_file(failure.file, ignored);
  return text + ". Try " + (is_file ? "" : "... | ") + failure.reader + " " +
         (is_file ? Shell_word(failure.file) + " " : "") + "| vorlane -i /dev/stdin -o DIRECTORY";
}

std::string Of_full_directory(const std::string& dir) {
  const std::string held = Is_marked_unfinished(dir)
                               ? "results of a run that isn't finished"
                               : "something (" + std::to_string(List_dir(dir).size()) + " entries)";
  return "the results can't go to " + Get_total_path(dir) + ", which holds " + held +
         ". Choose another directory with -o, or delete this one.";
}

std::string Plain_number(double number) {
  std::string text = double2string(number, 6);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.ends_with('.')) text.pop_back();
  return text;
}

/// Empty if there are links.
std::string Why_no_links(std::size_t links, const Link_counts& counts, const std::string& file) {
  if (links > 0) return "";
  const std::string in_file = " in " + file;
  if (counts.links == 0) return "warning: there are no links" + in_file;
  const std::string all = "warning: of " + std::to_string(counts.links) + " links" + in_file;
  if (counts.outside == 0) return all + " each is one of a node with itself";
  return all + " none is within the thresholds; the weights go from " +
         Plain_number(counts.least_outside) + " to " + Plain_number(counts.greatest_outside);
}

}  // namespace

void Tell(const std::string& text) {
  std::cout.flush();
  std::string_view rest = Trimmed(text, "\n");
  while (!rest.empty()) {
    const std::string_view line = rest.substr(0, rest.find('\n'));
    std::cerr << "vorlane: " << Trimmed(line, " ") << "\n";
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
  }
}

bool Outputs_are_one() {
  struct stat out = {};
  struct stat err = {};
  return ::fstat(STDOUT_FILENO, &out) == 0 && ::fstat(STDERR_FILENO, &err) == 0 &&
         out.st_dev == err.st_dev && out.st_ino == err.st_ino;
}

std::string Way_out(const std::exception& failure) {
  if (const auto* line = dynamic_cast<const Xep_wrong_line*>(&failure)) return Of_wrong_line(*line);
  if (const auto* missing = dynamic_cast<const Xep_file_not_found*>(&failure))
    return Of_unreadable_file(missing->file_name);
  if (const auto* dir = dynamic_cast<const Xdir_not_empty*>(&failure))
    return Of_full_directory(dir->dir);
  const auto* file = dynamic_cast<const Xno_link_file*>(&failure);
  return file == nullptr ? "" : Of_other_kind(*file);
}

std::vector<std::string> Of_input(const Link_file_check& check, const Link_map* links,
                                  const std::string& file) {
  std::vector<std::string> texts;
  for (const Link_file_warning& warning : check.Warnings())
    texts.push_back("warning: " + In_words(warning, file));
  if (links != nullptr) texts.push_back(Why_no_links(links->size(), check.counts, file));
  return texts;
}

std::string Of_great_results(const Results_bound& bound, const Free_space& space,
                             const std::string& dir, const Run_parameters& parameters) {
  constexpr std::uint64_t much = std::uint64_t{10} << 30U;
  const std::uint64_t taken = bound.On_disk(space.block_size);
  if (taken <= space.bytes && taken <= much) return "";
  const std::string cure = parameters.use_intensity
                               ? "a higher threshold (-I) leaves fewer k-cliques"
                               : "a greater k (-k) leaves fewer cliques";
  return "warning: the results may take up to " + In_units(taken) + ", and " + dir + " has " +
         In_units(space.bytes) + " free; " +
         (parameters.use_single_k ? cure : "-k K writes those of a single k only");
}

std::string Why_no_communities(const Run_summary& summary, const Run_parameters& parameters) {
  constexpr std::size_t least_k = 3;
  const std::size_t k = parameters.use_single_k ? parameters.single_k : least_k;
  const std::size_t sizes = summary.cliques_of_size.size();
  if (summary.links == 0 || k < least_k || k < sizes) return "";
  const std::string none = "warning: there are no communities";
  if (sizes <= least_k) return none + ", as no three nodes are all linked with each other";
  return none + " at k = " + std::to_string(k) + ", as the largest clique has " +
         std::to_string(sizes - 1) + " nodes";
}

}  // namespace gns
