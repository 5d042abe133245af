#include "context/ProgramPicker.h"

#include "context/App.h"
#include "context/FileChooser.h"
#include "context/exchange/ListerRequest.h"

namespace korvane {

bool PickProgram(App& app, TextView title, Text& location) {
    const KeepCurrentDir keep(app.Files());
    ShowFileChooser(app, ChooserMode::Load, u"*.exe", title);
    const Text& chosen = app.Exchange<ListerRequest>().ChosenFilePath;
    if (chosen.empty()) return false;
    location = chosen;
    return true;
}

} // namespace korvane
