#include "controls/TextBox.h"

#include <algorithm>
#include <utility>

namespace korvane {

namespace {

std::size_t AtLeastZero(int number) {
    return static_cast<std::size_t>(std::max(number, 0));
}

} // namespace

TextBox::TextBox(Form& owner, std::string_view name, TextView text, TextView toolTip) : Control(owner, name) {
    Text = korvane::Text(text);
    ToolTipText = korvane::Text(toolTip);
}

void TextBox::SelectAll() {
    SelStart = 0;
    SelLength = static_cast<int>(Text.Get().size());
}

korvane::Text TextBox::SelText() const {
    return korvane::Text(Mid(Text.Get(), AtLeastZero(SelStart) + 1, AtLeastZero(SelLength)));
}

void TextBox::SetSelText(TextView text) {
    const TextView before = Left(Text.Get(), AtLeastZero(SelStart));
    const TextView after = Mid(Text.Get(), before.size() + AtLeastZero(SelLength) + 1);
    korvane::Text joined;
    joined.append(before).append(text).append(after);
    const auto cursor = static_cast<int>(before.size() + text.size());
    Text = std::move(joined);
    SelStart = cursor;
    SelLength = 0;
}

void TextBox::Type(TextView text) {
    if (Enabled && !Locked) Text = korvane::Text(text);
}

void TextBox::Changed(Aspect aspect) {
    if (aspect == Aspect::Text && Change) Change();
}

} // namespace korvane
