#include "context/FileChooser.h"

#include "common/text/ScopedValue.h"
#include "context/App.h"
#include "context/DiskQuestions.h"
#include "context/exchange/ListerRequest.h"
#include "context/ports/FilePicker.h"
#include "platform/FileSystem.h"

namespace korvane {

namespace {

/// What the chooser leaves at its end. The filter is a line of the settings file as well, and the
/// reader of that line turns any filter into "0". Kept for compatibility: chooser-filter-becomes-zero.
class LeaveAtRest {
public:
    explicit LeaveAtRest(App& app) : app_(app) {}
    LeaveAtRest(const LeaveAtRest&) = delete;
    LeaveAtRest& operator=(const LeaveAtRest&) = delete;
    ~LeaveAtRest() {
        auto& request = app_.Exchange<ListerRequest>();
        request.FileDialogFilter = u"0";
        request.FileDialogCaption.clear();
        app_.Settings.FileDialogFilter = request.FileDialogFilter;
    }

private:
    App& app_;
};

void Show(App& app, TextView filter, TextView caption) {
    const LeaveAtRest atEnd(app);
    ListerRequest& request = app.Exchange<ListerRequest>();
    request.FileDialogFilter = Text(filter);
    request.FileDialogCaption = Text(caption);
    request.ChosenFilePath.clear();
    // The chooser changes these only when rows are marked. No files are left when it has shown one instead.
    request.ChosenFiles.assign(2, Text());
    request.ChosenFileCount = 1;
    if (auto* filePicker = app.Port<FilePicker>()) filePicker->Choose(request);
}

} // namespace

void ShowFileChooser(App& app, ChooserMode mode, TextView filter, TextView caption, TextView defaultName) {
    ListerRequest& request = app.Exchange<ListerRequest>();
    const ScopedValue inMode(request.ListerMode, static_cast<std::int16_t>(mode),
                             static_cast<std::int16_t>(ChooserMode::Load));
    request.FileDialogDefaultName = Text(defaultName);
    Show(app, filter, caption);
}

/// The mode and the proposed name are those that were left last. Kept for compatibility: save-mode-stays.
void ShowDirectoryLister(App& app) {
    Show(app, u"*.*", u"Directory lister");
}

void GoBackTo(App& app, const Text& directory) {
    FileSystem& files = app.Files();
    if (files.CurrentDir() != directory && HasFolderSoon(app, directory).value_or(false))
        files.ChangeDir(directory);
}

KeepCurrentDir::KeepCurrentDir(App& app) : app_(app), savedDir_(app.Files().CurrentDir()) {}

KeepCurrentDir::~KeepCurrentDir() {
    GoBackTo(app_, savedDir_);
}

} // namespace korvane
