#include <cxxabi.h>

/// Code registers the destructors of variables that live as long as the process here, for its end.
/// But threads may still be inside the library then, a run in a daemon thread, say, and one that
/// looks on. So the library has this operation to itself, and nothing is destroyed.
int __cxxabiv1::__cxa_atexit(void (* /*destructor*/)(void*), void* /*variable*/,
                             void* /*library*/) noexcept {
  return 0;
}
