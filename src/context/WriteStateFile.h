#pragma once

#include "common/text/Text.h"

#include <string_view>

namespace korvane {

class App;

/// Writes a file in which the program keeps its state, for its owner's eyes only. When that fails the user is
/// told, and the old file stays. One that another user put there isn't written, so that nobody else learns
/// what is in it.
void WriteStateFile(App& app, TextView path, std::string_view bytes);

/// The same of bytes with a secret. Where others could read the file, `withoutSecret` is written instead.
void WriteSecretFile(App& app, TextView path, std::string_view bytes, std::string_view withoutSecret);

} // namespace korvane
