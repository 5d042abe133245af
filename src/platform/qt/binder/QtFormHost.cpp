#include "platform/qt/binder/QtFormHost.h"

#include "controls/Form.h"
#include "platform/qt/adaptors/MenuAdaptor.h"
#include "platform/qt/base/PopupPlace.h"
#include "platform/qt/look/Icons.h"

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <algorithm>
#include <chrono>
#include <utility>

namespace korvane {

namespace {

constexpr std::chrono::milliseconds kSoon{500};

} // namespace

QtFormHost::QtFormHost(std::span<const FormEntry> forms) : forms_(forms) {
    soon_.setSingleShot(true);
    QObject::connect(&soon_, &QTimer::timeout, &soon_, [this] {
        for (const std::string& name : std::exchange(wantedSoon_, {}))
            MakeAhead(name);
    });
}

QtFormHost::~QtFormHost() {
    for (const Shown& shown : shown_) {
        shown.binder->Detach();
        delete shown.window.data();
    }
}

const FormEntry* QtFormHost::EntryOf(std::string_view name) const {
    const auto entry = std::ranges::find(forms_, name, &FormEntry::name);
    return entry == forms_.end() ? nullptr : &*entry;
}

void QtFormHost::MakeAhead(std::string_view name) {
    const FormEntry* entry = EntryOf(name);
    if (entry == nullptr || IsMadeAhead(name)) return;
    auto look = entry->make();
    for (QWidget* part : look->findChildren<QWidget*>())
        part->ensurePolished();
    SetIcons(*look);
    ahead_.emplace(entry->name, std::move(look));
}

void QtFormHost::MakeAheadSoon(std::string_view name) {
    wantedSoon_.emplace(name);
    // What comes one after the other quickly isn't held up in between.
    soon_.start(kSoon);
}

std::unique_ptr<QWidget> QtFormHost::TakeLook(const Form& form) {
    if (auto made = ahead_.extract(form.Name()); !made.empty()) return std::move(made.mapped());
    const FormEntry* entry = EntryOf(form.Name());
    return entry == nullptr ? nullptr : entry->make();
}

QtFormHost::Shown* QtFormHost::Find(const Form& form) {
    const auto found = std::find_if(shown_.begin(), shown_.end(),
                                    [&form](const Shown& shown) { return shown.form == &form; });
    return found == shown_.end() ? nullptr : &*found;
}

QWidget* QtFormHost::Opener() const {
    QWidget* latest = nullptr;
    for (const Shown& shown : shown_) {
        if (shown.window.isNull() || !shown.window->isVisible() || !StandsAlone(*shown.window)) continue;
        latest = shown.window;
        if (latest->isActiveWindow()) break;
    }
    return latest;
}

QWidget* QtFormHost::Bind(Form& form) {
    if (const Shown* found = Find(form)) return found->window;
    auto look = TakeLook(form);
    if (look == nullptr) return nullptr;
    QWidget* window = look.release();
    if (QWidget* opener = Opener(); opener != nullptr && qobject_cast<QDialog*>(window) != nullptr) {
        window->setParent(opener, window->windowFlags());
    }
    PageSource& pages = *this;
    shown_.push_back({&form, window, std::make_unique<FormBinder>(form, *window, pages), nullptr});
    return window;
}

QWidget* QtFormHost::PageOf(Form& form) {
    return Bind(form);
}

void QtFormHost::Bring(Form& form, QWidget& window) {
    // A page is shown together with its tab.
    if (!StandsAlone(window)) return;
    window.show();
    if (const Shown* shown = Find(form)) shown->binder->FocusWanted();
}

void QtFormHost::Show(Form& form) {
    if (QWidget* window = Bind(form)) Bring(form, *window);
}

void QtFormHost::RunModal(Form& form) {
    QWidget* window = Bind(form);
    if (window == nullptr) return;
    window->setWindowModality(Qt::ApplicationModal);
    Bring(form, *window);
    RunUntilClosed(form);
}

void QtFormHost::RunUntilClosed(const Form& form) {
    Shown* shown = Find(form);
    if (shown == nullptr) return;
    QEventLoop loop;
    shown->loop = &loop;
    loop.exec();
}

void QtFormHost::Hide(Form& form) {
    Shown* shown = Find(form);
    if (shown == nullptr) return;
    const Shown gone = std::move(*shown);
    shown_.erase(shown_.begin() + (shown - shown_.data()));
    gone.binder->Detach();
    if (gone.loop != nullptr) gone.loop->quit();
    if (gone.window.isNull()) return;
    gone.window->hide();
    if (gone.window->property("madeAhead").toBool()) MakeAheadSoon(form.Name());
    // The widget is deleted later, because a click on one of its own buttons may be closing it now.
    gone.window->deleteLater();
}

void QtFormHost::PopUp(Menu& menu) {
    QMenu popup;
    FillPopup(popup, menu);
    popup.exec(PopupPlace::Wanted());
}

void QtFormHost::Raise(Form& form) {
    QWidget* window = WidgetOf(form);
    if (window == nullptr) return;
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    // What blocks the window stays above it and keeps the keyboard, such as a lock of the screen.
    const QWidgetList above = BlockersOf(form);
    for (QWidget* raised : QWidgetList{window} + above)
        raised->raise();
    (above.isEmpty() ? window : above.last())->activateWindow();
}

QWidgetList QtFormHost::BlockersOf(const Form& form) const {
    QWidgetList blockers;
    const auto own = std::ranges::find(shown_, &form, &Shown::form);
    for (auto shown = own; shown != shown_.end(); ++shown) {
        if (shown != own && shown->window != nullptr && shown->window->isModal()) blockers << shown->window;
    }
    QWidget* const box = QApplication::activeModalWidget();
    if (box != nullptr && box != own->window && !blockers.contains(box)) blockers << box;
    return blockers;
}

bool QtFormHost::ShowsModal() const {
    return QApplication::activeModalWidget() != nullptr;
}

QWidget* QtFormHost::WidgetOf(const Form& form) const {
    for (const Shown& shown : shown_) {
        if (shown.form == &form) return shown.window;
    }
    return nullptr;
}

} // namespace korvane
