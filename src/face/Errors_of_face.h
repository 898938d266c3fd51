#pragma once

#include <new>
#include <stdexcept>
#include <string>

#include "control/Run_control.h"
#include "foundation/Errors.h"
#include "vorlane/error.h"

namespace vorlane::face {

/// "FILE, line 3, column 5: 'x' stands where a weight was expected."
std::string In_words(const gns::Place_in_file& place);

/// Does a work and turns what it throws into an Error. `kind` is that of the failures that the
/// engine tells in words only.
template <typename Work>
auto With_errors(Error_kind kind, Work work) -> decltype(work()) {
  try {
    return work();
  } catch (const Error&) {
    throw;
  } catch (const gns::Xep_wrong_line& failure) {
    const gns::Place_in_file& place = failure.place;
    throw Error(Error_kind::input, place.line == 0 ? failure.what() : In_words(place), place.file,
                place.line, place.column);
  } catch (const gns::Xep_read_file& failure) {
    throw Error(Error_kind::input, failure.what());
  } catch (const gns::Xerror_msg& failure) {
    throw Error(kind, failure.what());
  } catch (const std::bad_alloc&) {
    throw Error(Error_kind::memory, "Memory ran out.");
  } catch (const std::exception& failure) {
    const bool stopped = external_control::This_control().stop;
    throw Error(stopped ? Error_kind::stopped : Error_kind::other, failure.what());
  }
}

}  // namespace vorlane::face
