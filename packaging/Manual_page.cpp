#include "packaging/Manual_page.h"

#include <array>
#include <string_view>

#include "cli/options/Marked_text.h"
#include "cli/options/Option_table.h"
#include "cli/options/Program_facts.h"
#include "cli/options/Word_line.h"
#include "cli/options/Word_table.h"
#include "vorlane/version.h"

namespace gns {

namespace {

/// A file of a results directory.
struct Results_file {
  std::string_view path;
  std::string_view contents;
};

constexpr std::array results_files{
    Results_file{"input_params.txt", "How the run was made."},
    Results_file{"graph", "The links that were accepted, with their weights if these were read."},
    Results_file{"cliques", "All maximal cliques of three nodes or more."},
    Results_file{"k=K/communities", "For each K: the members of each community."},
    Results_file{"k=K/communities_cliques", "Of which cliques each community consists."},
    Results_file{"k=K/communities_links", "The links inside each community."},
    Results_file{"k=K/graph_of_communities",
                 "Pairs of communities that overlap, and how many nodes they share."},
    Results_file{"k=K/..._distribution",
                 "How many communities have how many nodes (`size`), overlap with how many others "
                 "(`degree`) and "
                 "share how many nodes (`overlap`), and how many nodes are in how many communities "
                 "(`membership`)."},
    Results_file{".unfinished",
                 "Stands there as long as the results are not whole: the run is still going on, or "
                 "was stopped, "
                 "or failed."}};

constexpr std::string_view what_is_printed =
    "Standard output gets the message of the run and a table of what was found. Standard error "
    "gets, in lines that begin with `vorlane:`, what went wrong and the way out, and warnings "
    "where "
    "a run can't have been meant so. On a terminal a few lines show how far the run has come.";

constexpr std::string_view how_it_stops =
    "Ctrl-C ends a run in good order; a second one kills it. What has been written stays. Results "
    "never go into a directory that holds something.";

constexpr std::string_view names_by_kind =
    "All are text, and begin with lines that tell how the run was made. With `-D` most names carry "
    "`directed_` (`graph_of_directed_communities`), with `-I` most of those at a K `intensity_`; "
    "`k=K/k-cliques` lists the cliques of K nodes that passed `-I`, in place of the cliques of the "
    "communities. Where `-t` has left "
    "approximate communities, each distribution is written with `_merged`, `_exact` and `_appr` "
    "behind its name.";

constexpr std::string_view where_more_stands =
    "README.md tells what the results mean, docs/file-formats.md has every file to the byte.";

constexpr std::string_view publication =
    "The method: G. Palla, I. Derényi, I. Farkas, T. Vicsek, Uncovering the overlapping community "
    "structure of complex networks in nature and society, Nature 435, 814 (2005).";

/// The text in the man language: what is marked is bold, and a dash there is one that can be
/// copied to a command line.
std::string Roff(std::string_view text) {
  std::string roff;
  bool marked = false;
  for (const char letter : text) {
    if (letter == '`') {
      marked = !marked;
      roff += marked ? "\\fB" : "\\fR";
    } else if (letter == '\\') {
      roff += "\\e";
    } else if (letter == '-' && marked) {
      roff += "\\-";
    } else {
      roff += letter;
    }
  }
  return roff;
}

/// A line that is text, whatever it begins with.
std::string Line(std::string line) {
  if (line.starts_with('.') || line.starts_with('\'')) line.insert(0, "\\&");
  return line + "\n";
}

/// Sentences, in lines that stay short in the file. The words of none begin with a dot.
std::string Paragraph(std::string_view text) {
  constexpr std::size_t width = 78;
  return Line(Wrapped(Roff(text), width));
}

/// A meaning as a sentence.
std::string Sentence(std::string_view meaning) {
  std::string sentence(meaning);
  if (sentence[0] >= 'a' && sentence[0] <= 'z')
    sentence[0] = static_cast<char>(sentence[0] - 'a' + 'A');
  return sentence + ".";
}

std::string Section(std::string_view title) {
  return std::string(".SH ").append(title).append("\n");
}

std::string Bold(std::string_view text) { return Roff(std::string("`").append(text).append("`")); }

/// A term and, indented below it, what it means.
std::string Entry(const std::string& term, std::string_view meaning) {
  return std::string(".TP\n").append(Line(term)).append(Paragraph(meaning));
}

/// An option as it is typed, its argument slanted.
std::string Term(const Option& option) {
  const std::string form = option.Form();
  if (option.argument.empty()) return Bold(form);
  const std::size_t start = form.find(option.argument);
  const std::string rest = form.substr(start + option.argument.size());
  return Bold(form.substr(0, start)) + "\\fI" + std::string(option.argument) + "\\fR" +
         (rest.empty() ? "" : Bold(rest));
}

std::string Description(const Option& option) {
  std::string text(option.description);
  if (option.adds_up) text += " May be given several times.";
  if (option.mandatory || option.without.empty()) return text;
  return text.append(" Default: ").append(option.without).append(".");
}

std::string Head() {
  return ".\\\" Made from the tables of the program; see packaging/ in its source.\n"
         ".TH VORLANE 1 " VORLANE_DATE " \"Vorlane " VORLANE_VERSION "\" \"User Commands\"\n";
}

std::string Name_to_description() {
  return Section("NAME") + "vorlane \\- find overlapping communities in networks\n" +
         Section("SYNOPSIS") + Paragraph(std::string("`vorlane` ").append(Synopsis())) +
         Section("DESCRIPTION") + Paragraph(Purpose()) + ".PP\n" + Paragraph(what_is_printed) +
         ".PP\n" + Paragraph(how_it_stops);
}

std::string All_option_entries() {
  std::string text = Section("OPTIONS");
  for (const Option_group& group : Option_groups()) {
    text.append(".SS ").append(group.title).append("\n");
    for (const Option& option : All_options())
      if (option.group == group.group) text += Entry(Term(option), Description(option));
  }
  return text;
}

std::string All_word_entries() {
  std::string text =
      Section("WORDS") + Paragraph(
                             "A first word in place of options asks for something else than a "
                             "run; with `--help` behind it, what it is.");
  for (const Word& word : All_words()) {
    text.append(".SS ").append(word.word).append("\n");
    text += Paragraph(std::string("`").append(Usage_of(word)).append("`")) + ".PP\n" +
            Paragraph(word.description);
    for (const Option& option : word.options) text += Entry(Term(option), option.description);
  }
  return text;
}

std::string Environment_to_files() {
  std::string text = Section("ENVIRONMENT");
  for (const Variable& variable : Variables())
    text += Entry(Bold(variable.name), Sentence(variable.meaning));
  text += Section("EXIT STATUS");
  for (const Exit_meaning& exit : Exit_meanings())
    text += Entry(Bold(std::to_string(static_cast<int>(exit.code))), Sentence(exit.meaning));
  text += Section("FILES") + Paragraph("The directory of the results holds:");
  for (const Results_file& file : results_files) text += Entry(Bold(file.path), file.contents);
  return text + ".PP\n" + Paragraph(names_by_kind);
}

std::string Examples_to_end() {
  std::string text = Section("EXAMPLES");
  for (const Example& example : Examples())
    text +=
        Entry(Bold(std::string("vorlane ").append(example.arguments)), Sentence(example.effect));
  return text + Section("SEE ALSO") + Paragraph(where_more_stands) + ".PP\n" +
         Paragraph(publication);
}

}  // namespace

std::string Manual_page() {
  return Head() + Name_to_description() + All_option_entries() + All_word_entries() +
         Environment_to_files() + Examples_to_end();
}

}  // namespace gns
