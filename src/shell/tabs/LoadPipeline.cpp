#include "shell/tabs/LoadPipeline.h"

#include "common/number/Number.h"
#include "common/path/PathStyle.h"
#include "context/App.h"
#include "context/FileChooser.h"
#include "context/exchange/ListerRequest.h"
#include "dialogs/Questions.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/Screen.h"
#include "shell/recent/RecentRecord.h"
#include "shell/tabs/QuotedPath.h"
#include "shell/tabs/Tabs.h"
#include "shell/tabs/frmLoadList.h"
#include "shell/tabs/frmMDIChild.h"
#include "table/TableFile.h"

namespace korvane {

namespace {

constexpr TextView kTableExtension = u".TBX";

Text WithoutBlanks(Text text) {
    std::erase(text, u' ');
    return text;
}

void TellAlreadyLoaded(App& app, const Text& path) {
    TellError(app, u"The following file has already been loaded: \r\n\r\n\t" + path + u"\r\n");
}

} // namespace

bool LoadPipeline::OpenDatabase(const Text& path, LoadInto into) {
    const auto files = FilesToLoad(path);
    if (!files) return false;
    // `ReadTableData` sets the pointer back. It stays an hourglass when nothing is read.
    app_.Screen().SetPointer(Pointer::Hourglass);
    std::size_t place = 0;
    for (const Text& file : *files) {
        // The files after this one aren't loaded. Kept for compatibility: open-file-stops-load.
        if (IsLoaded(file)) {
            TellAlreadyLoaded(app_, file);
            ShowLoadedFiles(app_, tabs_, window_);
            return true;
        }
        LoadFile(place++, file, into);
    }
    if (files->size() >= 2) ShowLoadedFiles(app_, tabs_, window_);
    return !files->empty();
}

std::optional<std::vector<Text>> LoadPipeline::FilesToLoad(const Text& path) {
    ListerRequest& request = app_.Exchange<ListerRequest>();
    request.ChosenFileCount = 1;
    request.ChosenFiles = {Text(), path};
    if (path.empty() && !ChooseFiles()) return std::nullopt;
    // The whole program has one list of files. A file that another start hands over while a message box is
    // open here replaces that list, so this load goes on with its own.
    const auto first = request.ChosenFiles.begin() + 1;
    std::vector<Text> files(first, first + request.ChosenFileCount);
    if (path.empty() && files.size() >= 2 && !ConfirmSeveral(files.size())) return std::nullopt;
    return files;
}

bool LoadPipeline::ChooseFiles() {
    app_.DialogResult = 0;
    {
        const KeepCurrentDir keep(app_);
        ShowFileChooser(app_, ChooserMode::Load, u"*.tbx", u"Select a text database to edit");
    }
    ListerRequest& lister = app_.Exchange<ListerRequest>();
    if (lister.ChosenFilePath.empty()) return false;
    if (lister.ChosenFileCount < 2)
        lister.ChosenFiles[static_cast<std::size_t>(lister.ChosenFileCount)] = lister.ChosenFilePath;
    return true;
}

bool LoadPipeline::ConfirmSeveral(std::size_t count) {
    return AskYesNo(app_, u"Load  >   " + NumberText(count) + u"   <  text databases?");
}

bool LoadPipeline::IsLoaded(const Text& file) {
    // The paths are compared as they are written. Kept for compatibility: same-file-loads-twice.
    for (int slot = 1; slot <= tabs_.TabState.UpperBound(); ++slot) {
        const Text& path = tabs_.TabState[slot].Path;
        if (tabs_.TabState.InUse(slot) && !WithoutBlanks(path).empty() && path == file) return true;
    }
    return false;
}

void LoadPipeline::LoadFile(std::size_t place, const Text& file, LoadInto into) {
    if (into == LoadInto::NewTab) tabs_.AddNewTab();
    if (recents_.LoadFromRecent == 1 && place < recents_.RecentOffsets.size()) {
        recents_.RecentOffset = recents_.RecentOffsets[place];
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

/// The tab stays empty for a file of another kind. Kept for compatibility: other-files-keep-tab.
void LoadPipeline::ReadIntoActiveTab(const Text& file) {
    frmMDIChild* tab = tabs_.Active();
    if (tab == nullptr || !HasExtension(file, kTableExtension)) return;
    tab->Table().TxtDbFile = file;
    tab->Run(&ReadTableData);
    tab->Caption = file;
}

} // namespace korvane
