#include "files/names/frmNewDir.h"

#include "context/App.h"
#include "context/FileNames.h"
#include "context/exchange/FileOperation.h"
#include "files/names/NameTyping.h"
#include "platform/FileSystem.h"
#include "platform/MessageBoxes.h"

namespace korvane {

frmNewDir::frmNewDir(App& app) : NameDialog(app, "frmNewDir", u"Enter name for new directory", kUsualWidth) {
    AddField(Text1);
    cmdUnderscoreCaps.Click = [this] { cmdUnderscoreCaps_Click(); };
}

void frmNewDir::Load() {
    NameDialog::Load();
    folder_ = TheApp().Files().CurrentDir();
    Frame1.Caption = u" Current Dir.: " + folder_;
    Text1.SetFocus();
}

void frmNewDir::cmdUnderscoreCaps_Click() {
    Text1.Text = UnderscoreCaps(Text1.Text.Get(), SmallWordsOfNewFolders());
    Text1.SetFocus();
}

void frmNewDir::Accept() {
    App& app = TheApp();
    const Text& name = Text1.Text;
    if (!CheckFileName(app, name)) return;
    FileSystem& files = app.Files();
    const Text path = files.Style().JoinPath(folder_, name);
    if (files.DirExists(path)) {
        app.Messages().Show({u"This directory already exists!\r\n\r\n" + name, MessageIcon::Exclamation});
        return;
    }
    files.ChangeDir(folder_);
    if (!files.MakeDir(path)) {
        app.Messages().Show({u"Error creating directory:   " + name + u"\r\nError:   " +
                                 files.LastErrorText() + u"\r\n\r\nIs this drive access protected ?",
                             MessageIcon::Stop});
        return;
    }
    File().NewFolderPath = path;
    File().NewFolderResult = path;
    Done();
}

} // namespace korvane
