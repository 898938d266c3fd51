#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace gns {

/// An ordered map that can be looked up while constant.
template <typename Key, typename T>
class gmap final : public std::map<Key, T> {
 public:
  gmap() = default;
  explicit gmap(const std::map<Key, T>& plain) : std::map<Key, T>(plain) {}

  /// As that of the map: a missing key is added.
  virtual T& operator[](const Key& key) { return std::map<Key, T>::operator[](key); }

  /// Throws std::logic_error if the key is missing.
  virtual const T& operator[](const Key& key) const {
    const auto entry = this->find(key);
    if (entry != this->end()) return entry->second;
    throw std::logic_error("ERROR: gmap:: Missing Key in \n const T & gmap[] const.\n");
  }
};

/// Each switch with the words that followed it.
using Switch_map = gmap<std::string, std::vector<std::string>>;

}  // namespace gns
