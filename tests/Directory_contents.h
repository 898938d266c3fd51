#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

namespace gns {

/// All that stands below a directory: relative path -> contents of the file. Empty directories
/// count too, with a slash behind their name.
inline std::map<std::string, std::string> Contents_of(const std::string& directory) {
  std::map<std::string, std::string> contents;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(directory)) {
    const std::string name = std::filesystem::relative(entry.path(), directory).string();
    if (entry.is_directory()) {
      if (std::filesystem::is_empty(entry.path())) contents[name + "/"];
      continue;
    }
    std::ifstream file(entry.path(), std::ios::binary);
    contents[name] = {std::istreambuf_iterator<char>(file), {}};
  }
  return contents;
}

}  // namespace gns
