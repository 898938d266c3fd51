#include "foundation/io/File_system.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdio>
#include <cstdlib>

namespace gns {

namespace {

class System_files final : public File_system {};

constinit System_files system_files;
constinit std::atomic<File_system*> at_hand = &system_files;

}  // namespace

File_system& File_system::At_hand() { return *at_hand.load(std::memory_order_acquire); }

int File_system::Open(int directory, const char* path, int flags, mode_t mode) {
  return ::openat(directory, path, flags, mode);
}

ssize_t File_system::Read(int file, void* buffer, std::size_t size) {
  return ::read(file, buffer, size);
}

ssize_t File_system::Write(int file, const void* data, std::size_t size) {
  return ::write(file, data, size);
}

void* File_system::Map(int file, std::size_t size) {
  return ::mmap(nullptr, size, PROT_READ, MAP_SHARED, file, 0);
}

int File_system::Unmap(void* data, std::size_t size) { return ::munmap(data, size); }

int File_system::Close(int file) { return ::close(file); }

int File_system::Sync(int file) { return ::fsync(file); }

int File_system::Sync_all(int file) { return ::syncfs(file); }

int File_system::Status_of_open(int file, struct stat& status) { return ::fstat(file, &status); }

int File_system::Status(const char* path, struct stat& status, int flags) {
  return ::fstatat(AT_FDCWD, path, &status, flags);
}

int File_system::Make_dir(const char* path, mode_t mode) { return ::mkdir(path, mode); }

int File_system::Rename(const char* old_path, const char* new_path) {
  return std::rename(old_path, new_path);
}

int File_system::Remove(int directory, const char* path, int flags) {
  return ::unlinkat(directory, path, flags);
}

DIR* File_system::Open_dir(const char* path) { return ::opendir(path); }

// Nobody else reads from the same listing. NOLINTNEXTLINE(concurrency-mt-unsafe)
const dirent* File_system::Read_dir(DIR* dir) { return ::readdir(dir); }

int File_system::Close_dir(DIR* dir) { return ::closedir(dir); }

int File_system::Space(const char* path, struct statvfs& space) { return ::statvfs(path, &space); }

const char* File_system::Working_dir(char* buffer, std::size_t size) {
  return ::getcwd(buffer, size);
}

char* File_system::Real_path(const char* path) { return ::realpath(path, nullptr); }

File_system_in_use::File_system_in_use(File_system& other)
    : before_(*at_hand.exchange(&other, std::memory_order_acq_rel)) {}

File_system_in_use::~File_system_in_use() { at_hand.store(&before_, std::memory_order_release); }

int Open_file(const std::string& path, int flags, mode_t mode, int directory) {
  return Uninterrupted([&] {
    return File_system::At_hand().Open(directory, path.c_str(), flags | O_CLOEXEC, mode);
  });
}

bool Write_all(int file, const char* data, std::size_t size) {
  while (size > 0) {
    const ssize_t written =
        Uninterrupted([&] { return File_system::At_hand().Write(file, data, size); });
    if (written < 0) return false;
    data += written;
    size -= static_cast<std::size_t>(written);
  }
  return true;
}

bool Leads_nowhere(int error_number) {
  constexpr std::array errors = {ENOENT, ENOTDIR, EACCES, ELOOP, ENAMETOOLONG};
  return std::ranges::find(errors, error_number) != errors.end();
}

}  // namespace gns
