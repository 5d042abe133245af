#include "platform/qt/services/QtFilePicker.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/services/ChoosingDialog.h"
#include "platform/qt/services/FileDialogFilters.h"
#include "platform/qt/services/ProgramsOnly.h"

#include <QDir>
#include <QFileInfo>

namespace korvane {

namespace {

constexpr std::int16_t kSave = 1;

bool IsSave(const ListerRequest& request) {
    return request.ListerMode == kSave;
}

void SetUp(ChoosingDialog& dialog, const ListerRequest& request) {
    dialog.setNameFilter(FilePatterns(request.FileDialogFilter));
    OfferProgramsFor(request.FileDialogFilter, dialog);
    const QFileInfo present(ToQString(request.FileDialogDefaultName));
    if (present.isAbsolute()) dialog.setDirectory(present.absolutePath());
    if (IsSave(request) && !present.fileName().isEmpty()) dialog.selectFile(present.fileName());
}

void TellChosen(const QStringList& files, ListerRequest& request) {
    request.ChosenFiles.assign(1, Text());
    for (const QString& file : files)
        request.ChosenFiles.push_back(ToText(QDir::toNativeSeparators(file)));
    request.ChosenFilePath = request.ChosenFiles.at(1);
    request.ChosenFileCount = static_cast<std::int16_t>(files.size());
}

} // namespace

void QtFilePicker::Choose(ListerRequest& request) {
    const bool save = IsSave(request);
    ChoosingDialog dialog(request.FileDialogCaption, save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen,
                          save ? QFileDialog::AnyFile : QFileDialog::ExistingFiles);
    SetUp(dialog, request);
    const QStringList chosen = dialog.Choose();
    if (!chosen.isEmpty()) TellChosen(chosen, request);
}

} // namespace korvane
