#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gns {

/// A control group, by which a system or a container keeps its processes to a part of the machine.
struct Control_group {
  std::string directory;  ///< of its files
  int version;            ///< 1 or 2: they have files of different names
};

/// The groups around this process that a controller ("memory", "cpu") may act in, the innermost
/// first. `root` stands before the paths of the system's files.
std::vector<Control_group> Groups_around(std::string_view controller, const std::string& root = "");

/// The words on the first line of a file of the system, or on the one that begins with `key`, which
/// is left out; none if there is no such line or file.
std::vector<std::string> Words_in(const std::string& path, std::string_view key = {});

/// The first of these words as a number; nothing if it is none.
std::optional<std::uint64_t> Number_in(const std::string& path, std::string_view key = {});

}  // namespace gns
