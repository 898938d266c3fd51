#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "Directory_contents.h"
#include "Random_graphs.h"
#include "Sample_runs.h"
#include "Temp_dir.h"
#include "vorlane/vorlane.h"

namespace vorlane {
namespace {

Link_options Links_of(const gns::Run_parameters& p) {
  Link_options options;
  options.directed = p.directed;
  options.weighted = gns::Needs_weights(p);
  if (p.use_lower_threshold) options.min_weight = p.lower_threshold;
  if (p.use_upper_threshold) options.max_weight = p.upper_threshold;
  return options;
}

Options Options_of(const gns::Run_parameters& p) {
  Options options;
  if (p.use_intensity) options.intensity = p.intensity_threshold;
  if (p.use_time_limit) options.time_limit = p.time_limit;
  if (p.use_single_k) options.k = p.single_k;
  options.links = true;
  return options;
}

/// Finds in memory what a run has found, and writes it down.
void Write_found(const gns::Run_parameters& p, const std::string& directory, unsigned workers) {
  const Network network = Network::Read(p.input_file, Links_of(p));
  Options options = Options_of(p);
  options.workers = workers;
  Analysis analysis(network, options);
  Results_writer writer(directory, network, options, p.input_file);
  writer.Write(analysis.Find_cliques());
  while (const auto level = analysis.Next()) writer.Write(*level);
  writer.Finish();
}

/// A single k is found from fewer cliques, so their numbers differ.
void Expect_equal_levels(const Level& a, const Level& b, bool single_k = false) {
  const auto equal = [](const auto& rows, const auto& others) {
    return std::ranges::equal(rows.Starts(), others.Starts()) &&
           std::ranges::equal(rows.Values(), others.Values());
  };
  EXPECT_TRUE(equal(a.members, b.members));
  EXPECT_TRUE(single_k || equal(a.cliques, b.cliques));
  EXPECT_TRUE(equal(a.k_cliques, b.k_cliques));
  EXPECT_TRUE(equal(a.links, b.links));
  EXPECT_TRUE(std::ranges::equal(a.overlaps, b.overlaps));
  EXPECT_EQ(a.exact_count, b.exact_count);
  EXPECT_EQ(a.statistics.all.membership, b.statistics.all.membership);
  EXPECT_EQ(a.statistics.all.degree, b.statistics.all.degree);
}

/// Whether the parts that are read by themselves are those of the levels.
void Expect_equal_parts(const Results& opened, const Results& found) {
  for (const std::uint32_t k : found.Ks()) {
    EXPECT_EQ(opened.Statistics_at(k).all.size, found.At(k).statistics.all.size);
    EXPECT_EQ(opened.Cliques_at(k).size(), found.At(k).cliques.size());
    EXPECT_TRUE(std::ranges::equal(opened.Sizes_at(k), found.Sizes_at(k)));
    EXPECT_TRUE(std::ranges::equal(opened.Overlaps_at(k), found.Overlaps_at(k)));
    const std::size_t count = found.At(k).members.size();
    for (std::size_t community = 0; community < count; ++community)
      EXPECT_EQ(opened.Names_in({k, community}), found.Names_in({k, community}));
    EXPECT_THROW(static_cast<void>(opened.Names_in({k, count})), Error);
  }
  for (Node node = 1; node <= found.Network().size(); ++node) {
    const std::string_view name = found.Network().Name(node);
    EXPECT_EQ(opened.Places_of(name), found.Places_of(name));
  }
  EXPECT_EQ(opened.Places_of("nobody"), std::nullopt);
  EXPECT_EQ(found.Places_of("nobody"), std::nullopt);
}

class ThreadsEachKindOfRun : public ::testing::TestWithParam<gns::Sample_run> {};

TEST_P(ThreadsEachKindOfRun, IsTheSameInMemoryAndInFiles) {
  gns::Sample_run run = GetParam();
  const gns::Temp_dir temp;
  const std::string told = temp.Path("told");
  run.Run(told, nullptr);
  gns::Run_parameters p = run.parameters;
  p.input_file = gns::Sample_links(run.name);

  const Results opened = Results::Open(told);
  EXPECT_TRUE(opened.Is_finished());
  if (run.short_of_time) {
    EXPECT_LT(opened.Cliques().exact_count, opened.Cliques().members.size());
    EXPECT_LT(opened.At(3).exact_count, opened.At(3).members.size());
    EXPECT_TRUE(opened.At(3).statistics.approximate.has_value());
    return;
  }
  if (!p.use_single_k) {
    for (const unsigned workers : {0U, 1U, 2U, 7U}) {
      const std::string found = temp.Path("found" + std::to_string(workers));
      Write_found(p, found, workers);
      EXPECT_EQ(gns::Contents_of(found), gns::Contents_of(told)) << workers;
    }
  }
  const Network network = Network::Read(p.input_file, Links_of(p));
  Options options = Options_of(p);
  options.links = false;
  options.workers = 3;
  Find(network, options).Write(temp.Path("written"), p.input_file);
  EXPECT_EQ(gns::Contents_of(temp.Path("written")), gns::Contents_of(told));
  const Results at_once = Find_and_write(network, options, temp.Path("at_once"), p.input_file);
  EXPECT_EQ(gns::Contents_of(temp.Path("at_once")), gns::Contents_of(told));
  EXPECT_TRUE(at_once.At(at_once.Ks()[0]).links.empty());
  const Results found = Find(network, Options_of(p));
  const Results again = Find(network, found.Cliques(), Options_of(p));
  ASSERT_EQ(again.Ks(), found.Ks());
  for (const std::uint32_t k : again.Ks()) Expect_equal_levels(again.At(k), found.At(k));
  EXPECT_EQ(opened.Method(), found.Method());
  ASSERT_EQ(opened.Ks(), found.Ks());
  ASSERT_FALSE(found.Ks().empty());
  for (const std::uint32_t k : found.Ks())
    Expect_equal_levels(opened.At(k), found.At(k), p.use_single_k);
  Expect_equal_parts(opened, found);
}

INSTANTIATE_TEST_SUITE_P(Samples, ThreadsEachKindOfRun, ::testing::ValuesIn(gns::Sample_runs()));

Error_kind Kind_of(const std::function<void()>& work, const std::string& words) {
  try {
    work();
    ADD_FAILURE() << "nothing was thrown";
  } catch (const Error& error) {
    EXPECT_NE(std::string(error.what()).find(words), std::string::npos) << error.what();
    return error.Kind();
  }
  return Error_kind::other;
}

/// Numbers are the names that they are in decimals, and the order in which links come is nothing.
TEST(InMemory, NumbersAreTheirDecimals) {
  for (std::uint32_t seed = 1; seed <= 30; ++seed) {
    SCOPED_TRACE(seed);
    gns::literal::Random random(seed);
    const bool directed = random.Chance(50);
    Link_options options;
    options.directed = directed;
    options.weighted = true;
    constexpr Node count = 1234;
    std::vector<Node> from;
    std::vector<Node> to;
    std::vector<double> weights;
    for (int links = 0; links < 60; ++links) {
      from.push_back(random.Chance(50) ? random.Between(1, 12) : random.Between(99, count));
      to.push_back(random.Between(1, 12));
      weights.push_back(random.Between(1, 9));
    }
    Network::Builder names(options);
    for (std::size_t i = 0; i < from.size(); ++i)
      names.Add(std::to_string(from[i]), std::to_string(to[i]), weights[i]);
    Network::Builder numbers(count, options);
    numbers.Add(from, to, weights);
    const Network a = names.Build();
    const Network b = numbers.Build();
    EXPECT_TRUE(std::ranges::equal(a.Links().Values(), b.Links().Values()));
    EXPECT_TRUE(std::ranges::equal(a.Links().Starts(), b.Links().Starts()));
    EXPECT_TRUE(std::ranges::equal(a.Weights(), b.Weights()));
    ASSERT_EQ(a.size(), b.size());
    for (Node node = 1; node <= b.size(); ++node) {
      EXPECT_EQ(a.Name(node), b.Name(node));
      EXPECT_EQ(std::to_string(b.Given_numbers()[node]), b.Name(node));
      EXPECT_EQ(a.Find(b.Name(node)), node);
    }
    EXPECT_EQ(b.Given_numbers().size(), b.size() + 1U);
    EXPECT_EQ(a.Find("no such name"), std::nullopt);
  }
}

/// Numbers with names are the names; those of one name are different nodes all the same.
TEST(InMemory, NumbersMayHaveNames) {
  const std::vector<std::string_view> names = {"zoe", "\xc3\xa9", "Ada L", "10", "9"};
  const std::vector<Node> from = {1, 1, 2, 3, 5, 4};
  const std::vector<Node> to = {2, 3, 3, 4, 4, 3};
  Network::Builder numbers(names, {});
  numbers.Add(from, to);
  Network::Builder texts;
  for (std::size_t i = 0; i < from.size(); ++i) texts.Add(names[from[i] - 1], names[to[i] - 1]);
  const Network a = numbers.Build();
  const Network b = texts.Build();
  ASSERT_EQ(a.size(), b.size());
  EXPECT_TRUE(std::ranges::equal(a.Links().Values(), b.Links().Values()));
  for (Node node = 1; node <= a.size(); ++node) {
    EXPECT_EQ(a.Name(node), b.Name(node));
    EXPECT_EQ(a.Name(node), names[a.Given_numbers()[node] - 1]);
  }

  const std::vector<std::string_view> twins = {"x", "y", "x"};
  Network::Builder builder(twins, {});
  builder.Add(std::vector<Node>{1, 2, 3}, std::vector<Node>{2, 3, 1});
  const Results found = Find(builder.Build());
  EXPECT_EQ(found.At(3).members[0].size(), 3U);
  const gns::Temp_dir temp;
  EXPECT_EQ(Kind_of([&] { found.Write(temp.Path("out"), "twins"); }, "Two nodes have the name 'x'"),
            Error_kind::parameters);
  EXPECT_FALSE(std::filesystem::exists(temp.Path("out")));
}

/// What a level holds lives on when the analysis and the network are gone.
TEST(InMemory, ALevelOutlivesItsAnalysis) {
  std::optional<Level> level;
  {
    Network::Builder builder;
    for (const std::string link : {"ab", "bc", "ca", "cd", "da"})
      builder.Add(link.substr(0, 1), link.substr(1));
    Analysis analysis(builder.Build());
    level = analysis.Next();
    EXPECT_EQ(analysis.Next(), std::nullopt);
  }
  ASSERT_TRUE(level);
  EXPECT_EQ(level->k, 3U);
  ASSERT_EQ(level->members.size(), 1U);
  EXPECT_EQ(level->members[0].size(), 4U);
}

Network Triangle(bool weighted, bool directed) {
  Link_options options;
  options.weighted = weighted;
  options.directed = directed;
  Network::Builder builder(3, options);
  const std::vector<double> weights(3, 1.0);
  builder.Add(std::vector<Node>{1, 2, 3}, std::vector<Node>{2, 3, 1},
              weighted ? weights : std::vector<double>());
  return builder.Build();
}

Network Read_as(const std::string& path, const std::string& format,
                const std::vector<std::string>& columns) {
  Link_options options;
  options.format = format;
  options.columns = columns;
  return Network::Read(path, options);
}

/// What other programs write is read as it is by the program; names may hold blanks here.
TEST(InMemory, OtherFormatsAreToldByTheirEndings) {
  const gns::Temp_dir temp;
  const Network table = Network::Read(temp.Write("a.csv", "from,to\nAda L,b\nb,c\n"));
  EXPECT_TRUE(table.Find("Ada L").has_value());
  EXPECT_EQ(table.Link_count(), 2U);
  Link_options directed;
  directed.directed = directed.weighted = true;
  directed.min_weight = 2;
  const Network both = Network::Read(temp.Write("a.graph", "3 2 1\n2 5\n1 5 3 2\n2 2\n"), directed);
  EXPECT_EQ(both.Link_count(), 2U);  // at both ends; a weight of 2 is left out
  const Network chosen = Read_as(temp.Write("t", "id,b,a\n7,x,y\n8,y,z\n"), "csv", {"a", "2"});
  EXPECT_TRUE(chosen.Find("z").has_value());
  EXPECT_EQ(chosen.Link_count(), 2U);
}

/// A row that is said to be one.
Cliques No_clique(std::vector<Node> nodes) {
  struct Held {
    std::vector<Node> nodes;
    std::vector<std::size_t> starts;
  };
  const std::size_t size = nodes.size();
  const auto held = std::make_shared<Held>(Held{std::move(nodes), {0, size}});
  return {Rows(held->starts, held->nodes, held), 1};
}

TEST(InMemory, BadInputIsToldWithItsPlace) {
  const gns::Temp_dir temp;
  const auto add = [](bool weighted, std::vector<Node> from, std::vector<Node> to,
                      std::vector<double> weights) {
    return [=] {
      Link_options options;
      options.weighted = weighted;
      Network::Builder builder(9, options);
      builder.Add(from, to, weights);
    };
  };
  const auto read = [](const std::string& path, bool weighted) {
    return [=] {
      Link_options options;
      options.weighted = weighted;
      Network::Read(path, options);
    };
  };
  const auto analyse = [](const Network& network, std::optional<double> intensity,
                          std::optional<double> limit, std::optional<std::uint32_t> k) {
    return [=] {
      Options options;
      options.intensity = intensity;
      options.time_limit = limit;
      options.k = k;
      const Analysis analysis(network, options);
    };
  };
  const std::string bad_line = temp.Write("links", "a b 1\nb c 2\nc d  x\n");
  constexpr double nan = std::numeric_limits<double>::quiet_NaN();
  constexpr auto input = Error_kind::input;
  constexpr auto parameters = Error_kind::parameters;
  const struct {
    std::function<void()> work;
    Error_kind kind;
    const char* words;
  } cases[] = {
      {add(false, {1, 0}, {2, 3}, {}), input, "Link 1 (counted from 0): node 0 is not between 1"},
      {add(false, {1, 2}, {2, 10}, {}), input, "node 10 is not between 1 and 9"},
      {add(false, {1, 2}, {2}, {}), input, "2 from, 1 to, 0 weights"},
      {add(true, {1, 2}, {2, 3}, {1}), input, "2 from, 2 to, 1 weights"},
      {add(true, {1, 2}, {2, 3}, {1, nan}), input, "Link 1 (counted from 0): its weight is not a"},
      {add(true, {1}, {2}, {}), parameters, "needs a weight"},
      {add(false, {1}, {2}, {1}), parameters, "takes no weights"},
      {[] { Network::Builder(9, {}).Add("a", "b"); }, parameters, "between numbers"},
      {[] { Network::Builder().Add({{1}}, {{2}}); }, parameters, "between names"},
      {read(bad_line, true), input, "links, line 3, column 6: 'x' stands where a number"},
      {read(temp.Path("none"), false), input, "none"},
      {analyse(Triangle(false, false), 1.0, {}, {}), parameters, "needs weights"},
      {analyse(Triangle(true, true), 1.0, {}, {}), parameters, "undirected"},
      {analyse(Triangle(true, false), nan, {}, {}), parameters, "not a number"},
      {analyse(Triangle(true, false), 1.0, 1.0, {}), parameters, "time limit"},
      {analyse(Triangle(false, false), {}, nan, {}), parameters, "above 0"},
      {analyse(Triangle(false, false), {}, {}, 2), parameters, "3 or more"},
      {[] { static_cast<void>(Find(Triangle(false, false)).At(4)); }, parameters,
       "no level at k = 4; the levels are"},
      {[] {
         Find(Triangle(false, false), No_clique({1, 2}));
       },
       input, "clique 0"},
      {[] {
         Find(Triangle(false, false), No_clique({1, 3, 2}));
       },
       input, "none of this network"},
      {[] {
         Find(Triangle(false, false), No_clique({1, 2, 4}));
       },
       input, "none of this network"},
      {[&] { Results::Open(temp.Path("none")); }, input, "no results directory"},
      {[&] { Read_as(bad_line, "excel", {}); }, parameters,
       "no format 'excel'; it is one of links,"},
      {[&] { Read_as(bad_line, "csv", {"a"}); }, parameters, "two or three"},
      {[&] {
         Read_as(bad_line, "", {"1", "2"});
       },
       input, "no columns"},
  };
  for (const auto& [work, kind, words] : cases) EXPECT_EQ(Kind_of(work, words), kind) << words;
}

/// Nothing of a refused call is in the network, and the builder goes on.
TEST(InMemory, ARefusedArrayAddsNothing) {
  Network::Builder builder(9, {});
  EXPECT_THROW(builder.Add(std::vector<Node>{1, 0}, std::vector<Node>{2, 3}), Error);
  builder.Add(std::vector<Node>{4}, std::vector<Node>{5});
  const Network network = builder.Build();
  EXPECT_EQ(network.size(), 2U);
  EXPECT_EQ(network.Given_numbers()[1], 4U);
  EXPECT_EQ(builder.Build().size(), 0U);
  EXPECT_TRUE(Find(Network()).Ks().empty());
}

TEST(InMemory, DamagedDirectoriesAreToldFileByFile) {
  const gns::Temp_dir temp;
  const std::string out = temp.Path("out");
  gns::Sample_runs()[1].Run(out, nullptr);
  std::ofstream(out + "/k=3/communities", std::ios::app) << "7: nobody\n";
  const Results opened = Results::Open(out);
  EXPECT_EQ(opened.At(4).k, 4U);
  EXPECT_EQ(Kind_of([&] { static_cast<void>(opened.At(3)); }, "/k=3/communities, line"),
            Error_kind::input);
  std::filesystem::remove(out + "/k=4/communities_cliques");
  std::filesystem::remove(out + "/cliques");
  EXPECT_EQ(Kind_of([&] { Results::Open(out); }, "/cliques"), Error_kind::input);
  EXPECT_EQ(Kind_of([&] { Results::Open(out); }, "/k=4/communities_cliques"), Error_kind::input);
  EXPECT_EQ(Kind_of([&] { Write_found({}, out, 1); }, ""), Error_kind::input);
}

/// A run that was stopped keeps the levels that it came to.
TEST(InMemory, UnfinishedResultsShowWhatIsWhole) {
  const gns::Temp_dir temp;
  const std::string out = temp.Path("out");
  const Network network = Network::Read(gns::Sample_links("time_limit"));
  Options options;
  options.links = true;
  Analysis analysis(network, options);
  Results_writer writer(out, network, options, "here");
  writer.Write(analysis.Find_cliques());
  const auto level = analysis.Next();
  writer.Write(*level);
  std::filesystem::create_directory(out + "/k=3");
  std::ofstream(out + "/k=3/communities") << "0: ";
  const Results opened = Results::Open(out);
  EXPECT_FALSE(opened.Is_finished());
  EXPECT_EQ(opened.Ks(), (std::vector<std::uint32_t>{level->k}));
  Expect_equal_levels(opened.At(level->k), *level);
  EXPECT_EQ(Kind_of([&] { Results_writer(out, network, options, ""); }, "non-empty"),
            Error_kind::output);
}

Network Large_random_network(std::uint32_t seed) {
  gns::literal::Random random(seed);
  Network::Builder builder(300, {});
  std::vector<Node> from;
  std::vector<Node> to;
  for (int links = 0; links < 9000; ++links) {
    from.push_back(random.Between(1, 300));
    to.push_back(random.Between(1, 300));
  }
  builder.Add(from, to);
  return builder.Build();
}

std::vector<std::size_t> Sizes(const Results& results) {
  std::vector<std::size_t> sizes;
  for (const std::uint32_t k : results.Ks()) sizes.push_back(results.At(k).members.Values().size());
  return sizes;
}

/// Two runs in two threads find what each finds alone; one is stopped, the other isn't.
TEST(ThreadsInMemory, RunsDoNotKnowOfEachOther) {
  const Network network = Large_random_network(1);
  const std::vector<std::size_t> alone = Sizes(Find(network));
  const std::string before = gns::Read_state_report();
  Control stopped;
  Control watched;
  std::vector<std::size_t> beside;
  Error_kind kind = Error_kind::other;
  std::thread one([&] { beside = Sizes(Find(network, {}, watched)); });
  std::thread other([&] {
    try {
      for (;;) Find(network, {}, stopped);
    } catch (const Error& error) {
      kind = error.Kind();
    }
  });
  while (stopped.Report().empty() || stopped.Now().cliques_found == 0) std::this_thread::yield();
  stopped.Stop();
  other.join();
  one.join();
  EXPECT_EQ(kind, Error_kind::stopped);
  EXPECT_EQ(beside, alone);
  EXPECT_FALSE(watched.Stop_asked());
  EXPECT_GT(watched.Now().cliques_found, 0U);
  EXPECT_EQ(watched.Report(), " done.\n");
  EXPECT_EQ(gns::Read_state_report(), before);
  stopped.Reset();
  EXPECT_EQ(Sizes(Find(network, {}, stopped)), alone);
}

}  // namespace
}  // namespace vorlane
