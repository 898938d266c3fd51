#pragma once

#include <string>
#include <vector>

#include "export/Export_files.h"

namespace gns {

/// Exports in each of the formats, tells standard error what these can't hold, and yields the
/// names of the files. Throws as Export().
std::vector<std::string> Export_all(const std::vector<const vorlane::exporting::Format*>& formats,
                                    vorlane::exporting::Export_order order,
                                    const vorlane::exporting::Selection& selection);

/// A warning if names have been changed, else empty.
std::string Of_changed_names(std::size_t count, const vorlane::exporting::Format& format);

}  // namespace gns
