#pragma once

#include <QString>

class QTextDocument;

namespace korvane {

/// The text of a document. Unlike `QTextDocument::toPlainText` it keeps no-break spaces.
QString DocumentText(const QTextDocument& document);

} // namespace korvane
