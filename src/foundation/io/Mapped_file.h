#pragma once

#include <cstddef>
#include <span>
#include <string>

namespace gns {

/// The bytes of a file, mapped to be read: they come from the disk when they are looked at, and
/// processes that map the same file share them. The file may be replaced meanwhile, but not cut.
class Mapped_file {
 public:
  /// Throws Xerror_msg, with the words of the system, if it can't be had.
  explicit Mapped_file(const std::string& path);
  ~Mapped_file();
  Mapped_file(Mapped_file&& other) noexcept;
  Mapped_file(const Mapped_file&) = delete;
  Mapped_file& operator=(const Mapped_file&) = delete;
  Mapped_file& operator=(Mapped_file&&) = delete;

  /// They begin at the start of a page.
  [[nodiscard]] std::span<const std::byte> Bytes() const { return bytes_; }

 private:
  std::span<const std::byte> bytes_;
};

}  // namespace gns
