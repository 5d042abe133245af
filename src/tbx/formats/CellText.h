#pragma once

#include "common/number/Units.h"
#include "common/text/CodePage.h"
#include "common/text/Text.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

namespace korvane {

class Grid;

/// The text of a cell or a caption. It is given in pieces, so that a long one is never copied as a whole.
class CellText {
public:
    // The text or the grid has to stay as it is as long as this is in use.

    explicit CellText(TextView text) : text_(text) {}
    CellText(const Grid& grid, Row row, Col col);

    bool IsEmpty() const { return bytes_.empty() && Characters().empty(); }
    /// Calls `take(TextView)` for one piece after the other. A pair of surrogates is never parted.
    template <class Take>
    void ForEachPiece(const Take& take) const;
    /// The first characters, at most as many as `count`, or all.
    Text Beginning(std::size_t count) const;
    Text Whole() const { return Beginning(TextView::npos); }

private:
    static constexpr std::size_t kPiece = 16 * 1024;

    TextView Characters() const { return own_.empty() ? text_ : own_; }

    /// What the code page can hold is in the grid's bytes. Another text of the grid is copied.
    std::string_view bytes_{};
    std::optional<CodePage> page_{};
    Text own_{};
    TextView text_{};
};

template <class Take>
void CellText::ForEachPiece(const Take& take) const {
    for (std::size_t at = 0; at < bytes_.size(); at += kPiece)
        take(TextView(page_->ToText(bytes_.substr(at, kPiece))));
    for (TextView rest = Characters(); !rest.empty();) {
        const bool parts = rest.size() > kPiece && (rest[kPiece - 1] & 0xFC00) == 0xD800;
        const std::size_t size = std::min(rest.size(), parts ? kPiece + 1 : kPiece);
        take(rest.substr(0, size));
        rest.remove_prefix(size);
    }
}

} // namespace korvane
