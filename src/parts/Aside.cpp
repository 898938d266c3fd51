#include "parts/Aside.h"

#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <charconv>
#include <csignal>

namespace gns::parts {

namespace {

constexpr std::string_view ending = ".aside";

/// Without dots, which part a name aside.
std::string Own_host() {
  constexpr std::size_t longest = 256;
  std::array<char, longest> name = {};
  if (::gethostname(name.data(), name.size() - 1) != 0) return "somewhere";
  std::string host = name.data();
  for (char& c : host)
    if (c == '.' || c == '/') c = '-';
  return host;
}

/// Takes the last part of a name with dots.
std::string_view Take_last(std::string_view& name) {
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos) return {};
  const std::string_view last = name.substr(dot + 1);
  name = name.substr(0, dot);
  return last;
}

std::optional<std::uint64_t> Number_in(std::string_view text) {
  std::uint64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (text.empty() || error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

}  // namespace

std::string Name_aside(const std::string& name) {
  static std::atomic<std::uint64_t> count = 0;
  return name + "." + Own_host() + "." + std::to_string(::getpid()) + "." +
         std::to_string(++count) + std::string(ending);
}

bool Maker::May_be_alive() const {
  return host != Own_host() || ::kill(static_cast<pid_t>(process), 0) == 0 || errno == EPERM;
}

std::optional<Maker> Maker_of(std::string_view name) {
  if (!name.ends_with(ending)) return std::nullopt;
  name.remove_suffix(ending.size());
  const auto count = Number_in(Take_last(name));
  const auto process = Number_in(Take_last(name));
  const std::string_view host = Take_last(name);
  if (!count || !process || host.empty() || name.empty()) return std::nullopt;
  return Maker{std::string(name), std::string(host), *process};
}

}  // namespace gns::parts
