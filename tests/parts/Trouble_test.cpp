#include <sys/wait.h>
#include <unistd.h>

#include <bit>
#include <chrono>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <functional>
#include <thread>

#include "Failing_files.h"
#include "Parts_runs.h"
#include "Thrown_message.h"
#include "files/Unfinished_mark.h"
#include "parts/Checksum.h"
#include "parts/Clique_part.h"
#include "parts/Part_format.h"

namespace gns::parts {
namespace {

namespace fs = std::filesystem;

constexpr std::uint64_t parts = 3;

/// A run of three parts on a network of many cliques, and the single run of it.
class PartsInTrouble : public ::testing::Test {
 protected:
  PartsInTrouble() {
    parameters_.input_file = temp_.Write("links", Drawn_links(20, false));
    single_ = Single_run(temp_, parameters_);
    parameters_.output_dir = temp_.Path("out");
  }

  void Plan_anew() {
    fs::remove_all(parameters_.output_dir);
    fs::remove_all(work_);
    Plan(parameters_, {}, work_, parts);
  }

  /// Everything up to the end; what was done before is not done again.
  void Go_on() {
    if (!fs::exists(work_ + "/plan.done")) Plan(parameters_, {}, work_, parts);
    Run_planned(work_, parts);
  }

  void Expect_whole() const { EXPECT_TRUE(Contents_of(parameters_.output_dir) == single_); }

  /// Whether the results look so.
  [[nodiscard]] bool Is_finished() const {
    return fs::exists(parameters_.output_dir) && !fs::is_empty(parameters_.output_dir) &&
           !Is_marked_unfinished(parameters_.output_dir);
  }

  [[nodiscard]] std::string In_work(const std::string& name) const { return work_ + "/" + name; }

  Temp_dir temp_;
  Run_parameters parameters_;
  Contents single_;
  std::string work_ = temp_.Path("work");
};

std::string Bytes_of_file(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void Write_file(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

/// Changes a byte of the head, and the checksum with it.
void Change_head(const std::string& path, std::size_t place, char value) {
  std::string bytes = Bytes_of_file(path);
  bytes[place] = value;
  constexpr std::size_t behind = 16;
  Checksum checksum;
  checksum.Add(std::as_bytes(std::span(bytes).first(bytes.size() - behind)));
  const std::uint64_t sum = checksum.Value();
  std::memcpy(bytes.data() + bytes.size() - behind, &sum, sizeof sum);
  Write_file(path, bytes);
}

/// What is wrong with a file, which step refuses it, what it says, and which steps mend it.
struct Trouble {
  std::string name;
  std::function<void(const std::string& work)> make;
  std::function<void(const std::string& work)> step;
  std::string told;
  std::string cure;  ///< a beginning of the command
};

TEST_F(PartsInTrouble, AreRefusedByNameWithTheCure) {
  const std::string other_work = temp_.Path("other_work");
  Run_parameters other = parameters_;
  other.output_dir = temp_.Path("other_out");
  Plan(other, {}, other_work, parts);
  Search(other_work, 1);

  const auto cut = [](const std::string& name) {
    return [name](const std::string& work) {
      fs::resize_file(work + name, fs::file_size(work + name) / 2);
    };
  };
  const auto change = [](const std::string& name, std::size_t place, char value) {
    return [=](const std::string& work) { Change_head(work + name, place, value); };
  };
  const auto append = [](const std::string& name) {
    return [=](const std::string& work) { std::ofstream(work + name, std::ios::app) << "\n"; };
  };
  const auto remove = [](const std::string& name) {
    return [=](const std::string& work) { fs::remove_all(work + name); };
  };
  const auto search = [](const std::string& work) { Search(work, 2); };
  const auto gather = [](const std::string& work) {
    fs::remove(work + "/gather.done");
    Gather(work);
  };
  const auto levels = [](const std::string& work) {
    fs::remove(work + "/levels.1.done");
    Find_levels(work, 1);
  };
  const auto finish = [](const std::string& work) { Finish(work); };
  const std::vector<Trouble> all{
      {"foreign part",
       [&](const std::string& work) {
         fs::copy_file(other_work + "/cliques.1.bin", work + "/cliques.1.bin",
                       fs::copy_options::overwrite_existing);
       },
       gather, "cliques.1.bin' belongs to another run", "vorlane parts search --work"},
      {"part in another's place",
       [](const std::string& work) {
         fs::rename(work + "/cliques.1.bin", work + "/cliques.2.bin");
       },
       gather, "cliques.2.bin' is another part than its name tells", "vorlane parts search"},
      {"missing part", remove("/cliques.3.bin"), gather, "cliques.3.bin' is missing",
       "vorlane parts search"},
      {"cut part", cut("/cliques.2.bin"), gather, "cliques.2.bin' is cut or damaged",
       "vorlane parts search"},
      {"empty part", [](const std::string& work) { fs::resize_file(work + "/cliques.2.bin", 0); },
       gather, "is cut or damaged", "vorlane parts search"},
      {"longer part", append("/cliques.2.bin"), gather, "is cut or damaged",
       "vorlane parts search"},
      {"no part",
       [](const std::string& work) { Write_file(work + "/cliques.2.bin", std::string(200, 'x')); },
       gather, "is no part of a run", "vorlane parts search"},
      {"other program", change("/cliques.1.bin", 40, '0'), gather,
       "was made by version 0.0.0 of Vorlane", "vorlane parts search"},
      {"other format", change("/cliques.1.bin", 16, 1), gather, "has version 1 of the format",
       "vorlane parts search"},
      {"other machine", change("/cliques.1.bin", 8, 1), gather, "in another order",
       "vorlane parts search"},
      {"changed plan", append("/plan.tsv"), search, "plan.tsv' was changed", "Make the plan again"},
      {"changed run", append("/run.json"), gather, "run.json' was changed", "Make the plan again"},
      {"another plan",
       [&](const std::string& work) {
         fs::copy_file(other_work + "/graph.bin", work + "/graph.bin",
                       fs::copy_options::overwrite_existing);
       },
       search, "plan.tsv' was changed since it was made, or belongs to another run",
       "Make the plan again"},
      {"plan of another program", change("/graph.bin", 40, '2'), search,
       "graph.bin' was made by version 2.0.0 of Vorlane", "Delete "},
      {"cut graph", cut("/graph.bin"), search, "graph.bin' is cut or damaged", "Delete "},
      {"plan cut short", remove("/plan.done"), search, "plan.done' is missing",
       "Make the plan again"},
      {"results are gone", remove("/../out"), search, "out/graph' is missing",
       "Make the plan again"},
      {"not gathered", remove("/gather.done"), levels, "gather.done' is missing",
       "vorlane parts gather"},
      {"cut cliques", cut("/cliques.bin"), levels, "cliques.bin' is cut", "vorlane parts gather"},
      {"changed levels", append("/levels.tsv"), levels, "levels.tsv' was changed",
       "vorlane parts gather"},
      {"missing level", remove("/levels.1.done"), finish,
       "levels.1.done' is missing: ", "vorlane parts levels"},
      {"missing search in the end",
       [](const std::string& work) {
         fs::remove(work + "/gather.done");
         fs::remove(work + "/cliques.2.bin");
       },
       finish, "cliques.2.bin' is missing: ", "vorlane parts search"},
      {"cut results", cut("/../out/k=3/communities"), finish,
       "out/k=3/communities' is missing, or isn't what was written", "vorlane parts levels"},
      {"lost results", remove("/../out/cliques"), finish, "out/cliques' is missing",
       "vorlane parts gather"},
      {"lost mark", remove("/../out/.unfinished"), gather, "are finished, or another run's", "no "},
      {"no such part", [](const std::string&) {}, [](const std::string& work) { Search(work, 4); },
       "there is no part 4", "has parts 1 to 3"},
  };
  for (const Trouble& trouble : all) {
    SCOPED_TRACE(trouble.name);
    Plan_anew();
    for (std::uint64_t part = 1; part <= parts; ++part) Search(work_, part);
    Gather(work_);
    for (std::uint64_t part = 1; part <= parts; ++part) Find_levels(work_, part);
    trouble.make(work_);
    const std::string message = Thrown_message([&] { trouble.step(work_); });
    EXPECT_NE(message.find(trouble.told), std::string::npos) << message;
    EXPECT_NE(message.find(trouble.cure), std::string::npos) << message;
    if (trouble.name == "lost mark" || trouble.name == "no such part") continue;
    EXPECT_TRUE(trouble.name == "results are gone" || Is_marked_unfinished(parameters_.output_dir));
    if (trouble.cure == "Delete " || trouble.name == "another plan") Plan_anew();
    if (trouble.cure == "Make the plan again") Plan(parameters_, {}, work_, parts);
    Go_on();
    Expect_whole();
  }
}

/// A change of any byte of any file is seen, by the first step that needs the file.
TEST_F(PartsInTrouble, NoByteCanChangeUnseen) {
  Plan_anew();
  for (std::uint64_t part = 1; part <= parts; ++part) Search(work_, part);
  Gather(work_);
  const std::string graph_bytes = Bytes_of_file(In_work("graph.bin"));
  const Graph_part graph(std::as_bytes(std::span(graph_bytes)), {"graph", ""});
  const std::uint64_t run = graph.Fingerprint();
  using Read = std::function<void(std::span<const std::byte>)>;
  const std::vector<std::pair<std::string, Read>> files{
      {"graph.bin",
       [&](auto bytes) {
         const Graph_part other(bytes, {"", ""});
       }},
      {"cliques.1.bin",
       [&](auto bytes) {
         Cliques_of_part(bytes, {Part_kind::cliques, run, 1}, {"", ""});
       }},
      {"cliques.bin",
       [&](auto bytes) {
         All_cliques_of(bytes, graph, {"", ""});
       }},
      {"plan.done", [&](auto bytes) {
         const Part_reader other(bytes, {Part_kind::done, run, 0}, {"", ""});
       }}};
  for (const auto& file : files) {
    const std::string& name = file.first;
    std::string bytes = Bytes_of_file(In_work(name));
    const auto seen = [&] {
      return Thrown_message<Xbad_part>([&] { file.second(std::as_bytes(std::span(bytes))); }) !=
             "nothing was thrown";
    };
    EXPECT_FALSE(seen()) << name;
    const std::size_t step = bytes.size() / 1000 + 1;
    for (std::size_t place = 0; place < bytes.size(); place += step) {
      const char before = std::exchange(bytes[place], static_cast<char>(bytes[place] ^ 0x10));
      EXPECT_TRUE(seen()) << name << " at " << place;
      bytes[place] = before;
    }
    for (std::size_t size = 0; size < bytes.size(); size += step) {
      const std::string whole = bytes;
      bytes.resize(size);
      EXPECT_TRUE(seen()) << name << " of " << size << " bytes";
      bytes = whole;
    }
  }
}

/// Does a work in a process of its own and yields its number.
pid_t Begin_apart(const std::function<void()>& work) {
  const pid_t child = ::fork();
  if (child != 0) return child;
  int code = 0;
  try {
    work();
  } catch (const std::exception&) {
    code = 1;
  }
  ::_exit(code);
}

/// Several at once make the same part, as when one that was given up comes back.
TEST_F(PartsInTrouble, WorkersOfOnePartDontMeet) {
  constexpr int workers = 4;
  Plan_anew();
  const auto together = [&](const std::function<void()>& work) {
    std::vector<pid_t> children;
    for (int i = 0; i < workers; ++i) children.push_back(Begin_apart(work));
    for (const pid_t child : children) {
      int status = 0;
      ::waitpid(child, &status, 0);
      EXPECT_EQ(status, 0);
    }
  };
  for (std::uint64_t part = 1; part <= parts; ++part) together([&] { Search(work_, part); });
  together([&] { Gather(work_); });
  for (std::uint64_t part = 1; part <= parts; ++part) together([&] { Find_levels(work_, part); });
  Finish(work_);
  Expect_whole();
  for (const auto& [name, bytes] : Contents_of(work_)) EXPECT_FALSE(name.ends_with(".aside"));
}

/// Workers die at any moment, in any step; what they leave behind harms nobody.
TEST_F(PartsInTrouble, WhoIsKilledIsReplaced) {
  literal::Random random(1);
  const auto start = std::chrono::steady_clock::now();
  Plan_anew();
  Go_on();
  const auto whole = std::chrono::duration_cast<std::chrono::microseconds>(
                         std::chrono::steady_clock::now() - start)
                         .count();
  constexpr int attempts = 10;
  int killed = 0;
  for (int attempt = 0; attempt < attempts; ++attempt) {
    fs::remove_all(parameters_.output_dir);
    fs::remove_all(work_);
    for (int lives = 0; lives < 3; ++lives) {
      const pid_t child = Begin_apart([&] { Go_on(); });
      std::this_thread::sleep_for(
          std::chrono::microseconds(random.Below(static_cast<std::uint32_t>(whole))));
      ::kill(child, SIGKILL);
      int status = 0;
      ::waitpid(child, &status, 0);
      killed += static_cast<int>(WIFSIGNALED(status));
      EXPECT_TRUE(WIFSIGNALED(status) || status == 0);
      if (Is_finished()) Expect_whole();
    }
    Go_on();
    Expect_whole();
    for (const auto& [name, bytes] : Contents_of(work_)) EXPECT_FALSE(name.ends_with(".aside"));
  }
  EXPECT_GT(killed, attempts / 2);
}

/// Each call of the system fails once, in each step: it is told, nothing looks whole, and the step
/// can be done again.
TEST_F(PartsInTrouble, WhatTheDiskRefusesIsDoneAgain) {
  const std::vector<std::function<void()>> steps{
      [&] { Plan(parameters_, {}, work_, parts); },
      [&] {
        for (std::uint64_t part = 1; part <= parts; ++part) Search(work_, part);
      },
      [&] { Gather(work_); },
      [&] {
        for (std::uint64_t part = 1; part <= parts; ++part) Find_levels(work_, part);
      },
      [&] { Finish(work_); }};
  parameters_.input_file = temp_.Write("few links", "a b\nb c\nc a\nc d\nd e\ne c\nd a\nd b\n");
  fs::remove_all(temp_.Path("single"));
  single_ = Single_run(temp_, parameters_);
  ::unsetenv("VORLANE_NO_SYNC");
  for (const File_call call :
       {File_call::open, File_call::write, File_call::map, File_call::close, File_call::sync,
        File_call::sync_all, File_call::rename, File_call::make_dir, File_call::status,
        File_call::status_of_open, File_call::read, File_call::read_dir}) {
    bool failed = true;
    for (int nth = 1; failed; nth += 1 + nth / 3) {
      SCOPED_TRACE("call " + std::to_string(static_cast<int>(call)) + ", " + std::to_string(nth));
      fs::remove_all(parameters_.output_dir);
      fs::remove_all(work_);
      Failing_files files(call, ENOSPC, nth);
      const File_system_in_use in_use(files);
      const auto all_steps = [&] {
        for (const auto& step : steps) step();
      };
      const std::string message = Thrown_message<std::exception>(all_steps);
      failed = files.Has_failed();
      if (message != "nothing was thrown") {
        EXPECT_TRUE(failed) << message;
        EXPECT_FALSE(Is_finished());
        all_steps();
      }
      Expect_whole();
    }
  }
  ::setenv("VORLANE_NO_SYNC", "1", 1);
}

}  // namespace
}  // namespace gns::parts
