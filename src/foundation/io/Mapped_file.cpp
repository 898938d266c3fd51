#include "foundation/io/Mapped_file.h"

#include <sys/mman.h>

#include <cerrno>
#include <system_error>
#include <utility>

#include "foundation/Errors.h"
#include "foundation/io/Descriptor.h"
#include "foundation/io/File_system.h"

namespace gns {

namespace {

/// What is mapped; of an empty file nothing can be.
std::span<const std::byte> Mapped(const std::string& path) {
  File_system& files = File_system::At_hand();
  const auto refuse = [&](int error) {
    throw Xerror_msg("ERROR: '" + path +
                     "' can't be read: " + std::generic_category().message(error) + ".\n");
  };
  const Descriptor file(Open_file(path, O_RDONLY));
  struct stat status {};
  if (!file.Is_open() || files.Status_of_open(file.Number(), status) != 0) refuse(errno);
  if (S_ISDIR(status.st_mode)) refuse(EISDIR);
  const auto size = static_cast<std::size_t>(status.st_size);
  if (size == 0) return {};
  void* const data = files.Map(file.Number(), size);
  if (data == MAP_FAILED) refuse(errno);
  return {static_cast<const std::byte*>(data), size};
}

}  // namespace

Mapped_file::Mapped_file(const std::string& path) : bytes_(Mapped(path)) {}

Mapped_file::Mapped_file(Mapped_file&& other) noexcept : bytes_(std::exchange(other.bytes_, {})) {}

Mapped_file::~Mapped_file() {
  if (!bytes_.empty())
    File_system::At_hand().Unmap(const_cast<std::byte*>(bytes_.data()), bytes_.size());
}

}  // namespace gns
