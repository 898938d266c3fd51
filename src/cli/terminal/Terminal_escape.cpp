#include "cli/terminal/Terminal_escape.h"

#include <unistd.h>

#include <string>
#include <string_view>

#include "foundation/text/Shown_text.h"

namespace gns {

Terminal_escape::Terminal_escape(std::ostream& stream, int descriptor)
    : stream_(stream), before_(stream.rdbuf()), escaping_(before_) {
  if (::isatty(descriptor) == 1) stream.rdbuf(&escaping_);
}

Terminal_escape::~Terminal_escape() { stream_.rdbuf(before_); }

Terminal_escape::Buffer::int_type Terminal_escape::Buffer::overflow(int_type c) {
  if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
  const char text = traits_type::to_char_type(c);
  return xsputn(&text, 1) == 1 ? c : traits_type::eof();
}

std::streamsize Terminal_escape::Buffer::xsputn(const char* text, std::streamsize size) {
  const std::string escaped = Escaped({text, static_cast<std::size_t>(size)});
  const auto length = static_cast<std::streamsize>(escaped.size());
  return target_->sputn(escaped.data(), length) == length ? size : 0;
}

}  // namespace gns
