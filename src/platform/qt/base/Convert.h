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

/// The text as a widget of several lines wants it: each CR LF, CR and LF is one LF.
QString ToLines(TextView text);
/// What such a widget holds as text of the rules: each line end is CR LF.
Text FromLines(const QString& lines);
/// Where a position (from 0) in `text` stands in `ToLines(text)`, and the other way round.
int ToLinesPosition(TextView text, int position);
int FromLinesPosition(TextView text, int position);

/// Nothing when no colour is set.
QColor ToQColor(Colour colour);

/// The other way round; nothing set for an invalid colour.
Colour ToColour(const QColor& colour);

/// `font` with what `spec` wants different.
QFont WithSpec(QFont font, const FontSpec& spec);

Qt::CursorShape ShapeOf(Pointer pointer);
/// The pointer of a widget. A hand is the picture of the file `handImage` if that can be read.
QCursor CursorOf(Pointer pointer, TextView handImage);

/// A tool-tip is plain text, also where it looks like markup.
QString PlainToolTip(TextView text);

/// Twips to device-independent pixels of the primary screen, to the nearest, and back.
int ToPixels(Twips length);
Twips ToTwips(int pixels);

} // namespace korvane
