// Files of a format. The first byte tells how they are read; the rest is the file. What was read,
// written as a plain link file and read again, must be the same network.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iomanip>
#include <sstream>

#include "Reader_input.h"
#include "formats/Network_file.h"
#include "foundation/Errors.h"
#include "input/Link_file_reader.h"

namespace {

/// A line for each link; empty if a weight is none that can be written.
std::string As_link_file(const gns::Link_map& links) {
  std::ostringstream text;
  text << std::setprecision(17);
  for (std::size_t i = 0; i < links.size(); ++i) {
    if (!std::isfinite(links.Weight(i))) return "";
    text << links.First(i) << ' ' << links.Second(i) << ' ' << links.Weight(i) << '\n';
  }
  return text.str();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  gns::Input_wishes wishes;
  wishes.format = gns::Format_named(VORLANE_FUZZED_FORMAT);
  wishes.for_files = true;
  wishes.directed = (data[0] & 1U) != 0;
  if ((data[0] & 2U) != 0) wishes.blanks = "_";
  gns::Link_rule rule;
  rule.weighted = (data[0] & 4U) != 0;
  const bool chosen = (data[0] & 8U) != 0 && *wishes.format <= gns::Format::tsv;
  if (chosen) wishes.columns = {"to", "2", "w"};
  gns::Link_map links;
  gns::Link_file_check check;
  try {
    const std::string text(data + 1, data + size);
    gns::Read_network_file(File_with(text), wishes, rule, links, check);
  } catch (const gns::Xep_wrong_line&) {
    return 0;
  } catch (const gns::Xerror_msg&) {
    return 0;
  }
  const std::string text = As_link_file(links);
  if (text.empty()) return 0;
  gns::Link_map again;
  if (rule.weighted)
    gns::Read_weighted_links(File_with(text), again, false, 0, false, 0);
  else
    gns::Read_unw_links(File_with(text), again);
  Expect_same(As_link_file(again), text);
  return 0;
}
