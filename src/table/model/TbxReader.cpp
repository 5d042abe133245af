#include "table/model/TbxReader.h"

#include "common/number/Number.h"
#include "common/text/CodePage.h"
#include "grid/Grid.h"
#include "grid/GridTail.h"
#include "table/model/TableHost.h"
#include "table/model/TableModel.h"
#include "table/model/TbxFormat.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

namespace korvane {

namespace {

constexpr int kHeaderLines = 4;
constexpr Colour kDataColour{0xC00000};
/// This number in a colour line leaves the colour alone.
constexpr Colour kKeepColour{-999};

/// What the first byte of a line does to the cell before it.
enum class Mark : std::uint8_t { None, EndsNothing, EndsCell };

constexpr auto kMarks = [] {
    std::array<Mark, 256> marks{};
    for (const char mark : {tbx::kAt, tbx::kTick, tbx::kComment, tbx::kColour})
        marks[static_cast<unsigned char>(mark)] = Mark::EndsCell;
    marks[static_cast<unsigned char>(tbx::kValue)] = Mark::EndsNothing;
    return marks;
}();

Mark MarkOf(char first) {
    return kMarks[static_cast<unsigned char>(first)];
}

struct FlagLetter {
    std::size_t at;
    char letter;
    CellFlag flag;
};
constexpr FlagLetter kFlagLetters[] = {
    {2, 'I', CellFlag::Italic}, {3, 'B', CellFlag::Bold}, {4, 'X', CellFlag::Strikethrough}};

/// Sets the field to the numeric value; one that doesn't fit leaves it unset.
template <class Int>
void StoreNumber(double number, std::optional<Int>& field) {
    Int stored{};
    if (StoreRounded(number, stored)) field = stored;
}

/// The text of a cell with CR LF in place of every lone CR.
std::string WithFullLineEnds(std::string_view slice) {
    std::string text;
    text.reserve(slice.size() + static_cast<std::size_t>(std::ranges::count(slice, '\r')));
    for (std::size_t at = 0; at < slice.size(); ++at) {
        text += slice[at];
        const bool lone = slice[at] == '\r' && (at + 1 == slice.size() || slice[at + 1] != '\n');
        if (lone) text += '\n';
    }
    return text;
}

} // namespace

/// The second half of the rows of a large file, which is read in a thread of its own.
class TbxReader::SecondHalf {
public:
    SecondHalf(const TbxReader& firstHalf, std::size_t from)
        : rows_(firstHalf.grid_.BeginTail()),
          reader_(firstHalf, rows_->Rows(), from),
          thread_([this] { Read(); }) {}
    SecondHalf(const SecondHalf&) = delete;
    SecondHalf& operator=(const SecondHalf&) = delete;
    ~SecondHalf() { Wait(); }

    /// Puts the rows after those of the first half. False when there is more in this half than rows, or the
    /// table can't hold them.
    bool Append() {
        Wait();
        return isRead_ && rows_->Append();
    }

private:
    void Read() {
        try {
            isRead_ = reader_.ReadLines();
        } catch (...) {
            // The first half goes on with these lines, and meets the same.
        }
    }
    void Wait() {
        if (thread_.joinable()) thread_.join();
    }

    std::unique_ptr<GridTail> rows_;
    TbxReader reader_;
    bool isRead_ = false;
    std::thread thread_;
};

TbxReader::TbxReader(TableModel& table, TableHost& host, bool sortOnHeaderClick, const SharedBytes& bytes,
                     std::size_t large)
    : table_(table),
      host_(host),
      grid_(table.GridStore()),
      sortOnHeaderClick_(sortOnHeaderClick),
      bytes_(bytes.View()),
      lines_(bytes_),
      end_(bytes_.size()),
      half_(bytes_.size() < large ? bytes_.size() : bytes_.size() / 2) {
    grid_.AdoptBytes(bytes);
}

TbxReader::TbxReader(const TbxReader& firstHalf, Grid& rows, std::size_t from)
    : table_(firstHalf.table_),
      host_(firstHalf.host_),
      grid_(rows),
      sortOnHeaderClick_(firstHalf.sortOnHeaderClick_),
      bytes_(firstHalf.bytes_),
      lines_(bytes_, from),
      headerCount_(firstHalf.headerCount_),
      columnCount_(firstHalf.columnCount_),
      columnsStand_(true),
      gridHidden_(true),
      end_(bytes_.size()),
      half_(bytes_.size()),
      isSecond_(true) {}

TbxReader::~TbxReader() = default;

TbxReader::Outcome TbxReader::Read() {
    if (!ReadLines()) return Outcome::TooManyColumns;
    if (second_ == nullptr) return Outcome::Done;
    if (second_->Append()) {
        HideGrid();
        return Outcome::Done;
    }
    GiveUpSecondHalf();
    return ReadLines() ? Outcome::Done : Outcome::TooManyColumns;
}

/// Every data line after the one that begins the first row calls this.
void TbxReader::HideGrid() {
    if (!std::exchange(gridHidden_, true)) grid_.SetGridVisible(false);
}

/// False when a line asks for what the table can't hold, or what a second half can't do.
bool TbxReader::ReadLines() {
    while (!lines_.AtEnd()) {
        if (!std::exchange(pushedBack_, false)) lines_.Next();
        if (TakePlainCells()) continue;
        pushedBack_ = lines_.Begin() >= end_;
        if (pushedBack_) return true;
        if (!TakeLine()) return false;
    }
    return true;
}

/// The first row begins. In the middle of the file a line that begins a row is looked for: it begins with the
/// same state whatever comes before it, so that what follows can be read apart.
void TbxReader::BeginSecondHalf() {
    static constexpr std::string_view kLineEndAndRow = "\r\n@row";
    static_assert(kLineEndAndRow.ends_with(tbx::kRow));
    const std::size_t found = bytes_.find(kLineEndAndRow, half_);
    if (found == std::string_view::npos) return;
    const std::size_t from = found + kLineEndAndRow.size() - tbx::kRow.size();
    if (from <= lines_.Begin() || IsLastLine(from)) return;
    try {
        second_ = std::make_unique<SecondHalf>(*this, from);
        end_ = from;
    } catch (const std::system_error&) {
        // There is no room for another thread.
    }
}

/// What the last line of a file does depends on the line before it.
bool TbxReader::IsLastLine(std::size_t begin) const {
    TbxLines lines(bytes_, begin);
    lines.Next();
    return lines.AtEnd();
}

/// This reader goes on with its lines.
void TbxReader::GiveUpSecondHalf() {
    second_.reset();
    end_ = bytes_.size();
    half_ = bytes_.size();
}

inline bool TbxReader::CellEndsHere() const {
    return lines_.AtEnd() || MarkOf(lines_.First()) == Mark::EndsCell;
}

/// Nearly all of a file is cells of a row that has been begun, each a mark and a text. These are taken
/// without the questions that other lines are asked. True when nothing is left to be done with the current
/// line.
bool TbxReader::TakePlainCells() {
    while (rowDressed_ && row_ != Row{0} && !lines_.AtEnd() && tbx::Begins(lines_.Line(), tbx::kCol)) {
        ++col_;
        inCell_ = true;
        lines_.Next();
        if (col_ > columnCount_ || MarkOf(lines_.First()) != Mark::None) return false;
        CollectCell();
        inCell_ = false;
        if (lines_.AtEnd()) return true;
        pushedBack_ = false;
    }
    return false;
}

/// False when the table can't hold what the line asks for.
bool TbxReader::TakeLine() {
    const std::string_view line = lines_.Line();
    if (line.starts_with(tbx::kComment)) return true;
    // The header lines aren't known by their mark: the first four are the header, whatever they begin with.
    if (headerCount_ <= kHeaderLines)
        TakeHeaderLine(line.substr(std::min<std::size_t>(line.size(), 1)));
    else if (line.starts_with(tbx::kValue))
        return TakeColumnLine(line.substr(1));
    else
        TakeDataLine(line);
    return true;
}

void TbxReader::TakeHeaderLine(std::string_view value) {
    switch (headerCount_++) {
    case 1:
        if (Colour colour; ReadNumber(value, colour.value)) table_.TableBackColour = colour;
        break;
    case 2:
        table_.TableFontName = grid_.Page().ToText(value);
        break;
    case 3:
        StoreNumber(Val(value), table_.TableFontSize);
        break;
    default:
        StoreNumber(Val(value) / tbx::kHeightScale, table_.SetRowHeight);
        host_.ShowRowHeight(table_.SetRowHeight.value_or(std::int16_t{0}));
    }
}

/// Column lines hold a name and a width in turn. After a column line among the data, rows are counted from 1
/// again.
bool TbxReader::TakeColumnLine(std::string_view value) {
    if (isSecond_) return false;
    // The second half was begun without this column.
    if (second_ != nullptr) GiveUpSecondHalf();
    if (!expectWidth_) {
        ++columnCount_;
        table_.ColumnNames.Set(columnCount_, grid_.Page().ToText(value));
    } else if (const double width = Val(value) / tbx::kWidthScale; std::isfinite(width)) {
        table_.ColumnWidths.Set(columnCount_, NumberText(width));
    }
    expectWidth_ = !expectWidth_;
    if (columnCount_ > MaxColumns) return false;
    row_ = Row{0};
    columnsStand_ = false;
    return true;
}

void TbxReader::TakeDataLine(std::string_view line) {
    if (row_ == Row{0})
        SetUpColumns();
    else
        HideGrid();
    if (tbx::Begins(line, tbx::kCol)) {
        ++col_;
        inCell_ = true;
    } else if (tbx::Begins(line, tbx::kRow))
        StartRow();
    else if (line.starts_with(tbx::kTick))
        TakeTick(line);
    else if (line.starts_with(tbx::kColour))
        TakeColour(line.substr(1));
    else
        TakeOther();
}

/// Every line before the first row calls this. It does nothing unless a column line has come since the last
/// call.
void TbxReader::SetUpColumns() {
    if (std::exchange(columnsStand_, true)) return;
    for (Col col{1}; col <= columnCount_; ++col)
        SetUpColumn(col);
    grid_.SetSortOnHeaderClick(sortOnHeaderClick_);
    grid_.SetGridForeColor(kDataColour);
    grid_.SetGridBackColor(table_.TableBackColour.value_or(Colour{0}));
    grid_.SetGridFontName(table_.TableFontName ? TextView(*table_.TableFontName) : TextView());
    grid_.SetGridFontSize(table_.TableFontSize.value_or(std::int16_t{0}));
}

void TbxReader::SetUpColumn(Col col) {
    grid_.AddCol(NumberText(col.Number()) + u"no", table_.ColumnNames[col]);
    std::int32_t width = 0;
    if (ReadNumber(TextView(table_.ColumnWidths[col]), width)) grid_.SetColWidth(col, width);
}

void TbxReader::StartRow() {
    colourLineSeen_ = false;
    col_ = Col{0};
    // What comes after the last row that a table can have belongs to no row.
    row_ = std::min(row_ + 1, kMaxRows + 1);
    if (row_ <= kMaxRows) grid_.SetRowCount(row_);
    if (row_ == Row{1} && half_ < bytes_.size()) BeginSecondHalf();
    rowDressed_ = false;
    inCell_ = false;
}

void TbxReader::TakeTick(std::string_view line) {
    const auto letterAt = [line](std::size_t at) { return at < line.size() ? line[at] : '\0'; };
    if (letterAt(1) == '1') grid_.SetCellCheck(row_, 1);
    if (letterAt(1) == '0') grid_.SetCellCheck(row_, 0);
    for (const auto& [at, letter, flag] : kFlagLetters)
        if (letterAt(at) == letter) grid_.SetRowFontFlag(row_, flag, true);
    inCell_ = false;
}

/// The first colour line of a row is the background; each further one is the text colour.
void TbxReader::TakeColour(std::string_view value) {
    const bool isBack = !std::exchange(colourLineSeen_, true);
    inCell_ = false;
    Colour colour;
    if (!ReadNumber(value, colour.value) || colour == kKeepColour) return;
    if (isBack) {
        grid_.SetRowBackColor(row_, colour);
        return;
    }
    grid_.SetRowForeColor(row_, colour);
    grid_.SetRowColourMode(row_, 1);
}

void TbxReader::TakeOther() {
    if (!inCell_ || col_ > columnCount_) return;
    CollectCell();
    DressRow();
    inCell_ = false;
}

/// A cell goes on until a line begins with a mark, or until the last line of the file, which isn't part of it
/// (kept for compatibility: tbx-last-line-dropped). Its text is a slice of the file unless it contains a lone
/// CR.
void TbxReader::CollectCell() {
    const std::size_t begin = lines_.Begin();
    std::size_t end = begin;
    bool loneCr = false;
    for (bool lastLineLone = false; !CellEndsHere(); lines_.Next()) {
        loneCr = loneCr || lastLineLone;
        lastLineLone = lines_.EndsInLoneCr();
        end = lines_.End();
    }
    pushedBack_ = true;
    if (!loneCr)
        grid_.SetCellSlice(row_, col_, begin, end - begin);
    else {
        grid_.SetCellBytes(row_, col_, WithFullLineEnds(bytes_.substr(begin, end - begin)));
    }
}

/// Every cell calls this, but only the first call in a row has an effect.
void TbxReader::DressRow() {
    if (std::exchange(rowDressed_, true)) return;
    grid_.SetRowHeight(row_, table_.SetRowHeight.value_or(std::int16_t{0}));
    grid_.SetCellCheckShown(row_, true);
}

Message TooManyColumnsMessage() {
    // Kept for compatibility: columns-message-two-blanks.
    return {u"Numbers of columns in this table exceeds the maximum of  " + NumberText(MaxColumns.Number()),
            MessageIcon::Stop};
}

} // namespace korvane
