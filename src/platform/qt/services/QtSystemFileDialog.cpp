#include "platform/qt/services/QtSystemFileDialog.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/services/FileDialogFilters.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace korvane {

namespace {

void OfferName(QFileDialog& dialog, const QString& name) {
    const QFileInfo offered(name);
    if (offered.isAbsolute()) dialog.setDirectory(offered.absolutePath());
    if (!offered.fileName().isEmpty()) dialog.selectFile(offered.fileName());
}

void SetUp(QFileDialog& dialog, const SystemFileDialog::Request& request) {
    const bool save = request.purpose == SystemFileDialog::Purpose::Save;
    dialog.setWindowTitle(ToQString(request.title));
    dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setNameFilters(FileNameFilters(request.filter));
    dialog.setDefaultSuffix(ToQString(request.defaultExtension));
    if (!request.folder.empty()) dialog.setDirectory(ToQString(request.folder));
    OfferName(dialog, ToQString(request.name));
}

} // namespace

std::optional<Text> QtSystemFileDialog::Choose(const Request& request) {
    QFileDialog dialog(QApplication::activeWindow());
    SetUp(dialog, request);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    return ToText(QDir::toNativeSeparators(dialog.selectedFiles().constFirst()));
}

} // namespace korvane
