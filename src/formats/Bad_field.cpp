#include "formats/Bad_field.h"

#include "foundation/Errors.h"
#include "foundation/text/Shown_text.h"

namespace gns {

namespace {

/// A wrong line whose message names the file, and which tells the place.
class Xbad_field : public Xep_wrong_line {
 public:
  Xbad_field(const std::string& file, const Field_place& at, const Field_fault& fault)
      : Xep_wrong_line(Quoted(fault.found), file) {
    constexpr std::size_t enough = 1000;  // for any message
    place = {
        file,      at.line, at.column, fault.expected, std::string(Beginning(fault.found, enough)),
        fault.cure};
  }
};

}  // namespace

void Refuse_field(const std::string& file, const Field_place& place, const Field_fault& fault) {
  throw Xbad_field(file, place, fault);
}

}  // namespace gns
