#include <gtest/gtest.h>

#include <string>

#include "../Read_text.h"
#include "input/Link_file_kind.h"

namespace gns {
namespace {

/// Built without any of the libraries: everything else is read, and what isn't is told with a way
/// out.
TEST(MissingLibraries, AreTold) {
  EXPECT_EQ(Read_text("a b\n", {}), "a b=0|");
  EXPECT_EQ(Read_text("a,b\n", {"net.csv"}), "a b=0|");
  EXPECT_EQ(Read_text("<graphml/>", {"net.graphml"}).substr(0, 7), "ERROR: ");
  EXPECT_NE(Read_text("<graphml/>", {"net.graphml"}).find("was built without expat"),
            std::string::npos);
  const std::pair<std::string, std::string> cases[] = {{"\x1F\x8B\x08", "zlib|zcat "},
                                                       {"\x28\xB5\x2F\xFD", "libzstd|zstdcat "}};
  for (const auto& [start, words] : cases) {
    const std::string told = Read_text(start, {});
    EXPECT_NE(told.find("was built without " + words.substr(0, words.find('|'))),
              std::string::npos);
    EXPECT_NE(told.find(": " + words.substr(words.find('|') + 1)), std::string::npos) << told;
  }
}

}  // namespace
}  // namespace gns
