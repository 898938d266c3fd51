#include "bindings/c/src/Failures.h"

#include <string>

namespace vorlane::c {

namespace {

/// What vorlane_last_failure() shows. Should there be no memory even for the texts, only the code
/// is right.
struct Last_failure {
  vorlane_code code = VORLANE_OK;
  std::string text;
  std::string source;
  std::size_t line = 0;
  std::size_t column = 0;
};

thread_local Last_failure last;

vorlane_code Code_of(Error_kind kind) {
  switch (kind) {
    case Error_kind::parameters:
      return VORLANE_PARAMETERS;
    case Error_kind::input:
      return VORLANE_INPUT;
    case Error_kind::output:
      return VORLANE_OUTPUT;
    case Error_kind::memory:
      return VORLANE_MEMORY;
    case Error_kind::stopped:
      return VORLANE_STOPPED;
    case Error_kind::other:
      break;
  }
  return VORLANE_OTHER;
}

vorlane_code Note(Error_kind kind, const char* text, const std::string& source, std::size_t line,
                  std::size_t column) noexcept {
  last.code = Code_of(kind);
  last.line = line;
  last.column = column;
  try {
    last.text = text;
    last.source = source;
  } catch (...) {
    last.text.clear();
    last.source.clear();
  }
  return last.code;
}

}  // namespace

vorlane_code Failed(const Error& error) noexcept {
  return Note(error.Kind(), error.what(), error.Source(), error.Line(), error.Column());
}

vorlane_code Failed(Error_kind kind, const char* text) noexcept {
  return Note(kind, text, {}, 0, 0);
}

void Check_given(const void* pointer, const char* what) {
  if (pointer == nullptr)
    throw Error(Error_kind::parameters, std::string(what) + " must not be NULL.");
}

}  // namespace vorlane::c

const char* vorlane_last_failure(vorlane_failure* failure) {
  const auto& last = vorlane::c::last;
  if (failure)
    *failure = {last.code, last.text.c_str(), last.source.c_str(), last.line, last.column};
  return last.text.c_str();
}
