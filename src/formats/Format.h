#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace gns {

/// The forms in which links are read from files.
enum class Format { links, csv, tsv, graphml, pajek, matrix, metis };

struct Format_facts {
  Format format;
  std::string_view name;    ///< what it is called on a command line
  std::string_view ending;  ///< of the names of its files, with the point; empty if it has none
};

std::span<const Format_facts> All_formats();

/// The format of this name, if there is one.
std::optional<Format> Format_named(std::string_view name);

std::string_view Name_of(Format format);

/// The names of all formats: "links, csv, ... or metis".
std::string Format_names();

/// The format that the ending of a path tells, in any case; `links` if it tells none. Of a file
/// that is compressed, the ending in front of ".gz" or ".zst" counts.
Format Format_of_path(std::string_view path, bool is_compressed);

}  // namespace gns
