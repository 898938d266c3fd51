#include "input/Link_file_kind.h"

#include <algorithm>
#include <array>
#include <utility>

#include "foundation/text/Shown_text.h"

namespace gns {

namespace {

using namespace std::string_view_literals;

struct Kind {
  std::string_view start;
  const char* name;
  const char* reader;
};

constexpr std::array kinds = {
    Kind{"\x1F\x8B"sv, "a gzip file", "zcat"},
    Kind{"\x28\xB5\x2F\xFD"sv, "a zstd file", "zstdcat"},
    Kind{"\xFD\x37\x7A\x58\x5A"sv, "an xz file", "xzcat"},
    Kind{"BZh91AY&SY"sv, "a bzip2 file", "bzcat"},
    Kind{"PK\3\4"sv, "a zip archive (as spreadsheets are, too)", "unzip -p"},
    Kind{"PK\5\6"sv, "an empty zip archive", ""},
    Kind{"\xFF\xFE\0\0"sv, "text in UTF-32", "iconv -f UTF-32 -t UTF-8"},
    Kind{"\0\0\xFE\xFF"sv, "text in UTF-32", "iconv -f UTF-32 -t UTF-8"},
    Kind{"\xFF\xFE"sv, "text in UTF-16", "iconv -f UTF-16 -t UTF-8"},
    Kind{"\xFE\xFF"sv, "text in UTF-16", "iconv -f UTF-16 -t UTF-8"}};

std::string Message(const std::string& file, const std::string& kind, const std::string& reader) {
  std::string message = "ERROR: '" + file + "' holds no links, it is " + kind + ".\n";
  if (reader.empty()) return message;
  return message + " This makes text of it: " + reader + " " + Shell_word(file) + "\n";
}

}  // namespace

Xno_link_file::Xno_link_file(const std::string& path, const std::string& name,
                             const std::string& command)
    : Xerror_msg(Message(path, name, command)), file(path), kind(name), reader(command) {}

Xno_link_file::~Xno_link_file() noexcept = default;

void Refuse_other_kinds(const std::string& file, std::string_view first_bytes) {
  for (const Kind& kind : kinds)
    if (first_bytes.starts_with(kind.start)) throw Xno_link_file(file, kind.name, kind.reader);
}

void Refuse_zeros(const std::string& file, std::string_view first_bytes) {
  const std::size_t zero = first_bytes.find('\0');
  if (zero == std::string_view::npos) return;
  // Text in UTF-16 without a mark has a zero beside nearly every character.
  const auto zeros = static_cast<std::size_t>(std::ranges::count(first_bytes, '\0'));
  if (zeros * 3 > first_bytes.size() && first_bytes.size() > 3 && zero < 2) {
    const std::string order = zero == 0 ? "BE" : "LE";
    throw Xno_link_file(file, "text in UTF-16", "iconv -f UTF-16" + order + " -t UTF-8");
  }
  throw Xno_link_file(file, "no text: byte " + std::to_string(zero + 1) + " is a zero", "");
}

}  // namespace gns
