#include "foundation/Errors.h"

#include <utility>

namespace gns {

namespace {

constexpr const char* unnamed_file = " the file I was reading";

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

Xep_wrong_line::Xep_wrong_line(const std::string& line) : Xep_wrong_line(line, unnamed_file) {}

Xep_wrong_line::Xep_wrong_line(const std::string& line, const std::string& file)
    : Xep_read_file(file, "ERROR: Wrong line found in '" + file + "' :\n" + line),
      wrong_line(line) {}

Xep_wrong_line::~Xep_wrong_line() noexcept = default;

}  // namespace gns
