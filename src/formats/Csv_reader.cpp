#include "formats/Csv_reader.h"

#include <algorithm>
#include <string_view>

#include "formats/Bad_field.h"
#include "formats/Csv_layout.h"
#include "formats/Csv_records.h"
#include "foundation/text/My_string_to_d.h"
#include "input/Link_file_kind.h"
#include "input/Link_file_reader.h"

namespace gns {

namespace {

constexpr const char* choose_columns = "--columns=FROM,TO,WEIGHT tells which columns are which.";

/// Lines in front of the first record that are remarks.
void Skip_remarks(Line_reader& reader) {
  if (reader.Peek(utf8_mark.size()) == utf8_mark) reader.Take(utf8_mark.size(), 0);
  std::string_view line;
  while (reader.Peek(1) == "#" && reader.Next(line)) continue;
}

double Weight_of(std::string_view field, const Field_place& place, const std::string& file) {
  double weight = 0.0;
  if (stringtodouble(field, weight)) return weight;
  const bool has_comma = field.find(',') != std::string_view::npos;
  Refuse_field(file, place,
               {std::string(expected_weight), field,
                has_comma ? "Write numbers with a point." : choose_columns});
}

}  // namespace

void Read_csv(Line_reader& reader, Format format, const Input_wishes& wishes, Name_rule& names,
              const std::string& file, Link_intake& intake) {
  Skip_remarks(reader);
  const std::string_view start = reader.Peek(layout_bytes);
  if (start.find('\n') == std::string_view::npos &&
      start.substr(0, start.size() - 1).find('\r') < start.size())
    Refuse_field(file, {1, 0},
                 {"lines that end with a line feed", "\r",
                  "A program such as tr makes one of each carriage return: tr '\\r' '\\n'."});
  const Csv_layout layout = Layout_of(start, format, wishes, file);
  Csv_records records(reader, layout.separator, layout.Width(), file);
  if (layout.has_header) records.Next();
  const std::size_t last_name = std::max(layout.first, layout.second);
  while (records.Next()) {
    const std::vector<std::string_view>& fields = records.Fields();
    if (fields.size() <= last_name)
      Refuse_field(file, records.Place_of(fields.size()),
                   {"a field in column " + std::to_string(last_name + 1), "", choose_columns});
    const std::string_view first = fields[layout.first];
    const std::string_view second = fields[layout.second];
    if (first.empty() && second.empty()) continue;  // a row of a table that was left free
    double weight = 0.0;
    if (intake.Is_weighted()) {
      const bool is_there = layout.weight && *layout.weight < fields.size();
      const std::size_t at = is_there ? *layout.weight : fields.size();
      weight = Weight_of(is_there ? fields[at] : std::string_view(), records.Place_of(at), file);
    }
    const std::string_view from = names.Fit(first, [&] { return records.Place_of(layout.first); });
    const std::string_view to = names.Fit(second, [&] { return records.Place_of(layout.second); });
    intake.Take(from, to, weight);
  }
}

}  // namespace gns
