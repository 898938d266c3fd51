#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "formats/Bad_field.h"
#include "foundation/io/Line_reader.h"

namespace gns {

/// The records of a file of separated values: lines of fields, which may stand in quotes (`""` is
/// one quote there, and line ends and separators are text). Blanks and tabs around a field that
/// isn't in quotes don't count, nor does a carriage return in front of a line end.
class Csv_records {
 public:
  /// Fields behind the first `most_fields` are left out. `file` is for messages.
  Csv_records(Line_reader& reader, char separator, std::size_t most_fields, std::string file);

  /// Takes the next record that isn't an empty line; false at the end. Throws Xep_wrong_line where
  /// quotes don't end, or something follows them.
  bool Next();

  /// The fields, valid until the next call of Next().
  [[nodiscard]] const std::vector<std::string_view>& Fields() const { return fields_; }
  /// Where a field stands, or, behind the last one, where the record ends.
  [[nodiscard]] Field_place Place_of(std::size_t field) const;

 private:
  struct Start {
    std::size_t text;
    Field_place place;
  };

  void Split_plain(std::string_view line);
  void Split_quoted(std::string_view line);
  void End_field(bool is_quoted);
  [[noreturn]] void Refuse(const Field_place& place, const char* expected,
                           std::string_view found) const;

  Line_reader& reader_;
  char separator_;
  std::size_t most_;
  std::string file_;
  std::string_view line_;  ///< of a record without quotes
  bool has_quotes_ = false;
  std::string text_;           ///< of a record with quotes: its fields, one behind the other
  std::vector<Start> starts_;  ///< of these fields
  std::vector<std::pair<std::size_t, std::size_t>> parts_;
  std::vector<std::string_view> fields_;
};

}  // namespace gns
