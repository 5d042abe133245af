#include "tbx/FileCheck.h"

#include "table/model/TbxFormat.h"
#include "table/model/TbxLines.h"
#include "tbx/SavedValues.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

constexpr int kHeaderValues = 4;
constexpr std::array kComments{tbx::kCommentLine, tbx::kHeaderTitle, tbx::kColumnsTitle, tbx::kDataTitle};

bool IsMarkerByte(char first) {
    return first == tbx::kAt || first == tbx::kTick || first == tbx::kComment || first == tbx::kColour;
}

bool StartsWithMarker(std::string_view text) {
    return !text.empty() && IsMarkerByte(text.front());
}

/// Whether the bytes are the three lines of the end of a file.
bool IsTrailer(std::string_view bytes) {
    TbxLines lines(bytes);
    const auto next = [&lines] {
        if (lines.AtEnd()) return std::string_view();
        lines.Next();
        return lines.Line();
    };
    return next() == tbx::kCommentLine && next().starts_with(tbx::kEndTitle) && next() == tbx::kCommentLine &&
           lines.AtEnd();
}

/// Goes over the lines of one file in the same steps as the reader, and notes where they differ from the
/// writer's form.
class FileCheck {
public:
    FileCheck(std::string_view bytes, const CodePage& page, FindingStream& findings)
        : bytes_(bytes), page_(page), lines_(bytes), findings_(findings) {}

    void Check() {
        const bool hasCr = bytes_.find('\r') != bytes_.npos;
        if (!hasCr && bytes_.find('\n') != bytes_.npos) {
            AddForFile("the lines end in LF alone: all of the file is read as one line");
            return;
        }
        CheckEncoding();
        while (!stopped_ && !trailerReached_ && !lines_.AtEnd()) {
            lines_.Next();
            line_ = lines_.Line();
            ++lineNumber_;
            CheckLine();
        }
        if (!stopped_) CheckEnd();
    }

private:
    /// Which of the lines between a row's start and its cells came last.
    enum class RowPart { Elsewhere, Start, State, BackColour, TextColour };

    void CheckEncoding() {
        const bool ascii =
            std::all_of(bytes_.begin(), bytes_.end(), [](char byte) { return (byte & 0x80) == 0; });
        if (!ascii && IsUtf8(bytes_))
            AddForFile("the file is in UTF-8, but is read in code page " + pageNumber_);
    }

    void CheckLine() {
        CheckBytes();
        cutCell_ = collecting_ && StartsWithMarker(line_);
        if (collecting_ && !cutCell_) {
            TakeCellLine();
            return;
        }
        if (cutCell_) collecting_ = inCell_ = false;
        if (cutCell_ && lines_.AtEnd())
            Add("is the last line of the file, right after a cell, and is dropped");
        else if (line_.starts_with(tbx::kComment))
            TakeComment();
        else if (headerCount_ < kHeaderValues)
            TakeHeader();
        else if (line_.starts_with(tbx::kValue))
            TakeColumnLine();
        else
            TakeDataLine();
    }

    void CheckBytes() {
        if (lines_.EndsInLoneCr()) Add("ends in a lone CR, which comes back as CR LF");
        const auto stray = std::find_if(line_.begin(), line_.end(), [this](char byte) {
            const auto code = static_cast<unsigned char>(byte);
            return code >= 0x80 && code < 0xA0 && page_.Decode(code) == code;
        });
        if (stray != line_.end()) Add("holds a byte without a character in code page ", pageNumber_);
    }

    void TakeComment() {
        if (IsTrailer(bytes_.substr(lines_.Begin())))
            trailerReached_ = true;
        else if (inData_)
            Add("begins with \";\" and is dropped as a comment", CutText());
        else if (std::find(kComments.begin(), kComments.end(), line_) == kComments.end())
            Add("is a comment that a save leaves out");
    }

    void TakeHeader() {
        ++headerCount_;
        if (!line_.starts_with(tbx::kValue))
            Add("is taken for value " + std::to_string(headerCount_) +
                " of the header and loses its first character");
        const std::string_view value = line_.substr(std::min<std::size_t>(1, line_.size()));
        if (headerCount_ == 1) CompareSaved(value, SavedColour(value));
        if (headerCount_ == 3) CompareSaved(value, SavedFontSize(value));
        if (headerCount_ == 4) CompareSaved(value, SavedRowHeight(value));
    }

    void TakeColumnLine() {
        const std::string_view value = line_.substr(1);
        if (inData_)
            Add("begins with \"!\" and is read as a column line",
                row_ > 0 ? "; the rows before it are lost" : "");
        if (expectWidth_)
            CompareSaved(value, SavedColumnWidth(value));
        else
            ++columnCount_;
        expectWidth_ = !expectWidth_;
        row_ = 0;
        if (columnCount_ > MaxColumns.Number()) {
            Add("names column 25, where a load stops: there can be no more than 24");
            stopped_ = true;
        }
    }

    void TakeDataLine() {
        if (!inData_ && expectWidth_) Add("comes where the width of the last column is missing");
        inData_ = true;
        if (line_.starts_with(tbx::kRow))
            TakeRowLine();
        else if (line_.starts_with(tbx::kTick))
            TakeStateLine();
        else if (line_.starts_with(tbx::kColour))
            TakeColourLine();
        else if (line_.starts_with(tbx::kCol))
            TakeColLine();
        else
            TakeTextLine();
    }

    void TakeRowLine() {
        const std::string_view number = line_.substr(std::min<std::size_t>(5, line_.size()));
        const bool digits = !number.empty() && number.find_first_not_of("0123456789") == number.npos;
        if (!line_.starts_with("@row_") || !digits)
            Add("begins with \"@row\" and is read as the start of a row", CutText());
        CheckRowEnd();
        ++row_;
        col_ = 0;
        inCell_ = rowHasCell_ = false;
        part_ = RowPart::Start;
        if (row_ > kMaxRows.Number()) {
            AddForFile("rows past 32767 don't arrive");
            stopped_ = true;
        }
    }

    void TakeStateLine() {
        if (part_ != RowPart::Start)
            Add("begins with \"?\" and is read as a row's tick and font", CutText());
        else
            CompareSaved(line_, SavedRowState(columnCount_ > 0 ? line_ : std::string_view()));
        part_ = part_ == RowPart::Start ? RowPart::State : RowPart::Elsewhere;
        inCell_ = false;
    }

    void TakeColourLine() {
        const std::string_view value = line_.substr(1);
        if (part_ == RowPart::Elsewhere || part_ == RowPart::TextColour)
            Add("begins with \"\xC2\xA7\" and is read as a row's colour", CutText());
        else
            CompareSaved(value, columnCount_ > 0 ? SavedRowColour(value) : SavedNoColour());
        part_ =
            part_ == RowPart::Start || part_ == RowPart::State ? RowPart::BackColour : RowPart::TextColour;
        inCell_ = false;
    }

    void TakeColLine() {
        ++col_;
        inCell_ = true;
        part_ = RowPart::Elsewhere;
        if (row_ == 0)
            Add("begins a cell before the first row, which is dropped", CutText());
        else if (col_ > columnCount_)
            Add("begins a cell past the last column, which is dropped", CutText());
        else if (line_ != "@col_" + std::to_string(col_))
            Add("is read as column " + std::to_string(col_), CutText());
    }

    void TakeTextLine() {
        part_ = RowPart::Elsewhere;
        if (!inCell_) {
            // Nobody misses an empty line before the first row.
            if (row_ > 0 || !line_.empty()) Add("is in no cell and is dropped", CutText());
            return;
        }
        if (col_ > columnCount_) return;
        rowHasCell_ = true;
        if (!line_.starts_with(tbx::kAt)) {
            TakeCellLine();
            return;
        }
        Add("begins with \"@\" and is dropped");
        inCell_ = false;
    }

    void TakeCellLine() {
        // When the empty line of an empty cell is dropped, the cell stays the same.
        if (lines_.AtEnd() && (collecting_ || !line_.empty()))
            Add("is the end of the file inside a cell and is dropped");
        collecting_ = true;
    }

    /// The writer never leaves cells out. The reader gives a row its height and its box with its first cell.
    void CheckRowEnd() {
        if (row_ > 0 && columnCount_ > 0 && !rowHasCell_)
            findings_.Add({Row(row_), Col{0}}, 0, "the row has no cell");
    }

    void CheckEnd() {
        CheckRowEnd();
        if (headerCount_ < kHeaderValues) AddForFile("the file ends before the fourth value of its header");
        if (!inData_ && columnCount_ > 0) AddForFile("there is no row, and so the columns don't arrive");
    }

    void CompareSaved(std::string_view value, std::string_view saved) {
        if (value == saved) return;
        findings_.AddEach(Place(), lineNumber_,
                          "holds a value that comes back as \"" + std::string(saved) + "\"");
    }

    /// What a marker in the text of a cell does to the cell.
    std::string_view CutText() const { return cutCell_ ? "; the cell ends before it" : ""; }

    void Add(std::string_view what, std::string_view rest = {}) {
        findings_.Add(Place(), lineNumber_, what, rest);
    }
    CellPosition Place() const { return {Row(row_), Col(row_ > 0 ? col_ : 0)}; }
    void AddForFile(std::string_view what) { findings_.Add({}, 0, what); }

    std::string_view bytes_;
    CodePage page_;
    const std::string pageNumber_ = std::to_string(page_.Number());
    TbxLines lines_;
    std::string_view line_;
    std::size_t lineNumber_ = 0;
    FindingStream& findings_;

    int headerCount_ = 0;
    int columnCount_ = 0;
    int row_ = 0;
    int col_ = 0;
    RowPart part_ = RowPart::Elsewhere;
    bool expectWidth_ = false;
    bool inData_ = false;
    bool inCell_ = false;
    bool collecting_ = false;
    bool cutCell_ = false;
    bool rowHasCell_ = false;
    bool trailerReached_ = false;
    /// The rest of the file doesn't reach the table.
    bool stopped_ = false;
};

} // namespace

void CheckFile(std::string_view bytes, const CodePage& page, FindingStream& findings) {
    FileCheck(bytes, page, findings).Check();
    findings.Finish();
}

} // namespace korvane
