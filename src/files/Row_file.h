#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace gns {

/// Reads a results file of lines "INDEX: WORD WORD ..." as the writers leave it, row by row and in
/// the order of the file. Throws Xep_file_not_found, or Xep_wrong_line at a line that they don't
/// write: an index must be that of the row, with or without a minus sign, and no row without a sign
/// may follow one with it. Polls as a long stage does.
///
/// `take(word)` yields false for a word that can't be; `end_row()` is called behind each row.
/// Yields the number of rows without a sign.
std::size_t Read_row_file(const std::string& file_name,
                          const std::function<bool(std::string_view word)>& take,
                          const std::function<void()>& end_row);

}  // namespace gns
