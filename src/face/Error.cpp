#include "vorlane/error.h"

namespace vorlane {

Error::Error(Error_kind kind, const std::string& text) : Error(kind, text, {}, 0, 0) {}

Error::Error(Error_kind kind, const std::string& text, const std::string& source, std::size_t line,
             std::size_t column)
    : std::runtime_error(text),
      kind_(kind),
      source_(std::make_shared<const std::string>(source)),
      line_(line),
      column_(column) {}

Error::Error(const Error&) noexcept = default;
Error& Error::operator=(const Error&) noexcept = default;
Error::~Error() = default;

const char* Version() { return VORLANE_VERSION; }

}  // namespace vorlane
