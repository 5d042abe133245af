#pragma once

#include "common/text/Text.h"

namespace korvane {

class TextControl;

// The note of a field is plain text, or RTF as soon as it has formatting.

/// The note without its formatting.
Text NoteText(TextView data);
/// Puts the note in place of the selection.
void WriteNote(TextControl& control, TextView data);
/// The whole text of the control as a note.
Text NoteOf(TextControl& control);

} // namespace korvane
