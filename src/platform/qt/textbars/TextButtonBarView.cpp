#include "platform/qt/textbars/TextButtonBarView.h"

#include "common/text/Shown.h"
#include "controls/text/TextStyles.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/look/Icons.h"

#include <QFontDatabase>
#include <QLineEdit>
#include <algorithm>
#include <utility>

namespace korvane {

namespace {

constexpr int kSizes[] = {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 28, 32, 36, 48, 72};
constexpr int kZooms[] = {50, 75, 100, 125, 150, 200, 300, 400, 500};
constexpr int kLeastZoom = 10;
constexpr int kMostZoom = 500;

struct BarButton {
    const char* icon;
    const char* name;
    const char* tip;
    bool (*isOn)(const TextControl&);
    void (*set)(TextControl&, bool on);
};

template <doc::Alignment kind>
bool IsAligned(const TextControl& control) {
    return control.Alignment() == static_cast<int>(kind);
}

template <doc::Alignment kind>
void Align(TextControl& control, bool) {
    control.SetAlignment(static_cast<int>(kind));
}

template <doc::ListKind kind>
bool IsList(const TextControl& control) {
    return control.ParagraphFormat().list.kind == kind;
}

template <doc::ListKind kind>
void MakeList(TextControl& control, bool on) {
    control.SetListMark({.kind = on ? kind : doc::ListKind::None});
}

/// A group begins with a row without an icon.
constexpr BarButton kButtons[] = {
    {"textBold", "Bold", "Bold (Ctrl+Shift+B)", [](const TextControl& c) { return c.FontBold() == 1; },
     [](TextControl& c, bool on) { c.SetFontBold(on ? 1 : 0); }},
    {"textItalic", "Italic", "Italic (Ctrl+Shift+I)",
     [](const TextControl& c) { return c.FontItalic() == 1; },
     [](TextControl& c, bool on) { c.SetFontItalic(on ? 1 : 0); }},
    {"textUnderline", "Underline", "Underline (Ctrl+Shift+U)",
     [](const TextControl& c) { return c.FontUnderline() == 1; },
     [](TextControl& c, bool on) { c.SetFontUnderline(on ? 1 : 0); }},
    {"textStrike", "Strike out", "Strike out", [](const TextControl& c) { return c.FontStrikethru() == 1; },
     [](TextControl& c, bool on) { c.SetFontStrikethru(on ? 1 : 0); }},
    {},
    {"alignLeft", "Align left", "Align left", IsAligned<doc::Alignment::Left>, Align<doc::Alignment::Left>},
    {"alignCentre", "Centre", "Centre", IsAligned<doc::Alignment::Centred>, Align<doc::Alignment::Centred>},
    {"alignRight", "Align right", "Align right", IsAligned<doc::Alignment::Right>,
     Align<doc::Alignment::Right>},
    {"alignJustify", "Justify", "Justify", IsAligned<doc::Alignment::Justified>,
     Align<doc::Alignment::Justified>},
    {},
    {"textBullets", "Bullets", "Bullets", IsList<doc::ListKind::Bullet>, MakeList<doc::ListKind::Bullet>},
    {"textNumbers", "Numbers", "Numbers", IsList<doc::ListKind::Decimal>, MakeList<doc::ListKind::Decimal>},
};

/// The names of all fonts, which take long to find, so the list is filled when it is first used.
class FontBox final : public QComboBox {
public:
    using QComboBox::QComboBox;

    void showPopup() override {
        Fill();
        QComboBox::showPopup();
    }

protected:
    void focusInEvent(QFocusEvent* event) override {
        Fill();
        QComboBox::focusInEvent(event);
    }

private:
    void Fill() {
        if (count() > 0) return;
        const QSignalBlocker quiet(this);
        const QString shown = currentText();
        addItems(QFontDatabase::families());
        setCurrentIndex(findText(shown));
        setEditText(shown);
    }
};

int NumberIn(const QString& text) {
    return QString(text).remove(u'%').trimmed().toInt();
}

/// Doesn't disturb what the user is typing in the box.
void ShowIn(QComboBox& box, const QString& text) {
    if (box.lineEdit() != nullptr && box.lineEdit()->hasFocus() && box.lineEdit()->isModified()) return;
    box.setCurrentIndex(box.findText(text, Qt::MatchExactly));
    if (box.isEditable()) box.setEditText(text);
}

} // namespace

TextButtonBarView::TextButtonBarView(QWidget* parent)
    : QToolBar(parent),
      style_(AddBox(new QComboBox, "cboStyle", tr("Style of the paragraph"), 9)),
      font_(AddBox(new FontBox, "cboFont", tr("Font"), 13)),
      size_(AddBox(new QComboBox, "cboSize", tr("Size of the font"), 3)),
      zoom_(AddBox(new QComboBox, "cboZoom", tr("Zoom"), 5)) {
    setIconSize({18, 18});
    for (const TextStyle& style : TextStyles())
        style_->addItem(ToQString(style.name));
    for (const int size : kSizes)
        size_->addItem(QString::number(size));
    for (const int zoom : kZooms)
        zoom_->addItem(tr("%1 %").arg(zoom));
    for (QComboBox* const box : {font_, size_, zoom_}) {
        box->setEditable(true);
        box->setInsertPolicy(QComboBox::NoInsert);
    }
    AddButtons();
    connect(style_, &QComboBox::activated, this, [this](int index) {
        Change([index](TextControl& control) {
            ApplyStyle(control, TextStyles()[static_cast<std::size_t>(index)]);
        });
    });
    Serve(*font_, [](TextControl& control, const QString& name) { control.SetFontName(ToText(name)); });
    Serve(*size_, [](TextControl& control, const QString& size) { control.SetFontSize(NumberIn(size)); });
    Serve(*zoom_, [](TextControl& control, const QString& zoom) {
        if (NumberIn(zoom) > 0) control.ZoomFactor = std::clamp(NumberIn(zoom), kLeastZoom, kMostZoom);
    });
    setEnabled(false);
}

QComboBox* TextButtonBarView::AddBox(QComboBox* box, const char* name, const QString& tip, int letters) {
    box->setObjectName(QLatin1String(name));
    box->setToolTip(tip);
    box->setAccessibleName(tip);
    box->setMinimumContentsLength(letters);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    addWidget(box);
    return box;
}

void TextButtonBarView::Serve(QComboBox& box, const std::function<void(TextControl&, const QString&)>& use) {
    const auto take = [this, &box, use] {
        const QString text = box.currentText();
        box.lineEdit()->setModified(false);
        Change([&](TextControl& control) { use(control, text); });
    };
    connect(&box, &QComboBox::activated, this, take);
    connect(box.lineEdit(), &QLineEdit::returnPressed, this, take);
}

void TextButtonBarView::AddButtons() {
    addSeparator();
    for (const BarButton& button : kButtons) {
        if (button.icon == nullptr) {
            addSeparator();
            continue;
        }
        QAction* const action = addAction(TintedIcon(QLatin1String(button.icon)), tr(button.name));
        action->setToolTip(tr(button.tip));
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [this, set = button.set](bool on) {
            Change([set, on](TextControl& control) { set(control, on); });
        });
        buttons_.push_back(action);
    }
}

void TextButtonBarView::SetView(QtTextView* view) {
    if (view_ != nullptr) view_->disconnect(this);
    view_ = view;
    if (view_ != nullptr) connect(view_, &QtTextView::Seen, this, &TextButtonBarView::ShowSoon);
    ShowSoon();
}

void TextButtonBarView::Change(const Use& use) {
    if (TextControl* const control = Control()) {
        const doc::Step together(control->Store());
        use(*control);
    }
    if (view_ != nullptr) view_->setFocus(Qt::OtherFocusReason);
    ShowSoon();
}

/// The view tells of every step of the selection, and only the last one can be seen.
void TextButtonBarView::ShowSoon() {
    if (std::exchange(asked_, true)) return;
    QMetaObject::invokeMethod(this, &TextButtonBarView::Show, Qt::QueuedConnection);
}

void TextButtonBarView::Show() {
    asked_ = false;
    const TextControl* const control = Control();
    setEnabled(control != nullptr && control->Enabled && !control->Locked);
    if (control == nullptr) return;
    const TextStyle* const style = StyleOf(*control);
    ShowIn(*style_, style == nullptr ? QString() : ToQString(style->name));
    ShowIn(*font_, ToQString(Shown(control->FontName())));
    ShowIn(*size_, QString::number(control->FontSize()));
    ShowIn(*zoom_, tr("%1 %").arg(control->ZoomFactor.Get()));
    auto action = buttons_.begin();
    for (const BarButton& button : kButtons) {
        if (button.icon != nullptr) (*action++)->setChecked(button.isOn(*control));
    }
}

} // namespace korvane
