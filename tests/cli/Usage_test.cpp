#include "cli/Usage.h"

#include <gtest/gtest.h>

#include <functional>

namespace gns {
namespace {

const std::string banner = std::string(52, '_') + "\n Vorlane.\n";

std::string Printed(const std::function<void()>& print) {
  ::testing::internal::CaptureStdout();
  print();
  return ::testing::internal::GetCapturedStdout();
}

TEST(Usage, ShortForm) {
  // A mark inside the error text is no place for the name.
  const std::string text = Printed([] { Print_usage("./run me", "{prog_name}\n"); });
  const std::string head = banner + "\n Error:\n{prog_name}\n\n Usage : ./run me -i input_file \n";
  EXPECT_EQ(text.substr(0, head.size()), head);
  const std::string tail =
      "      link weight intensity threshold is set.)\n"
      "  -h  help. More details about these options.\n";
  EXPECT_TRUE(text.ends_with(tail));
  for (const char* option : {"i", "o", "w", "W", "d", "t", "D", "U", "I", "k", "h"}) {
    EXPECT_NE(text.find(std::string("\n  -") + option + "  "), std::string::npos) << option;
  }
}

TEST(Usage, DetailedForm) {
  const std::string text = Printed([] { Print_detailed_usage("prog"); });
  EXPECT_TRUE(text.starts_with(
      " When using prog you must specify at least the \n"
      " input file using the switch -i. \n Example:\n\n   prog -i my_links.dat \n\n"));
  EXPECT_TRUE(text.ends_with("    k-clique size k=4\n\n\n\n" + banner));
  EXPECT_EQ(text.find("{prog_name}"), std::string::npos);
}

}  // namespace
}  // namespace gns
