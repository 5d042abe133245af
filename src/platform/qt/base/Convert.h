#pragma once

#include "common/number/Units.h"
#include "common/text/Text.h"
#include "controls/Control.h"
#include "platform/Screen.h"

#include <QColor>
#include <QCursor>
#include <QFont>
#include <QString>

namespace korvane {

QString ToQString(TextView text);
Text ToText(const QString& text);

/// The text for a place that has one line: line ends and other control characters become pictures of them.
QString ToOneLine(TextView text);

/// The text for a widget of several lines: each CR LF, CR and LF becomes one LF.
QString ToLines(TextView text);
/// The text of such a widget for the rest of the program: each line end becomes CR LF.
Text FromLines(const QString& lines);
/// The position in `ToLines(text)` that belongs to a position (counted from 0) in `text`, and the other way
/// round.
int ToLinesPosition(TextView text, int position);
int FromLinesPosition(TextView text, int position);

/// An invalid colour when none is set.
QColor ToQColor(Colour colour);

/// No colour when `colour` is invalid.
Colour ToColour(const QColor& colour);

/// `font` with the changes that `spec` asks for.
QFont WithSpec(QFont font, const FontSpec& spec);

Qt::CursorShape ShapeOf(Pointer pointer);
/// The mouse pointer for a widget. A hand is the picture in the file `handImage` if that file can be read.
QCursor CursorOf(Pointer pointer, TextView handImage);

/// A tool-tip that Qt shows as plain text, even if it looks like markup.
QString PlainToolTip(TextView text);

/// Converts twips to device-independent pixels of the primary screen, rounded to the nearest, and back.
int ToPixels(Twips length);
Twips ToTwips(int pixels);

} // namespace korvane
