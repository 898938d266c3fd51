#include "files/Pair_fields.h"

#include "foundation/text/My_string_to_i.h"
#include "foundation/text/Text_fields.h"

namespace gns {

namespace {

bool Extract_field(std::string_view& text, std::string_view& word) {
  word = Extract_word(text);
  return !word.empty();
}

bool Extract_field(std::string_view& text, std::int32_t& number) {
  return Extract_integer(text, number);
}

template <typename Field>
bool Extract(std::string_view& text, std::pair<Field, Field>& pair) {
  std::string_view rest = text;
  std::pair<Field, Field> fields;
  if (!Extract_field(rest, fields.first) || !Extract_field(rest, fields.second)) return false;
  pair = fields;
  text = rest;
  return true;
}

template <typename Field>
std::istream& Extract(std::istream& stream, std::pair<Field, Field>& pair) {
  std::pair<Field, Field> fields;
  if (!(stream >> fields.first >> fields.second)) throw Failed_pair();
  pair = std::move(fields);
  return stream;
}

}  // namespace

std::istream& operator>>(std::istream& stream, std::pair<std::string, std::string>& pair) {
  return Extract(stream, pair);
}

std::istream& operator>>(std::istream& stream, std::pair<std::int32_t, std::int32_t>& pair) {
  return Extract(stream, pair);
}

bool Convert_from_string(std::string_view text, std::pair<std::string, std::string>& pair,
                         bool& /*suspicious*/) {
  Name_pairs::value_type fields;
  if (!Extract(text, fields)) return false;
  pair = fields;
  return true;
}

bool Extract_pair(std::string_view& text, Name_pairs::value_type& pair) {
  return Extract(text, pair);
}

bool Extract_pair(std::string_view& text, std::pair<std::int32_t, std::int32_t>& pair) {
  return Extract(text, pair);
}

void Take_plain_lines(Line_reader& reader, Name_pairs& pairs) {
  const std::size_t held = pairs.size();
  const std::size_t taken = pairs.Append_lines(reader.Held());
  reader.Take(taken, pairs.size() - held);
}

Xerror_msg Failed_pair() { return Xerror_msg("ERROR: failed to read pair.\n"); }

}  // namespace gns
