#include "files/names/NameDialog.h"

#include "context/App.h"
#include "context/exchange/FileOperation.h"

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

} // namespace korvane
