#include "formats/Format.h"

#include <algorithm>
#include <array>

#include "foundation/text/Text_fields.h"

namespace gns {

namespace {

constexpr std::array formats{Format_facts{Format::links, "links", ""},
                             Format_facts{Format::csv, "csv", ".csv"},
                             Format_facts{Format::tsv, "tsv", ".tsv"},
                             Format_facts{Format::graphml, "graphml", ".graphml"},
                             Format_facts{Format::pajek, "pajek", ".net"},
                             Format_facts{Format::matrix, "mtx", ".mtx"},
                             Format_facts{Format::metis, "metis", ".graph"}};

}  // namespace

std::span<const Format_facts> All_formats() { return formats; }

std::optional<Format> Format_named(std::string_view name) {
  const auto* const found = std::ranges::find(formats, name, &Format_facts::name);
  return found == formats.end() ? std::nullopt : std::optional(found->format);
}

std::string_view Name_of(Format format) {
  return std::ranges::find(formats, format, &Format_facts::format)->name;
}

std::string Format_names() {
  std::string names;
  for (const Format_facts& facts : formats) {
    if (!names.empty()) names += &facts == &formats.back() ? " or " : ", ";
    names += facts.name;
  }
  return names;
}

Format Format_of_path(std::string_view path, bool is_compressed) {
  std::string name = Lower_case(path);
  for (const std::string_view ending : {".gz", ".zst"}) {
    if (!is_compressed || !name.ends_with(ending)) continue;
    name.resize(name.size() - ending.size());
    break;
  }
  for (const Format_facts& facts : formats)
    if (!facts.ending.empty() && name.ends_with(facts.ending)) return facts.format;
  return Format::links;
}

}  // namespace gns
