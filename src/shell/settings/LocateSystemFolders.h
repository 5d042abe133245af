#pragma once

namespace korvane {

class App;

/// Fills the App's names of the system's folders, each of which ends in a separator unless the system doesn't
/// have it.
void LocateSystemFolders(App& app);

} // namespace korvane
