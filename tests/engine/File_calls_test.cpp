#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <system_error>
#include <vector>

#include "Directory_contents.h"
#include "Failing_files.h"
#include "Linked_groups.h"
#include "Sample_runs.h"
#include "engine/Load_coms.h"
#include "files/Unfinished_mark.h"
#include "foundation/io/File_faults.h"

namespace gns {
namespace {

namespace fs = std::filesystem;

struct Fault {
  const char* name;
  File_call call;
  std::vector<int> errors;  ///< after which results are missing or whatever failed is told
  std::vector<int> made_up_for = {};
};

const std::vector<Fault> faults = {
    {"open", File_call::open, {ENOSPC, EIO, EACCES, EMFILE}, {EINTR}},
    {"read", File_call::read, {EIO}, {EINTR, EAGAIN}},
    {"rest of read", File_call::rest_of_read, {}, {0}},
    {"write", File_call::write, {ENOSPC, EIO}, {EINTR}},
    {"rest of write", File_call::rest_of_write, {}, {0}},
    {"close", File_call::close, {ENOSPC, EIO, EINTR}},
    {"sync", File_call::sync, {}, {EIO, EINTR}},
    {"sync all", File_call::sync_all, {ENOSPC, EIO}, {EINTR}},
    {"status of open", File_call::status_of_open, {EIO}},
    {"status", File_call::status, {EIO}},
    {"make dir", File_call::make_dir, {ENOSPC, EIO, EACCES}},
    {"rename", File_call::rename, {ENOSPC, EIO, EACCES}},
    {"remove", File_call::remove, {EIO, EACCES}},
    {"open dir", File_call::open_dir, {EIO, EACCES, EMFILE}, {EINTR}},
    {"read dir", File_call::read_dir, {EIO}},
    {"close dir", File_call::close_dir, {}, {EIO, EINTR}},
    {"working dir", File_call::working_dir, {EIO, EACCES}},
    {"real path", File_call::real_path, {EIO, EACCES}}};

std::ptrdiff_t Open_descriptors() {
  return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
}

/// What is left when a call has failed; `made_up_for` if nobody is to notice.
using Check = std::function<void(bool made_up_for)>;

/// Lets each call of the kind that `work` makes fail once, with each error in turn; `check` looks
/// at what it has left, and at the end at what it leaves if nothing fails. The number of failures.
int Fail_each(const Fault& fault, const std::function<void()>& work, const Check& check) {
  int failures = 0;
  std::vector<int> errors = fault.errors;
  errors.insert(errors.end(), fault.made_up_for.begin(), fault.made_up_for.end());
  for (std::size_t i = 0; i < errors.size(); ++i) {
    for (int n = 1;; ++n) {
      SCOPED_TRACE(std::string(fault.name) + " " + std::to_string(n) + ": " +
                   std::generic_category().message(errors[i]));
      Failing_files files(fault.call, errors[i], n);
      const std::ptrdiff_t before = Open_descriptors();
      {
        const File_system_in_use in_use(files);
        EXPECT_NO_THROW(work());
      }
      EXPECT_EQ(Open_descriptors(), before);
      check(!files.Has_failed() || i >= fault.errors.size());
      if (!files.Has_failed()) break;
      ++failures;
    }
  }
  return failures;
}

/// A run, and what stands at the path of its output directory before it.
struct Run_case {
  Sample_run sample;
  std::string output_dir;
  std::function<void(const std::string& output_dir)> prepare;
};

class FileCalls : public ::testing::Test {
 protected:
  void Run(Run_parameters parameters, Com_result_tables* tables = nullptr) {
    parameters.output_dir = out_;
    bool approximation_needed = false;
    Run_summary summary;
    Forget_file_faults();
    message_ = Find_coms(parameters, approximation_needed, summary, tables);
    told_ = message_ != run_finished || !File_faults().empty();
  }

  /// What is in the files beside the output directory.
  [[nodiscard]] std::string Beside() const {
    std::string texts;
    for (const auto& [name, text] : Contents_of(temp_.Path()))
      if (!temp_.Path(name).starts_with(out_ + "/")) texts += text;
    return texts;
  }

  Temp_dir temp_;
  std::string out_ = temp_.Path("out");
  std::string message_;
  bool told_ = false;
};

TEST_F(FileCalls, ARunIsWholeOrTellsAndIsMarked) {
  const std::vector<Sample_run> samples = Sample_runs();
  const auto nothing = [](const std::string&) {};
  const auto directory = [](const std::string& path) { fs::create_directory(path); };
  const auto file = [&](const std::string&) { temp_.Write("out", "somebody's own"); };
  std::map<std::string, int> failures;
  for (const Run_case& c : std::vector<Run_case>{{samples[0], "new/out", nothing},
                                                 {samples[4], "out", directory},
                                                 {samples.back(), "out", file}}) {
    Run_parameters parameters = c.sample.parameters;
    parameters.use_single_k = true;
    parameters.single_k = 3;
    parameters.input_file = fs::relative(Sample_links(c.sample.name));
    out_ = temp_.Path("whole");
    Run(parameters);
    ASSERT_EQ(message_, run_finished);
    const auto whole = Contents_of(out_);
    fs::remove_all(out_);
    out_ = temp_.Path(c.output_dir);
    std::string before;
    const auto work = [&] {
      for (const auto& old : fs::directory_iterator(temp_.Path())) fs::remove_all(old);
      c.prepare(out_);
      before = Beside();
      Com_result_tables tables;
      Run(parameters, &tables);
    };
    const auto check = [&](bool made_up_for) {
      const auto left =
          fs::is_directory(out_) ? Contents_of(out_) : std::map<std::string, std::string>();
      EXPECT_EQ(Beside(), before);
      EXPECT_FALSE(made_up_for && told_) << message_;
      if (!told_) {
        EXPECT_EQ(left, whole);
      } else {
        EXPECT_TRUE(left.empty() || Is_marked_unfinished(out_)) << message_;
      }
    };
    for (const Fault& fault : faults) failures[fault.name] += Fail_each(fault, work, check);
  }
  for (const Fault& fault : faults) EXPECT_GT(failures[fault.name], 0) << fault.name;
}

TEST_F(FileCalls, ARefusedRunTouchesNothing) {
  const Run_parameters parameters = {temp_.Write("links", Linked_groups(5, 1)), ""};
  fs::create_directory(temp_.Path("used"));
  temp_.Write("used/graph", "of another run");
  fs::create_symlink("links", temp_.Path("to_links"));
  fs::create_symlink("used", temp_.Path("to_used"));
  const auto before = Contents_of(temp_.Path());
  for (const char* output_dir : {"used", "to_used", "links", "to_links"}) {
    out_ = temp_.Path(output_dir);
    for (const Fault& fault : faults) {
      Fail_each(
          fault, [&] { Run(parameters); },
          [&](bool) {
            EXPECT_TRUE(told_);
            EXPECT_EQ(Contents_of(temp_.Path()), before) << output_dir;
          });
    }
  }
}

TEST_F(FileCalls, AReloadIsWholeOrTells) {
  for (const Sample_run& sample : Sample_runs()) {
    fs::remove_all(out_);
    Com_result_tables whole;
    sample.Run(out_, &whole);
    Com_result_tables tables;
    std::string errors;
    const auto work = [&] {
      tables = {};
      errors.clear();
      message_ = Load_coms(out_, sample.load_mode, tables, errors);
    };
    const auto check = [&](bool made_up_for) {
      const bool told = message_ != run_finished || !errors.empty();
      EXPECT_FALSE(made_up_for && told) << message_ << errors;
      EXPECT_TRUE(told || tables == whole) << sample.name;
    };
    for (const Fault& fault : faults) Fail_each(fault, work, check);
  }
}

/// Nobody knows then whether the results are whole.
TEST_F(FileCalls, AMarkThatCannotBeLookedForCountsAsStanding) {
  Failing_files files(File_call::status, EIO, 1);
  const File_system_in_use in_use(files);
  EXPECT_TRUE(Is_marked_unfinished(temp_.Path()));
  EXPECT_FALSE(Is_marked_unfinished(temp_.Path()));
}

}  // namespace
}  // namespace gns
