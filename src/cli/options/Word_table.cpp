#include "cli/options/Word_table.h"

#include <algorithm>
#include <array>

namespace gns {

namespace {

constexpr Option json{
    .word = "--json",
    .argument = "",
    .group = Option::Group::display,
    .summary = "one object of JSON on a line",
    .without = "",
    .description = "Prints one object of JSON, on one line.",
};
constexpr Option csv{
    .word = "--csv",
    .argument = "",
    .group = Option::Group::display,
    .summary = "the table with commas",
    .without = "",
    .description = "Prints the table with commas between its fields.",
};
constexpr std::array json_only{json};
constexpr std::array json_and_csv{json, csv};
constexpr std::array query_options{
    json,
    Option{
        .word = "--community",
        .argument = "K:I",
        .kind = Option::Argument::number,
        .group = Option::Group::display,
        .summary = "the community I at k = K: its nodes, and the communities that it overlaps with",
        .without = "",
        .description = "Tells of community I at k = K: its nodes, and the communities with which "
                       "it shares some.",
        .needs_argument = true,
    },
    Option{
        .word = "--overlap",
        .argument = "K:I:J",
        .kind = Option::Argument::number,
        .group = Option::Group::display,
        .summary = "the nodes that the communities I and J at k = K share",
        .without = "",
        .description = "Tells which nodes the communities I and J at k = K share.",
        .needs_argument = true,
    },
};

constexpr Option k_only{
    .word = "--k",
    .argument = "K",
    .kind = Option::Argument::number,
    .group = Option::Group::display,
    .summary = "this k only",
    .without = "all",
    .description = "Only the communities at this k; `all` is every k, as without the option.",
    .needs_argument = true,
};
constexpr std::array diff_options{k_only, json, csv};

constexpr Option force{
    .word = "--force",
    .argument = "",
    .group = Option::Group::display,
    .summary = "replaces files that exist",
    .without = "",
    .description = "Replaces files that exist, each once the new one is whole.",
};

constexpr std::array export_options{
    Option{
        .word = "--format",
        .argument = "FORMATS",
        .kind = Option::Argument::formats,
        .group = Option::Group::display,
        .summary =
            "the formats: gexf (for Gephi), graphml (igraph, networkx), cx2 (Cytoscape), csv, tsv, "
            "csv-wide, tsv-wide, tables (nodes and edges), json, jsonl, cdlib",
        .without = "",
        .description = "In which formats: `gexf` for Gephi, `graphml` for igraph and networkx, "
                       "`cx2` for Cytoscape, `csv` and `tsv` with a line for each node of a "
                       "community, `csv-wide` and `tsv-wide` with a line for each node, `tables` "
                       "with nodes and edges, `json`, `jsonl` with a community on a line, `cdlib`. "
                       "Must be given.",
        .mandatory = true,
        .needs_argument = true,
    },
    k_only,
    Option{
        .word = "-o",
        .argument = "FILE",
        .kind = Option::Argument::file,
        .group = Option::Group::display,
        .summary = "the file; `-` is standard output; a beginning of names where a format has "
                   "several files",
        .without = "the name of DIR with an ending",
        .description = "Writes to FILE, or, if that is `-`, to standard output. Where a format has "
                       "several files, or there are several formats, their names begin with FILE. "
                       "Without it they begin with the name of DIR.",
    },
    force,
};

constexpr std::array report_options{
    Option{
        .word = "-o",
        .argument = "FILE",
        .kind = Option::Argument::file,
        .group = Option::Group::display,
        .summary = "the page; `-` is standard output for a picture",
        .without = "the name of DIR with .html behind it",
        .description = "Writes to FILE; a picture, or the page, has the name of DIR without it.",
    },
    Option{
        .word = "--k",
        .argument = "K",
        .kind = Option::Argument::number,
        .group = Option::Group::display,
        .summary = "the k that is shown first",
        .without = "the recommended k",
        .description = "Shows this k first, or in the picture.",
        .needs_argument = true,
    },
    Option{
        .word = "--svg",
        .argument = "PICTURE",
        .kind = Option::Argument::words,
        .group = Option::Group::display,
        .summary =
            "a picture for print in place of the page: tree (communities in communities over "
            "all k), graph (the network), distributions",
        .without = "",
        .description = "Writes a vector picture for print in place of the page, readable in black "
                       "and white: `tree` shows which community lies in which over all k, `graph` "
                       "the network with its communities at one k, or, if it has many nodes, the "
                       "communities alone, `distributions` the four distributions at one k.",
        .choices = {"tree", "graph", "distributions"},
        .needs_argument = true,
    },
    Option{
        .word = "--open",
        .argument = "",
        .group = Option::Group::display,
        .summary = "opens the page in the browser",
        .without = "",
        .description = "Opens the page in the browser of the desktop when it is written.",
    },
    force,
};

constexpr std::array parts_options{
    Option{
        .word = "--work",
        .argument = "DIR",
        .kind = Option::Argument::directory,
        .group = Option::Group::display,
        .summary = "the folder in which the parts meet",
        .without = "",
        .description = "The folder in which the parts meet; all machines must see it. `-W` does as "
                       "well, unless a number stands behind it, which is a weight threshold.",
        .mandatory = true,
        .needs_argument = true,
    },
    Option{
        .word = "--parts",
        .argument = "N",
        .kind = Option::Argument::number,
        .group = Option::Group::display,
        .summary = "of plan: how many parts there are to be",
        .without = "",
        .description = "Of `plan`: how many parts there are to be.",
        .needs_argument = true,
    },
    Option{
        .word = "--slurm",
        .argument = "",
        .group = Option::Group::display,
        .summary = "of plan: makes batch scripts for Slurm",
        .without = "",
        .description = "Of `plan`: puts batch scripts for Slurm into the folder; `submit.sh` among "
                       "them submits them.",
    },
    Option{
        .word = "--part",
        .argument = "I",
        .kind = Option::Argument::number,
        .group = Option::Group::display,
        .summary = "of search and levels: which part, from 1 on",
        .without = "",
        .description = "Of `search` and `levels`: which part; they count from 1.",
        .needs_argument = true,
    },
    Option{
        .word = "--json",
        .argument = "",
        .group = Option::Group::display,
        .summary = "of status and finish: one object of JSON on a line",
        .without = "",
        .description = "Of `status` and `finish`: prints one object of JSON, on one line.",
    },
    Option{
        .word = "--left",
        .argument = "STEP",
        .kind = Option::Argument::words,
        .group = Option::Group::display,
        .summary = "of status: the numbers of the parts of a step that are still to be done",
        .without = "",
        .description = "Of `status`: prints the numbers of the parts of STEP that are still to be "
                       "done, such as `2,5-7`, and nothing else; of `gather` and `finish`, `1` if "
                       "they are.",
        .choices = {"search", "gather", "levels", "finish"},
        .needs_argument = true,
    },
};

constexpr std::array words{
    Word{
        .word = "run",
        .arguments = "-i FILE [OPTION]...",
        .summary = "finds communities, as without a word",
        .description = "Finds communities, as the program does without a word.",
        .most_arguments = Word::any,
        .kind = Option::Argument::none,
        .of_kind = 0,
    },
    Word{
        .word = "summary",
        .arguments = "DIR",
        .summary = "the figures of each k of a results directory",
        .description = "Shows for each k of the results in DIR how many communities there are, how "
                       "large the two largest are, and how many nodes they cover and share.",
        .options = json_and_csv,
    },
    Word{
        .word = "which-k",
        .arguments = "DIR...",
        .summary = "which k to look at first, and why",
        .description =
            "Recommends one k, with the reason in a sentence: the one that covers most before a "
            "giant community swallows the others. Of several directories, results at different "
            "thresholds for example, also which one. It sees sizes only; what the communities mean "
            "is for people to say.",
        .most_arguments = Word::any,
        .options = json_only,
        .of_kind = Word::any,
    },
    Word{
        .word = "query",
        .arguments = "DIR [NODE]...",
        .summary = "the communities of nodes, or what is in a community",
        .description = "Tells in which communities each NODE is, at every k; with an option, what "
                       "is in a community.",
        .most_arguments = Word::any,
        .options = query_options,
    },
    Word{
        .word = "tree",
        .arguments = "DIR",
        .summary = "which community lies in which, over all k",
        .description =
            "Shows for each community at a k the communities at the next greater k inside it, "
            "indented below it: its k and number, and how many nodes it has.",
        .options = json_only,
    },
    Word{
        .word = "diff",
        .arguments = "DIR1 DIR2",
        .summary = "what became of the communities from one result to another",
        .description =
            "Compares the communities in DIR1 and DIR2, by the names of nodes: how many at each k "
            "are kept, have grown, shrunk, changed, merged into others, split off, died, or were "
            "born, and how alike they are on the whole: the omega index and the normalised mutual "
            "information are 1 for the same and about 0 for unrelated ones. With `--k` each "
            "community is told.",
        .least_arguments = 2,
        .most_arguments = 2,
        .options = diff_options,
        .of_kind = 2,
    },
    Word{
        .word = "export",
        .arguments = "DIR",
        .summary = "network and communities as files for other programs",
        .description =
            "Writes the network and the communities in DIR in formats of other programs. Files "
            "that exist are not replaced.",
        .options = export_options,
    },
    Word{
        .word = "report",
        .arguments = "DIR",
        .summary = "a page to look at, or a picture for print",
        .description =
            "Writes one html page that shows the communities in DIR at every k, as pictures and "
            "tables. It is a file by itself: it can be sent, kept and opened in any browser of "
            "these years, without a net. A file that exists is not replaced.",
        .options = report_options,
    },
    Word{
        .word = "parts",
        .arguments = "STEP [OPTION]...",
        .summary = "a run in parts, on several machines",
        .description =
            "Does a run in parts, which any machines that see a folder can do, with the same "
            "results to the byte. The steps: `plan` with the options of a run, then `search` for "
            "each part, `gather`, `levels` for each part, and `finish`; `status` tells how far it "
            "is. Each may be done again; docs/parts.md explains them.",
        .most_arguments = Word::any,
        .options = parts_options,
        .kind = Option::Argument::words,
        .choices = {"plan", "search", "gather", "levels", "finish", "status"},
        .takes_switches = true,
    },
    Word{
        .word = "help",
        .arguments = "[WORD]",
        .summary = "explains a word, or lists them",
        .description = "Explains a word and its options; without one, as `--help`.",
        .least_arguments = 0,
        .kind = Option::Argument::words,
    },
};

}  // namespace

std::span<const Word> All_words() { return words; }

const Word* Word_of(std::string_view name) {
  const auto* const found = std::ranges::find(words, name, &Word::word);
  return found == words.end() ? nullptr : found;
}

}  // namespace gns
