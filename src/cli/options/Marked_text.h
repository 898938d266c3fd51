#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace gns {

/// The text without the backquotes that mark what is to be typed.
std::string Without_marks(std::string_view text);

/// The text with a newline in place of a blank wherever a line would get longer than `width`, and
/// `indent` blanks in front of each line but the first, whose first `used` columns are taken. A
/// word that is too long stands on a line of its own.
std::string Wrapped(std::string_view text, std::size_t width, std::size_t indent = 0,
                    std::size_t used = 0);

/// An entry of a help text, with its newline: a term and, from a column on, what it means, as far
/// as column 80. A term that doesn't fit gets a line of its own.
std::string Help_entry(std::string_view term, std::size_t column, std::string_view meaning);

}  // namespace gns
