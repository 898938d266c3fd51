#include "vorlane/report.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "Temp_dir.h"
#include "report/Byte_block.h"
#include "report/Deflated.h"
#include "vorlane/vorlane.h"

namespace vorlane {
namespace {

/// Two triangles that share "b<&>", one of them with a node more.
Results Two_communities() {
  Network::Builder builder;
  for (const auto& [a, b] : std::vector<std::pair<std::string, std::string>>{
           {"a", "b<&>"}, {"a", "c"}, {"b<&>", "c"}, {"b<&>", "d"}, {"b<&>", "e"}, {"d", "e"}})
    builder.Add(a, b);
  return Find(builder.Build());
}

std::size_t Count(const std::string& text, std::string_view part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
    ++count;
  return count;
}

Error_kind Kind_of_failure(const std::function<void()>& work) {
  try {
    work();
  } catch (const Error& failure) {
    return failure.Kind();
  }
  ADD_FAILURE() << "nothing was thrown";
  return Error_kind::other;
}

TEST(Report, IsTheSamePageEachTimeWithItsTitleAsText) {
  const gns::Temp_dir temp;
  Report_options options;
  options.title = "<b>@data@ \"&";
  Write_report(Two_communities(), temp.Path("a.html"), options);
  Write_report(Two_communities(), temp.Path("b.html"), options);
  const std::string page = temp.Read("a.html");
  EXPECT_EQ(page, temp.Read("b.html"));
  EXPECT_EQ(Count(page, "&lt;b&gt;@data@ &quot;&amp;"), 1U);
  EXPECT_EQ(Count(page, "<b>@data@"), 0U);
  EXPECT_EQ(page.find("http-equiv=\"Content-Security-Policy\"") == std::string::npos, false);
}

TEST(Report, TellsWhatIsWrongAndLeavesNothing) {
  const gns::Temp_dir temp;
  const Results results = Two_communities();
  temp.Write("mine", "text");
  Report_options careful;
  careful.overwrites = false;
  const auto write = [&](const std::string& name, const Report_options& options) {
    return [&, name] { Write_report(results, temp.Path(name), options); };
  };
  EXPECT_EQ(Kind_of_failure(write("mine", careful)), Error_kind::output);
  EXPECT_EQ(temp.Read("mine"), "text");
  Report_options other_k;
  other_k.k = 9;
  EXPECT_EQ(Kind_of_failure(write("page", other_k)), Error_kind::parameters);
  EXPECT_EQ(Kind_of_failure(write("missing/page", {})), Error_kind::output);
  Control control;
  control.Stop();
  EXPECT_EQ(Kind_of_failure([&] { Write_report(results, temp.Path("page"), {}, control); }),
            Error_kind::stopped);
  EXPECT_EQ(Kind_of_failure([&] { (void)Figure_in_svg(results, Figure::graph, other_k); }),
            Error_kind::parameters);
  EXPECT_FALSE(std::filesystem::exists(temp.Path("page")));
}

TEST(Report, PicturesHaveEachNodeAndCommunity) {
  const Results results = Two_communities();
  const std::string graph = Figure_in_svg(results, Figure::graph);
  EXPECT_EQ(Count(graph, "<g transform"), 5U);
  EXPECT_EQ(Count(graph, ">0+1</text>"), 1U) << "the node of both";
  EXPECT_EQ(Count(graph, "b&lt;&amp;&gt;"), 1U);
  EXPECT_EQ(Count(Figure_in_svg(results, Figure::tree), "<rect x="), 2U);
  const std::string distributions = Figure_in_svg(results, Figure::distributions);
  EXPECT_EQ(Count(distributions, "<circle"), 5U) << "3; 1 and 2; 1; 1";
}

TEST(Report, PicturesOfNothingAndOfMuchAreWhole) {
  const Results nothing = Find(Network());
  for (const Figure figure : {Figure::tree, Figure::graph, Figure::distributions})
    EXPECT_TRUE(Figure_in_svg(nothing, figure).ends_with("</svg>\n"));
  Network::Builder builder(4001, {});
  std::vector<Node> from;
  std::vector<Node> to;
  for (Node node = 1; node < 4000; node += 2)
    for (const Node other : {node + 1, node + 2}) {
      from.insert(from.end(), {node, node + 1});
      to.insert(to.end(), {other, node + 2});
    }
  builder.Add(from, to, {});
  const std::string many = Figure_in_svg(Find(builder.Build()), Figure::graph);
  EXPECT_EQ(Count(many, "<circle"), 400U) << "the largest communities";
  EXPECT_GT(Count(many, "<path"), 100U) << "overlaps";
}

TEST(ByteBlock, HasNumbersInSevenBits) {
  report::Byte_block block;
  block.Put(std::uint64_t{127});
  block.Put(std::uint64_t{300});
  for (const int number : {0, -1, 1, -65}) block.Put_signed(number);
  block.Put("ab");
  const std::uint32_t numbers[] = {7, 9, 9};
  block.Put_ascending(numbers, 8);
  EXPECT_EQ(block.Bytes(), std::string("\x7f\xac\x02\x00\x01\x02\x81\x01\x02"
                                       "ab\x03\x01\x02\x00",
                                       15));
}

TEST(Deflated, IsInBase64WithItsPadding) {
  EXPECT_EQ(report::Base64(""), "");
  EXPECT_EQ(report::Base64("M"), "TQ==");
  EXPECT_EQ(report::Base64("Ma"), "TWE=");
  EXPECT_EQ(report::Base64("Man\xff"), "TWFu/w==");
}

}  // namespace
}  // namespace vorlane
