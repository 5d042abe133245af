#include "platform/qt/desktop/QtShell.h"

#include "common/path/WebAddress.h"
#include "platform/DesktopTarget.h"
#include "platform/native/FileAddress.h"
#include "platform/native/NativePath.h"
#include "platform/native/user/Trash.h"
#include "platform/qt/desktop/ShowingDesktop.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QProcess>
#include <QUrl>
#include <filesystem>
#include <system_error>

namespace korvane {

namespace {

QString ToQString(TextView text) {
    return QStringView(text).toString();
}

/// The URL of a path. The path is never taken for a web address, even if it looks like one.
QUrl FileUrl(TextView path) {
    std::error_code error;
    const std::filesystem::path full = std::filesystem::absolute(ToNativePath(path), error);
    if (error) return {};
    return QUrl::fromEncoded(QByteArray::fromStdString(FileAddress(FromNativePath(full))));
}

QUrl UrlOf(const DesktopTarget& target) {
    switch (target.kind) {
    case DesktopTarget::Kind::Home:
        return QUrl::fromLocalFile(QDir::homePath());
    case DesktopTarget::Kind::RecycleStore:
        return QUrl(QStringLiteral("trash:///"));
    case DesktopTarget::Kind::Path:
        break;
    }
    return target.path.empty() ? QUrl() : FileUrl(target.path);
}

} // namespace

int QtShell::Run(TextView program, const std::vector<Text>& arguments, WindowState) {
    if (program.empty()) return 0;
    QStringList words;
    for (const Text& argument : arguments)
        words += ToQString(argument);
    return QProcess::startDetached(ToQString(program), words) ? 1 : 0;
}

void QtShell::Open(const OpenRequest& request) {
    const QUrl url = UrlOf(TargetOf(request));
    if (!url.isEmpty()) QDesktopServices::openUrl(url);
}

void QtShell::Browse(TextView address) {
    if (IsForBrowsers(address)) QDesktopServices::openUrl(QUrl(ToQString(address)));
}

void QtShell::Explore(TextView folder) {
    if (!folder.empty()) QDesktopServices::openUrl(FileUrl(folder));
}

bool QtShell::Recycle(TextView path, RecycleTalk) {
    return MoveToTrash(ToNativePath(path));
}

void QtShell::ToggleDesktop() {
    ToggleShowingDesktop();
}

void QtShell::Beep() {
    QApplication::beep();
}

} // namespace korvane
