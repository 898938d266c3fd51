#include "cli/terminal/Text_table.h"

#include <algorithm>

#include "foundation/text/Csv_text.h"
#include "foundation/text/Shown_text.h"

namespace gns {

void Text_table::Print(std::ostream& stream) const {
  std::vector<std::size_t> widths(rows_.front().size(), 0);
  for (const auto& row : rows_)
    for (std::size_t i = 0; i < row.size(); ++i)
      widths[i] = std::max(widths[i], Count_characters(row[i]));
  for (const auto& row : rows_) {
    for (std::size_t i = 0; i < row.size(); ++i)
      stream << std::string(2 + widths[i] - Count_characters(row[i]), ' ') << row[i];
    stream << "\n";
  }
}

void Text_table::Print_csv(std::ostream& stream) const {
  for (const auto& row : rows_) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (i > 0) line += ',';
      Append_csv(row[i], ',', line);
    }
    stream << line << "\n";
  }
}

}  // namespace gns
