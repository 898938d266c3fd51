#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <filesystem>
#include <limits>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "Directory_contents.h"
#include "Sample_runs.h"
#include "Temp_dir.h"
#include "bindings/c/vorlane_c.h"

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr vorlane_link_options plain_links = {0, 0, nan, nan, nullptr, nullptr};
constexpr vorlane_options plain = {nan, nan, 0, nullptr, 0, nullptr, nullptr, 0};

template <auto give_back>
struct Gives_back {
  template <typename Handle>
  void operator()(Handle* handle) const {
    give_back(handle);
  }
};
using Network = std::unique_ptr<vorlane_network, Gives_back<vorlane_network_free>>;
using Results = std::unique_ptr<vorlane_results, Gives_back<vorlane_results_free>>;
using Control = std::unique_ptr<vorlane_control, Gives_back<vorlane_control_free>>;

Control New_control() {
  vorlane_control* control = nullptr;
  EXPECT_EQ(vorlane_control_new(&control), VORLANE_OK);
  return Control(control);
}

Network Read(const std::string& path, const vorlane_link_options& options = plain_links) {
  vorlane_network* network = nullptr;
  EXPECT_EQ(vorlane_network_read(path.c_str(), &options, nullptr, &network), VORLANE_OK)
      << vorlane_last_failure(nullptr);
  return Network(network);
}

/// The ends of links between numbers from 1 to `count`.
struct Ends {
  std::uint32_t count;
  std::vector<std::uint32_t> from, to;

  [[nodiscard]] vorlane_links Links() const {
    return {count, from.size(), from.data(), to.data(), nullptr, nullptr, nullptr, nullptr};
  }
};

const Ends two_triangles = {4, {1, 2, 3, 2, 3}, {2, 3, 1, 4, 4}};

Network Built(const vorlane_links& links) {
  vorlane_network* network = nullptr;
  EXPECT_EQ(vorlane_network_from_links(&links, nullptr, &network), VORLANE_OK)
      << vorlane_last_failure(nullptr);
  return Network(network);
}

Results Find(const Network& network, const vorlane_options& options = plain) {
  vorlane_results* results = nullptr;
  EXPECT_EQ(vorlane_find(network.get(), &options, nullptr, &results), VORLANE_OK)
      << vorlane_last_failure(nullptr);
  return Results(results);
}

vorlane_network_view Look(const vorlane_network* network) {
  vorlane_network_view view = {};
  vorlane_network_look(network, &view);
  return view;
}
vorlane_results_view Look(const vorlane_results* results) {
  vorlane_results_view view = {};
  vorlane_results_look(results, &view);
  return view;
}

std::vector<std::string> Names(const vorlane_network* network) {
  const vorlane_network_view view = Look(network);
  std::string bytes(view.name_bytes, ' ');
  std::vector<std::size_t> starts(view.size + std::size_t{1});
  vorlane_network_names(network, bytes.data(), starts.data());
  std::vector<std::string> names;
  for (std::size_t i = 0; i < view.size; ++i)
    names.push_back(bytes.substr(starts[i], starts[i + 1] - starts[i]));
  return names;
}

vorlane_link_options Links_of(const gns::Run_parameters& p) {
  vorlane_link_options options = plain_links;
  options.directed = p.directed;
  options.weighted = gns::Needs_weights(p);
  if (p.use_lower_threshold) options.min_weight = p.lower_threshold;
  if (p.use_upper_threshold) options.max_weight = p.upper_threshold;
  return options;
}

vorlane_options Options_of(const gns::Run_parameters& p) {
  vorlane_options options = plain;
  if (p.use_intensity) options.intensity = p.intensity_threshold;
  if (p.use_time_limit) options.time_limit = p.time_limit;
  if (p.use_single_k) options.k = p.single_k;
  return options;
}

class EachKindOfRunInC : public ::testing::TestWithParam<gns::Sample_run> {};

/// Every option arrives, and what is written is what the program writes.
TEST_P(EachKindOfRunInC, WritesTheFilesOfTheProgram) {
  const gns::Temp_dir temp;
  GetParam().Run(temp.Path("told"), nullptr);
  const std::string input = gns::Sample_links(GetParam().name);
  const Network network = Read(input, Links_of(GetParam().parameters));
  const Results found = Find(network, Options_of(GetParam().parameters));
  EXPECT_EQ(
      vorlane_results_write(found.get(), temp.Path("written").c_str(), input.c_str(), nullptr),
      VORLANE_OK);
  EXPECT_EQ(gns::Contents_of(temp.Path("written")), gns::Contents_of(temp.Path("told")));

  vorlane_options at_once = Options_of(GetParam().parameters);
  const std::string directory = temp.Path("at_once");
  at_once.directory = directory.c_str();
  at_once.source = input.c_str();
  Find(network, at_once);
  EXPECT_EQ(gns::Contents_of(directory), gns::Contents_of(temp.Path("told")));
}

/// Without those that need a clock of the test's own.
std::vector<gns::Sample_run> Runs() {
  std::vector<gns::Sample_run> runs = gns::Sample_runs();
  std::erase_if(runs, [](const gns::Sample_run& run) { return run.short_of_time; });
  return runs;
}

INSTANTIATE_TEST_SUITE_P(Samples, EachKindOfRunInC, ::testing::ValuesIn(Runs()));

TEST(CFace, NodesAreCalledAsTheCallerSays) {
  EXPECT_EQ(Names(Built(two_triangles.Links()).get()),
            (std::vector<std::string>{"1", "2", "3", "4"}));

  vorlane_links links = two_triangles.Links();
  const std::int64_t numbers[] = {10, -7, 9, std::numeric_limits<std::int64_t>::min()};
  links.numbers = numbers;
  const Network numbered = Built(links);
  EXPECT_EQ(Names(numbered.get()),
            (std::vector<std::string>{"-7", "-9223372036854775808", "9", "10"}));
  const vorlane_network_view view = Look(numbered.get());
  EXPECT_EQ(view.given[1], 2U);
  EXPECT_EQ(view.given[4], 1U);
  EXPECT_EQ(view.link_count, 5U);
  std::uint32_t node = 9;
  EXPECT_EQ(vorlane_network_find(numbered.get(), "9", 1, &node), VORLANE_OK);
  EXPECT_EQ(node, 3U);
  EXPECT_EQ(vorlane_network_find(numbered.get(), "8", 1, &node), VORLANE_OK);
  EXPECT_EQ(node, 0U);

  const std::size_t starts[] = {0, 1, 1, 4, 7};
  links.names = "d\0\0a\xC3\xA9 b";
  links.name_starts = starts;
  EXPECT_EQ(Names(Built(links).get()),
            (std::vector<std::string>{"", std::string("\0\0a", 3), "\xC3\xA9 ", "d"}));
}

TEST(CFace, AnswersAreTheSameFromMemoryAndFromADirectory) {
  const gns::Temp_dir temp;
  const Results found = Find(Read(gns::Sample_links("overlapping")));
  ASSERT_EQ(vorlane_results_write(found.get(), temp.Path("out").c_str(), nullptr, nullptr),
            VORLANE_OK);
  vorlane_results* opened = nullptr;
  ASSERT_EQ(vorlane_results_open(temp.Path("out").c_str(), &opened), VORLANE_OK);
  const Results closes(opened);
  const vorlane_results_view view = Look(found.get());
  ASSERT_GT(view.k_count, 1U);
  EXPECT_EQ(Look(opened).k_count, view.k_count);
  EXPECT_EQ(Look(opened).finished, 1);

  for (std::size_t i = 0; i < view.k_count; ++i) {
    vorlane_level a = {};
    vorlane_level b = {};
    ASSERT_EQ(vorlane_results_level(found.get(), view.ks[i], &a), VORLANE_OK);
    ASSERT_EQ(vorlane_results_level(opened, view.ks[i], &b), VORLANE_OK);
    ASSERT_EQ(a.members.size, b.members.size);
    EXPECT_TRUE(std::equal(a.members.values, a.members.values + a.members.starts[a.members.size],
                           b.members.values));
    EXPECT_TRUE(std::equal(a.overlaps, a.overlaps + 3 * a.overlap_count, b.overlaps));
    for (const auto which : {VORLANE_MEMBERSHIP, VORLANE_SIZE, VORLANE_OVERLAP, VORLANE_DEGREE}) {
      const std::uint32_t* pairs[2] = {};
      std::size_t counts[2] = {};
      vorlane_results_distribution(found.get(), a.k, which, &pairs[0], &counts[0]);
      vorlane_results_distribution(opened, a.k, which, &pairs[1], &counts[1]);
      ASSERT_EQ(counts[0], counts[1]);
      EXPECT_TRUE(std::equal(pairs[0], pairs[0] + 2 * counts[0], pairs[1]));
    }
    const std::uint32_t* sizes = nullptr;
    std::size_t count = 0;
    vorlane_results_distribution(found.get(), a.k, VORLANE_SIZE, &sizes, &count);
    std::size_t communities = 0;
    for (std::size_t j = 0; j < count; ++j) communities += sizes[2 * j + 1];
    EXPECT_EQ(communities, a.members.size);
    const vorlane_summary* summary = nullptr;
    ASSERT_EQ(vorlane_results_summary(opened, &summary, &count), VORLANE_OK);
    EXPECT_EQ(summary[i].k, a.k);
    EXPECT_EQ(summary[i].communities, a.members.size);
  }
  const vorlane_tree_node* tree = nullptr;
  std::size_t count = 0;
  ASSERT_EQ(vorlane_results_tree(opened, &tree, &count), VORLANE_OK);
  EXPECT_EQ(tree[0].k, 3U);
  EXPECT_EQ(tree[0].parent, -1);
  EXPECT_EQ(tree[count - 1].k, view.ks[0]);
  EXPECT_GE(tree[count - 1].parent, 0);
  std::uint32_t k = 0;
  const char* reason = nullptr;
  ASSERT_EQ(vorlane_results_which_k(found.get(), &k, &reason), VORLANE_OK);
  EXPECT_GE(k, 3U);
  EXPECT_GT(std::strlen(reason), 10U);
}

TEST(CFace, WarningsOnAFileAreKept) {
  const gns::Temp_dir temp;
  const Network network = Read(temp.Write("links", "a, b\nb, c\n"));
  ASSERT_EQ(Look(network.get()).warning_count, 1U);
  const std::string warning = vorlane_network_warning(network.get(), 0);
  EXPECT_NE(warning.find("links, line 1: commas, semicolons or bars"), std::string::npos)
      << warning;
  EXPECT_EQ(vorlane_network_warning(network.get(), 1), nullptr);
}

/// By several cores and by parts, as in one go; and what can't be asked of them.
TEST(CFace, JobsAndPartsFindTheSame) {
  const gns::Temp_dir temp;
  const std::string links = temp.Write("links", "a b\nb c\nc a\nc d\nd e\ne c\nd a\n");
  const Network network = Read(links);
  vorlane_options options = plain;
  options.source = links.c_str();
  for (const auto& [jobs, name] : {std::pair{0, "one"}, {3, "three"}, {-1, "all"}}) {
    const std::string out = temp.Path(name);
    options.directory = out.c_str();
    options.jobs = jobs;
    Find(network, options);
    EXPECT_EQ(gns::Contents_of(out), gns::Contents_of(temp.Path("one"))) << jobs;
  }
  vorlane_results* results = nullptr;
  options.jobs = -2;
  EXPECT_EQ(vorlane_find(network.get(), &options, nullptr, &results), VORLANE_PARAMETERS);

  const std::string out = temp.Path("parts");
  const std::string work = temp.Path("work");
  uint64_t cliques = 0;
  uint64_t levels = 0;
  EXPECT_EQ(
      vorlane_parts_plan(links.c_str(), &plain_links, &plain, out.c_str(), nullptr, 1, nullptr),
      VORLANE_PARAMETERS);
  EXPECT_EQ(vorlane_parts_plan(links.c_str(), &plain_links, &plain, out.c_str(), work.c_str(), 1,
                               nullptr),
            VORLANE_OK)
      << vorlane_last_failure(nullptr);
  EXPECT_EQ(vorlane_parts_finish(work.c_str(), nullptr), VORLANE_OTHER);
  EXPECT_EQ(vorlane_parts_search(work.c_str(), 1, nullptr, nullptr), VORLANE_OK);
  EXPECT_EQ(vorlane_parts_gather(work.c_str(), nullptr, &cliques), VORLANE_OK);
  EXPECT_EQ(vorlane_parts_levels(work.c_str(), 1, nullptr, &levels), VORLANE_OK);
  EXPECT_EQ(vorlane_parts_finish(work.c_str(), nullptr), VORLANE_OK);
  EXPECT_EQ(cliques, 3U);
  EXPECT_EQ(levels, 1U);
  EXPECT_EQ(gns::Contents_of(out), gns::Contents_of(temp.Path("one")));
}

/// What fails tells its kind, its words and its place, and hands nothing out.
TEST(CFace, FailuresAreCodesWithWords) {
  const gns::Temp_dir temp;
  const std::string bad = temp.Write("bad", "a b 1\nb c x\n");
  vorlane_link_options weighted = plain_links;
  weighted.weighted = 1;
  vorlane_network* network = nullptr;
  EXPECT_EQ(vorlane_network_read(bad.c_str(), &weighted, nullptr, &network), VORLANE_INPUT);
  vorlane_failure failure = {};
  vorlane_last_failure(&failure);
  EXPECT_EQ(failure.code, VORLANE_INPUT);
  EXPECT_EQ(failure.source, bad);
  EXPECT_EQ(failure.line, 2U);
  EXPECT_EQ(failure.column, 5U);
  EXPECT_NE(std::strstr(failure.text, "'x' stands where a number as weight was expected"), nullptr)
      << failure.text;
  std::thread([] { EXPECT_STREQ(vorlane_last_failure(nullptr), ""); }).join();

  vorlane_link_options columns = plain_links;
  columns.format = "csv";
  columns.columns = "a,b,c,d";
  EXPECT_EQ(vorlane_network_read(bad.c_str(), &columns, nullptr, &network), VORLANE_PARAMETERS);
  EXPECT_EQ(vorlane_network_read(nullptr, nullptr, nullptr, &network), VORLANE_PARAMETERS);
  EXPECT_STREQ(vorlane_last_failure(nullptr), "path must not be NULL.");

  const Ends beyond = {3, {1, 4}, {2, 1}};
  const vorlane_links links = beyond.Links();
  EXPECT_EQ(vorlane_network_from_links(&links, nullptr, &network), VORLANE_INPUT);
  EXPECT_NE(std::strstr(vorlane_last_failure(nullptr), "Link 1"), nullptr);
  vorlane_links halves = links;
  halves.to = nullptr;
  EXPECT_EQ(vorlane_network_from_links(&halves, nullptr, &network), VORLANE_PARAMETERS);
  const std::size_t descending[] = {3, 2, 1, 0};
  vorlane_links names = links;
  names.names = "abc";
  names.name_starts = descending;
  EXPECT_EQ(vorlane_network_from_links(&names, nullptr, &network), VORLANE_PARAMETERS);
  EXPECT_EQ(network, nullptr);

  const Results found = Find(Built(two_triangles.Links()));
  vorlane_level level = {};
  EXPECT_EQ(vorlane_results_level(found.get(), 9, &level), VORLANE_PARAMETERS);
  EXPECT_EQ(vorlane_results_export(found.get(), "gif", 0, "x", 0), VORLANE_PARAMETERS);
  EXPECT_EQ(vorlane_results_export(found.get(), "json", 0, temp.Path("no/where").c_str(), 0),
            VORLANE_OUTPUT);
  EXPECT_EQ(vorlane_results_export(found.get(), "json", 3, bad.c_str(), 0), VORLANE_OUTPUT);
  EXPECT_EQ(vorlane_results_export(found.get(), "json", 3, bad.c_str(), 1), VORLANE_OK);
  vorlane_results* results = nullptr;
  EXPECT_EQ(vorlane_results_open(temp.Path("none").c_str(), &results), VORLANE_INPUT);
}

TEST(CFace, AStopEndsAFindUntilTheReset) {
  const Network network = Built(two_triangles.Links());
  const Control control = New_control();
  vorlane_control_stop(control.get());
  vorlane_results* results = nullptr;
  EXPECT_EQ(vorlane_find(network.get(), nullptr, control.get(), &results), VORLANE_STOPPED);
  vorlane_control_reset(control.get());
  EXPECT_EQ(vorlane_find(network.get(), nullptr, control.get(), &results), VORLANE_OK);
  const Results found(results);
  vorlane_progress progress = {};
  vorlane_control_progress(control.get(), &progress);
  EXPECT_EQ(progress.cliques_found, 2U);
  char text[4] = "???";
  const std::size_t length = vorlane_control_report(control.get(), text, sizeof text);
  EXPECT_GT(length, sizeof text);
  EXPECT_EQ(std::strlen(text), sizeof text - 1);
  EXPECT_EQ(vorlane_control_report(control.get(), nullptr, 0), length);
}

TEST(CFace, ReportsAndFiguresAreMade) {
  const gns::Temp_dir temp;
  const Results found = Find(Read(gns::Sample_links("overlapping")));
  const std::string page = temp.Path("page.html");
  EXPECT_EQ(vorlane_results_report(found.get(), page.c_str(), "A & B", 3, 0, nullptr), VORLANE_OK);
  EXPECT_NE(temp.Read("page.html").find("A &amp; B"), std::string::npos);
  EXPECT_EQ(vorlane_results_report(found.get(), page.c_str(), nullptr, 3, 0, nullptr),
            VORLANE_OUTPUT);
  const char* svg = nullptr;
  for (const auto which : {VORLANE_TREE, VORLANE_GRAPH, VORLANE_DISTRIBUTIONS}) {
    EXPECT_EQ(vorlane_results_figure(found.get(), which, 0, nullptr, &svg), VORLANE_OK);
    EXPECT_NE(std::strstr(svg, "</svg>"), nullptr);
  }
  EXPECT_EQ(vorlane_results_figure(found.get(), VORLANE_GRAPH, 99, nullptr, &svg),
            VORLANE_PARAMETERS);
}

TEST(CFace, CoversAreCompared) {
  const std::size_t starts[] = {0, 3, 6};
  const std::uint32_t before[] = {1, 2, 3, 4, 5, 6};
  const std::uint32_t after[] = {1, 2, 3, 6, 7, 8};
  const vorlane_rows first = {2, starts, before};
  const vorlane_rows second = {2, starts, after};
  vorlane_comparison* comparison = nullptr;
  ASSERT_EQ(vorlane_compare(8, &first, &second, &comparison), VORLANE_OK);
  vorlane_comparison_view view = {};
  vorlane_comparison_look(comparison, &view);
  ASSERT_EQ(view.change_count, 3U);
  EXPECT_EQ(view.changes[0].fate, VORLANE_KEPT);
  EXPECT_EQ(view.changes[1].fate, VORLANE_DIED);
  EXPECT_EQ(view.changes[1].after, -1);
  EXPECT_EQ(view.changes[2].fate, VORLANE_BORN);
  EXPECT_LT(view.omega, 1.0);
  EXPECT_GT(view.nmi, 0.0);
  vorlane_comparison_free(comparison);
  EXPECT_EQ(vorlane_compare(7, &first, &second, &comparison), VORLANE_PARAMETERS);
  EXPECT_EQ(vorlane_compare(8, &first, nullptr, &comparison), VORLANE_PARAMETERS);
}

}  // namespace
