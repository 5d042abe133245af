#pragma once

namespace korvane {

/// The window with the user's favourite folders. Modal.
class FavouriteFolders {
public:
    virtual ~FavouriteFolders() = default;
    /// When a folder was picked, `DialogResult` is 1 and `ChosenFilePath` is the folder.
    virtual void Show() = 0;
};

} // namespace korvane
