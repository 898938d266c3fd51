#pragma once

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/types.h>

#include <cerrno>
#include <cstddef>
#include <string>

namespace gns {

/// The one door to the disk: whatever the engine does to files and directories, it does by these
/// calls. Each is the call of the system that is named beside it, once, with its results: -1, or no
/// pointer, is a failure, with the reason in errno. Tests let others stand at the door, to make
/// calls fail. Safe to call from any thread, as far as the system's calls are.
class File_system {
 public:
  /// What stands at the door: the system's own calls, unless a File_system_in_use lives.
  static File_system& At_hand();

  virtual int Open(int directory, const char* path, int flags, mode_t mode);  ///< openat
  virtual ssize_t Read(int file, void* buffer, std::size_t size);             ///< read
  virtual ssize_t Write(int file, const void* data, std::size_t size);        ///< write
  /// mmap of the whole file, to be read; MAP_FAILED is a failure
  virtual void* Map(int file, std::size_t size);
  virtual int Unmap(void* data, std::size_t size);                       ///< munmap
  virtual int Close(int file);                                           ///< close
  virtual int Sync(int file);                                            ///< fsync
  virtual int Sync_all(int file);                                        ///< syncfs
  virtual int Status_of_open(int file, struct stat& status);             ///< fstat
  virtual int Status(const char* path, struct stat& status, int flags);  ///< fstatat
  virtual int Make_dir(const char* path, mode_t mode);                   ///< mkdir
  virtual int Rename(const char* old_path, const char* new_path);        ///< rename
  virtual int Remove(int directory, const char* path, int flags);        ///< unlinkat
  virtual DIR* Open_dir(const char* path);                               ///< opendir
  virtual const dirent* Read_dir(DIR* dir);                              ///< readdir
  virtual int Close_dir(DIR* dir);                                       ///< closedir
  virtual int Space(const char* path, struct statvfs& space);            ///< statvfs
  virtual const char* Working_dir(char* buffer, std::size_t size);       ///< getcwd
  virtual char* Real_path(const char* path);  ///< realpath; the caller frees the text

 protected:
  ~File_system() = default;
};

/// While it lives, another one stands at the door, for all threads. For tests, where no run goes on
/// when it comes or goes.
class File_system_in_use {
 public:
  explicit File_system_in_use(File_system& other);
  ~File_system_in_use();
  File_system_in_use(const File_system_in_use&) = delete;
  File_system_in_use& operator=(const File_system_in_use&) = delete;

 private:
  File_system& before_;
};

/// Makes a call of the system again where a signal comes between, as it can on file systems of a
/// network. Not for closing: the file is closed all the same.
template <typename Call>
auto Uninterrupted(Call call) {
  auto result = call();
  const decltype(result) failed(-1);
  while (result == failed && errno == EINTR) result = call();
  return result;
}

/// Opens a file, seen from the directory if its path is relative; its descriptor, which programs
/// that the process starts don't get, or -1 with the reason in errno.
int Open_file(const std::string& path, int flags, mode_t mode = 0, int directory = AT_FDCWD);

/// Writes all of the data, in several parts if the system takes no more at once. False, with the
/// reason in errno, if a part can't be written; what was in front of it is.
bool Write_all(int file, const char* data, std::size_t size);

/// True for one and the same file or directory, under whatever names.
inline bool Is_same_file(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

/// True for errors that tell that nothing can be reached at a path; after others, such as one of
/// the disk, something may well stand there.
bool Leads_nowhere(int error_number);

}  // namespace gns
