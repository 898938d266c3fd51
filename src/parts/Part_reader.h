#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "foundation/Errors.h"
#include "parts/Part_format.h"

namespace gns::parts {

/// A part is missing, can't be read, or isn't the one that is needed. The message names it and
/// tells what to do.
class Xbad_part : public Xerror_msg {
 public:
  /// `why` is what stands behind the name: "is missing".
  Xbad_part(const std::string& name, const std::string& why, const std::string& cure);
  ~Xbad_part() noexcept override;

  std::string fault;  ///< the message without the cure, and without an end
};

/// What a part is called in messages, and how it is made again: a sentence.
struct Part_label {
  std::string name;
  std::string cure;
};

/// How closely a part is looked at: at its head and tail, or at all bytes.
enum class Part_check { ends, all };

/// The sections of a part, where they lie in a mapped file or another block of memory.
class Part_reader {
 public:
  /// `bytes` begin at a multiple of eight and outlive what is read. Throws Xbad_part for what is
  /// cut, changed, of another kind, version, run or number. A fingerprint of 0 stands for that of
  /// the graph itself. Polls as a long stage does.
  Part_reader(std::span<const std::byte> bytes, const Part_identity& expected, Part_label label,
              Part_check check = Part_check::all);

  /// Throws Xbad_part if the section isn't there, or holds no whole number of values.
  template <typename Value>
  [[nodiscard]] std::span<const Value> Section(std::size_t section) const {
    const std::span<const std::byte> bytes = Bytes(section);
    if (bytes.size() % sizeof(Value) != 0) Refuse_damaged();
    return {reinterpret_cast<const Value*>(bytes.data()), bytes.size() / sizeof(Value)};
  }
  [[nodiscard]] std::string Text(std::size_t section) const;

  [[nodiscard]] std::uint64_t Stored_checksum() const { return tail_.checksum; }
  [[noreturn]] void Refuse(const std::string& why) const;
  [[noreturn]] void Refuse_damaged() const;

 private:
  [[nodiscard]] std::span<const std::byte> Bytes(std::size_t section) const;
  void Check_head(const Part_head& head) const;
  void Check_whose(const Part_head& head, const Part_identity& expected) const;
  void Check_all() const;
  void Take_places();

  std::span<const std::byte> bytes_;
  Part_label label_;
  Part_tail tail_ = {};
  std::vector<Section_place> places_;
};

}  // namespace gns::parts
