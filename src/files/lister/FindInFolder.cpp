#include "files/lister/FindInFolder.h"

#include "common/text/CaseFold.h"
#include "context/App.h"
#include "dialogs/Questions.h"
#include "files/lists/frmFindStingInList.h"
#include "platform/FileSystem.h"

namespace korvane {

void FindInFolder::Run(const Text& folder, const Text& patterns) {
    const Text wanted = AskForStringInList(app_);
    if (wanted.empty()) return;
    const auto names = NamesIn(folder, patterns);
    if (!names) return;
    found_.clear();
    do {
        while (next_ < names->size()) {
            const Text& name = (*names)[next_++];
            if (!ContainsIgnoringCase(name, wanted)) continue;
            found_ = name;
            return;
        }
        next_ = 0;
    } while (AskYesNo(app_, u"Search again from top of list?"));
}

/// Nothing if the disk doesn't answer.
std::optional<std::vector<Text>> FindInFolder::NamesIn(const Text& folder, const Text& patterns) {
    return AnswerTo<std::vector<Text>>(
        ask_, [folder, patterns](const FileSystem& files, const StillWaits& stillWaits) {
            return files.FileNamesInSteps(folder, patterns, [&](std::size_t) { return stillWaits(); });
        });
}

} // namespace korvane
