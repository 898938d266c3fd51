#include "cli/terminal/Text_table.h"

#include <algorithm>
#include <iomanip>

#include "foundation/text/Shown_text.h"

namespace gns {

namespace {

std::string In_csv(const std::string& cell) {
  if (cell.find_first_of(",\"\r\n") == std::string::npos) return cell;
  std::string quoted = "\"";
  for (const char c : cell) quoted.append(c == '"' ? 2 : 1, c);
  return quoted + "\"";
}

}  // namespace

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
    for (std::size_t i = 0; i < row.size(); ++i) stream << (i > 0 ? "," : "") << In_csv(row[i]);
    stream << "\n";
  }
}

}  // namespace gns
