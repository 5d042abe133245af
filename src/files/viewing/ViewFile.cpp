#include "files/viewing/ViewFile.h"

#include "common/path/PathStyle.h"
#include "context/App.h"
#include "context/exchange/FileOperation.h"
#include "context/ports/TextFileViewer.h"
#include "files/viewing/ConfirmLargeFile.h"
#include "files/viewing/ViewFileByType.h"
#include "platform/FileSystem.h"

namespace korvane {

void ViewFileAtHand(App& app) {
    // A copy: what opens may put another file at hand.
    const Text path = app.Exchange<FileOperation>().FileOpName;
    if (ViewFileByType(app, path) || !ConfirmLargeFile(app, path)) return;
    if (auto* texts = app.Port<TextFileViewer>()) texts->View(path);
}

void ViewFile(App& app, TextView path) {
    FileOperation& atHand = app.Exchange<FileOperation>();
    const PathStyle style = app.Files().Style();
    atHand.FileOpFolder = style.DirectoryForChange(style.FolderPart(path));
    atHand.FileOpName = Text(path);
    ViewFileAtHand(app);
}

} // namespace korvane
