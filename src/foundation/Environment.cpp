#include "foundation/Environment.h"

#include <cstdlib>

namespace gns {

std::string_view Environment_variable(const char* name) {
  const char* value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): nothing here writes
  return value == nullptr ? "" : value;
}

}  // namespace gns
