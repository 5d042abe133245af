#include "common/text/CodePage.h"

#include "common/text/CodePageTables.h"

#include <algorithm>
#include <utility>

namespace korvane {

namespace {

constexpr int kDefaultPage = 1252;

constexpr CodePageMaps MakeMaps(const CodePageUpperHalf& upperHalf) {
    CodePageMaps maps;
    maps.number = upperHalf.number;
    std::uint8_t blocksUsed = 1;
    for (std::size_t byte = 0; byte < 256; ++byte) {
        const auto character = byte < 0x80 ? static_cast<char16_t>(byte) : upperHalf.characters[byte - 0x80];
        maps.characters[byte] = character;
        std::uint8_t& block = maps.blockOf[character >> 8];
        if (block == 0) block = blocksUsed++;
        maps.blocks[block][character & 0xFF] = static_cast<std::uint8_t>(byte);
    }
    return maps;
}

template <std::size_t... Index>
constexpr auto MakeAllMaps(std::index_sequence<Index...>) {
    return std::array{MakeMaps(kCodePageUpperHalves[Index])...};
}

constexpr auto kMaps = MakeAllMaps(std::make_index_sequence<kCodePageUpperHalves.size()>());

const CodePageMaps* FindMaps(int number) {
    for (const CodePageMaps& maps : kMaps) {
        if (maps.number == number) return &maps;
    }
    return nullptr;
}

struct LanguagePage {
    std::string_view language;
    int page;
};

/// Languages by the script in which they are mostly written. A language in another script has a modifier in
/// its name.
constexpr LanguagePage kLanguagePages[] = {
    {"bs", 1250}, {"cs", 1250}, {"hr", 1250}, {"hu", 1250}, {"pl", 1250}, {"ro", 1250},
    {"sh", 1250}, {"sk", 1250}, {"sl", 1250}, {"sq", 1250}, {"tk", 1250}, {"sr@latin", 1250},
    {"be", 1251}, {"bg", 1251}, {"kk", 1251}, {"ky", 1251}, {"mk", 1251}, {"mn", 1251},
    {"ru", 1251}, {"sr", 1251}, {"tg", 1251}, {"tt", 1251}, {"uk", 1251}, {"uz@cyrillic", 1251},
    {"el", 1253}, {"az", 1254}, {"tr", 1254}, {"uz", 1254}, {"he", 1255}, {"iw", 1255},
    {"yi", 1255}, {"ar", 1256}, {"fa", 1256}, {"ps", 1256}, {"ug", 1256}, {"ur", 1256},
    {"et", 1257}, {"lt", 1257}, {"lv", 1257}, {"vi", 1258}, {"th", 874},
};

std::optional<int> PageOfLanguage(std::string_view language) {
    const auto* const found = std::ranges::find(kLanguagePages, language, &LanguagePage::language);
    if (found == std::end(kLanguagePages)) return std::nullopt;
    return found->page;
}

std::string AsciiLower(std::string_view text) {
    std::string lower(text);
    for (char& c : lower) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return lower;
}

} // namespace

CodePage CodePage::Windows1252() {
    return CodePage(*FindMaps(kDefaultPage));
}

std::optional<CodePage> CodePage::ForNumber(int number) {
    const CodePageMaps* const maps = FindMaps(number);
    if (maps == nullptr) return std::nullopt;
    return CodePage(*maps);
}

CodePage CodePage::ForLanguage(std::string_view locale) {
    const std::string name = AsciiLower(locale);
    const std::string language = name.substr(0, name.find_first_of("_-.@"));
    const std::size_t modifierAt = std::min(name.find('@'), name.size());
    const std::optional<int> scripted = PageOfLanguage(language + name.substr(modifierAt));
    const int number = scripted ? *scripted : PageOfLanguage(language).value_or(kDefaultPage);
    return CodePage(*FindMaps(number));
}

bool CodePage::Holds(TextView text) const {
    return std::ranges::all_of(text, [this](char16_t character) { return Encode(character).has_value(); });
}

Text CodePage::ToText(std::string_view bytes) const {
    Text text;
    AppendText(bytes, text);
    return text;
}

std::string CodePage::ToBytes(TextView text) const {
    std::string bytes;
    AppendBytes(text, bytes);
    return bytes;
}

void CodePage::AppendText(std::string_view bytes, Text& text) const {
    const std::size_t start = text.size();
    text.resize(start + bytes.size());
    std::ranges::transform(bytes, text.begin() + static_cast<std::ptrdiff_t>(start),
                           [this](char byte) { return Decode(static_cast<unsigned char>(byte)); });
}

void CodePage::AppendBytes(TextView text, std::string& bytes) const {
    const std::size_t start = bytes.size();
    bytes.resize(start + text.size());
    std::ranges::transform(text, bytes.begin() + static_cast<std::ptrdiff_t>(start),
                           [this](char16_t character) {
                               const std::uint8_t byte = ByteOf(character);
                               return byte == 0 && character != 0 ? kSubstitute : static_cast<char>(byte);
                           });
}

} // namespace korvane
