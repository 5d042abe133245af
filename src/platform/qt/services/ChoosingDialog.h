#pragma once

#include "common/text/Text.h"

#include <QFileDialog>

namespace korvane {

/// The toolkit's file dialog as the program shows it: it chooses files, and neither deletes nor renames any.
class ChoosingDialog : public QFileDialog {
public:
    /// Over the active window.
    ChoosingDialog(TextView title, AcceptMode acceptMode, FileMode fileMode);

    /// Shows the dialog until the user is done; none on a cancel.
    QStringList Choose();
};

} // namespace korvane
