#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "Fake_jvm.h"
#include "Temp_dir.h"
#include "bridge/zumo_community_ExternalCalls.h"
#include "control/Clique_find_ext_cont.h"

namespace gns {

namespace {

using Lines = std::vector<std::string>;
using Run_entry = decltype(&Java_zumo_community_ExternalCalls_Find_1coms);

constexpr Run_entry find = Java_zumo_community_ExternalCalls_Find_1coms;
constexpr Run_entry find_and_load = Java_zumo_community_ExternalCalls_findAndLoadComs;

std::string State_report() {
  Fake_jvm jvm;
  return jvm.Text(Java_zumo_community_ExternalCalls_Read_1state_1report(jvm.Env(), nullptr));
}

class ExternalCalls : public testing::Test {
 protected:
  ~ExternalCalls() override { Reset_stop_process(); }

  /// A plain run.
  jobject Run(Run_entry entry, Fake_jvm& jvm, const std::string& link_file) const {
    return entry(jvm.Env(), nullptr, jvm.String(link_file), jvm.String(out_), false, false, 0.0,
                 false, 0.0, false, 0.0, false, 0, false, 0.0);
  }

  jobject Load(Fake_jvm& jvm, const std::string& results_dir, bool directed = false,
               bool use_intensity = false) const {
    return Java_zumo_community_ExternalCalls_loadComs(jvm.Env(), nullptr, jvm.String(results_dir),
                                                      directed, use_intensity);
  }

  Temp_dir dir_;
  std::string links_ = dir_.Write("links", "a b 1\nb c 1\nc a 1\nc d 1\nd e 1\ne c 1\n");
  std::string out_ = dir_.Path("out");
};

TEST_F(ExternalCalls, PrintTheirLines) {
  Fake_jvm jvm;
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  EXPECT_EQ(jvm.Text(Run(find, jvm, links_)), "OutParams1");
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            " starting c++\n in/out args converted\n calling Find_coms\n"
            " process ended succesfully\n no approximation was needed\n");
  EXPECT_EQ(jvm.calls, Lines({"OutParams1 = new()"}));
  EXPECT_EQ(State_report(), "\" done.\n\"");

  testing::internal::CaptureStdout();
  std::filesystem::remove_all(out_);
  EXPECT_EQ(jvm.Text(Run(find_and_load, jvm, links_)), "OutParams2");
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            " process ended succesfully\n no approximation was needed\n");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(State_report(), "\" done.\"");

  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  EXPECT_EQ(jvm.Text(Load(jvm, out_)), "OutParams3");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), " process ended succesfully\n");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "calling Load_coms: \nLoad_coms finished.\n");
  EXPECT_EQ(jvm.pending, "");
  EXPECT_EQ(jvm.faults, Lines());
}

TEST_F(ExternalCalls, TakeTheArgumentsInTheirJavaOrder) {
  Fake_jvm jvm;
  const auto parameters = [&](Run_entry entry, auto... arguments) {
    entry(jvm.Env(), nullptr, jvm.String(links_), jvm.String(out_), arguments...);
    EXPECT_EQ(jvm.pending, "");
    std::string header = dir_.Read("out/input_params.txt");
    std::filesystem::remove_all(out_);
    return header.substr(header.find('\n') + 1);
  };
  for (const Run_entry entry : {find, find_and_load}) {
    EXPECT_EQ(parameters(entry, true, false, 9.0, true, 0.25, true, 1.5, true, 4, true, 7.0),
              "# at a lower link weight threshold of 0.250000,\n"
              "# and at an upper link weight threshold of 1.500000.\n"
              "# Links were treated as directed.\n"
              "# The maximal allowed time per node during clique search was 7.000000 secs.\n"
              "# The communities were extracted solely at k=4.\n");
    EXPECT_EQ(parameters(entry, false, true, 0.5, false, 9.0, false, 9.0, true, -2, false, 9.0),
              "# at no lower link weight threshold,\n"
              "# and at no upper link weight threshold.\n"
              "# A lower link weight intensity threshold of 0.500000 was set.\n"
              "# Links were treated as undirected.\n"
              "# No time limit was set for the clique search.\n"
              "# The communities were extracted solely at k=4294967294.\n");
  }
}

TEST_F(ExternalCalls, FailWithTheMessageInOneException) {
  struct Case {
    std::function<jobject(Fake_jvm&)> call;
    std::string message;
    std::string result;
  };
  const std::string nowhere = dir_.Path("nowhere");
  const auto missing = "ERROR : File not found: '" + nowhere + "' ";
  const auto stopped = [](Fake_jvm& jvm) {
    Java_zumo_community_ExternalCalls_Stop_1process(jvm.Env(), nullptr);
  };
  const Case cases[] = {
      {[&](Fake_jvm& jvm) { return Run(find, jvm, nowhere); }, missing, "OutParams1"},
      {[&](Fake_jvm& jvm) { return Run(find_and_load, jvm, nowhere); }, missing, "null"},
      {[&](Fake_jvm& jvm) {
         stopped(jvm);
         return Run(find, jvm, links_);
       },
       "Process stopped by user.\n", "OutParams1"},
      {[&](Fake_jvm& jvm) {
         stopped(jvm);
         return Run(find_and_load, jvm, links_);
       },
       "Process stopped by user.\n", "null"},
  };
  for (const auto& [call, message, result] : cases) {
    Fake_jvm jvm;
    testing::internal::CaptureStdout();
    const jobject yielded = call(jvm);
    EXPECT_EQ(
        testing::internal::GetCapturedStdout(),
        result == "null" ? "" : " starting c++\n in/out args converted\n calling Find_coms\n");
    EXPECT_EQ(jvm.pending, "java/lang/Exception: " + message);
    EXPECT_EQ(yielded == nullptr ? "null" : jvm.Text(yielded), result);
    EXPECT_EQ(jvm.faults, Lines());
    Java_zumo_community_ExternalCalls_Reset_1stop_1process(jvm.Env(), nullptr);
    std::filesystem::remove_all(out_);
  }
}

TEST_F(ExternalCalls, TellAReloadFromDamagedResults) {
  Fake_jvm jvm;
  Run(find, jvm, links_);
  dir_.Write("out.unfinished", "");
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  EXPECT_EQ(Load(jvm, out_), nullptr);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), " process ended succesfully\n");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "calling Load_coms: \n");
  EXPECT_EQ(State_report(), "\" Loading results: read from disk\"");
  EXPECT_EQ(jvm.pending, "java/lang/Exception: The results directory '" + out_ +
                             "' isn't whole: its run is still going on, or was stopped, or "
                             "failed.\n");
}

/// Whatever of the JVM fails, each entry ends at once, and an error is pending.
TEST_F(ExternalCalls, EndAtTheFirstJavaError) {
  const std::function<jobject(Fake_jvm&)> calls[] = {
      [&](Fake_jvm& jvm) { return Run(find, jvm, links_); },
      [&](Fake_jvm& jvm) { return Load(jvm, out_); },
      [&](Fake_jvm& jvm) {
        std::filesystem::remove_all(out_);
        return Run(find_and_load, jvm, links_);
      },
      [&](Fake_jvm& jvm) {
        return Java_zumo_community_ExternalCalls_Read_1state_1report(jvm.Env(), nullptr);
      }};
  for (const auto& call : calls) {
    jobject result = nullptr;
    for (std::size_t failing_call = 0; result == nullptr; ++failing_call) {
      ASSERT_LT(failing_call, 500U);
      Fake_jvm jvm;
      jvm.failing_call = failing_call;
      result = call(jvm);
      EXPECT_EQ(jvm.pending.empty(), result != nullptr || jvm.refused_room) << failing_call;
      EXPECT_EQ(jvm.faults, Lines()) << failing_call;
    }
  }
}

TEST_F(ExternalCalls, ReadAnEmptyErrorMessage) {
  Fake_jvm jvm;
  Run(find, jvm, "nowhere");
  jvm.pending.clear();
  EXPECT_EQ(jvm.Text(Java_zumo_community_ExternalCalls_Read_1error_1message(jvm.Env(), nullptr)),
            "\"\"");
}

TEST_F(ExternalCalls, RefuseASecondCallUntilTheTranslationIsOver) {
  Fake_jvm jvm;
  bool seen = false;
  jvm.in_java = [&] {
    const std::string report = State_report();
    Fake_jvm other;
    EXPECT_EQ(Load(other, out_), nullptr);
    EXPECT_EQ(other.pending,
              "java/lang/Exception: ERROR: another run or reload is going on in this process, and "
              "only one can at a time.\n");
    EXPECT_EQ(State_report(), report);
    seen = true;
  };
  EXPECT_NE(Run(find_and_load, jvm, links_), nullptr);
  EXPECT_TRUE(seen);
  jvm.in_java = [] {};
  EXPECT_NE(Load(jvm, out_), nullptr);
}

using ThreadsExternalCalls = ExternalCalls;

/// The run waits for its links at a pipe, while another thread looks on and stops it.
TEST_F(ThreadsExternalCalls, WatchAndStopARunFromAnotherThread) {
  const std::string pipe = dir_.Path("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), S_IRUSR | S_IWUSR), 0);
  Fake_jvm runner;
  std::thread run([&] { EXPECT_EQ(Run(find_and_load, runner, pipe), nullptr); });
  Fake_jvm watcher;
  while (State_report() != "\" Reading input ...\n\"") std::this_thread::yield();
  EXPECT_EQ(Run(find, watcher, links_), nullptr);
  EXPECT_NE(watcher.pending.find("only one can at a time"), std::string::npos);
  Java_zumo_community_ExternalCalls_Stop_1process(watcher.Env(), nullptr);
  std::ofstream(pipe) << "a b\n";
  run.join();
  EXPECT_EQ(runner.pending, "java/lang/Exception: Process stopped by user.\n");
  EXPECT_EQ(State_report(), "\" Process stopped by user.\n\"");
}

}  // namespace

}  // namespace gns
