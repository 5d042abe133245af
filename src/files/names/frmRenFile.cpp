#include "files/names/frmRenFile.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "context/FileChooser.h"
#include "context/exchange/FileOperation.h"
#include "files/names/FieldKeys.h"
#include "files/names/NameTyping.h"
#include "platform/Clipboard.h"
#include "platform/FileSystem.h"
#include "platform/MessageBoxes.h"

#include <algorithm>

namespace korvane {

frmRenFile::frmRenFile(App& app) : NameDialog(app, "frmRenFile", u"Enter new name for file", kUsualWidth) {
    Frame1.Caption = u"Old name : ";
    Frame2.Caption = u"New name : ";
    Text1.Locked = true;
    AddField(Text1);
    AddField(Text2);
    Text2.Change = [this] { Text2_Change(); };
    cmdUnderscoreCaps.Click = [this] { cmdUnderscoreCaps_Click(); };
    cmdAddDate.Click = [this] { AddDate(TheApp(), Text2); };
    cmdBufferName.Click = [this] { cmdBufferName_Click(); };
    cmdUnderscores.Click = [this] { cmdUnderscores_Click(); };
}

void frmRenFile::Load() {
    NameDialog::Load();
    Text1.Text = File().FileOpName;
    Text2.Text = File().FileOpName;
    SelectStem(Text2);
    Text2.SetFocus();
}

void frmRenFile::Text2_Change() {
    lblNameLength.Caption = NumberText(Text2.Text.Get().size()) + u" characters";
}

void frmRenFile::FieldKey(TextBox& field, KeyEvent& key) {
    if (ChangeCaseByKey(field, key) || !key.Is('T', Mask::Ctrl)) return;
    key.consumed = true;
    AddDate(TheApp(), Text2);
}

void frmRenFile::cmdUnderscoreCaps_Click() {
    Text2.Text = UnderscoreCaps(Text2.Text.Get(), SmallWordsOfNewNames());
}

void frmRenFile::cmdBufferName_Click() {
    TheApp().Clipboard().SetText(Text1.Text);
    Close();
}

void frmRenFile::cmdUnderscores_Click() {
    // Outer blanks become underscores too, other than by the key that the caption names. Kept for
    // compatibility: underscore-key-trims.
    Text name = Text2.Text;
    std::ranges::replace(name, u' ', u'_');
    Text2.Text = name;
}

void frmRenFile::Accept() {
    App& app = TheApp();
    FileSystem& files = app.Files();
    const KeepCurrentDir keep(app);
    const Text& name = Text2.Text;
    const bool there = files.ChangeDir(File().FileOpFolder);
    if (there && !name.empty() && files.FileExists(name)) {
        app.Messages().Show({u"A file with this name already exists in the current directory!\r\n\r\n" + name,
                             MessageIcon::Exclamation});
        return;
    }
    if (!there || !files.Rename(File().FileOpName, name)) {
        app.Messages().Show({u"File:   " + File().FileOpName + u"\r\nError:   " + files.LastErrorText() +
                                 u"\r\n\r\nIs this file open elsewhere or access-protected ?",
                             MessageIcon::Stop});
        return;
    }
    File().FileNewName = name;
    Done();
}

} // namespace korvane
