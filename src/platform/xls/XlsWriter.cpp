#include "platform/xls/XlsWriter.h"

#include "platform/ChunkedOutput.h"
#include "platform/xls/BiffRecords.h"
#include "platform/xls/OleContainer.h"
#include "platform/xls/RowBlocks.h"

#include <algorithm>
#include <span>

namespace korvane::xls {

namespace {

using namespace std::string_view_literals;

/// A record that is the same in every file.
struct FixedRecord {
    RecordType type;
    std::string_view data;
};

constexpr auto kOff = "\0\0"sv;
constexpr auto kOn = "\x01\0"sv;
/// Arial, 10 points, in the colour of window texts.
constexpr auto kFont = "\xC8\0\0\0\xFF\x7F\x90\x01\0\0\0\0\0\0\x05\0Arial"sv;

constexpr FixedRecord kBookStart[]{
    {RecordType::Bof, "\0\x06\x05\0\xBB\x0D\xCC\x07\0\0\0\0\x06\0\0\0"sv},
    {RecordType::InterfaceHdr, "\xB0\x04"sv},
    {RecordType::Mms, kOff},
    {RecordType::InterfaceEnd, ""sv},
    // The name of the program that wrote the file, filled up with blanks.
    {RecordType::WriteAccess, "\x07\0\0Korvane"
                              "                                                  "
                              "                                                    "sv},
    {RecordType::CodePage, "\xB0\x04"sv},
    {RecordType::Dsf, kOff},
    {RecordType::TabId, kOn},
    {RecordType::BuiltInFnGroupCount, "\x0E\0"sv},
    {RecordType::WinProtect, kOff},
    {RecordType::Protect, kOff},
    {RecordType::Password, kOff},
    {RecordType::Prot4Rev, kOff},
    {RecordType::Prot4RevPass, kOff},
    // Place and size in twips, scroll bars and tabs, one sheet, of which the first is shown and selected.
    {RecordType::Window1, "\x68\x01\x0E\x01\x5C\x3A\xBE\x23\x38\0\0\0\0\0\x01\0\x58\x02"sv},
    {RecordType::Backup, kOff},
    {RecordType::HideObj, kOff},
    {RecordType::Date1904, kOff},
    {RecordType::CalcPrecision, kOn},
    {RecordType::RefreshAll, kOff},
    {RecordType::BookBool, kOff},
    // The first four of a file, which readers expect.
    {RecordType::Font, kFont},
    {RecordType::Font, kFont},
    {RecordType::Font, kFont},
    {RecordType::Font, kFont},
};

constexpr FixedRecord kBookEnd[]{
    // The first format is the built-in style "Normal".
    {RecordType::Style, "\0\x80\0\xFF"sv},
};

constexpr FixedRecord kSheetStart{RecordType::Bof, "\0\x06\x10\0\xBB\x0D\xCC\x07\0\0\0\0\x06\0\0\0"sv};

constexpr FixedRecord kSheetSettings[]{
    {RecordType::CalcMode, kOn},
    {RecordType::CalcCount, "\x64\0"sv},
    {RecordType::CalcRefMode, kOn},
    {RecordType::CalcIter, kOff},
    {RecordType::CalcDelta, "\xFC\xA9\xF1\xD2\x4D\x62\x50\x3F"sv}, // 0.001
    {RecordType::CalcSaveRecalc, kOn},
    {RecordType::PrintRowCol, kOff},
    {RecordType::PrintGrid, kOff},
    {RecordType::GridSet, kOn},
    {RecordType::Guts, "\0\0\0\0\0\0\0\0"sv},
    {RecordType::DefaultRowHeight, "\0\0\xFF\0"sv},
    {RecordType::WsBool, "\xC1\x04"sv},
    {RecordType::Header, ""sv},
    {RecordType::Footer, ""sv},
    {RecordType::HCenter, kOff},
    {RecordType::VCenter, kOff},
    // The printer's own paper, at full size, with margins of half an inch for header and footer.
    {RecordType::Setup, "\0\0\x64\0\x01\0\x01\0\x01\0\x04\0\0\0\0\0"
                        "\0\0\0\0\0\0\xE0\x3F\0\0\0\0\0\0\xE0\x3F\x01\0"sv},
};

constexpr FixedRecord kSheetWindow[]{
    // Grid lines, headings, zeros; the only sheet is selected and shown.
    {RecordType::Window2, "\xB6\x06\0\0\0\0\x40\0\0\0\0\0\0\0\0\0\0\0"sv},
    // The first cell of the only pane.
    {RecordType::Selection, "\x03\0\0\0\0\0\0\x01\0\0\0\0\0\0\0"sv},
};
constexpr FixedRecord kEnd{RecordType::Eof, ""sv};

constexpr std::string_view kSheetName = "Sheet1";
/// {00020820-0000-0000-C000-000000000046}
constexpr auto kWorkbookClass = "\x20\x08\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46"sv;

void Append(std::string& bytes, const FixedRecord& record) {
    AppendRecord(bytes, record.type, record.data);
}

void Append(std::string& bytes, std::span<const FixedRecord> records) {
    for (const FixedRecord& record : records)
        Append(bytes, record);
}

/// Where the sheet begins, and what it is called.
void AppendSheetEntry(std::string& bytes, std::size_t sheetAt) {
    std::string data;
    AppendLittle(data, static_cast<U32>(sheetAt), U16{0}, static_cast<U8>(kSheetName.size()), U8{0});
    AppendRecord(bytes, RecordType::BoundSheet, data.append(kSheetName));
}

/// The records before the texts.
std::string BookHead(const Workbook& book, std::size_t sheetAt) {
    std::string bytes;
    Append(bytes, kBookStart);
    book.Formats().AppendRecords(bytes);
    Append(bytes, kBookEnd);
    AppendSheetEntry(bytes, sheetAt);
    AppendRecord(bytes, RecordType::Country, U16{1}, U16{1});
    return bytes;
}

/// A column shows its characters and 5 pixels around them. The file counts in 256ths of a character, which is
/// 7 pixels wide in the standard font.
U16 WidthInFile(U8 characters) {
    constexpr unsigned kCharacter = 7;
    constexpr unsigned kAround = 5;
    return static_cast<U16>((characters * kCharacter + kAround) * 256u / kCharacter);
}

std::string ColumnRecords(const Workbook& book) {
    constexpr U16 kUsualWidth = 8;
    constexpr U16 kSetByUser = 2;
    std::string bytes;
    AppendRecord(bytes, RecordType::DefColWidth, kUsualWidth);
    for (const auto& [col, characters] : book.ColumnWidths())
        AppendRecord(bytes, RecordType::ColInfo, col, col, WidthInFile(characters), CellFormats::kFirst,
                     kSetByUser, U16{0});
    return bytes;
}

std::string DimensionsRecord(const Workbook& book) {
    U16 pastLastCol = 0;
    for (const SheetRow& row : book.Rows())
        if (!row.cells.empty())
            pastLastCol = std::max(pastLastCol, static_cast<U16>(row.cells.back().col + 1));
    std::string bytes;
    AppendRecord(bytes, RecordType::Dimensions, U32{0}, static_cast<U32>(book.Rows().size()), U16{0},
                 pastLastCol, U16{0});
    return bytes;
}

/// Tells the places of the columns and of the ends of the row blocks in the stream.
std::string IndexRecord(std::size_t rows, std::size_t columnsAt, std::size_t cellsAt,
                        std::span<const U32> blockEnds) {
    std::string data;
    AppendLittle(data, U32{0}, U32{0}, static_cast<U32>(rows), static_cast<U32>(columnsAt));
    for (const U32 end : blockEnds)
        AppendLittle(data, static_cast<U32>(cellsAt + end));
    std::string bytes;
    AppendRecord(bytes, RecordType::Index, data);
    return bytes;
}

/// The records before the cells.
std::string SheetHead(const Workbook& book, std::size_t sheetAt, std::span<const U32> blockEnds) {
    std::string start;
    Append(start, kSheetStart);
    std::string settings;
    Append(settings, kSheetSettings);
    const std::string columns = ColumnRecords(book);
    const std::string dimensions = DimensionsRecord(book);
    const std::size_t indexSize = IndexRecord(0, 0, 0, blockEnds).size();
    const std::size_t columnsAt = sheetAt + start.size() + indexSize + settings.size();
    const std::size_t cellsAt = columnsAt + columns.size() + dimensions.size();
    return start + IndexRecord(book.Rows().size(), columnsAt, cellsAt, blockEnds) + settings + columns +
           dimensions;
}

} // namespace

bool WriteXls(const Workbook& book, FileWriter& file) {
    std::string bookTail;
    Append(bookTail, kEnd);
    const std::size_t textsSize = book.Strings().RecordsSize();
    const std::size_t sheetAt = BookHead(book, 0).size() + textsSize + bookTail.size();
    const std::string bookHead = BookHead(book, sheetAt);
    const RowBlocks blocks = MakeRowBlocks(book);
    const std::string sheetHead = SheetHead(book, sheetAt, blocks.ends);
    std::string sheetTail;
    Append(sheetTail, kSheetWindow);
    Append(sheetTail, kEnd);
    const std::size_t size = sheetAt + sheetHead.size() + blocks.bytes.size() + sheetTail.size();
    if (size > OleContainer::kMaxStream) return false;

    const OleContainer container(kWorkbookClass, u"Workbook", size);
    ChunkedOutput output(file);
    output.Put(container.Front());
    output.Put(bookHead);
    book.Strings().Write(output);
    output.Put(bookTail);
    output.Put(sheetHead);
    output.Put(blocks.bytes);
    output.Put(sheetTail);
    output.Put(container.Back());
    return output.Flush();
}

} // namespace korvane::xls
