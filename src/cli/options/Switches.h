#pragma once

#include <map>
#include <string>
#include <vector>

namespace gns {

/// An argument vector split into switches and the words that followed each.
///
/// A switch is a word of two characters or more that begins with "-", so a negative number is one
/// too. A repeated switch forgets its earlier words. Words before the first switch stand under
/// the key "---noname".
class Switches {
 public:
  /// The first argument is the program's name; throws `Xerror_msg` if there is none.
  explicit Switches(const std::vector<std::string>& arguments);
  Switches(int argc, const char* const* argv);
  Switches(const Switches&) = default;
  Switches& operator=(const Switches&) = default;
  virtual ~Switches();

  [[nodiscard]] virtual std::map<std::string, std::vector<std::string>> Params() const;
  [[nodiscard]] virtual std::string Prog_name() const;
  virtual void Construct(const std::vector<std::string>& arguments);

 private:
  std::string prog_name_;
  std::map<std::string, std::vector<std::string>> params_;
};

}  // namespace gns
