#include "files/names/NameDialog.h"

#include "common/text/ScopedValue.h"
#include "context/App.h"
#include "context/DiskQuestions.h"
#include "context/exchange/FileOperation.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/Screen.h"

#include <chrono>
#include <optional>

namespace korvane {

namespace {

/// From this time on a wait for the disk is long.
constexpr std::chrono::milliseconds kLong{300};

} // namespace

NameDialog::NameDialog(App& app, std::string_view name, TextView caption, Twips leastWidth)
    : Form(app.Forms(), name, caption), app_(app), leastWidth_(leastWidth) {
    cmdAccept.Click = [this] { AcceptOnDisk(); };
    cmdCancel.Click = [this] { Cancel(); };
    cmdAccept.Default = true;
    cmdCancel.Cancel = true;
}

void NameDialog::Load() {
    const Twips stored{app_.Settings.DialogWidth};
    if (stored > leastWidth_) Width = stored;
}

void NameDialog::Unload() {
    app_.Settings.DialogWidth = static_cast<std::int16_t>(Width.Get().Number());
}

void NameDialog::AcceptOnDisk() {
    if (!asking_ && DiskAnswers()) Accept();
}

Text NameDialog::FolderOfName() const {
    return app_.Files().CurrentDir();
}

/// In a long wait the window lives on, so that Cancel ends it.
bool NameDialog::DiskAnswers() {
    const ScopedValue asking(asking_, true);
    const auto start = app_.Clock().Uptime();
    std::optional<Hourglass> hourglass;
    const bool answered = AskDisk(
        app_,
        [folder = FolderOfName()](const FileSystem& files, const StillWaits&) { files.DirExists(folder); },
        [&] {
            if (app_.Clock().Uptime() - start < kLong) return true;
            if (!hourglass) hourglass.emplace(app_.Screen());
            app_.Screen().Yield();
            return Shown();
        });
    return answered && Shown();
}

void NameDialog::AddField(TextBox& field) {
    field.KeyDown = [this, &field](KeyEvent& key) { Field_KeyDown(field, key); };
}

void NameDialog::Field_KeyDown(TextBox& field, KeyEvent& key) {
    if (key.Is(Key::Return, Mask::None)) {
        key.consumed = true;
        AcceptOnDisk();
    } else if (key.Is(Key::Escape, Mask::None)) {
        key.consumed = true;
        Cancel();
    } else {
        FieldKey(field, key);
    }
}

FileOperation& NameDialog::File() const {
    return app_.Exchange<FileOperation>();
}

void NameDialog::Done() {
    app_.DialogResult = 1;
    Close();
}

void NameDialog::Cancel() {
    app_.DialogResult = 0;
    Close();
}

} // namespace korvane
