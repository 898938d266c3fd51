#pragma once

#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>

#include "vorlane/version.h"

namespace vorlane {

/// What a program may want to tell apart; the text of an error is for people.
enum class Error_kind {
  parameters,  ///< options that don't go together, arguments out of their range
  input,       ///< a file or an array of links that can't be read; tells where
  output,      ///< results that can't be written
  memory,      ///< it ran out
  stopped,     ///< Control::Stop() was called
  other
};

/// Every failure of this library, but for running out of memory while an error is made
/// (std::bad_alloc).
class VORLANE_API Error : public std::runtime_error {
 public:
  Error(Error_kind kind, const std::string& text);
  /// At a place of an input: `line` and `column` count from 1, 0 if they aren't known.
  Error(Error_kind kind, const std::string& text, const std::string& source, std::size_t line,
        std::size_t column);
  Error(const Error&) noexcept;
  Error& operator=(const Error&) noexcept;
  ~Error() override;

  [[nodiscard]] Error_kind Kind() const { return kind_; }
  /// The file that the error is about; empty if it is about none.
  [[nodiscard]] const std::string& Source() const { return *source_; }
  [[nodiscard]] std::size_t Line() const { return line_; }
  [[nodiscard]] std::size_t Column() const { return column_; }

 private:
  Error_kind kind_;
  std::shared_ptr<const std::string> source_;
  std::size_t line_ = 0;
  std::size_t column_ = 0;
};

}  // namespace vorlane
