#include "foundation/paths/Total_path.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <utility>

#include "foundation/Errors.h"
#include "foundation/io/File_system.h"
#include "foundation/paths/Dir_error.h"
#include "foundation/paths/Direktoriz.h"

namespace gns {

std::string Get_current_path(unsigned buffer_size) {
  std::string buffer(buffer_size, '\0');
  if (File_system::At_hand().Working_dir(buffer.data(), buffer.size()) == nullptr) {
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
  const std::filesystem::path whole = path;  // only as a text: it isn't asked about the disk
  std::filesystem::path there;
  auto part = whole.begin();
  while (part != whole.end() && Is_there_such_path((there / *part).string())) there /= *part++;
  std::filesystem::path resolved;
  if (!there.empty()) {
    const auto give_back = [](char* text) { std::free(text); };
    const std::unique_ptr<char, decltype(give_back)> real(
        File_system::At_hand().Real_path(there.c_str()), give_back);
    if (real == nullptr) return path;
    resolved = real.get();
  }
  while (part != whole.end()) resolved /= *part++;
  return resolved.lexically_normal().string();
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
