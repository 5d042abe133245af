#include "platform/qt/base/DocumentText.h"

#include <QTextDocument>

namespace korvane {

QString DocumentText(const QTextDocument& document) {
    QString text = document.toRawText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    text.replace(QChar::LineSeparator, QLatin1Char('\n'));
    return text;
}

} // namespace korvane
