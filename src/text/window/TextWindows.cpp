#include "text/window/TextWindows.h"

#include "context/App.h"
#include "context/exchange/TextWindowState.h"
#include "text/window/frm_RTF_HTM.h"

namespace korvane {

TextWindows::TextWindows(App& app) : app_(app) {
    app_.SetPort<TextWindow>(this);
    app_.SetPort<TextFileViewer>(this);
}

TextWindows::~TextWindows() {
    if (app_.Port<TextWindow>() == this) app_.SetPort<TextWindow>(nullptr);
    if (app_.Port<TextFileViewer>() == this) app_.SetPort<TextFileViewer>(nullptr);
}

frm_RTF_HTM* TextWindows::Open() const {
    return window_ != nullptr && window_->Shown() ? window_.get() : nullptr;
}

/// Makes the window, which begins with nothing of the one before it.
void TextWindows::MakeWindow(TextView path) {
    TextWindowState& state = app_.Exchange<TextWindowState>();
    state.TextWindowFile = Text(path);
    state.TextWindowUntitled = path.empty() ? 1 : 0;
    window_ = std::make_unique<frm_RTF_HTM>(app_);
    window_->EnsureLoaded();
}

void TextWindows::TextWindowShow() {
    if (frm_RTF_HTM* const open = Open()) return app_.Forms().Raise(*open);
    MakeWindow({});
    window_->Show();
}

void TextWindows::TextWindowShowUnsaved(const UnsavedText& text) {
    if (frm_RTF_HTM* const open = Open()) {
        open->ViewUnsaved(text);
        return app_.Forms().Raise(*open);
    }
    MakeWindow({});
    window_->ViewUnsaved(text);
    window_->Show();
}

void TextWindows::KeepNow() {
    if (frm_RTF_HTM* const open = Open()) open->KeepUnsaved();
}

void TextWindows::View(TextView path) {
    if (frm_RTF_HTM* const open = Open()) {
        open->View(path);
        return app_.Forms().Raise(*open);
    }
    MakeWindow(path);
    window_->ShowModal();
}

void TextWindows::Write(const std::function<void(frm_RTF_HTM&)>& write) {
    frm_RTF_HTM* const open = Open();
    if (open == nullptr) MakeWindow({});
    write(*window_);
    window_->ThisTextCtrl.SetFocus();
    if (open != nullptr) return app_.Forms().Raise(*open);
    window_->ShowModal();
}

void TextWindows::TextWindowInsert(TextView text) {
    Write([text](frm_RTF_HTM& window) { window.ThisTextCtrl.SetSelText(text); });
}

void TextWindows::TextWindowInsertRtf(std::string_view rtf) {
    Write([rtf](frm_RTF_HTM& window) { window.ThisTextCtrl.SetSelTextRtf(rtf); });
}

} // namespace korvane
