#include "platform/qt/services/QtClipboard.h"

#include "common/text/LineEnds.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/base/RtfNames.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace korvane {

namespace {

/// On Windows Qt removes the CR of each line end, and all programs there put CR LF in. On other systems it
/// returns the text unchanged.
Text AsPutIn(const QString& text) {
#ifdef Q_OS_WIN
    return WithCrLf(ToText(text));
#else
    return ToText(text);
#endif
}

} // namespace

bool QtClipboard::HasText() const {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data != nullptr && data->hasText();
}

Text QtClipboard::GetText() const {
    return AsPutIn(QGuiApplication::clipboard()->text());
}

void QtClipboard::SetText(Text text) {
    QGuiApplication::clipboard()->setText(ToQString(text));
}

void QtClipboard::Clear() {
    QGuiApplication::clipboard()->clear();
}

std::optional<std::string> QtClipboard::GetRtf() const {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    if (data == nullptr) return std::nullopt;
    for (const char* const format : kRtfNames) {
        if (data->hasFormat(QString::fromLatin1(format)))
            return data->data(QString::fromLatin1(format)).toStdString();
    }
    return std::nullopt;
}

} // namespace korvane
