#include <gtest/gtest.h>
#include <zlib.h>

#include <string>

#include "report/Deflated.h"

namespace vorlane::report {
namespace {

/// Compiled with the packing library and without it.
TEST(Deflated, IsReadBackWhateverItsLength) {
  for (const std::size_t length : {0U, 1U, 65535U, 65536U, 65537U, 300000U}) {
    std::string bytes(length, 'x');
    for (std::size_t i = 0; i < length; ++i) bytes[i] = static_cast<char>(i * i % 251);
    const std::string packed = Deflated(bytes);
    std::string unpacked(length + 1, '\0');
    uLongf size = unpacked.size();
    ASSERT_EQ(uncompress(reinterpret_cast<Bytef*>(unpacked.data()), &size,
                         reinterpret_cast<const Bytef*>(packed.data()), packed.size()),
              Z_OK)
        << length;
    unpacked.resize(size);
    EXPECT_EQ(unpacked, bytes);
  }
}

}  // namespace
}  // namespace vorlane::report
