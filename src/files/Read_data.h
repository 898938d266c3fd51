#pragma once

#include <string>

#include "foundation/text/Character_set.h"
#include "results/Com_result_tables.h"

namespace gns {

/// Each form of Read_data fills a table from a text file of records. The table is not cleared
/// first; a record replaces what an earlier one with the same key gave. All throw
/// Xep_file_not_found if there is no such regular file. A record that can't be read ends the
/// reading by an exception, and what was read before it stays in the table.

/// One record per line, made of fields that are read as formatted input; what follows them is
/// ignored. Blanks and tabs at both ends of a line are cut; then lines that are empty, begin with
/// "#" or hold one character are skipped.

/// Two names. The pairs come before what the sequence held, in the order of the file. Throws
/// Xerror_msg.
void Read_data(Name_pairs& pairs, const std::string& file_name);

/// Two community indices and a number. Throws Xerror_msg if the indices can't be read, and
/// Xep_wrong_line if the number can't.
void Read_data(Overlap_table& table, const std::string& file_name);

/// A value and a number. Throws Xep_wrong_line.
void Read_data(Distribution_table& table, const std::string& file_name);

/// Records of the shape "INDEX: ITEM ITEM ...". A record ends at a character of `line_delims`, its
/// head at one of `head_delims`; the index is the first word of the head between `key_delims`, the
/// items are all words behind it between `value_delims`. Nothing is cut; records that are empty or
/// begin with "#" are skipped. What follows the last of the `line_delims` loses its last character.
/// Throws Xerror_msg. Uses the delimiters of my_string_chopper_class: one such read at a time.
void Read_data(Names_by_index& table, const std::string& file_name,
               const Character_set& line_delims, const Character_set& head_delims,
               const Character_set& key_delims, const Character_set& value_delims);
void Read_data(Indices_by_index& table, const std::string& file_name,
               const Character_set& line_delims, const Character_set& head_delims,
               const Character_set& key_delims, const Character_set& value_delims);

/// The same with sets of one character each.
void Read_data(Names_by_index& table, const std::string& file_name, char line_delim,
               char head_delim, char key_delim, char value_delim);
void Read_data(Indices_by_index& table, const std::string& file_name, char line_delim,
               char head_delim, char key_delim, char value_delim);

}  // namespace gns
