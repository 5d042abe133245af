#include "platform/qt/binder/CalmStyle.h"

#include "platform/qt/binder/ScrollBarLook.h"
#include "platform/qt/look/Contrast.h"
#include "platform/qt/look/Icons.h"
#include "platform/qt/look/NativeStyle.h"
#include "platform/qt/look/Palettes.h"
#include "platform/qt/tabs/TabBar.h"
#include "platform/qt/tiles/TilesView.h"

#include <QAbstractScrollArea>
#include <QLabel>
#include <QLinearGradient>
#include <QMainWindow>
#include <QPainter>
#include <QStyleOption>
#include <QToolButton>
#include <QTreeView>
#include <algorithm>
#include <array>

namespace korvane {

namespace {

constexpr int kHeaderMargin = 5;
constexpr int kAirInList = 4;
constexpr int kRing = 2;
/// In percent, as `QColor::darker` takes it.
constexpr int kFieldEdge = 140;

// The parts of controls that look as the system draws them. All of them are as large as in Fusion.
constexpr std::array kNativePrimitives{QStyle::PE_PanelButtonCommand, QStyle::PE_IndicatorCheckBox,
                                       QStyle::PE_IndicatorRadioButton};
constexpr std::array kNativeControls{QStyle::CE_ProgressBarGroove, QStyle::CE_ProgressBarContents};
constexpr std::array kNativeComplexControls{QStyle::CC_ComboBox};

bool IsNative(QStyle::PrimitiveElement element) {
    return std::ranges::find(kNativePrimitives, element) != kNativePrimitives.end();
}

bool IsNative(QStyle::ControlElement element) {
    return std::ranges::find(kNativeControls, element) != kNativeControls.end();
}

bool IsNative(QStyle::ComplexControl control) {
    return std::ranges::find(kNativeComplexControls, control) != kNativeComplexControls.end();
}

/// The colour of an edge that can be seen on a dark window.
QColor EdgeOnDark(const QPalette& palette) {
    return Blend(palette.color(QPalette::Window), palette.color(QPalette::WindowText), 0.35);
}

/// The edge of an area, as narrow areas of their own. A line is drawn point by point, which takes ten times
/// as long.
void FillEdge(QPainter& painter, const QRect& all, const QColor& colour, int freeAtCorners) {
    for (const int y : {all.top(), all.bottom()})
        painter.fillRect(all.left() + freeAtCorners, y, all.width() - 2 * freeAtCorners, 1, colour);
    for (const int x : {all.left(), all.right()})
        painter.fillRect(x, all.top() + 1, 1, all.height() - 2, colour);
}

/// The edge of a field for texts, which looks round without its corners.
void DrawField(const QStyleOption& option, QPainter& painter) {
    const QPalette& palette = option.palette;
    const QColor colour =
        IsDark(palette) ? EdgeOnDark(palette) : palette.color(QPalette::Window).darker(kFieldEdge);
    FillEdge(painter, option.rect, colour, 1);
}

/// The colour in which Fusion draws the frame of a list, which could hardly be seen on a dark window.
QColor FrameColour(const QPalette& palette) {
    constexpr int kLighter = 108;
    const QColor window = palette.color(QPalette::Window);
    if (!IsDark(palette)) return window.darker(kFieldEdge).lighter(kLighter);
    return WithContrast(EdgeOnDark(palette), {window, palette.color(QPalette::Base)}, kReadable);
}

/// The frame of a list, a tree or a text.
void DrawFrame(const QStyleOption& option, QPainter& painter) {
    FillEdge(painter, option.rect, FrameColour(option.palette), 0);
}

/// Whether the element is drawn as a hollow in its window. On a dark window it could not be seen without an
/// edge.
bool IsHollow(QStyle::PrimitiveElement element) {
    return element == QStyle::PE_IndicatorCheckBox || element == QStyle::PE_IndicatorRadioButton ||
           element == QStyle::PE_FrameLineEdit;
}

void DrawEdge(QStyle::PrimitiveElement element, const QStyleOption& option, QPainter& painter) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(EdgeOnDark(option.palette));
    const QRectF edge = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (element == QStyle::PE_IndicatorRadioButton) {
        painter.drawEllipse(edge);
    } else {
        painter.drawRoundedRect(edge, 2, 2);
    }
    painter.restore();
}

void DrawRing(QPainter& painter, const QRect& area, const QColor& colour) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour, kRing));
    constexpr qreal kHalf = kRing / 2.0;
    painter.drawRoundedRect(QRectF(area).adjusted(kHalf, kHalf, -kHalf, -kHalf), 2, 2);
    painter.restore();
}

/// The colour of a ring on the usual surfaces of a window.
QColor RingOn(const QPalette& palette) {
    return RingColour(palette, {palette.color(QPalette::Window), palette.color(QPalette::Base),
                                palette.color(QPalette::Button)});
}

/// A chosen line of a list has a ground of its own, and so has a tab.
QColor RingOf(const QStyleOption& option) {
    const auto* ring = qstyleoption_cast<const QStyleOptionFocusRect*>(&option);
    const QPalette& palette = option.palette;
    const bool own = ring != nullptr && ring->backgroundColor.isValid() &&
                     ring->backgroundColor != palette.color(QPalette::Window);
    return own ? RingColour(palette, {ring->backgroundColor}) : RingOn(palette);
}

/// The ring of a flat button needn't be as far inside as Fusion draws it.
QRect RingPlace(const QStyleOption& option, const QWidget* widget) {
    constexpr int kOut = 2;
    const bool flat = qobject_cast<const QToolButton*>(widget) != nullptr;
    return flat ? option.rect.adjusted(-kOut, -kOut, kOut, kOut) : option.rect;
}

bool IsScrolled(const QWidget* widget) {
    return qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
}

/// Whether the frame is that of a control that shows the keyboard by it: a list, a text, or a value that can
/// be walked with the keyboard.
bool IsRinged(const QWidget* widget) {
    return IsScrolled(widget) || qobject_cast<const TilesView*>(widget) != nullptr ||
           qobject_cast<const QLabel*>(widget) != nullptr;
}

/// Whether nothing is to be seen of a part of a line in a list or tree. That is so for most of them, and
/// Fusion mixes its colours before it looks.
bool IsUnseen(QStyle::PrimitiveElement element, const QStyleOption& option) {
    if (element == QStyle::PE_IndicatorBranch) return !option.state.testFlag(QStyle::State_Children);
    if (element != QStyle::PE_PanelItemViewRow && element != QStyle::PE_PanelItemViewItem) return false;
    const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(&option);
    return item != nullptr && !item->state.testFlag(QStyle::State_Selected) &&
           !item->features.testFlag(QStyleOptionViewItem::Alternate) &&
           item->backgroundBrush.style() == Qt::NoBrush;
}

/// Makes the text of a chosen line easy to read. The line looks the same where the keyboard is elsewhere,
/// because the icons of chosen lines have only one colour.
void MakeReadable(QPalette& palette) {
    const QColor text = palette.color(QPalette::Active, QPalette::HighlightedText);
    const QColor back = palette.color(QPalette::Active, QPalette::Highlight);
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::HighlightedText, text);
        palette.setColor(group, QPalette::Highlight, WithContrast(back, {text}, kEasyToRead));
    }
}

/// Whether the tool bar is alone at the upper edge of a main window.
bool IsAtTop(const QStyleOptionToolBar& bar, const QWidget* widget) {
    return widget != nullptr && qobject_cast<const QMainWindow*>(widget->parentWidget()) != nullptr &&
           bar.toolBarArea == Qt::TopToolBarArea && bar.positionOfLine == QStyleOptionToolBar::OnlyOne &&
           bar.state.testFlag(QStyle::State_Horizontal);
}

/// Draws what Fusion does. Fusion draws lines, and Qt gives a line of half-transparent points to several
/// threads, which takes longer than all icons of the bar.
void DrawToolBar(const QStyleOption& option, QPainter& painter) {
    constexpr QColor kLight(255, 255, 255, 90);
    constexpr QColor kShadow(0, 0, 0, 60);
    constexpr int kLighter = 104;
    const QRect& bar = option.rect;
    const QColor window = option.palette.color(QPalette::Window);
    QLinearGradient ground(bar.topLeft(), bar.bottomLeft());
    ground.setColorAt(0, window.lighter(kLighter));
    ground.setColorAt(1, window);
    painter.fillRect(bar, ground);
    painter.fillRect(bar.left(), bar.bottom(), bar.width(), 1, kLight);
    painter.fillRect(bar.left(), bar.bottom() - 1, bar.width(), 1, kShadow);
    painter.fillRect(bar.left(), bar.top(), bar.width(), 1, kLight);
}

QString OwnIconName(QStyle::StandardPixmap picture) {
    switch (picture) {
    case QStyle::SP_MessageBoxInformation:
        return QStringLiteral("boxInformation");
    case QStyle::SP_MessageBoxQuestion:
        return QStringLiteral("boxQuestion");
    case QStyle::SP_MessageBoxWarning:
        return QStringLiteral("boxExclamation");
    case QStyle::SP_MessageBoxCritical:
        return QStringLiteral("boxStop");
    case QStyle::SP_ToolBarHorizontalExtensionButton:
        return QStringLiteral("moreTools");
    case QStyle::SP_LineEditClearButton:
        return QStringLiteral("clearText");
    default:
        return {};
    }
}

} // namespace

CalmStyle::CalmStyle() : QProxyStyle(QStringLiteral("Fusion")), native_(NewNativeStyle()) {}

void CalmStyle::polish(QPalette& palette) {
    QProxyStyle::polish(palette);
    MakeReadable(palette);
}

template <class Element>
const QStyle* CalmStyle::NativeFor(Element element, const QStyleOption& option) const {
    // Systems draw in light colours only.
    return native_ != nullptr && IsNative(element) && !IsDark(option.palette) ? native_.get() : nullptr;
}

void CalmStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    if (IsUnseen(element, *option)) return;
    if (element == PE_Frame && IsScrolled(widget)) return DrawFrame(*option, *painter);
    if (element == PE_FrameFocusRect) return DrawRing(*painter, RingPlace(*option, widget), RingOf(*option));
    const bool focused = option->state.testFlag(State_HasFocus);
    if (element == PE_FrameLineEdit && !focused) return DrawField(*option, *painter);
    if (const QStyle* const native = NativeFor(element, *option))
        return native->drawPrimitive(element, option, painter, widget);
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_FrameLineEdit && focused) {
        DrawRing(*painter, option->rect, RingOn(option->palette));
    } else if (IsHollow(element) && IsDark(option->palette)) {
        DrawEdge(element, *option, *painter);
    }
}

void CalmStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionToolBar*>(option);
    if (element == CE_ToolBar && bar != nullptr && IsAtTop(*bar, widget)) return DrawToolBar(*bar, *painter);
    if (const QStyle* const native = NativeFor(element, *option))
        return native->drawControl(element, option, painter, widget);
    QProxyStyle::drawControl(element, option, painter, widget);
    const bool ringed = element == CE_PushButton || (element == CE_ShapedFrame && IsRinged(widget));
    if (ringed && option->state.testFlag(State_HasFocus))
        DrawRing(*painter, option->rect, RingOn(option->palette));
}

void CalmStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const {
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && slider != nullptr) return DrawScrollBar(*slider, *painter, *this, widget);
    if (const QStyle* const native = NativeFor(control, *option)) {
        native->drawComplexControl(control, option, painter, widget);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
    const bool ringed = control == CC_ComboBox || control == CC_Slider;
    if (ringed && option->state.testFlag(State_HasFocus))
        DrawRing(*painter, option->rect, RingOn(option->palette));
}

int CalmStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    if (metric == PM_HeaderMargin) return kHeaderMargin;
    // A cell's text begins below that of its header, and a number keeps its distance from what follows it.
    const bool ofCell = metric == PM_FocusFrameHMargin && qobject_cast<const QTreeView*>(widget) != nullptr;
    return ofCell ? kHeaderMargin - 1 : QProxyStyle::pixelMetric(metric, option, widget);
}

/// `TabBar` places its buttons by itself. This is the same place, so that a layout doesn't move them twice.
QRect CalmStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
    if (element == SE_TabBarTabRightButton && qobject_cast<const TabBar*>(widget) != nullptr)
        return TabBar::CloseButtonOf(option->rect);
    return QProxyStyle::subElementRect(element, option, widget);
}

QSize CalmStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
    const QSize whole = QProxyStyle::sizeFromContents(type, option, size, widget);
    return type == CT_ItemViewItem ? whole + QSize(0, kAirInList) : whole;
}

QIcon CalmStyle::standardIcon(StandardPixmap picture, const QStyleOption* option,
                              const QWidget* widget) const {
    const QIcon own = TintedIcon(OwnIconName(picture));
    return own.isNull() ? QProxyStyle::standardIcon(picture, option, widget) : own;
}

int CalmStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* returned) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

} // namespace korvane
