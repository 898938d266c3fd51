#include "formats/Network_file.h"

#include "formats/Csv_reader.h"
#include "formats/Graphml_reader.h"
#include "formats/Matrix_reader.h"
#include "formats/Metis_reader.h"
#include "formats/Name_rule.h"
#include "formats/Pajek_reader.h"
#include "formats/Unpacked_input.h"
#include "foundation/Errors.h"
#include "input/Link_file_kind.h"
#include "input/Link_file_reader.h"

namespace gns {

void Read_network_file(const std::string& path, const Input_wishes& wishes, const Link_rule& rule,
                       Link_map& links, Link_file_check& check) {
  const Unpacked_input input = Open_input(path);
  Line_reader& reader = *input.reader;
  const Format format = wishes.format.value_or(Format_of_path(path, !input.unpacking.empty()));
  if (!wishes.columns.empty() && format != Format::csv && format != Format::tsv)
    throw Xerror_msg("ERROR: '" + path +
                     "' has no columns to be chosen by --columns:\n it is read " + "as " +
                     std::string(Name_of(format)) + ". --format=csv reads it as csv.\n");
  check.Set_unpacking(input.unpacking);
  if (format == Format::links) return Read_link_lines(reader, path, rule, links, &check);
  if (wishes.for_files) Refuse_zeros(path, reader.Peek(kind_bytes));
  Link_intake intake(rule);
  Name_rule names(wishes, path);
  switch (format) {
    case Format::csv:
    case Format::tsv:
      Read_csv(reader, format, wishes, names, path, intake);
      break;
    case Format::graphml:
      Read_graphml(reader, wishes, names, path, check, intake);
      break;
    case Format::pajek:
      Read_pajek(reader, wishes, names, path, check, intake);
      break;
    case Format::matrix:
      Read_matrix(reader, wishes.directed, path, intake);
      break;
    case Format::metis:
      Read_metis(reader, wishes.directed, path, intake);
      break;
    case Format::links:
      break;
  }
  check.counts = intake.Counts();
  links = intake.Build();
}

}  // namespace gns
