#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace gns {

/// Reads a text file line by line, in big blocks; lines may be of any length and hold any bytes.
class Line_reader {
 public:
  /// Throws Xep_file_not_found if the file can't be opened or is a directory.
  explicit Line_reader(std::string path);
  ~Line_reader();
  Line_reader(const Line_reader&) = delete;
  Line_reader& operator=(const Line_reader&) = delete;

  /// Takes the next line, without its newline; the last one may lack it. The text stays valid until
  /// the next call. False at the end of the file; throws Xerror_msg if reading fails.
  bool Next(std::string_view& line);

 private:
  bool Fill();

  std::string path_;
  int file_;
  std::vector<char> buffer_;
  std::size_t start_ = 0;  ///< unread bytes: start_ up to end_
  std::size_t end_ = 0;
};

}  // namespace gns
