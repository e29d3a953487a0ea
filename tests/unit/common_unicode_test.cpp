#include "common/unicode.h"

#include <gtest/gtest.h>

#include <cstdint>
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
  const std::vector<std::pair<std::string, std::u16string>> samples = {
      {"\xC0\x80", u"\uFFFD"},         {"\xC1\xBFz", u"\uFFFDz"},
      {"\xE0\x80\x80", u"\uFFFD"},     {"\xE0\x9F\xBFz", u"\uFFFDz"},
      {"\xF0\x80\x80\x80", u"\uFFFD"}, {"\xF0\x8F\xBF\xBFz", u"\uFFFDz"},
      {"\xED\x9F\xBF", u"\uD7FF"},     {"\xED\xA0\x80", u"\uFFFD"},
      {"\xED\xBF\xBFz", u"\uFFFDz"},   {"\xEE\x80\x80", u"\uE000"},
  };
  for (const auto& [narrow, wide] : samples) EXPECT_EQ(toUtf16(narrow), wide);
}

TEST(Unicode, ReplacesEachByteThatBeginsNoCharacter) {
  const std::vector<std::pair<std::string, std::u16string>> samples = {
      {"\xF4\x90\x80\x80", u"\uFFFD"},
      {"\xF5\x80\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
      {"\xF8\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
      {"\xBF\x80", u"\uFFFD\uFFFD"},
      {"\xE2\x82\xC3\xA4", u"\uFFFD\u00E4"},
  };
  for (const auto& [narrow, wide] : samples) EXPECT_EQ(toUtf16(narrow), wide);
}

TEST(Unicode, ReplacesLoneSurrogates) {
  EXPECT_EQ(toUtf8(u"a\xD800"), "a\xEF\xBF\xBD");
  EXPECT_EQ(toUtf8(u"\xDC00z"), "\xEF\xBF\xBDz");
  EXPECT_EQ(toUtf8(u"\xD800\xD800\xDC00"), "\xEF\xBF\xBD\xF0\x90\x80\x80");
  EXPECT_EQ(toUtf8(u"\xDFFF"), "\xEF\xBF\xBD");
  EXPECT_EQ(toUtf8(u"\xDC00\xDC00"), "\xEF\xBF\xBD\xEF\xBF\xBD");
  EXPECT_EQ(toUtf8(u"\xD800\xDBFF"), "\xEF\xBF\xBD\xEF\xBF\xBD");
  EXPECT_EQ(toUtf8(u"\xD7FF\xDC00"), "\xED\x9F\xBF\xEF\xBF\xBD");
  EXPECT_EQ(toUtf8(u"\xD800\xE000"), "\xEF\xBF\xBD\xEE\x80\x80");
}

TEST(Unicode, SeesNothingBehindTheEndOfAText) {
  const std::u16string_view pair = u"\xD83D\xDCC8";
  EXPECT_EQ(toUtf8(pair.substr(0, 1)), "\xEF\xBF\xBD");
  const std::string_view euro = "\xE2\x82\xAC";
  EXPECT_EQ(toUtf16(euro.substr(0, 2)), u"\uFFFD");
}

TEST(Unicode, WritesOneCharacter) {
  EXPECT_EQ(toUtf8(U'7'), "7");
  EXPECT_EQ(toUtf8(U'\u20AC'), "\xE2\x82\xAC");
  EXPECT_EQ(toUtf8(char32_t{0xD7FF}), "\xED\x9F\xBF");
  EXPECT_EQ(toUtf8(char32_t{0xE000}), "\xEE\x80\x80");
  EXPECT_EQ(toUtf8(char32_t{0x10FFFF}), "\xF4\x8F\xBF\xBF");
  for (const std::uint32_t number : {0xD800U, 0xDFFFU, 0x110000U, 0xFFFFFFFFU})
    EXPECT_EQ(toUtf8(static_cast<char32_t>(number)), "\xEF\xBF\xBD") << number;
}

}  // namespace
}  // namespace common
