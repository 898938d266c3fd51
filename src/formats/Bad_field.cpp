#include "formats/Bad_field.h"

#include <utility>

#include "foundation/Errors.h"
#include "foundation/text/Shown_text.h"

namespace gns {

void Refuse_field(const std::string& file, const Field_place& place, const Field_fault& fault) {
  constexpr std::size_t enough = 1000;  // for any message
  Xep_wrong_line failure(Quoted(fault.found), file);
  failure.place = {file,
                   place.line,
                   place.column,
                   fault.expected,
                   std::string(Beginning(fault.found, enough)),
                   fault.cure};
  throw failure;
}

}  // namespace gns
