#include "parts/Part_reader.h"

#include <algorithm>
#include <cstring>
#include <string_view>
#include <utility>

#include "control/Run_control.h"
#include "parts/Checksum.h"
#include "vorlane/version.h"

namespace gns::parts {

namespace {

std::string Version_in(const Part_head& head) {
  const std::string_view all(head.program.data(), head.program.size());
  return std::string(all.substr(0, all.find('\0')));
}

}  // namespace

Xbad_part::Xbad_part(const std::string& name, const std::string& why, const std::string& cure)
    : Xerror_msg("ERROR: '" + name + "' " + why + ". " + cure + "\n"),
      fault("'" + name + "' " + why) {}

Xbad_part::~Xbad_part() noexcept = default;

Part_reader::Part_reader(std::span<const std::byte> bytes, const Part_identity& expected,
                         Part_label label, Part_check check)
    : bytes_(bytes), label_(std::move(label)) {
  Part_head head = {};
  if (bytes.size() < sizeof head + sizeof tail_) Refuse_damaged();
  std::memcpy(&head, bytes.data(), sizeof head);
  std::memcpy(&tail_, bytes.data() + bytes.size() - sizeof tail_, sizeof tail_);
  Check_head(head);
  if (tail_.magic != tail_magic) Refuse_damaged();
  if (check == Part_check::all) Check_all();
  Check_whose(head, expected);
  Take_places();
}

void Part_reader::Refuse(const std::string& why) const {
  throw Xbad_part(label_.name, why, label_.cure);
}

void Part_reader::Refuse_damaged() const { Refuse("is cut or damaged"); }

/// The fields whose places no version changes.
void Part_reader::Check_head(const Part_head& head) const {
  if (head.magic != head_magic) Refuse("is no part of a run, or is damaged");
  if (head.byte_order != byte_order_mark)
    Refuse("was made on a machine that has the bytes of numbers in another order, or is damaged");
  if (head.format != part_format)
    Refuse("has version " + std::to_string(head.format) +
           " of the format, or is damaged: this is " + "Vorlane " + VORLANE_VERSION +
           ", which has version " + std::to_string(part_format));
}

void Part_reader::Check_all() const {
  constexpr std::size_t step = std::size_t{1} << 20U;
  Checksum checksum;
  const std::size_t behind = sizeof tail_.checksum + sizeof tail_.magic;
  for (auto rest = bytes_.first(bytes_.size() - behind); !rest.empty();) {
    external_control::Check_inside_long_stage();
    const auto front = rest.first(std::min(step, rest.size()));
    checksum.Add(front);
    rest = rest.subspan(front.size());
  }
  if (checksum.Value() != tail_.checksum) Refuse_damaged();
}

void Part_reader::Check_whose(const Part_head& head, const Part_identity& expected) const {
  if (Version_in(head) != VORLANE_VERSION)
    Refuse("was made by version " + Version_in(head) + " of Vorlane, and this is " +
           VORLANE_VERSION + "; all parts of a run need the same");
  if (head.kind != static_cast<std::uint32_t>(expected.kind) || head.number != expected.number)
    Refuse("is another part than its name tells");
  if (head.fingerprint != expected.fingerprint) Refuse("belongs to another run");
}

void Part_reader::Take_places() {
  const std::size_t room = bytes_.size() - sizeof(Part_head) - sizeof tail_;
  if (tail_.sections > room / sizeof(Section_place)) Refuse_damaged();
  const std::size_t size = tail_.sections * sizeof(Section_place);
  const std::size_t start = bytes_.size() - sizeof tail_ - size;
  places_.resize(tail_.sections);
  std::memcpy(places_.data(), bytes_.data() + start, size);
  for (const Section_place& place : places_)
    if (place.start > start || place.bytes > start - place.start ||
        place.start % section_alignment != 0)
      Refuse_damaged();
}

std::span<const std::byte> Part_reader::Bytes(std::size_t section) const {
  if (section >= places_.size()) Refuse_damaged();
  return bytes_.subspan(places_[section].start, places_[section].bytes);
}

std::string Part_reader::Text(std::size_t section) const {
  const auto characters = Section<char>(section);
  return {characters.begin(), characters.end()};
}

}  // namespace gns::parts
