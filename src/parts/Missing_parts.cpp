#include "parts/Missing_parts.h"

#include "foundation/Errors.h"

namespace gns::parts {

namespace {

constexpr std::size_t most_lines = 20;

}  // namespace

void Missing_parts::Note(const Xbad_part& bad, Step step, std::uint64_t part) {
  if (++count_ <= most_lines)
    lines_ += "  " + bad.fault + ": " + folder_.Command(step, part) + "\n";
}

void Missing_parts::Refuse() const {
  if (count_ == 0) return;
  const std::string more =
      count_ > most_lines ? "  and " + std::to_string(count_ - most_lines) + " more\n" : "";
  throw Xerror_msg("ERROR: something is missing or wrong. Make it by the command behind it:\n" +
                   lines_ + more);
}

}  // namespace gns::parts
