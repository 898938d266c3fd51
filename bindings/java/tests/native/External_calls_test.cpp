#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Fake_jvm.h"
#include "Temp_dir.h"
#include "bindings/java/native/Java_errors.h"
#include "bindings/java/native/zumo_community_ExternalCalls.h"
#include "control/Run_control.h"
#include "engine/Cores_at_hand.h"

namespace gns {

namespace {

using Lines = std::vector<std::string>;
using Run_entry = decltype(&Java_zumo_community_ExternalCalls_Find_1coms);

constexpr Run_entry find = Java_zumo_community_ExternalCalls_Find_1coms;
constexpr Run_entry find_and_load = Java_zumo_community_ExternalCalls_findAndLoadComs;

jobject State_report(Fake_jvm& jvm) {
  return Java_zumo_community_ExternalCalls_Read_1state_1report(jvm.Env(), nullptr);
}

class ExternalCalls : public testing::Test {
 protected:
  /// A plain run into an empty directory.
  jobject Run(Run_entry entry, Fake_jvm& jvm, const std::string& link_file) const {
    std::filesystem::remove_all(out_);
    return entry(jvm.Env(), nullptr, jvm.String(link_file), jvm.String(out_), false, false, 0.0,
                 false, 0.0, false, 0.0, false, 0, false, 0.0);
  }

  jobject Load(Fake_jvm& jvm) const {
    return Java_zumo_community_ExternalCalls_loadComs(jvm.Env(), nullptr, jvm.String(out_), false,
                                                      false);
  }

  Temp_dir dir_;
  std::string links_ = dir_.Write("links", "a b 1\nb c 1\nc a 1\nc d 1\nd e 1\ne c 1\n");
  std::string out_ = dir_.Path("out");
};

TEST_F(ExternalCalls, ThrowNothingOnTopOfAFailure) {
  Fake_jvm jvm;
  EXPECT_EQ(jvm.Text(Run(find, jvm, "nowhere")), "OutParams1");
  Throw_exception(jvm.Env(), "second");
  EXPECT_EQ(jvm.pending, "java/lang/Exception: ERROR : File not found: 'nowhere' ");
  EXPECT_EQ(jvm.faults, Lines());
}

/// Whatever of the JVM fails, each entry ends at once: the error stays pending, nothing is called
/// on top of it, and no reference is left behind.
TEST_F(ExternalCalls, EndAtTheFirstJavaError) {
  struct Case {
    std::function<jobject(Fake_jvm&)> call;
    std::size_t arguments;
  };
  const Case cases[] = {
      {[&](Fake_jvm& jvm) { return Run(find, jvm, links_); }, 2},
      {[&](Fake_jvm& jvm) { return Run(find_and_load, jvm, links_); }, 2},
      {[&](Fake_jvm& jvm) { return Load(jvm); }, 1},
      {State_report, 0},
  };
  for (const bool has_arrays : {false, true}) {
    for (const auto& [call, arguments] : cases) {
      jobject result = nullptr;
      for (std::size_t failing_call = 0; result == nullptr; ++failing_call) {
        ASSERT_LT(failing_call, 500U);
        Fake_jvm jvm;
        jvm.has_arrays = has_arrays;
        jvm.failing_call = failing_call;
        result = call(jvm);
        EXPECT_EQ(jvm.pending, result != nullptr ? "" : "a Java error") << failing_call;
        EXPECT_EQ(jvm.references_alive, arguments + (result != nullptr ? 1 : 0)) << failing_call;
        EXPECT_EQ(jvm.faults, Lines()) << failing_call;
      }
    }
  }
}

/// What a run finds, right behind it and read back, comes to Java as the same objects with any
/// classes; an error of the JVM during the run spoils no file.
TEST_F(ExternalCalls, HandOverTheSameWhereArraysAreTaken) {
  Fake_jvm jvm;
  jvm.has_arrays = true;
  ASSERT_NE(Run(find_and_load, jvm, links_), nullptr);
  const Lines after_run = jvm.calls;
  Fake_jvm other;
  other.has_arrays = true;
  ASSERT_NE(Load(other), nullptr);
  EXPECT_EQ(after_run.size(), other.calls.size());
  EXPECT_EQ(after_run[2], "ResultArrays1.cliques([ ], [ 3 6 ], [ 1 2 3 3 4 5 ])");
  EXPECT_EQ(after_run.back(), R"(ResultArrays1.names([ "" "a" "b" "c" "d" "e" ]))");
  EXPECT_EQ(other.calls[2], "ResultArrays1.cliques([ ], [ 3 6 ], [ 0 1 2 2 3 4 ])");

  constexpr std::size_t in_the_run = 15;
  Fake_jvm failing;
  failing.has_arrays = true;
  failing.failing_call = in_the_run;
  EXPECT_EQ(Run(find_and_load, failing, links_), nullptr);
  EXPECT_EQ(failing.pending, "a Java error");
  EXPECT_TRUE(std::filesystem::exists(out_ + "/k=3/size_distribution"));
  EXPECT_FALSE(std::filesystem::exists(out_ + "/.unfinished"));
}

TEST_F(ExternalCalls, GiveTheNextRunItsCores) {
  const auto cores_of_run = [&](const std::string& link_file) {
    Fake_jvm jvm;
    Run(find, jvm, link_file);
    return external_control::This_control().workers;
  };
  const auto set = [](jint jobs) {
    Java_zumo_community_ExternalCalls_setJobs(nullptr, nullptr, jobs);
  };
  set(3);
  EXPECT_EQ(cores_of_run(links_), 3U);
  EXPECT_EQ(cores_of_run(links_), 1U) << "it was for one run";
  set(0);
  EXPECT_EQ(cores_of_run(links_), Cores_at_hand());
  set(3);
  EXPECT_EQ(cores_of_run("nowhere"), 3U);
  EXPECT_EQ(cores_of_run(links_), 1U) << "a failed run was one, too";
}

TEST_F(ExternalCalls, RefuseASecondCallUntilTheTranslationIsOver) {
  Fake_jvm jvm;
  bool seen = false;
  jvm.in_java = [&] {
    Fake_jvm other;
    const std::string report = other.Text(State_report(other));
    EXPECT_EQ(Load(other), nullptr);
    EXPECT_EQ(std::exchange(other.pending, ""),
              "java/lang/Exception: ERROR: another run or reload is going on in this process, and "
              "only one can at a time.\n");
    EXPECT_EQ(other.Text(State_report(other)), report);
    seen = true;
  };
  EXPECT_NE(Run(find_and_load, jvm, links_), nullptr);
  EXPECT_TRUE(seen);
  EXPECT_NE(Load(*std::make_unique<Fake_jvm>()), nullptr);
}

}  // namespace

}  // namespace gns
