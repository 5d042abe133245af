#pragma once

#include "common/text/CodePage.h"
#include "document/model/Builder.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korvane::doc::html {

/// How an element behaves, besides what its routine does.
enum class Nature : std::uint8_t {
    Inline,
    /// Its text is in paragraphs of its own.
    Block,
    /// It has neither content nor an end.
    Void,
    /// It isn't shown, nor what is in it.
    Dropped,
    /// Its content isn't HTML, and it isn't shown.
    Raw,
};

struct Attribute {
    std::string_view name;
    std::string_view value;
};

class HtmlParser;

struct Element {
    using Handler = void (HtmlParser::*)(std::int32_t argument);

    std::string_view name;
    Nature nature = Nature::Inline;
    Handler open = nullptr;
    std::int32_t argument = 0;
    Handler close = nullptr;
};

/// What an element gives back at its end.
struct ElementState {
    const Element* element = nullptr;
    CharFormat look{};
    Index field = 0;
    bool pre = false;
};

/// Reads HTML tag by tag, without a tree. Open elements are on a stack of bounded depth.
class HtmlParser {
public:
    HtmlParser(std::string_view bytes, const Limits& limits);

    ReadResult Read();

private:
    friend struct ElementTable;
    friend struct StyleTable;

    // The file.
    void ReadText();
    void ReadMarkup();
    void ReadEndTag();
    void ReadStartTag();
    bool ReadAttribute();
    void SkipComment();
    void SkipDropped(const Element& element);
    std::string_view AttributeOf(std::string_view name) const;
    void DetectEncoding();

    // Text.
    void PutText(std::string_view text);
    void PutSpaced(std::string_view text);
    void PutPreserved(std::string_view text);
    void PutDecoded(std::string_view text);
    void PutBreak();
    void PutTab() { PutUnits(u"\t"); }
    void PutUnits(TextView units);
    void BeforeContent();

    // Elements and paragraphs.
    void OpenElement(const Element& element);
    void CloseImplied(std::string_view opened);
    void CloseTop();
    void CloseUpTo(std::size_t index);
    void CloseOpen(std::string_view name, std::initializer_list<std::string_view> barriers);
    void EndBlock();
    void EndPending();
    void ApplyStyle();
    void ApplyStyle(std::string_view raw);
    void ApplyInlineStyle(std::string_view raw);
    void ApplyBlockStyle(std::string_view raw);
    void ApplyCommonAttributes();
    ElementState& State() { return stack_.back(); }
    CharFormat& Look() { return State().look; }
    /// The format of the innermost block. Other elements have none, since there are so many.
    ParaFormat& Para() { return paras_.back(); }

    // Routines of elements.
    void Flag(std::int32_t flag);
    void SetScript(std::int32_t script);
    void FontElement(std::int32_t);
    void Resize(std::int32_t percent);
    void FixedPitch(std::int32_t);
    void Paragraph(std::int32_t);
    void Heading(std::int32_t level);
    void Preformatted(std::int32_t);
    void Quotation(std::int32_t);
    void Centre(std::int32_t);
    void Body(std::int32_t);
    void Break(std::int32_t);
    void Rule(std::int32_t);
    void Meta(std::int32_t);
    void Link(std::int32_t);
    void Picture(std::int32_t);
    void List(std::int32_t kind);
    void ListItem(std::int32_t);
    void CloseList(std::int32_t);
    void Table(std::int32_t);
    void CloseTable(std::int32_t);
    void Row(std::int32_t);
    void CloseRow(std::int32_t);
    void Cell(std::int32_t heading);
    void CloseCell(std::int32_t);

    // Properties of styles.
    void StyleFont(std::string_view value, std::int32_t);
    void StyleSize(std::string_view value, std::int32_t);
    void StyleWeight(std::string_view value, std::int32_t);
    void StyleSlant(std::string_view value, std::int32_t);
    void StyleLine(std::string_view value, std::int32_t);
    void StyleVariant(std::string_view value, std::int32_t);
    void StyleColour(std::string_view value, std::int32_t);
    void StyleBack(std::string_view value, std::int32_t);
    void StyleRaise(std::string_view value, std::int32_t);
    void StyleWhiteSpace(std::string_view value, std::int32_t);
    void StyleAlign(std::string_view value, std::int32_t);
    void StyleLength(std::string_view value, std::int32_t length);
    void StyleMargin(std::string_view value, std::int32_t);
    void StyleSpacing(std::string_view value, std::int32_t);
    void StyleBorder(std::string_view value, std::int32_t sides);
    void StylePadding(std::string_view value, std::int32_t sides);
    void StyleWidth(std::string_view value, std::int32_t);
    void StyleHeight(std::string_view value, std::int32_t);
    void StyleBreak(std::string_view value, std::int32_t);

    // What only files of this program have.
    void ReadPage(std::string_view value);
    void ReadTabs(std::string_view value);
    void ReadFrame(std::string_view value);
    void ReadListMark(std::string_view value);

    bool InCell() const { return tableDepth_ == 1 && cellOpen_; }

    std::string utf8_;
    std::string_view bytes_;
    std::size_t at_ = 0;
    Limits limits_;
    Builder builder_;
    ReadResult result_;
    /// Nothing for UTF-8.
    std::optional<CodePage> page_;

    std::vector<ElementState> stack_;
    std::vector<ParaFormat> paras_{1};
    /// What the last styles made of a look, since a file has the same ones again and again.
    struct StyledLook {
        std::string_view style;
        CharFormat before{};
        CharFormat after{};
    };
    std::array<StyledLook, 8> styled_{};
    std::size_t nextStyled_ = 0;
    /// The same of paragraphs.
    struct StyledBlock {
        std::string_view style;
        CharFormat lookBefore{};
        ParaFormat paraBefore{};
        CharFormat lookAfter{};
        ParaFormat paraAfter{};
        bool pre = false;
    };
    std::array<StyledBlock, 8> styledBlocks_{};
    std::size_t nextStyledBlock_ = 0;
    std::vector<Attribute> attributes_;
    std::optional<ParaFormat> pending_;
    /// Whether the paragraph at hand has anything, and whether a blank would be one too many.
    bool content_ = false;
    bool afterBlank_ = true;
    /// Whether the file says that this program wrote it.
    bool own_ = false;

    std::size_t tableDepth_ = 0;
    bool cellOpen_ = false;
    CellFormat* styledCell_ = nullptr;
    std::optional<std::int32_t> tableLeft_;
    std::vector<CellFormat> rowCells_;
    Image* styledImage_ = nullptr;
    std::uint32_t lists_ = 0;
    std::vector<ListMark> openLists_;
};

/// The table of the elements.
struct Elements {
    /// The row of the name in small letters, or nullptr.
    static const Element* Find(std::string_view name);
};

/// The table of the properties.
struct Styles {
    struct Row {
        std::string_view name;
        void (HtmlParser::*handler)(std::string_view value, std::int32_t argument);
        std::int32_t argument = 0;
    };

    static const Row* Find(std::string_view name);
};

} // namespace korvane::doc::html
