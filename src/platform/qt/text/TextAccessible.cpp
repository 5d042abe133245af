#include "platform/qt/text/TextAccessible.h"

#include "platform/qt/base/Convert.h"

#include <algorithm>

namespace korvane {

namespace {

QAccessibleInterface* MakeFor(const QString& name, QObject* object) {
    auto* const view = qobject_cast<QtTextView*>(object);
    return view == nullptr || name != QLatin1String(QtTextView::staticMetaObject.className())
               ? nullptr
               : new TextAccessible(*view);
}

const Text kNoText;

} // namespace

void TextAccessible::Install() {
    QAccessible::installFactory(MakeFor);
}

TextAccessible::TextAccessible(QtTextView& view)
    : QAccessibleWidget(&view, QAccessible::EditableText), view_(view) {}

void* TextAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    if (type == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessible::State TextAccessible::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.multiLine = true;
    state.selectableText = true;
    const TextControl* const control = view_.Shown();
    const bool locked = control == nullptr || control->Locked;
    state.editable = !locked;
    state.readOnly = locked;
    return state;
}

QString TextAccessible::text(QAccessible::Text which) const {
    return which == QAccessible::Value ? ToLines(All()) : QAccessibleWidget::text(which);
}

const Text& TextAccessible::All() const {
    return view_.Shown() == nullptr ? kNoText : view_.Shown()->All();
}

doc::Pos TextAccessible::PosOf(int offset) const {
    return static_cast<doc::Pos>(FromLinesPosition(All(), std::max(offset, 0)));
}

int TextAccessible::OffsetOf(doc::Pos position) const {
    // Each paragraph before the position has one unit more in the text.
    return view_.Shown() == nullptr
               ? 0
               : static_cast<int>(position - view_.Mirror().Store().PlaceAt(position).paragraph);
}

int TextAccessible::selectionCount() const {
    return view_.Shown() != nullptr && view_.Shown()->SelLength() > 0 ? 1 : 0;
}

void TextAccessible::selection(int index, int* start, int* end) const {
    *start = *end = 0;
    if (index != 0 || selectionCount() == 0) return;
    const TextControl& control = *view_.Shown();
    *start = OffsetOf(static_cast<doc::Pos>(control.SelStart()));
    *end = OffsetOf(static_cast<doc::Pos>(control.SelStart() + control.SelLength()));
}

void TextAccessible::addSelection(int start, int end) {
    if (selectionCount() == 0) setSelection(0, start, end);
}

void TextAccessible::removeSelection(int index) {
    if (index == 0) setCursorPosition(cursorPosition());
}

void TextAccessible::setSelection(int index, int start, int end) {
    if (index == 0) view_.Select(PosOf(start), PosOf(end));
}

int TextAccessible::cursorPosition() const {
    return view_.Shown() == nullptr ? 0 : OffsetOf(view_.CursorPosition());
}

void TextAccessible::setCursorPosition(int position) {
    setSelection(0, position, position);
}

QString TextAccessible::text(int start, int end) const {
    const doc::Pos from = PosOf(start);
    const doc::Pos to = end < 0 ? All().size() : PosOf(end);
    return from < to ? ToLines(TextView(All()).substr(from, to - from)) : QString();
}

int TextAccessible::characterCount() const {
    return OffsetOf(All().size());
}

QRect TextAccessible::characterRect(int offset) const {
    if (view_.Shown() == nullptr) return {};
    view_.ShowText();
    const QRectF before = view_.CursorAt(PosOf(offset));
    const QRectF after = view_.CursorAt(PosOf(offset + 1));
    // The last character of a line ends where the next line begins.
    const double width = after.top() == before.top() ? after.left() - before.left() : before.height() / 2;
    const QRectF whole(before.topLeft(), QSizeF(std::max(width, 1.0), before.height()));
    const QRect seen = view_.mapFromScene(whole).boundingRect();
    return {view_.viewport()->mapToGlobal(seen.topLeft()), seen.size()};
}

int TextAccessible::offsetAtPoint(const QPoint& point) const {
    if (view_.Shown() == nullptr) return -1;
    view_.ShowText();
    const QPoint seen = view_.viewport()->mapFromGlobal(point);
    return view_.viewport()->rect().contains(seen) ? OffsetOf(view_.PlaceAt(view_.mapToScene(seen))) : -1;
}

void TextAccessible::scrollToSubstring(int start, int) {
    if (view_.Shown() == nullptr) return;
    view_.ShowText();
    view_.ensureVisible(view_.CursorAt(PosOf(start)));
}

QString TextAccessible::attributes(int offset, int* start, int* end) const {
    *start = *end = offset;
    if (view_.Shown() == nullptr) return {};
    const doc::Pos position = PosOf(offset);
    const doc::Place place = view_.Mirror().Store().PlaceAt(position);
    const doc::Pos paragraph = position - place.offset;
    const std::size_t length = view_.Mirror().Text().paragraphs[place.paragraph].text.size();
    QString told;
    view_.Mirror().Store().Runs(
        paragraph, paragraph + length, [&](doc::Pos from, std::size_t run, const doc::Look& look) {
            if (position < from || position >= from + run) return;
            *start = OffsetOf(from);
            *end = OffsetOf(from + run);
            QStringList parts{QStringLiteral("font-family:\"%1\"").arg(ToQString(look.font)),
                              QStringLiteral("font-size:%1pt").arg(look.format.halfPoints / 2.0)};
            parts << (look.format.bold ? QStringLiteral("font-weight:bold")
                                       : QStringLiteral("font-weight:normal"));
            if (look.format.italic) parts << QStringLiteral("font-style:italic");
            if (look.format.underline) parts << QStringLiteral("text-underline-style:solid");
            if (look.format.strike) parts << QStringLiteral("text-line-through-type:single");
            told = parts.join(QLatin1Char(';')) + QLatin1Char(';');
        });
    return told;
}

TextDifference DifferenceBetween(const QString& before, const QString& after) {
    const auto head = std::ranges::mismatch(before, after).in1 - before.begin();
    const auto shorter = std::min(before.size(), after.size()) - head;
    qsizetype tail = 0;
    while (tail < shorter && before[before.size() - 1 - tail] == after[after.size() - 1 - tail])
        ++tail;
    return {head, before.mid(head, before.size() - head - tail), after.mid(head, after.size() - head - tail)};
}

void TellTextChange(QtTextView& view, const QString& before, const QString& after) {
    if (before == after) return;
    const TextDifference change = DifferenceBetween(before, after);
    QAccessibleTextUpdateEvent event(&view, static_cast<int>(change.at), change.removed, change.inserted);
    QAccessible::updateAccessibility(&event);
}

void TellCursor(QtTextView& view) {
    auto* const text = dynamic_cast<TextAccessible*>(QAccessible::queryAccessibleInterface(&view));
    if (text == nullptr) return;
    int start = 0;
    int end = 0;
    text->selection(0, &start, &end);
    QAccessibleTextSelectionEvent event(&view, start, end);
    event.setCursorPosition(text->cursorPosition());
    QAccessible::updateAccessibility(&event);
}

void TextAccessible::deleteText(int start, int end) {
    replaceText(start, end, {});
}

void TextAccessible::insertText(int offset, const QString& text) {
    replaceText(offset, offset, text);
}

void TextAccessible::replaceText(int start, int end, const QString& text) {
    view_.Replace(PosOf(start), PosOf(std::max(start, end)), FromLines(text));
}

} // namespace korvane
