#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "parts/Checksum.h"
#include "parts/Part_format.h"

namespace gns::parts {

/// Takes bytes, in order.
using Byte_taker = std::function<void(std::span<const std::byte>)>;

/// Puts a part together, section by section. Polls as a long stage does.
class Part_writer {
 public:
  /// Writes the head.
  Part_writer(Byte_taker take, const Part_identity& identity);

  void Begin_section();
  /// Appends to the section that was begun last.
  template <typename Value>
  void Append(std::span<const Value> values) {
    Append_bytes(std::as_bytes(values));
  }
  /// A whole section.
  template <typename Value>
  void Add(std::span<const Value> values) {
    Begin_section();
    Append(values);
  }
  void Add(const std::string& text) { Add(std::span(text)); }

  /// Writes the tail and yields the checksum in it.
  std::uint64_t End();

 private:
  void Append_bytes(std::span<const std::byte> bytes);
  void Write(std::span<const std::byte> bytes);

  Byte_taker take_;
  Checksum checksum_;
  std::uint64_t written_ = 0;
  std::vector<Section_place> sections_;
};

}  // namespace gns::parts
