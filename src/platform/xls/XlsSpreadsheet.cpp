#include "platform/xls/XlsSpreadsheet.h"

#include "platform/xls/CellName.h"
#include "platform/xls/XlsWriter.h"

namespace korvane {

namespace {

constexpr int kWidestColumn = 255;
constexpr int kPaletteColours = 56;

/// What a file will have.
class BytesInMemory final : public FileWriter {
public:
    bool Write(std::string_view bytes) override {
        all_ += bytes;
        return true;
    }
    bool Close() override { return true; }

    const std::string& All() const { return all_; }

private:
    std::string all_;
};

} // namespace

void XlsSpreadsheet::AddWorkbook() {
    book_.emplace();
    active_ = {};
    savedAs_.clear();
}

bool XlsSpreadsheet::SelectRange(TextView cell) {
    const auto place = xls::ParseCellName(cell);
    if (!book_ || !place) return false;
    active_ = *place;
    return true;
}

void XlsSpreadsheet::SetActiveCellValue(TextView value) {
    if (book_) book_->SetText(active_, value);
}

void XlsSpreadsheet::SetColumnWidth(TextView column, int characters) {
    const auto col = xls::ParseColumnName(column);
    if (!book_ || !col || characters < 0 || characters > kWidestColumn) return;
    book_->SetColumnWidth(*col, static_cast<xls::U8>(characters));
}

void XlsSpreadsheet::SetInteriorColorIndex(TextView cell, int index) {
    const auto place = xls::ParseCellName(cell);
    if (!book_ || !place || index < 1 || index > kPaletteColours) return;
    book_->SetFill(*place, static_cast<xls::U8>(index));
}

bool XlsSpreadsheet::SaveAs(TextView path, int format) {
    if (!book_ || format != kNormalWorkbook || !Write(path)) return false;
    savedAs_ = files_.FullPath(path);
    return true;
}

bool XlsSpreadsheet::Write(TextView path) const {
    BytesInMemory bytes;
    return xls::WriteXls(*book_, bytes) && files_.WriteWhole(path, bytes.All());
}

void XlsSpreadsheet::MakeVisible() {
    if (!savedAs_.empty()) shell_.Open({.file = savedAs_});
}

} // namespace korvane
