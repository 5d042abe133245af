#include "files/lists/ChooseListFile.h"

#include "context/App.h"

namespace korvane {

std::optional<Text> ChooseListFile(App& app, const SystemFileDialog::Request& request) {
    auto* dialog = app.Port<SystemFileDialog>();
    return dialog == nullptr ? std::nullopt : dialog->Choose(request);
}

} // namespace korvane
