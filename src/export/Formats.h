#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "export/Memberships.h"
#include "export/Selection.h"
#include "export/Text_sink.h"

namespace vorlane::exporting {

using Write = void (*)(const Selection& selection, Text_sink& sink);

/// A file of a format.
struct Format_file {
  std::string_view ending;  ///< of its name, with what tells it from others: ".nodes.csv"
  Write write;
};

/// A form in which results are carried on.
struct Format {
  std::string_view name;
  std::string_view meaning;  ///< what it holds and who reads it; no sentence
  std::span<const Format_file> files;
  bool one_k = false;  ///< a set of files holds one k
};

/// The one list of all formats.
std::span<const Format> All_formats();

/// Null if there is none of this name.
const Format* Format_of(std::string_view name);

/// The writers. A node is told by its name, or by a number where the format has names as labels;
/// communities by their numbers in the results. They throw as Results do where parts are read.

void Write_gexf(const Selection& selection, Text_sink& sink);
void Write_graphml(const Selection& selection, Text_sink& sink);
void Write_cx2(const Selection& selection, Text_sink& sink);
void Write_csv(const Selection& selection, Text_sink& sink);
void Write_tsv(const Selection& selection, Text_sink& sink);
void Write_wide_csv(const Selection& selection, Text_sink& sink);
void Write_wide_tsv(const Selection& selection, Text_sink& sink);
void Write_nodes_csv(const Selection& selection, Text_sink& sink);
void Write_edges_csv(const Selection& selection, Text_sink& sink);
void Write_json(const Selection& selection, Text_sink& sink);
void Write_jsonl(const Selection& selection, Text_sink& sink);
void Write_cdlib(const Selection& selection, Text_sink& sink);

/// A node has the attributes communities_k4 (their numbers), memberships_k4 (how many) and
/// community_k4 (a word), and approximate_k4 (how many of them) where there are approximate ones.

/// What the attribute community_k4 says of a node in no community.
constexpr std::string_view of_none = "none";

/// The number of the only community, or "overlap": a single word, by which a click makes groups.
void Write_community(const Memberships::At_level& communities, Text_sink& sink);
/// "0|3", which readers of tables take apart.
void Write_list(const Memberships::At_level& communities, Text_sink& sink);

}  // namespace vorlane::exporting
