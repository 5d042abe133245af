#include "common/text/CodePage.h"

#include <gtest/gtest.h>

#include <numeric>
#include <set>

namespace korvane {
namespace {

std::string AllBytes() {
    std::string bytes(256, '\0');
    std::iota(bytes.begin(), bytes.end(), '\0');
    return bytes;
}

class EveryCodePage : public testing::TestWithParam<int> {
protected:
    const CodePage page_ = CodePage::ForNumber(GetParam()).value();
};

TEST_P(EveryCodePage, BringsAll256BytesBackUnchanged) {
    EXPECT_EQ(page_.ToBytes(page_.ToText(AllBytes())), AllBytes());
}

TEST_P(EveryCodePage, GivesEveryByteACharacterOfItsOwn) {
    const Text text = page_.ToText(AllBytes());
    EXPECT_EQ(std::set<char16_t>(text.begin(), text.end()).size(), 256u);
    EXPECT_TRUE(page_.Holds(text));
}

TEST_P(EveryCodePage, DecodesOneByteAsItDecodesMany) {
    const Text text = page_.ToText(AllBytes());
    for (unsigned byte = 0; byte < 256; ++byte) {
        EXPECT_EQ(page_.Decode(static_cast<unsigned char>(byte)), text[byte]) << byte;
    }
}

TEST_P(EveryCodePage, IsAsciiBelow128) {
    const std::string ascii = AllBytes().substr(0, 128);
    EXPECT_EQ(page_.ToText(ascii), FromAscii(ascii));
}

TEST_P(EveryCodePage, EncodesExactlyTheCharactersItDecodes) {
    const Text text = page_.ToText(AllBytes());
    const std::set<char16_t> held(text.begin(), text.end());
    for (unsigned number = 0; number < 0x10000; ++number) {
        const auto character = static_cast<char16_t>(number);
        const std::optional<unsigned char> byte = page_.Encode(character);
        ASSERT_EQ(byte.has_value(), held.contains(character)) << number;
        if (byte) {
            ASSERT_EQ(page_.Decode(*byte), character);
        }
    }
}

TEST_P(EveryCodePage, HasTheSectionMarkAtA7OnlyOutsideTheThaiPage) {
    EXPECT_EQ(page_.Decode(0xA7) == u'§', GetParam() != 874);
}

TEST_P(EveryCodePage, KnowsItsNumber) {
    EXPECT_EQ(page_.Number(), GetParam());
}

INSTANTIATE_TEST_SUITE_P(CodePage, EveryCodePage,
                         testing::Values(874, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258),
                         testing::PrintToStringParamName());

struct PageSample {
    int page;
    std::string_view bytes;
    TextView text;
};

constexpr PageSample kPageSamples[] = {
    {874, "\xE4\xB7\xC2 \x80", u"ไทย €"},
    {1250, "\xAF\xF3\xB3\xE6 \x8A\x9E", u"Żółć Šž"},
    {1251, "\xCF\xF0\xE8\xE2\xE5\xF2 \xB9", u"Привет №"},
    {1252, "\x80\x91\x92\x93\x94\x96\x97\xE9", u"€‘’“”–—é"},
    {1253, "\xC5\xEB\xEB\xDC\xE4\xE1 \xA2", u"Ελλάδα Ά"},
    {1254, "\xDDstanbul \xFE\xF0\xFD", u"İstanbul şğı"},
    {1255, "\xF9\xEC\xE5\xED \xA4\xCA", u"שלום ₪\u05BA"},
    {1256, "\xE3\xD1\xCD\xC8\xC7 \x81", u"مرحبا پ"},
    {1257, "\xD0i\xE0uliai \xDB", u"Šiąuliai Ū"},
    {1258, "Vi\xEA\xF2t \xFE", u"Viê\u0323t ₫"},
};

TEST(CodePage, ReadsAndWritesItsScript) {
    for (const auto& [number, bytes, text] : kPageSamples) {
        const CodePage page = CodePage::ForNumber(number).value();
        EXPECT_EQ(page.ToText(bytes), text) << number;
        EXPECT_EQ(page.ToBytes(text), bytes) << number;
    }
}

TEST(CodePage, UndefinedBytesBecomeTheCharacterOfTheSameNumber) {
    EXPECT_EQ(CodePage::Windows1252().ToText("\x81\x8D\x8F\x90\x9D"), u"\u0081\u008D\u008F\u0090\u009D");
    EXPECT_EQ(CodePage::ForNumber(1251)->Decode(0x98), 0x98);
    EXPECT_EQ(CodePage::ForNumber(1253)->Decode(0xFF), 0xFF);
}

TEST(CodePage, WritesAQuestionMarkForWhatHasNoPlace) {
    EXPECT_EQ(CodePage::Windows1252().ToBytes(u"aЖb"), "a?b");
    EXPECT_EQ(CodePage::ForNumber(1251)->ToBytes(u"é\u0080"), "??");
}

TEST(CodePage, WritesTwoQuestionMarksForASurrogatePair) {
    EXPECT_EQ(CodePage::Windows1252().ToBytes(u"a😀b"), "a??b");
}

TEST(CodePage, HoldsOnlyTextsWithoutASubstitute) {
    const CodePage page = CodePage::Windows1252();
    EXPECT_TRUE(page.Holds(u""));
    EXPECT_TRUE(page.Holds(u"§ Größe? €"));
    EXPECT_FALSE(page.Holds(u"Größe Ж"));
    EXPECT_FALSE(page.Holds(u"😀"));
}

TEST(CodePage, KeepsNulInsideTexts) {
    using namespace std::string_literals;
    const CodePage page = CodePage::Windows1252();
    EXPECT_EQ(page.ToText("a\0b"s), u"a\0b"s);
    EXPECT_EQ(page.ToBytes(u"a\0b"s), "a\0b"s);
    EXPECT_EQ(page.Encode(u'\0'), std::optional<unsigned char>(0));
}

TEST(CodePage, EmptyGivesEmpty) {
    EXPECT_EQ(CodePage::Windows1252().ToText(""), u"");
    EXPECT_EQ(CodePage::Windows1252().ToBytes(u""), "");
}

TEST(CodePage, AppendsToWhatIsThere) {
    const CodePage page = CodePage::Windows1252();
    Text text = u"Ж:";
    page.AppendText("\x80", text);
    EXPECT_EQ(text, u"Ж:€");
    std::string bytes = "x:";
    page.AppendBytes(u"€Ж", bytes);
    EXPECT_EQ(bytes, "x:\x80?");
}

TEST(CodePage, OtherNumbersHaveNoPage) {
    for (const int number : {0, -1, 437, 873, 875, 1249, 1259, 65001}) {
        EXPECT_FALSE(CodePage::ForNumber(number).has_value()) << number;
    }
}

TEST(CodePage, PagesAreEqualWhenTheirNumberIs) {
    EXPECT_EQ(CodePage::Windows1252(), CodePage::ForNumber(1252));
    EXPECT_NE(CodePage::Windows1252(), CodePage::ForNumber(1250));
}

struct LocaleSample {
    std::string_view locale;
    int page;
};

constexpr LocaleSample kLocaleSamples[] = {{"de_DE.UTF-8", 1252},
                                           {"en_GB", 1252},
                                           {"C", 1252},
                                           {"POSIX", 1252},
                                           {"C.UTF-8", 1252},
                                           {"", 1252},
                                           {"ja_JP", 1252},
                                           {"xx", 1252},
                                           {"_PL", 1252},
                                           {"de_DE@euro", 1252},
                                           {"pl", 1250},
                                           {"pl_PL", 1250},
                                           {"PL", 1250},
                                           {"cs-CZ", 1250},
                                           {"hu.UTF-8", 1250},
                                           {"ru_RU", 1251},
                                           {"sr_RS", 1251},
                                           {"sr_RS@latin", 1250},
                                           {"sr_RS.UTF-8@latin", 1250},
                                           {"uz_UZ@cyrillic", 1251},
                                           {"ru_RU@odd", 1251},
                                           {"el_GR", 1253},
                                           {"tr_TR", 1254},
                                           {"he_IL", 1255},
                                           {"ar_EG", 1256},
                                           {"lt_LT", 1257},
                                           {"lv", 1257},
                                           {"et_EE", 1257},
                                           {"vi_VN", 1258},
                                           {"th_TH", 874}};

TEST(CodePage, OfALocaleIsTheOneOfItsLanguage) {
    for (const auto& [locale, page] : kLocaleSamples) {
        EXPECT_EQ(CodePage::ForLanguage(locale).Number(), page) << locale;
    }
}

} // namespace
} // namespace korvane
