#include "Archive.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

namespace fs = std::filesystem;

constexpr char entry_mark = 0x1e;
constexpr mode_t mode_of_files = 0600;
constexpr mode_t mode_of_dirs = 0700;

/// A path as Stage takes it, or nothing if it is a bad one.
std::string Good_path(std::string_view text) {
  const std::size_t slash = text.find('/');
  const bool deep = slash != std::string_view::npos;
  for (const std::string_view part : {text.substr(0, slash), deep ? text.substr(slash + 1) : "x"})
    if (part.empty() || part.size() > 200 || part == "." || part == ".." ||
        part.find_first_of(std::string_view("/\0", 2)) != std::string_view::npos)
      return {};
  return std::string(text);
}

std::string Contents_of(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
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

Archive Archive_of_dir(const std::string& directory, char mode, unsigned k) {
  Archive archive;
  archive.mode = mode;
  const std::string dir_of_k = "k=" + std::to_string(k);
  for (const auto& entry : fs::recursive_directory_iterator(directory)) {
    const fs::path path = fs::relative(entry.path(), directory);
    if (entry.is_regular_file() && (!path.has_parent_path() || path.parent_path() == dir_of_k))
      archive.entries.push_back({'f', path.string(), Contents_of(entry.path())});
  }
  return archive;
}

Stage::Stage() {
  const char* chosen = std::getenv("TMPDIR");
  std::string name = std::string(chosen != nullptr ? chosen : "/dev/shm") + "/fuzz_XXXXXX";
  if (mkdtemp(name.data()) == nullptr) std::abort();
  root_ = open(name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  path_ = name;
}

Stage::~Stage() {
  Clear();
  close(root_);
  rmdir(path_.c_str());
}

void Stage::Set_up(const Archive& archive) {
  for (const Archive::Entry& entry : archive.entries) {
    const std::string path = Good_path(entry.path);
    if (path.empty()) continue;
    const std::size_t slash = path.find('/');
    if (slash != std::string::npos) {
      const std::string directory = path.substr(0, slash);
      if (mkdirat(root_, directory.c_str(), mode_of_dirs) == 0) made_.emplace_back(directory, true);
    }
    Make(entry, path);
  }
}

void Stage::Make(const Archive::Entry& entry, const std::string& path) {
  bool made = false;
  if (entry.kind == 'd') {
    made = mkdirat(root_, path.c_str(), mode_of_dirs) == 0;
  } else if (entry.kind == 'p') {
    made = mkfifoat(root_, path.c_str(), mode_of_files) == 0;
  } else if (entry.kind == 'l') {
    std::string target = Good_path(entry.contents);
    if (target.empty()) target = "/dev/zero";
    made = symlinkat(target.c_str(), root_, path.c_str()) == 0;
  } else {
    const int file =
        openat(root_, path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode_of_files);
    made = file >= 0;
    if (made && write(file, entry.contents.data(), entry.contents.size()) < 0) std::abort();
    if (made) close(file);
  }
  if (made) made_.emplace_back(path, entry.kind == 'd');
}

void Stage::Clear() {
  for (; !made_.empty(); made_.pop_back())
    if (unlinkat(root_, made_.back().first.c_str(), made_.back().second ? AT_REMOVEDIR : 0) != 0)
      std::abort();
}
