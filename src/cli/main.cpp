#include <iostream>

#include "engine/Find_coms.h"

int main(int argc, char** argv) {
  gns::Run_parameters p;
  p.input_file = argv[1];
  p.output_dir = argv[2];
  if (argc > 3) {
    p.use_single_k = true;
    p.single_k = static_cast<unsigned>(std::atoi(argv[3]));
  }
  bool appr = false;
  gns::Run_summary s;
  std::cout << gns::Find_coms(p, appr, s) << "\n";
  for (auto& e : s.extractions)
    std::cout << e.k << " " << e.communities << " " << e.largest << " " << e.nodes_covered << "\n";
}
