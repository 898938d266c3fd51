#include "formats/Unpacked_input.h"

#include <unistd.h>

#include <string_view>
#include <utility>

#include "control/Run_control.h"
#include "formats/Gzip_bytes.h"
#include "formats/Zstd_bytes.h"
#include "foundation/Errors.h"
#include "input/Link_file_kind.h"

namespace gns {

namespace {

using namespace std::string_view_literals;

struct Packing {
  std::string_view start;
  const char* command;
  std::unique_ptr<Byte_source> (*unpack)(std::unique_ptr<Line_reader>, const std::string&);
};

constexpr auto poll = external_control::Check_inside_long_stage;

constexpr Packing packings[] = {{"\x1F\x8B"sv, "zcat", Gzip_bytes},
                                {"\x28\xB5\x2F\xFD"sv, "zstdcat", Zstd_bytes}};

std::unique_ptr<Byte_source> Standard_input() {
  try {
    return std::make_unique<File_bytes>(STDIN_FILENO, standard_input, poll);
  } catch (const Xep_file_not_found&) {
    throw Xerror_msg("ERROR: standard input can't be read: it is closed, or a directory.\n");
  }
}

std::unique_ptr<Line_reader> Opened(const std::string& path) {
  if (path == standard_input) return std::make_unique<Line_reader>(Standard_input());
  return std::make_unique<Line_reader>(path, Line_reader::Source::any_file, Character_set{'\n'},
                                       poll);
}

std::unique_ptr<Line_reader> Unpacked(std::unique_ptr<Line_reader> packed, const std::string& path,
                                      std::string& unpacking) {
  for (const Packing& packing : packings) {
    if (packed->Peek(packing.start.size()) != packing.start) continue;
    unpacking = packing.command;
    return std::make_unique<Line_reader>(packing.unpack(std::move(packed), path));
  }
  return packed;
}

}  // namespace

Unpacked_input Open_input(const std::string& path) {
  Unpacked_input input;
  input.reader = Unpacked(Opened(path), path, input.unpacking);
  Refuse_other_kinds(path, input.reader->Peek(kind_bytes));
  return input;
}

}  // namespace gns
