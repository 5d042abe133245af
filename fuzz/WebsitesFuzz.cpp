// Any bytes as a list of websites. They are read without a word, what is written of them comes back, and
// whatever is in them reaches the browser as words of one program.

#include "StateStage.h"
#include "common/path/CommandWords.h"
#include "controls/Form.h"
#include "extras/web/WebsiteFile.h"
#include "extras/web/frmWebList.h"
#include "files/lists/ListFile.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace korvane {
namespace {

const Text kList = u"C:\\Data\\sites.lst";
const Text kBrowser = u"C:\\Web\\b.exe";

using Lines = std::vector<Text>;

/// What is left of the lists after they were written and read.
WebsiteLists Kept(WebsiteLists lists) {
    std::erase_if(lists.websites, [](const Website& website) {
        return website.name == kDeletedWebsite && website.url == kDeletedWebsite;
    });
    std::erase_if(lists.groups, [](const Text& group) {
        // A blank before these was dropped at the reading.
        const bool actsAsMark = group.starts_with(u';') || group.starts_with(u"***");
        return group.empty() || group == kDeletedWebsite || actsAsMark;
    });
    lists.groups.emplace_back();
    return lists;
}

void CheckLines(StateStage& stage, const WebsiteLists& lists) {
    Require(WriteListFile(stage.app, kList, LinesOfWebsites(lists)), "a list can be written");
    const auto lines = ReadListFile(stage.app, kList);
    Require(lines.has_value(), "what is written can be read");
    Require(WebsitesOfLines(lines.value_or(Lines())) == Kept(lists),
            "the websites that are written come back");
}

/// Loads what is current and checks that one program got the words of the line, or nothing the empty line.
void CheckLoad(StateStage& stage, frmWebList& window, Control& list, const Text& line) {
    const std::size_t before = stage.shell.Starts().size();
    KeyEvent key{Key::Return, Mask::None};
    list.KeyDown(key);
    Require(stage.shell.Starts().size() == before + (line.empty() ? 0 : 1), "one program is started");
    Require(window.LoadByEnter == 0, "Return counts once");
    if (line.empty()) return;
    Require(stage.shell.Starts().back() == ProgramStart{kBrowser, SplitCommandLine(line)},
            "the browser gets the words of the line");
}

void CheckWindow(StateStage& stage, std::string_view bytes, const WebsiteLists& lists) {
    stage.files.AddFile(kList, bytes);
    stage.files.AddFile(kBrowser);
    stage.app.Settings.WebListFile = kList;
    stage.app.Settings.WebListA = kBrowser;
    const Form owner(stage.app.Forms(), "frmMDIParent", u"");
    frmWebList window(stage.app, owner);
    window.EnsureLoaded();
    Require(window.ListView1.Count() == static_cast<int>(lists.websites.size()), "each website has a row");
    for (int row = 1; row <= window.ListView1.Count(); ++row)
        window.ListView1.SetChecked(row, false);
    for (int row = 1; row <= window.ListView1.Count(); ++row) {
        window.ListView1.SetCurrent(row);
        const Website& website = lists.websites[static_cast<std::size_t>(row - 1)];
        CheckLoad(stage, window, window.ListView1, IsSeparator(website.name) ? Text() : website.url);
        window.cmdArrowUp.Press();
    }
    window.cmdGroupWin.Press();
    for (int index = 0; index < window.lstGroup.ListCount(); ++index) {
        const Text group = window.lstGroup.List(index);
        window.lstGroup.SetListIndex(index);
        CheckLoad(stage, window, window.lstGroup, IsSeparator(group) ? Text() : group);
    }
    window.ListDirty = 0;
    window.Close();
}

void Check(std::string_view bytes) {
    StateStage stage;
    stage.files.AddFile(kList, bytes);
    const auto lines = ReadListFile(stage.app, kList);
    const bool zero = bytes.find('\0') != std::string_view::npos;
    Require(lines.has_value() != zero, "only what holds a zero byte is no list");
    if (!lines) return;
    const WebsiteLists lists = WebsitesOfLines(*lines);
    CheckLines(stage, lists);
    // The window takes most of the time, so only an eighth of the inputs go through it.
    if (bytes.size() % 8 == 0) CheckWindow(stage, bytes, lists);
}

} // namespace
} // namespace korvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    korvane::Check({reinterpret_cast<const char*>(data), size});
    return 0;
}
