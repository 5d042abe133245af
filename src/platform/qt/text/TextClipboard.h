#pragma once

#include "common/text/Text.h"

#include <QMimeData>
#include <memory>
#include <string>

namespace korvane {

/// A text with its formatting for the clipboard and for dragging: as RTF, HTML and plain text. What isn't
/// asked for isn't made.
std::unique_ptr<QMimeData> RichMime(std::string rtf, TextView plain);

/// The formatted text in the data as RTF; empty if there is none that can be read.
std::string RtfIn(const QMimeData& data);

/// Whether there is a text in the data.
bool HoldsText(const QMimeData& data);

} // namespace korvane
