#include "shell/settings/ProgramPicker.h"

#include "context/App.h"
#include "context/FileChooser.h"

namespace korvane {

bool PickProgram(App& app, TextView title, Text& location) {
    const KeepCurrentDir keep(app.Files());
    ShowFileChooser(app, ChooserMode::Load, u"*.exe", title);
    if (app.Lister.ChosenFilePath.empty()) return false;
    location = app.Lister.ChosenFilePath;
    return true;
}

} // namespace korvane
