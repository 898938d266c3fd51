#include "files/My_string_chopper.h"

#include <cstddef>
#include <cstdint>
#include <iostream>

#include "foundation/text/My_convert_from_string.h"
#include "foundation/text/Words.h"

namespace gns {

namespace {

/// The two extractions differ in the words around the text that they complain about.
struct Complaint {
  std::string_view before;
  std::string_view after;
};
constexpr Complaint refused_word = {"ERROR: failed to convert input", "\n"};
constexpr Complaint refused_in_list = {"ERROR: failed to convert input '", "'\n"};
constexpr Complaint suspicious_word = {"WARNING: input'", "' is suspicious...\n"};
constexpr Complaint suspicious_in_list = {"WARNING: input '", "' is suspicious...\n"};

std::string Complain(const Complaint& complaint, std::string_view word) {
  return std::string(complaint.before).append(word).append(complaint.after);
}

std::int32_t Convert_word(std::string_view word, const Complaint& refused,
                          const Complaint& warning) {
  std::int32_t value = 0;
  bool suspicious = false;
  if (!Convert_from_string(word, value, suspicious)) throw Xerror_msg(Complain(refused, word));
  if (suspicious) std::cout << Complain(warning, word);
  return value;
}

template <typename Values>
std::string_view& End_of_list(std::string_view& text, const Values& values) {
  if (values.empty()) throw No_values();
  text.remove_prefix(text.size());
  return text;
}

}  // namespace

constinit Character_set my_string_chopper_class::delimeters =
    MY_STRING_CHOPPER_CLASS_DEF_INI_DELIMETERES;

std::string_view& operator>>(std::string_view& text, std::string& value) {
  value = Chop_word(text, my_string_chopper_class::delimeters);
  return text;
}

std::string_view& operator>>(std::string_view& text, std::int32_t& value) {
  std::string_view rest = text;
  const std::string_view word = Chop_word(rest, my_string_chopper_class::delimeters);
  value = Convert_word(word, refused_word, suspicious_word);
  text = rest;
  return text;
}

std::string_view& operator>>(std::string_view& text, Name_list& values) {
  values.Append_words(text, my_string_chopper_class::delimeters);
  return End_of_list(text, values);
}

std::string_view& operator>>(std::string_view& text, Index_list& values) {
  const Character_set& delimiters = my_string_chopper_class::delimeters;
  std::string_view rest = text;
  if (delimiters.size() == 1) values.Append_plain(rest, delimiters.Only());
  For_each_word(rest, delimiters, [&](std::string_view word) {
    values.push_back(Convert_word(word, refused_in_list, suspicious_in_list));
  });
  return End_of_list(text, values);
}

Xerror_msg No_values() { return Xerror_msg("ERROR: input vector has zero size.\n"); }

}  // namespace gns
