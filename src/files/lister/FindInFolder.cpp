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
    const std::vector<Text> names = app_.Files().FileNames(folder, patterns);
    found_.clear();
    do {
        while (next_ < names.size()) {
            const Text& name = names[next_++];
            if (!ContainsIgnoringCase(name, wanted)) continue;
            found_ = name;
            return;
        }
        next_ = 0;
    } while (AskYesNo(app_, u"Search again from top of list?"));
}

} // namespace korvane
