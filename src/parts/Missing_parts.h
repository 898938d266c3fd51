#pragma once

#include <cstddef>
#include <string>

#include "parts/Work_folder.h"

namespace gns::parts {

/// What is missing or wrong, each with the command that makes it, for one message about all.
class Missing_parts {
 public:
  explicit Missing_parts(const Work_folder& folder) : folder_(folder) {}

  /// Does the work; what it tells of a bad part is noted. True if there was nothing.
  template <typename Work>
  bool Try(Step step, std::uint64_t part, Work work) {
    try {
      work();
      return true;
    } catch (const Xbad_part& bad) {
      Note(bad, step, part);
      return false;
    }
  }

  /// Throws Xerror_msg if something was noted.
  void Refuse() const;

 private:
  void Note(const Xbad_part& bad, Step step, std::uint64_t part);

  const Work_folder& folder_;
  std::size_t count_ = 0;
  std::string lines_;
};

}  // namespace gns::parts
