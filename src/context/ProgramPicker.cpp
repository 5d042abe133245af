#include "context/ProgramPicker.h"

#include "context/App.h"
#include "context/FileChooser.h"
#include "context/exchange/ListerRequest.h"

namespace korvane {

bool PickProgram(App& app, TextView title, Text& location) {
    const KeepCurrentDir keep(app);
    ShowFileChooser(app, ChooserMode::Load, u"*.exe", title);
    const ListerRequest& request = app.Exchange<ListerRequest>();
    if (request.ChosenFilePath.empty() || request.ChosenFileCount == 0) return false;
    location = request.ChosenFilePath;
    return true;
}

} // namespace korvane
