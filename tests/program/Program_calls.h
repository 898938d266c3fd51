#pragma once

#include <gtest/gtest.h>

#include <string>

#include "Child.h"

namespace gns {

/// Calls of the program in a directory, one after the other, with what the last one has said.
class Program_calls : public ::testing::Test {
 protected:
  int Run(const Words& words) {
    Child child(temp_, words);
    const int code = child.Wait();
    out_ = child.Out();
    err_ = child.Err();
    return code;
  }

  Temp_dir temp_;
  std::string out_;
  std::string err_;
};

}  // namespace gns
