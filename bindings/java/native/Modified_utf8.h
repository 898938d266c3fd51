#pragma once

#include <string>
#include <string_view>

namespace gns {

/// Brings texts of any bytes into the encoding in which the JVM takes text from native code:
/// UTF-8, but a zero byte as two bytes and a character of four bytes as two surrogates of three.
/// One object keeps its memory from text to text.
class Modified_utf8 {
 public:
  /// The text with its four-byte sequences as surrogates, its zero bytes as two bytes, and one
  /// U+FFFD for each broken sequence: a byte that begins none, or as much of one as there is.
  /// Everything else is unchanged. Zero-terminated, valid until the next call.
  const char* Of(std::string_view text);

 private:
  void Append_in_three_bytes(char32_t unit);

  std::string buffer_;
};

}  // namespace gns
