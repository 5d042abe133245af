#include "support/PlainXlsReader.h"

#include <algorithm>
#include <stdexcept>

namespace korvane {

namespace {

constexpr std::size_t kSector = 512;
constexpr std::uint32_t kEndOfChain = 0xFFFFFFFE;
constexpr std::uint32_t kFatSector = 0xFFFFFFFD;
constexpr std::uint32_t kDifatSector = 0xFFFFFFFC;

constexpr std::uint16_t kEof = 0x0A;
constexpr std::uint16_t kSelection = 0x1D;
constexpr std::uint16_t kContinue = 0x3C;
constexpr std::uint16_t kDefColWidth = 0x55;
constexpr std::uint16_t kColInfo = 0x7D;
constexpr std::uint16_t kBoundSheet = 0x85;
constexpr std::uint16_t kDbCell = 0xD7;
constexpr std::uint16_t kXf = 0xE0;
constexpr std::uint16_t kSst = 0xFC;
constexpr std::uint16_t kLabelSst = 0xFD;
constexpr std::uint16_t kDimensions = 0x200;
constexpr std::uint16_t kBlank = 0x201;
constexpr std::uint16_t kRow = 0x208;
constexpr std::uint16_t kIndex = 0x20B;
constexpr std::uint16_t kBof = 0x809;

void Require(bool holds, const std::string& what) {
    if (!holds) throw std::runtime_error(what);
}

std::uint32_t Number(std::string_view bytes, std::size_t at, std::size_t width) {
    Require(at + width <= bytes.size(), "a number lies past the end");
    std::uint32_t number = 0;
    for (std::size_t i = width; i-- > 0;)
        number = number << 8 | static_cast<unsigned char>(bytes[at + i]);
    return number;
}

std::uint32_t U16At(std::string_view bytes, std::size_t at) {
    return Number(bytes, at, 2);
}

std::uint32_t U32At(std::string_view bytes, std::size_t at) {
    return Number(bytes, at, 4);
}

// ---- The container ------------------------------------------------------------------------------------

std::string_view SectorOf(std::string_view file, std::uint32_t number) {
    const std::size_t at = (std::size_t{number} + 1) * kSector;
    Require(at + kSector <= file.size(), "a sector lies past the end of the file");
    return file.substr(at, kSector);
}

/// The numbers of the sectors that contain the table of sectors.
std::vector<std::uint32_t> FatSectorNumbers(std::string_view file) {
    const std::uint32_t count = U32At(file, 44);
    std::vector<std::uint32_t> numbers;
    for (std::size_t i = 0; i < 109 && numbers.size() < count; ++i)
        numbers.push_back(U32At(file, 76 + 4 * i));
    std::uint32_t next = U32At(file, 68);
    std::uint32_t listSectors = 0;
    for (; next != kEndOfChain; ++listSectors) {
        const std::string_view sector = SectorOf(file, next);
        for (std::size_t i = 0; i < 127 && numbers.size() < count; ++i)
            numbers.push_back(U32At(sector, 4 * i));
        next = U32At(sector, 508);
    }
    Require(listSectors == U32At(file, 72), "wrong count of sectors in the list of table sectors");
    Require(numbers.size() == count, "some table sectors are listed nowhere");
    return numbers;
}

std::vector<std::uint32_t> ReadFat(std::string_view file) {
    std::vector<std::uint32_t> fat;
    const std::vector<std::uint32_t> sectors = FatSectorNumbers(file);
    for (const std::uint32_t number : sectors)
        for (std::size_t i = 0; i < kSector; i += 4)
            fat.push_back(U32At(SectorOf(file, number), i));
    for (const std::uint32_t number : sectors)
        Require(fat.at(number) == kFatSector, "a table sector isn't marked as one");
    Require(static_cast<std::uint32_t>(std::ranges::count(fat, kDifatSector)) == U32At(file, 72),
            "the sectors of the list aren't marked as such");
    return fat;
}

std::string ReadChain(std::string_view file, const std::vector<std::uint32_t>& fat, std::uint32_t first) {
    std::string bytes;
    for (std::uint32_t sector = first; sector != kEndOfChain; sector = fat.at(sector)) {
        Require(bytes.size() <= file.size(), "a chain of sectors goes round in a circle");
        bytes += SectorOf(file, sector);
    }
    return bytes;
}

Text EntryName(std::string_view entry) {
    const std::uint32_t bytes = U16At(entry, 64);
    Text name;
    for (std::size_t i = 0; i + 2 < bytes; i += 2)
        name.push_back(static_cast<char16_t>(U16At(entry, i)));
    return name;
}

// ---- Texts --------------------------------------------------------------------------------------------

/// Reads texts that may go on from one record to the next.
class TextSource {
public:
    explicit TextSource(std::vector<std::string_view> parts) : parts_(std::move(parts)) {}

    std::uint32_t Take(std::size_t width) {
        const std::uint32_t number = Number(parts_.at(part_), at_, width);
        at_ += width;
        return number;
    }
    Text TakeText() {
        if (at_ == parts_.at(part_).size()) NextPart();
        const std::uint32_t length = Take(2);
        std::uint32_t width = TakeWidth();
        Require(at_ < parts_[part_].size(), "a record ends between a text's head and its characters");
        Text text;
        while (text.size() < length) {
            if (at_ == parts_[part_].size()) {
                NextPart();
                width = TakeWidth();
            }
            text.push_back(static_cast<char16_t>(Take(width)));
        }
        return text;
    }
    bool AtEnd() const { return part_ + 1 == parts_.size() && at_ == parts_[part_].size(); }

private:
    void NextPart() {
        ++part_;
        at_ = 0;
        Require(part_ < parts_.size(), "the texts break off");
    }
    std::uint32_t TakeWidth() {
        const std::uint32_t flags = Take(1);
        Require(flags <= 1, "a text has unknown flags");
        return flags + 1;
    }

    std::vector<std::string_view> parts_;
    std::size_t part_ = 0;
    std::size_t at_ = 0;
};

void ReadTexts(PlainXls& book) {
    std::vector<std::string_view> parts;
    for (const PlainRecord& record : book.bookRecords)
        if (record.type == kSst || record.type == kContinue) parts.push_back(record.data);
    TextSource source(parts);
    book.textUses = source.Take(4);
    const std::uint32_t count = source.Take(4);
    while (book.sharedTexts.size() < count)
        book.sharedTexts.push_back(source.TakeText());
    Require(source.AtEnd(), "bytes behind the last text");
}

// ---- The sheet ----------------------------------------------------------------------------------------

std::vector<PlainFormat> ReadFormats(const PlainXls& book) {
    std::vector<PlainFormat> formats;
    for (const PlainRecord& record : book.bookRecords) {
        if (record.type != kXf) continue;
        Require(record.data.size() == 20, "a format of the wrong size");
        const bool wraps = (U16At(record.data, 6) & 0x08) != 0;
        const bool solid = U32At(record.data, 14) >> 26 == 1;
        formats.push_back({wraps, solid ? static_cast<int>(U16At(record.data, 18) & 0x7F) : 0});
    }
    Require(formats.size() >= 16, "too few formats");
    return formats;
}

void ReadCell(PlainXls& book, const std::vector<PlainFormat>& formats, const PlainRecord& record) {
    const PlainXls::Place place(U16At(record.data, 0), U16At(record.data, 2));
    Require(place.first < book.size.first && place.second < book.size.second,
            "a cell lies outside of the sheet's size");
    const bool isNew = book.formats.emplace(place, formats.at(U16At(record.data, 4))).second;
    Require(isNew, "a cell stands twice");
    if (record.type == kLabelSst) book.texts[place] = book.sharedTexts.at(U32At(record.data, 6));
}

void ReadSheetRecord(PlainXls& book, const std::vector<PlainFormat>& formats, const PlainRecord& record) {
    const std::string& data = record.data;
    switch (record.type) {
    case kDimensions:
        book.size = {static_cast<int>(U32At(data, 4)), static_cast<int>(U16At(data, 10))};
        break;
    case kColInfo:
        for (std::uint32_t col = U16At(data, 0); col <= U16At(data, 2); ++col)
            book.columnWidths[static_cast<int>(col)] = static_cast<int>(U16At(data, 4));
        break;
    case kRow:
        book.rowHeights[static_cast<int>(U16At(data, 0))] = static_cast<int>(U16At(data, 6));
        break;
    case kLabelSst:
    case kBlank:
        ReadCell(book, formats, record);
        break;
    case kSelection:
        book.activeCell = {U16At(data, 1), U16At(data, 3)};
        break;
    default:
        break;
    }
}

const PlainRecord& RecordAt(const std::vector<PlainRecord>& records, std::size_t at) {
    const auto found = std::ranges::lower_bound(records, at, {}, &PlainRecord::at);
    Require(found != records.end() && found->at == at, "no record where there should be one");
    return *found;
}

const PlainRecord& RecordAt(const PlainXls& book, std::size_t at, std::uint16_t type) {
    const PlainRecord& record = RecordAt(book.sheetRecords, at);
    Require(record.type == type, "another record than one of type " + std::to_string(type));
    return record;
}

/// Checks that the end of a block points to the block's first row, and from there to the first cell of each
/// row that has cells.
void CheckBlock(const PlainXls& book, const PlainRecord& end, std::size_t firstRow) {
    const std::size_t rowAt = end.at - U32At(end.data, 0);
    Require(U16At(RecordAt(book, rowAt, kRow).data, 0) == firstRow, "a block begins with the wrong row");
    std::size_t at = rowAt + 20;
    for (std::size_t i = 4; i < end.data.size(); i += 2) {
        at += U16At(end.data, i);
        const PlainRecord& row = RecordAt(book, rowAt + (i - 4) / 2 * 20, kRow);
        if (U16At(row.data, 4) == 0) continue;
        const PlainRecord& cell = RecordAt(book.sheetRecords, at);
        Require(U16At(cell.data, 0) == U16At(row.data, 0), "the way to a row leads to another one");
        Require(U16At(cell.data, 2) == U16At(row.data, 2), "a row doesn't begin where it says");
    }
}

void CheckIndex(const PlainXls& book) {
    const PlainRecord& index = book.sheetRecords.at(1);
    Require(index.type == kIndex, "no index behind the beginning of the sheet");
    Require(U32At(index.data, 8) == static_cast<std::uint32_t>(book.size.first), "a wrong count of rows");
    RecordAt(book, U32At(index.data, 12), kDefColWidth);
    std::size_t row = 0;
    for (std::size_t i = 16; i < index.data.size(); i += 4, row += 32)
        CheckBlock(book, RecordAt(book, U32At(index.data, i), kDbCell), row);
    Require(row == static_cast<std::size_t>(book.size.first + 31) / 32 * 32, "a block isn't in the index");
}

/// The records of the part of the stream that begins at `at`, up to the end of that part.
std::vector<PlainRecord> PartAt(const std::vector<PlainRecord>& records, std::size_t at) {
    const auto first = std::ranges::find(records, at, &PlainRecord::at);
    Require(first != records.end() && first->type == kBof, "no part of the stream begins here");
    const auto last = std::find_if(first, records.end(), [](auto& each) { return each.type == kEof; });
    Require(last != records.end(), "a part of the stream has no end");
    return {first, last + 1};
}

} // namespace

std::string ReadOleStream(std::string_view file, TextView name) {
    Require(file.starts_with("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"), "no compound file");
    Require(file.size() % kSector == 0, "the last sector isn't whole");
    const std::vector<std::uint32_t> fat = ReadFat(file);
    const std::string directory = ReadChain(file, fat, U32At(file, 48));
    for (std::size_t at = 0; at < directory.size(); at += 128) {
        const std::string_view entry = std::string_view(directory).substr(at, 128);
        if (EntryName(entry) != name) continue;
        const std::uint32_t size = U32At(entry, 120);
        Require(size >= 4096, "a small stream among the large ones");
        std::string bytes = ReadChain(file, fat, U32At(entry, 116));
        Require(bytes.size() - size < kSector, "a chain of another length than the stream");
        bytes.resize(size);
        return bytes;
    }
    throw std::runtime_error("no stream of this name");
}

std::vector<PlainRecord> ReadRecords(std::string_view stream) {
    std::vector<PlainRecord> records;
    std::size_t at = 0;
    while (at + 4 <= stream.size()) {
        const std::size_t size = U16At(stream, at + 2);
        Require(size <= 8224, "a record is too long");
        Require(at + 4 + size <= stream.size(), "a record lies past the end of the stream");
        records.push_back(
            {at, static_cast<std::uint16_t>(U16At(stream, at)), std::string(stream.substr(at + 4, size))});
        at += 4 + size;
    }
    return records;
}

PlainXls ReadXls(std::string_view file) {
    const std::vector<PlainRecord> records = ReadRecords(ReadOleStream(file, u"Workbook"));
    PlainXls book;
    book.bookRecords = PartAt(records, 0);
    const auto sheet = std::ranges::find(book.bookRecords, kBoundSheet, &PlainRecord::type);
    Require(sheet != book.bookRecords.end(), "no sheet");
    book.sheetName = sheet->data.substr(8);
    book.sheetRecords = PartAt(records, U32At(sheet->data, 0));
    ReadTexts(book);
    const std::vector<PlainFormat> formats = ReadFormats(book);
    for (const PlainRecord& record : book.sheetRecords)
        ReadSheetRecord(book, formats, record);
    CheckIndex(book);
    return book;
}

} // namespace korvane
