#pragma once

#include <string>

namespace gns {

/// A file beside a results directory that stands there while the directory isn't whole: made before
/// the first write of a run, removed as the last act of a run that finished.

/// Its path: the name of the directory with ".unfinished" behind it. Throws Xerror_msg if the name
/// is empty.
std::string Unfinished_mark_of(const std::string& output_dir);

/// Makes the mark, and the directory's missing parents. Throws Xerror_msg if something else than a
/// mark stands in its place, which is left alone, or if a directory can't be made. A mark that
/// can't be written is noted as a file fault.
void Set_unfinished_mark(const std::string& output_dir);

/// True if the mark stands beside the directory.
bool Is_marked_unfinished(const std::string& output_dir);

/// Takes the mark away, if there is one. Notes a file fault if that fails.
void Remove_unfinished_mark(const std::string& output_dir);

}  // namespace gns
