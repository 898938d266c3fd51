#pragma once

#include <bitset>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "input/Link_intake.h"

namespace gns {

/// Something in a link file that can't be meant as it stands.
struct Link_file_warning {
  std::size_t line = 0;
  std::string fault;  ///< "the names end with a comma"
  std::string cure;   ///< what to do about it
};

/// "FILE, line 3: the names end with a comma; ..."
std::string In_words(const Link_file_warning& warning, const std::string& file);

/// Watches a link file being read, once from front to end, and notes each kind of thing that can't
/// be meant once. It changes nothing about what a line means.
class Link_file_check {
 public:
  /// The first lines with a link are looked at whole.
  static constexpr std::size_t lines_to_look_at = 1000;

  /// With `refuse_zeros`, a zero byte near the start means that the file is no text; else it is a
  /// character like any other.
  explicit Link_file_check(bool refuse_zeros = false) : refuse_zeros_(refuse_zeros) {}

  /// The file is called `path` and holds `first_bytes`, of which kind_bytes are enough. Throws
  /// Xno_link_file where that can be no text.
  void Begin(const std::string& path, std::string_view first_bytes);

  /// The next line with a link, cut by blanks at both ends, of the first few.
  void Look_at(std::string_view cut_line, std::size_t line_number);

  /// What follows a number that was read as a weight.
  void Look_behind_weight(std::string_view rest, std::size_t line_number);

  /// The file is packed: commands that mend it begin with this one, which unpacks it.
  void Set_unpacking(std::string command) { unpacking_ = std::move(command); }

  /// Notes what another one has found.
  void Note(Link_file_warning warning) { warnings_.push_back(std::move(warning)); }

  [[nodiscard]] const std::vector<Link_file_warning>& Warnings() const { return warnings_; }

  Link_counts counts;

 private:
  void Warn_of_header(std::size_t line_number);
  void Warn(std::size_t kind, std::size_t line_number, const std::string& fault,
            const std::string& cure);
  [[nodiscard]] std::string To_new_file(const std::string& command) const;

  bool refuse_zeros_;
  std::string path_;
  std::string unpacking_;
  std::size_t lines_seen_ = 0;
  std::size_t odd_line_ = 0;  ///< a first line whose third field is no number; 0 if there is none
  std::bitset<32> warned_;
  std::vector<Link_file_warning> warnings_;
};

}  // namespace gns
