#pragma once

#include "common/text/CodePage.h"
#include "document/model/Builder.h"
#include "document/rtf/RowDefinition.h"

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace korvane::doc::rtf {

/// Where the text of a group goes.
enum class Target : std::uint8_t {
    Body,
    Skip,
    FontTable,
    ColourTable,
    Instruction,
    Picture,
    ListTable,
    OldList
};

/// A control word's number. Without one it is switched on.
struct Value {
    bool given = false;
    std::int32_t number = 0;

    bool On() const { return !given || number != 0; }
    std::int32_t Or(std::int32_t other) const { return given ? number : other; }
};

/// How a font's bytes are read.
struct FontEntry {
    std::uint16_t font = 0;
    /// Nothing for a page of two bytes to a character.
    std::optional<CodePage> page = CodePage::Windows1252();
};

/// The scripts whose characters have words for some of their looks of their own.
enum class ScriptKind : std::uint8_t { Main, RightToLeft, EastAsian };
inline constexpr std::size_t kScriptKinds = 3;

/// What the words of a script say; the rest is as in the main one.
struct ScriptLook {
    std::optional<std::uint16_t> font{};
    std::optional<std::uint16_t> halfPoints{};
    std::optional<bool> bold{};
    std::optional<bool> italic{};
};

/// What a group gives back at its end.
struct GroupState {
    CharFormat look{};
    ScriptKind script = ScriptKind::Main;
    std::array<ScriptLook, kScriptKinds> scripts{};
    Index field = 0;
    std::int32_t fallbackLength = 1;
    Target target = Target::Body;
    bool hidden = false;
    /// Whether this group has a field's instruction and result.
    bool isField = false;
    const FontEntry* font = nullptr;
};

/// A paragraph's format as the words tell it.
struct ParaState {
    ParaFormat format{};
    std::int32_t lineSpacing = 0;
    bool spacingIsMultiple = false;
    bool inTable = false;
    std::int32_t list = 0;
    std::int32_t level = 0;
};

struct ListLevel {
    ListKind kind = ListKind::Decimal;
    std::int32_t start = 1;
};
using ListLevels = std::vector<ListLevel>;

/// Reads RTF from its first byte to its last. Groups are kept on a stack of bounded depth.
class RtfParser {
public:
    RtfParser(std::string_view bytes, const Limits& limits);

    ReadResult Read();

private:
    friend struct Words;
    friend struct WordTable;
    using Handler = void (RtfParser::*)(const Value&, std::int32_t argument);

    // The text's elements.
    void ReadSymbol();
    void ReadWord();
    void ReadHexCharacter();
    void OpenGroup();
    void CloseGroup();
    void EndGroup();
    void SkipGroup();
    Value ReadNumber();
    void RunWord(std::string_view name, const Value& value);

    // Text.
    void PutAscii(std::string_view text);
    void PutByte(unsigned char byte);
    void Put(char16_t character);
    void PutBody(char16_t character);
    bool TakesFallback();
    void Prepare();

    // The groups that aren't text.
    void PutFontName(std::string_view text);
    void EndColours(std::string_view text);
    void PutHex(std::string_view text);
    void EndPicture();
    void BeginResult();

    // Paragraphs.
    ParaState& ChangePara();
    ParaFormat TakeParaFormat();
    void ApplyList(ParaState& para) const;
    void ApplySpacing();
    Colour ColourOf(const Value& value) const;

    // Words.
    void Nothing(const Value&, std::int32_t) {}
    void Destination(const Value&, std::int32_t target);
    void Character(const Value&, std::int32_t character);
    void Unicode(const Value& value, std::int32_t);
    void FallbackLength(const Value& value, std::int32_t);
    void Binary(const Value& value, std::int32_t);
    void AnsiPage(const Value& value, std::int32_t);
    void DefaultFont(const Value& value, std::int32_t);
    void DefaultTab(const Value& value, std::int32_t);
    void PageSize(const Value& value, std::int32_t size);
    void PlainText(const Value&, std::int32_t);
    void CharFlag(const Value& value, std::int32_t flag);
    void SetScriptKind(const Value& value, std::int32_t kind);
    void ScriptFlag(const Value& value, std::int32_t flag);
    void ScriptFont(const Value& value, std::int32_t);
    void ScriptSize(const Value& value, std::int32_t argument);
    CharFormat LookAtHand() const;
    void NoUnderline(const Value&, std::int32_t);
    void Font(const Value& value, std::int32_t);
    void FontSize(const Value& value, std::int32_t);
    void Charset(const Value& value, std::int32_t);
    void ForeColour(const Value& value, std::int32_t);
    void BackColour(const Value& value, std::int32_t);
    void Raise(const Value& value, std::int32_t direction);
    void ExactRaise(const Value& value, std::int32_t);
    void RaisedMark(const Value&, std::int32_t);
    void SetScript(const Value&, std::int32_t script);
    void Hide(const Value& value, std::int32_t);
    void ParaDefault(const Value&, std::int32_t);
    void ParaAlignment(const Value&, std::int32_t alignment);
    void ParaLength(const Value& value, std::int32_t length);
    void LineSpacing(const Value& value, std::int32_t);
    void SpacingRule(const Value& value, std::int32_t);
    void NextTabType(const Value&, std::int32_t type);
    void Tab(const Value& value, std::int32_t);
    void BreakBefore(const Value& value, std::int32_t);
    void InTable(const Value&, std::int32_t);
    void FrameSide(const Value&, std::int32_t sides);
    void FrameBits(const Value& value, std::int32_t);
    void BorderStyle(const Value&, std::int32_t style);
    void BorderWidth(const Value& value, std::int32_t);
    void BorderDistance(const Value& value, std::int32_t);
    void ColourPart(const Value& value, std::int32_t shift);
    void Paragraph(const Value&, std::int32_t);
    void Section(const Value&, std::int32_t);
    void NewPage(const Value&, std::int32_t);
    void RowDefault(const Value&, std::int32_t);
    void RowLeft(const Value& value, std::int32_t);
    void RowGap(const Value& value, std::int32_t sides);
    void CellEdge(const Value& value, std::int32_t);
    void CellSide(const Value&, std::int32_t side);
    void CellColour(const Value& value, std::int32_t);
    void CellGap(const Value& value, std::int32_t side);
    void RowBorder(const Value&, std::int32_t);
    void Cell(const Value&, std::int32_t);
    void Row(const Value&, std::int32_t);
    void PictureStart(const Value&, std::int32_t);
    void PictureKind(const Value&, std::int32_t kind);
    void PictureSize(const Value& value, std::int32_t index);
    void FieldGroup(const Value&, std::int32_t);
    void FieldResult(const Value&, std::int32_t);
    void ParaList(const Value& value, std::int32_t);
    void ParaListLevel(const Value& value, std::int32_t);
    void NewList(const Value&, std::int32_t);
    void NewListLevel(const Value&, std::int32_t);
    void ListNumberKind(const Value& value, std::int32_t);
    void ListStart(const Value& value, std::int32_t);
    void ListIdentity(const Value& value, std::int32_t);
    void OldListKind(const Value&, std::int32_t kind);

    std::string_view bytes_;
    std::size_t at_ = 0;
    Limits limits_;
    Builder builder_;
    ReadResult result_;

    GroupState state_;
    std::vector<GroupState> groups_;
    ParaState para_;
    /// The formats of the paragraphs outside groups that changed them, with the groups' depths.
    std::vector<std::pair<std::size_t, ParaState>> outerParas_;
    // What a group says of the paragraph around it.
    std::optional<std::uint16_t> frameAfterGroup_;
    std::optional<ListKind> oldListAfterGroup_;
    bool lookChanged_ = true;
    bool starred_ = false;
    std::int32_t fallbackLeft_ = 0;
    bool breakNext_ = false;
    bool leadByte_ = false;
    TabType tabType_ = TabType::Left;
    std::uint16_t borderSides_ = 0;
    std::optional<Side> cellSide_;

    std::unordered_map<std::int32_t, FontEntry> fonts_;
    std::int32_t fontNumber_ = 0;
    std::int32_t defaultFont_ = 0;
    Text fontName_;
    CodePage ansi_ = CodePage::Windows1252();
    std::vector<Colour> colours_;
    std::int32_t colour_ = kNoColour.value;

    RowDefinition row_;
    std::vector<Text> instructions_;

    Image picture_;
    std::string pictureBytes_;
    bool halfByte_ = false;
    std::array<std::int32_t, 4> pictureSizes_{};

    std::map<std::int32_t, ListLevels> lists_;
    std::map<std::int32_t, ListLevels> overrides_;
    ListLevels levels_;
    std::int32_t listIdentity_ = 0;
};

/// The table of the control words.
struct Words {
    struct Row {
        std::string_view name;
        RtfParser::Handler handler;
        std::int32_t argument = 0;
    };

    /// The row of the word, or nullptr.
    static const Row* Find(std::string_view name);
};

} // namespace korvane::doc::rtf
