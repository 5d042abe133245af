#include "platform/qt/dialogs/ChoosingDialog.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/base/DialogParent.h"

#include <QLineEdit>

namespace korvane {

ChoosingDialog::ChoosingDialog(TextView title, AcceptMode acceptMode, FileMode fileMode)
    : QFileDialog(DialogParent(), ToQString(title)) {
    // Without this option the key Delete and a "y" delete a whole folder for good.
    setOption(ReadOnly);
    setAcceptMode(acceptMode);
    setFileMode(fileMode);
}

void ChoosingDialog::showEvent(QShowEvent* event) {
    QFileDialog::showEvent(event);
    auto* name = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (name == nullptr || acceptMode() != AcceptSave) return;
    const auto dot = name->text().lastIndexOf(QLatin1Char('.'));
    if (dot > 0) name->setSelection(0, static_cast<int>(dot));
}

QStringList ChoosingDialog::Choose() {
    return exec() == Accepted ? selectedFiles() : QStringList();
}

} // namespace korvane
