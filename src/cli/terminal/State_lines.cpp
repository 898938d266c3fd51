#include "cli/terminal/State_lines.h"

#include <algorithm>
#include <string_view>

#include "control/Clique_find_ext_cont.h"
#include "foundation/text/Text_fields.h"

namespace gns {

std::vector<std::string> State_lines() {
  const std::string report = Read_state_report();
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < report.size();) {
    const std::size_t end = std::min(report.find('\n', at), report.size());
    const std::string_view line = Trimmed(std::string_view(report).substr(at, end - at), " ");
    if (line.find_first_not_of('_') != std::string_view::npos) lines.emplace_back(line);
    at = end + 1;
  }
  return lines;
}

}  // namespace gns
