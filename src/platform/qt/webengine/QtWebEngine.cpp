#include "platform/qt/webengine/QtWebEngine.h"

#include "platform/qt/webengine/QuietPage.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QOpenGLContext>
#include <QQuickWindow>
#include <QShortcut>
#include <QThread>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>
#include <QWebEngineDownloadRequest>
#include <QWebEngineHistory>
#include <QWebEngineProfile>
#include <QWebEngineView>
#include <mutex>
#include <utility>

// Qt WebEngine sets this itself in a program that is linked with it.
Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext* context);

namespace korvane {

namespace {

std::unique_ptr<QOpenGLContext>& SharedContext() {
    static std::unique_ptr<QOpenGLContext> context;
    return context;
}

/// Qt WebEngine doesn't ask whether there is one. The program doesn't make it at its start, because that
/// takes time and memory.
void ShareContext() {
    if (QOpenGLContext::globalShareContext() != nullptr) return;
    SharedContext() = std::make_unique<QOpenGLContext>();
    SharedContext()->create();
    qt_gl_set_global_share_context(SharedContext().get());
    qAddPostRoutine([] {
        qt_gl_set_global_share_context(nullptr);
        SharedContext().reset();
    });
}

/// Pages are drawn without the graphics card, for which the windows of the program aren't prepared.
void DrawWithoutCard() {
    ShareContext();
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

constexpr auto kFlags = "QTWEBENGINE_CHROMIUM_FLAGS";
/// With it pages aren't locked in.
constexpr auto kNoSandbox = "QTWEBENGINE_DISABLE_SANDBOX";

/// Nothing of the profile is written to the disk, since it has no name.
QWebEngineProfile* MakeProfile() {
    static std::once_flag once;
    std::call_once(once, DrawWithoutCard);
    const QByteArray before = qgetenv(kFlags);
    qputenv(kFlags, "--disable-gpu");
    qunsetenv(kNoSandbox);
    auto* profile = new QWebEngineProfile;
    qputenv(kFlags, before);
    profile->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
    profile->setHttpCacheType(QWebEngineProfile::MemoryHttpCache);
    return profile;
}

bool CanBeShown(const QUrl& address) {
    const QString scheme = address.scheme();
    return address.isLocalFile() || scheme == QStringLiteral("http") || scheme == QStringLiteral("https");
}

} // namespace

QtWebEngine::QtWebEngine(const WebEngineSeat& seat)
    : seat_(seat), profile_(MakeProfile()), page_(new QuietPage(profile_)) {
    connect(profile_, &QWebEngineProfile::downloadRequested, this,
            [](QWebEngineDownloadRequest* download) { download->cancel(); });
    connect(page_, &QWebEnginePage::loadStarted, this, &QtWebEngine::Started);
    connect(page_, &QWebEnginePage::loadFinished, this, &QtWebEngine::Finished);
    connect(page_, &QWebEnginePage::renderProcessTerminated, this, &QtWebEngine::TellOfTheEnd,
            Qt::QueuedConnection);
    connect(page_, &QuietPage::Refused, this, &QtWebEngine::Complete, Qt::QueuedConnection);
}

QtWebEngine::~QtWebEngine() {
    page_->disconnect(this);
    // A key or a link of the page may be what closes the window, so the page goes when that is done. The
    // profile has to go after it.
    connect(page_, &QObject::destroyed, profile_, &QObject::deleteLater);
    if (view_ != nullptr) {
        view_->hide();
        view_->deleteLater();
    }
    page_->deleteLater();
    // At the end of the program no events run any more.
    if (QThread::currentThread()->loopLevel() == 0)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void QtWebEngine::TakeSeat() {
    if (view_ != nullptr) return;
    QWidget* place = seat_.place();
    if (place == nullptr) {
        // A queued call would be made again in the same round of events, before the window can come.
        QTimer::singleShot(1, this, &QtWebEngine::TakeSeat);
        return;
    }
    QWidget* const before = place->findChild<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    view_ = new QWebEngineView(place);
    if (before != nullptr) QWidget::setTabOrder(before, view_);
    view_->setPage(page_);
    view_->setAccessibleName(tr("Page"));
    place->layout()->addWidget(view_);
    place->setFocusProxy(view_);
    view_->show();
    // A page would keep the key with which the user leaves the window.
    auto* leave = new QShortcut(Qt::Key_Escape, view_);
    leave->setContext(Qt::WidgetWithChildrenShortcut);
    connect(leave, &QShortcut::activated, place, [leave = QPointer<QShortcut>(leave), place] {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        // Qt looks for a shortcut before it gives a key to a widget, and would find this one again.
        leave->setEnabled(false);
        QCoreApplication::sendEvent(place, &key);
        if (leave != nullptr) leave->setEnabled(true);
    });
}

void QtWebEngine::Ask() {
    asked_ = true;
    Begin();
}

void QtWebEngine::Started() {
    asked_ = false;
    Begin();
}

void QtWebEngine::Finished() {
    if (!asked_) Complete();
}

/// A page may take all memory that there is for its process, or more than its engine can bear.
void QtWebEngine::TellOfTheEnd() {
    page_->ShowNote(QStringLiteral("This page has stopped working."), page_->url().toDisplayString());
}

void QtWebEngine::Begin() {
    if (std::exchange(loading_, true)) return;
    seat_.begins();
}

void QtWebEngine::Complete() {
    asked_ = false;
    if (!std::exchange(loading_, false)) return;
    seat_.completes();
}

void QtWebEngine::Navigate(TextView address) {
    const QUrl url(QStringView(address).toString());
    TakeSeat();
    Ask();
    if (CanBeShown(url)) {
        page_->load(url);
    } else {
        page_->ShowNote(QStringLiteral("This address can't be shown."), QStringView(address).toString());
    }
}

void QtWebEngine::GoBack() {
    if (!page_->history()->canGoBack()) return;
    Ask();
    page_->history()->back();
}

void QtWebEngine::GoForward() {
    if (!page_->history()->canGoForward()) return;
    Ask();
    page_->history()->forward();
}

void QtWebEngine::Refresh() {
    if (page_->history()->count() == 0) return;
    Ask();
    page_->triggerAction(QWebEnginePage::Reload);
}

void QtWebEngine::Stop() {
    page_->triggerAction(QWebEnginePage::Stop);
    Complete();
}

} // namespace korvane
