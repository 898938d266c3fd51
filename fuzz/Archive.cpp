#include "Archive.h"

#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <system_error>

namespace {

namespace fs = std::filesystem;

constexpr char entry_mark = 0x1e;

/// A path as Stage takes it.
bool Is_good(const std::string& text) {
  constexpr std::size_t longest = 200;
  const fs::path path = text;
  return !text.empty() && text.size() < longest && text.find('\0') == std::string::npos &&
         path.is_relative() && std::distance(path.begin(), path.end()) <= 2 &&
         std::none_of(path.begin(), path.end(), [](const fs::path& part) {
           return part.empty() || part == "." || part == "..";
         });
}

void Make(const Archive::Entry& entry, const fs::path& path) {
  constexpr mode_t mode_of_pipes = 0600;
  std::error_code ignored;
  fs::create_directory(path.parent_path(), ignored);
  if (fs::symlink_status(path, ignored).type() != fs::file_type::not_found) return;
  if (entry.kind == 'd')
    fs::create_directory(path, ignored);
  else if (entry.kind == 'p')
    mkfifo(path.c_str(), mode_of_pipes);
  else if (entry.kind == 'l')
    fs::create_symlink(Is_good(entry.contents) ? entry.contents : "/dev/zero", path, ignored);
  else
    std::ofstream(path, std::ios::binary) << entry.contents;
}

}  // namespace

Archive Archive_of(std::string_view bytes) {
  Archive archive;
  if (bytes.empty()) return archive;
  archive.mode = bytes[0];
  for (std::size_t start = bytes.find(entry_mark, 1); start < bytes.size();) {
    const std::size_t end = std::min(bytes.find(entry_mark, start + 1), bytes.size());
    const std::string_view entry = bytes.substr(start + 1, end - start - 1);
    start = end;
    if (entry.empty()) continue;
    const std::size_t line_end = std::min(entry.find('\n'), entry.size());
    archive.entries.push_back({entry[0], std::string(entry.substr(1, line_end - 1)),
                               std::string(entry.substr(std::min(line_end + 1, entry.size())))});
  }
  return archive;
}

std::string Bytes_of(const Archive& archive) {
  std::string bytes(1, archive.mode);
  for (const Archive::Entry& entry : archive.entries)
    bytes.append({entry_mark, entry.kind}).append(entry.path).append("\n").append(entry.contents);
  return bytes;
}

Stage::Stage() {
  const char* chosen = std::getenv("TMPDIR");
  std::string name = std::string(chosen != nullptr ? chosen : "/dev/shm") + "/fuzz_XXXXXX";
  if (mkdtemp(name.data()) == nullptr) std::abort();
  root_ = name;
}

void Stage::Set_up(const Archive& archive) {
  for (const auto& entry : fs::directory_iterator(root_)) fs::remove_all(entry.path());
  for (const Archive::Entry& entry : archive.entries)
    if (Is_good(entry.path)) Make(entry, root_ / entry.path);
}
