#include "platform/qt/services/ChoosingDialog.h"

#include "platform/qt/base/Convert.h"

#include <QApplication>

namespace korvane {

ChoosingDialog::ChoosingDialog(TextView title, AcceptMode acceptMode, FileMode fileMode)
    : QFileDialog(QApplication::activeWindow(), ToQString(title)) {
    // Without this option the key Delete and a "y" delete a whole folder for good.
    setOption(ReadOnly);
    setAcceptMode(acceptMode);
    setFileMode(fileMode);
}

QStringList ChoosingDialog::Choose() {
    return exec() == Accepted ? selectedFiles() : QStringList();
}

} // namespace korvane
