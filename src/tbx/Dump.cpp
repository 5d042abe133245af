#include "tbx/Dump.h"

#include "grid/Grid.h"
#include "tbx/base/LoadedTable.h"
#include "tbx/formats/CellText.h"
#include "tbx/formats/Json.h"

#include <array>
#include <string>

namespace korvane {

namespace {

constexpr std::array<std::string_view, 5> kIconNames{"none", "information", "question", "exclamation",
                                                     "stop"};
constexpr std::array<std::string_view, 3> kButtonNames{"ok", "yesno", "yesnocancel"};

/// Writes JSON objects and lists.
class JsonLine {
public:
    explicit JsonLine(Output& out) : out_(out) {}

    void Open(char bracket) {
        Separate();
        Put({&bracket, 1});
    }
    void Close(char bracket) { Put({&bracket, 1}); }
    void Key(std::string_view key) {
        Separate();
        Put("\"");
        Put(key);
        Put("\":");
    }
    void Number(int number) {
        Separate();
        Put(std::to_string(number));
    }
    void String(TextView text) { String(CellText(text)); }
    void String(const CellText& text) {
        Separate();
        Put("\"");
        text.ForEachPiece([this](TextView piece) {
            std::string json;
            AppendAsciiJsonPiece(piece, json);
            Put(json);
        });
        Put("\"");
    }
    void Null() {
        Separate();
        Put("null");
    }

private:
    /// A comma comes between two values, and before a key that follows a value.
    void Separate() {
        if (last_ != '{' && last_ != '[' && last_ != ':' && last_ != '\0') Put(",");
    }
    void Put(std::string_view json) {
        out_.Write(json);
        last_ = json.back();
    }

    Output& out_;
    char last_ = '\0';
};

/// The dump of one table.
class Dump {
public:
    Dump(const TableModel& table, Output& out)
        : table_(table), grid_(table.GridStore()), out_(out), json_(out) {}

    void Write(const std::vector<Message>& messages) {
        json_.Open('{');
        AddHeader();
        AddNames();
        AddColumns();
        AddRows();
        AddMessages(messages);
        json_.Close('}');
        out_.Write("\n");
    }

private:
    void AddHeader() {
        json_.Key("header");
        json_.Open('{');
        AddNumber("back",
                  table_.TableBackColour ? std::optional(table_.TableBackColour->value) : std::nullopt);
        json_.Key("font");
        if (table_.TableFontName)
            json_.String(*table_.TableFontName);
        else
            json_.Null();
        AddNumber("size", table_.TableFontSize);
        AddNumber("height", table_.SetRowHeight);
        json_.Close('}');
    }

    template <class Int>
    void AddNumber(std::string_view key, std::optional<Int> number) {
        json_.Key(key);
        if (number)
            json_.Number(*number);
        else
            json_.Null();
    }

    void AddNames() {
        Col last = MaxColumns;
        while (last >= Col{1} && table_.ColumnNames[last].empty())
            --last;
        json_.Key("names");
        AddList(last, [this](Col col) { json_.String(table_.ColumnNames[col]); });
    }

    void AddColumns() {
        json_.Key("columns");
        AddList(grid_.ColCount(), [this](Col col) {
            json_.Open('{');
            json_.Key("key");
            json_.String(grid_.ColKey(col));
            json_.Key("header");
            json_.String(grid_.ColHeaderText(col));
            AddNumber("width", std::optional(grid_.ColWidth(col)));
            json_.Close('}');
        });
    }

    void AddRows() {
        json_.Key("rows");
        json_.Open('[');
        for (Row row{1}; row <= grid_.RowCount() && out_.Works(); ++row)
            AddRow(row);
        json_.Close(']');
    }

    void AddRow(Row row) {
        json_.Open('{');
        AddNumber("height", grid_.HasRowHeight(row) ? std::optional(grid_.RowHeight(row)) : std::nullopt);
        AddNumber("visible", std::optional<int>(grid_.RowVisible(row)));
        AddNumber("check", std::optional(grid_.CellCheck(row)));
        AddNumber("shown", std::optional<int>(grid_.CellCheckShown(row)));
        AddCells("back", [=, this](Col col) { json_.Number(grid_.CellBackColor(row, col).value); });
        AddCells("fore", [=, this](Col col) { json_.Number(grid_.CellForeColor(row, col).value); });
        AddFlags("italic", row, CellFlag::Italic);
        AddFlags("bold", row, CellFlag::Bold);
        AddFlags("strike", row, CellFlag::Strikethrough);
        AddCells("cells", [=, this](Col col) { json_.String(CellText(grid_, row, col)); });
        json_.Close('}');
    }

    void AddFlags(std::string_view key, Row row, CellFlag flag) {
        AddCells(key, [=, this](Col col) { json_.Number(grid_.CellFontFlag(row, col, flag)); });
    }

    template <class Add>
    void AddCells(std::string_view key, const Add& add) {
        json_.Key(key);
        AddList(grid_.ColCount(), add);
    }

    template <class Add>
    void AddList(Col last, const Add& add) {
        json_.Open('[');
        for (Col col{1}; col <= last; ++col)
            add(col);
        json_.Close(']');
    }

    void AddMessages(const std::vector<Message>& messages) {
        json_.Key("messages");
        json_.Open('[');
        for (const Message& message : messages) {
            json_.Open('{');
            json_.Key("text");
            json_.String(message.text);
            json_.Key("icon");
            json_.String(FromAscii(kIconNames.at(static_cast<std::size_t>(message.icon))));
            json_.Key("buttons");
            json_.String(FromAscii(kButtonNames.at(static_cast<std::size_t>(message.buttons))));
            AddNumber("default", std::optional(message.defaultButton));
            json_.Close('}');
        }
        json_.Close(']');
    }

    const TableModel& table_;
    const Grid& grid_;
    Output& out_;
    JsonLine json_;
};

} // namespace

void WriteTableDump(const TableModel& table, const std::vector<Message>& messages, Output& out) {
    Dump(table, out).Write(messages);
}

ExitStatus RunDump(const Call& call, Environment& environment) {
    const auto workbench = LoadTable(call, environment);
    if (!workbench) return ExitStatus::Error;
    WriteTableDump(workbench->Table(), workbench->Messages(), environment.out);
    return ExitStatus::Success;
}

} // namespace korvane
