#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>

#include "foundation/io/File_system.h"

namespace gns {

/// What can fail at the door to the disk.
enum class File_call {
  open,
  read,
  rest_of_read,  ///< reads a part of what there is
  write,
  rest_of_write,  ///< writes a part
  map,
  close,
  sync,
  sync_all,
  status_of_open,
  status,
  make_dir,
  rename,
  remove,
  open_dir,
  read_dir,
  close_dir,
  space,
  working_dir,
  real_path
};

/// Passes every call on to the system, but lets one of a kind fail: the n-th, counted from 1. What
/// is to be closed is closed all the same, and nothing waits for the disk. A failure that comes
/// when all has been written, of closing or syncing, takes some of it back.
class Failing_files final : public File_system {
 public:
  Failing_files(File_call call, int error, int nth) : call_(call), error_(error), left_(nth) {}

  [[nodiscard]] bool Has_failed() const { return left_ <= 0; }

  int Open(int directory, const char* path, int flags, mode_t mode) override {
    return Fails(File_call::open) ? -1 : File_system::Open(directory, path, flags, mode);
  }
  ssize_t Read(int file, void* buffer, std::size_t size) override {
    if (Fails(File_call::read)) return -1;
    return File_system::Read(file, buffer, Fails(File_call::rest_of_read) ? 1 : size);
  }
  ssize_t Write(int file, const void* data, std::size_t size) override {
    if (Fails(File_call::write)) return -1;
    return File_system::Write(file, data, Fails(File_call::rest_of_write) ? size / 2 : size);
  }
  void* Map(int file, std::size_t size) override {
    return Fails(File_call::map) ? MAP_FAILED : File_system::Map(file, size);
  }
  int Close(int file) override {
    if (!Fails(File_call::close)) return File_system::Close(file);
    Lose(file);
    File_system::Close(file);
    return Failure();
  }
  int Sync(int) override { return Fails(File_call::sync) ? -1 : 0; }
  int Sync_all(int directory) override {
    if (!Fails(File_call::sync_all)) return 0;
    const int file = File_system::Open(directory, "input_params.txt", O_WRONLY, 0);
    if (error_ != EINTR) Lose(file);
    File_system::Close(file);
    return Failure();
  }
  int Status_of_open(int file, struct stat& status) override {
    return Fails(File_call::status_of_open) ? -1 : File_system::Status_of_open(file, status);
  }
  int Status(const char* path, struct stat& status, int flags) override {
    return Fails(File_call::status) ? -1 : File_system::Status(path, status, flags);
  }
  int Make_dir(const char* path, mode_t mode) override {
    return Fails(File_call::make_dir) ? -1 : File_system::Make_dir(path, mode);
  }
  int Rename(const char* old_path, const char* new_path) override {
    return Fails(File_call::rename) ? -1 : File_system::Rename(old_path, new_path);
  }
  int Remove(int directory, const char* path, int flags) override {
    return Fails(File_call::remove) ? -1 : File_system::Remove(directory, path, flags);
  }
  DIR* Open_dir(const char* path) override {
    return Fails(File_call::open_dir) ? nullptr : File_system::Open_dir(path);
  }
  const dirent* Read_dir(DIR* dir) override {
    return Fails(File_call::read_dir) ? nullptr : File_system::Read_dir(dir);
  }
  int Close_dir(DIR* dir) override {
    File_system::Close_dir(dir);
    return Fails(File_call::close_dir) ? -1 : 0;
  }
  int Space(const char* path, struct statvfs& space) override {
    return Fails(File_call::space) ? -1 : File_system::Space(path, space);
  }
  const char* Working_dir(char* buffer, std::size_t size) override {
    return Fails(File_call::working_dir) ? nullptr : File_system::Working_dir(buffer, size);
  }
  char* Real_path(const char* path) override {
    return Fails(File_call::real_path) ? nullptr : File_system::Real_path(path);
  }

 private:
  bool Fails(File_call call) {
    if (call != call_ || --left_ != 0) return false;
    Failure();
    return true;
  }
  int Failure() const {
    errno = error_;
    return -1;
  }
  /// Empties a file that is open for writing.
  static void Lose(int file) {
    if (::ftruncate(file, 0) != 0) return;
  }

  File_call call_;
  int error_;
  int left_;
};

}  // namespace gns
