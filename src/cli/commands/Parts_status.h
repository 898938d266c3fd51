#pragma once

#include <string>

#include "parts/Parts.h"
#include "parts/Work_folder.h"

namespace gns {

/// How far a run in parts is, in lines for people, with the commands that come next.
std::string In_words(const parts::Status& status, const parts::Work_folder& folder);

/// "2,5-7": the parts of a step that are still to be done.
std::string Left_in_words(const parts::Status& status, parts::Step step);

/// {"output":...,"finished":...,"parts":N,"search":["done",...],"gather":"missing","levels":[...]}
/// on one line, with "next", a list of commands.
std::string In_json(const parts::Status& status, const parts::Work_folder& folder);

}  // namespace gns
