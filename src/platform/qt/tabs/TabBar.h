#pragma once

#include <QHash>
#include <QPainterPath>
#include <QTabBar>

namespace korvane {

struct TabColours;
struct TabStyle;

/// A strip of tabs in the look of a style, each with a button that closes it.
class TabBar : public QTabBar {
    Q_OBJECT

public:
    explicit TabBar(QWidget* parent = nullptr);

    /// Takes the look of a style number, with or without a line round the strip.
    void SetLook(int style, bool framed);
    TabColours Colours() const;
    /// Where the button that closes a tab stands in the tab's place.
    static QRect CloseButtonOf(const QRect& tab);

protected:
    void initStyleOption(QStyleOptionTab* option, int index) const override;
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override;
    void tabInserted(int index) override;
    void tabLayoutChange() override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    int CaptionWidth(const QString& caption) const;
    /// How wide a letter is on average, and how high a line.
    const QSize& LetterSize() const;
    void ForgetSizes();
    void CloseAt(const QWidget& button);
    QRect ShapeOf(int index) const;
    QPainterPath OutlineOf(const QRectF& shape) const;
    void PaintTab(QPainter& painter, int index, const TabColours& colours) const;
    void PaintMark(QPainter& painter, const QRect& shape, const TabColours& colours) const;
    void PaintCaption(QPainter& painter, int index, const QColor& colour) const;

    const TabStyle* style_;
    bool framed_ = false;
    // Sizes in the present font. Each new tab makes the toolkit ask for those of all tabs several times.
    mutable QHash<QString, int> captionWidths_;
    mutable QSize letterSize_;
};

} // namespace korvane
