#include "shell/main/HandOver.h"

#include "context/App.h"
#include "context/exchange/StartState.h"
#include "dialogs/Questions.h"
#include "platform/FileSystem.h"
#include "platform/InstanceChannel.h"
#include "platform/Screen.h"

namespace korvane {

namespace {

void TellNoAccess(App& app) {
    TellError(app, u"Error accessing Korvane");
}

} // namespace

bool HandOver(App& app, const Text& startFile) {
    app.Exchange<StartState>().SecondInstance = 1;
    if (startFile.empty() || !app.Files().FileExists(startFile)) return true;
    InstanceChannel& running = app.Instance();
    if (!running.FindReceiver() || !running.WaitUntilSlotEmpty()) {
        TellNoAccess(app);
        return false;
    }
    // The running copy has a current directory of its own, so it needs the full path.
    if (!running.Deliver(app.Files().FullPath(startFile))) TellNoAccess(app);
    app.Screen().ProcessMessages();
    return true;
}

} // namespace korvane
