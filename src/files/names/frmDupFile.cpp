#include "files/names/frmDupFile.h"

#include "common/text/ScopedValue.h"
#include "context/App.h"
#include "context/DiskQuestions.h"
#include "context/StandardMessages.h"
#include "context/exchange/FileOperation.h"
#include "files/names/FieldKeys.h"
#include "platform/FileSystem.h"
#include "platform/MessageBoxes.h"
#include "platform/Screen.h"

#include <atomic>
#include <memory>

namespace korvane {

namespace {

// The boxes of this window break their lines by carriage returns alone. Kept for compatibility:
// duplicate-boxes-break-by-cr.

Message MustDiffer(const Text& source, const Text& target) {
    return {u"Files must be different!\r\rSource :  " + source + u"\rTarget  :  " + target + u"\r",
            MessageIcon::Exclamation};
}

Message AlreadyExists(const Text& name) {
    return {u"A file with this name already exists in the current directory!\r\r" + name + u"\r",
            MessageIcon::Exclamation};
}

} // namespace

frmDupFile::frmDupFile(App& app)
    : NameDialog(app, "frmDupFile", u"Enter name for file duplicate", kUsualWidth) {
    Frame1.Caption = u"Current file : ";
    Frame2.Caption = u"Duplicate : ";
    Text1.Locked = true;
    AddField(Text1);
    AddField(Text2);
    cmdAddDate.Click = [this] { AddDate(TheApp(), Text2); };
}

void frmDupFile::Load() {
    NameDialog::Load();
    Text1.Text = File().FileOpName;
    Text2.Text = File().FileOpName;
    SelectStem(Text2);
    Text2.SetFocus();
}

void frmDupFile::FieldKey(TextBox&, KeyEvent& key) {
    if (!key.Is('T', Mask::Ctrl)) return;
    key.consumed = true;
    AddDate(TheApp(), Text2);
}

bool frmDupFile::QueryUnload() {
    left_ = copying_;
    return !copying_;
}

void frmDupFile::Accept() {
    if (copying_) return;
    App& app = TheApp();
    const Text& target = Text2.Text;
    if (app.Files().Style().SameName(File().FileOpName, target)) {
        app.Messages().Show(MustDiffer(File().FileOpName, target));
    } else if (app.Files().FileExists(target)) {
        app.Messages().Show(AlreadyExists(target));
    } else {
        Copy(target);
    }
}

void frmDupFile::Copy(const Text& target) {
    std::optional<Copied> copied;
    left_ = false;
    {
        const ScopedValue copying(copying_, true);
        const Hourglass hourglass(TheApp().Screen());
        copied = CopyOnDisk(target);
    }
    if (!copied) {
        Close();
        return;
    }
    if (copied->outcome == CopyOutcome::Copied) return Done();
    ShowCannotAccess(TheApp(), target, FileAccess::Save, copied->reason);
}

std::optional<frmDupFile::Copied> frmDupFile::CopyOnDisk(const Text& target) {
    App& app = TheApp();
    const auto steps = std::make_shared<std::atomic<int>>(0);
    Standstill standstill(app);
    const auto stillWaits = [&] {
        app.Screen().ProcessMessages();
        return !standstill.Lasts(*steps) || !left_;
    };
    return AnswerTo<Copied>([&](const DiskQuestion& question) { return AskDisk(app, question, stillWaits); },
                            [steps, from = app.Files().FullPath(File().FileOpName),
                             to = app.Files().FullPath(target)](FileSystem& files, const StillWaits& waits) {
                                const auto step = [&] {
                                    ++*steps;
                                    waits();
                                };
                                const CopyOutcome outcome = files.Copy(from, to, {.betweenSteps = step});
                                return Copied{outcome, files.LastErrorText()};
                            });
}

} // namespace korvane
