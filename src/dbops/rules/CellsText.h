#pragma once

#include "common/text/Text.h"
#include "grid/Grid.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace korvane {

/// Makes one text of many cells at the speed of copying bytes: what the table's code page can hold is joined
/// as bytes and decoded in large pieces.
class CellsText {
public:
    /// The grid outlives the object. A text of up to `expectedLength` is made without growing.
    explicit CellsText(const Grid& grid, std::size_t expectedLength = 0);

    /// A text that is appended after many cells.
    struct Separator {
        Text text;
        /// The same in the table's code page; nothing when that can't hold it.
        std::optional<std::string> bytes;
    };
    Separator SeparatorOf(TextView text) const;

    void AppendCell(Row row, Col col);
    void Append(const Separator& separator);
    void Append(TextView text) { Append(SeparatorOf(text)); }
    bool EndsInCrLf();
    /// All that was appended.
    Text Take() &&;

private:
    /// So many bytes are collected before they are decoded. They are few enough to stay in the processor's
    /// cache.
    static constexpr std::size_t kPiece = 16 * 1024;

    void AppendBytes(std::string_view bytes);
    void AppendWide(TextView text);
    void Decode();

    const Grid& grid_;
    Text text_;
    /// These bytes come after `text_` and aren't decoded yet.
    std::string bytes_;
};

} // namespace korvane
