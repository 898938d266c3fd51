#pragma once

#include <string>

namespace gns {

/// A file beside a results directory that stands there while the directory isn't whole: made before
/// the first write of a run, removed as the last act of a run that finished.

/// Its path: the name of the directory with ".unfinished" behind it.
std::string Unfinished_mark_of(const std::string& output_dir);

/// Makes the mark, and the directory's missing parents. Throws what Dir_prepare throws.
void Set_unfinished_mark(const std::string& output_dir);

void Remove_unfinished_mark(const std::string& output_dir);

}  // namespace gns
