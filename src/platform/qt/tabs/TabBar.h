#pragma once

#include "platform/qt/base/Ears.h"

#include <QHash>
#include <QPainterPath>
#include <QTabBar>

namespace korvane {

struct TabColours;
struct TabStyle;

/// A strip of tabs that is drawn in one of the tab styles. Each tab has a button that closes it.
class TabBar : public QTabBar {
    Q_OBJECT

public:
    explicit TabBar(QWidget* parent = nullptr);

    /// Sets the tab style by its number, and whether there is a line around the strip.
    void SetLook(int style, bool framed);
    TabColours Colours() const;
    /// Draws a dot on the tab of something that has changed.
    void SetAltered(int index, bool altered);
    bool Altered(int index) const { return tabData(index).toBool(); }
    /// Sets the caption. "&&" is shown as an ampersand.
    void SetCaption(int index, const QString& caption);
    /// What is said of the tab: its caption, and whether it has changed.
    QString SpokenName(int index) const;
    /// The ears outlive the strip, which has usual ones until then.
    void SetEars(Ears& ears) { ears_ = &ears; }
    /// What is told at the free end of the strip, the most important part first.
    void SetStatus(const QStringList& parts);
    /// The parts for which there is room, as they are shown.
    QString ShownStatus() const;
    /// The place of the close button in a tab that covers `tab`.
    static QRect CloseButtonOf(const QRect& tab);

protected:
    void initStyleOption(QStyleOptionTab* option, int index) const override;
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override;
    void tabInserted(int index) override;
    void tabLayoutChange() override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    int CaptionWidth(const QString& caption) const;
    /// The average width of a letter and the height of a line.
    const QSize& LetterSize() const;
    void ForgetSizes();
    QString ShownCaption(int index) const;
    void NameButton(int index);
    void TellOf(int index, QAccessible::Event kind);
    void CloseAt(const QWidget& button);
    QRect ShapeOf(int index) const;
    /// The place beside the tabs.
    QRect FreeEnd() const;
    QPainterPath OutlineOf(const QRectF& shape) const;
    void PaintTab(QPainter& painter, int index, const TabColours& colours) const;
    void PaintMark(QPainter& painter, const QRect& shape, const TabColours& colours) const;
    void PaintDot(QPainter& painter, int index, const QColor& colour) const;
    void PaintStatus(QPainter& painter, const TabColours& colours) const;
    void PaintCaption(QPainter& painter, int index, const QColor& colour) const;

    const TabStyle* style_;
    bool framed_ = false;
    Ears usualEars_;
    Ears* ears_ = &usualEars_;
    QStringList status_;
    // Sizes in the present font. They are kept because for each new tab Qt asks several times for the sizes
    // of all tabs.
    mutable QHash<QString, int> captionWidths_;
    mutable QSize letterSize_;
};

} // namespace korvane
