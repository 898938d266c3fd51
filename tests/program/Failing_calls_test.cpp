#include <algorithm>
#include <map>
#include <sstream>

#include "Child.h"
#include "Directory_contents.h"

namespace gns {
namespace {

#ifdef VORLANE_SANITIZED
constexpr bool calls_can_fail = false;
#else
constexpr bool calls_can_fail = true;
#endif

/// How many lines of what strace wrote tell of the call.
int Count_in(const std::string& trace, const std::string& call) {
  std::istringstream lines(trace);
  int count = 0;
  for (std::string line; std::getline(lines, line);)
    count += static_cast<int>(line.find(call + "(") != std::string::npos);
  return count;
}

/// One run of the program after the other under strace, which lets the n-th system call of a kind
/// fail, or ends the process there.
class FailingCalls : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!calls_can_fail) GTEST_SKIP() << "sanitizers don't run under strace";
    const auto before = Contents_of(temp_.Path());
    if (Run("whole", {"-o", "calls"}) != 0) GTEST_SKIP() << "strace is missing or not allowed";
    whole_ = Contents_of(temp_.Path("whole"));
    ASSERT_EQ(whole_.count("k=3/communities"), 1U);
    for (const auto& [name, contents] : before) ASSERT_EQ(temp_.Read(name), contents);
  }

  /// Runs into the directory `out`; strace gets the options.
  int Run(const std::string& out, const Words& options) {
    Child child(temp_, {}, [&] {
      ::setenv("TZ", "UTC", 1);
      Words words{"strace", "-f", "-qq"};
      words.insert(words.end(), options.begin(), options.end());
      for (const char* word : {VORLANE_PROGRAM, "-i", "net", "-o"}) words.emplace_back(word);
      words.push_back(out);
      std::vector<char*> argv;
      for (std::string& word : words) argv.push_back(word.data());
      argv.push_back(nullptr);
      ::execvp("strace", argv.data());
    });
    const int code = child.Wait();
    printed_ = child.Out() + child.Err();
    return code;
  }

  /// How often the run of SetUp made the call.
  [[nodiscard]] int Count(const std::string& call) const {
    return Count_in(temp_.Read("calls"), call);
  }

  /// The same before it looked at the link file: calls of the loader.
  [[nodiscard]] int Loader_count(const std::string& call) const {
    const std::string calls = temp_.Read("calls");
    return Count_in(calls.substr(0, calls.find("\"net\", O_RDONLY")), call);
  }

  /// Nothing that looks whole may be cut, and nothing else may be touched.
  void Expect_no_lie(int code) const {
    EXPECT_EQ(temp_.Read("net"), net_);
    if (!std::filesystem::exists(temp_.Path("out"))) {
      EXPECT_NE(code, 0);
      return;
    }
    auto contents = Contents_of(temp_.Path("out"));
    const bool marked = contents.count(".unfinished") > 0;
    if (code == 0) {
      EXPECT_EQ(contents, whole_);
    } else if (!marked && !contents.empty()) {
      EXPECT_EQ(contents, whole_) << "neither marked nor whole";
    }
  }

  Temp_dir temp_;
  std::string net_ = "a b\nb c\nc a\nc d\nd e\ne c\nd a\nd b\n";
  std::string path_ = temp_.Write("net", net_);
  std::map<std::string, std::string> whole_;
  std::string printed_;
};

/// Each call of the engine fails in a test of its own (FileCalls); here are the program's exit
/// codes, and what is left when it dies.
TEST_F(FailingCalls, LeaveNothingThatLooksWhole) {
  struct Case {
    std::string call;
    std::string effect;
  };
  for (const Case& c : std::vector<Case>{{"openat", "error=ENOSPC"},
                                         {"openat", "signal=KILL"},
                                         {"write", "error=ENOSPC"},
                                         {"write", "signal=KILL"},
                                         {"close", "error=EIO"},
                                         {"read", "error=EIO"},
                                         {"syncfs", "error=EIO"},
                                         {"unlinkat", "error=EIO"},
                                         {"unlinkat", "signal=KILL"},
                                         {"mmap", "error=ENOMEM"}}) {
    EXPECT_LT(Loader_count(c.call), Count(c.call)) << c.call;
    for (int n = Loader_count(c.call) + 1; n <= Count(c.call); ++n) {
      const std::string fault = c.call + ":" + c.effect + ":when=" + std::to_string(n);
      SCOPED_TRACE(fault);
      std::filesystem::remove_all(temp_.Path("out"));
      const int code = Run("out", {"-o", "/dev/null", "-e", "inject=" + fault});
      if (c.effect == "signal=KILL") {
        EXPECT_EQ(code, -SIGKILL);
      } else {
        EXPECT_TRUE(code == 0 || code == 1) << code << "\n" << printed_;
      }
      Expect_no_lie(code);
    }
  }
}

}  // namespace
}  // namespace gns
