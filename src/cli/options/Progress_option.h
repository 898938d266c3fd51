#pragma once

#include <string_view>

namespace gns {

/// How the progress of a run is shown: by --progress.
struct Progress_option {
  enum class Form { automatic, lines, json, none };

  /// Automatic: rewritten lines on a terminal, plain ones elsewhere.
  Form form = Form::automatic;
  double interval = 30.0;  ///< between two lines, in seconds
};

/// Reads a word of the command line if it is "--progress", perhaps with "=" and, between commas,
/// seconds, "json" or "none" behind it; false if it is another. Throws Xerror_msg if what follows
/// can't be read.
bool Read_progress_option(std::string_view word, Progress_option& option);

}  // namespace gns
