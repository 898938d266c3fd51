#include "foundation/text/Xml_text.h"

#include "foundation/text/Utf8.h"

namespace gns {

namespace {

constexpr unsigned char first_printable = 0x20;

/// The two characters of UTF-8 behind all those of XML: U+FFFE and U+FFFF.
bool Holds_no_character(std::string_view text) {
  return text.find("\xEF\xBF\xBE") != std::string_view::npos ||
         text.find("\xEF\xBF\xBF") != std::string_view::npos;
}

std::string With_replacements(std::string_view text) {
  std::string replaced(text);
  for (const char* const no_character : {"\xEF\xBF\xBE", "\xEF\xBF\xBF"})
    for (std::size_t at = 0; (at = replaced.find(no_character, at)) != std::string::npos;)
      replaced.replace(at, replacement_character.size(), replacement_character);
  return replaced;
}

}  // namespace

bool Append_xml(std::string_view text, std::string& out) {
  if (Holds_no_character(text)) {
    Append_xml(With_replacements(text), out);
    return false;
  }
  bool whole = true;
  const auto is_plain = [](char c) {
    return static_cast<unsigned char>(c) >= first_printable && c != '<' && c != '>' && c != '&' &&
           c != '"' && c != '\'';
  };
  const auto escape = [&](char c, std::string& xml) {
    switch (c) {
      case '<':
        xml.append("&lt;");
        break;
      case '>':
        xml.append("&gt;");
        break;
      case '&':
        xml.append("&amp;");
        break;
      case '"':
        xml.append("&quot;");
        break;
      case '\'':
        xml.append("&apos;");
        break;
      case '\t':
        xml.append("&#9;");
        break;
      case '\n':
        xml.append("&#10;");
        break;
      case '\r':
        xml.append("&#13;");
        break;
      default:
        xml.append(replacement_character);
        whole = false;
    }
  };
  return Append_escaped(text, out, is_plain, escape) && whole;
}

}  // namespace gns
