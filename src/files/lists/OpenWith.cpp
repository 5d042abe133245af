#include "files/lists/OpenWith.h"

#include "common/path/CommandWords.h"
#include "context/App.h"
#include "context/FileChooser.h"
#include "context/Launching.h"
#include "context/exchange/OpenWithRequest.h"
#include "dialogs/Questions.h"
#include "files/lists/frmOpenFileWith.h"
#include "platform/FileSystem.h"
#include "platform/Shell.h"

namespace korvane {

namespace {

/// The path follows the command without quotes, so a path with blanks becomes several arguments. Kept for
/// compatibility: command-row-path-unquoted.
void RunCommand(App& app, const Text& command, TextView path) {
    std::vector<Text> words = SplitCommandLine(command + u" " + Text(path));
    const Text program = words.front();
    words.erase(words.begin());
    app.Shell().Run(program, words, WindowState::Normal);
}

} // namespace

void OpenWithUserProgram(App& app, TextView path) {
    const KeepCurrentDir keep(app);
    OpenWithRequest& request = app.Exchange<OpenWithRequest>();
    request = {Text(path), {}};
    frmOpenFileWith window(app);
    const std::int16_t outcome = ShowForResult(app, window);
    if (outcome == frmOpenFileWith::kProgramFound) StartProgram(app, request.ViewWithProgram, {Text(path)});
    if (outcome == frmOpenFileWith::kCommandMade) RunCommand(app, request.ViewWithProgram, path);
}

} // namespace korvane
