#include "platform/qt/webengine/QuietPage.h"

#include <QWebEngineFullScreenRequest>
#include <QWebEngineSettings>
#include <utility>

namespace korvane {

namespace {

using Settings = QWebEngineSettings;

constexpr Settings::WebAttribute kOff[] = {
    // A page of the disk doesn't read other files, and tells nobody of itself.
    Settings::LocalContentCanAccessFileUrls,
    Settings::LocalContentCanAccessRemoteUrls,
    Settings::JavascriptCanOpenWindows,
    Settings::JavascriptCanAccessClipboard,
    Settings::JavascriptCanPaste,
    Settings::AllowWindowActivationFromJavaScript,
    Settings::AllowGeolocationOnInsecureOrigins,
    Settings::AllowRunningInsecureContent,
    Settings::HyperlinkAuditingEnabled,
    Settings::PluginsEnabled,
    Settings::ScreenCaptureEnabled,
    Settings::FullScreenSupportEnabled,
    Settings::AutoLoadIconsForPage,
    Settings::NavigateOnDropEnabled,
    Settings::DnsPrefetchEnabled,
};

bool IsOfNet(const QUrl& address) {
    return address.scheme() == QStringLiteral("http") || address.scheme() == QStringLiteral("https");
}

} // namespace

QuietPage::QuietPage(QWebEngineProfile* profile) : QWebEnginePage(profile, nullptr) {
    for (const Settings::WebAttribute attribute : kOff)
        settings()->setAttribute(attribute, false);
    settings()->setAttribute(Settings::WebRTCPublicInterfacesOnly, true);
    settings()->setAttribute(Settings::PlaybackRequiresUserGesture, true);
    settings()->setUnknownUrlSchemePolicy(Settings::DisallowUnknownUrlSchemes);
    connect(this, &QWebEnginePage::featurePermissionRequested, this,
            [this](const QUrl& origin, Feature feature) {
                setFeaturePermission(origin, feature, PermissionDeniedByUser);
            });
}

void QuietPage::ShowNote(const QString& title, const QString& text) {
    ownText_ = true;
    setHtml(QStringLiteral("<h2>%1</h2><p>%2</p>").arg(title.toHtmlEscaped(), text.toHtmlEscaped()));
}

bool QuietPage::acceptNavigationRequest(const QUrl& to, NavigationType type, bool isMainFrame) {
    const bool fromDisk = url().isLocalFile();
    // A frame of a page has what the page has, except for files.
    if (!isMainFrame) return !to.isLocalFile() || fromDisk;
    if (to.scheme() == QStringLiteral("data") && std::exchange(ownText_, false)) return true;
    // What the user types and what was visited before is no page's wish.
    const bool ofUser =
        type == NavigationTypeTyped || type == NavigationTypeBackForward || type == NavigationTypeReload;
    const bool shown = IsOfNet(to) || to.isLocalFile();
    if (shown && (ofUser || !(fromDisk || to.isLocalFile()))) return true;
    // A link of a page of the disk is followed as if the user typed it, because the page itself reaches
    // neither other files nor the net.
    if (shown && fromDisk) {
        QMetaObject::invokeMethod(
            this, [this, to] { load(to); }, Qt::QueuedConnection);
    } else {
        emit Refused();
    }
    return false;
}

} // namespace korvane
