#include "report/Svg_sink.h"

#include <cmath>

namespace vorlane::report {

Svg_sink::Svg_sink(double width, double height, std::string_view title) : sink_(text_) {
  *this << R"(<svg xmlns="http://www.w3.org/2000/svg" width=")" << Length{width} << "\" height=\""
        << Length{height} << "\" viewBox=\"0 0 " << Length{width} << ' ' << Length{height}
        << "\" font-family=\"Helvetica, Arial, sans-serif\" font-size=\"13\">\n<title>"
        << exporting::In_xml{title}
        << "</title>\n<rect width=\"100%\" height=\"100%\" fill=\"#fff\"/>\n";
}

Svg_sink& Svg_sink::operator<<(Length length) {
  constexpr double digits = 100;
  sink_ << static_cast<double>(std::lround(length.value * digits)) / digits;
  return *this;
}

std::string Svg_sink::Text() {
  sink_ << "</svg>\n";
  sink_.Hand_on();
  return text_.str();
}

}  // namespace vorlane::report
