// Packed files. By the first byte, the rest is the file as it stands behind the first bytes of one
// that is packed, or a text to be packed in two parts, which must be read as if it weren't.
#include <cstddef>
#include <cstdint>

#include "Reader_input.h"
#include "Table_words.h"
#include "formats/Network_file.h"
#include "formats/Pack_text.h"

namespace {

std::string Links_of(const std::string& text) {
  return gns::Words_after(gns::Link_map(), [&](gns::Link_map& links) {
    gns::Link_file_check check;
    gns::Input_wishes wishes;
    wishes.format = gns::Format::links;
    gns::Read_network_file(File_with(text), wishes, {}, links, check);
  });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string text(data + 1, data + size);
  const bool by_zstd = (data[0] & 1U) != 0;
  const auto pack = by_zstd ? gns::Zstd : gns::Gzip;
  if ((data[0] & 2U) != 0) {
    Links_of(pack("a b\n").substr(0, data[0] >> 2U) + text);
    return 0;
  }
  const std::size_t half = text.size() / 2;
  // Packed twice, or of another kind, is not what its text is.
  const std::string plain = Links_of("#\n" + text);
  Expect_same(Links_of(pack("#\n" + text.substr(0, half)) + pack(text.substr(half))), plain);
  return 0;
}
