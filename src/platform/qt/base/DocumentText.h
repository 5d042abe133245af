#pragma once

#include <QString>

class QTextDocument;

namespace korvane {

/// The text of a document as it stands: other than its `toPlainText`, a no-break space stays one.
QString DocumentText(const QTextDocument& document);

} // namespace korvane
