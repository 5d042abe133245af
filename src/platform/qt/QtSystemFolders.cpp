#include "platform/qt/QtSystemFolders.h"

#include "platform/qt/Convert.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

namespace korvane {

namespace {

Text Native(const QString& folder) {
    return ToText(QDir::toNativeSeparators(folder));
}

Text Standard(QStandardPaths::StandardLocation kind) {
    return Native(QStandardPaths::writableLocation(kind));
}

} // namespace

Text QtSystemFolders::ProgramFiles() const {
#ifdef Q_OS_WIN
    const QSettings registry(
        QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion"),
        QSettings::NativeFormat);
    return Native(registry.value(QStringLiteral("ProgramFilesDir")).toString());
#else
    return {};
#endif
}

Text QtSystemFolders::Windows() const {
    return Native(qEnvironmentVariable("SystemRoot"));
}

Text QtSystemFolders::System() const {
    const Text windows = Windows();
    return windows.empty() ? windows : windows + u"\\System32";
}

Text QtSystemFolders::Fonts() const {
    return Standard(QStandardPaths::FontsLocation);
}

Text QtSystemFolders::Documents() const {
    return Standard(QStandardPaths::DocumentsLocation);
}

} // namespace korvane
