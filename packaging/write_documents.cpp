#include <exception>
#include <fstream>
#include <iostream>
#include <string>

#include "packaging/Completions.h"
#include "packaging/Manual_page.h"
#include "packaging/Readme_table.h"

namespace {

void Write(const std::string& path, const std::string& text) {
  std::ofstream file;
  file.exceptions(std::ios::failbit | std::ios::badbit);
  file.open(path, std::ios::binary);
  file << text << std::flush;
}

}  // namespace

/// Writes all that is made from the tables of the program into a directory.
int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: write_documents DIRECTORY\n";
    return 2;
  }
  const std::string dir = std::string(argv[1]) + "/";
  try {
    Write(dir + "vorlane.1", gns::Manual_page());
    Write(dir + "vorlane.bash", gns::Bash_completion());
    Write(dir + "_vorlane", gns::Zsh_completion());
    Write(dir + "vorlane.fish", gns::Fish_completion());
    Write(dir + "options.md", gns::Readme_table());
  } catch (const std::exception& failure) {
    std::cerr << dir << ": " << failure.what() << "\n";
    return 1;
  }
  return 0;
}
