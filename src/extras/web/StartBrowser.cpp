#include "extras/web/StartBrowser.h"

#include "common/path/CommandWords.h"
#include "common/path/PathStyle.h"
#include "common/path/WebAddress.h"
#include "context/App.h"
#include "context/Launching.h"
#include "platform/FileSystem.h"
#include "platform/Shell.h"

#include <optional>

namespace korvane {

namespace {

using Words = std::vector<Text>;

/// A name without a folder, which the system looks for among its programs.
bool IsBareName(TextView program) {
    return program.find_first_of(u"\\/:") == TextView::npos;
}

/// The program and the options with which it is to start.
std::optional<Words> CommandOf(const App& app, TextView browser) {
    const TextView whole = Trim(browser);
    if (whole.empty()) return std::nullopt;
    const Text program = FindProgram(app.Files(), whole);
    if (app.Files().FileExists(program)) return Words{program};
    Words words = SplitCommandLine(whole);
    if (words.front().empty()) return std::nullopt;
    if (IsBareName(words.front()) || app.Files().FileExists(words.front())) return words;
    return std::nullopt;
}

bool Started(App& app, TextView browser, const Words& urls) {
    auto words = CommandOf(app, browser);
    if (!words) return false;
    const Text program = words->front();
    words->erase(words->begin());
    words->insert(words->end(), urls.begin(), urls.end());
    return app.Shell().Run(program, *words, WindowState::Normal) != 0;
}

void OpenOnDesktop(const App& app, const Text& url) {
    if (app.Files().FileExists(url)) {
        app.Shell().Open({.file = url});
    } else {
        app.Shell().Browse(WithScheme(url));
    }
}

} // namespace

void StartBrowser(App& app, TextView browser, TextView urls) {
    const Words words = SplitCommandLine(urls);
    if (Started(app, browser, words)) return;
    for (const Text& url : words)
        OpenOnDesktop(app, url);
}

} // namespace korvane
