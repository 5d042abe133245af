#include "platform/qt/base/Convert.h"

#include "common/text/Shown.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <QTextDocument>
#include <algorithm>
#include <cmath>

namespace korvane {

namespace {

double TwipsPerPixel() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return kTwipsPerInch / (screen == nullptr ? 96.0 : screen->logicalDotsPerInch());
}

/// The number of code units of the line end at the start of `rest`, or 0 when there is none.
int LineEndLength(TextView rest) {
    if (rest.starts_with(kCrLf)) return 2;
    return rest.starts_with(u'\r') || rest.starts_with(u'\n') ? 1 : 0;
}

/// The number of code units of the character or line end at `position`.
int StepLength(TextView text, int position) {
    const int lineEnd = LineEndLength(text.substr(static_cast<std::size_t>(position)));
    return lineEnd == 0 ? 1 : lineEnd;
}

} // namespace

QString ToQString(TextView text) {
    return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}

Text ToText(const QString& text) {
    return Text(reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size()));
}

QString ToOneLine(TextView text) {
    constexpr char16_t kFirstPrinted = u' ';
    constexpr char16_t kFirstPicture = u'\u2400';
    QString line = ToQString(text);
    const auto isControl = [](char16_t unit) { return unit < kFirstPrinted; };
    if (std::ranges::none_of(text, isControl)) return line;
    for (QChar& unit : line) {
        if (isControl(unit.unicode())) unit = QChar(kFirstPicture + unit.unicode());
    }
    return line;
}

QString ToLines(TextView text) {
    QString lines = ToQString(text);
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    lines.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return lines;
}

Text FromLines(const QString& lines) {
    QString text = lines;
    text.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    return ToText(text);
}

int ToLinesPosition(TextView text, int position) {
    const int end = std::min(position, static_cast<int>(text.size()));
    int lines = 0;
    for (int at = 0; at < end; at += StepLength(text, at))
        ++lines;
    return lines;
}

int FromLinesPosition(TextView text, int position) {
    const int size = static_cast<int>(text.size());
    int at = 0;
    for (int lines = 0; lines < position && at < size; ++lines)
        at += StepLength(text, at);
    return at;
}

QColor ToQColor(Colour colour) {
    if (colour == kNoColour) return {};
    const int value = colour.value;
    return QColor(value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF);
}

Colour ToColour(const QColor& colour) {
    if (!colour.isValid()) return kNoColour;
    return Colour{colour.red() | colour.green() << 8 | colour.blue() << 16};
}

QFont WithSpec(QFont font, const FontSpec& spec) {
    if (!spec.name.empty()) font.setFamily(ToQString(Shown(spec.name)));
    if (spec.size > 0) font.setPointSize(spec.size);
    if (spec.bold) font.setBold(true);
    return font;
}

Qt::CursorShape ShapeOf(Pointer pointer) {
    constexpr Qt::CursorShape shapes[] = {Qt::ArrowCursor, Qt::WaitCursor, Qt::PointingHandCursor};
    return shapes[static_cast<std::size_t>(pointer)];
}

QCursor CursorOf(Pointer pointer, TextView handImage) {
    if (pointer == Pointer::Hand) {
        const QPixmap hand(ToQString(handImage));
        if (!hand.isNull()) return QCursor(hand, hand.width() / 3, 0);
    }
    return ShapeOf(pointer);
}

QString PlainToolTip(TextView text) {
    const QString plain = ToQString(text);
    return Qt::mightBeRichText(plain) ? plain.toHtmlEscaped().prepend("<qt>").append("</qt>") : plain;
}

int ToPixels(Twips length) {
    return static_cast<int>(std::lround(length.Number() / TwipsPerPixel()));
}

Twips ToTwips(int pixels) {
    return Twips(static_cast<int>(std::lround(pixels * TwipsPerPixel())));
}

} // namespace korvane
