#pragma once

#include <string>
#include <string_view>

namespace gns {

/// Appends a text as the value of an attribute or the content of an element of XML 1.0, in UTF-8.
/// Characters that XML can't hold, even escaped, and bytes that are no UTF-8 become U+FFFD; then
/// the result is false.
bool Append_xml(std::string_view text, std::string& out);

}  // namespace gns
