#pragma once

#include "common/text/Text.h"
#include "context/ports/SystemFileDialog.h"

#include <optional>

namespace korvane {

class App;

/// The kind of file that all lists are, as a dialog offers it, and the extension that a name without one
/// gets.
inline constexpr TextView kListFiles = u"List files (*.lst)|*.lst";
inline constexpr TextView kListExtension = u"lst";

/// The file chosen in the system's dialog; nothing on a cancel, and where there is no such dialog.
std::optional<Text> ChooseListFile(App& app, const SystemFileDialog::Request& request);

} // namespace korvane
