#include "document/plain/Plain.h"

#include <gtest/gtest.h>

namespace korvane::doc {
namespace {

const CodePage kPage = CodePage::Windows1252();

std::string TextOf(std::string_view bytes, const CodePage& page = kPage) {
    return ToUtf8(PlainText(ReadPlain(bytes, page).document));
}

TEST(Plain, TheCodePageIsThePrograms) {
    EXPECT_EQ(TextOf("caf\xE9 \x80"), "café €");
    EXPECT_EQ(TextOf("\xB9", *CodePage::ForNumber(1250)), "ą");
}

TEST(Plain, AMarkAtTheBeginningTellsTheEncoding) {
    EXPECT_EQ(TextOf("\xEF\xBB\xBFż"), "ż");
    EXPECT_EQ(TextOf(std::string_view("\xFF\xFE"
                                      "a\0b\0",
                                      6)),
              "ab");
    EXPECT_EQ(TextOf(std::string_view("\xFE\xFF\0a\x20\xAC\0", 7)), "a€");
}

TEST(Plain, AnyLineEndEndsAParagraph) {
    EXPECT_EQ(TextOf("a\nb\r\nc\rd"), "a\r\nb\r\nc\r\nd");
    EXPECT_EQ(ReadPlain("a\n", kPage).document.paragraphs.size(), 2u);
}

TEST(Plain, WhatThePageLacksBecomesAQuestionMark) {
    EXPECT_EQ(WritePlain(FromPlainText(u"a\r\nżé\vb"), kPage), "a\r\n?\xE9\r\nb");
}

TEST(Plain, EveryByteComesBack) {
    std::string bytes;
    for (int byte = 1; byte < 256; ++byte) {
        if (byte != '\n' && byte != '\r' && byte != '\v') bytes += static_cast<char>(byte);
    }
    EXPECT_EQ(WritePlain(ReadPlain(bytes, kPage).document, kPage), bytes);
}

TEST(Plain, PicturesAreLeftOut) {
    Document document = FromPlainText(u"a\uFFFCb");
    document.images.emplace_back();
    document.paragraphs[0].runs = {{1}, {1, 0, 0, 1}, {1}};
    EXPECT_EQ(WritePlain(document, kPage), "ab");
    EXPECT_TRUE(IsSound(ReadPlain("\xEF\xBB\xBF\xEF\xBF\xBC", kPage).document));
}

TEST(Plain, TextHasALimit) {
    Limits limits;
    limits.characters = 3;
    const ReadResult read = ReadPlain("12345", kPage, limits);
    EXPECT_EQ(read.trouble, Trouble::OverLimit);
    EXPECT_EQ(PlainText(read.document), u"123");
}

} // namespace
} // namespace korvane::doc
