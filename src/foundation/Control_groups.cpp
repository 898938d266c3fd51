#include "foundation/Control_groups.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <stdexcept>

#include "foundation/io/Line_reader.h"
#include "foundation/text/Text_fields.h"

namespace gns {

namespace {

/// The lines of a file of the system; none if it is missing or can't be read.
std::vector<std::string> Lines_of(const std::string& path) {
  std::vector<std::string> lines;
  try {
    Line_reader file(path);
    for (std::string_view line; file.Next(line);) lines.emplace_back(line);
  } catch (const std::logic_error&) {
    lines.clear();
  }
  return lines;
}

}  // namespace

/// A line reads "NUMBER:CONTROLLER,...:/PATH"; version 2 has no controllers.
std::vector<Control_group> Groups_around(std::string_view controller, const std::string& root) {
  std::vector<Control_group> groups;
  const std::string sought = std::string(":").append(controller).append(":");
  for (const std::string& line : Lines_of(root + "/proc/self/cgroup")) {
    const std::size_t first = line.find(':');
    const std::size_t second = line.find(':', first + 1);
    if (second == std::string::npos) continue;
    std::string controllers = line.substr(first, second - first + 1);
    std::ranges::replace(controllers, ',', ':');
    const bool is_first_version = controllers.find(sought) != std::string::npos;
    if (!is_first_version && controllers != "::") continue;
    std::string mount = root + "/sys/fs/cgroup";
    if (is_first_version) mount.append("/").append(controller);
    for (std::filesystem::path group = line.substr(second + 1);; group = group.parent_path()) {
      groups.push_back({mount + group.string(), is_first_version ? 1 : 2});
      if (!group.has_relative_path()) break;
    }
  }
  return groups;
}

std::vector<std::string> Words_in(const std::string& path, std::string_view key) {
  for (const std::string& line : Lines_of(path)) {
    std::string_view rest = line;
    if (!key.empty() && Extract_word(rest) != key) continue;
    std::vector<std::string> words;
    for (std::string_view word; !(word = Extract_word(rest)).empty();) words.emplace_back(word);
    return words;
  }
  return {};
}

std::optional<std::uint64_t> Number_in(const std::string& path, std::string_view key) {
  const std::vector<std::string> words = Words_in(path, key);
  if (words.empty()) return std::nullopt;
  std::uint64_t number = 0;
  const char* const end = words[0].data() + words[0].size();
  if (std::from_chars(words[0].data(), end, number).ec != std::errc()) return std::nullopt;
  return number;
}

}  // namespace gns
