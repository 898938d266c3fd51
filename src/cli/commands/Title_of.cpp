#include "cli/commands/Title_of.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>

namespace gns {

std::string Without_slashes(std::string path) {
  while (path.size() > 1 && path.ends_with('/')) path.pop_back();
  return path;
}

std::string Title_of(const std::string& path) {
  std::filesystem::path name = std::filesystem::path(Without_slashes(path)).filename();
  if (name == "." || name == ".." || name.empty())
    name = std::filesystem::absolute(path).lexically_normal().parent_path().filename();
  constexpr std::array<std::string_view, 3> endings = {"_files", ".gz", ".zst"};
  std::string title = name;
  for (const std::string_view ending : endings)
    if (title.ends_with(ending)) title.resize(title.size() - ending.size());
  const std::string stem = std::filesystem::path(title).stem();
  return stem.empty() ? title : stem;
}

}  // namespace gns
