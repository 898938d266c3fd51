#include "parts/Part_writer.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "control/Run_control.h"
#include "vorlane/version.h"

namespace gns::parts {

Part_writer::Part_writer(Byte_taker take, const Part_identity& identity) : take_(std::move(take)) {
  Part_head head = {
      head_magic,           byte_order_mark, part_format, static_cast<std::uint32_t>(identity.kind),
      identity.fingerprint, identity.number, {}};
  static_assert(sizeof VORLANE_VERSION <= sizeof head.program);
  std::memcpy(head.program.data(), VORLANE_VERSION, sizeof VORLANE_VERSION);
  Write(Bytes_of(head));
}

void Part_writer::Begin_section() {
  constexpr std::array<std::byte, section_alignment> zeros = {};
  const std::size_t behind = written_ % section_alignment;
  if (behind > 0) Write(std::span(zeros).first(section_alignment - behind));
  sections_.push_back({written_, 0});
}

void Part_writer::Append_bytes(std::span<const std::byte> bytes) {
  sections_.back().bytes += bytes.size();
  Write(bytes);
}

/// In steps between which a stop is noticed.
void Part_writer::Write(std::span<const std::byte> bytes) {
  constexpr std::size_t step = std::size_t{1} << 20U;
  written_ += bytes.size();
  while (!bytes.empty()) {
    external_control::Check_inside_long_stage();
    const auto front = bytes.first(std::min(step, bytes.size()));
    checksum_.Add(front);
    take_(front);
    bytes = bytes.subspan(front.size());
  }
}

std::uint64_t Part_writer::End() {
  const std::uint64_t count = sections_.size();
  Begin_section();
  sections_.pop_back();
  Write(std::as_bytes(std::span(sections_)));
  Write(Bytes_of(count));
  const std::uint64_t checksum = checksum_.Value();
  take_(Bytes_of(checksum));
  take_(Bytes_of(tail_magic));
  return checksum;
}

}  // namespace gns::parts
