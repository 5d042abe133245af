// Compares the tables of the code pages with those of the system.

#include "common/text/CodePage.h"
#include "platform/native/user/UserCodePage.h"

#include <windows.h>
#include <gtest/gtest.h>

namespace korvane {
namespace {

/// Whether the character is in the private range, to which Windows maps bytes that have no character in the
/// page.
constexpr bool IsPrivate(wchar_t character) {
    return character >= 0xE000 && character <= 0xF8FF;
}

/// The system's character for the byte, or nothing when its page has none.
std::optional<char16_t> SystemsCharacter(int page, unsigned char byte) {
    const char bytes[] = {static_cast<char>(byte)};
    wchar_t character = 0;
    const int length =
        MultiByteToWideChar(static_cast<UINT>(page), MB_ERR_INVALID_CHARS, bytes, 1, &character, 1);
    if (length != 1 || IsPrivate(character)) return std::nullopt;
    return static_cast<char16_t>(character);
}

struct WindowsCodePage : testing::TestWithParam<int> {};

TEST_P(WindowsCodePage, DecodesAsTheSystemDoes) {
    const auto page = CodePage::ForNumber(GetParam());
    ASSERT_TRUE(page);
    int known = 0;
    for (int byte = 0; byte < 256; ++byte) {
        const auto value = static_cast<unsigned char>(byte);
        const auto expected = SystemsCharacter(GetParam(), value);
        known += expected ? 1 : 0;
        EXPECT_EQ(page->Decode(value), expected.value_or(value)) << byte;
    }
    EXPECT_GT(known, 200);
}

INSTANTIATE_TEST_SUITE_P(EveryCodePage, WindowsCodePage,
                         testing::Values(874, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258),
                         testing::PrintToStringParamName());

TEST(WindowsUserCodePage, IsTheSystemsWhereThatHasSingleBytes) {
    const int systems = static_cast<int>(GetACP());
    const int expected = CodePage::ForNumber(systems) ? systems : CodePage::Windows1252().Number();
    EXPECT_EQ(UserCodePage().Number(), expected);
}

} // namespace
} // namespace korvane
