#include "platform/qt/QtShell.h"

#include "platform/qt/Convert.h"
#include "platform/qt/ShowDesktop.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QProcess>
#include <QUrl>

namespace korvane {

int QtShell::Run(TextView program, const std::vector<Text>& arguments, WindowState) {
    if (program.empty()) return 0;
    QProcess process;
    process.setProgram(ToQString(program));
    QStringList list;
    for (const Text& argument : arguments)
        list << ToQString(argument);
    process.setArguments(list);
    // What the program says is not this program's talk.
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    qint64 task = 0;
    return process.startDetached(&task) ? static_cast<int>(task) : 0;
}

void QtShell::Open(const OpenRequest& request) {
    if (request.file == kFileManager && request.parameters == kRecycleStoreParameters) {
        QDesktopServices::openUrl(QUrl(QStringLiteral("trash:///")));
        return;
    }
    if (request.file == kFileManager) {
        return Explore(request.parameters.empty() ? ToText(QDir::homePath()) : request.parameters);
    }
    const QString folder = ToQString(request.directory);
    QDesktopServices::openUrl(QUrl::fromUserInput(ToQString(request.file), folder, QUrl::AssumeLocalFile));
}

void QtShell::Explore(TextView folder) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(ToQString(folder)));
}

void QtShell::ToggleDesktop() {
    ToggleShowingDesktop();
}

void QtShell::Beep() {
    QApplication::beep();
}

} // namespace korvane
