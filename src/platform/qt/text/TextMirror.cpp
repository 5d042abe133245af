#include "platform/qt/text/TextMirror.h"

#include "common/text/SymbolFont.h"
#include "document/model/ListNumbers.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/look/Contrast.h"
#include "platform/qt/text/ListMarks.h"
#include "platform/qt/text/ShownDocument.h"

#include <QFontDatabase>
#include <QTextBlock>
#include <QTextTable>
#include <algorithm>

namespace korvane {

namespace {

/// With more paragraphs than these it takes less time to make a new document, which has no layout to keep.
constexpr std::size_t kMostInPlace = 500;

char16_t ShownCharacter(char16_t character) {
    switch (character) {
    case doc::kLineBreak:
        return QChar::LineSeparator;
    case u'\n':
    case u'\r':
    case u'\0':
    case QChar::ParagraphSeparator:
    // Qt begins and ends its tables with these two.
    case 0xFDD0:
    case 0xFDD1:
    case doc::kImageCharacter:
        return QChar::ReplacementCharacter;
    default:
        return character;
    }
}

/// Where the font of pictures is missing, they are shown by characters that look alike. The text keeps its
/// own.
bool ShowsLikenesses(TextView font) {
    static constexpr TextView kPictures = u"Wingdings";
    return font == kPictures && !QFontDatabase::hasFamily(ToQString(kPictures));
}

QString WithLikenesses(QString shown) {
    for (QChar& character : shown)
        character = WingdingsLike(character.unicode()).value_or(character.unicode());
    return shown;
}

/// Whether the rows have their cells at the same places.
bool SameGeometry(const doc::TableRow& a, const doc::TableRow& b) {
    const auto widths = [](const doc::CellFormat& x, const doc::CellFormat& y) { return x.width == y.width; };
    return a.cells.front().left == b.cells.front().left && std::ranges::equal(a.cells, b.cells, widths);
}

QTextTableFormat TableLook(const doc::TableRow& row) {
    QTextTableFormat look;
    look.setBorder(0);
    look.setCellPadding(0);
    look.setCellSpacing(0);
    look.setBorderCollapse(false);
    look.setLeftMargin(TextPixels(std::max(row.cells.front().left.value_or(0), 0)));
    QList<QTextLength> widths;
    for (const doc::CellFormat& cell : row.cells)
        widths.emplace_back(QTextLength::FixedLength, TextPixels(std::max(cell.width, kTwipsPerPixel)));
    look.setColumnWidthConstraints(widths);
    return look;
}

/// Whether Qt needs to know of the cell's look. Its lines are painted here, and its width belongs to the
/// table.
bool HasLook(const doc::CellFormat& cell) {
    return cell.back != kNoColour || cell.gapLeft != 0 || cell.gapRight != 0;
}

} // namespace

QString ShownText(TextView text) {
    QString shown = ToQString(text);
    for (QChar& character : shown)
        character = ShownCharacter(character.unicode());
    return shown;
}

doc::Index EndOfPart(const doc::Table& table, doc::Index row) {
    const doc::TableRow& first = table.rows[row];
    const std::size_t most = std::max<std::size_t>(TextMirror::kMostCells / first.cells.size(), 1);
    doc::Index end = row + 1;
    while (end < table.rows.size() && end - row < most && SameGeometry(table.rows[end], first))
        ++end;
    return end;
}

TextMirror::TextMirror(doc::MemoryTextStore& store) : store_(store), formats_(store.Whole()) {
    store_.SetListener(this);
    Build();
}

TextMirror::~TextMirror() {
    if (listens_) store_.SetListener(nullptr);
}

int TextMirror::ListNumber(std::size_t paragraph) const {
    if (listNumbers_.empty()) listNumbers_ = ListNumbers(Text());
    return listNumbers_[paragraph];
}

void TextMirror::GoStale() {
    listNumbers_.clear();
    if (std::exchange(stale_, true)) return;
    if (Stale) Stale();
}

void TextMirror::AllChanged() {
    all_ = true;
    GoStale();
}

void TextMirror::ParagraphsChanged(std::size_t first, std::size_t, std::size_t added) {
    const std::size_t tail = Text().paragraphs.size() - first - added;
    dirtyFirst_ = stale_ ? std::min(dirtyFirst_, first) : first;
    cleanTail_ = stale_ ? std::min(cleanTail_, tail) : tail;
    GoStale();
}

QTextDocument& TextMirror::Shown() {
    if (stale_) {
        stale_ = false;
        ShowChanges();
    }
    return *shown_;
}

void TextMirror::ShowChanges() {
    const std::size_t removed = all_ ? 0 : cells_.size() - cleanTail_ - dirtyFirst_;
    const std::size_t added = all_ ? 0 : Text().paragraphs.size() - cleanTail_ - dirtyFirst_;
    if (!all_ && ShowInPlace(dirtyFirst_, removed, added)) return;
    const std::unique_ptr<QTextDocument> before = std::move(shown_);
    Build();
    if (Replaced) Replaced(*shown_);
}

bool TextMirror::ShowInPlace(std::size_t first, std::size_t removed, std::size_t added) {
    if (std::max(removed, added) > kMostInPlace) return false;
    if (removed == added && SameCells(first, added)) {
        QTextCursor step(shown_.get());
        step.beginEditBlock();
        for (std::size_t i = first; i < first + added; ++i)
            ReplaceBlocks(i, 1, 1);
        step.endEditBlock();
        return true;
    }
    if (!OneCell(first, removed, added)) return false;
    QTextCursor step(shown_.get());
    step.beginEditBlock();
    ReplaceBlocks(first, removed, added);
    step.endEditBlock();
    const auto place = cells_.begin() + static_cast<std::ptrdiff_t>(first);
    const doc::CellPlace cell = *place;
    cells_.insert(cells_.erase(place, place + static_cast<std::ptrdiff_t>(removed)), added, cell);
    for (auto moved = std::ranges::upper_bound(spare_, first); moved != spare_.end(); ++moved)
        *moved += added - removed;
    return true;
}

bool TextMirror::SameCells(std::size_t first, std::size_t count) const {
    for (std::size_t i = first; i < first + count; ++i) {
        if (At(i).cell != cells_[i]) return false;
    }
    return true;
}

bool TextMirror::OneCell(std::size_t first, std::size_t removed, std::size_t added) const {
    if (removed == 0 || added == 0) return false;
    const doc::CellPlace& cell = cells_[first];
    for (std::size_t i = first; i < first + removed; ++i) {
        if (cells_[i] != cell) return false;
    }
    for (std::size_t i = first; i < first + added; ++i) {
        if (At(i).cell != cell) return false;
    }
    return true;
}

void TextMirror::ReplaceBlocks(std::size_t first, std::size_t removed, std::size_t added) {
    const QTextBlock last = BlockOf(first + removed - 1);
    QTextCursor cursor(BlockOf(first));
    cursor.setPosition(last.position() + last.length() - 1, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    for (std::size_t i = first; i < first + added; ++i) {
        if (i == first) {
            cursor.setBlockFormat(formats_.OfParagraph(At(i)));
            WriteEmptyLook(cursor, i);
            PutText(cursor, At(i));
        } else {
            PutBlock(cursor, i);
        }
    }
}

/// An empty block has the look with which its next text is written, which gives it its height.
void TextMirror::WriteEmptyLook(QTextCursor& cursor, std::size_t paragraph) {
    const doc::Paragraph& written = At(paragraph);
    const bool startsCell =
        written.cell.table != 0 && (paragraph == 0 || At(paragraph - 1).cell != written.cell);
    if (!startsCell) {
        cursor.setBlockCharFormat(formats_.OfChars(written.emptyFormat));
        return;
    }
    const doc::CellFormat& cell =
        Text().tables.at(written.cell.table).rows[written.cell.row].cells[written.cell.column];
    cursor.currentTable()->cellAt(cursor).setFormat(
        TableCellLook(cell, formats_.OfChars(written.emptyFormat)));
}

Colour TextMirror::GroundOf(const doc::CellPlace& cell) const {
    return cell.table == 0 ? kNoColour : Text().tables.at(cell.table).rows[cell.row].cells[cell.column].back;
}

void TextMirror::PutText(QTextCursor& cursor, const doc::Paragraph& paragraph) {
    const Colour ground = GroundOf(paragraph.cell);
    std::size_t at = 0;
    for (const doc::Run& run : paragraph.runs) {
        QTextCharFormat look = formats_.OfRun(run);
        // The colour of the window's texts is for the window's ground.
        if (ground != kNoColour && !look.hasProperty(QTextFormat::ForegroundBrush))
            look.setForeground(BlackOrWhite(ToQColor(ground)));
        const TextView text = TextView(paragraph.text).substr(at, run.length);
        if (run.image != 0)
            cursor.insertText(QString(QChar::ObjectReplacementCharacter), look);
        else
            cursor.insertText(ShowsLikenesses(Text().fonts[Text().chars[run.format].font])
                                  ? WithLikenesses(ShownText(text))
                                  : ShownText(text),
                              look);
        at += run.length;
    }
}

void TextMirror::PutBlock(QTextCursor& cursor, std::size_t paragraph) {
    const doc::Paragraph& put = At(paragraph);
    cursor.insertBlock(formats_.OfParagraph(put), formats_.OfChars(put.emptyFormat));
    PutText(cursor, put);
}

void TextMirror::Build() {
    all_ = false;
    stale_ = false;
    // Only a whole new text could have other formats under the same numbers, and it comes here.
    formats_.Clear();
    spare_.clear();
    cells_.clear();
    for (const doc::Paragraph& paragraph : Text().paragraphs)
        cells_.push_back(paragraph.cell);
    auto fresh = EmptyDocument();
    PutAll(*fresh);
    // Without a layout the document doesn't tell of its changes. While it is filled, a layout would make each
    // step take several times as long. On a page of no size nothing is laid out yet.
    fresh->setPageSize(QSizeF(0, 0));
    fresh->documentLayout();
    shown_ = std::move(fresh);
}

std::unique_ptr<QTextDocument> TextMirror::EmptyDocument() {
    auto fresh = std::make_unique<ShownDocument>(Text());
    fresh->setDefaultFont(formats_.OfChars(0).font());
    QTextOption option = fresh->defaultTextOption();
    option.setTabStopDistance(TextPixels(std::max(Text().defaultTab, kTwipsPerPixel)));
    fresh->setDefaultTextOption(option);
    return fresh;
}

void TextMirror::PutAll(QTextDocument& fresh) {
    QTextCursor cursor(&fresh);
    cursor.beginEditBlock();
    // A new document has a block, and so has the place after a table.
    bool open = true;
    for (std::size_t i = 0; i < cells_.size();) {
        if (cells_[i].table != 0) {
            if (open) spare_.push_back(i);
            i = PutTable(cursor, i);
            open = true;
            continue;
        }
        if (open) {
            cursor.setBlockFormat(formats_.OfParagraph(At(i)));
            cursor.setBlockCharFormat(formats_.OfChars(At(i).emptyFormat));
            PutText(cursor, At(i));
        } else {
            PutBlock(cursor, i);
        }
        open = false;
        ++i;
    }
    cursor.endEditBlock();
}

/// Puts all parts of the table and goes to the block after it. The result is the next paragraph.
std::size_t TextMirror::PutTable(QTextCursor& cursor, std::size_t first) {
    const doc::Table& table = Text().tables.at(cells_[first].table);
    std::size_t paragraph = first;
    for (doc::Index row = 0; row < table.rows.size();) {
        const doc::Index end = EndOfPart(table, row);
        if (row > 0) spare_.push_back(paragraph);
        paragraph = PutRows(cursor, paragraph, table, row, end);
        row = end;
    }
    return paragraph;
}

std::size_t TextMirror::PutRows(QTextCursor& cursor, std::size_t first, const doc::Table& table,
                                doc::Index row, doc::Index end) {
    const std::size_t columns = table.rows[row].cells.size();
    QTextTable& shown = *cursor.insertTable(static_cast<int>(end - row), static_cast<int>(columns),
                                            TableLook(table.rows[row]));
    int position = shown.firstPosition();
    for (; row < end; ++row) {
        for (std::size_t column = 0; column < columns; ++column) {
            cursor.setPosition(position);
            first = PutCell(cursor, shown, first, table.rows[row].cells[column]);
            position = cursor.position() + 1;
        }
    }
    cursor.setPosition(position);
    return first;
}

/// Puts the paragraphs of a cell, and stays at its end. The result is the next paragraph.
std::size_t TextMirror::PutCell(QTextCursor& cursor, QTextTable& table, std::size_t first,
                                const doc::CellFormat& format) {
    const doc::Paragraph& begin = At(first);
    if (HasLook(format) || begin.emptyFormat != 0)
        table.cellAt(cursor).setFormat(TableCellLook(format, formats_.OfChars(begin.emptyFormat)));
    if (begin.format != 0) cursor.setBlockFormat(formats_.OfParagraph(begin));
    PutText(cursor, begin);
    std::size_t next = first + 1;
    for (; next < cells_.size() && cells_[next] == begin.cell; ++next)
        PutBlock(cursor, next);
    return next;
}

QTextBlock TextMirror::BlockOf(std::size_t paragraph) const {
    const auto spares = std::ranges::upper_bound(spare_, paragraph) - spare_.begin();
    return shown_->findBlockByNumber(static_cast<int>(paragraph) + static_cast<int>(spares));
}

std::optional<std::size_t> TextMirror::ParagraphOf(const QTextBlock& block) const {
    const std::size_t number = static_cast<std::size_t>(std::max(block.blockNumber(), 0));
    // The spare block of an entry comes after as many other spare blocks as there are entries before it.
    std::size_t before = 0;
    std::size_t end = spare_.size();
    while (before < end) {
        const std::size_t middle = (before + end) / 2;
        if (spare_[middle] + middle < number)
            before = middle + 1;
        else
            end = middle;
    }
    if (before < spare_.size() && spare_[before] + before == number) return std::nullopt;
    return number - before;
}

int TextMirror::ToQt(const doc::Place& place) const {
    return BlockOf(place.paragraph).position() + static_cast<int>(place.offset);
}

doc::Pos TextMirror::FromQt(int position) const {
    QTextBlock block = shown_->findBlock(position);
    // The place of a block without a paragraph is that of the table after it.
    std::size_t offset = static_cast<std::size_t>(position - block.position());
    std::optional<std::size_t> paragraph = ParagraphOf(block);
    if (!paragraph) {
        offset = 0;
        paragraph = ParagraphOf(block.next());
    }
    return store_.PosOf({paragraph.value_or(0), offset});
}

} // namespace korvane
