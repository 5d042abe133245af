#include "document/rtf/Parser.h"

#include <array>

namespace korvane::doc::rtf {

namespace {

constexpr auto Number(auto value) {
    return static_cast<std::int32_t>(value);
}

using P = Parser;

} // namespace

/// The rows of the table, which the parser lets name its routines.
struct WordTable {
    static constexpr std::int32_t kSkip = static_cast<std::int32_t>(Target::Skip);

    static constexpr Words::Row kRows[] = {
        // Characters that have names.
        {"tab", &P::Character, u'\t'},
        {"line", &P::Character, kLineBreak},
        {"lbr", &P::Character, kLineBreak},
        {"emdash", &P::Character, 0x2014},
        {"endash", &P::Character, 0x2013},
        {"emspace", &P::Character, 0x2003},
        {"enspace", &P::Character, 0x2002},
        {"qmspace", &P::Character, 0x2005},
        {"bullet", &P::Character, 0x2022},
        {"lquote", &P::Character, 0x2018},
        {"rquote", &P::Character, 0x2019},
        {"ldblquote", &P::Character, 0x201C},
        {"rdblquote", &P::Character, 0x201D},
        {"zwj", &P::Character, 0x200D},
        {"zwnj", &P::Character, 0x200C},
        {"zwbo", &P::Character, 0x200B},
        {"ltrmark", &P::Character, 0x200E},
        {"rtlmark", &P::Character, 0x200F},
        {"u", &P::Unicode},
        {"uc", &P::FallbackLength},
        {"bin", &P::Binary},
        // The file.
        {"ansicpg", &P::AnsiPage},
        {"deff", &P::DefaultFont},
        {"deftab", &P::DefaultTab},
        {"paperw", &P::PageSize, Page::Width},
        {"paperh", &P::PageSize, Page::Height},
        {"margl", &P::PageSize, Page::MarginLeft},
        {"margt", &P::PageSize, Page::MarginTop},
        {"margr", &P::PageSize, Page::MarginRight},
        {"margb", &P::PageSize, Page::MarginBottom},
        {"pgwsxn", &P::PageSize, Page::Width},
        {"pghsxn", &P::PageSize, Page::Height},
        {"marglsxn", &P::PageSize, Page::MarginLeft},
        {"margtsxn", &P::PageSize, Page::MarginTop},
        {"margrsxn", &P::PageSize, Page::MarginRight},
        {"margbsxn", &P::PageSize, Page::MarginBottom},
        {"red", &P::ColourPart, 0},
        {"green", &P::ColourPart, 8},
        {"blue", &P::ColourPart, 16},
        // Groups with something else than text.
        {"fonttbl", &P::Destination, Number(Target::FontTable)},
        {"colortbl", &P::Destination, Number(Target::ColourTable)},
        {"fldinst", &P::Destination, Number(Target::Instruction)},
        {"listtable", &P::Destination, Number(Target::ListTable)},
        {"listoverridetable", &P::Destination, Number(Target::ListTable)},
        {"pn", &P::Destination, Number(Target::OldList)},
        {"shppict", &P::Nothing},
        {"shpinst", &P::Nothing},
        {"shptxt", &P::Nothing},
        {"stylesheet", &P::Destination, kSkip},
        {"info", &P::Destination, kSkip},
        {"header", &P::Destination, kSkip},
        {"headerl", &P::Destination, kSkip},
        {"headerr", &P::Destination, kSkip},
        {"headerf", &P::Destination, kSkip},
        {"footer", &P::Destination, kSkip},
        {"footerl", &P::Destination, kSkip},
        {"footerr", &P::Destination, kSkip},
        {"footerf", &P::Destination, kSkip},
        {"footnote", &P::Destination, kSkip},
        {"annotation", &P::Destination, kSkip},
        {"listtext", &P::Destination, kSkip},
        {"pntext", &P::Destination, kSkip},
        {"pntxta", &P::Destination, kSkip},
        {"pntxtb", &P::Destination, kSkip},
        {"nonshppict", &P::Destination, kSkip},
        {"shprslt", &P::Destination, kSkip},
        {"sp", &P::Destination, kSkip},
        {"objdata", &P::Destination, kSkip},
        {"object", &P::Destination, kSkip},
        {"xe", &P::Destination, kSkip},
        {"tc", &P::Destination, kSkip},
        {"rxe", &P::Destination, kSkip},
        {"txe", &P::Destination, kSkip},
        {"falt", &P::Destination, kSkip},
        {"nesttableprops", &P::Destination, kSkip},
        {"nonesttables", &P::Destination, kSkip},
        {"filetbl", &P::Destination, kSkip},
        {"revtbl", &P::Destination, kSkip},
        {"leveltext", &P::Destination, kSkip},
        {"levelnumbers", &P::Destination, kSkip},
        {"listname", &P::Destination, kSkip},
        {"private1", &P::Destination, kSkip},
        // Characters' looks.
        {"plain", &P::PlainText},
        {"b", &P::CharFlag, 0},
        {"i", &P::CharFlag, 1},
        {"ul", &P::CharFlag, 2},
        {"uld", &P::CharFlag, 2},
        {"uldash", &P::CharFlag, 2},
        {"uldashd", &P::CharFlag, 2},
        {"uldashdd", &P::CharFlag, 2},
        {"uldb", &P::CharFlag, 2},
        {"ulth", &P::CharFlag, 2},
        {"ulw", &P::CharFlag, 2},
        {"ulwave", &P::CharFlag, 2},
        {"ulnone", &P::NoUnderline},
        {"strike", &P::CharFlag, 3},
        {"striked", &P::CharFlag, 3},
        {"scaps", &P::CharFlag, 4},
        {"caps", &P::CharFlag, 4},
        {"f", &P::Font},
        {"fs", &P::FontSize},
        {"fcharset", &P::Charset},
        {"cf", &P::ForeColour},
        {"cb", &P::BackColour},
        {"chcbpat", &P::BackColour},
        {"highlight", &P::BackColour},
        {"up", &P::Raise, 1},
        {"dn", &P::Raise, -1},
        {"super", &P::SetScript, Number(Script::Raised)},
        {"sub", &P::SetScript, Number(Script::Lowered)},
        {"nosupersub", &P::SetScript, Number(Script::Normal)},
        {"v", &P::Hide},
        {"deleted", &P::Hide},
        {"kvbase", &P::ExactRaise},
        // Paragraphs' looks.
        {"pard", &P::ParaDefault},
        {"ql", &P::ParaAlignment, Number(Alignment::Left)},
        {"qr", &P::ParaAlignment, Number(Alignment::Right)},
        {"qc", &P::ParaAlignment, Number(Alignment::Centred)},
        {"qj", &P::ParaAlignment, Number(Alignment::Justified)},
        {"li", &P::ParaLength, 0},
        {"lin", &P::ParaLength, 0},
        {"ri", &P::ParaLength, 1},
        {"rin", &P::ParaLength, 1},
        {"fi", &P::ParaLength, 2},
        {"sb", &P::ParaLength, 3},
        {"sa", &P::ParaLength, 4},
        {"sl", &P::LineSpacing},
        {"slmult", &P::SpacingRule},
        {"tx", &P::Tab},
        {"tqr", &P::NextTabType, Number(TabType::Right)},
        {"tqc", &P::NextTabType, Number(TabType::Centred)},
        {"tqdec", &P::NextTabType, Number(TabType::Decimal)},
        {"pagebb", &P::BreakBefore},
        {"intbl", &P::InTable},
        {"brdrl", &P::FrameSide, kFrameLeft},
        {"brdrr", &P::FrameSide, kFrameRight},
        {"brdrt", &P::FrameSide, kFrameTop},
        {"brdrb", &P::FrameSide, kFrameBottom},
        {"box", &P::FrameSide, kFrameSides},
        {"brdrbtw", &P::FrameSide, kFrameConnected},
        {"brdrs", &P::BorderStyle, kFrameSingle},
        {"brdrdb", &P::BorderStyle, kFrameDouble},
        {"brdrth", &P::BorderStyle, kFrameSingle},
        {"brdrdot", &P::BorderStyle, kFrameSingle},
        {"brdrdash", &P::BorderStyle, kFrameSingle},
        {"brdrhair", &P::BorderStyle, kFrameSingle},
        {"brdrnone", &P::BorderStyle, 0},
        {"brdrnil", &P::BorderStyle, 0},
        {"brdrw", &P::BorderWidth},
        {"brsp", &P::BorderDistance},
        {"kvframe", &P::FrameBits},
        {"ls", &P::ParaList},
        {"ilvl", &P::ParaListLevel},
        // Ends.
        {"par", &P::Paragraph},
        {"sect", &P::Section},
        {"nestcell", &P::Paragraph},
        {"page", &P::NewPage},
        // Tables.
        {"trowd", &P::RowDefault},
        {"trleft", &P::RowLeft},
        {"trgaph", &P::RowGap, 3},
        {"trpaddl", &P::RowGap, 1},
        {"trpaddr", &P::RowGap, 2},
        {"cellx", &P::CellEdge},
        {"clbrdrl", &P::CellSide, Number(Side::Left)},
        {"clbrdrr", &P::CellSide, Number(Side::Right)},
        {"clbrdrt", &P::CellSide, Number(Side::Top)},
        {"clbrdrb", &P::CellSide, Number(Side::Bottom)},
        {"trbrdrl", &P::RowBorder},
        {"trbrdrr", &P::RowBorder},
        {"trbrdrt", &P::RowBorder},
        {"trbrdrb", &P::RowBorder},
        {"trbrdrh", &P::RowBorder},
        {"trbrdrv", &P::RowBorder},
        {"clcbpat", &P::CellColour},
        {"clpadl", &P::CellGap, Number(Side::Left)},
        {"clpadr", &P::CellGap, Number(Side::Right)},
        {"cell", &P::Cell},
        {"row", &P::Row},
        // Pictures.
        {"pict", &P::PictureStart},
        {"pngblip", &P::PictureKind, Number(ImageKind::Png)},
        {"jpegblip", &P::PictureKind, Number(ImageKind::Jpeg)},
        {"picwgoal", &P::PictureSize, 0},
        {"pichgoal", &P::PictureSize, 1},
        {"picscalex", &P::PictureSize, 2},
        {"picscaley", &P::PictureSize, 3},
        // Fields.
        {"field", &P::FieldGroup},
        {"fldrslt", &P::FieldResult},
        // Lists.
        {"list", &P::NewList},
        {"listoverride", &P::NewList},
        {"listlevel", &P::NewListLevel},
        {"levelnfc", &P::ListNumberKind},
        {"levelnfcn", &P::ListNumberKind},
        {"levelstartat", &P::ListStart},
        {"listid", &P::ListIdentity},
        {"pnlvlblt", &P::OldListKind, Number(ListKind::Bullet)},
        {"pndec", &P::OldListKind, Number(ListKind::Decimal)},
        {"pnucltr", &P::OldListKind, Number(ListKind::UpperLetter)},
        {"pnlcltr", &P::OldListKind, Number(ListKind::LowerLetter)},
        {"pnucrm", &P::OldListKind, Number(ListKind::UpperRoman)},
        {"pnlcrm", &P::OldListKind, Number(ListKind::LowerRoman)},
    };

    static constexpr std::size_t kSlots = 1024;

    static constexpr std::size_t SlotOf(std::string_view name) {
        std::uint32_t hash = 0x811C9DC5u;
        for (const char c : name)
            hash = (hash ^ static_cast<unsigned char>(c)) * 0x01000193u;
        return (hash ^ hash >> 15) % kSlots;
    }

    /// Each slot has the number of a row, counted from 1. A row whose slot is taken has the next free one.
    static constexpr std::array<std::uint8_t, kSlots> MakeSlots() {
        static_assert(std::size(kRows) < 256);
        std::array<std::uint8_t, kSlots> slots{};
        std::uint8_t number = 0;
        for (const Words::Row& row : kRows) {
            std::size_t slot = SlotOf(row.name);
            while (slots[slot] != 0)
                slot = (slot + 1) % kSlots;
            slots[slot] = ++number;
        }
        return slots;
    }
};

const Words::Row* Words::Find(std::string_view name) {
    static constexpr std::array<std::uint8_t, WordTable::kSlots> kSlots = WordTable::MakeSlots();
    for (std::size_t slot = WordTable::SlotOf(name); kSlots[slot] != 0;
         slot = (slot + 1) % WordTable::kSlots) {
        const Row& row = WordTable::kRows[kSlots[slot] - 1];
        if (row.name == name) return &row;
    }
    return nullptr;
}

} // namespace korvane::doc::rtf
