#include "parts/File_aside.h"

#include <cerrno>
#include <system_error>
#include <utility>

#include "foundation/Environment.h"
#include "foundation/Errors.h"
#include "foundation/io/File_system.h"
#include "foundation/paths/Dir_listing.h"
#include "parts/Aside.h"

namespace gns::parts {

namespace {

constexpr std::size_t block_size = std::size_t{1} << 18U;

std::string Folder_of(const std::string& path) { return path.substr(0, path.rfind('/')); }

/// Opens a file that nobody else has; one of a process of the same number, which is gone, may be
/// there.
int Open_new(const std::string& path, std::string& aside) {
  constexpr mode_t mode = 0666;
  for (;;) {
    aside = Name_aside(path);
    const int file = Open_file(aside, O_WRONLY | O_CREAT | O_EXCL, mode);
    if (file >= 0 || errno != EEXIST) return file;
  }
}

}  // namespace

bool Is_synced() { return Environment_variable("VORLANE_NO_SYNC").empty(); }

File_aside::File_aside(std::string path) : path_(std::move(path)), file_(Open_new(path_, aside_)) {
  Check(file_.Is_open(), "open");
}

File_aside::~File_aside() {
  if (!finished_) File_system::At_hand().Remove(AT_FDCWD, aside_.c_str(), 0);
}

void File_aside::Check(bool done, const char* action) {
  if (done) return;
  const int error = errno;
  throw Xerror_msg("ERROR: '" + path_ + "' can't be written: " + action + ": " +
                   std::generic_category().message(error) +
                   ". Nothing is left of it; do the same again when that is mended.\n");
}

void File_aside::Write(std::span<const std::byte> bytes) {
  const auto* const characters = reinterpret_cast<const char*>(bytes.data());
  if (held_.size() + bytes.size() > block_size) Write_held();
  if (bytes.size() < block_size)
    held_.append(characters, bytes.size());
  else
    Check(Write_all(file_.Number(), characters, bytes.size()), "write");
}

void File_aside::Write_held() {
  Check(Write_all(file_.Number(), held_.data(), held_.size()), "write");
  held_.clear();
}

void File_aside::Finish() {
  File_system& files = File_system::At_hand();
  Write_held();
  const auto sync = [&](int file) { return Uninterrupted([&] { return files.Sync(file); }) == 0; };
  Check(!Is_synced() || sync(file_.Number()), "sync");
  Check(file_.Close(), "close");
  Check(files.Rename(aside_.c_str(), path_.c_str()) == 0, "rename");
  finished_ = true;
  if (!Is_synced()) return;
  const Descriptor folder(Open_file(Folder_of(path_), O_RDONLY | O_DIRECTORY));
  Check(folder.Is_open() && sync(folder.Number()), "sync the folder");
}

void Delete_left_aside(const std::string& folder) {
  Dir_listing listing(folder);
  while (const char* const name = listing.Next())
    if (const auto maker = Maker_of(name); maker && !maker->May_be_alive())
      File_system::At_hand().Remove(AT_FDCWD, (folder + "/" + name).c_str(), 0);
}

void Write_text_aside(const std::string& path, const std::string& text) {
  File_aside file(path);
  file.Write(std::as_bytes(std::span(text)));
  file.Finish();
}

}  // namespace gns::parts
