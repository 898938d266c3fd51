#pragma once

#include <cstdlib>
#include <iostream>
#include <string>

/// Ends the program, as a crash that the fuzzer keeps, if a reader's result isn't that of its plain
/// version.
inline void Expect_same(const std::string& result, const std::string& plain) {
  if (result == plain) return;
  std::cerr << "result: " << result << "\nplain:  " << plain << '\n';
  std::abort();
}
