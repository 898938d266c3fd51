#include "face/Errors_of_face.h"

#include "foundation/text/Shown_text.h"

namespace vorlane::face {

std::string In_words(const gns::Place_in_file& place) {
  std::string text = place.file + ", line " + std::to_string(place.line);
  if (place.column > 0) text += ", column " + std::to_string(place.column);
  text += place.found.empty() ? ": the line ends" : ": " + gns::Quoted(place.found) + " stands";
  return text + " where " + place.expected + " was expected.";
}

}  // namespace vorlane::face
