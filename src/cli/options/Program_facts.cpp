#include "cli/options/Program_facts.h"

#include <array>

namespace gns {

namespace {

constexpr std::array exit_meanings{
    Exit_meaning{Exit_code::finished, "finished, or help or version shown"},
    Exit_meaning{Exit_code::run_failed,
                 "the run failed, or a file could not be written (standard error lists which)"},
    Exit_meaning{Exit_code::wrong_usage, "something is wrong with the command line"},
    Exit_meaning{Exit_code::stopped, "stopped by Ctrl-C or SIGTERM"}};

constexpr std::array variables{
    Variable{"VORLANE_MEMORY_LIMIT",
             "the most memory to be used for data: bytes, or a number with `K`, `M` or `G` behind "
             "it. By default what the machine has left, less a quarter of its memory or 2 GB, "
             "whichever is less, and no more than its control group allows"},
    Variable{"VORLANE_NO_SYNC",
             "if it isn't empty, a run doesn't wait until its results are on the disk, safe from a "
             "power failure"},
    Variable{"NO_COLOR", "if it isn't empty, progress is shown without colour"},
    Variable{"TERM", "on a terminal that is `dumb`, progress is shown as lines that are added"}};

constexpr std::array examples{
    Example{"-i links.txt", "communities at every k, in the directory `links.txt_files`"},
    Example{"-i links.txt -w 0.5 -k 4 -o strong",
            "those at k = 4 of the links above 0.5, in `strong`"},
    Example{"-i links.txt -D -o directed", "directed communities"},
    Example{"-i links.txt -t 0.001 -o quick",
            "no more than a millisecond for a node, where cliques are too many"}};

}  // namespace

std::string_view Synopsis() { return "`-i` FILE [OPTION]..."; }

std::string_view Purpose() {
  return "Finds the overlapping communities of a network by k-clique percolation: sets of nodes "
         "that can be reached from each other through cliques of k nodes, each of which shares "
         "all nodes but one with the next. The results go to a directory of text files.";
}

std::span<const Exit_meaning> Exit_meanings() { return exit_meanings; }

std::span<const Variable> Variables() { return variables; }

std::span<const Example> Examples() { return examples; }

}  // namespace gns
