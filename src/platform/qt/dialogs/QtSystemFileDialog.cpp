#include "platform/qt/dialogs/QtSystemFileDialog.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/dialogs/ChoosingDialog.h"
#include "platform/qt/dialogs/FileDialogFilters.h"

#include <QDir>
#include <QFileInfo>

namespace korvane {

namespace {

void OfferName(ChoosingDialog& dialog, const QString& name) {
    const QFileInfo offered(name);
    if (offered.isAbsolute()) dialog.setDirectory(offered.absolutePath());
    if (!offered.fileName().isEmpty()) dialog.selectFile(offered.fileName());
}

void SetUp(ChoosingDialog& dialog, const SystemFileDialog::Request& request) {
    dialog.setNameFilters(FileNameFilters(request.filter));
    dialog.setDefaultSuffix(ToQString(request.defaultExtension));
    if (!request.folder.empty()) dialog.setDirectory(ToQString(request.folder));
    OfferName(dialog, ToQString(request.name));
}

} // namespace

std::optional<Text> QtSystemFileDialog::Choose(const Request& request) {
    const bool save = request.purpose == Purpose::Save;
    ChoosingDialog dialog(request.title, save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen,
                          save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    SetUp(dialog, request);
    const QStringList chosen = dialog.Choose();
    if (chosen.isEmpty()) return std::nullopt;
    return ToText(QDir::toNativeSeparators(chosen.constFirst()));
}

} // namespace korvane
