#include "cli/options/Jobs_option.h"

#include "engine/Cores_at_hand.h"
#include "foundation/text/My_string_to_i.h"

namespace gns {

bool Take_jobs_option(const Long_argument& given, unsigned& jobs) {
  constexpr unsigned most = 1024;
  if (given.option.word != "--jobs") return false;
  const bool is_number = Convert_plain(given.argument, jobs) && jobs <= most;
  given.Refuse(is_number ? "" : "it must be a number of cores up to 1024, or 0 for all at hand");
  if (jobs == 0) jobs = Cores_at_hand();
  return true;
}

}  // namespace gns
