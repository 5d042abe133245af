#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QString>
#include <array>
#include <optional>

namespace korvane {

/// The widths of the ASCII characters in a font, so that it is known of a text whether it fits without the
/// work of laying it out.
class AsciiWidths {
public:
    /// No less than the width of the text in pixels; nothing for a text with other characters.
    std::optional<int> AtMost(const QString& text, const QFont& font);

private:
    static constexpr char16_t kFirst = u' ';
    static constexpr char16_t kLast = u'~';

    std::optional<QFont> font_;
    /// 0 where it isn't known yet.
    std::array<int, kLast - kFirst + 1> widths_{};
};

} // namespace korvane
