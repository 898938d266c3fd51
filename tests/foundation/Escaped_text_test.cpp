#include <gtest/gtest.h>

#include <string>

#include "foundation/text/Csv_text.h"
#include "foundation/text/Json_text.h"
#include "foundation/text/Number_text.h"
#include "foundation/text/Xml_text.h"

namespace gns {
namespace {

using namespace std::string_literals;

/// Names as people have them, and as nobody should.
TEST(EscapedText, XmlAndJson) {
  const struct {
    std::string name;
    std::string xml;
    std::string json;
    bool whole_in_xml;
    bool whole_in_json;
  } cases[] = {
      {"", "", "", true, true},
      {"Zo\u00eb \u6c34 \U0001F600", "Zo\u00eb \u6c34 \U0001F600", "Zo\u00eb \u6c34 \U0001F600",
       true, true},
      {"<a href=\"x\">'&]]>", "&lt;a href=&quot;x&quot;&gt;&apos;&amp;]]&gt;",
       "<a href=\\\"x\\\">'&]]>", true, true},
      {"tab\tline\r\n", "tab&#9;line&#13;&#10;", "tab\\u0009line\\u000d\\u000a", true, true},
      {"nul\0esc\x1B"s, "nul\uFFFDesc\uFFFD", "nul\\u0000esc\\u001b", false, true},
      {"back\\slash\x7F", "back\\slash\x7F", "back\\\\slash\\u007f", true, true},
      {"no character \xEF\xBF\xBF", "no character \uFFFD", "no character \xEF\xBF\xBF", false,
       true},
      {"half \xC3", "half \uFFFD", "half \uFFFD", false, false},
      {"surrogate \xED\xA0\x80", "surrogate \uFFFD\uFFFD\uFFFD", "surrogate \uFFFD\uFFFD\uFFFD",
       false, false},
      {"long \xC0\xAF", "long \uFFFD\uFFFD", "long \uFFFD\uFFFD", false, false},
      {std::string(1000000, '<'), "", std::string(1000000, '<'), true, true},
  };
  for (const auto& [name, xml, json, whole_in_xml, whole_in_json] : cases) {
    SCOPED_TRACE(name.substr(0, 40));
    std::string found;
    EXPECT_EQ(Append_xml(name, found), whole_in_xml);
    if (name.size() < 1000)
      EXPECT_EQ(found, xml);
    else
      EXPECT_EQ(found.size(), 4 * name.size());
    found.clear();
    EXPECT_EQ(Append_json(name, found), whole_in_json);
    EXPECT_EQ(found, "\"" + json + "\"");
  }
}

TEST(EscapedText, Tables) {
  const struct {
    std::string field;
    char separator;
    std::string text;
  } cases[] = {{"", ',', ""},
               {"a b;c", ',', "a b;c"},
               {"a,b", ',', "\"a,b\""},
               {"a,b", '\t', "a,b"},
               {"a\tb", '\t', "\"a\tb\""},
               {"say \"hi\"", ',', "\"say \"\"hi\"\"\""},
               {"two\nlines\r", ',', "\"two\nlines\r\""}};
  for (const auto& [field, separator, text] : cases) {
    std::string found;
    Append_csv(field, separator, found);
    EXPECT_EQ(found, text);
  }
}

TEST(EscapedText, NumbersTellAllTheirDigits) {
  std::string text;
  for (const double number : {0.1, 1.0, -2.5e-300, 1.0 / 3}) {
    Append_number(number, text);
    text += ' ';
  }
  Append_number(18446744073709551615U, text);
  EXPECT_EQ(text, "0.1 1 -2.5e-300 0.3333333333333333 18446744073709551615");
  EXPECT_EQ(Json_number(1.0 / 0.0), "null");
}

}  // namespace
}  // namespace gns
