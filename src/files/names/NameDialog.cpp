#include "files/names/NameDialog.h"

#include "common/text/Names.h"
#include "context/App.h"
#include "context/exchange/FileOperation.h"
#include "files/names/NameTyping.h"
#include "platform/Clock.h"

#include <algorithm>

namespace korvane {

NameDialog::NameDialog(App& app, std::string_view name, TextView caption, Twips leastWidth)
    : Form(app.Forms(), name, caption), app_(app), leastWidth_(leastWidth) {
    cmdAccept.Click = [this] { Accept(); };
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

void NameDialog::AddField(TextBox& field) {
    field.KeyDown = [this, &field](KeyEvent& key) { Field_KeyDown(field, key); };
}

void NameDialog::Field_KeyDown(TextBox& field, KeyEvent& key) {
    if (key.Is(Key::Return, Mask::None)) {
        key.consumed = true;
        Accept();
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

bool ChangeCaseByKey(TextBox& field, KeyEvent& key) {
    const bool titled = key.Is('U', Mask::Ctrl | Mask::Shift);
    if (!titled && !key.Is('U', Mask::Ctrl)) return false;
    key.consumed = true;
    Text text = field.Text;
    field.Text = MakeFileName(text, titled ? NameCase::Title : NameCase::AsTyped);
    return true;
}

void SelectStem(TextBox& field) {
    const Text& name = field.Text;
    field.SelStart = 0;
    field.SelLength = static_cast<int>(std::min(name.rfind(u'.'), name.size()));
}

void AddDate(const App& app, TextBox& field) {
    field.Text = WithDate(field.Text.Get(), app.Clock().Now(), app.Locale().Names());
}

} // namespace korvane
