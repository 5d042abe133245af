#include "platform/qt/tabs/TabPages.h"

#include <QEvent>
#include <QVBoxLayout>

namespace korvane {

namespace {

/// Doubles ampersands, so that the tab shows them and doesn't use them to mark a key.
QString TabText(const QString& caption) {
    return QString(caption).replace(QLatin1Char('&'), QLatin1String("&&"));
}

constexpr int kAroundHint = 24;
constexpr int kWidestStart = 640;
constexpr int kShareOfStart = 6;

} // namespace

TabPages::TabPages(QWidget* parent)
    : QWidget(parent),
      tabs_(new TabBar(this)),
      stack_(new QStackedWidget(this)),
      empty_(new QWidget(stack_)),
      hint_(new QLabel(empty_)) {
    tabs_->setObjectName("plainTabs");
    tabs_->setAccessibleName(tr("Open databases"));

    stack_->setObjectName("plainStack");
    hint_->setObjectName("plainHint");
    hint_->setAlignment(Qt::AlignCenter);
    hint_->setTextFormat(Qt::PlainText);
    hint_->setWordWrap(true);
    hint_->setForegroundRole(QPalette::WindowText);
    auto* middle = new QVBoxLayout(empty_);
    middle->setSpacing(kAroundHint);
    middle->addStretch(1);
    middle->addWidget(hint_);
    middle->addStretch(1);
    stack_->addWidget(empty_);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(tabs_);
    column->addWidget(stack_, 1);
}

bool TabPages::event(QEvent* event) {
    if (event->type() == QEvent::Polish) TakeStart();
    return QWidget::event(event);
}

/// Puts the widget of the window's own below the hint.
void TabPages::TakeStart() {
    auto* start = findChild<QWidget*>(QStringLiteral("plainStart"), Qt::FindDirectChildrenOnly);
    if (start == nullptr) return;
    start->setMaximumWidth(kWidestStart);
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(start, kShareOfStart);
    row->addStretch(1);
    auto* middle = static_cast<QVBoxLayout*>(empty_->layout());
    middle->insertLayout(middle->indexOf(hint_) + 1, row);
}

void TabPages::Add(QWidget& page, const QString& caption) {
    pages_.append(&page);
    stack_->addWidget(&page);
    // The tab gets its caption here, because Qt lays out all tabs again after each change of a text.
    tabs_->addTab(TabText(caption));
    SetToolTip(Count() - 1, caption);
}

void TabPages::Remove(int index) {
    QWidget* page = pages_.takeAt(index);
    stack_->removeWidget(page);
    page->hide();
    tabs_->removeTab(index);
    if (pages_.isEmpty()) BringToFront(*empty_);
}

void TabPages::SetCaption(int index, const QString& caption) {
    tabs_->SetCaption(index, TabText(caption));
    SetToolTip(index, caption);
}

void TabPages::SetToolTip(int index, const QString& toolTip) {
    tabs_->setTabToolTip(index, Qt::mightBeRichText(toolTip) ? toolTip.toHtmlEscaped() : toolTip);
}

/// Qt stops painting while the page changes, and to do so it tells every widget of all pages. It leaves this
/// out if the attribute is set already.
void TabPages::BringToFront(QWidget& page) {
    stack_->setAttribute(Qt::WA_UpdatesDisabled, true);
    stack_->setCurrentWidget(&page);
    stack_->setAttribute(Qt::WA_UpdatesDisabled, false);
    stack_->update();
}

void TabPages::ShowPage(int index) {
    QWidget& page = *pages_.at(index);
    BringToFront(page);
    tabs_->setCurrentIndex(index);
    // This works for a window that isn't on the screen yet too: its page has the keyboard when it is shown.
    QWidget* wanted = page.focusWidget();
    if (wanted == nullptr) wanted = page.nextInFocusChain();
    if (page.isAncestorOf(wanted)) wanted->setFocus(Qt::OtherFocusReason);
}

} // namespace korvane
