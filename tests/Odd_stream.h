#pragma once

#include <locale>
#include <sstream>
#include <string>

namespace gns {

/// A stream that writes a number of its own accord in no plain way: it groups the digits, which are
/// hexadecimal and stand behind a sign and their base.
inline std::ostringstream Odd_stream() {
  struct Grouping : std::numpunct<char> {
    std::string do_grouping() const override { return "\1"; }
  };
  std::ostringstream stream;
  stream.imbue(std::locale(std::locale::classic(), new Grouping));
  stream << std::hex << std::showbase << std::showpos;
  return stream;
}

}  // namespace gns
