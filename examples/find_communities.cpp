// Prints the k-clique communities of a link file, and the people in more than one of them, without
// writing a file: find_communities LINK_FILE K

#include <charconv>
#include <cstring>
#include <iostream>
#include <vector>

#include "vorlane/vorlane.h"

namespace {

void Print_communities(const std::string& link_file, std::uint32_t k) {
  const vorlane::Network network = vorlane::Network::Read(link_file);
  vorlane::Options options;
  options.k = k;
  vorlane::Analysis analysis(network, options);
  const std::optional<vorlane::Level> level = analysis.Next();

  std::vector<int> memberships(network.size() + std::size_t{1}, 0);
  for (std::size_t i = 0; i < level->members.size(); ++i) {
    std::cout << "community " << i << ":";
    for (const vorlane::Node node : level->members[i]) {
      std::cout << ' ' << network.Name(node);
      ++memberships[node];
    }
    std::cout << '\n';
  }
  for (vorlane::Node node = 1; node <= network.size(); ++node)
    if (memberships[node] > 1)
      std::cout << network.Name(node) << " is in " << memberships[node] << " communities\n";
}

}  // namespace

int main(int argc, char** argv) {
  std::uint32_t k = 0;
  if (argc != 3 || std::from_chars(argv[2], argv[2] + std::strlen(argv[2]), k).ec != std::errc()) {
    std::cerr << "usage: find_communities LINK_FILE K\n";
    return 2;
  }
  try {
    Print_communities(argv[1], k);
    return 0;
  } catch (const vorlane::Error& failure) {
    std::cerr << failure.what() << '\n';
    return 1;
  }
}
