#include "formats/Csv_records.h"

#include <cstring>

#include "control/Run_control.h"
#include "foundation/text/Shown_text.h"
#include "foundation/text/Text_fields.h"

namespace gns {

namespace {

constexpr std::string_view blanks = " \t";

/// Without what stands around a field; most fields have nothing there.
std::string_view Bare(std::string_view field) {
  if (field.empty() || (field.front() > ' ' && field.back() > ' ')) return field;
  const std::string_view bare = Trimmed(field, blanks);
  return bare.empty() ? field.substr(0, 0) : bare;  // its place counts
}

std::string_view Without_return(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

}  // namespace

Csv_records::Csv_records(Line_reader& reader, char separator, std::size_t most_fields,
                         std::string file)
    : reader_(reader), separator_(separator), most_(most_fields), file_(std::move(file)) {}

bool Csv_records::Next() {
  std::string_view line;
  while (reader_.Next(line)) {
    external_control::Check_inside_long_stage();
    line = Without_return(line);
    if (Trimmed(line, blanks).empty()) continue;
    fields_.clear();
    has_quotes_ = std::memchr(line.data(), '"', line.size()) != nullptr;
    if (has_quotes_)
      Split_quoted(line);
    else
      Split_plain(line);
    return true;
  }
  return false;
}

Field_place Csv_records::Place_of(std::size_t field) const {
  if (has_quotes_) return starts_[std::min(field, starts_.size() - 1)].place;
  const char* const start = field < fields_.size() ? fields_[field].data() : line_.end();
  return {reader_.Lines_taken(), Count_characters({line_.data(), start}) + 1};
}

void Csv_records::Split_plain(std::string_view line) {
  line_ = line;
  const char* const end = line.data() + line.size();
  const char* start = line.data();
  while (fields_.size() < most_) {
    const auto* const found = static_cast<const char*>(
        std::memchr(start, separator_, static_cast<std::size_t>(end - start)));
    fields_.push_back(Bare({start, found == nullptr ? end : found}));
    if (found == nullptr) return;
    start = found + 1;
  }
}

/// Copies fields, as those in quotes may lose some of these, and go on in further lines.
void Csv_records::Split_quoted(std::string_view line) {
  text_.clear();
  starts_.clear();
  parts_.clear();
  std::size_t line_number = reader_.Lines_taken();
  std::size_t at = 0;
  std::size_t column = 1;
  const auto step = [&] { column += Continues_character(line[at++]) ? 0 : 1; };
  for (bool more = true; more;) {
    while (at < line.size() && line[at] != separator_ && Is_space(line[at])) step();
    starts_.push_back({text_.size(), {line_number, column}});
    const bool is_quoted = at < line.size() && line[at] == '"';
    if (is_quoted) {
      step();
      for (;;) {
        if (at == line.size()) {
          text_ += '\n';
          external_control::Check_inside_long_stage();
          if (!reader_.Next(line))
            Refuse(starts_.back().place, "quotes that end somewhere",
                   std::string_view(text_).substr(starts_.back().text));
          line = Without_return(line);
          ++line_number;
          at = 0;
          column = 1;
        } else if (line[at] != '"') {
          text_ += line[at];
          step();
        } else if (at + 1 < line.size() && line[at + 1] == '"') {
          text_ += '"';
          step();
          step();
        } else {
          step();
          break;
        }
      }
      while (at < line.size() && line[at] != separator_ && Is_space(line[at])) step();
      if (at < line.size() && line[at] != separator_)
        Refuse({line_number, column}, "a separator behind the quotes", line.substr(at));
    } else {
      while (at < line.size() && line[at] != separator_) {
        text_ += line[at];
        step();
      }
    }
    End_field(is_quoted);
    more = at < line.size();
    if (more) step();
  }
  starts_.push_back({text_.size(), {line_number, column}});
  for (const auto& [start, size] : parts_)
    fields_.push_back(std::string_view(text_).substr(start, size));
}

/// The field that the text ends with. What stands behind those that are wanted is dropped.
void Csv_records::End_field(bool is_quoted) {
  const std::size_t start = starts_.back().text;
  if (parts_.size() == most_) {
    text_.resize(start);
    starts_.pop_back();
    return;
  }
  std::string_view field = std::string_view(text_).substr(start);
  if (!is_quoted) field = Trimmed(field, blanks);
  parts_.emplace_back(start, field.size());
}

void Csv_records::Refuse(const Field_place& place, const char* expected,
                         std::string_view found) const {
  Refuse_field(file_, place,
               {expected, found, "A quote inside a field in quotes is written as two."});
}

}  // namespace gns
