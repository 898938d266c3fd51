#pragma once

#include <string>
#include <string_view>

#include "foundation/Errors.h"

namespace gns {

/// The bytes at the start of a link file that tell whether it holds text at all.
constexpr std::size_t kind_bytes = 4096;

/// The file is something else than lines of text.
class Xno_link_file : public Xerror_msg {
 public:
  /// `name` is the kind in words. `command` is the one that makes text of it, empty if there is
  /// none.
  Xno_link_file(const std::string& path, const std::string& name, const std::string& command);
  ~Xno_link_file() noexcept override;

  std::string file;
  std::string kind;
  std::string reader;
};

/// Throws Xno_link_file if the first bytes of a file are those of a compressed file or an archive,
/// or of text in UTF-16 or UTF-32 with its mark.
void Refuse_other_kinds(const std::string& file, std::string_view first_bytes);

/// Throws Xno_link_file if there is a zero among the first bytes of a file, which no text has,
/// though a name may.
void Refuse_zeros(const std::string& file, std::string_view first_bytes);

/// The mark at the start of a text that tells its encoding, UTF-8.
constexpr std::string_view utf8_mark = "\xEF\xBB\xBF";

}  // namespace gns
