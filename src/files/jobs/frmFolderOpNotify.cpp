#include "files/jobs/frmFolderOpNotify.h"

#include "context/App.h"
#include "context/Desktop.h"
#include "files/jobs/Explore.h"
#include "platform/FileSystem.h"

namespace korvane {

frmFolderOpNotify::frmFolderOpNotify(App& app)
    : Form(app.Forms(), "frmFolderOpNotify", u"Folder operation"), app_(app) {
    cmdRecycle.Click = [this] { ShowRecycleBin(app_); };
    cmdExplorer.Click = [this] { cmdExplorer_Click(); };
    cmdExit.Click = [this] { Close(); };
    cmdExit.Cancel = true;
    cmdExit.Default = true;
}

void frmFolderOpNotify::TellOfDeletion(TextView folder) {
    lblSource.Caption = Text(folder);
    Label2.Visible = false;
    lblTarget.Caption = u">  DELETE  <";
}

void frmFolderOpNotify::cmdExplorer_Click() {
    const Text& folder = lblSource.Caption;
    const PathStyle style = app_.Files().Style();
    // A deleted folder can't be shown, but the one that it was in can.
    const bool there = app_.Files().DirExists(folder);
    Explore(app_, there ? folder : style.DirectoryForChange(style.FolderPart(folder)));
}

} // namespace korvane
