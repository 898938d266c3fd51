#include "formats/Cut_field.h"

#include <charconv>

#include "foundation/text/My_string_to_d.h"
#include "foundation/text/Shown_text.h"
#include "foundation/text/Text_fields.h"

namespace gns {

bool Cut_field::Is_at_end() {
  Skip_space(rest_);
  return rest_.empty();
}

std::string_view Cut_field::Word() {
  Skip_space(rest_);
  return word_ = Extract_word(rest_);
}

std::string_view Cut_field::Label() {
  Skip_space(rest_);
  if (!rest_.starts_with('"')) return Word();
  const std::size_t end = rest_.find('"', 1);
  word_ = rest_;
  if (end == std::string_view::npos) Refuse("a label whose quotes end", "Put a quote behind it.");
  word_ = rest_.substr(1, end - 1);
  rest_.remove_prefix(end + 1);
  return word_;
}

std::uint64_t Cut_field::Whole_number(std::string_view expected, std::string_view cure,
                                      std::uint64_t least, std::uint64_t greatest) {
  const std::string_view word = Word();
  const char* const end = word.data() + word.size();
  std::uint64_t number = 0;
  const auto read = std::from_chars(word.data(), end, number);
  if (read.ec != std::errc() || read.ptr != end || number < least || number > greatest)
    Refuse(expected, cure);
  return number;
}

double Cut_field::Number(std::string_view expected, std::string_view cure) {
  double number = 0.0;
  if (!stringtodouble(Word(), number)) Refuse(expected, cure);
  return number;
}

Field_place Cut_field::Place() const {
  const std::string_view before(line_.data(), word_.data());
  return {line_number_, Count_characters(before) + 1};
}

void Cut_field::Refuse(std::string_view expected, std::string_view cure) const {
  Refuse_field(file_, Place(), {std::string(expected), word_, std::string(cure)});
}

}  // namespace gns
