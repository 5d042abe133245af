#pragma once

namespace korvane {

class App;

/// Asks for the address of the user's mail on the web, and opens it in the user's own browser. Nothing
/// happens for an empty answer.
void OpenWebmail(App& app);

} // namespace korvane
