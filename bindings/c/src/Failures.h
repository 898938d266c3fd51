#pragma once

#include <new>
#include <stdexcept>

#include "bindings/c/vorlane_c.h"
#include "vorlane/error.h"

namespace vorlane::c {

/// Notes the failure as the last one of this thread.
vorlane_code Failed(const Error& error) noexcept;
vorlane_code Failed(Error_kind kind, const char* text) noexcept;

/// Does a work and turns what it throws into a code: nothing leaves this library but codes.
template <typename Work>
vorlane_code With_code(Work work) noexcept {
  try {
    work();
    return VORLANE_OK;
  } catch (const Error& error) {
    return Failed(error);
  } catch (const std::bad_alloc&) {
    return Failed(Error_kind::memory, "Memory ran out.");
  } catch (const std::exception& failure) {
    return Failed(Error_kind::other, failure.what());
  } catch (...) {
    return Failed(Error_kind::other, "Something failed that tells nothing of itself.");
  }
}

/// Throws an Error of kind `parameters` if the pointer is null; `what` names it.
void Check_given(const void* pointer, const char* what);

}  // namespace vorlane::c
