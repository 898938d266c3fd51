#include "packaging/Readme_table.h"

#include "cli/options/Option_table.h"

namespace gns {

std::string Readme_table() {
  std::string text = "| Switch | Meaning | Default |\n|---|---|---|\n";
  for (const Option& option : All_options()) {
    text.append("| `")
        .append(option.Form())
        .append("` | ")
        .append(option.summary)
        .append(" | ")
        .append(option.without);
    text += option.without.empty() ? "|\n" : " |\n";
  }
  return text;
}

}  // namespace gns
