#include "platform/qt/adaptors/WindowAdaptor.h"

#include "controls/CommandButton.h"
#include "platform/qt/adaptors/DroppedFiles.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/base/FinishTyping.h"
#include "platform/qt/base/Keys.h"

#include <QCloseEvent>
#include <QDialog>
#include <QDropEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>
#include <QScopeGuard>
#include <algorithm>

namespace korvane {

namespace {

/// Doubles each "[*]" in a caption, which Qt would otherwise take for the place of its "modified" mark.
QString WindowTitle(TextView caption) {
    return ToQString(caption).replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}

/// The first visible and enabled button whose property `which` is set.
CommandButton* FindButton(const Form& form, bool CommandButton::*which) {
    for (Control* control : form.Controls()) {
        auto* button = dynamic_cast<CommandButton*>(control);
        if (button != nullptr && button->*which && button->Enabled && button->Visible) return button;
    }
    return nullptr;
}

/// Stores a length that the user changed. A length that differs only by the rounding to pixels keeps its
/// exact value.
void Take(Property<Twips>& length, int pixels) {
    if (ToPixels(length) != pixels) length = ToTwips(pixels);
}

} // namespace

bool StandsAlone(const QWidget& widget) {
    return qobject_cast<const QDialog*>(&widget) != nullptr ||
           qobject_cast<const QMainWindow*>(&widget) != nullptr;
}

WindowAdaptor::WindowAdaptor(Form& form, QWidget& window) : QObject(&window), form_(&form), window_(window) {
    form.SetView(this);
    window.installEventFilter(this);
}

WindowAdaptor::~WindowAdaptor() {
    if (form_ != nullptr) form_->SetView(nullptr);
}

void WindowAdaptor::WriteAll() {
    Follow(*form_, Aspect::Caption);
    Follow(*form_, Aspect::Place);
    Follow(*form_, Aspect::State);
}

void WindowAdaptor::Detach() {
    if (form_ == nullptr) return;
    form_->SetView(nullptr);
    Gone();
}

void WindowAdaptor::Gone() {
    form_ = nullptr;
    window_.removeEventFilter(this);
}

void WindowAdaptor::Follow(Observed&, Aspect aspect) {
    if (form_ == nullptr) return;
    if (aspect == Aspect::Caption) window_.setWindowTitle(WindowTitle(form_->Caption.Get()));
    if (aspect == Aspect::Place) WritePlace();
    if (aspect == Aspect::State) WriteState();
}

bool WindowAdaptor::eventFilter(QObject* watched, QEvent* event) {
    if (form_ == nullptr) return false;
    switch (event->type()) {
    case QEvent::Close:
        return CloseWanted(*event);
    case QEvent::KeyPress:
        return KeyPressed(*static_cast<QKeyEvent*>(event));
    case QEvent::DragEnter:
    case QEvent::DragMove:
        AcceptFiles(*event);
        return true;
    case QEvent::Drop:
        TakeDrop(*event);
        return true;
    default:
        Follow(event->type());
        return QObject::eventFilter(watched, event);
    }
}

void WindowAdaptor::Follow(QEvent::Type event) {
    switch (event) {
    case QEvent::MouseButtonRelease:
        form_->Clicked();
        break;
    case QEvent::WindowActivate:
        TellActivated();
        break;
    case QEvent::WindowStateChange:
        ReadState();
        break;
    case QEvent::Show:
    case QEvent::FontChange:
        MakeRoom();
        break;
    case QEvent::Move:
        ReadPlace();
        break;
    case QEvent::Resize:
        ReadPlace();
        if (form_ != nullptr) form_->Resize();
        break;
    default:
        break;
    }
}

void WindowAdaptor::TellActivated() {
    // A page is activated by its tab. When its window comes to the front the keyboard stays where it was.
    if (!StandsAlone(window_)) return;
    // The handler runs later. It may run an event loop, and then keys would arrive before the window has
    // given the keyboard to one of its widgets.
    hold_.Begin();
    QMetaObject::invokeMethod(this, &WindowAdaptor::Activate, Qt::QueuedConnection);
}

/// The handler may give the keyboard to another control. Keys that were typed meanwhile wait until it has.
void WindowAdaptor::Activate() {
    const QPointer<WindowAdaptor> alive(this);
    const auto giveKeys = qScopeGuard([&alive] {
        if (alive) alive->hold_.End();
    });
    if (form_ != nullptr) form_->Activate();
}

bool WindowAdaptor::CloseWanted(QEvent& event) {
    FinishTyping();
    event.setAccepted(form_ == nullptr || form_->Close());
    return true;
}

void WindowAdaptor::TakeDrop(QEvent& event) {
    AcceptFiles(event);
    if (!event.isAccepted()) return;
    FinishTyping();
    // The files are handled later. The program they are dragged from waits until the drop has ended, and
    // loading a file may ask questions.
    QMetaObject::invokeMethod(
        this,
        [this, files = LocalFiles(*static_cast<QDropEvent&>(event).mimeData())] {
            if (form_ != nullptr) form_->FilesDropped(files);
        },
        Qt::QueuedConnection);
}

bool WindowAdaptor::KeyPressed(const QKeyEvent& event) {
    KeyEvent key = ToKeyEvent(event);
    // A window that keeps the keyboard for itself gets all keys, whatever part of it has the focus.
    if (window_.focusWidget() == nullptr || QWidget::keyboardGrabber() == &window_) form_->KeyDown(key);
    if (key.consumed || form_ == nullptr) return true;
    if (key.mask == Mask::None && PressButtonFor(key.code)) return true;
    // Qt's dialog would close at Esc and search for a button at Return by itself.
    return key.code == Key::Escape || key.code == Key::Return;
}

bool WindowAdaptor::PressButtonFor(int code) {
    if (code == Key::Return) {
        if (auto* focused = qobject_cast<QPushButton*>(window_.focusWidget())) {
            focused->click();
            return true;
        }
    }
    CommandButton* button = nullptr;
    if (code == Key::Return) button = FindButton(*form_, &CommandButton::Default);
    if (code == Key::Escape) button = FindButton(*form_, &CommandButton::Cancel);
    if (button == nullptr) return false;
    button->Press();
    return true;
}

/// Qt doesn't look at the contents of a window that has a smallest size of its own, and with a large font
/// they may need more.
void WindowAdaptor::MakeRoom() {
    const QLayout* layout = window_.layout();
    if (qobject_cast<QDialog*>(&window_) == nullptr || layout == nullptr) return;
    const QSize least = window_.minimumSize().expandedTo(layout->totalMinimumSize());
    const int width = std::max(window_.width(), least.width());
    const int high = layout->hasHeightForWidth() ? layout->totalMinimumHeightForWidth(width) : 0;
    window_.setMinimumSize(least.expandedTo(QSize(0, high)));
}

void WindowAdaptor::WritePlace() {
    if (!StandsAlone(window_)) return;
    const QSize size(ToPixels(form_->Width), ToPixels(form_->Height));
    const QPoint place(ToPixels(form_->Left), ToPixels(form_->Top));
    if (!size.isEmpty() && size != window_.size()) window_.resize(size);
    // If no place is known for a window that isn't shown yet, the desktop chooses one.
    const bool placed = window_.isVisible() || !place.isNull();
    if (placed && place != window_.pos()) window_.move(place);
}

void WindowAdaptor::WriteState() {
    if (!StandsAlone(window_)) return;
    constexpr auto kBoth = Qt::WindowMinimized | Qt::WindowMaximized;
    Qt::WindowStates wanted;
    if (form_->State == FormState::Minimised) wanted = Qt::WindowMinimized;
    if (form_->State == FormState::Maximised) wanted = Qt::WindowMaximized;
    if ((window_.windowState() & kBoth) != wanted) window_.setWindowState(wanted);
}

void WindowAdaptor::ReadState() {
    const bool large = window_.isMaximized() || window_.isFullScreen();
    const FormState normal = large ? FormState::Maximised : FormState::Normal;
    form_->State = window_.isMinimized() ? FormState::Minimised : normal;
}

void WindowAdaptor::ReadPlace() {
    // The place of a window that isn't on the screen yet says nothing about what the user wants.
    if (!StandsAlone(window_) || !window_.isVisible() || window_.isMinimized() || window_.isMaximized())
        return;
    const QRect place(window_.pos(), window_.size());
    Take(form_->Left, place.left());
    Take(form_->Top, place.top());
    Take(form_->Width, place.width());
    Take(form_->Height, place.height());
}

} // namespace korvane
