#pragma once

#include "context/ports/FavouriteFolders.h"
#include "context/ports/FilePicker.h"

namespace korvane {

class App;

/// The windows for files, for whoever has one chosen or wants a folder.
class Lister final : public FilePicker, public FavouriteFolders {
public:
    /// The App outlives this.
    explicit Lister(App& app) : app_(app) {}

    void Choose(ListerRequest& request) override;
    void Show() override;

private:
    App& app_;
};

} // namespace korvane
