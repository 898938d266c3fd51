#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace gns::parts {

/// Names of what is made aside, each for one worker alone: "NAME.HOST.PID.COUNT.aside". So several
/// may make the same, and it can be told who is at it, or was.

/// A new one in each call.
std::string Name_aside(const std::string& name);

/// Who makes something aside.
struct Maker {
  std::string name;  ///< of what is made
  std::string host;
  std::uint64_t process = 0;

  /// False if the process is known to be gone; of another host's nobody knows.
  [[nodiscard]] bool May_be_alive() const;
};
/// Nothing if the name is none of these.
std::optional<Maker> Maker_of(std::string_view name_aside);

}  // namespace gns::parts
