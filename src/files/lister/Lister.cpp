#include "files/lister/Lister.h"

#include "context/App.h"
#include "context/ports/MainWindow.h"
#include "files/lister/frmGetFileFromTree.h"
#include "files/lists/frmFavouriteLocations.h"

namespace korvane {

void Lister::Choose(ListerRequest&) {
    frmGetFileFromTree(app_).ShowModal();
}

void Lister::Show() {
    auto* main = app_.Port<MainWindow>();
    if (main == nullptr) return;
    const Text folder = app_.Exchange<ListerRequest>().ListerFolder;
    frmFavouriteLocations(app_, main->Window(), folder).ShowModal();
}

} // namespace korvane
