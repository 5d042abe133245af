#include "shell/main/HandOver.h"

#include "context/App.h"
#include "context/exchange/StartState.h"
#include "dialogs/Questions.h"
#include "platform/FileSystem.h"
#include "platform/InstanceChannel.h"
#include "platform/Screen.h"
#include "shell/settings/SettingsFile.h"
#include "shell/tabs/QuotedPath.h"

#include <cstdint>

namespace korvane {

namespace {

void TellNoAccess(App& app) {
    TellError(app, u"Error accessing Korvane");
}

enum class Outcome : std::uint8_t { Given, NoReceiver, NotTaken };

Outcome Give(const FileSystem& files, InstanceChannel& running, const Text& startFile) {
    if (startFile.empty() || !files.FileExists(startFile)) return Outcome::Given;
    if (!running.FindReceiver() || !running.WaitUntilSlotEmpty()) return Outcome::NoReceiver;
    // The running copy has a current directory of its own, so it needs the full path.
    return running.Deliver(files.FullPath(startFile)) ? Outcome::Given : Outcome::NotTaken;
}

bool HasSettings(const FileSystem& files) {
    return files.FileExists(SettingsToRead(files, OwnSettingsFile(files)));
}

} // namespace

bool HandOver(App& app, const Text& startFile) {
    app.Exchange<StartState>().SecondInstance = 1;
    const Outcome outcome = Give(app.Files(), app.Instance(), startFile);
    if (outcome != Outcome::Given) TellNoAccess(app);
    app.Screen().ProcessMessages();
    return outcome != Outcome::NoReceiver;
}

bool HandOverUnseen(FileSystem& files, InstanceChannel& running, TextView commandLine) {
    if (!HasSettings(files) || !running.PreviousInstanceRuns()) return false;
    if (Give(files, running, WithoutOuterQuotes(commandLine)) != Outcome::Given) return false;
    running.ActivateRunning();
    return true;
}

} // namespace korvane
