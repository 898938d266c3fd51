#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "foundation/io/Byte_source.h"
#include "foundation/io/Line_reader.h"

namespace gns {

/// Bytes that are unpacked while they are read. What a kind of packing does differently is one step
/// (Unpack).
class Packed_bytes : public Byte_source {
 public:
  /// `kind` and `file` are for messages: "gzip", the path.
  Packed_bytes(std::unique_ptr<Line_reader> packed, std::string file, std::string kind);

  /// Polls as a long stage does.
  std::size_t Read(char* buffer, std::size_t size) final;

 protected:
  /// A step: how much it took of the packed bytes, and how much it put into the buffer.
  struct Step {
    std::size_t taken = 0;
    std::size_t made = 0;
    bool between_parts = false;  ///< a part has ended; another may follow
  };

  /// Unpacks what there is room for. `packed` is empty at the end of the file, where what is held
  /// back may still come out.
  virtual Step Unpack(std::string_view packed, char* buffer, std::size_t size) = 0;

  /// Throws Xerror_msg: what is wrong with the data, and where.
  [[noreturn]] void Refuse(const std::string& why) const;

 private:
  std::unique_ptr<Line_reader> packed_;
  std::string file_;
  std::string kind_;
  std::size_t place_ = 0;  ///< bytes of the file taken so far
  bool between_parts_ = true;
};

}  // namespace gns
