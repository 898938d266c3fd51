#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Pack_text.h"
#include "Read_text.h"

namespace gns {
namespace {

std::string Many_links() {
  std::ostringstream text;
  for (int i = 0; i < 200000; ++i) text << 'n' << i * 7919L % 100003 << " n" << i << '\n';
  return text.str();
}

struct Packing {
  std::string ending;
  std::string (*pack)(const std::string& text);
  std::string damaged;  ///< what is said of data with a wrong byte: its beginning
};

const std::vector<Packing> packings = {
#ifdef VORLANE_ZLIB
    {".gz", Gzip, "is damaged: its gzip data end badly at byte "},
#endif
#ifdef VORLANE_ZSTD
    {".zst", Zstd, "can't be unpacked ("},
#endif
};

TEST(Unpacking, ReadsAllParts) {
  const std::string many = Many_links();
  const std::string plain = Read_text(many, {});
  for (const auto& [ending, pack, damaged] : packings) {
    const std::string half = many.substr(0, many.size() / 2 + 3);
    EXPECT_TRUE(Read_text(pack(many), {}) == plain) << ending;
    EXPECT_TRUE(Read_text(pack(half) + pack("") + pack(many.substr(half.size())), {}) == plain);
    EXPECT_EQ(Read_text(pack(""), {}), "");
    EXPECT_EQ(Read_text(pack("a b"), {"net.csv.weird"}), "a b=0|");
    EXPECT_EQ(Read_text(pack("a,b"), {"net.csv" + ending}), "a b=0|");
    EXPECT_EQ(Read_text("a b" + ending + "\n", {"net" + ending}), "a b" + ending + "=0|");
  }
}

TEST(Unpacking, TellsWhatIsDamaged) {
  const std::string many = Many_links();
  for (const auto& [ending, pack, damaged] : packings) {
    const std::string packed = pack(many);
    for (const std::size_t size :
         {std::size_t{4}, std::size_t{12}, packed.size() / 2, packed.size() - 1}) {
      const std::string told = Read_text(packed.substr(0, size), {});
      EXPECT_NE(told.find("is cut off"), std::string::npos) << told.substr(0, 200);
      EXPECT_NE(told.find("at byte " + std::to_string(size + 1) + ".\n"), std::string::npos)
          << told;
    }
    std::string wrong = packed;
    for (std::size_t i = 0; i < 20; ++i) wrong[i + 10] = '\xFF';
    std::string told = Read_text(wrong, {});
    EXPECT_NE(told.find(damaged), std::string::npos) << told.substr(0, 200);
    told = Read_text(pack("a b\n") + "no more", {});
    EXPECT_TRUE(told.starts_with("ERROR: '")) << told;
    told = Read_text(pack(pack("a b\n")), {});
    EXPECT_NE(told.find("holds no links, it is a "), std::string::npos) << told;
  }
}

#ifdef VORLANE_ZLIB
TEST(Unpacking, TakesPaddingOfGzip) {
  EXPECT_EQ(Read_text(Gzip("a b\n") + std::string(1000, '\0') + Gzip("c d"), {}), "a b=0|c d=0|");
}
#endif

}  // namespace
}  // namespace gns
