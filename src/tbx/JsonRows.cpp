#include "tbx/JsonRows.h"

#include "tbx/Json.h"

#include <algorithm>

namespace korvane {

namespace {

bool Holds(const std::vector<Text>& texts, const Text& wanted) {
    return std::find(texts.begin(), texts.end(), wanted) != texts.end();
}

Text Numbered(const Text& name, std::size_t number) {
    return name + u" " + FromAscii(std::to_string(number));
}

} // namespace

std::vector<Text> DistinctKeys(const std::vector<Text>& headers) {
    std::vector<Text> keys;
    for (std::size_t i = 0; i < headers.size(); ++i) {
        const Text name = headers[i].empty() ? Numbered(u"column", i + 1) : headers[i];
        Text key = name;
        // A later header keeps its own name.
        const auto taken = [&] { return Holds(keys, key) || (key != headers[i] && Holds(headers, key)); };
        for (std::size_t number = 2; taken(); ++number)
            key = Numbered(name, number);
        keys.push_back(std::move(key));
    }
    return keys;
}

void JsonRows::Begin(std::span<const CellText> headers, Output& out) {
    std::vector<Text> names;
    for (const CellText& header : headers)
        names.push_back(header.Whole());
    for (const Text& key : DistinctKeys(names)) {
        std::string json;
        AppendUtf8Json(key, json);
        keys_.push_back(json + ":");
    }
    out.Write("[");
}

void JsonRows::AddRow(std::span<const CellText> cells, Output& out) {
    out.Write(first_ ? "\n{" : ",\n{");
    first_ = false;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (i > 0) out.Write(",");
        out.Write(keys_[i]);
        out.Write("\"");
        cells[i].ForEachPiece([&](TextView piece) {
            std::string json;
            AppendUtf8JsonPiece(piece, json);
            out.Write(json);
        });
        out.Write("\"");
    }
    out.Write("}");
}

void JsonRows::End(Output& out) {
    out.Write(first_ ? "]\n" : "\n]\n");
}

} // namespace korvane
