// Link files. The first byte tells which reader is tried and which thresholds it has; the rest is
// the file.
#include <cstddef>
#include <cstdint>

#include "Literal_readers.h"
#include "Reader_input.h"
#include "Table_words.h"
#include "input/Link_file_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string text(data + 1, data + size);
  const std::string& path = File_with(text);
  const bool weighted = (data[0] & 1U) != 0;
  const gns::literal::Thresholds t = {(data[0] & 2U) != 0, 1.0, (data[0] & 4U) != 0, 3.0};
  const auto read = [&](gns::Link_map& links) {
    if (weighted)
      gns::Read_weighted_links(path, links, t.use_lower, t.lower, t.use_upper, t.upper);
    else
      gns::Read_unw_links(path, links);
  };
  Expect_same(gns::Words_after(gns::Link_map(), read),
              gns::literal::Links(text, weighted, weighted ? t : gns::literal::Thresholds()));
  return 0;
}
