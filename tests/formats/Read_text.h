#pragma once

#include <string>

#include "Table_words.h"
#include "Temp_dir.h"
#include "formats/Network_file.h"

namespace gns {

/// How a text is read as a file.
struct Reading {
  std::string name = "net";
  bool weighted = false;
  Input_wishes wishes = {};
};

/// What is made of it, in words: the links, and a failure as "!LINE:COLUMN FOUND" or its text, or
/// the warnings as "?LINE FAULT".
inline std::string Read_text(const std::string& text, const Reading& reading) {
  const Temp_dir temp;
  Link_map links;
  Link_file_check check;
  Link_rule rule;
  rule.weighted = reading.weighted;
  std::ostringstream told;
  try {
    Read_network_file(temp.Write(reading.name, text), reading.wishes, rule, links, check);
  } catch (const Xep_wrong_line& failure) {
    const Place_in_file& place = failure.place;
    told << '!' << place.line << ':' << place.column << ' ' << place.found.substr(0, 40);
    EXPECT_FALSE(place.expected.empty());
  } catch (const Xerror_msg& failure) {
    told << failure.what();
  }
  for (const Link_file_warning& warning : check.Warnings())
    told << '?' << warning.line << ' ' << warning.fault;
  std::ostringstream words;
  Put(words, links);
  return words.str() + told.str();
}

}  // namespace gns
