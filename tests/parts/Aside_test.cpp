#include "parts/Aside.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>

namespace gns::parts {
namespace {

TEST(Aside, NamesTellWhoMadeThemAndWhetherHeLives) {
  const std::string name = Name_aside("work/levels.3.done");
  EXPECT_NE(name, Name_aside("work/levels.3.done"));
  const auto maker = Maker_of(name);
  ASSERT_TRUE(maker.has_value());
  EXPECT_EQ(maker->name, "work/levels.3.done");
  EXPECT_EQ(maker->process, static_cast<std::uint64_t>(::getpid()));
  EXPECT_TRUE(maker->May_be_alive());

  const pid_t child = ::fork();
  if (child == 0) ::_exit(0);
  ::waitpid(child, nullptr, 0);
  Maker gone = *maker;
  gone.process = static_cast<std::uint64_t>(child);
  EXPECT_FALSE(gone.May_be_alive());
  gone.host = "another-machine";  // of which nobody knows
  EXPECT_TRUE(gone.May_be_alive());
}

TEST(Aside, OtherNamesAreNobodys) {
  for (const std::string name :
       {"", ".aside", "cliques.1.bin", "a.aside", "a.1.aside", "a.host.1.aside", "a.host.x.1.aside",
        "a.host.1.x.aside", "a.host..1.aside", ".host.1.1.aside", "a..1.1.aside",
        "a.host.1.99999999999999999999.aside", "a.host.1.1.asides"})
    EXPECT_FALSE(Maker_of(name).has_value()) << name;
  EXPECT_TRUE(Maker_of("a.host.1.1.aside").has_value());
}

}  // namespace
}  // namespace gns::parts
