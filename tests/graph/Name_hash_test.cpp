#include "graph/Name_hash.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace gns {
namespace {

/// Names that fall together wherever words are only xored in, multiplied by an odd number and
/// folded by a shift, whatever the number: a change of the uppermost bit of one word is made up for
/// by two bits of the next.
std::vector<std::string> Made_names(unsigned words) {
  std::vector<std::string> names;
  for (unsigned choice = 0; choice < 1U << words; ++choice) {
    std::string name;
    for (unsigned word = 0; word < words; ++word)
      name += (choice >> word & 1U) != 0 ? "aaaaaaa\xe1"
                                           "aaaaeaa\xe1"
                                         : "aaaaaaaaaaaaaaaa";
    names.push_back(name);
  }
  return names;
}

std::vector<std::string> Numbers(unsigned count) {
  std::vector<std::string> names;
  for (unsigned i = 0; i < count; ++i) names.push_back(std::to_string(i));
  return names;
}

TEST(NameHash, SpreadsNamesUnderAnyKey) {
  constexpr unsigned names_count = 4096;
  for (const auto& names : {Made_names(12), Numbers(names_count)}) {
    std::set<std::uint64_t> first_names;
    for (const Hash_key key :
         {Hash_key::Drawn(), Hash_key::Of_process(), Hash_key{0, 0x9E3779B97F4A7C15U}}) {
      std::vector<unsigned> slots(2 * names_count, 0);
      std::set<std::uint64_t> hashes;
      for (const std::string& name : names) {
        const std::uint64_t hash = Name_hash(name, key);
        hashes.insert(hash >> 32U);
        ++slots[hash % slots.size()];
      }
      EXPECT_GT(hashes.size(), names_count - 9);
      EXPECT_LT(*std::ranges::max_element(slots), 16U);
      first_names.insert(Name_hash(names.front(), key));
    }
    EXPECT_EQ(first_names.size(), 3U);
  }
}

TEST(NameHash, LooksAtEveryByte) {
  const Hash_key key = Hash_key::Drawn();
  for (std::size_t size = 0; size <= 20; ++size) {
    const std::string name(size, 'a');
    std::set<std::uint64_t> hashes = {Name_hash(name + 'a', key), Name_hash(name, key)};
    for (std::size_t at = 0; at < size; ++at) {
      std::string changed = name;
      changed[at] = 'b';
      hashes.insert(Name_hash(changed, key));
    }
    EXPECT_EQ(hashes.size(), size + 2);
  }
}

}  // namespace
}  // namespace gns
