#include "shell/tabs/LoadPipeline.h"

#include "common/number/Number.h"
#include "common/path/PathStyle.h"
#include "context/App.h"
#include "context/FileChooser.h"
#include "context/Ports.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/MessageBoxes.h"
#include "platform/Screen.h"
#include "shell/recent/RecentRecord.h"
#include "shell/tabs/QuotedPath.h"
#include "shell/tabs/Tabs.h"
#include "shell/tabs/frmMDIChild.h"

namespace korvane {

namespace {

constexpr TextView kTableExtension = u".TBX";

Text WithoutBlanks(Text text) {
    std::erase(text, u' ');
    return text;
}

void ShowLoadedFiles(App& app) {
    if (app.MainWindow != nullptr) app.MainWindow->RunCommand("mnuFile_AreLoaded");
}

void TellAlreadyLoaded(App& app, const Text& path) {
    app.Messages().Show(
        {u"The following file has already been loaded: \r\n\r\n\t" + path + u"\r\n", MessageIcon::Stop});
}

} // namespace

bool LoadPipeline::OpenDatabase(const Text& path, LoadInto into) {
    app_.Lister.ChosenFileCount = 1;
    app_.Lister.ChosenFiles.assign(2, Text());
    if (!TakeFiles(path)) return false;
    // `ReadTableData` takes the hourglass back; where nothing is read it stays.
    app_.Screen().SetPointer(Pointer::Hourglass);
    // The list of files is the process's: a file that arrives while a box stands here starts it anew.
    for (int number = 1; number <= app_.Lister.ChosenFileCount; ++number) {
        const Text file = app_.Lister.ChosenFiles[static_cast<std::size_t>(number)];
        if (IsLoaded(file)) {
            TellAlreadyLoaded(app_, file);
            ShowLoadedFiles(app_);
            return true;
        }
        LoadFile(number, file, into);
    }
    if (app_.Lister.ChosenFileCount >= 2) ShowLoadedFiles(app_);
    return app_.Lister.ChosenFileCount > 0;
}

bool LoadPipeline::TakeFiles(const Text& path) {
    if (path.empty()) return ChooseFiles();
    app_.Lister.ChosenFiles[1] = path;
    return true;
}

bool LoadPipeline::ChooseFiles() {
    app_.DialogResult = 0;
    {
        const KeepCurrentDir keep(app_.Files());
        ShowFileChooser(app_, ChooserMode::Load, u"*.tbx", u"Select a text database to edit");
    }
    ListerRequest& lister = app_.Lister;
    if (lister.ChosenFilePath.empty()) return false;
    if (lister.ChosenFileCount >= 2) return ConfirmSeveral();
    lister.ChosenFiles[static_cast<std::size_t>(lister.ChosenFileCount)] = lister.ChosenFilePath;
    return true;
}

bool LoadPipeline::ConfirmSeveral() {
    const Text question = u"Load  >   " + NumberText(app_.Lister.ChosenFileCount) + u"   <  text databases?";
    return app_.Messages().Show({question, MessageIcon::Question, MessageButtons::YesNo}) == Answer::Yes;
}

bool LoadPipeline::IsLoaded(const Text& file) {
    // Exactly as written: the same file in other case, or by its other drive form, loads twice. Deliberate.
    for (int slot = 1; slot <= tabs_.TabState.UpperBound(); ++slot) {
        const Text& path = tabs_.TabState[slot].Path;
        if (tabs_.TabState.InUse(slot) && !WithoutBlanks(path).empty() && path == file) return true;
    }
    return false;
}

void LoadPipeline::LoadFile(int number, const Text& file, LoadInto into) {
    if (into == LoadInto::NewTab) tabs_.AddNewTab();
    const auto offsetIndex = static_cast<std::size_t>(number - 1);
    if (recents_.LoadFromRecent == 1 && offsetIndex < recents_.RecentOffsets.size()) {
        recents_.RecentOffset = recents_.RecentOffsets[offsetIndex];
    }
    ReadIntoActiveTab(WithoutOuterQuotes(file));
    TabState& state = tabs_.TabState[tabs_.CurrentTabIndex];
    state.Path = file;
    state.Name = Text(app_.Files().Style().NamePart(file));
    if (frmMDIChild* tab = tabs_.Active()) {
        tab->Caption = app_.Settings.ShowFullPath == 1 ? state.Path : state.Name;
    }
    recents_.AddToRecent(file, 0, app_.Clock().Now());
}

void LoadPipeline::ReadIntoActiveTab(const Text& file) {
    frmMDIChild* tab = tabs_.Active();
    if (tab == nullptr || !HasExtension(file, kTableExtension)) return;
    tab->Table().TxtDbFile = file;
    tab->Invoke("ReadTableData");
    tab->Caption = file;
}

} // namespace korvane
