#include "tbx/formats/JsonRows.h"

#include "tbx/formats/Json.h"

#include <algorithm>

namespace korvane {

namespace {

/// A longer key isn't kept as JSON.
constexpr std::size_t kShortKey = 1024;

Text Number(std::size_t number) {
    return FromAscii(std::to_string(number));
}

bool Holds(const std::vector<JsonKey>& keys, const JsonKey& wanted) {
    return std::ranges::find(keys, wanted) != keys.end();
}

void AddPieces(const CellText& text, Output& out) {
    text.ForEachPiece([&](TextView piece) {
        std::string json;
        AppendUtf8JsonPiece(piece, json);
        out.Write(json);
    });
}

/// Whether the longer of two texts begins with the shorter, and the rest of it and `end` are `other`.
bool Continues(TextView longer, TextView end, TextView shorter, TextView other) {
    return longer.starts_with(shorter) && Text(longer.substr(shorter.size())) + Text(end) == other;
}

} // namespace

bool JsonKey::operator==(const JsonKey& other) const {
    if (header.size() + addition.size() != other.header.size() + other.addition.size()) return false;
    return header.size() > other.header.size() ? Continues(header, addition, other.header, other.addition)
                                               : Continues(other.header, other.addition, header, addition);
}

std::vector<JsonKey> DistinctKeys(std::span<const TextView> headers) {
    std::vector<JsonKey> own;
    for (const TextView header : headers)
        own.push_back({header});
    std::vector<JsonKey> keys;
    for (std::size_t i = 0; i < headers.size(); ++i) {
        const Text name = headers[i].empty() ? u"column " + Number(i + 1) : Text();
        JsonKey key{headers[i], name};
        // A later header keeps its own name.
        const auto taken = [&] { return Holds(keys, key) || (key != own[i] && Holds(own, key)); };
        for (std::size_t number = 2; taken(); ++number)
            key.addition = name + u" " + Number(number);
        keys.push_back(std::move(key));
    }
    return keys;
}

void JsonRows::Begin(std::span<const TextView> headers, Output& out) {
    keys_ = DistinctKeys(headers);
    for (const JsonKey& key : keys_) {
        std::string& json = shortKeys_.emplace_back();
        if (key.header.size() > kShortKey) continue;
        AppendUtf8Json(Text(key.header) + key.addition, json);
        json += ':';
    }
    out.Write("[");
}

void JsonRows::AddKey(std::size_t column, Output& out) const {
    out.Write(shortKeys_[column]);
    if (!shortKeys_[column].empty()) return;
    out.Write("\"");
    AddPieces(CellText(keys_[column].header), out);
    AddPieces(CellText(keys_[column].addition), out);
    out.Write("\":");
}

void JsonRows::AddRow(std::span<const CellText> cells, Output& out) {
    out.Write(first_ ? "\n{" : ",\n{");
    first_ = false;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (i > 0) out.Write(",");
        AddKey(i, out);
        out.Write("\"");
        AddPieces(cells[i], out);
        out.Write("\"");
    }
    out.Write("}");
}

void JsonRows::End(Output& out) {
    out.Write(first_ ? "]\n" : "\n]\n");
}

} // namespace korvane
