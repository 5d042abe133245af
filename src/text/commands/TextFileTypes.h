#pragma once

#include "common/text/Text.h"

#include <cstdint>

namespace korvane {

class TextControl;

/// Whether a name has to be that of a known kind of text.
enum class Strictness : std::uint8_t { AnyName, KnownNames };

/// The format in which a file of that name is loaded, by the end of the name, which needn't have a point
/// (kept for compatibility: load-types-need-no-point). -1 for a name that isn't known and has to be.
int FileTypeForLoad(TextView path, Strictness strictness = Strictness::AnyName);

/// The format in which a file of that name is saved. Kept for compatibility: save-types-differ.
int FileTypeForSave(TextView path);

/// Gives a control what it needs for a load or save in a format.
void SetLoadSaveAttributes(TextControl& control, int format);

/// Saves the text by the file's name, with the sizes of its page.
bool SaveByName(TextControl& control, TextView path);

} // namespace korvane
