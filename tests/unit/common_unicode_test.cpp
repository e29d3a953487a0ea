#include "common/unicode.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace common {
namespace {

const std::vector<std::pair<std::string, std::u16string>> kSamples = {
    {"", u""},
    {"Top", u"Top"},
    {std::string("a\0b", 3), std::u16string(u"a\0b", 3)},
    {"\x7F", u"\x7F"},
    {"\xC2\x80", u"\x80"},
    {"Geh\xC3\xA4use", u"Geh\u00E4use"},
    {"\xDF\xBF", u"\u07FF"},
    {"\xE0\xA0\x80", u"\u0800"},
    {"5 \xE2\x82\xAC", u"5 \u20AC"},
    {"\xEF\xBF\xBF", u"\uFFFF"},
    {"\xF0\x90\x80\x80", u"\xD800\xDC00"},
    {"\xF0\x9F\x93\x88 up", u"\xD83D\xDCC8 up"},
    {"\xF4\x8F\xBF\xBF", u"\xDBFF\xDFFF"},
};

TEST(Unicode, RoundTripsWellFormedText) {
  for (const auto& [narrow, wide] : kSamples) {
    EXPECT_EQ(toUtf16(narrow), wide);
    EXPECT_EQ(toUtf8(wide), narrow);
  }
}

TEST(Unicode, ReplacesBytesThatAreNotUtf8) {
  EXPECT_EQ(toUtf16("a\xFF"
                    "b"),
            u"a\uFFFDb");
  EXPECT_EQ(toUtf16("\x80"), u"\uFFFD");
  EXPECT_EQ(toUtf16("\xC3"), u"\uFFFD");
  EXPECT_EQ(toUtf16("\xE2\x82"), u"\uFFFD");
  EXPECT_EQ(toUtf16("\xC3"
                    "a"),
            u"\uFFFDa");
}

TEST(Unicode, ReplacesOverlongFormsAndSurrogates) {
  for (const char* text : {"\xC0\x80", "\xE0\x80\x80", "\xF0\x80\x80\x80", "\xED\xA0\x80",
                           "\xF4\x90\x80\x80", "\xF5\x80\x80\x80"}) {
    EXPECT_EQ(toUtf16(text).front(), u'\uFFFD') << testing::PrintToString(text);
  }
}

TEST(Unicode, ReplacesLoneSurrogates) {
  EXPECT_EQ(toUtf8(u"a\xD800"), "a\xEF\xBF\xBD");
  EXPECT_EQ(toUtf8(u"\xDC00z"), "\xEF\xBF\xBDz");
  EXPECT_EQ(toUtf8(u"\xD800\xD800\xDC00"), "\xEF\xBF\xBD\xF0\x90\x80\x80");
}

}  // namespace
}  // namespace common
