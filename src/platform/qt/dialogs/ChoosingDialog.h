#pragma once

#include "common/text/Text.h"

#include <QFileDialog>

namespace korvane {

/// Qt's file dialog in the form that the program uses: it chooses files, and can neither delete nor rename
/// them.
class ChoosingDialog : public QFileDialog {
public:
    /// The dialog opens over the active window.
    ChoosingDialog(TextView title, AcceptMode acceptMode, FileMode fileMode);

    /// Shows the dialog until the user closes it. The list is empty after a cancel.
    QStringList Choose();

protected:
    /// In the name of a save all but the ending is selected, so that a typed name keeps it.
    void showEvent(QShowEvent* event) override;
};

} // namespace korvane
