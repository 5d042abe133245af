#pragma once

#include "common/text/Text.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace korvane {

/// The two directions of one code page, made by the compiler. The 65,536 characters are in blocks of 256, of
/// which a page uses few. Block 0 is empty, and byte 0 in a block means that the page lacks the character.
struct CodePageMaps {
    int number = 0;
    std::array<char16_t, 256> characters{};
    std::array<std::uint8_t, 256> blockOf{};
    std::array<std::array<std::uint8_t, 256>, 8> blocks{};
};

/// A Windows code page of single bytes: it turns bytes of files into text and back. All 256 byte values come
/// back unchanged from text: a byte without a character stands for the character of the same number. The byte
/// 0xA7 is the section mark in all pages but 874, where it is a Thai letter. A small value, cheap to copy.
class CodePage {
public:
    /// The byte for a character that the page doesn't have.
    static constexpr char kSubstitute = '?';

    /// The page of Western Europe.
    static CodePage Windows1252();
    /// The page of that number: 874 or 1250 to 1258; nothing for any other.
    static std::optional<CodePage> ForNumber(int number);
    /// The page of a language ("pl", "pl_PL.UTF-8", "sr_RS@latin"); 1252 for a language without one.
    static CodePage ForLanguage(std::string_view locale);

    int Number() const { return maps_->number; }

    char16_t Decode(unsigned char byte) const { return maps_->characters[byte]; }
    /// The byte of the character; nothing when the page doesn't have it.
    std::optional<unsigned char> Encode(char16_t character) const;
    /// Whether the page has every character of the text.
    bool Holds(TextView text) const;

    Text ToText(std::string_view bytes) const;
    /// One byte for each unit, `kSubstitute` for what the page doesn't have. A surrogate pair gives two.
    std::string ToBytes(TextView text) const;
    /// As `ToText`, put at the end of `text`.
    void AppendText(std::string_view bytes, Text& text) const;
    /// As `ToBytes`, put at the end of `bytes`.
    void AppendBytes(TextView text, std::string& bytes) const;

    bool operator==(const CodePage&) const = default;

private:
    explicit CodePage(const CodePageMaps& maps) : maps_(&maps) {}

    /// The byte of the character; 0 for the character 0 and for one that the page doesn't have.
    std::uint8_t ByteOf(char16_t character) const;

    const CodePageMaps* maps_;
};

inline std::uint8_t CodePage::ByteOf(char16_t character) const {
    // The remainder is the number itself. It tells the compiler that there is such a block, so that the
    // library's check goes away.
    const std::size_t block = maps_->blockOf[character >> 8] % maps_->blocks.size();
    return maps_->blocks[block][character & 0xFF];
}

inline std::optional<unsigned char> CodePage::Encode(char16_t character) const {
    const std::uint8_t byte = ByteOf(character);
    if (byte == 0 && character != 0) return std::nullopt;
    return byte;
}

} // namespace korvane
