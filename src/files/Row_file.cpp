#include "files/Row_file.h"

#include <charconv>
#include <utility>

#include "control/Run_control.h"
#include "foundation/Errors.h"
#include "foundation/io/Line_reader.h"
#include "foundation/text/Text_fields.h"

namespace gns {

namespace {

/// Takes "INDEX:" off a line, if it is that of the row.
bool Take_head(std::string_view& line, std::size_t row, bool& signed_index) {
  signed_index = line.starts_with('-');
  if (signed_index) line.remove_prefix(1);
  std::size_t index = 0;
  const auto read = std::from_chars(line.data(), line.data() + line.size(), index);
  const auto digits = static_cast<std::size_t>(read.ptr - line.data());
  if (read.ec != std::errc() || index != row || digits == line.size() || line[digits] != ':')
    return false;
  line.remove_prefix(digits + 1);
  return true;
}

}  // namespace

std::size_t Read_row_file(const std::string& file_name,
                          const std::function<bool(std::string_view word)>& take,
                          const std::function<void()>& end_row) {
  Line_reader reader(file_name, Line_reader::Source::regular_file);
  std::size_t rows = 0;
  std::size_t rows_without_sign = 0;
  for (std::string_view line; reader.Next(line);) {
    external_control::Check_inside_long_stage();
    if (line.empty() || line.front() == '#') continue;
    const auto refuse = [&](std::string_view found, const char* expected) {
      throw Xep_wrong_line(std::string(line),
                           {file_name, reader.Lines_taken(), 0, expected, std::string(found)});
    };
    std::string_view rest = line;
    bool signed_index = false;
    if (!Take_head(rest, rows, signed_index) || (!signed_index && rows > rows_without_sign))
      refuse(line.substr(0, line.find(':')), "the index of the row");
    for (std::string_view word = Extract_word(rest); !word.empty(); word = Extract_word(rest))
      if (!take(word)) refuse(word, "something that the results hold");
    if (!reader.Terminated()) refuse("", "the end of the line");
    end_row();
    ++rows;
    if (!signed_index) rows_without_sign = rows;
  }
  return rows_without_sign;
}

}  // namespace gns
