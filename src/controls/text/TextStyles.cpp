#include "controls/text/TextStyles.h"

#include "controls/text/TextControl.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr TextStyle kStyles[] = {
    {u"Normal", 12},
    {u"Title", 24, true, false, 0, 240},
    {u"Heading 1", 18, true, false, 240, 120},
    {u"Heading 2", 15, true, false, 200, 80},
    {u"Heading 3", 13, true, true, 160, 60},
    {u"Quotation", 12, false, true, 120, 120, 567},
};

/// Selects the whole paragraphs that the selection touches, without the end of the last one.
void SelectParagraphs(TextControl& control) {
    const Text& text = control.All();
    const auto start = static_cast<std::size_t>(control.SelStart());
    const std::size_t before = start == 0 ? Text::npos : text.rfind(u'\n', start - 1);
    const std::size_t from = before == Text::npos ? 0 : before + 1;
    const std::size_t to =
        std::min(text.find(u'\r', start + static_cast<std::size_t>(control.SelLength())), text.size());
    control.SetSelection(static_cast<int>(from), static_cast<int>(to - from));
}

} // namespace

std::span<const TextStyle> TextStyles() {
    return kStyles;
}

const TextStyle* StyleOf(const TextControl& control) {
    const auto has = [&control](const TextStyle& style) {
        return control.FontSize() == style.points && control.FontBold() == (style.bold ? 1 : 0) &&
               control.FontItalic() == (style.italic ? 1 : 0) && control.IndentT() == style.before &&
               control.IndentB() == style.after;
    };
    const auto found = std::ranges::find_if(kStyles, has);
    return found == std::end(kStyles) ? nullptr : &*found;
}

void ApplyStyle(TextControl& control, const TextStyle& style) {
    const doc::Step together(control.Store());
    const int start = control.SelStart();
    const int length = control.SelLength();
    SelectParagraphs(control);
    control.SetFontSize(style.points);
    control.SetFontBold(style.bold ? 1 : 0);
    control.SetFontItalic(style.italic ? 1 : 0);
    control.FormatParagraphs([&style](doc::ParaFormat& format) {
        format.before = style.before;
        format.after = style.after;
        if (format.list.kind != doc::ListKind::None) return;
        format.left = format.right = style.left;
        format.first = 0;
    });
    control.SetSelection(start, length);
}

} // namespace korvane
