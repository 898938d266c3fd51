#include "foundation/paths/Total_path.h"

#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "foundation/Errors.h"
#include "foundation/paths/Dir_error.h"

namespace gns {

std::string Get_current_path(unsigned buffer_size) {
  std::string buffer(buffer_size, '\0');
  if (getcwd(buffer.data(), buffer.size()) == nullptr) {
    const int error = errno;
    throw Xerror_msg("ERROR: Get_current_path() called with " + std::to_string(buffer_size) +
                     " and \n" + Dir_error(error));
  }
  buffer.resize(buffer.find('\0'));
  return buffer;
}

std::string Get_total_path(const std::string& path) {
  constexpr unsigned buffer_size = 10000;
  std::list<std::string> components;
  if (!path.empty() && path.front() != '/') {
    components = Get_path_list(Get_current_path(buffer_size));
  }
  std::string component;
  for (const char c : path) {
    if (c != '/') {
      component += c;
      continue;
    }
    if (component == ".." && !components.empty()) {
      components.pop_back();
    } else if (component != ".") {
      components.push_back(component);
    }
    component.clear();
  }
  if (!component.empty()) components.push_back(component);

  std::string total;
  for (const std::string& part : components) total += part + '/';
  if (total.size() > 1) total.pop_back();
  return total;
}

std::string Resolved_path(const std::string& path) {
  std::error_code error;
  const std::filesystem::path resolved = std::filesystem::weakly_canonical(path, error);
  return error || path.empty() ? path : resolved.string();
}

std::list<std::string> Get_path_list(const std::string& path) {
  std::list<std::string> components;
  std::string component;
  for (const char c : path) {
    if (c == '/') {
      components.push_back(std::exchange(component, {}));
    } else {
      component += c;
    }
  }
  if (!component.empty()) components.push_back(component);
  return components;
}

}  // namespace gns
