#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace gns {

/// A failure whose whole message was composed by the thrower.
class Xerror_msg : public std::logic_error {
 public:
  explicit Xerror_msg(const std::string& text);
  ~Xerror_msg() noexcept override;
};

/// Something went wrong with an input file; the common base of the reading errors.
/// The message of `what` lives as long as the object.
class Xep_read_file : public std::logic_error {
 public:
  Xep_read_file();
  explicit Xep_read_file(const std::string& file);
  ~Xep_read_file() noexcept override;
  [[nodiscard]] const char* what() const noexcept override;

  std::string file_name;

 protected:
  Xep_read_file(const std::string& file, std::string message);

 private:
  std::string message_;
};

/// The input file can't be opened.
class Xep_file_not_found : public Xep_read_file {
 public:
  explicit Xep_file_not_found(const std::string& file);
  ~Xep_file_not_found() noexcept override;
};

/// Where in a file something else was expected.
struct Place_in_file {
  std::string file;
  std::size_t line = 0;    ///< from 1; 0 if it isn't known
  std::size_t column = 0;  ///< from 1, in characters of UTF-8
  std::string expected;    ///< in words: "a second name"
  std::string found;       ///< the field that stands there; empty if the line ends
  std::string cure = {};   ///< a sentence on what to do about it, if one is known
};

/// A line of an input file can't be read. Of a line of more than 4,096 bytes the message shows the
/// beginning, and how many bytes it leaves out.
class Xep_wrong_line : public Xep_read_file {
 public:
  /// For a message without the name of the file; `place` may tell more.
  explicit Xep_wrong_line(const std::string& line, Place_in_file place = {});
  Xep_wrong_line(const std::string& line, const std::string& file);
  ~Xep_wrong_line() noexcept override;

  std::string wrong_line;  ///< the whole line
  Place_in_file place;
};

}  // namespace gns
