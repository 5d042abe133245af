#include "context/StandardMessages.h"

#include "context/App.h"
#include "platform/FileSystem.h"
#include "platform/MessageBoxes.h"
#include "platform/Screen.h"

namespace korvane {

namespace {

const Text kBlankLine = u"\r\n\r\n";

void ShowBox(App& app, const Text& text, MessageIcon icon) {
    app.Messages().Show({text, icon});
}

Text QuotedReason(TextView reason) {
    return reason.empty() ? u"(unknown)" : u"\"" + Text(reason) + u"\"";
}

} // namespace

void ShowCannotLoad(App& app, TextView file) {
    ShowBox(app,
            u"Cannot load the following file:" + kBlankLine + Text(file) + kBlankLine + u"Current dir.: " +
                app.Files().CurrentDir(),
            MessageIcon::Exclamation);
}

void ShowCannotLocate(App& app, Text& file) {
    if (file.empty()) file = u"( Filename empty! )";
    ShowBox(app,
            u"Cannot locate the following program/file:" + kBlankLine + file + kBlankLine +
                u"Check the path before the name and see whether\r\n"
                u"the program/file exists on your hard disk.",
            MessageIcon::Stop);
    app.Screen().SetPointer(Pointer::Default);
}

void ShowCannotAccess(App& app, TextView file, FileAccess access) {
    // This is read before the box is shown, because what runs meanwhile may touch the disk.
    ShowCannotAccess(app, file, access, app.Files().LastErrorText());
}

void ShowCannotAccess(App& app, TextView file, FileAccess access, TextView reason) {
    const Text shown(Trim(file).empty() ? u"( no name specified or name is empty ! )" : file);
    ShowBox(app,
            Text(u"Cannot ") + (access == FileAccess::Save ? u"save" : u"delete") + u" this file :" +
                kBlankLine + shown + kBlankLine +
                u"The error was probably triggered for the following reason : " + kBlankLine +
                QuotedReason(reason) + kBlankLine,
            MessageIcon::Stop);
}

void ShowPasteHint(App& app) {
    ShowBox(app, u"You can retrieve this text by pressing Ctrl-V or using the \"Paste\" option.",
            MessageIcon::Information);
}

void DeleteFileQuietly(App& app, TextView file) {
    DeleteFileQuietly(app.Files(), file);
}

void DeleteFileQuietly(FileSystem& files, TextView file) {
    if (!file.empty() && files.FileExists(file)) files.Remove(file);
}

} // namespace korvane
