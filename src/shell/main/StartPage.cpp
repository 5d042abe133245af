#include "shell/main/StartPage.h"

#include "context/App.h"
#include "platform/FileSystem.h"
#include "shell/main/ButtonText.h"
#include "shell/recent/RecentRecord.h"

#include <algorithm>
#include <string>

namespace korvane {

namespace {

std::vector<Text> NewestFiles(const FileSystem& files, const RecentRecord& recents) {
    std::vector<Text> newest;
    for (const Text& entry : recents.RecentEntries) {
        if (newest.size() == StartPage::kFiles) break;
        const Text path(PathInRecord(entry));
        const bool known = std::ranges::find(newest, path) != newest.end();
        if (!path.empty() && !known && files.FileExists(path)) newest.push_back(path);
    }
    return newest;
}

} // namespace

StartPage::StartPage(App& app, Form& window, OpenFile open)
    : app_(app),
      open_(std::move(open)),
      lblStart_(window, "lblStart", u"Recent files"),
      cmdSample_(window, "cmdSample") {
    for (int number = 1; number <= kFiles; ++number)
        files_.push_back(std::make_unique<CommandButton>(window, "cmdStart" + std::to_string(number)));
}

void StartPage::Fill(const RecentRecord& recents) {
    const std::vector<Text> newest = NewestFiles(app_.Files(), recents);
    lblStart_.Visible = !newest.empty();
    for (std::size_t at = 0; at < files_.size(); ++at)
        ShowFile(*files_[at], at < newest.size() ? newest[at] : Text(), {});
    const PathStyle style = app_.Files().Style();
    Text sample = app_.Files().ProgramDir();
    for (const TextView part : {u"samples", u"Books.tbx"})
        sample = style.JoinPath(sample, part);
    ShowFile(cmdSample_, app_.Files().FileExists(sample) ? sample : Text(), u"Sample: ");
}

/// An empty path hides the button.
void StartPage::ShowFile(CommandButton& button, const Text& path, TextView before) {
    button.Visible = !path.empty();
    if (path.empty()) return;
    const PathStyle style = app_.Files().Style();
    button.Caption =
        ButtonText(Text(before) + Text(style.NamePart(path)) + u"    " + Text(style.FolderPart(path)));
    button.ToolTipText = path;
    button.Click = [this, path] { open_(path); };
}

} // namespace korvane
