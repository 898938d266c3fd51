#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <optional>
#include <string>

#include "Sample_runs.h"
#include "bindings/c/src/Arrow_structs.h"
#include "bindings/c/vorlane_c.h"

namespace {

/// What a stream hands out, as a consumer takes it.
struct Consumed {
  ArrowSchema schema = {};
  ArrowArray array = {};
};

/// The communities of a small network at k = 3; the results are given back before it is read.
class ArrowLevel : public ::testing::Test {
 protected:
  void SetUp() override {
    vorlane_network* network = nullptr;
    const std::string links = gns::Sample_links("overlapping");
    ASSERT_EQ(vorlane_network_read(links.c_str(), nullptr, nullptr, &network), VORLANE_OK);
    vorlane_results* results = nullptr;
    ASSERT_EQ(vorlane_find(network, nullptr, nullptr, &results), VORLANE_OK);
    vorlane_level level = {};
    ASSERT_EQ(vorlane_results_level(results, 3, &level), VORLANE_OK);
    communities_ = static_cast<std::int64_t>(level.members.size);
    first_node_ = level.members.values;
    ASSERT_EQ(vorlane_results_arrow(results, 77, &stream_), VORLANE_PARAMETERS);
    ASSERT_EQ(stream_.release, nullptr);
    ASSERT_EQ(vorlane_results_arrow(results, 3, &stream_), VORLANE_OK);
    vorlane_results_free(results);
    vorlane_network_free(network);
  }

  void Consume(Consumed& into) {
    ASSERT_EQ(stream_.get_schema(&stream_, &into.schema), 0);
    ASSERT_EQ(stream_.get_next(&stream_, &into.array), 0);
    ArrowArray end = {};
    ASSERT_EQ(stream_.get_next(&stream_, &end), 0);
    EXPECT_EQ(end.release, nullptr) << "the stream has one batch";
    EXPECT_NE(stream_.get_last_error(&stream_), nullptr);
    stream_.release(&stream_);
    EXPECT_EQ(stream_.release, nullptr);
  }

  ArrowArrayStream stream_ = {};
  std::int64_t communities_ = 0;
  const std::uint32_t* first_node_ = nullptr;
};

TEST_F(ArrowLevel, IsATableOverTheLevelsOwnMembers) {
  Consumed of;
  Consume(of);
  ASSERT_EQ(of.schema.n_children, 3);
  const char* const names[] = {"community", "exact", "members"};
  const char* const formats[] = {"I", "b", "+L"};
  for (int i = 0; i < 3; ++i) {
    EXPECT_STREQ(of.schema.children[i]->name, names[i]);
    EXPECT_STREQ(of.schema.children[i]->format, formats[i]);
    EXPECT_EQ(of.array.children[i]->length, communities_);
  }
  const auto* const numbers = static_cast<const std::uint32_t*>(of.array.children[0]->buffers[1]);
  const auto* const exact = static_cast<const std::uint8_t*>(of.array.children[1]->buffers[1]);
  for (std::int64_t i = 0; i < communities_; ++i) {
    EXPECT_EQ(numbers[i], i);
    EXPECT_TRUE((exact[i / 8] >> (i % 8)) & 1);
  }
  const ArrowArray& members = *of.array.children[2];
  const auto* const starts = static_cast<const std::int64_t*>(members.buffers[1]);
  EXPECT_EQ(members.children[0]->length, starts[communities_]);
  EXPECT_EQ(members.children[0]->buffers[1], first_node_);
  of.schema.release(&of.schema);
  of.array.release(&of.array);
  EXPECT_EQ(of.schema.release, nullptr);
  EXPECT_EQ(of.array.release, nullptr);
}

/// A consumer may keep one column and release the rest.
TEST_F(ArrowLevel, AColumnMayBeMovedOut) {
  Consumed of;
  Consume(of);
  ArrowArray members = *of.array.children[2];
  of.array.children[2]->release = nullptr;
  ArrowSchema schema = *of.schema.children[2];
  of.schema.children[2]->release = nullptr;
  of.array.release(&of.array);
  of.schema.release(&of.schema);
  EXPECT_STREQ(schema.children[0]->format, "I");
  EXPECT_EQ(*static_cast<const std::uint32_t*>(members.children[0]->buffers[1]), *first_node_);
  members.release(&members);
  schema.release(&schema);
}

}  // namespace
