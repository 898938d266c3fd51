// The readers of result files. The first byte tells which one is tried, and for records whether the
// delimiters are the usual ones or the four bytes that follow; the rest is the file.
#include <cstddef>
#include <cstdint>
#include <iostream>

#include "Expect_same.h"
#include "Literal_readers.h"
#include "Memory_file.h"
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
void Try_records(const std::string& path, const std::string& text, const Records& plain,
                 bool of_numbers) {
  const auto read = [&](Table& table) {
    gns::Read_data(table, path, Set_of(plain.line), Set_of(plain.head), Set_of(plain.key),
                   Set_of(plain.value));
  };
  Expect_same(gns::Words_after(Table(), read), plain.Read(text, of_numbers));
}

template <typename Table>
std::string Read_lines(const std::string& path) {
  return gns::Words_after(Table(), [&](Table& table) { gns::Read_data(table, path); });
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
  std::cout.rdbuf(nullptr);  // warnings
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t head = 5;
  if (size < head) return 0;
  static Memory_file file;
  const std::string text(data + head, data + size);
  const std::string& path = file.Filled_with(text);
  Records plain = {"\n", ":", " ", " "};
  if (data[0] >= 0x80)
    plain = {Delimiters_of(data[1]), Delimiters_of(data[2]), Delimiters_of(data[3]),
             Delimiters_of(data[4])};
  switch (data[0] % 8) {
    case 0:
      Expect_same(Read_lines<gns::Name_pairs>(path), gns::literal::Pairs(text));
      break;
    case 1:
      Expect_same(Read_lines<gns::Overlap_table>(path), gns::literal::Overlaps(text));
      break;
    case 2:
      Expect_same(Read_lines<gns::Distribution_table>(path), gns::literal::Distribution(text));
      break;
    case 3:
      Expect_same(gns::Words_after(gns::Links_by_index(),
                                   [&](auto& table) { gns::Read_com_links(table, path); }),
                  gns::literal::Com_links(text));
      break;
    case 4:
    case 5:
      Try_records<gns::Names_by_index>(path, text, plain, false);
      break;
    default:
      Try_records<gns::Indices_by_index>(path, text, plain, true);
  }
  return 0;
}
