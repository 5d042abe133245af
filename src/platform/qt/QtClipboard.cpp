#include "platform/qt/QtClipboard.h"

#include "platform/qt/Convert.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace korvane {

namespace {

QString WithCrLf(QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return text.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
}

} // namespace

bool QtClipboard::HasText() const {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data != nullptr && data->hasText();
}

Text QtClipboard::GetText() const {
    return ToText(WithCrLf(QGuiApplication::clipboard()->text()));
}

void QtClipboard::SetText(Text text) {
    QGuiApplication::clipboard()->setText(ToQString(text));
}

void QtClipboard::Clear() {
    QGuiApplication::clipboard()->clear();
}

} // namespace korvane
