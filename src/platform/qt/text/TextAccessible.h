#pragma once

#include "platform/qt/text/QtTextView.h"

#include <QAccessibleWidget>

namespace korvane {

/// Tells screen readers and their like the text of a view, with its looks and the cursor, and lets them move
/// the cursor and edit. Positions count a line end as one character, as all such programs expect.
class TextAccessible final : public QAccessibleWidget,
                             public QAccessibleTextInterface,
                             public QAccessibleEditableTextInterface {
public:
    explicit TextAccessible(QtTextView& view);

    /// Makes Qt ask here for views of texts. Calling it again does nothing.
    static void Install();

    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text which) const override;

    void selection(int index, int* start, int* end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int* start, int* end) const override;

    void deleteText(int start, int end) override;
    void insertText(int offset, const QString& text) override;
    void replaceText(int start, int end, const QString& text) override;

private:
    const Text& All() const;
    /// From the positions that are told to those of the text, and back.
    doc::Pos PosOf(int offset) const;
    int OffsetOf(doc::Pos position) const;

    QtTextView& view_;
};

/// The one stretch in which two texts differ.
struct TextDifference {
    qsizetype at = 0;
    QString removed;
    QString inserted;
};
TextDifference DifferenceBetween(const QString& before, const QString& after);

/// Tells screen readers what is different between the text that they were told of last and this one.
void TellTextChange(QtTextView& view, const QString& before, const QString& after);
/// Tells them where the cursor and the selection are.
void TellCursor(QtTextView& view);

} // namespace korvane
