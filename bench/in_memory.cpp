// in_memory FILE [K]: finds the communities of a network in memory, from arrays of node numbers to
// all levels or to that of one k, and prints the processor time in seconds. FILE has links between
// whole numbers.

#include <algorithm>
#include <ctime>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "vorlane/vorlane.h"

namespace {

double Processor_seconds() {
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<vorlane::Node> from;
  std::vector<vorlane::Node> to;
  std::ifstream file(argv[1]);
  for (vorlane::Node a = 0, b = 0; file >> a >> b;) {
    from.push_back(a + 1);
    to.push_back(b + 1);
  }
  vorlane::Node count = 0;
  for (const auto* ends : {&from, &to})
    for (const vorlane::Node node : *ends) count = std::max(count, node);

  const double start = Processor_seconds();
  vorlane::Network::Builder links(count, {});
  links.Add(from, to);
  vorlane::Options options;
  if (argc > 2) options.k = static_cast<std::uint32_t>(std::stoul(argv[2]));
  vorlane::Analysis analysis(links.Build(), options);
  std::size_t communities = 0;
  while (const auto level = analysis.Next()) communities += level->members.size();
  std::cout << Processor_seconds() - start << ' ' << communities << '\n';
}
