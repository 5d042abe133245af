#include "files/names/frmRenDir.h"

#include "context/App.h"
#include "context/FileNames.h"
#include "context/exchange/FileOperation.h"
#include "context/exchange/ListerRequest.h"
#include "files/names/FieldKeys.h"
#include "files/names/NameTyping.h"
#include "platform/FileSystem.h"
#include "platform/MessageBoxes.h"

namespace korvane {

namespace {

constexpr Twips kLeastWidth{6975};

Text ParentOf(const PathStyle& style, TextView folder) {
    return style.DirectoryForChange(style.FolderPart(folder));
}

} // namespace

frmRenDir::frmRenDir(App& app) : NameDialog(app, "frmRenDir", u"Enter new name for directory", kLeastWidth) {
    Frame1.Caption = u"Old name : ";
    Frame2.Caption = u"New name (last section of path) : ";
    Text1.Locked = true;
    AddField(Text1);
    AddField(Text2);
    cmdUnderscoreCaps.Click = [this] { cmdUnderscoreCaps_Click(); };
}

void frmRenDir::Load() {
    NameDialog::Load();
    folder_ = TheApp().Exchange<ListerRequest>().ListerFolder;
    Text1.Text = folder_;
    Text2.Text = Text(TheApp().Files().Style().NamePart(folder_));
    Text2.SelectAll();
    Text2.SetFocus();
}

void frmRenDir::FieldKey(TextBox& field, KeyEvent& key) {
    ChangeCaseByKey(field, key);
}

void frmRenDir::cmdUnderscoreCaps_Click() {
    Text2.Text = UnderscoreCaps(Text2.Text.Get(), SmallWordsOfNewNames());
    Text2.SetFocus();
}

void frmRenDir::Accept() {
    App& app = TheApp();
    const PathStyle style = app.Files().Style();
    if (!CheckFileName(app, Text2.Text.Get())) return;
    const Text newPath = style.JoinPath(ParentOf(style, folder_), Text2.Text.Get());
    if (app.Files().DirExists(newPath)) {
        app.Messages().Show(
            {newPath + u"\r\n\r\nA directory with this name already exists on the current drive!",
             MessageIcon::Exclamation});
        return;
    }
    Rename(newPath);
}

void frmRenDir::Rename(const Text& newPath) {
    App& app = TheApp();
    FileSystem& files = app.Files();
    // Some systems hold on to a folder that is the current directory.
    files.ChangeDir(ParentOf(files.Style(), folder_));
    if (!files.Rename(folder_, newPath)) {
        app.DialogResult = 0;
        app.Messages().Show({u"Error trying to rename directory\r\n\r\n" + folder_ + u"\r\n\r\nTo " +
                                 newPath + u"\r\n\r\nIs this drive access-protected ?",
                             MessageIcon::Stop});
        return;
    }
    files.ChangeDir(newPath);
    app.Exchange<ListerRequest>().ListerFolder = newPath;
    File().NewFolderResult = newPath;
    Done();
}

} // namespace korvane
