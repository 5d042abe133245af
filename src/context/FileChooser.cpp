#include "context/FileChooser.h"

#include "context/App.h"
#include "context/Ports.h"
#include "platform/FileSystem.h"

namespace korvane {

namespace {

/// What the chooser leaves behind. The filter is a line of the settings file as well; "0" is what the reader
/// of that line makes of any filter.
void LeaveAtRest(App& app) {
    app.Lister.FileDialogFilter = u"0";
    app.Lister.FileDialogCaption.clear();
    app.Settings.FileDialogFilter = app.Lister.FileDialogFilter;
}

void Show(App& app, TextView filter, TextView caption) {
    app.Lister.FileDialogFilter = Text(filter);
    app.Lister.FileDialogCaption = Text(caption);
    app.Lister.ChosenFilePath.clear();
    if (app.FilePicker != nullptr) app.FilePicker->Choose(app.Lister);
    LeaveAtRest(app);
}

} // namespace

void ShowFileChooser(App& app, ChooserMode mode, TextView filter, TextView caption, TextView defaultName) {
    app.Lister.ListerMode = static_cast<std::int16_t>(mode);
    app.Lister.FileDialogDefaultName = Text(defaultName);
    Show(app, filter, caption);
    app.Lister.ListerMode = static_cast<std::int16_t>(ChooserMode::Load);
}

void ShowDirectoryLister(App& app) {
    Show(app, u"*.*", u"Directory lister");
}

KeepCurrentDir::KeepCurrentDir(FileSystem& files) : files_(files), savedDir_(files.CurrentDir()) {}

KeepCurrentDir::~KeepCurrentDir() {
    files_.ChangeDir(savedDir_);
}

} // namespace korvane
