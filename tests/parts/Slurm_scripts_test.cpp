#include "parts/Slurm_scripts.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "Temp_dir.h"
#include "Thrown_message.h"
#include "foundation/text/Shown_text.h"

namespace gns::parts {
namespace {

/// A folder with a plan, beside a program and an sbatch that stand in for the real ones: the
/// program tells of what is left what stands in the file `left.STEP`, the other one tells what it
/// was told.
class Slurm_folder {
 public:
  Slurm_folder() {
    Write_program("vorlane", R"(cat "$0.$6" || exit 1)");
    Write_program("sbatch", R"(n=$(cat "$0.n" 2>/dev/null || echo 6); n=$((n + 1)); echo $n >"$0.n"
printf '[%s]' "$@" >>"$0.log"; echo >>"$0.log"; echo "$n;cluster")");
    Write("plan.tsv",
          "# fingerprint 1\nstep\tpart\tfrom\tto\testimate\tmemory\n"
          "search\t1\t0\t5\t1\t1048576\nsearch\t2\t5\t9\t1\t3145728\n");
    Write("levels.tsv",
          "# fingerprint 1\nstep\tpart\tfrom\tto\testimate\tmemory\n"
          "levels\t1\t5\t3\t1\t2147483648\nlevels\t2\t-\t-\t0\t0\n");
  }

  [[nodiscard]] std::string Work() const { return temp_.Path("the 'work' 50%"); }
  void Write(const std::string& name, const std::string& text) const {
    std::filesystem::create_directory(Work());
    temp_.Write("the 'work' 50%/" + name, text);
  }
  void Left(const std::string& step, const std::string& numbers) const {
    temp_.Write("vorlane." + step, numbers + "\n");
  }

  /// The jobs that are in the queue, a line each.
  void Queue(const std::string& jobs) const { Write_program("squeue", "printf '" + jobs + "'"); }

  /// What submit.sh prints, and its exit code.
  [[nodiscard]] std::string Submit(const std::string& arguments = "") const {
    const std::string script = Write_slurm_scripts(Work(), temp_.Path("vorlane"));
    const std::string command = "PATH=" + temp_.Path() + ":$PATH sh " + Shell_word(script) + " " +
                                arguments + " 2>&1; echo exit $?";
    std::string said;
    FILE* const pipe = popen(command.c_str(), "r");
    for (int c = 0; (c = std::fgetc(pipe)) != EOF;) said += static_cast<char>(c);
    pclose(pipe);
    return said;
  }
  /// What sbatch was told, with the paths of the logs cut down to names.
  [[nodiscard]] std::string Told() const {
    std::string told = temp_.Read("sbatch.log");
    const std::string logs = Temp_logs();
    for (std::size_t at = 0; (at = told.find(logs, at)) != std::string::npos;)
      told.erase(at, logs.size());
    return told;
  }

 private:
  [[nodiscard]] std::string Temp_logs() const { return temp_.Path("the 'work' 50%%/slurm/"); }
  void Write_program(const std::string& name, const std::string& body) const {
    constexpr mode_t runs = 0755;
    ::chmod(temp_.Write(name, "#!/bin/sh\n" + body + "\n").c_str(), runs);
  }

  Temp_dir temp_;
};

TEST(SlurmScripts, SubmitWhatIsLeft) {
  const Slurm_folder folder;
  folder.Left("gather", "1");
  folder.Left("finish", "1");
  folder.Left("search", "1-2,5");
  EXPECT_EQ(folder.Submit("--time=5 '--comment=a b'"), "search: job 7\ngather: job 8\nexit 0\n");
  EXPECT_EQ(folder.Told(),
            "[--parsable][--job-name=vorlane-search][--kill-on-invalid-dep=yes][--array=1-2,5]"
            "[--mem=1027M][--output=search-%a.log][--time=5][--comment=a b][search.sbatch]\n"
            "[--parsable][--job-name=vorlane-gather][--kill-on-invalid-dep=yes]"
            "[--dependency=afterok:7][--mem=1027M][--output=gather.log][--time=5][--comment=a b]"
            "[gather.sbatch][--time=5][--comment=a b]\n");
}

TEST(SlurmScripts, SubmitNothingThatIsDone) {
  const Slurm_folder gathered;
  gathered.Left("gather", "");
  gathered.Left("finish", "1");
  gathered.Left("levels", "");
  EXPECT_EQ(gathered.Submit(), "finish: job 7\nexit 0\n");
  EXPECT_EQ(gathered.Told(),
            "[--parsable][--job-name=vorlane-finish][--kill-on-invalid-dep=yes][--mem=2304M]"
            "[--output=finish.log][finish.sbatch]\n");
  gathered.Left("finish", "");
  EXPECT_EQ(gathered.Submit(), "Nothing is left to do.\nexit 0\n");
  const Slurm_folder damaged;  // nobody knows what is left
  EXPECT_TRUE(damaged.Submit().ends_with("\nexit 1\n"));
}

TEST(SlurmScripts, SubmitNothingTwice) {
  const Slurm_folder folder;
  folder.Left("gather", "1");
  folder.Left("finish", "1");
  folder.Left("search", "1-2");
  folder.Queue("5\\n77\\n");
  EXPECT_EQ(folder.Submit(), "search: job 7\ngather: job 8\nexit 0\n") << "others' jobs";
  folder.Queue("5\\n7\\n7\\n8\\n");
  EXPECT_EQ(folder.Submit(),
            "Nothing is submitted, as jobs of an earlier call are in the queue. Let them end, or "
            "end them by: scancel 7 8\nexit 1\n");
  folder.Left("gather", "");
  folder.Left("levels", "1");
  folder.Queue("8\\n");
  ::setenv("SLURM_JOB_ID", "8", 1);
  EXPECT_EQ(folder.Submit(), "levels: job 9\nfinish: job 10\nexit 0\n") << "the gathering one";
  ::setenv("SLURM_JOB_ID", "80", 1);
  folder.Queue("10\\n");
  EXPECT_TRUE(folder.Submit().ends_with("scancel 10\nexit 1\n")) << "from a job of another run";
  ::unsetenv("SLURM_JOB_ID");
  folder.Queue("");
  EXPECT_EQ(folder.Submit(), "levels: job 11\nfinish: job 12\nexit 0\n") << "after a failure";
}

TEST(SlurmScripts, RefuseWhatSlurmTakesOtherwise) {
  const Temp_dir temp;
  EXPECT_EQ(Thrown_message([&] { Write_slurm_scripts(temp.Path("back\\slash"), "vorlane"); }),
            "ERROR: '" + temp.Path("back\\slash") +
                "' has a backslash or the end of a line in it, which scripts of Slurm can't have. "
                "Choose another folder for the parts.\n");
  EXPECT_TRUE(std::filesystem::is_empty(temp.Path()));
}

}  // namespace
}  // namespace gns::parts
