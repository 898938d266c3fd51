#include <vorlane/vorlane.h>

#include <cstring>
#include <iostream>

int main() {
  vorlane::Network::Builder builder;
  builder.Add("a", "b");
  builder.Add("b", "c");
  builder.Add("c", "a");
  const vorlane::Results found = vorlane::Find(builder.Build());
  std::cout << vorlane::Version() << ": " << found.At(3).members.size() << " community\n";
  return std::strcmp(vorlane::Version(), VORLANE_VERSION) == 0 ? 0 : 1;
}
