#pragma once

#include <string>

#include "cli/terminal/Text_table.h"
#include "foundation/text/Json_text.h"
#include "queries/Which_k.h"

namespace gns {

/// The figures of each k, in the forms in which they are shown.

/// "undirected, 27 nodes" and the like.
std::string Kind_in_words(const vorlane::queries::Summary& summary);

enum class Alike_rows { each, folded };

/// `folded`: one row for neighbouring k that have the same figures.
Text_table Table_of(const vorlane::queries::Summary& summary, Alike_rows alike);

/// {"method","finished","nodes","levels":[{"k","communities", ...}]}
std::string In_json(const vorlane::queries::Summary& summary);

/// Why what is called `choice` was recommended, in lines.
std::string In_words(const vorlane::queries::Recommendation& chosen, const std::string& choice);

std::string Name_of(vorlane::Method method);

}  // namespace gns
