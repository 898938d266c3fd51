#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "engine/Run_summary.h"
#include "parts/File_aside.h"
#include "parts/Results_aside.h"
#include "parts/Work_folder.h"

namespace gns::parts {

/// What a step has done in the results directory. The mark that tells so stands in the folder of
/// the parts, and comes last.
struct Done_work {
  std::vector<Results_file> files;
  std::vector<K_summary> levels;  ///< of a part of the levels, largest k first
};

/// Which mark, of which run.
struct Done_key {
  Step step = Step::plan;
  std::uint64_t part = 0;
  std::uint64_t fingerprint = 0;
};

/// `mark` is the file, made aside when the work began, which tells others of it.
void Write_done_mark(File_aside& mark, const Done_key& key, const Done_work& work);

/// Throws Xbad_part if the mark is missing or damaged, or if one of the files in the results
/// directory is missing or has another size.
Done_work Read_done_mark(const Work_folder& folder, const Done_key& key,
                         const std::string& output_dir);

/// The same, nothing in place of Xbad_part.
std::optional<Done_work> Done_work_of(const Work_folder& folder, const Done_key& key,
                                      const std::string& output_dir);

}  // namespace gns::parts
