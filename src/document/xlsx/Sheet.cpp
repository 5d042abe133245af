#include "document/xlsx/Sheet.h"

#include "document/package/Xml.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <string>

namespace korvane::doc::xlsx {

namespace {

/// Rows beyond this are in no file of the format.
constexpr std::size_t kMostRows = 1u << 20;

/// The column of a place such as "AB12", counted from 0; nothing without letters.
std::optional<std::size_t> ColumnOf(std::string_view place) {
    std::size_t column = 0;
    std::size_t letters = 0;
    for (; letters < place.size() && place[letters] >= 'A' && place[letters] <= 'Z' && letters < 4; ++letters)
        column = column * 26 + static_cast<std::size_t>(place[letters] - 'A' + 1);
    return letters == 0 ? std::nullopt : std::optional(column - 1);
}

class SheetReader {
public:
    SheetReader(const std::vector<Text>& shared, const Limits& limits) : shared_(shared), limits_(limits) {}

    Sheet Read(std::string_view xml) {
        XmlHandlers handlers;
        handlers.open = [this](std::string_view name, const XmlAttributes& attributes) {
            Open(name, attributes);
        };
        handlers.close = [this](std::string_view name) { Close(name); };
        handlers.text = [this](std::string_view utf8) {
            if (inValue_) value_ += utf8;
        };
        handlers.full = [this] { return sheet_.trouble == Trouble::OverLimit; };
        if (ReadXml(xml, handlers) != XmlOutcome::Whole)
            sheet_.trouble = std::max(sheet_.trouble, Trouble::Damaged);
        return std::move(sheet_);
    }

private:
    void Open(std::string_view name, const XmlAttributes& attributes) {
        if (name == "row") {
            const int number = attributes.Number("r").value_or(0);
            row_ = number > 0 ? static_cast<std::size_t>(number) - 1 : nextRow_;
            nextRow_ = row_ + 1;
            nextColumn_ = 0;
        } else if (name == "c") {
            column_ = ColumnOf(attributes.Get("r")).value_or(nextColumn_);
            nextColumn_ = column_ + 1;
            kind_ = attributes.Get("t");
            value_.clear();
        } else if (name == "v" || name == "t") {
            inValue_ = true;
        }
    }

    void Close(std::string_view name) {
        if (name == "v" || name == "t") inValue_ = false;
        if (name == "c") Put(TextOfCell());
    }

    Text TextOfCell() const {
        if (kind_ == "s") {
            const auto number = static_cast<std::size_t>(std::strtoul(value_.c_str(), nullptr, 10));
            return number < shared_.size() ? shared_[number] : Text();
        }
        if (kind_ == "b") return value_ == "1" ? u"TRUE" : u"FALSE";
        return FromUtf8(value_);
    }

    void Put(Text text) {
        if (text.empty()) return;
        if (row_ >= kMostRows) {
            sheet_.trouble = Trouble::Damaged;
            return;
        }
        // What is beyond the last column of a table is left out.
        if (column_ >= limits_.columns) return;
        const std::size_t columns = std::max(sheet_.columns, column_ + 1);
        const std::size_t rows = std::max(row_, sheet_.rows.empty() ? 0 : sheet_.rows.rbegin()->first) + 1;
        characters_ += text.size();
        if (characters_ > limits_.characters || rows * columns > limits_.cells) {
            sheet_.trouble = Trouble::OverLimit;
            return;
        }
        sheet_.columns = columns;
        sheet_.rows[row_][column_] = std::move(text);
    }

    const std::vector<Text>& shared_;
    const Limits& limits_;
    Sheet sheet_;
    std::size_t row_ = 0;
    std::size_t column_ = 0;
    std::size_t nextRow_ = 0;
    std::size_t nextColumn_ = 0;
    std::size_t characters_ = 0;
    std::string kind_;
    std::string value_;
    bool inValue_ = false;
};

/// A cell's lines are lines of one paragraph.
void PutCell(Builder& builder, const Text& text) {
    for (const char16_t character : text) {
        if (character == u'\r') continue;
        builder.Add(character == u'\n' ? kLineBreak : character);
    }
}

void PutRow(Builder& builder, const std::map<std::size_t, Text>& cells, std::size_t columns) {
    if (builder.Full()) return;
    for (std::size_t column = 0; column < columns; ++column) {
        builder.OpenCell();
        if (const auto cell = cells.find(column); cell != cells.end()) PutCell(builder, cell->second);
        builder.EndCell({});
    }
    builder.EndRow({});
}

} // namespace

std::vector<Text> ReadSharedTexts(std::string_view xml, const Limits& limits) {
    std::vector<Text> texts;
    std::string text;
    std::size_t characters = 0;
    bool inText = false;
    // How a text is spoken, in languages that write it apart, is no part of it.
    int spoken = 0;
    XmlHandlers handlers;
    handlers.open = [&](std::string_view name, const XmlAttributes&) {
        if (name == "si") text.clear();
        if (name == "rPh") ++spoken;
        inText = name == "t" && spoken == 0;
    };
    handlers.close = [&](std::string_view name) {
        inText = false;
        if (name == "rPh") --spoken;
        if (name != "si") return;
        characters += text.size();
        texts.push_back(FromUtf8(text));
    };
    handlers.text = [&](std::string_view utf8) {
        if (inText) text += utf8;
    };
    handlers.full = [&] { return characters > limits.characters; };
    ReadXml(xml, handlers);
    return texts;
}

Sheet ReadSheet(std::string_view xml, const std::vector<Text>& shared, const Limits& limits) {
    return SheetReader(shared, limits).Read(xml);
}

void PutSheet(Builder& builder, TextView name, const Sheet& sheet) {
    builder.Add(name);
    builder.EndParagraph({});
    std::size_t next = 0;
    for (const auto& [row, cells] : sheet.rows) {
        for (; next < row; ++next)
            PutRow(builder, {}, sheet.columns);
        PutRow(builder, cells, sheet.columns);
        ++next;
    }
    builder.EndTable();
    builder.Tell(sheet.trouble);
}

} // namespace korvane::doc::xlsx
