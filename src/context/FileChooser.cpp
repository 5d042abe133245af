#include "context/FileChooser.h"

#include "context/App.h"
#include "context/exchange/ListerRequest.h"
#include "context/ports/FilePicker.h"
#include "platform/FileSystem.h"

namespace korvane {

namespace {

/// What the chooser leaves behind. The filter is a line of the settings file as well; "0" is what the reader
/// of that line makes of any filter.
void LeaveAtRest(App& app, ListerRequest& request) {
    request.FileDialogFilter = u"0";
    request.FileDialogCaption.clear();
    app.Settings.FileDialogFilter = request.FileDialogFilter;
}

void Show(App& app, TextView filter, TextView caption) {
    ListerRequest& request = app.Exchange<ListerRequest>();
    request.FileDialogFilter = Text(filter);
    request.FileDialogCaption = Text(caption);
    request.ChosenFilePath.clear();
    if (auto* filePicker = app.Port<FilePicker>()) filePicker->Choose(request);
    LeaveAtRest(app, request);
}

} // namespace

void ShowFileChooser(App& app, ChooserMode mode, TextView filter, TextView caption, TextView defaultName) {
    ListerRequest& request = app.Exchange<ListerRequest>();
    request.ListerMode = static_cast<std::int16_t>(mode);
    request.FileDialogDefaultName = Text(defaultName);
    Show(app, filter, caption);
    request.ListerMode = static_cast<std::int16_t>(ChooserMode::Load);
}

void ShowDirectoryLister(App& app) {
    Show(app, u"*.*", u"Directory lister");
}

KeepCurrentDir::KeepCurrentDir(FileSystem& files) : files_(files), savedDir_(files.CurrentDir()) {}

KeepCurrentDir::~KeepCurrentDir() {
    files_.ChangeDir(savedDir_);
}

} // namespace korvane
