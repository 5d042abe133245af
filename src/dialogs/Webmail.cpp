#include "dialogs/Webmail.h"

#include "context/App.h"
#include "context/Launching.h"
#include "dialogs/frmMyInputBox.h"

namespace korvane {

void OpenWebmail(App& app) {
    const Text url = AskForText(app, u"Enter URL for webmail interface", app.Settings.WebmailUrl);
    if (url.empty()) return;
    app.Settings.WebmailUrl = url;
    LaunchProgram(app, app.Settings.CustomBrowserPath, url);
}

} // namespace korvane
