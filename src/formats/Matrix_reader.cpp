#include "formats/Matrix_reader.h"

#include <limits>
#include <string_view>

#include "control/Run_control.h"
#include "formats/Cut_field.h"
#include "formats/Number_name.h"
#include "foundation/text/Text_fields.h"
#include "input/Link_file_reader.h"

namespace gns {

namespace {

/// What the first line tells.
struct Matrix_kind {
  bool is_pattern = false;  ///< entries have no values
  bool is_symmetric = false;
};

bool Is_remark(std::string_view line) {
  Skip_space(line);
  return line.empty() || line.starts_with('%');
}

Matrix_kind Kind_of(const std::string& file, std::string_view line) {
  Cut_field fields(file, 1, line);
  fields.Word();
  const std::string object = Lower_case(fields.Word());
  if (object != "matrix") fields.Refuse("matrix", "Nothing else holds links.");
  if (Lower_case(fields.Word()) != "coordinate")
    fields.Refuse("coordinate", "A matrix in full can be saved as a sparse one.");
  Matrix_kind kind;
  const std::string values = Lower_case(fields.Word());
  kind.is_pattern = values == "pattern";
  if (!kind.is_pattern && values != "real" && values != "integer" && values != "double")
    fields.Refuse("pattern, real or integer", "Weights are real numbers.");
  const std::string symmetry = Lower_case(fields.Word());
  kind.is_symmetric = symmetry == "symmetric";
  if (!kind.is_symmetric && symmetry != "general")
    fields.Refuse("general or symmetric", "Save the matrix as a general one.");
  return kind;
}

}  // namespace

void Read_matrix(Line_reader& reader, bool directed, const std::string& file, Link_intake& intake) {
  constexpr std::uint64_t most_nodes = std::numeric_limits<std::uint32_t>::max() - 1;
  constexpr std::uint64_t any = std::numeric_limits<std::uint64_t>::max();
  Matrix_kind kind;
  std::uint64_t size = 0;
  std::uint64_t entries = 0;
  std::uint64_t taken = 0;
  std::size_t size_line = 0;
  std::string cure;
  for (std::string_view line; reader.Next(line);) {
    external_control::Check_inside_long_stage();
    const std::size_t number = reader.Lines_taken();
    if (number == 1 && Lower_case(line.substr(0, 14)) == "%%matrixmarket")
      kind = Kind_of(file, line);
    if (Is_remark(line)) continue;
    Cut_field fields(file, number, line);
    if (size_line == 0) {
      size_line = number;
      size = fields.Whole_number("the number of rows", "", 1, most_nodes);
      if (fields.Whole_number("the number of columns", "", 1, most_nodes) != size)
        fields.Refuse("as many columns as rows", "Rows and columns are the same nodes.");
      entries = fields.Whole_number("the number of entries", "", 0, any);
      cure = "Line " + std::to_string(size_line) + " tells how many there are.";
      continue;
    }
    if (++taken > entries) {
      fields.Word();
      fields.Refuse("no more than " + std::to_string(entries) + " entries", cure);
    }
    const Number_name first(fields.Whole_number("the number of a row", cure, 1, size));
    const Number_name second(fields.Whole_number("the number of a column", cure, 1, size));
    double weight = 0.0;
    if (intake.Is_weighted()) {
      if (kind.is_pattern) {
        fields.Word();
        fields.Refuse("values, as the run needs weights", "A pattern has none.");
      }
      weight = fields.Number(expected_weight, "Runs with -w, -W or -I need a value of each entry.");
    }
    intake.Take(first.Text(), second.Text(), weight);
    if (directed && kind.is_symmetric && first.Text() != second.Text())
      intake.Take(second.Text(), first.Text(), weight);
  }
  if (taken < entries || size_line == 0)
    Refuse_field(file, {reader.Lines_taken() + 1, 0},
                 {size_line == 0 ? "the size of the matrix"
                                 : std::to_string(entries - taken) + " more entries",
                  "", "The file isn't whole."});
}

}  // namespace gns
