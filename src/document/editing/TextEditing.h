#pragma once

#include "document/model/Reading.h"
#include "document/store/TextStore.h"

#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korvane::doc {

/// What a text control does with its text, apart from showing it: the selection, the formats, the tables and
/// the fields. Lengths are in twips. A step that isn't possible has no effect.
class TextEditing {
public:
    /// A flag of a selection whose characters differ.
    static constexpr int kMixed = 2;
    /// The value of `CharAttributes` for small capitals.
    static constexpr int kSmallCaps = 32;
    static constexpr int kTabs = 14;
    static constexpr int kListLevels = 9;

    /// The numbers of a cell's attributes.
    enum CellAttribute : std::uint8_t {
        kCellLeft = 0,
        kCellWidth = 1,
        kCellBorder = 2,
        kCellBack = 4,
        kCellGapLeft = 9,
        kCellGapRight = 11
    };

    explicit TextEditing(std::unique_ptr<TextStore> store);
    TextEditing(const TextEditing&) = delete;
    TextEditing& operator=(const TextEditing&) = delete;
    virtual ~TextEditing() = default;

    TextStore& Store() { return *store_; }
    const TextStore& Store() const { return *store_; }

    // The text and the selection.
    const Text& All() const { return store_->All(); }
    void SetAll(TextView text);
    /// The whole document with its fields.
    Document Whole() const;
    void SetWhole(Document document);
    int SelStart() const { return static_cast<int>(start_); }
    /// The selection becomes empty.
    void SetSelStart(int start);
    int SelLength() const { return static_cast<int>(end_ - start_); }
    /// -1 selects up to the end.
    void SetSelLength(int length);
    /// Both in one step.
    void SetSelection(int start, int length);
    Text SelText() const;
    void SetSelText(TextView text);
    std::string SelTextRtf() const;
    void SetSelTextRtf(std::string_view rtf);
    void DeleteSelection() { SetSelText({}); }
    bool DataChanged() const { return dataChanged_; }
    void SetDataChanged(bool changed) { dataChanged_ = changed; }
    bool Undo() { return Travel(&TextStore::Undo); }
    bool Redo() { return Travel(&TextStore::Redo); }

    // Characters: of the selection, or of what is written next at the cursor.
    // Whether the characters of the selection have several fonts, sizes or places above the line. The values
    // themselves are those of the first one.
    bool FontNameDiffers() const;
    bool FontSizeDiffers() const;
    bool BaseLineDiffers() const;
    Text FontName() const;
    void SetFontName(TextView name);
    int FontSize() const;
    void SetFontSize(int points);
    /// The same exactly.
    int FontHalfPoints() const;
    void SetFontHalfPoints(int halfPoints);
    int FontBold() const { return FlagOf(&CharFormat::bold); }
    void SetFontBold(int on) { Apply({.bold = on != 0}); }
    int FontItalic() const { return FlagOf(&CharFormat::italic); }
    void SetFontItalic(int on) { Apply({.italic = on != 0}); }
    int FontUnderline() const { return FlagOf(&CharFormat::underline); }
    void SetFontUnderline(int on) { Apply({.underline = on != 0}); }
    int FontStrikethru() const { return FlagOf(&CharFormat::strike); }
    void SetFontStrikethru(int on) { Apply({.strike = on != 0}); }
    int CharAttributes() const { return FlagOf(&CharFormat::smallCaps) == 1 ? kSmallCaps : 0; }
    void SetCharAttributes(int attributes) { Apply({.smallCaps = (attributes & kSmallCaps) != 0}); }
    /// Above 0 for raised characters, below 0 for lowered ones.
    int BaseLine() const;
    void SetBaseLine(int twips) { Apply({.baseLine = twips}); }
    Colour ForeColor() const { return First().format.fore; }
    void SetForeColor(Colour colour) { Apply({.fore = colour}); }
    Colour TextBkColor() const { return First().format.back; }
    void SetTextBkColor(Colour colour) { Apply({.back = colour}); }

    // Paragraphs: the first one's values are read, and all that the selection touches are changed.
    int Alignment() const { return static_cast<int>(Para().alignment); }
    void SetAlignment(int alignment);
    int IndentL() const { return Para().left; }
    void SetIndentL(int twips) { SetLength(&ParaFormat::left, twips); }
    int IndentR() const { return Para().right; }
    void SetIndentR(int twips) { SetLength(&ParaFormat::right, twips); }
    int IndentFL() const { return Para().first; }
    void SetIndentFL(int twips) { SetLength(&ParaFormat::first, twips); }
    int IndentT() const { return Para().before; }
    void SetIndentT(int twips) { SetLength(&ParaFormat::before, twips); }
    int IndentB() const { return Para().after; }
    void SetIndentB(int twips) { SetLength(&ParaFormat::after, twips); }
    /// In per cent; 0 while the distance is exact.
    int LineSpacing() const { return Para().spacingExact > 0 ? 0 : Para().spacingPercent; }
    void SetLineSpacing(int percent);
    int LineSpacingT() const { return Para().spacingExact; }
    void SetLineSpacingT(int twips);
    int FrameStyle() const { return Para().frame; }
    void SetFrameStyle(int bits);
    int FrameDistance() const { return Para().frameDistance; }
    void SetFrameDistance(int twips) { SetLength(&ParaFormat::frameDistance, twips); }
    int FrameLineWidth() const { return Para().frameWidth; }
    void SetFrameLineWidth(int twips) { SetLength(&ParaFormat::frameWidth, twips); }
    /// The whole format of the first paragraph, and a change of all that the selection touches.
    ParaFormat ParagraphFormat() const { return Para(); }
    void FormatParagraphs(const std::function<void(ParaFormat&)>& change) { ChangeParas(change); }
    /// The mark of the nearest paragraph before the first one that is in a list.
    ListMark ListBefore() const;
    /// With the indents that belong to the mark. Without a number, the paragraphs stay in the list in which
    /// the first one is, unless that began before them; else they become a list of their own.
    void SetListMark(ListMark mark);
    /// The tab that the next two are about, counted from 1.
    int TabCurrent() const { return tabCurrent_; }
    void SetTabCurrent(int tab) { tabCurrent_ = tab; }
    /// 0 for a tab that isn't set.
    int TabPos() const;
    /// 0 takes the tab away.
    void SetTabPos(int twips);
    int TabType() const;
    void SetTabType(int type);

    // The page.
    int PageSize(Page::Size size) const { return store_->PageSetup()[size]; }
    void SetPageSize(Page::Size size, int twips);

    // Tables. Rows and columns count from 1.
    /// The number of a table without rows or columns, of which the text has nothing.
    static constexpr int kTableOfNone = std::numeric_limits<int>::min() + 1;
    /// The negative number of the new table, or 0 if it can't be there.
    int InsertTable(int rows, int columns);
    /// The number of the table at the cursor; 0 outside of tables.
    int TableAtInputPos() const;
    int TableRows(int table) const { return static_cast<int>(store_->SizeOf(TableNumber(table)).rows); }
    int TableColumns(int table) const { return static_cast<int>(store_->SizeOf(TableNumber(table)).columns); }
    /// The cell at the cursor, with its row and column counted from 1; 0 for all three outside of tables.
    CellPlace CellAtInputPos() const;
    /// Nothing if there is no such cell.
    std::optional<CellFormat> FormatOfCell(int table, int row, int column) const;
    Text CellText(int table, int row, int column) const;
    void SetCellText(int table, int row, int column, TextView text);
    /// The place of the cell's first character, counted from 1; 0 if there is no such cell.
    int CellStart(int table, int row, int column) const;
    void SetCellAttribute(int table, int row, int column, int attribute, int value);
    /// Changes all cells at once, which takes far less time than one after the other.
    void FormatCells(int table, const std::function<void(int row, int column, CellFormat&)>& change);

    // Fields.
    int FieldCurrent() const { return static_cast<int>(fieldCurrent_); }
    void SetFieldCurrent(int field) { fieldCurrent_ = static_cast<Index>(field); }
    /// The field at the cursor; 0 if there is none. Between two fields it is the one after the cursor.
    int FieldAtInputPos() const;
    /// The place of the current field's first character, counted from 1; 0 if there is no such field.
    int FieldStart() const;
    Text FieldText() const;
    void SetFieldText(TextView text);
    int FieldType(int field) const { return static_cast<int>(DataOf(field).kind); }
    void SetFieldType(int field, int type);
    Text FieldTypeData(int field) const { return DataOf(field).typeData; }
    void SetFieldTypeData(int field, TextView data);
    Text FieldData(int field) const { return DataOf(field).data; }
    void SetFieldData(int field, TextView data);
    /// The field that follows in the text, the first one for 0; 0 at the end.
    int FieldNext(int field) const;
    /// Puts a field in place of the selection. One without text is there until the cursor moves or it gets a
    /// text.
    void FieldInsert(TextView text);

protected:
    /// Runs after every change of the text or of its formats.
    virtual void Edited() {}
    /// Runs after the selection became another one, or what is written next at the cursor got another look.
    virtual void SelectionMoved() {}

private:
    struct FieldPlace {
        Index field = 0;
        Pos start = 0;
        Pos end = 0;
    };

    int FlagOf(bool CharFormat::*flag) const;
    /// Whether what this tells of a look differs within the selection.
    bool Differs(const std::function<bool(const Look& one, const Look& other)>& same) const;
    Look First() const;
    /// The look of the first character of the stretch, or of what is written there.
    Look LookIn(Pos from, Pos to) const;
    void Apply(const CharDelta& delta);
    ParaFormat Para() const { return store_->ParaAt(start_); }
    void ChangeParas(const std::function<void(ParaFormat&)>& change);
    Index FreeList() const;
    void SetLength(std::int32_t ParaFormat::*length, int twips);
    void ChangeTab(const std::function<void(std::vector<TabStop>&, std::size_t)>& change);
    void Select(Pos start, Pos end);
    void Insert(const Document& piece);
    Document LineLike(TextView text, const Look& look, Index field, const ParaFormat& shape) const;
    Document LineHere(TextView text, Index field) const { return LineLike(text, First(), field, Para()); }
    bool NearField(Pos from, Pos to) const;
    Index FieldFor(Pos from, Pos to) const;
    /// `moved` says whether places in the text became others.
    void NoteChange(bool moved);
    /// Undoes or does again, if there is something to.
    bool Travel(bool (TextStore::*way)());
    void DropPending();
    Pos Clamped(std::int64_t position) const;

    static Index TableNumber(int table) { return static_cast<Index>(table < 0 ? -table : table); }
    static CellPlace PlaceOf(int table, int row, int column);

    const std::vector<FieldPlace>& FieldPlaces() const;
    const FieldPlace* PlaceOfField(Index field) const;
    Field DataOf(int field) const;
    Field* DataFor(int field);

    std::unique_ptr<TextStore> store_;
    Pos start_ = 0;
    Pos end_ = 0;
    CharDelta pending_{};
    bool dataChanged_ = false;
    int tabCurrent_ = 1;

    /// What the fields know. An entry stays after its field is gone, so that undoing brings it back.
    std::map<Index, Field> fields_;
    Index fieldCurrent_ = 0;
    std::optional<Index> emptyField_;
    /// The fields in the order of the text, or nothing after a change.
    mutable std::optional<std::vector<FieldPlace>> fieldPlaces_;
};

} // namespace korvane::doc
