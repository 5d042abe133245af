#include "document/model/Builder.h"

#include <algorithm>
#include <utility>

namespace korvane::doc {

namespace {

constexpr std::size_t kHuge = std::size_t{1} << 20;

} // namespace

void Builder::SetFormat(const CharFormat& format) {
    if (format == Format()) return;
    if (document_.chars.Size() >= limits_.formats) return Tell(Trouble::OverLimit);
    look_.format = document_.chars.Add(format);
}

void Builder::Tell(Trouble trouble) {
    trouble_ = std::max(trouble_, trouble);
}

bool Builder::Fits(std::size_t length) {
    characters_ += length;
    if (characters_ > limits_.characters) Tell(Trouble::OverLimit);
    return characters_ <= limits_.characters;
}

std::size_t Builder::FittingPart(std::size_t length) {
    const std::size_t room = limits_.characters - std::min(characters_, limits_.characters);
    return Fits(length) ? length : std::min(length, room);
}

void Builder::Extend(std::size_t length) {
    Run added = look_;
    added.length = static_cast<Index>(length);
    AddRun(runs_, added);
}

void Builder::Add(TextView text) {
    text = text.substr(0, FittingPart(text.size()));
    if (text.empty()) return;
    text_ += text;
    Extend(text.size());
}

void Builder::AddAscii(std::string_view text) {
    text = text.substr(0, FittingPart(text.size()));
    if (text.empty()) return;
    const std::size_t before = text_.size();
    text_.resize(before + text.size());
    std::copy(text.begin(), text.end(), text_.begin() + static_cast<std::ptrdiff_t>(before));
    Extend(text.size());
}

void Builder::AddImage(Image image) {
    if (image.bytes.size > limits_.imageBytes) return Tell(Trouble::OverLimit);
    if (!Fits(1)) return;
    document_.images.push_back(std::move(image));
    text_ += kImageCharacter;
    Run run = look_;
    run.length = 1;
    run.image = static_cast<Index>(document_.images.size());
    runs_.push_back(run);
}

Index Builder::NewField(Field field) {
    const Index number = document_.fields.empty() ? 1 : document_.fields.rbegin()->first + 1;
    document_.fields.emplace_hint(document_.fields.end(), number, std::move(field));
    return number;
}

void Builder::RemoveLast() {
    text_.pop_back();
    if (--runs_.back().length == 0) runs_.pop_back();
}

Index Builder::Number(const ParaFormat& format) {
    if (format == lastFormat_) return lastNumber_;
    if (document_.paras.Size() >= limits_.formats) {
        Tell(Trouble::OverLimit);
        return lastNumber_;
    }
    lastFormat_ = format;
    lastNumber_ = document_.paras.Add(format);
    return lastNumber_;
}

void Builder::CloseParagraph(const ParaFormat& format) {
    Paragraph& paragraph = document_.paragraphs.emplace_back();
    // Mostly the next paragraph needs the same memory again. A huge text must not be there twice.
    if (text_.size() < kHuge)
        paragraph.text.assign(text_);
    else
        paragraph.text = std::move(text_);
    paragraph.runs.assign(runs_.begin(), runs_.end());
    paragraph.format = Number(format);
    if (paragraph.text.empty()) paragraph.emptyFormat = look_.format;
    text_.clear();
    runs_.clear();
}

void Builder::EndParagraph(const ParaFormat& format) {
    if (!Fits(kCrLf.size())) return;
    CloseParagraph(format);
    // A paragraph outside parts two tables, and it ends a row that isn't finished.
    if (cellOpen_) return;
    table_ = 0;
}

void Builder::OpenCell() {
    if (cellOpen_) return;
    cellOpen_ = true;
    if (!InRow()) rowStart_ = document_.paragraphs.size();
}

void Builder::EndCell(const ParaFormat& format) {
    OpenCell();
    if (!Fits(kCrLf.size())) return;
    CloseParagraph(format);
    cellOpen_ = false;
    if (cellEnds_.size() < limits_.columns)
        cellEnds_.push_back(document_.paragraphs.size());
    else
        cellEnds_.back() = document_.paragraphs.size();
}

void Builder::PlaceCells(Index table, Index row) {
    std::size_t paragraph = rowStart_;
    for (std::size_t column = 0; column < cellEnds_.size(); ++column) {
        for (; paragraph < cellEnds_[column]; ++paragraph)
            document_.paragraphs[paragraph].cell = {table, row, static_cast<Index>(column)};
    }
}

void Builder::EndRow(std::vector<CellFormat> cells) {
    if (!InRow()) return;
    // A cell that is still open is the first one of the next row.
    const std::size_t nextRow = cellEnds_.back();
    cells_ += cellEnds_.size();
    if (cells_ > limits_.cells) {
        // The texts stay as plain paragraphs.
        cellEnds_.clear();
        rowStart_ = nextRow;
        return Tell(Trouble::OverLimit);
    }
    if (table_ == 0) table_ = ++tables_;
    Table& table = document_.tables[table_];
    cells.resize(cellEnds_.size(), cells.empty() ? CellFormat{} : cells.back());
    PlaceCells(table_, static_cast<Index>(table.rows.size()));
    table.rows.push_back({std::move(cells)});
    cellEnds_.clear();
    rowStart_ = nextRow;
    // A paragraph outside that came before the row's end parts two tables too.
    if (!cellOpen_ && document_.paragraphs.size() > nextRow) table_ = 0;
}

Document Builder::Finish(const ParaFormat& last) {
    cellOpen_ = false;
    EndRow({});
    const std::vector<Paragraph>& paragraphs = document_.paragraphs;
    if (!text_.empty() || paragraphs.empty() || paragraphs.back().cell.table != 0) CloseParagraph(last);
    return std::move(document_);
}

} // namespace korvane::doc
