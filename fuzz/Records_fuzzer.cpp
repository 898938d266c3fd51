// The readers of result files. The first byte tells which one is tried, and for records whether the
// delimiters are the usual ones or the four bytes that follow; the rest is the file.
#include <cstddef>
#include <cstdint>
#include <iostream>

#include "Literal_readers.h"
#include "Reader_input.h"
#include "Table_words.h"
#include "files/Results_reader.h"

namespace {

using gns::literal::Records;

/// One byte of the input as a set of delimiters: that character, or it and the blank.
std::string Delimiters_of(std::uint8_t byte) {
  const char c = static_cast<char>(byte & 0x7fU);
  return byte < 0x80 ? std::string(1, c) : std::string{' ', c};
}

gns::Character_set Set_of(const std::string& characters) {
  gns::Character_set set;
  for (const char c : characters) set.insert(c);
  return set;
}

template <typename Table>
void Try_records(const std::string& text, const Records& plain, bool of_numbers) {
  const auto read = [&](Table& table) {
    gns::Read_data(table, File_with(text), Set_of(plain.line), Set_of(plain.head),
                   Set_of(plain.key), Set_of(plain.value));
  };
  Expect_same(gns::Words_after(Table(), read), plain.Read(text, of_numbers));
}

template <typename Table>
void Try_lines(const std::string& text, std::string (*plain)(const std::string&)) {
  const auto read = [&](Table& table) { gns::Read_data(table, File_with(text)); };
  Expect_same(gns::Words_after(Table(), read), plain(text));
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
  std::cout.rdbuf(nullptr);  // warnings
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t head = 5;
  if (size < head) return 0;
  const std::string text(data + head, data + size);
  Records plain = {"\n", ":", " ", " "};
  if (data[0] >= 0x80)
    plain = {Delimiters_of(data[1]), Delimiters_of(data[2]), Delimiters_of(data[3]),
             Delimiters_of(data[4])};
  switch (data[0] % 8) {
    case 0:
      Try_lines<gns::Name_pairs>(text, gns::literal::Pairs);
      break;
    case 1:
      Try_lines<gns::Overlap_table>(text, gns::literal::Overlaps);
      break;
    case 2:
      Try_lines<gns::Distribution_table>(text, gns::literal::Distribution);
      break;
    case 3:
      Expect_same(gns::Words_after(gns::Links_by_index(),
                                   [&](auto& t) { gns::Read_com_links(t, File_with(text)); }),
                  gns::literal::Com_links(text));
      break;
    case 4:
    case 5:
      Try_records<gns::Names_by_index>(text, plain, false);
      break;
    default:
      Try_records<gns::Indices_by_index>(text, plain, true);
  }
  return 0;
}
