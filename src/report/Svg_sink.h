#pragma once

#include <sstream>
#include <string>

#include "export/Text_sink.h"

namespace vorlane::report {

/// A length in a picture, with two digits behind the point.
struct Length {
  double value;
};

/// Takes an SVG document of the given size, from its first tag on.
class Svg_sink {
 public:
  Svg_sink(double width, double height, std::string_view title);

  template <typename Value>
  Svg_sink& operator<<(const Value& value) {
    sink_ << value;
    return *this;
  }
  Svg_sink& operator<<(Length length);

  /// Ends the document.
  std::string Text();

 private:
  std::ostringstream text_;
  exporting::Stream_sink sink_;
};

}  // namespace vorlane::report
