#include "cli/options/Option_table.h"

#include <algorithm>

namespace gns {

namespace {

using Argument = Option::Argument;
using Group = Option::Group;

constexpr std::array options{
    Option{
        .word = "-i",
        .argument = "FILE",
        .kind = Argument::file,
        .group = Group::files,
        .summary = "the link file",
        .without = "must be given",
        .description =
            "Reads the links from FILE: one on a line, two names and perhaps a weight, separated "
            "by blanks or tabs. Empty lines and lines that begin with `#` are skipped. Runs with "
            "`-w`, `-W` or `-I` need a weight on every line; others don't look at it. Files of "
            "other formats are told by their names or by `--format`; gzip and zstd are unpacked. "
            "`-` reads standard input; give `-o` then. Must be given.",
        .names = {"input", "file"},
        .mandatory = true,
    },
    Option{
        .word = "-o",
        .argument = "DIR",
        .kind = Argument::directory,
        .group = Group::files,
        .summary = "the directory for the results; it must not exist yet, or be empty",
        .without = "a name made from that of the link file",
        .description =
            "Writes the results to DIR. Directories above it that are missing are made. Without "
            "this switch the name is that of the link file with `_files` behind it, then the "
            "thresholds of `-w` and `-W` and the mark of `-D` if these are given. The threshold "
            "of `-I` comes behind a name that is given here, too.",
        .names = {"output", "outdir"},
    },
    Option{
        .word = "--format",
        .argument = "FORMAT",
        .kind = Argument::words,
        .group = Group::files,
        .summary = "what the link file is, whatever its name",
        .without =
            "by the ending: `.csv` `.tsv` `.graphml` `.net` `.mtx` `.graph`; else plain links",
        .description =
            "Reads the link file as `csv`, `tsv`, `graphml`, `pajek`, `mtx` (MatrixMarket) or "
            "`metis`, or as plain `links`.",
        .names = {"format"},
        .choices = {"links", "csv", "tsv", "graphml", "pajek", "mtx", "metis"},
        .needs_argument = true,
    },
    Option{
        .word = "--columns",
        .argument = "A,B,W",
        .kind = Argument::number,
        .group = Group::files,
        .summary = "of csv and tsv: the columns of a link, by name or number; weights may lack",
        .without = "those that the header names, or the first three",
        .description = "Takes the two names of a link and its weight from the columns A, B and W "
                       "of a csv or tsv file, told by their names in the first line or by numbers "
                       "from 1. The third may be left out.",
        .names = {"columns"},
        .needs_argument = true,
    },
    Option{
        .word = "--blanks",
        .argument = "C",
        .kind = Argument::number,
        .group = Group::files,
        .summary = "takes the place of blanks in names, which results can't hold",
        .without = "a name with blanks ends the run",
        .description =
            "Puts the character C in the place of each blank in a name of csv, tsv, GraphML or "
            "Pajek files, and of a `#` in front of one; results files can't hold them. Two names "
            "that become equal end the run.",
        .names = {"blanks"},
        .needs_argument = true,
    },
    Option{
        .word = "--export",
        .argument = "FORMATS",
        .kind = Argument::formats,
        .group = Group::files,
        .summary = "exports the results as well, in formats of other programs: gexf, graphml, cx2, "
                   "csv, json and others (`vorlane help export`)",
        .without = "",
        .description =
            "Writes the results in formats of other programs as well, beside the directory and "
            "under its name. `vorlane help export` lists the formats.",
        .names = {"export"},
        .choices = {"gexf", "graphml", "cx2", "csv", "csv-wide", "tables", "json", "jsonl"},
        .needs_argument = true,
    },
    Option{
        .word = "--report",
        .argument = "PAGE",
        .kind = Argument::file,
        .group = Group::files,
        .summary = "writes a page to look at the results as well: communities at every k as "
                   "pictures and tables",
        .without = "",
        .description = "Writes the results as one html page as well, which any browser shows, as "
                       "`vorlane report` does.",
        .names = {"report"},
        .needs_argument = true,
    },
    Option{
        .word = "-w",
        .argument = "NUMBER",
        .kind = Argument::number,
        .group = Group::search,
        .summary = "lower weight threshold: links of this weight or less are dropped",
        .without = "none",
        .description =
            "Drops the links of this weight or less. Each line of the link file is judged by its "
            "own weight. Must be less than the threshold of `-W`.",
        .names = {"lower", "weight", "min-weight"},
    },
    Option{
        .word = "-W",
        .argument = "NUMBER",
        .kind = Argument::number,
        .group = Group::search,
        .summary = "upper weight threshold: links of this weight or more are dropped",
        .without = "none",
        .description = "Drops the links of this weight or more.",
        .names = {"upper", "max-weight"},
    },
    Option{
        .word = "-d",
        .argument = "NUMBER",
        .kind = Argument::number,
        .group = Group::files,
        .summary = "digits behind the point in directory names made from thresholds, 255 at most",
        .without = "6 (the text that `-h` prints says 3)",
        .description = "Writes thresholds in the names of directories with so many digits behind "
                       "the point. Nothing else depends on it.",
        .names = {"digits"},
    },
    Option{
        .word = "-t",
        .argument = "SECONDS",
        .kind = Argument::number,
        .group = Group::search,
        .summary = "processor time that the search may spend on a node at a time",
        .without = "no limit",
        .description =
            "Limits the processor time that the search for cliques spends on a node. A node that "
            "isn't done in its time is tried again when others are out of the way; those that "
            "are left in the end yield approximate cliques and communities, which carry a minus "
            "sign in front of their numbers. Does not go with `-I`.",
        .names = {"time-limit"},
    },
    Option{
        .word = "-D",
        .argument = "",
        .group = Group::search,
        .summary = "links, cliques and communities are directed",
        .without = "undirected",
        .description =
            "Takes each link as one from its first node to its second. A directed clique can be "
            "put in a sequence in which each node has a link to every one behind it. Does not go "
            "with `-I`.",
        .names = {"directed"},
    },
    Option{
        .word = "-U",
        .argument = "",
        .group = Group::search,
        .summary = "undirected; changes nothing, but can't be given together with `-D`",
        .without = "",
        .description = "Declares that links are undirected, as they are without `-D`; the two are "
                       "refused together.",
        .names = {"undirected"},
    },
    Option{
        .word = "-I",
        .argument = "NUMBER",
        .kind = Argument::number,
        .group = Group::search,
        .summary = "intensity method: lower threshold of the link weight intensity",
        .without = "off",
        .description =
            "Counts only cliques of k nodes whose intensity, the geometric mean of the weights of "
            "their links, is above the threshold. Each of them is kept and written; `-k` spares "
            "those of all other k, and must be 3 or more then.",
        .names = {"intensity"},
    },
    Option{
        .word = "-k",
        .argument = "NUMBER",
        .kind = Argument::number,
        .group = Group::search,
        .summary = "communities at this k only",
        .without = "every k from the largest clique down to 3",
        .description =
            "Finds the communities at a single k. All cliques are found first in any case.",
        .names = {"k"},
    },
    Option{
        .word = "--jobs",
        .argument = "N",
        .kind = Argument::number,
        .group = Group::search,
        .summary =
            "cores to work with, 0 for all at hand; each more takes about half the memory of "
            "the first one; the results are the same",
        .without = "1",
        .description =
            "Works with N cores: ranges of nodes are searched and communities at several k found "
            "at a time. 0 stands for all cores that the machine, the job of a scheduler or the "
            "control group gives. Results don't depend on it. Each core more takes about 12 bytes "
            "for each node of each clique; where the memory limit leaves too little for that, "
            "fewer "
            "cores work. With `-t` cliques are searched by one.",
        .names = {"jobs", "threads", "cores"},
        .needs_argument = true,
    },
    Option{
        .word = "-h",
        .argument = "",
        .group = Group::display,
        .summary = "explains the switches by examples and ends",
        .without = "",
        .description = "Explains the switches by examples, and ends.",
    },
    Option{
        .word = "--help",
        .argument = "",
        .group = Group::display,
        .summary = "lists all options, exit codes and environment variables and ends",
        .without = "",
        .description = "Lists all options, exit codes and environment variables, and ends.",
        .names = {"help"},
    },
    Option{
        .word = "--version",
        .argument = "",
        .group = Group::display,
        .summary = "shows the version and ends",
        .without = "",
        .description = "Shows the version, and ends.",
        .names = {"version"},
    },
    Option{
        .word = "--json",
        .argument = "",
        .group = Group::display,
        .summary = "the figures of each k as an object of JSON on standard output",
        .without = "a table",
        .description = "Prints the figures of each k as one object of JSON, as `vorlane summary "
                       "--json` does, in place of the table, and the message of the run on "
                       "standard error.",
    },
    Option{
        .word = "--progress",
        .argument = "HOW",
        .kind = Argument::words,
        .group = Group::display,
        .summary = "how far the run has come, as lines on standard error: one every 30 seconds; "
                   "`--progress=5` every 5 seconds, `--progress=json` objects of JSON, "
                   "`--progress=json,5` both, `--progress=none` nothing",
        .without = "on a terminal a few lines that are rewritten, else as `--progress`",
        .description =
            "Tells on standard error how far the run has come, by a line every 30 seconds and a "
            "last one at the end. HOW is a number of seconds, `json` for objects of JSON, `none` "
            "for nothing, or several of these with commas between them. Without this option a few "
            "lines are rewritten on a terminal; elsewhere a line is added every 30 seconds.",
        .names = {"progress"},
        .choices = {"json", "none"},
    },
};

constexpr std::array groups{Option_group{Group::files, "Input and results"},
                            Option_group{Group::search, "Links and communities"},
                            Option_group{Group::display, "Help and progress"}};

template <typename Predicate>
const Option* First(Predicate holds) {
  const auto* const found = std::ranges::find_if(options, holds);
  return found == options.end() ? nullptr : found;
}

}  // namespace

std::string Option::Form() const {
  std::string form(word);
  if (argument.empty()) return form;
  if (!Is_long() || needs_argument) return form.append(" ").append(argument);
  return form.append("[=").append(argument).append("]");
}

std::span<const Option> All_options() { return options; }

const Option* Switch_of(std::string_view word) {
  return First([&](const Option& o) { return !o.Is_long() && o.word == word; });
}

const Option* Long_option_of(std::string_view word) {
  return First([&](const Option& o) {
    if (!o.Is_long() || !word.starts_with(o.word)) return false;
    const std::string_view rest = word.substr(o.word.size());
    return rest.empty() || (rest.front() == '=' && !o.argument.empty());
  });
}

std::span<const Option_group> Option_groups() { return groups; }

}  // namespace gns
