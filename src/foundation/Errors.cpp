#include "foundation/Errors.h"

#include <string_view>
#include <utility>

#include "foundation/text/Shown_text.h"

namespace gns {

namespace {

constexpr const char* unnamed_file = " the file I was reading";

/// The line, or as much of it as a message can bear.
std::string Shown_part(const std::string& line) {
  constexpr std::size_t most = 4096;
  if (line.size() <= most) return line;
  const std::string_view shown = Beginning(line, most);
  return std::string(shown) + "... (" + std::to_string(line.size() - shown.size()) +
         " more bytes left out)";
}

}  // namespace

Xerror_msg::Xerror_msg(const std::string& text) : std::logic_error(text) {}
Xerror_msg::~Xerror_msg() noexcept = default;

Xep_read_file::Xep_read_file() : Xep_read_file(unnamed_file) {}

Xep_read_file::Xep_read_file(const std::string& file)
    : Xep_read_file(file, "ERROR: Something went wrong when trying to read from " + file) {}

Xep_read_file::Xep_read_file(const std::string& file, std::string message)
    : std::logic_error(""), file_name(file), message_(std::move(message)) {}

Xep_read_file::~Xep_read_file() noexcept = default;

const char* Xep_read_file::what() const noexcept { return message_.c_str(); }

Xep_file_not_found::Xep_file_not_found(const std::string& file)
    : Xep_read_file(file, "ERROR : File not found: '" + file + "' ") {}

Xep_file_not_found::~Xep_file_not_found() noexcept = default;

Xep_wrong_line::Xep_wrong_line(const std::string& line, Place_in_file where)
    : Xep_wrong_line(line, unnamed_file) {
  place = std::move(where);
}

Xep_wrong_line::Xep_wrong_line(const std::string& line, const std::string& file)
    : Xep_read_file(file, "ERROR: Wrong line found in '" + file + "' :\n" + Shown_part(line)),
      wrong_line(line) {}

Xep_wrong_line::~Xep_wrong_line() noexcept = default;

}  // namespace gns
