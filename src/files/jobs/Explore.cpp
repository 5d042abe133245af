#include "files/jobs/Explore.h"

#include "context/App.h"
#include "platform/Shell.h"

namespace korvane {

void Explore(App& app, const Text& folder) {
    app.Shell().Open({.verb = u"explore", .file = folder, .directory = folder});
}

} // namespace korvane
