// Times the reading of a file of links: doors links|csv|tsv|graphml|pajek|mtx FILE. Prints the
// seconds of processor time of reading, without the graph that a run makes behind it, and for csv
// and tsv those of cutting the file into fields alone.
#include <ctime>
#include <iostream>
#include <string>

#include "formats/Csv_records.h"
#include "formats/Network_file.h"

namespace {

double Seconds() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

double Cut(const std::string& path, char separator) {
  const double start = Seconds();
  gns::Line_reader reader(path);
  constexpr std::size_t fields = 3;
  gns::Csv_records records(reader, separator, fields, path);
  while (records.Next()) continue;
  return Seconds() - start;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: " << argv[0] << " FORMAT FILE\n";
    return 2;
  }
  gns::Input_wishes wishes;
  wishes.format = gns::Format_named(argv[1]);
  gns::Link_rule rule;
  rule.weighted = true;
  gns::Link_map links;
  gns::Link_file_check check;
  const double start = Seconds();
  gns::Read_network_file(argv[2], wishes, rule, links, check);
  std::cout << Seconds() - start << ' ';
  const bool is_table = wishes.format == gns::Format::csv || wishes.format == gns::Format::tsv;
  std::cout << (is_table ? Cut(argv[2], wishes.format == gns::Format::csv ? ',' : '\t') : 0) << '\n';
  return 0;
}
