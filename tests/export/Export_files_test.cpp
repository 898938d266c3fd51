#include "export/Export_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "Failing_files.h"
#include "Temp_dir.h"
#include "vorlane/vorlane.h"

namespace vorlane::exporting {
namespace {

/// Two triangles, joined by a link, and a clique of four.
Results Some_results() {
  Network::Builder builder(10, {});
  builder.Add(std::vector<Node>{1, 1, 2, 3, 4, 4, 5, 7, 7, 7, 8, 8, 9},
              std::vector<Node>{2, 3, 3, 4, 5, 6, 6, 8, 9, 10, 9, 10, 10});
  return Find(builder.Build());
}

class ExportFiles : public ::testing::Test {
 protected:
  [[nodiscard]] Export_order Order(std::string_view format) const {
    Export_order order;
    order.format = Format_of(format);
    order.stem = temp_.Path("net");
    return order;
  }

  [[nodiscard]] std::vector<std::string> Files() const {
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(temp_.Path()))
      files.push_back(entry.path().filename());
    std::ranges::sort(files);
    return files;
  }

  gns::Temp_dir temp_;
  Selection all_ = Selection(Some_results(), std::nullopt);
};

TEST_F(ExportFiles, HaveTheNamesOfTheirFormats) {
  EXPECT_EQ(Export(Order("tables"), all_).files.size(), 2U);
  Export(Order("cdlib"), all_);
  Export(Order("csv-wide"), all_);
  Export_order named = Order("json");
  named.file = temp_.Path("all of it");
  Export(named, all_);
  EXPECT_EQ(Files(),
            (std::vector<std::string>{"all of it", "net.edges.csv", "net.k3.cdlib.json",
                                      "net.k4.cdlib.json", "net.nodes.csv", "net.wide.csv"}));
  EXPECT_THROW(Selection(all_.Results(), 7), Error);
}

TEST_F(ExportFiles, ReplaceNothingUnlessTold) {
  temp_.Write("net.edges.csv", "mine");
  EXPECT_THROW(Export(Order("tables"), all_), Error);
  EXPECT_EQ(Files(), std::vector<std::string>{"net.edges.csv"});
  EXPECT_EQ(temp_.Read("net.edges.csv"), "mine");
  Export_order order = Order("tables");
  order.overwrites = true;
  Export(order, all_);
  EXPECT_EQ(temp_.Read("net.edges.csv").substr(0, 6), "Source");
}

/// Whatever fails: what was there stays, and no part of a file is left.
TEST_F(ExportFiles, AreWholeOrNotThere) {
  Export_order order = Order("csv");
  order.overwrites = true;
  for (const gns::File_call call : {gns::File_call::open, gns::File_call::write,
                                    gns::File_call::close, gns::File_call::rename}) {
    temp_.Write("net.csv", "mine");
    gns::Failing_files failing(call, ENOSPC, 1);
    const gns::File_system_in_use in_use(failing);
    try {
      Export(order, all_);
      ADD_FAILURE();
    } catch (const Error& error) {
      EXPECT_EQ(error.Kind(), Error_kind::output);
      EXPECT_NE(std::string(error.what()).find("net.csv' can't be written: "), std::string::npos);
    }
    EXPECT_EQ(Files(), std::vector<std::string>{"net.csv"});
    EXPECT_EQ(temp_.Read("net.csv"), "mine");
  }
}

}  // namespace
}  // namespace vorlane::exporting
