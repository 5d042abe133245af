#include "context/FileNames.h"

#include "common/text/Names.h"
#include "context/App.h"
#include "platform/MessageBoxes.h"

namespace korvane {

bool CheckFileName(App& app, TextView name) {
    const auto forbidden = ForbiddenCharacter(name);
    if (!forbidden) return true;
    const Text text = Text(u"File name contains this forbidden character:    ") + *forbidden +
                      u"\t\r\n\r\nPending operation will not be executed.";
    app.Messages().Show({text, MessageIcon::Stop});
    return false;
}

} // namespace korvane
