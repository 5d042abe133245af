#include "extras/web/BrowserEngine.h"

#include "context/App.h"
#include "context/ports/WebEngines.h"
#include "controls/text/TextControl.h"
#include "extras/web/TypedAddress.h"

namespace korvane {

BrowserEngine::BrowserEngine(App& app, WebView& view, TextControl& text)
    : app_(app), view_(view), text_(text), pages_(app, view, text) {
    view_.Engine = this;
}

void BrowserEngine::Navigate(TextView address) {
    const Text whole = AddressOfTyped(app_.Files(), address);
    if (whole.empty()) return;
    Choose();
    Engine().Navigate(whole);
}

void BrowserEngine::Choose() {
    if (chosen_) return;
    chosen_ = true;
    if (auto* engines = app_.Port<WebEngines>()) ofPlatform_ = engines->EngineFor(view_);
    text_.Visible = ofPlatform_ == nullptr;
}

WebEngine& BrowserEngine::Engine() {
    return ofPlatform_ != nullptr ? *ofPlatform_ : pages_;
}

void BrowserEngine::TakeKeyboard() {
    if (ofPlatform_ != nullptr) {
        view_.SetFocus();
    } else {
        text_.SetFocus();
    }
}

void BrowserEngine::Close() {
    Stop();
    ofPlatform_.reset();
    chosen_ = false;
}

} // namespace korvane
