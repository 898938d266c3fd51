#include "formats/Packed_bytes.h"

#include <utility>

#include "control/Run_control.h"
#include "foundation/Errors.h"

namespace gns {

Packed_bytes::Packed_bytes(std::unique_ptr<Line_reader> packed, std::string file, std::string kind)
    : packed_(std::move(packed)), file_(std::move(file)), kind_(std::move(kind)) {}

std::size_t Packed_bytes::Read(char* buffer, std::size_t size) {
  for (;;) {
    external_control::Check_inside_long_stage();
    packed_->Peek(1);
    const std::string_view held = packed_->Held();
    if (held.empty() && between_parts_) return 0;
    const Step step = Unpack(held, buffer, size);
    packed_->Take(step.taken, 0);
    place_ += step.taken;
    between_parts_ = step.between_parts;
    if (step.made > 0) return step.made;
    if (held.empty() && !between_parts_) Refuse("is cut off");
  }
}

void Packed_bytes::Refuse(const std::string& why) const {
  throw Xerror_msg("ERROR: '" + file_ + "' " + why + ": its " + kind_ + " data end badly at byte " +
                   std::to_string(place_ + 1) + ".\n");
}

}  // namespace gns
