#include "tbx/formats/Json.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

std::string Ascii(TextView text) {
    std::string json;
    AppendAsciiJson(text, json);
    return json;
}

std::string Utf8(TextView text) {
    std::string json;
    AppendUtf8Json(text, json);
    return json;
}

TEST(AsciiJson, PrintableCharactersStayAsTheyAre) {
    EXPECT_EQ(Ascii(u" aZ~/"), R"(" aZ~/")");
    EXPECT_EQ(Ascii(u""), R"("")");
}

TEST(AsciiJson, QuoteAndBackslashComeAfterABackslash) {
    EXPECT_EQ(Ascii(u"\"D:\\data\""), R"("\"D:\\data\"")");
}

TEST(AsciiJson, AllElseIsEscapedByNumberEvenLineEnds) {
    EXPECT_EQ(Ascii(u"a\r\nb\t"), R"("a\u000d\u000ab\u0009")");
    EXPECT_EQ(Ascii(TextView(u"\0\x1F\x7F", 3)), R"("\u0000\u001f\u007f")");
    EXPECT_EQ(Ascii(u"é€\u0081"), R"("\u00e9\u20ac\u0081")");
    EXPECT_EQ(Ascii(u"😀"), R"("\ud83d\ude00")");
}

TEST(Utf8Json, CharactersAreInUtf8) {
    EXPECT_EQ(Utf8(u"é€😀 a/b"), "\"é€😀 a/b\"");
}

TEST(Utf8Json, ControlCharactersAreEscapedTheUsualOnesByTheirLetter) {
    EXPECT_EQ(Utf8(u"a\r\nb\t\b\f"), R"("a\r\nb\t\b\f")");
    EXPECT_EQ(Utf8(TextView(u"\0\x1F\x7F", 3)), R"("\u0000\u001f\u007f")");
    EXPECT_EQ(Utf8(u"\"\\"), R"("\"\\")");
}

} // namespace
} // namespace korvane
