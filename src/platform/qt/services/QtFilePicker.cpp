#include "platform/qt/services/QtFilePicker.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/services/FileDialogFilters.h"
#include "platform/qt/services/ProgramsOnly.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace korvane {

namespace {

constexpr std::int16_t kSave = 1;

void SetUp(QFileDialog& dialog, const ListerRequest& request) {
    const bool save = request.ListerMode == kSave;
    dialog.setWindowTitle(ToQString(request.FileDialogCaption));
    dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFiles);
    dialog.setNameFilter(FilePatterns(request.FileDialogFilter));
    OfferProgramsFor(request.FileDialogFilter, dialog);
    const QFileInfo present(ToQString(request.FileDialogDefaultName));
    if (present.isAbsolute()) dialog.setDirectory(present.absolutePath());
    if (save && !present.fileName().isEmpty()) dialog.selectFile(present.fileName());
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
    QFileDialog dialog(QApplication::activeWindow());
    SetUp(dialog, request);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
    TellChosen(dialog.selectedFiles(), request);
}

} // namespace korvane
