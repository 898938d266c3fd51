#include <optional>

#include "parts/Clique_part.h"
#include "parts/Open_plan.h"
#include "parts/Parts.h"

namespace gns::parts {

namespace {

/// How many cliques a part has that was searched before; nothing if there is none that is right.
std::optional<std::uint64_t> Found_before(const Open_plan& plan, std::uint64_t part) {
  try {
    return Open_clique_part(plan, part).Cliques().size();
  } catch (const Xbad_part&) {
    return std::nullopt;
  }
}

}  // namespace

std::uint64_t Search(const std::string& work, std::uint64_t part, const std::string& elsewhere) {
  const Open_plan plan(work, Part_check::all, elsewhere);
  plan.Refuse_no_part(part);
  if (const auto before = Found_before(plan, part)) return *before;
  File_aside file(plan.Folder().Cliques_of(part));
  const std::uint64_t count =
      Write_clique_part([&](auto bytes) { file.Write(bytes); }, plan.Graph(), part);
  file.Finish();
  return count;
}

}  // namespace gns::parts
