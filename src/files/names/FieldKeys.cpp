#include "files/names/FieldKeys.h"

#include "common/text/Names.h"
#include "context/App.h"
#include "controls/TextBox.h"
#include "files/names/NameTyping.h"
#include "platform/Clock.h"

#include <algorithm>

namespace korvane {

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
