#pragma once

#include <sstream>
#include <string>

#include "files/Read_data.h"
#include "foundation/Errors.h"
#include "graph/Link_map.h"
#include "results/Com_result_tables.h"

namespace gns {

/// A table in words: "a b|c d|", "1 -2=3|", "3=4|", "0: a b|", "a b=1.5|".
inline void Put(std::ostream& out, const Name_pair_row& pairs) {
  for (const auto& [first, second] : pairs) out << first << ' ' << second << '|';
}
inline void Put(std::ostream& out, const Overlap_table& table) {
  for (const auto& [key, shared] : table)
    out << key.first << ' ' << key.second << '=' << shared << '|';
}
inline void Put(std::ostream& out, const Distribution_table& table) {
  for (const auto& [value, count] : table) out << value << '=' << count << '|';
}
inline void Put(std::ostream& out, const Link_map& links) {
  for (std::size_t i = 0; i < links.size(); ++i)
    out << links.First(i) << ' ' << links.Second(i) << '=' << links.Weight(i) << '|';
}
inline void Put(std::ostream& out, const Links_by_index& table) {
  for (const auto& [key, links] : table) {
    out << key << ": ";
    Put(out, links);
    out << '|';
  }
}
template <typename Values>
void Put(std::ostream& out, const Table_by_index<Values>& table) {
  for (const auto& [key, values] : table) {
    out << key << ':';
    for (const auto& value : values) out << ' ' << value;
    out << '|';
  }
}

/// What read(table) makes of a table: the table in words, and behind it, if it threw, how it
/// failed: the text of the exception, or "wrong 'LINE'".
template <typename Table, typename Read>
std::string Words_after(Table table, Read read) {
  std::string failure;
  try {
    read(table);
  } catch (const Xep_wrong_line& error) {
    failure = "wrong '" + error.wrong_line + "'";
  } catch (const Xerror_msg& error) {
    failure = error.what();
  }
  std::ostringstream out;
  Put(out, table);
  return out.str() + failure;
}

}  // namespace gns
