#include "bridge/Java_strings.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Fake_jvm.h"
#include "bridge/Java_errors.h"

namespace gns {

namespace {

TEST(JavaStrings, GivesTheBytesOfAString) {
  for (const std::string text : {"", "/tmp/links.txt", "\xE4 and \xC3\xA4"}) {
    Fake_jvm jvm;
    const jstring java_string = jvm.String(text);
    EXPECT_EQ(String_to_C(jvm.Env(), java_string), text);
    EXPECT_EQ(jvm.references_alive, 1U);
    EXPECT_EQ(jvm.pending, "");
  }
}

TEST(JavaStrings, RefusesWhatIsNoPath) {
  Fake_jvm jvm;
  EXPECT_EQ(String_to_C(jvm.Env(), nullptr), std::nullopt);
  EXPECT_EQ(jvm.pending, "java/lang/NullPointerException: a path is null");
  jvm.pending.clear();
  const std::string utf_16("\0/\0t", 4);
  EXPECT_EQ(String_to_C(jvm.Env(), jvm.String(utf_16)), std::nullopt);
  EXPECT_EQ(jvm.pending, "java/lang/Exception: ERROR: a path has a zero byte inside.\n");
  EXPECT_EQ(jvm.faults, std::vector<std::string>());
}

TEST(JavaStrings, MakesAStringOfBytes) {
  Fake_jvm jvm;
  EXPECT_EQ(jvm.Text(C_to_String(jvm.Env(), "\xE4")), "'\xE4'");
  EXPECT_EQ(jvm.references_alive, 1U);
}

struct Failure {
  const char* missing;
  const char* pending;
};

TEST(JavaStrings, YieldsNothingWhenTheJvmFails) {
  const Failure to_c[] = {{"EnsureLocalCapacity", ""},
                          {"java/lang/String", "java/lang/NoClassDefFoundError"},
                          {"getBytes", "java/lang/NoSuchMethodError"},
                          {"CallObjectMethod", "a method's error"}};
  for (const auto& [missing, pending] : to_c) {
    Fake_jvm jvm;
    const jstring java_string = jvm.String("path");
    jvm.missing = missing;
    EXPECT_EQ(String_to_C(jvm.Env(), java_string), std::nullopt);
    EXPECT_EQ(jvm.pending, pending);
    EXPECT_EQ(jvm.references_alive, 1U) << missing;
    EXPECT_EQ(jvm.faults, std::vector<std::string>()) << missing;
  }
  const Failure from_c[] = {{"EnsureLocalCapacity", ""},
                            {"java/lang/String", "java/lang/NoClassDefFoundError"},
                            {"<init>", "java/lang/NoSuchMethodError"},
                            {"NewByteArray", "java/lang/OutOfMemoryError"},
                            {"NewObject", "a constructor's error"}};
  for (const auto& [missing, pending] : from_c) {
    Fake_jvm jvm;
    jvm.missing = missing;
    EXPECT_EQ(C_to_String(jvm.Env(), "name"), nullptr);
    EXPECT_EQ(jvm.pending, pending);
    EXPECT_EQ(jvm.references_alive, 0U) << missing;
    EXPECT_EQ(jvm.described.size(), missing == std::string("NewByteArray") ? 1U : 0U);
    EXPECT_EQ(jvm.faults, std::vector<std::string>()) << missing;
  }
}

TEST(JavaStrings, ThrowsTextsOfAnyBytesButNothingOnTop) {
  Fake_jvm jvm;
  Throw_exception(jvm.Env(), "file '\xE4'\n");
  const std::string first = "java/lang/Exception: file '\xEF\xBF\xBD'\n";
  EXPECT_EQ(jvm.pending, first);
  Throw_exception(jvm.Env(), "second");
  EXPECT_EQ(jvm.pending, first);
  EXPECT_EQ(jvm.faults, std::vector<std::string>());
  EXPECT_EQ(jvm.references_alive, 0U);
}

}  // namespace

}  // namespace gns
