#pragma once

#include <string>

namespace gns {

/// What a network in a file or a directory of this name is called on its page: "choir" of
/// "networks/choir.txt.gz" and of "choir/".
std::string Title_of(const std::string& path);

/// Without slashes at its end.
std::string Without_slashes(std::string path);

}  // namespace gns
