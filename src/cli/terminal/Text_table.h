#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace gns {

/// Rows of cells for people and for programs; the first row is the head.
class Text_table {
 public:
  explicit Text_table(std::vector<std::string> head) : rows_({std::move(head)}) {}

  void Add(std::vector<std::string> row) { rows_.push_back(std::move(row)); }

  /// In columns of equal width, flush right; two blanks in front of each.
  void Print(std::ostream& stream) const;
  /// With commas, quoted where it has to be (RFC 4180, lines end with \n).
  void Print_csv(std::ostream& stream) const;

 private:
  std::vector<std::vector<std::string>> rows_;
};

}  // namespace gns
