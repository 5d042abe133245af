#pragma once

#include "common/number/Units.h"
#include "grid/Grid.h"
#include "platform/MessageBoxes.h"
#include "table/model/TbxLines.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

namespace korvane {

class TableHost;
class TableModel;

/// Fills a table from the bytes of a `.tbx` file, in one pass over its lines. It takes any bytes: each line
/// does what its first characters say, whatever comes before and after it.
class TbxReader {
public:
    enum class Outcome : std::uint8_t { Done, TooManyColumns };

    /// The rows of a file of this size are read in two threads. A smaller one is read before a thread has
    /// begun.
    static constexpr std::size_t kLarge = std::size_t{8} << 20;

    /// The grid has to be empty, and keeps the bytes. `sortOnHeaderClick` becomes its switch of this name.
    TbxReader(TableModel& table, TableHost& host, bool sortOnHeaderClick, const SharedBytes& bytes,
              std::size_t large = kLarge);
    TbxReader(const TbxReader&) = delete;
    TbxReader& operator=(const TbxReader&) = delete;
    ~TbxReader();

    /// Stops at the name of the first column that a table can't hold any more. What was read before stays.
    Outcome Read();

private:
    class SecondHalf;

    /// A reader of the rows from `from` on, which fills `rows`. The first half has been read up to its first
    /// row.
    TbxReader(const TbxReader& firstHalf, Grid& rows, std::size_t from);

    bool ReadLines();
    void HideGrid();
    void BeginSecondHalf();
    bool IsLastLine(std::size_t begin) const;
    void GiveUpSecondHalf();
    bool TakeLine();
    void TakeHeaderLine(std::string_view value);
    bool TakeColumnLine(std::string_view value);
    bool TakePlainCells();
    void TakeDataLine(std::string_view line);
    void SetUpColumns();
    void SetUpColumn(Col col);
    void StartRow();
    void TakeTick(std::string_view line);
    void TakeColour(std::string_view value);
    void TakeOther();
    void CollectCell();
    bool CellEndsHere() const;
    void DressRow();

    TableModel& table_;
    TableHost& host_;
    Grid& grid_;
    const bool sortOnHeaderClick_;
    const std::string_view bytes_;
    TbxLines lines_;

    /// The current line is to be read again.
    bool pushedBack_ = false;
    int headerCount_ = 1;
    Col columnCount_;
    bool expectWidth_ = false;
    /// The columns are set up, and no column line has come since.
    bool columnsStand_ = false;
    bool gridHidden_ = false;
    Row row_;
    Col col_;
    /// The row has its height and its check box.
    bool rowDressed_ = false;
    bool colourLineSeen_ = false;
    bool inCell_ = false;

    /// Lines from here on belong to the second half.
    std::size_t end_;
    /// The half of the file at which one that is large enough is divided; its end for another one.
    std::size_t half_;
    /// Whether this reader reads a second half.
    bool isSecond_ = false;
    std::unique_ptr<SecondHalf> second_;
};

/// What the user is shown when a load ended with `TooManyColumns`.
Message TooManyColumnsMessage();

} // namespace korvane
